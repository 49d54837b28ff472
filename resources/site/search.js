/* The search in the bar of the landing pages: players, teams and coaches by any part of their names. */
'use strict';

{
  const MOST_FOUND = 12;
  const field = document.querySelector('.search input');
  const list = document.getElementById('found');
  const said = document.getElementById('found-count');

  const plainText = (text) => text.normalize('NFD').replace(/\p{M}/gu, '').replace(/_/g, ' ').toLowerCase();

  /** Names that begin with the text come first, then those in which a word does, then the others. */
  function rank(name, wanted) {
    const at = name.indexOf(wanted);
    return at <= 0 ? at : name[at - 1] === ' ' ? 1 : 2;
  }

  async function found(wanted) {
    const index = await dataOf('search') ?? [];
    return index.map((entry) => ({...entry, rank: rank(plainText(entry.name), wanted)}))
      .filter((entry) => entry.rank >= 0)
      .sort((a, b) => a.rank - b.rank || a.name.localeCompare(b.name));
  }

  const entryOf = ({name, kind, team, page}) => make('li', {}, make('a', {href: siteLink(page).href},
    ...(team ? [crest(team)] : []), make('span', {}, name.replaceAll('_', ' ')),
    make('small', {}, kind === 'player' ? team : kind)));

  async function show() {
    const wanted = plainText(field.value.trim());
    const entries = wanted === '' ? [] : await found(wanted);
    if (wanted !== plainText(field.value.trim())) {
      return;
    }
    list.replaceChildren(...entries.slice(0, MOST_FOUND).map(entryOf));
    list.hidden = entries.length === 0;
    said.textContent = wanted === '' ? '' : entries.length === 0 ? 'No such name' : `${entries.length} found`;
  }

  function close() {
    list.hidden = true;
    said.textContent = '';
  }

  /** The arrow keys lead from the field into the list and along it. */
  function step(key) {
    const links = [...list.querySelectorAll('a')];
    const place = links.indexOf(document.activeElement) + {ArrowDown: 1, ArrowUp: -1}[key];
    (links[place] ?? (place < 0 ? field : document.activeElement)).focus();
  }

  field.addEventListener('focus', () => dataOf('search'), {once: true});
  field.addEventListener('input', show);
  field.closest('.search').addEventListener('keydown', (press) => {
    if (press.key === 'Escape') {
      field.focus();
      close();
    } else if (press.key === 'Enter' && press.target === field) {
      list.querySelector('a')?.click();
    } else if (!list.hidden && ['ArrowDown', 'ArrowUp'].includes(press.key)) {
      press.preventDefault();
      step(press.key);
    }
  });
  document.addEventListener('click', ({target}) => {
    if (!target.closest('.search')) {
      close();
    }
  });
}
