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

  function exactY(latitude) {
    const sine = Math.sin(Math.max(-latitudeLimit, Math.min(latitudeLimit, latitude)) * radians);
    return 0.5 - Math.log((1 + sine) / (1 - sine)) / (4 * Math.PI);
  }

  /**
   * Sine and logarithm take this engine so long that the points of a continent wait for them. Between the latitudes of
   * a table, cubics through their values and slopes are as good: at zoom 18 they are two thousandths of a pixel off, at
   * 80 degrees, where the table ends; far less elsewhere.
   */
  const step = 0.1;
  const tableLimit = 80;
  const tableY = new Float64Array(tableLimit / step + 2);
  const tableSlope = new Float64Array(tableY.length);
  for (let i = 0; i < tableY.length; ++i) {
    tableY[i] = exactY(i * step);
    tableSlope[i] = -step / (360 * Math.cos(i * step * radians));
  }

  function betweenY(latitude) {
    const at = latitude / step;
    const i = Math.floor(at);
    const t = at - i;
    const rest = 1 - t;
    return rest * rest * ((1 + 2 * t) * tableY[i] + t * tableSlope[i])
      + t * t * ((3 - 2 * t) * tableY[i + 1] - rest * tableSlope[i + 1]);
  }

  /** @return {number} the unit y of a latitude in degrees, cut at the projection's limit */
  engine.unitY = latitude => {
    if (latitude >= 0 && latitude <= tableLimit)
      return betweenY(latitude);
    return latitude < 0 && latitude >= -tableLimit ? 1 - betweenY(-latitude) : exactY(latitude);
  };

  /** @return {number} degrees of a unit x, not wrapped */
  engine.longitudeOf = x => (x - 0.5) * 360;

  /** @return {number} degrees of a unit y */
  engine.latitudeOf = y => Math.atan(Math.sinh(Math.PI * (1 - 2 * y))) / radians;
})();
