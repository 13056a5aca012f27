// A worker that plays some series of saves in the page's game, each up to a cut. Tells how they went.
import assert from 'node:assert/strict';
import { parentPort, workerData } from 'node:worker_threads';
import { after, chance, makeDatabase, slots, text } from './database.mjs';
import { openPage } from './page.mjs';

const { program, first, last } = workerData;
const count = { done: 0, refused: 0, cuts: 0, older: 0, newer: 0, pages: 0 };

// A record as the game comes with, but for what is spare in it.
const spare = { from: 248, to: 270 };
const anyRecord = (fresh, random) => fresh.map((byte, i) => (i >= spare.from && i < spare.to ? random(256) : byte));

class Series {
  constructor(seed, fresh) {
    this.random = chance(seed);
    this.fresh = fresh;
    this.lasting = new Map(slots.filter(() => this.random(4)).map((name) => [name, anyRecord(fresh, this.random)]));
    this.mayHold = new Map(slots.map((name) => [name, new Set([text(this.lasting.get(name))])]));
    this.written = new Set(); // by the game
    this.slot = null; // that is saved into
    this.record = null; // that it is to hold
  }

  // Opens the page on the database, which shows what it holds, and loads a slot.
  async start(world) {
    ++count.pages;
    this.world = world;
    const asked = (name, bytes) => {
      assert.equal(name, this.slot);
      this.record = bytes;
      this.written.add(text(bytes));
    };
    // A save that the game takes for done has come to last before anything of that is shown.
    const told = () => {
      if (this.record && this.page.outcome() === 'done') assert.equal(text(this.lasting.get(this.slot)), text(this.record));
    };
    this.record = null;
    this.page = await openPage(program, world, { asked, told });
    assert.deepEqual(this.page.names(), slots);
    this.loaded = slots[this.random(slots.length)];
    this.page.load(slots.indexOf(this.loaded));
  }

  // Asks for a save; the page has been asked then, and the file is as before.
  ask(slot) {
    const before = text(this.page.file(slot));
    this.slot = slot;
    this.page.askToSave(slots.indexOf(slot));
    assert.ok(this.record, 'the page has been asked to keep it');
    assert.equal(text(this.page.file(slot)), before);
  }

  // Lets so many rounds go by, or fewer if the game knows before how its save has gone. Nothing moves meanwhile.
  async outcome(rounds) {
    for (let round = 0; round < rounds && !this.page.outcome(); ++round) {
      await after(1);
      if (!this.page.outcome()) this.page.click('Save.OKButton');
    }
    return this.page.outcome();
  }

  // A few steps, so that what is saved next is another game.
  async playOn() {
    for (let steps = 1 + this.random(3); steps > 0; --steps) {
      if (!this.page.step(this.random(4))) await this.start(this.world); // a fight: the player opens the page anew
    }
  }

  // Saves once. False when the power has failed.
  async save(rounds) {
    await this.playOn();
    this.record = null;
    this.ask(slots[this.random(slots.length)]);
    const known = this.mayHold.get(this.slot);
    const record = text(this.record);
    const outcome = await this.outcome(rounds);
    if (!outcome) {
      ++count.cuts;
      known.add(record);
      return false;
    }
    ++count[outcome];
    if (outcome === 'done') {
      this.mayHold.set(this.slot, new Set([record]));
      assert.equal(text(this.page.file(this.slot)), record);
      return true;
    }
    assert.ok(this.page.box().includes(`${this.slot}: `), this.page.box());
    this.page.answer(0);
    assert.ok(this.page.hasEnded());
    await this.start(this.world);
    return true;
  }

  async run() {
    await this.start(makeDatabase(this.random, this.lasting));
    const last = this.random(11);
    for (let save = 0; save < 10; ++save) {
      if (!(await this.save(save === last ? this.random(5) : 20))) break;
    }
    this.world.cut();
    for (const [name, known] of this.mayHold) assert.ok(known.has(text(this.lasting.get(name))), `${name} is lost or spoilt`);
    count[text(this.lasting.get(this.slot)) === text(this.record) ? 'newer' : 'older'] += 1;
    await this.visitAgain();
  }

  // The next visit finds what is there, and saves into each slot; each save lasts.
  async visitAgain() {
    await this.start(makeDatabase(this.random, this.lasting, false));
    for (const name of slots) assert.equal(text(this.page.file(name)), text(this.lasting.get(name) ?? this.fresh));
    const wasWritten = this.written.has(text(this.lasting.get(this.loaded)));
    const before = text(this.page.file(this.loaded));
    for (const slot of slots) {
      this.record = null;
      this.ask(slot);
      // What was saved has been read back whole.
      if (wasWritten) assert.equal(text(this.record), before);
      assert.equal(await this.outcome(20), 'done');
    }
    this.world.cut();
    for (const slot of slots) assert.equal(text(this.lasting.get(slot)), text(this.record));
  }
}

const fresh = (await openPage(program, makeDatabase(chance(1), new Map()))).file(slots[0]);
for (let seed = first; seed <= last; ++seed) {
  try {
    await new Series(seed, fresh).run();
  } catch (error) {
    throw new Error(`series ${seed}: ${error.message}`, { cause: error });
  }
}
parentPort.postMessage(count);
