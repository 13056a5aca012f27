// Message boxes, which stand over one another, and the page's own dialogs.
import { send } from './game.mjs';
import { make, makeButton } from './elements.mjs';
import { letMove } from './places.mjs';

const boxes = new Map(); // elements by the boxes' numbers, the front one last
let titles = 0;

export const frontBox = () => [...boxes.values()].at(-1) ?? null;

// The title bar of a window or dialog, with its close control. Returns the title.
export function makeTitle(element, caption, closed) {
  const bar = make('header', 'title', element);
  const title = make('h2', '', bar, { id: `title${++titles}` });
  title.textContent = caption;
  element.setAttribute('aria-labelledby', title.id);
  makeButton('close', bar, '×', closed, { 'aria-label': '閉じる', tabindex: -1 });
  letMove(element, bar);
  return title;
}

export function makeDialog(className, name, title, closed) {
  const element = make('dialog', className, document.body, { 'data-name': name });
  makeTitle(element, title, closed);
  element.addEventListener('cancel', (event) => {
    if (event.target !== element) return; // a choice of files that was broken off
    event.preventDefault();
    closed();
  });
  return element;
}

function makeBox(box) {
  const element = makeDialog('box', 'Box', box.title, () => send('Answer', box.closing));
  const text = make('p', '', element, { id: `b${box.number}` });
  text.textContent = box.text;
  element.setAttribute('aria-describedby', text.id);
  const choices = make('div', 'choices', element);
  for (const { caption, answer } of box.choices) makeButton('push', choices, caption, () => send('Answer', answer));
  element.showModal();
  choices.firstChild.focus();
  return element;
}

// Brings the boxes up to date with those that stand, the front one last.
export function followBoxes(standing) {
  for (const [number, element] of boxes) {
    if (standing.some((box) => box.number === number)) continue;
    boxes.delete(number);
    element.close(); // gives the keyboard back to what had it
    element.remove();
  }
  for (const box of standing) if (!boxes.has(box.number)) boxes.set(box.number, makeBox(box));
}
