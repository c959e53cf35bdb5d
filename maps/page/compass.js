/**
 * Compass roses around VORs, from near. They show true north, for the program tells no magnetic variation. Where two
 * would overlap one is drawn. Inside stands the VOR's identifier, outside what else there is room for.
 */
(function () {
  'use strict';
  const { circle, polygon, lines, rounded } = page.shapes;

  /** The rose's radius in pixels, and from which zoom on. */
  const fromZoom = 8.7;
  const radius = 50;
  /** Below all symbols. */
  const height = 4;
  const withRose = ['vor', 'vorDme', 'vortac'];

  /** Digits in strokes, on a field of 2 by 4. */
  /** @type {Record<string, number[][]>} */
  const digits = {
    0: [[0.6, 0], [1.4, 0], [2, 0.9], [2, 3.1], [1.4, 4], [0.6, 4], [0, 3.1], [0, 0.9], [0.6, 0]],
    1: [[0.3, 0.9], [1.2, 0], [1.2, 4]],
    2: [[0, 0.6], [0.5, 0], [1.6, 0], [2, 0.7], [2, 1.4], [0, 4], [2, 4]],
    3: [[0, 0], [2, 0], [0.9, 1.7], [1.6, 1.9], [2, 2.6], [1.8, 3.6], [1, 4], [0, 3.6]],
    4: [[1.5, 4], [1.5, 0], [0, 2.8], [2.1, 2.8]],
    5: [[1.9, 0], [0.2, 0], [0.1, 1.8], [1.2, 1.6], [2, 2.3], [1.9, 3.4], [1.2, 4], [0, 3.7]],
    6: [[1.8, 0], [0.6, 1], [0, 2.6], [0.4, 3.8], [1.4, 4], [2, 3.2], [1.8, 2.3], [0.9, 2], [0.1, 2.6]],
    7: [[0, 0], [2, 0], [0.8, 4]],
    8: [[1, 1.8], [0.2, 1.2], [0.3, 0.2], [1, 0], [1.7, 0.2], [1.8, 1.2], [1, 1.8], [0, 2.7], [0.2, 3.7], [1, 4],
      [1.8, 3.7], [2, 2.7], [1, 1.8]],
    9: [[0.2, 4], [1.4, 3], [2, 1.4], [1.6, 0.2], [0.6, 0], [0, 0.8], [0.2, 1.7], [1.1, 2], [1.9, 1.4]],
  };
  const digitSize = 1.55;
  const digitStep = 3.1;

  /**
   * A point of the rose: so far from the middle and so far beside the direction.
   * @type {(direction: number, distance: number, aside: number) => number[]}
   */
  function at(direction, distance, aside) {
    const angle = direction * Math.PI / 180;
    return [
      rounded(distance * Math.sin(angle) + aside * Math.cos(angle)),
      rounded(-distance * Math.cos(angle) + aside * Math.sin(angle)),
    ];
  }

  /** @type {(direction: number, from: number, to: number) => string} */
  const tick = (direction, from, to) => lines([].concat(at(direction, from, 0), at(direction, to, 0)));

  /** A number whose feet point to the middle. @type {(direction: number, text: string) => string} */
  function number(direction, text) {
    const width = ((text.length - 1) * digitStep + 2) * digitSize;
    return Array.from(text).map((digit, i) => {
      const corners = digits[digit].map(([x, y]) =>
        at(direction, radius - 10 - y * digitSize, (i * digitStep + x) * digitSize - width / 2));
      return `M ${corners.map(corner => corner.join(' ')).join(' L ')}`;
    }).join(' ');
  }

  /** A tick each 10 degrees, a longer one with its number of tens each 30, an arrow at north. */
  function rosePath() {
    const parts = [circle(0, 0, radius), polygon(at(0, radius + 7, 0), at(0, radius, 3), at(0, radius, -3))];
    for (let direction = 0; direction < 360; direction += 10) {
      const long = direction % 30 === 0;
      parts.push(tick(direction, radius - (long ? 7 : 4), radius));
      if (long)
        parts.push(number(direction, String(direction / 10)));
    }
    return parts.join(' ');
  }

  const path = rosePath();
  const layer = new google.maps.Data();
  const texts = new google.maps.Data();
  /** As high as the label of a VOR. */
  const textHeight = 30;
  /** The markers whose rose is drawn. @type {Set<ChartMarker>} */
  let drawnAround = new Set();

  page.onPalette(palette => layer.setStyle({
    icon: page.symbol(path, palette.navaid, 0.9, palette.navaid, { fillOpacity: 0, strokeOpacity: 0.6 }),
    zIndex: height,
    clickable: false,
  }));

  /** Frequency and name stand around the rose, on nothing that is drawn. */
  page.onPalette(palette => {
    const around = page.symbol(circle(0, 0, radius + 2), palette.navaid, 0, palette.navaid, { fillOpacity: 0 });
    around.labelOrigin = new google.maps.Point(0, radius + 16);
    texts.setStyle(feature => ({
      icon: around,
      zIndex: textHeight,
      clickable: false,
      label: page.labelOf(feature.getProperty('text'), palette.navaid, 11, { fontWeight: 'bold' }),
    }));
  });

  page.hasRose = marker => drawnAround.has(marker);

  /** @param {ChartMarker} marker */
  const textAround = marker => page.longText(marker).slice(page.identOf(marker).length).trim();

  /**
   * Where roses are drawn so that no two overlap at a zoom; the first markers of the list come first.
   * @type {(markers: ChartMarker[], zoom: number) => ChartMarker[]}
   */
  function apart(markers, zoom) {
    const pixelsPerDegree = 256 * Math.pow(2, zoom) / 360;
    const least = 2 * radius + 8;
    // By rows of latitude as high as a rose at the equator, where they are highest: only the next ones need a look.
    const rowDegrees = least / pixelsPerDegree;
    /** @type {Map<number, Place[]>} */
    const rows = new Map();
    /** @type {(a: Place, b: Place) => boolean} */
    const areApart = (a, b) => {
      const east = page.degreesEast(a, b);
      // Nearly all are told apart by this; the cosine takes longer.
      if (Math.abs(east) >= rowDegrees)
        return true;
      const north = (a.lat() - b.lat()) / Math.max(0.01, Math.cos(a.lat() * Math.PI / 180));
      return Math.hypot(north, east) * pixelsPerDegree >= least;
    };
    return markers.filter(marker => {
      const place = marker.position;
      const row = Math.floor(place.lat() / rowDegrees);
      const isFree = [row - 1, row, row + 1]
        .every(near => (rows.get(near) || []).every(other => areApart(place, other)));
      if (isFree)
        rows.set(row, (rows.get(row) || []).concat(place));
      return isFree;
    });
  }

  /** What the roses were drawn for last. @type {{zoom: number, shown: ChartMarker[], named: ChartMarker[]}} */
  let drawnFor = { zoom: 0, shown: [], named: [] };

  /**
   * Whether frequency and name are to be told: from near, and of the marker that the user has clicked.
   * @param {ChartMarker} marker
   */
  const isNamed = marker => page.isChosen(marker) || page.hasNames(marker.symbol);

  /** @type {(some: ChartMarker[], others: ChartMarker[]) => boolean} */
  const areSame = (some, others) =>
    some.length === others.length && some.every((marker, i) => marker === others[i]);

  /** The markers that may have a rose: those of the VOR layer, and of the plan without it. @return {ChartMarker[]} */
  const shownNow = () => Array.from(new Set(page.plannedMarkers().concat(VORMgr ? VORMgr.markers() : [])));

  /** Draws the roses of the VORs that are shown; without a change of zoom or markers nothing happens. */
  page.fitRoses = function () {
    const zoom = map.getZoom();
    const near = zoom >= fromZoom ? shownNow() : [];
    const shown = near.filter(marker => withRose.indexOf(marker.symbol) >= 0);
    const named = shown.filter(isNamed);
    const isZoomSame = zoom === drawnFor.zoom || !shown.length;
    if (isZoomSame && areSame(shown, drawnFor.shown) && areSame(named, drawnFor.named))
      return;
    drawnFor = { zoom: zoom, shown: shown, named: named };
    layer.forEach(feature => layer.remove(feature));
    texts.forEach(feature => texts.remove(feature));
    drawnAround = new Set(apart(shown, zoom));
    drawnAround.forEach(marker => {
      layer.add({ geometry: marker.position });
      const text = isNamed(marker) ? textAround(marker) : '';
      if (text)
        texts.add({ geometry: marker.position, properties: { text: text } });
    });
    layer.setMap(shown.length ? map : null);
    texts.setMap(shown.length ? map : null);
    if (VORMgr)
      VORMgr.dress();
  };

  google.maps.event.addListener(map, 'zoom_changed', page.fitRoses);
})();
