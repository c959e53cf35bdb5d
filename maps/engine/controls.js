/** `google.maps.ControlPosition` and `Map.controls`: elements that a page puts on the edges of the map. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  engine.supply({
    ControlPosition: {
      TOP_LEFT: 1,
      TOP_CENTER: 2,
      TOP_RIGHT: 3,
      LEFT_CENTER: 4,
      LEFT_TOP: 5,
      LEFT_BOTTOM: 6,
      RIGHT_TOP: 7,
      RIGHT_CENTER: 8,
      RIGHT_BOTTOM: 9,
      BOTTOM_LEFT: 10,
      BOTTOM_CENTER: 11,
      BOTTOM_RIGHT: 12,
    },
  });

  /** By these numbers: Leaflet's corner or an edge of our own where the elements go. */
  const corners = ['', 'topleft', 'topcenter', 'topright', 'topleft', 'topleft', 'bottomleft', 'topright', 'topright',
    'bottomright', 'bottomleft', 'bottomcenter', 'bottomright'];

  class ElementControl extends L.Control {
    /**
     * @param {HTMLElement} element
     * @param {string} corner
     */
    constructor(element, corner) {
      super({ position: /** @type {L.ControlPosition} */ (corner) });
      this.element = element;
    }

    /** What happens on the element is no event of the map. */
    onAdd() {
      const box = L.DomUtil.create('div', 'map-control');
      box.appendChild(this.element);
      L.DomEvent.disableClickPropagation(box);
      L.DomEvent.disableScrollPropagation(box);
      return box;
    }
  }

  /**
   * Leaflet has corners only; the middle of the upper and the lower edge are made here.
   * @param {L.Map} leaflet
   */
  function addEdges(leaflet) {
    const own = /** @type {Corners} */ (/** @type {unknown} */ (leaflet));
    ['top', 'bottom'].forEach(side => {
      own._controlCorners[`${side}center`] =
        L.DomUtil.create('div', `leaflet-${side} map-edge`, own._controlContainer);
    });
  }

  /** Lists by number of the position; an element pushed into one stands on the map. */
  engine.controlsOf = leaflet => {
    addEdges(leaflet);
    return corners.map(corner => {
      /** @type {google.maps.MVCArray<HTMLElement>} */
      const list = new maps.MVCArray();
      list.addListener('insert_at', (/** @type {number} */ index) =>
        new ElementControl(list.getAt(index), corner).addTo(leaflet));
      return list;
    });
  };
})();
