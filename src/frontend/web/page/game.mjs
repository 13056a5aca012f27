// The game itself: the compiled program, its clock and its course.
import createModule from './orvane-web.mjs';

let module;
let stopped = 0; // when the clock was stopped last
let missed = 0; // ms for which it stood
const pauses = new Set();
const followers = { apply: null, after: null, ended: null, failed: null };

// The time of the game: it stands while there is a reason to pause.
export const now = () => (pauses.size ? stopped : performance.now()) - missed;

export const isPaused = () => pauses.size > 0;

// Stops the game for a reason, or lets it go on when none is left. Tells whether that changed anything.
export function pause(reason, on) {
  const before = pauses.size > 0;
  if (on && !before) stopped = performance.now();
  if (on) pauses.add(reason);
  else pauses.delete(reason);
  const after = pauses.size > 0;
  if (before && !after) missed += performance.now() - stopped;
  if (before !== after) arm();
  return before !== after;
}

// What the game's own failure would leave in pieces is shown, not played on.
function guarded(work) {
  if (failed) return undefined;
  try {
    return work();
  } catch (error) {
    failed = true;
    followers.failed(error);
    return undefined;
  }
}
let failed = false;

// A text for the program; it is gone after the call.
function withText(text, work) {
  const size = module.lengthBytesUTF8(text) + 1;
  const at = module._malloc(size);
  module.stringToUTF8(text, at, size);
  try {
    return work(at);
  } finally {
    module._free(at);
  }
}

function withBytes(bytes, work) {
  const at = module._malloc(bytes.length + 1);
  module.HEAPU8.set(bytes, at);
  try {
    return work(at, bytes.length);
  } finally {
    module._free(at);
  }
}

// The compiled program, with what it may ask of the page.
export async function load(program, page) {
  module = await createModule({
    page: { now, ...page },
    instantiateWasm(imports, done) {
      program.then((source) => WebAssembly.instantiate(source, imports)).then((made) => done(made), followers.failed);
      return {};
    },
  });
}

// Begins over these files, a map of names to bytes. Returns the screens and controls that there are.
export function begin({ files, lengths, seed, speed }, told) {
  Object.assign(followers, told);
  return guarded(() => {
    withText(speed, (at) => module._Make(seed, at));
    for (const [name, bytes] of files) putFile(name, bytes);
    for (const [name, length] of Object.entries(lengths)) withText(name, (at) => module._SetSoundLength(at, length));
    return JSON.parse(module.UTF8ToString(module._Begin()));
  });
}

export const putFile = (name, bytes) => withText(name, (at) => withBytes(bytes, (from, size) => module._PutFile(at, from, size)));

// The answer to the program's wish that a file be kept.
export function kept(number, failure) {
  guarded(() => withText(failure, (at) => module._Kept(number, at)));
  follow();
}

// Why these bytes are no save, or nothing; all slots with what they are of; and a slot's bytes.
export const checkSave = (bytes) => withBytes(bytes, (at, size) => module.UTF8ToString(module._CheckSave(at, size)));
export const listSaves = () => JSON.parse(module.UTF8ToString(module._ListSaves()));
export const fileOf = (name) => withText(name, (at) => Uint8Array.from(bytesAt(module._FileOf(at), module._SizeOf(at))));

// Something that a player does, by the name of the call; then all is brought up to date.
export function send(call, ...values) {
  guarded(() => module[`_${call}`](...values));
  follow();
}
export function sendText(number, text) {
  guarded(() => withText(text, (at) => module._EnterText(number, at)));
  follow();
}

// A tick of that timer of that screen, out of its time; not for play.
export const tick = (screen, timer) => withText(screen, (at) => withText(timer, (from) => guarded(() => module._Tick(at, from))));

// A question that changes nothing.
export const ask = (call, ...values) => guarded(() => module[`_${call}`](...values)) ?? -1;

// The bytes at an address of the program's memory.
export const bytesAt = (at, size) => new Uint8ClampedArray(module.HEAPU8.buffer, at, size);

let held = 0;
let over = false;

// Shows what has changed, and sees to what comes next.
export function follow() {
  if (over || failed) return;
  const hold = ask('HeldFor');
  if (hold > 0) {
    clearTimeout(alarm);
    held ||= setTimeout(() => {
      held = 0;
      ask('EndHold');
      follow();
    }, hold);
    return;
  }
  const text = guarded(() => module.UTF8ToString(module._Changes()));
  if (failed) return;
  guarded(() => followers.apply(text ? JSON.parse(text) : {}));
  const status = ask('Ended');
  if (status >= 0) {
    over = true;
    clearTimeout(alarm);
    followers.ended(status);
    return;
  }
  ask('FollowKeys');
  arm();
}

let alarm = 0;
let frame = 0;
const mostMs = 8; // of ticks in one go, where they come fast

function serve() {
  if (pauses.size || over || failed || held) return;
  if (ask('Serve', mostMs) > 0) follow();
  else arm();
}

// A tick comes with a frame if it is due by then, and otherwise by the timer.
function arm() {
  clearTimeout(alarm);
  if (pauses.size || over || failed || !module) return;
  const wait = ask('Wait');
  if (wait < 0) return;
  alarm = setTimeout(serve, wait);
  frame ||= requestAnimationFrame(() => {
    frame = 0;
    if (!pauses.size && !over && !held && ask('Wait') === 0) serve();
    else if (wait >= 0) arm();
  });
}
