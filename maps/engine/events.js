/**
 * `google.maps.event` and `google.maps.MVCObject`: listeners, and objects whose properties tell of their changes.
 * Listeners hang on the object itself, so that an object without any costs nothing.
 */
(function () {
  'use strict';
  window.google = window.google || {};
  const maps = window.google.maps = window.google.maps || {};

  const event = {
    /** Calls handler(arguments...) whenever the event happens. @return a handle for removeListener */
    addListener(object, name, handler) {
      const all = object.listeners_ || (object.listeners_ = {});
      const handle = { object: object, name: name, handler: handler };
      // A new array each time: a listener may add or remove listeners while the event is being told.
      all[name] = (all[name] || []).concat(handle);
      return handle;
    },

    addListenerOnce(object, name, handler) {
      const handle = event.addListener(object, name, function () {
        event.removeListener(handle);
        handler.apply(this, arguments);
      });
      return handle;
    },

    removeListener(handle) {
      const all = handle && handle.object.listeners_;
      if (all && all[handle.name])
        all[handle.name] = all[handle.name].filter(other => other !== handle);
    },

    hasListeners(object, name) {
      return !!(object.listeners_ && object.listeners_[name] && object.listeners_[name].length);
    },

    trigger(object, name, ...values) {
      if (!event.hasListeners(object, name))
        return;
      object.listeners_[name].forEach(handle => handle.handler.apply(object, values));
    },
  };

  /** Properties; each `set` calls the method and tells the event `<name>_changed`, for an equal value too. */
  class MVCObject {
    get(key) {
      return this.values_ ? this.values_[key] : undefined;
    }

    set(key, value) {
      (this.values_ || (this.values_ = {}))[key] = value;
      this.notify(key);
    }

    setValues(values) {
      Object.keys(values || {}).forEach(key => this.set(key, values[key]));
    }

    notify(key) {
      const changed = `${key}_changed`;
      if (typeof this[changed] === 'function')
        this[changed]();
      event.trigger(this, changed);
    }

    addListener(name, handler) {
      return event.addListener(this, name, handler);
    }
  }

  /** A list that tells of its changes: what `Polyline.getPath` gives. */
  class MVCArray extends MVCObject {
    constructor(items) {
      super();
      this.items = Array.from(items || []);
    }

    /** The list itself, not a copy. */
    getArray() {
      return this.items;
    }

    getAt(index) {
      return this.items[index];
    }

    getLength() {
      return this.items.length;
    }

    forEach(callback) {
      this.items.forEach(callback);
    }

    push(item) {
      this.items.push(item);
      event.trigger(this, 'insert_at', this.items.length - 1);
      return this.items.length;
    }

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

  maps.event = event;
  maps.MVCObject = MVCObject;
  maps.MVCArray = MVCArray;
})();
