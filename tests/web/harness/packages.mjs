// What the tests use of npm. It is installed below the build tree (scripts/npm-packages), where an import does not look.
import { createRequire } from 'node:module';
import { fileURLToPath } from 'node:url';

export const top = fileURLToPath(new URL('../../..', import.meta.url));
export const built = `${top}build/web/`;
export const npm = `${built}npm/`;

const require = createRequire(npm);
export const puppeteer = require('puppeteer-core');
export const axeScript = require.resolve('axe-core/axe.min.js');
