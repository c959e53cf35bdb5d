/** Finds the drawn point under the mouse among any number of them, by cells of one degree of longitude. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const cells = 360;

  class HitGrid {
    /** @param {Array<{x: number, y: number}>} points unit coordinates, those drawn later behind those drawn before */
    constructor(points) {
      this.byCell = new Map();
      points.forEach(point => {
        const key = this.key(Math.floor(point.x * cells), Math.floor(point.y * cells));
        const there = this.byCell.get(key);
        if (there)
          there.push(point);
        else
          this.byCell.set(key, [point]);
      });
    }

    key(column, row) {
      return row * cells + (column % cells + cells) % cells;
    }

    /**
     * @param {number} x @param {number} y unit coordinates; x in any copy of the world
     * @param {number} radius how far a point may lie away, in units
     * @return {?Object} the nearest point; of several at the same place the one drawn last
     */
    nearest(x, y, radius) {
      const columns = Math.min(cells, Math.floor((x + radius) * cells) - Math.floor((x - radius) * cells) + 1);
      const firstColumn = Math.floor((x - radius) * cells);
      const lastRow = Math.floor((y + radius) * cells);
      let best = null;
      let least = radius * radius;
      for (let row = Math.floor((y - radius) * cells); row <= lastRow; ++row) {
        for (let i = 0; i < columns; ++i) {
          (this.byCell.get(this.key(firstColumn + i, row)) || []).forEach(point => {
            const dx = point.x - x - Math.round(point.x - x);
            const distance = dx * dx + (point.y - y) * (point.y - y);
            if (distance <= least && (distance < least || !best || point.order >= best.order)) {
              least = distance;
              best = point;
            }
          });
        }
      }
      return best;
    }
  }

  engine.HitGrid = HitGrid;
})();
