// Saves on their way out of the page and into it.
import { checkSave, describeSave, putFile } from './game.mjs';
export async function saveAll() {}
export function openSlots() {}
void checkSave, describeSave, putFile;
