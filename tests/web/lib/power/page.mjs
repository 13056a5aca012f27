// The page's own game and its saves in node, without anything that is shown: what happens to it is what the page's
// elements would call.
import assert from 'node:assert/strict';
import { readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { site } from '../places.mjs';
import { loadModule } from './database.mjs';

const inSite = (pattern) => join(site, readdirSync(site).find((name) => pattern.test(name)));
export const compiled = () => WebAssembly.compile(readFileSync(inSite(/^orvane-web-\w+\.wasm$/)));

const noFrame = () => 1;
const nothing = () => {};

// Opens the page on a database, up to the title. `asked` hears of each file that is to be kept, `told` whenever the page
// is to show something new.
export async function openPage(program, world, { asked = nothing, told = nothing } = {}) {
  globalThis.requestAnimationFrame = noFrame;
  const game = await loadModule(inSite(/^game-\w+\.mjs$/), world);
  const saves = await loadModule(inSite(/^saves-\w+\.mjs$/), world);
  const keep = saves.keepFor(game);
  const hear = (number, name, bytes) => {
    asked(name, bytes);
    keep(number, name, bytes);
  };
  const page = { keep: hear, loadSound: nothing, dropSound: nothing, startSound: nothing, pad: nothing, countLines: () => 1 };
  await game.load(Promise.resolve(program), page);
  const shown = { screens: new Map(), boxes: [], ended: false };
  const apply = ({ screens = [], boxes }) => {
    for (const { id, visible } of screens) shown.screens.set(id, visible);
    shown.boxes = boxes ?? shown.boxes;
    told();
  };
  const failed = (error) => {
    throw error;
  };
  const nature = game.begin({ sounds: {}, seed: 26, speed: '1' }, { apply, ended: () => (shown.ended = true), failed });
  game.pause('test', true); // ticks come when they are asked for
  for (const [name, bytes] of await saves.open()) game.ask('PutFile', name, bytes, bytes.length);
  game.follow();

  const screen = (name) => nature.find((each) => each.name === name);
  const control = (path) => {
    const [name, ...rest] = path.split('.');
    return screen(name).controls.find((each) => each.name === rest.join('.')).id;
  };
  const sees = (name) => shown.screens.get(screen(name).id) === true;
  const click = (path) => game.send('Click', control(path));
  const choose = (path, row) => game.send('Choose', control(path), row);
  const file = (name) => Uint8Array.from(game.askBytes('FileOf', name));
  const names = () => game.askTable('ListSaves').map(({ name }) => name);
  const box = () => shown.boxes.at(-1)?.text ?? '';
  const answer = (number) => game.send('Answer', number);
  const load = (row) => {
    click('Main.m11');
    choose('Load.File1', row);
    click('Load.OKButton');
    assert.ok(!sees('Load') && sees('Main') && !box(), 'the game goes on from where it was saved');
  };
  // Asks for a save, up to where the game waits for the page.
  const askToSave = (row) => {
    click('Main.m12');
    choose('Save.File1', row);
    click('Save.OKButton');
    assert.equal(box(), 'よろしいですか？');
    answer(2);
  };
  // A step of the party; false where it has led into a fight.
  const step = (direction) => {
    const arrow = 37 + direction;
    game.ask('SetKeyFacts', 1, 0, 0);
    game.ask('TakeKey', arrow, 1, 0, 0);
    for (let tick = 0; tick < 4 && sees('Main'); ++tick) game.ask('Tick', 'Main', 'Timer1');
    game.ask('TakeKey', arrow, 0, 0, 0);
    for (let tick = 0; tick < 4 && sees('Main'); ++tick) game.ask('Tick', 'Main', 'Timer1');
    game.follow();
    return sees('Main');
  };
  // The save that was asked for: 'done', 'refused', or '' while it waits.
  const outcome = () => {
    if (box()) return 'refused';
    return sees('Save') ? '' : 'done';
  };
  return { load, askToSave, step, outcome, names, file, click, box, answer, sees, hasEnded: () => shown.ended };
}
