/** What stands beside a marker, out of the text that the program sent with it. */
(function () {
  'use strict';

  /** The lines of a marker's text: kind and identifier, name, frequency... @param {ChartMarker} marker */
  function linesOf(marker) {
    if (!marker.lines) {
      const text = marker.html.replace(/<br\s*\/?>/gi, '\n').replace(/<[^>]*>/g, '');
      marker.lines = text.split('\n').map(line => line.trim());
    }
    return marker.lines;
  }

  /**
   * The first line. Thousands of labels are made at once, and in all texts of the program it is the bold part: to cut that
   * out takes a tenth of the time of reading the whole text.
   * @param {ChartMarker} marker
   */
  function headOf(marker) {
    const from = marker.html.indexOf('<b>') + 3;
    const to = marker.html.indexOf('</b>', from);
    const head = from > 2 && to > from ? marker.html.slice(from, to) : '<';
    return head.indexOf('<') < 0 ? head : linesOf(marker)[0];
  }

  /** The title without its key. @param {ChartMarker} marker */
  function nameInTitle(marker) {
    const tail = marker.tail();
    return tail ? marker.title.slice(0, marker.title.length - tail.length - 1) : marker.title;
  }

  /** The identifier: what follows the kind in the text's first line, else the title without its key. */
  page.identOf = function (marker) {
    const first = headOf(marker);
    const blank = first.indexOf(' ');
    return (blank > 0 && first.slice(blank + 1).trim()) || nameInTitle(marker);
  };

  /** The name that the text tells; empty without one. A waypoint's usage behind it is left out. */
  page.nameOf = function (marker) {
    const name = linesOf(marker)[1] || '';
    return marker.family === page.families.waypoint ? name.replace(/\s*\(\d*\)$/, '') : name;
  };

  /** The number of a navaid's frequency; empty for what has none. @param {ChartMarker} marker */
  function frequencyOf(marker) {
    const found = /^(\d+(?:\.\d+)?) [MK]hz$/.exec(linesOf(marker)[2] || '');
    return found ? found[1] : '';
  }

  /** Identifier, frequency and name, for which there is room when a marker is near. */
  page.longText = function (marker) {
    const ident = page.identOf(marker);
    const name = page.nameOf(marker);
    const frequency = frequencyOf(marker);
    const first = frequency ? `${ident} ${frequency}` : ident;
    return name && name !== ident ? `${first}\n${name}` : first;
  };
})();
