// Where windows stand on the page's desktop, and how large all is.
import { ask } from './game.mjs';
import { isTouched } from './elements.mjs';

const desktop = document.getElementById('desktop');

const middleOf = ({ offsetLeft, offsetTop, offsetWidth, offsetHeight }) => ({
  x: offsetLeft + offsetWidth / 2,
  y: offsetTop + offsetHeight / 2,
});

// Puts an element at a place, or as near to it as is visible, on whole pixels of the display.
function put(element, left, top) {
  const ratio = devicePixelRatio;
  const room = element.offsetParent ?? document.documentElement;
  const within = (value, most) => Math.round(Math.max(0, Math.min(value, most)) * ratio) / ratio;
  element.style.margin = 0;
  element.style.left = `${within(left, room.clientWidth - element.offsetWidth)}px`;
  element.style.top = `${within(top, room.clientHeight - element.offsetHeight)}px`;
}

// Puts a window where the player has put it before, otherwise over the middle of another, or of the desktop.
export function center(element, over) {
  const isOver = over && !over.hidden && over !== element;
  const free = { x: desktop.clientWidth / 2, y: desktop.clientHeight / 2 };
  const { x, y } = element.place ?? (isOver ? middleOf(over) : free);
  put(element, x - element.offsetWidth / 2, y - element.offsetHeight / 2);
}

// Lets an element be moved by its title bar, within what is visible.
export function letMove(element, bar) {
  bar.addEventListener('pointerdown', (down) => {
    if (down.button !== 0 || down.target.closest('button')) return;
    const begin = { left: element.offsetLeft - down.clientX, top: element.offsetTop - down.clientY };
    const move = (event) => {
      put(element, begin.left + event.clientX, begin.top + event.clientY);
      element.place = middleOf(element);
    };
    bar.setPointerCapture(down.pointerId);
    bar.addEventListener('pointermove', move);
    bar.addEventListener('lostpointercapture', () => bar.removeEventListener('pointermove', move), { once: true });
  });
}

const standing = () => [...desktop.querySelectorAll('.window:not([hidden])')];
const firstRatio = devicePixelRatio;
const fills = matchMedia('(display-mode: fullscreen)'); // by the page's button, or by the browser's key
let shownUnit = 0;

// Chooses the scale by the room that there is. What stands keeps its middle.
export function resize() {
  const ratio = devicePixelRatio;
  const room = [desktop.clientWidth * ratio, desktop.clientHeight * ratio];
  const scale = ask('ScaleFor', ...room, ratio, ratio / firstRatio, fills.matches, isTouched());
  if (scale <= 0 || scale / ratio === shownUnit) return;
  const middles = standing().map((element) => [element, middleOf(element)]);
  shownUnit = scale / ratio;
  document.documentElement.style.setProperty('--u', shownUnit);
  document.documentElement.dataset.scale = scale;
  for (const [element, { x, y }] of middles) put(element, x - element.offsetWidth / 2, y - element.offsetHeight / 2);
}

// The room has changed.
export function replaceAll() {
  resize();
  for (const element of standing()) center(element, null);
}
