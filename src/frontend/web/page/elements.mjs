// How elements are made, placed and told apart.
export function make(kind, className = '', parent = null, attributes = {}) {
  const element = document.createElement(kind);
  if (className) element.className = className;
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  parent?.append(element);
  return element;
}

// A button that does something.
export function makeButton(className, parent, caption, act, attributes = {}) {
  const element = make('button', className, parent, { type: 'button', ...attributes });
  element.textContent = caption;
  element.addEventListener('click', act);
  return element;
}

// A length in the game's pixels, for a style.
export const px = (value) => `calc(${value}px * var(--u))`;

// Where an event happened within an element that is so many of the game's pixels wide, in these pixels.
export function pointIn(element, event, width) {
  const box = element.getBoundingClientRect();
  const scale = box.width / width;
  return [(event.clientX - box.left) / scale, (event.clientY - box.top) / scale];
}

// The display is touched, and fingers are wide.
export const isTouched = () => matchMedia('(pointer: coarse)').matches;

// The width of a text in the game's pixels.
const pen = document.createElement('canvas').getContext('2d');
const finely = 10; // letters are measured so much larger
export function widthOf(text, { face, size, bold }) {
  const family = getComputedStyle(document.documentElement).getPropertyValue(`--${face}`);
  pen.font = `${bold ? 'bold ' : ''}${size * finely}px ${family}`;
  return Math.max(...text.split('\n').map((line) => pen.measureText(line.trim()).width)) / finely;
}
