/** A line over named points: what the plan's route and a shown procedure have in common. */
(function () {
  'use strict';

  /** @param {TrackPoint} point */
  const keyOf = point => `${point.position.toString()} ${point.name}`;

  /** The point that `draw` has put there. @type {(feature: google.maps.Data.Feature) => TrackPoint} */
  const pointOf = feature => feature.getProperty('point');

  class Track {
    /** @param {TrackStyle} style */
    constructor(style) {
      this.style = style;
      /** @type {TrackPoint[]} */
      this.points = [];
      this.drawn = 0;
      /** @type {google.maps.Polyline[]} */
      this.lines = [];
      /** @type {?google.maps.Data} */
      this.layer = null;
      /** The objects of the points, those of the last track too: it may be drawn again. */
      /** @type {Map<string, ChartMarker>} */
      this.objects = new Map();
      /** @type {Map<string, ChartMarker>} */
      this.formerObjects = new Map();
      page.pointSources.push(() => Array.from(this.objects.values()));
      this.legs = style.legs ? new page.LegTexts(() => ({ text: this.colour, rim: page.palette.labelRim })) : null;
      page.onPalette(palette => this.dress(palette));
    }

    /** Takes the colours of a palette. @param {Palette} palette */
    dress(palette) {
      this.colour = palette[this.style.colours[0]];
      this.fill = palette[this.style.colours[1]];
      if (this.style.point)
        this.point = page.labelledBelow(
          page.symbol(this.style.point.path, this.colour, this.style.point.weight, this.fill));
      this.options = this.style.lines(this.colour, this.fill);
      this.lines.forEach((line, i) => line.setOptions(this.options[i]));
      this.dressPoints();
      this.refreshTexts();
    }

    /** Draws the points anew where what stands beside them has changed. */
    dressPoints() {
      if (this.layer)
        this.layer.setStyle(feature => this.look(feature));
    }

    /** Places the texts of the legs anew where something has come in their way, or gone. */
    refreshTexts() {
      if (this.legs)
        this.legs.refresh();
    }

    /** Whether the track writes a marker's name: the chart then leaves it out. @param {ChartMarker} marker */
    tells(marker) {
      // Asked of every marker in view, and mostly without a track.
      return !!this.layer && this.hasPointOf(marker);
    }

    /** @param {ChartMarker} marker */
    hasPointOf(marker) {
      return this.points.some(point => page.isPointOf(marker, point));
    }

    clear() {
      if (this.objects.size)
        this.formerObjects = this.objects;
      this.objects = new Map();
      this.points = [];
      this.drawn = 0;
      this.lines.forEach(line => line.setMap(null));
      this.lines = [];
      if (this.layer)
        this.layer.setMap(null);
      this.layer = null;
      if (this.legs)
        this.legs.setPoints([]);
    }

    /**
     * A point without a place is left out; the line goes on to the next.
     * @param {Place} position @param {string} name
     */
    add(position, name) {
      if (page.isPlace(position))
        this.points.push({ position: position, name: String(name) });
    }

    /** Draws what has been added since it was drawn last: what stands there already costs nothing again. */
    draw() {
      if (!this.lines.length)
        this.begin();
      this.points.slice(this.drawn).forEach(point => {
        if (this.layer) {
          this.layer.add({ geometry: point.position, properties: { point: point } });
          this.addObject(point);
        }
        this.lines.forEach(line => line.getPath().push(point.position));
      });
      this.drawn = this.points.length;
      if (this.layer)
        this.layer.setMap(map);
      if (this.legs)
        this.legs.setPoints(this.points);
    }

    /** @param {TrackPoint} point */
    addObject(point) {
      const key = keyOf(point);
      this.objects.set(key, this.objects.get(key) || this.formerObjects.get(key)
        || page.newPoint(point.position, point.name, `${pageWords[this.style.point.word]} ${point.name}`));
    }

    begin() {
      if (this.style.point) {
        this.layer = new google.maps.Data();
        this.layer.setStyle(feature => this.look(feature));
        page.listenToLayer(this.layer, feature => {
          const point = pointOf(feature);
          return page.markerOfPoint(point) || this.objects.get(keyOf(point));
        });
      }
      this.lines = this.options.map((options, i) => new google.maps.Polyline(Object.assign({
        geodesic: true,
        clickable: false,
        zIndex: this.style.zIndex + i,
        map: map,
      }, options)));
    }

    /** @type {(feature: google.maps.Data.Feature) => google.maps.Data.StyleOptions} */
    look(feature) {
      const point = pointOf(feature);
      return {
        icon: this.point,
        zIndex: this.style.zIndex + this.options.length,
        label: page.planTells(point) ? undefined : page.labelOf(point.name, this.colour, 12, { fontWeight: 'bold' }),
      };
    }
  }

  page.Track = Track;
})();
