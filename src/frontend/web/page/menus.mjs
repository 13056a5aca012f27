// The menu bar of a screen and the menus that hang from it.
import { send } from './game.mjs';
import { make } from './controls.mjs';

let bar = null; // the one menu bar
let open = null; // the menu that is open

export const isMenuOpen = () => open !== null;
export const menuBarHasKeys = () => Boolean(bar?.contains(document.activeElement));

export function makeMenus(screen, menus, parent) {
  const element = make('div', 'menu-bar', parent);
  bar = element;
  element.setAttribute('role', 'menubar');
  element.setAttribute('aria-label', 'メニュー');
  for (const menu of menus) {
    if (menu.parent < 0) makeTop(menu, element);
    else makeItem(menu, screen.controls.get(menu.parent));
  }
  element.addEventListener('focusout', (event) => {
    if (!element.contains(event.relatedTarget)) closeMenu();
  });
}

function makeTop(menu, element) {
  menu.holder = make('div', 'menu', element);
  menu.holder.setAttribute('role', 'none');
  menu.element = make('button', 'menu-top', menu.holder);
  menu.element.type = 'button';
  menu.element.tabIndex = -1;
  menu.element.setAttribute('role', 'menuitem');
  menu.element.setAttribute('aria-haspopup', 'menu');
  menu.element.setAttribute('aria-expanded', 'false');
  menu.list = make('div', 'menu-list', menu.holder);
  menu.list.setAttribute('role', 'menu');
  menu.list.hidden = true;
  menu.items = [];
  menu.element.dataset.name = menu.name;
  menu.element.addEventListener('click', () => (open === menu ? closeMenu() : openMenu(menu)));
  menu.element.addEventListener('pointerenter', (event) => {
    if (open && open !== menu && event.pointerType === 'mouse' && !menu.element.disabled) openMenu(menu);
  });
}

function makeItem(item, menu) {
  item.element = make('button', 'menu-item', menu.list);
  item.element.type = 'button';
  item.element.tabIndex = -1;
  item.element.setAttribute('role', 'menuitem');
  item.element.dataset.name = item.name;
  item.element.addEventListener('click', () => {
    closeMenu();
    document.activeElement?.blur();
    send('ClickItem', item.id);
  });
  item.element.addEventListener('pointerenter', (event) => {
    if (event.pointerType === 'mouse') item.element.focus();
  });
  menu.items.push(item);
}

export function setMenuItem(item, values) {
  if (values.text === '-' && item.element?.tagName === 'BUTTON') {
    const line = make('hr', '');
    line.setAttribute('role', 'separator');
    item.element.replaceWith(line);
    item.element = line;
  }
  if (!item.element) return;
  item.element.hidden = !values.visible;
  if (item.element.tagName === 'HR' || !values.visible) return;
  item.element.textContent = values.text;
  item.element.disabled = !values.enabled;
  const list = item.holder?.parentElement;
  if (list) item.element.setAttribute('aria-label', values.text);
}

// The menu's own click runs when it opens.
function openMenu(menu) {
  closeMenu();
  send('Click', menu.id);
  if (menu.element.disabled) return;
  open = menu;
  menu.list.hidden = false;
  menu.element.setAttribute('aria-expanded', 'true');
  usable(menu)[0]?.focus();
}

export function closeMenu() {
  if (!open) return;
  open.list.hidden = true;
  open.element.setAttribute('aria-expanded', 'false');
  open = null;
}

const usable = (menu) => menu.items.map((item) => item.element).filter((element) => element.tagName === 'BUTTON' && !element.disabled && !element.hidden);
const tops = (screen) => [...screen.controls.values()].filter((menu) => menu.kind === 'menu' && menu.parent < 0 && menu.element && !menu.element.disabled && !menu.element.hidden);

// Opens the first menu that can be used.
export function openMenus(screen) {
  const first = screen && tops(screen)[0];
  if (first) openMenu(first);
}

// A key that comes to the menus. Whether it was one of theirs.
export function menuKey(screen, event) {
  if (!open) return false;
  const items = usable(open);
  const at = items.indexOf(document.activeElement);
  const all = tops(screen);
  const beside = (step) => all[(all.indexOf(open) + step + all.length) % all.length];
  switch (event.key) {
    case 'ArrowDown':
      items[(at + 1) % items.length]?.focus();
      return true;
    case 'ArrowUp':
      items[(at - 1 + items.length) % items.length]?.focus();
      return true;
    case 'Home':
      items[0]?.focus();
      return true;
    case 'End':
      items.at(-1)?.focus();
      return true;
    case 'ArrowLeft':
      openMenu(beside(-1));
      return true;
    case 'ArrowRight':
      openMenu(beside(1));
      return true;
    case 'Escape':
    case 'Tab':
      closeMenu();
      document.activeElement?.blur();
      return true;
    case 'Enter':
    case ' ':
      if (!event.repeat) document.activeElement?.click();
      return true;
    default: {
      if (event.key.length !== 1) return false;
      const next = [...items.slice(at + 1), ...items].find((item) => item.textContent.startsWith(event.key));
      next?.focus();
      return true;
    }
  }
}

addEventListener('pointerdown', (event) => {
  if (open && !bar.contains(event.target)) closeMenu();
}, true);
