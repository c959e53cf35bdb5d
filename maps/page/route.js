/** The plan's route: its line; its points are those of planpoints.js. */
(function () {
  'use strict';

  page.route = new page.Track({
    colours: ['route', 'routeFill'],
    zIndex: 60,
    legs: true,
    lines: (colour, fill) => [
      { strokeColor: fill, strokeOpacity: 1, strokeWeight: 5.5 },
      { strokeColor: colour, strokeOpacity: 1, strokeWeight: 3 },
    ],
  });
})();

/** Removes the route from the map. */
function clearFP() {
  page.route.clear();
  page.setPlanPoints([]);
}

/** The next point of the route; `pushFP` draws them. @type {(position: Place, name: string) => void} */
function addPointToFp(position, name) {
  page.route.add(position, name);
}

/** The points are complete: draws the route. */
function pushFP() {
  page.setPlanPoints(page.route.points);
  page.route.draw();
}
