// The page without a network, and its next version.
import { tell } from './bar.mjs';
import { make } from './elements.mjs';
import { otherForm } from './sound.mjs';

const workers = navigator.serviceWorker;

// A new version has come whole; it begins when the player says so, or when no tab is open any more.
function offer(worker) {
  tell('新しい版があります。セーブしてから読み込みなおしてください。', '読み込みなおす', () => {
    workers.addEventListener('controllerchange', () => location.reload(), { once: true });
    worker.postMessage('begin');
  });
}

function watch(worker) {
  const look = () => {
    if (worker.state === 'installed' && workers.controller) offer(worker);
    if (worker.state === 'activated') document.body.dataset.offline = 'yes';
  };
  worker?.addEventListener('statechange', look);
  if (worker) look();
}

export async function startOffline() {
  // What installing wants, with its large icons, is read when the game stands.
  make('link', '', document.head, { rel: 'manifest', href: 'manifest.webmanifest' });
  const address = `./sw.js?without=${otherForm}`;
  const registration = await workers?.register(address, { updateViaCache: 'none' }).catch(() => null);
  if (!registration) return;
  for (const worker of [registration.waiting, registration.active, registration.installing]) watch(worker);
  registration.addEventListener('updatefound', () => watch(registration.installing));
}
