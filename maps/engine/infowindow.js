/** `google.maps.InfoWindow`: a text at a position, with a closing cross. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  class InfoWindow extends maps.MVCObject {
    /** @param options content (HTML text or a node), position */
    constructor(options) {
      super();
      this.options = Object.assign({ content: '' }, options);
      this.map = null;
      this.popup = L.popup({ autoPanPadding: [10, 10], maxWidth: 340, offset: [0, -2] });
    }

    getContent() {
      return this.options.content;
    }

    setContent(content) {
      this.options.content = content;
      this.popup.setContent(content);
    }

    getPosition() {
      return this.options.position;
    }

    setPosition(position) {
      this.options.position = position;
    }

    open(map) {
      const position = this.options.position;
      if (!map || !engine.isFinitePosition(position))
        return;
      this.map = map;
      const centre = map.leaflet.getCenter().lng;
      this.popup.setLatLng([position.lat(), position.lng() + 360 * Math.round((centre - position.lng()) / 360)]);
      this.popup.setContent(this.options.content);
      this.popup.openOn(map.leaflet);
    }

    close() {
      if (this.map)
        this.map.leaflet.closePopup(this.popup);
    }
  }

  maps.InfoWindow = InfoWindow;
})();
