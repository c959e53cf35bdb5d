/** The markers of the feed: every row of the databases that the map can show, sorted into the lists of the layers. */

/** @type {ChartMarker[]} */
var listApt = [];
/** @type {ChartMarker[]} */
var listVOR = [];
/** @type {ChartMarker[]} */
var listNDBRte = [];
/** @type {ChartMarker[]} */
var listNDBTerm = [];
/** @type {ChartMarker[]} */
var listWptRte = [];
/** @type {ChartMarker[]} */
var listWptTerm = [];
/** @type {ChartMarker[]} */
var listWptVfr = [];

(function () {
  'use strict';

  /** Usage numbers as the databases hold them, for navaids and waypoints alike; all others are en route. */
  const usage = { terminal: 4, rnav: 5, vfr: 6 };

  /** What a marker stands for; decides the commands of its menu. */
  page.families = { airport: 'airport', navaid: 'navaid', waypoint: 'waypoint', point: 'point' };

  /** Families whose titles hold no key: an airport's is its identifier, and a point (namedpoints.js) has no row. */
  const keyless = [page.families.airport, page.families.point];

  /** @type {(marker: ChartMarker) => boolean} whether the one "-" of the title is that between name and key. */
  const hasPlainName = marker => marker.title.split('-').length === 2;

  /**
   * One marker. The title joins it to its row: `iden` of an airport, `iden-ukey` of a navaid, `name-ukey` of a
   * waypoint. It is text and never markup; the HTML is that of the pop-up.
   */
  class ChartMarker {
    /**
     * @param {MarkerFamily} family @param {string} symbol @param {Place} position
     * @param {string} title @param {string} html
     */
    constructor(family, symbol, position, title, html) {
      this.family = family;
      this.symbol = symbol;
      this.position = position;
      this.title = String(title);
      this.html = String(html);
      /** That of the layer which shows it. @type {?Object} */
      this.badge = null;
    }

    getTitle() {
      return this.title;
    }

    getPosition() {
      return this.position;
    }

    hasKey() {
      return keyless.indexOf(this.family) < 0;
    }

    /** What stands behind the last "-" of the title; empty for what has no key. */
    tail() {
      return this.hasKey() ? this.title.slice(this.title.lastIndexOf('-') + 1) : '';
    }

    /** What stands in front of that "-"; the whole title of what has no key or nothing there. */
    stem() {
      const dash = this.title.lastIndexOf('-');
      return this.hasKey() && dash >= 1 ? this.title.slice(0, dash) : this.title;
    }

    /**
     * The digit of a navaid's type in its key, which is the identifier, the digit, the two letters of the country, and
     * a number where the key would not be the only one. NaN without such a key.
     */
    keyDigit() {
      const found = /(\d)[A-Z]{2}\d*$/.exec(this.tail());
      return found ? Number(found[1]) : NaN;
    }

    /**
     * Whether two markers stand for the same row. Equal titles hold equal keys, be they empty. A navaid's key holds no
     * "-", so it is the tail whatever the name. A waypoint's key begins with the name's first letters and may hold one:
     * then only the whole title tells.
     * @param {ChartMarker} other
     */
    isSameRow(other) {
      if (other.family !== this.family || !this.hasKey())
        return false;
      if (this.title === other.title)
        return true;
      return !!this.tail() && this.tail() === other.tail()
        && (this.family !== page.families.waypoint || (hasPlainName(this) && hasPlainName(other)));
    }
  }

  page.newMarker = (family, symbol, position, title, html) => new ChartMarker(family, symbol, position, title, html);

  /** Whether a marker stands for a row of the databases. */
  page.hasRow = marker => marker.family !== page.families.point;

  /** Makes a marker and puts it into a list. @return {?ChartMarker} null without a place to draw it */
  page.collect = function (list, family, symbol, position, title, html) {
    if (!page.isPlace(position))
      return null;
    const marker = page.newMarker(family, symbol, position, title, html);
    list.push(marker);
    return marker;
  };

  /** @type {Record<number, string>} */
  const waypointSymbols = {
    [usage.terminal]: 'waypointTerminal',
    [usage.rnav]: 'waypointRnav',
    [usage.vfr]: 'waypointVfr',
  };

  page.collectAirport = (position, title, html) =>
    page.collect(listApt, page.families.airport, 'airport', position, title, html);

  page.collectVor = (position, title, symbol, html) =>
    page.collect(listVOR, page.families.navaid, symbol, position, title, html);

  /** By the digit of the key: the symbols of the types that come as a VOR. @type {Record<number, string>} */
  const keySymbols = { 1: 'vor', 2: 'tacan', 3: 'dme', 4: 'vorDme', 6: 'vortac' };
  const ndbDmeDigit = 7;

  /**
   * The symbol of a navaid of the feed. A type of VOR and TACAN is that of a VORTAC, and that under which the program's
   * dialog stores a TACAN: the digit of the key tells them apart.
   * @type {(type: number, marker: ChartMarker) => string}
   */
  function vorSymbolOf(type, marker) {
    const symbol = page.vorSymbol(type);
    return symbol === 'vortac' && keySymbols[marker.keyDigit()] === 'tacan' ? 'tacan' : symbol;
  }

  page.collectVorOfType = function (position, title, type, html) {
    const marker = page.collectVor(position, title, 'vor', html);
    if (marker)
      marker.symbol = vorSymbolOf(type, marker);
  };

  page.collectVorByKey = function (position, title, html) {
    const marker = page.collectVor(position, title, 'vor', html);
    if (marker)
      marker.symbol = keySymbols[marker.keyDigit()] || 'vor';
    return marker;
  };

  page.collectNdb = function (position, title, use, html) {
    const list = use === usage.terminal ? listNDBTerm : listNDBRte;
    const place = use === usage.terminal ? 'Terminal' : 'Route';
    const marker = page.collect(list, page.families.navaid, `ndb${place}`, position, title, html);
    // Whether an NDB has a DME, nothing but its key tells.
    if (marker && marker.keyDigit() === ndbDmeDigit)
      marker.symbol = `ndbDme${place}`;
    return marker;
  };

  /** A DME of an NDB stands at most so many degrees beside it. */
  const besideBeacon = 0.01;

  /** The NDBs by their identifiers. */
  function beaconsByIdent() {
    /** @type {Map<string, ChartMarker[]>} */
    const found = new Map();
    listNDBRte.concat(listNDBTerm).forEach(beacon => {
      const ident = page.identOf(beacon);
      const same = found.get(ident);
      if (same)
        same.push(beacon);
      else
        found.set(ident, [beacon]);
    });
    return found;
  }

  /** A DME in a row of its own that stands beside an NDB of its identifier is that one's: it is drawn around it. */
  page.joinBeacons = function () {
    const beacons = beaconsByIdent();
    let changed = false;
    listVOR.filter(marker => marker.symbol === 'dme' || marker.symbol === 'dmeNdb').forEach(dme => {
      const isJoined = (beacons.get(page.identOf(dme)) || [])
        .some(beacon => page.areClose(dme.position, beacon.position, besideBeacon));
      const symbol = isJoined ? 'dmeNdb' : 'dme';
      changed = changed || dme.symbol !== symbol;
      dme.symbol = symbol;
    });
    if (changed)
      page.dressLayers();
  };

  page.collectWaypoint = function (position, title, use, html) {
    const list = use === usage.terminal ? listWptTerm : use === usage.vfr ? listWptVfr : listWptRte;
    return page.collect(list, page.families.waypoint, waypointSymbols[use] || 'waypointRoute', position, title, html);
  };
})();

/** An airport. The number is always 1. @type {MarkerFeed} */
function addAPTMarker(position, title, number, html) {
  page.collectAirport(position, title, html);
}

/** A VOR, TACAN or DME; its type decides its symbol. @type {MarkerFeed} */
function addVORMarker(position, title, type, html) {
  page.collectVorOfType(position, title, type, html);
}

/** An NDB; its usage decides its layer. @type {MarkerFeed} */
function addNDBMarker(position, title, use, html) {
  page.collectNdb(position, title, use, html);
}

/** A waypoint; its usage decides its layer. @type {MarkerFeed} */
function addWPTMarker(position, title, use, html) {
  page.collectWaypoint(position, title, use, html);
}
