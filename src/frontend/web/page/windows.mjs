// The windows of the screens and the message boxes, on the page's desktop.
import { ask, send } from './game.mjs';
import { make, makeButton, paint, setControl, targetOf } from './controls.mjs';
import { makeMenus, setMenuItem } from './menus.mjs';

const desktop = document.getElementById('desktop');
const said = document.getElementById('said');
const titleHeight = 30; // in the page's pixels, with the border

export const screens = new Map();
const controls = new Map();
const boxes = new Map();
let active = null;
let front = 1; // the order of what came to the front last

export const activeScreen = () => active;
export const standingBox = () => [...boxes.values()].at(-1) ?? null;

// The control that has the keyboard, or null.
export function focused() {
  const element = document.activeElement?.closest('[data-name].control');
  return element ? (controls.get(Number(element.id.slice(1))) ?? null) : null;
}

// Takes in what there is: each screen with its controls.
export function describe(nature) {
  for (const screen of nature) {
    screen.controls.forEach((control, i) => {
      Object.assign(control, { screen, order: i + 1, stop: screen.stops[i] });
      controls.set(control.id, control);
    });
    screen.controls = new Map(screen.controls.map((control) => [control.id, control]));
    screens.set(screen.id, screen);
  }
}

// The title bar of a window, with its close control.
function makeTitle(element, closed, moved) {
  const bar = make('header', 'title', element);
  const title = make('h2', '', bar);
  title.id = `title${++front}`;
  element.setAttribute('aria-labelledby', title.id);
  makeButton('close', bar, '×', closed, '閉じる').tabIndex = -1;
  drag(bar, element, moved);
  return title;
}

function makeWindow(screen) {
  const element = make('section', 'window', desktop);
  element.dataset.name = screen.name;
  element.setAttribute('role', screen.isScene ? 'region' : 'dialog');
  element.classList.toggle('scene', screen.isScene);
  screen.title = makeTitle(element, () => send('Close', screen.id), (place) => (screen.place = place));
  const menus = [...screen.controls.values()].filter((control) => control.kind === 'menu');
  if (menus.length) makeMenus(screen, menus, element);
  screen.client = make('div', 'client', element);
  screen.client.style.setProperty('--w', screen.width);
  screen.client.style.setProperty('--h', screen.height);
  screen.client.addEventListener('pointerdown', (event) => {
    const box = screen.client.getBoundingClientRect();
    const scale = box.width / screen.width;
    send('Press', screen.id, (event.clientX - box.left) / scale, (event.clientY - box.top) / scale);
  });
  element.addEventListener('pointerdown', () => {
    if (screen !== active && !standingBox()) send('Activate', screen.id);
  }, true);
  screen.element = element;
}

// Lets an element be moved by its title bar, within what is visible.
function drag(bar, element, moved) {
  bar.addEventListener('pointerdown', (down) => {
    if (down.button !== 0 || down.target.closest('button')) return;
    const begin = { left: element.offsetLeft - down.clientX, top: element.offsetTop - down.clientY };
    const move = (event) => {
      put(element, begin.left + event.clientX, begin.top + event.clientY);
      moved(middleOf(element));
    };
    bar.setPointerCapture(down.pointerId);
    bar.addEventListener('pointermove', move);
    bar.addEventListener('lostpointercapture', () => bar.removeEventListener('pointermove', move), { once: true });
  });
}

// Puts an element at a place, or as near to it as is visible, on whole pixels of the display.
function put(element, left, top) {
  const ratio = devicePixelRatio;
  const room = element.offsetParent ?? document.documentElement;
  const within = (value, most) => Math.round(Math.max(0, Math.min(value, most)) * ratio) / ratio;
  element.style.left = `${within(left, room.clientWidth - element.offsetWidth)}px`;
  element.style.top = `${within(top, room.clientHeight - element.offsetHeight)}px`;
}

const middleOf = (element) => ({ x: element.offsetLeft + element.offsetWidth / 2, y: element.offsetTop + element.offsetHeight / 2 });

