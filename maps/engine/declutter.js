/**
 * Finds room for the labels: the higher the `zIndex` of a point, the earlier its label is placed, and a label that finds
 * no room stays away. Everything is counted in pixels of the whole world at the zoom, so that a decision does not hang on
 * where the view lies, and what stood in the last picture of the same points keeps its place while the map is moved.
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
   * Where a label may stand, best first: its middle, as parts of the reach of symbol and label from the symbol's middle.
   * Corners move in a little, for symbols are round.
   */
  const sides = [[1, 0], [-1, 0], [0.86, -0.95], [0.86, 0.95], [-0.86, -0.95], [-0.86, 0.95], [0, -1], [0, 1]];

  /** What is not drawn keeps its own label at a distance and no other one. What neither answers the mouse nor has a name is an ornament: a compass rose may lie below a label. */
  const isObstacle = look => look.clickable !== false || !!look.label;

  /** What the base map writes is given way to, but hides no label. */
  const baseLevel = 1;
  const level = height => Math.max(baseLevel + 1, Math.min(highest, Math.floor(height) + 2));

  /**
   * Where more points of one height or above share a square of so many pixels, no label fits between them: it is not even
   * tried.
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

    add(x, y) {
      ++this.counts[this.at(x, y)];
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

    /** Whether a box is free of labels and of symbols from a height on. What leaves the room is not free. */
    isFree(x, y, width, height, least) {
      const left = Math.floor(x / cell) - this.firstColumn;
      const right = Math.floor((x + width) / cell) - this.firstColumn;
      const top = Math.floor(y / cell) - this.firstRow;
      const bottom = Math.floor((y + height) / cell) - this.firstRow;
      if (left < 0 || top < 0 || right >= this.columns || bottom >= this.rows)
        return false;
      for (let row = top; row <= bottom; ++row) {
        for (let at = row * this.columns + left, end = row * this.columns + right; at <= end; ++at) {
          if (this.heights[at] >= least)
            return false;
        }
      }
      return true;
    }

    putLabel(x, y, width, height) {
      const left = Math.floor(x / cell) - this.firstColumn;
      const right = Math.floor((x + width) / cell) - this.firstColumn;
      const bottom = Math.floor((y + height) / cell) - this.firstRow;
      for (let row = Math.floor(y / cell) - this.firstRow; row <= bottom; ++row)
        this.heights.fill(highest + 1, row * this.columns + left, row * this.columns + right + 1);
    }
  }

  class Declutter {
    /**
     * @param {?{placesAt: function(number, number): Array}} names what the base map writes: boxes in pixels of the first copy
     *     of the world for a zoom and a scale
     */
    constructor(names) {
      this.names = names;
      this.kept = new Map();
      this.zoom = NaN;
      this.version = NaN;
    }

    /**
     * @param {Frame} frame
     * @param {Array<{height: number, points: Object[], xs: number[], ys: number[]}>} levels what is drawn, the lower
     *     `zIndex` first; places are pixels from the frame's corner and may lie around the frame
     * @param {number} margin how far around it, in pixels
     * @param {number} version of the points and their looks
     * @return {Array<{x: number, y: number, text: Object}>} the labels: left and upper edge in the frame
     */
    place(frame, levels, margin, version) {
      const sameView = frame.zoom === this.zoom;
      this.isSame = sameView && version === this.version;
      this.room = new Room(frame.left - margin, frame.top - margin, frame.width + 2 * margin, frame.height + 2 * margin);
      this.frame = frame;
      this.before = sameView ? this.kept : new Map();
      this.kept = new Map();
      this.placed = [];
      this.crowd = new Crowd(frame, margin);
      this.putNames();
      levels.forEach(each => this.putSymbols(each));
      const order = levels.slice().reverse();
      // The same points as in the last picture: what stands there stays, whatever new ones come in from the side.
      if (this.isSame)
        order.forEach(each => this.placeLevel(each, true));
      order.forEach(each => {
        for (let i = 0; i < each.points.length; ++i)
          this.crowd.add(each.xs[i] + frame.left, each.ys[i] + frame.top);
        this.placeLevel(each, true);
        this.placeLevel(each, false);
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
        boxes.forEach(box => this.room.putBox(box.left + shift, box.top, box.right + shift, box.bottom, baseLevel));
      }
    }

    putSymbols(each) {
      const height = level(each.height);
      for (let i = 0; i < each.points.length; ++i) {
        const point = each.points[i];
        const radius = point.sprite.radius;
        if (radius >= leastObstacle && !point.sprite.isEmpty && isObstacle(point.look))
          this.room.putSymbol(each.xs[i] + this.frame.left, each.ys[i] + this.frame.top, radius, height);
      }
    }

    /** @param {boolean} former only the labels of the last picture, or all that have no place yet */
    placeLevel(each, former) {
      if (former && !this.before.size)
        return;
      const height = level(each.height);
      for (let i = 0; i < each.points.length; ++i) {
        const point = each.points[i];
        const side = former ? this.before.get(point) : -1;
        if (side === undefined || !point.look.label || this.kept.has(point))
          continue;
        if (former || !this.crowd.isDense(each.xs[i] + this.frame.left, each.ys[i] + this.frame.top))
          this.placePoint(point, each.xs[i], each.ys[i], height, side);
      }
    }

    /**
     * Rather beside all symbols than on one of less height, if need be with the first line alone; on one of less height
     * rather than nowhere. A place is the number of a side, and with the first line that of the sides more.
     */
    placePoint(point, x, y, height, former) {
      const text = engine.labelText(point.look.label);
      if (former >= 0 && (this.tryPlace(point, x, y, text, former, baseLevel)
        || (this.isSame && this.tryPlace(point, x, y, text, former, height))))
        return;
      const places = engine.firstLine(text) ? 2 * sides.length : sides.length;
      [baseLevel, height].some(least => {
        for (let i = 0; i < places; ++i) {
          if (this.tryPlace(point, x, y, text, i, least))
            return true;
        }
        return false;
      });
    }

    tryPlace(point, x, y, whole, place, least) {
      const text = place < sides.length ? whole : engine.firstLine(whole);
      if (!text)
        return false;
      const side = sides[place % sides.length];
      const reach = point.sprite.radius + gap;
      const left = Math.round(x + side[0] * (reach + text.width / 2) - text.width / 2);
      const top = Math.round(y + side[1] * (reach + text.height / 2) - text.height / 2);
      const frame = this.frame;
      if (!this.room.isFree(left + frame.left, top + frame.top, text.width, text.height, least))
        return false;
      this.room.putLabel(left + frame.left, top + frame.top, text.width, text.height);
      this.kept.set(point, place);
      this.placed.push({ x: left, y: top, text: text });
      return true;
    }
  }

  engine.Declutter = Declutter;
})();
