/** Course and distance beside the legs of a track, and an arrow on each of them that points the way. */
(function () {
  'use strict';
  const radians = Math.PI / 180;
  const milesPerDegree = 60;
  const milesAround = 360 * milesPerDegree;

  const font = `bold 11px ${page.letterFamily}`;
  const nameFont = `bold 12px ${page.letterFamily}`;

  /** Degrees: a leg over a pole is not drawn from here on, and the map's edge tells no direction. */
  const lastLatitude = 85;

  /** Pixels: the height of the text, from the line to the text's middle, and free line at each end of the text. */
  const textHeight = page.discSize;
  const textOffset = 12;
  const textMargin = 5;

  /** Pixels: a shorter leg has no arrow. */
  const arrowLeg = 34;
  const arrow = [[7, 0], [-5, 5], [-2.5, 0], [-5, -5]];

  /** Where a text may stand from its first spot, the better first: parts of the leg, or of a lower view's height. */
  const parts = [0, -0.12, 0.12, -0.25, 0.25, -0.37, 0.37];

  /** The reach of a compass rose, pixels. */
  const roseReach = 56;
  /** Discs that cover the start marker with its nose, pixels from its middle. */
  const startDiscs = [[-5, -5], [5, -5], [5, 5], [-5, 5]];

  /** Just below the points of the plan: the chart's other labels keep away from the texts. */
  const coverHeight = 62;

  /** So many markers around the view are looked at: the texts spare the chart's symbols, airports and VORs first. */
  const mostSpared = 3000;

  /** So many legs have their arrow or text at a time. */
  const mostShown = 150;

  const ruler = document.createElement('canvas').getContext('2d');

  /** @type {(text: string, textFont: string) => number} */
  function widthOf(text, textFont) {
    ruler.font = textFont;
    return ruler.measureText(text).width;
  }

  /** A true course as charts write it: three digits, north being 360. */
  page.courseText = function (degrees) {
    const whole = Math.round(degrees) % 360 || 360;
    return `${`00${whole}`.slice(-3)}°`;
  };

  /** Nautical miles, with a decimal where one mile makes a difference. */
  page.milesText = miles => `${miles < 9.95 ? miles.toFixed(1) : Math.round(miles)} NM`;

  /** A leg with what does not change while the map moves. @type {(from: TrackPoint, to: TrackPoint) => Leg} */
  function legOf(from, to) {
    const distance = page.distanceTo(from.position, to.position);
    const text = `${page.courseText(page.courseTo(from.position, to.position))}  ${page.milesText(distance)}`;
    return { from: from.position, to: to.position, distance: distance, text: text, width: widthOf(text, font) };
  }

  /** What keeps the room of a piece of text and is not to be seen: a circle drawn with no ink. */
  const cover = page.symbol(page.shapes.circle(0, 0, textHeight / 2 - 1), '#000', 1, '#000',
    { fillOpacity: 0, strokeOpacity: 0 });

  /** The part of a leg from its end to the nearest middle of its text. @type {(leg: Leg, length: number) => number} */
  const leastPart = (leg, length) => Math.min(0.5, (leg.width / 2 + textMargin) / length);
  /** Parts are no exact numbers. */
  const slack = 1e-6;

  class LegTexts extends google.maps.OverlayView {
    /** @param {function(): {text: string, rim: string}} colours asked for with each drawing */
    constructor(colours) {
      super();
      this.colours = colours;
      /** @type {Leg[]} */
      this.legs = [];
      /** @type {TrackPoint[]} */
      this.points = [];
      /** What a text may not cover, and what it covers only where it must. */
      this.room = new page.Room();
      this.symbols = new page.Room();
      /** The texts as the chart knows them. @type {?google.maps.Data} */
      this.covers = null;
      /** @type {?HTMLElement} */
      this.element = null;
      this.pending = 0;
      /** The middle of the view that the texts were placed for. @type {?Place} */
      this.laidOut = null;
      google.maps.event.addListener(map, 'idle', () => this.follow());
    }

    /** @param {TrackPoint[]} points of the track, each leg from one to the next */
    setPoints(points) {
      this.points = points;
      this.legs = points.slice(1).map((point, i) => legOf(points[i], point)).filter(leg => leg.distance > 0);
      // Draws by itself when it comes onto the map.
      this.refresh();
      this.setMap(this.legs.length ? map : null);
    }

    onAdd() {
      this.element = document.createElement('div');
      this.getPanes().overlayLayer.appendChild(this.element);
    }

    onRemove() {
      this.element.parentNode.removeChild(this.element);
      this.element = null;
      this.tellChart([]);
    }

    /** Draws anew with the next frame. */
    refresh() {
      if (this.element && !this.pending)
        this.pending = window.requestAnimationFrame(() => {
          this.draw();
        });
    }

    /** A text stands in the view where its leg does: when the view has gone a good way, elsewhere on the leg. */
    follow() {
      if (!this.element || !this.laidOut)
        return;
      const at = this.getProjection().fromLatLngToContainerPixel(this.laidOut);
      const size = this.size();
      if (Math.abs(at.x - size.x / 2) > size.x / 4 || Math.abs(at.y - size.y / 2) > size.y / 4)
        this.refresh();
    }

    size() {
      const element = map.getDiv();
      return { x: element.clientWidth, y: element.clientHeight };
    }

    draw() {
      window.cancelAnimationFrame(this.pending);
      this.pending = 0;
      if (!this.element)
        return;
      this.element.innerHTML = '';
      this.laidOut = map.getCenter();
      this.projection = this.getProjection();
      if (!this.projection)
        return;
      this.keepPointsFree();
      this.spareSymbols();
      const shown = this.legs.map(leg => ({ leg: leg, spot: this.firstSpot(leg) })).filter(entry => entry.spot);
      // Of a heap of legs in one view the longest.
      if (shown.length > mostShown)
        shown.sort((a, b) => b.spot.length - a.spot.length);
      /** @type {Spot[][]} */
      const taken = shown.slice(0, mostShown).map(entry => this.drawLeg(entry.leg, entry.spot));
      this.tellChart([].concat(...taken));
    }

    /** Keeps the room of the texts on the chart. @param {Spot[]} discs */
    tellChart(discs) {
      if (this.covers)
        this.covers.setMap(null);
      this.covers = discs.length ? new google.maps.Data() : null;
      if (!this.covers)
        return;
      this.covers.setStyle({ icon: cover, zIndex: coverHeight, clickable: false });
      discs.forEach(disc => this.covers.add({
        geometry: this.projection.fromDivPixelToLatLng(new google.maps.Point(disc.x, disc.y)) }));
      this.covers.setMap(map);
    }

    /** The points of the track, their texts, right of them, and the start are there already. */
    keepPointsFree() {
      this.room = new page.Room();
      this.points.forEach(point => {
        const at = this.projection.fromLatLngToDivPixel(point.position);
        const lines = page.planText(point).split('\n');
        this.room.take([at]);
        lines.forEach((line, i) => {
          const width = widthOf(line, nameFont);
          const below = (i - (lines.length - 1) / 2) * textHeight;
          this.room.take(page.discsAlong(at.x + 8 + width / 2, at.y + below, width, 0));
        });
      });
      // The aircraft moves on; the start stands.
      const start = page.startPlace();
      if (start) {
        const at = this.projection.fromLatLngToDivPixel(start);
        this.room.take(startDiscs.map(([x, y]) => ({ x: at.x + x, y: at.y + y })));
      }
    }

    /** The symbols of the chart in the view; of too many those of the first layers. */
    spareSymbols() {
      this.symbols = new page.Room();
      const size = this.size();
      const reach = 2 * size.y / this.pixelsPerMile(this.laidOut.lat()) / milesPerDegree;
      const centre = this.laidOut;
      /** @param {ChartMarker} marker */
      const isNear = marker => Math.abs(marker.position.lat() - centre.lat()) <= reach;
      let left = mostSpared;
      page.layers.map(layer => layer.manager()).filter(manager => manager.drawsAny()).forEach(manager => {
        const near = left > 0 ? manager.markers().filter(isNear).slice(0, left) : [];
        left -= near.length;
        near.filter(marker => manager.draws(marker)).forEach(marker => {
          const at = this.projection.fromLatLngToDivPixel(marker.position);
          this.symbols.take(page.hasRose(marker) ? page.discsAround(at, roseReach) : [at]);
        });
      });
      page.shownRunways().forEach(([from, to]) => this.symbols.take(page.discsBetween(this.projection, from, to)));
    }

    /** @param {number} latitude */
    pixelsPerMile(latitude) {
      return this.projection.getWorldWidth() / milesAround / Math.max(0.02, Math.cos(latitude * radians));
    }

    /** What the text covers comes back. @type {(leg: Leg, first: LegSpot) => Spot[]} */
    drawLeg(leg, first) {
      const place = first.length < leg.width + 2 * textMargin ? null : this.freePlace(leg, first);
      this.element.appendChild(this.picture(place || first, place && leg.text, leg.width));
      return place ? place.discs : [];
    }

    /**
     * The best spot of a leg in the view; null when there is none or the leg is too short.
     * @type {(leg: Leg) => ?LegSpot}
     */
    firstSpot(leg) {
      const length = leg.distance * this.pixelsPerMile(page.midPoint(leg.from, leg.to).lat());
      if (length < arrowLeg)
        return null;
      const middle = this.spotAt(leg, 0.5, length);
      if (this.isInView(middle))
        return middle;
      // Of a leg that reaches beyond the view: the point nearest to the view's middle.
      const least = leastPart(leg, length);
      const part = page.partAlong(leg.from, leg.to, this.laidOut);
      const spot = this.spotAt(leg, Math.max(least, Math.min(1 - least, part)), length);
      return this.isInView(spot) ? spot : null;
    }

    /** @type {(leg: Leg, part: number, length: number) => LegSpot} */
    spotAt(leg, part, length) {
      const position = page.pointAlong(leg.from, leg.to, part);
      const at = this.projection.fromLatLngToDivPixel(position);
      const step = Math.min(0.01, 4 / length);
      const next = this.projection.fromLatLngToDivPixel(page.pointAlong(leg.from, leg.to, part + step));
      const way = page.wayBetween(this.projection, at, next);
      return {
        x: at.x,
        y: at.y,
        view: this.projection.fromLatLngToContainerPixel(position),
        isDrawn: Math.abs(position.lat()) < lastLatitude,
        angle: Math.atan2(way.y, way.x),
        length: length,
        part: part,
        discs: [],
      };
    }

    /** @param {LegSpot} spot */
    isInView(spot) {
      const size = this.size();
      return spot.isDrawn && spot.view.x > 0 && spot.view.y > 0 && spot.view.x < size.x && spot.view.y < size.y;
    }

    /**
     * Whether the view's edge leaves a text beside a spot whole.
     * @type {(spot: LegSpot, offset: number, width: number) => boolean}
     */
    fits(spot, offset, width) {
      const angle = uprightOf(spot.angle);
      const size = this.size();
      const x = spot.view.x - offset * Math.sin(angle);
      const y = spot.view.y + offset * Math.cos(angle);
      const along = Math.abs(Math.cos(angle));
      const across = Math.abs(Math.sin(angle));
      const reachX = (along * width + across * textHeight) / 2;
      const reachY = (across * width + along * textHeight) / 2;
      return x >= reachX && y >= reachY && x <= size.x - reachX && y <= size.y - reachY;
    }

    /**
     * The spot with room for the whole text above or below the line where it covers least; null when there is none.
     * @type {(leg: Leg, first: LegSpot) => ?LegSpot}
     */
    freePlace(leg, first) {
      /** @type {?LegSpot} */
      let best = null;
      let least = Infinity;
      const end = leastPart(leg, first.length);
      const reach = Math.min(1, this.size().y / first.length);
      for (const away of parts) {
        const part = first.part + away * reach;
        const spot = away ? this.spotAt(leg, part, first.length) : first;
        if (part < end - slack || part > 1 - end + slack)
          continue;
        const upright = uprightOf(spot.angle);
        for (const offset of [-textOffset, textOffset]) {
          const x = spot.x - offset * Math.sin(upright);
          const y = spot.y + offset * Math.cos(upright);
          if (!spot.isDrawn || !this.fits(spot, offset, leg.width))
            continue;
          const discs = page.discsAlong(x, y, leg.width, upright);
          const covered = discs.filter(disc => !this.symbols.isFree(disc)).length;
          if (covered < least && discs.every(disc => this.room.isFree(disc))) {
            least = covered;
            best = Object.assign({}, spot, { offset: offset, discs: discs });
          }
        }
        if (least === 0)
          break;
      }
      if (best)
        this.room.take(best.discs);
      return best;
    }

    /**
     * An element with the arrow of a leg and, where there is one, its text.
     * @type {(place: LegSpot, text: ?string, width: number) => HTMLElement}
     */
    picture(place, text, width) {
      const reach = Math.ceil(text ? Math.hypot(width / 2, textOffset + textHeight) : 10) + 2;
      const ratio = window.devicePixelRatio || 1;
      const canvas = document.createElement('canvas');
      canvas.width = canvas.height = 2 * reach * ratio;
      canvas.className = text ? 'leg-text' : 'leg-arrow';
      if (text)
        canvas.setAttribute('data-text', text);
      Object.assign(canvas.style, {
        position: 'absolute',
        left: `${Math.round(place.x) - reach}px`,
        top: `${Math.round(place.y) - reach}px`,
        width: `${2 * reach}px`,
        height: `${2 * reach}px`,
      });
      const context = canvas.getContext('2d');
      context.scale(ratio, ratio);
      context.translate(reach, reach);
      drawArrow(context, place.angle, this.colours());
      if (text)
        drawText(context, uprightOf(place.angle), place.offset, text, this.colours());
      return canvas;
    }
  }

  /**
   * The direction of a text along a line that a reader need not stand on his head for; on a meridian it goes up.
   * @param {number} angle
   */
  function uprightOf(angle) {
    const upwards = -Math.PI / 2 - 0.01;
    const turned = angle >= upwards + Math.PI ? angle - Math.PI : angle;
    return turned < upwards ? turned + Math.PI : turned;
  }

  /** @type {(context: CanvasRenderingContext2D, angle: number, colours: {text: string, rim: string}) => void} */
  function drawArrow(context, angle, colours) {
    context.save();
    context.rotate(angle);
    context.beginPath();
    arrow.forEach(point => context.lineTo(point[0], point[1]));
    context.closePath();
    context.lineJoin = 'round';
    context.lineWidth = 3;
    context.strokeStyle = colours.rim;
    context.stroke();
    context.fillStyle = colours.text;
    context.fill();
    context.restore();
  }

  /**
   * @type {(context: CanvasRenderingContext2D, angle: number, offset: number, text: string,
   *     colours: {text: string, rim: string}) => void}
   */
  function drawText(context, angle, offset, text, colours) {
    context.save();
    context.rotate(angle);
    context.font = font;
    context.textAlign = 'center';
    context.textBaseline = 'middle';
    context.lineJoin = 'round';
    context.lineWidth = 4;
    context.strokeStyle = colours.rim;
    context.strokeText(text, 0, offset);
    context.fillStyle = colours.text;
    context.fillText(text, 0, offset);
    context.restore();
  }

  page.LegTexts = LegTexts;
})();
