/** Lines and points of a map in one pile, the lower `zIndex` first, at the same height lines before points. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  class Stack {
    /**
     * @param {HeightPainter[]} parts those that have `begin` or `end` are told of the frame before and after all
     *     painting
     */
    constructor(parts) {
      this.parts = parts;
    }

    paint(frame) {
      const heights = new Set();
      this.tell('begin', frame);
      this.parts.forEach(part => part.heights().forEach(height => heights.add(height)));
      Array.from(heights).sort((a, b) => a - b).forEach(height =>
        this.parts.forEach(part => part.paintHeight(frame, height)));
      this.tell('end', frame);
    }

    tell(name, frame) {
      this.parts.filter(part => typeof part[name] === 'function').forEach(part => part[name](frame));
    }
  }

  engine.Stack = Stack;
})();
