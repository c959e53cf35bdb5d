/** The texts of labels: how large they are and how they are written. A line break begins a new line. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Of the font's size: from one line to the next, and the part of it that letters fill. */
  const lineStep = 1.15;
  const rimPixels = 3;

  /** How far the copies of a text that make its rim lie beside it, pixels, and how dense each of them is. */
  const rimSteps = [-1, 0, 1];
  const rimDensity = 0.5;

  const texts = new WeakMap();
  /**
   * For each font its letters' widths, measured once, and their rims, drawn once: to measure a text costs more than to
   * place it, and to draw the outline of one takes the time of a hundred copies.
   */
  const fonts = new Map();
  const stamp = document.createElement('canvas');

  class LabelFont {
    constructor(name, size) {
      this.name = name;
      this.size = size;
      this.widths = new Map();
      this.rims = new Map();
      this.rimKey = '';
      // One of its own: to set a font takes longer than to measure a letter.
      this.ruler = document.createElement('canvas').getContext('2d');
      this.ruler.font = name;
    }

    widthOfLetter(letter) {
      let width = this.widths.get(letter);
      if (width === undefined) {
        width = this.ruler.measureText(letter).width;
        this.widths.set(letter, width);
      }
      return width;
    }

    widthOf(text) {
      let width = 0;
      for (let i = 0; i < text.length; ++i)
        width += this.widthOfLetter(text[i]);
      return width;
    }

    /** Copies the rims of a text's letters; `y` is their middle. */
    drawRim(context, text, x, y, colour) {
      const ratio = window.devicePixelRatio || 1;
      if (this.rimKey !== `${colour} ${ratio}`) {
        this.rims.clear();
        this.rimKey = `${colour} ${ratio}`;
      }
      let left = x;
      for (let i = 0; i < text.length; ++i) {
        let rim = this.rims.get(text[i]);
        if (!rim) {
          rim = this.makeRim(text[i], colour, ratio);
          this.rims.set(text[i], rim);
        }
        context.drawImage(rim.canvas, left - rim.left, y - rim.top, rim.width, rim.height);
        left += this.widthOfLetter(text[i]);
      }
    }

    makeRim(letter, colour, ratio) {
      const canvas = document.createElement('canvas');
      const width = Math.ceil(this.widthOfLetter(letter)) + 2 * rimPixels;
      const height = Math.ceil(this.size * 1.5) + 2 * rimPixels;
      canvas.width = Math.round(width * ratio);
      canvas.height = Math.round(height * ratio);
      const context = canvas.getContext('2d');
      context.scale(ratio, ratio);
      context.font = this.name;
      context.textBaseline = 'middle';
      context.lineJoin = 'round';
      context.lineWidth = rimPixels;
      context.strokeStyle = colour;
      context.strokeText(letter, rimPixels, height / 2);
      return { canvas: canvas, left: rimPixels, top: height / 2, width: width, height: height };
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

  /** @return {CanvasRenderingContext2D} of the canvas, now empty and as large as the picture, in CSS pixels */
  engine.clearPicture = function (canvas, picture) {
    const ratio = window.devicePixelRatio || 1;
    canvas.width = Math.round(picture.width * ratio);
    canvas.height = Math.round(picture.height * ratio);
    const context = canvas.getContext('2d');
    context.setTransform(ratio, 0, 0, ratio, 0, 0);
    return context;
  };

  /**
   * Surrounds a text that is going to be written by copies of it: the outline of letters takes longer to draw than all
   * of these.
   * @param {{width: number, height: number}} picture the size of the context's canvas
   * @param {function(CanvasRenderingContext2D): void} write the text in the rim's colour
   */
  engine.drawRim = function (context, picture, write) {
    write(engine.clearPicture(stamp, picture));
    context.globalAlpha = rimDensity;
    rimSteps.forEach(x => rimSteps.forEach(y => {
      if (x || y)
        context.drawImage(stamp, x, y, picture.width, picture.height);
    }));
    context.globalAlpha = 1;
  };

  /**
   * @param {{text: string, color: string, fontSize: string, fontWeight: string, fontFamily: string}} label
   * @return {LabelText} size in CSS pixels
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

  /** The first line of a text alone; null for a text that has no other. */
  engine.firstLine = function (text) {
    if (text.first === undefined) {
      text.first = text.lines.length < 2 ? null : Object.assign({}, text, {
        lines: text.lines.slice(0, 1),
        width: Math.ceil(text.font.widthOf(text.lines[0])),
        height: Math.ceil(text.font.size * lineStep),
      });
    }
    return text.first;
  };

  /**
   * Writes labels, each with a rim against whatever lies below.
   * @param {CanvasRenderingContext2D} context
   * @param {PlacedLabel[]} labels
   * @param {string} rim its colour
   */
  engine.writeLabels = function (context, labels, rim) {
    context.textBaseline = 'middle';
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
      some.forEach(label => writeLabel(context, label, rim));
    });
    context.textBaseline = 'alphabetic';
  };

  function writeLabel(context, label, rim) {
    const text = label.text;
    const middleOf = line => label.y + (line + 0.5) * text.font.size * lineStep;
    text.lines.forEach((line, i) => text.font.drawRim(context, line, label.x, middleOf(i), rim));
    context.fillStyle = text.colour;
    text.lines.forEach((line, i) => context.fillText(line, label.x, middleOf(i)));
  }
})();
