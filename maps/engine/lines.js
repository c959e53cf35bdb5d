/** The polylines of a map. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const radians = Math.PI / 180;

  /** The longest piece of a great circle that is drawn straight, degrees of arc. */
  const straightArc = 1;

  /** A run ends with so many points, for the canvas takes many short paths far better than one long one. */
  const runPoints = 200;

  function vectorOf(position) {
    const latitude = position.lat() * radians;
    const longitude = position.lng() * radians;
    return [Math.cos(latitude) * Math.cos(longitude), Math.cos(latitude) * Math.sin(longitude), Math.sin(latitude)];
  }

  /** The points between two positions on their great circle as [latitude, longitude] degrees, without the two. */
  function greatCircle(from, to) {
    const a = vectorOf(from);
    const b = vectorOf(to);
    const arc = Math.acos(Math.max(-1, Math.min(1, a[0] * b[0] + a[1] * b[1] + a[2] * b[2])));
    const pieces = Math.ceil(arc / radians / straightArc);
    const sine = Math.sin(arc);
    const points = [];
    // Opposite ends have no one great circle.
    if (sine < 1e-9)
      return points;
    for (let i = 1; i < pieces; ++i) {
      const p = Math.sin((1 - i / pieces) * arc) / sine;
      const q = Math.sin(i / pieces * arc) / sine;
      const v = [0, 1, 2].map(axis => p * a[axis] + q * b[axis]);
      points.push([Math.atan2(v[2], Math.hypot(v[0], v[1])) / radians, Math.atan2(v[1], v[0]) / radians]);
    }
    return points;
  }

  /** A piece of a line in unit coordinates. Its points lie from `least` to `most` on the x axis. */
  class Run {
    constructor(x, y) {
      this.xs = [x];
      this.ys = [y];
      this.least = this.most = x;
    }

    get lastX() {
      return this.xs[this.xs.length - 1];
    }

    /**
     * The point comes in the copy of the world that is nearest to the point before, so that a line over 180 degrees
     * takes the short way.
     */
    add(x, y) {
      const near = x + Math.round(this.lastX - x);
      this.xs.push(near);
      this.ys.push(y);
      this.least = Math.min(this.least, near);
      this.most = Math.max(this.most, near);
    }

    isFull() {
      return this.xs.length === runPoints || this.most - this.least > 1;
    }

    /** The run that goes on where this one ends, in the first copy of the world. */
    next() {
      return new Run(this.lastX - Math.floor(this.lastX), this.ys[this.ys.length - 1]);
    }
  }

  /** @return {Run[]} a line in unit coordinates, in pieces that are painted one by one */
  function runsOf(positions, geodesic) {
    const runs = [];
    const put = (latitude, longitude) => {
      const x = engine.unitX(longitude);
      const y = engine.unitY(latitude);
      const last = runs[runs.length - 1];
      if (!last) {
        runs.push(new Run(x, y));
        return;
      }
      if (last.isFull())
        runs.push(last.next());
      runs[runs.length - 1].add(x, y);
    };
    positions.forEach((position, i) => {
      if (geodesic && i > 0)
        greatCircle(positions[i - 1], position).forEach(point => put(point[0], point[1]));
      put(position.lat(), position.lng());
    });
    return runs;
  }

  class Lines {
    constructor() {
      this.lines = [];
    }

    add(line) {
      this.lines.push(line);
    }

    remove(line) {
      this.lines = this.lines.filter(other => other !== line);
    }

    /** @return {number[]} the zIndex values that occur */
    heights() {
      return this.lines.map(line => line.zIndex);
    }

    /** @param {number} height the zIndex of the lines to paint */
    paintHeight(frame, height) {
      this.lines.filter(line => line.zIndex === height).forEach(line => this.paintLine(frame, line));
    }

    paintLine(frame, line) {
      if (!line.runs)
        line.runs = runsOf(line.path.items.filter(engine.isFinitePosition), line.geodesic);
      const context = frame.context;
      context.globalAlpha = line.strokeOpacity;
      context.strokeStyle = line.strokeColor;
      context.lineWidth = line.strokeWeight;
      context.lineJoin = context.lineCap = 'round';
      line.runs.forEach(run => this.paintRun(frame, run));
      context.globalAlpha = 1;
    }

    /** A run in every copy of the world that the frame shows. */
    paintRun(frame, run) {
      const firstWorld = Math.ceil(frame.left / frame.scale - run.most);
      const lastWorld = Math.floor((frame.left + frame.width) / frame.scale - run.least);
      frame.context.beginPath();
      for (let world = firstWorld; world <= lastWorld; ++world)
        this.trace(frame, run, frame.left - world * frame.scale);
      frame.context.stroke();
    }

    trace(frame, run, left) {
      const context = frame.context;
      const edge = 40;
      let endX = NaN;
      let endY = NaN;
      for (let i = 1; i < run.xs.length; ++i) {
        const part = engine.clipSegment(run.xs[i - 1] * frame.scale - left, run.ys[i - 1] * frame.scale - frame.top,
          run.xs[i] * frame.scale - left, run.ys[i] * frame.scale - frame.top,
          -edge, -edge, frame.width + edge, frame.height + edge);
        if (!part)
          continue;
        if (part[0] !== endX || part[1] !== endY)
          context.moveTo(part[0], part[1]);
        context.lineTo(part[2], part[3]);
        endX = part[2];
        endY = part[3];
      }
    }
  }

  engine.Lines = Lines;
})();
