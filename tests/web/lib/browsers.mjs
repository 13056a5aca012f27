// The machine's own browsers, without a window.
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import puppeteer from 'puppeteer-core';

const isRoot = process.getuid?.() === 0;
const browsers = {
  chromium: {
    executablePath: '/usr/bin/chromium',
    // A sandbox is not to be had as root; the sound's rule for a first click holds as for a player.
    args: [...(isRoot ? ['--no-sandbox'] : []), '--mute-audio', '--autoplay-policy=user-gesture-required', '--disable-gpu', '--force-color-profile=srgb', '--font-render-hinting=none'],
  },
  firefox: { browser: 'firefox', executablePath: '/usr/bin/firefox-esr', extraPrefsFirefox: { 'media.autoplay.default': 1, 'dom.min_background_timeout_value': 4 } },
};

// A new folder for what a browser keeps.
export function makeProfile() {
  const folder = mkdtempSync(join(tmpdir(), 'orvane-web-'));
  return { folder, remove: () => rmSync(folder, { recursive: true, force: true, maxRetries: 5, retryDelay: 200 }) };
}

// `name` is chromium or firefox; what it keeps goes to the profile's folder, if there is one.
export function launch(name, profile, ...args) {
  const { args: usual = [], ...how } = browsers[name];
  return puppeteer.launch({ headless: true, defaultViewport: { width: 1280, height: 800 }, userDataDir: profile?.folder, protocolTimeout: 120000, ...how, args: [...usual, ...args] });
}

// Ends a browser as a power failure would: nothing of it is asked to end.
export async function kill(browser) {
  const child = browser.process();
  const gone = new Promise((done) => child.once('exit', done));
  child.kill('SIGKILL');
  await gone;
}
