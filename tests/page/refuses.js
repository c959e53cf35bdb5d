/**
 * Drifts of the map engine that the type check of it has to refuse: each is made in a copy of one file in memory, of
 * which nothing else changes.
 *
 *     node refuses.js MAPS TYPE_ROOTS
 */
'use strict';
const path = require('path');
const ts = require('typescript');

const [folder, typeRoots] = process.argv.slice(2).map(name => path.resolve(name));

/** What it is, the file, what stands there and what takes its place. */
const drifts = [
  ['a method that has gone', 'engine/marker.js', 'setTitle(title) {', 'nameIt(title) {'],
  ['a method of a base class that has gone', 'engine/events.js', '    addListener(name, handler) {', '    listen(name, handler) {'],
  ['a parameter of another type', 'engine/map.js', '@param {number} zoom\n     */\n    setZoom', '@param {Date} zoom\n     */\n    setZoom'],
  ['a parameter without a type', 'engine/latlng.js', '/** @param {?google.maps.LatLng} other */', ''],
  ['an option of another type', 'engine/infowindow.js', '@param {InfoWindowOptions} [options]', '@param {{position: string}} [options]'],
  ['an argument more than the page gives', 'engine/imagemaptype.js', 'constructor(options) {', 'constructor(options, screen) {'],
  ['a return of another type', 'engine/latlng.js', 'return this.lat_;', 'return `${this.lat_}`;'],
  ['a return that is missing', 'engine/map.js', 'return this.leaflet.getZoom();', 'this.leaflet.getZoom();'],
  ['a return of another class', 'engine/polyline.js', 'return this.path;', 'return this.path.getArray();'],
  ['an event of another form', 'engine/pointer.js', 'latLng: new maps.LatLng(', 'position: new maps.LatLng('],
  ['a constant of another value', 'engine/controls.js', 'TOP_RIGHT: 3,', 'TOP_RIGHT: 4,'],
  ['a constant of another type', 'engine/controls.js', 'TOP_RIGHT: 3,', "TOP_RIGHT: 'topright',"],
  ['a constant that has gone', 'engine/controls.js', '      TOP_RIGHT: 3,\n', ''],
  ['a function of events that has gone', 'engine/events.js', 'removeListener(listener) {', 'remove(listener) {'],
  ['a member that the service has not got', 'types/engine.d.ts', "'setIcon'", "'setPicture'"],
  ['an option that the service has not got', 'types/engine.d.ts', "'disableDoubleClickZoom'", "'disableDoubleClick'"],
];

const project = path.join(folder, 'tsconfig.supplied.json');
const config = ts.getParsedCommandLineOfConfigFile(project, { typeRoots: [typeRoots] }, Object.assign({}, ts.sys, {
  onUnRecoverableConfigFileDiagnostic: fault => {
    throw new Error(ts.flattenDiagnosticMessageText(fault.messageText, '\n'));
  },
}));
let before;
const read = new Map();

/** What the check says of our own files, with one file whose text is another one. */
function faultsWith(name, text) {
  const host = ts.createCompilerHost(config.options);
  const fromDisk = host.getSourceFile;
  host.getSourceFile = (file, ...more) => {
    if (file === name)
      return ts.createSourceFile(file, text, ...more);
    if (!read.has(file))
      read.set(file, fromDisk(file, ...more));
    return read.get(file);
  };
  before = ts.createProgram(config.fileNames, config.options, host, before);
  // The declarations of others, which no drift changes, cost most of a whole check: engine_types reads them.
  const ours = before.getSourceFiles().filter(source => !path.resolve(source.fileName).startsWith(typeRoots)
    && !before.isSourceFileDefaultLibrary(source));
  return ours.flatMap(source => [...before.getSyntacticDiagnostics(source), ...before.getSemanticDiagnostics(source)])
    .concat(before.getGlobalDiagnostics(), before.getOptionsDiagnostics())
    .map(fault => ts.flattenDiagnosticMessageText(fault.messageText, '\n'));
}

const problems = faultsWith('', '').map(fault => `without a drift: ${fault}`);
drifts.forEach(([title, file, there, instead]) => {
  const name = path.join(folder, file);
  const text = ts.sys.readFile(name);
  if (text.split(there).length !== 2)
    problems.push(`${title}: ${file} has not once ${there}`);
  else if (faultsWith(name, text.replace(there, instead)).length === 0)
    problems.push(`${title}: not refused`);
});

console.log(`${drifts.length} drifts are tried`);
problems.forEach(problem => console.log(problem));
process.exitCode = problems.length ? 1 : 0;
