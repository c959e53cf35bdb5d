/** The room of what stands beside a track's lines, kept by discs as large as a text is high. */
(function () {
  'use strict';

  /** Pixels. */
  const size = 13;
  page.discSize = size;

  /** The middles of discs that cover a box along a direction: what stands on the map is kept apart by them. */
  page.discsAlong = function (x, y, width, angle) {
    const count = Math.max(1, Math.ceil(width / size));
    const discs = [];
    for (let i = 0; i < count; ++i) {
      const along = (i + 0.5) / count * width - width / 2;
      discs.push({ x: x + along * Math.cos(angle), y: y + along * Math.sin(angle) });
    }
    return discs;
  };

  /** Pixels: what is longer is no runway but a row of the data without its other end. */
  const longest = 20000;

  /** From one pixel to another, the shorter way round the world. */
  page.wayBetween = function (projection, from, to) {
    const world = projection.getWorldWidth();
    const x = to.x - from.x;
    return { x: x - world * Math.round(x / world), y: to.y - from.y };
  };

  /** The middles of discs from one place to another; none where it is too far. */
  page.discsBetween = function (projection, from, to) {
    const start = projection.fromLatLngToDivPixel(from);
    const way = page.wayBetween(projection, start, projection.fromLatLngToDivPixel(to));
    const length = Math.hypot(way.x, way.y);
    return length > longest ? []
      : page.discsAlong(start.x + way.x / 2, start.y + way.y / 2, length, Math.atan2(way.y, way.x));
  };

  /** The middles of discs that cover a circle. */
  page.discsAround = function (middle, reach) {
    const discs = [];
    for (let x = -reach; x <= reach; x += size) {
      for (let y = -reach; y <= reach; y += size) {
        if (Math.hypot(x, y) <= reach)
          discs.push({ x: middle.x + x, y: middle.y + y });
      }
    }
    return discs;
  };

  /** Keeps discs apart, by cells as large as a disc. */
  class Room {
    constructor() {
      /** @type {Map<string, Spot[]>} */
      this.cells = new Map();
    }

    /** @param {Spot[]} discs */
    take(discs) {
      discs.forEach(disc => {
        const key = `${Math.floor(disc.x / size)},${Math.floor(disc.y / size)}`;
        if (!this.cells.has(key))
          this.cells.set(key, []);
        this.cells.get(key).push(disc);
      });
    }

    /** Whether nothing stands where a disc would. @param {Spot} disc */
    isFree(disc) {
      const column = Math.floor(disc.x / size);
      const row = Math.floor(disc.y / size);
      for (let i = column - 1; i <= column + 1; ++i) {
        for (let k = row - 1; k <= row + 1; ++k) {
          const there = this.cells.get(`${i},${k}`) || [];
          if (there.some(other => Math.abs(disc.x - other.x) < size && Math.abs(disc.y - other.y) < size))
            return false;
        }
      }
      return true;
    }
  }

  page.Room = Room;
})();
