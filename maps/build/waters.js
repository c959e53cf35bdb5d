/** The lakes and rivers of the lists beside this file, as smooth lines of longitudes and latitudes. */
'use strict';
const fs = require('fs');
const path = require('path');

/** Between two places of a list the line gets so many points more. */
const between = 5;

function pointsOf(text) {
  return text.split(', ').map(pair => pair.split(' ').map(Number).reverse());
}

/** The point of a curve through p1 and p2 that takes its direction from the neighbours; `part` of the way from p1. */
function curvePoint(p0, p1, p2, p3, part) {
  return [0, 1].map(axis => 0.5 * (2 * p1[axis] + (p2[axis] - p0[axis]) * part
    + (2 * p0[axis] - 5 * p1[axis] + 4 * p2[axis] - p3[axis]) * part * part
    + (3 * p1[axis] - p0[axis] - 3 * p2[axis] + p3[axis]) * part * part * part));
}

/** A point beyond `from` as seen from `to`, so near that a short piece beside a long one makes no loop. */
function reach(from, to, next) {
  const length = Math.hypot(to[0] - from[0], to[1] - from[1]);
  const own = Math.hypot(next[0] - to[0], next[1] - to[1]);
  const part = length > 0 ? Math.min(1, own / length) : 1;
  return [to[0] + (from[0] - to[0]) * part, to[1] + (from[1] - to[1]) * part];
}

/** A curve through all the points; a closed one has no end. */
function smooth(points, closed) {
  const count = points.length;
  const at = i => (closed ? points[(i + count) % count] : points[Math.max(0, Math.min(count - 1, i))]);
  const curve = [];
  for (let i = 0; i < (closed ? count : count - 1); ++i) {
    const [p1, p2] = [at(i), at(i + 1)];
    const before = reach(at(i - 1), p1, p2);
    const after = reach(at(i + 2), p2, p1);
    for (let j = 0; j <= between; ++j)
      curve.push(curvePoint(before, p1, p2, after, j / (between + 1)));
  }
  return closed ? curve.concat([curve[0]]) : curve.concat([points[count - 1]]);
}

function linesOf(file) {
  return fs.readFileSync(path.join(__dirname, file), 'utf8').split('\n').filter(line => line && line[0] !== '#');
}

/** Up to which zoom a lake is drawn: a small one follows the towns on its shore, of a large one only the shape is known. */
const lastZooms = { small: 13, large: 9.5 };
const smallFrom = 7;

/** The lakes with what stands in front of their colon; an island has the zooms of its lake. */
function lakes() {
  let last = 0;
  return linesOf('lakes.txt').map(line => {
    const [, zoom, names, places] = line.match(/^(-|\S+) (?:(.*): )?(.*)$/);
    if (zoom !== '-')
      last = Number(zoom) < smallFrom ? lastZooms.large : lastZooms.small;
    return { zoom: Number(zoom), last: last, names: names, points: pointsOf(places) };
  });
}

/** @return {Array<{last: number, ring: Array}>} closed rings of [longitude, latitude], islands among them */
exports.lakeRings = () => lakes().map(lake => ({ last: lake.last, ring: smooth(lake.points, true) }));

/** @return {Array<{zoom: number, last: number, names: string, middle: number[]}>} middle is [latitude, longitude] */
exports.lakeNames = () => lakes().filter(lake => lake.names).map(lake => {
  const sum = axis => lake.points.reduce((total, point) => total + point[axis], 0) / lake.points.length;
  return { zoom: lake.zoom, last: lake.last, names: lake.names, middle: [sum(1), sum(0)] };
});

/** @return {Array<{zoom: number, points: Array}>} from which zoom a river is drawn, and its course */
exports.rivers = () => linesOf('rivers.txt').map(line => {
  const [, zoom, , places] = line.match(/^(\S+) (.*): (.*)$/);
  return { zoom: Number(zoom), points: smooth(pointsOf(places), false) };
});
