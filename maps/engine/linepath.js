/**
 * The geometry of polylines: positions turned into runs of points in unit coordinates, which are painted one by one.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const radians = Math.PI / 180;

  /** The longest piece of a great circle that is kept; painting divides it further where the zoom asks for it. */
  const keptArc = 1;

  /** A run ends with so many points, for the canvas takes many short paths far better than one long one. */
  const runPoints = 200;

  function vectorOf(latitude, longitude) {
    const cosine = Math.cos(latitude * radians);
    return [cosine * Math.cos(longitude * radians), cosine * Math.sin(longitude * radians), Math.sin(latitude * radians)];
  }

  /**
   * Divides a great circle. The arc comes from its sine and cosine, so that neighbours keep their digits.
   * @param {number} piecesPerDegree how many pieces a degree of arc is divided into; their number is rounded up
   * @param {number} least the least number of pieces
   * @return {number[][]} [latitude, longitude] degrees of the points between the two ends; none between opposite ends,
   *     which have no one great circle
   */
  function divideArc(latitude, longitude, toLatitude, toLongitude, piecesPerDegree, least) {
    const a = vectorOf(latitude, longitude);
    const b = vectorOf(toLatitude, toLongitude);
    const cross = Math.hypot(a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]);
    const arc = Math.atan2(cross, a[0] * b[0] + a[1] * b[1] + a[2] * b[2]);
    const pieces = Math.max(least, Math.ceil(arc / radians * piecesPerDegree));
    const points = [];
    if (cross < 1e-9)
      return points;
    for (let i = 1; i < pieces; ++i) {
      const p = Math.sin((1 - i / pieces) * arc) / cross;
      const q = Math.sin(i / pieces * arc) / cross;
      const x = p * a[0] + q * b[0];
      const y = p * a[1] + q * b[1];
      points.push([Math.atan2(p * a[2] + q * b[2], Math.hypot(x, y)) / radians, Math.atan2(y, x) / radians]);
    }
    return points;
  }

  /**
   * A piece of a line in unit coordinates, with the box around it. `start` is the length of the line before it and
   * `length` its own, in units; `bend` is how far a great circle leaves its straight pieces at the most.
   */
  class Run {
    constructor(x, y, start) {
      this.xs = [x];
      this.ys = [y];
      this.left = this.right = x;
      this.top = this.bottom = y;
      this.start = start;
      this.length = 0;
      this.bend = 0;
    }

    get lastX() {
      return this.xs[this.xs.length - 1];
    }

    get lastY() {
      return this.ys[this.ys.length - 1];
    }

    /**
     * The point comes in the copy of the world that is nearest to the point before, so that a line over 180 degrees
     * takes the short way.
     */
    add(x, y) {
      const near = x + Math.round(this.lastX - x);
      const width = near - this.lastX;
      const length = Math.hypot(width, y - this.lastY);
      this.bend = Math.max(this.bend, engine.bendOf(width, length, y));
      this.length += length;
      this.xs.push(near);
      this.ys.push(y);
      this.left = Math.min(this.left, near);
      this.right = Math.max(this.right, near);
      this.top = Math.min(this.top, y);
      this.bottom = Math.max(this.bottom, y);
    }

    /** The box around the points from one on. */
    boxFrom(first) {
      const xs = this.xs.slice(first);
      const ys = this.ys.slice(first);
      return { left: Math.min(...xs), right: Math.max(...xs), top: Math.min(...ys), bottom: Math.max(...ys) };
    }

    isFull() {
      return this.xs.length === runPoints || this.right - this.left > 1;
    }

    /** The run that goes on where this one ends, in the first copy of the world. */
    next() {
      return new Run(this.lastX - Math.floor(this.lastX), this.lastY, this.start + this.length);
    }
  }

  const isOnMap = latitude => Math.abs(latitude) <= engine.latitudeLimit;

  class LinePath {
    /** @param {boolean} geodesic whether the line follows great circles */
    constructor(geodesic) {
      this.geodesic = geodesic;
      this.runs = [];
      this.taken = 0;
      this.latitude = NaN;
      this.longitude = NaN;
    }

    /**
     * Takes the positions that have come since the last call. What stands costs nothing again.
     * @return {boolean} whether there were any
     */
    extend(positions) {
      const hasMore = this.taken < positions.length;
      for (; this.taken < positions.length; ++this.taken) {
        const position = positions[this.taken];
        if (engine.isFinitePosition(position))
          this.lineTo(position.lat(), position.lng());
      }
      return hasMore;
    }

    lineTo(latitude, longitude) {
      if (this.geodesic && !isNaN(this.latitude))
        divideArc(this.latitude, this.longitude, latitude, longitude, 1 / keptArc, 1)
          .forEach(point => this.step(point[0], point[1]));
      this.step(latitude, longitude);
    }

    /** What lies beyond the projection's limit is not on the map: the line ends at the limit and begins again there. */
    step(latitude, longitude) {
      const wasOnMap = isOnMap(this.latitude);
      const isNow = isOnMap(latitude);
      if (isNow && !wasOnMap && !isNaN(this.latitude))
        this.begin(this.limitBefore(latitude, longitude));
      if (isNow)
        this.put(engine.unitX(longitude), engine.unitY(latitude));
      else if (wasOnMap && this.runs.length)
        this.put(...this.limitBefore(latitude, longitude));
      this.latitude = latitude;
      this.longitude = longitude;
    }

    /** Where the way from the last position to this one crosses the limit, in units. */
    limitBefore(latitude, longitude) {
      const limit = (isOnMap(latitude) ? this.latitude : latitude) > 0 ? engine.latitudeLimit : -engine.latitudeLimit;
      const turn = longitude - this.longitude - 360 * Math.round((longitude - this.longitude) / 360);
      const part = (limit - this.latitude) / (latitude - this.latitude);
      return [engine.unitX(this.longitude + part * turn), engine.unitY(limit)];
    }

    begin(point) {
      this.runs.push(new Run(point[0] - Math.floor(point[0]), point[1], this.length()));
    }

    put(x, y) {
      if (!this.runs.length) {
        this.begin([x, y]);
        return;
      }
      if (this.runs[this.runs.length - 1].isFull())
        this.runs.push(this.runs[this.runs.length - 1].next());
      this.runs[this.runs.length - 1].add(x, y);
    }

    /**
     * The whole line's length in units. A line without a run is asked for first: the program's web view now and then
     * throws where code that runs often reads before the beginning of an array.
     */
    length() {
      if (!this.runs.length)
        return 0;
      const last = this.runs[this.runs.length - 1];
      return last.start + last.length;
    }
  }

  /**
   * How far the great circle between two points leaves the straight line on the map: a line that turns by an angle
   * over its length leaves the chord by an eighth of both, and the angle is the meridians' convergence.
   * @param {number} width difference of the points' unit x @param {number} length from one to the other in units
   * @param {number} y the unit y of one of them @return {number} units
   */
  engine.bendOf = (width, length, y) =>
    length * Math.abs(width * Math.tanh(Math.PI * (1 - 2 * y))) * Math.PI / 4;

  /** Points between two of unit coordinates on their great circle: x, y, x, y... in `pieces` pieces. */
  engine.bentPoints = (x1, y1, x2, y2, pieces) => {
    const middle = (x1 + x2) / 2;
    const points = [];
    divideArc(engine.latitudeOf(y1), engine.longitudeOf(x1), engine.latitudeOf(y2), engine.longitudeOf(x2), 0, pieces)
      .forEach(point => {
        const x = engine.unitX(point[1]);
        points.push(x + Math.round(middle - x), engine.unitY(point[0]));
      });
    return points;
  };

  engine.LinePath = LinePath;
})();
