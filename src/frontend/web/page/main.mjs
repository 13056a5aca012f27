// The page's start.
import * as game from './game.mjs';
import * as keys from './keys.mjs';
import * as saves from './saves.mjs';
import * as sound from './sound.mjs';
import { showCrash, showEnd, startBar, waitForTurn } from './bar.mjs';
import { countLines } from './controls.mjs';
import { program, stored, table, turn } from './early.mjs';
import { apply, describe, refit } from './windows.mjs';
import { startWords } from './words.mjs';

const wishes = new URLSearchParams(location.search);

// A page that is not seen stands still, and what sounds with it.
function pauseFor(reason, on) {
  sound.pauseSound(game.pause(reason, on));
  keys.tellKeys();
}

async function start() {
  const page = { keep: saves.keepFor(game), ...sound, pad: keys.pad, countLines };
  const [mine, sounds] = await Promise.all([turn, table, game.load(program, page)]);
  startWords(wishes.get('language'));
  if (!mine) await waitForTurn();
  sound.know(sounds);
  const seed = Number(wishes.get('seed') ?? -1);
  const speed = wishes.get('speed') ?? '1';
  describe(game.begin({ sounds, seed, speed }, { apply, ended: showEnd, failed: showCrash }));
  game.pause('files', true);
  game.follow();
  performance.mark('title');
  // Nothing is done at the title before the files are there. Another tab may have saved meanwhile.
  const files = mine ? await stored : await saves.open();
  for (const [name, bytes] of files) game.ask('PutFile', name, bytes, bytes.length);
  sound.start();
  keys.start();
  startBar(pauseFor);
  document.getElementById('desktop').inert = false;
  document.body.dataset.state = 'running';
  game.pause('hidden', document.hidden);
  game.pause('files', false);
  document.addEventListener('visibilitychange', () => pauseFor('hidden', document.hidden));
  game.follow();
  addEventListener('resize', refit);
  document.fonts.addEventListener('loadingdone', refit);
  import('./slots.mjs'); // so that it is there
  import('./offline.mjs').then(({ startOffline }) => startOffline());
}

start().catch(showCrash);
