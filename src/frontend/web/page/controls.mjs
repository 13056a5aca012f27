// An element for each control, kept like its model.
import { ask, bytesAt, send, sendText } from './game.mjs';

const px = (value) => `calc(${value}px * var(--u))`;
const defaultSize = 12;

export function make(kind, className, parent) {
  const element = document.createElement(kind);
  if (className) element.className = className;
  parent?.append(element);
  return element;
}

// The width of a text in the pixels of the game.
const pen = document.createElement('canvas').getContext('2d');
const family = (face) => getComputedStyle(document.documentElement).getPropertyValue(`--${face}`);
function widthOf(text, { face, size, bold }) {
  pen.font = `${bold ? 'bold ' : ''}${size * 10}px ${family(face)}`;
  return Math.max(...text.split('\n').map((line) => pen.measureText(line.trim()).width)) / 10;
}

let linesOf = null; // how many lines the text that is being set takes at a width
export const countLines = (width) => linesOf(width);

// Letters are made narrower rather than cut.
function fit(element, values) {
  const inner = element.firstChild;
  inner.style.transform = '';
  inner.style.width = '';
  const { text, width, height, size } = values;
  if (!text) return;
  let squeeze = 1;
  if (values.oneLine) {
    squeeze = ask('Squeeze', widthOf(text, values), width);
  } else if (inner.scrollHeight > element.clientHeight + 2) {
    const pitch = parseFloat(getComputedStyle(inner).lineHeight);
    linesOf = (room) => {
      inner.style.width = px(room);
      return Math.round(inner.scrollHeight / pitch);
    };
    squeeze = ask('SqueezeLines', width, height, size);
  }
  inner.style.width = squeeze === 1 ? '' : px(width / squeeze);
  if (squeeze !== 1) inner.style.transform = `scaleX(${squeeze})`;
}

function place(element, { left, top, width, height }) {
  Object.assign(element.style, { left: px(left), top: px(top), width: px(width), height: px(height) });
}

