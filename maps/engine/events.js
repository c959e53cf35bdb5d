/**
 * `google.maps.event` and `google.maps.MVCObject`: listeners, and objects whose properties tell of their changes.
 * Listeners hang on the object itself, so that an object without any costs nothing.
 */
(function () {
  'use strict';
  Object.assign(window, { google: Object.assign({ maps: {} }, window.google) });

  /** Puts parts of the service into `google.maps`. */
  window.mapEngine.supply = parts => {
    Object.assign(window.google.maps, parts);
  };

  const event = {
    /**
     * Calls handler(arguments...) whenever the event happens.
     * @param {Listened} object
     * @param {string} name
     * @param {Function} handler
     * @return {Listener} a handle for removeListener
     */
    addListener(object, name, handler) {
      const all = object.listeners_ || (object.listeners_ = {});
      const handle = { object: object, name: name, handler: handler, remove: () => event.removeListener(handle) };
      // A new array each time: a listener may add or remove listeners while the event is being told.
      all[name] = (all[name] || []).concat(handle);
      return handle;
    },

    /**
     * @param {Listened} object
     * @param {string} name
     * @param {Function} handler
     * @return {Listener}
     */
    addListenerOnce(object, name, handler) {
      /** @type {Listener} */
      const handle = event.addListener(object, name, (/** @type {unknown[]} */ ...values) => {
        event.removeListener(handle);
        handler.apply(object, values);
      });
      return handle;
    },

    /** @param {?google.maps.MapsEventListener} listener */
    removeListener(listener) {
      const handle = /** @type {?Listener} */ (listener);
      const all = handle && handle.object.listeners_;
      if (all && all[handle.name])
        all[handle.name] = all[handle.name].filter(other => other !== handle);
    },

    /**
     * @param {Listened} object
     * @param {string} name
     */
    hasListeners(object, name) {
      return !!(object.listeners_ && object.listeners_[name] && object.listeners_[name].length);
    },

    /**
     * @param {Listened} object
     * @param {string} name
     * @param {unknown[]} values
     */
    trigger(object, name, ...values) {
      if (!event.hasListeners(object, name))
        return;
      object.listeners_[name].forEach(handle => handle.handler.apply(object, values));
    },
  };

  /** Properties; each `set` calls the method and tells the event `<name>_changed`, for an equal value too. */
  class MVCObject {
    /** @param {string} key */
    get(key) {
      return this.values_ ? this.values_[key] : undefined;
    }

    /**
     * @param {string} key
     * @param {unknown} value
     */
    set(key, value) {
      if (!this.values_)
        /** @type {Record<string, unknown>} */
        this.values_ = {};
      this.values_[key] = value;
      this.notify(key);
    }

    /** @param {?Record<string, unknown>} [values] */
    setValues(values) {
      Object.keys(values || {}).forEach(key => this.set(key, values[key]));
    }

    /** @param {string} key */
    notify(key) {
      const changed = `${key}_changed`;
      const told = /** @type {Record<string, unknown>} */ (/** @type {unknown} */ (this))[changed];
      if (typeof told === 'function')
        told.call(this);
      event.trigger(this, changed);
    }

    /**
     * @param {string} name
     * @param {Function} handler
     * @return {Listener}
     */
    addListener(name, handler) {
      return event.addListener(this, name, handler);
    }
  }

  /**
   * A list that tells of its changes: what `Polyline.getPath` gives.
   * @template T
   */
  class MVCArray extends MVCObject {
    /** @param {?T[]} [items] */
    constructor(items) {
      super();
      this.items = Array.from(items || []);
    }

    /** The list itself, not a copy. */
    getArray() {
      return this.items;
    }

    /** @param {number} index */
    getAt(index) {
      return this.items[index];
    }

    getLength() {
      return this.items.length;
    }

    /** @param {function(T, number): void} callback */
    forEach(callback) {
      this.items.forEach(callback);
    }

    /** @param {T} item */
    push(item) {
      this.items.push(item);
      event.trigger(this, 'insert_at', this.items.length - 1);
      return this.items.length;
    }

    /**
     * @param {number} index
     * @param {T} item
     */
    setAt(index, item) {
      const former = this.items[index];
      this.items[index] = item;
      event.trigger(this, 'set_at', index, former);
    }

    pop() {
      const item = this.items.pop();
      event.trigger(this, 'remove_at', this.items.length, item);
      return item;
    }

    clear() {
      this.items = [];
      event.trigger(this, 'remove_at', 0);
    }
  }

  window.mapEngine.supply({ event: event, MVCObject: MVCObject, MVCArray: MVCArray });
})();
