// The bot's whole journey, from the title to the last card, leads to the same saves in the page as at home.
import assert from 'node:assert/strict';
import test from 'node:test';
import { launch } from './lib/browsers.mjs';
import { recordJourney } from './lib/desktop.mjs';
import { GamePage } from './lib/game_page.mjs';
import { host } from './lib/host.mjs';
import { site } from './lib/places.mjs';
import { replay, stopClock } from './lib/replay.mjs';

const seed = 2; // its party is beaten three times on the way, and loads its save
const eventsBetweenLooks = 20;

test('a whole journey', { timeout: 300000 }, async () => {
  const events = recordJourney(seed);
  assert.ok(events.filter(([what]) => what === 'file').length > 10, 'a journey that saves');
  const server = await host(site);
  const browser = await launch('chromium');
  try {
    const game = await GamePage.open(browser, server.address, { query: `?seed=${seed}`, before: (page) => page.evaluateOnNewDocument(stopClock) });
    await replay(game, events, eventsBetweenLooks);
    await game.waitForState('ended');
    assert.equal(await game.page.evaluate(() => document.body.dataset.status), '0');
    game.assertNoProblems();
  } finally {
    await browser.close();
    await server.close();
  }
});
