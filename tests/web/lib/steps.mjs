// What several tests do on the page.
import assert from 'node:assert/strict';
import { sleep, until } from './game_page.mjs';

// Whether an item of the menu bar can be opened: the party is free to go.
export const menuIsOn = (game, name) => game.page.evaluate((wanted) => document.querySelector(`[data-name="${wanted}"]`)?.disabled === false, name);

// From the title into the field: the names, and the scene that opens the game.
export async function begin(game, first = 'カイ', second = 'リナ') {
  await game.click('Main.Command1');
  await game.click('InputName.Text1(0)');
  await game.page.keyboard.type(first);
  await game.click('InputName.Text1(1)');
  await game.page.keyboard.type(second);
  await game.click('InputName.OKButton');
  await hearScene(game);
}

// Clicks through a scene until the party can go on.
export async function hearScene(game) {
  await until('the end of the scene', async () => {
    if (await menuIsOn(game, 'm2')) return true;
    await clickPicture(game);
    await sleep(50);
    return false;
  }, 30000);
}

// A click on the field beside all that lies on it.
export async function clickPicture(game) {
  const picture = await game.page.$('section[data-name=Main] [data-name=Picture1]');
  const box = await picture?.boundingBox();
  if (box) await game.page.mouse.click(box.x + box.width * 0.08, box.y + box.height * 0.6);
}

export async function holdKey(game, key, ms) {
  await game.page.keyboard.down(key);
  await sleep(ms);
  await game.page.keyboard.up(key);
  await sleep(150);
}

// Saves into a row of the list, from the menu to the end of the dialog.
export async function save(game, row) {
  await game.clickMenu('Main.m1', 'Main.m12');
  await game.choose('Save.File1', row);
  await game.click('Save.OKButton');
  await game.answer('はい');
  await until('the end of the dialog', async () => !(await game.sees('Save')));
}

export async function load(game, row) {
  await game.clickMenu('Main.m1', 'Main.m11');
  await game.choose('Load.File1', row);
  await game.click('Load.OKButton');
  await until('the field', async () => !(await game.sees('Load')) && (await menuIsOn(game, 'm2')));
}

// The bytes of a file as the browser keeps it; null where there is none.
export async function kept(game, name) {
  const bytes = await game.page.evaluate(
    (place, wanted) =>
      new Promise((done, failed) => {
        const request = indexedDB.open(`orvane ${place}`);
        request.onerror = () => failed(request.error);
        request.onsuccess = () => {
          const get = request.result.transaction('files').objectStore('files').get(wanted);
          get.onsuccess = () => {
            request.result.close();
            done(get.result ? [...get.result] : null);
          };
        };
      }),
    new URL(game.address).pathname,
    name,
  );
  return bytes && new Uint8Array(bytes);
}

// Puts saves into the page by its own dialog, as a player brings them along. Returns what the page says at the end.
export async function bring(game, path, into) {
  await openSlots(game);
  const dialog = await game.page.$('dialog[data-name=Slots]');
  const button = into ? await dialog.$(`li[data-name="${into}"] button:last-of-type`) : await pressable(dialog, 'まとめて読み込む');
  await dialog.$eval('.message', (element) => element.replaceChildren()); // what it said of the file before
  const [chooser] = await Promise.all([game.page.waitForFileChooser(), button.click()]);
  await chooser.accept([path]);
  const message = await until('a word', () => dialog.$eval('.message', (element) => element.textContent));
  if (!message.includes('置きかえますか')) return message;
  // In one go: a driver may tell the page of the same file twice, and the button comes anew each time.
  await dialog.$eval('.message button', (button) => button.click());
  return until('the saves', () => dialog.$eval('.message', (element) => (element.textContent.includes('置きかえますか') ? '' : element.textContent)));
}

export async function openSlots(game) {
  if (await game.page.$('dialog[data-name=Slots]')) return;
  await game.page.click('#slots');
  await until('the dialog', () => game.page.$('dialog[data-name=Slots]'));
}

export async function closeSlots(game) {
  const dialog = await game.page.$('dialog[data-name=Slots]');
  await (await pressable(dialog, '閉じる')).click();
  await until('the end of the dialog', async () => !(await game.page.$('dialog[data-name=Slots]')));
}

async function pressable(parent, caption) {
  for (const button of await parent.$$('button')) {
    if ((await button.evaluate((element) => element.textContent)) === caption) return button;
  }
  assert.fail(`no button ${caption}`);
  return null;
}

// What the page hands to the player as a file, by the link that it presses.
export async function handed(game, press) {
  await game.page.evaluate(() => {
    globalThis.handed = null;
    HTMLAnchorElement.prototype.click = function () {
      if (!this.download) return;
      const { download, href } = this;
      globalThis.handed = { download, href };
    };
    const make = URL.createObjectURL;
    URL.createObjectURL = (blob) => {
      blob.arrayBuffer().then((bytes) => (globalThis.handedBytes = [...new Uint8Array(bytes)]));
      return make.call(URL, blob);
    };
  });
  await press();
  return until('a file', () => game.page.evaluate(() => globalThis.handed && globalThis.handedBytes && { name: globalThis.handed.download, bytes: globalThis.handedBytes }));
}
