/** The lines of a map: paints them, and keeps the canvas of those that grow. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Points are left out when the line passes them this near without them, pixels. */
  const nearEnough = 0.2;

  /** A great circle may leave its straight pieces by so much, pixels. */
  const leastBend = 0.3;

  /** How far beyond the canvas a line is still painted, pixels: wider than any line. */
  const edge = 60;

  /**
   * A path of so many pieces ends at the next corner of an opaque line: the canvas takes many short paths far better
   * than one that crosses itself. In a straight stretch the ends of two paths would be seen.
   */
  const pathPieces = 8;

  /** From so many pixels of width on a text had better stand beside a line. */
  const broad = 2.5;

  /** Straight pieces of one piece of a great circle at the most. */
  const mostPieces = 500;

  /** Between the base map and the chart; the sheet says where. */
  const groundPane = 'ground';

  class Lines {
    constructor() {
      this.lines = new Set();
      this.ordered = null;
      /** Those on the ground below these, once there are any. @type {?Lines} */
      this.below = null;
    }

    add(line) {
      this.lines.add(line);
      this.ordered = null;
    }

    remove(line) {
      this.lines.delete(line);
      this.ordered = null;
    }

    /** The lines by their zIndex; within one they stand as they were added. @return {Map<number, Array>} */
    byHeight() {
      if (this.ordered)
        return this.ordered;
      this.ordered = new Map();
      this.lines.forEach(line => {
        const level = this.ordered.get(line.zIndex);
        if (level)
          level.push(line);
        else
          this.ordered.set(line.zIndex, [line]);
      });
      return this.ordered;
    }

    /** @return {number[]} the zIndex values that occur */
    heights() {
      return Array.from(this.byHeight().keys());
    }

    paint(frame) {
      this.heights().sort((a, b) => a - b).forEach(height => this.paintHeight(frame, height));
    }

    /** @param {number} height the zIndex of the lines to paint */
    paintHeight(frame, height) {
      (this.byHeight().get(height) || []).forEach(line => this.paintLine(frame, line));
    }

    paintLine(frame, line) {
      line.geometry.extend(line.positions());
      engine.fillArea(frame, line);
      this.stroke(frame, line);
      engine.paintIcons(frame, line, emitRun);
      this.note(line);
    }

    /**
     * Tells the pieces in a frame of the lines that are broad enough to strike a text out. On the ground these are the
     * edges of areas: a line there grows with every move of an aircraft, and would drive the texts before it.
     * @param {Frame} frame
     * @param {Emit} tell x and y of both ends, pixels of the frame
     */
    eachPiece(frame, tell) {
      const standing = this.below ? Array.from(this.below.lines).filter(line => line.fillOpacity > 0) : [];
      Array.from(this.lines).concat(standing).forEach(line => {
        if (line.strokeWeight < broad || line.strokeOpacity <= 0)
          return;
        line.geometry.extend(line.positions());
        line.geometry.runs.forEach(run => emitRun(frame, run, line.geometry.geodesic, tell));
      });
    }

    /** Paints anew where lines have grown since they were painted. */
    paintGrowth(frame) {
      this.lines.forEach(line => {
        if (!line.geometry.extend(line.positions()))
          return;
        line.geometry.runs.slice(line.paintedRun).forEach((run, i) => {
          const box = run.boxFrom(i === 0 ? line.paintedPoint : 0);
          for (let world = frame.firstWorld - 1; world <= frame.lastWorld; ++world)
            this.paintBox(frame, box, world, line.strokeWeight);
        });
        this.note(line);
      });
    }

    /** Notes how far a line has been painted. */
    note(line) {
      const runs = line.geometry.runs;
      line.paintedRun = Math.max(0, runs.length - 1);
      line.paintedPoint = runs.length ? runs[runs.length - 1].xs.length - 1 : 0;
    }

    /** Paints all lines anew within a box of unit coordinates and what the width of a line needs around it. */
    paintBox(frame, box, world, weight) {
      const spare = weight / 2 + 2;
      const left = Math.max(0, Math.floor((box.left + world) * frame.scale - frame.left - spare));
      const top = Math.max(0, Math.floor(box.top * frame.scale - frame.top - spare));
      const width = Math.min(frame.width, Math.ceil((box.right + world) * frame.scale - frame.left + spare)) - left;
      const height = Math.min(frame.height, Math.ceil(box.bottom * frame.scale - frame.top + spare)) - top;
      if (!(width > 0 && height > 0))
        return;
      const context = frame.context;
      context.save();
      context.translate(left, top);
      context.beginPath();
      context.rect(0, 0, width, height);
      context.clip();
      context.clearRect(0, 0, width, height);
      this.paint(Object.assign({}, frame,
        { left: frame.left + left, top: frame.top + top, width: width, height: height }));
      context.restore();
    }

    stroke(frame, line) {
      const context = frame.context;
      if (line.strokeOpacity <= 0 || line.strokeWeight <= 0)
        return;
      context.globalAlpha = line.strokeOpacity;
      context.strokeStyle = line.strokeColor;
      context.lineWidth = line.strokeWeight;
      context.lineJoin = context.lineCap = 'round';
      // Where paths meet a line that shines through would be seen twice.
      const most = line.strokeOpacity < 1 ? Infinity : pathPieces;
      line.geometry.runs.forEach(run => this.strokeRun(frame, run, line.geometry.geodesic, most));
      context.globalAlpha = 1;
    }

    /** @param {number} most how many pieces a path takes */
    strokeRun(frame, run, geodesic, most) {
      const context = frame.context;
      let endX = NaN;
      let endY = NaN;
      let wayX = 0;
      let wayY = 0;
      let pieces = 0;
      emitRun(frame, run, geodesic, (x1, y1, x2, y2) => {
        if (pieces >= most && isCorner(wayX, wayY, x2 - x1, y2 - y1)) {
          context.stroke();
          pieces = 0;
        }
        if (pieces === 0)
          context.beginPath();
        if (pieces === 0 || x1 !== endX || y1 !== endY)
          context.moveTo(x1, y1);
        context.lineTo(x2, y2);
        endX = x2;
        endY = y2;
        wayX = x2 - x1;
        wayY = y2 - y1;
        ++pieces;
      });
      if (pieces > 0)
        context.stroke();
    }
  }

  /** Whether a line turns by more than some ten degrees between two pieces, of which x and y are given. */
  function isCorner(x1, y1, x2, y2) {
    return x1 * x2 + y1 * y2 < 0.98 * Math.sqrt((x1 * x1 + y1 * y1) * (x2 * x2 + y2 * y2));
  }

  /**
   * Tells the pieces of a run that lie in the frame, in every copy of the world that it shows.
   * @param {Emit} emit x and y of both ends in pixels, cut to the frame, and
   *     how many pixels the first end lies behind the run's beginning, counted along the line
   */
  function emitRun(frame, run, geodesic, emit) {
    const margin = edge + (geodesic ? run.bend * frame.scale : 0);
    if (run.bottom * frame.scale < frame.top - margin || run.top * frame.scale > frame.top + frame.height + margin)
      return;
    const firstWorld = Math.ceil((frame.left - margin) / frame.scale - run.right);
    const lastWorld = Math.floor((frame.left + frame.width + margin) / frame.scale - run.left);
    for (let world = firstWorld; world <= lastWorld; ++world)
      emitWorld(frame, run, frame.left - world * frame.scale, geodesic, emit);
  }

  function isInside(frame, run, left) {
    return run.left * frame.scale >= left - edge && run.right * frame.scale <= left + frame.width + edge
      && run.top * frame.scale >= frame.top - edge && run.bottom * frame.scale <= frame.top + frame.height + edge;
  }

  /**
   * Tells how far a line may go straight: from its start the points seen so far leave a cone of directions that pass
   * all of them near enough.
   */
  class Cone {
    begin(x, y) {
      this.x = x;
      this.y = y;
      this.far = 0;
    }

    /** @return {boolean} whether the line may go straight to this point; then it has been seen */
    takes(x, y) {
      const dx = x - this.x;
      const dy = y - this.y;
      const square = dx * dx + dy * dy;
      if (square < nearEnough * nearEnough)
        return this.far === 0;
      const turn = nearEnough / Math.sqrt(square);
      const leftX = dx + turn * dy;
      const leftY = dy - turn * dx;
      const rightX = dx - turn * dy;
      const rightY = dy + turn * dx;
      const isFirst = this.far === 0;
      if (!isFirst && (square < this.far || this.leftX * dy < this.leftY * dx || this.rightX * dy > this.rightY * dx))
        return false;
      if (isFirst || this.leftX * leftY > this.leftY * leftX) {
        this.leftX = leftX;
        this.leftY = leftY;
      }
      if (isFirst || this.rightX * rightY < this.rightY * rightX) {
        this.rightX = rightX;
        this.rightY = rightY;
      }
      this.far = square;
      return true;
    }
  }

  const cone = new Cone();

  /** @return {number} the last point that a straight piece from the point `from` may end at */
  function endOfPiece(run, from, scale) {
    const last = run.xs.length - 1;
    let to = from;
    cone.begin(run.xs[from] * scale, run.ys[from] * scale);
    while (to < last && cone.takes(run.xs[to + 1] * scale, run.ys[to + 1] * scale))
      ++to;
    return to;
  }

  function emitWorld(frame, run, left, geodesic, emit) {
    const scale = frame.scale;
    const bends = geodesic && run.bend * scale > leastBend;
    const put = isInside(frame, run, left) && !bends ? emit : clipped(frame, emit);
    let along = 0;
    let x1 = run.xs[0] * scale - left;
    let y1 = run.ys[0] * scale - frame.top;
    for (let from = 0; from < run.xs.length - 1;) {
      const to = bends ? from + 1 : endOfPiece(run, from, scale);
      const x2 = run.xs[to] * scale - left;
      const y2 = run.ys[to] * scale - frame.top;
      if (bends)
        emitBent(frame, run, left, from, to, along, put);
      else
        put(x1, y1, x2, y2, along);
      along += Math.hypot(x2 - x1, y2 - y1);
      from = to;
      x1 = x2;
      y1 = y2;
    }
  }

  function clipped(frame, emit) {
    return (x1, y1, x2, y2, along) => {
      const part = engine.clipSegment(x1, y1, x2, y2, -edge, -edge, frame.width + edge, frame.height + edge);
      if (part)
        emit(part[0], part[1], part[2], part[3], along + Math.hypot(part[0] - x1, part[1] - y1));
    };
  }

  /** A piece of a great circle in as many straight pieces as the zoom wants, if it may come into the frame at all. */
  function emitBent(frame, run, left, from, to, along, put) {
    const scale = frame.scale;
    const top = frame.top;
    const xs = run.xs;
    const ys = run.ys;
    const width = xs[to] - xs[from];
    const bend = engine.bendOf(width, Math.hypot(width, ys[to] - ys[from]), ys[to]) * scale;
    let x1 = xs[from] * scale - left;
    let y1 = ys[from] * scale - top;
    const x2 = xs[to] * scale - left;
    const y2 = ys[to] * scale - top;
    const margin = edge + 2 * bend;
    if (Math.max(x1, x2) < -margin || Math.min(x1, x2) > frame.width + margin
      || Math.max(y1, y2) < -margin || Math.min(y1, y2) > frame.height + margin)
      return;
    const pieces = Math.min(mostPieces, Math.ceil(Math.sqrt(bend / leastBend)));
    const between = pieces > 1 ? engine.bentPoints(xs[from], ys[from], xs[to], ys[to], pieces) : [];
    let behind = along;
    for (let i = 0; i < between.length; i += 2) {
      const x = between[i] * scale - left;
      const y = between[i + 1] * scale - top;
      put(x1, y1, x, y, behind);
      behind += Math.hypot(x - x1, y - y1);
      x1 = x;
      y1 = y;
    }
    put(x1, y1, x2, y2, behind);
  }

  engine.Lines = Lines;

  /**
   * The lines below everything else on the chart, those of a negative zIndex, have a canvas of their own: there a line
   * grows by painting its new piece alone, while everything else on the map stays as it is.
   */
  class Ground {
    constructor(leaflet) {
      this.lines = new Lines();
      leaflet.createPane(groundPane);
      this.canvas = new engine.ChartCanvas(groundPane, [this.lines]);
      this.canvas.addTo(leaflet);
      this.growing = 0;
    }

    /** A line has new points at its end: paints them with the next frame. */
    grow() {
      if (!this.growing)
        this.growing = window.requestAnimationFrame(() => {
          this.growing = 0;
          this.canvas.paintMore(frame => this.lines.paintGrowth(frame));
        });
    }
  }

  /** Where a map's lines of some height live: the lines among which they are painted, and the canvas. */
  engine.linesAt = (map, height) => {
    if (height >= 0)
      return { lines: map.lines, canvas: map.chart, grow: () => map.chart.invalidate() };
    map.ground = map.ground || new Ground(map.leaflet);
    map.lines.below = map.ground.lines;
    return map.ground;
  };
})();
