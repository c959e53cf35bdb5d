/** Lines and points of a map in one pile, the lower `zIndex` first, at the same height lines before points. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  class Stack {
    /** @param {Array<{heights: function(): number[], paintHeight: function(Frame, number)}>} parts */
    constructor(parts) {
      this.parts = parts;
    }

    paint(frame) {
      const heights = new Set();
      this.parts.forEach(part => part.heights().forEach(height => heights.add(height)));
      Array.from(heights).sort((a, b) => a - b).forEach(height =>
        this.parts.forEach(part => part.paintHeight(frame, height)));
    }
  }

  engine.Stack = Stack;
})();
