/** Numbers of scripts that are none. */

/**
 * The program writes a value that is no number as "nan" or "inf". With these names defined such a row is a marker
 * without a place, which is left out; without them it would lose its whole batch.
 */
var nan = NaN;
var inf = Infinity;

(function () {
  'use strict';

  /** @return {boolean} whether something can be drawn at the position */
  page.isPlace = position => !!position && isFinite(position.lat()) && isFinite(position.lng());

  /** @return {number} a heading that can be drawn, in degrees */
  page.heading = value => (isFinite(value) ? Number(value) % 360 : 0);
})();
