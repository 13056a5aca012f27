// The menu bar of a screen and the menus that hang from it.
import { send } from './game.mjs';
import { make, makeButton } from './elements.mjs';

let bar = null; // the one menu bar
let tops = []; // its menus
let open = null; // the menu that is open

export const isMenuOpen = () => open !== null;
export const menuBarHasKeys = () => Boolean(bar?.contains(document.activeElement));

export function makeMenus(menus, parent) {
  bar = make('div', 'menu-bar', parent, { role: 'menubar', 'aria-label': 'メニュー' });
  for (const menu of menus) {
    if (menu.parent < 0) makeTop(menu);
    else makeItem(menu);
  }
  tops = menus.filter((menu) => menu.list);
  bar.addEventListener('focusout', (event) => bar.contains(event.relatedTarget) || closeMenu());
}

const item = ({ name }) => ({ role: 'menuitem', tabindex: -1, 'data-name': name });

function makeTop(menu) {
  const holder = make('div', 'menu', bar, { role: 'none' });
  const turn = () => (open === menu ? closeMenu() : openMenu(menu));
  const hangs = { 'aria-haspopup': 'menu', 'aria-expanded': false };
  menu.element = makeButton('menu-top', holder, '', turn, { ...item(menu), ...hangs });
  menu.list = make('div', 'menu-list', holder, { role: 'menu' });
  menu.element.addEventListener('pointerenter', (event) => {
    if (open && open !== menu && event.pointerType === 'mouse' && !menu.element.disabled) openMenu(menu);
  });
}

function makeItem(control) {
  const { list } = control.owner;
  if (control.isLine) {
    make('hr', '', list);
    return;
  }
  const act = () => {
    leaveMenu();
    send('ClickItem', control.id);
  };
  control.element = makeButton('menu-item', list, '', act, item(control));
  const follow = ({ pointerType }) => pointerType === 'mouse' && control.element.focus();
  control.element.addEventListener('pointerenter', follow);
}

export function setMenuItem({ element }, { text, visible, enabled }) {
  if (!element) return;
  element.hidden = !visible;
  if (!visible) return;
  element.textContent = text;
  element.disabled = !enabled;
}

// The menu's own click runs when it opens.
function openMenu(menu) {
  closeMenu();
  send('Click', menu.id);
  if (menu.element.disabled) return;
  open = menu;
  menu.element.setAttribute('aria-expanded', true);
  usable(menu)[0]?.focus();
}

export function closeMenu() {
  if (!open) return;
  open.element.setAttribute('aria-expanded', false);
  open = null;
}

function leaveMenu() {
  closeMenu();
  document.activeElement?.blur();
}

const usable = (menu) => [...menu.list.querySelectorAll('[role=menuitem]:enabled:not([hidden])')];
const usableTops = () => tops.filter(({ element }) => !element.disabled && !element.hidden);

// Opens the first menu that can be used.
export function openMenus() {
  if (bar?.closest('.active') && usableTops().length) openMenu(usableTops()[0]);
}

// A key that comes to the menus. Whether it was one of theirs.
export function menuKey(event) {
  if (!open) return false;
  const items = usable(open);
  const at = items.indexOf(document.activeElement);
  const beside = (all, i) => all[(i + all.length) % all.length];
  const turn = (step) => openMenu(beside(usableTops(), usableTops().indexOf(open) + step));
  const press = () => event.repeat || document.activeElement?.click();
  const keys = {
    ArrowDown: () => beside(items, at + 1)?.focus(),
    ArrowUp: () => beside(items, at - 1)?.focus(),
    Home: () => items[0]?.focus(),
    End: () => items.at(-1)?.focus(),
    ArrowLeft: () => turn(-1),
    ArrowRight: () => turn(1),
    Escape: leaveMenu,
    Tab: leaveMenu,
    Enter: press,
    ' ': press,
  };
  if (!keys[event.key] && event.key.length !== 1) return false;
  const begins = (item) => item.textContent.startsWith(event.key);
  const follow = () => [...items.slice(at + 1), ...items].find(begins)?.focus();
  (keys[event.key] ?? follow)();
  return true;
}

addEventListener('pointerdown', (event) => open && !bar.contains(event.target) && closeMenu(), true);
