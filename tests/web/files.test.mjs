// Saves on their way between the desktop's game and the page, and the page without a network.
import assert from 'node:assert/strict';
import { cpSync, mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { readSave, travellers } from './lib/desktop.mjs';
import { until } from './lib/game_page.mjs';
import { site } from './lib/places.mjs';
import { begin, bring, closeSlots, handed, kept, load, openSlots, save } from './lib/steps.mjs';
import { both, inBrowsers } from './lib/tests.mjs';

async function inFolder(work) {
  const folder = mkdtempSync(join(tmpdir(), 'orvane-files-'));
  try {
    await work(folder);
  } finally {
    rmSync(folder, { recursive: true, force: true });
  }
}

inBrowsers('a save goes from the desktop into the page and back', both, async ({ open }) => {
  const game = await open({ query: '?seed=26' });
  await begin(game);
  await save(game, 2);
  await inFolder(async (folder) => {
    const bytes = travellers();
    const file = join(folder, 'friend.sav');
    writeFileSync(file, bytes);
    assert.equal(await bring(game, file, 'Save01.sav'), '読み込みました。');
    assert.deepEqual(await kept(game, 'Save01.sav'), bytes);

    // Foreign files are refused with a sentence and change nothing.
    const foreign = { 'short.sav': bytes.slice(0, 539), 'long.sav': new Uint8Array(541), 'nonsense.sav': new Uint8Array(540).fill(0xee), 'broken.zip': new Uint8Array([0x50, 0x4b, 3, 4, 9, 9, 9, 9]) };
    for (const [name, content] of Object.entries(foreign)) {
      writeFileSync(join(folder, name), content);
      const sentence = await bring(game, join(folder, name), 'Save01.sav');
      assert.ok(sentence.includes(name) && sentence.length > name.length + 5, `${name}: ${sentence}`);
      assert.deepEqual(await kept(game, 'Save01.sav'), bytes, name);
    }

    const out = await handed(game, () => game.page.$eval('dialog[data-name=Slots] li[data-name="Save03.sav"] button', (button) => button.click()));
    assert.equal(out.name, 'Save03.sav');
    assert.equal(readSave(new Uint8Array(out.bytes), ['HeroName[0]'])['HeroName[0]'].trim(), 'カイ');

    await game.page.evaluate(() => (globalThis.handedBytes = null));
    const all = await handed(game, () => game.page.$$eval('dialog[data-name=Slots] .choices button', ([first]) => first.click()));
    assert.match(all.name, /\.zip$/);
    const archive = join(folder, 'all.zip');
    writeFileSync(archive, new Uint8Array(all.bytes));
    await closeSlots(game);
    await save(game, 0);
    assert.notDeepEqual(await kept(game, 'Save01.sav'), bytes);
    assert.equal(await bring(game, archive), '読み込みました。');
    assert.deepEqual(await kept(game, 'Save01.sav'), bytes, 'as it was in the archive');
    await closeSlots(game);
  });
  await game.reload();
  await load(game, 0);
});

inBrowsers('the page starts without a network', both, async (world) => {
  const game = await world.open();
  await until('all files to be kept', () => game.page.evaluate(() => document.body.dataset.offline === 'yes'), 60000);
  world.server.folder = '/nowhere';
  await game.reload();
  assert.equal(await game.sees('Main.Command1'), true);
  game.problems = game.problems.filter((problem) => !problem.includes('404'));
});

// A site of the same game whose page differs by a word.
function nextVersion(folder) {
  cpSync(site, folder, { recursive: true });
  for (const name of readdirSync(folder)) {
    if (name !== 'index.html' && name !== 'sw.js') continue;
    const text = readFileSync(join(folder, name), 'utf8');
    writeFileSync(join(folder, name), name === 'sw.js' ? text.replace(/const version = '\w+'/, "const version = '0123456789'") : text.replace('<body', '<body data-next="yes"'));
  }
}

inBrowsers('a new version comes whole, or not at all', both, async (world) => {
  const game = await world.open();
  const isNext = () => game.page.evaluate(() => document.body.dataset.next === 'yes');
  await until('all files to be kept', () => game.page.evaluate(() => document.body.dataset.offline === 'yes'), 60000);
  await inFolder(async (folder) => {
    const next = join(folder, 'next');
    nextVersion(next);
    // One that lacks a file is not taken.
    const lost = readdirSync(next).find((name) => name.startsWith('manifest'));
    const broken = join(folder, 'broken');
    cpSync(next, broken, { recursive: true });
    writeFileSync(join(broken, 'sw.js'), readFileSync(join(broken, 'sw.js'), 'utf8').replaceAll(lost, 'manifest-0000000000.webmanifest'));
    world.server.folder = broken;
    const update = () => game.page.evaluate(() => navigator.serviceWorker.getRegistration().then((each) => each.update()).then(() => 'taken', (error) => String(error)));
    await update();
    await until('the failure', () => game.page.evaluate(() => navigator.serviceWorker.getRegistration().then((each) => !each.installing)), 30000);
    const rest = () => game.page.evaluate(async () => [Boolean((await navigator.serviceWorker.getRegistration()).waiting), (await caches.keys()).length]);
    assert.deepEqual(await rest(), [false, 1], 'nothing of it is left');
    await game.reload();
    assert.equal(await isNext(), false, 'the old version stays');

    world.server.folder = next;
    await update();
    await until('the offer', () => game.page.$('#notice button'), 60000);
    await game.reload();
    assert.equal(await isNext(), false, 'it waits until the player wants it');
    const offer = await until('the offer', () => game.page.$('#notice button'), 60000);
    await offer.click();
    await until('the new version', () => isNext().catch(() => false), 30000);
    await game.waitForState('running');
    game.problems = game.problems.filter((problem) => !problem.includes('404'));
  });
});
