/**
 * Finds points by their places: what lies in a box and what is next to a place among any number. The points stand in
 * the order of their cells, those of a row one behind the other. They are sorted when somebody asks for the first time
 * after a change: to sort all of them takes less than to keep them sorted while they come one by one.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Cells around the world: of two degrees of longitude, and smaller ones for what is next to a near place. */
  const largeCells = 180;
  const smallCells = 32 * largeCells;
  /** Lists of large cells: one for each, and a row for what lies on the southern limit. */
  const largeLists = largeCells * (largeCells + 1);
  /** There are too many small cells for a list each: those far apart share one. */
  const smallLists = 65536;

  class Cells {
    /** @param {number} count cells around the world @param {number} lists how many lists hold them */
    constructor(count, lists) {
      this.count = count;
      this.lists = lists;
      /** The points by list, and for each list where in them it starts. */
      this.points = [];
      this.starts = new Int32Array(lists + 1);
    }

    /** The list of a cell; the column in any copy of the world. */
    listAt(column, row) {
      return (row * this.count + (column % this.count + this.count) % this.count) % this.lists;
    }

    /** A point at 180 degrees east stands in the last column. */
    listOf(point) {
      return (Math.floor(point.y * this.count) * this.count
        + Math.min(this.count - 1, Math.floor(point.x * this.count))) % this.lists;
    }

    /** Points of one list keep their order. @param {Set<PointParts>} points */
    sort(points) {
      const starts = this.starts.fill(0);
      const listOf = new Int32Array(points.size);
      let i = 0;
      points.forEach(point => {
        const list = this.listOf(point);
        listOf[i++] = list;
        ++starts[list + 1];
      });
      for (let list = 1; list <= this.lists; ++list)
        starts[list] += starts[list - 1];
      const next = new Int32Array(starts);
      const sorted = new Array(points.size);
      i = 0;
      points.forEach(point => {
        sorted[next[listOf[i++]]++] = point;
      });
      this.points = sorted;
    }
  }

  class HitGrid {
    /** @param {Set<PointParts>} points x and y are unit coordinates of the first copy of the world */
    constructor(points) {
      this.all = points;
      this.large = null;
      this.small = null;
      this.forget();
    }

    /** To be called when the points have changed. */
    forget() {
      this.isLargeSorted = false;
      this.isSmallSorted = false;
    }

    largeOnes() {
      this.large = this.large || new Cells(largeCells, largeLists);
      if (!this.isLargeSorted)
        this.large.sort(this.all);
      this.isLargeSorted = true;
      return this.large;
    }

    smallOnes() {
      this.small = this.small || new Cells(smallCells, smallLists);
      if (!this.isSmallSorted)
        this.small.sort(this.all);
      this.isSmallSorted = true;
      return this.small;
    }

    /**
     * Where the points of a box in the first copy of the world stand, with some more around it: a run of the sorted
     * points for each row of cells. Rows go from north to south, so that the order is the same for every box.
     * @return {{points: Object[], runs: number[]}} of each run the first and behind the last
     */
    inBox(minX, minY, maxX, maxY) {
      const firstColumn = Math.max(0, Math.floor(minX * largeCells));
      const lastColumn = Math.min(largeCells - 1, Math.floor(maxX * largeCells));
      const lastRow = Math.min(largeCells, Math.floor(maxY * largeCells));
      const runs = [];
      if (!this.all.size || firstColumn > lastColumn)
        return { points: [], runs: runs };
      const cells = this.largeOnes();
      for (let row = Math.max(0, Math.floor(minY * largeCells)); row <= lastRow; ++row)
        runs.push(cells.starts[cells.listAt(firstColumn, row)], cells.starts[cells.listAt(lastColumn, row) + 1]);
      return { points: cells.points, runs: runs };
    }

    /**
     * The nearest of the points that are accepted; of several at the same place the one added last.
     * @param {number} x @param {number} y unit coordinates; x in any copy of the world
     * @param {number} radius how far a point may lie away, in units
     * @param {function(Object): boolean} accepts
     * @return {{point: ?Object, square: number}} square of its distance
     */
    nearest(x, y, radius, accepts) {
      const best = { point: null, square: radius * radius };
      if (!this.all.size)
        return best;
      // Never many cells, never a large one for a small circle.
      const cells = radius * smallCells > 1 ? this.largeOnes() : this.smallOnes();
      const firstColumn = Math.floor((x - radius) * cells.count);
      const columns = Math.min(cells.count, Math.floor((x + radius) * cells.count) - firstColumn + 1);
      const lastRow = Math.min(cells.count, Math.floor((y + radius) * cells.count));
      for (let row = Math.max(0, Math.floor((y - radius) * cells.count)); row <= lastRow; ++row) {
        for (let i = 0; i < columns; ++i)
          nearestOf(cells, cells.listAt(firstColumn + i, row), x, y, accepts, best);
      }
      return best;
    }
  }

  function nearestOf(cells, list, x, y, accepts, best) {
    const points = cells.points;
    const end = cells.starts[list + 1];
    for (let i = cells.starts[list]; i < end; ++i) {
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

  engine.HitGrid = HitGrid;
})();
