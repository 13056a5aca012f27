// Saves on their way out of the page and into it.
import { checkSave, fileOf, follow, listSaves, putFile } from './game.mjs';
import { make } from './controls.mjs';
import { makeDialog } from './windows.mjs';
import { replace } from './saves.mjs';
import { readZip, writeZip } from './zip.mjs';

function hand(name, bytes) {
  const link = make('a', '');
  link.href = URL.createObjectURL(new Blob([bytes]));
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60000);
}

// All slots as one archive; given as pairs of a name and bytes.
export const saveAll = (files) => hand('orvane-saves.zip', writeZip([...files].filter(([name]) => name.endsWith('.sav'))));

// What a player has brought, as pairs of a name and bytes, or the sentence that says why it cannot be taken.
async function read(file) {
  const bytes = new Uint8Array(await file.arrayBuffer());
  const isArchive = bytes[0] === 0x50 && bytes[1] === 0x4b;
  const entries = isArchive ? await readZip(bytes) : [[file.name, bytes]];
  if (!entries) return `${file.name}：ファイルが壊れています。`;
  const saves = entries.map(([name, content]) => [name.split('/').at(-1), content]).filter(([name]) => !isArchive || /\.sav$/i.test(name));
  if (!saves.length) return `${file.name}：セーブデータが入っていません。`;
  for (const [name, content] of saves) {
    const problem = checkSave(content);
    if (problem) return `${name}：${problem}`;
  }
  return saves;
}

function button(parent, caption, label, act) {
  const element = make('button', 'push', parent);
  element.type = 'button';
  element.textContent = caption;
  if (label) element.setAttribute('aria-label', label);
  element.addEventListener('click', act);
  return element;
}

// The dialog of all slots, for which the game stands still.
export function openSlots(pauseFor) {
  const close = () => {
    dialog.close();
    dialog.remove();
    pauseFor('slots', false);
    follow();
  };
  const dialog = makeDialog('page', 'セーブデータ', close);
  dialog.dataset.name = 'Slots';
  make('p', '', dialog).textContent = 'ファイルに書き出したデータは、ほかのブラウザやパソコンのOrvaneでも読み込めます。';
  const list = make('ul', 'slots', dialog);
  const message = make('p', 'message', dialog);
  message.setAttribute('role', 'alert');
  const picker = make('input', 'unseen', dialog);
  Object.assign(picker, { type: 'file', tabIndex: -1 });
  picker.setAttribute('aria-label', '読み込むファイル');
  let wanted = null; // the slot that the file goes to, or null where its own name says

  const show = () => {
    list.replaceChildren();
    for (const { name, summary } of listSaves()) {
      const row = make('li', '', list);
      row.dataset.name = name;
      make('b', '', row).textContent = name.replace(/\.sav$/i, '');
      make('span', '', row).textContent = summary;
      button(row, '書き出す', `${name}を書き出す`, () => hand(name, fileOf(name)));
      button(row, '読み込む', `${name}に読み込む`, () => pick(name));
    }
  };
  const pick = (name) => {
    wanted = name;
    picker.value = '';
    picker.accept = name ? '.sav' : '.zip,.sav';
    picker.click();
  };
  const take = async (saves) => {
    try {
      await replace(saves);
      for (const [name, bytes] of saves) putFile(name, bytes);
      message.textContent = '読み込みました。';
    } catch (error) {
      message.textContent = `保存できません：${error.message}`;
    }
    show();
  };
  picker.addEventListener('change', async () => {
    const saves = await read(picker.files[0]);
    message.textContent = '';
    if (typeof saves === 'string') {
      message.textContent = saves;
      return;
    }
    if (wanted && saves.length > 1) {
      message.textContent = 'ひとつのセーブデータを選んでください。';
      return;
    }
    const targets = wanted ? [[wanted, saves[0][1]]] : saves;
    message.textContent = `${targets.map(([name]) => name).join('、')} を置きかえますか？`;
    button(message, '置きかえる', '', () => take(targets)).focus();
  });
  const choices = make('div', 'choices', dialog);
  button(choices, 'すべて書き出す', '', () => saveAll(listSaves().map(({ name }) => [name, fileOf(name)])));
  button(choices, 'まとめて読み込む', '', () => pick(null));
  const last = button(choices, '閉じる', '', close);
  show();
  pauseFor('slots', true);
  dialog.showModal();
  last.focus();
  dialog.style.left = `${(innerWidth - dialog.offsetWidth) / 2}px`;
  dialog.style.top = `${(innerHeight - dialog.offsetHeight) / 2}px`;
}
