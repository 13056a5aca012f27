// The page's saves in a database whose browser or machine goes down at any moment: the module alone, which is the
// page's own, and the page's whole game over it. The database is one in memory that keeps what is written apart from what
// lasts.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Worker } from 'node:worker_threads';
import { after, chance, loadModule, makeDatabase, slots, text } from './lib/power/database.mjs';
import { compiled } from './lib/power/page.mjs';

const source = new URL('../../src/frontend/web/page/saves.mjs', import.meta.url).href;
async function openSaves(world) {
  const saves = await loadModule(source, world);
  return { saves, files: await saves.open() };
}

const anyRecord = (random) => Uint8Array.from({ length: 540 }, () => random(256));

// Ten saves in a row, of which one is the last. Returns how it went.
async function series(seed, count) {
  const random = chance(seed);
  const lasting = new Map(slots.filter(() => random(4)).map((name) => [name, anyRecord(random)]));
  const mayHold = new Map(slots.map((name) => [name, new Set([text(lasting.get(name))])]));
  const world = makeDatabase(random, lasting);
  const { saves } = await openSaves(world);
  const last = random(11);
  for (let save = 0; save < 10; ++save) {
    const name = slots[random(slots.length)];
    const record = anyRecord(random);
    // An archive brings several at once.
    const changes = random(5) ? [[name, record]] : [[name, record], ...slots.filter((other) => other !== name && random(2)).map((other) => [other, anyRecord(random)])];
    const work = saves.keep(changes);
    // The power fails at once, or while the page waits for the database; or the page is never answered.
    const patience = save === last ? after(random(4)) : after(20);
    const answer = await Promise.race([work, patience.then(() => null)]);
    for (const [changed, bytes] of changes) {
      if (answer === '') mayHold.set(changed, new Set());
      if (answer === '' || answer === null) mayHold.get(changed).add(text(bytes));
      if (answer === '') assert.equal(text(saves.kept().get(changed)), text(bytes));
    }
    count[answer === '' ? 'done' : answer === null ? 'cuts' : 'refused'] += 1;
    if (answer === null) {
      const all = changes.map(([changed, bytes]) => [changed, text(bytes)]);
      world.cut();
      const come = all.filter(([changed, bytes]) => text(lasting.get(changed)) === bytes).length;
      assert.ok(come === 0 || come === all.length, 'of several files all have come or none');
      break;
    }
  }
  world.cut();
  for (const [name, known] of mayHold) assert.ok(known.has(text(lasting.get(name))), `series ${seed}: ${name} is lost or spoilt`);
  // The next visit finds what is there, and saves.
  const next = await openSaves(makeDatabase(random, lasting, false));
  for (const name of slots) assert.equal(text(next.files.get(name)), text(lasting.get(name)));
  assert.equal(await next.saves.keep([[slots[0], anyRecord(random)]]), '');
}

test('a power cut leaves every slot with the old or the new record, whole', async () => {
  const count = { done: 0, refused: 0, cuts: 0 };
  for (let seed = 1; seed <= 1000; ++seed) await series(seed, count);
  assert.ok(count.done > 1000 && count.refused > 300 && count.cuts > 500, JSON.stringify(count));
});

test('saves that are under way together come in their order', async () => {
  const count = { done: 0, refused: 0, untold: 0 };
  for (let seed = 1; seed <= 300; ++seed) {
    const random = chance(seed);
    const world = makeDatabase(random, new Map());
    const { saves } = await openSaves(world);
    const wishes = Array.from({ length: 4 }, () => [slots[random(2)], anyRecord(random)]);
    const answers = wishes.map(() => null);
    const works = wishes.map(async (wish, i) => (answers[i] = await saves.keep([wish])));
    await Promise.race([Promise.all(works), after(40)]);
    const told = new Map(wishes.filter((_, i) => answers[i] === ''));
    for (const [name, bytes] of saves.kept()) assert.equal(text(bytes), text(told.get(name)));
    assert.equal(saves.kept().size, told.size);
    // What lasts is that, or what came after it and nobody was told of.
    for (const name of slots) {
      const mine = wishes.map(([wished, bytes], i) => ({ bytes: text(bytes), answer: answers[i], isIts: wished === name })).filter(({ isIts }) => isIts);
      const last = mine.findLastIndex(({ answer }) => answer === '');
      const may = mine.filter(({ answer }, i) => i === last || (i > last && answer === null)).map(({ bytes }) => bytes);
      if (last < 0) may.push('nothing');
      assert.ok(may.includes(text(world.lasting.get(name))), `series ${seed}: ${name}`);
    }
    for (const answer of answers) count[answer === '' ? 'done' : answer === null ? 'untold' : 'refused'] += 1;
  }
  assert.ok(count.done > 600 && count.refused > 50 && count.untold > 30, JSON.stringify(count));
});

// In workers, of which each gives back at its end what its pages have taken.
const inWorker = (workerData) =>
  new Promise((done, failed) => {
    const worker = new Worker(new URL('./lib/power/series.mjs', import.meta.url), { workerData });
    worker.on('message', done).on('error', failed);
  });

test('after a power cut the game finds in every slot the old or the new record, and all that it has told to be saved', async () => {
  const program = await compiled();
  const all = { done: 0, refused: 0, cuts: 0, older: 0, newer: 0, pages: 0 };
  const series = 64;
  for (let first = 1; first <= series; first += 8) {
    const counts = await Promise.all([first, first + 4].map((from) => inWorker({ program, first: from, last: from + 3 })));
    for (const count of counts) for (const [name, number] of Object.entries(count)) all[name] += number;
  }
  const { done, refused, cuts, older, newer } = all;
  assert.ok(done > 3 * series && refused > series / 4 && cuts > series / 2 && older > series / 8 && newer > series / 8, JSON.stringify(all));
});
