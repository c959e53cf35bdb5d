/** The way to the program: the object `mainWindow`, which is absent when the page is opened in a browser. */
/** @type {Page} */
var page = page || /** @type {Page} */ ({});

(function () {
  'use strict';

  /** @return {boolean} whether the program is there and has this command */
  page.offers = slot => !!window.mainWindow && typeof window.mainWindow[slot] === 'function';

  /** Calls a slot of the program; nothing happens when there is none. */
  page.call = function (slot, ...values) {
    if (page.offers(slot))
      window.mainWindow[slot](...values);
  };
})();
