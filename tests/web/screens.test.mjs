// Every screen opened, used and closed; what is done there is read from the saves by the desktop's game.
import assert from 'node:assert/strict';
import { mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { beforeChest, beforeDragon, readSave, travellers } from './lib/desktop.mjs';
import { sleep, until } from './lib/game_page.mjs';
import { looksAsKept } from './lib/looks.mjs';
import { bring, clickPicture, closeSlots, hearScene, kept, load, menuIsOn, save } from './lib/steps.mjs';
import { seen } from './lib/places.mjs';
import { both, inBrowsers } from './lib/tests.mjs';

const viewport = { width: 800, height: 600 };

// Brings a save of the desktop's along, by the page's own dialog, and loads it.
async function arrive(game, bytes) {
  const folder = mkdtempSync(join(tmpdir(), 'orvane-save-'));
  const file = join(folder, 'Save01.sav');
  writeFileSync(file, bytes);
  try {
    assert.equal(await bring(game, file, 'Save01.sav'), '読み込みました。');
  } finally {
    rmSync(folder, { recursive: true });
  }
  await closeSlots(game);
  await load(game, 0);
}

const closes = (game, screen) => until(`the end of ${screen}`, async () => !(await game.sees(screen)));

inBrowsers('every dialog', both, async ({ name, open }) => {
  const game = await open({ viewport, query: '?seed=26' });
  const look = (screen, picture) => looksAsKept(game, name, screen, picture);
  await look('Main', 'title');
  await game.click('Main.Command1');
  await game.find('InputName');
  await look('InputName', 'names');
  await game.page.click('section[data-name=InputName] .close');
  await closes(game, 'InputName');
  await arrive(game, travellers());

  await game.clickMenu('Main.m3', 'Main.m32');
  await look('Chardata', 'him');
  await (await game.page.$$('section[data-name=Chardata] [role=tab]'))[1].click();
  await look('Chardata', 'her');
  await game.click('Chardata.Command2');
  await closes(game, 'Chardata');

  await game.clickMenu('Main.m3', 'Main.m35');
  await look('Version', 'version');
  await game.click('Version.cmdOK');
  await closes(game, 'Version');

  await game.clickMenu('Main.m2', 'Main.m21');
  await game.choose('Wepon.List1', 1);
  await game.click('Wepon.Command1');
  await game.choose('Wepon.List1', 3);
  await game.click('Wepon.Command1');
  await look('Wepon', 'his-things');
  await (await game.page.$$('section[data-name=Wepon] [role=tab]'))[1].click();
  await game.choose('Wepon.List1', 2);
  await game.click('Wepon.Command3');
  await look('Wepon', 'her-things');
  await game.click('Wepon.Command6');
  await closes(game, 'Wepon');

  await game.clickMenu('Main.m2', 'Main.m22');
  await game.choose('Item.List1', 0);
  await game.click('Item.Command2');
  await game.answer('キャンセル');
  await game.click('Item.Command2');
  await game.answer('OK');
  await game.click('Item.Command8');
  await look('Item', 'things');
  const things = (await game.rowsOf('Item.List1')).filter((row) => row !== 'なし').length;
  await game.choose('Item.List1', 6);
  await game.click('Item.Command1');
  await until('the choice of a hero', () => game.sees('ItemUse'));
  await look('ItemUse', 'use');
  await game.click('ItemUse.Command1(0)');
  await closes(game, 'ItemUse');
  assert.ok(things > 4, `${things} things`);

  await game.clickMenu('Main.m3', 'Main.m33');
  await until('the settings', () => game.sees('Custom'));
  await game.click('Custom.Text1(0)');
  await game.page.keyboard.down('Control');
  await game.page.keyboard.press('a');
  await game.page.keyboard.up('Control');
  await game.page.keyboard.type('Gou');
  await look('Custom', 'settings');
  await game.click('Custom.Command1');
  await closes(game, 'Custom');

  await game.clickMenu('Main.m1', 'Main.m12');
  await game.choose('Save.File1', 1);
  await look('Save', 'save');
  await game.page.click('section[data-name=Save] .close');
  await closes(game, 'Save');
  await save(game, 1);
  const bytes = await kept(game, 'Save02.sav');
  const found = readSave(bytes, ['HeroName[0]', 'Level[0]', 'WeaponAttack[0]', 'ArmourDefence[0]', 'ItemCount']);
  assert.equal(found['HeroName[0]'].trim(), 'Gou');
  assert.equal(found['Level[0]'], 19);
  assert.ok(found['WeaponAttack[0]'] > 0 && found['ArmourDefence[0]'] > 0, 'what he wears');
  assert.ok(found.ItemCount < 10, `${found.ItemCount} things`);

  await game.reload();
  await game.clickMenu('Main.m1', 'Main.m11');
  await game.click('Load.OKButton');
  await game.answer('OK');
  await game.choose('Load.File1', 1);
  await look('Load', 'load');
  await game.page.click('section[data-name=Load] .close');
  await closes(game, 'Load');
});

const isWon = (game) => game.sees('Battle.Picture10');
const canBeUsed = (game, control) => game.page.evaluate((path) => document.querySelector(path)?.disabled === false && document.querySelector(path).checkVisibility(), `section[data-name=Battle] [data-name=${control}]`);
const awaitCommand = (game) => until('a command', async () => (await isWon(game)) || (await canBeUsed(game, 'Command1')), 30000);

async function meetDragon(game) {
  await game.page.keyboard.down('ArrowUp');
  await until('the dragon', () => game.sees('Battle'));
  await game.page.keyboard.up('ArrowUp');
  await awaitCommand(game);
}

async function strike(game) {
  await game.click('Battle.Command1');
  await game.choose('Battle.List2', 1);
  await awaitCommand(game);
}

async function win(game) {
  for (let turn = 0; turn < 60 && !(await isWon(game)); ++turn) await strike(game);
  assert.ok(await isWon(game), 'the dragon falls');
  await sleep(100);
  const box = await (await game.find('Battle.Picture1')).boundingBox();
  await game.page.mouse.click(box.x + 8, box.y + box.height - 8);
  await until('the field', () => game.sees('Main'));
}

inBrowsers('the fights with the last dragons, and the credits', both, async ({ name, open }) => {
  const game = await open({ viewport, query: '?seed=26&speed=8' });
  const look = (screen, picture) => looksAsKept(game, name, screen, picture);
  await arrive(game, beforeDragon());
  await look('Main', 'field');
  await meetDragon(game);
  await look('Battle', 'dragon');
  await game.click('Battle.Command3');
  await game.choose('Battle.List1', 5);
  await look('Battle', 'targets');
  await game.choose('Battle.List2', 1);
  await awaitCommand(game);
  await game.click('Battle.Command2');
  await look('Battle', 'spells');
  await game.choose('Battle.List1', 4);
  await awaitCommand(game);
  await win(game);
  await hearScene(game);
  await look('Main', 'last-stage');
  await meetDragon(game);
  await look('Battle', 'last-dragon');
  await win(game);
  await until('the credits', async () => {
    if (await game.sees('Ending')) return true;
    await clickPicture(game);
    await sleep(30);
    return false;
  }, 60000);
  const press = async () => {
    const box = await (await game.find('Ending')).boundingBox();
    await game.page.mouse.click(box.x + box.width / 2, box.y + box.height / 2);
    return game.page.evaluate(() => document.body.dataset.state === 'ended');
  };
  await until('the end', async () => (await press()) || sleep(200).then(() => false), 60000);
  assert.equal(await game.page.evaluate(() => document.body.dataset.status), '0');
});

inBrowsers('a fight that comes by itself', both, async ({ open }) => {
  const game = await open({ viewport, query: '?seed=26&speed=4' });
  await arrive(game, travellers());
  await until('a fight', async () => {
    for (const key of ['ArrowLeft', 'ArrowRight']) {
      if (await game.sees('Battle')) return true;
      await game.page.keyboard.down(key);
      await sleep(200);
      await game.page.keyboard.up(key);
    }
    return game.sees('Battle');
  }, 60000);
  await awaitCommand(game);
  await win(game);
  await until('the field again', () => menuIsOn(game, 'm2'));
});

// Moves a window by its title towards a place; it stays within what is visible.
async function drag(game, screen, x, y) {
  const title = await (await game.find(screen)).$('.title h2');
  const box = await title.boundingBox();
  await game.page.mouse.move(box.x + 20, box.y + 10);
  await game.page.mouse.down();
  await game.page.mouse.move(x, y, { steps: 3 });
  await game.page.mouse.up();
}

// The party walks on while a box stands, since its timer does, and comes to a chest that does not go into the bag.
inBrowsers('a box over a box', both, async ({ name, open }) => {
  const game = await open({ viewport: { width: 1000, height: 600 }, query: '?seed=26' });
  await arrive(game, beforeChest());
  await drag(game, 'Main', 1000, 600);
  await game.clickMenu('Main.m1', 'Main.m12');
  await drag(game, 'Save', 0, 0);
  await game.page.click('section[data-name=Main] .title h2');
  await until('the field in front', () => game.page.evaluate(() => document.body.dataset.screen === 'Main'));
  await game.page.keyboard.down('ArrowRight');
  await game.click('Save.OKButton');
  await until('the second box', async () => (await game.boxes()).length === 2);
  await game.page.keyboard.up('ArrowRight');
  const [first, second] = await game.boxes();
  assert.match(first, /選択/);
  assert.match(second, /いっぱい/);
  mkdirSync(seen, { recursive: true });
  await game.page.screenshot({ path: join(seen, `${name}-two-boxes.png`) });
  for (const box of await game.page.$$('dialog[data-name=Box]')) {
    const { x, width } = await box.boundingBox();
    assert.ok(Math.abs(x + width / 2 - 500) < 2, `a box stands in the middle, not from ${x} to ${x + width}`);
  }
  const front = () => game.page.evaluate(() => document.activeElement.closest('dialog')?.querySelector('p').textContent);
  assert.equal(await front(), second, 'the keyboard is in the one in front');
  assert.equal(await game.page.evaluate(() => document.querySelectorAll('dialog:modal').length), 2);
  await game.page.keyboard.press('Enter');
  await until('one box', async () => (await game.boxes()).length === 1);
  assert.equal(await front(), first, 'the keyboard goes back to the one behind');
  await game.answer('OK');
  await until('no box', async () => (await game.boxes()).length === 0);
});
