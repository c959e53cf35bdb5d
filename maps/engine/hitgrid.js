/**
 * Keeps points by cells of one degree of longitude: what lies in a box and what is next to a place among any number. For
 * what is next to a place seen from near, there are cells of a sixteenth of a degree besides.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const cells = 360;
  const smallCells = 16 * cells;

  const rowOf = y => Math.floor(y * cells);

  /** Points by cells, `count` of them around the world. */
  class Cells {
    constructor(count) {
      this.count = count;
      this.lists = new Map();
    }

    /** The points of a cell; the column in any copy of the world. */
    at(column, row) {
      return this.lists.get(row * this.count + (column % this.count + this.count) % this.count);
    }

    /** A point at 180 degrees east stands in the last column. */
    keyOf(point) {
      return Math.floor(point.y * this.count) * this.count + Math.min(this.count - 1, Math.floor(point.x * this.count));
    }

    add(point) {
      const key = this.keyOf(point);
      const there = this.lists.get(key);
      if (there)
        there.push(point);
      else
        this.lists.set(key, [point]);
    }

    remove(point) {
      const there = this.lists.get(this.keyOf(point));
      const index = there ? there.indexOf(point) : -1;
      if (index >= 0)
        there.splice(index, 1);
    }
  }

  class HitGrid {
    constructor() {
      this.large = new Cells(cells);
      /** Made when it is asked for. */
      this.small = null;
    }

    /** @param {PointParts} point x and y are unit coordinates in the first copy of the world */
    add(point) {
      this.large.add(point);
      if (this.small)
        this.small.add(point);
    }

    remove(point) {
      this.large.remove(point);
      if (this.small)
        this.small.remove(point);
    }

    /** The cells that suit a search: never many of them, never a large one for a small circle. */
    cellsFor(radius) {
      if (radius * smallCells > 1)
        return this.large;
      if (!this.small) {
        this.small = new Cells(smallCells);
        this.large.lists.forEach(points => points.forEach(point => this.small.add(point)));
      }
      return this.small;
    }

    /**
     * Calls `visit` with the lists of points that together hold all points of a box in the first copy of the world, and
     * some more around it: in rows from north to south, so that the order is the same for every box.
     */
    visitBox(minX, minY, maxX, maxY, visit) {
      const firstColumn = Math.max(0, Math.floor(minX * cells));
      const lastColumn = Math.min(cells - 1, Math.floor(maxX * cells));
      const lastRow = Math.min(cells, rowOf(maxY));
      for (let row = Math.max(0, rowOf(minY)); row <= lastRow; ++row) {
        for (let column = firstColumn; column <= lastColumn; ++column) {
          const points = this.large.at(column, row);
          if (points)
            visit(points);
        }
      }
    }

    /**
     * The nearest of the points that are accepted; of several at the same place the one added last.
     * @param {number} x @param {number} y unit coordinates; x in any copy of the world
     * @param {number} radius how far a point may lie away, in units
     * @param {function(Object): boolean} accepts
     * @return {{point: ?Object, square: number}} square of its distance
     */
    nearest(x, y, radius, accepts) {
      const from = this.cellsFor(radius);
      const firstColumn = Math.floor((x - radius) * from.count);
      const columns = Math.min(from.count, Math.floor((x + radius) * from.count) - firstColumn + 1);
      const lastRow = Math.floor((y + radius) * from.count);
      const best = { point: null, square: radius * radius };
      for (let row = Math.floor((y - radius) * from.count); row <= lastRow; ++row) {
        for (let i = 0; i < columns; ++i)
          this.nearestOf(from.at(firstColumn + i, row) || [], x, y, accepts, best);
      }
      return best;
    }

    nearestOf(points, x, y, accepts, best) {
      for (let i = 0; i < points.length; ++i) {
        const point = points[i];
        const dx = point.x - x - Math.round(point.x - x);
        const dy = point.y - y;
        const square = dx * dx + dy * dy;
        if (square <= best.square && accepts(point)) {
          best.square = square;
          best.point = point;
        }
      }
    }
  }

  engine.HitGrid = HitGrid;
})();
