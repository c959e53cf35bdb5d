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

  /** The row or column of cells of a latitude or longitude. @type {(degrees: number, width: number) => number} */
  const lineOf = (degrees, width) => Math.floor(degrees / width);

  /** The number of a cell; the column in any copy of the world. @type {(row: number, column: number, width: number) => number} */
  function keyOf(row, column, width) {
    const columns = Math.round(360 / width);
    return row * columns + (column % columns + columns) % columns;
  }

  /**
   * Places in cells. Those of a cell are a chain, for nearly all hold one and a list for each would take longer: `last`
   * tells the number of a cell's last place, `before` that of the place before it in the same cell, or -1.
   */
  class PlaceCells {
    /** @param {ChartMarker[]} markers @param {number} width */
    constructor(markers, width) {
      this.width = width;
      this.places = markers.map(marker => marker.position);
      /** @type {Map<number, number>} */
      this.last = new Map();
      this.before = new Int32Array(this.places.length);
      for (let i = 0; i < this.places.length; ++i) {
        const place = this.places[i];
        const key = keyOf(lineOf(place.lat(), width), lineOf(place.lng(), width), width);
        const there = this.last.get(key);
        this.before[i] = there === undefined ? -1 : there;
        this.last.set(key, i);
      }
    }

    /** Whether one of the places lies under a symbol. @param {Place} place @param {number} zoom */
    hasNear(place, zoom) {
      const width = this.width;
      const reach = nearPixels / pixelsPerDegree(zoom);
      const lastRow = lineOf(place.lat() + reach, width);
      const lastColumn = lineOf(place.lng() + reach, width);
      for (let row = lineOf(place.lat() - reach, width); row <= lastRow; ++row) {
        for (let column = lineOf(place.lng() - reach, width); column <= lastColumn; ++column) {
          if (this.hasNearIn(keyOf(row, column, width), place, zoom))
            return true;
        }
      }
      return false;
    }

    /** @param {number} key that of a cell @param {Place} place @param {number} zoom */
    hasNearIn(key, place, zoom) {
      const last = this.last.get(key);
      for (let i = last === undefined ? -1 : last; i >= 0; i = this.before[i]) {
        if (isNear(this.places[i], place, zoom))
          return true;
      }
      return false;
    }
  }

  /** The airports that are shown; null: to be sorted when somebody asks. @type {?PlaceCells} */
  let airports = null;

  /** @param {number} zoom */
  const pixelsPerDegree = zoom => 256 * Math.pow(2, zoom) / 360;

  /** @type {(a: Place, b: Place, zoom: number) => boolean} */
  function isNear(a, b, zoom) {
    const pixels = pixelsPerDegree(zoom);
    const north = a.lat() - b.lat();
    const east = page.degreesEast(a, b);
    // Nearly all are told apart by this; the cosine takes longer.
    if (Math.max(Math.abs(north), Math.abs(east)) * pixels > nearPixels)
      return false;
    return Math.hypot(north / Math.max(0.01, Math.cos(a.lat() * Math.PI / 180)), east) * pixels <= nearPixels;
  }

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
