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

  /** @return {boolean} whether a colour of the form #rrggbb is nearer to black than to white */
  engine.isDark = colour => {
    const channel = at => parseInt(colour.slice(at, at + 2), 16);
    return 0.299 * channel(1) + 0.587 * channel(3) + 0.114 * channel(5) < 128;
  };
})();
