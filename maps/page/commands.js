/** The user's commands on markers and on the map, and which slot of the program each of them calls. */
(function () {
  'use strict';

  /** Two markers of one point, such as a VOR and the waypoint on it, lie within this many degrees. */
  const samePoint = 0.0005;
  const userPointStem = 'WPT';
  /** The menu names so many of the markers of one place; a submenu holds the others. */
  const mostMarkers = 8;

  /**
   * The title of a marker of a family at the place of another marker, for the airways; empty without one.
   * @type {(place: Place, family: MarkerFamily) => string}
   */
  function titleAt(place, family) {
    let title = '';
    page.layers.forEach(layer => layer.list.forEach(marker => {
      if (!title && marker.family === family && page.areClose(marker.position, place, samePoint))
        title = airwayTitle(marker);
    }));
    return title;
  }

  /**
   * The title by which airways are asked. They know a navaid by its identifier, for which an edit puts the name into
   * the marker's own title.
   * @param {ChartMarker} marker
   */
  const airwayTitle = marker =>
    (marker.family === 'navaid' ? `${page.identOf(marker)}-${marker.tail()}` : marker.title);

  /**
   * Airways are found by a waypoint's name first and by the navaid's at the same point after it.
   * @param {ChartMarker} marker
   */
  function askAirways(marker) {
    const title = airwayTitle(marker);
    if (marker.family === 'waypoint')
      page.call('sATS', title, titleAt(marker.position, 'navaid'));
    else
      page.call('sATS', titleAt(marker.position, 'waypoint') || title, title);
  }

  /**
   * The program finds a row by what stands behind the first "-" of a title: only with one "-" this is the key. By an
   * empty key it would take any row without one, and delete them all.
   * @param {ChartMarker} marker
   */
  function keyProblem(marker) {
    if (/^[^-]*-$/.test(marker.title))
      return pageWords.emptyKey;
    return /^[^-]*-[^-]+$/.test(marker.title) ? '' : pageWords.noKey;
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
  const byKey = (word, slot) => Object.assign(plain(word, slot), { problem: keyProblem });
  /** @type {(word: string, slot: string) => Command<ChartMarker>} */
  const edit = (word, slot) => ({
    word: word,
    slots: [slot],
    problem: keyProblem,
    run: marker => page.whileEditing(marker,
      () => page.call(slot, marker.title, marker.position.lat(), marker.position.lng())),
  });
  /** @type {(word: string, slot: string, text: string) => Command<Place>} */
  const here = (word, slot, text) => ({
    word: word,
    slots: [slot],
    run: place => page.call(slot, text, place.lat(), place.lng()),
  });
  const airways = { word: 'airways', slots: ['sATS'], run: askAirways };

  /** @type {Command<ChartMarker>} */
  const measureMarker = {
    word: 'measureHere',
    slots: [],
    run: marker => page.startMeasure(marker.position, page.describe(marker).head),
  };
  /** @type {Command<ChartMarker>} */
  const centreMarker = { word: 'centreHere', slots: [], run: marker => map.setCenter(marker.position) };

  /**
   * The words are keys of the page's language. An entry is there when the program has all its slots; with a `problem`
   * it is greyed.
   * @type {Record<MarkerFamily, Command<ChartMarker>[]>}
   */
  const markerCommands = {
    airport: [plain('addToPlan', 'sAddAptToFp'), plain('showRunways', 'doViewRwy')],
    navaid: [
      byKey('addToPlan', 'sAddNavToFp'),
      airways,
      edit('editNavaid', 'sAddNavToDB'),
      byKey('deleteNavaid', 'sDelNavFromDB'),
    ],
    waypoint: [
      byKey('addToPlan', 'sAddWptToFp'),
      airways,
      edit('editWaypoint', 'sAddWptToDB'),
      byKey('deleteWaypoint', 'sDelWptFromDB'),
    ],
    point: [],
  };

  /** @type {Command<Place>[]} */
  const mapCommands = [
    here('userPoint', 'sAddNewWptToFp', userPointStem),
    { word: 'startHere', slots: ['sAddSitToFp', 'doMoveSIT'], run: startHere },
    here('newWaypoint', 'sAddWptToDB', ''),
    here('newNavaid', 'sAddNavToDB', ''),
  ];

  /** @type {Command<Place>[]} */
  const viewCommands = [
    { word: 'measureHere', slots: [], run: place => page.startMeasure(place, '') },
    {
      word: 'endMeasure',
      slots: [],
      problem: () => (page.isMeasuring() ? '' : pageWords.notMeasuring),
      run: () => page.endMeasure(),
    },
    {
      word: 'clearMeasure',
      slots: [],
      problem: () => (page.hasMeasure() ? '' : pageWords.noMeasure),
      run: () => page.clearMeasure(),
    },
    { word: 'centreHere', slots: [], run: place => map.setCenter(place) },
  ];

  /** @type {Command<Place>[]} */
  const clearCommands = [
    {
      word: 'clearRunways',
      slots: [],
      problem: () => (page.hasRunways() ? '' : pageWords.noRunways),
      run: () => page.clearRunways(),
    },
    {
      word: 'clearTrail',
      slots: [],
      problem: () => (page.hasTrail() ? '' : pageWords.noTrail),
      run: () => page.clearTrail(),
    },
  ];

  /** @type {<Subject>(commands: Command<Subject>[], subject: Subject) => MenuEntry[]} */
  function entriesFor(commands, subject) {
    return commands
      .filter(command => command.slots.every(page.offers))
      .map(command => ({
        text: pageWords[command.word],
        reason: command.problem ? command.problem(subject) : '',
        run: () => command.run(subject),
      }));
  }

  /** Groups of entries with a line between them. @type {(...groups: MenuEntry[][]) => MenuEntry[]} */
  function grouped(...groups) {
    return groups.filter(group => group.length).reduce((all, group) =>
      (all.length ? all.concat({ separator: true }, group) : group), []);
  }

  /** @param {ChartMarker} marker */
  function use(marker) {
    if (page.hasRow(marker))
      theLast = marker;
  }

  /**
   * The entries for one marker. Whatever is chosen, a marker with a row becomes the last used: the program may ask to
   * delete it.
   * @param {ChartMarker} marker
   */
  function entriesOfMarker(marker) {
    const all = grouped(entriesFor(markerCommands[marker.family], marker),
      entriesFor([measureMarker, centreMarker], marker));
    return all.map(entry => (entry.separator ? entry : Object.assign({}, entry, {
      run: () => {
        use(marker);
        entry.run();
      },
    })));
  }

  /** @param {Place} place */
  const entriesOfPlace = place => grouped(entriesFor(mapCommands, place), entriesFor(viewCommands, place),
    entriesFor(clearCommands, place));

  /** @type {(place: Place) => Title} */
  const titleOfPlace = place => ({ head: pageWords.mapMenu, lines: [page.positionText(place)] });

  /** @type {(marker: ChartMarker) => MenuEntry} */
  function submenuOf(marker) {
    const words = page.describe(marker);
    return { text: words.head, title: words, submenu: entriesOfMarker(marker) };
  }

  /**
   * Of several markers each has a submenu; the place has its own entries below them.
   * @type {(markers: ChartMarker[], place: Place, at?: Spot) => void}
   */
  function openForSeveral(markers, place, at) {
    const shown = page.shorten(markers, mostMarkers);
    const rest = markers.slice(shown.length);
    const title = { head: pageWords.severalHere.replace('%1', String(markers.length)), lines: [page.positionText(place)] };
    const more = rest.length ? [{
      text: pageWords.moreHere.replace('%1', String(rest.length)),
      title: title,
      submenu: rest.map(submenuOf),
    }] : [];
    page.openMenu(title, grouped(shown.map(submenuOf).concat(more), entriesOfPlace(place)), at);
  }

  /** @type {(marker: ChartMarker, place: Place, at?: Spot) => void} */
  function openForOne(marker, place, at) {
    const ofPlace = { text: pageWords.mapMenu, title: titleOfPlace(place), submenu: entriesOfPlace(place) };
    page.openMenu(page.describe(marker), grouped(entriesOfMarker(marker), [ofPlace]), at);
  }

  /**
   * Opens the menu of what lies at a place.
   * @param {Place} place
   * @param {?ChartMarker} first the marker that the map has found there
   * @param {Spot} [at] where the menu opens; without it, at the pointer
   */
  page.openMenuOf = function (place, first, at) {
    const markers = page.markersAt(place, first);
    const objects = page.moversAt(place).concat(markers);
    if (!objects.length) {
      page.openMenu(titleOfPlace(place), entriesOfPlace(place), at);
      return;
    }
    markers.filter(page.hasRow).slice(0, 1).forEach(use);
    // Whoever starts, measures or makes a point on a marker means the marker's place, not the pixel beside it.
    const exact = (markers[0] || objects[0]).position;
    if (objects.length > 1)
      openForSeveral(objects, exact, at);
    else
      openForOne(objects[0], exact, at);
  };

  /** @param {ChartMarker} marker */
  function clicked(marker) {
    if (page.isMeasuring()) {
      page.measureTo(marker.position, page.describe(marker).head);
      return;
    }
    use(marker);
    page.openPopup(marker);
  }

  /**
   * The mouse on the markers of a layer: the pop-up, the menu, the box beside the pointer. Without another way a
   * feature's marker is its property.
   */
  page.listenToLayer = function (layer, markerOfFeature) {
    /** @param {google.maps.Data.MouseEvent} event */
    const markerOf = event => (markerOfFeature ? markerOfFeature(event.feature) : event.feature.getProperty('marker'));
    /** @param {?ChartMarker} marker */
    const pointed = marker => {
      page.reportMarker(marker);
      page.pointAt(marker);
      page.snapMeasure(marker);
    };
    layer.addListener('click', event => clicked(markerOf(event)));
    layer.addListener('dblclick', () => page.endMeasure());
    layer.addListener('rightclick', event => page.openMenuOf(event.latLng, markerOf(event)));
    layer.addListener('mouseover', event => pointed(markerOf(event)));
    layer.addListener('mouseout', () => pointed(null));
  };

  map.addListener('rightclick', event => page.openMenuOf(event.latLng, null));
})();
