/** The runways of the airport that the user asked for. */
(function () {
  'use strict';

  /** @type {google.maps.Polyline[]} */
  let lines = [];

  /** @type {(path: Place[], colour: string, weight: number, zIndex: number) => void} */
  function draw(path, colour, weight, zIndex) {
    lines.push(new google.maps.Polyline({
      path: path,
      strokeColor: colour,
      strokeWeight: weight,
      strokeOpacity: 1,
      clickable: false,
      zIndex: zIndex,
      map: map,
    }));
  }

  /** A dark runway with a light centre line, wide enough to be found from afar. */
  page.drawRunway = function (highEnd, lowEnd) {
    if (!page.isPlace(highEnd) || !page.isPlace(lowEnd))
      return;
    draw([highEnd, lowEnd], '#39424a', 7, 50);
    draw([highEnd, lowEnd], '#ffffff', 1, 51);
  };

  page.clearRunways = function () {
    lines.forEach(line => line.setMap(null));
    lines = [];
  };

  page.hasRunways = () => lines.length > 0;
})();

/** Removes the runways shown. */
function clearRunway() {
  page.clearRunways();
}

/** One runway from its high end to its low end. @type {(highEnd: Place, lowEnd: Place) => void} */
function drawRwy(highEnd, lowEnd) {
  page.drawRunway(highEnd, lowEnd);
}
