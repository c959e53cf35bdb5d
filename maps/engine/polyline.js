/** `google.maps.Polyline`. */
(function () {
  'use strict';
  const maps = window.google.maps;

  const defaults = { strokeColor: '#000', strokeOpacity: 1, strokeWeight: 3, geodesic: false, zIndex: 0 };

  class Polyline extends maps.MVCObject {
    /** @param options path (positions), map, strokeColor, strokeOpacity, strokeWeight, geodesic, zIndex */
    constructor(options) {
      super();
      this.map = null;
      this.line = Object.assign({}, defaults);
      this.setOptions(options || {});
    }

    setOptions(options) {
      Object.keys(defaults).forEach(name => {
        if (options[name] !== undefined)
          this.line[name] = options[name];
      });
      if (options.path || !this.path)
        this.setPath(options.path || []);
      if (options.map !== undefined)
        this.setMap(options.map);
      this.changed();
    }

    /** @return {MVCArray} the positions; what is pushed there is drawn */
    getPath() {
      return this.path;
    }

    setPath(path) {
      this.path = path instanceof maps.MVCArray ? path : new maps.MVCArray(path);
      ['insert_at', 'remove_at'].forEach(name => this.path.addListener(name, () => this.changed()));
      this.changed();
    }

    getMap() {
      return this.map;
    }

    setMap(map) {
      const next = map || null;
      if (next === this.map)
        return;
      if (this.map) {
        this.map.lines.remove(this.line);
        this.map.chart.invalidate();
      }
      this.map = next;
      if (next)
        next.lines.add(this.line);
      this.changed();
    }

    /** Only notes the change: a path often grows by thousands of points before the next frame is painted. */
    changed() {
      this.line.path = this.path;
      this.line.runs = null;
      if (this.map)
        this.map.chart.invalidate();
    }
  }

  maps.Polyline = Polyline;
})();
