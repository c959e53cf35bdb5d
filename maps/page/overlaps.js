/** Navaids on an airport's place: the two symbols would be a blot, so the navaid is drawn larger, around the airport's. */
(function () {
  'use strict';

  /** Pixels between the middles up to which one symbol lies on the other. */
  const nearPixels = 6;
  const around = ['vor', 'vorDme', 'vortac', 'tacan', 'dme'];
  /** Degrees: wider than those pixels at every zoom at which symbols are drawn in full. */
  const cell = 0.1;
  const columns = 10000;

  /** The airports that are shown, by cell; null: to be sorted when somebody asks. @type {?Map<number, Place[]>} */
  let cells = null;

  /** @param {number} degrees */
  const lineOf = degrees => Math.floor(degrees / cell);

  function sorted() {
    /** @type {Map<number, Place[]>} */
    const made = new Map();
    (ArptMgr ? ArptMgr.markers() : []).forEach(marker => {
      const key = lineOf(marker.position.lat()) * columns + lineOf(marker.position.lng());
      const there = made.get(key);
      if (there)
        there.push(marker.position);
      else
        made.set(key, [marker.position]);
    });
    return made;
  }

  /** @type {(a: Place, b: Place, zoom: number) => boolean} */
  function isNear(a, b, zoom) {
    const north = (a.lat() - b.lat()) / Math.max(0.01, Math.cos(a.lat() * Math.PI / 180));
    return Math.hypot(north, a.lng() - b.lng()) * 256 * Math.pow(2, zoom) / 360 <= nearPixels;
  }

  /** Whether a marker is a navaid at whose place an airport is shown as well. */
  page.isUnderAirport = function (marker, zoom) {
    if (around.indexOf(marker.symbol) < 0)
      return false;
    cells = cells || sorted();
    const middle = lineOf(marker.position.lat()) * columns + lineOf(marker.position.lng());
    const steps = [-1, 0, 1];
    return steps.some(row => steps.some(column =>
      (cells.get(middle + row * columns + column) || []).some(airport => isNear(airport, marker.position, zoom))));
  };

  /** Has to be called after airports have come or gone. */
  page.airportsChanged = function () {
    cells = null;
    if (VORMgr)
      VORMgr.dress();
  };
})();
