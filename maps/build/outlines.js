#!/usr/bin/env node
/**
 * Makes the script that holds the world's coasts, borders, lakes and rivers: node outlines.js NODE_MODULES OUTPUT
 *
 * The land of three scales is cut into cells, so that the map reads and fills only what is in view. Rings that cross
 * 180 degrees are unrolled first and cut there; a ring around a pole is closed through the pole. Longitudes and
 * latitudes are thousandths of a degree, written as differences in plain characters.
 */
'use strict';
const fs = require('fs');
const path = require('path');
const { clipRing, clipSegment } = require('../engine/clip.js');
const waters = require('./waters.js');

/** From which zoom a scale is drawn, with waters of which scale, and its cells' width and height in degrees. */
const levels = [
  { scale: '110m', waters: '110m', fromZoom: 0, cell: 45 },
  { scale: '50m', waters: '50m', fromZoom: 4, cell: 7.5 },
  { scale: '10m', waters: '50m', fromZoom: 6.5, cell: 2.5 },
];

/** How far land reaches into the next cell, degrees: two fills that only touch would show a seam. */
const overlap = 0.05;
const unitsPerDegree = 1000;

/** Longitudes without jumps: each one within half a circle of the one before. Points become a flat x, y list. */
function unroll(points) {
  const flat = [];
  let turns = 0;
  points.forEach((point, i) => {
    if (i > 0) {
      const step = point[0] - points[i - 1][0];
      turns += step > 180 ? -360 : step < -180 ? 360 : 0;
    }
    flat.push(point[0] + turns, point[1]);
  });
  return flat;
}

function shifted(flat, degrees) {
  return flat.map((value, i) => (i % 2 ? value : value + degrees));
}

/** The copies of an unrolled ring that can reach the world between 180 west and 180 east; at a pole it is closed. */
function worldRings(points) {
  const flat = unroll(points);
  const turn = flat[flat.length - 2] - flat[0];
  if (Math.abs(turn) < 1)
    return [-360, 0, 360].map(degrees => shifted(flat.slice(0, -2), degrees));
  // Around a pole: a frieze of five turns, so that its two ends lie out of the world, closed along the pole.
  const frieze = [];
  const once = turn > 0 ? flat : unroll(points.slice().reverse());
  for (let degrees = -720; degrees <= 720; degrees += 360)
    frieze.push(...shifted(once.slice(0, -2), degrees));
  const pole = once[1] < 0 ? -90 : 90;
  frieze.push(frieze[frieze.length - 2], pole, frieze[0], pole);
  return [frieze];
}

function bounds(flat, axis) {
  let least = Infinity;
  let most = -Infinity;
  for (let i = axis; i < flat.length; i += 2) {
    least = Math.min(least, flat[i]);
    most = Math.max(most, flat[i]);
  }
  return [least, most];
}

/** The indices from..to of the cells that a range touches, within 0..count-1. */
function cellRange(range, origin, cell, count) {
  const from = Math.floor((range[0] - overlap - origin) / cell);
  const to = Math.floor((range[1] + overlap - origin) / cell);
  return [Math.max(0, from), Math.min(count - 1, to)];
}

/** From "?" to "~", but "!" for the backslash, which a script would have to double. */
function letter(value) {
  const code = value + 63;
  return code === 92 ? '!' : String.fromCharCode(code);
}

function encode(flat) {
  let text = '';
  let lastX = 0;
  let lastY = 0;
  const put = difference => {
    let value = difference < 0 ? ~(difference << 1) : difference << 1;
    for (; value >= 0x20; value >>= 5)
      text += letter(0x20 | (value & 0x1f));
    text += letter(value);
  };
  for (let i = 0; i < flat.length; i += 2) {
    put(flat[i] - lastX);
    put(flat[i + 1] - lastY);
    lastX = flat[i];
    lastY = flat[i + 1];
  }
  return text;
}

/** Whole units, without points that fall together. */
function rounded(flat) {
  const result = [];
  for (let i = 0; i < flat.length; i += 2) {
    const x = Math.round(flat[i] * unitsPerDegree);
    const y = Math.round(flat[i + 1] * unitsPerDegree);
    const end = result.length;
    if (end === 0 || result[end - 2] !== x || result[end - 1] !== y)
      result.push(x, y);
  }
  return result;
}

/** The cells of one scale, made when something falls into them. */
class Cells {
  constructor(cell) {
    this.cell = cell;
    this.columns = 360 / cell;
    this.rows = 180 / cell;
    this.byIndex = new Map();
  }

  at(column, row) {
    const index = row * this.columns + column;
    if (!this.byIndex.has(index))
      this.byIndex.set(index, { land: [], lakes: [], borders: [], rivers: [] });
    return this.byIndex.get(index);
  }

