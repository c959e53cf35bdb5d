/**
 * The web's Mercator projection onto a unit square: x from 0 at 180 degrees west to 1 at 180 degrees east, y from 0 at
 * the northern to 1 at the southern limit. A pixel at zoom z is the unit times 256 times 2 to the power of z.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const radians = Math.PI / 180;

  /** The latitude at which the square ends, degrees. */
  const latitudeLimit = 85.0511287798066;

  engine.latitudeLimit = latitudeLimit;
  engine.tileSize = 256;

  /** @return {number} the unit x of a longitude in degrees; below 0 or above 1 in the next world */
  engine.unitX = longitude => longitude / 360 + 0.5;

  /** @return {number} the unit y of a latitude in degrees, cut at the projection's limit */
  engine.unitY = latitude => {
    const sine = Math.sin(Math.max(-latitudeLimit, Math.min(latitudeLimit, latitude)) * radians);
    return 0.5 - Math.log((1 + sine) / (1 - sine)) / (4 * Math.PI);
  };

  /** @return {number} degrees of a unit x, not wrapped */
  engine.longitudeOf = x => (x - 0.5) * 360;

  /** @return {number} degrees of a unit y */
  engine.latitudeOf = y => Math.atan(Math.sinh(Math.PI * (1 - 2 * y))) / radians;
})();
