// What belongs to the page rather than to the game: its bar, notices, and pages at the end.
import { askBytes } from './game.mjs';
import { isTouched, make, makeButton } from './elements.mjs';
import { claim, hand, kept, lasts, remember, remembered } from './saves.mjs';

const notice = document.getElementById('notice');
const full = document.getElementById('full');

// Says something quietly, with what the player can do about it.
export function tell(sentence, caption, act) {
  notice.replaceChildren(sentence);
  makeButton('', notice, caption, act);
}

// A quiet page in place of the game.
function showPage(title, sentence) {
  const page = make('section', 'end', document.body, { role: 'region', 'aria-label': title });
  make('h1', '', page).textContent = title;
  make('p', '', page).textContent = sentence;
  return page;
}

// One tab plays. Others say so, and begin when they may.
export async function waitForTurn() {
  const sentence = 'ひとつのタブだけで遊べます。もうひとつのタブを閉じると、ここで始まります。';
  const page = showPage('別のタブで遊んでいます', sentence);
  document.body.dataset.state = 'waiting';
  await claim({});
  page.remove();
}

// Takes the game away for a page that offers to start anew, and each of the saves.
function showLast(state, title, sentence) {
  document.body.dataset.state = state;
  document.title = 'Orvane';
  document.getElementById('desktop').replaceChildren();
  document.querySelectorAll('dialog').forEach((dialog) => dialog.remove());
  document.exitFullscreen?.call(document).catch(() => {});
  const page = showPage(title, sentence);
  const row = make('div', 'choices', page);
  makeButton('push', row, 'もう一度始める', () => location.reload()).focus();
  // One by one, since what packs them together may be what has failed.
  for (const [name, bytes] of kept()) makeButton('push', row, `${name}を書き出す`, () => hand(name, bytes));
  return page;
}

export function showEnd(status) {
  document.body.dataset.status = status;
  const good = 'ゲームは終わりました。セーブデータはそのままです。';
  const bad = 'ゲームはエラーで終わりました。セーブデータはそのままです。';
  const page = showLast('ended', 'Orvane', status === 0 ? good : bad);
  if (status !== 0) makeButton('push', page, 'ここまでの操作の記録を書き出す', () => hand('error.replay', askBytes('Replay')));
}

export function showCrash(error) {
  console.error(error);
  const page = showLast('crashed', '申しわけありません', 'ゲームが動かなくなりました。セーブしたデータは残っています。');
  make('pre', '', page).textContent = `${error?.message ?? error}\n${error?.stack ?? ''}`;
}

// Keeps the screen awake while the game is played by touch.
function stayAwake() {
  if (isTouched() && !document.hidden) navigator.wakeLock?.request('screen').catch(() => {});
}

export function startBar(pauseFor) {
  // What saves come and go by is not needed for the title.
  const openSlots = async () => (await import('./slots.mjs')).openSlots(pauseFor);
  const warn = (sentence) => tell(sentence, '書き出す', openSlots);
  document.getElementById('slots').addEventListener('click', openSlots);
  full.hidden = !document.fullscreenEnabled;
  full.addEventListener('click', () => {
    if (document.fullscreenElement) document.exitFullscreen();
    else document.documentElement.requestFullscreen({ navigationUI: 'hide' }).catch(() => {});
  });
  // A click leaves the keyboard with the game.
  const leave = (event) => event.target.closest('button') && event.preventDefault();
  document.getElementById('bar').addEventListener('pointerdown', leave);
  document.addEventListener('visibilitychange', stayAwake);
  addEventListener('pointerdown', stayAwake, { once: true });

  // Whether saves last is told once: that this window keeps nothing, or that the browser may forget.
  const forgets = /^((?!chrome|android|crios|fxios).)*safari/i.test(navigator.userAgent);
  if (!lasts()) warn('このウィンドウでは、セーブデータは閉じると消えます。');
  else if (forgets && remembered('told', '') === '') {
    remember('told', 'yes');
    warn('このブラウザは、しばらく開かないページのデータを消すことがあります。');
  }
}
