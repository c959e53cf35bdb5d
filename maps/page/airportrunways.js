/** The runways in an airport's symbol, once the program has told them: a strip for each of their true directions. */
(function () {
  'use strict';
  const { circle, polygon, rounded } = page.shapes;

  /** The middle of a runway lies at most so many degrees of latitude from its airport. */
  const farthest = 0.05;
  /** Runways whose directions differ by so many degrees at most are one strip: more would be a blot in the small ring. */
  const sameDirection = 10;
  /** Pixels from the symbol's middle to the end of the longest strip, half the width of a strip, the ring's radius. */
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

  /**
   * The way from a runway's end to its other end.
   * @type {(runway: RunwayEnd[]) => RunwayWay}
   */
  function wayOf([from, to]) {
    const east = to.east - from.east;
    const south = to.south - from.south;
    return { east: east, south: south, length: Math.hypot(east, south) };
  }

  /** The sine of the angle between two directions does not ask from which end either runs. */
  const leastSine = Math.sin(sameDirection * Math.PI / 180);
  /** @type {(a: RunwayWay, b: RunwayWay) => boolean} */
  const areParallel = (a, b) => Math.abs(a.east * b.south - a.south * b.east) <= leastSine * a.length * b.length;

  /**
   * A strip through the symbol's middle, as a box so narrow that the pen fills it.
   * @type {(way: RunwayWay, half: number) => string}
   */
  function strip(way, half) {
    const along = [way.east / way.length, way.south / way.length];
    /** @type {(end: number, side: number) => number[]} */
    const corner = (end, side) => [
      rounded(end * half * along[0] - side * halfWidth * along[1]),
      rounded(end * half * along[1] + side * halfWidth * along[0]),
    ];
    return polygon(corner(-1, 1), corner(1, 1), corner(1, -1), corner(-1, -1));
  }

  /**
   * The directions of the runways, each as long as the longest of its runways, around the symbol's middle.
   * @type {(runways: RunwayEnd[][]) => string}
   */
  function pathOf(runways) {
    const ways = runways.map(wayOf).filter(way => way.length > 0).sort((a, b) => b.length - a.length);
    /** @type {RunwayWay[]} */
    const apart = [];
    ways.forEach(way => {
      if (!apart.some(other => areParallel(way, other)))
        apart.push(way);
    });
    return [circle(0, 0, ring)].concat(apart.map(way => strip(way, reach * way.length / apart[0].length))).join(' ');
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
