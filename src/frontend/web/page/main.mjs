// The page's start.
import * as game from './game.mjs';
import * as keys from './keys.mjs';
import * as saves from './saves.mjs';
import * as sound from './sound.mjs';
import { showCrash, showEnd, startBar, tellLasting, waitForTurn } from './bar.mjs';
import { countLines } from './controls.mjs';
import { program, stored, table, turn } from './early.mjs';
import { apply, describe, replaceAll } from './windows.mjs';

const wishes = new URLSearchParams(location.search);

// A page that is not seen stands still, and what sounds with it.
function pauseFor(reason, on) {
  if (game.pause(reason, on)) sound.pauseSound(game.isPaused());
  keys.tellKeys();
}

async function start() {
  const page = {
    keep: (number, name, bytes) => saves.keep(name, bytes).then((failure) => game.kept(number, failure)),
    loadSound: sound.loadSound,
    dropSound: sound.dropSound,
    startSound: sound.startSound,
    pad: keys.pad,
    countLines,
  };
  const [mine, early, sounds] = await Promise.all([
    turn,
    stored,
    table,
    game.load(program, page),
    document.fonts.load('12px "Orvane Gothic"').catch(() => []),
  ]);
  if (!mine) await waitForTurn();
  const files = mine ? early : await saves.open(); // another tab may have saved meanwhile
  describe(game.begin({ files, lengths: sound.know(sounds), seed: Number(wishes.get('seed') ?? -1), speed: wishes.get('speed') ?? '1' }, { apply, ended: showEnd, failed: showCrash }));
  sound.start();
  keys.start();
  startBar(pauseFor);
  document.body.dataset.state = 'running';
  game.pause('hidden', document.hidden);
  document.addEventListener('visibilitychange', () => pauseFor('hidden', document.hidden));
  game.follow();
  addEventListener('resize', replaceAll);
  document.addEventListener('fullscreenchange', replaceAll);
  // Texts are set anew when the last letters have come.
  document.fonts.addEventListener('loadingdone', replaceAll);
  performance.mark('title');
  tellLasting();
  import('./slots.mjs'); // so that it is there
  import('./offline.mjs').then(({ startOffline }) => startOffline());
}

start().catch(showCrash);
