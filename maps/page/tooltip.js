/** What the pointer rests on: a small box with the kind, the name and the frequency, as text. */
(function () {
  'use strict';

  /** How long the pointer rests before the box comes, and how long after it another one comes at once, ms. */
  const rest = 350;
  const memory = 400;
  /** More objects than this of one place are only counted. */
  const most = 4;

  const element = document.createElement('div');
  element.id = 'tooltip';
  element.className = 'chart-box';
  element.setAttribute('role', 'tooltip');
  element.hidden = true;
  document.body.appendChild(element);

  let timer = 0;
  /** @type {?ChartMarker} */
  let subject = null;
  let wait = rest;
  let closedAt = 0;

  /** @type {(text: string, className: string) => void} */
  function addLine(text, className) {
    const line = document.createElement('div');
    line.className = className;
    line.textContent = text;
    element.appendChild(line);
  }

  /** @param {ChartMarker[]} markers */
  function fill(markers) {
    element.innerHTML = '';
    const shown = page.shorten(markers, most);
    shown.forEach(marker => {
      const words = page.describe(marker);
      addLine(words.head, 'tooltip-head');
      words.lines.forEach(line => addLine(line, 'tooltip-line'));
    });
    if (shown.length < markers.length)
      addLine(pageWords.moreHere.replace('%1', String(markers.length - shown.length)), 'tooltip-line');
  }

  function show() {
    // The pop-up tells the same, and the measure has its own text beside the pointer.
    if (!subject || page.menuIsOpen() || page.isMeasuring() || page.popupMarker() === subject)
      return;
    fill(page.markersAt(subject.position, subject));
    element.hidden = false;
    page.putBeside(element, page.pointer.x, page.pointer.y);
  }

  /** Takes the box away until the pointer rests again. */
  function hide() {
    window.clearTimeout(timer);
    if (!element.hidden)
      closedAt = Date.now();
    element.hidden = true;
  }

  /** The pointer has come to a marker, or to none. */
  page.pointAt = function (marker) {
    hide();
    subject = marker;
    wait = Date.now() - closedAt < memory ? 0 : rest;
    if (marker)
      timer = window.setTimeout(show, wait);
  };

  document.addEventListener('mousemove', () => {
    if (!subject || !element.hidden)
      return;
    window.clearTimeout(timer);
    timer = window.setTimeout(show, wait);
  }, true);
  // After a press, only another marker has something to tell.
  document.addEventListener('mousedown', () => page.pointAt(null), true);
  ['wheel', 'keydown'].forEach(name => document.addEventListener(name, hide, true));
  window.addEventListener('blur', hide);
})();
