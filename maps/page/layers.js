/** The seven marker layers: each manager shows and hides the markers of a list. */

/** @type {?MarkerManager} */
var ArptMgr = null;
/** @type {?MarkerManager} */
var VORMgr = null;
/** @type {?MarkerManager} */
var NDBRteMgr = null;
/** @type {?MarkerManager} */
var NDBTermMgr = null;
/** @type {?MarkerManager} */
var WPTRteMgr = null;
/** @type {?MarkerManager} */
var WPTTermMgr = null;
/** @type {?MarkerManager} */
var WPTVfrMgr = null;

(function () {
  'use strict';

  /** All managers made so far, for what concerns every layer. @type {MarkerManager[]} */
  const managers = [];

  /** How all markers look at the map's zoom. @type {?Looks} */
  let looks = null;
  /** The marker whose pop-up is open. @type {?ChartMarker} */
  let chosen = null;
  /** That of the last edit, until the user clicks on something else. @type {?ChartMarker} */
  let edited = null;
  const chosenHeight = 58;

  /** Whether a marker is drawn in full at every zoom. @param {ChartMarker} marker */
  const isChosen = marker => marker === chosen || marker === edited;

  /** @type {Record<string, () => number>} */
  const counts = {
    airport: () => listApt.length,
    vor: () => listVOR.length,
    ndb: () => listNDBRte.length + listNDBTerm.length,
    waypoint: () => listWptRte.length + listWptTerm.length + listWptVfr.length,
  };

  /** How many markers share the room with those of a symbol. @param {string} symbol */
  function countOf(symbol) {
    const family = Object.keys(counts).find(each => symbol.indexOf(each) === 0);
    return counts[family || 'vor']();
  }

  const hidden = { visible: false };

  /** @param {ChartMarker} marker @return {google.maps.Data.StyleOptions} */
  function styleOf(marker) {
    // A point of the plan shows whatever its layer does.
    if (page.isPlanned(marker))
      return hidden;
    if (isChosen(marker))
      return page.fullLook(marker, {
        // A VOR has the rest around its rose.
        text: page.hasRose(marker) ? page.identOf(marker) : page.longText(marker),
        colour: page.symbolColour(marker.symbol),
        zIndex: chosenHeight,
      });
    return looks.of(marker, page.procedure.tells(marker));
  }

  /** Shows and hides the markers of one list. */
  class LayerManager {
    constructor() {
      page.fitLooks();
      this.clearMarkers();
    }

    /** Shows the markers of a list, each once however often this is asked. @param {ChartMarker[]} list */
    addMarkers(list) {
      if (Array.isArray(list))
        list.forEach(marker => this.show(marker));
      this.changed();
    }

    /** @param {ChartMarker} marker */
    addMarker(marker) {
      this.show(marker);
      this.changed();
    }

    /** @param {ChartMarker} marker */
    show(marker) {
      if (marker.badge === this.badge)
        return;
      marker.badge = this.badge;
      this.shown.push(marker);
    }

    changed() {
      page.fitLooks();
      this.fill();
      this.fitOthers();
    }

    /**
     * Puts the markers onto the map, if the zoom lets any of them be seen: most of the feed's thousands are too far
     * away to be drawn when they come, and wait here until they are.
     */
    fill() {
      const isSeen = this.drawsAny();
      if (isSeen) {
        for (; this.filled < this.shown.length; ++this.filled) {
          const marker = this.shown[this.filled];
          this.layer.add({ geometry: marker.position, properties: { marker: marker } });
        }
      }
      this.layer.setMap(isSeen ? map : null);
    }

    /** Whether the zoom lets any of the markers be seen. */
    drawsAny() {
      return [chosen, edited].some(marker => !!marker && marker.badge === this.badge)
        || this.shown.some(marker => looks.draws(marker.symbol));
    }

    /** What is drawn, or told, by the markers that this layer shows. */
    fitOthers() {
      page.fitRoses();
      page.moverMoved();
      if (this === ArptMgr)
        page.airportsChanged();
    }

    /** @param {ChartMarker} marker */
    removeMarker(marker) {
      if (marker.badge !== this.badge)
        return;
      marker.badge = null;
      if (marker === edited)
        edited = null;
      const at = this.shown.indexOf(marker);
      this.shown.splice(at, 1);
      if (at < this.filled) {
        --this.filled;
        this.layer.remove(this.pointOf(marker));
      }
      this.fitOthers();
    }

    /** @param {ChartMarker} marker @return {?google.maps.Data.Feature} its point in the layer */
    pointOf(marker) {
      /** @type {?google.maps.Data.Feature} */
      let found = null;
      this.layer.forEach(feature => {
        if (feature.getProperty('marker') === marker)
          found = feature;
      });
      return found;
    }

    /**
     * Whether a marker of the list is on the map at this zoom, as one of this layer, of the plan or of a procedure.
     * @param {ChartMarker} marker
     */
    draws(marker) {
      return page.isPlanned(marker) || page.procedure.tells(marker)
        || (marker.badge === this.badge && styleOf(marker).visible !== false);
    }

    /** Hides all markers of the layer. */
    clearMarkers() {
      if (this.layer)
        this.layer.setMap(null);
      /** @type {ChartMarker[]} */
      this.shown = [];
      /** How many of them have their points in the layer. */
      this.filled = 0;
      /** The shown markers bear it: to ask each for it takes far less than to look for each among all of them. */
      this.badge = {};
      this.layer = new google.maps.Data();
      this.dress();
      page.listenToLayer(this.layer);
      page.closeLostPopup();
      this.fitOthers();
    }

    /** @return {ChartMarker[]} those that are shown */
    markers() {
      return this.shown;
    }

    /** Draws all markers anew. */
    dress() {
      this.layer.setStyle(feature => styleOf(feature.getProperty('marker')));
      this.fill();
    }
  }

  /** Draws all layers anew where looks have changed for another reason than zoom, number or palette. */
  page.dressLayers = () => managers.forEach(manager => manager.dress());

  /** Takes the looks that suit zoom, palette and the number of markers. */
  page.fitLooks = function () {
    const next = page.looksAt(map.getZoom(), countOf);
    if (looks && next.key === looks.key)
      return;
    looks = next;
    page.dressLayers();
  };

  /** Whether names, and not identifiers alone, stand beside the symbols of a kind. */
  page.hasNames = symbol => !!looks && looks.hasNames(symbol);

  /** @type {(nextChosen: ?ChartMarker, nextEdited: ?ChartMarker) => void} */
  function setChosen(nextChosen, nextEdited) {
    if (nextChosen === chosen && nextEdited === edited)
      return;
    chosen = nextChosen;
    edited = nextEdited;
    page.dressLayers();
    page.fitRoses();
  }

  /** Draws a marker in full as the one whose pop-up is open; null for none. */
  page.choose = marker => setChosen(marker, marker ? null : edited);

  /** Draws a marker in full as the one that the program's dialog has sent; null for none. */
  page.chooseEdited = marker => setChosen(chosen, marker);

  /** Whether a marker is the one that the user has clicked or edited. */
  page.isChosen = isChosen;

  /** A fresh manager in place of an old one, which would otherwise leave its markers on the map. */
  page.newManager = function (old) {
    if (old) {
      old.clearMarkers();
      managers.splice(managers.indexOf(old), 1);
    }
    const manager = new LayerManager();
    managers.push(manager);
    return manager;
  };

  page.onPalette(page.fitLooks);
  google.maps.event.addListener(map, 'zoom_changed', page.fitLooks);

  /** Each list with the one who shows it; the manager is made when it is needed before the feed has made it. */
  page.layers = [
    { list: listApt, manager: () => ArptMgr || (ArptMgr = page.newManager()) },
    { list: listVOR, manager: () => VORMgr || (VORMgr = page.newManager()) },
    { list: listNDBRte, manager: () => NDBRteMgr || (NDBRteMgr = page.newManager()) },
    { list: listNDBTerm, manager: () => NDBTermMgr || (NDBTermMgr = page.newManager()) },
    { list: listWptRte, manager: () => WPTRteMgr || (WPTRteMgr = page.newManager()) },
    { list: listWptTerm, manager: () => WPTTermMgr || (WPTTermMgr = page.newManager()) },
    { list: listWptVfr, manager: () => WPTVfrMgr || (WPTVfrMgr = page.newManager()) },
  ];
})();

/** Ends the airport feed. No script says whether airports are to be seen, so they are. */
function pushAPT() {
  ArptMgr = page.newManager(ArptMgr);
  ArptMgr.addMarkers(listApt);
  page.matchPlan();
}

/** Ends the navaid feed; the program says next which layers are to be seen. */
function addNavMgr() {
  VORMgr = page.newManager(VORMgr);
  NDBRteMgr = page.newManager(NDBRteMgr);
  NDBTermMgr = page.newManager(NDBTermMgr);
  page.joinBeacons();
  page.matchPlan();
}

/** Ends the waypoint feed; the program says next which layers are to be seen. */
function addWptMgr() {
  WPTRteMgr = page.newManager(WPTRteMgr);
  WPTTermMgr = page.newManager(WPTTermMgr);
  WPTVfrMgr = page.newManager(WPTVfrMgr);
  page.matchPlan();
}
