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
      /** Where it stands, in the copy of the world of the view. */
      this.longitude = 0;
      this.popup = L.popup({
        autoPanPadding: [10, 10],
        maxWidth: 340,
        // What is longer can be scrolled.
        maxHeight: 320,
        offset: [0, -2],
        // Who opens it closes it; by itself only its cross does.
        closeOnClick: false,
        closeOnEscapeKey: false,
      });
      this.closing = false;
      this.popup.on('remove', () => {
        this.leave();
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
      this.leave();
      this.map = map;
      // Where a view shows several copies of the world, in that of the click.
      const near = map.clickedLongitude === null ? map.leaflet.getCenter().lng : map.clickedLongitude;
      this.longitude = engine.longitudeNear(position.lng(), near);
      this.popup.setLatLng([position.lat(), this.longitude]);
      this.popup.setContent(/** @type {string|HTMLElement} */ (this.options.content));
      this.popup.openOn(map.leaflet);
      this.nameCross();
      this.passWheel();
      map.leaflet.on('moveend', this.follow, this);
    }

    /** A view that has left the pop-up's copy of the world takes it along into its own. */
    follow() {
      const leaflet = this.map.leaflet;
      const bounds = leaflet.getBounds();
      const position = this.getPosition();
      const wanted = engine.longitudeNear(position.lng(), leaflet.getCenter().lng);
      const isInView = this.longitude >= bounds.getWest() && this.longitude <= bounds.getEast();
      if (isInView || wanted === this.longitude)
        return;
      this.longitude = wanted;
      // The user has moved the view: it stays where it is.
      this.popup.options.autoPan = false;
      this.popup.setLatLng([position.lat(), wanted]);
      this.popup.options.autoPan = true;
    }

    leave() {
      if (this.map)
        this.map.leaflet.off('moveend', this.follow, this);
    }

    /** Leaflet keeps the wheel from the map; here a pop-up keeps it only when it has something to scroll. */
    passWheel() {
      /** @type {HTMLElement} */
      const content = this.popup.getElement().querySelector('.leaflet-popup-content');
      L.DomEvent.off(content, 'wheel', L.DomEvent.stopPropagation);
      if (content.classList.contains('leaflet-popup-scrolled'))
        L.DomEvent.on(content, 'wheel', L.DomEvent.stopPropagation);
    }

    /** Leaflet names the cross in English. */
    nameCross() {
      const cross = this.popup.getElement().querySelector('.leaflet-popup-close-button');
      cross.setAttribute('aria-label', closeWords[document.documentElement.lang] || closeWords.en);
    }

    close() {
      if (!this.map)
        return;
      this.leave();
      this.closing = true;
      this.map.leaflet.closePopup(this.popup);
      this.closing = false;
    }
  }

  engine.supply({ InfoWindow: InfoWindow });
})();
