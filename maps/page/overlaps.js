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

  /**
   * The airports that are shown, by cells of a width; null: to be sorted when somebody asks.
   * @type {?{width: number, places: Map<number, Place[]>}}
   */
  let cells = null;

  /** @type {(degrees: number, width: number) => number} the row or column of cells of a latitude or longitude */
  const lineOf = (degrees, width) => Math.floor(degrees / width);

  /** The number of a cell; the column in any copy of the world. @type {(row: number, column: number, width: number) => number} */
  function keyOf(row, column, width) {
    const columns = Math.round(360 / width);
    return row * columns + (column % columns + columns) % columns;
  }

  /** @param {number} width */
  function sorted(width) {
    /** @type {Map<number, Place[]>} */
    const places = new Map();
    (ArptMgr ? ArptMgr.markers() : []).forEach(marker => {
      const key = keyOf(lineOf(marker.position.lat(), width), lineOf(marker.position.lng(), width), width);
      const there = places.get(key);
      if (there)
        there.push(marker.position);
      else
        places.set(key, [marker.position]);
    });
    return { width: width, places: places };
  }

  /** @type {(a: Place, b: Place, zoom: number) => boolean} */
  function isNear(a, b, zoom) {
    const pixels = 256 * Math.pow(2, zoom) / 360;
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
    if (!cells || cells.width !== width)
      cells = sorted(width);
    const places = cells.places;
    const middle = { row: lineOf(marker.position.lat(), width), column: lineOf(marker.position.lng(), width) };
    const steps = [-1, 0, 1];
    return steps.some(row => steps.some(column => (places.get(keyOf(middle.row + row, middle.column + column, width)) || [])
      .some(airport => isNear(airport, marker.position, zoom))));
  };

  /** Has to be called after airports have come or gone. */
  page.airportsChanged = function () {
    cells = null;
    if (VORMgr)
      VORMgr.dress();
  };
})();
