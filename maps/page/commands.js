/** The user's commands on markers and on the empty map, and which slot of the program each of them calls. */
(function () {
  'use strict';

  /** Two markers of one point, such as a VOR and the waypoint on it, lie within this many degrees. */
  const samePoint = 0.0005;
  const userPointStem = 'WPT';

  /**
   * The title of a marker of a family at the place of another marker; empty without one.
   * @type {(place: Place, family: MarkerFamily) => string}
   */
  function titleAt(place, family) {
    /** @type {(a: Place, b: Place) => boolean} */
    const near = (a, b) => Math.abs(a.lat() - b.lat()) < samePoint && Math.abs(a.lng() - b.lng()) < samePoint;
    let title = '';
    page.layers.forEach(layer => layer.list.forEach(marker => {
      if (!title && marker.family === family && near(marker.position, place))
        title = marker.title;
    }));
    return title;
  }

  /**
   * Airways are found by a waypoint's name first and by the navaid's at the same point after it.
   * @param {ChartMarker} marker
   */
  function askAirways(marker) {
    if (marker.family === 'waypoint')
      page.call('sATS', marker.title, titleAt(marker.position, 'navaid'));
    else
      page.call('sATS', titleAt(marker.position, 'waypoint') || marker.title, marker.title);
  }

  /** @param {Place} place */
  function startHere(place) {
    page.call('sAddSitToFp', place.lat(), place.lng());
    // The slot above only draws; this one moves the start position.
    page.call('doMoveSIT', place.lat(), place.lng());
  }

  /** @type {(word: string, slot: string) => Command<ChartMarker>} */
  const plain = (word, slot) => ({ word: word, slots: [slot], run: marker => page.call(slot, marker.title) });
  /** @type {(word: string, slot: string) => Command<ChartMarker>} */
  const edit = (word, slot) => ({
    word: word,
    slots: [slot],
    run: marker => page.call(slot, marker.title, marker.position.lat(), marker.position.lng()),
  });
  /** @type {(word: string, slot: string, text: string) => Command<Place>} */
  const here = (word, slot, text) => ({
    word: word,
    slots: [slot],
    run: place => page.call(slot, text, place.lat(), place.lng()),
  });
  const airways = { word: 'airways', slots: ['sATS'], run: askAirways };

  /**
   * The words are keys of the page's language. An entry is shown when the program has all its slots.
   * @type {Record<MarkerFamily, Command<ChartMarker>[]>}
   */
  const markerCommands = {
    airport: [plain('addToPlan', 'sAddAptToFp'), plain('showRunways', 'doViewRwy')],
    navaid: [
      plain('addToPlan', 'sAddNavToFp'),
      airways,
      edit('editNavaid', 'sAddNavToDB'),
      plain('deleteNavaid', 'sDelNavFromDB'),
    ],
    waypoint: [
      plain('addToPlan', 'sAddWptToFp'),
      airways,
      edit('editWaypoint', 'sAddWptToDB'),
      plain('deleteWaypoint', 'sDelWptFromDB'),
    ],
  };

  /** @type {Command<Place>[]} */
  const mapCommands = [
    here('userPoint', 'sAddNewWptToFp', userPointStem),
    { word: 'startHere', slots: ['sAddSitToFp', 'doMoveSIT'], run: startHere },
    here('newWaypoint', 'sAddWptToDB', ''),
    here('newNavaid', 'sAddNavToDB', ''),
    { word: 'clearRunways', slots: [], wanted: page.hasRunways, run: page.clearRunways },
    { word: 'centreHere', slots: [], run: place => map.setCenter(place) },
  ];

  /** @type {<Subject>(commands: Command<Subject>[], subject: Subject) => MenuEntry[]} */
  function entriesFor(commands, subject) {
    return commands
      .filter(command => command.slots.every(page.offers) && (!command.wanted || command.wanted()))
      .map(command => ({ text: pageWords[command.word], run: () => command.run(subject) }));
  }

  /** Clicks on the markers of a layer: the pop-up, the menu, the title beside the pointer. */
  page.listenToLayer = function (layer) {
    /** @param {google.maps.Data.MouseEvent} event */
    const markerOf = event => event.feature.getProperty('marker');
    layer.addListener('click', event => {
      theLast = markerOf(event);
      page.openPopup(theLast);
    });
    layer.addListener('rightclick', event => {
      theLast = markerOf(event);
      page.openMenu(theLast.title, entriesFor(markerCommands[theLast.family], theLast));
    });
    layer.addListener('mouseover', event => page.pointAt(markerOf(event)));
    layer.addListener('mouseout', () => page.pointAt(null));
  };

  map.addListener('rightclick', event =>
    page.openMenu(pageWords.mapMenu, entriesFor(mapCommands, event.latLng)));
})();
