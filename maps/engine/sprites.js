/** Pictures of symbols: a `google.maps.Symbol` (an SVG path with its colours) drawn once and copied ever after. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const cache = new WeakMap();
  /** Paths are read once: those few dozen of the page, and those of the airports that have runways of their own. */
  const shapes = new Map();
  /** More than one view shows. */
  const mostShapes = 500;

  /** The farthest reach of a path from its origin; numbers that are no coordinates only make it a little larger. */
  function pathReach(path) {
    return (path.match(/-?\d+(\.\d+)?/g) || []).reduce((most, text) => Math.max(most, Math.abs(Number(text))), 1);
  }

  function shapeOf(path) {
    let shape = shapes.get(path);
    if (!shape) {
      if (shapes.size >= mostShapes)
        shapes.clear();
      shape = { path: new Path2D(path), reach: pathReach(path) };
      shapes.set(path, shape);
    }
    return shape;
  }

  /** Makes a canvas empty and as large as wanted; a new size alone costs it new memory. */
  function clearCanvas(canvas, pixels) {
    if (canvas.width !== pixels)
      canvas.width = canvas.height = pixels;
    const context = canvas.getContext('2d');
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.clearRect(0, 0, pixels, pixels);
    return context;
  }

  /**
   * Draws a symbol on a canvas.
   * @param {google.maps.Symbol} symbol
   * @param {?HTMLCanvasElement} [used] a canvas whose picture may go; without it a new one is made
   * @return {Sprite} size in CSS pixels; the symbol's origin lies `middle` pixels from the left and the upper edge, the
   *     symbol reaches `radius` pixels around it
   */
  function drawSymbol(symbol, used) {
    const scale = symbol.scale || 1;
    const weight = symbol.strokeWeight === undefined ? 1 : symbol.strokeWeight;
    const shape = shapeOf(symbol.path);
    const radius = shape.reach * scale + weight / 2;
    const middle = Math.ceil(radius) + 1;
    const ratio = window.devicePixelRatio || 1;
    const canvas = used || document.createElement('canvas');
    const context = clearCanvas(canvas, Math.round(2 * middle * ratio));
    context.scale(ratio, ratio);
    context.translate(middle, middle);
    context.rotate((symbol.rotation || 0) * Math.PI / 180);
    context.scale(scale, scale);
    if (symbol.fillOpacity) {
      context.globalAlpha = symbol.fillOpacity;
      context.fillStyle = symbol.fillColor || '#000';
      context.fill(shape.path);
    }
    if (weight > 0) {
      context.globalAlpha = symbol.strokeOpacity === undefined ? 1 : symbol.strokeOpacity;
      context.strokeStyle = symbol.strokeColor || '#000';
      context.lineWidth = weight / scale;
      context.lineJoin = 'round';
      context.stroke(shape.path);
    }
    return { canvas: canvas, size: 2 * middle, middle: middle, radius: radius, ratio: ratio, isEmpty: !symbol.fillOpacity && weight <= 0 };
  }

  engine.drawSymbol = drawSymbol;

  /** The picture of a symbol that is used again and again; one drawing for each symbol object and screen. */
  engine.spriteOf = symbol => {
    let sprite = cache.get(symbol);
    if (!sprite || sprite.ratio !== (window.devicePixelRatio || 1)) {
      sprite = drawSymbol(symbol);
      cache.set(symbol, sprite);
    }
    return sprite;
  };
})();
