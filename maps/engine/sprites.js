/** Pictures of symbols: a `google.maps.Symbol` (an SVG path with its colours) drawn once and copied ever after. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const cache = new WeakMap();

  /** The farthest reach of a path from its origin; numbers that are no coordinates only make it a little larger. */
  function pathReach(path) {
    return (path.match(/-?\d+(\.\d+)?/g) || []).reduce((most, text) => Math.max(most, Math.abs(Number(text))), 1);
  }

  /**
   * Draws a symbol on a canvas of its own.
   * @return {{canvas: HTMLCanvasElement, size: number, middle: number}} size in CSS pixels; the symbol's origin lies
   *     `middle` pixels from the left and the upper edge
   */
  function drawSymbol(symbol) {
    const scale = symbol.scale || 1;
    const weight = symbol.strokeWeight === undefined ? 1 : symbol.strokeWeight;
    const radius = pathReach(symbol.path) * scale + weight / 2;
    const middle = Math.ceil(radius) + 1;
    const ratio = window.devicePixelRatio || 1;
    const canvas = document.createElement('canvas');
    canvas.width = canvas.height = 2 * middle * ratio;
    const context = canvas.getContext('2d');
    context.scale(ratio, ratio);
    context.translate(middle, middle);
    context.rotate((symbol.rotation || 0) * Math.PI / 180);
    context.scale(scale, scale);
    const path = new Path2D(symbol.path);
    if (symbol.fillOpacity) {
      context.globalAlpha = symbol.fillOpacity;
      context.fillStyle = symbol.fillColor || '#000';
      context.fill(path);
    }
    if (weight > 0) {
      context.globalAlpha = symbol.strokeOpacity === undefined ? 1 : symbol.strokeOpacity;
      context.strokeStyle = symbol.strokeColor || '#000';
      context.lineWidth = weight / scale;
      context.lineJoin = 'round';
      context.stroke(path);
    }
    return { canvas: canvas, size: 2 * middle, middle: middle };
  }

  engine.drawSymbol = drawSymbol;

  /** The picture of a symbol that is used again and again; one drawing for each symbol object. */
  engine.spriteOf = symbol => {
    let sprite = cache.get(symbol);
    if (!sprite) {
      sprite = drawSymbol(symbol);
      cache.set(symbol, sprite);
    }
    return sprite;
  };
})();
