/**
 * Great circles on the sphere of the plan's legs: one minute of arc is one nautical mile, so that a line measured on
 * the map and a leg of the plan between the same points have the same length. Positions are `google.maps.LatLng`,
 * courses and angles degrees, distances nautical miles (NM).
 */
(function () {
  'use strict';
  const radians = Math.PI / 180;
  const milesPerDegree = 60;

  /** Exact by definition: the international nautical mile. */
  const kilometresPerMile = 1.852;

  /**
   * Latitudes and the difference of longitudes in radians. Only sine and cosine of the latter are taken, so that it
   * does not matter how often it goes around the world.
   * @param {Place} from @param {Place} to
   */
  function anglesOf(from, to) {
    return { from: from.lat() * radians, to: to.lat() * radians, turn: (to.lng() - from.lng()) * radians };
  }

  /**
   * The components of the way to the second point at the first: to the east, to the north, and straight up.
   * @param {Place} from @param {Place} to
   */
  function componentsOf(from, to) {
    const angles = anglesOf(from, to);
    const cosine = Math.cos(angles.to);
    return {
      east: Math.sin(angles.turn) * cosine,
      north: Math.cos(angles.from) * Math.sin(angles.to) - Math.sin(angles.from) * cosine * Math.cos(angles.turn),
      up: Math.sin(angles.from) * Math.sin(angles.to) + Math.cos(angles.from) * cosine * Math.cos(angles.turn),
    };
  }

  /**
   * Degrees of longitude from one position to another, east positive, the shorter way round: also across 180 degrees.
   */
  page.degreesEast = function (from, to) {
    const turn = to.lng() - from.lng();
    return turn - 360 * Math.round(turn / 360);
  };

  /** @return {boolean} whether less than so many degrees lie between two positions, in latitude and in longitude */
  page.areClose = (a, b, degrees) =>
    Math.abs(a.lat() - b.lat()) < degrees && Math.abs(page.degreesEast(a, b)) < degrees;

  /**
   * The length of the great circle between two points, 0 to 10800 NM. The arc is taken from its sine and its cosine
   * (the special case of Vincenty's formula for a sphere), which is exact for neighbours and for opposite points,
   * where the arc cosine alone loses its digits.
   */
  page.distanceTo = function (from, to) {
    const way = componentsOf(from, to);
    return Math.atan2(Math.hypot(way.east, way.north), way.up) / radians * milesPerDegree;
  };

  /**
   * The true course at the first point along the great circle to the second, 0 up to but not including 360 (the
   * forward azimuth of spherical trigonometry: tan c = east / north). Between a point and itself it is 0.
   */
  page.courseTo = function (from, to) {
    const way = componentsOf(from, to);
    const course = Math.atan2(way.east, way.north) / radians;
    const turned = course < 0 ? course + 360 : course;
    // A course of nearly nothing to the west rounds up to the full circle.
    return turned < 360 ? turned : 0;
  };

  /**
   * The middle of the great circle between two points: the direction of the sum of the two vectors from the centre of
   * the earth. Opposite points have no one great circle: then it is some point between them.
   */
  page.midPoint = function (from, to) {
    const angles = anglesOf(from, to);
    const x = Math.cos(angles.from) + Math.cos(angles.to) * Math.cos(angles.turn);
    const y = Math.cos(angles.to) * Math.sin(angles.turn);
    const z = Math.sin(angles.from) + Math.sin(angles.to);
    const longitude = from.lng() + Math.atan2(y, x) / radians;
    return new google.maps.LatLng(Math.atan2(z, Math.hypot(x, y)) / radians, longitude);
  };

  /**
   * A point on the great circle between two points, at a part of the way (0 the first point, 1 the second). Between
   * opposite points, which have no one great circle, it is one of the two.
   */
  page.pointAlong = function (from, to, part) {
    const arc = page.distanceTo(from, to) / milesPerDegree * radians;
    const sine = Math.sin(arc);
    if (sine < 1e-12)
      return part < 0.5 ? from : to;
    const angles = anglesOf(from, to);
    const p = Math.sin((1 - part) * arc) / sine;
    const q = Math.sin(part * arc) / sine;
    const x = p * Math.cos(angles.from) + q * Math.cos(angles.to) * Math.cos(angles.turn);
    const y = q * Math.cos(angles.to) * Math.sin(angles.turn);
    const z = p * Math.sin(angles.from) + q * Math.sin(angles.to);
    const longitude = from.lng() + Math.atan2(y, x) / radians;
    return new google.maps.LatLng(Math.atan2(z, Math.hypot(x, y)) / radians, longitude);
  };

  /**
   * Which part of the way on a great circle comes nearest to a third point: below 0 before the first point, above 1
   * behind the second (the along-track distance: tan a = cos of the angle between the courses times tan of the way).
   */
  page.partAlong = function (from, to, point) {
    const way = page.distanceTo(from, point) / milesPerDegree * radians;
    const angle = (page.courseTo(from, point) - page.courseTo(from, to)) * radians;
    const along = Math.atan2(Math.cos(angle) * Math.sin(way), Math.cos(way)) / radians * milesPerDegree;
    return along / page.distanceTo(from, to);
  };

  page.kilometresOf = miles => miles * kilometresPerMile;
})();
