/** The simulator's aircraft. */
(function () {
  'use strict';

  const path = 'M 0 -14 L 2 -11 L 2 -5 L 13 2 L 13 5 L 2 2 L 1.5 9 L 5 11.5 L 5 13.5 L 0 12 '
    + 'L -5 13.5 L -5 11.5 L -1.5 9 L -2 2 L -13 5 L -13 2 L -2 -5 L -2 -11 Z';
  /** @type {?google.maps.Marker} */
  let marker = null;
  let drawn = NaN;

  /** @param {number} heading degrees */
  function iconFor(heading) {
    drawn = heading;
    return page.symbol(path, page.palette.aircraftEdge, 1.2, page.palette.aircraft, { rotation: heading });
  }

  page.movers.push(() => marker);

  /** The trail stays until the next aircraft comes. */
  page.eraseAircraft = function () {
    if (marker)
      marker.setMap(null);
    marker = null;
    page.moverMoved();
  };

  page.showAircraft = function (position, title, heading) {
    page.eraseAircraft();
    page.clearTrail();
    marker = new google.maps.Marker({
      position: position,
      map: map,
      icon: iconFor(page.heading(heading)),
      title: title || pageWords.aircraft,
      zIndex: 2000,
    });
    if (page.isPlace(position))
      page.continueTrail(position);
    page.moverMoved();
  };

  /**
   * Moves the aircraft; the picture is drawn again only when it turns. A tick without a place is no tick, for a map
   * that follows stands still then as well. Without a heading the aircraft keeps its last one, and goes where the map
   * goes.
   */
  page.moveAircraft = function (position, heading) {
    if (!marker || !page.isPlace(position))
      return;
    marker.setPosition(position);
    if (isFinite(heading) && page.heading(heading) !== drawn)
      marker.setIcon(iconFor(page.heading(heading)));
    page.continueTrail(position);
    page.moverMoved();
  };

  page.onPalette(() => {
    if (marker)
      marker.setIcon(iconFor(drawn));
  });
})();

/** Shows the aircraft; the title comes empty. @type {(position: Place, title: string, heading: number) => void} */
function addAcftMrkr(position, title, heading) {
  page.showAircraft(position, title, heading);
}

/** Moves the aircraft; comes with every tick of the trace. @type {(position: Place, heading: number) => void} */
function setAcftMrkr(position, heading) {
  page.moveAircraft(position, heading);
}

/** Removes the aircraft. */
function eraseAcftMrkr() {
  page.eraseAircraft();
}
