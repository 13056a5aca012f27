// The page's saves in a database whose browser or machine goes down at any moment. The module is the page's own;
// the database is one in memory that keeps what is written apart from what lasts.
import assert from 'node:assert/strict';
import { test } from 'node:test';

const slots = Array.from({ length: 10 }, (_, i) => `Save${String(i + 1).padStart(2, '0')}.sav`);

// Numbers from 0 to below `count` that a seed tells.
function chance(seed) {
  let state = seed * 2654435761;
  return (count) => {
    state = (Math.imul(state ^ (state >>> 15), 2246822519) + 374761393) >>> 0;
    return (state >>> 8) % count;
  };
}

// A database of one store. What a transaction writes is seen once it is complete, all of it; on the disk it is then
// only where the transaction asked for that, otherwise it may come later, or never.
function makeDatabase(random, lasting) {
  const seen = new Map(lasting);
  const late = []; // complete, but not yet on the disk
  let isDown = false;
  const settle = (request, result) => queueMicrotask(() => isDown || request.onsuccess?.(result));
  const flush = () => {
    for (const change of late.splice(0)) change();
  };
  const transaction = (name, mode = 'readonly', wishes = {}) => {
    const changes = [];
    const work = { error: null };
    work.objectStore = () => ({
      put: (value, key) => {
        assert.equal(mode, 'readwrite');
        changes.push([key, Uint8Array.from(value)]);
        return {};
      },
      getAllKeys: () => ({ set onsuccess(then) { settle({ onsuccess: then }); }, get result() { return [...seen.keys()].sort(); } }),
      getAll: () => ({ set onsuccess(then) { settle({ onsuccess: then }); }, get result() { return [...seen.keys()].sort().map((key) => seen.get(key)); } }),
    });
    if (mode !== 'readwrite') return work;
    setImmediate(() => {
      if (isDown) return;
      if (random(10) === 0) {
        work.error = [new DOMException('full', 'QuotaExceededError'), new DOMException('broken', 'UnknownError'), null][random(3)];
        work.onabort?.();
        return;
      }
      for (const [key, value] of changes) seen.set(key, value);
      const last = () => changes.forEach(([key, value]) => lasting.set(key, value));
      if (wishes.durability === 'strict') {
        flush();
        last();
      } else {
        late.push(last);
      }
      if (random(12) === 0) return; // complete, and the cut comes before anybody is told
      work.oncomplete?.();
    });
    return work;
  };
  // Whatever is late comes or not; nobody is told of anything any more.
  const cut = () => {
    isDown = true;
    for (const change of late) if (random(2) === 0) change();
  };
  return { database: { transaction, createObjectStore: () => {}, close: () => {} }, cut };
}

// The module as a page loads it, on such a database. Every time another one.
let loaded = 0;
async function openPage(random, lasting) {
  const { database, cut } = makeDatabase(random, lasting);
  globalThis.location = { href: 'https://example.org/orvane/index.html' };
  Object.defineProperty(globalThis, 'navigator', { value: {}, configurable: true });
  globalThis.indexedDB = {
    open: () => {
      const request = { result: database };
      queueMicrotask(() => request.onsuccess());
      return request;
    },
  };
  const saves = await import(`../../src/frontend/web/page/saves.mjs?${++loaded}`);
  return { saves, cut, files: await saves.open() };
}

const anyRecord = (random) => Uint8Array.from({ length: 540 }, () => random(256));
const text = (bytes) => (bytes ? Buffer.from(bytes).toString('base64') : 'nothing');
const after = (turns) => new Promise((done) => (turns ? setImmediate(() => after(turns - 1).then(done)) : queueMicrotask(done)));

// Ten saves in a row, of which one is the last. Returns how it went.
async function series(seed, count) {
  const random = chance(seed);
  const lasting = new Map(slots.filter(() => random(4)).map((name) => [name, anyRecord(random)]));
  const mayHold = new Map(slots.map((name) => [name, new Set([text(lasting.get(name))])]));
  const { saves, cut } = await openPage(random, lasting);
  const last = random(11);
  for (let save = 0; save < 10; ++save) {
    const name = slots[random(slots.length)];
    const record = anyRecord(random);
    // An archive brings several at once.
    const changes = random(5) ? [[name, record]] : [[name, record], ...slots.filter((other) => other !== name && random(2)).map((other) => [other, anyRecord(random)])];
    const work = saves.keep(changes);
    // The power fails at once, or while the page waits for the database; or the page is never answered.
    if (save === last && random(2)) await after(1);
    const patience = save === last ? after(0) : after(5);
    const answer = await Promise.race([work, patience.then(() => null)]);
    for (const [changed, bytes] of changes) {
      if (answer === '') mayHold.set(changed, new Set());
      if (answer === '' || answer === null) mayHold.get(changed).add(text(bytes));
      if (answer === '') assert.equal(text(saves.kept().get(changed)), text(bytes));
    }
    count[answer === '' ? 'done' : answer === null ? 'cuts' : 'refused'] += 1;
    if (answer === null) {
      const all = changes.map(([changed, bytes]) => [changed, text(bytes)]);
      cut();
      const come = all.filter(([changed, bytes]) => text(lasting.get(changed)) === bytes).length;
      assert.ok(come === 0 || come === all.length, 'of several files all have come or none');
      break;
    }
  }
  cut();
  for (const [name, known] of mayHold) assert.ok(known.has(text(lasting.get(name))), `series ${seed}: ${name} is lost or spoilt`);
  // The next visit finds what is there, and saves.
  const next = await openPage(() => 1, lasting);
  for (const name of slots) assert.equal(text(next.files.get(name)), text(lasting.get(name)));
  assert.equal(await next.saves.keep([[slots[0], anyRecord(random)]]), '');
}

test('a power cut leaves every slot with the old or the new record, whole', async () => {
  const count = { done: 0, refused: 0, cuts: 0 };
  for (let seed = 1; seed <= 1000; ++seed) await series(seed, count);
  assert.ok(count.done > 1000 && count.refused > 300 && count.cuts > 500, JSON.stringify(count));
});
