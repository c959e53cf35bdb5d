/** A line over named points: what the plan's route and a shown procedure have in common. */
(function () {
  'use strict';

  class Track {
    /** @param {TrackStyle} style */
    constructor(style) {
      this.style = style;
      this.line = new google.maps.Polyline({
        strokeColor: style.colour,
        strokeWeight: style.weight,
        strokeOpacity: 1,
        geodesic: true,
        clickable: false,
        zIndex: style.zIndex,
      });
      this.clear();
    }

    clear() {
      /** @type {Array<{position: Place, name: string}>} */
      this.waiting = [];
      this.line.setMap(null);
      this.line.setPath([]);
      if (this.layer)
        this.layer.setMap(null);
      this.layer = null;
    }

    /**
     * A point without a place is left out; the line goes on to the next.
     * @param {Place} position @param {string} name
     */
    add(position, name) {
      if (page.isPlace(position))
        this.waiting.push({ position: position, name: String(name) });
    }

    /** Draws what has been added since it was drawn last: what stands there already costs nothing again. */
    draw() {
      if (!this.layer)
        this.layer = this.newLayer();
      const path = this.line.getPath();
      this.waiting.forEach(point => {
        this.layer.add({ geometry: point.position, properties: { name: point.name } });
        path.push(point.position);
      });
      this.waiting = [];
      this.layer.setMap(map);
      this.line.setMap(map);
    }

    newLayer() {
      const layer = new google.maps.Data();
      layer.setStyle(/** @return {google.maps.Data.StyleOptions} */ feature => ({
        icon: this.style.point,
        zIndex: this.style.zIndex,
        clickable: false,
        label: { text: feature.getProperty('name'), color: this.style.colour, fontSize: '12px', fontWeight: 'bold' },
      }));
      return layer;
    }
  }

  page.Track = Track;
})();
