/**
 * The page's side of the measurements of the map: the same points as markers of the chart, as circles on Leaflet's own
 * canvas and as elements of the document, all on the one map of the page.
 */
var bench = (function () {
  'use strict';

  /** Places in the middle of the view, the same ones in every run. @return {number[][]} latitude, longitude */
  function places(count) {
    const size = map.leaflet.getSize();
    const found = [];
    let state = 12345;
    const next = () => {
      state = (state * 1103515245 + 12345) % 2147483648;
      return state / 2147483648;
    };
    for (let i = 0; i < count; ++i) {
      const at = map.leaflet.containerPointToLatLng([next() * size.x, next() * size.y]);
      found.push([at.lat, at.lng]);
    }
    return found;
  }

  const icon = page.symbol('M 0 -5.6 L 5.2 3.6 L -5.2 3.6 Z', '#2f4a38', 1.3, '#ffffff');

  function picture() {
    const sprite = mapEngine.drawSymbol(icon);
    return { iconUrl: sprite.canvas.toDataURL(), iconSize: [sprite.size, sprite.size] };
  }

  const methods = {
    chart(all) {
      const layer = new google.maps.Data();
      layer.setStyle({ icon: icon });
      layer.addListener('mouseover', () => {});
      all.forEach(at => layer.add({ geometry: new google.maps.LatLng(at[0], at[1]) }));
      layer.setMap(map);
    },
    circles(all) {
      const renderer = L.canvas();
      all.forEach(at => L.circleMarker(at, { renderer: renderer, radius: 5, weight: 1.3 }).addTo(map.leaflet));
    },
    elements(all) {
      const one = L.icon(picture());
      all.forEach(at => L.marker(at, { icon: one, keyboard: false }).addTo(map.leaflet));
    },
  };

  return {
    /** Makes the points ready that `add` shows. */
    prepare: count => {
      bench.ready = places(count);
    },
    // What a script gives back is turned into values of the program, a map with all that hangs on it too: nothing, then.
    add: method => {
      methods[method](bench.ready);
    },
    pan: (x, y) => {
      map.leaflet.panBy([x, y], { animate: false });
    },
    /** Takes the sea, the coasts and all that belongs to them off the map. */
    dropBase: () => {
      const base = [];
      map.leaflet.eachLayer(layer => {
        if (layer.options.pane === 'tilePane')
          base.push(layer);
      });
      base.forEach(layer => layer.remove());
      return base.length;
    },
    places: count => places(count),
  };
})();
