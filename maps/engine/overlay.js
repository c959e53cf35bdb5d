/** `google.maps.OverlayView`: elements of a page's own that move with the map. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;
  const paneName = 'overlayLayer';

  /** From positions to pixels and back, of the map and of the elements in its panes. */
  class Projection {
    /** @param {L.Map} leaflet */
    constructor(leaflet) {
      this.leaflet = leaflet;
    }

    /**
     * A position in the copy of the world that is nearest to the view.
     * @param {google.maps.LatLng} position
     * @return {L.LatLngTuple}
     */
    near(position) {
      return [position.lat(), engine.longitudeNear(position.lng(), this.leaflet.getCenter().lng)];
    }

    /** @param {google.maps.LatLng} position */
    fromLatLngToDivPixel(position) {
      const point = this.leaflet.project(this.near(position)).subtract(this.leaflet.getPixelOrigin());
      return new maps.Point(point.x, point.y);
    }

    /** @param {google.maps.LatLng} position */
    fromLatLngToContainerPixel(position) {
      const pixel = this.fromLatLngToDivPixel(position);
      const point = this.leaflet.layerPointToContainerPoint([pixel.x, pixel.y]);
      return new maps.Point(point.x, point.y);
    }

    /**
     * The position of a pixel of the panes.
     * @param {google.maps.Point} pixel
     */
    fromDivPixelToLatLng(pixel) {
      const position = this.leaflet.unproject(L.point(pixel.x, pixel.y).add(this.leaflet.getPixelOrigin()));
      return new maps.LatLng(position.lat, position.lng);
    }

    /** Pixels around the world. */
    getWorldWidth() {
      return engine.tileSize * Math.pow(2, this.leaflet.getZoom());
    }
  }

  /**
   * To be derived from: `onAdd` puts elements into a pane, `draw` gives them their places, `onRemove` takes them away.
   * `draw` is called when places in the panes have become others, which a mere pan does not do.
   */
  class OverlayView extends maps.MVCObject {
    /** @return {?google.maps.Map} */
    getMap() {
      return this.map_ || null;
    }

    /** @param {?google.maps.Map} map */
    setMap(map) {
      const next = map || null;
      if (next === this.getMap())
        return;
      if (this.map_) {
        this.map_.leaflet.off('viewreset', this.redraw_);
        this.map_ = null;
        this.onRemove();
      }
      if (next) {
        this.map_ = next;
        this.redraw_ = () => this.draw();
        next.leaflet.on('viewreset', this.redraw_);
        this.onAdd();
        this.draw();
      }
    }

    /** One pane, over the lines and below the markers; the mouse goes through it. */
    getPanes() {
      const leaflet = this.map_.leaflet;
      return { overlayLayer: leaflet.getPane(paneName) || leaflet.createPane(paneName) };
    }

    getProjection() {
      return this.map_ ? new Projection(this.map_.leaflet) : undefined;
    }

    onAdd() {}

    draw() {}

    onRemove() {}
  }

  engine.supply({ OverlayView: OverlayView });
})();
