/**
 * The colours of the base map out of `MapOptions.styles`: rules of featureType, elementType and stylers, the later ones
 * over the earlier. A rule for a kind of things holds for every kind under it ('administrative' for
 * 'administrative.country'), one without a kind for all.
 */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** What the base map paints, the words of the rules for it, and the colour without any. */
  const parts = {
    sea: { feature: 'water', element: 'geometry.fill', colour: '#d3e4ee' },
    coast: { feature: 'water', element: 'geometry.stroke', colour: '#7f9cab' },
    seaText: { feature: 'water', element: 'labels.text.fill', colour: '#5f86a0' },
    seaRim: { feature: 'water', element: 'labels.text.stroke', colour: '#d3e4ee' },
    land: { feature: 'landscape.natural', element: 'geometry.fill', colour: '#f6f3ea' },
    border: { feature: 'administrative.country', element: 'geometry.stroke', colour: '#b79f86' },
    countryText: { feature: 'administrative.country', element: 'labels.text.fill', colour: '#a2937c' },
    placeText: { feature: 'administrative.locality', element: 'labels.text.fill', colour: '#6f675a' },
    placeRim: { feature: 'administrative.locality', element: 'labels.text.stroke', colour: '#f6f3ea' },
  };

  function holds(ruleKind, kind) {
    return !ruleKind || ruleKind === 'all' || ruleKind === kind || kind.indexOf(`${ruleKind}.`) === 0;
  }

  /** @return {?string} the colour; null when the rules hide the part */
  function colourOf(part, rules) {
    let colour = part.colour;
    let visible = true;
    rules.filter(rule => holds(rule.featureType, part.feature) && holds(rule.elementType, part.element))
      .forEach(rule => (rule.stylers || []).forEach(styler => {
        colour = styler.color || colour;
        visible = styler.visibility ? styler.visibility !== 'off' : visible;
      }));
    return visible ? colour : null;
  }

  /**
   * @param {?google.maps.MapTypeStyle[]} [rules] `MapOptions.styles`
   * @return {Colours} a colour for each part; null for one that is not to be seen
   */
  engine.baseColours = function (rules) {
    const colours = /** @type {Colours} */ ({});
    Object.keys(parts).forEach(name => {
      colours[name] = colourOf(parts[name], rules || []);
    });
    return colours;
  };

  /** One of the three channels of a colour of the form #rrggbb. @type {(colour: string, at: number) => number} */
  const channel = (colour, at) => parseInt(colour.slice(2 * at + 1, 2 * at + 3), 16);

  /** @return {boolean} whether a colour of the form #rrggbb is nearer to black than to white */
  engine.isDark = colour =>
    0.299 * channel(colour, 0) + 0.587 * channel(colour, 1) + 0.114 * channel(colour, 2) < 128;

  /**
   * A colour with a part of another, both of the form #rrggbb.
   * @param {number} part from 0 to 1
   */
  engine.mixed = (colour, other, part) => {
    const mixed = [0, 1, 2].map(at => Math.round(channel(colour, at) * (1 - part) + channel(other, at) * part));
    return `rgb(${mixed.join()})`;
  };
})();
