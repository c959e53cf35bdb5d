#!/usr/bin/env node
/**
 * clang-tidy over every source of ours, as a build compiled it: node scripts/tidy.js BUILD_FOLDER [JOBS]
 *
 * Each run of it goes through all of Qt's headers, which takes longer than most sources of ours. So a run reads a group
 * of sources. A group only acquits: where something is found, its halves are read, and what is found in a source
 * that is read alone is told. So two sources may use one name for two things; it costs time, no more.
 */
'use strict';
const childProcess = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');

const rooms = ['ZephanCommon', 'source', 'tools', 'bench', 'tests', 'fuzz'];
const groupSize = 12;

const root = path.resolve(__dirname, '..');
const [build, jobs] = [path.resolve(process.argv[2]), Number(process.argv[3]) || os.cpus().length];
const temporary = fs.mkdtempSync(path.join(os.tmpdir(), 'tidy-'));
process.on('exit', () => fs.rmSync(temporary, { recursive: true, force: true }));

/** Ours, each once; what the build generates is not judged. A source of several programs is read as in the first. */
function ourSources() {
  const commands = JSON.parse(fs.readFileSync(path.join(build, 'compile_commands.json'), 'utf8'));
  const isOurs = command => rooms.some(room => command.file.startsWith(path.join(root, room) + path.sep));
  const byFile = new Map(commands.filter(isOurs).reverse().map(command => [command.file, command]));
  if (!byFile.size)
    throw new Error(`none of our sources was compiled in ${build}`);
  return [...byFile.values()].sort((a, b) => (a.file < b.file ? -1 : 1))
    .map(command => Object.assign({ text: fs.readFileSync(command.file, 'utf8') }, command));
}

/** Of the options, where headers are sought: a group seeks them wherever one of its sources does. */
const folders = / (-I|-isystem )\S+/g;
/** What is left has to be the same in a group. */
const otherOptions = source => source.command.replace(folders, '').replace(/ -o .*$/, '');

/** A test, or what begins a program, can be put into a namespace: nothing of it is declared elsewhere. */
const isClosed = source => /^#include "\w+\.moc"$|^int main\(/m.test(source.text);
/** What has to stand outside of any, and once in a program; and a name that may be of no use but to another source. */
const standsAlone = source => /Q_DECLARE_METATYPE|extern "C"|^using [\w:]+;|^namespace \w+ =/m.test(source.text);

function groupsOf(sources) {
  const kinds = new Map();
  sources.forEach(source => {
    const kind = standsAlone(source) ? source.file : `${isClosed(source)} ${otherOptions(source)}`;
    kinds.set(kind, (kinds.get(kind) || []).concat(source));
  });
  return [].concat(...[...kinds.values()].map(kind => dealt(kind, Math.ceil(kind.length / groupSize))));
}

/** So many parts of the list. Neighbours, the likeliest to use the same names, go to different ones. */
function dealt(list, parts) {
  return Array.from({ length: parts }, (_, part) => list.filter((_, i) => i % parts === part));
}

/**
 * Writes the sources of a group into one, and how to compile it. They are copied, for some checks and the analyzer leave
 * out what is included.
 */
function joined(group) {
  const folder = fs.mkdtempSync(path.join(temporary, 'group-'));
  const file = path.join(folder, 'group.cpp');
  const texts = isClosed(group[0])
    ? headersOf(group).concat(group.map((source, i) => `namespace unit_${i} {\n${source.text}}\n`))
    : group.map(source => source.text);
  fs.writeFileSync(file, texts.join('\n'));
  const sought = new Set([].concat(...group.map(source =>
    (source.command.match(folders) || []).concat(` -I${path.dirname(source.file)}`))));
  const command = `${otherOptions(group[0])}${[...sought].join('')} -c ${file}`;
  const database = [{ directory: group[0].directory, file: file, command: command }];
  fs.writeFileSync(path.join(folder, 'compile_commands.json'), JSON.stringify(database));
  return { folder: folder, file: file };
}

/** What a group includes, which must not be met within a namespace first. */
function headersOf(group) {
  const lines = [].concat(...group.map(source => source.text.match(/^#include .*$/mg) || []));
  return [...new Set(lines.filter(line => !line.includes('.moc"')))];
}

/** @return {Promise<string>} what clang-tidy finds; empty: nothing */
function findings(folder, file) {
  const call = ['-quiet', `-config-file=${path.join(root, '.clang-tidy')}`, '-p', folder, file];
  return new Promise((resolve, reject) => {
    const run = childProcess.spawn('clang-tidy', call, { stdio: ['ignore', 'pipe', 'pipe'] });
    let output = '';
    let complaint = '';
    run.stdout.on('data', data => { output += data; });
    run.stderr.on('data', data => { complaint += data; });
    run.on('error', reject);
    run.on('close', code => resolve(code === 0 ? '' : output || complaint || `clang-tidy gave ${code} on ${file}\n`));
  });
}

/** What is found in a group's sources; empty: nothing. */
async function judge(group) {
  if (group.length === 1)
    return findings(build, group[0].file);
  const { folder, file } = joined(group);
  if (!await findings(folder, file))
    return '';
  const [some, others] = dealt(group, 2);
  return await judge(some) + await judge(others);
}

async function main() {
  const sources = ourSources();
  const waiting = groupsOf(sources).sort((a, b) => b.length - a.length);
  console.log(`${sources.length} sources in ${waiting.length} groups`);
  const work = async () => {
    while (waiting.length) {
      const found = await judge(waiting.shift());
      if (found)
        process.exitCode = 1;
      process.stdout.write(found);
    }
  };
  await Promise.all(Array.from({ length: jobs }, work));
}

main();
