// Keeps exactly this version's files, all of them or none, so that the game starts without a network.
const version = 'VERSION';
const files = ['FILES'];

const scope = new URL('./', location.href);
const prefix = `orvane ${scope.pathname} `;
const own = prefix + version;
const unwanted = new URL(location.href).searchParams.get('without'); // the sounds' other form
const hasHash = (url) => /-[0-9a-f]{10}\.\w+$/.test(url);

// What an older version has kept under the same hash need not be fetched again.
async function take(cache, file) {
  const url = new URL(file, scope).href;
  const known = hasHash(url) && (await caches.match(url));
  if (known) await cache.put(url, known);
  else await cache.add(new Request(url, { cache: hasHash(url) ? 'default' : 'reload' }));
}

async function keepAll() {
  const cache = await caches.open(own);
  try {
    for (const file of files) if (!unwanted || !file.endsWith(unwanted)) await take(cache, file);
  } catch (error) {
    await caches.delete(own);
    throw error;
  }
}

async function forgetOthers() {
  for (const name of await caches.keys()) if (name.startsWith(prefix) && name !== own) await caches.delete(name);
  await clients.claim();
}

async function answer(request) {
  const url = request.mode === 'navigate' ? new URL('index.html', scope).href : request.url;
  const cache = await caches.open(own);
  return (await cache.match(url, { ignoreSearch: true })) ?? fetch(request);
}

addEventListener('install', (event) => event.waitUntil(keepAll()));
addEventListener('activate', (event) => event.waitUntil(forgetOthers()));
addEventListener('message', (event) => event.data === 'begin' && skipWaiting());
addEventListener('fetch', (event) => {
  const { request } = event;
  if (request.method === 'GET' && request.url.startsWith(scope.href)) event.respondWith(answer(request));
});
