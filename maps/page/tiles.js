/** The raster map of `mapService.tileAddress` over the base map, with its attribution. Without an address there is none. */
(function () {
  'use strict';

  /** How much of the raster map shows: by night it is dimmed by the dark world below it. */
  const opacities = { day: 1, night: 0.45 };

  /**
   * The columns go around the world; above and below it there is nothing.
   * @param {google.maps.Point} tile
   * @param {number} zoom
   */
  function addressOf(tile, zoom) {
    const count = Math.pow(2, zoom);
    if (tile.y < 0 || tile.y >= count)
      return null;
    const column = (tile.x % count + count) % count;
    return mapService.tileAddress.replace('{z}', `${zoom}`).replace('{x}', `${column}`).replace('{y}', `${tile.y}`);
  }

  function showAttribution() {
    const element = document.createElement('div');
    element.className = 'attribution';
    element.textContent = mapService.tileAttribution;
    map.controls[google.maps.ControlPosition.BOTTOM_RIGHT].push(element);
  }

  if (!mapService.tileAddress)
    return;
  const tiles = new google.maps.ImageMapType({
    getTileUrl: addressOf,
    tileSize: new google.maps.Size(256, 256),
    maxZoom: mapService.tileLastZoom,
    name: 'tiles',
  });
  map.overlayMapTypes.push(tiles);
  page.onPalette(palette => tiles.setOpacity(opacities[palette.name]));
  if (mapService.tileAttribution)
    showAttribution();
})();
