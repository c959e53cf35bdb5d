/** The button on the map that goes from day to night and back, and the colours of the base map. */
(function () {
  'use strict';
  const svg = 'http://www.w3.org/2000/svg';

  /** What each palette offers next: its picture, in a box of 20, and its words. */
  const offers = {
    day: { path: 'M 15.5 12.6 A 6.6 6.6 0 1 1 7.4 4.5 A 5.4 5.4 0 0 0 15.5 12.6 Z', word: 'nightPalette', next: 'night' },
    night: {
      path: 'M 10 6 A 4 4 0 1 1 9.99 6 Z M 9.3 1.5 H 10.7 V 4 H 9.3 Z M 9.3 16 H 10.7 V 18.5 H 9.3 Z '
        + 'M 1.5 9.3 H 4 V 10.7 H 1.5 Z M 16 9.3 H 18.5 V 10.7 H 16 Z '
        + 'M 3.5 4.5 L 4.5 3.5 L 6.2 5.2 L 5.2 6.2 Z M 13.8 14.8 L 14.8 13.8 L 16.5 15.5 L 15.5 16.5 Z '
        + 'M 15.5 3.5 L 16.5 4.5 L 14.8 6.2 L 13.8 5.2 Z M 5.2 13.8 L 6.2 14.8 L 4.5 16.5 L 3.5 15.5 Z',
      word: 'dayPalette',
      next: 'day',
    },
  };

  const button = document.createElement('button');
  button.id = 'palette-switch';
  button.className = 'chart-button';
  button.type = 'button';
  const picture = document.createElementNS(svg, 'svg');
  picture.setAttribute('viewBox', '0 0 20 20');
  const shape = picture.appendChild(document.createElementNS(svg, 'path'));
  button.appendChild(picture);
  button.addEventListener('click', () => page.setPalette(offers[page.palette.name].next));
  map.controls[google.maps.ControlPosition.TOP_RIGHT].push(button);

  const off = [{ visibility: 'off' }];

  /**
   * In the map service's own words for the things of a map.
   * @type {(palette: Palette) => google.maps.MapTypeStyle[]}
   */
  const stylesOf = palette => [
    { featureType: 'water', elementType: 'geometry.fill', stylers: [{ color: palette.sea }] },
    { featureType: 'water', elementType: 'geometry.stroke', stylers: [{ color: palette.coast }] },
    { featureType: 'water', elementType: 'labels.text.fill', stylers: [{ color: palette.seaText }] },
    { featureType: 'water', elementType: 'labels.text.stroke', stylers: [{ color: palette.sea }] },
    { featureType: 'landscape', elementType: 'geometry.fill', stylers: [{ color: palette.land }] },
    { featureType: 'administrative', elementType: 'geometry.stroke', stylers: [{ color: palette.border }] },
    { featureType: 'administrative', elementType: 'labels.text.fill', stylers: [{ color: palette.placeText }] },
    { featureType: 'administrative', elementType: 'labels.text.stroke', stylers: [{ color: palette.placeRim }] },
    { featureType: 'administrative.country', elementType: 'labels.text.fill', stylers: [{ color: palette.countryText }] },
    { featureType: 'poi', stylers: off },
    { featureType: 'road', stylers: off },
    { featureType: 'transit', stylers: off },
  ];

  /**
   * Under a raster map, which has its own, names and lines would shine through by night. The engine takes them away
   * itself, as long as pictures come.
   * @type {google.maps.MapTypeStyle[]}
   */
  const underRaster = [
    { featureType: 'water', elementType: 'geometry.stroke', stylers: off },
    { featureType: 'administrative', elementType: 'geometry.stroke', stylers: off },
    { featureType: 'administrative', elementType: 'labels.text.fill', stylers: off },
  ];

  page.onPalette(palette => {
    const offer = offers[palette.name];
    shape.setAttribute('d', offer.path);
    button.title = pageWords[offer.word];
    const isCovered = mapService.tileAddress && !mapService.isEngine;
    map.setOptions({ styles: stylesOf(palette).concat(isCovered ? underRaster : []) });
  });
})();
