/**
 * The map engine of a machine with no map service: writes the scripts that supply `google.maps` into the page, in the
 * order in which they build on each other. Called while the page is parsed, so that everything below stands before the
 * next script of the page runs and before the page's load event.
 */
function loadMapEngine() {
  'use strict';
  const styles = ['maps/leaflet/leaflet.css', 'maps/engine/engine.css'];
  const scripts = [
    'maps/leaflet/leaflet.js',
    'maps/world/outlines.js',
    'maps/world/names.js',
    'maps/engine/clip.js',
    'maps/engine/mercator.js',
    'maps/engine/events.js',
    'maps/engine/latlng.js',
    'maps/engine/nextframe.js',
    'maps/engine/canvas.js',
    'maps/engine/basetiles.js',
    'maps/engine/sprites.js',
    'maps/engine/styles.js',
    'maps/engine/worldcells.js',
    'maps/engine/outlines.js',
    'maps/engine/graticule.js',
    'maps/engine/names.js',
    'maps/engine/linepath.js',
    'maps/engine/lineicons.js',
    'maps/engine/lines.js',
    'maps/engine/hitgrid.js',
    'maps/engine/labels.js',
    'maps/engine/declutter.js',
    'maps/engine/points.js',
    'maps/engine/stack.js',
    'maps/engine/scalebar.js',
    'maps/engine/imagemaptype.js',
    'maps/engine/basemap.js',
    'maps/engine/controls.js',
    'maps/engine/map.js',
    'maps/engine/pointer.js',
    'maps/engine/keys.js',
    'maps/engine/data.js',
    'maps/engine/polyline.js',
    'maps/engine/marker.js',
    'maps/engine/overlay.js',
    'maps/engine/infowindow.js',
  ];
  // The program's web view reports touch without having it; Leaflet would wait for fingers.
  window.L_NO_TOUCH = true;
  styles.forEach(href => document.write(`<link rel="stylesheet" href="${href}">`));
  scripts.forEach(src => document.write(`<script src="${src}"></` + 'script>'));
}
