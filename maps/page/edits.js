/** Single markers after an edit in the program's dialogs, and the end of the marker last used. */

/** The marker that the user clicked last, with either button. @type {?ChartMarker} */
var theLast = null;

(function () {
  'use strict';

  /** The marker whose row the program's dialog shows now: the dialog ends before the call of its slot returns. */
  /** @type {?ChartMarker} */
  let edited = null;

  page.whileEditing = function (marker, call) {
    edited = marker;
    try {
      call();
    } finally {
      edited = null;
    }
  };

  /** @param {ChartMarker} marker @return {?ChartLayer} the layer that holds a marker */
  function layerOf(marker) {
    return page.layers.find(layer => layer.list.indexOf(marker) >= 0) || null;
  }

  /** @param {ChartMarker} marker */
  function removeMarker(marker) {
    const layer = layerOf(marker);
    if (!layer)
      return;
    layer.list.splice(layer.list.indexOf(marker), 1);
    layer.manager().removeMarker(marker);
    page.closePopup(marker);
  }

  /**
   * Whether a marker takes the place of the one that is being edited. Of that one it is known that the row is the same
   * if the keys may be, whatever the names before them hold.
   * @type {(marker: ChartMarker, other: ChartMarker) => boolean}
   */
  const replacesEdited = (marker, other) =>
    other === edited && other.family === marker.family && other.tail() === marker.tail();

  /** An edited row comes again under its key: its former marker goes. @param {ChartMarker} marker */
  function takePredecessor(marker) {
    /** @type {?ChartMarker} */
    let found = null;
    page.layers.forEach(layer => layer.list.forEach(other => {
      if (other !== marker && (marker.isSameRow(other) || replacesEdited(marker, other)))
        found = other;
    }));
    if (found)
      removeMarker(found);
    return found;
  }

  /**
   * Shows a marker at once in place of its predecessor, whether its layer is to be seen or not, and at every zoom: who
   * has made a point sees it.
   */
  page.showEdited = function (marker) {
    if (!marker)
      return;
    const former = takePredecessor(marker);
    // The dialog sends a navaid's usage where the feed has its type: only the former marker knows that for certain.
    if (former && layerOf(marker).list === listVOR && former.symbol.indexOf('ndb') !== 0)
      marker.symbol = former.symbol;
    layerOf(marker).manager().addMarker(marker);
    page.chooseEdited(marker);
    page.joinBeacons();
    page.matchPlan();
  };

  page.removeLast = function () {
    if (theLast)
      removeMarker(theLast);
    theLast = null;
    page.joinBeacons();
    page.matchPlan();
  };
})();

/**
 * A VOR, TACAN or DME after an edit. The number is the usage: a new one has its type from its key.
 * @type {MarkerFeed}
 */
function addVORMarker2(position, title, use, html) {
  page.showEdited(page.collectVorByKey(position, title, html));
}

/** An NDB after an edit. @type {MarkerFeed} */
function addNDBMarker2(position, title, use, html) {
  page.showEdited(page.collectNdb(position, title, use, html));
}

/** A waypoint after an edit. @type {MarkerFeed} */
function addWPTMarker2(position, title, use, html) {
  page.showEdited(page.collectWaypoint(position, title, use, html));
}

/** Removes the marker last used: the program has deleted its navaid. */
function delNavaid() {
  page.removeLast();
}

/** Removes the marker last used: the program has deleted its waypoint. */
function delWaypoint() {
  page.removeLast();
}