// For each kind: how its element is made, and how it takes new values.
const kinds = {
  label: {
    make(control) {
      control.element = make('div', 'label');
      make('span', '', control.element);
    },
    set(control, values) {
      const { element } = control;
      const inner = element.firstChild;
      if (inner.textContent !== values.text) inner.textContent = values.text;
      element.style.color = values.colour;
      element.style.fontFamily = `var(--${values.face})`;
      element.style.fontSize = px(values.size);
      element.style.lineHeight = px(values.size + 1);
      element.style.fontWeight = values.bold ? 'bold' : '';
      element.style.textAlign = values.align;
      element.classList.toggle('one', values.oneLine);
      if (values.meaning) element.setAttribute('aria-description', values.meaning);
      fit(element, values);
    },
  },
  button: {
    make(control) {
      control.element = make('button', 'push');
      control.element.type = 'button';
      control.element.addEventListener('click', () => send('Click', control.id));
    },
    set(control, { text, height }) {
      control.element.textContent = text;
      control.element.style.fontSize = px(Math.min(defaultSize, Math.max(6, height - 2)));
    },
  },
  picture: {
    make(control) {
      control.element = make('div', 'picture');
      control.canvas = make('canvas', '', control.element);
      if (!control.spoken && !control.takesClicks) control.canvas.setAttribute('aria-hidden', 'true');
      else {
        control.canvas.setAttribute('role', 'img');
        control.canvas.setAttribute('aria-label', control.spoken || control.name);
      }
      control.element.classList.toggle('takes', control.takesClicks);
      control.element.style.borderWidth = px(control.edge);
      control.element.addEventListener('click', (event) => {
        if (event.target.closest('.picture, .push, .list') !== control.element) return;
        const box = control.element.getBoundingClientRect();
        const scale = box.width / control.element.dataset.width;
        send('ClickAt', control.id, (event.clientX - box.left) / scale - control.edge, (event.clientY - box.top) / scale - control.edge);
      });
    },
    set(control, { width }) {
      control.element.dataset.width = width;
    },
  },
  list: {
    make(control) {
      const element = make('div', 'list');
      control.element = element;
      element.tabIndex = 0;
      element.setAttribute('role', 'listbox');
      element.setAttribute('aria-label', control.spoken || control.name);
      element.addEventListener('focus', () => grow(element));
      element.addEventListener('click', (event) => {
        if (grow(element) || event.timeStamp - element.grownAt < settledMs) return;
        const row = [...element.children].indexOf(event.target.closest('[role=option]'));
        shrink();
        if (row >= 0) send('Choose', control.id, row);
      });
      control.onKey = (event) => listKey(control, event);
    },
    set(control, { rows, row }) {
      const { element } = control;
      const same = element.children.length === rows.length && rows.every((text, i) => element.children[i].firstChild.textContent === text);
      if (!same) {
        element.replaceChildren(
          ...rows.map((text, i) => {
            const option = make('div', '');
            option.setAttribute('role', 'option');
            option.id = `c${control.id}-${i}`;
            const inner = make('span', '', option);
            inner.textContent = text;
            const room = control.values.width - 8;
            const squeeze = Math.max(0.7, Math.min(1, room / widthOf(text, { face: 'gothic', size: defaultSize })));
            if (squeeze < 1) inner.style.transform = `scaleX(${squeeze})`;
            return option;
          }),
        );
        element.scrollTop = 0;
      }
      highlight(control, row);
    },
  },
  tabs: {
    make(control) {
      control.element = make('div', 'tabs');
      control.tabList = make('div', 'tab-list', control.element);
      control.tabList.setAttribute('role', 'tablist');
      if (control.spoken) control.tabList.setAttribute('aria-label', control.spoken);
      control.panes = [];
      control.onKey = (event) => tabsKey(control, event);
    },
    set(control, { captions, canOpen, open }) {
      captions.forEach((caption, i) => {
        const tab = control.tabList.children[i] ?? make('button', 'tab', control.tabList);
        const pane = paneOf(control, i);
        if (!tab.id) {
          tab.type = 'button';
          tab.id = `c${control.id}-tab${i}`;
          tab.setAttribute('role', 'tab');
          tab.setAttribute('aria-controls', pane.id);
          pane.setAttribute('aria-labelledby', tab.id);
          tab.addEventListener('click', () => send('SelectTab', control.id, i));
        }
        tab.textContent = caption;
        tab.disabled = !canOpen[i];
        tab.tabIndex = i === open ? 0 : -1;
        tab.setAttribute('aria-selected', i === open);
        pane.hidden = i !== open;
      });
      control.focusTarget = control.tabList.children[open];
    },
  },
  field: {
    make(control) {
      const element = make('input', 'field');
      control.element = element;
      Object.assign(element, { type: 'text', autocomplete: 'off', spellcheck: false, enterKeyHint: 'done' });
      element.setAttribute('aria-label', control.spoken || control.name);
      // What an input method is still composing is its own.
      element.addEventListener('input', (event) => event.isComposing || sendText(control.id, element.value));
      element.addEventListener('compositionend', () => sendText(control.id, element.value));
      element.addEventListener('compositionstart', () => (control.composing = true));
      element.addEventListener('compositionend', () => (control.composing = false), true);
    },
    set(control, { text }) {
      if (!control.composing && control.element.value !== text) control.element.value = text;
    },
  },
  slider: {
    make(control) {
      const element = make('input', 'slider');
      control.element = element;
      element.type = 'range';
      element.setAttribute('aria-label', control.spoken || control.name);
      element.addEventListener('input', () => send('Slide', control.id, element.valueAsNumber));
    },
    set(control, { min, max, small, value }) {
      Object.assign(control.element, { min, max, step: small });
      if (control.element.valueAsNumber !== value) control.element.value = value;
    },
  },
  frame: {
    make(control) {
      control.element = make('div', 'frame');
      control.element.setAttribute('role', 'group');
      make('span', 'frame-title', control.element).id = `c${control.id}-title`;
      control.element.setAttribute('aria-labelledby', `c${control.id}-title`);
    },
    set(control, { text }) {
      control.element.firstChild.textContent = text;
    },
  },
};

export function paneOf(control, pane) {
  if (!control.panes) return control.element;
  if (!control.panes[pane]) {
    const element = make('div', 'pane', control.element);
    element.id = `c${control.id}-pane${pane}`;
    element.setAttribute('role', 'tabpanel');
    control.panes[pane] = element;
  }
  return control.panes[pane];
}

export function highlight(control, row) {
  const { element } = control;
  control.row = row;
  [...element.children].forEach((option, i) => option.setAttribute('aria-selected', i === row));
  const chosen = element.children[row];
  if (chosen) {
    element.setAttribute('aria-activedescendant', chosen.id);
    chosen.scrollIntoView({ block: 'nearest' });
  } else element.removeAttribute('aria-activedescendant');
}

