// The game's page, used as a player uses it: by the mouse, the keyboard and touch, at what stands on it.
import assert from 'node:assert/strict';

const usualWait = 10000;

export const sleep = (ms) => new Promise((done) => setTimeout(done, ms));

// Asks until the answer is true, or fails with what was waited for.
export async function until(what, ask, limit = usualWait) {
  const begin = Date.now();
  for (;;) {
    const answer = await ask();
    if (answer) return answer;
    assert.ok(Date.now() - begin < limit, `waited ${limit} ms for ${what}`);
    await sleep(20);
  }
}

export class GamePage {
  // Opens the page in a new tab. Errors, requests to other hosts and breaches of the page's own policy are taken
  // down in `problems`.
  static async open(browser, address, { viewport, query = '', before } = {}) {
    const self = new GamePage();
    self.page = await browser.newPage();
    self.problems = [];
    self.address = address;
    self.taps = Boolean(viewport?.hasTouch);
    self.page.on('console', (message) => message.type() === 'error' && self.problems.push(`console: ${message.text()}`));
    self.page.on('pageerror', (error) => self.problems.push(`error: ${error.message}`));
    self.page.on('request', (request) => {
      const other = /^https?:/.test(request.url()) && new URL(request.url()).host !== new URL(address).host;
      if (other) self.problems.push(`request: ${request.url()}`);
    });
    await self.page.evaluateOnNewDocument(() => {
      addEventListener('securitypolicyviolation', (event) => console.error(`policy: ${event.violatedDirective} ${event.blockedURI}`));
    });
    if (viewport) await self.page.setViewport(viewport);
    await before?.(self.page);
    // What browsers of tests say of their languages differs; the game's own is shown unless a test asks for another.
    const language = /language=/.test(query) ? '' : `${query.includes('?') ? '&' : '?'}language=ja`;
    await self.page.goto(address + query + language);
    await self.waitForState('running');
    return self;
  }

  async waitForState(state) {
    await until(`the page to be ${state}`, () => this.page.evaluate((wanted) => document.body?.dataset.state === wanted, state).catch(() => false));
  }

  async reload() {
    await this.page.reload();
    await this.waitForState('running');
  }

  // The element of a control by its name, Battle.List2, or of a screen by its own.
  async find(name) {
    const [screen, control] = name.split('.');
    const path = `section.window[data-name="${screen}"]` + (control ? ` [data-name="${control}"]` : '');
    return until(name, () => this.page.$(path));
  }

  // Whether it is there to be seen.
  async sees(name) {
    const [screen, control] = name.split('.');
    const path = `section.window[data-name="${screen}"]` + (control ? ` [data-name="${control}"]` : '');
    return this.page.evaluate((selector) => {
      const element = document.querySelector(selector);
      return Boolean(element && element.checkVisibility({ visibilityProperty: true }));
    }, path);
  }

  // By a finger where the display takes one, otherwise by the mouse.
  press(element) {
    return this.taps ? element.tap() : element.click();
  }

  async click(name) {
    await this.press(await this.find(name));
  }

  async textOf(name) {
    return (await this.find(name)).evaluate((element) => element.value ?? element.textContent);
  }

  // An item of a menu, opened as with the mouse.
  async clickMenu(menu, item) {
    await this.click(menu);
    await this.click(item);
  }

  // A row of a list, as with the mouse.
  async choose(name, row) {
    const list = await this.find(name);
    if (this.taps) {
      // A list whose rows are small for a finger is enlarged by the first touch, which chooses nothing.
      if (!(await list.evaluate((element) => element.classList.contains('large')))) await list.tap();
      await sleep(500);
    }
    const options = await list.$$('[role=option]');
    assert.ok(options[row], `${name} has no row ${row}`);
    await this.press(options[row]);
  }

  rowsOf(name) {
    return this.find(name).then((list) => list.$$eval('[role=option]', (rows) => rows.map((row) => row.textContent)));
  }

  // The texts of the boxes that stand, the front one last.
  boxes() {
    return this.page.$$eval('dialog[data-name=Box]', (all) => all.map((box) => box.querySelector('p').textContent));
  }

  // Waits for a box and presses its button of that caption. Returns the box's text.
  async answer(caption) {
    const box = await until('a box', async () => (await this.page.$$('dialog[data-name=Box]')).at(-1));
    const text = await box.$eval('p', (element) => element.textContent);
    for (const button of await box.$$('.choices button')) {
      if ((await button.evaluate((element) => element.textContent)) === caption) {
        await this.press(button);
        return text;
      }
    }
    assert.fail(`the box "${text}" has no button ${caption}`);
    return '';
  }

  // The module of the page of that name, as the page itself has loaded it: to look at the game, not to play it.
  moduleOf(name) {
    return this.page.evaluate((wanted) => performance.getEntriesByType('resource').map((entry) => entry.name).find((each) => new URL(each).pathname.split('/').pop().startsWith(`${wanted}-`) && each.endsWith('.mjs')), name);
  }

  // How much of a picture is of the same colours: the sum of its pixels, to tell whether it has changed.
  async sumOf(name) {
    return (await this.find(name)).evaluate((element) => {
      const canvas = element.matches('canvas') ? element : element.querySelector('canvas');
      const { data } = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
      let sum = 0;
      for (let i = 0; i < data.length; i += 4) sum = (Math.imul(sum, 31) + (data[i] << 16) + (data[i + 1] << 8) + data[i + 2]) | 0;
      return sum;
    });
  }

  assertNoProblems() {
    assert.deepEqual(this.problems, []);
  }
}
