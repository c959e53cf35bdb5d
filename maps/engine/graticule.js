/**
 * Meridians and parallels at a round step that suits the zoom, with their degrees, minutes and seconds on the view's
 * edges.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** Steps in degrees; the finest that leaves at least `leastPixels` between two meridians is drawn. */
  const steps = [1 / 720, 1 / 360, 1 / 120, 1 / 60, 1 / 30, 1 / 12, 1 / 6, 0.5, 1, 2, 5, 10, 30];
  const leastPixels = 110;
  /**
   * From this latitude on the projection stretches the way between parallels so far that a view may lie between two of
   * them: there they have a finer step, a part of the other.
   */
  const polar = 60;
  /** The projection ends a little farther: this one is drawn whatever the step before it. */
  const lastParallel = 85;
  /** The ink is that of the names on the water; lines are drawn with so much of it. */
  const lineStrength = 0.32;

  /** CSS pixels: the strips that the labels stand in, and what they leave free for the map's controls. */
  const strip = { height: 16, width: 76 };
  const corners = { right: 60, top: 20, bottom: 60 };

  function stepFor(scale) {
    return steps.find(step => step / 360 * scale >= leastPixels) || steps[steps.length - 1];
  }

  const isWhole = value => Math.abs(value - Math.round(value)) < 1e-6;
  const isLast = latitude => Math.abs(Math.abs(latitude) - lastParallel) < 1e-6;

  /**
   * The step of the parallels about a latitude: the same wherever the view lies, for the map is painted in squares.
   */
  function parallelStepAt(latitude, scale) {
    const step = stepFor(scale);
    if (Math.abs(latitude) < polar)
      return step;
    const stretched = scale / Math.cos(latitude * Math.PI / 180);
    return steps.find(each => isWhole(step / each) && each / 360 * stretched >= leastPixels) || step;
  }

  /** @param {number} value */
  const two = value => `${value < 10 ? '0' : ''}${value}`;

  /** Degrees, and minutes and seconds where the step has any: 2°E, 48°30'N, 48°30'05"N. */
  function label(degrees, positive, negative, step) {
    const seconds = Math.round(Math.abs(degrees) * 3600);
    const side = seconds % 648000 === 0 ? '' : degrees > 0 ? positive : negative;
    const minutesText = step < 1 ? `${two(Math.floor(seconds / 60) % 60)}'` : '';
    const secondsText = step < 1 / 60 ? `${two(seconds % 60)}"` : '';
    return `${Math.floor(seconds / 3600)}°${minutesText}${secondsText}${side}`;
  }

  /** Lines of one pixel are sharp on half pixels; counted from the world's edge, so that neighbours agree. */
  function half(unit, scale, origin) {
    return Math.floor(unit * scale) + 0.5 - Math.round(origin);
  }

  /** @return {Array<{at: number, text: string}>} pixels from the area's left edge */
  function meridians(area, scale) {
    const step = stepFor(scale);
    const lines = [];
    const last = Math.floor(engine.longitudeOf((area.left + area.width) / scale) / step);
    for (let i = Math.ceil(engine.longitudeOf(area.left / scale) / step); i <= last; ++i) {
      const turned = i * step - 360 * Math.round(i * step / 360);
      lines.push({ at: half(engine.unitX(i * step), scale, area.left), text: label(turned, 'E', 'W', step) });
    }
    return lines;
  }

  /** @return {Array<{at: number, text: string}>} pixels from the area's upper edge */
  function parallels(area, scale) {
    const north = Math.min(lastParallel, engine.latitudeOf(area.top / scale));
    const south = Math.max(-lastParallel, engine.latitudeOf((area.top + area.height) / scale));
    const finest = parallelStepAt(Math.max(Math.abs(north), Math.abs(south)), scale);
    const lines = [];
    const add = (latitude, step) =>
      lines.push({ at: half(engine.unitY(latitude), scale, area.top), text: label(latitude, 'N', 'S', step) });
    steps.filter(step => step >= finest && step <= stepFor(scale)).forEach(step => {
      for (let i = Math.ceil(south / step); i <= Math.floor(north / step); ++i) {
        if (!isLast(i * step) && parallelStepAt(i * step, scale) === step)
          add(i * step, step);
      }
    });
    [north, south].filter(isLast).forEach(latitude => add(latitude, parallelStepAt(latitude, scale)));
    return lines;
  }

  /** The lines, as a painter of the base map. */
  class Graticule {
    constructor() {
      this.colours = engine.baseColours();
    }

    paint(frame) {
      if (!this.colours.seaText)
        return;
      const context = frame.context;
      context.strokeStyle = this.colours.seaText;
      context.globalAlpha = lineStrength;
      context.lineWidth = 1;
      context.beginPath();
      // A line on the very edge of a canvas belongs to it or to its neighbour, and the halves of it to both.
      const area = Object.assign({}, frame, {
        left: frame.left - 1, width: frame.width + 2, top: frame.top - 1, height: frame.height + 2 });
      meridians(area, frame.scale).forEach(line => {
        context.moveTo(line.at - 1, 0);
        context.lineTo(line.at - 1, frame.height);
      });
      parallels(area, frame.scale).forEach(line => {
        context.moveTo(0, line.at - 1);
        context.lineTo(frame.width, line.at - 1);
      });
      context.stroke();
    }
  }

  const font = '10px "DejaVu Sans", "Segoe UI", sans-serif';
  /** CSS pixels around a label's text. */
  const rim = 2;
  /** More labels than many views have. */
  const mostPictures = 200;
  /** Half the height of a label's digits. */
  const letterHalf = 5;
  const ruler = document.createElement('canvas').getContext('2d');

  /** @return {{canvas: HTMLCanvasElement, width: number, height: number}} CSS pixels, with the rim */
  function pictureOf(text, colours) {
    ruler.font = font;
    const picture = {
      canvas: document.createElement('canvas'),
      width: Math.ceil(ruler.measureText(text).width) + 2 * rim,
      height: strip.height,
    };
    const context = engine.clearPicture(picture.canvas, picture);
    if (colours.placeRim)
      engine.drawRim(context, picture, letters => write(letters, text, colours.placeRim));
    write(context, text, colours.seaText);
    return picture;
  }

  function write(context, text, colour) {
    context.font = font;
    context.textBaseline = 'middle';
    context.fillStyle = colour;
    context.fillText(text, rim, strip.height / 2);
  }

  /**
   * The labels: longitudes along the upper edge of the view, latitudes along the left one. They do not move with it;
   * one that would stand on something of the chart stays away.
   */
  engine.GraticuleLabels = L.Layer.extend({
    initialize: function () {
      this.colours = engine.baseColours();
      this.pictures = new Map();
      /** What the chart has written, as Declutter tells it. */
      this.room = null;
      /** The texts that stand on the view's edges. */
      this.shown = [];
      this.next = new engine.NextFrame(() => this.write());
    },

    onAdd: function (leaflet) {
      this.leaflet = leaflet;
      this.top = L.DomUtil.create('canvas', 'graticule-labels', leaflet.getContainer());
      this.side = L.DomUtil.create('canvas', 'graticule-labels', leaflet.getContainer());
      this.next.ask();
    },

    onRemove: function () {
      this.next.cancel();
      this.top.remove();
      this.side.remove();
    },

    getEvents: function () {
      return { move: this.write, resize: this.write };
    },

    write: function () {
      this.next.cancel();
      const corner = this.leaflet.containerPointToLayerPoint([0, 0]).add(this.leaflet.getPixelOrigin());
      const size = this.leaflet.getSize();
      const scale = engine.tileSize * Math.pow(2, this.leaflet.getZoom());
      const area = { left: corner.x, top: corner.y, width: size.x, height: size.y, zoom: this.leaflet.getZoom() };
      this.area = area;
      this.shown = [];
      const along = this.context(this.top, size.x, strip.height);
      meridians(area, scale).filter(line => line.at > strip.width / 2 && line.at < size.x - corners.right)
        .forEach(line => this.text(along, line.text, line.at, strip.height / 2 + 1, 0.5));
      const beside = this.context(this.side, strip.width, size.y);
      parallels(area, scale).filter(line => line.at > corners.top && line.at < size.y - corners.bottom)
        .forEach(line => this.text(beside, line.text, 4, line.at, 0));
    },

    context: function (canvas, width, height) {
      const ratio = window.devicePixelRatio || 1;
      if (canvas.width !== Math.round(width * ratio) || canvas.height !== Math.round(height * ratio)) {
        canvas.width = Math.round(width * ratio);
        canvas.height = Math.round(height * ratio);
        canvas.style.width = `${width}px`;
        canvas.style.height = `${height}px`;
      }
      const context = canvas.getContext('2d');
      context.setTransform(ratio, 0, 0, ratio, 0, 0);
      context.clearRect(0, 0, width, height);
      return context;
    },

    /** @param {number} part of the text's width that lies left of x */
    text: function (context, text, x, y, part) {
      if (!this.colours.seaText)
        return;
      const picture = this.picture(text);
      const left = x - rim - part * (picture.width - 2 * rim);
      const area = this.area;
      if (this.room && this.room.coverAt(area.zoom, area.left + left, area.top + y - letterHalf, picture.width,
        2 * letterHalf) > 0)
        return;
      this.shown.push(text);
      context.drawImage(picture.canvas, Math.round(left), Math.round(y - strip.height / 2), picture.width,
        picture.height);
    },

    /** A text with its rim is dear to draw, and a map that follows an aircraft moves all the time: drawn once. */
    picture: function (text) {
      const ratio = window.devicePixelRatio || 1;
      if (this.drawnIn !== this.colours || this.drawnFor !== ratio || this.pictures.size > mostPictures)
        this.pictures.clear();
      this.drawnIn = this.colours;
      this.drawnFor = ratio;
      let picture = this.pictures.get(text);
      if (!picture) {
        picture = pictureOf(text, this.colours);
        this.pictures.set(text, picture);
      }
      return picture;
    },
  });

  engine.Graticule = Graticule;
})();
