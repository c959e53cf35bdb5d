/** The base map: sea, land, lakes, rivers, coasts and borders. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** How far beyond a frame lines are still drawn, pixels; more than any of them is wide. */
  const margin = 12;
  /** Neighbours on a line that are nearer than this are one, pixels. */
  const leastStep = 0.6;

  /** Below this zoom a world of lines is finer drawn, by this factor. */
  const farZoom = 4.8;
  const farWidth = 0.7;

  /**
   * How lines are drawn; `step` is their least step. The first lies under the land: a broad band that lets the water
   * change its tone towards the shore, by so much of the coast's colour. It is opaque: one that shines through would be
   * twice as strong where cells overlap, and in straits. Rivers end in their lakes, the others lie over the fills in
   * this order.
   */
  const shallows = { kind: 'land', width: 9, strength: 1, step: 3, fromZoom: 4.5 };
  const shallowsTone = 0.16;
  const rivers = { kind: 'rivers', colour: 'coast', width: 1, strength: 0.8, step: leastStep, fromZoom: 0 };
  const lines = [
    { kind: 'borders', colour: 'border', width: 1.2, strength: 1, step: leastStep, fromZoom: 0 },
    { kind: 'lakes', colour: 'coast', width: 0.8, strength: 1, step: leastStep, fromZoom: 0 },
    { kind: 'land', colour: 'coast', width: 1, strength: 1, step: leastStep, fromZoom: 0 },
  ];

  function isNear(frame, line, left) {
    const scale = frame.scale;
    return line.right * scale - left >= -margin && line.left * scale - left <= frame.width + margin
      && line.bottom * scale - frame.top >= -margin && line.top * scale - frame.top <= frame.height + margin;
  }

  /** Whether a point of a ring ends one of the edges that cutting into cells has made. */
  function isCut(shown, i) {
    return !shown[i] || !shown[(i || shown.length) - 1];
  }

  /**
   * A ring's points in pixels of the frame, those that fall together once. The ends of a cut stay: where two of a
   * ring's cuts lie on each other, between two bays, they would gape by a part of a pixel and leave a line on the sea.
   */
  function pixelsOf(frame, line, left) {
    const { points, shown } = line;
    const scale = frame.scale;
    const ring = [];
    let lastX = Infinity;
    let lastY = Infinity;
    for (let i = 0; i < points.length; i += 2) {
      const x = points[i] * scale - left;
      const y = points[i + 1] * scale - frame.top;
      if (Math.abs(x - lastX) + Math.abs(y - lastY) > leastStep || isCut(shown, i / 2)) {
        ring.push(x, y);
        lastX = x;
        lastY = y;
      }
    }
    return ring;
  }

  /** Far zoomed in a ring is cut, for a canvas has no room for numbers without end. */
  function traceRing(frame, line, left) {
    const context = frame.context;
    let ring = pixelsOf(frame, line, left);
    if (frame.zoom > 8)
      ring = engine.clipRing(ring, -margin, -margin, frame.width + margin, frame.height + margin);
    for (let i = 0; i < ring.length; i += 2) {
      if (i === 0)
        context.moveTo(ring[i], ring[i + 1]);
      else
        context.lineTo(ring[i], ring[i + 1]);
    }
    context.closePath();
  }

  function fillRings(frame, rings, left) {
    frame.context.beginPath();
    rings.forEach(ring => traceRing(frame, ring, left));
    frame.context.fill('evenodd');
  }

  /** Whether an edge lies wholly beyond one side of the frame. */
  function isAway(frame, fromX, fromY, x, y) {
    const right = frame.width + margin;
    const bottom = frame.height + margin;
    return (x < -margin && fromX < -margin) || (y < -margin && fromY < -margin)
      || (x > right && fromX > right) || (y > bottom && fromY > bottom);
  }

  /**
   * Strokes edges one after the other, each unbroken run as a path of its own: the canvas takes many short paths far
   * better than one long one.
   */
  class Pen {
    /** @param {number} step pixels; neighbours that are nearer are one */
    constructor(context, step) {
      this.context = context;
      this.step = step;
      this.isDown = false;
    }

    /** Draws an edge; the last one of a run is drawn to its very end. */
    draw(fromX, fromY, x, y, isLast) {
      if (!this.isDown) {
        this.context.beginPath();
        this.context.moveTo(fromX, fromY);
        this.isDown = true;
        this.x = fromX;
        this.y = fromY;
      }
      if (isLast || Math.abs(x - this.x) + Math.abs(y - this.y) > this.step) {
        this.context.lineTo(x, y);
        this.x = x;
        this.y = y;
      }
    }

    /** Ends the run. */
    lift() {
      if (this.isDown)
        this.context.stroke();
      this.isDown = false;
    }
  }

  /**
   * Strokes the shown edges of a line that come near the frame.
   * @param {{points: Float64Array, shown: ?Uint8Array}} line shown: which edges of a ring are drawn; null for an open
   *     line, which is drawn whole
   * @param {number} step pixels; neighbours that are nearer are one
   */
  function strokeLine(frame, line, left, step) {
    const scale = frame.scale;
    const points = line.points;
    const shown = line.shown;
    const pen = new Pen(frame.context, step);
    const count = points.length / 2;
    const edges = shown ? count : count - 1;
    let fromX = points[0] * scale - left;
    let fromY = points[1] * scale - frame.top;
    for (let i = 0; i < edges; ++i) {
      const next = i + 1 === count ? 0 : i + 1;
      const x = points[2 * next] * scale - left;
      const y = points[2 * next + 1] * scale - frame.top;
      if ((shown && !shown[i]) || isAway(frame, fromX, fromY, x, y))
        pen.lift();
      else
        pen.draw(fromX, fromY, x, y, i === edges - 1 || (shown && !shown[next]));
      fromX = x;
      fromY = y;
    }
    pen.lift();
  }

  class Outlines {
    constructor(data) {
      this.levels = engine.worldLevels(data);
      this.colours = engine.baseColours();
    }

    paint(frame) {
      const level = this.levels.filter(candidate => candidate.fromZoom <= frame.zoom).pop();
      const cells = level ? level.inFrame(frame).map(cell => this.near(frame, cell)) : [];
      frame.context.lineJoin = 'bevel';
      this.fillSea(frame);
      this.stroke(frame, cells, shallows);
      this.fill(frame, cells, 'land', this.colours.land);
      this.stroke(frame, cells, rivers);
      this.fill(frame, cells, 'lakes', this.colours.sea);
      lines.forEach(style => this.stroke(frame, cells, style));
    }

    /** Of a cell what touches the frame. */
    near(frame, cell) {
      const pick = lines => lines.filter(line => isNear(frame, line, cell.left));
      return {
        left: cell.left,
        land: pick(cell.lines.land),
        lakes: pick(cell.lines.lakes.filter(lake => frame.zoom < lake.last)),
        borders: pick(cell.lines.borders),
        rivers: pick(cell.lines.rivers.filter(river => frame.zoom < river.last)),
      };
    }

    /** South of the projection's limit lies nothing but Antarctica. */
    fillSea(frame) {
      const context = frame.context;
      if (this.colours.sea) {
        context.fillStyle = this.colours.sea;
        context.fillRect(0, 0, frame.width, frame.height);
      }
      const limit = frame.scale - frame.top;
      if (this.colours.land && limit < frame.height) {
        context.fillStyle = this.colours.land;
        context.fillRect(0, limit - 1, frame.width, frame.height - limit + 1);
      }
    }

    fill(frame, cells, kind, colour) {
      if (!colour)
        return;
      frame.context.fillStyle = colour;
      cells.forEach(cell => fillRings(frame, cell[kind], cell.left));
    }

    colourOf(style) {
      const { sea, coast } = this.colours;
      if (style === shallows)
        return sea && coast ? engine.mixed(sea, coast, shallowsTone) : null;
      return this.colours[style.colour];
    }

    stroke(frame, cells, style) {
      const context = frame.context;
      const colour = this.colourOf(style);
      if (!colour || frame.zoom < style.fromZoom)
        return;
      context.strokeStyle = colour;
      context.lineWidth = style.width * (frame.zoom < farZoom ? farWidth : 1);
      context.globalAlpha = style.strength;
      cells.forEach(cell => cell[style.kind].forEach(line => strokeLine(frame, line, cell.left, style.step)));
      context.globalAlpha = 1;
    }
  }

  engine.Outlines = Outlines;
})();
