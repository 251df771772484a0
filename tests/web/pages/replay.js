import { play } from '../replay/session.js';

window.play = play;
window.isReady = true;
