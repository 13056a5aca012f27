// The browser's database, in memory: it keeps what is written apart from what lasts, and its browser or machine can go
// down at any moment.
import assert from 'node:assert/strict';

// Numbers from 0 to below `count` that a seed tells.
export function chance(seed) {
  let state = seed * 2654435761;
  return (count) => {
    state = (Math.imul(state ^ (state >>> 15), 2246822519) + 374761393) >>> 0;
    return (state >>> 8) % count;
  };
}

export const slots = Array.from({ length: 10 }, (_, i) => `Save${String(i + 1).padStart(2, '0')}.sav`);
export const text = (bytes) => (bytes ? Buffer.from(bytes).toString('base64') : 'nothing');
// Waits until so many rounds of what was due have gone by.
export const after = (turns) => new Promise((done) => (turns ? setImmediate(() => after(turns - 1).then(done)) : queueMicrotask(done)));

// A database of one store, and what of it lasts. What a transaction writes is seen once it is complete, all of it; on
// the disk it is then only where the transaction asked for that, otherwise it may come later, or never. `breaks` where
// transactions may fail, and where a cut may come before anybody is told that one is complete.
export function makeDatabase(random, lasting, breaks = true) {
  const seen = new Map(lasting);
  const late = []; // complete, but not yet on the disk
  let isDown = false;
  let turn = Promise.resolve(); // transactions that write come one after the other
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
    turn = turn.then(() => after(1 + random(3))).then(() => {
      if (isDown) return;
      if (breaks && random(10) === 0) {
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
      if (breaks && random(12) === 0) return; // complete, and the cut comes before anybody is told
      work.oncomplete?.();
    });
    return work;
  };
  // Whatever is late comes or not; nobody is told of anything any more.
  const cut = () => {
    isDown = true;
    for (const change of late.splice(0)) if (random(2) === 0) change();
  };
  return { database: { transaction, createObjectStore: () => {}, close: () => {} }, cut, lasting };
}

// A module of the page's as a page loads it, on such a database: every time another one.
let loaded = 0;
export async function loadModule(path, { database }) {
  globalThis.location = { href: 'https://example.org/orvane/index.html' };
  Object.defineProperty(globalThis, 'navigator', { value: {}, configurable: true });
  globalThis.indexedDB = {
    open: () => {
      const request = { result: database };
      queueMicrotask(() => request.onsuccess());
      return request;
    },
  };
  return import(`${path}?${++loaded}`);
}
