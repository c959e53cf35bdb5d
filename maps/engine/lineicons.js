/** What lies on and in lines besides their stroke: symbols along the line, and the filled area of a closed one. */
(function () {
  'use strict';
  const engine = window.mapEngine;
  const shapes = new Map();

  function shapeOf(path) {
    let shape = shapes.get(path);
    if (!shape) {
      shape = new Path2D(path);
      shapes.set(path, shape);
    }
    return shape;
  }

  /** '30px' or '50%' of the line's length, in pixels; what is neither is 0. */
  function pixelsOf(text, length) {
    const value = parseFloat(text);
    if (!isFinite(value))
      return 0;
    return /%$/.test(text) ? value / 100 * length : value;
  }

  /** Draws a symbol, whose path points upwards, in the direction of a piece of line. */
  function drawIcon(context, icon, x, y, angle) {
    const scale = icon.scale || 1;
    const weight = icon.strokeWeight === undefined ? 1 : icon.strokeWeight;
    const shape = shapeOf(icon.path);
    context.save();
    context.translate(x, y);
    context.rotate(angle + Math.PI / 2 + (icon.rotation || 0) * Math.PI / 180);
    context.scale(scale, scale);
    if (icon.fillOpacity) {
      context.globalAlpha = icon.fillOpacity;
      context.fillStyle = icon.fillColor || '#000';
      context.fill(shape);
    }
    if (weight > 0 && icon.strokeOpacity !== 0) {
      context.globalAlpha = icon.strokeOpacity === undefined ? 1 : icon.strokeOpacity;
      context.strokeStyle = icon.strokeColor || '#000';
      context.lineWidth = weight / scale;
      context.stroke(shape);
    }
    context.restore();
  }

  function paintSequence(frame, line, sequence, emitRun) {
    const length = line.geometry.length() * frame.scale;
    const offset = pixelsOf(sequence.offset || '100%', length);
    const repeat = pixelsOf(sequence.repeat, length);
    line.geometry.runs.forEach(run => {
      const before = run.start * frame.scale;
      emitRun(frame, run, line.geometry.geodesic, (x1, y1, x2, y2, behind) => {
        const piece = Math.hypot(x2 - x1, y2 - y1);
        const start = before + behind;
        const angle = Math.atan2(y2 - y1, x2 - x1);
        let at = offset;
        if (repeat > 0 && at < start)
          at += Math.ceil((start - at) / repeat) * repeat;
        for (; at >= start && at < start + piece; at += repeat) {
          const part = (at - start) / piece;
          drawIcon(frame.context, sequence.icon, x1 + part * (x2 - x1), y1 + part * (y2 - y1), angle);
          if (!(repeat > 0))
            break;
        }
      });
    });
  }

  /**
   * Paints the symbols of a line.
   * @param emitRun tells the pieces of a run that lie in the frame
   */
  engine.paintIcons = (frame, line, emitRun) => {
    const context = frame.context;
    context.lineJoin = 'round';
    context.lineCap = 'butt';
    (line.icons || []).forEach(sequence => paintSequence(frame, line, sequence, emitRun));
  };

  /** Fills a closed line. The pages fill nothing of more than a few points, so its one run is all. */
  engine.fillArea = (frame, line) => {
    const run = line.geometry.runs[0];
    if (!line.fillOpacity || !run)
      return;
    const context = frame.context;
    context.globalAlpha = line.fillOpacity;
    context.fillStyle = line.fillColor;
    for (let world = frame.firstWorld - 1; world <= frame.lastWorld; ++world) {
      const ring = [];
      run.xs.forEach((x, i) => ring.push((x + world) * frame.scale - frame.left, run.ys[i] * frame.scale - frame.top));
      const inside = engine.clipRing(ring, -2, -2, frame.width + 2, frame.height + 2);
      context.beginPath();
      for (let i = 0; i < inside.length; i += 2)
        context.lineTo(inside[i], inside[i + 1]);
      context.fill();
    }
    context.globalAlpha = 1;
  };
})();
