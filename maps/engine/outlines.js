/** The base map: sea, land, coasts and borders out of `window.worldOutlines`, made when the project is built. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Cells are read when they come into view for the first time. */
  class Level {
    constructor(data) {
      this.fromZoom = data.fromZoom;
      this.cell = data.cell;
      this.columns = 360 / data.cell;
      this.overlap = Math.round(data.overlap * data.unitsPerDegree);
      this.units = data.unitsPerDegree;
      this.cells = new Map(data.cells.map(cell => [cell.row * this.columns + cell.column, cell]));
    }

    /** @return {?{land: Array, borders: Array}} lines of unit coordinates with, for land, which edges are coast */
    cellAt(column, row) {
      const cell = this.cells.get(row * this.columns + column);
      if (cell && !cell.lines) {
        cell.lines = {
          land: cell.land.map(text => this.readRing(text, cell)),
          borders: cell.borders.map(text => this.readLine(text)),
        };
      }
      return cell ? cell.lines : null;
    }

    readRing(text, cell) {
      const whole = decode(text);
      const edges = this.edgesOf(cell);
      const count = whole.length / 2;
      const coast = new Uint8Array(count);
      for (let i = 0; i < count; ++i) {
        const next = (i + 1) % count;
        coast[i] = isCellEdge(whole[2 * i], whole[2 * next], edges.x)
          || isCellEdge(whole[2 * i + 1], whole[2 * next + 1], edges.y) ? 0 : 1;
      }
      return { points: this.project(whole), coast: coast };
    }

    readLine(text) {
      return this.project(decode(text));
    }

    /** Where cutting has made edges that are no coast: the cell's own, the closing at 180 degrees and at the poles. */
    edgesOf(cell) {
      const size = this.cell * this.units;
      const west = -180 * this.units + cell.column * size;
      const south = -90 * this.units + cell.row * size;
      const half = 180 * this.units;
      return {
        x: [west - this.overlap, west + size + this.overlap, -half, half],
        y: [south - this.overlap, south + size + this.overlap, -half / 2, half / 2],
      };
    }

    project(whole) {
      const points = new Float64Array(whole.length);
      for (let i = 0; i < whole.length; i += 2) {
        points[i] = engine.unitX(whole[i] / this.units);
        points[i + 1] = engine.unitY(whole[i + 1] / this.units);
      }
      return points;
    }
  }

  function isCellEdge(from, to, edges) {
    return from === to && edges.indexOf(from) >= 0;
  }

  function decode(text) {
    const values = [];
    const last = [0, 0];
    let value = 0;
    let shift = 0;
    for (let i = 0; i < text.length; ++i) {
      const bits = text.charCodeAt(i) - 63;
      value |= (bits & 0x1f) << shift;
      shift += 5;
      if (bits < 0x20) {
        const axis = values.length % 2;
        last[axis] += value & 1 ? ~(value >> 1) : value >> 1;
        values.push(last[axis]);
        value = shift = 0;
      }
    }
    return values;
  }

  /** The cells of a level that a frame shows: lines of the cell and the frame's offset of the world's copy. */
  function cellsInFrame(level, frame) {
    const found = [];
    const north = engine.latitudeOf(Math.max(0, frame.top / frame.scale));
    const south = engine.latitudeOf(Math.min(1, (frame.top + frame.height) / frame.scale));
    const rows = [Math.floor((south + 90) / level.cell), Math.floor((north + 90) / level.cell)];
    const column = x => Math.floor((engine.longitudeOf(x / frame.scale) + 180) / level.cell);
    for (let at = column(frame.left); at <= column(frame.left + frame.width); ++at) {
      const world = Math.floor(at / level.columns);
      for (let row = rows[0]; row <= rows[1]; ++row) {
        const lines = level.cellAt(at - world * level.columns, row);
        if (lines)
          found.push({ lines: lines, left: frame.left - world * frame.scale });
      }
    }
    return found;
  }

  /** A ring in pixels of the frame. Far zoomed in it is cut, for a canvas has no room for numbers without end. */
  function fillRing(frame, points, left) {
    const context = frame.context;
    let ring = new Float64Array(points.length);
    for (let i = 0; i < points.length; i += 2) {
      ring[i] = points[i] * frame.scale - left;
      ring[i + 1] = points[i + 1] * frame.scale - frame.top;
    }
    if (frame.zoom > 9)
      ring = engine.clipRing(ring, -20, -20, frame.width + 20, frame.height + 20);
    for (let i = 0; i < ring.length; i += 2) {
      if (i === 0)
        context.moveTo(ring[i], ring[i + 1]);
      else
        context.lineTo(ring[i], ring[i + 1]);
    }
    context.closePath();
  }

  /**
   * Strokes the shown edges of a line that come near the frame, each unbroken run as a path of its own: the canvas
   * takes many short paths far better than one long one. Neighbours under half a pixel apart are one.
   * @param {?Uint8Array} shown which edges of a ring are drawn; null for an open line, which is drawn whole
   */
  function strokeLine(frame, points, left, shown) {
    const context = frame.context;
    const scale = frame.scale;
    const right = frame.width + 20;
    const bottom = frame.height + 20;
    const count = points.length / 2;
    const edges = shown ? count : count - 1;
    let open = false;
    let lastX = points[0] * scale - left;
    let lastY = points[1] * scale - frame.top;
    let fromX = lastX;
    let fromY = lastY;
    for (let i = 0; i < edges; ++i) {
      const next = i + 1 === count ? 0 : i + 1;
      const x = points[2 * next] * scale - left;
      const y = points[2 * next + 1] * scale - frame.top;
      const away = (x < -20 && fromX < -20) || (y < -20 && fromY < -20)
        || (x > right && fromX > right) || (y > bottom && fromY > bottom);
      if (away || (shown && !shown[i])) {
        if (open)
          context.stroke();
        open = false;
      } else {
        if (!open) {
          context.beginPath();
          context.moveTo(fromX, fromY);
          lastX = fromX;
          lastY = fromY;
          open = true;
        }
        if (Math.abs(x - lastX) + Math.abs(y - lastY) > 0.5 || i === edges - 1 || (shown && !shown[next])) {
          context.lineTo(x, y);
          lastX = x;
          lastY = y;
        }
      }
      fromX = x;
      fromY = y;
    }
    if (open)
      context.stroke();
  }

  class Outlines {
    constructor(data) {
      this.levels = (data || []).map(level => new Level(level));
      this.colours = engine.baseColours();
    }

    paint(frame) {
      const context = frame.context;
      const colours = this.colours;
      context.fillStyle = colours.sea;
      context.fillRect(0, 0, frame.width, frame.height);
      const level = this.levels.filter(candidate => candidate.fromZoom <= frame.zoom).pop();
      if (!level)
        return;
      const cells = cellsInFrame(level, frame);
      context.fillStyle = colours.land;
      cells.forEach(cell => {
        context.beginPath();
        cell.lines.land.forEach(ring => fillRing(frame, ring.points, cell.left));
        context.fill('evenodd');
      });
      context.lineJoin = 'bevel';
      context.strokeStyle = colours.coast;
      context.lineWidth = 1;
      cells.forEach(cell => cell.lines.land.forEach(ring => strokeLine(frame, ring.points, cell.left, ring.coast)));
      context.strokeStyle = colours.border;
      context.lineWidth = 1.2;
      cells.forEach(cell => cell.lines.borders.forEach(points => strokeLine(frame, points, cell.left, null)));
    }
  }

  engine.Outlines = Outlines;
})();
