// The game itself: the compiled program, its clock and its course.
import createModule from './orvane-web.mjs';

let module;
let failed = false;
let over = false;
const followers = { apply: null, ended: null, failed: null };

// ---- its clock

let stopped = 0; // when the clock was stopped last
let missed = 0; // ms for which it stood
const pauses = new Set();

// The time of the game: it stands while there is a reason to pause.
export const now = () => (pauses.size ? stopped : performance.now()) - missed;

// Stops the game for a reason, or lets it go on when none is left. Tells whether it stands.
export function pause(reason, on) {
  const before = now();
  if (on) pauses.add(reason);
  else pauses.delete(reason);
  stopped = performance.now();
  missed = stopped - before;
  arm();
  return pauses.size > 0;
}

// ---- calls into the program

// What the game's own failure would leave in pieces is shown, not played on.
function guarded(work) {
  try {
    if (!failed) return work();
  } catch (error) {
    failed = true;
    followers.failed(error);
  }
  return undefined;
}

// Texts and bytes are the program's for as long as the call takes.
const kindOf = (value) => (typeof value === 'string' ? 'string' : value instanceof Uint8Array ? 'array' : 'number');
const call = (name, answer, values) => guarded(() => module.ccall(name, answer, values.map(kindOf), values));

// Calls by their names, as main.cpp has them: for a number, a text, a text of JSON, or bytes.
export const ask = (name, ...values) => call(name, 'number', values) ?? -1;
export const askText = (name, ...values) => call(name, 'string', values) ?? '';
export const askTable = (name, ...values) => JSON.parse(askText(name, ...values) || '{}');
export const askBytes = (name, ...values) => Uint8Array.from(bytesAt(ask(name, ...values), ask('GivenSize')));

// Something that happens to the game; then all is brought up to date.
export function send(name, ...values) {
  ask(name, ...values);
  follow();
}

// The bytes at an address of the program's memory.
export const bytesAt = (at, size) => new Uint8ClampedArray(module.HEAPU8.buffer, at, size);

// ---- its start

// The compiled program, with what it may ask of the page.
export async function load(program, page) {
  const source = await program;
  module = await createModule({
    page: { now, ...page },
    instantiateWasm(imports, done) {
      WebAssembly.instantiate(source, imports).then(done);
      return {};
    },
  });
}

// Begins with empty slots. Returns the screens and controls that there are.
export function begin({ sounds, seed, speed }, told) {
  Object.assign(followers, told);
  ask('Make', seed, speed);
  for (const [name, { length }] of Object.entries(sounds)) ask('SetSoundLength', name, length);
  return askTable('Begin');
}

// ---- its course

let alarm = 0;
let frame = 0;
let held = 0;
const mostMs = 8; // of ticks in one go, where they come fast

// Shows what has changed, and sees to what comes next.
export function follow() {
  if (over || failed) return;
  const hold = ask('HeldFor');
  if (hold > 0) {
    clearTimeout(alarm);
    held ||= setTimeout(() => {
      held = 0;
      send('EndHold');
    }, hold);
    return;
  }
  const changes = askTable('Changes');
  guarded(() => followers.apply(changes));
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

const stands = () => pauses.size > 0 || over || failed || held > 0;

function serve() {
  if (stands()) return;
  if (ask('Serve', mostMs) > 0) follow();
  else arm();
}

// A tick comes with a frame if it is due by then, and otherwise by the timer.
function arm() {
  clearTimeout(alarm);
  if (stands() || !module) return;
  const wait = ask('Wait');
  if (wait < 0) return;
  alarm = setTimeout(serve, wait);
  frame ||= requestAnimationFrame(() => {
    frame = 0;
    if (stands()) return;
    if (ask('Wait') === 0) serve();
    else arm();
  });
}
