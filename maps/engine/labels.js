/** The texts of labels: how large they are and how they are written. A line break begins a new line. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Of the font's size: from one line to the next, and the part of it that letters fill. */
  const lineStep = 1.15;
  const rimPixels = 3;

  const texts = new WeakMap();
  /** For each font the widths of its letters, measured once: to measure every text would cost more than to place it. */
  const fonts = new Map();
  const ruler = document.createElement('canvas').getContext('2d');

  class LabelFont {
    constructor(name, size) {
      this.name = name;
      this.size = size;
      this.widths = new Map();
    }

    widthOf(text) {
      let width = 0;
      for (let i = 0; i < text.length; ++i) {
        const letter = text[i];
        let one = this.widths.get(letter);
        if (one === undefined) {
          ruler.font = this.name;
          one = ruler.measureText(letter).width;
          this.widths.set(letter, one);
        }
        width += one;
      }
      return width;
    }
  }

  function fontOf(label) {
    const size = label.fontSize || '11px';
    const name = `${label.fontWeight || 'normal'} ${size} ${label.fontFamily || 'sans-serif'}`;
    let font = fonts.get(name);
    if (!font) {
      font = new LabelFont(name, parseFloat(size));
      fonts.set(name, font);
    }
    return font;
  }

  /**
   * @param {{text: string, color: string, fontSize: string, fontWeight: string, fontFamily: string}} label
   * @return {{lines: string[], font: LabelFont, colour: string, width: number, height: number}} size in CSS pixels
   */
  engine.labelText = function (label) {
    let text = texts.get(label);
    if (!text) {
      const font = fontOf(label);
      const lines = String(label.text).split('\n');
      const width = Math.ceil(lines.reduce((most, line) => Math.max(most, font.widthOf(line)), 0));
      text = {
        lines: lines,
        font: font,
        colour: label.color || '#000',
        width: width,
        height: Math.ceil(lines.length * font.size * lineStep),
      };
      texts.set(label, text);
    }
    return text;
  };

  /**
   * Writes labels, each with a rim against whatever lies below.
   * @param {CanvasRenderingContext2D} context
   * @param {Array<{x: number, y: number, text: Object}>} labels
   * @param {string} rim its colour
   */
  engine.writeLabels = function (context, labels, rim) {
    context.textBaseline = 'middle';
    context.lineJoin = 'round';
    context.lineWidth = rimPixels;
    context.strokeStyle = rim;
    // A new font costs more than a label.
    const byFont = new Map();
    labels.forEach(label => {
      const there = byFont.get(label.text.font);
      if (there)
        there.push(label);
      else
        byFont.set(label.text.font, [label]);
    });
    byFont.forEach((some, font) => {
      context.font = font.name;
      some.forEach(label => writeLabel(context, label, font.size));
    });
    context.textBaseline = 'alphabetic';
  };

  function writeLabel(context, label, size) {
    const text = label.text;
    text.lines.forEach((line, i) => {
      const y = label.y + (i + 0.5) * size * lineStep;
      context.strokeText(line, label.x, y);
    });
    context.fillStyle = text.colour;
    text.lines.forEach((line, i) => context.fillText(line, label.x, label.y + (i + 0.5) * size * lineStep));
  }
})();
