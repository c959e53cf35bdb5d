/** `google.maps.InfoWindow`: a text at a position, with a closing cross. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  /** @type {Record<string, string>} */
  const closeWords = { fr: 'Fermer', en: 'Close' };

  class InfoWindow extends maps.MVCObject {
    /** @param {InfoWindowOptions} [options] */
    constructor(options) {
      super();
      /** @type {InfoWindowOptions} */
      this.options = Object.assign({ content: '' }, options);
      /** @type {?google.maps.Map} */
      this.map = null;
      this.popup = L.popup({
        autoPanPadding: [10, 10],
        maxWidth: 340,
        offset: [0, -2],
        // Who opens it closes it; by itself only its cross does.
        closeOnClick: false,
        closeOnEscapeKey: false,
      });
      this.closing = false;
      this.popup.on('remove', () => {
        if (!this.closing)
          maps.event.trigger(this, 'closeclick');
      });
    }

    getContent() {
      return this.options.content;
    }

    /** @param {string|HTMLElement} content */
    setContent(content) {
      this.options.content = content;
      this.popup.setContent(content);
    }

    getPosition() {
      return /** @type {google.maps.LatLng} */ (this.options.position);
    }

    /** @param {google.maps.LatLng} position */
    setPosition(position) {
      this.options.position = position;
    }

    /** @param {google.maps.Map} map */
    open(map) {
      const position = this.options.position;
      if (!map || !engine.isFinitePosition(position))
        return;
      this.map = map;
      const centre = map.leaflet.getCenter().lng;
      this.popup.setLatLng([position.lat(), position.lng() + 360 * Math.round((centre - position.lng()) / 360)]);
      this.popup.setContent(/** @type {string|HTMLElement} */ (this.options.content));
      this.popup.openOn(map.leaflet);
      this.nameCross();
    }

    /** Leaflet names the cross in English. */
    nameCross() {
      const cross = this.popup.getElement().querySelector('.leaflet-popup-close-button');
      cross.setAttribute('aria-label', closeWords[document.documentElement.lang] || closeWords.en);
    }

    close() {
      if (!this.map)
        return;
      this.closing = true;
      this.map.leaflet.closePopup(this.popup);
      this.closing = false;
    }
  }

  engine.supply({ InfoWindow: InfoWindow });
})();
