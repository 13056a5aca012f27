// What is heard. The game goes by its own clock; this follows it, once the browser lets it and where it can.
import { now } from './game.mjs';
import { remember, remembered } from './memory.mjs';

let context = null;
let gain = null;
let table = {}; // of each file: its length in ms, and the names of what was made of it
const channels = new Map();
const opus = document.createElement('audio').canPlayType('audio/ogg; codecs="opus"') !== '';

// The form that this browser does not want.
export const otherForm = opus ? '.mp3' : '.opus';

// The forms in which a file may be there, the best one for this browser first.
const formsOf = ({ opus: best, other }) => (opus ? [best, other] : [other, best]).filter(Boolean);

// Takes in what sounds there are. Returns their lengths.
export function know(sounds) {
  table = sounds;
  return Object.fromEntries(Object.entries(table).map(([name, entry]) => [name, entry.length]));
}

async function decode(entry) {
  for (const form of formsOf(entry)) {
    try {
      const answer = await fetch(new URL(form, import.meta.url));
      if (answer.ok) return await context.decodeAudioData(await answer.arrayBuffer());
    } catch {
      // the other form, or silence
    }
  }
  return null;
}

// Sound data are large once they are decoded: they are kept while a channel is open.
function prepare(channel) {
  if (context) channel.buffer ??= decode(table[channel.file]);
}

export function loadSound(alias, file) {
  const channel = { file, started: null, end: 0, sources: [] };
  channels.set(alias, channel);
  prepare(channel);
}

export function dropSound(alias) {
  const channel = channels.get(alias);
  channels.delete(alias);
  if (channel) silence(channel);
}

function silence(channel) {
  channel.started = null;
  for (const source of channel.sources.splice(0)) source.stop();
}

export function startSound(alias, delay) {
  const channel = channels.get(alias);
  if (!channel) return;
  if (delay <= 0) silence(channel);
  channel.started = now() + delay;
  hear(channel, delay > 0);
}

// Lets a channel be heard from where it is by the clock; a round that joins the one before begins at its very end.
async function hear(channel, joins) {
  prepare(channel);
  const { started } = channel;
  const buffer = await channel.buffer;
  if (!buffer || channel.started !== started) return;
  const late = (now() - started) / 1000;
  const length = table[channel.file].length / 1000;
  if (late >= length) return;
  const source = context.createBufferSource();
  source.buffer = buffer;
  source.connect(gain);
  const near = 0.3;
  const clock = context.currentTime;
  const joint = joins && Math.abs(channel.end - (clock - late)) < near && channel.end >= clock;
  const begin = joint ? channel.end : Math.max(clock, clock - late);
  source.start(begin, joint ? 0 : Math.max(0, late));
  channel.end = begin + length - (joint ? 0 : Math.max(0, late));
  channel.sources.push(source);
  source.addEventListener('ended', () => channel.sources.splice(channel.sources.indexOf(source) >>> 0, 1));
}

// The first touch, after which browsers let a page be heard.
function unlock() {
  if (context) {
    if (context.state === 'suspended' && !stands) context.resume();
    return;
  }
  context = new AudioContext({ latencyHint: 'interactive' });
  gain = context.createGain();
  gain.connect(context.destination);
  setVolume();
  for (const channel of channels.values()) {
    prepare(channel);
    if (channel.started !== null) hear(channel, false);
  }
}

let stands = false;

// What sounds stands still with the game.
export function pauseSound(on) {
  stands = on;
  if (on) context?.suspend();
  else context?.resume();
}

const volume = document.getElementById('volume');
const mute = document.getElementById('mute');

function setVolume() {
  const silent = mute.getAttribute('aria-pressed') === 'true';
  if (gain) gain.gain.value = silent ? 0 : (volume.valueAsNumber / 100) ** 2;
}

export function start() {
  volume.value = remembered('volume', '80');
  mute.setAttribute('aria-pressed', remembered('mute', 'false'));
  volume.addEventListener('input', () => {
    remember('volume', volume.value);
    setVolume();
  });
  mute.addEventListener('click', () => {
    const silent = mute.getAttribute('aria-pressed') !== 'true';
    mute.setAttribute('aria-pressed', silent);
    remember('mute', silent);
    setVolume();
  });
  for (const touch of ['pointerdown', 'pointerup', 'keydown', 'touchend']) addEventListener(touch, unlock, true);
}
