/** `google.maps.ImageMapType`: a raster map out of square pictures, for `Map.overlayMapTypes`. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  class Size {
    /**
     * @param {number} width
     * @param {number} height
     */
    constructor(width, height) {
      this.width = width;
      this.height = height;
    }
  }

  class Raster extends L.GridLayer {
    /** @param {google.maps.ImageMapType} type */
    constructor(type) {
      super({
        pane: 'rasterPane',
        tileSize: type.options.tileSize ? type.options.tileSize.width : engine.tileSize,
        maxNativeZoom: type.options.maxZoom,
        minNativeZoom: type.options.minZoom,
        opacity: type.getOpacity(),
      });
      this.type = type;
      /** Whether the view has no picture. */
      this.isBlank = true;
      this.onBlank = () => {};
      this.on('tileload', () => this.setBlank(false));
      this.on('load', () => this.setBlank(!this.hasPicture()));
    }

    /** @param {boolean} isBlank */
    setBlank(isBlank) {
      if (isBlank === this.isBlank)
        return;
      this.isBlank = isBlank;
      this.onBlank();
    }

    hasPicture() {
      return Object.keys(this._tiles).some(key =>
        this._tiles[key].current && this._tiles[key].el.style.visibility !== 'hidden');
    }

    /**
     * A picture that does not come leaves its place to what is painted below.
     * @param {L.Coords} coordinates
     * @param {L.DoneCallback} done
     */
    createTile(coordinates, done) {
      const image = document.createElement('img');
      const address = this.type.options.getTileUrl(new maps.Point(coordinates.x, coordinates.y), coordinates.z);
      const missed = () => {
        image.style.visibility = 'hidden';
        done(new Error(`no map picture ${address}`), image);
      };
      image.alt = '';
      image.onload = () => done(null, image);
      image.onerror = missed;
      if (address)
        image.src = address;
      else
        window.setTimeout(missed, 0);
      return image;
    }
  }

  class ImageMapType extends maps.MVCObject {
    /** @param {ImageMapTypeOptions} options */
    constructor(options) {
      super();
      this.options = Object.assign({ opacity: 1 }, options);
      /** @type {?L.GridLayer} */
      this.raster = null;
    }

    getOpacity() {
      return this.options.opacity;
    }

    /** @param {number} opacity */
    setOpacity(opacity) {
      this.options.opacity = opacity;
      if (this.raster)
        this.raster.setOpacity(opacity);
    }
  }

  engine.rasterOf = (type, onBlank) => {
    const raster = new Raster(/** @type {google.maps.ImageMapType} */ (type));
    raster.type.raster = raster;
    raster.onBlank = onBlank;
    return raster;
  };

  engine.supply({ Size: Size, ImageMapType: ImageMapType });
})();
