/**
 * The points of the plan, each with the symbol of what stands there: they show at every zoom, also when their layer
 * does not. The program tells a name and a place for each; the marker of that name at that place is found here.
 */
(function () {
  'use strict';

  /** Above everything but what moves. */
  const height = 63;
  /** Places are told with five decimals. */
  const decimals = 1e5;
  /** A point where no marker is known, such as one that the user has made. */
  const unknown = { path: 'M 0 -5.6 L 5.2 3.6 L -5.2 3.6 Z', weight: 1.6 };

  /** @type {?google.maps.Data} */
  let layer = null;
  /** @type {TrackPoint[]} */
  let points = [];
  /** @type {Set<ChartMarker>} */
  let planned = new Set();
  /** What the plan has drawn and named, each by its marker or its own object. @type {PlanPoint[]} */
  let drawnPoints = [];
  /** The same by place: each point of a long plan asks for those where it stands. @type {Map<number, PlanPoint[]>} */
  let drawnByPlace = new Map();
  /** Of the last plan, and still those when it is drawn again. @type {Map<string, ChartMarker>} */
  let objects = new Map();

  /** @param {Place} position */
  const keyOf = position =>
    Math.round(position.lat() * decimals) * 1e8 + Math.round(position.lng() * decimals);

  /** @param {TrackPoint} point */
  const pointKey = point => `${keyOf(point.position)} ${point.name}`;

  /** @type {(position: Place) => PlanPoint[]} what the plan has drawn there */
  const drawnAt = position => drawnByPlace.get(keyOf(position)) || [];

  /** @param {PlanPoint} point */
  function noteDrawn(point) {
    drawnPoints.push(point);
    drawnByPlace.set(point.key, (drawnByPlace.get(point.key) || []).concat(point));
  }

  /** The markers at the places of the points, by place. */
  function markersByPlace() {
    /** @type {Map<number, ChartMarker[]>} */
    const found = new Map();
    points.forEach(point => found.set(keyOf(point.position), []));
    page.layers.forEach(each => each.list.forEach(marker => {
      const there = found.get(keyOf(marker.position));
      if (there)
        there.push(marker);
    }));
    return found;
  }

  /** A marker's texts have lost the blanks about them. @type {(marker: ChartMarker, name: string) => boolean} */
  const bears = (marker, name) => page.nameOf(marker) === name.trim() || page.identOf(marker) === name.trim();

  /**
   * The marker of the point's name; of several the one that charts draw above the others. A point that the user has
   * made on a marker is none of them: it has its own name.
   * @type {(point: TrackPoint, candidates: ChartMarker[]) => ?ChartMarker}
   */
  function markerFor(point, candidates) {
    return candidates
      .filter(marker => bears(marker, point.name))
      .reduce((best, marker) =>
        (best && page.symbolHeight(best.symbol) >= page.symbolHeight(marker.symbol) ? best : marker), null);
  }

  /** Points where no marker is known are objects of their own: the same for the same name and place. */
  function fitObjects() {
    const former = objects;
    if (points.length)
      objects = new Map();
    points.forEach(point => {
      const key = pointKey(point);
      objects.set(key, former.get(key)
        || page.newPoint(point.position, point.name, `${pageWords.planPoint} ${point.name}`));
    });
  }

  /** @param {string} name @return {google.maps.Data.StyleOptions} */
  function plainLook(name) {
    const colours = page.palette;
    return {
      icon: page.labelledBelow(page.symbol(unknown.path, colours.route, unknown.weight, colours.routeFill)),
      zIndex: height,
      label: page.labelOf(name, colours.route, 12, { fontWeight: 'bold' }),
    };
  }

  /**
   * The identifier, and from near the rest that stands beside other markers of the kind. A VOR has it around its rose.
   * @param {ChartMarker} marker
   */
  const textOf = marker => (page.hasRow(marker) && page.hasNames(marker.symbol) && !page.hasRose(marker)
    ? page.longText(marker) : page.identOf(marker));

  /** What is written beside a point of the plan. */
  page.planText = function (point) {
    const drawn = drawnAt(point.position).find(each => bears(each.marker, point.name));
    return drawn ? textOf(drawn.marker) : point.name;
  };

  /** @param {google.maps.Data.Feature} feature @return {google.maps.Data.StyleOptions} */
  function lookOf(feature) {
    const marker = feature.getProperty('marker');
    return page.hasRow(marker)
      ? page.fullLook(marker, { colour: page.palette.route, zIndex: height, text: textOf(marker) })
      : plainLook(marker.title);
  }

  function newLayer() {
    const made = new google.maps.Data();
    made.setStyle(lookOf);
    page.listenToLayer(made);
    return made;
  }

  /** Draws the points anew where the looks of their markers have changed. */
  page.dressPlan = function () {
    if (layer)
      layer.setStyle(lookOf);
  };

  /** Whether a point of another track stands in the plan under the same name, which is written there already. */
  page.planTells = point => drawnAt(point.position).some(({ marker }) => page.identOf(marker) === point.name);

  /** Whether a marker is that of a point of a track: its place and one of its names. */
  page.isPointOf = (marker, point) => keyOf(marker.position) === keyOf(point.position) && bears(marker, point.name);

  /** The marker of a point of a track, or the plan's object for it; null without either. */
  page.markerOfPoint = function (point) {
    const key = keyOf(point.position);
    /** @type {ChartMarker[]} */
    const there = [];
    page.layers.forEach(each => each.list.forEach(marker => {
      // Nearly all are told apart by this.
      if (Math.abs(marker.position.lat() - point.position.lat()) < 1 / decimals && keyOf(marker.position) === key)
        there.push(marker);
    }));
    const own = drawnAt(point.position).find(each => each.marker.title === point.name);
    return markerFor(point, there) || (own ? own.marker : null);
  };

  page.pointSources.push(() => drawnPoints.map(each => each.marker).filter(marker => !page.hasRow(marker)));

  /** @return {boolean} whether a marker is drawn as a point of the plan */
  page.isPlanned = marker => planned.size > 0 && planned.has(marker);

  /** @return {ChartMarker[]} those that are drawn as points of the plan */
  page.plannedMarkers = () => Array.from(planned);

  /** Finds the points' markers again, after markers have come or gone. */
  page.matchPlan = function () {
    if (!points.length && !layer)
      return;
    const found = markersByPlace();
    const drawn = new Set();
    planned = new Set();
    drawnPoints = [];
    drawnByPlace = new Map();
    if (layer)
      layer.setMap(null);
    layer = points.length ? newLayer() : null;
    fitObjects();
    points.forEach(point => {
      const known = markerFor(point, found.get(keyOf(point.position)));
      const marker = known || objects.get(pointKey(point));
      if (drawn.has(marker))
        return;
      drawn.add(marker);
      if (known)
        planned.add(known);
      noteDrawn({ marker: marker, key: keyOf(point.position) });
      layer.add({ geometry: point.position, properties: { marker: marker } });
    });
    if (layer)
      layer.setMap(map);
    page.dressLayers();
    page.fitRoses();
    page.procedure.dressPoints();
    page.closeLostPopup();
    page.moverMoved();
    page.route.refreshTexts();
  };

  /**
   * The points of the plan as it is drawn.
   * @param {TrackPoint[]} next empty: there is no plan on the map
   */
  page.setPlanPoints = function (next) {
    points = next.filter(point => page.isPlace(point.position));
    page.matchPlan();
  };

  page.onPalette(page.dressPlan);
  google.maps.event.addListener(map, 'zoom_changed', page.dressPlan);
})();
