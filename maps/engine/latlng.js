/** `google.maps.LatLng` and `google.maps.Point`. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

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

    equals(other) {
      return !!other && other.lat() === this.lat_ && other.lng() === this.lng_;
    }

    toString() {
      return `(${this.lat_}, ${this.lng_})`;
    }
  }

  /** A place in pixels. */
  class Point {
    constructor(x, y) {
      this.x = x;
      this.y = y;
    }
  }

  /** @return {boolean} whether the value is a position that can be drawn */
  engine.isFinitePosition = position =>
    position instanceof LatLng && isFinite(position.lat_) && isFinite(position.lng_);

  maps.LatLng = LatLng;
  maps.Point = Point;
})();
