// What belongs to the page rather than to the game: its bar, notices, and pages at the end.
import { claim, lasts, slots } from './saves.mjs';
import { make, makeButton } from './controls.mjs';
import { remember, remembered } from './memory.mjs';

const notice = document.getElementById('notice');
const full = document.getElementById('full');

// What saves come and go by is not needed for the title.
const slotsModule = () => import('./slots.mjs');
const openSlots = async () => (await slotsModule()).openSlots(pauses);

// Says something quietly, with what the player can do about it.
export function tell(sentence, caption, act) {
  notice.replaceChildren(sentence);
  if (caption) makeButton('', notice, caption, act);
}

// One tab plays. Others say so, and begin when they may.
export async function waitForTurn() {
  const end = showPage('別のタブで遊んでいます', 'このゲームは、ひとつのタブだけで遊べます。もうひとつのタブを閉じると、ここで始まります。');
  document.body.dataset.state = 'waiting';
  await claim({});
  end.remove();
}

// Whether saves last is told once: that this window keeps nothing, or that the browser may forget.
export function tellLasting() {
  if (!lasts()) return tell('このウィンドウでは、セーブデータは閉じると消えます。', '書き出す', openSlots);
  const forgets = /^((?!chrome|android|crios|fxios).)*safari/i.test(navigator.userAgent);
  if (!forgets || remembered('told', '') === 'yes') return undefined;
  remember('told', 'yes');
  return tell('このブラウザは、しばらく開かないページのデータを消すことがあります。', '書き出す', openSlots);
}

// A quiet page in place of the game.
function showPage(title, sentence, ...buttons) {
  const page = make('section', 'end', document.body);
  page.setAttribute('role', 'region');
  page.setAttribute('aria-label', title);
  make('h1', '', page).textContent = title;
  make('p', '', page).textContent = sentence;
  const row = make('div', 'choices', page);
  for (const [caption, act] of buttons) makeButton('push', row, caption, act);
  row.firstChild?.focus();
  return page;
}

const anew = ['もう一度始める', () => location.reload()];
const takeAlong = ['セーブデータを書き出す', async () => (await slotsModule()).saveAll(slots())];

function clear(state) {
  document.body.dataset.state = state;
  document.getElementById('desktop').replaceChildren();
  document.querySelectorAll('dialog').forEach((dialog) => dialog.remove());
  document.exitFullscreen?.call(document).catch(() => {});
}

export function showEnd(status) {
  clear('ended');
  document.body.dataset.status = status;
  document.title = 'Orvane';
  showPage('Orvane', status === 0 ? 'ゲームは終わりました。' : 'ゲームはエラーで終わりました。セーブデータはそのままです。', anew, takeAlong);
}

export function showCrash(error) {
  console.error(error);
  clear('crashed');
  const page = showPage('申しわけありません', 'ゲームが動かなくなりました。セーブしたデータは残っています。', anew, takeAlong);
  make('pre', '', page).textContent = `${error?.message ?? error}\n${error?.stack ?? ''}`;
}

// Keeps the screen awake while the game is played by touch.
async function stayAwake() {
  if (!matchMedia('(pointer: coarse)').matches || document.hidden) return;
  await navigator.wakeLock?.request('screen').catch(() => null);
}

let pauses = null;

export function startBar(pauseFor) {
  pauses = pauseFor;
  full.hidden = !document.fullscreenEnabled;
  full.addEventListener('click', () => {
    if (document.fullscreenElement) document.exitFullscreen();
    else document.documentElement.requestFullscreen({ navigationUI: 'hide' }).catch(() => {});
  });
  document.getElementById('slots').addEventListener('click', openSlots);
  // A click leaves the keyboard with the game.
  for (const button of document.querySelectorAll('#bar button')) button.addEventListener('pointerdown', (event) => event.preventDefault());
  document.addEventListener('visibilitychange', stayAwake);
  addEventListener('pointerdown', stayAwake, { once: true });
}
