// The keyboard, game pads, and fingers.
import { ask, send } from './game.mjs';
import { frontBox } from './boxes.mjs';
import { isTouched, pointIn } from './elements.mjs';
import { closeMenu, isMenuOpen, menuBarHasKeys, menuKey, openMenus } from './menus.mjs';
import { focused, moveFocus } from './windows.mjs';

const arrows = ['ArrowLeft', 'ArrowUp', 'ArrowRight', 'ArrowDown']; // as the game counts directions
const cross = document.getElementById('cross');
// At once: the windows have the room that is left.
cross.hidden = !isTouched();
document.body.classList.toggle('thumbs', isTouched());
const inPage = () => Boolean(document.activeElement?.closest('#bar, dialog.page'));
const hasKeys = () => document.hasFocus() && !document.hidden;

// Tells the game where the keyboard is.
export const tellKeys = () => ask('SetKeyFacts', hasKeys(), isMenuOpen() || inPage(), menuBarHasKeys());

// Whether the game has taken the key, so that it does nothing more.
function take(event, isPress) {
  tellKeys();
  const isComposed = event.isComposing || event.keyCode === 229;
  const types = Boolean(document.activeElement?.matches('input[type=text]'));
  return ask('TakeKey', isComposed ? 0 : event.keyCode & 255, isPress, event.repeat, types) === 1;
}

function onKeyDown(event) {
  if (document.querySelector('dialog.page[open]')) return;
  if (event.ctrlKey || event.metaKey || event.altKey) return;
  if (take(event, true) || act(event)) event.preventDefault();
}

// What a key does where it is pressed; whether that was all.
function act(event) {
  const direction = arrows.indexOf(event.key);
  const box = frontBox();
  if (box) return boxKey(box, direction, event);
  if (inPage()) return false;
  if (menuKey(event)) return true;
  if (event.isComposing) return false;
  const control = focused();
  if (control?.onKey?.(event)) return true;
  if (event.key === 'F10') openMenus();
  else if (event.key === 'Escape') send('GoBack');
  else if (event.key === 'Enter' && control?.kind === 'field') send('Confirm');
  else if (direction >= 0 && control) return arrowKey(control, direction, event);
  else return direction >= 0;
  return true;
}

// An arrow on a control. Fields and sliders know some of them by themselves, but not those of a pad.
function arrowKey(control, direction, event) {
  const sideways = direction % 2 === 0;
  const isSlider = control.kind === 'slider';
  if (event.isTrusted && (isSlider || (control.kind === 'field' && sideways))) return false;
  if (control.kind === 'tabs' && sideways) send('TurnTab', direction - 1);
  else if (isSlider && sideways) {
    control.element[direction ? 'stepUp' : 'stepDown']();
    send('Slide', control.id, control.element.valueAsNumber);
  } else moveFocus(control, direction);
  return true;
}

function boxKey(box, direction, event) {
  const buttons = [...box.querySelectorAll('.choices button')];
  if (direction >= 0) {
    const at = buttons.indexOf(document.activeElement) + (direction < 2 ? -1 : 1);
    buttons[Math.max(0, Math.min(buttons.length - 1, at))].focus();
    return true;
  }
  if (event.isTrusted) return false; // the browser presses buttons by itself
  if (event.key === 'Escape') box.dispatchEvent(new Event('cancel', { cancelable: true }));
  return true;
}

// ---- pads

let padFrame = 0;

function readPads() {
  padFrame = 0;
  const found = [...navigator.getGamepads()].find((each) => each?.connected && each.mapping === 'standard');
  if (!found) return;
  const ours = hasKeys() && !inPage();
  const bits = found.buttons.reduce((sum, { pressed }, i) => sum | (ours && pressed ? 1 << i : 0), 0);
  tellKeys();
  ask('TakePad', bits, ours ? found.axes[0] : 0, ours ? found.axes[1] : 0);
  padFrame = requestAnimationFrame(readPads);
}

// Carries out what a pad does elsewhere than on the field: as PagePad counts.
export function pad(what, how) {
  const press = (key) => act(new KeyboardEvent('keydown', { key }));
  const turn = () => {
    if (ask('TurnTab', how) === 1) send('FollowKeys');
    else moveFocus(focused() ?? { id: -1 }, how > 0 ? 3 : 1);
  };
  const accept = () => (focused()?.kind === 'list' || isMenuOpen() ? press('Enter') : document.activeElement?.click());
  const deeds = [() => press(arrows[how]), accept, () => press('Escape'), openMenus, turn];
  setTimeout(deeds[what]); // the game is still reading the pad
}

// ---- the cross for thumbs

function slide(event, touches = true) {
  const [x, y] = pointIn(cross, event, 2);
  tellKeys();
  const way = ask('TakeThumb', x - 1, y - 1, touches);
  [...cross.children].forEach((arm, i) => arm.classList.toggle('on', i === way));
}

// A finger that has missed a small button by little has meant it: what lies around it is looked at, ever further.
const missedBy = [7, 14, 20]; // in the page's pixels
const around = [[-1, 0], [1, 0], [0, -1], [0, 1], [-0.7, -0.7], [0.7, -0.7], [-0.7, 0.7], [0.7, 0.7]];
const places = missedBy.flatMap((far) => around.map(([x, y]) => [x * far, y * far]));

function reachButton(event) {
  if (event.pointerType !== 'touch' || event.target.closest('button, input, .list, .takes')) return;
  const buttonAt = ([x, y]) =>
    document.elementFromPoint(event.clientX + x, event.clientY + y)?.closest('.window.active button:enabled');
  places.map(buttonAt).find(Boolean)?.click();
}

export function start() {
  addEventListener('keydown', onKeyDown);
  addEventListener('keyup', (event) => take(event, false));
  for (const turn of ['blur', 'focus']) addEventListener(turn, tellKeys);
  addEventListener('gamepadconnected', () => (padFrame ||= requestAnimationFrame(readPads)));
  cross.addEventListener('pointerdown', (event) => {
    event.preventDefault();
    cross.setPointerCapture(event.pointerId);
    closeMenu();
    slide(event);
  });
  cross.addEventListener('pointermove', (event) => cross.hasPointerCapture(event.pointerId) && slide(event));
  const lift = (event) => slide(event, false);
  for (const end of ['pointerup', 'pointercancel', 'lostpointercapture']) cross.addEventListener(end, lift);
  document.getElementById('desktop').addEventListener('click', reachButton);
  addEventListener('contextmenu', (event) => event.target.closest('#desktop, #cross') && event.preventDefault());
}
