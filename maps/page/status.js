/** What the page reports to the status bar: centre and zoom after each change, and what the pointer is over. */
(function () {
  'use strict';

  /** More objects than this under the pointer are not told by name. */
  const most = 3;

  /** @type {?Place} */
  let place = null;
  /** @type {?ChartMarker} */
  let pointed = null;
  let dragged = false;
  let pending = 0;
  /** What was told last of the pointer. */
  let told = '';

  /** @param {number} value */
  const two = value => (value < 10 ? `0${value}` : `${value}`);

  /**
   * Degrees as text: 48° 45' 30" N.
   * @type {(degrees: number, width: number, positive: string, negative: string) => string}
   */
  function angleText(degrees, width, positive, negative) {
    const seconds = Math.round(Math.abs(degrees) * 3600);
    const whole = `00${Math.floor(seconds / 3600)}`.slice(-width);
    const minutes = Math.floor(seconds / 60) % 60;
    return `${whole}° ${two(minutes)}' ${two(seconds % 60)}" ${degrees < 0 ? negative : positive}`;
  }

  page.positionText = position =>
    `${angleText(position.lat(), 2, 'N', 'S')}  ${angleText(position.lng(), 3, 'E', 'W')}`;

  /** The start and the aircraft lie above the markers. */
  function namesUnderPointer() {
    const markers = pointed ? page.markersAt(place, pointed) : [];
    const names = page.moversAt(place).concat(markers).map(marker => page.describe(marker).head);
    return names.length ? `  ${names.slice(0, most).join(', ')}${names.length > most ? '…' : ''}` : '';
  }

  const pointerText = () => (place ? `${page.positionText(place)}${namesUnderPointer()}` : '');

  // A moving mouse tells its place far more often than anybody reads it.
  const reportPointer = page.oncePerFrame(() => {
    told = pointerText();
    page.call('doData', told);
  });

  /** Something has moved, come or gone by itself, perhaps where the pointer is. */
  page.moverMoved = page.oncePerFrame(() => {
    if (place && pointerText() !== told)
      reportPointer();
  });

  function reportCentre() {
    const centre = map.getCenter();
    page.call('doCenter', centre.lat(), centre.lng());
  }

  const reportDrag = page.oncePerFrame(reportCentre);

  /** The marker under the pointer, or null. */
  page.reportMarker = function (marker) {
    pointed = marker;
    // Mostly the mouse has moved, which is told next. But markers also come to a still pointer, and go.
    if (!pending)
      pending = window.requestAnimationFrame(() => {
        pending = 0;
        page.moverMoved();
      });
  };

  google.maps.event.addListener(map, 'dragstart', () => {
    dragged = true;
  });
  google.maps.event.addListener(map, 'dragend', () => {
    dragged = false;
    reportCentre();
  });
  google.maps.event.addListener(map, 'center_changed', () => (dragged ? reportDrag() : reportCentre()));
  google.maps.event.addListener(map, 'zoom_changed', () => page.call('doZoom', Math.round(map.getZoom())));
  map.addListener('mousemove', event => {
    place = event.latLng;
    reportPointer();
  });
  google.maps.event.addListener(map, 'mouseout', () => {
    place = null;
    pointed = null;
    reportPointer();
  });
})();
