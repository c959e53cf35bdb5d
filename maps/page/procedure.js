/** The SID or STAR that the user looks at. */
(function () {
  'use strict';

  /**
   * A dash. The paths of a line's symbols point upwards, which is the way of the line.
   * @type {(colour: string) => google.maps.Symbol}
   */
  const dash = colour => ({ path: 'M 0 -5 L 0 5', strokeColor: colour, strokeOpacity: 1, strokeWeight: 2.5 });
  /** @type {(colour: string) => google.maps.Symbol} */
  const arrow = colour => ({
    path: 'M 0 -7 L 4.5 4 L 0 1.5 L -4.5 4 Z',
    strokeWeight: 0,
    fillColor: colour,
    fillOpacity: 1,
  });

  page.procedure = new page.Track({
    colours: ['procedure', 'procedureFill'],
    zIndex: 55,
    point: { path: 'M -3.5 -3.5 L 3.5 -3.5 L 3.5 3.5 L -3.5 3.5 Z', weight: 1.6, word: 'procedurePoint' },
    lines: (colour, fill) => [
      { strokeColor: fill, strokeOpacity: 1, strokeWeight: 5 },
      {
        strokeOpacity: 0,
        icons: [
          { icon: dash(colour), offset: '8px', repeat: '15px' },
          { icon: arrow(colour), offset: '38px', repeat: '120px' },
        ],
      },
    ],
  });
})();

/** Removes the shown procedure. */
function clearSS() {
  page.procedure.clear();
  page.dressLayers();
}

/**
 * A point more of the shown procedure. No script ends the list, so each point is drawn as it comes.
 * @type {(position: Place, name: string) => void}
 */
function addPointToSS(position, name) {
  page.procedure.add(position, name);
  page.procedure.draw();
  page.dressLayers();
}
