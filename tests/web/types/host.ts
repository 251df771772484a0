// A host in TypeScript: what the declarations let it do, and what they do not. Compiled and not run.
import { addLanguage, HostError, ready, VrijeKolomElement } from 'brivane-vrije-kolom';
import type { Application, Lening, VrijeKolomItem } from 'brivane-vrije-kolom';

export async function embed(application: Application, lening: Lening): Promise<string> {
  await ready;
  addLanguage('fy', { Help: 'Help' });
  // @ts-expect-error a text that nobody knows
  addLanguage('fy', { Hulp: 'Help' });
  const editor = document.createElement('vrije-kolom');
  const made: VrijeKolomElement = editor;
  made.addEventListener('refreshtopdisplay', (event) => console.log(event.detail.text.length));
  made.questionDetails = (title, text) => title + text;
  made.hostFactories = { dossierControle: () => ({ Controleer: () => {} }) };
  const toelichting = document.createElement('vrije-kolom-toelichting');
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