// In the middle of what it came over, or where the player has put it.
function center(element, place, over) {
  const isOver = over?.element && !over.element.hidden && over.element !== element;
  const middle = place ?? (isOver ? middleOf(over.element) : { x: desktop.clientWidth / 2, y: desktop.clientHeight / 2 });
  put(element, middle.x - element.offsetWidth / 2, middle.y - element.offsetHeight / 2);
}

function setScreen(screen, values) {
  if (!values.visible && !screen.element) return;
  if (!screen.element) makeWindow(screen);
  const comes = values.visible && !screen.shown;
  screen.shown = values.visible;
  screen.modal = values.modal;
  screen.title.textContent = values.caption;
  screen.element.hidden = !values.visible;
  if (!screen.isScene) screen.element.setAttribute('aria-modal', values.modal);
  screen.element.classList.toggle('active', values.active);
  if (values.active) document.title = values.caption === 'Orvane' ? 'Orvane' : `${values.caption} - Orvane`;
  if (comes) screen.comes = true;
}

// What goes on between the player's last sight of the game and this one.
export function apply(changes) {
  const before = focused();
  const owner = active;
  const coming = (changes.screens ?? []).map((values) => [screens.get(values.id), values]);
  for (const [screen, values] of coming) setScreen(screen, values);
  for (const values of changes.controls ?? []) {
    const control = controls.get(values.id);
    if (control.kind === 'menu') setMenuItem(control, values);
    else setControl(control, values);
  }
  for (const part of changes.pixels ?? []) paintPart(part);
  for (const words of changes.words ?? []) tell(words);
  const now = [...screens.values()].find((screen) => screen.shown && screen.element.classList.contains('active')) ?? null;
  if (coming.length) {
    active = now;
    const modal = [...screens.values()].find((screen) => screen.shown && screen.modal);
    for (const screen of screens.values()) if (screen.element) screen.element.inert = Boolean(modal) && screen !== modal;
    if (now && now !== owner) now.element.style.zIndex = ++front;
    resize();
    for (const [screen] of coming) {
      if (screen.comes) center(screen.element, screen.place, owner);
      screen.comes = false;
    }
    document.body.dataset.screen = now?.name ?? '';
  }
  if (changes.boxes) followBoxes(changes.boxes);
  followFocus(before, now !== owner);
}

function paintPart(part) {
  if (part.screen !== undefined) {
    const screen = screens.get(part.screen);
    if (!screen.canvas) {
      screen.canvas = make('canvas', 'ground');
      screen.canvas.setAttribute('role', 'img');
      screen.canvas.setAttribute('aria-label', screen.title.textContent);
      screen.client.prepend(screen.canvas);
    }
    paint(screen.canvas, part);
    return;
  }
  paint(controls.get(part.control).canvas, part);
}

// What is written on a picture, for those who do not see it.
function tell({ screen, control, text }) {
  const canvas = control === undefined ? screens.get(screen).canvas : controls.get(control).canvas;
  const name = control === undefined ? '' : controls.get(control).spoken;
  if (canvas?.hasAttribute('role')) canvas.setAttribute('aria-label', [name, text].filter(Boolean).join('：') || 'Orvane');
  if (text) said.textContent = text;
}

function followFocus(before, changed) {
  if (!active || boxes.size || document.querySelector('dialog.page[open]')) return;
  const element = document.activeElement;
  if (element?.closest('.menu-bar, #bar') && !changed) return;
  const number = changed ? ask('BeginFocus', active.id) : ask('FollowFocus', active.id, before?.screen === active ? before.id : -1);
  const target = targetOf(controls.get(number));
  if (!target) {
    if (element?.closest('.window')) element.blur();
  } else if (element !== target) target.focus({ preventScroll: true });
}

// The keyboard goes to what lies next to a control.
export function moveFocus(from, direction) {
  targetOf(controls.get(ask('Neighbour', from.id, direction)))?.focus({ preventScroll: true });
}

