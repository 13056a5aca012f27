// The windows of the screens, and what goes on in them.
import { ask, send } from './game.mjs';
import { followBoxes, frontBox, makeTitle } from './boxes.mjs';
import { paint, setControl, targetOf } from './controls.mjs';
import { make, pointIn } from './elements.mjs';
import { makeMenus, setMenuItem } from './menus.mjs';
import { center, replaceAll, resize } from './places.mjs';

const desktop = document.getElementById('desktop');
const said = document.getElementById('said');

export const screens = new Map();
const controls = new Map();
let active = null;
let front = 1; // the order of what came to the front last

// The control that has the keyboard, or null.
export function focused() {
  const element = document.activeElement?.closest('[data-name].control');
  return element ? (controls.get(Number(element.id.slice(1))) ?? null) : null;
}

// Takes in what there is: each screen with its controls.
export function describe(nature) {
  for (const screen of nature) {
    screens.set(screen.id, screen);
    for (const control of screen.controls) {
      controls.set(control.id, Object.assign(control, { screen, owner: controls.get(control.parent) }));
    }
  }
}

function makeWindow(screen) {
  const { id, name, isScene, width, height } = screen;
  const element = make('section', 'window', desktop, { 'data-name': name, role: isScene ? 'region' : 'dialog' });
  element.classList.toggle('scene', isScene);
  screen.title = makeTitle(element, '', () => send('Close', id));
  const menus = screen.controls.filter((control) => control.kind === 'menu');
  if (menus.length) makeMenus(menus, element);
  screen.client = make('div', 'client', element);
  screen.client.style.cssText = `--w:${width};--h:${height}`;
  screen.client.addEventListener('pointerdown', (event) => send('Press', id, ...pointIn(screen.client, event, width)));
  const activate = () => screen === active || frontBox() || send('Activate', id);
  element.addEventListener('pointerdown', activate, true);
  return element;
}

function setScreen(screen, { visible, active: isActive, modal, blocked, caption }) {
  if (!visible && !screen.element) return;
  screen.element ??= makeWindow(screen);
  const { element } = screen;
  screen.comes = visible && !screen.shown;
  screen.shown = visible;
  screen.title.textContent = caption;
  element.hidden = !visible;
  element.inert = blocked;
  element.classList.toggle('active', isActive);
  if (!screen.isScene) element.setAttribute('aria-modal', modal);
  if (isActive) {
    active = screen;
    document.title = caption === 'Orvane' ? 'Orvane' : `${caption} - Orvane`;
  } else if (active === screen) active = null;
}

// What goes on between the player's last sight of the game and this one.
export function apply(changes) {
  const before = focused();
  const owner = active;
  for (const values of changes.screens ?? []) setScreen(screens.get(values.id), values);
  for (const values of changes.controls ?? []) {
    const control = controls.get(values.id);
    if (control.kind === 'menu') setMenuItem(control, values);
    else setControl(control, values);
  }
  for (const part of changes.pixels ?? []) paint(canvasOf(part), part);
  for (const words of changes.words ?? []) tell(words);
  if (changes.screens) {
    if (active && active !== owner) active.element.style.zIndex = ++front;
    resize();
    for (const screen of changes.screens.map(({ id }) => screens.get(id))) {
      if (screen.comes) center(screen.element, owner?.element);
      screen.comes = false;
    }
    document.body.dataset.screen = active?.name ?? '';
  }
  if (changes.boxes) followBoxes(changes.boxes);
  followFocus(before?.id ?? -1, active !== owner);
}

// The canvas of a picture, or of a screen that is one.
function canvasOf({ screen: id, control }) {
  if (control !== undefined) return controls.get(control).canvas;
  const screen = screens.get(id);
  if (!screen.canvas) {
    screen.canvas = make('canvas', 'ground', null, { role: 'img', 'aria-label': screen.title.textContent });
    screen.client.prepend(screen.canvas);
  }
  return screen.canvas;
}

// What is written on a picture, for those who do not see it.
function tell(words) {
  const canvas = canvasOf(words);
  if (canvas?.hasAttribute('role')) canvas.setAttribute('aria-label', words.called);
  if (words.text) said.textContent = words.text;
}

function followFocus(before, changed) {
  if (!active || document.querySelector('dialog[open]')) return;
  const element = document.activeElement;
  if (element?.closest('.menu-bar, #bar') && !changed) return;
  const target = targetOf(controls.get(ask('FollowFocus', before)));
  if (!target) {
    if (element?.closest('.window')) element.blur();
  } else if (element !== target) target.focus({ preventScroll: true });
}

// The keyboard goes to what lies next to a control.
export function moveFocus(from, direction) {
  targetOf(controls.get(ask('Neighbour', from.id, direction)))?.focus({ preventScroll: true });
}

// Places and texts are set anew, since the room or the letters have changed.
export function refit() {
  replaceAll();
  for (const control of controls.values()) {
    const isSeen = control.screen.shown && control.values?.visible;
    if (isSeen && control.kind === 'label') setControl(control, control.values);
  }
}
