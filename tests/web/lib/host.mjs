// A plain static host on this machine, as anybody's would be: files under a path of their own.
import { readFile } from 'node:fs/promises';
import { createServer } from 'node:http';
import { extname, join } from 'node:path';

const types = {
  '.html': 'text/html; charset=utf-8',
  '.mjs': 'text/javascript',
  '.js': 'text/javascript',
  '.css': 'text/css',
  '.json': 'application/json',
  '.webmanifest': 'application/manifest+json',
  '.wasm': 'application/wasm',
  '.woff2': 'font/woff2',
  '.png': 'image/png',
  '.opus': 'audio/ogg',
  '.mp3': 'audio/mpeg',
  '.txt': 'text/plain; charset=utf-8',
};
const path = '/a/game/';

// Serves a folder until it is closed. `folder` may be changed while it serves; `paths` are those asked for.
export async function host(folder) {
  const self = { folder, paths: [] };
  const server = createServer(async (request, response) => {
    const asked = decodeURIComponent(new URL(request.url, 'http://host').pathname);
    self.paths.push(asked);
    const name = asked === path ? 'index.html' : asked.slice(path.length);
    const inside = asked.startsWith(path) && !name.includes('..');
    const bytes = inside ? await readFile(join(self.folder, name)).catch(() => null) : null;
    response.writeHead(bytes ? 200 : 404, { 'content-type': types[extname(name)] ?? 'application/octet-stream', 'cache-control': 'no-cache' });
    response.end(bytes ?? 'nothing here');
  });
  await new Promise((done) => server.listen(0, '127.0.0.1', done));
  const { port } = server.address();
  const connections = new Set();
  server.on('connection', (socket) => {
    connections.add(socket);
    socket.on('close', () => connections.delete(socket));
  });
  self.address = `http://127.0.0.1:${port}${path}`;
  self.close = () => {
    for (const socket of connections) socket.destroy();
    return new Promise((done) => server.close(done));
  };
  return self;
}
