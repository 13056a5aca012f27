// What pieces sound like where a round joins the one before: nothing of an encoder's own silence is left.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { site } from './lib/places.mjs';
import { both, inBrowsers } from './lib/tests.mjs';

const rate = 48000;
const mostOff = 48; // samples, a millisecond
const pieces = ['Round2', 'Battle1'];

// Runs in the page: decodes both forms of a piece. Returns how long they are, in samples, and by how many samples the
// second lags behind the first at the beginning, as they agree best.
async function compare(address, forms, samples) {
  const context = new OfflineAudioContext(1, 1, samples);
  const [one, other] = await Promise.all(
    forms.map(async (form) => {
      const answer = await fetch(new URL(form, address));
      return context.decodeAudioData(await answer.arrayBuffer());
    }),
  );
  const [first, second] = [one, other].map((buffer) => buffer.getChannelData(0));
  const span = samples / 2;
  const reach = 3000; // further than any encoder's silence
  let best = { likeness: -Infinity, lag: 0 };
  for (let lag = -reach; lag <= reach; ++lag) {
    let likeness = 0;
    for (let i = reach; i < reach + span; i += 2) likeness += first[i] * second[i + lag];
    if (likeness > best.likeness) best = { likeness, lag };
  }
  return { lengths: [one.length, other.length], lag: best.lag };
}

inBrowsers('pieces begin at once and end in time, in either form', both, async ({ server, open }) => {
  const game = await open();
  const table = JSON.parse(readFileSync(join(site, server.paths.find((path) => /sounds-\w+\.json$/.test(path)).split('/').at(-1))));
  for (const name of pieces) {
    const { length, opus, mp3 } = table[name];
    const { lengths, lag } = await game.page.evaluate(compare, server.address, [opus, mp3], rate);
    // Each is delayed otherwise by its encoder, so they agree only where no delay is left.
    assert.ok(Math.abs(lag) <= mostOff, `${name}: ${lag} samples apart`);
    for (const each of lengths) {
      assert.ok(each >= (length / 1000) * rate - mostOff, `${name}: ${each} samples of ${(length / 1000) * rate}`);
    }
  }
});
