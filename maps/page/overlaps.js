/**
 * Navaids on an airport's place: the two symbols would be a blot, so the navaid is drawn larger, around the airport's.
 */
(function () {
  'use strict';

  /** Pixels between the middles up to which one symbol lies on the other. */
  const nearPixels = 6;
  const around = ['vor', 'vorDme', 'vortac', 'tacan', 'dme'];
  /**
   * Degrees of a cell: wider than those pixels at every zoom at which symbols are drawn in full, and a narrower one
   * from the near zoom on, so that few airports share a cell there.
   */
  const wideCell = 0.1;
  const nearZoom = 9.5;
  const nearCell = 0.0125;

  /** @param {number} zoom */
  const pixelsPerDegree = zoom => 256 * Math.pow(2, zoom) / 360;

  /**
   * Places in cells, in plain numbers, for they are made anew for every feed. Cells share as many lists as there are
   * places, and those of a list are a chain: `last` tells the number of a list's last place, `before` that of the place
   * before it, or -1. What a list holds of cells elsewhere is told apart by its place.
   */
  class PlaceCells {
    /** @param {ChartMarker[]} markers @param {number} width */
    constructor(markers, width) {
      const count = markers.length;
      this.width = width;
      this.columns = Math.round(360 / width);
      this.mask = Math.pow(2, Math.ceil(Math.log2(count + 1))) - 1;
      this.lats = new Float64Array(count);
      this.lngs = new Float64Array(count);
      this.last = new Int32Array(this.mask + 1).fill(-1);
      this.before = new Int32Array(count);
      for (let i = 0; i < count; ++i) {
        const place = markers[i].position;
        const lat = place.lat();
        const lng = place.lng();
        const list = this.listAt(Math.floor(lat / width), Math.floor(lng / width));
        this.lats[i] = lat;
        this.lngs[i] = lng;
        this.before[i] = this.last[list];
        this.last[list] = i;
      }
    }

    /** The list of a cell; the column in any copy of the world. @type {(row: number, column: number) => number} */
    listAt(row, column) {
      const columns = this.columns;
      return (row * columns + (column % columns + columns) % columns) & this.mask;
    }

    /** Whether one of the places lies under a symbol. @param {Place} place @param {number} zoom */
    hasNear(place, zoom) {
      const width = this.width;
      const lat = place.lat();
      const lng = place.lng();
      const pixels = pixelsPerDegree(zoom);
      const reach = nearPixels / pixels;
      const lastRow = Math.floor((lat + reach) / width);
      const lastColumn = Math.floor((lng + reach) / width);
      for (let row = Math.floor((lat - reach) / width); row <= lastRow; ++row) {
        for (let column = Math.floor((lng - reach) / width); column <= lastColumn; ++column) {
          if (this.hasNearIn(this.listAt(row, column), lat, lng, pixels))
            return true;
        }
      }
      return false;
    }

    /** @type {(list: number, lat: number, lng: number, pixels: number) => boolean} pixels of a degree of longitude */
    hasNearIn(list, lat, lng, pixels) {
      for (let i = this.last[list]; i >= 0; i = this.before[i]) {
        const north = this.lats[i] - lat;
        // Nearly all are told apart by this; the cosine takes longer.
        if (Math.abs(north) * pixels > nearPixels)
          continue;
        const turn = this.lngs[i] - lng;
        const east = turn - 360 * Math.round(turn / 360);
        if (Math.abs(east) * pixels > nearPixels)
          continue;
        const stretch = Math.max(0.01, Math.cos(this.lats[i] * Math.PI / 180));
        if (Math.hypot(north / stretch, east) * pixels <= nearPixels)
          return true;
      }
      return false;
    }
  }

  /** The airports that are shown; null: to be sorted when somebody asks. @type {?PlaceCells} */
  let airports = null;

  /** Whether markers of a kind are drawn around an airport where they would lie under it. */
  page.goesAround = symbol => around.indexOf(symbol) >= 0;

  /** Whether an airport is shown at the place of a marker. */
  page.isUnderAirport = function (marker, zoom) {
    const width = zoom < nearZoom ? wideCell : nearCell;
    if (!airports || airports.width !== width)
      airports = new PlaceCells(ArptMgr ? ArptMgr.markers() : [], width);
    return airports.hasNear(marker.position, zoom);
  };

  /** Has to be called after airports have come or gone. */
  page.airportsChanged = function () {
    airports = null;
    if (VORMgr)
      VORMgr.dress();
  };
})();
