/** The chart symbols: one look for each kind of marker, at three sizes by zoom. */
(function () {
  'use strict';

  const colours = { airport: '#1d3f8f', vor: '#1f5fa8', ndb: '#8a2f7e', route: '#2f4a38', terminal: '#5a6b73', vfr: '#b4402a' };

  const circle = (x, y, r) => `M ${x - r} ${y} A ${r} ${r} 0 1 1 ${x + r} ${y} A ${r} ${r} 0 1 1 ${x - r} ${y} Z`;
  const polygon = corners => `M ${corners.map(corner => corner.join(' ')).join(' L ')} Z`;
  const box = (w, h) => polygon([[-w, -h], [w, -h], [w, h], [-w, h]]);
  const hexagon = polygon([[-7, 0], [-3.5, -6], [3.5, -6], [7, 0], [3.5, 6], [-3.5, 6]]);
  const dot = circle(0, 0, 0.6);

  /** A ring of small dots, as charts draw a non-directional beacon. */
  function dotRing(radius, count) {
    const dots = [];
    for (let i = 0; i < count; ++i) {
      const angle = 2 * Math.PI * i / count;
      dots.push(circle(Number((radius * Math.cos(angle)).toFixed(2)), Number((radius * Math.sin(angle)).toFixed(2)), 0.5));
    }
    return dots.join(' ');
  }

  /** The three ears of a TACAN between the sides of its hexagon. */
  const ears = 'M -7 0 L -3.5 -6 L -6.5 -7.8 L -10 -1.8 Z M 7 0 L 3.5 -6 L 6.5 -7.8 L 10 -1.8 Z M -3.5 6 L 3.5 6 L 3.5 9.5 L -3.5 9.5 Z';

  /** path, colour of stroke, colour of fill (none: empty), weight, height in the drawing order */
  const designs = {
    airport: [`${circle(0, 0, 5.6)} M 0 -5.6 L 0 -9 M 0 5.6 L 0 9 M -5.6 0 L -9 0 M 5.6 0 L 9 0 M -3 3 L 3 -3`, colours.airport, '#ffffff', 1.9, 40],
    vor: [`${hexagon} ${dot}`, colours.vor, '#ffffff', 1.5, 30],
    vorDme: [`${box(8, 7)} ${hexagon} ${dot}`, colours.vor, '#ffffff', 1.5, 30],
    tacan: [`${hexagon} ${ears} ${dot}`, colours.vor, '#ffffff', 1.4, 30],
    dme: [`${box(6, 6)} ${dot}`, colours.vor, '#ffffff', 1.5, 30],
    ndbRoute: [`${circle(0, 0, 1.6)} ${dotRing(4.6, 9)} ${dotRing(7.6, 14)}`, colours.ndb, colours.ndb, 1, 25],
    ndbTerminal: [`${circle(0, 0, 1.6)} ${dotRing(4.8, 9)}`, colours.ndb, colours.ndb, 1, 24],
    waypointRoute: [polygon([[0, -5.6], [5.2, 3.6], [-5.2, 3.6]]), colours.route, '#ffffff', 1.3, 15],
    waypointRnav: [polygon([[0, -7], [1.8, -1.8], [7, 0], [1.8, 1.8], [0, 7], [-1.8, 1.8], [-7, 0], [-1.8, -1.8]]), colours.route, '#ffffff', 1.2, 15],
    waypointTerminal: [polygon([[0, -4.6], [4.3, 3], [-4.3, 3]]), colours.terminal, colours.terminal, 1, 10],
    waypointVfr: [polygon([[0, -5], [5, 0], [0, 5], [-5, 0]]), colours.vfr, '#ffe9df', 1.4, 12],
  };

  /**
   * From which zoom on symbols have which size: a whole country in view leaves each of them little room, and of the
   * thousands of waypoints no more than a dot.
   */
  const sizes = [
    { fromZoom: 8, scale: 1 },
    { fromZoom: 6.5, scale: 0.72 },
    { fromZoom: 5.5, scale: 0.48, dot: 1.3 },
    { fromZoom: 0, scale: 0.34, dot: 1 },
  ];

  function lookOf(name, size) {
    const [path, stroke, fill, weight, zIndex] = designs[name];
    const scale = size.scale;
    const icon = size.dot && name.indexOf('waypoint') === 0
      ? { path: circle(0, 0, size.dot), strokeColor: stroke, strokeWeight: 0, fillColor: stroke, fillOpacity: 0.6, scale: 1 }
      : { path: path, strokeColor: stroke, strokeWeight: weight * Math.sqrt(scale), fillColor: fill, fillOpacity: 1, scale: scale };
    return { icon: icon, zIndex: zIndex };
  }

  const looks = sizes.map(size => {
    const all = {};
    Object.keys(designs).forEach(name => {
      all[name] = lookOf(name, size);
    });
    return all;
  });

  /** @return {number} which of the sizes suits a zoom */
  page.symbolSize = zoom => sizes.findIndex(size => zoom >= size.fromZoom);

  /** @return {Object} how a marker is drawn: the same object for all markers of one symbol and size */
  page.symbolLook = (symbol, size) => looks[size][symbol];

  const bits = { vor: 1, tacan: 4, dme: 16 };

  /** @param {number} type a navaid type as the database has it: 1 VOR, 4 and 5 TACAN, 16 DME, 17 VOR with DME */
  page.vorSymbol = type => (type & bits.tacan ? 'tacan' : type === bits.dme ? 'dme' : type & bits.dme ? 'vorDme' : 'vor');
})();
