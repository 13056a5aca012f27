// What belongs to the page rather than to the game: its bar, notices, and pages at the end.
import { askBytes } from './game.mjs';
import { isTouched, makeButton } from './elements.mjs';
import { claim, hand, kept, lasts, remember, remembered } from './saves.mjs';

const notice = document.getElementById('notice');
const full = document.getElementById('full');

// Says something quietly, with what the player can do about it.
export function tell(sentence, caption, act) {
  notice.replaceChildren(sentence);
  makeButton('', notice, caption, act);
}

// One tab plays. Others say so, and begin when they may.
export async function waitForTurn() {
  const page = document.getElementById('waiting');
  document.body.dataset.state = 'waiting';
  page.hidden = false;
  await claim({});
  page.hidden = true;
}

// Takes the game away for a page that offers to start anew, and each of the saves.
function showLast(state, name) {
  document.body.dataset.state = state;
  document.title = 'Orvane';
  document.getElementById('desktop').replaceChildren();
  document.querySelectorAll('dialog').forEach((dialog) => dialog.remove());
  document.exitFullscreen?.call(document).catch(() => {});
  const page = Object.assign(document.getElementById(name), { hidden: false });
  const caption = document.getElementById('take').textContent; // said while the game could still say it
  const row = page.querySelector('.choices');
  row.firstElementChild.onclick = () => location.reload();
  row.firstElementChild.focus();
  // One by one, since what packs them together may be what has failed.
  for (const [name, bytes] of kept()) makeButton('push', row, caption.replace('{file}', name), () => hand(name, bytes));
  return page;
}

export function showEnd(status) {
  document.body.dataset.status = status;
  showLast('ended', status === 0 ? 'ended' : 'failed');
  document.getElementById('record').onclick = () => hand('error.replay', askBytes('Replay'));
}

export function showCrash(error) {
  console.error(error);
  showLast('crashed', 'crashed').querySelector('pre').textContent = `${error?.message ?? error}\n${error?.stack ?? ''}`;
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
