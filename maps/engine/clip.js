/**
 * Cutting rings and segments to a box. The same code cuts the world's rings into cells when the project is built and
 * keeps far away coordinates out of the canvas when the map is drawn.
 */
(function () {
  'use strict';

  /** Keeps the part of a ring on one side of a line x = limit (axis 0) or y = limit (axis 1). */
  function cutRing(ring, axis, limit, keepAbove) {
    const result = [];
    const count = ring.length;
    const sign = keepAbove ? 1 : -1;
    for (let i = 0; i < count; i += 2) {
      const next = i + 2 === count ? 0 : i + 2;
      const here = (ring[i + axis] - limit) * sign;
      const there = (ring[next + axis] - limit) * sign;
      if (here >= 0)
        result.push(ring[i], ring[i + 1]);
      if ((here > 0 && there < 0) || (here < 0 && there > 0)) {
        const part = here / (here - there);
        const other = 1 - axis;
        const crossing = [0, 0];
        crossing[axis] = limit;
        crossing[other] = ring[i + other] + part * (ring[next + other] - ring[i + other]);
        result.push(crossing[0], crossing[1]);
      }
    }
    return result;
  }

  /**
   * Cuts a ring to a box. What leaves the box runs along its edge, so that a filled ring stays filled.
   * @param {ArrayLike<number>} ring x, y, x, y... without the closing point
   * @return {number[]} the same form; empty when nothing of the ring's area lies in the box
   */
  function clipRing(ring, minX, minY, maxX, maxY) {
    let result = cutRing(ring, 0, minX, true);
    result = cutRing(result, 0, maxX, false);
    result = cutRing(result, 1, minY, true);
    result = cutRing(result, 1, maxY, false);
    return result.length >= 6 ? result : [];
  }

  /**
   * Cuts a segment to a box.
   * @return {?number[]} [x1, y1, x2, y2] of the part inside, or null
   */
  function clipSegment(x1, y1, x2, y2, minX, minY, maxX, maxY) {
    const dx = x2 - x1;
    const dy = y2 - y1;
    const edges = [[-dx, x1 - minX], [dx, maxX - x1], [-dy, y1 - minY], [dy, maxY - y1]];
    let from = 0;
    let to = 1;
    for (const [step, room] of edges) {
      if (step === 0) {
        if (room < 0)
          return null;
      } else if (step < 0) {
        from = Math.max(from, room / step);
      } else {
        to = Math.min(to, room / step);
      }
    }
    if (!(from <= to))
      return null;
    // An end inside stays exactly what it was, so that neighbouring pieces meet.
    const end = to === 1 ? [x2, y2] : [x1 + to * dx, y1 + to * dy];
    return [x1 + from * dx, y1 + from * dy, end[0], end[1]];
  }

  const clip = { clipRing: clipRing, clipSegment: clipSegment };
  if (typeof module !== 'undefined')
    module.exports = clip;
  else
    Object.assign(window, { mapEngine: Object.assign(window.mapEngine || {}, clip) });
})();
