// Saves on their way out of the page and into it.
import { ask, askBytes, askTable, follow } from './game.mjs';
import { makeDialog } from './boxes.mjs';
import { make, makeButton } from './elements.mjs';
import { hand, keep } from './saves.mjs';

const mostBytes = 1 << 20; // of a file that is read; no saves take more

// The dialog of all slots, for which the game stands still.
export function openSlots(pauseFor) {
  const close = () => {
    dialog.close();
    dialog.remove();
    pauseFor('slots', false);
    follow();
  };
  const dialog = makeDialog('page', 'Slots', 'セーブデータ', close);
  dialog.append(document.getElementById('saves').content.cloneNode(true));
  const [list, message, picker] = ['ul', '.message', 'input'].map((path) => dialog.querySelector(path));
  const [all, many, last] = dialog.querySelectorAll('.choices button');
  let slot = ''; // that the file goes to; where it is empty, names tell

  const show = () => {
    list.replaceChildren();
    for (const { name, summary } of askTable('ListSaves')) {
      const row = make('li', '', list, { 'data-name': name });
      make('b', '', row).textContent = name.replace(/\.sav$/i, '');
      make('span', '', row).textContent = summary;
      const write = () => hand(name, askBytes('FileOf', name));
      makeButton('push', row, '書き出す', write, { 'aria-label': `${name}を書き出す` });
      makeButton('push', row, '読み込む', () => pick(name), { 'aria-label': `${name}に読み込む` });
    }
  };
  const pick = (name) => {
    slot = name;
    picker.value = '';
    picker.accept = name ? '.sav' : '.zip,.sav';
    picker.click();
  };
  const take = async (names) => {
    const failure = await keep(names.map((name, i) => [name, askBytes('BroughtSave', i)]));
    if (!failure) ask('TakeBrought');
    message.textContent = failure ? `保存できません：${failure}` : '読み込みました。';
    show();
  };
  picker.addEventListener('change', async () => {
    const [file] = picker.files;
    const bytes = new Uint8Array(await file.slice(0, mostBytes).arrayBuffer());
    const { problem, names } = askTable('Bring', file.name, bytes, bytes.length, slot);
    message.textContent = problem || `${names.join('、')} を置きかえますか？`;
    if (!problem) makeButton('push', message, '置きかえる', () => take(names)).focus();
  });
  all.onclick = () => hand('orvane-saves.zip', askBytes('ArchiveOfSaves'));
  many.onclick = () => pick('');
  last.onclick = close;
  show();
  pauseFor('slots', true);
  dialog.showModal();
}
