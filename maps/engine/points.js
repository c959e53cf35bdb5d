/** The points of all data layers of a map: paints each as a copy of its symbol's sprite, and finds them by place. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** A point answers the mouse this many pixels around its middle. */
  const touchPixels = 10;

  class Points {
    constructor() {
      this.layers = new Set();
      this.forget();
    }

    show(layer) {
      this.layers.add(layer);
      this.forget();
    }

    hide(layer) {
      this.layers.delete(layer);
      this.forget();
    }

    /** A layer has changed: the order of drawing and the grid are made anew when they are asked for. */
    forget() {
      this.ordered = null;
      this.grid = null;
    }

    /** The points by their zIndex; within one they stand as they were added. @return {Map<number, Array>} */
    byHeight() {
      if (this.ordered)
        return this.ordered;
      const found = new Map();
      this.layers.forEach(layer => layer.features.forEach(feature => {
        const height = feature.look.zIndex || 0;
        const level = found.get(height);
        if (level)
          level.push(feature);
        else
          found.set(height, [feature]);
      }));
      this.ordered = found;
      return found;
    }

    /** @return {number[]} the zIndex values that occur */
    heights() {
      return Array.from(this.byHeight().keys());
    }

    /** The points that answer the mouse, in the order of drawing. */
    touchable() {
      const levels = this.heights().sort((a, b) => a - b).map(height => this.byHeight().get(height));
      const all = [].concat.apply([], levels).filter(feature => feature.look.clickable !== false);
      all.forEach((feature, order) => {
        feature.order = order;
      });
      return all;
    }

    /** @return the point nearest to a place in unit coordinates, or null when none is near enough to be meant */
    nearest(x, y, scale) {
      if (!this.grid)
        this.grid = new engine.HitGrid(this.touchable());
      return this.grid.nearest(x, y, touchPixels / scale);
    }

    /** @param {number} height the zIndex of the points to paint */
    paintHeight(frame, height) {
      const points = this.byHeight().get(height) || [];
      const labels = [];
      for (let world = frame.firstWorld; world <= frame.lastWorld; ++world)
        this.paintWorld(frame, points, frame.left - world * frame.scale, labels);
      this.write(frame, labels);
    }

    paintWorld(frame, points, left, labels) {
      const context = frame.context;
      const scale = frame.scale;
      const top = frame.top;
      for (let i = 0; i < points.length; ++i) {
        const point = points[i];
        const x = point.x * scale - left;
        const y = point.y * scale - top;
        const sprite = point.sprite;
        const middle = sprite.middle;
        if (x < -middle || y < -middle || x > frame.width + middle || y > frame.height + middle)
          continue;
        const pixelX = Math.round(x) - middle;
        const pixelY = Math.round(y) - middle;
        context.drawImage(sprite.canvas, pixelX, pixelY, sprite.size, sprite.size);
        if (point.look.label)
          labels.push({ x: pixelX + sprite.size, y: pixelY + middle, label: point.look.label });
      }
    }

    /** Labels stand right of their symbols, with a light rim against whatever lies below. */
    write(frame, labels) {
      const context = frame.context;
      context.textBaseline = 'middle';
      context.lineJoin = 'round';
      context.lineWidth = 3;
      context.strokeStyle = 'rgba(255, 255, 255, 0.85)';
      labels.forEach(item => {
        context.font = `${item.label.fontWeight || 'normal'} ${item.label.fontSize || '11px'} sans-serif`;
        context.strokeText(item.label.text, item.x, item.y);
        context.fillStyle = item.label.color || '#000';
        context.fillText(item.label.text, item.x, item.y);
      });
      context.textBaseline = 'alphabetic';
    }
  }

  engine.Points = Points;
})();
