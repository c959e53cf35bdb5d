/** `google.maps.LatLng` and `google.maps.Point`. */
(function () {
  'use strict';
  const engine = window.mapEngine;

  /** @param {number} longitude */
  function wrapLongitude(longitude) {
    if (longitude >= -180 && longitude <= 180)
      return longitude;
    const turned = (longitude + 180) % 360;
    return turned < 0 ? turned + 180 : turned - 180;
  }

  /**
   * A position in degrees. Latitudes are cut at the poles and longitudes wrapped to -180..180, 180 staying 180. What is
   * not a number stays so: `isFinitePosition` tells, and nothing that is drawn takes such a position.
   */
  class LatLng {
    /**
     * @param {number} latitude
     * @param {number} longitude
     */
    constructor(latitude, longitude) {
      const lat = Number(latitude);
      this.lat_ = lat > 90 ? 90 : lat < -90 ? -90 : lat;
      this.lng_ = wrapLongitude(Number(longitude));
    }

    lat() {
      return this.lat_;
    }

    lng() {
      return this.lng_;
    }

    /** @param {?google.maps.LatLng} other */
    equals(other) {
      return !!other && other.lat() === this.lat_ && other.lng() === this.lng_;
    }

    toString() {
      return `(${this.lat_}, ${this.lng_})`;
    }
  }

  /**
   * The longitude in the copy of the world in which it lies nearest to another.
   * @type {(longitude: number, other: number) => number}
   */
  engine.longitudeNear = (longitude, other) => longitude + 360 * Math.round((other - longitude) / 360);

  /** A place in pixels. */
  class Point {
    /**
     * @param {number} x
     * @param {number} y
     */
    constructor(x, y) {
      this.x = x;
      this.y = y;
    }
  }

  /** @return {boolean} whether the value is a position that can be drawn */
  engine.isFinitePosition = /** @return {position is google.maps.LatLng} */ position =>
    position instanceof LatLng && isFinite(position.lat_) && isFinite(position.lng_);

  engine.supply({ LatLng: LatLng, Point: Point });
})();
