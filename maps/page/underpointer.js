/** The pointer: where it is, which markers lie under a place, and what they are called. */
(function () {
  'use strict';

  /** A marker counts as under the pointer when its middle is no more than so many pixels away. */
  const reach = 9;

  /** A box stands so many pixels from the pointer, and as many from the window's edge. */
  const gap = { pointer: 14, edge: 4 };

  const worldPixels = 256;
  const radians = Math.PI / 180;

  /**
   * Where the pointer was last, in pixels of the window. The web view also tells of a move when something has moved
   * below the pointer: then it is `still`.
   */
  page.pointer = { x: 0, y: 0, still: false };

  /** @param {MouseEvent} event */
  const notePointer = event => {
    page.pointer.still = event.clientX === page.pointer.x && event.clientY === page.pointer.y;
    page.pointer.x = event.clientX;
    page.pointer.y = event.clientY;
  };
  document.addEventListener('mousedown', notePointer, true);
  document.addEventListener('mousemove', notePointer, true);
  document.addEventListener('contextmenu', notePointer, true);

  /** @return {number} how many pixels lie between two places on the map, good for neighbours */
  page.pixelsBetween = function (a, b) {
    const perDegree = worldPixels * Math.pow(2, map.getZoom()) / 360;
    // The projection stretches the latitudes as it stretches the parallels.
    const north = (a.lat() - b.lat()) / Math.max(0.01, Math.cos(b.lat() * radians));
    return perDegree * Math.hypot(page.degreesEast(a, b), north);
  };

  /** @return {{x: number, y: number}} the pixel of the window in which a place of the map lies */
  page.pixelOf = function (place) {
    const projection = map.getProjection();
    const at = projection.fromLatLngToPoint(place);
    const centre = projection.fromLatLngToPoint(map.getCenter());
    const scale = Math.pow(2, map.getZoom());
    const turn = (at.x - centre.x) / worldPixels;
    const box = map.getDiv().getBoundingClientRect();
    return {
      x: box.left + box.width / 2 + (turn - Math.round(turn)) * worldPixels * scale,
      y: box.top + box.height / 2 + (at.y - centre.y) * scale,
    };
  };

  /**
   * The markers shown at a place of the map, the nearest first; those of one point stand in the order of the layers,
   * airports before navaids before waypoints, then points of plan and procedure that are none of them.
   * @param {Place} place
   * @param {?ChartMarker} first the marker that the map itself has found there: it leads the list
   */
  page.markersAt = function (place, first) {
    /** @type {{marker: ChartMarker, rank: number, order: number}[]} */
    const found = [];
    const latitude = place.lat();
    // A pixel is nowhere more degrees of latitude than this; most markers are farther away.
    const farthest = (reach + 1) * 360 / (worldPixels * Math.pow(2, map.getZoom()));
    page.layers.forEach(layer => layer.list.forEach(marker => {
      if (marker !== first && Math.abs(marker.position.lat() - latitude) > farthest)
        return;
      const pixels = page.pixelsBetween(marker.position, place);
      if (marker === first || (pixels <= reach && layer.manager().draws(marker)))
        found.push({ marker: marker, rank: marker === first ? -1 : Math.round(pixels), order: found.length });
    }));
    page.namedPoints().forEach(marker => {
      const pixels = page.pixelsBetween(marker.position, place);
      const isTold = () => found.some(item => page.isPointOf(item.marker, { position: marker.position, name: marker.title }));
      if (marker === first || (pixels <= reach && !isTold()))
        found.push({ marker: marker, rank: marker === first ? -1 : Math.round(pixels), order: found.length });
    });
    return found.sort((a, b) => a.rank - b.rank || a.order - b.order).map(item => item.marker);
  };

  /** The first of many markers; a single one more is not worth a line that counts it. */
  page.shorten = (markers, most) => (markers.length > most + 1 ? markers.slice(0, most) : markers);

  /** The program's texts begin with one of these words, which the page says in its own language. */
  const leadingWord = /^(Airport|VOR|NDB|Waypoint) /;

  /** @param {string} text */
  function capital(text) {
    return text.charAt(0).toUpperCase() + text.slice(1);
  }

  /** @param {ChartMarker} marker */
  const kindOf = marker => pageWords[`kind${capital(marker.symbol)}`] || pageWords[`kind${capital(marker.family)}`];

  /** What is shown of a text, in characters, and of its lines: the layout takes the square of a word's length. */
  const longest = 1000;
  const mostLines = 10;

  /** @param {string} text */
  const start = text => (text.length > longest ? `${text.slice(0, longest)}…` : text);

  /** @type {(head: string, lines: string[]) => Title} */
  const shown = (head, lines) => ({ head: start(head), lines: lines.slice(0, mostLines).map(start) });

  /**
   * What a marker is called, as text: "VOR-DME CGO" and the lines of its pop-up between the first and the position.
   * @return {{head: string, lines: string[]}}
   */
  page.describe = function (marker) {
    const lines = page.linesOf(marker);
    const first = lines[0] || '';
    if (!page.hasRow(marker))
      return shown(first, lines.slice(1));
    const ident = leadingWord.test(first) ? first.replace(leadingWord, '') : marker.stem();
    const details = lines.slice(1, lines.length > 2 ? -1 : undefined).filter(line => line && line !== ident);
    return shown(`${kindOf(marker)} ${ident}`, details);
  };

  /** Puts a box beside a pixel of the window: right of it and below, or where there is more room, but whole. */
  page.putBeside = function (element, x, y, distance) {
    const away = distance === undefined ? gap.pointer : distance;
    /** @type {(start: number, size: number, room: number) => number} */
    const at = (start, size, room) => {
      const behind = start + away;
      const before = start - away - size;
      const wanted = behind + size + gap.edge <= room || before < gap.edge ? behind : before;
      return Math.max(gap.edge, Math.min(wanted, room - size - gap.edge));
    };
    element.style.left = `${Math.round(at(x, element.offsetWidth, window.innerWidth))}px`;
    element.style.top = `${Math.round(at(y, element.offsetHeight, window.innerHeight))}px`;
  };
})();
