/** `google.maps.ImageMapType`: a raster map out of square pictures, for `Map.overlayMapTypes`. */
(function () {
  'use strict';
  const maps = window.google.maps;
  const engine = window.mapEngine;

  class Size {
    constructor(width, height) {
      this.width = width;
      this.height = height;
    }
  }

  const Raster = L.GridLayer.extend({
    /** @param {ImageMapType} type */
    initialize: function (type) {
      L.setOptions(this, {
        pane: 'rasterPane',
        tileSize: type.options.tileSize ? type.options.tileSize.width : engine.tileSize,
        maxNativeZoom: type.options.maxZoom,
        minNativeZoom: type.options.minZoom,
        opacity: type.getOpacity(),
      });
      this.type = type;
    },

    /** A picture that does not come leaves its place to what is painted below. */
    createTile: function (coordinates, done) {
      const image = document.createElement('img');
      const address = this.type.options.getTileUrl(new maps.Point(coordinates.x, coordinates.y), coordinates.z);
      image.alt = '';
      image.onload = () => done(null, image);
      image.onerror = () => {
        image.style.visibility = 'hidden';
        done(new Error(`no map picture ${address}`), image);
      };
      if (address)
        image.src = address;
      else
        image.style.visibility = 'hidden';
      return image;
    },
  });

  class ImageMapType extends maps.MVCObject {
    /**
     * @param {{getTileUrl: function(google.maps.Point, number): ?string, tileSize: Size, maxZoom, minZoom, name,
     *     opacity}} options
     */
    constructor(options) {
      super();
      this.options = Object.assign({ opacity: 1 }, options);
      this.raster = null;
    }

    getOpacity() {
      return this.options.opacity;
    }

    setOpacity(opacity) {
      this.options.opacity = opacity;
      if (this.raster)
        this.raster.setOpacity(opacity);
    }
  }

  engine.rasterOf = type => {
    type.raster = new Raster(type);
    return type.raster;
  };

  maps.Size = Size;
  maps.ImageMapType = ImageMapType;
})();
