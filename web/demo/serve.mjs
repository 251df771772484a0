// serve.mjs [PORT]: shows the page of the demo on this machine, and to nobody else.
import { fileURLToPath } from 'node:url';

import { serve } from './server.mjs';

const top = fileURLToPath(new URL('../..', import.meta.url));
const port = Number(process.argv[2] ?? 8480);
try {
  const { origin } = await serve([['/package/', `${top}build/web/package/`], ['/examples/', `${top}examples/web/`], ['/', `${top}web/demo/`]], port);
  console.log(`The editor is at ${origin}/ (the smallest host at ${origin}/examples/smallest/). Ctrl+C ends it.`);
} catch (error) {
  console.error(`Port ${port} cannot be had (${error.code}): ./run --web PORT takes another one.`);
  process.exit(1);
}
