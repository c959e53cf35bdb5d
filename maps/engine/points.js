/**
 * The points of all data layers of a map: paints each as a copy of its symbol's sprite with its label where there is
 * room for it, and finds them by place.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** A point answers the mouse this many pixels around its middle. */
  const touchPixels = 10;

  /** Points so many pixels beside the canvas count too: their labels and symbols reach into it. */
  const margin = 160;

  /**
   * Of so many points at one height hardly one can be told from its neighbours: of those in a square of so many pixels
   * one is drawn and labelled, that which would be drawn last.
   */
  const crowd = { points: 5000, pixels: 4 };

  class Points {
    /**
     * @param {?WrittenNames} names what the base map writes where there is room left
     * @param {?Lines} lines what else is on the map, as Declutter takes it
     * @param {?Set<Pin>} pins
     */
    constructor(names, lines, pins) {
      this.layers = new Set();
      this.names = names;
      this.declutter = new engine.Declutter(names, lines, pins);
      this.labels = [];
      this.version = 0;
      this.levels = new Map();
      this.rim = 'rgba(255, 255, 255, 0.85)';
    }

    show(layer) {
      this.layers.add(layer);
      this.forget();
    }

    hide(layer) {
      this.layers.delete(layer);
      this.forget();
    }

    /** A layer has changed. */
    forget() {
      ++this.version;
    }

    /** @param {string} colour what stands around letters */
    setRim(colour) {
      this.rim = colour;
    }

    /**
     * Finds out what the frame shows: for each zIndex the points and their pixels. Comes before all painting: the names
     * of the base map, which have the room that the labels leave, lie below everything.
     */
    begin(frame) {
      const ratio = window.devicePixelRatio || 1;
      this.levels = new Map();
      this.layers.forEach(layer => {
        for (let world = frame.firstWorld; world <= frame.lastWorld; ++world)
          this.gather(frame, layer, frame.left - world * frame.scale, ratio);
      });
      this.levels.forEach(level => {
        level.all = { xs: level.xs, ys: level.ys };
        if (level.points.length > crowd.points)
          thin(frame, level);
      });
      const levels = Array.from(this.levels.values()).sort((a, b) => a.height - b.height);
      this.labels = this.declutter.place(frame, levels, margin, this.version);
      if (this.names)
        this.names.paint(frame, this.declutter);
    }

    gather(frame, layer, left, ratio) {
      const scale = frame.scale;
      const found = layer.grid.inBox((left - margin) / scale, (frame.top - margin) / scale,
        (left + frame.width + margin) / scale, (frame.top + frame.height + margin) / scale);
      for (let i = 0; i < found.runs.length; i += 2)
        this.gatherRun(frame, layer, left, ratio, found.points, found.runs[i], found.runs[i + 1]);
    }

    gatherRun(frame, layer, left, ratio, points, from, to) {
      const scale = frame.scale;
      const top = frame.top;
      const right = frame.width + margin;
      const bottom = frame.height + margin;
      let level = null;
      for (let i = from; i < to; ++i) {
        const point = points[i];
        const x = Math.round(point.x * scale - left);
        const y = Math.round(point.y * scale - top);
        if (x < -margin || y < -margin || x > right || y > bottom)
          continue;
        if (point.dressing !== layer.dressing || point.sprite.ratio !== ratio)
          layer.dress(point, ratio);
        if (point.look.visible === false)
          continue;
        const height = point.look.zIndex || 0;
        if (!level || level.height !== height)
          level = this.levelAt(height);
        level.points.push(point);
        level.xs.push(x);
        level.ys.push(y);
      }
    }

    levelAt(height) {
      let level = this.levels.get(height);
      if (!level) {
        level = { height: height, points: [], xs: [], ys: [], all: null };
        this.levels.set(height, level);
      }
      return level;
    }

    /** @return {number[]} the zIndex values that occur in the frame */
    heights() {
      return Array.from(this.levels.keys());
    }

    /** @param {number} height the zIndex of the points to paint */
    paintHeight(frame, height) {
      const level = this.levels.get(height);
      if (!level)
        return;
      const context = frame.context;
      for (let i = 0; i < level.points.length; ++i) {
        const sprite = level.points[i].sprite;
        const middle = sprite.middle;
        const x = level.xs[i];
        const y = level.ys[i];
        if (x > -middle && y > -middle && x < frame.width + middle && y < frame.height + middle)
          context.drawImage(sprite.canvas, x - middle, y - middle, sprite.size, sprite.size);
      }
    }

    /** Labels stand over everything. Comes after all painting. */
    end(frame) {
      engine.writeLabels(frame.context, this.labels, this.rim);
      this.levels = new Map();
      this.labels = [];
    }

    /**
     * @return the point nearest to a place in unit coordinates, or null when none is near enough to be meant; of
     *     several at the same place the one drawn last
     */
    nearest(x, y, scale) {
      const best = { point: null, square: Infinity };
      const ratio = window.devicePixelRatio || 1;
      this.layers.forEach(layer => {
        const found = layer.grid.nearest(x, y, touchPixels / scale, point => {
          if (point.dressing !== layer.dressing)
            layer.dress(point, ratio);
          return point.look.visible !== false && point.look.clickable !== false;
        });
        if (found.point && (found.square < best.square
          || (found.square === best.square && !(found.point.look.zIndex < best.point.look.zIndex))))
          Object.assign(best, found);
      });
      return best.point;
    }
  }

  /** Keeps one point of a square; squares are counted from the world's corner, so that they move with the view. */
  function thin(frame, level) {
    const { points, xs, ys } = level;
    const count = points.length;
    const columns = Math.ceil((frame.width + 2 * margin) / crowd.pixels) + 2;
    const rows = Math.ceil((frame.height + 2 * margin) / crowd.pixels) + 2;
    const { left, top } = frame;
    const firstColumn = Math.floor((left - margin) / crowd.pixels);
    const firstRow = Math.floor((top - margin) / crowd.pixels);
    const taken = new Uint8Array(columns * rows);
    const isKept = new Uint8Array(count);
    for (let i = count - 1; i >= 0; --i) {
      const column = Math.floor((xs[i] + left) / crowd.pixels) - firstColumn;
      const row = Math.floor((ys[i] + top) / crowd.pixels) - firstRow;
      const square = row * columns + column;
      isKept[i] = 1 - taken[square];
      taken[square] = 1;
    }
    level.points = points.filter((point, i) => isKept[i]);
    level.xs = xs.filter((x, i) => isKept[i]);
    level.ys = ys.filter((y, i) => isKept[i]);
  }

  engine.Points = Points;
})();
