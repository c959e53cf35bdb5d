/**
 * The colours of the chart by day and by night. Whoever draws on the map takes its colours from `page.palette` and
 * draws anew when it changes:
 *
 *     page.onPalette(palette => line.setOptions({ strokeColor: palette.route }));
 *
 * Menus, tool tips and other boxes of the page are elements: they are coloured in page.css by the class `chart-box` and
 * by that of the body, `palette-day` or `palette-night`.
 *
 * | Name | What it colours |
 * |---|---|
 * | name | no colour: 'day' or 'night' |
 * | sea, land, coast, border | the base map; shores and rivers have the colour of the coast |
 * | seaText, placeText, countryText, placeRim | its names; the rim is what stands around letters |
 * | airport, airportFill | airports: lines, and the inside of the symbol |
 * | navaid, navaidFill | VOR, DME and TACAN |
 * | ndb | NDB |
 * | waypoint, waypointFill | waypoints en route and RNAV |
 * | waypointTerminal | waypoints of procedures |
 * | waypointVfr, waypointVfrFill | VFR points |
 * | label, labelRim | text beside symbols where it has no colour of its own, and the rim of all of it |
 * | route, routeFill | the plan's line and names; the inside of its points |
 * | procedure, procedureFill | the same of a shown SID or STAR |
 * | airwayLow, airwayHigh, airwayBoth, airwayOther | airways by level; the last for a level that is none |
 * | runway, runwayCentre | a shown runway and its centre line |
 * | start, startEdge | the start marker |
 * | aircraft, aircraftEdge | the simulator's aircraft |
 * | trail | where it has flown |
 * | measure, measureText, measureFill | the measuring line; its text; what lies behind the text |
 */
(function () {
  'use strict';

  /** @type {Record<string, Palette>} */
  const palettes = {
    day: {
      name: 'day',
      sea: '#d3e4ee',
      land: '#f6f3ea',
      coast: '#7f9cab',
      border: '#b79f86',
      seaText: '#5f86a0',
      placeText: '#6f675a',
      countryText: '#a2937c',
      placeRim: '#f6f3ea',
      airport: '#1d3f8f',
      airportFill: '#ffffff',
      navaid: '#1f5fa8',
      navaidFill: '#ffffff',
      ndb: '#8a2f7e',
      waypoint: '#2f4a38',
      waypointFill: '#ffffff',
      waypointTerminal: '#5a6b73',
      waypointVfr: '#b4402a',
      waypointVfrFill: '#ffe9df',
      label: '#24323d',
      labelRim: 'rgba(255, 255, 255, 0.85)',
      route: '#c2185b',
      routeFill: '#ffffff',
      procedure: '#00796b',
      procedureFill: '#ffffff',
      airwayLow: '#6d8c3c',
      airwayHigh: '#3c6d8c',
      airwayBoth: '#7a5c99',
      airwayOther: '#666666',
      runway: '#39424a',
      runwayCentre: '#ffffff',
      start: '#f2a900',
      startEdge: '#5b3d00',
      aircraft: '#d32f2f',
      aircraftEdge: '#4a0d0d',
      trail: '#b5541c',
      measure: '#5e35b1',
      measureText: '#4527a0',
      measureFill: 'rgba(255, 255, 255, 0.9)',
    },
    night: {
      name: 'night',
      sea: '#0f1a24',
      land: '#1c252c',
      coast: '#43596a',
      border: '#655945',
      seaText: '#4d6f88',
      placeText: '#8b9096',
      countryText: '#66625a',
      placeRim: '#1c252c',
      airport: '#8fb0e8',
      airportFill: '#15202b',
      navaid: '#62a8d6',
      navaidFill: '#15202b',
      ndb: '#c380ba',
      waypoint: '#86b096',
      waypointFill: '#15202b',
      waypointTerminal: '#8296a1',
      waypointVfr: '#dc8f76',
      waypointVfrFill: '#2c1e1a',
      label: '#bccad4',
      labelRim: 'rgba(15, 24, 32, 0.85)',
      route: '#e8639d',
      routeFill: '#15202b',
      procedure: '#3fb8a5',
      procedureFill: '#15202b',
      airwayLow: '#7f9a52',
      airwayHigh: '#5a88ab',
      airwayBoth: '#9179ae',
      airwayOther: '#7d8489',
      runway: '#aab5bd',
      runwayCentre: '#1c252c',
      start: '#d9a02c',
      startEdge: '#2e2000',
      aircraft: '#ef6c57',
      aircraftEdge: '#2b0907',
      trail: '#d08a4a',
      measure: '#a98be0',
      measureText: '#c9b6f0',
      measureFill: 'rgba(18, 27, 36, 0.9)',
    },
  };

  /** @type {Array<(palette: Palette) => void>} */
  const listeners = [];

  /** The colours that hold now. */
  page.palette = palettes.day;

  /** Calls a function with the palette: now, and whenever another one is chosen. */
  page.onPalette = function (listener) {
    listeners.push(listener);
    listener(page.palette);
  };

  /** @param {string} name 'day' or 'night'; another name changes nothing */
  page.setPalette = function (name) {
    if (!Object.prototype.hasOwnProperty.call(palettes, name))
      return;
    page.palette = palettes[name];
    listeners.forEach(listener => listener(page.palette));
  };

  page.onPalette(palette => Object.keys(palettes).forEach(name =>
    document.body.classList.toggle(`palette-${name}`, name === palette.name)));
})();
