// The desktop's game, by the script player of this machine: it makes saves for the page and reads those of the page.
import { spawnSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { play, player } from './places.mjs';

// Runs a script that may use the steps of the scenarios, with a folder for files that it and the caller share.
function run(script, folder) {
  const file = join(folder, 'script.lua');
  writeFileSync(file, `package.path = ${JSON.stringify(`${play}/?.lua;`)} .. package.path\nlocal folder = ${JSON.stringify(folder)}\n${script}`);
  const { status, stdout, stderr } = spawnSync(player, [file], { encoding: 'utf8' });
  if (status !== 0) throw new Error(`the script player: ${stdout}${stderr}`);
  return stdout;
}

function inFolder(work) {
  const folder = mkdtempSync(join(tmpdir(), 'orvane-desktop-'));
  try {
    return work(folder);
  } finally {
    rmSync(folder, { recursive: true, force: true });
  }
}

// The bytes of a save of a party in the field, brought about by statements in Lua.
export const makeSave = (statements) =>
  inFolder((folder) => {
    run(
      `local steps, records = require "lib.steps", require "lib.records"
      test("a save", function()
        steps.field()
        ${statements}
        records.save("Save01.sav")
        local file = assert(io.open(folder .. "/out", "wb"))
        file:write(read_file("Save01.sav"))
        file:close()
      end)`,
      folder,
    );
    return new Uint8Array(readFileSync(join(folder, 'out')));
  });

// Loads a save as a player does and returns the state's values by these names.
export const readSave = (bytes, names) =>
  inFolder((folder) => {
    writeFileSync(join(folder, 'in'), bytes);
    const printed = run(
      `test("a save", function()
        prepare()
        write_file("Save01.sav", assert(io.open(folder .. "/in", "rb")):read("a"))
        start()
        click("Main.m11")
        choose("Load.File1", 0)
        click("Load.OKButton")
        expect(get("GameStarted"), -1)
        for _, name in ipairs { ${names.map((name) => JSON.stringify(name)).join(', ')} } do print(get(name)) end
      end)`,
      folder,
    );
    const lines = printed.split('\n');
    return Object.fromEntries(names.map((name, i) => [name, /^-?\d+$/.test(lines[i]) ? Number(lines[i]) : lines[i]]));
  });

// Records a whole journey of the bot with a fixed seed, as a list of events.
export const recordJourney = (seed) =>
  inFolder((folder) => {
    const file = join(folder, 'journey');
    const { status, stdout } = spawnSync(player, [`${play}/record.lua`], { encoding: 'utf8', env: { ...process.env, ORVANE_FIRST: String(seed), ORVANE_JOURNEY: file } });
    if (status !== 0) throw new Error(`the script player: ${stdout}`);
    return readFileSync(file, 'utf8').trim().split('\n').map((line) => JSON.parse(line));
  });

// The parties that the tests play with.
const party = (level, life, force) => `
  for hero = 0, 1 do
    local at = "[" .. hero .. "]"
    set("Level" .. at, ${level})
    for _, name in ipairs { "MaxHP", "MaxMP", "HP", "MP" } do set(name .. at, ${life}) end
    set("BaseAttack" .. at, ${force}) set("BaseDefence" .. at, ${Math.floor(force / 2)}) set("Spirit" .. at, ${Math.floor(force / 2)})
  end
  steps.learn_all()
  for slot, item in ipairs { 50, 5, 24, 16, 32, 37, 44, 47, 48, 49 } do set("Items[" .. slot - 1 .. "]", item) end
  set("ItemCount", 10)`;

// In the second round, with things and skills to use.
export const travellers = () => makeSave(`set("Round", 2) set("StoryNo", 24) ${party(19, 800, 400)}`);
// Just below the dragon of the third round, with blows that no enemy withstands.
export const beforeDragon = () => makeSave(`${party(60, 30000, 1000)} set("Round", 3) set("StoryNo", 28) set("MapA", 4) set("MapB", 1) steps.put(228, 130)`);
// Some steps to the left of a chest, with a bag in which nothing more goes.
export const beforeChest = () => makeSave(`
  set("MapA", 1) set("MapB", 1) steps.put(336, 96)
  for slot = 0, 19 do set("Items[" .. slot .. "]", 47) end
  set("ItemCount", 20)`);
