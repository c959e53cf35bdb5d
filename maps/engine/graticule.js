/** Meridians and parallels at a round step that suits the zoom, with their degrees where they cross. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Steps in degrees; the finest that leaves at least `leastPixels` between two meridians is drawn. */
  const steps = [1 / 60, 1 / 12, 1 / 6, 0.5, 1, 2, 5, 10, 30];
  const leastPixels = 110;
  /** The ink is that of the names on the water: how strongly lines and letters are drawn with it. */
  const strength = { lines: 0.32, text: 0.95 };

  function stepFor(scale) {
    return steps.find(step => step / 360 * scale >= leastPixels) || steps[steps.length - 1];
  }

  /** Degrees, and minutes where there are any: 2°E, 48°30'N. */
  function label(degrees, positive, negative) {
    const minutes = Math.round(Math.abs(degrees) * 60);
    const side = minutes === 0 ? '' : degrees > 0 ? positive : negative;
    const rest = minutes % 60;
    return `${Math.floor(minutes / 60)}°${rest ? `${rest < 10 ? '0' : ''}${rest}'` : ''}${side}`;
  }

  class Graticule {
    constructor() {
      this.colours = engine.baseColours();
    }

    paint(frame) {
      if (!this.colours.seaText)
        return;
      const step = stepFor(frame.scale);
      const context = frame.context;
      context.strokeStyle = context.fillStyle = this.colours.seaText;
      context.globalAlpha = strength.lines;
      context.lineWidth = 1;
      context.font = '10px sans-serif';
      const meridians = this.meridians(frame, step);
      const parallels = this.parallels(frame, step);
      context.beginPath();
      meridians.forEach(line => {
        context.moveTo(line.at, 0);
        context.lineTo(line.at, frame.height);
      });
      parallels.forEach(line => {
        context.moveTo(0, line.at);
        context.lineTo(frame.width, line.at);
      });
      context.stroke();
      context.globalAlpha = strength.text;
      this.write(frame, meridians, parallels);
    }

    meridians(frame, step) {
      const first = Math.ceil(engine.longitudeOf(frame.left / frame.scale) / step);
      const last = Math.floor(engine.longitudeOf((frame.left + frame.width) / frame.scale) / step);
      const lines = [];
      for (let i = first; i <= last; ++i) {
        const degrees = i * step;
        const turned = degrees - 360 * Math.round(degrees / 360);
        const at = half(engine.unitX(degrees) * frame.scale - frame.left);
        lines.push({ at: at, text: label(turned, 'E', 'W'), number: i });
      }
      return lines;
    }

    parallels(frame, step) {
      const limit = Math.floor(85 / step);
      const first = Math.max(-limit, Math.ceil(engine.latitudeOf((frame.top + frame.height) / frame.scale) / step));
      const last = Math.min(limit, Math.floor(engine.latitudeOf(frame.top / frame.scale) / step));
      const lines = [];
      for (let i = first; i <= last; ++i) {
        const at = half(engine.unitY(i * step) * frame.scale - frame.top);
        lines.push({ at: at, text: label(i * step, 'N', 'S'), number: i });
      }
      return lines;
    }

    /** On every second line, so that some stand in the view wherever the canvas lies. */
    write(frame, meridians, parallels) {
      const context = frame.context;
      meridians.forEach(meridian => parallels.forEach(parallel => {
        if (parallel.number % 2 === 0 && meridian.number % 2 !== 0)
          context.fillText(meridian.text, meridian.at + 3, parallel.at - 3);
        if (parallel.number % 2 !== 0 && meridian.number % 2 === 0)
          context.fillText(parallel.text, meridian.at + 3, parallel.at - 3);
      }));
    }
  }

  /** Lines of one pixel are sharp on half pixels. */
  function half(value) {
    return Math.floor(value) + 0.5;
  }

  engine.Graticule = Graticule;
})();
