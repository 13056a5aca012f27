// What is heard. The game goes by its own clock; this follows it, once the browser lets it and where it can.
import { now } from './game.mjs';
import { remember, remembered } from './saves.mjs';

let context = null;
let gain = null;
let stands = false; // with the game
let table = {}; // of each file: its length in ms, and the names of what was made of it
const channels = new Map();
const forms = ['opus', 'mp3']; // the best one for this browser first
if (!document.createElement('audio').canPlayType('audio/ogg; codecs="opus"')) forms.reverse();

// What the files of the form that this browser does not want end with.
export const otherForm = `.${forms[1]}`;

// Takes in what sounds there are.
export function know(sounds) {
  table = sounds;
}

async function decode(file) {
  for (const form of forms) {
    try {
      const answer = await fetch(new URL(table[file][form], import.meta.url));
      if (answer.ok) return await context.decodeAudioData(await answer.arrayBuffer());
    } catch {
      // the other form, or silence
    }
  }
  return null;
}

// Sound data are large once they are decoded: they are kept while a channel is open.
function prepare(channel) {
  if (context) channel.buffer ??= decode(channel.file);
}

export function loadSound(alias, file) {
  const channel = { file, started: null, end: 0, sources: new Set() };
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
  for (const source of channel.sources) source.stop();
  channel.sources.clear();
}

export function startSound(alias, delay) {
  const channel = channels.get(alias);
  if (!channel) return;
  if (delay <= 0) silence(channel);
  channel.started = now() + delay;
  hear(channel, delay > 0);
}

const near = 0.3; // by how many seconds the device's clock may be off at a joint

// Lets a channel be heard from where it is by the clock; a round that joins the one before begins at its very end.
async function hear(channel, joins) {
  prepare(channel);
  const { started } = channel;
  const buffer = await channel.buffer;
  if (!buffer || channel.started !== started) return;
  const length = table[channel.file].length / 1000;
  const late = (now() - started) / 1000;
  if (late >= length) return;
  const clock = context.currentTime;
  const isJoint = joins && Math.abs(channel.end - (clock - late)) < near && channel.end >= clock;
  const begin = isJoint ? channel.end : Math.max(clock, clock - late);
  const from = isJoint ? 0 : Math.max(0, late);
  const source = context.createBufferSource();
  source.buffer = buffer;
  source.connect(gain);
  source.start(begin, from);
  channel.end = begin + length - from;
  channel.sources.add(source);
  source.addEventListener('ended', () => channel.sources.delete(source));
}

// The first touch, after which browsers let a page be heard.
function unlock() {
  if (context && !stands) context.resume();
  if (context) return;
  context = new AudioContext({ latencyHint: 'interactive' });
  gain = context.createGain();
  gain.connect(context.destination);
  tune();
  for (const channel of channels.values()) {
    prepare(channel);
    if (channel.started !== null) hear(channel, false);
  }
}

// What sounds stands still with the game.
export function pauseSound(on) {
  stands = on;
  context?.[on ? 'suspend' : 'resume']();
}

const volume = document.getElementById('volume');
const mute = document.getElementById('mute');
const isMute = () => mute.getAttribute('aria-pressed') === 'true';

function tune() {
  remember('volume', volume.value);
  remember('mute', isMute());
  if (gain) gain.gain.value = isMute() ? 0 : (volume.valueAsNumber / 100) ** 2;
}

export function start() {
  volume.value = remembered('volume', '80');
  mute.setAttribute('aria-pressed', remembered('mute', 'false'));
  volume.addEventListener('input', tune);
  mute.addEventListener('click', () => {
    mute.setAttribute('aria-pressed', !isMute());
    tune();
  });
  for (const touch of ['pointerdown', 'pointerup', 'keydown', 'touchend']) addEventListener(touch, unlock, true);
}
