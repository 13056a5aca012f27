// The keyboard, game pads, and the cross for thumbs.
import { ask, send } from './game.mjs';
import { activeScreen, focused, moveFocus, standingBox } from './windows.mjs';
import { closeMenu, isMenuOpen, menuBarHasKeys, menuKey, openMenus } from './menus.mjs';

const arrows = ['ArrowLeft', 'ArrowUp', 'ArrowRight', 'ArrowDown']; // as the game counts directions
const firstArrowCode = 37;
const acting = new Set(['Enter', ' ', 'Escape', 'F10']);
const cross = document.getElementById('cross');

const inPage = () => Boolean(document.activeElement?.closest('#bar, dialog.page'));

// Tells the game where the keyboard is.
export function tellKeys() {
  ask('SetKeyFacts', document.hasFocus() && !document.hidden ? 1 : 0, isMenuOpen() || inPage() ? 1 : 0, menuBarHasKeys() ? 1 : 0);
}

// The window that a key comes to.
function where() {
  const box = standingBox();
  if (box) return 1000 + Number(box.querySelector('p').id.slice(1));
  return isMenuOpen() ? 500 : (activeScreen()?.id ?? 0);
}

function take(event, isPress) {
  tellKeys();
  const code = event.isComposing || event.keyCode === 229 ? 0 : event.keyCode & 255;
  const types = document.activeElement?.matches('input[type=text]');
  return ask('TakeKey', code, isPress ? 1 : 0, event.repeat ? 1 : 0, where(), arrows.indexOf(event.key), acting.has(event.key) ? 1 : 0, types ? 1 : 0) === 1;
}

function onKeyDown(event) {
  if (document.querySelector('dialog.page[open]')) return;
  if (event.key === 'F11' && !event.repeat) {
    event.preventDefault();
    document.getElementById('full').click();
    return;
  }
  if (event.ctrlKey || event.metaKey || event.altKey) return;
  if (take(event, true) || act(event)) event.preventDefault();
}

// What a key does where it is pressed; whether that was all.
function act(event) {
  const screen = activeScreen();
  const direction = arrows.indexOf(event.key);
  const box = standingBox();
  if (box) return boxKey(box, direction, event);
  if (!screen || inPage()) return false;
  if (menuKey(screen, event)) return true;
  if (event.isComposing) return false;
  const control = focused();
  if (control?.onKey?.(event)) return true;
  if (event.key === 'F10') openMenus(screen);
  else if (event.key === 'Escape') send('GoBack', screen.id);
  else if (event.key === 'Enter' && control?.kind === 'field') send('Confirm', screen.id);
  else if (direction >= 0 && control) {
    const sideways = direction % 2 === 0;
    const keeps = control.kind === 'slider' || (control.kind === 'field' && sideways);
    if (keeps && event.isTrusted) return false;
    if (control.kind === 'slider' && sideways) {
      control.element[direction ? 'stepUp' : 'stepDown']();
      send('Slide', control.id, control.element.valueAsNumber);
    } else moveFocus(control, direction);
  } else return direction >= 0;
  return true;
}

function boxKey(box, direction, event) {
  const buttons = [...box.querySelectorAll('.choices button')];
  if (direction >= 0) {
    const step = direction < 2 ? -1 : 1;
    const at = buttons.indexOf(document.activeElement);
    buttons[Math.max(0, Math.min(buttons.length - 1, at + step))].focus();
    return true;
  }
  if (event.isTrusted) return false; // the browser presses buttons by itself
  if (event.key === 'Escape') box.dispatchEvent(new Event('cancel', { cancelable: true }));
  return true;
}

// ---- pads

const padButtons = [14, 12, 15, 13, 0, 1, 9, 4, 5]; // of a standard pad, in the game's order: left comes first
let padFrame = 0;

function readPads() {
  padFrame = 0;
  const pad = [...navigator.getGamepads()].find((each) => each?.connected && each.mapping === 'standard');
  if (!pad) return;
  const ours = document.hasFocus() && !document.hidden && !inPage();
  let bits = 0;
  padButtons.forEach((button, i) => {
    if (ours && pad.buttons[button]?.pressed) bits |= 1 << i;
  });
  tellKeys();
  ask('TakePad', bits, ours ? pad.axes[0] : 0, ours ? pad.axes[1] : 0);
  padFrame = requestAnimationFrame(readPads);
}

// Carries out what a pad does elsewhere than on the field.
export function pad(what, how) {
  const press = (key) => act(new KeyboardEvent('keydown', { key }));
  const later = [
    () => press(arrows[how]),
    () => (focused()?.kind === 'list' || isMenuOpen() ? press('Enter') : document.activeElement?.click()),
    () => press('Escape'),
    () => openMenus(activeScreen()),
    () => {
      if (ask('TurnTab', activeScreen()?.id ?? -1, how) === 1) send('FollowKeys');
      else moveFocus(focused() ?? { id: -1 }, how > 0 ? 3 : 1);
    },
  ][what];
  setTimeout(later); // the game is still reading the pad
}

// ---- thumbs

let walking = -1;

function walk(direction) {
  if (direction === walking) return;
  tellKeys();
  const press = (which, isPress) => ask('TakeKey', firstArrowCode + which, isPress, 0, where(), which, 0, 0);
  if (walking >= 0) press(walking, 0);
  walking = direction;
  if (walking >= 0) press(walking, 1);
  [...cross.children].forEach((arm, i) => arm.classList.toggle('on', i === walking));
}

function slide(event) {
  const box = cross.getBoundingClientRect();
  const x = event.clientX - box.left - box.width / 2;
  const y = event.clientY - box.top - box.height / 2;
  if (Math.hypot(x, y) < box.width / 10) return;
  walk(Math.abs(x) > Math.abs(y) ? (x < 0 ? 0 : 2) : y < 0 ? 1 : 3);
}

export function start() {
  addEventListener('keydown', onKeyDown);
  addEventListener('keyup', (event) => take(event, false));
  addEventListener('blur', tellKeys);
  addEventListener('focus', tellKeys);
  addEventListener('gamepadconnected', () => (padFrame ||= requestAnimationFrame(readPads)));
  cross.hidden = !matchMedia('(pointer: coarse)').matches;
  document.body.classList.toggle('thumbs', !cross.hidden);
  cross.addEventListener('pointerdown', (event) => {
    event.preventDefault();
    cross.setPointerCapture(event.pointerId);
    closeMenu();
    slide(event);
  });
  cross.addEventListener('pointermove', (event) => cross.hasPointerCapture(event.pointerId) && slide(event));
  for (const end of ['pointerup', 'pointercancel', 'lostpointercapture']) cross.addEventListener(end, () => walk(-1));
  addEventListener('contextmenu', (event) => event.target.closest('#desktop, #cross') && event.preventDefault());
}
