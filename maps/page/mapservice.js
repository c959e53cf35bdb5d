/**
 * Where the map comes from, as the settings say. With an address the page takes an outside map service, without one (as
 * shipped) the map engine that lies beside the page. A service that does not come within the wait is given up: the page
 * starts again with the engine, and the program feeds the new page as it feeds any.
 */
var mapService = Object.assign({
  // For settings that leave something out, or that the engine cannot read.
  address: '',
  key: '',
  wait: 4,
  tileAddress: '',
  tileHosts: '',
  tileAttribution: '',
  tileLastZoom: 18,
}, window.mapSettings, {
  /** Whether the map is the engine's. */
  isEngine: false,
  /** Runs while the service is awaited. */
  timer: 0,
});

(function () {
  'use strict';
  const withEngine = '?engine';

  function startAgainWithEngine() {
    window.location.replace(window.location.href.replace(/[?#].*$/, '') + withEngine);
  }

  function scriptAddress() {
    if (!mapService.key)
      return mapService.address;
    const mark = mapService.address.indexOf('?') < 0 ? '?' : '&';
    return `${mapService.address}${mark}key=${encodeURIComponent(mapService.key)}`;
  }

  /** The hosts of the raster map, as a content policy names them; empty for one beside the page, and for none. */
  function tileHosts() {
    const addresses = mapService.tileAddress ? [mapService.tileAddress].concat(mapService.tileHosts.split(/\s+/)) : [];
    return addresses.map(address => (/^https?:\/\/[^/?#;,'"\s{}]+/i.exec(address) || [''])[0]).join(' ');
  }

  /**
   * The page's own files, and the pictures of the raster map: with the engine nothing else is asked for, so that what a
   * name of the databases brings into the page cannot ask for more.
   */
  function startEngine() {
    const meta = document.createElement('meta');
    meta.httpEquiv = 'Content-Security-Policy';
    meta.content = "default-src 'none'; script-src 'self' file: 'unsafe-inline' 'unsafe-eval'; "
      + `style-src 'self' file: 'unsafe-inline'; img-src 'self' file: data: ${tileHosts()}`;
    document.write(meta.outerHTML);
    mapService.isEngine = true;
    loadMapEngine();
  }

  /**
   * Writes the script of the service, or the engine, into the page. Both run before the scripts that follow, so that
   * `google.maps` stands when these need it, and the program's load event comes after all of them.
   */
  window.loadMapService = function () {
    if (!mapService.address || window.location.search === withEngine) {
      startEngine();
      return;
    }
    mapService.timer = window.setTimeout(startAgainWithEngine, mapService.wait * 1000);
    const element = document.createElement('script');
    element.src = scriptAddress();
    document.write(element.outerHTML);
  };

  /** Runs behind the service's script: takes the engine when the service has answered, but not with a map. */
  window.settleMapService = function () {
    window.clearTimeout(mapService.timer);
    if (!(window.google && window.google.maps && window.google.maps.Map))
      startEngine();
  };
})();
