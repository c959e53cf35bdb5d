/** `google.maps.Marker` for the few things that move by themselves or are dragged: an element of its own on the map. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  /**
   * Leaflet's names of the events and the map service's.
   * @type {Record<string, string>}
   */
  const names = { click: 'click', contextmenu: 'rightclick', dragstart: 'dragstart', drag: 'drag', dragend: 'dragend' };

  class Marker extends maps.MVCObject {
    /** @param {MarkerOptions} [options] the icon is a Symbol */
    constructor(options) {
      super();
      /** @type {?google.maps.Map} */
      this.map = null;
      /** @type {?L.Marker} */
      this.pin = null;
      this.dragged = false;
      this.size = 0;
      this.pending = 0;
      /** Where it stands on the map, for the labels. @type {?Pin} */
      this.body = null;
      /** @type {MarkerOptions} */
      this.options = Object.assign({}, options);
      this.follow = () => this.place();
      this.setMap(/** @type {google.maps.Map} */ (this.options.map));
    }

    getPosition() {
      return /** @type {google.maps.LatLng} */ (this.options.position);
    }

    /**
     * A position that is no number is ignored.
     * @param {google.maps.LatLng} position
     */
    setPosition(position) {
      if (!engine.isFinitePosition(position))
        return;
      this.options.position = position;
      if (this.map && !this.pin)
        this.enter();
      else
        this.place();
      this.keepRoom();
    }

    getTitle() {
      return this.options.title;
    }

    /** @param {string} title */
    setTitle(title) {
      this.options.title = title;
      this.showTitle();
    }

    /** @param {google.maps.Symbol} icon */
    setIcon(icon) {
      this.options.icon = icon;
      if (!this.pending)
        this.pending = window.requestAnimationFrame(() => this.drawIcon());
      this.keepRoom();
    }

    getMap() {
      return this.map;
    }

    /** @param {?google.maps.Map} map */
    setMap(map) {
      const next = map || null;
      if (next === this.map)
        return;
      if (this.map)
        this.leave();
      this.map = next;
      if (next && engine.isFinitePosition(this.options.position))
        this.enter();
    }

    enter() {
      this.pin = L.marker([0, 0], {
        icon: L.divIcon({ className: 'chart-marker', iconSize: null }),
        draggable: !!this.options.draggable,
        zIndexOffset: this.options.zIndex || 0,
        keyboard: false,
      });
      Object.keys(names).forEach(name => this.pin.on(name, leafletEvent => this.tell(name, leafletEvent)));
      this.place();
      this.pin.addTo(this.map.leaflet);
      this.keepRoom();
      this.showTitle();
      this.drawIcon();
      this.map.leaflet.on('moveend', this.follow);
    }

    leave() {
      this.map.leaflet.off('moveend', this.follow);
      if (this.pin)
        this.pin.remove();
      this.pin = null;
      if (this.map.pins.delete(this.body)) {
        this.map.points.forget();
        this.map.chart.invalidate();
      }
    }

    /**
     * Labels keep away from what may be dragged, for it stands still. What moves by itself, hundreds of times a second,
     * would drive them before it.
     */
    keepRoom() {
      if (!this.pin || !this.options.draggable || !this.options.icon)
        return;
      const at = this.getPosition();
      const icon = /** @type {google.maps.Symbol} */ (this.options.icon);
      this.body = Object.assign(this.body || {}, {
        x: engine.unitX(at.lng()), y: engine.unitY(at.lat()), radius: engine.spriteOf(icon).radius });
      this.map.pins.add(this.body);
      this.map.points.forget();
      this.map.chart.invalidate();
    }

    /**
     * What nobody listens for on the marker happens below it: to the point under the mouse, to that on which the marker
     * stands, or to the map.
     * @param {string} name Leaflet's
     * @param {L.LeafletEvent} leafletEvent
     */
    tell(name, leafletEvent) {
      const at = this.pin.getLatLng();
      const isDrag = name.indexOf('drag') === 0;
      if (isDrag) {
        this.options.position = new maps.LatLng(at.lat, at.lng);
        this.dragged = name !== 'dragend';
        if (!this.dragged)
          this.keepRoom();
      }
      const mouse = /** @type {L.LeafletMouseEvent} */ (leafletEvent).originalEvent;
      if (isDrag || maps.event.hasListeners(this, names[name])) {
        /** @type {Handed['MapMouseEvent']} */
        const told = { latLng: this.getPosition(), domEvent: mouse };
        maps.event.trigger(this, names[name], told);
        return;
      }
      engine.tellPlace(this.map, names[name], [
        { latlng: this.map.leaflet.mouseEventToLatLng(mouse), originalEvent: mouse },
        { latlng: at, originalEvent: mouse },
      ]);
    }

    /** In the copy of the world that is in view; a marker in the user's hand stays there. */
    place() {
      if (!this.pin || this.dragged)
        return;
      const position = this.getPosition();
      const longitude = engine.longitudeNear(position.lng(), this.map.leaflet.getCenter().lng);
      this.pin.setLatLng([position.lat(), longitude]);
    }

    showTitle() {
      const element = this.pin && this.pin.getElement();
      if (element)
        element.title = this.options.title || '';
    }

    /**
     * Draws on the same canvas again and only with the next frame: an aircraft that turns comes with a new icon
     * hundreds of times a second.
     */
    drawIcon() {
      this.pending = 0;
      const element = this.pin && this.pin.getElement();
      if (!element || !this.options.icon)
        return;
      const former = /** @type {?HTMLCanvasElement} */ (element.firstChild);
      const drawing = engine.drawSymbol(/** @type {google.maps.Symbol} */ (this.options.icon), former);
      if (former && this.size === drawing.size)
        return;
      this.size = drawing.size;
      Object.assign(drawing.canvas.style, {
        width: `${drawing.size}px`,
        height: `${drawing.size}px`,
        marginLeft: `${-drawing.middle}px`,
        marginTop: `${-drawing.middle}px`,
      });
      element.appendChild(drawing.canvas);
    }
  }

  engine.supply({ Marker: Marker });
})();
