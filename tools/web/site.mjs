// site.mjs SOURCES OUT FILE ...: lays out the page as a folder that any host can serve. Every file but those that a
// browser asks for by name carries its content's hash in its own, so that what is kept is never stale.
//   SOURCES   the page's own files
//   OUT       the folder, made anew
//   FILE ...  what the build has made: the program, letters, pictures, and a folder of sounds
import { createHash } from 'node:crypto';
import { existsSync, mkdirSync, readFileSync, readdirSync, rmSync, statSync, writeFileSync } from 'node:fs';
import { basename, join } from 'node:path';

const [sources, out, ...made] = process.argv.slice(2);
const known = new Set(['index.html', 'sw.js', 'licences.txt']); // by their plain names
const isText = (name) => /\.(html|m?js|css|json|webmanifest)$/.test(name);

const inside = (folder) => readdirSync(folder).map((name) => join(folder, name));
const isFolder = (path) => existsSync(path) && statSync(path).isDirectory();
const isSound = (path) => /\.(opus|mp3|tsv)$/.test(path);
const paths = made.flatMap((path) => (isFolder(path) ? inside(path).filter(isSound) : existsSync(path) ? [path] : []));
const files = new Map();
for (const path of [...inside(sources), ...paths]) files.set(basename(path), readFileSync(path));

// Of each sound its length, and what it was encoded to. Without sounds the game is silent.
const sounds = {};
for (const line of String(files.get('sounds.tsv') ?? '').split('\n').filter(Boolean)) {
  const [name, length] = line.split('\t');
  sounds[name] = { length: Number(length), opus: `${name}.opus`, mp3: `${name}.mp3` };
}
files.delete('sounds.tsv');
files.set('sounds.json', Buffer.from(JSON.stringify(sounds)));

// The names of the other files that a text names, in quotes or brackets.
const named = (name) => (isText(name) ? [...files.keys()].filter((other) => other !== name && mentions(name).test(other)) : []);
function mentions(name) {
  const words = new Set(String(files.get(name)).match(/[\w.-]+\.\w+/g));
  return { test: (other) => words.has(other) };
}

// What a file is called where it is served; those that it names come first.
const hashed = new Map();
const onTheWay = new Set();
function settle(name) {
  if (hashed.has(name)) return;
  if (onTheWay.has(name)) throw new Error(`${name} names itself by way of others`);
  onTheWay.add(name);
  const others = name === 'sw.js' ? [] : named(name);
  others.forEach(settle);
  if (others.length) {
    const text = String(files.get(name)).replace(/[\w.-]+\.\w+/g, (word) => hashed.get(others.includes(word) ? word : '') ?? word);
    files.set(name, Buffer.from(text));
  }
  const hash = createHash('sha256').update(files.get(name)).digest('hex').slice(0, 10);
  hashed.set(name, known.has(name) ? name : name.replace(/(\.\w+)$/, `-${hash}$1`));
}

// The modules that the start needs are asked for at once, not one after the other; those that are brought by
// import() are not among them.
const modules = new Set(['early.mjs', 'main.mjs']);
for (const name of modules) for (const [, other] of String(files.get(name)).matchAll(/ from '\.\/([\w.-]+)'/g)) modules.add(other);
const preloads = [...modules].map((name) => `<link rel="modulepreload" href="${name}">`).join('\n');
files.set('index.html', Buffer.from(String(files.get('index.html')).replace('<!--modules-->', preloads)));

[...files.keys()].forEach(settle);

// The service worker knows this version by all of its files.
const all = [...hashed].filter(([name]) => name !== 'sw.js').map(([, served]) => served);
const version = createHash('sha256').update(files.get('index.html')).update(all.sort().join()).digest('hex').slice(0, 10);
const worker = String(files.get('sw.js')).replace("'VERSION'", `'${version}'`).replace("['FILES']", JSON.stringify(all));
files.set('sw.js', Buffer.from(worker));

rmSync(out, { recursive: true, force: true });
mkdirSync(out, { recursive: true });
for (const [name, bytes] of files) writeFileSync(join(out, hashed.get(name)), bytes);
console.log(`${out}: version ${version}, ${files.size} files`);
