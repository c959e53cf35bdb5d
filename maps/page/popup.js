/** The pop-up of a marker: the HTML text that the program sent with it. */
(function () {
  'use strict';

  const infoWindow = new google.maps.InfoWindow();
  /** @type {?ChartMarker} */
  let shown = null;
  let pending = 0;

  /** The lines of one of the program's texts, as text. @param {string} html */
  page.textLines = function (html) {
    const lines = [''];
    /** @param {Node} node */
    const read = node => {
      if (node.nodeType === Node.TEXT_NODE)
        lines[lines.length - 1] += node.nodeValue;
      else if (node.nodeName === 'BR')
        lines.push('');
      else
        Array.from(node.childNodes).forEach(read);
    };
    read(page.popupContent(html));
    return lines.map(line => line.trim());
  };

  page.openPopup = function (marker) {
    infoWindow.close();
    infoWindow.setContent(page.popupContent(marker.html));
    infoWindow.setPosition(marker.position);
    infoWindow.open(map);
    shown = marker;
    page.choose(marker);
  };

  /** The marker whose pop-up is open, or null. */
  page.popupMarker = () => shown;

  /** Closes the pop-up if it is that of the marker; without a marker in any case. */
  page.closePopup = function (marker) {
    if (marker && marker !== shown)
      return;
    shown = null;
    infoWindow.close();
    page.choose(null);
  };

  /** @param {ChartMarker} marker */
  const isOnMap = marker => page.namedPoints().indexOf(marker) >= 0
    || page.layers.some(layer => layer.list.indexOf(marker) >= 0 && layer.manager().draws(marker));

  /**
   * Closes the pop-up of a marker that is no more on the map, as soon as the program's scripts have come to their end:
   * they often take something away to draw it anew.
   */
  page.closeLostPopup = function () {
    if (shown && !pending)
      pending = window.requestAnimationFrame(() => {
        pending = 0;
        if (shown && !isOnMap(shown))
          page.closePopup();
      });
  };

  google.maps.event.addListener(map, 'click', () => {
    page.closePopup();
    page.chooseEdited(null);
  });
  google.maps.event.addListener(infoWindow, 'closeclick', () => page.closePopup());
})();
