/** The polylines of a map. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const radians = Math.PI / 180;

  /** The longest piece of a great circle that is drawn straight, degrees of arc. */
  const straightArc = 1;

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

  /**
   * Unit coordinates of a line: each point in the copy of the world that is nearest to the point before, so that a line
   * over 180 degrees takes the short way.
   */
  function unitLine(positions, geodesic) {
    const xs = [];
    const ys = [];
    const put = (latitude, longitude) => {
      let x = engine.unitX(longitude);
      if (xs.length)
        x += Math.round(xs[xs.length - 1] - x);
      xs.push(x);
      ys.push(engine.unitY(latitude));
    };
    positions.forEach((position, i) => {
      if (geodesic && i > 0)
        greatCircle(positions[i - 1], position).forEach(point => put(point[0], point[1]));
      put(position.lat(), position.lng());
    });
    return { xs: xs, ys: ys, least: Math.min.apply(null, xs), most: Math.max.apply(null, xs) };
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
      const unit = line.unit || (line.unit = unitLine(line.positions, line.geodesic));
      if (unit.xs.length < 2)
        return;
      const context = frame.context;
      context.globalAlpha = line.strokeOpacity;
      context.strokeStyle = line.strokeColor;
      context.lineWidth = line.strokeWeight;
      context.lineJoin = context.lineCap = 'round';
      context.beginPath();
      const firstWorld = Math.ceil(frame.left / frame.scale - unit.most);
      const lastWorld = Math.floor((frame.left + frame.width) / frame.scale - unit.least);
      for (let world = firstWorld; world <= lastWorld; ++world)
        this.trace(frame, unit, frame.left - world * frame.scale);
      context.stroke();
      context.globalAlpha = 1;
    }

    trace(frame, unit, left) {
      const context = frame.context;
      const edge = 40;
      let endX = NaN;
      let endY = NaN;
      for (let i = 1; i < unit.xs.length; ++i) {
        const part = engine.clipSegment(unit.xs[i - 1] * frame.scale - left, unit.ys[i - 1] * frame.scale - frame.top,
          unit.xs[i] * frame.scale - left, unit.ys[i] * frame.scale - frame.top,
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
