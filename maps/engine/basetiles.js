/**
 * What lies under the chart, in square canvases. A zoom paints those in view; a pan moves ready pixels, and the
 * canvases around the view are painted before it gets there, a few with each frame.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** CSS pixels of a canvas's side. */
  const side = 256;
  /** How many canvases around the view are made ready. */
  const ring = 1;
  /** What may go to them of one frame, milliseconds. One is painted in any case. */
  const spareTime = 2;
  /** Of the canvases in use, how many more wait for their next use. */
  const spareCanvases = 0.5;

  engine.BaseTiles = L.Layer.extend({
    /**
     * @param {string} pane the Leaflet pane
     * @param {Array<{paint: function(Frame)}>} painters called in this order for each canvas; what they paint at a
     *     place depends on nothing but the place and the zoom, so that neighbours fit
     */
    initialize: function (pane, painters) {
      L.setOptions(this, { pane: pane });
      this.painters = painters;
      this.tiles = new Map();
      this.unused = [];
      this.zoom = NaN;
      this.ratio = NaN;
      this.leaflet = null;
      this.frame = new engine.NextFrame(() => this.update());
    },

    onAdd: function (leaflet) {
      this.leaflet = leaflet;
      this.box = L.DomUtil.create('div', 'base-tiles', this.getPane());
      this.later();
    },

    onRemove: function () {
      this.frame.cancel();
      this.drop(() => true);
      this.keepFew();
      this.box.remove();
      this.leaflet = null;
    },

    getEvents: function () {
      return { move: this.update, resize: this.update };
    },

    /** Something shown has changed: everything is painted anew with the next frame. */
    invalidate: function () {
      this.tiles.forEach(tile => {
        tile.painted = false;
      });
      this.later();
    },

    later: function () {
      if (this.leaflet)
        this.frame.ask();
    },

    update: function () {
      this.frame.cancel();
      const inView = this.range(0);
      const around = this.range(ring);
      const zoom = this.leaflet.getZoom();
      const ratio = window.devicePixelRatio || 1;
      if (zoom !== this.zoom || ratio !== this.ratio)
        this.drop(() => true);
      this.zoom = zoom;
      this.ratio = ratio;
      this.drop(tile => !contains(around, tile, 1));
      this.place();
      let painted = 0;
      this.each(inView, tile => {
        painted += this.paint(tile) ? 1 : 0;
      });
      this.paintAround(around, painted === 0);
      this.keepFew();
    },

    /** @param {boolean} now whether this frame has time for it; what is left waits for the next */
    paintAround: function (range, now) {
      const end = window.performance.now() + spareTime;
      let time = now;
      let waiting = false;
      this.each(range, tile => {
        if (tile.painted)
          return;
        waiting = !time;
        if (time) {
          this.paint(tile);
          time = window.performance.now() < end;
        }
      });
      if (waiting)
        this.later();
    },

    /** The columns and rows of the view with some more around. Above and below the world there is nothing. */
    range: function (more) {
      const corner = this.leaflet.containerPointToLayerPoint([0, 0]).add(this.leaflet.getPixelOrigin());
      const size = this.leaflet.getSize();
      const index = value => Math.floor(value / side);
      return {
        left: index(corner.x) - more,
        right: index(corner.x + Math.max(0, size.x - 1)) + more,
        top: index(corner.y) - more,
        bottom: index(corner.y + Math.max(0, size.y - 1)) + more,
      };
    },

    each: function (range, use) {
      for (let row = range.top; row <= range.bottom; ++row)
        for (let column = range.left; column <= range.right; ++column)
          use(this.tileAt(column, row));
    },

    tileAt: function (column, row) {
      const key = `${column} ${row}`;
      let tile = this.tiles.get(key);
      if (!tile) {
        tile = { column: column, row: row, canvas: this.canvas(), painted: false };
        this.tiles.set(key, tile);
        this.placeOne(tile);
      }
      return tile;
    },

    canvas: function () {
      const canvas = this.unused.pop() || L.DomUtil.create('canvas', 'chart-canvas');
      const pixels = Math.round(side * this.ratio);
      if (canvas.width !== pixels) {
        canvas.width = canvas.height = pixels;
        canvas.style.width = canvas.style.height = `${side}px`;
      }
      canvas.style.visibility = 'hidden';
      this.box.appendChild(canvas);
      return canvas;
    },

    drop: function (unwanted) {
      this.tiles.forEach((tile, key) => {
        if (!unwanted(tile))
          return;
        this.tiles.delete(key);
        this.box.removeChild(tile.canvas);
        this.unused.push(tile.canvas);
      });
    },

    /** What a larger window has needed goes, its pixels at once: the engine collects rubbish in its own time. */
    keepFew: function () {
      this.unused.splice(Math.floor(this.tiles.size * spareCanvases)).forEach(canvas => {
        canvas.width = canvas.height = 0;
      });
    },

    /** Leaflet counts from an origin of its own, which it moves with each new view. */
    place: function () {
      const origin = this.leaflet.getPixelOrigin();
      if (this.origin && this.origin.equals(origin))
        return;
      this.origin = origin;
      this.tiles.forEach(tile => this.placeOne(tile));
    },

    placeOne: function (tile) {
      L.DomUtil.setPosition(tile.canvas, L.point(tile.column * side, tile.row * side).subtract(this.origin));
    },

    /** @return {boolean} whether there was something to do */
    paint: function (tile) {
      if (tile.painted)
        return false;
      tile.painted = true;
      const ratio = tile.canvas.width / side;
      const context = tile.canvas.getContext('2d');
      context.setTransform(ratio, 0, 0, ratio, 0, 0);
      context.clearRect(0, 0, side, side);
      const frame = engine.frameOf(context, {
        zoom: this.zoom, left: tile.column * side, top: tile.row * side, width: side, height: side });
      this.painters.forEach(painter => engine.paintSafely(painter, frame));
      tile.canvas.style.visibility = '';
      return true;
    },
  });

  function contains(range, tile, more) {
    return tile.column >= range.left - more && tile.column <= range.right + more
      && tile.row >= range.top - more && tile.row <= range.bottom + more;
  }
})();
