/** Everything under the chart: the painted world, raster maps over it, the graticule over both, and its labels. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Above the painted world, below the chart. */
  const heights = { raster: 250, grid: 260 };

  class BaseMap {
    /**
     * @param {L.Map} leaflet
     * @param {google.maps.MVCArray<?google.maps.MapType>} overlays of raster maps: `Map.overlayMapTypes`
     */
    constructor(leaflet, overlays) {
      this.leaflet = leaflet;
      this.overlays = overlays;
      this.rasters = [];
      this.grid = null;
      /** Called when the names come or go, which the chart paints. */
      this.onNames = () => {};
      const graticule = new engine.Graticule();
      this.names = new engine.Names(window.worldNames);
      // The names are painted with the chart, which they give way to.
      const painters = [new engine.Outlines(window.worldOutlines), graticule];
      this.labels = new engine.GraticuleLabels();
      this.coloured = [...painters, this.names, this.labels];
      this.world = new engine.BaseTiles('tilePane', painters).addTo(leaflet);
      this.lines = new engine.BaseTiles('gridPane', [graticule]);
      this.labels.addTo(leaflet);
      Object.keys(heights).forEach(name => {
        leaflet.createPane(`${name}Pane`).style.zIndex = heights[name];
      });
      ['insert_at', 'remove_at', 'set_at'].forEach(name => overlays.addListener(name, () => this.showOverlays()));
    }

    /** The same colours once more change nothing. */
    setColours(colours) {
      const former = this.names.colours;
      if (Object.keys(colours).every(part => colours[part] === former[part]))
        return;
      this.coloured.forEach(part => {
        part.colours = colours;
      });
      this.world.invalidate();
      this.lines.invalidate();
      this.labels.write();
    }

    /** Under a raster map the painted world stays, for where there is none of it; the graticule goes on top. */
    showOverlays() {
      this.rasters.forEach(raster => raster.remove());
      this.rasters = this.overlays.getArray().filter(Boolean).map(type => engine.rasterOf(type).addTo(this.leaflet));
      this.names.hidden = this.rasters.length > 0;
      this.onNames();
      if (this.rasters.length)
        this.lines.addTo(this.leaflet);
      else
        this.lines.remove();
    }
  }

  engine.BaseMap = BaseMap;
})();
