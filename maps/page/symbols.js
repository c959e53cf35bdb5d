/** The chart symbols: one look for each kind of marker, at several sizes by zoom. */
(function () {
  'use strict';

  const white = '#ffffff';
  const blue = '#1d3f8f';
  const navaidBlue = '#1f5fa8';
  const purple = '#8a2f7e';
  const green = '#2f4a38';
  const grey = '#5a6b73';
  const red = '#b4402a';

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
      dots.push(circle(rounded(radius * Math.cos(angle)), rounded(radius * Math.sin(angle)), 0.5));
    }
    return dots.join(' ');
  }

  const dot = circle(0, 0, 0.6);
  const beacon = circle(0, 0, 1.6);
  const nearBeacon = `${beacon} ${dotRing(4.8, 9)}`;
  const farBeacon = `${beacon} ${dotRing(4.6, 9)} ${dotRing(7.6, 14)}`;
  const triangle = polygon([0, -5.6], [5.2, 3.6], [-5.2, 3.6]);
  const smallTriangle = polygon([0, -4.6], [4.3, 3], [-4.3, 3]);
  const diamond = polygon([0, -5], [5, 0], [0, 5], [-5, 0]);
  const hexagon = polygon([-7, 0], [-3.5, -6], [3.5, -6], [7, 0], [3.5, 6], [-3.5, 6]);
  const ears = [
    polygon([-7, 0], [-3.5, -6], [-6.5, -7.8], [-10, -1.8]),
    polygon([7, 0], [3.5, -6], [6.5, -7.8], [10, -1.8]),
    polygon([-3.5, 6], [3.5, 6], [3.5, 9.5], [-3.5, 9.5]),
  ].join(' ');
  const aerodrome = `${circle(0, 0, 5.6)} ` +
    lines([0, -5.6, 0, -9], [0, 5.6, 0, 9], [-5.6, 0, -9, 0], [5.6, 0, 9, 0], [-3, 3, 3, -3]);
  const star = polygon([0, -7], [1.8, -1.8], [7, 0], [1.8, 1.8], [0, 7], [-1.8, 1.8], [-7, 0], [-1.8, -1.8]);

  /**
   * zIndex: what is rarer and more wanted lies over the rest.
   * @type {Record<string, {path: string, stroke: string, weight: number, fill: string, zIndex: number}>}
   */
  const designs = {
    airport: { path: aerodrome, stroke: blue, weight: 1.9, fill: white, zIndex: 40 },
    vor: { path: `${hexagon} ${dot}`, stroke: navaidBlue, weight: 1.5, fill: white, zIndex: 30 },
    vorDme: { path: `${box(8, 7)} ${hexagon} ${dot}`, stroke: navaidBlue, weight: 1.5, fill: white, zIndex: 30 },
    tacan: { path: `${hexagon} ${ears} ${dot}`, stroke: navaidBlue, weight: 1.4, fill: white, zIndex: 30 },
    dme: { path: `${box(6, 6)} ${dot}`, stroke: navaidBlue, weight: 1.5, fill: white, zIndex: 30 },
    ndbRoute: { path: farBeacon, stroke: purple, weight: 1, fill: purple, zIndex: 25 },
    ndbTerminal: { path: nearBeacon, stroke: purple, weight: 1, fill: purple, zIndex: 24 },
    waypointRoute: { path: triangle, stroke: green, weight: 1.3, fill: white, zIndex: 15 },
    waypointRnav: { path: star, stroke: green, weight: 1.2, fill: white, zIndex: 15 },
    waypointVfr: { path: diamond, stroke: red, weight: 1.4, fill: '#ffe9df', zIndex: 12 },
    waypointTerminal: { path: smallTriangle, stroke: grey, weight: 1, fill: grey, zIndex: 10 },
  };

  /**
   * From which zoom on symbols have which size: a whole country in view leaves each of them little room, and of the
   * thousands of waypoints no more than a dot of so many pixels.
   */
  const sizes = [
    { fromZoom: 8, scale: 1 },
    { fromZoom: 6.5, scale: 0.72 },
    { fromZoom: 5.5, scale: 0.48, dot: 1.3 },
    { fromZoom: 0, scale: 0.34, dot: 1 },
  ];

  /**
   * A `google.maps.Symbol`.
   * @param {string} fill a colour; the more options are scale, rotation and fillOpacity
   */
  page.symbol = function (path, stroke, weight, fill, more) {
    /** @type {google.maps.Symbol} */
    const symbol = { path: path, strokeColor: stroke, strokeWeight: weight, fillColor: fill, fillOpacity: 1 };
    return Object.assign(symbol, more);
  };

  /** @type {(name: string, size: {scale: number, dot?: number}) => google.maps.Data.StyleOptions} */
  function lookOf(name, size) {
    const design = designs[name];
    const weight = design.weight * Math.sqrt(size.scale);
    const icon = size.dot && name.indexOf('waypoint') === 0
      ? page.symbol(circle(0, 0, size.dot), design.stroke, 0, design.stroke, { fillOpacity: 0.6 })
      : page.symbol(design.path, design.stroke, weight, design.fill, { scale: size.scale });
    return { icon: icon, zIndex: design.zIndex };
  }

  const looks = sizes.map(size => {
    /** @type {Record<string, google.maps.Data.StyleOptions>} */
    const all = {};
    Object.keys(designs).forEach(name => {
      all[name] = lookOf(name, size);
    });
    return all;
  });

  /** @return {number} which of the sizes suits a zoom */
  page.symbolSize = zoom => sizes.findIndex(size => zoom >= size.fromZoom);

  /** How a marker is drawn: the same object for all markers of one symbol and size. */
  page.symbolLook = (symbol, size) => looks[size][symbol];

  const bits = { tacan: 4, dme: 16 };

  /**
   * @param {number} type a navaid type as the database has it: 1 VOR, 4 and 5 TACAN, 16 DME, 17 VOR with DME
   * @return {string} the symbol; that of a VOR for all other types
   */
  page.vorSymbol = function (type) {
    if (type & bits.tacan)
      return 'tacan';
    if (type === bits.dme)
      return 'dme';
    return type & bits.dme ? 'vorDme' : 'vor';
  };
})();
