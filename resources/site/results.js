/*
 * The results, newest first, of the games that the address asks for: of a team, against a rival, of a part of the
 * year. Two teams show how they have fared against each other.
 */
'use strict';

{
  const FIRST_GAMES = 50;
  const fields = [...document.querySelectorAll('.filters select')];
  const region = document.getElementById('results');
  const [count, all] = document.querySelector('.count').children;
  let showsAll = false;

  const asks = () => Object.fromEntries(fields.map(({name, value}) => [name, value]));

  function readAddress() {
    const {searchParams} = new URL(location.href);
    for (const field of fields) {
      const value = searchParams.get(field.name) ?? '';
      field.value = [...field.options].some((option) => option.value === value) ? value : '';
    }
  }

  function takeFields() {
    const address = new URL(location.href);
    for (const {name, value} of fields) {
      address.searchParams[value ? 'set' : 'delete'](name, value);
    }
    history.replaceState(null, '', address);
    showsAll = false;
    show();
  }

  const isAsked = ({team, against, part}) => (game) =>
    (!team || playedBy(team)(game)) && (!against || playedBy(against)(game)) &&
    (!part || (game.part || 'exhibition') === part);

  const sideOf = (names, game, side) => {
    const won = game[`${side} goals`] > game[`${side === 'home' ? 'away' : 'home'} goals`];
    const cell = make('td', {}, teamLink(names, game[side], game.part));
    cell.firstChild.classList.toggle('won', won);
    return [cell, game[`${side} goals`]];
  };

  const gameRow = (names, game, dated) => rowOf(...(dated ? [dateText(game.date)] : []),
    ...sideOf(names, game, 'away'), ...sideOf(names, game, 'home'),
    make('a', {href: siteLink(game.page).href}, 'Box score'), PARTS[game.part], game.number);

  function showMeetings(names, games, {team, against}) {
    const line = document.getElementById('meetings');
    const both = team && against && team !== against && games.length > 0;
    line.hidden = !both;
    if (both) {
      const {W, L, T, goals, against: lost} = recordIn(games, team);
      line.replaceChildren(teamLink(names, team), make('b', {}, `${W} – ${L}`), teamLink(names, against),
        make('span', {}, `${T} tied, goals ${goals} to ${lost}`));
    }
  }

  async function show() {
    const [games, names] = await Promise.all([dataOf('games'), teamNames()]);
    if (!games) {
      region.replaceChildren(noData());
      return;
    }
    const asked = asks();
    const matching = games.filter(isAsked(asked)).reverse();
    const shown = showsAll ? matching : matching.slice(0, FIRST_GAMES);
    const dated = games.some(({date}) => date);
    const table = tableOf([...(dated ? ['Date'] : []), 'Away', 'Goals', 'Home', 'Goals', 'Game', 'Kind', '#'],
      shown.map((game) => gameRow(names, game, dated)));
    region.replaceChildren(shown.length > 0 ? table :
      make('p', {className: 'notice'}, games.length > 0 ? 'There are no such games.' : EMPTY));
    region.removeAttribute('aria-busy');
    count.textContent = `${shown.length} of ${matching.length}`;
    all.hidden = shown.length === matching.length;
    showMeetings(names, matching, asked);
  }

  readAddress();
  fields.forEach((field) => field.addEventListener('change', takeFields));
  all.addEventListener('click', () => {
    showsAll = true;
    show();
    region.focus();
  });
  window.addEventListener('popstate', () => {
    readAddress();
    show();
  });
  show();
}
