/** The measure: a line over clicked points with the length of each leg, both its courses, and the sum. */
(function () {
  'use strict';

  const zIndex = 80;
  /** A second click so near to the last point, in pixels, is that of a double click. */
  const sameClick = 5;

  const circle = 'M -3.5 0 A 3.5 3.5 0 1 1 3.5 0 A 3.5 3.5 0 1 1 -3.5 0 Z';
  /** Nothing to be seen, as broad as keeps the text off the line. */
  const nothing = page.symbol(page.shapes.circle(0, 0, 4), '', 0, '', { fillOpacity: 0 });
  /** @type {google.maps.Symbol} */
  let point = null;

  const lineOptions = { strokeOpacity: 1, geodesic: true, clickable: false };
  const line = new google.maps.Polyline(Object.assign({ strokeWeight: 2.5, zIndex: zIndex }, lineOptions));
  // Below everything else: it changes with every frame, and nothing but itself has to be painted for it there.
  const rubber = new google.maps.Polyline(Object.assign({ strokeWeight: 1.5, zIndex: -1 }, lineOptions));

  /** The corners and the labels of the legs; made anew with each of them. */
  /** @type {?google.maps.Data} */
  let layer = null;
  /** The corners so far: where they are and what lies there. @type {{place: Place, name: string}[]} */
  let corners = [];
  let open = false;
  /** @type {?Place} */
  let pointer = null;
  /** @type {?ChartMarker} */
  let snapped = null;

  const panel = newBox('measure');
  const readout = newBox('measure-readout');
  panel.setAttribute('aria-live', 'polite');

  /** @param {string} id */
  function newBox(id) {
    const element = document.createElement('div');
    element.id = id;
    element.className = 'chart-box';
    element.hidden = true;
    return document.body.appendChild(element);
  }

  /** Tenths, and hundredths of a short way. @param {number} value */
  const number = value => value.toFixed(value < 10 ? 2 : 1);
  /** @param {number} miles */
  const milesText = miles => `${number(miles)} NM`;
  /** @param {number} miles */
  const kilometresText = miles => `${number(page.kilometresOf(miles))} km`;

  /**
   * A leg with its length and its true courses, there and back.
   * @typedef {{miles: number, there: number, back: number}} MeasuredLeg
   * @type {(from: Place, to: Place) => MeasuredLeg}
   */
  function legOf(from, to) {
    return { miles: page.distanceTo(from, to), there: page.courseTo(from, to), back: page.courseTo(to, from) };
  }

  /** @param {MeasuredLeg} leg */
  const coursesText = leg => `${page.courseText(leg.there)} / ${page.courseText(leg.back)}`;

  function legs() {
    return corners.slice(1).map((corner, i) => legOf(corners[i].place, corner.place));
  }

  /** @param {MeasuredLeg[]} all */
  const sumOf = all => all.reduce((sum, leg) => sum + leg.miles, 0);

  /** @type {(feature: google.maps.Data.Feature) => google.maps.Data.StyleOptions} */
  function styleOf(feature) {
    const text = feature.getProperty('text');
    return {
      icon: text ? nothing : point,
      zIndex: zIndex + (text ? 1 : 0),
      clickable: false,
      label: text ? page.labelOf(text, page.palette.measureText, 12, { fontWeight: 'bold' }) : undefined,
    };
  }

  /** @type {(place: Place, text: string) => void} */
  function addFeature(place, text) {
    layer.add({ geometry: place, properties: { text: text } });
  }

  /** @type {(table: HTMLTableElement, texts: string[], className: string) => void} */
  function addRow(table, texts, className) {
    const row = table.appendChild(document.createElement('tr'));
    row.className = className;
    texts.forEach((text, i) => {
      const cell = row.appendChild(document.createElement('td'));
      cell.textContent = text;
      cell.className = i === 0 ? 'measure-name' : '';
    });
  }

  /** The leg's number, and what lies at its ends if that has a name. @param {number} i */
  function legName(i) {
    const names = [corners[i].name, corners[i + 1].name];
    return `${i + 1}${names[0] || names[1] ? `  ${names.map(name => name || '…').join(' – ')}` : ''}`;
  }

  /** The panel lists the legs that stand; that to the pointer is told beside the pointer. */
  function fillPanel() {
    panel.innerHTML = '';
    const head = panel.appendChild(document.createElement('div'));
    head.className = 'measure-head';
    head.textContent = pageWords.measure;
    const close = panel.appendChild(document.createElement('button'));
    close.className = 'measure-close';
    close.textContent = '×';
    close.setAttribute('aria-label', pageWords.clearMeasure);
    close.addEventListener('click', () => page.clearMeasure());
    const table = panel.appendChild(document.createElement('table'));
    const all = legs();
    /** @type {(name: string, leg: MeasuredLeg) => string[]} */
    const row = (name, leg) => [name, milesText(leg.miles), kilometresText(leg.miles), coursesText(leg)];
    all.forEach((leg, i) => addRow(table, row(legName(i), leg), ''));
    if (all.length > 1)
      addRow(table, [pageWords.sum, milesText(sumOf(all)), kilometresText(sumOf(all)), ''], 'measure-sum');
    if (open) {
      const hint = panel.appendChild(document.createElement('div'));
      hint.className = 'measure-hint';
      hint.textContent = pageWords.measureHint;
    }
    panel.hidden = corners.length === 0;
  }

  function draw() {
    if (layer)
      layer.setMap(null);
    layer = new google.maps.Data();
    layer.setStyle(styleOf);
    corners.forEach(corner => addFeature(corner.place, ''));
    legs().forEach((leg, i) => addFeature(page.midPoint(corners[i].place, corners[i + 1].place),
      `${milesText(leg.miles)}  ${page.courseText(leg.there)}`));
    line.setPath(corners.map(corner => corner.place));
    line.setMap(corners.length > 1 ? map : null);
    layer.setMap(map);
    fillPanel();
  }

  /** @type {(text: string, className: string) => void} */
  function addReadoutLine(text, className) {
    const element = readout.appendChild(document.createElement('div'));
    element.textContent = text;
    element.className = className;
  }

  function hideRubber() {
    rubber.setMap(null);
    readout.hidden = true;
  }

  /** Where the rubber line ends now: at what lies under the pointer, else at the pointer itself. @return {?Place} */
  function endOf() {
    const object = snapped || (pointer && page.moversAt(pointer)[0]);
    return object ? object.position : pointer;
  }

  const drawRubber = page.oncePerFrame(() => {
    const end = open ? endOf() : null;
    if (!end) {
      hideRubber();
      return;
    }
    const last = corners[corners.length - 1].place;
    const leg = legOf(last, end);
    rubber.setPath([last, end]);
    rubber.setMap(map);
    readout.innerHTML = '';
    addReadoutLine(`${milesText(leg.miles)}  ·  ${kilometresText(leg.miles)}`, 'measure-length');
    addReadoutLine(coursesText(leg), '');
    if (corners.length > 1)
      addReadoutLine(`${pageWords.sum}  ${milesText(sumOf(legs()) + leg.miles)}`, '');
    readout.hidden = false;
    page.putBeside(readout, page.pointer.x, page.pointer.y);
  });

  /** @param {boolean} on */
  function setOpen(on) {
    open = on;
    map.setOptions({ draggableCursor: on ? 'crosshair' : null });
    if (on)
      map.setOptions({ disableDoubleClickZoom: true });
    else
      // The double click that ends the measure must not zoom either, whoever hears of it first.
      window.setTimeout(() => map.setOptions({ disableDoubleClickZoom: open }), 0);
  }

  page.isMeasuring = () => open;
  page.hasMeasure = () => corners.length > 0;

  /**
   * Begins at a place; what was measured before goes.
   * @param {Place} place
   * @param {string} name what lies there, or empty
   */
  page.startMeasure = function (place, name) {
    page.clearMeasure();
    page.closePopup();
    corners = [{ place: place, name: name }];
    setOpen(true);
    draw();
  };

  /** The next corner; a click that has only closed the menu is none. @type {(place: Place, name: string) => void} */
  page.measureTo = function (place, name) {
    if (!open || page.pressClosesMenu() || page.pixelsBetween(corners[corners.length - 1].place, place) < sameClick)
      return;
    corners.push({ place: place, name: name });
    draw();
    drawRubber();
  };

  /** The marker under the pointer, or null: the line ends at it. */
  page.snapMeasure = function (marker) {
    snapped = marker;
    if (open)
      drawRubber();
  };

  /** No more corners; the line stays until it is cleared. Without a leg nothing is left. */
  page.endMeasure = function () {
    if (!open)
      return;
    setOpen(false);
    hideRubber();
    if (corners.length > 1)
      fillPanel();
    else
      page.clearMeasure();
  };

  page.clearMeasure = function () {
    if (open)
      setOpen(false);
    corners = [];
    hideRubber();
    if (layer)
      draw();
  };

  page.onPalette(palette => {
    line.setOptions({ strokeColor: palette.measure });
    rubber.setOptions({ strokeColor: palette.measure });
    point = page.symbol(circle, palette.measure, 1.8, palette.measureFill);
    if (layer)
      draw();
  });

  map.addListener('click', event => {
    const mover = open && page.moversAt(event.latLng)[0];
    if (mover)
      page.measureTo(mover.position, page.describe(mover).head);
    else
      page.measureTo(event.latLng, '');
  });
  google.maps.event.addListener(map, 'dblclick', () => page.endMeasure());
  map.addListener('mousemove', event => {
    pointer = event.latLng;
    if (open)
      drawRubber();
  });
  google.maps.event.addListener(map, 'mouseout', () => {
    pointer = null;
    if (open)
      drawRubber();
  });
})();
