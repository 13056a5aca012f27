// What the browser keeps: the player's files in its database, one record each, and small wishes.
const place = new URL('.', location.href).pathname; // each copy of the game on a host keeps its own
const store = 'files';
let database = null;
const files = new Map(); // as they are kept
let asked = false; // that the browser not clear them by itself

const answerTo = (request) =>
  new Promise((done, failed) => {
    request.onsuccess = () => done(request.result);
    request.onerror = () => failed(request.error);
  });

// Opens the database and reads all files. Where a window keeps nothing, none are there and none will last.
export async function open() {
  try {
    const request = indexedDB.open(`orvane ${place}`, 1);
    request.onupgradeneeded = () => request.result.createObjectStore(store);
    database = await answerTo(request);
    database.onversionchange = () => database.close();
    const all = database.transaction(store).objectStore(store);
    const [names, contents] = await Promise.all([answerTo(all.getAllKeys()), answerTo(all.getAll())]);
    names.forEach((name, i) => files.set(name, contents[i]));
  } catch {
    database = null;
  }
  return files;
}

export const lasts = () => database !== null;
export const kept = () => files;

// Replaces files, all of them or none. Done when they last; tells why it could not be, or nothing.
export async function keep(changes) {
  try {
    if (database) {
      const work = database.transaction(store, 'readwrite', { durability: 'strict' });
      for (const [name, bytes] of changes) work.objectStore(store).put(bytes, name);
      await new Promise((done, failed) => {
        work.oncomplete = done;
        work.onabort = () => failed(work.error ?? new Error('aborted'));
      });
    }
  } catch (error) {
    if (error?.name === 'QuotaExceededError') return '保存する場所がありません';
    return String(error?.message ?? error);
  }
  for (const [name, bytes] of changes) files.set(name, bytes);
  asked ||= Boolean(navigator.storage?.persist?.() ?? true);
  return '';
}

// The same for one file of the game, which is told how it went by the number that it has asked under.
export const keepFor = (game) => async (number, name, bytes) => game.send('Kept', number, await keep([[name, bytes]]));

// Hands a file to the player.
export function hand(name, bytes) {
  const link = document.createElement('a');
  link.href = URL.createObjectURL(new Blob([bytes]));
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60000);
}

// Claims the files for this tab, for as long as it is open. Whether it has got them.
export const claim = (wishes) =>
  new Promise((done) => {
    navigator.locks.request(`orvane ${place}`, wishes, (lock) => {
      done(Boolean(lock));
      return lock ? new Promise(() => {}) : undefined;
    });
  });

// ---- wishes

let wishes = null;
try {
  wishes = localStorage;
} catch {
  // not in this window
}

export const remembered = (name, otherwise) => wishes?.getItem(`orvane-${name}`) ?? otherwise;
export const remember = (name, value) => wishes?.setItem(`orvane-${name}`, value);
