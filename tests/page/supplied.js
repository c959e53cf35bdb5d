/**
 * Holds what the map engine supplies (maps/types/engine.d.ts) against what the scripts of the page use of the map
 * service: every class and every member, every event that they listen for and every option that they set. That the
 * service has what the page uses, and that the engine's classes are what engine.d.ts says of the service's, is the type
 * check's to say (maps/tsconfig.json, maps/tsconfig.supplied.json): page, engine and service cannot drift apart.
 *
 *     node supplied.js MAPS TYPE_ROOTS [Marker.setIcon]
 *
 * With a member it is seen what the check says if the engine had not got it.
 */
'use strict';
const fs = require('fs');
const path = require('path');
const ts = require('typescript');

const [folder, typeRoots] = process.argv.slice(2, 4).map(name => path.resolve(name));
const missing = (process.argv[4] || '').split('.');

/** Options that speak of what only the service has: its own maps and buttons, and the fingers of a touch screen. */
const withoutMeaning = ['mapTypeId', 'mapTypeControl', 'streetViewControl', 'fullscreenControl', 'gestureHandling'];

const filesOf = room => fs.readdirSync(path.join(folder, room)).filter(name => name.endsWith('.js'))
  .map(name => path.join(folder, room, name));
const engineFiles = filesOf('engine');
const pageFiles = filesOf('page');
const typeFiles = ['types/page.d.ts', 'types/engine.d.ts'].map(name => path.join(folder, name));
const program = ts.createProgram([...pageFiles, ...engineFiles, ...typeFiles], {
  allowJs: true,
  noEmit: true,
  target: ts.ScriptTarget.ES2015,
  lib: ['lib.es2015.d.ts', 'lib.dom.d.ts', 'lib.dom.iterable.d.ts'],
  types: ['google.maps', 'leaflet'],
  typeRoots: [typeRoots],
});
const checker = program.getTypeChecker();

const isOfService = declaration => declaration.getSourceFile().fileName.includes('/google.maps/');
const kindIs = (symbol, flags) => !!symbol && (symbol.flags & flags) !== 0;

function visit(files, callback) {
  const walk = node => {
    callback(node);
    ts.forEachChild(node, walk);
  };
  files.forEach(name => walk(program.getSourceFile(name)));
}

function placeOf(node) {
  const file = node.getSourceFile();
  const line = file.getLineAndCharacterOfPosition(node.getStart()).line + 1;
  return `${path.relative(folder, file.fileName)}:${line}`;
}

/** The members of an interface of engine.d.ts: the parts of the service, and the names of what each of them has. */
function partsOf(name) {
  const file = program.getSourceFile(typeFiles[1]);
  const type = checker.getTypeAtLocation(file.statements.find(each => ts.isInterfaceDeclaration(each)
    && each.name.text === name));
  return type.getProperties().map(part => [part.name, membersOf(checker.getTypeOfSymbolAtLocation(part, file))]);
}

/** Of a class also those of its instances. */
function membersOf(type) {
  const types = [type, ...type.getConstructSignatures().map(signature => signature.getReturnType())];
  return new Set([].concat(...types.map(each => each.getProperties().map(member => member.name))));
}

const made = new Map(partsOf('Supplied'));
const supplied = new Map([...made, ...partsOf('Handed')]);
if (supplied.has(missing[0]))
  supplied.get(missing[0]).delete(missing[1]);
const engineText = engineFiles.map(name => fs.readFileSync(name, 'utf8')).join('\n');
const problems = new Set();
const counts = { names: 0, events: 0, options: 0 };

function supplies(owner, member) {
  const members = supplied.get(owner);
  return !!members && (members.has(member) || (owner !== 'event' && supplied.get('MVCObject').has(member)));
}

/** A class of the service, a member of one, a constant, or a function of `google.maps.event`. */
function checkName(node) {
  const symbol = checker.getSymbolAtLocation(node.name);
  if (!symbol || !symbol.declarations || !symbol.declarations.some(isOfService))
    return;
  const isPart = kindIs(symbol, ts.SymbolFlags.Class | ts.SymbolFlags.Enum);
  // Interfaces of the service are mostly options; and the page's own declarations add to classes by such.
  const isMember = kindIs(symbol.parent, ts.SymbolFlags.Class | ts.SymbolFlags.Enum)
    || (kindIs(symbol.parent, ts.SymbolFlags.Interface) && supplied.has(symbol.parent.name))
    || (kindIs(symbol, ts.SymbolFlags.Function) && symbol.parent.name === 'event');
  if (!isPart && !isMember)
    return;
  ++counts.names;
  if (isPart ? !supplied.has(symbol.name) : !supplies(symbol.parent.name, symbol.name))
    problems.add(`${placeOf(node)}: the engine has no ${isPart ? '' : `${symbol.parent.name}.`}${symbol.name}`);
}

/** What engine.d.ts names and no file of the engine gives to `supply`. */
function checkMade() {
  const given = new Set();
  visit(engineFiles, node => {
    if (ts.isCallExpression(node) && /\.supply$/.test(node.expression.getText()))
      node.arguments[0].properties.forEach(property => given.add(property.name.text));
  });
  [...made.keys()].filter(name => !given.has(name)).forEach(name =>
    problems.add(`types/engine.d.ts: no file of the engine supplies ${name}`));
}

/** The event that a listener is added for. Those of the document are not the map's. */
function checkEvent(call) {
  const method = ts.isPropertyAccessExpression(call.expression) && checker.getSymbolAtLocation(call.expression.name);
  if (!method || !/^addListener/.test(method.name) || !method.declarations.some(isOfService))
    return;
  call.arguments.filter(ts.isStringLiteral).forEach(name => {
    ++counts.events;
    if (!engineText.includes(`'${name.text}'`))
      problems.add(`${placeOf(name)}: the engine tells no event ${name.text}`);
  });
}

/** An option of a literal that goes to the service. */
function checkOption(property) {
  const expected = checker.getContextualType(property.parent);
  const option = expected && ts.isIdentifier(property.name) && expected.getProperty(property.name.text);
  if (!option || !option.declarations || !option.declarations.some(isOfService))
    return;
  ++counts.options;
  if (!withoutMeaning.includes(option.name) && !new RegExp(`\\b${option.name}\\b`).test(engineText))
    problems.add(`${placeOf(property)}: the engine knows no option ${option.name}`);
}

visit(pageFiles, node => {
  if (ts.isPropertyAccessExpression(node))
    checkName(node);
  else if (ts.isCallExpression(node))
    checkEvent(node);
  else if (ts.isPropertyAssignment(node) || ts.isShorthandPropertyAssignment(node))
    checkOption(node);
});

checkMade();
console.log(`${counts.names} names, ${counts.events} events and ${counts.options} options are used`);
problems.forEach(problem => console.log(problem));
// A check that sees nothing has found nothing.
if (problems.size || counts.names < 50 || counts.events < 5 || counts.options < 30)
  process.exitCode = 1;
