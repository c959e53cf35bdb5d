/**
 * The keys of the map: the arrows move it, plus and minus zoom, a page or an end of a line moves it by most of a view.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** What an arrow moves, in pixels, and what a page moves, as a part of the view. */
  const arrow = 80;
  const leap = 0.75;
  /** The part of the way still to go that each frame covers, and the least of it in pixels. */
  const pace = 0.35;
  const leastStep = 2;
  /** Degrees: no key takes the view's middle farther north or south, where the projection ends and nothing is drawn. */
  const farthest = 85;

  /** @type {Record<number, function(L.Point): [number, number]>} */
  const moves = {
    33: size => [0, -leap * size.y],
    34: size => [0, leap * size.y],
    35: size => [leap * size.x, 0],
    36: size => [-leap * size.x, 0],
    37: () => [-arrow, 0],
    38: () => [0, -arrow],
    39: () => [arrow, 0],
    40: () => [0, arrow],
  };

  /**
   * The keys of plus and minus, of the block of figures and of the rest, as browsers number them.
   * @type {Record<number, boolean>}
   */
  const inwards = { 61: true, 107: true, 171: true, 187: true, 109: false, 173: false, 189: false };

  /** Glides: each press lengthens the way, each frame goes a part of it, whole pixels at a time. */
  class Glide {
    /** @param {L.Map} leaflet */
    constructor(leaflet) {
      this.leaflet = leaflet;
      this.x = 0;
      this.y = 0;
      this.running = false;
    }

    /**
     * @param {number} x
     * @param {number} y
     */
    add(x, y) {
      this.x += Math.round(x);
      this.y += Math.round(y);
      if (this.running)
        return;
      this.running = true;
      this.next();
    }

    stop() {
      this.x = this.y = 0;
    }

    /** @param {number} way */
    part(way) {
      const step = Math.max(leastStep, Math.ceil(Math.abs(way) * pace));
      return Math.abs(way) <= step ? way : Math.sign(way) * step;
    }

    /**
     * As much of a way to the south, in pixels, as stays on the drawn world. A view that is beyond it already may come
     * back.
     * @param {number} way
     */
    cut(way) {
      const leaflet = this.leaflet;
      const middle = leaflet.project(leaflet.getCenter()).y;
      const edge = leaflet.project([way < 0 ? farthest : -farthest, 0]).y;
      return way < 0 ? Math.min(0, Math.max(way, Math.ceil(edge - middle)))
        : Math.max(0, Math.min(way, Math.floor(edge - middle)));
    }

    next() {
      this.y = this.cut(this.y);
      const x = this.part(this.x);
      const y = this.part(this.y);
      this.x -= x;
      this.y -= y;
      if (x || y)
        this.leaflet.panBy([x, y], { animate: false });
      this.running = !!(this.x || this.y);
      if (this.running)
        window.requestAnimationFrame(() => this.next());
    }
  }

  /**
   * Keys that go to a field of the page, and those with a modifier, are not the map's.
   * @param {ChartMap} map
   * @param {KeyboardEvent} event
   */
  function isForMap(map, event) {
    const target = /** @type {Node} */ (event.target);
    return map.options.keyboardShortcuts !== false && !event.defaultPrevented
      && !event.altKey && !event.ctrlKey && !event.metaKey
      && (target === document.body || target === document.documentElement || map.element.contains(target));
  }

  engine.listenToKeys = map => {
    const glide = new Glide(map.leaflet);
    map.element.tabIndex = 0;
    // The drag of the map keeps the press from giving the focus by itself.
    map.element.addEventListener('mousedown', event => {
      if (event.target === map.element || /** @type {Node} */ (event.target).nodeName === 'CANVAS')
        map.element.focus();
      glide.stop();
    });
    document.addEventListener('keydown', event => {
      if (!isForMap(map, event))
        return;
      const move = moves[event.keyCode];
      if (move)
        glide.add(...move(map.leaflet.getSize()));
      else if (inwards[event.keyCode] !== undefined)
        map.setZoom(engine.nextZoom(map.getZoom(), inwards[event.keyCode]));
      else
        return;
      event.preventDefault();
    });
  };
})();
