/** Airways by level: "L" low, "H" high, "B" both. */
(function () {
  'use strict';

  /** @type {Record<string, Colour>} */
  const colours = { L: 'airwayLow', H: 'airwayHigh', B: 'airwayBoth' };
  /** @type {Array<{level: string, line: google.maps.Polyline}>} */
  const routes = [];
  /** @type {Record<string, boolean>} */
  const shown = {};

  /** @param {string} level */
  const colourOf = level => page.palette[colours[level] || 'airwayOther'];

  /** Opens a new route; what `page.addToAirway` brings next belongs to it. */
  page.openAirway = function (level) {
    const line = new google.maps.Polyline({
      strokeColor: colourOf(level),
      strokeWeight: 2,
      strokeOpacity: 1,
      geodesic: true,
      clickable: false,
      zIndex: 5,
    });
    routes.push({ level: level, line: line });
    line.setMap(shown[level] ? map : null);
  };

  /** Without a route there is nothing to add to. */
  page.addToAirway = function (position) {
    if (routes.length && page.isPlace(position))
      routes[routes.length - 1].line.getPath().push(position);
  };

  page.showAirways = function (level, on) {
    shown[level] = on;
    routes.filter(route => route.level === level).forEach(route => route.line.setMap(on ? map : null));
  };

  page.onPalette(() => routes.forEach(route => route.line.setOptions({ strokeColor: colourOf(route.level) })));
})();

/** A new route of a level, told as one character. @param {string} level */
function addATS(level) {
  page.openAirway(level);
}

/**
 * A point of the current route. The program's script closes the bracket early, so its second value never comes.
 * @param {Place} position
 */
function addToATS(position) {
  page.addToAirway(position);
}

/**
 * Shows (1) or hides (0) the routes of a level, those that come later too.
 * @type {(level: string, on: number) => void}
 */
function showATS(level, on) {
  page.showAirways(level, !!on);
}
