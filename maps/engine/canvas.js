/**
 * A canvas under the moving part of the map. It reaches beyond the view on every side and is painted again only when
 * the view leaves it, the zoom changes or what it shows has changed: a pan mostly moves ready pixels.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** How far the canvas reaches beyond the view on each side, as a part of the view. */
  const reach = 0.25;

  /**
   * What a painter gets of an area: a context whose unit is the CSS pixel; scale, the pixels of the whole world's
   * width: unit coordinates times this minus left or top are pixels of the canvas; firstWorld and lastWorld, the copies
   * of the world in the canvas, 0 the first.
   */
  engine.frameOf = function (context, area) {
    const scale = engine.tileSize * Math.pow(2, area.zoom);
    return Object.assign({
      context: context,
      scale: scale,
      firstWorld: Math.floor(area.left / scale),
      lastWorld: Math.floor((area.left + area.width) / scale),
    }, area);
  };

  /** A drawing that fails is told on the console; it stops neither the others nor the move of the view. */
  engine.paintSafely = function (painter, frame) {
    frame.context.save();
    try {
      painter.paint(frame);
    } catch (error) {
      console.error(`${error} ${/** @type {Error} */ (error).stack}`);
    } finally {
      frame.context.restore();
    }
  };

  engine.ChartCanvas = L.Layer.extend({
    /**
     * @param {string} pane the Leaflet pane
     * @param {Array<{paint: function(Frame)}>} painters called in this order
     */
    initialize: function (pane, painters) {
      L.setOptions(this, { pane: pane });
      this.painters = painters;
      this.area = { zoom: NaN };
      this.next = new engine.NextFrame(() => this.paint());
    },

    onAdd: function (leaflet) {
      this.leaflet = leaflet;
      this.canvas = L.DomUtil.create('canvas', 'chart-canvas', this.getPane());
      this.invalidate();
    },

    getEvents: function () {
      return { move: this.follow, resize: this.paint };
    },

    /** Something shown has changed: paint with the next frame, once for all changes until then. */
    invalidate: function () {
      this.next.ask();
    },

    /**
     * Another zoom: what else is told of it may change what is shown, so the painting waits for the end of the script.
     */
    paintAfterScript: function () {
      if (this.waiting)
        return;
      this.waiting = true;
      Promise.resolve().then(() => {
        this.waiting = false;
        this.paint();
      });
    },

    /** The view in pixels of the whole world at this zoom. */
    view: function () {
      const corner = this.leaflet.containerPointToLayerPoint([0, 0]).add(this.leaflet.getPixelOrigin());
      const size = this.leaflet.getSize();
      return { left: corner.x, top: corner.y, width: size.x, height: size.y, zoom: this.leaflet.getZoom() };
    },

    follow: function () {
      const view = this.view();
      const area = this.area;
      if (area.zoom !== view.zoom) {
        this.paintAfterScript();
        return;
      }
      const inside = view.left >= area.left && view.top >= area.top
        && view.left + view.width <= area.left + area.width && view.top + view.height <= area.top + area.height;
      if (inside)
        this.place();
      else
        this.paint();
    },

    place: function () {
      const corner = L.point(this.area.left, this.area.top);
      L.DomUtil.setPosition(this.canvas, corner.subtract(this.leaflet.getPixelOrigin()));
    },

    paint: function () {
      this.next.cancel();
      const view = this.view();
      const spareX = Math.ceil(view.width * reach);
      const spareY = Math.ceil(view.height * reach);
      this.area = {
        zoom: view.zoom,
        left: view.left - spareX,
        top: view.top - spareY,
        width: view.width + 2 * spareX,
        height: view.height + 2 * spareY,
      };
      this.place();
      const frame = this.frame();
      this.painters.forEach(painter => engine.paintSafely(painter, frame));
    },

    /**
     * Paints over what stands there already.
     * @param {function(Frame)} paint not called when everything is about to be painted anyway
     */
    paintMore: function (paint) {
      if (!this.next.asked)
        engine.paintSafely({ paint: paint }, this.frame(true));
    },

    /** @param {boolean} keep whether the picture stays */
    frame: function (keep) {
      const area = this.area;
      const ratio = window.devicePixelRatio || 1;
      const width = Math.round(area.width * ratio);
      const height = Math.round(area.height * ratio);
      const isNew = this.canvas.width !== width || this.canvas.height !== height;
      if (isNew) {
        this.canvas.width = width;
        this.canvas.height = height;
        this.canvas.style.width = `${area.width}px`;
        this.canvas.style.height = `${area.height}px`;
      }
      const context = this.canvas.getContext('2d');
      context.setTransform(ratio, 0, 0, ratio, 0, 0);
      // A canvas of a new size is empty.
      if (!keep && !isNew)
        context.clearRect(0, 0, area.width, area.height);
      return engine.frameOf(context, area);
    },
  });
})();
