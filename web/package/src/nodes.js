// What shows a control: one class for each kind, below nodes/.

import { Button } from './nodes/button.js';
import { Choice } from './nodes/choice.js';
import { Kind } from './nodes/contract.js';
import { Form } from './nodes/form.js';
import { Frame } from './nodes/frame.js';
import { Hint } from './nodes/hint.js';
import { Label } from './nodes/label.js';
import { List } from './nodes/list.js';
import { ListView } from './nodes/listview.js';
import { Surface } from './nodes/surface.js';
import { TextBox } from './nodes/textbox.js';
import { Toggle } from './nodes/toggle.js';

const classes = new Map([
  [Kind.frame, Frame], [Kind.label, Label], [Kind.textBox, TextBox], [Kind.jaNee, Toggle], [Kind.hint, Hint],
  [Kind.list, List], [Kind.button, Button], [Kind.listView, ListView], [Kind.surface, Surface], [Kind.form, Form],
]);

export function makeNode(view, id, design) {
  if (design.kind === Kind.option) return new Choice(view, id, design, 'radio');
  if (design.kind === Kind.checkBox) return new Choice(view, id, design, 'checkbox');
  return new (classes.get(design.kind))(view, id, design);
}
