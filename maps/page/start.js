/** The start position of the flight: one marker, which the user may drag. */
(function () {
  'use strict';

  /** A disc with a nose that points to the heading and an arrow in it: the simulator's aircraft is a silhouette. */
  const path = 'M 0 -16 L 7.2 -6.9 A 10 10 0 1 1 -7.2 -6.9 Z M 0 6 L 0 -7 M -4.5 -2.5 L 0 -7.5 L 4.5 -2.5';
  /** From afar it is smaller, or it would hide the airport. */
  const small = { below: 9, scale: 0.7 };
  /** @type {?google.maps.Marker} */
  let marker = null;
  let drawn = 0;

  /** @param {number} heading degrees */
  function iconFor(heading) {
    drawn = heading;
    const scale = map.getZoom() < small.below ? small.scale : 1;
    return page.symbol(path, page.palette.startEdge, 1.4, page.palette.start, { rotation: heading, scale: scale });
  }

  page.movers.push(() => marker);

  page.startPlace = () => (marker ? marker.getPosition() : null);

  /** Puts the marker to a place; there is never more than one. */
  page.setStart = function (position, aircraft, heading) {
    if (!page.isPlace(position))
      return;
    const title = `${pageWords.start} ${aircraft}`.trim();
    if (marker) {
      marker.setPosition(position);
      marker.setTitle(title);
      marker.setIcon(iconFor(heading));
      page.moverMoved();
      page.route.refreshTexts();
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
    page.route.refreshTexts();
    google.maps.event.addListener(marker, 'dragend', () => {
      const place = marker.getPosition();
      page.route.refreshTexts();
      page.call('doMoveSIT', place.lat(), place.lng());
    });
  };

  const dress = () => {
    if (marker)
      marker.setIcon(iconFor(drawn));
  };
  page.onPalette(dress);
  google.maps.event.addListener(map, 'zoom_changed', dress);
})();

/**
 * Shows the start marker: the place, the aircraft's name, the heading in degrees.
 * @type {(position: Place, aircraft: string, heading: number) => void}
 */
function addSitMarker(position, aircraft, heading) {
  page.setStart(position, aircraft, page.heading(heading));
}
