// A host in TypeScript: what the declarations let it do, and what they do not. Compiled and not run.
import { addLanguage, HostError, ready, VrijeKolomElement } from 'brivane-vrije-kolom';
import type { Application, Lening, VrijeKolomItem } from 'brivane-vrije-kolom';

/** Keeps dates as `Date`, and takes the texts that are written. */
class Met {
  #begin: Date | null = null;
  get DatumAanvang(): Date | null {
    return this.#begin;
  }
  set DatumAanvang(dag: string | Date | null) {
    this.#begin = dag === null ? null : new Date(dag);
  }
}
/** Keeps them as texts. */
class Zonder {
  DatumAanvang: string | null = null;
}
export const dates: Pick<VrijeKolomItem, 'DatumAanvang'>[] = [new Met(), new Zonder(), { DatumAanvang: '2031-04-01' }];
// @ts-expect-error a day is no number
export const wrongDate: Pick<VrijeKolomItem, 'DatumAanvang'> = { DatumAanvang: 20310401 };
// @ts-expect-error a property is no method
export const method: Pick<Application, 'Hoofdvenster' | 'Dossier'> = { Hoofdvenster: null, Dossier: () => null };

export async function embed(application: Application, lening: Lening): Promise<string> {
  await ready;
  addLanguage('fy', { Help: 'Help' });
  // @ts-expect-error a text that nobody knows
  addLanguage('fy', { Hulp: 'Help' });
  const editor = document.createElement('vrije-kolom');
  const made: VrijeKolomElement = editor;
  made.addEventListener('refreshtopdisplay', (event) => console.log(event.detail.text.length));
  const hear = (event: CustomEvent<{ text: string }>): void => console.log(event.detail.text);
  const changed = (event: CustomEvent<null>): null => event.detail;
  made.addEventListener('refreshtopdisplay', hear);
  made.removeEventListener('refreshtopdisplay', hear);
  made.removeEventListener('changed', changed, { capture: true });
  made.removeEventListener('iets', () => {});
  // @ts-expect-error a header is no change
  made.removeEventListener('changed', hear);
  made.questionDetails = (title, text) => title + text;
  made.hostFactories = { dossierControle: () => ({ Controleer: () => {} }) };
  const toelichting = document.createElement('vrije-kolom-toelichting');
  toelichting.addEventListener('changed', (event) => {
    const nothing: null = event.detail;
    return nothing;
  });
  const open: boolean = editor.pending;
  // @ts-expect-error it is only read
  editor.pending = !open;
  await toelichting.setApplication(application, lening, 1);
  const result: 'bound' | 'failed' | 'refused' = await editor.setApplication(application, 0, 1);
  const stays: boolean = await editor.validation();
  if (stays) throw new HostError(9, 'Subscript out of range');
  // @ts-expect-error a number of a column is a number
  await editor.setApplication(application, 0, 'een');
  // @ts-expect-error an amount is a number
  const wrong: Partial<VrijeKolomItem> = { Looptijd: 'drie jaar' };
  void wrong;
  return result;
}
