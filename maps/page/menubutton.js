/** The button on the map that opens the menu as its key does: who walks by Tab finds it behind the other buttons. */
(function () {
  'use strict';
  const svg = 'http://www.w3.org/2000/svg';

  const button = document.createElement('button');
  button.id = 'menu-button';
  button.className = 'chart-button';
  button.type = 'button';
  button.title = pageWords.menu;
  button.setAttribute('aria-label', pageWords.menu);
  button.setAttribute('aria-haspopup', 'true');
  const picture = document.createElementNS(svg, 'svg');
  picture.setAttribute('viewBox', '0 0 20 20');
  const shape = picture.appendChild(document.createElementNS(svg, 'path'));
  shape.setAttribute('d', 'M 3 4.5 H 17 V 6.5 H 3 Z M 3 9 H 17 V 11 H 3 Z M 3 13.5 H 17 V 15.5 H 3 Z');
  button.appendChild(picture);
  button.addEventListener('click', () => page.openMenuHere());
  map.controls[google.maps.ControlPosition.TOP_RIGHT].push(button);
})();
