/**
 * The mouse on the map: what lies under it gets the event, a point of a data layer before the map itself. The wheel
 * and a double click zoom about the pointer.
 */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  /** Wheel travel of one zoom step, in the pixels that Leaflet counts; one notch of a common wheel is at least this. */
  const wheelStep = 30;

  /**
   * Leaflet's names of the mouse's events and the map service's.
   * @type {Record<string, string>}
   */
  const names = { click: 'click', dblclick: 'dblclick', contextmenu: 'rightclick' };

  /** The next whole zoom in a direction. */
  engine.nextZoom = (zoom, inwards) => (inwards ? Math.floor(zoom + 1 + 1e-6) : Math.ceil(zoom - 1 - 1e-6));

  /**
   * Goes to the next zoom; what lies under the pointer stays there.
   * @param {ChartMap} map
   * @param {MouseEvent} domEvent
   * @param {boolean} inwards
   */
  function zoomAround(map, domEvent, inwards) {
    const leaflet = map.leaflet;
    const wanted = engine.nextZoom(leaflet.getZoom(), inwards);
    const zoom = Math.max(leaflet.getMinZoom(), Math.min(leaflet.getMaxZoom(), wanted));
    if (zoom !== leaflet.getZoom())
      leaflet.setZoomAround(leaflet.mouseEventToContainerPoint(domEvent), zoom, { animate: false });
  }

  /** @typedef {MousePlace & Pick<L.LeafletMouseEvent, 'containerPoint'>} Move */

  /**
   * @param {MousePlace} leafletEvent
   * @return {Handed['MapMouseEvent']}
   */
  function mouseEvent(leafletEvent) {
    return {
      latLng: new maps.LatLng(leafletEvent.latlng.lat, leafletEvent.latlng.lng),
      domEvent: leafletEvent.originalEvent,
    };
  }

  /**
   * @param {ChartMap} map
   * @param {MousePlace} leafletEvent
   */
  function featureAt(map, leafletEvent) {
    const scale = engine.tileSize * Math.pow(2, map.getZoom());
    return map.points.nearest(engine.unitX(leafletEvent.latlng.lng), engine.unitY(leafletEvent.latlng.lat), scale);
  }

  /**
   * @param {google.maps.Data.Feature} feature
   * @param {string} name
   * @param {Handed['MapMouseEvent']} mouse
   */
  function tell(feature, name, mouse) {
    /** @type {Handed['MouseEvent']} */
    const told = Object.assign({ feature: feature }, mouse);
    maps.event.trigger(feature.layer, name, told);
  }

  /**
   * What happens on the map happens to the point there, else to the map.
   * @type {MapEngine['tellPlace']}
   */
  engine.tellPlace = (map, name, places) => {
    const features = places.map(place => featureAt(map, place));
    const met = features.findIndex(Boolean);
    const last = places[places.length - 1];
    map.clickedLongitude = last.latlng.lng;
    try {
      if (met >= 0)
        tell(features[met], name, mouseEvent(places[met]));
      else
        maps.event.trigger(map, name, mouseEvent(last));
    } finally {
      map.clickedLongitude = null;
    }
  };

  /** @param {ChartMap} map */
  function listenToButtons(map) {
    Object.keys(names).forEach(name => map.leaflet.on(name, event => {
      const leafletEvent = /** @type {L.LeafletMouseEvent} */ (event);
      const zooms = name === 'dblclick' && !map.options.disableDoubleClickZoom;
      engine.tellPlace(map, names[name], [leafletEvent]);
      if (zooms)
        zoomAround(map, leafletEvent.originalEvent, true);
    }));
  }

  /**
   * The pointer leaves the point under it, if there is one, and comes to another or to none.
   * @param {MapParts} map
   * @param {?google.maps.Data.Feature} feature
   * @param {Handed['MapMouseEvent']} mouse
   */
  function enter(map, feature, mouse) {
    const left = map.pointed;
    if (feature === left)
      return;
    map.pointed = feature;
    map.element.classList.toggle('over-point', !!feature);
    if (left)
      tell(left, 'mouseout', mouse);
    if (feature)
      tell(feature, 'mouseover', mouse);
  }

  /** A layer is about to lose a point, or all of them: what is no more on the map is no more under the pointer. */
  engine.leavePoint = (map, layer, feature) => {
    const left = map.pointed;
    if (left && left.layer === layer && (!feature || feature === left))
      enter(map, null, { latLng: left.geometry });
  };

  /**
   * A view that moves below a still pointer brings it to another place, and points come and go under it: that is told
   * once a frame.
   * @param {ChartMap} map
   */
  function listenToMoves(map) {
    const leaflet = map.leaflet;
    /** The last move of the mouse, as long as the pointer is on the map. @type {?Move} */
    let last = null;
    let pending = 0;
    function followView() {
      pending = 0;
      if (!last)
        return;
      const before = last.latlng;
      const latlng = leaflet.containerPointToLatLng(last.containerPoint);
      last = { latlng: latlng, containerPoint: last.containerPoint, originalEvent: last.originalEvent };
      enter(map, featureAt(map, last), mouseEvent(last));
      if (!latlng.equals(before, 0))
        maps.event.trigger(map, 'mousemove', mouseEvent(last));
    }
    leaflet.on('mousemove', leafletEvent => {
      last = leafletEvent;
      enter(map, featureAt(map, last), mouseEvent(last));
      maps.event.trigger(map, 'mousemove', mouseEvent(last));
    });
    leaflet.on('mouseout', leafletEvent => {
      last = null;
      enter(map, null, mouseEvent(leafletEvent));
      maps.event.trigger(map, 'mouseout', mouseEvent(leafletEvent));
    });
    map.lookBelow = () => {
      if (last && !pending)
        pending = window.requestAnimationFrame(followView);
    };
    leaflet.on('move', () => map.lookBelow());
  }

  /** @param {ChartMap} map */
  function listenToWheel(map) {
    let travel = 0;
    L.DomEvent.on(map.element, 'wheel', event => {
      const domEvent = /** @type {WheelEvent} */ (event);
      L.DomEvent.stop(domEvent);
      travel += L.DomEvent.getWheelDelta(domEvent);
      if (Math.abs(travel) < wheelStep)
        return;
      zoomAround(map, domEvent, travel > 0);
      travel = 0;
    });
  }

  engine.listenToPointer = map => {
    listenToButtons(map);
    listenToMoves(map);
    listenToWheel(map);
  };
})();
