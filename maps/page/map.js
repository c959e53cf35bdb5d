/** The map itself. The program reads and sets its centre and zoom through the global `map`. */
var map = new google.maps.Map(document.getElementById('chart'), {
  center: new google.maps.LatLng(46.5, 2.5),
  zoom: 6,
  mapTypeId: 'terrain',
  zoomControl: true,
  scaleControl: true,
  mapTypeControl: false,
  streetViewControl: false,
  fullscreenControl: false,
  gestureHandling: 'greedy',
});
