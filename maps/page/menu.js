/** The context menu: a title and entries at the mouse. */
(function () {
  'use strict';

  const element = document.createElement('div');
  element.id = 'menu';
  element.className = 'chart-box';
  element.hidden = true;
  document.body.appendChild(element);

  const pointer = { x: 0, y: 0 };

  // The map's events tell a position, but no place on the screen.
  /** @param {MouseEvent} event */
  const notePointer = event => {
    pointer.x = event.clientX;
    pointer.y = event.clientY;
  };
  document.addEventListener('mousedown', notePointer, true);
  document.addEventListener('contextmenu', notePointer, true);

  page.closeMenu = function () {
    element.hidden = true;
  };

  /** @param {string} text */
  function addTitle(text) {
    const title = document.createElement('div');
    title.className = 'menu-title';
    title.textContent = text;
    element.appendChild(title);
  }

  /** @param {MenuEntry} entry */
  function addEntry(entry) {
    const item = document.createElement('div');
    item.className = 'menu-entry';
    item.textContent = entry.text;
    item.addEventListener('click', () => {
      // First: a command may open a box and come back much later.
      page.closeMenu();
      entry.run();
    });
    element.appendChild(item);
  }

  /** Beside the pointer, but whole in the window. */
  function place() {
    const left = Math.min(pointer.x, window.innerWidth - element.offsetWidth - 4);
    const top = Math.min(pointer.y, window.innerHeight - element.offsetHeight - 4);
    element.style.left = `${Math.max(0, left)}px`;
    element.style.top = `${Math.max(0, top)}px`;
  }

  /**
   * Opens the menu at the mouse; without entries there is none.
   * @param {string} title what the commands are for, as text
   * @param {MenuEntry[]} entries
   */
  page.openMenu = function (title, entries) {
    page.closeMenu();
    if (entries.length === 0)
      return;
    element.innerHTML = '';
    addTitle(title);
    entries.forEach(addEntry);
    element.hidden = false;
    place();
  };

  document.addEventListener('mousedown', event => {
    if (!element.contains(/** @type {Node} */ (event.target)))
      page.closeMenu();
  }, true);
  document.addEventListener('keydown', event => {
    if (event.keyCode === 27)
      page.closeMenu();
  });
  document.addEventListener('wheel', page.closeMenu, true);
  window.addEventListener('resize', page.closeMenu);
  // The web view's own menu (back, reload...) has no place on a map, nor on a pop-up that keeps its events for itself.
  document.addEventListener('contextmenu', event => event.preventDefault(), true);
})();
