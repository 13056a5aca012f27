// The page without a network, and its next version.
import { tell } from './bar.mjs';
import { otherForm } from './sound.mjs';

// A new version has come whole; it begins when the player says so, or when no tab is open any more.
function offer(worker) {
  const begin = () => {
    navigator.serviceWorker.addEventListener('controllerchange', () => location.reload(), { once: true });
    worker.postMessage('begin');
  };
  tell('新しい版があります。セーブしてから読み込みなおしてください。', '読み込みなおす', begin);
}

// What installing wants, with its large icons, is read when the game stands.
function offerInstalling() {
  const link = document.createElement('link');
  Object.assign(link, { rel: 'manifest', href: 'manifest.webmanifest' });
  document.head.append(link);
}

export async function startOffline() {
  offerInstalling();
  const workers = navigator.serviceWorker;
  const registration = await workers?.register(`./sw.js?without=${otherForm}`, { updateViaCache: 'none' }).catch(() => null);
  if (!registration) return;
  const watch = (worker) => {
    worker?.addEventListener('statechange', () => {
      if (worker.state === 'installed' && workers.controller) offer(worker);
      if (worker.state === 'activated') document.body.dataset.offline = 'yes';
    });
  };
  if (registration.waiting && workers.controller) offer(registration.waiting);
  if (registration.active) document.body.dataset.offline = 'yes';
  watch(registration.installing);
  registration.addEventListener('updatefound', () => watch(registration.installing));
}
