/** The plan's route. */
(function () {
  'use strict';

  page.route = new page.Track({
    colours: ['route', 'routeFill'],
    zIndex: 60,
    point: { path: 'M -4 0 A 4 4 0 1 1 4 0 A 4 4 0 1 1 -4 0 Z', weight: 2 },
    legs: true,
    lines: (colour, fill) => [
      { strokeColor: fill, strokeOpacity: 0.8, strokeWeight: 6 },
      { strokeColor: colour, strokeOpacity: 1, strokeWeight: 3 },
    ],
  });
})();

/** Removes the route from the map. */
function clearFP() {
  page.route.clear();
}

/** The next point of the route; `pushFP` draws them. @type {(position: Place, name: string) => void} */
function addPointToFp(position, name) {
  page.route.add(position, name);
}

/** The points are complete: draws the route. */
function pushFP() {
  page.route.draw();
}
