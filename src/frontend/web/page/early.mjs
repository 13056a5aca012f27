// What the start waits for, on its way while the page's other scripts still come.
import { claim, open } from './saves.mjs';

const address = new URL('./orvane-web.wasm', import.meta.url);

// The compiled program. Hosts that do not name its kind make it come whole first.
export const program = WebAssembly.compileStreaming(fetch(address)).catch(async () => {
  const answer = await fetch(address);
  if (!answer.ok) throw new Error(`orvane-web.wasm: ${answer.status}`);
  return WebAssembly.compile(await answer.arrayBuffer());
});

// Whether this tab may play at once, and the player's files.
export const turn = navigator.locks ? claim({ ifAvailable: true }) : Promise.resolve(true);
export const stored = open();

// What sounds there are; without them the game is silent.
export const table = fetch(new URL('./sounds.json', import.meta.url)).then((answer) => answer.json()).catch(() => ({}));
