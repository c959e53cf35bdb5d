/** The chart symbols: the form of each kind, its colours, and what lies over what. */
(function () {
  'use strict';

  // Paths are in pixels around the position, y downwards.
  /** @typedef {(...numbers: number[]) => string} Shape */
  /** @typedef {(...points: number[][]) => string} Outline */
  /** @param {number} value */
  const rounded = value => Number(value.toFixed(2));
  /** @type {Shape} x, y, radius */
  const circle = (x, y, r) => `M ${x - r} ${y} A ${r} ${r} 0 1 1 ${x + r} ${y} A ${r} ${r} 0 1 1 ${x - r} ${y} Z`;
  /** @type {Outline} each corner as x, y */
  const polygon = (...corners) => `M ${corners.map(corner => corner.join(' ')).join(' L ')} Z`;
  /** @type {Shape} half the width, half the height */
  const box = (w, h) => polygon([-w, -h], [w, -h], [w, h], [-w, h]);
  /** @type {Outline} each line as x, y of its two ends */
  const lines = (...ends) => ends.map(([x1, y1, x2, y2]) => `M ${x1} ${y1} L ${x2} ${y2}`).join(' ');

  /**
   * A ring of small dots, as charts draw a non-directional beacon.
   * @type {(radius: number, count: number) => string}
   */
  function dotRing(radius, count) {
    const dots = [];
    for (let i = 0; i < count; ++i) {
      const angle = 2 * Math.PI * i / count;
      dots.push(circle(rounded(radius * Math.cos(angle)), rounded(radius * Math.sin(angle)), 0.4));
    }
    return dots.join(' ');
  }

  const point = circle(0, 0, 0.6);
  const nearRing = `${circle(0, 0, 1.5)} ${dotRing(4.4, 10)}`;
  /** The square of a DME around the dots of an NDB: lines, which have no inside to be filled. */
  const openBox = lines([-9.4, -9.4, 9.4, -9.4], [9.4, -9.4, 9.4, 9.4], [9.4, 9.4, -9.4, 9.4], [-9.4, 9.4, -9.4, -9.4]);
  const ticks = lines([0, -5.2, 0, -8.4], [0, 5.2, 0, 8.4], [-5.2, 0, -8.4, 0], [5.2, 0, 8.4, 0]);
  const aerodrome = `${circle(0, 0, 5.2)} ${ticks}`;
  const hexagon = polygon([-7, 0], [-3.5, -6], [3.5, -6], [7, 0], [3.5, 6], [-3.5, 6]);
  /** The three blocks of a VORTAC are solid: their outlines and what the pen leaves open between them. */
  const blocks = [
    polygon([-7.4, -0.7], [-3.9, -6.7], [-6.3, -8.1], [-9.8, -2.1]),
    polygon([7.4, -0.7], [3.9, -6.7], [6.3, -8.1], [9.8, -2.1]),
    polygon([-3.5, 6.8], [3.5, 6.8], [3.5, 9.6], [-3.5, 9.6]),
    lines([-6.8, -3.4, -5.1, -6.2], [6.8, -3.4, 5.1, -6.2], [-2.5, 8.2, 2.5, 8.2]),
  ].join(' ');
  const threeArms = polygon([-3.5, -6], [3.5, -6], [6.3, -7.6], [9.8, -1.6], [7, 0], [3.5, 6], [3.5, 9.2], [-3.5, 9.2],
    [-3.5, 6], [-7, 0], [-9.8, -1.6], [-6.3, -7.6]);
  const star = polygon([0, -5], [1.3, -1.3], [5, 0], [1.3, 1.3], [0, 5], [-1.3, 1.3], [-5, 0], [-1.3, -1.3]);

  /**
   * The colours are names of `page.palette`. What is rarer and more wanted has the higher zIndex: it lies over the
   * rest, and its label is placed first.
   * @typedef {{path: string, stroke: Colour, weight: number, fill?: Colour, zIndex: number}} Design
   * @type {Record<string, Design>}
   */
  const designs = {
    airport: { path: aerodrome, stroke: 'airport', weight: 1.7, fill: 'airportFill', zIndex: 40 },
    vor: { path: `${hexagon} ${point}`, stroke: 'navaid', weight: 1.5, fill: 'navaidFill', zIndex: 30 },
    vorDme: { path: `${box(7.6, 6.8)} ${hexagon} ${point}`, stroke: 'navaid', weight: 1.4, fill: 'navaidFill', zIndex: 31 },
    vortac: { path: `${hexagon} ${blocks} ${point}`, stroke: 'navaid', weight: 1.4, fill: 'navaidFill', zIndex: 31 },
    tacan: { path: `${threeArms} ${point}`, stroke: 'navaid', weight: 1.4, fill: 'navaidFill', zIndex: 29 },
    dme: { path: `${box(5.6, 5.6)} ${point}`, stroke: 'navaid', weight: 1.5, fill: 'navaidFill', zIndex: 28 },
    dmeNdb: { path: box(9.4, 9.4), stroke: 'navaid', weight: 1.4, zIndex: 28 },
    ndbRoute: { path: `${nearRing} ${dotRing(7.2, 16)}`, stroke: 'ndb', weight: 1, fill: 'ndb', zIndex: 25 },
    ndbDmeRoute: {
      path: `${nearRing} ${dotRing(7.2, 16)} ${openBox}`, stroke: 'ndb', weight: 1, fill: 'ndb', zIndex: 26,
    },
    ndbDmeTerminal: { path: `${nearRing} ${openBox}`, stroke: 'ndb', weight: 1, fill: 'ndb', zIndex: 24 },
    ndbTerminal: { path: nearRing, stroke: 'ndb', weight: 1, fill: 'ndb', zIndex: 24 },
    waypointRoute: {
      path: polygon([0, -5.2], [4.8, 3.3], [-4.8, 3.3]), stroke: 'waypoint', weight: 1.3, fill: 'waypointFill', zIndex: 16,
    },
    waypointRnav: { path: star, stroke: 'waypoint', weight: 1.2, fill: 'waypointFill', zIndex: 15 },
    waypointVfr: {
      path: polygon([0, -4.6], [4.6, 0], [0, 4.6], [-4.6, 0]), stroke: 'waypointVfr', weight: 1.3, fill: 'waypointVfrFill',
      zIndex: 12,
    },
    waypointTerminal: {
      path: polygon([0, -4.2], [3.9, 2.7], [-3.9, 2.7]), stroke: 'waypointTerminal', weight: 1, fill: 'waypointTerminal',
      zIndex: 10,
    },
  };

  /** What stands for symbols from afar, by the colour of their lines: a small sign, or a dot of so many pixels. */
  const smallHexagon = polygon([-3.6, 0], [-1.8, -3.1], [1.8, -3.1], [3.6, 0], [1.8, 3.1], [-1.8, 3.1]);
  /** @type {Record<string, {path: string, weight: number, isOpen: boolean}>} */
  const signs = {
    airport: { path: circle(0, 0, 2.6), weight: 1.4, isOpen: true },
    navaid: { path: smallHexagon, weight: 0.8, isOpen: false },
  };
  /** @type {Record<string, {radius: number, opacity: number}>} */
  const dots = {
    airport: { radius: 1.5, opacity: 1 },
    navaid: { radius: 1.8, opacity: 1 },
    ndb: { radius: 1.3, opacity: 0.8 },
    waypoint: { radius: 1, opacity: 0.7 },
    waypointVfr: { radius: 1, opacity: 0.7 },
    waypointTerminal: { radius: 1, opacity: 0.7 },
  };

  /**
   * A `google.maps.Symbol`.
   * @param {string} fill a colour; the more options are scale, rotation and fillOpacity
   */
  page.symbol = function (path, stroke, weight, fill, more) {
    /** @type {google.maps.Symbol} */
    const symbol = { path: path, strokeColor: stroke, strokeWeight: weight, fillColor: fill, fillOpacity: 1 };
    return Object.assign(symbol, more);
  };

  /** @type {(colours: Palette, design: Design) => string} */
  const filled = (colours, design) => (design.fill ? colours[design.fill] : 'none');

  /**
   * How the forms of a design are drawn.
   * @type {Record<SymbolForm, (design: Design, scale: number, path: string) => google.maps.Symbol>}
   */
  const forms = {
    dot: design => {
      const colour = page.palette[design.stroke];
      const dot = dots[design.stroke];
      return page.symbol(circle(0, 0, dot.radius), colour, 0, colour, { fillOpacity: dot.opacity });
    },
    sign: (design, scale, path) => {
      const sign = signs[design.stroke];
      if (!sign)
        return forms.symbol(design, scale, path);
      const colour = page.palette[design.stroke];
      return page.symbol(sign.path, colour, sign.weight, sign.isOpen ? filled(page.palette, design) : colour);
    },
    symbol: (design, scale, path) => page.symbol(path || design.path, page.palette[design.stroke],
      rounded(design.weight * Math.sqrt(scale)), filled(page.palette, design),
      { scale: scale, fillOpacity: design.fill ? 1 : 0 }),
  };

  /**
   * Pixels: from the middle of a symbol of its own size to its lower end, and from there to the middle of the letters.
   */
  const lowerEnd = 9;
  const toLetters = 8;

  /**
   * The map service writes a label on its symbol unless it is told another place, in the symbol's own measure: below
   * it. The map engine finds a place of its own.
   * @param {google.maps.Symbol} symbol
   */
  page.labelledBelow = function (symbol) {
    symbol.labelOrigin = new google.maps.Point(0, rounded(lowerEnd + toLetters / (symbol.scale || 1)));
    return symbol;
  };

  /** @type {Record<string, google.maps.Symbol>} */
  let made = {};
  page.onPalette(() => {
    made = {};
  });

  /** @type {(name: string, form: SymbolForm, scale: number, path: string) => google.maps.Symbol} */
  const newSymbol = (name, form, scale, path) => page.labelledBelow(forms[form](designs[name], scale, path));

  /**
   * That of a marker with a path of its own, which keeps the last one alone: there are thousands of airports, each with
   * its runways, and each is drawn in all scales in the course of time.
   * @type {(marker: ChartMarker, scale: number) => google.maps.Symbol}
   */
  function ownSymbol(marker, scale) {
    const key = `${page.palette.name} ${scale} ${marker.path}`;
    if (!marker.own || marker.own.key !== key)
      marker.own = { key: key, symbol: newSymbol(marker.symbol, 'symbol', scale, marker.path) };
    return marker.own.symbol;
  }

  /**
   * The symbol of a marker: the same object for all markers that look alike, which is drawn once. The scale is that of
   * the full symbol.
   */
  page.symbolOf = function (marker, form, scale) {
    if (marker.path && form === 'symbol')
      return ownSymbol(marker, scale);
    const key = `${marker.symbol} ${form} ${scale}`;
    return made[key] || (made[key] = newSymbol(marker.symbol, form, scale, ''));
  };

  /** @return {number} which of two symbols at one place lies above: that of the higher number */
  page.symbolHeight = name => designs[name].zIndex;

  /** @return {string} the colour of a symbol's lines and of its label */
  page.symbolColour = name => page.palette[designs[name].stroke];

  const bits = { vor: 1, tacan: 4, dme: 16 };

  /**
   * @param {number} type a navaid type as the database has it, a sum of 1 VOR, 4 TACAN, 16 DME
   * @return {string} the symbol; that of a VOR for all other types
   */
  page.vorSymbol = function (type) {
    if (type & bits.tacan)
      return type & bits.vor ? 'vortac' : 'tacan';
    if (type === bits.dme)
      return 'dme';
    return type & bits.dme ? 'vorDme' : 'vor';
  };

  page.shapes = { circle: circle, polygon: polygon, lines: lines, rounded: rounded };
})();
