/**
 * The world's coasts, borders, lakes and rivers out of `window.worldOutlines`, made when the project is built: cells of
 * several scales, each read when it comes into view for the first time.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** "!" stands for the backslash. */
  const standIn = 33;
  const backslash = 92;

  /** Whole numbers out of differences, five bits a character. */
  function decode(text) {
    const values = [];
    const last = [0, 0];
    let value = 0;
    let shift = 0;
    for (let i = 0; i < text.length; ++i) {
      const code = text.charCodeAt(i);
      const bits = (code === standIn ? backslash : code) - 63;
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

  /** Degrees: from here on no shore lies. */
  const nearPole = 89.9;

  function isCellEdge(from, to, edges) {
    return from === to && edges.indexOf(from) >= 0;
  }

  /** The scale of the world that is drawn from a zoom on. */
  class Level {
    constructor(data) {
      this.fromZoom = data.fromZoom;
      this.cell = data.cell;
      this.columns = 360 / data.cell;
      this.overlap = Math.round(data.overlap * data.unitsPerDegree);
      this.units = data.unitsPerDegree;
      this.text = data.cells;
      this.cells = null;
    }

    /** The finest scale is large: its text is cut into cells when it is drawn for the first time. */
    read() {
      this.cells = new Map(this.text.split('/').map(text => [parseInt(text, 10), { text: text, lines: null }]));
      this.text = '';
    }

    /** @return {?{land: Array, lakes: Array, borders: Array, rivers: Array}} lines as `line` makes them */
    cellAt(column, row) {
      if (!this.cells)
        this.read();
      const cell = this.cells.get(row * this.columns + column);
      if (cell && !cell.lines) {
        const [, land, lakes, borders, rivers] = cell.text.split(';');
        const edges = this.edgesOf(column, row);
        cell.lines = {
          land: this.linesOf(land, whole => this.ring(whole, edges)),
          lakes: this.linesOf(lakes, whole => this.ring(whole, edges)),
          borders: this.linesOf(borders, whole => this.line(whole)),
          rivers: this.linesOf(rivers, whole => this.line(whole)),
        };
        cell.text = '';
      }
      return cell ? cell.lines : null;
    }

    /** Each with the zoom at which it ends, where one stands in front of it. */
    linesOf(text, make) {
      return text ? text.split(',').map(entry => {
        const [points, last] = entry.split(':').reverse();
        return Object.assign(make(decode(points)), { last: last ? Number(last) : Infinity });
      }) : [];
    }

    /** A ring also tells which of its edges are shore, and not made by the cutting into cells. */
    ring(whole, edges) {
      const count = whole.length / 2;
      const shore = new Uint8Array(count);
      for (let i = 0; i < count; ++i) {
        const next = (i + 1) % count;
        shore[i] = isCellEdge(whole[2 * i], whole[2 * next], edges.x)
          || isCellEdge(whole[2 * i + 1], whole[2 * next + 1], edges.y)
          || this.isAtPole(whole[2 * i + 1]) && this.isAtPole(whole[2 * next + 1]) ? 0 : 1;
      }
      return Object.assign(this.line(whole), { shown: shore });
    }

    /** Antarctica's ring runs along the pole, and not at 90 degrees exactly. @param {number} latitude in units */
    isAtPole(latitude) {
      return Math.abs(latitude) > nearPole * this.units;
    }

    /** Where cutting has made edges: the cell's own, the closing at 180 degrees and at the poles. */
    edgesOf(column, row) {
      const size = this.cell * this.units;
      const west = -180 * this.units + column * size;
      const south = -90 * this.units + row * size;
      const half = 180 * this.units;
      return {
        x: [west - this.overlap, west + size + this.overlap, -half, half],
        y: [south - this.overlap, south + size + this.overlap, -half / 2, half / 2],
      };
    }

    /** @return {{points: Float64Array, left, right, top, bottom}} unit coordinates, and the box around them */
    line(whole) {
      const points = new Float64Array(whole.length);
      const box = { points: points, shown: null, left: Infinity, right: -Infinity, top: Infinity, bottom: -Infinity };
      for (let i = 0; i < whole.length; i += 2) {
        const x = points[i] = engine.unitX(whole[i] / this.units);
        const y = points[i + 1] = engine.unitY(whole[i + 1] / this.units);
        if (x < box.left)
          box.left = x;
        if (x > box.right)
          box.right = x;
        if (y < box.top)
          box.top = y;
        if (y > box.bottom)
          box.bottom = y;
      }
      return box;
    }

    /** The cells that a frame shows, with the frame's left edge as seen from the copy of the world that they lie in. */
    inFrame(frame) {
      const found = [];
      const reach = this.overlap / this.units;
      const north = engine.latitudeOf(Math.max(0, frame.top / frame.scale));
      const south = engine.latitudeOf(Math.min(1, (frame.top + frame.height) / frame.scale));
      const west = engine.longitudeOf(frame.left / frame.scale);
      const east = engine.longitudeOf((frame.left + frame.width) / frame.scale);
      for (let at = this.index(west - reach, 180); at <= this.index(east + reach, 180); ++at) {
        const world = Math.floor(at / this.columns);
        for (let row = this.index(south - reach, 90); row <= this.index(north + reach, 90); ++row) {
          const lines = this.cellAt(at - world * this.columns, row);
          if (lines)
            found.push({ lines: lines, left: frame.left - world * frame.scale });
        }
      }
      return found;
    }

    index(degrees, half) {
      return Math.floor((degrees + half) / this.cell);
    }
  }

  engine.worldLevels = data => (data || []).map(level => new Level(level));
})();
