import { failAsMismatch, HostError, numberOf } from './errors.js';

/** As in Keuzelijst.cpp. */
const Way = Object.freeze({ clear: 0, addItem: 1, listCount: 2, listIndex: 3, setListIndex: 4, itemData: 5, list: 6, text: 7 });
/** Number and text. */
const SIZE = 16;
const TEXT = 8;

/** The list that a host fills in VulCombo. It is of use until that call returns. */
export class Keuzelijst {
  #machine;
  #memory;
  #number;

  constructor(machine, memory, number) {
    this.#machine = machine;
    this.#memory = memory;
    this.#number = number;
  }

  Clear() {
    this.#ask(Way.clear);
  }
  AddItem(tekst, itemData = 0) {
    if (typeof tekst !== 'string') failAsMismatch();
    this.#ask(Way.addItem, numberOf(itemData), tekst);
  }
  get ListCount() {
    return this.#ask(Way.listCount).number;
  }
  get ListIndex() {
    return this.#ask(Way.listIndex).number;
  }
  set ListIndex(index) {
    this.#ask(Way.setListIndex, numberOf(index));
  }
  ItemData(index) {
    return this.#ask(Way.itemData, numberOf(index)).number;
  }
  List(index) {
    return this.#ask(Way.list, numberOf(index)).text;
  }
  get Text() {
    return this.#ask(Way.text).text;
  }

  #ask(way, number = 0, text = '') {
    const memory = this.#memory;
    return memory.lend(text, (lent) =>
      memory.room(SIZE, (place) => {
        const failed = this.#machine._brivane_list(this.#number, way, number, lent, place);
        const answer = { number: memory.number(place), text: memory.take(memory.whole(place + TEXT)) };
        if (failed) throw new HostError(answer.number, answer.text);
        return answer;
      }),
    );
  }
}
