/** `google.maps.ControlPosition` and `Map.controls`: elements that a page puts on the edges of the map. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  /** The service's names and numbers, and Leaflet's corner or an edge of our own where the elements go. */
  const places = {
    TOP_LEFT: { number: 1, corner: 'topleft' },
    TOP_CENTER: { number: 2, corner: 'topcenter' },
    TOP_RIGHT: { number: 3, corner: 'topright' },
    LEFT_CENTER: { number: 4, corner: 'topleft' },
    LEFT_TOP: { number: 5, corner: 'topleft' },
    LEFT_BOTTOM: { number: 6, corner: 'bottomleft' },
    RIGHT_TOP: { number: 7, corner: 'topright' },
    RIGHT_CENTER: { number: 8, corner: 'topright' },
    RIGHT_BOTTOM: { number: 9, corner: 'bottomright' },
    BOTTOM_LEFT: { number: 10, corner: 'bottomleft' },
    BOTTOM_CENTER: { number: 11, corner: 'bottomcenter' },
    BOTTOM_RIGHT: { number: 12, corner: 'bottomright' },
  };

  maps.ControlPosition = {};
  Object.keys(places).forEach(name => {
    maps.ControlPosition[name] = places[name].number;
  });

  const ElementControl = L.Control.extend({
    initialize: function (element, corner) {
      L.setOptions(this, { position: corner });
      this.element = element;
    },

    /** What happens on the element is no event of the map. */
    onAdd: function () {
      const box = L.DomUtil.create('div', 'map-control');
      box.appendChild(this.element);
      L.DomEvent.disableClickPropagation(box);
      L.DomEvent.disableScrollPropagation(box);
      return box;
    },
  });

  /** Leaflet has corners only; the middle of the upper and the lower edge are made here. */
  function addEdges(leaflet) {
    const corners = leaflet._controlCorners;
    ['top', 'bottom'].forEach(side => {
      corners[`${side}center`] = L.DomUtil.create('div', `leaflet-${side} map-edge`, leaflet._controlContainer);
    });
  }

  /** @return {MVCArray[]} by number of the position; an element pushed into one stands on the map */
  engine.controlsOf = function (leaflet) {
    const lists = [];
    addEdges(leaflet);
    Object.keys(places).forEach(name => {
      const list = new maps.MVCArray();
      list.addListener('insert_at', index =>
        new ElementControl(list.getAt(index), places[name].corner).addTo(leaflet));
      lists[places[name].number] = list;
    });
    return lists;
  };
})();
