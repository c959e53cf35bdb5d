/** Keeps points by cells of one degree of longitude: what lies in a box and what is next to a place among any number. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const cells = 360;

  /** A point at 180 degrees east stands in the last column. */
  const columnOf = x => Math.min(cells - 1, Math.floor(x * cells));
  const rowOf = y => Math.floor(y * cells);

  class HitGrid {
    constructor() {
      this.byCell = new Map();
    }

    key(column, row) {
      return row * cells + (column % cells + cells) % cells;
    }

    /** @param {{x: number, y: number}} point unit coordinates in the first copy of the world */
    add(point) {
      const key = this.key(columnOf(point.x), rowOf(point.y));
      const there = this.byCell.get(key);
      if (there)
        there.push(point);
      else
        this.byCell.set(key, [point]);
    }

    remove(point) {
      const there = this.byCell.get(this.key(columnOf(point.x), rowOf(point.y)));
      const index = there ? there.indexOf(point) : -1;
      if (index >= 0)
        there.splice(index, 1);
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
          const points = this.byCell.get(row * cells + column);
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
      const firstColumn = Math.floor((x - radius) * cells);
      const columns = Math.min(cells, Math.floor((x + radius) * cells) - firstColumn + 1);
      const lastRow = rowOf(y + radius);
      const best = { point: null, square: radius * radius };
      for (let row = rowOf(y - radius); row <= lastRow; ++row) {
        for (let i = 0; i < columns; ++i)
          this.nearestOf(this.byCell.get(this.key(firstColumn + i, row)) || [], x, y, accepts, best);
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
