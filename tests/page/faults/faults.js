/**
 * Faults that the type check of the pages has to find. The check complains of a line that expects an error and has
 * none, so this file passes only as long as every one of them is found. It is never run.
 */
(function () {
  'use strict';
  const place = new google.maps.LatLng(46.5, 2.5);

  // @ts-expect-error a method that a position has not got
  place.latitude();
  // @ts-expect-error a method of the map, misspelt
  map.setCentre(place);
  // @ts-expect-error a text for a number
  map.setZoom('6');
  // @ts-expect-error an option of the map, misspelt
  new google.maps.Map(document.body, { center: place, zoomControls: true });
  // @ts-expect-error an option of a line that is one of no line
  new google.maps.Polyline({ path: [place], strokeWidth: 2 });
  // @ts-expect-error an option that only other classes have
  new google.maps.InfoWindow({ position: place, icon: '' });
  // @ts-expect-error a class that the map service has not got
  new google.maps.PolyLine();
  // @ts-expect-error a list of positions, not one of texts
  new google.maps.Polyline().getPath().push('46.5 2.5');
  // @ts-expect-error an option in other capitals
  new google.maps.Marker({ position: place, zindex: 5 });
  // @ts-expect-error an option of the style of points
  new google.maps.Data().setStyle({ icons: page.symbol('M 0 0', '#000', 1, '#fff'), zIndx: 1 });
  // @ts-expect-error an option of a symbol
  page.symbol('M 0 0', '#000', 1, '#fff', { rotate: 30 });
  // @ts-expect-error a property of an event of the map
  map.addListener('click', event => event.latlng.lat());
  // @ts-expect-error a property of an event of a point
  new google.maps.Data().addListener('click', event => event.feture);
  // @ts-expect-error a function of the page, misspelt
  page.openPopUp(listApt[0]);
  // @ts-expect-error latitude and longitude where a position belongs
  addPointToFp(46.5, 2.5, 'LFXX');
  // @ts-expect-error a language feature that the program's web view has not got
  Object.values(pageWords);
})();
