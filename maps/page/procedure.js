/** The SID or STAR that the user looks at. */
(function () {
  'use strict';
  const colour = '#00796b';

  page.procedure = new page.Track({
    colour: colour,
    weight: 2.5,
    zIndex: 55,
    point: page.symbol('M -3.5 -3.5 L 3.5 -3.5 L 3.5 3.5 L -3.5 3.5 Z', colour, 1.6, '#ffffff'),
  });
})();

/** Removes the shown procedure. */
function clearSS() {
  page.procedure.clear();
}

/**
 * A point more of the shown procedure. No script ends the list, so each point is drawn as it comes.
 * @type {(position: Place, name: string) => void}
 */
function addPointToSS(position, name) {
  page.procedure.add(position, name);
  page.procedure.draw();
}
