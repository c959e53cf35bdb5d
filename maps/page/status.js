/** What the page reports to the status bar: centre and zoom after each change, and what the pointer is over. */
(function () {
  'use strict';

  let name = '';

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

  /** @param {Place} position */
  function positionText(position) {
    return `${angleText(position.lat(), 2, 'N', 'S')}  ${angleText(position.lng(), 3, 'E', 'W')}`;
  }

  /** The marker under the pointer, or null; its title also shows beside the pointer. */
  page.pointAt = function (marker) {
    name = marker ? marker.title : '';
    document.getElementById('chart').title = name;
  };

  google.maps.event.addListener(map, 'center_changed', () => {
    const centre = map.getCenter();
    page.call('doCenter', centre.lat(), centre.lng());
  });
  google.maps.event.addListener(map, 'zoom_changed', () => page.call('doZoom', Math.round(map.getZoom())));
  map.addListener('mousemove', event => {
    page.call('doData', `${positionText(event.latLng)}${name ? `  ${name}` : ''}`);
  });
  google.maps.event.addListener(map, 'mouseout', () => page.call('doData', ''));
})();
