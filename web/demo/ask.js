// A question of the page, in a dialog.

/** Whether the first answer was given. The second one is that of Enter alone and of Escape. */
export async function ask(text, yes = 'Ja', no = 'Nee') {
  const box = document.getElementById('vraag').content.firstElementChild.cloneNode(true);
  box.querySelector('p').textContent = text;
  box.querySelector('[value=ja]').textContent = yes;
  box.querySelector('[value=nee]').textContent = no;
  document.body.append(box);
  box.showModal();
  await new Promise((closed) => box.addEventListener('close', closed));
  box.remove();
  return box.returnValue === 'ja';
}
