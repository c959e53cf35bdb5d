/** A line over named points: what the plan's route and a shown procedure have in common. */
(function () {
  'use strict';

  class Track {
    /** @param {{colour: string, weight: number, zIndex: number, point: Object}} style point is the points' symbol */
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
      this.points = [];
      this.line.setMap(null);
      if (this.layer)
        this.layer.setMap(null);
      this.layer = null;
    }

    /** A point without a place is left out; the line goes on to the next. */
    add(position, name) {
      if (page.isPlace(position))
        this.points.push({ position: position, name: String(name) });
    }

    draw() {
      if (this.layer)
        this.layer.setMap(null);
      this.layer = new google.maps.Data();
      this.layer.setStyle(feature => ({
        icon: this.style.point,
        zIndex: this.style.zIndex,
        clickable: false,
        label: { text: feature.getProperty('name'), color: this.style.colour, fontSize: '12px', fontWeight: 'bold' },
      }));
      this.points.forEach(point => this.layer.add({ geometry: point.position, properties: { name: point.name } }));
      this.layer.setMap(map);
      this.line.setPath(this.points.map(point => point.position));
      this.line.setMap(map);
    }
  }

  page.Track = Track;
})();
