/**
 * Finds room for all that is written on the map, in one grid of cells: the symbols and what may be dragged take theirs
 * first, then the labels, the higher the `zIndex` of a point the earlier, then the names of the base map, and the
 * degrees on the view's edges ask what is left. What finds no room stays away. Everything is counted in pixels of the
 * whole world at the zoom, so that a decision does not hang on where the view lies, and what stood in the last picture
 * of the same points keeps its place while the map is moved.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Pixels of one cell of the room. */
  const cell = 4;
  /** Pixels between a symbol and its label. */
  const gap = 3;
  /** Symbols smaller than this many pixels around their middle are dots, on which a label may lie. */
  const leastObstacle = 2.5;
  const highest = 32000;

  /**
   * Where a label may stand, best first: its middle, as parts of the reach of symbol and label from the symbol's
   * middle. Corners move in a little, for symbols are round.
   */
  const sides = [[1, 0], [-1, 0], [0.86, -0.95], [0.86, 0.95], [-0.86, -0.95], [-0.86, 0.95], [0, -1], [0, 1]];

  /** Points up to this `zIndex` that neither answer the mouse nor have a name are ornaments, as a rose is. */
  const ornaments = 9;
  const isObstacle = look => look.clickable !== false || !!look.label || look.zIndex > ornaments;

  /** The heights in the cells: what the base map writes and lines are given way to, but hide no label. */
  const nameLevel = 1;
  const lineLevel = 2;
  const pinLevel = 3;
  const symbolLevel = 4;
  const level = height => Math.max(symbolLevel, Math.min(highest, Math.floor(height) + symbolLevel));
  const labelLevel = highest + 1;
  /** `coverAt` from here on: a line, then a symbol or a label. */
  engine.lineCover = lineLevel;

  /** What a label would cover, by the greatest height below it: the lower the better. What may be dragged is the worst. */
  const rankOf = height => (height === pinLevel ? highest : height);

  /** Of what may be dragged, the part of its symbol's reach that is not mostly air. */
  const pinBody = 0.65;

  /**
   * Where more points of one height or above share a square of so many pixels, no label fits between them: it is not
   * even tried.
   */
  const crowd = { points: 8, pixels: 32 };

  /** How many points of the heights so far lie in each square of the world. */
  class Crowd {
    constructor(frame, margin) {
      this.left = Math.floor((frame.left - margin) / crowd.pixels);
      this.top = Math.floor((frame.top - margin) / crowd.pixels);
      this.columns = Math.ceil((frame.width + 2 * margin) / crowd.pixels) + 2;
      this.counts = new Uint16Array(this.columns * (Math.ceil((frame.height + 2 * margin) / crowd.pixels) + 2));
    }

    at(x, y) {
      return (Math.floor(y / crowd.pixels) - this.top) * this.columns + Math.floor(x / crowd.pixels) - this.left;
    }

    /** @param {Places} places pixels from the corner at left and top */
    add(places, left, top) {
      const { xs, ys } = places;
      for (let i = 0; i < xs.length; ++i)
        ++this.counts[this.at(xs[i] + left, ys[i] + top)];
    }

    isDense(x, y) {
      return this.counts[this.at(x, y)] > crowd.points;
    }
  }

  /** The cells of a picture: for each the height of the symbol and whether a label stands there. */
  class Room {
    constructor(left, top, width, height) {
      this.firstColumn = Math.floor(left / cell);
      this.firstRow = Math.floor(top / cell);
      this.columns = Math.ceil(width / cell) + 1;
      this.rows = Math.ceil(height / cell) + 1;
      this.heights = new Int16Array(this.columns * this.rows);
    }

    /** A symbol takes the cells that lie with their middle in its box: the gap keeps its own label out of them. */
    putSymbol(x, y, radius, height) {
      this.putBox(x - radius, y - radius, x + radius, y + radius, height);
    }

    putBox(minX, minY, maxX, maxY, height) {
      const top = Math.max(0, Math.round(minY / cell) - this.firstRow);
      const bottom = Math.min(this.rows, Math.round(maxY / cell) - this.firstRow);
      const left = Math.max(0, Math.round(minX / cell) - this.firstColumn);
      const right = Math.min(this.columns, Math.round(maxX / cell) - this.firstColumn);
      for (let row = top; row < bottom; ++row) {
        for (let at = row * this.columns + left, end = row * this.columns + right; at < end; ++at) {
          if (this.heights[at] < height)
            this.heights[at] = height;
        }
      }
    }

    /** A line takes the cells that it goes through. */
    putLine(x1, y1, x2, y2, height) {
      const steps = Math.ceil(Math.max(Math.abs(x2 - x1), Math.abs(y2 - y1)) / cell) + 1;
      for (let i = 0; i <= steps; ++i) {
        const column = Math.floor((x1 + (x2 - x1) * i / steps) / cell) - this.firstColumn;
        const row = Math.floor((y1 + (y2 - y1) * i / steps) / cell) - this.firstRow;
        const at = row * this.columns + column;
        if (column >= 0 && row >= 0 && column < this.columns && row < this.rows && this.heights[at] < height)
          this.heights[at] = height;
      }
    }

    /**
     * The greatest height in a box: 0 where it is empty.
     * @param {number} most from here on the box is taken, and the search ends
     * @return {number} `most` when it is taken; what leaves the room is
     */
    heightIn(x, y, width, height, most) {
      const left = Math.floor(x / cell) - this.firstColumn;
      const right = Math.floor((x + width) / cell) - this.firstColumn;
      const top = Math.floor(y / cell) - this.firstRow;
      const bottom = Math.floor((y + height) / cell) - this.firstRow;
      if (left < 0 || top < 0 || right >= this.columns || bottom >= this.rows)
        return most;
      let found = 0;
      for (let row = top; row <= bottom; ++row) {
        for (let at = row * this.columns + left, end = row * this.columns + right; at <= end; ++at) {
          if (this.heights[at] >= most)
            return most;
          if (this.heights[at] > found)
            found = this.heights[at];
        }
      }
      return found;
    }

    putLabel(x, y, width, height) {
      const left = Math.floor(x / cell) - this.firstColumn;
      const right = Math.floor((x + width) / cell) - this.firstColumn;
      const bottom = Math.floor((y + height) / cell) - this.firstRow;
      for (let row = Math.floor(y / cell) - this.firstRow; row <= bottom; ++row)
        this.heights.fill(labelLevel, row * this.columns + left, row * this.columns + right + 1);
    }
  }

  class Declutter {
    /**
     * @param {?WrittenNames} names what the base map writes
     * @param {?Lines} lines those that a label had better not cross
     * @param {?Set<Pin>} pins what the user may drag
     */
    constructor(names, lines, pins) {
      this.names = names;
      this.lines = lines;
      this.pins = pins || new Set();
      this.room = null;
      this.kept = new Map();
      this.zoom = NaN;
      this.version = NaN;
    }

    /**
     * @param {Frame} frame
     * @param {PointLevel[]} levels what is drawn, the lower `zIndex` first; places may lie around the frame
     * @param {number} margin how far around it, in pixels
     * @param {number} version of the points and their looks
     * @return {Array<{x: number, y: number, text: Object}>} the labels: left and upper edge in the frame
     */
    place(frame, levels, margin, version) {
      const sameView = frame.zoom === this.zoom;
      this.isSame = sameView && version === this.version;
      this.room = new Room(frame.left - margin, frame.top - margin, frame.width + 2 * margin,
        frame.height + 2 * margin);
      this.frame = frame;
      this.before = sameView ? this.kept : new Map();
      this.kept = new Map();
      this.placed = [];
      this.crowd = new Crowd(frame, margin);
      this.putNames();
      this.putLines();
      this.putPins();
      levels.forEach(each => this.putSymbols(each));
      const order = levels.slice().reverse();
      // The same points as in the last picture: what stands there stays, whatever new ones come in from the side.
      if (this.isSame)
        order.forEach(each => this.placeFormer(each));
      order.forEach(each => {
        this.crowd.add(each.all, frame.left, frame.top);
        this.placeFormer(each);
        this.placeOthers(each);
      });
      this.zoom = frame.zoom;
      this.version = version;
      return this.placed;
    }

    putNames() {
      const frame = this.frame;
      const boxes = this.names ? this.names.placesAt(frame.zoom, frame.scale) : [];
      for (let world = frame.firstWorld; world <= frame.lastWorld; ++world) {
        const shift = world * frame.scale;
        boxes.forEach(box => this.room.putBox(box.left + shift, box.top, box.right + shift, box.bottom, nameLevel));
      }
    }

    putLines() {
      const { left, top } = this.frame;
      if (this.lines)
        this.lines.eachPiece(this.frame, (x1, y1, x2, y2) =>
          this.room.putLine(x1 + left, y1 + top, x2 + left, y2 + top, lineLevel));
    }

    putPins() {
      const frame = this.frame;
      for (let world = frame.firstWorld; world <= frame.lastWorld; ++world)
        this.pins.forEach(pin =>
          this.room.putSymbol((pin.x + world) * frame.scale, pin.y * frame.scale, pin.radius * pinBody, pinLevel));
    }

    /**
     * What lies in a box of the last picture: 0 for nothing, else a height up to that of symbols and labels.
     * @param {number} zoom that of the box, in pixels of the whole world
     */
    coverAt(zoom, x, y, width, height) {
      return this.room && zoom === this.zoom ? this.room.heightIn(x, y, width, height, pinLevel) : 0;
    }

    /**
     * Takes the room of a name that is written beside its place; `coverAt` tells of it from now on.
     * @param {Box} box pixels of the whole world at the zoom of the last picture
     */
    putName(box) {
      this.room.putBox(box.left, box.top, box.right, box.bottom, nameLevel);
    }

    putSymbols(each) {
      const height = level(each.height);
      const { points, xs, ys } = each;
      const { left, top } = this.frame;
      for (let i = 0; i < points.length; ++i) {
        const { sprite, look } = points[i];
        if (sprite.radius >= leastObstacle && !sprite.isEmpty && isObstacle(look))
          this.room.putSymbol(xs[i] + left, ys[i] + top, sprite.radius, height);
      }
    }

    /** The labels of the last picture that have no place yet. */
    placeFormer(each) {
      if (!this.before.size)
        return;
      const height = level(each.height);
      for (let i = 0; i < each.points.length; ++i) {
        const point = each.points[i];
        const side = this.before.get(point);
        if (side !== undefined && !this.kept.has(point) && point.look.label)
          this.placePoint(point, each.xs[i], each.ys[i], height, side);
      }
    }

    /** All labels that have no place yet. */
    placeOthers(each) {
      const height = level(each.height);
      const { points, xs, ys } = each;
      const { left, top } = this.frame;
      for (let i = 0; i < points.length; ++i) {
        if (this.crowd.isDense(xs[i] + left, ys[i] + top) || this.kept.has(points[i]))
          continue;
        // A label may be made only when it is asked for, so this comes last.
        if (this.mayHaveRoom(points[i], xs[i], ys[i], height) && points[i].look.label)
          this.placePoint(points[i], xs[i], ys[i], height, -1);
      }
    }

    /** Whether there is a side on which at least the cell that every label would take there is free. */
    mayHaveRoom(point, x, y, height) {
      const { left, top } = this.frame;
      const reach = point.sprite.radius + gap;
      for (let i = 0; i < sides.length; ++i) {
        const besideX = Math.round(x + sides[i][0] * reach) + left;
        const besideY = Math.round(y + sides[i][1] * reach) + top;
        if (this.room.heightIn(besideX, besideY, 0, 0, height) < height)
          return true;
      }
      return false;
    }

    /**
     * Rather beside everything than on a name of the base map, on this rather than on a line, and on a symbol of less
     * height, the lowest that there is, rather than nowhere; if need be with the first line alone. A place is the number of a side, and with the
     * first line that of the sides more.
     */
    placePoint(point, x, y, height, former) {
      const text = engine.labelText(point.look.label);
      if (former >= 0) {
        const covered = this.coveredAt(point, x, y, text, former, height);
        if (covered === 0 || (this.isSame && covered < height)) {
          this.putAt(point, x, y, text, former);
          return;
        }
      }
      const places = engine.firstLine(text) ? 2 * sides.length : sides.length;
      let best = -1;
      let rank = Infinity;
      for (let i = 0; i < places && rank > 0; ++i) {
        const covered = this.coveredAt(point, x, y, text, i, height);
        if (covered < height && rankOf(covered) < rank) {
          best = i;
          rank = rankOf(covered);
        }
      }
      if (best >= 0)
        this.putAt(point, x, y, text, best);
    }

    /** The greatest height below a label at one of its places; that of the point where it may not stand. */
    coveredAt(point, x, y, whole, place, height) {
      const text = place < sides.length ? whole : engine.firstLine(whole);
      if (!text)
        return height;
      const left = leftAt(point, x, text, place) + this.frame.left;
      const top = topAt(point, y, text, place) + this.frame.top;
      return this.room.heightIn(left, top, text.width, text.height, height);
    }

    putAt(point, x, y, whole, place) {
      const text = place < sides.length ? whole : engine.firstLine(whole);
      const left = leftAt(point, x, text, place);
      const top = topAt(point, y, text, place);
      this.room.putLabel(left + this.frame.left, top + this.frame.top, text.width, text.height);
      this.kept.set(point, place);
      this.placed.push({ x: left, y: top, text: text });
    }
  }

  /** The left and the upper edge of a label at one of its places. */
  const leftAt = (point, x, text, place) => {
    const reach = point.sprite.radius + gap;
    return Math.round(x + sides[place % sides.length][0] * (reach + text.width / 2) - text.width / 2);
  };
  const topAt = (point, y, text, place) => {
    const reach = point.sprite.radius + gap;
    return Math.round(y + sides[place % sides.length][1] * (reach + text.height / 2) - text.height / 2);
  };

  engine.Declutter = Declutter;
})();
