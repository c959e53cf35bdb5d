/** The runways of the airport that the user asked for. */
(function () {
  'use strict';

  const radians = Math.PI / 180;
  const metresPerDegree = 60 * 1852;

  /** Metres: the program tells no width; this one is common at large airports. */
  const halfWidth = 22.5;

  /** Metres: the threshold's stripes from the runway's end, from its middle, and half their width. */
  const stripes = { from: 8, to: 38, sides: [-15.5, -9.5, -4, 4, 9.5, 15.5], half: 1.6 };

  /** From which zoom on the paint on a runway can be told from the runway itself. */
  const paintFrom = { centre: 12, threshold: 15.7 };

  /** Below the trail: an aircraft flies over its runway. */
  const zIndex = -10;

  /** What is drawn, each with its zoom and what gives it its colours. @type {RunwayPart[]} */
  let drawn = [];
  /** The two ends of each. @type {Place[][]} */
  let shown = [];

  /** Labels and the legs' texts give way to what is drawn, and come back when it goes. */
  function makeRoom() {
    page.dressLayers();
    page.dressPlan();
    page.route.refreshTexts();
  }

  /** @param {RunwayPart} part */
  const fit = part => part.shape.setMap(map.getZoom() >= part.from ? map : null);

  /** @type {(shape: Shape, from: number, look: (palette: Palette) => Object) => void} */
  function draw(shape, from, look) {
    const part = { shape: shape, from: from, look: look };
    shape.setOptions(look(page.palette));
    fit(part);
    drawn.push(part);
  }

  /**
   * Tells places near a runway's end by metres along it and to the right of it.
   * @type {(from: Place, to: Place) => RunwayFrame}
   */
  function frameOf(from, to) {
    const course = page.courseTo(from, to) * radians;
    const shrink = Math.max(0.01, Math.cos(from.lat() * radians));
    return (along, right) => new google.maps.LatLng(
      from.lat() + (along * Math.cos(course) - right * Math.sin(course)) / metresPerDegree,
      from.lng() + (along * Math.sin(course) + right * Math.cos(course)) / metresPerDegree / shrink);
  }

  /** @type {(corners: Place[]) => google.maps.Polygon} */
  const area = corners =>
    new google.maps.Polygon({ paths: corners, strokeWeight: 0, fillOpacity: 1, clickable: false });

  /** @param {RunwayFrame} frame */
  function drawThreshold(frame) {
    stripes.sides.forEach(side => {
      const left = side - stripes.half;
      const right = side + stripes.half;
      const { from, to } = stripes;
      draw(area([frame(from, left), frame(to, left), frame(to, right), frame(from, right)]),
        paintFrom.threshold, palette => ({ fillColor: palette.runwayCentre, zIndex: zIndex + 1 }));
    });
  }

  /** To scale, with thresholds and a broken centre line; its edge makes a line of it that is seen from afar. */
  page.drawRunway = function (highEnd, lowEnd) {
    if (!page.isPlace(highEnd) || !page.isPlace(lowEnd))
      return;
    const ends = [frameOf(highEnd, lowEnd), frameOf(lowEnd, highEnd)];
    const corners = [].concat(...ends.map(frame => [frame(0, halfWidth), frame(0, -halfWidth)]));
    draw(area(corners), 0, palette =>
      ({ fillColor: palette.runway, strokeColor: palette.runway, strokeWeight: 4.5, zIndex: zIndex }));
    draw(new google.maps.Polyline({ path: [highEnd, lowEnd], strokeOpacity: 0, clickable: false }), paintFrom.centre,
      palette => ({ icons: centreLine(palette.runwayCentre), zIndex: zIndex + 1 }));
    ends.forEach(drawThreshold);
    shown.push([highEnd, lowEnd]);
    makeRoom();
  };

  /** @type {(colour: string) => google.maps.IconSequence[]} */
  const centreLine = colour => [{
    icon: { path: 'M 0 -4 L 0 4', strokeColor: colour, strokeOpacity: 1, strokeWeight: 1.4 },
    offset: '12px',
    repeat: '18px',
  }];

  page.clearRunways = function () {
    drawn.forEach(item => item.shape.setMap(null));
    drawn = [];
    shown = [];
    makeRoom();
  };

  page.hasRunways = () => drawn.length > 0;
  page.shownRunways = () => shown;

  page.onPalette(palette => drawn.forEach(item => item.shape.setOptions(item.look(palette))));
  google.maps.event.addListener(map, 'zoom_changed', () => drawn.forEach(fit));
})();

/** Removes the runways shown. */
function clearRunway() {
  page.clearRunways();
}

/** One runway from its high end to its low end. @type {(highEnd: Place, lowEnd: Place) => void} */
function drawRwy(highEnd, lowEnd) {
  page.noteRunway(highEnd, lowEnd);
  page.drawRunway(highEnd, lowEnd);
}