  /** @param {function(Object, string)} put what to do with the cell and the written part of the ring in it */
  addRing(ring, put) {
    const [firstColumn, lastColumn] = cellRange(bounds(ring, 0), -180, this.cell, this.columns);
    for (let column = firstColumn; column <= lastColumn; ++column) {
      const west = -180 + column * this.cell;
      const strip = clipRing(ring, west - overlap, -90, west + this.cell + overlap, 90);
      if (strip.length === 0)
        continue;
      const [firstRow, lastRow] = cellRange(bounds(strip, 1), -90, this.cell, this.rows);
      for (let row = firstRow; row <= lastRow; ++row) {
        const south = -90 + row * this.cell;
        const part = rounded(clipRing(strip, west - overlap, Math.max(-90, south - overlap), west + this.cell + overlap,
          Math.min(90, south + this.cell + overlap)));
        if (part.length >= 6)
          put(this.at(column, row), encode(part));
      }
    }
  }

  /** @param {function(Object, string)} put what to do with the cell and a written piece of the line in it */
  addLine(points, put) {
    const flat = unroll(points);
    const [firstColumn, lastColumn] = cellRange(bounds(flat, 0), -180, this.cell, this.columns);
    const [firstRow, lastRow] = cellRange(bounds(flat, 1), -90, this.cell, this.rows);
    for (let column = firstColumn; column <= lastColumn; ++column)
      for (let row = firstRow; row <= lastRow; ++row)
        this.runsInCell(flat, column, row).forEach(run => put(this.at(column, row), encode(run)));
  }

  /** The pieces of a line that lie in a cell. */
  runsInCell(flat, column, row) {
    const west = -180 + column * this.cell;
    const south = -90 + row * this.cell;
    const runs = [];
    let run = [];
    const close = () => {
      const whole = rounded(run);
      if (whole.length >= 4)
        runs.push(whole);
      run = [];
    };
    for (let i = 2; i < flat.length; i += 2) {
      const part = clipSegment(flat[i - 2], flat[i - 1], flat[i], flat[i + 1], west, south, west + this.cell,
        south + this.cell);
      if (!part) {
        close();
        continue;
      }
      if (run.length === 0 || run[run.length - 2] !== part[0] || run[run.length - 1] !== part[1]) {
        close();
        run.push(part[0], part[1]);
      }
      run.push(part[2], part[3]);
    }
    close();
    return runs;
  }
}

/** A cell's number, then land, lakes, borders and rivers; before a colon the zoom at which something ends. */
function cellText([index, cell]) {
  return [index, ...[cell.land, cell.lakes, cell.borders, cell.rivers].map(lines => lines.join(','))].join(';');
}

function makeLevel(level, modules) {
  const topojson = require(path.join(modules, 'topojson-client'));
  const world = JSON.parse(fs.readFileSync(path.join(modules, 'world-atlas', `countries-${level.scale}.json`), 'utf8'));
  const cells = new Cells(level.cell);
  const land = topojson.feature(world, world.objects.land);
  const shapes = land.type === 'FeatureCollection' ? land.features.map(feature => feature.geometry) : [land.geometry];
  for (const shape of shapes)
    for (const polygon of shape.type === 'Polygon' ? [shape.coordinates] : shape.coordinates)
      for (const points of polygon)
        worldRings(points).forEach(ring => cells.addRing(ring, (cell, text) => cell.land.push(text)));
  const borders = topojson.mesh(world, world.objects.countries, (a, b) => a !== b);
  borders.coordinates.forEach(points => cells.addLine(points, (cell, text) => cell.borders.push(text)));
  waters.lakes(modules, level.waters).forEach(lake => worldRings(lake.points).forEach(ring =>
    cells.addRing(ring, (cell, text) => cell.lakes.push(`${lake.last}:${text}`))));
  waters.rivers(modules, level.waters).forEach(river =>
    cells.addLine(river.points, (cell, text) => cell.rivers.push(`${river.last}:${text}`)));
  return {
    scale: level.scale,
    fromZoom: level.fromZoom,
    cell: level.cell,
    overlap: overlap,
    unitsPerDegree: unitsPerDegree,
    // As one plain text: the map takes from it what comes into view, and reading a page with it is quick.
    cells: Array.from(cells.byIndex.entries()).map(cellText).join('/'),
  };
}

function main(modules, output) {
  const made = levels.map(level => makeLevel(level, path.resolve(modules)));
  fs.mkdirSync(path.dirname(output), { recursive: true });
  fs.writeFileSync(output, `window.worldOutlines = ${JSON.stringify(made)};\n`);
}

if (process.argv.length !== 4) {
  console.error('usage: outlines.js NODE_MODULES OUTPUT');
  process.exit(2);
}
main(process.argv[2], process.argv[3]);
