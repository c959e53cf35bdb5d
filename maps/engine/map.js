/** `google.maps.Map`: the view with its base map, its canvases and its controls. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  const zoomLimits = { least: 2, most: 18 };

  const leafletOptions = {
    // Any zoom may be set; the wheel goes from one whole zoom to the next (pointer.js).
    zoomSnap: 0,
    scrollWheelZoom: false,
    // A zoom is done when the call returns: scripts read back what they have set.
    zoomAnimation: false,
    fadeAnimation: false,
    markerZoomAnimation: false,
    inertia: false,
    // The size of the window is followed here, so that the centre stays what it was to the last digit.
    trackResize: false,
    worldCopyJump: true,
    attributionControl: false,
    zoomControl: false,
    // Both have their own place here (pointer.js, keys.js).
    doubleClickZoom: false,
    keyboard: false,
    minZoom: zoomLimits.least,
    maxZoom: zoomLimits.most,
  };

  /** What the zoom buttons are called, as the map service's are, in the page's language. */
  const zoomWords = () =>
    (document.documentElement.lang === 'fr' ? ['Zoom avant', 'Zoom arrière'] : ['Zoom in', 'Zoom out']);

  class ChartMap extends maps.MVCObject {
    /**
     * @param {HTMLElement} element
     * @param {MapOptions} [options]
     */
    constructor(element, options) {
      super();
      /** @type {MapOptions} */
      const wanted = options || {};
      this.options = Object.assign({}, wanted);
      const centre = engine.isFinitePosition(wanted.center) ? wanted.center : new maps.LatLng(0, 0);
      this.element = element;
      this.lines = new engine.Lines();
      /**
       * The point of a data layer under the pointer, or null.
       * @type {?google.maps.Data.Feature}
       */
      this.pointed = null;
      /** While a button's event is being told: its longitude in the copy of the world that it met. */
      this.clickedLongitude = null;
      this.quiet = false;
      this.exactCentre = centre;
      this.leaflet = L.map(element, leafletOptions);
      this.leaflet.setView([centre.lat(), centre.lng()], wanted.zoom || 0);
      /** @type {google.maps.MVCArray<?google.maps.MapType>} */
      this.overlayMapTypes = new maps.MVCArray();
      this.base = new engine.BaseMap(this.leaflet, this.overlayMapTypes);
      /** The markers that the user may drag, which labels keep away from. */
      this.pins = /** @type {Set<Pin>} */ (new Set());
      this.points = new engine.Points(this.base.names, this.lines, this.pins);
      this.base.labels.room = this.points.declutter;
      /** Points have come or gone, perhaps under the pointer (pointer.js). */
      this.lookBelow = () => {};
      const rewrite = { paint: () => this.base.labels.write() };
      const look = { paint: () => this.lookBelow() };
      this.chart = new engine.ChartCanvas('overlayPane', [new engine.Stack([this.lines, this.points]), rewrite, look]);
      this.chart.addTo(this.leaflet);
      this.base.onNames = () => this.chart.invalidate();
      this.controls = engine.controlsOf(this.leaflet);
      this.addControls(wanted);
      this.setOptions({ styles: wanted.styles });
      this.listen();
      engine.listenToPointer(this);
      engine.listenToKeys(this);
    }

    /** @param {MapOptions} wanted */
    addControls(wanted) {
      if (wanted.zoomControl !== false)
        L.control.zoom({ position: 'topright', zoomInTitle: zoomWords()[0], zoomOutTitle: zoomWords()[1] })
          .addTo(this.leaflet);
      if (wanted.scaleControl)
        new engine.ScaleBar().addTo(this.leaflet);
    }

    listen() {
      this.leaflet.on('move', () => {
        if (this.quiet)
          return;
        this.exactCentre = null;
        maps.event.trigger(this, 'center_changed');
      });
      this.leaflet.on('zoomend', () => {
        if (!this.quiet)
          maps.event.trigger(this, 'zoom_changed');
      });
      ['dragstart', 'dragend'].forEach(name => this.leaflet.on(name, () => maps.event.trigger(this, name)));
      this.leaflet.on('moveend', () => maps.event.trigger(this, 'idle'));
      window.addEventListener('resize', () => this.fitWindow());
    }

    /**
     * Moves the view without the events of a move by the user, which come again whatever happens in between.
     * @param {function(): void} move
     */
    quietly(move) {
      const before = this.quiet;
      this.quiet = true;
      try {
        move();
      } finally {
        this.quiet = before;
      }
    }

    /**
     * @param {google.maps.LatLng} centre
     * @param {number} zoom
     * @param {boolean} [reset] whether everything is laid out anew
     */
    setQuietly(centre, zoom, reset) {
      // Should the move fail half way, the centre is where the view is.
      this.exactCentre = null;
      this.quietly(() => {
        const how = { animate: false, reset: reset };
        this.leaflet.setView([centre.lat(), centre.lng()], zoom, how);
      });
      this.exactCentre = centre;
    }

    fitWindow() {
      const centre = this.getCenter();
      this.quietly(() => this.leaflet.invalidateSize({ animate: false, pan: false }));
      this.setQuietly(centre, this.getZoom(), true);
    }

    /** @return {google.maps.LatLng} what was set last, to the last digit, as long as the user has not moved the map */
    getCenter() {
      if (this.exactCentre)
        return this.exactCentre;
      const centre = this.leaflet.getCenter();
      return new maps.LatLng(centre.lat, centre.lng);
    }

    /**
     * A position that is no number is ignored.
     * @param {google.maps.LatLng|google.maps.LatLngLiteral} position
     */
    setCenter(position) {
      if (!engine.isFinitePosition(position))
        return;
      this.setQuietly(position, this.getZoom());
      maps.event.trigger(this, 'center_changed');
    }

    getZoom() {
      return this.leaflet.getZoom();
    }

    /**
     * Whole and broken zooms, cut to what the map can show; the centre stays. What is no number is ignored.
     * @param {number} zoom
     */
    setZoom(zoom) {
      const wanted = Number(zoom);
      if (isNaN(wanted))
        return;
      this.setQuietly(this.getCenter(), Math.max(zoomLimits.least, Math.min(zoomLimits.most, wanted)));
      maps.event.trigger(this, 'zoom_changed');
    }

    /**
     * @param {MapOptions} options those that are there are set: center, zoom, styles, disableDoubleClickZoom,
     *     draggableCursor, keyboardShortcuts
     */
    setOptions(options) {
      Object.assign(this.options, options);
      if (options.center !== undefined)
        this.setCenter(options.center);
      if (options.zoom !== undefined)
        this.setZoom(options.zoom);
      if ('styles' in options)
        this.setColours(engine.baseColours(options.styles));
      if ('draggableCursor' in options)
        this.element.style.cursor = options.draggableCursor || '';
    }

    /**
     * A dark map has dark boxes: the sheet knows the class.
     * @param {Colours} colours
     */
    setColours(colours) {
      this.base.setColours(colours);
      this.element.style.backgroundColor = colours.sea;
      this.element.classList.toggle('dark-map', !!colours.land && engine.isDark(colours.land));
      this.points.setRim(colours.placeRim || colours.land || '#ffffff');
      this.chart.invalidate();
    }

    getDiv() {
      return this.element;
    }

    /** The projection of positions to the world's pixels at zoom 0. */
    getProjection() {
      return {
        fromLatLngToPoint: (/** @type {google.maps.LatLng} */ position) => new maps.Point(
          engine.unitX(position.lng()) * engine.tileSize, engine.unitY(position.lat()) * engine.tileSize),
      };
    }
  }

  engine.supply({ Map: ChartMap });
})();
