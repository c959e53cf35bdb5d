/**
 * Tells on the page that one of its own files is missing or broken: nothing else would say why the map is blank. Only
 * the first such file is named, the ones that build on it fail after it. What fails once the page stands is no matter
 * of files.
 */
(function () {
  'use strict';
  const ownFiles = window.location.href.replace(/[?#].*$/, '').replace(/[^/]*$/, '');
  let named = '';

  function show() {
    if (!named || !document.body)
      return;
    const note = document.createElement('div');
    note.id = 'incomplete';
    note.textContent = pageWords.incomplete.replace('%1', named);
    // The style sheet may be what is missing.
    note.style.cssText =
      'position: absolute; top: 0; left: 0; right: 0; z-index: 10000; padding: 8px; color: #fff; background: #a00;' +
      'font: 14px sans-serif';
    document.body.appendChild(note);
  }

  /** The script that runs while the page is read: the last one that stands there so far. */
  function runningScript() {
    const all = document.scripts;
    return all.length > 0 ? all[all.length - 1].src : '';
  }

  /**
   * An error of loading comes from the element. One of a script's run comes from the window, and does not always tell
   * its file: to a page that may not read the files of the disk each of them is a stranger's. Only scripts and style
   * sheets make the page: a picture, such as a tile of a raster map, may be absent.
   * @param {any} event
   */
  function take(event) {
    const element = event.target;
    if (element !== window && !/^(SCRIPT|LINK)$/.test(element.tagName))
      return;
    const address = event.filename || element.src || element.href || runningScript();
    if (named || address.indexOf(ownFiles) !== 0)
      return;
    named = decodeURI(address.slice(ownFiles.length));
    if (document.readyState !== 'loading')
      show();
  }

  window.addEventListener('error', take, true);
  document.addEventListener('DOMContentLoaded', show);
  window.addEventListener('load', () => window.removeEventListener('error', take, true));
})();
