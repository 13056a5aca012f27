// Lists: the keys that they know, and how they grow for fingers.
import { ask, send } from './game.mjs';
import { isTouched, make, widthOf } from './elements.mjs';

const edges = 8; // what a row cannot be written on, in the game's pixels
const letters = { face: 'gothic', size: 12 };

export function makeList(control) {
  const attributes = { tabindex: 0, role: 'listbox', 'aria-label': control.spoken || control.name };
  const element = make('div', 'list', null, attributes);
  element.addEventListener('focus', () => grow(element));
  element.addEventListener('click', (event) => {
    if (grow(element) || event.timeStamp - element.grownAt < settledMs) return;
    const row = [...element.children].indexOf(event.target.closest('[role=option]'));
    shrink();
    if (row >= 0) send('Choose', control.id, row);
  });
  control.onKey = (event) => listKey(control, event);
  return element;
}

export function setList(control, { rows, row, width }) {
  const { element } = control;
  const shown = [...element.children].map((option) => option.textContent);
  if (shown.length !== rows.length || rows.some((text, i) => text !== shown[i])) {
    const options = rows.map((text, i) => {
      const option = make('div', '', null, { role: 'option', id: `c${control.id}-${i}` });
      const inner = make('span', '', option);
      inner.textContent = text;
      const squeeze = ask('Squeeze', widthOf(text, letters), width - edges);
      if (squeeze < 1) inner.style.transform = `scaleX(${squeeze})`;
      return option;
    });
    element.replaceChildren(...options);
    element.scrollTop = 0;
  }
  highlight(control, row);
}

function highlight(control, row) {
  const { element } = control;
  control.row = row;
  [...element.children].forEach((option, i) => option.setAttribute('aria-selected', i === row));
  const chosen = element.children[row];
  if (chosen) {
    element.setAttribute('aria-activedescendant', chosen.id);
    chosen.scrollIntoView({ block: 'nearest' });
  } else element.removeAttribute('aria-activedescendant');
}

// Keys move the highlight; Enter chooses. Whether the key was one of the list's own.
function listKey(control, { key, repeat, timeStamp }) {
  const { element, id } = control;
  const page = Math.floor(element.clientHeight / (element.children[0]?.offsetHeight || 1));
  const row = ask('ListKey', id, control.row, page, key, timeStamp);
  if (row >= -1) highlight(control, row);
  else if (key !== 'Enter' && key !== ' ') return false;
  else if (!repeat && control.row >= 0) send('Choose', id, control.row);
  return true;
}

// ---- fingers: a list whose rows are too small for one is enlarged while it is being used

const settledMs = 400; // the touch that enlarges it chooses nothing
const leastRow = 30;
let grown = null;

function grow(element) {
  const row = element.children[0]?.offsetHeight ?? leastRow;
  if (grown === element || row >= leastRow || !isTouched()) return false;
  shrink();
  grown = element;
  element.grownAt = performance.now();
  element.classList.add('large');
  return true;
}

export function shrink() {
  grown?.classList.remove('large');
  grown = null;
}

addEventListener('pointerdown', (event) => grown?.contains(event.target) || shrink(), true);
