/** `google.maps.Polyline` and `google.maps.Polygon`. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  const defaults = {
    strokeColor: '#000',
    strokeOpacity: 1,
    strokeWeight: 3,
    fillColor: '#000',
    fillOpacity: 0,
    geodesic: false,
    icons: /** @type {?google.maps.IconSequence[]} */ (null),
    zIndex: 0,
  };

  class Polyline extends maps.MVCObject {
    /**
     * @param {?PolylineOptions} [options] icons stand at an offset of '50%' or '20px' and are repeated after so much. A
     *     line of a negative zIndex lies below everything else and costs nothing but its new piece when it grows.
     */
    constructor(options) {
      super();
      /** @type {?google.maps.Map} */
      this.map = null;
      /** @type {?LinesHome} */
      this.home = null;
      /** @type {google.maps.MapsEventListener[]} */
      this.listening = [];
      /** @type {Line} */
      this.line = Object.assign({ positions: () => this.positions(), geometry: new engine.LinePath(false) }, defaults);
      this.setOptions(options || {});
    }

    /** @param {PolylineOptions} options */
    setOptions(options) {
      const before = this.line.zIndex;
      /** @type {Record<string, unknown>} */
      const told = Object.assign({}, options);
      Object.keys(defaults).filter(name => told[name] !== undefined)
        .forEach(name => Object.assign(this.line, { [name]: told[name] }));
      if (options.path || !this.path)
        this.setPath(options.path || []);
      if (options.geodesic !== undefined)
        this.forgetGeometry();
      if (this.map && this.line.zIndex !== before)
        this.enter(this.leave());
      if (options.map !== undefined)
        this.setMap(options.map);
      this.repaint();
    }

    /** @return {google.maps.MVCArray<LatLng>} the positions; what is pushed there is drawn */
    getPath() {
      return this.path;
    }

    /** @param {PolylineOptions['path']} path */
    setPath(path) {
      this.listening.forEach(maps.event.removeListener);
      /** @type {google.maps.MVCArray<LatLng>} */
      this.path = path instanceof maps.MVCArray ? path : new maps.MVCArray(/** @type {LatLng[]} */ (path));
      const anew = () => this.forgetGeometry();
      this.listening = [
        this.path.addListener('insert_at', (/** @type {number} */ index) => this.inserted(index)),
        this.path.addListener('remove_at', anew),
        this.path.addListener('set_at', anew),
      ];
      this.forgetGeometry();
    }

    /** The positions that the line goes through. */
    positions() {
      return this.path.items;
    }

    /**
     * Only notes the change: a path often grows by thousands of points before the next frame is painted.
     * @param {number} index
     */
    inserted(index) {
      if (index !== this.path.getLength() - 1)
        this.forgetGeometry();
      else if (this.home)
        this.home.grow();
    }

    forgetGeometry() {
      this.line.geometry = new engine.LinePath(this.line.geodesic);
      this.repaint();
    }

    getMap() {
      return this.map;
    }

    /** @param {?google.maps.Map} map */
    setMap(map) {
      const next = map || null;
      if (next === this.map)
        return;
      this.leave();
      this.enter(next);
    }

    /** @return {?google.maps.Map} the map that the line was on */
    leave() {
      const map = this.map;
      if (this.home)
        this.home.lines.remove(this.line);
      this.repaint();
      this.map = this.home = null;
      return map;
    }

    /** @param {?google.maps.Map} map */
    enter(map) {
      this.map = map;
      this.home = map ? engine.linesAt(map, this.line.zIndex) : null;
      if (this.home)
        this.home.lines.add(this.line);
      this.repaint();
    }

    repaint() {
      if (this.home)
        this.home.canvas.invalidate();
    }
  }

  /** A closed line with its area: options as for Polyline, with `paths`, fillColor and fillOpacity. */
  class Polygon extends Polyline {
    /** @param {?PolygonOptions} [options] */
    constructor(options) {
      const path = /** @type {PolylineOptions['path']} */ (options && options.paths);
      super(Object.assign({ fillOpacity: 0.35, path: path }, options));
    }

    positions() {
      const items = this.path.items;
      return items.length ? items.concat(items[0]) : items;
    }

    inserted() {
      this.forgetGeometry();
    }
  }

  engine.supply({ Polyline: Polyline, Polygon: Polygon });
})();
