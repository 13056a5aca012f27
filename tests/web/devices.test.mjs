// Touch screens in both orientations, and those who do not see the page.
import assert from 'node:assert/strict';
import { createRequire } from 'node:module';
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { readSave } from './lib/desktop.mjs';
import { sleep, until } from './lib/game_page.mjs';
import { seen } from './lib/places.mjs';
import { begin, closeSlots, kept, openSlots, save } from './lib/steps.mjs';
import { both, inBrowsers } from './lib/tests.mjs';

const devices = {
  'telephone upright': { width: 390, height: 844, deviceScaleFactor: 3, hasTouch: true, isMobile: true },
  'telephone lying': { width: 844, height: 390, deviceScaleFactor: 3, hasTouch: true, isMobile: true },
  'tablet upright': { width: 820, height: 1180, deviceScaleFactor: 2, hasTouch: true, isMobile: true },
  'tablet lying': { width: 1180, height: 820, deviceScaleFactor: 2, hasTouch: true, isMobile: true },
};

// Everything of the game that is shown lies within the display, and the page does not scroll.
async function assertFits(game, where) {
  const outside = await game.page.evaluate(() => {
    const faults = [];
    for (const element of document.querySelectorAll('section.window:not([hidden]), dialog[open], #cross:not([hidden])')) {
      const box = element.getBoundingClientRect();
      if (box.left < -1 || box.top < -1 || box.right > innerWidth + 1 || box.bottom > innerHeight + 1) faults.push(`${element.dataset.name ?? element.id} ${[box.left, box.top, box.right, box.bottom].map(Math.round)} of ${innerWidth},${innerHeight}`);
    }
    const root = document.scrollingElement;
    if (root.scrollWidth > innerWidth + 1 || root.scrollHeight > innerHeight + 1) faults.push(`scrolls ${root.scrollWidth} by ${root.scrollHeight}`);
    return faults;
  });
  assert.deepEqual(outside, [], where);
}

for (const [device, viewport] of Object.entries(devices)) {
  inBrowsers(`by touch: ${device}`, ['chromium'], async ({ open }) => {
    const game = await open({ viewport, query: '?seed=26' });
    mkdirSync(seen, { recursive: true });
    const shot = (name) => game.page.screenshot({ path: join(seen, `${device.replace(' ', '-')}-${name}.png`) });
    await assertFits(game, 'title');
    await shot('title');
    await game.click('Main.Command1');
    await game.click('InputName.Text1(0)');
    await game.page.keyboard.type('カイ');
    await game.click('InputName.Text1(1)');
    await game.page.keyboard.type('リナ');
    await assertFits(game, 'names');
    await game.click('InputName.OKButton');
    await until('the end of the scene', async () => {
      const on = await game.page.evaluate(() => document.querySelector('[data-name=m2]')?.disabled === false);
      if (on) return true;
      const box = await (await game.page.$('section[data-name=Main] [data-name=Picture1]')).boundingBox();
      await game.page.touchscreen.tap(box.x + box.width * 0.08, box.y + box.height * 0.6);
      await sleep(50);
      return false;
    }, 30000);
    await assertFits(game, 'field');
    const cross = await (await game.page.$('#cross')).boundingBox();
    const picture = await (await game.page.$('section[data-name=Main] [data-name=Picture1]')).boundingBox();
    const covered = Math.max(0, Math.min(cross.x + cross.width, picture.x + picture.width) - Math.max(cross.x, picture.x)) * Math.max(0, Math.min(cross.y + cross.height, picture.y + picture.height) - Math.max(cross.y, picture.y));
    assert.ok(covered <= 0.02 * picture.width * picture.height, `the cross covers ${Math.round(covered)} of the picture`);
    await save(game, 0);
    const places = ['HeroX', 'HeroY'];
    const before = readSave(await kept(game, 'Save01.sav'), places);
    const middle = { x: cross.x + cross.width / 2, y: cross.y + cross.height / 2 };
    await game.page.touchscreen.touchStart(middle.x + cross.width / 3, middle.y);
    await sleep(300);
    await shot('walking');
    await game.page.touchscreen.touchMove(middle.x, middle.y + cross.height / 3);
    await sleep(300);
    await game.page.touchscreen.touchEnd();
    await sleep(150);
    await save(game, 1);
    const after = readSave(await kept(game, 'Save02.sav'), places);
    assert.ok(after.HeroX > before.HeroX, 'to the right, held');
    assert.ok(after.HeroY > before.HeroY, 'then down, slid');
    await sleep(200);
    await save(game, 2);
    assert.deepEqual(readSave(await kept(game, 'Save03.sav'), places), after, 'let go, the party stands');
    const size = await game.page.$eval('section[data-name=Main] [data-name=m1]', (element) => element.getBoundingClientRect().height);
    assert.ok(size >= 24, `a menu is ${size} high`);
  });
}

