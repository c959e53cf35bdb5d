/** Everything under the chart: the painted world, raster maps over it, the graticule over both, and its labels. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Above the painted world, below the chart. */
  const heights = { raster: 250, grid: 260 };

  /** What a raster map has itself, and what would shine through it where it is dimmed. */
  const underRaster = { coast: null, border: null };

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
      this.wanted = this.names.colours;
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

    setColours(colours) {
      this.wanted = colours;
      this.dress();
    }

    /** The same colours once more change nothing. */
    dress() {
      const colours = this.names.hidden ? Object.assign({}, this.wanted, underRaster) : this.wanted;
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
      this.rasters = this.overlays.getArray().filter(Boolean).map(type => engine.rasterOf(type, () => this.uncover()));
      this.rasters.forEach(raster => raster.addTo(this.leaflet));
      this.uncover();
      if (this.rasters.length)
        this.lines.addTo(this.leaflet);
      else
        this.lines.remove();
    }

    /** Names and lines are left to the raster maps, unless these have no picture for the view. */
    uncover() {
      const isCovered = this.rasters.some(raster => !raster.isBlank);
      if (isCovered === this.names.hidden)
        return;
      this.names.hidden = isCovered;
      this.dress();
      this.onNames();
    }
  }

  engine.BaseMap = BaseMap;
})();
