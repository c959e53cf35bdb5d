/** `google.maps.Data`: a layer of points with one style function and one set of listeners for all of them. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  const noSymbol = { path: 'M 0 0', strokeWeight: 0 };

  /** A point with its properties. Those of a layer also carry where and how they are drawn. */
  class Feature {
    /** @param {PointOptions} options */
    constructor(options) {
      this.geometry = /** @type {LatLng} */ (options.geometry);
      this.properties = /** @type {Record<string, unknown>} */ (options.properties || {});
      /** @type {?LayerParts} */
      this.layer = null;
      this.dressing = 0;
      // What else a layer puts there has its place from the start: to make it later costs more memory and time.
      this.x = 0;
      this.y = 0;
      /** @type {?PointStyle} */
      this.look = null;
      /** @type {?Sprite} */
      this.sprite = null;
    }

    /** @param {string} name */
    getProperty(name) {
      return this.properties[name];
    }
  }

  /**
   * @param {Feature|PointOptions} options
   * @return {google.maps.Data.Feature}
   */
  function pointOf(options) {
    return /** @type {google.maps.Data.Feature} */ (options instanceof Feature ? options : new Feature(options));
  }

  class Data extends maps.MVCObject {
    /** @param {google.maps.Data.DataOptions} [options] */
    constructor(options) {
      super();
      /** In the order in which they came. @type {google.maps.Data.Feature[]} */
      this.features = [];
      this.grid = new engine.HitGrid(this.features);
      /** @type {Map<PointParts, PointStyle>} */
      this.overrides = new Map();
      /** @type {google.maps.Data.StylingFunction|PointStyle} */
      this.style = {};
      this.dressing = 1;
      /** The icon asked for last and its sprite: neighbours mostly look alike. @type {?google.maps.Symbol} */
      this.icon = null;
      /** @type {?Sprite} */
      this.sprite = null;
      /** @type {?google.maps.Map} */
      this.map = null;
      this.setMap(options && options.map);
    }

    /**
     * Adds a point (a Feature or what makes one), taking it out of its former layer. A position that is no number makes
     * a point that is never drawn.
     * @param {google.maps.Data.Feature|PointOptions} options
     */
    add(options) {
      const feature = pointOf(options);
      if (!engine.isFinitePosition(feature.geometry))
        return feature;
      if (feature.layer !== this) {
        if (feature.layer)
          feature.layer.remove(feature);
        feature.layer = this;
        this.features.push(feature);
      }
      feature.x = engine.unitX(feature.geometry.lng());
      feature.y = engine.unitY(feature.geometry.lat());
      feature.dressing = 0;
      this.grid.forget();
      this.changed();
      return feature;
    }

    /** @param {google.maps.Data.Feature} feature */
    remove(feature) {
      if (!this.contains(feature))
        return;
      this.features.splice(this.features.indexOf(feature), 1);
      if (this.map)
        engine.leavePoint(this.map, this, feature);
      this.grid.forget();
      this.overrides.delete(feature);
      feature.layer = null;
      this.changed();
    }

    /** @param {google.maps.Data.Feature} feature */
    contains(feature) {
      return feature.layer === this;
    }

    /** @param {function(google.maps.Data.Feature): void} callback may remove points */
    forEach(callback) {
      this.features.slice().forEach(feature => callback(feature));
    }

    /**
     * @param {?google.maps.Data.StylingFunction|PointStyle} style the icon is a Symbol; a function is asked for a point
     *     when that comes into view
     */
    setStyle(style) {
      this.style = style || {};
      ++this.dressing;
      this.changed();
    }

    /**
     * Options of one point over those of the layer.
     * @param {google.maps.Data.Feature} feature
     * @param {PointStyle} style
     */
    overrideStyle(feature, style) {
      this.overrides.set(feature, Object.assign({}, this.overrides.get(feature), style));
      feature.dressing = 0;
      this.changed();
    }

    /**
     * Takes the options of one point back; without one those of all points.
     * @param {?google.maps.Data.Feature} [feature]
     */
    revertStyle(feature) {
      if (feature) {
        this.overrides.delete(feature);
        feature.dressing = 0;
      } else {
        this.overrides.clear();
        ++this.dressing;
      }
      this.changed();
    }

    /**
     * Brings `look` and `sprite` of a point up to the layer's style.
     * @param {google.maps.Data.Feature} feature
     * @param {number} ratio of the screen's pixels to CSS pixels
     */
    dress(feature, ratio) {
      const look = typeof this.style === 'function' ? this.style(feature) : this.style;
      const override = this.overrides.size ? this.overrides.get(feature) : undefined;
      feature.look = override ? Object.assign(Object.create(look), override) : look;
      const icon = /** @type {google.maps.Symbol} */ (feature.look.icon || noSymbol);
      if (icon !== this.icon || this.sprite.ratio !== ratio) {
        this.icon = icon;
        this.sprite = engine.spriteOf(icon);
      }
      feature.sprite = this.sprite;
      feature.dressing = this.dressing;
    }

    getMap() {
      return this.map;
    }

    /** @param {?google.maps.Map} map */
    setMap(map) {
      const next = map || null;
      if (next === this.map)
        return;
      if (this.map) {
        engine.leavePoint(this.map, this);
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
  engine.supply({ Data: Data });
})();