const axe = createRequire(import.meta.url).resolve('axe-core/axe.min.js');

// Runs the audit where the page's own policy lets no other script run: in a world beside it.
async function audit(game, what) {
  const cdp = await game.page.createCDPSession();
  const { frameTree } = await cdp.send('Page.getFrameTree');
  const { executionContextId: contextId } = await cdp.send('Page.createIsolatedWorld', { frameId: frameTree.frame.id });
  const { readFileSync } = await import('node:fs');
  await cdp.send('Runtime.evaluate', { expression: readFileSync(axe, 'utf8'), contextId });
  const { result, exceptionDetails } = await cdp.send('Runtime.evaluate', {
    expression: 'axe.run(document).then(({ violations }) => violations.map(({ id, nodes }) => `${id}: ${nodes.map((node) => node.html.slice(0, 160) + " " + node.any.concat(node.all, node.none).map((each) => each.message).join("; ")).join(" | ")}`))',
    contextId,
    awaitPromise: true,
    returnByValue: true,
  });
  assert.ok(!exceptionDetails, exceptionDetails?.text);
  assert.deepEqual(result.value, [], what);
  await cdp.detach();
}

inBrowsers('an audit finds nothing in the way of those who use other means', ['chromium'], async ({ open }) => {
  const game = await open({ query: '?seed=26' });
  await audit(game, 'title');
  await game.click('Main.Command1');
  await game.find('InputName');
  await audit(game, 'names');
  await game.click('InputName.OKButton');
  await until('a box', async () => (await game.boxes()).length);
  await audit(game, 'a box');
  await game.answer('OK');
  await game.page.click('section[data-name=InputName] .close');
  await until('the title', async () => !(await game.sees('InputName')));
  await begin(game);
  await audit(game, 'field');
  for (const [menu, item, screen] of [['m2', 'm21', 'Wepon'], ['m2', 'm22', 'Item'], ['m3', 'm32', 'Chardata'], ['m3', 'm33', 'Custom'], ['m3', 'm35', 'Version'], ['m1', 'm12', 'Save']]) {
    await game.clickMenu(`Main.${menu}`, `Main.${item}`);
    await until(screen, () => game.sees(screen));
    await audit(game, screen);
    await game.page.click(`section[data-name=${screen}] .close`);
    await until(`the end of ${screen}`, async () => !(await game.sees(screen)));
  }
  await openSlots(game);
  await audit(game, 'slots');
  await closeSlots(game);
  for (const scheme of ['dark', 'light']) {
    await game.page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
    await sleep(100);
    await audit(game, scheme);
  }
});

inBrowsers('the keyboard alone', both, async ({ open }) => {
  const game = await open({ query: '?seed=26' });
  const press = async (...keys) => {
    for (const key of keys) await game.page.keyboard.press(key);
  };
  await press('F10');
  await until('the menu', () => game.page.evaluate(() => document.activeElement.getAttribute('role') === 'menuitem'));
  await press('Escape');
  await game.page.focus('section[data-name=Main] [data-name=Command1]');
  await press('Enter');
  await until('the names', () => game.sees('InputName'));
  await game.page.keyboard.type('Gou');
  await press('Tab');
  await game.page.keyboard.type('Rin');
  await press('Enter');
  await until('the opening', async () => !(await game.sees('InputName')));
});
