/**
 * How a marker looks at a zoom. From afar a symbol becomes a small sign, then a dot, then it leaves: points of
 * procedures first, then those en route, then beacons, the airports last. A layer of thousands behaves as if it were
 * seen from farther away.
 */
(function () {
  'use strict';

  /**
   * From which zoom on a symbol is a dot, a small sign, drawn in full, has its identifier beside it, and its name too.
   * So many markers of the kind leave the map as open as it should be; four times as many want a zoom more.
   */
  const navaid = { dot: 3.5, sign: 5.4, symbol: 6.6, ident: 5.8, name: 10, many: 250 };
  /** @type {Record<string, Stage>} */
  const stages = {
    airport: { dot: 3, sign: 5.4, symbol: 6.8, ident: 6.8, name: 10, many: 250 },
    vor: navaid,
    vorDme: navaid,
    vortac: navaid,
    tacan: navaid,
    dme: { dot: 5, sign: 7, symbol: 7, ident: 8, name: 10, many: 250 },
    dmeNdb: { dot: 20, sign: 7, symbol: 7, ident: 20, name: 20, many: 250 },
    ndbRoute: { dot: 5, sign: 6.8, symbol: 6.8, ident: 7.5, name: 10, many: 250 },
    ndbDmeRoute: { dot: 5, sign: 6.8, symbol: 6.8, ident: 7.5, name: 10, many: 250 },
    ndbDmeTerminal: { dot: 6, sign: 7.6, symbol: 7.6, ident: 8.6, name: 10.5, many: 250 },
    ndbTerminal: { dot: 6, sign: 7.6, symbol: 7.6, ident: 8.6, name: 10.5, many: 250 },
    waypointRoute: { dot: 6.5, sign: 7, symbol: 7, ident: 7.8, name: 12, many: 700 },
    waypointRnav: { dot: 7, sign: 8.6, symbol: 8.6, ident: 8.6, name: 12, many: 700 },
    waypointVfr: { dot: 7, sign: 8, symbol: 8, ident: 9.2, name: 11, many: 700 },
    waypointTerminal: { dot: 7, sign: 8, symbol: 8, ident: 9.2, name: 12, many: 700 },
  };

  /** However many there are, the farthest that a layer is pushed away, in zooms. */
  const farthest = 2.8;

  /** The face of all letters that the page writes on the chart. */
  page.letterFamily = '"Liberation Sans", Arial, Helvetica, sans-serif';

  /** The sizes of symbols and letters by zoom. */
  const sizes = [
    { from: 11, scale: 1.15, letters: 12 },
    { from: 9, scale: 1, letters: 11 },
    { from: 8, scale: 0.9, letters: 11 },
    { from: 7, scale: 0.76, letters: 10 },
    { from: 0, scale: 0.62, letters: 9 },
  ];
  /** Labels are bold from this zIndex on. */
  const boldFrom = 28;
  /** So much larger is a navaid that is drawn around an airport. */
  const aroundAirport = 1.6;
  /** From afar a chosen marker is drawn so large all the same. */
  const leastFull = 0.9;
  const fullSize = sizes.find(each => each.scale === leastFull);

  /**
   * By how many zooms markers look farther away for being so many.
   * @type {(stage: Stage, count: number) => number}
   */
  const crowding = (stage, count) => Math.max(0, Math.min(farthest, Math.log2(count / stage.many) / 2));

  /**
   * The form of a symbol, its scale, and what stands beside it: 'ident', 'name' or nothing.
   * @typedef {{form: SymbolForm | 'none', scale: number, letters: number, text: string}} LookAt
   */
  /** @type {SymbolForm[]} */
  const forms = ['symbol', 'sign', 'dot'];
  /** @type {Array<'name' | 'ident'>} */
  const texts = ['name', 'ident'];

  /** @type {(stage: Stage, seen: number) => SymbolForm | 'none'} */
  const formAt = (stage, seen) => forms.find(form => seen >= stage[form]) || 'none';

  /**
   * The look of a kind at a zoom.
   * @param {string} name @param {number} zoom
   * @param {number} count how many markers there are of its family
   * @return {LookAt}
   */
  function lookAt(name, zoom, count) {
    const stage = stages[name];
    const away = crowding(stage, count);
    const form = formAt(stage, zoom - away);
    const text = texts.find(each => zoom - away >= stage[each]) || '';
    // The sizes suit the whole chart rather than one kind.
    const size = sizes.find(each => zoom - away / 2 >= each.from) || sizes[sizes.length - 1];
    return { form: form, scale: size.scale, letters: size.letters, text: form === 'dot' ? '' : text };
  }

  /** The label of a marker; `more` holds what differs from other labels. */
  page.labelOf = function (text, colour, letters, more) {
    /** @type {google.maps.MarkerLabel} */
    const label = {
      text: text,
      color: colour,
      fontSize: `${letters}px`,
      fontWeight: 'normal',
      fontFamily: page.letterFamily,
    };
    return Object.assign(label, more);
  };

  const hidden = { visible: false };

  /**
   * A style with a label that is made when it is asked for: where markers are crowded most of them never get to theirs,
   * and to read its text takes longer than all the rest. Who copies the style takes the label, and nothing but options.
   * @type {(style: google.maps.Data.StyleOptions, look: Look, marker: ChartMarker) => google.maps.Data.StyleOptions}
   */
  function labelledStyle(style, look, marker) {
    /** @type {?google.maps.MarkerLabel} */
    let made = null;
    return {
      icon: style.icon,
      zIndex: style.zIndex,
      get label() {
        return made || (made = look.labelOf(marker));
      },
    };
  }

  /** What all markers of one kind and zoom have in common. */
  class Look {
    /** @param {string} name @param {LookAt} at */
    constructor(name, at) {
      this.at = at;
      this.colour = page.symbolColour(name);
      this.height = page.symbolHeight(name);
      this.goesAround = at.form === 'symbol' && page.goesAround(name);
      this.weight = this.height >= boldFrom ? 'bold' : 'normal';
      /** @type {?google.maps.Data.StyleOptions} */
      this.common = null;
      /** @type {?google.maps.Data.StyleOptions} */
      this.commonAround = null;
    }

    /**
     * @param {ChartMarker} marker @param {boolean} isAround whether it is drawn around an airport
     * @param {boolean} isTold whether its label stands there already
     * @return {google.maps.Data.StyleOptions}
     */
    of(marker, isAround, isTold) {
      if (this.at.form === 'none')
        return hidden;
      const style = marker.path ? this.newStyle(marker, isAround) : this.commonStyle(marker, isAround);
      return this.at.text && !isTold ? labelledStyle(style, this, marker) : style;
    }

    /** @type {(marker: ChartMarker, isAround: boolean) => google.maps.Data.StyleOptions} */
    newStyle(marker, isAround) {
      const scale = isAround ? this.at.scale * aroundAirport : this.at.scale;
      return { icon: page.symbolOf(marker, /** @type {SymbolForm} */ (this.at.form), scale), zIndex: this.height };
    }

    /**
     * What all markers share that have nothing of their own.
     * @type {(marker: ChartMarker, isAround: boolean) => google.maps.Data.StyleOptions} of one of them
     */
    commonStyle(marker, isAround) {
      if (isAround)
        return this.commonAround || (this.commonAround = this.newStyle(marker, true));
      return this.common || (this.common = this.newStyle(marker, false));
    }

    /** @param {ChartMarker} marker */
    labelOf(marker) {
      const text = this.at.text === 'name' && !page.hasRose(marker) ? page.longText(marker) : page.identOf(marker);
      return page.labelOf(text, this.colour, this.at.letters, { fontWeight: this.weight });
    }
  }

  /**
   * The looks of all kinds at a zoom.
   * @param {number} zoom
   * @param {function(string): number} countOf how many markers there are of the family of a kind
   */
  page.looksAt = function (zoom, countOf) {
    /** @type {Record<string, Look>} */
    const looks = {};
    /** @type {Array<string | number>} */
    const keys = [];
    Object.keys(stages).forEach(name => {
      const at = lookAt(name, zoom, countOf(name));
      looks[name] = new Look(name, at);
      keys.push(at.form, at.scale, at.letters, at.text);
    });
    const areFull = looks.airport.at.form === 'symbol';
    // What lies on what is asked anew each half zoom.
    const near = Math.round(zoom * 2) / 2;
    return {
      draws: symbol => looks[symbol].at.form !== 'none',
      hasNames: symbol => looks[symbol].at.text === 'name',
      key: `${page.palette.name} ${near} ${keys.join(' ')}`,
      of: (marker, isTold) => {
        const look = looks[marker.symbol];
        return look.of(marker, areFull && look.goesAround && page.isUnderAirport(marker, near), isTold);
      },
    };
  };

  /**
   * The look of a marker that the user has chosen or put into the plan: drawn in full at every zoom, with a label.
   * @param {{text: string, colour: string, zIndex: number}} more the label, its colour, and what lies over what
   */
  page.fullLook = function (marker, more) {
    const size = sizes.find(each => map.getZoom() >= each.from && each.scale >= leastFull) || fullSize;
    return {
      icon: page.symbolOf(marker, 'symbol', size.scale),
      zIndex: more.zIndex,
      label: page.labelOf(more.text, more.colour, size.letters + 1, { fontWeight: 'bold' }),
    };
  };
})();
