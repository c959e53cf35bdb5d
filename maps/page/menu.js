/** The context menu: panels of entries at the pointer, walked by mouse and by keys. */
(function () {
  'use strict';

  /** How long the pointer rests on an entry until its submenu opens, or that of another entry closes, ms. */
  const hoverDelay = 200;

  const root = document.createElement('div');
  root.id = 'menu';
  root.hidden = true;
  document.body.appendChild(root);

  /**
   * The open panels, the menu itself first: their elements, their entries, the index of the chosen one, and that of the
   * entry of the panel before to which they belong.
   * @typedef {{element: HTMLElement, entry: MenuEntry}} Item
   * @type {{element: HTMLElement, parent: number, items: Item[], chosen: number}[]}
   */
  let panels = [];
  let hoverTimer = 0;
  /** Whether the last press of a button was beside an open menu. */
  let pressCloses = false;

  /** @type {(parent: HTMLElement, className: string, text?: string) => HTMLElement} */
  function addElement(parent, className, text) {
    const element = document.createElement('div');
    element.className = className;
    if (text)
      element.textContent = text;
    return parent.appendChild(element);
  }

  /** @type {(element: HTMLElement, title: Title) => void} */
  function addTitle(element, title) {
    const box = addElement(element, 'menu-title');
    addElement(box, 'menu-head', title.head);
    title.lines.forEach(line => addElement(box, 'menu-line', line));
    element.setAttribute('aria-label', [title.head].concat(title.lines).join(', '));
  }

  /** @param {MenuEntry} entry */
  function elementOf(entry) {
    const item = document.createElement('div');
    item.className = `menu-entry${entry.reason ? ' greyed' : ''}${entry.submenu ? ' parent' : ''}`;
    item.tabIndex = -1;
    item.setAttribute('role', 'menuitem');
    addElement(item, 'menu-label', entry.text);
    if (entry.reason) {
      item.setAttribute('aria-disabled', 'true');
      addElement(item, 'menu-reason', entry.reason);
    }
    if (entry.submenu) {
      item.setAttribute('aria-haspopup', 'true');
      item.setAttribute('aria-expanded', 'false');
    }
    return item;
  }

  /**
   * Fills an element with a panel's entries and puts the panel on top of the open ones.
   * @type {(element: HTMLElement, parent: number, title: Title, entries: MenuEntry[]) => void}
   */
  function addPanel(element, parent, title, entries) {
    const level = panels.length;
    /** @type {Item[]} */
    const items = [];
    element.className = 'menu chart-box';
    element.setAttribute('role', 'menu');
    element.tabIndex = -1;
    element.innerHTML = '';
    element.hidden = false;
    if (title)
      addTitle(element, title);
    entries.forEach(entry => {
      if (entry.separator) {
        addElement(element, 'menu-separator').setAttribute('role', 'separator');
        return;
      }
      const item = element.appendChild(elementOf(entry));
      const index = items.push({ element: item, entry: entry }) - 1;
      item.addEventListener('mousemove', () => hover(level, index));
      item.addEventListener('click', () => act(level, index, false));
    });
    panels.push({ element: element, parent: parent, items: items, chosen: -1 });
  }

  /** Closes the panels from a level on. The menu itself stays in the document, the others go. @param {number} level */
  function closeFrom(level) {
    window.clearTimeout(hoverTimer);
    panels.splice(Math.max(1, level)).forEach(panel => panel.element.remove());
    const last = panels[panels.length - 1];
    if (last)
      last.items.forEach(item => item.entry.submenu && item.element.setAttribute('aria-expanded', 'false'));
  }

  /** @type {(level: number, index: number) => void} */
  function mark(level, index) {
    const panel = panels[level];
    panel.items.forEach((item, i) => item.element.classList.toggle('chosen', i === index));
    panel.chosen = index;
  }

  /**
   * Chooses an entry, or none (-1), of a panel; the panels before it show the way to it.
   * @type {(level: number, index: number) => void}
   */
  function choose(level, index) {
    panels.forEach((panel, i) => {
      if (i > 0 && i <= level)
        mark(i - 1, panel.parent);
      else if (i > level)
        mark(i, -1);
    });
    mark(level, index);
    const panel = panels[level];
    (index < 0 ? panel.element : panel.items[index].element).focus();
  }

  /** @type {(level: number, index: number) => void} */
  function openSubmenu(level, index) {
    const item = panels[level].items[index];
    closeFrom(level + 1);
    item.element.setAttribute('aria-expanded', 'true');
    const element = document.body.appendChild(document.createElement('div'));
    addPanel(element, index, item.entry.title, item.entry.submenu);
    const box = item.element.getBoundingClientRect();
    const panel = element;
    const right = box.right - 3;
    const left = right + panel.offsetWidth + 4 <= window.innerWidth ? right : box.left + 3 - panel.offsetWidth;
    panel.style.left = `${Math.max(4, Math.min(left, window.innerWidth - panel.offsetWidth - 4))}px`;
    panel.style.top = `${Math.max(4, Math.min(box.top - 5, window.innerHeight - panel.offsetHeight - 4))}px`;
  }

  /**
   * The pointer moves on an entry: it is chosen at once; its submenu, or the end of another, waits for the pointer's
   * rest.
   * @type {(level: number, index: number) => void}
   */
  function hover(level, index) {
    const above = panels[level + 1];
    if (page.pointer.still || (panels[level].chosen === index && !(above && above.chosen >= 0)))
      return;
    window.clearTimeout(hoverTimer);
    choose(level, index);
    hoverTimer = window.setTimeout(() => settle(level, index), hoverDelay);
  }

  /** @type {(level: number, index: number) => void} */
  function settle(level, index) {
    const item = panels[level] && panels[level].items[index];
    if (!item || panels[level].chosen !== index)
      return;
    if (!item.entry.submenu)
      closeFrom(level + 1);
    else if (item.element.getAttribute('aria-expanded') !== 'true')
      openSubmenu(level, index);
  }

  /**
   * Does what an entry is for.
   * @type {(level: number, index: number, byKeys: boolean) => void} byKeys: the first entry of a submenu is chosen too
   */
  function act(level, index, byKeys) {
    const entry = panels[level].items[index].entry;
    if (entry.reason)
      return;
    choose(level, index);
    if (entry.submenu) {
      openSubmenu(level, index);
      if (byKeys)
        choose(level + 1, 0);
      return;
    }
    // First: a command may open a box and come back much later.
    page.closeMenu();
    entry.run();
  }

  page.menuIsOpen = () => !root.hidden;
  page.pressClosesMenu = () => pressCloses;

  page.closeMenu = function () {
    if (root.hidden)
      return;
    closeFrom(1);
    panels = [];
    root.hidden = true;
    map.getDiv().focus();
  };

  /**
   * Opens the menu at the pointer; without entries there is none.
   * @param {Title} title what the commands are for, as text
   * @param {MenuEntry[]} entries
   * @param {Spot} [at] a place instead of the pointer's: the first entry is chosen then
   */
  page.openMenu = function (title, entries, at) {
    page.closeMenu();
    if (entries.length === 0)
      return;
    addPanel(root, -1, title, entries);
    const corner = at || page.pointer;
    page.putBeside(root, corner.x, corner.y, 1);
    choose(0, at ? 0 : -1);
  };

  /** The next entry in a direction, from the last on to the first again. @type {(level: number, by: number) => void} */
  function step(level, by) {
    const panel = panels[level];
    const count = panel.items.length;
    const from = panel.chosen < 0 ? (by > 0 ? -1 : count) : panel.chosen;
    closeFrom(level + 1);
    choose(level, (from + by + count) % count);
  }

  /** @param {number} level */
  function leave(level) {
    if (level === 0) {
      page.closeMenu();
      return;
    }
    const parent = panels[level].parent;
    closeFrom(level);
    choose(level - 1, parent);
  }

  /**
   * What the keys do in a panel. Tab walks it as the arrows do: the focus stays in the menu.
   * @type {Record<number, (level: number, chosen: number, event: KeyboardEvent) => void>}
   */
  const keys = {
    9: (level, chosen, event) => step(level, event.shiftKey ? -1 : 1),
    13: (level, chosen) => chosen >= 0 && act(level, chosen, true),
    27: level => leave(level),
    32: (level, chosen) => chosen >= 0 && act(level, chosen, true),
    35: level => choose(level, panels[level].items.length - 1),
    36: level => choose(level, 0),
    37: level => level > 0 && leave(level),
    38: level => step(level, -1),
    39: (level, chosen) => chosen >= 0 && panels[level].items[chosen].entry.submenu && act(level, chosen, true),
    40: level => step(level, 1),
  };

  /** A key while the menu is open: all keys are the menu's then. @param {KeyboardEvent} event */
  page.menuKey = function (event) {
    const walk = keys[event.keyCode];
    const innermost = panels.length - 1;
    const goesBack = event.keyCode === 27 || event.keyCode === 37;
    // A submenu that the pointer has opened takes no key before one of its entries is chosen, but for the way back.
    const waiting = innermost > 0 && panels[innermost].chosen < 0 && !goesBack;
    const level = waiting ? innermost - 1 : innermost;
    if (walk)
      walk(level, panels[level].chosen, event);
  };

  /** @param {EventTarget} target */
  const isInMenu = target => panels.some(panel => panel.element.contains(/** @type {Node} */ (target)));

  document.addEventListener('mousedown', event => {
    pressCloses = page.menuIsOpen() && !isInMenu(event.target);
    if (pressCloses)
      page.closeMenu();
  }, true);
  document.addEventListener('wheel', event => {
    if (!isInMenu(event.target))
      page.closeMenu();
  }, true);
  window.addEventListener('resize', page.closeMenu);
  window.addEventListener('blur', page.closeMenu);
  // The web view's own menu (back, reload...) has no place on a map, nor on a pop-up that keeps its events for itself.
  document.addEventListener('contextmenu', event => event.preventDefault(), true);
})();
