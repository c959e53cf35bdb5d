#!/usr/bin/env node
/**
 * Makes the script that holds the names of the base map in both languages: node names.js NODE_MODULES OUTPUT
 *
 * Cities and seas stand in the lists beside this file. A country's name comes from the machine's own catalogue of
 * languages, its place and the zooms at which it has room from the country's shape.
 */
'use strict';
const fs = require('fs');
const path = require('path');

/** From which zoom the cities of a rank are named. */
const cityZooms = { 1: 3.5, 2: 5, 3: 6, 4: 7, 5: 8 };

/** Pixels of a capital letter with its space, as the map writes countries. */
const letterWidth = 10;
/** For how many zooms a country's name stays, and from which zoom on none comes any more. */
const countryStay = 3.5;
const lastCountryZoom = 6;

/** Where the catalogue of languages says more than has room on a map. */
const shortCountries = {
  CD: ['DR Congo', 'RD Congo'],
  CG: ['Congo', 'Congo'],
  MM: ['Myanmar', 'Myanmar'],
  PS: ['Palestine', 'Palestine'],
  TF: null,
  AQ: null,
};
/** Shapes that have no number. */
const withoutNumber = { Kosovo: 'XK' };

function linesOf(file) {
  return fs.readFileSync(path.join(__dirname, file), 'utf8').split('\n')
    .filter(line => line && line[0] !== '#');
}

function namesOf(text) {
  const [english, french] = text.split('|');
  return [english, french || english];
}

function cities() {
  return linesOf('cities.txt').map(line => {
    const [rank, latitude, longitude, ...words] = line.split(' ');
    return ['city', cityZooms[rank], 99, Number(latitude), Number(longitude), ...namesOf(words.join(' ')), Number(rank)];
  });
}

function seas() {
  return linesOf('seas.txt').map(line => {
    const [from, to, latitude, longitude, ...words] = line.split(' ');
    return ['sea', Number(from), Number(to), Number(latitude), Number(longitude), ...namesOf(words.join(' ')), 0];
  });
}

/** Twice the area of a ring, in square degrees. */
function area(ring) {
  return Math.abs(ring.reduce((sum, point, i) => {
    const next = ring[(i + 1) % ring.length];
    return sum + point[0] * next[1] - next[0] * point[1];
  }, 0));
}

/** How far a point lies inside a ring, degrees of latitude; negative outside. */
function depth(ring, x, y, shrink) {
  let inside = false;
  let least = Infinity;
  for (let i = 0, j = ring.length - 1; i < ring.length; j = i++) {
    const [ax, ay] = ring[i];
    const [bx, by] = ring[j];
    if ((ay > y) !== (by > y) && x < (bx - ax) * (y - ay) / (by - ay) + ax)
      inside = !inside;
    const dx = (bx - ax) * shrink;
    const dy = by - ay;
    const length = dx * dx + dy * dy;
    const part = length ? Math.max(0, Math.min(1, ((x - ax) * shrink * dx + (y - ay) * dy) / length)) : 0;
    least = Math.min(least, Math.hypot((x - ax) * shrink - part * dx, y - ay - part * dy));
  }
  return inside ? least : -least;
}

/** The point of a ring that lies farthest from its line, by grids that grow finer. */
function middleOf(ring) {
  const xs = ring.map(point => point[0]);
  const ys = ring.map(point => point[1]);
  let box = [Math.min(...xs), Math.min(...ys), Math.max(...xs), Math.max(...ys)];
  const shrink = Math.cos((box[1] + box[3]) / 2 * Math.PI / 180);
  let best = { depth: -Infinity };
  for (let round = 0; round < 5; ++round) {
    const step = [(box[2] - box[0]) / 12, (box[3] - box[1]) / 12];
    for (let x = box[0]; x <= box[2]; x += step[0]) {
      for (let y = box[1]; y <= box[3]; y += step[1]) {
        const here = depth(ring, x, y, shrink);
        if (here > best.depth)
          best = { x: x, y: y, depth: here };
      }
    }
    box = [best.x - step[0], best.y - step[1], best.x + step[0], best.y + step[1]];
  }
  return best;
}

/** A ring without jumps at 180 degrees. */
function unrolled(ring) {
  let turns = 0;
  return ring.map((point, i) => {
    const step = i > 0 ? point[0] - ring[i - 1][0] : 0;
    turns += step > 180 ? -360 : step < -180 ? 360 : 0;
    return [point[0] + turns, point[1]];
  });
}

/** The ring of a country that its name stands in. */
function mainRing(geometry) {
  const polygons = geometry.type === 'Polygon' ? [geometry.coordinates] : geometry.coordinates;
  return polygons.map(polygon => unrolled(polygon[0])).sort((a, b) => area(b) - area(a))[0];
}

function countryNames(feature, catalogues) {
  const code = feature.id ? new Intl.Locale(`und-${feature.id}`).region : withoutNumber[feature.properties.name];
  if (!code || code.length !== 2)
    return null;
  return code in shortCountries ? shortCountries[code] : catalogues.map(catalogue => catalogue.of(code));
}

/** The zoom at which a name has room in a circle of so many degrees of latitude. */
function zoomFor(names, radius, latitude) {
  const width = letterWidth * Math.max(...names.map(name => name.length));
  const pixelsAtZero = 256 / 360 / Math.cos(latitude * Math.PI / 180);
  return Math.max(2, Math.log2(width / (2.6 * radius * pixelsAtZero)));
}

function countries(modules) {
  const topojson = require(path.join(modules, 'topojson-client'));
  const world = JSON.parse(fs.readFileSync(path.join(modules, 'world-atlas', 'countries-50m.json'), 'utf8'));
  const catalogues = ['en', 'fr'].map(language => new Intl.DisplayNames(language, { type: 'region' }));
  const found = new Map();
  topojson.feature(world, world.objects.countries).features.forEach(feature => {
    const names = countryNames(feature, catalogues);
    const ring = mainRing(feature.geometry);
    if (!names)
      return;
    const middle = middleOf(ring);
    const from = zoomFor(names, middle.depth, middle.y);
    // A country of two shapes is named in the larger one.
    const former = found.get(names[0]);
    if (from <= lastCountryZoom && !(former && former[1] <= from))
      found.set(names[0], ['country', rounded(from), rounded(Math.max(6, from + countryStay)), rounded(middle.y),
        rounded(middle.x), ...names, 0]);
  });
  return Array.from(found.values());
}

function rounded(value) {
  return Number(value.toFixed(2));
}

function main(modules, output) {
  // What comes first has the room first: few cities from afar, then countries and seas by the zoom they come with.
  const all = [...countries(path.resolve(modules)), ...seas(), ...cities()].sort((a, b) => a[1] - b[1]);
  fs.mkdirSync(path.dirname(output), { recursive: true });
  fs.writeFileSync(output, `window.worldNames = [\n${all.map(name => JSON.stringify(name)).join(',\n')}\n];\n`);
}

if (process.argv.length !== 4) {
  console.error('usage: names.js NODE_MODULES OUTPUT');
  process.exit(2);
}
main(process.argv[2], process.argv[3]);
