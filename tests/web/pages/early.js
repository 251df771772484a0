// A page that sets up its elements before the module that defines them has run.
import { makeHost } from './host.js';

const find = (id) => (window[id] = document.getElementById(id));
const [vroeg, fout, losgelaten] = ['vroeg', 'fout', 'losgelaten'].map(find);
const { application } = makeHost([{ Id: 1, Omschrijving: 'Een', DatumAanvang: '2031-04-01' }]);
window.traced = [];

vroeg.backColor = 0x2040ff;
vroeg.beeindigenZichtbaar = true;
vroeg.questionDetails = (title, text) => title + text;
vroeg.hostFactories = {
  procedureTrace: (control) => {
    window.traced.push(control);
    return { EnterProcedure() {}, LeaveProcedure() {}, ErrorInProcedure() {} };
  },
};
fout.backColor = 'rood';

const { ready } = await import('/package/src/index.js');
losgelaten.setApplication(application, 0, 1);
await losgelaten.unbind();
await ready;
await vroeg.setApplication(application, 0, 1);
await fout.setApplication(application, 0, 1);
window.isReady = true;
