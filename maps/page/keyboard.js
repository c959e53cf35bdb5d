/** The page's keys: the way out with Escape, and the menu without a mouse. The map's own keys are the map's. */
(function () {
  'use strict';

  const key = { enter: 13, escape: 27, f10: 121, menu: 93 };
  /** Keys by which nobody walks: they do not bring the marks for those who do. */
  const notWalking = [16, 17, 18, 27, 91, 92, 224];

  /** The system sends its own request for a menu beside that key: before it or after it. */
  let answered = false;

  /** @param {KeyboardEvent} event */
  const isMenuKey = event => event.keyCode === key.menu || (event.keyCode === key.f10 && event.shiftKey)
    || (event.keyCode === key.enter && document.activeElement === map.getDiv());

  /** @param {Spot} pixel */
  function isInView(pixel) {
    const box = map.getDiv().getBoundingClientRect();
    return pixel.x >= box.left && pixel.x <= box.right && pixel.y >= box.top && pixel.y <= box.bottom;
  }

  /** The menu of the marker whose pop-up is open, else of what lies in the middle of the map. */
  page.openMenuHere = function () {
    const marker = page.popupMarker();
    const pixel = marker && page.pixelOf(marker.position);
    if (pixel && isInView(pixel))
      page.openMenuOf(marker.position, marker, pixel);
    else
      page.openMenuOf(map.getCenter(), null, page.pixelOf(map.getCenter()));
  };

  /** One thing for each press: menu, pop-up, measure. The menu itself takes its keys before this is asked. */
  function escape() {
    if (page.popupMarker())
      page.closePopup();
    else if (page.isMeasuring())
      page.endMeasure();
    else if (page.hasMeasure())
      page.clearMeasure();
    else
      return false;
    return true;
  }

  /** Whether a key is one of the page's, which it has done then. @param {KeyboardEvent} event */
  function take(event) {
    if (isMenuKey(event) && event.keyCode !== key.enter) {
      page.openMenuHere();
      answered = true;
      return true;
    }
    if (page.menuIsOpen()) {
      page.menuKey(event);
      return true;
    }
    if (isMenuKey(event)) {
      page.openMenuHere();
      return true;
    }
    return event.keyCode === key.escape && escape();
  }

  /** @param {boolean} on */
  function setByKeys(on) {
    document.body.classList.toggle('by-keys', on);
  }

  window.addEventListener('keydown', event => {
    if (notWalking.indexOf(event.keyCode) < 0)
      setByKeys(true);
    answered = false;
    if (take(event)) {
      event.preventDefault();
      event.stopPropagation();
    }
  }, true);
  window.addEventListener('contextmenu', event => {
    if (answered) {
      event.preventDefault();
      event.stopPropagation();
    }
    answered = false;
  }, true);
  document.addEventListener('mousemove', () => {
    if (!page.pointer.still)
      answered = false;
  }, true);
  document.addEventListener('mousedown', () => {
    answered = false;
    setByKeys(false);
  }, true);
  // Whoever comes back with the Tab key sees where he is.
  window.addEventListener('blur', () => setByKeys(true));
})();
