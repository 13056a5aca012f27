// The page's start.
import * as game from './game.mjs';
import * as keys from './keys.mjs';
import * as saves from './saves.mjs';
import * as sound from './sound.mjs';
import { showCrash, showEnd, startBar, tellLasting, waitForTurn } from './bar.mjs';
import { countLines } from './controls.mjs';
import { startOffline } from './offline.mjs';
import { apply, describe, replaceAll } from './windows.mjs';

const asset = (name) => new URL(name, import.meta.url);
const wishes = new URLSearchParams(location.search);

// The program comes while the page still asks whether it may begin.
const wasm = fetch(asset('./orvane-web.wasm'), { credentials: 'same-origin' }).then(async (answer) => {
  if (!answer.ok) throw new Error(`orvane-web.wasm: ${answer.status}`);
  return WebAssembly.compileStreaming(answer.clone()).catch(async () => WebAssembly.compile(await answer.arrayBuffer()));
});

// A page that is not seen stands still, and what sounds with it.
function pauseFor(reason, on) {
  if (game.pause(reason, on)) sound.pauseSound(game.isPaused());
  keys.tellKeys();
}

async function start() {
  await waitForTurn();
  const page = {
    keep: saves.keep,
    loadSound: sound.loadSound,
    dropSound: sound.dropSound,
    startSound: sound.startSound,
    pad: keys.pad,
    countLines,
  };
  const [files, lengths] = await Promise.all([
    saves.open(() => navigator.storage?.persist?.()),
    sound.open(asset('./sounds.json')),
    game.load(wasm, page),
    document.fonts.load('12px "Orvane Gothic"').catch(() => []),
  ]);
  describe(game.begin({ files, lengths, seed: Number(wishes.get('seed') ?? -1), speed: wishes.get('speed') ?? '1' }, { apply, ended: showEnd, failed: showCrash }));
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
  startOffline();
}

start().catch(showCrash);
