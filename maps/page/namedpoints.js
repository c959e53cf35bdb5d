/**
 * What has a name on the map and is no marker of the feed: points of the plan or of a procedure that the feed does not
 * hold, the start, the aircraft. Pointer, menu and measure treat them as they treat markers, without the commands that
 * need a row of the databases.
 */
(function () {
  'use strict';

  /** @type {Record<string, string>} */
  const escapes = { '&': '&amp;', '<': '&lt;', '>': '&gt;' };
  /** @param {string} text */
  const escaped = text => text.replace(/[&<>]/g, sign => escapes[sign]);

  /** An object of a name at a place; the head is what it is called, with its kind. */
  page.newPoint = (position, name, head) => page.newMarker(page.families.point, 'point', position, name,
    `<b>${escaped(head.trim())}</b><br/>${page.positionText(position)}`);

  /** Each gives the points of a track that are to be seen and stand for no marker of the feed, as far as it knows. */
  page.pointSources = [];

  page.namedPoints = () => page.pointSources.reduce((all, source) => all.concat(source()), []);

  /** What stands on the map besides markers and points: each gives its marker of the map service, or null while it is away. */
  page.movers = [];

  /** The start and the aircraft are larger than a marker, pixels. */
  const moverReach = 13;

  /** The movers at a place as they stand now. */
  page.moversAt = place => page.movers.map(mover => mover())
    .filter(marker => marker && page.isPlace(marker.getPosition())
      && page.pixelsBetween(marker.getPosition(), place) <= moverReach)
    .map(marker => page.newPoint(marker.getPosition(), marker.getTitle(), marker.getTitle()));
})();
