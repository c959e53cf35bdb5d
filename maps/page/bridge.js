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

  /**
   * What the mouse sets off hundreds of times a second and is wanted once a frame. The first call runs at once; of
   * those that come before the next frame one more runs with that frame, so that the last state is always told.
   * @param {() => void} run
   * @return {() => void} asks for a run
   */
  page.oncePerFrame = function (run) {
    let busy = false;
    let again = false;
    function start() {
      again = false;
      busy = true;
      window.requestAnimationFrame(() => {
        busy = false;
        if (again)
          start();
      });
      run();
    }
    return () => {
      if (busy)
        again = true;
      else
        start();
    };
  };
})();
