/** `google.maps.Data`: a layer of points with one style function and one set of listeners for all of them. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  const noSymbol = { path: 'M 0 0', strokeWeight: 0 };

  /** A point with its properties. Those of a layer that is shown also carry where and how they are drawn. */
  class Feature {
    /** @param {{geometry: LatLng, properties: Object}} options */
    constructor(options) {
      this.geometry = options.geometry;
      this.properties = options.properties || {};
      this.layer = null;
    }

    getProperty(name) {
      return this.properties[name];
    }

    getGeometry() {
      return { getType: () => 'Point', get: () => this.geometry };
    }
  }

  class Data extends maps.MVCObject {
    /** @param {{map: Map}} options */
    constructor(options) {
      super();
      this.features = new Set();
      this.style = {};
      this.map = null;
      this.setMap(options && options.map);
    }

    /** Adds a point (a Feature or what makes one). A position that is no number makes a point that is never drawn. */
    add(options) {
      const feature = options instanceof Feature ? options : new Feature(options);
      if (!engine.isFinitePosition(feature.geometry))
        return feature;
      feature.layer = this;
      feature.x = engine.unitX(feature.geometry.lng());
      feature.y = engine.unitY(feature.geometry.lat());
      this.dress(feature);
      this.features.add(feature);
      this.changed();
      return feature;
    }

    remove(feature) {
      if (!this.features.delete(feature))
        return;
      feature.layer = null;
      this.changed();
    }

    contains(feature) {
      return this.features.has(feature);
    }

    forEach(callback) {
      this.features.forEach(feature => callback(feature));
    }

    /** @param {Object|function(Feature): Object} style options with icon (a Symbol), label, zIndex and clickable */
    setStyle(style) {
      this.style = style || {};
      this.features.forEach(feature => this.dress(feature));
      this.changed();
    }

    dress(feature) {
      feature.look = typeof this.style === 'function' ? this.style(feature) : this.style;
      feature.sprite = engine.spriteOf(feature.look.icon || noSymbol);
    }

    getMap() {
      return this.map;
    }

    setMap(map) {
      const next = map || null;
      if (next === this.map)
        return;
      if (this.map) {
        this.map.points.hide(this);
        this.map.chart.invalidate();
      }
      this.map = next;
      if (next) {
        next.points.show(this);
        next.chart.invalidate();
      }
    }

    changed() {
      if (this.map) {
        this.map.points.forget();
        this.map.chart.invalidate();
      }
    }
  }

  Data.Feature = Feature;
  maps.Data = Data;
})();
