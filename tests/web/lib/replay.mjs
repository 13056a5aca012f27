// Repeats a recorded journey in the page, by the same calls that the page's own elements make. No time passes
// meanwhile: the record says which timer ticks when.
import assert from 'node:assert/strict';

// To be run before the page's own scripts: its clock stands.
export function stopClock() {
  performance.now = () => 1000;
}

// Runs in the page. `events` are those of one run of the program; `shown` is how many of them pass between two
// looks of the page at the game. Returns what went wrong, or nothing.
async function perform({ gameModule, windowsModule, boxesModule, savesModule }, events, shown) {
  const game = await import(gameModule);
  const windows = await import(windowsModule);
  const boxes = await import(boxesModule);
  const saves = await import(savesModule);
  const numbers = new Map();
  for (const screen of windows.screens.values()) {
    numbers.set(screen.name, screen.id);
    for (const control of screen.controls) numbers.set(`${screen.name}.${control.name}`, control.id);
  }
  const pause = () => new Promise((done) => setTimeout(done, 0));
  const until = async (holds) => {
    for (let i = 0; i < 2000; ++i) {
      if (holds()) return true;
      await pause();
      game.follow();
    }
    return false;
  };
  const passHold = () => {
    if (game.ask('HeldFor') > 0) game.ask('EndHold');
  };
  const arrows = ['Left', 'Up', 'Right', 'Down'];
  const press = (key, isPress) => {
    game.ask('SetKeyFacts', 1, 0, 0);
    game.ask('TakeKey', 37 + arrows.indexOf(key), isPress, false, false);
  };
  const calls = {
    click: (id) => game.ask('Click', id),
    choose: (id, row) => game.ask('Choose', id, row),
    tab: (id, tab) => game.ask('SelectTab', id, tab),
    enter: (id, text) => game.send('EnterText', id, text),
    slide: (id, value) => game.ask('Slide', id, value),
    press: (id) => game.ask('Press', id, 200, 100),
    close: (id) => game.ask('Close', id),
    activate: (id) => game.ask('Activate', id),
    key_down: (_, key) => press(key, 1),
    key_up: (_, key) => press(key, 0),
  };
  const answers = { OK: 0, Cancel: 1, Yes: 2, No: 3 };
  const hexOf = (bytes) => [...(bytes ?? [])].map((byte) => byte.toString(16).padStart(2, '0')).join('');
  let since = Date.now();
  for (const [index, [what, ...values]] of events.entries()) {
    const fault = (text) => `event ${index}, ${JSON.stringify([what, ...values]).slice(0, 100)}: ${text}`;
    if (what === 'tick') {
      for (let i = 0; i < values[1]; ++i) {
        if (game.ask('Tick', ...values[0].split('.')) !== 1) return fault('the timer is off');
        passHold();
      }
    } else if (what === 'answer') {
      game.follow();
      if (!(await until(() => boxes.frontBox()))) return fault('no box stands');
      game.ask('Answer', answers[values[0]]);
      passHold();
      // What the answer has had kept comes before this; until it lasts the game stands.
      await saves.keep([]);
      await pause();
    } else if (what === 'file') {
      const [name, bytes] = values;
      game.follow();
      if (!(await until(() => hexOf(saves.kept().get(name)) === bytes))) return fault(`kept is ${hexOf(saves.kept().get(name))}`);
      await pause();
    } else if (what.startsWith('key')) {
      calls[what](0, values[0]);
    } else {
      if (!numbers.has(values[0])) return fault('nothing has that name');
      calls[what](numbers.get(values[0]), values[1]);
      passHold();
    }
    if (index % shown === 0) game.follow();
    if (Date.now() - since > 100) {
      await pause();
      since = Date.now();
    }
  }
  game.follow();
  return null;
}

// Repeats all runs of a journey; between them the page is loaded anew.
export async function replay(game, events, shown) {
  const runs = [];
  for (const event of events) {
    if (event[0] === 'start') runs.push([]);
    else runs.at(-1).push(event);
  }
  for (const [number, run] of runs.entries()) {
    if (number > 0) await game.reload();
    const modules = {
      gameModule: await game.moduleOf('game'),
      windowsModule: await game.moduleOf('windows'),
      boxesModule: await game.moduleOf('boxes'),
      savesModule: await game.moduleOf('saves'),
    };
    const fault = await game.page.evaluate(perform, modules, run, shown);
    assert.equal(fault, null, `run ${number + 1} of ${runs.length}`);
  }
}
