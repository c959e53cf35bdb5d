/**
 * The raster map of `mapService.tileAddress` over the base map, with its attribution. Without an address there is none.
 */
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

  /** @param {string} text @return {HTMLElement} where it stands */
  function writeInCorner(text) {
    const element = document.createElement('div');
    element.className = 'attribution';
    element.textContent = text;
    map.controls[google.maps.ControlPosition.BOTTOM_RIGHT].push(element);
    return element;
  }

  /** What stands before the numbers in the address of each picture. */
  const beginning = mapService.tileAddress.replace(/\{.*$/, '');

  /** @param {EventTarget} target */
  const isTile = target => target instanceof HTMLImageElement
    && (target.getAttribute('src') || '').indexOf(beginning) === 0;

  /**
   * Tells when no picture has come within the wait: there is no network, the address is wrong, or it leads on to a host
   * that is not among the allowed, which the web view tells nobody.
   */
  function watchTiles() {
    /** @type {?HTMLElement} */
    let note = null;
    const timer = window.setTimeout(() => {
      note = writeInCorner(pageWords.noTiles.replace('%1', beginning));
    }, mapService.wait * 1000);
    /** @param {Event} event */
    const came = event => {
      if (!isTile(event.target))
        return;
      document.removeEventListener('load', came, true);
      window.clearTimeout(timer);
      if (note)
        note.hidden = true;
    };
    document.addEventListener('load', came, true);
  }

  if (!mapService.tileAddress)
    return;
  const tiles = new google.maps.ImageMapType({
    getTileUrl: addressOf,
    tileSize: new google.maps.Size(256, 256),
    maxZoom: mapService.tileLastZoom,
    name: 'tiles',
  });
  watchTiles();
  map.overlayMapTypes.push(tiles);
  page.onPalette(palette => tiles.setOpacity(opacities[palette.name]));
  if (mapService.tileAttribution)
    writeInCorner(mapService.tileAttribution);
})();
