// Serves folders of this machine to a browser of this machine, as strictly as a portal would: nothing but scripts of its
// own, no eval, and compiled code.
import { createReadStream, statSync } from 'node:fs';
import http from 'node:http';
import { extname, normalize } from 'node:path';

export const POLICY = "default-src 'none'; script-src 'self' 'wasm-unsafe-eval'; style-src 'self'; connect-src 'self'; " +
  "img-src 'self' data:; frame-src 'self'; base-uri 'none'; form-action 'none'";
const TYPES = { '.html': 'text/html; charset=utf-8', '.js': 'text/javascript; charset=utf-8', '.css': 'text/css; charset=utf-8',
  '.wasm': 'application/wasm' };

/**
 * The file that an address names, or nothing; throws where it is none. `folders` are pairs of what a path begins with and
 * where that stands.
 */
function fileOf(address, folders) {
  const clean = normalize(decodeURIComponent(new URL(address, 'http://localhost').pathname));
  const found = folders.find(([start]) => clean.startsWith(start));
  if (found === undefined) return null;
  let file = found[1] + clean.slice(found[0].length);
  if (file.endsWith('/')) file += 'index.html';
  return statSync(file, { throwIfNoEntry: false })?.isFile() ? file : null;
}

/** Resolves when it listens: { origin, close }. Port 0 takes a free one. */
export async function serve(folders, port = 0) {
  const server = http.createServer((request, response) => {
    let file = null;
    try {
      file = fileOf(request.url, folders);
    } catch {
      return void response.writeHead(400).end();
    }
    if (file === null) return void response.writeHead(404).end();
    response.writeHead(200, {
      'content-type': TYPES[extname(file)] ?? 'application/octet-stream',
      'content-security-policy': POLICY,
      'cache-control': 'no-cache',
    });
    createReadStream(file).once('error', () => response.destroy()).pipe(response);
  });
  await new Promise((done, failed) => server.once('error', failed).listen(port, '127.0.0.1', done));
  const close = () => {
    server.closeAllConnections();
    return new Promise((done) => server.close(done));
  };
  return { origin: `http://localhost:${server.address().port}`, close };
}
