/** The scale in the map's corner: nautical miles above, kilometres below, along the parallel of the view's middle. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const widest = 120;
  const metresAround = 40075016.7;

  /** The largest of 1, 2, 5, 10, 20... (and below one its tenths) that is not above the limit. */
  function roundLength(limit) {
    const power = Math.pow(10, Math.floor(Math.log10(limit)));
    const digit = limit / power;
    return power * (digit >= 5 ? 5 : digit >= 2 ? 2 : 1);
  }

  class ScaleBar extends L.Control {
    constructor() {
      super({ position: 'bottomleft' });
    }

    /** @param {L.Map} leaflet */
    onAdd(leaflet) {
      const box = L.DomUtil.create('div', 'scale-bar');
      this.lines = [
        { metres: 1852, unit: 'NM', element: L.DomUtil.create('div', 'scale-bar-line', box) },
        { metres: 1000, unit: 'km', element: L.DomUtil.create('div', 'scale-bar-line', box) },
      ];
      this.leaflet = leaflet;
      leaflet.on('move', this.update, this);
      leaflet.whenReady(this.update, this);
      return box;
    }

    /** @param {L.Map} leaflet */
    onRemove(leaflet) {
      leaflet.off('move', this.update, this);
    }

    update() {
      const leaflet = this.leaflet;
      const world = engine.tileSize * Math.pow(2, leaflet.getZoom());
      const latitude = Math.min(engine.latitudeLimit, Math.abs(leaflet.getCenter().lat));
      const metresPerPixel = metresAround * Math.cos(latitude * Math.PI / 180) / world;
      this.lines.forEach(line => {
        const length = roundLength(widest * metresPerPixel / line.metres);
        const width = Math.round(length * line.metres / metresPerPixel);
        if (line.length === length && line.width === width)
          return;
        // Only a change is told to the page: it lays itself out anew for each.
        line.length = length;
        line.width = width;
        line.element.style.width = `${width}px`;
        line.element.textContent = `${length >= 1 ? length : length.toPrecision(1)} ${line.unit}`;
      });
    }
  }

  engine.ScaleBar = ScaleBar;
})();
