/** When to paint what has changed. */
(function () {
  'use strict';

  /**
   * One call with the next frame, however often it is asked for. A page that is still being read has yet to say its
   * colours, and the program its view: its first frame comes when all of it stands, for what is painted between two of
   * its scripts is painted in vain.
   */
  class NextFrame {
    /** @param {() => void} paint */
    constructor(paint) {
      this.asked = false;
      this.id = 0;
      this.paint = () => {
        this.asked = false;
        paint();
      };
      this.request = () => {
        this.id = window.requestAnimationFrame(this.paint);
      };
    }

    ask() {
      if (this.asked)
        return;
      this.asked = true;
      if (document.readyState === 'loading')
        document.addEventListener('DOMContentLoaded', this.request);
      else
        this.request();
    }

    cancel() {
      this.asked = false;
      document.removeEventListener('DOMContentLoaded', this.request);
      window.cancelAnimationFrame(this.id);
    }
  }

  window.mapEngine.NextFrame = NextFrame;
})();
