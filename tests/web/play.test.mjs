// The game from the title on, as somebody plays it: names, the opening, walking, saving, loading.
import assert from 'node:assert/strict';
import { cpSync, mkdtempSync, readdirSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { readSave } from './lib/desktop.mjs';
import { kill } from './lib/browsers.mjs';
import { sleep, until } from './lib/game_page.mjs';
import { site } from './lib/places.mjs';
import { begin, handed, hearScene, holdKey, kept, load, save } from './lib/steps.mjs';
import { both, inBrowsers } from './lib/tests.mjs';

const firstSave = 'Save01.sav';
const where = ['MapA', 'MapB', 'HeroX', 'HeroY'];

// Types as an input method does: kana that change until they are taken. Chromium lets the real way be gone; in
// Firefox the events come as an input method would send them.
async function compose(game, field, steps, result) {
  await game.click(field);
  const windows = await game.moduleOf('windows');
  const element = await game.find(field);
  // Even when the game tells of the field anew, for whatever reason.
  const stays = async (text) => {
    await element.evaluate(
      async (input, module) => {
        const { apply, screens } = await import(module);
        const id = Number(input.id.slice(1));
        const { values } = [...screens.values()].flatMap(({ controls }) => controls).find((control) => control.id === id);
        apply({ controls: [{ ...values, id, text: 'older' }] });
      },
      windows,
    );
    await sleep(60);
    assert.equal(await game.textOf(field), text, 'what is being composed stays');
  };
  if (game.name === 'chromium') {
    const session = await game.page.createCDPSession();
    for (const text of steps) {
      await session.send('Input.imeSetComposition', { text, selectionStart: text.length, selectionEnd: text.length });
      await stays(text);
    }
    await session.send('Input.insertText', { text: result });
    return;
  }
  await element.evaluate((input) => input.dispatchEvent(new CompositionEvent('compositionstart', { bubbles: true })));
  for (const text of steps) {
    await element.evaluate((input, value) => {
      input.dispatchEvent(new CompositionEvent('compositionupdate', { data: value, bubbles: true }));
      input.value = value;
      input.dispatchEvent(new InputEvent('input', { data: value, isComposing: true, bubbles: true }));
    }, text);
    await stays(text);
  }
  await element.evaluate((input, value) => {
    input.value = value;
    input.dispatchEvent(new CompositionEvent('compositionend', { data: value, bubbles: true }));
    input.dispatchEvent(new InputEvent('input', { data: value, bubbles: true }));
  }, result);
}

inBrowsers('names by an input method, the opening, a walk, a save, a load', both, async ({ name, open }) => {
  const game = await open({ query: '?seed=26' });
  game.name = name;
  await game.click('Main.Command1');
  await game.click('InputName.OKButton');
  assert.match(await game.answer('OK'), /名前/, 'names are asked for');
  await compose(game, 'InputName.Text1(0)', ['g', 'ご', 'ごう', 'ゴウ'], 'ゴウ');
  await compose(game, 'InputName.Text1(1)', ['r', 'り', 'りn', 'りん'], 'りん');
  await game.click('InputName.OKButton');
  await hearScene(game);
  await save(game, 0);
  const before = await kept(game, firstSave);
  assert.equal(before.length, 540);
  const names = readSave(before, ['HeroName[0]', 'HeroName[1]', ...where]);
  assert.equal(names['HeroName[0]'].trim(), 'ゴウ');
  assert.equal(names['HeroName[1]'].trim(), 'りん');

  const scene = await game.sumOf('Main.Picture1');
  await holdKey(game, 'ArrowRight', 300);
  await holdKey(game, 'ArrowDown', 300);
  assert.notEqual(await game.sumOf('Main.Picture1'), scene, 'the field is painted anew');
  await save(game, 1);
  const walked = readSave(await kept(game, 'Save02.sav'), where);
  assert.ok(walked.HeroY > names.HeroY, `down from ${names.HeroY} to ${walked.HeroY}`);
  assert.ok(walked.HeroX > names.HeroX, `right from ${names.HeroX} to ${walked.HeroX}`);

  await game.reload();
  await load(game, 1);
  await save(game, 2);
  assert.deepEqual(await kept(game, 'Save03.sav'), await kept(game, 'Save02.sav'), 'as it was saved');
});

// Keeps the database busy, so that what the page writes has to wait, until the page's `release` is called.
const holdDatabase = (game) =>
  game.page.evaluate(
    (place) =>
      new Promise((done, failed) => {
        const request = indexedDB.open(`orvane ${place}`);
        request.onerror = () => failed(request.error);
        request.onsuccess = () => {
          const store = request.result.transaction('files', 'readwrite').objectStore('files');
          let held = true;
          const goOn = () => {
            if (held) store.get('nothing').onsuccess = goOn;
            else request.result.close();
          };
          globalThis.release = () => (held = false);
          goOn();
          done();
        };
      }),
    new URL(game.address).pathname,
  );

inBrowsers('a save is told of when its bytes are safe, not before', both, async ({ open }) => {
  const game = await open({ query: '?seed=26' });
  await begin(game);
  await game.clickMenu('Main.m1', 'Main.m12');
  await game.choose('Save.File1', 0);
  await game.click('Save.OKButton');
  await until('a box', async () => (await game.boxes()).length);
  await holdDatabase(game);
  await game.answer('はい');
  await sleep(500);
  assert.equal(await game.sees('Save'), true, 'nothing goes on while the bytes are on their way');
  await game.page.evaluate(() => globalThis.release());
  await until('the end of the dialog', async () => !(await game.sees('Save')));
  assert.equal((await kept(game, firstSave)).length, 540);
});

inBrowsers('a save lasts when the browser is killed half a second later', both, async (world) => {
  const first = await world.open({ query: '?seed=26' });
  await begin(first);
  await holdKey(first, 'ArrowDown', 300);
  await save(first, 0);
  const bytes = await kept(first, firstSave);
  first.assertNoProblems();
  world.pages.length = 0;
  await sleep(500);
  await kill(world.browser);
  await world.relaunch();
  const second = await world.open();
  assert.deepEqual(await kept(second, firstSave), bytes);
  await load(second, 0);
});

inBrowsers('a second tab waits for the first', both, async ({ browser, open, server, pages }) => {
  const first = await open();
  const page = await browser.newPage();
  await page.goto(`${server.address}?language=ja`);
  await until('the second tab to wait', () => page.evaluate(() => document.body.dataset.state === 'waiting'));
  assert.match(await page.$eval('.end:not([hidden])', (element) => element.textContent), /別のタブ/);
  first.assertNoProblems();
  pages.length = 0;
  await first.page.close();
  await until('its turn', () => page.evaluate(() => document.body.dataset.state === 'running'));
});

inBrowsers('a crash shows what has happened, and hands out the saves', both, async ({ open, pages }) => {
  const game = await open({ query: '?seed=26' });
  await begin(game);
  await save(game, 0);
  const bytes = await kept(game, firstSave);
  game.assertNoProblems();
  pages.length = 0; // what follows is one
  await game.page.evaluate(async (module) => (await import(module)).ask('NoSuchCall'), await game.moduleOf('game'));
  await game.waitForState('crashed');
  assert.match(await game.page.$eval('.end:not([hidden])', (element) => element.textContent), /動かなくなりました.*\w/s);
  const out = await handed(game, () => game.page.$$eval('.end:not([hidden]) button', (buttons, name) => buttons.find(({ textContent }) => textContent.includes(name)).click(), firstSave));
  assert.equal(out.name, firstSave);
  assert.deepEqual(new Uint8Array(out.bytes), bytes);
  await game.page.click('.end:not([hidden]) button');
  await game.waitForState('running');
  await load(game, 0);
});

inBrowsers('a page whose program is lost says so', both, async ({ browser, server }) => {
  const folder = mkdtempSync(join(tmpdir(), 'orvane-lost-'));
  try {
    cpSync(site, folder, { recursive: true });
    rmSync(join(folder, readdirSync(folder).find((name) => name.endsWith('.wasm'))));
    server.folder = folder;
    const page = await browser.newPage();
    await page.goto(server.address);
    await until('the page to say so', () => page.evaluate(() => document.body.dataset.state === 'crashed'));
  } finally {
    rmSync(folder, { recursive: true });
  }
});

inBrowsers('the end of the game, and a new one', both, async ({ open }) => {
  const game = await open();
  await game.clickMenu('Main.m1', 'Main.m14');
  await game.answer('キャンセル');
  await until('the title again', async () => (await game.boxes()).length === 0);
  await game.page.click('section[data-name=Main] .close');
  await game.answer('OK');
  await game.waitForState('ended');
  assert.equal(await game.page.evaluate(() => document.body.dataset.status), '0');
  await game.page.click('.end:not([hidden]) button');
  await game.waitForState('running');
});
