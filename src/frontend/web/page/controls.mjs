// An element for each control, kept like its model.
import { ask, bytesAt, send } from './game.mjs';
import { make, makeButton, pointIn, px, widthOf } from './elements.mjs';
import { makeList, setList, shrink } from './lists.mjs';

const nameOf = (control) => control.spoken || control.name;

let linesOf = null; // how many lines the text that is being set takes at a width
export const countLines = (width) => linesOf(width);

// Letters are made narrower rather than cut.
function fit(element, values) {
  const inner = element.firstChild;
  inner.style.transform = '';
  inner.style.width = '';
  const { text, width, height, size } = values;
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

// For each kind: how its element is made, and how it takes new values.
const kinds = {
  label: {
    make() {
      const element = make('div', 'label');
      make('span', '', element);
      return element;
    },
    set({ element }, values) {
      element.firstChild.textContent = values.text;
      element.classList.toggle('one', values.oneLine);
      if (values.meaning) element.setAttribute('aria-description', values.meaning);
      fit(element, values);
    },
  },
  button: {
    make: (control) => makeButton('push', null, '', () => send('Click', control.id)),
    set({ element }, { text }) {
      element.textContent = text;
    },
  },
  picture: {
    make(control) {
      const { edge, takesClicks, spoken } = control;
      const element = make('div', 'picture');
      const says = spoken || takesClicks;
      const attributes = says ? { role: 'img', 'aria-label': nameOf(control) } : { 'aria-hidden': true };
      control.canvas = make('canvas', '', element, attributes);
      element.classList.toggle('takes', takesClicks);
      element.addEventListener('click', (event) => {
        if (event.target.closest('.picture, .push, .list') !== element) return;
        const [x, y] = pointIn(element, event, control.values.width);
        send('ClickAt', control.id, x - edge, y - edge);
      });
      return element;
    },
    set() {}, // pixels come by themselves
  },
  list: { make: makeList, set: setList },
  tabs: {
    make(control) {
      const element = make('div', 'tabs');
      control.tabList = make('div', 'tab-list', element, { role: 'tablist', 'aria-label': control.spoken });
      control.panes = [];
      return element;
    },
    set(control, { captions, canOpen, open }) {
      captions.forEach((caption, i) => {
        const tab = control.tabList.children[i] ?? makeTab(control, i);
        tab.textContent = caption;
        tab.disabled = !canOpen[i];
        tab.tabIndex = i === open ? 0 : -1;
        tab.setAttribute('aria-selected', i === open);
        paneOf(control, i).hidden = i !== open;
      });
      control.focusTarget = control.tabList.children[open];
    },
  },
  field: {
    make(control) {
      const attributes = { type: 'text', autocomplete: 'off', spellcheck: false, enterkeyhint: 'done' };
      const element = make('input', 'field', null, { ...attributes, 'aria-label': nameOf(control) });
      const tell = () => send('EnterText', control.id, element.value);
      // What an input method is still composing is its own.
      element.addEventListener('input', (event) => event.isComposing || tell());
      element.addEventListener('compositionstart', () => (control.composing = true));
      element.addEventListener('compositionend', () => {
        control.composing = false;
        tell();
      });
      return element;
    },
    set({ element, composing }, { text }) {
      if (!composing && element.value !== text) element.value = text;
    },
  },
  slider: {
    make(control) {
      const element = make('input', 'slider', null, { type: 'range', 'aria-label': nameOf(control) });
      element.addEventListener('input', () => send('Slide', control.id, element.valueAsNumber));
      return element;
    },
    set({ element }, { min, max, small, value }) {
      Object.assign(element, { min, max, step: small });
      if (element.valueAsNumber !== value) element.value = value;
    },
  },
  frame: {
    make({ id }) {
      const element = make('div', 'frame', null, { role: 'group', 'aria-labelledby': `c${id}-title` });
      make('span', 'frame-title', element, { id: `c${id}-title` });
      return element;
    },
    set({ element }, { text }) {
      element.firstChild.textContent = text;
    },
  },
};

function makeTab(control, i) {
  const pane = paneOf(control, i);
  const attributes = { role: 'tab', id: `c${control.id}-tab${i}`, 'aria-controls': pane.id };
  pane.setAttribute('aria-labelledby', attributes.id);
  return makeButton('tab', control.tabList, '', () => send('SelectTab', control.id, i), attributes);
}

// What the controls on another stand in: one of its panes, where it has any.
function paneOf(control, i) {
  if (!control.panes) return control.element;
  control.panes[i] ??= make('div', 'pane', control.element, { id: `c${control.id}-pane${i}`, role: 'tabpanel' });
  return control.panes[i];
}

// Puts an element where its model stands, in the order in which the keyboard goes through those beside it.
function join(control) {
  const { id, name, screen, owner, pane, element, stop } = control;
  if (owner) bring(owner);
  const holder = owner ? paneOf(owner, pane) : screen.client;
  element.classList.add('control');
  element.dataset.name = name;
  element.id = `c${id}`;
  element.stop = stop;
  const later = [...holder.children].find((other) => other.stop > stop);
  holder.insertBefore(element, stop < 0 ? null : (later ?? null));
}

// A control that has not been seen yet, nor anything on it, has no element.
function bring(control) {
  if (control.element) return;
  control.element = kinds[control.kind].make(control);
  control.element.hidden = true;
  join(control);
}

// Brings a control up to date.
export function setControl(control, values) {
  if (!control.element && !values.visible) return;
  bring(control);
  const { element } = control;
  control.values = values;
  element.hidden = !values.visible;
  if (!values.visible) {
    if (element.classList.contains('large')) shrink();
    return;
  }
  element.style.cssText = values.style;
  if ('disabled' in element) element.disabled = !values.enabled;
  else element.ariaDisabled = values.enabled ? null : 'true';
  kinds[control.kind].set(control, values);
}

// What of a control the keyboard goes to.
export const targetOf = (control) => control?.focusTarget ?? control?.element;

// Puts the part of a surface that has changed on its canvas.
export function paint(canvas, { at, x, y, width, height, wholeWidth, wholeHeight }) {
  if (canvas.width !== wholeWidth || canvas.height !== wholeHeight) {
    Object.assign(canvas, { width: wholeWidth, height: wholeHeight });
    canvas.style.cssText = `--width:${wholeWidth};--height:${wholeHeight}`;
    canvas.pen = canvas.getContext('2d', { alpha: false });
  }
  canvas.pen.putImageData(new ImageData(bytesAt(at, width * height * 4), width, height), x, y);
}
