/** Runs in the page before its own scripts: frames come when the measurement asks for them, not with the clock. */
(function () {
  'use strict';
  let waiting = new Map();
  let last = 0;
  const loaded = [];

  window.requestAnimationFrame = callback => {
    waiting.set(++last, callback);
    return last;
  };
  window.cancelAnimationFrame = number => waiting.delete(number);

  /** Calls what waits for the next frame. @return {number} how many there were */
  window.benchFrame = () => {
    const now = waiting;
    waiting = new Map();
    now.forEach(callback => callback(performance.now()));
    return now.size;
  };

  // When each script has run; those of a page run one after the other.
  document.addEventListener('load', event => {
    if (event.target.src)
      loaded.push({ src: event.target.src, at: window.mainWindow.clockMs() });
  }, true);

  /** Milliseconds that the scripts with this in their address took, reading them included. */
  window.benchScriptTime = part => loaded.reduce((sum, script, i) => {
    const before = i > 0 ? loaded[i - 1].at : script.at;
    return script.src.indexOf(part) >= 0 ? sum + script.at - before : sum;
  }, 0);
})();
