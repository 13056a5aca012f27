// The page's own words in the language that is shown, and the choice of it.
import { askTable, askText, follow } from './game.mjs';
import { remember, remembered } from './saves.mjs';

const choice = document.getElementById('language');
const own = new WeakMap(); // of texts and labels, the game's own text and what is shown for it

function say(holder, name) {
  const known = own.get(holder);
  const text = known?.shown === holder[name] ? known.text : holder[name];
  const shown = askText('Shown', text) || text; // a game that has failed says nothing
  own.set(holder, { text, shown });
  if (holder[name] !== shown) holder[name] = shown;
}

// Says all words in a node; the texts of the game itself come as they are shown.
function sayAll(root) {
  const walker = document.createTreeWalker(root, NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_TEXT);
  for (let node = root; node; node = walker.nextNode()) {
    if (node.ariaLabel) say(node, 'ariaLabel');
    if (node.data?.trim() && !node.parentElement?.closest('#desktop, dialog.box')) say(node, 'data');
  }
}

function choose(wishes) {
  choice.value = document.documentElement.lang = askText('ChooseLanguage', wishes);
  sayAll(document.body);
}

// The language that the address asks for, that was chosen before, or that the browser has.
export function startWords(asked) {
  for (const [code, label] of Object.entries(askTable('Languages'))) {
    choice.add(Object.assign(new Option('', code), { label, lang: code }));
  }
  choose(asked ?? remembered('language', navigator.languages.join()));
  choice.onchange = () => {
    remember('language', choice.value);
    choose(choice.value);
    follow();
    choice.blur();
  };
  const sayNew = (records) => records.forEach(({ addedNodes }) => addedNodes.forEach(sayAll));
  new MutationObserver(sayNew).observe(document.body, { childList: true, subtree: true });
}