// A list whose rows are too small for a finger is enlarged while it is being used.
const settledMs = 400; // the touch that enlarges it chooses nothing
const leastRow = 30;
let grown = null;

function grow(element) {
  const row = element.children[0]?.offsetHeight ?? leastRow;
  if (grown === element || row >= leastRow || !matchMedia('(pointer: coarse)').matches) return false;
  shrink();
  grown = element;
  element.grownAt = performance.now();
  element.classList.add('large');
  return true;
}

function shrink() {
  grown?.classList.remove('large');
  grown = null;
}

addEventListener('pointerdown', (event) => grown?.contains(event.target) || shrink(), true);

let typed = '';
let typedAt = 0;

// Keys move the highlight; Enter chooses. Whether the key was one of the list's own.
function listKey(control, event) {
  const { element } = control;
  const count = element.children.length;
  const page = Math.max(1, Math.floor(element.clientHeight / (element.children[0]?.offsetHeight || 1)) - 1);
  const row = control.row ?? -1;
  const steps = { ArrowUp: row - 1, ArrowDown: row + 1, Home: 0, End: count - 1, PageUp: Math.max(0, row - page), PageDown: row + page };
  if (event.key === 'Enter' || (event.key === ' ' && !typed)) {
    if (!event.repeat && row >= 0) send('Choose', control.id, row);
    return true;
  }
  if (event.key in steps) {
    if (count) highlight(control, Math.max(0, Math.min(count - 1, steps[event.key])));
    return true;
  }
  if (event.key.length !== 1 || event.ctrlKey || event.altKey || event.metaKey) return false;
  typed = event.timeStamp - typedAt > 1000 ? event.key : typed + event.key;
  typedAt = event.timeStamp;
  const from = typed.length > 1 ? Math.max(0, row) : row + 1;
  for (let i = 0; i < count; ++i) {
    const at = (from + i) % count;
    if (!element.children[at].textContent.trim().toLowerCase().startsWith(typed.toLowerCase())) continue;
    highlight(control, at);
    break;
  }
  return true;
}

function tabsKey(control, event) {
  const step = { ArrowLeft: -1, ArrowRight: 1 }[event.key];
  if (!step) return false;
  send('TurnTab', control.screen.id, step);
  return true;
}

// Puts an element where its model stands, among those beside it: labels behind all others, and in the document
// in the order in which the keyboard goes through them.
function join(control) {
  const { screen, parent, pane, element, stop } = control;
  const owner = screen.controls.get(parent);
  if (owner) bring(owner);
  const holder = owner ? paneOf(owner, pane) : screen.client;
  element.classList.add('control');
  element.dataset.name = control.name;
  element.id = `c${control.id}`;
  element.style.zIndex = control.kind === 'label' ? 0 : control.order;
  element.stop = stop;
  const later = [...holder.children].find((other) => other.stop > stop);
  holder.insertBefore(element, stop < 0 ? null : (later ?? null));
}

// A control that has not been seen yet, nor anything on it, has no element.
function bring(control) {
  if (control.element) return;
  kinds[control.kind].make(control);
  control.element.hidden = true;
  join(control);
}

// Brings a control up to date.
export function setControl(control, values) {
  if (!control.element && !values.visible) return;
  bring(control);
  control.values = values;
  control.element.hidden = !values.visible;
  if (!values.visible && grown === control.element) shrink();
  if (!values.visible) return;
  place(control.element, values);
  if ('disabled' in control.element) control.element.disabled = !values.enabled;
  else if (values.enabled) control.element.removeAttribute('aria-disabled');
  else control.element.setAttribute('aria-disabled', 'true');
  control.element.classList.toggle('off', !values.enabled);
  kinds[control.kind].set(control, values);
}

export const targetOf = (control) => control?.focusTarget ?? control?.element;

// Puts the part of a surface that has changed on its canvas.
export function paint(canvas, { at, x, y, width, height, wholeWidth, wholeHeight }) {
  if (canvas.width !== wholeWidth || canvas.height !== wholeHeight) {
    canvas.width = wholeWidth;
    canvas.height = wholeHeight;
    canvas.style.width = px(wholeWidth);
    canvas.style.height = px(wholeHeight);
    canvas.pen = canvas.getContext('2d', { alpha: false });
  }
  canvas.pen.putImageData(new ImageData(bytesAt(at, width * height * 4), width, height), x, y);
}
