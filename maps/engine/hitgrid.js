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
  /** There are too many small cells for a list each: those far apart share one of about as many as there are points. */
  const mostSmallLists = 65536;
  const smallListsFor = points => Math.min(mostSmallLists, Math.pow(2, Math.ceil(Math.log2(points.length + 1))));

  class Cells {
    /**
     * @param {number} count cells around the world
     * @param {number} lists how many lists hold them
     * @param {PointParts[]} points
     */
    constructor(count, lists, points) {
      this.count = count;
      this.lists = lists;
      /** For each list where in the sorted points it starts. */
      this.starts = new Int32Array(lists + 1);
      this.points = this.sorted(points);
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

    /** The points by list; those of one keep their order. @param {PointParts[]} points */
    sorted(points) {
      const count = points.length;
      const starts = this.starts;
      const listOf = new Int32Array(count);
      for (let i = 0; i < count; ++i) {
        const list = this.listOf(points[i]);
        listOf[i] = list;
        ++starts[list + 1];
      }
      for (let list = 1; list <= this.lists; ++list)
        starts[list] += starts[list - 1];
      const next = new Int32Array(starts);
      const sorted = new Array(count);
      for (let i = 0; i < count; ++i)
        sorted[next[listOf[i]]++] = points[i];
      return sorted;
    }
  }

  class HitGrid {
    /** @param {PointParts[]} points x and y are unit coordinates of the first copy of the world */
    constructor(points) {
      this.all = points;
      this.forget();
    }

    /** To be called when the points have changed. */
    forget() {
      /** @type {?Cells} */
      this.large = null;
      /** @type {?Cells} */
      this.small = null;
    }

    largeOnes() {
      this.large = this.large || new Cells(largeCells, largeLists, this.all);
      return this.large;
    }

    smallOnes() {
      this.small = this.small || new Cells(smallCells, smallListsFor(this.all), this.all);
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
      if (!this.all.length || firstColumn > lastColumn)
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
      if (!this.all.length)
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
