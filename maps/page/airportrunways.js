/** The runways in an airport's symbol, once the program has told them: strips in their true directions. */
(function () {
  'use strict';
  const { circle, polygon, rounded } = page.shapes;

  /** The middle of a runway lies at most so many degrees of latitude from its airport. */
  const farthest = 0.05;
  /** Pixels from the symbol's middle to the farthest end of a strip, half the width of a strip, the ring's radius. */
  const reach = 6.4;
  const halfWidth = 0.35;
  const ring = 8;

  /** @type {(from: Place, to: Place) => RunwayEnd} */
  const between = (from, to) => ({
    east: page.degreesEast(from, to) * Math.cos(from.lat() * Math.PI / 180),
    south: from.lat() - to.lat(),
  });

  /** The airport next to the middle of a runway, or null. @type {(middle: Place) => ?ChartMarker} */
  function airportAt(middle) {
    /** @type {?ChartMarker} */
    let nearest = null;
    let least = farthest;
    listApt.forEach(marker => {
      const way = between(marker.position, middle);
      const distance = Math.hypot(way.east, way.south);
      if (distance < least) {
        least = distance;
        nearest = marker;
      }
    });
    return nearest;
  }

  /** @type {(lists: RunwayEnd[][]) => RunwayEnd[]} */
  const flat = lists => lists.reduce((all, list) => all.concat(list), []);

  /** A strip as a box so narrow that the pen fills it. @type {(ends: RunwayEnd[], scale: number) => string} */
  function strip(ends, scale) {
    const [a, b] = ends.map(end => [end.east * scale, end.south * scale]);
    const length = Math.hypot(b[0] - a[0], b[1] - a[1]) || 1;
    const aside = [-(b[1] - a[1]) / length * halfWidth, (b[0] - a[0]) / length * halfWidth];
    /** @type {(end: number[], side: number) => number[]} */
    const corner = (end, side) => [rounded(end[0] + side * aside[0]), rounded(end[1] + side * aside[1])];
    return polygon(corner(a, 1), corner(b, 1), corner(b, -1), corner(a, -1));
  }

  /**
   * The runways as they lie to each other, around the symbol's middle and as large as fits.
   * @type {(runways: RunwayEnd[][]) => string}
   */
  function pathOf(runways) {
    const ends = flat(runways);
    /** @param {'east' | 'south'} name */
    const mean = name => ends.reduce((sum, end) => sum + end[name], 0) / ends.length;
    const middle = { east: mean('east'), south: mean('south') };
    const moved = runways.map(pair =>
      pair.map(end => ({ east: end.east - middle.east, south: end.south - middle.south })));
    const most = Math.max.apply(null, flat(moved).map(end => Math.hypot(end.east, end.south)));
    return [circle(0, 0, ring)].concat(moved.map(pair => strip(pair, most > 0 ? reach / most : 0))).join(' ');
  }

  /** Notes a runway of the airport next to it; the same one told again changes nothing. */
  page.noteRunway = function (highEnd, lowEnd) {
    if (!page.isPlace(highEnd) || !page.isPlace(lowEnd))
      return;
    const middle = page.midPoint(highEnd, lowEnd);
    const airport = airportAt(middle);
    if (!airport)
      return;
    const known = airport.runways || (airport.runways = new Map());
    const key = `${highEnd.toString()} ${lowEnd.toString()}`;
    if (known.has(key))
      return;
    known.set(key, [highEnd, lowEnd].map(end => between(airport.position, end)));
    airport.path = pathOf(Array.from(known.values()));
    page.dressLayers();
    page.dressPlan();
  };
})();
