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

  class LayerManager {
    constructor() {
      this.size = page.symbolSize(map.getZoom());
      this.clearMarkers();
    }

    /** Shows the markers of a list, each once however often this is asked. @param {ChartMarker[]} list */
    addMarkers(list) {
      if (Array.isArray(list))
        list.forEach(marker => this.addMarker(marker));
      this.layer.setMap(map);
    }

    /** @param {ChartMarker} marker */
    addMarker(marker) {
      if (!this.shown.has(marker))
        this.shown.set(marker, this.layer.add({ geometry: marker.position, properties: { marker: marker } }));
      if (!this.layer.getMap())
        this.layer.setMap(map);
    }

    /** @param {ChartMarker} marker */
    removeMarker(marker) {
      const feature = this.shown.get(marker);
      if (!feature)
        return;
      this.layer.remove(feature);
      this.shown.delete(marker);
    }

    /** Hides all markers of the layer. */
    clearMarkers() {
      if (this.layer)
        this.layer.setMap(null);
      /** @type {Map<ChartMarker, google.maps.Data.Feature>} */
      this.shown = new Map();
      this.layer = new google.maps.Data();
      this.dress();
      page.listenToLayer(this.layer);
    }

    dress() {
      const size = this.size;
      this.layer.setStyle(feature => page.symbolLook(feature.getProperty('marker').symbol, size));
    }

    /** Takes the symbols' size that suits a zoom. @param {number} zoom */
    fit(zoom) {
      const size = page.symbolSize(zoom);
      if (size === this.size)
        return;
      this.size = size;
      this.dress();
    }
  }

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

  google.maps.event.addListener(map, 'zoom_changed', () => managers.forEach(manager => manager.fit(map.getZoom())));

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
}

/** Ends the navaid feed; the program says next which layers are to be seen. */
function addNavMgr() {
  VORMgr = page.newManager(VORMgr);
  NDBRteMgr = page.newManager(NDBRteMgr);
  NDBTermMgr = page.newManager(NDBTermMgr);
}

/** Ends the waypoint feed; the program says next which layers are to be seen. */
function addWptMgr() {
  WPTRteMgr = page.newManager(WPTRteMgr);
  WPTTermMgr = page.newManager(WPTTermMgr);
  WPTVfrMgr = page.newManager(WPTVfrMgr);
}
