// A test with a host, a browser and a profile of its own, which go with it.
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import test from 'node:test';
import { launch, makeProfile } from './browsers.mjs';
import { GamePage } from './game_page.mjs';
import { host } from './host.mjs';
import { seen, site } from './places.mjs';

const limit = 180000;
export const both = ['chromium', 'firefox'];

// `work` gets { name, browser, server, profile, open, relaunch }; pages that it has opened must be without problems at
// its end unless they say that they may have some.
export function inBrowsers(title, names, work) {
  for (const name of names) {
    test(`${title} (${name})`, { timeout: limit }, async () => {
      const profile = makeProfile();
      const server = await host(site);
      const world = { name, profile, server, pages: [] };
      world.relaunch = async (...args) => (world.browser = await launch(name, profile, ...args));
      world.open = async (options) => {
        const game = await GamePage.open(world.browser, server.address, options);
        world.pages.push(game);
        return game;
      };
      try {
        await world.relaunch();
        await work(world);
        for (const game of world.pages) game.assertNoProblems();
      } catch (failure) {
        mkdirSync(seen, { recursive: true });
        const file = join(seen, `${name}-${title.replace(/\W+/g, '-')}.png`);
        await world.pages.at(-1)?.page.screenshot({ path: file }).catch(() => {});
        for (const game of world.pages) if (game.problems.length) console.log(game.problems);
        throw failure;
      } finally {
        await world.browser?.close().catch(() => {});
        await server.close();
        profile.remove();
      }
    });
  }
}
