/**
 * Where the simulator's aircraft has flown. It comes as the aircraft's position hundreds of times a second and for
 * hours: points lie some way apart, only the last piece of the line grows, and a finished piece keeps the points that
 * its shape needs.
 */
(function () {
  'use strict';
  const radians = Math.PI / 180;

  /** The sphere on which a minute of arc is a nautical mile of 1852 m. */
  const metresPerDegree = 60 * 1852;

  /** Metres between two points: at the closest zoom about the length of the aircraft's symbol. */
  const pointDistance = 10;

  /** Metres between two positions from which on the aircraft has been put elsewhere and has not flown: 3 NM. */
  const jumpDistance = 3 * 1852;

  /** Metres that a finished piece may leave the positions: less than a pixel at all zooms but the closest. */
  const tolerance = 1.5;

  /** Points of the piece that grows, and at the most of one that is finished. */
  const piecePoints = 500;

  /** Points of the whole trail and its pieces: beyond, the oldest piece goes. */
  const trailPoints = 36000;
  const trailPieces = 500;

  /** The oldest first. @type {Array<{line: google.maps.Polyline, length: number}>} */
  let finished = [];
  /** The piece that grows, from the last finished one on or from where the aircraft has been put. */
  const growing = new google.maps.Polyline({ clickable: false });
  /** Whether the growing piece goes on where the last finished one ends. */
  let goesOn = false;
  let count = 0;
  /** @type {?Place} */
  let last = null;
  /** @type {google.maps.PolylineOptions} */
  let lookNow = {};

  /** Metres east and north from one position to another not far away. @type {(from: Place, to: Place) => Way} */
  function wayBetween(from, to) {
    return {
      east: page.degreesEast(from, to) * Math.cos(from.lat() * radians) * metresPerDegree,
      north: (to.lat() - from.lat()) * metresPerDegree,
    };
  }

  /** Metres. @type {(from: Place, to: Place) => number} */
  function distance(from, to) {
    const way = wayBetween(from, to);
    // The meridians' nearness to each other changes on a long way; there the great circle tells.
    return Math.abs(way.north) > jumpDistance / 2 || Math.abs(way.east) > jumpDistance / 2
      ? page.distanceTo(from, to) * 1852 : Math.hypot(way.east, way.north);
  }

  /**
   * How far the point (px, py) lies from the way from the origin to (x, y).
   * @type {(x: number, y: number, px: number, py: number) => number}
   */
  function distanceFromWay(x, y, px, py) {
    const square = x * x + y * y;
    const part = square === 0 ? 0 : Math.max(0, Math.min(1, (x * px + y * py) / square));
    return Math.hypot(px - part * x, py - part * y);
  }

  /**
   * The points that a line needs to stay near enough to all of them (after Douglas and Peucker).
   * @type {(points: Place[]) => Place[]}
   */
  function needed(points) {
    const ways = points.map(point => wayBetween(points[0], point));
    const keep = points.map((point, i) => i === 0 || i === points.length - 1);
    const open = [[0, points.length - 1]];
    while (open.length) {
      const [first, end] = open.pop();
      const from = ways[first];
      let most = tolerance;
      let farthest = 0;
      for (let i = first + 1; i < end; ++i) {
        const away = distanceFromWay(ways[end].east - from.east, ways[end].north - from.north,
          ways[i].east - from.east, ways[i].north - from.north);
        if (away > most) {
          most = away;
          farthest = i;
        }
      }
      if (farthest) {
        keep[farthest] = true;
        open.push([first, farthest], [farthest, end]);
      }
    }
    return points.filter((point, i) => keep[i]);
  }

  /**
   * Puts points to the finished ones: at the end of the last piece if they go on there and it has room.
   * @param {Place[]} points
   */
  function store(points) {
    const piece = finished[finished.length - 1];
    if (goesOn && piece && piece.length + points.length <= piecePoints) {
      points.slice(1).forEach(point => piece.line.getPath().push(point));
      piece.length += points.length - 1;
      count += points.length - 1;
      return;
    }
    const line = new google.maps.Polyline(Object.assign({ path: points, clickable: false, map: map }, lookNow));
    finished.push({ line: line, length: points.length });
    count += points.length;
  }

  function forgetOldest() {
    const piece = finished.shift();
    count -= piece.length;
    piece.line.setMap(null);
  }

  /**
   * Ends the growing piece and begins the next one at a position. A piece of one point is no line.
   * @type {(position: Place, joined: boolean) => void}
   */
  function begin(position, joined) {
    const points = growing.getPath().getArray();
    if (points.length > 1)
      store(needed(points));
    growing.setPath([position]);
    growing.setMap(map);
    goesOn = joined;
    while (count + piecePoints > trailPoints || finished.length >= trailPieces)
      forgetOldest();
  }

  /** The aircraft is at a position, a place on the map. */
  page.continueTrail = function (position) {
    const way = last ? distance(last, position) : Infinity;
    if (way < pointDistance)
      return;
    last = position;
    if (way <= jumpDistance)
      growing.getPath().push(position);
    if (way > jumpDistance || growing.getPath().getLength() === piecePoints)
      begin(position, way <= jumpDistance);
  };

  page.clearTrail = function () {
    finished.forEach(piece => piece.line.setMap(null));
    finished = [];
    growing.setMap(null);
    growing.setPath([]);
    count = 0;
    last = null;
  };

  /** Whether there is a line to be seen. */
  page.hasTrail = () => count > 0 || growing.getPath().getLength() > 1;

  /** @return {number[]} how many points each piece of the trail has, the growing one at the end */
  page.trailLengths = () => finished.map(piece => piece.length).concat(growing.getPath().getLength());

  page.onPalette(palette => {
    // Below everything else on the chart.
    lookNow = { strokeColor: palette.trail, strokeOpacity: 1, strokeWeight: 2.5, zIndex: -1 };
    finished.forEach(piece => piece.line.setOptions(lookNow));
    growing.setOptions(lookNow);
  });
})();
