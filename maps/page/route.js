/** The plan's route. */
(function () {
  'use strict';
  const colour = '#c2185b';

  page.route = new page.Track({
    colour: colour,
    weight: 3,
    zIndex: 60,
    point: page.symbol('M -4 0 A 4 4 0 1 1 4 0 A 4 4 0 1 1 -4 0 Z', colour, 2, '#ffffff'),
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
