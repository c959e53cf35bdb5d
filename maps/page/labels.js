/** What stands beside a marker, out of the text that the program sent with it. */
(function () {
  'use strict';

  /**
   * The usage behind a waypoint's name, which the kind tells already: its number in the feed, a word or nothing at all
   * in what the program's dialog sends.
   */
  const usageBehind = /\s*\((?:\d*|High|Low|High\/Low|Terminal|RNAV|VFR)\)$/;
  /** What only a reader of markup understands. */
  const hardMarkup = /&|<(?!\/?(?:b|br|font)\b)/i;

  /**
   * The lines of a text. That of the program's own elements alone needs no document to be read.
   * @param {string} html
   */
  const readLines = html => (hardMarkup.test(html) ? page.textLines(html)
    : html.replace(/<br\s*\/?>/gi, '\n').replace(/<[^>]*>/g, '').split('\n').map(line => line.trim()));

  /** The lines of a marker's text: kind and identifier, name, frequency, position. A waypoint's usage is left out. */
  page.linesOf = function (marker) {
    if (!marker.lines) {
      marker.lines = readLines(marker.html);
      if (marker.family === page.families.waypoint && marker.lines.length > 1)
        marker.lines[1] = marker.lines[1].replace(usageBehind, '');
    }
    return marker.lines;
  };

  /**
   * The first line. Thousands of labels are made at once, and in all texts of the program it is the bold part: to cut
   * that out takes a tenth of the time of reading the whole text.
   * @param {ChartMarker} marker
   */
  function headOf(marker) {
    const from = marker.html.indexOf('<b>') + 3;
    const to = marker.html.indexOf('</b>', from);
    const head = from > 2 && to > from ? marker.html.slice(from, to) : '<';
    return /[<&]/.test(head) ? page.linesOf(marker)[0] : head;
  }

  /** The identifier: what follows the kind in the text's first line, else the title without its key. */
  page.identOf = function (marker) {
    if (!page.hasRow(marker))
      return marker.title;
    const first = headOf(marker);
    const blank = first.indexOf(' ');
    return (blank > 0 && first.slice(blank + 1).trim()) || marker.stem();
  };

  /** The name that the text tells; empty without one. */
  page.nameOf = marker => page.linesOf(marker)[1] || '';

  /** The number of a navaid's frequency; empty for what has none. @param {ChartMarker} marker */
  function frequencyOf(marker) {
    const found = /^(\d+(?:\.\d+)?) [MK]hz$/.exec(page.linesOf(marker)[2] || '');
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
