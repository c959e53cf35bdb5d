/** Course and distance beside the legs of a track, and an arrow on each of them that points the way. */
(function () {
  'use strict';
  const radians = Math.PI / 180;
  const milesPerDegree = 60;
  const milesAround = 360 * milesPerDegree;

  const font = 'bold 11px "DejaVu Sans", "Segoe UI", sans-serif';
  const nameFont = 'bold 12px sans-serif';

  /** Pixels: the height of the text, from the line to the text's middle, and free line at each end of the text. */
  const textHeight = 13;
  const textOffset = 12;
  const textMargin = 5;

  /** Pixels: a shorter leg has no arrow. */
  const arrowLeg = 34;
  const arrow = [[7, 0], [-5, 5], [-2.5, 0], [-5, -5]];

  /** Where on its leg a text may stand, the best first. */
  const parts = [0.5, 0.38, 0.62, 0.25, 0.75];

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

  /**
   * The middles of discs that cover a box along a direction: what stands on the map is kept apart by them.
   * @type {(x: number, y: number, width: number, angle: number) => Spot[]}
   */
  function discsAlong(x, y, width, angle) {
    const count = Math.max(1, Math.ceil(width / textHeight));
    const discs = [];
    for (let i = 0; i < count; ++i) {
      const along = (i + 0.5) / count * width - width / 2;
      discs.push({ x: x + along * Math.cos(angle), y: y + along * Math.sin(angle) });
    }
    return discs;
  }

  /** @type {(a: Spot, b: Spot) => boolean} */
  const touch = (a, b) => Math.abs(a.x - b.x) < textHeight && Math.abs(a.y - b.y) < textHeight;

  class LegTexts extends google.maps.OverlayView {
    /** @param {function(): {text: string, rim: string}} colours asked for with each drawing */
    constructor(colours) {
      super();
      this.colours = colours;
      /** @type {Leg[]} */
      this.legs = [];
      /** @type {Array<{position: Place, width: number}>} */
      this.points = [];
      /** What must be kept free. @type {Spot[]} */
      this.taken = [];
      /** @type {?HTMLElement} */
      this.element = null;
      this.pending = 0;
      /** The middle of the view that the texts were placed for. @type {?Place} */
      this.laidOut = null;
      google.maps.event.addListener(map, 'idle', () => this.follow());
    }

    /** @param {TrackPoint[]} points of the track, each leg from one to the next */
    setPoints(points) {
      this.points = points.map(point =>
        ({ position: point.position, width: widthOf(point.name, nameFont) }));
      this.legs = points.slice(1).map((point, i) => legOf(points[i], point)).filter(leg => leg.distance > 0);
      this.setMap(this.legs.length ? map : null);
      this.refresh();
    }

    onAdd() {
      this.element = document.createElement('div');
      this.getPanes().overlayLayer.appendChild(this.element);
    }

    onRemove() {
      this.element.parentNode.removeChild(this.element);
      this.element = null;
    }

    /** Draws anew with the next frame. */
    refresh() {
      if (this.element && !this.pending)
        this.pending = window.requestAnimationFrame(() => {
          this.pending = 0;
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
      if (!this.element)
        return;
      this.element.innerHTML = '';
      this.laidOut = map.getCenter();
      this.projection = this.getProjection();
      if (!this.projection)
        return;
      this.taken = this.takenByPoints();
      this.legs.forEach(leg => this.drawLeg(leg));
    }

    /** What the points of the track and their names, right of them, cover. */
    takenByPoints() {
      /** @type {Spot[]} */
      const discs = [];
      this.points.forEach(point => {
        const at = this.projection.fromLatLngToDivPixel(point.position);
        discs.push(at);
        discs.push(...discsAlong(at.x + 8 + point.width / 2, at.y, point.width, 0));
      });
      return discs;
    }

    /** @param {number} latitude */
    pixelsPerMile(latitude) {
      return this.projection.getWorldWidth() / milesAround / Math.max(0.02, Math.cos(latitude * radians));
    }

    /** @param {Leg} leg */
    drawLeg(leg) {
      const spots = this.spotsOf(leg);
      const length = spots.length ? spots[0].length : 0;
      if (length < arrowLeg)
        return;
      const place = length < leg.width + 2 * textMargin ? null : this.freePlace(leg, spots);
      this.element.appendChild(this.picture(place || spots[0], place && leg.text, leg.width));
    }

    /** The spots on a leg that lie in the view, the best first. @type {(leg: Leg) => LegSpot[]} */
    spotsOf(leg) {
      const middle = page.pointAlong(leg.from, leg.to, 0.5);
      const length = leg.distance * this.pixelsPerMile(middle.lat());
      if (length < arrowLeg)
        return [];
      const spots = parts.map(part => this.spotAt(leg, part, length)).filter(spot => this.isInView(spot));
      if (spots.length)
        return spots;
      // Of a leg that reaches far beyond the view: the point nearest to the view's middle.
      const least = Math.min(0.5, (leg.width / 2 + textMargin) / length);
      const part = page.partAlong(leg.from, leg.to, this.laidOut);
      const spot = this.spotAt(leg, Math.max(least, Math.min(1 - least, part)), length);
      return this.isInView(spot) ? [spot] : [];
    }

    /** @type {(leg: Leg, part: number, length: number) => LegSpot} */
    spotAt(leg, part, length) {
      const position = page.pointAlong(leg.from, leg.to, part);
      const at = this.projection.fromLatLngToDivPixel(position);
      const step = Math.min(0.01, 4 / length);
      const next = this.projection.fromLatLngToDivPixel(page.pointAlong(leg.from, leg.to, part + step));
      const world = this.projection.getWorldWidth();
      const dx = next.x - at.x - world * Math.round((next.x - at.x) / world);
      return {
        x: at.x,
        y: at.y,
        view: this.projection.fromLatLngToContainerPixel(position),
        angle: Math.atan2(next.y - at.y, dx),
        length: length,
      };
    }

    /** @param {LegSpot} spot */
    isInView(spot) {
      const size = this.size();
      return spot.view.x > 0 && spot.view.y > 0 && spot.view.x < size.x && spot.view.y < size.y;
    }

    /**
     * The first spot with room for the text above or below the line; null when there is none.
     * @type {(leg: Leg, spots: LegSpot[]) => ?LegSpot}
     */
    freePlace(leg, spots) {
      for (const spot of spots) {
        const upright = uprightOf(spot.angle);
        for (const offset of [-textOffset, textOffset]) {
          const x = spot.x - offset * Math.sin(upright);
          const y = spot.y + offset * Math.cos(upright);
          const discs = discsAlong(x, y, leg.width, upright);
          if (!discs.some(disc => this.taken.some(other => touch(disc, other)))) {
            this.taken.push(...discs);
            return Object.assign({ offset: offset }, spot);
          }
        }
      }
      return null;
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

  /** The direction of a text along a line that a reader need not stand on his head for. @param {number} angle */
  function uprightOf(angle) {
    const turned = angle > Math.PI / 2 ? angle - Math.PI : angle;
    return turned <= -Math.PI / 2 ? turned + Math.PI : turned;
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
    context.lineWidth = 3.5;
    context.strokeStyle = colours.rim;
    context.strokeText(text, 0, offset);
    context.fillStyle = colours.text;
    context.fillText(text, 0, offset);
    context.restore();
  }

  page.LegTexts = LegTexts;
})();
