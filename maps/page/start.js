/** The start position of the flight: one marker, which the user may drag. */
(function () {
  'use strict';

  const path = 'M 0 -15 L 4 -4 L 11 2 L 11 5 L 3 3 L 2 9 L 5 12 L 5 14 L 0 12.5 '
    + 'L -5 14 L -5 12 L -2 9 L -3 3 L -11 5 L -11 2 L -4 -4 Z';
  /** @type {?google.maps.Marker} */
  let marker = null;
  let drawn = 0;

  /** @param {number} heading degrees */
  function iconFor(heading) {
    drawn = heading;
    return page.symbol(path, page.palette.startEdge, 1.4, page.palette.start, { rotation: heading });
  }

  /** Puts the marker to a place; there is never more than one. */
  page.setStart = function (position, aircraft, heading) {
    if (!page.isPlace(position))
      return;
    const title = `${pageWords.start} ${aircraft}`.trim();
    if (marker) {
      marker.setPosition(position);
      marker.setTitle(title);
      marker.setIcon(iconFor(heading));
      return;
    }
    marker = new google.maps.Marker({
      position: position,
      map: map,
      icon: iconFor(heading),
      title: title,
      draggable: true,
      zIndex: 1000,
    });
    google.maps.event.addListener(marker, 'dragend', () => {
      const place = marker.getPosition();
      page.call('doMoveSIT', place.lat(), place.lng());
    });
  };

  page.onPalette(() => {
    if (marker)
      marker.setIcon(iconFor(drawn));
  });
})();

/**
 * Shows the start marker: the place, the aircraft's name, the heading in degrees.
 * @type {(position: Place, aircraft: string, heading: number) => void}
 */
function addSitMarker(position, aircraft, heading) {
  page.setStart(position, aircraft, page.heading(heading));
}
