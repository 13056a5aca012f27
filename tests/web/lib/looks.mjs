// What windows look like, held against kept pictures.
import assert from 'node:assert/strict';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import pixelmatch from 'pixelmatch';
import { PNG } from 'pngjs';
import { seen, shots } from './places.mjs';

// The share of a picture that may differ: letters are drawn a little otherwise by every version of a browser, and
// the pictures are Chromium's.
const allowed = { chromium: 0.01, firefox: 0.1 };
const keeps = Boolean(process.env.ORVANE_KEEP_LOOKS);

// Compares a window with its kept picture, or keeps it where ORVANE_KEEP_LOOKS is set.
export async function looksAsKept(game, browser, screen, name) {
  const element = await game.find(screen);
  const bytes = await element.screenshot({ type: 'png' });
  const file = join(shots, `${name}.png`);
  if (keeps && browser === 'chromium') {
    mkdirSync(shots, { recursive: true });
    writeFileSync(file, bytes);
    return;
  }
  const now = PNG.sync.read(Buffer.from(bytes));
  const before = PNG.sync.read(readFileSync(file));
  const complain = (why, picture) => {
    mkdirSync(seen, { recursive: true });
    writeFileSync(join(seen, `${browser}-${name}.png`), bytes);
    if (picture) writeFileSync(join(seen, `${browser}-${name}-differs.png`), PNG.sync.write(picture));
    assert.fail(`${name} in ${browser}: ${why}; see ${seen}`);
  };
  const { width, height } = before;
  if (now.width !== width || now.height !== height) complain(`${now.width} by ${now.height} instead of ${width} by ${height}`);
  const difference = new PNG({ width, height });
  const differing = pixelmatch(before.data, now.data, difference.data, width, height, { threshold: 0.2 });
  const share = differing / (width * height);
  if (share > allowed[browser]) complain(`${(100 * share).toFixed(2)} % differ`, difference);
}