function followBoxes(standing) {
  const numbers = new Set(standing.map((box) => box.number));
  for (const [number, element] of boxes) {
    if (numbers.has(number)) continue;
    boxes.delete(number);
    element.close();
    element.remove();
  }
  for (const box of standing) if (!boxes.has(box.number)) boxes.set(box.number, makeBox(box));
}

// A dialog with a title, as boxes and the page's own dialogs have it.
export function makeDialog(className, title, closed) {
  const element = make('dialog', className, document.body);
  makeTitle(element, closed, () => {}).textContent = title;
  element.addEventListener('cancel', (event) => {
    if (event.target !== element) return; // a choice of files that was broken off
    event.preventDefault();
    closed();
  });
  return element;
}

// A finger that has missed a small button by little has meant it.
const fingerReach = 20; // in the page's pixels
desktop.addEventListener('click', (event) => {
  if (event.pointerType !== 'touch' || !active || event.target.closest('button, input, .list, .takes')) return;
  const away = (element) => {
    const box = element.getBoundingClientRect();
    const x = Math.max(box.left - event.clientX, 0, event.clientX - box.right);
    return Math.hypot(x, Math.max(box.top - event.clientY, 0, event.clientY - box.bottom));
  };
  const near = [...active.element.querySelectorAll('button:enabled')].filter((each) => each.checkVisibility()).map((each) => [away(each), each]);
  const [distance, nearest] = near.sort(([one], [other]) => one - other)[0] ?? [Infinity];
  if (distance <= fingerReach) nearest.click();
});

function makeBox(box) {
  const element = makeDialog('box', box.title, () => send('Answer', box.closing));
  element.dataset.name = 'Box';
  const text = make('p', '', element);
  text.textContent = box.text;
  text.id = `b${box.number}`;
  element.setAttribute('aria-describedby', text.id);
  const choices = make('div', 'choices', element);
  for (const { caption, answer } of box.choices) {
    makeButton('push', choices, caption, () => send('Answer', answer)).dataset.answer = answer;
  }
  element.showModal();
  choices.firstChild.focus();
  put(element, (innerWidth - element.offsetWidth) / 2, (innerHeight - element.offsetHeight) / 2);
  return element;
}

// ---- how large all this is

const firstRatio = devicePixelRatio;
const menuHeight = 22; // in the game's pixels
const fingerHeight = 24; // the least that a menu has on a touch screen, in the page's pixels
let shownScale = 0;

// Chooses the scale by the room that there is, and keeps all windows within it.
export function resize() {
  const ratio = devicePixelRatio;
  const bare = document.fullscreenElement !== null;
  const small = matchMedia('(pointer: coarse)').matches;
  document.body.classList.toggle('bare', bare || small);
  const scaleFor = (height) => ask('ScaleFor', desktop.clientWidth * ratio, height * ratio, ratio / firstRatio, bare ? 1 : 0, small ? 1 : 0, titleHeight * ratio);
  let scale = scaleFor(desktop.clientHeight);
  const lack = small ? fingerHeight - (menuHeight * scale) / ratio : 0;
  if (lack > 0) scale = scaleFor(desktop.clientHeight - 1.1 * lack); // menus grow as the rest shrinks
  if (scale <= 0) return;
  const unit = scale / ratio;
  if (unit !== shownScale) {
    // What stands keeps its middle.
    const standing = [...screens.values()].filter((screen) => screen.shown && !screen.comes);
    const middles = standing.map(({ element }) => middleOf(element));
    document.documentElement.style.setProperty('--u', unit);
    standing.forEach(({ element }, i) => center(element, middles[i]));
  }
  shownScale = unit;
  document.documentElement.dataset.scale = scale;
}

export function replaceAll() {
  resize();
  for (const screen of screens.values()) {
    if (!screen.shown) continue;
    center(screen.element, screen.place, null);
    for (const control of screen.controls.values()) if (control.values?.visible && control.kind === 'label') setControl(control, control.values);
  }
}
