/**
 * Holds the map engine against what the scripts of the page use of the map service: every class and every method, every
 * event that they listen for and every option that they set. That the service itself has them is the type check's to say
 * (maps/tsconfig.json); between the two, page, engine and service cannot drift apart.
 *
 *     node supplied.js MAPS TYPE_ROOTS
 */
'use strict';
const fs = require('fs');
const path = require('path');
const ts = require('typescript');

const [folder, typeRoots] = process.argv.slice(2).map(name => path.resolve(name));

/** Options that speak of what only the service has: its own maps and buttons, and the fingers of a touch screen. */
const withoutMeaning = ['mapTypeId', 'mapTypeControl', 'streetViewControl', 'fullscreenControl', 'gestureHandling'];

const filesOf = room => fs.readdirSync(path.join(folder, room)).filter(name => name.endsWith('.js'))
  .map(name => path.join(folder, room, name));
const engineFiles = filesOf('engine');
const pageFiles = filesOf('page');
const program = ts.createProgram([...pageFiles, ...engineFiles, path.join(folder, 'types/page.d.ts')], {
  allowJs: true,
  noEmit: true,
  target: ts.ScriptTarget.ES2015,
  lib: ['lib.es2015.d.ts', 'lib.dom.d.ts', 'lib.dom.iterable.d.ts'],
  types: ['google.maps'],
  typeRoots: [typeRoots],
});
const checker = program.getTypeChecker();

const isIn = room => declaration => path.dirname(declaration.getSourceFile().fileName) === path.join(folder, room);
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

/** What the engine puts into `maps`: the names and the types of classes and objects. */
function findSupplied() {
  const supplied = new Map();
  visit(engineFiles, node => {
    if (!ts.isBinaryExpression(node) || node.operatorToken.kind !== ts.SyntaxKind.EqualsToken
      || !ts.isPropertyAccessExpression(node.left))
      return;
    const owner = node.left.expression.getText();
    const isClass = kindIs(checker.getSymbolAtLocation(node.right), ts.SymbolFlags.Class);
    if (owner === 'maps' || isClass)
      supplied.set(node.left.name.text, typesOf(node.right));
  });
  return supplied;
}

/** The type of an object, or for a class those of the class and of its instances. */
function typesOf(expression) {
  const type = checker.getTypeAtLocation(expression);
  return [type, ...type.getConstructSignatures().map(signature => signature.getReturnType())];
}

/** What the service declares besides is inherited on paper alone. */
function hasOwn(types, member) {
  return types.some(type => {
    const found = type.getProperty(member);
    return !!found && found.declarations.some(isIn('engine'));
  });
}

const supplied = findSupplied();
const engineText = engineFiles.map(name => fs.readFileSync(name, 'utf8')).join('\n');
const problems = new Set();
const counts = { names: 0, events: 0, options: 0 };

function supplies(owner, member) {
  const types = supplied.get(owner);
  const base = supplied.get('MVCObject');
  return !!types && (hasOwn(types, member) || (owner !== 'event' && hasOwn(base, member)));
}

/** A class of the service, a member of one, or a function of `google.maps.event`. */
function checkName(node) {
  const symbol = checker.getSymbolAtLocation(node.name);
  if (!symbol || !symbol.declarations || !symbol.declarations.some(isOfService))
    return;
  const isPart = kindIs(symbol, ts.SymbolFlags.Class | ts.SymbolFlags.Enum);
  // The page's own declarations add to classes by interfaces of the same name.
  const isMember = kindIs(symbol.parent, ts.SymbolFlags.Class)
    || (kindIs(symbol.parent, ts.SymbolFlags.Interface) && supplied.has(symbol.parent.name))
    || (kindIs(symbol, ts.SymbolFlags.Function) && symbol.parent.name === 'event');
  if (!isPart && !isMember)
    return;
  ++counts.names;
  if (isPart ? !supplied.has(symbol.name) : !supplies(symbol.parent.name, symbol.name))
    problems.add(`${placeOf(node)}: the engine has no ${isPart ? '' : `${symbol.parent.name}.`}${symbol.name}`);
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

console.log(`${counts.names} names, ${counts.events} events and ${counts.options} options are used`);
problems.forEach(problem => console.log(problem));
// A check that sees nothing has found nothing.
if (problems.size || counts.names < 50 || counts.events < 5 || counts.options < 30)
  process.exitCode = 1;
