// The language is chosen in the bar, whatever goes on, and lasts.
import assert from 'node:assert/strict';
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { until } from './lib/game_page.mjs';
import { seen } from './lib/places.mjs';
import { begin, save } from './lib/steps.mjs';
import { both, inBrowsers } from './lib/tests.mjs';

const japanese = /[\p{Script=Hiragana}\p{Script=Katakana}\p{Script=Han}]/u;

// All that a player reads beside the names of the languages and of the heroes.
const textsOf = (game) =>
  game.page.evaluate(() => {
    const shown = [...document.querySelectorAll('button, h1, h2, p, a, .label, [aria-label]')].filter((element) => element.checkVisibility());
    return shown.flatMap((element) => [element.textContent, element.ariaLabel ?? '']).map((text) => text.trim()).filter(Boolean);
  });
const others = (texts) => texts.filter((text) => japanese.test(text) && !/カイ|リナ|日本語/.test(text));
const choose = (game, code) => game.page.select('#language', code);

async function walkIntoFight(game) {
  await until('a fight', async () => {
    for (const key of ['ArrowLeft', 'ArrowDown', 'ArrowRight', 'ArrowUp']) {
      if (await game.sees('Battle')) return true;
      await game.page.keyboard.down(key);
      await new Promise((done) => setTimeout(done, 250));
      await game.page.keyboard.up(key);
    }
    return game.sees('Battle');
  }, 60000);
}

inBrowsers('English in the middle of a game, and back', both, async ({ name, open, pages }) => {
  const game = await open({ query: '?seed=26&speed=4', viewport: { width: 800, height: 600 } });
  mkdirSync(seen, { recursive: true });
  const look = (picture) => game.page.screenshot({ path: join(seen, `${name}-language-${picture}.png`) });
  await begin(game);
  await save(game, 0);
  await walkIntoFight(game);
  await until('a command', () => game.page.evaluate(() => document.querySelector('[data-name=Battle] [data-name=Command1]')?.disabled === false), 30000);
  const before = await textsOf(game);
  assert.ok(others(before).length > 5, 'in Japanese');
  await choose(game, 'en');
  assert.equal(await game.page.evaluate(() => document.documentElement.lang), 'en');
  await look('battle-en');
  assert.deepEqual(others(await textsOf(game)), []);
  await choose(game, 'ja');
  assert.deepEqual(await textsOf(game), before);
  await look('battle-ja');

  await choose(game, 'en');
  game.assertNoProblems();
  pages.length = 0; // what follows is one
  await game.page.evaluate(async (module) => (await import(module)).ask('NoSuchCall'), await game.moduleOf('game'));
  await game.waitForState('crashed');
  await look('crashed-en');
  const last = await game.page.$eval('.end:not([hidden])', (element) => element.textContent);
  assert.match(last, /Sorry/);
  assert.match(last, /Start again/);
  assert.match(last, /Export Save01\.sav/);
});
