/* What a team's page tells of its games: place, record and form, the last games, all rivals, the play-off series. */
'use strict';

{
  const LAST_GAMES = 10;
  const ROUNDS = ['First Round', 'Second Round', 'Conference Final', 'Final'];
  const region = document.getElementById('games');
  const {part} = region.dataset;

  const section = (id, title, ...content) => [make('h2', {id}, title), ...content];

  function scroller(title, table) {
    const box = make('div', {className: 'scroller', tabIndex: 0}, table);
    box.setAttribute('role', 'region');
    box.setAttribute('aria-labelledby', title);
    return box;
  }

  const ordinal = (n) => `${n}${{1: 'st', 2: 'nd', 3: 'rd'}[n % 10 - (n % 100 > 10 && n % 100 < 14 ? 10 : 0)] ?? 'th'}`;

  /** The letters of the last ten games, the newest last, each leading to its game. */
  const formOf = (games, team) => games.slice(-LAST_GAMES).map((game) => {
    const {letter, goals, against, opponent} = resultFor(team, game);
    const link = make('a', {href: siteLink(game.page).href, className: `form ${letter}`}, letter);
    link.title = `${goals}-${against} ${opponent}`;
    return link;
  });

  function standingOf(standing, games, team) {
    const record = part === 'season' ? standing : recordIn(games, team);
    const facts = [make('li', {}, make('b', {}, recordText(record)), ' won, lost, tied')];
    if (part === 'season') {
      facts.unshift(make('li', {}, make('b', {}, ordinal(standing.place)), ` in the ${standing.division} Division`),
        make('li', {}, make('b', {}, ordinal(standing.seed)), ` in the ${standing.conference} Conference`));
      facts.push(make('li', {}, make('b', {}, String(standing['Pts.'])), ' points'));
    }
    const form = make('li', {}, 'Last games ', ...formOf(games, team));
    return make('ul', {className: 'facts'}, ...facts, ...(games.length > 0 ? [form] : []));
  }

  function lastGames(names, games, team) {
    const dated = games.some(({date}) => date);
    const rows = games.slice(-LAST_GAMES).reverse().map((game) => {
      const {letter, goals, against, atHome, opponent} = resultFor(team, game);
      return rowOf(...(dated ? [dateText(game.date)] : []), atHome ? 'vs.' : 'at',
        teamLink(names, opponent, game.part), make('b', {}, `${letter} ${goals}-${against}`),
        make('a', {href: siteLink(game.page).href}, 'Box score'), game.number);
    });
    const more = make('a', {href: siteLink(`Results.htm?team=${team}&part=${part}`).href}, 'All games');
    return section('last-games', 'Last Games', scroller('last-games',
      tableOf([...(dated ? ['Date'] : []), 'Where', 'Opponent', 'Result', 'Game', '#'], rows)),
    make('p', {className: 'see-also'}, more));
  }

  function rivals(names, games, team) {
    const rows = [...names.keys()].filter((rival) => rival !== team).flatMap((rival) => {
      const met = games.filter(playedBy(rival));
      const {W, L, T, goals, against} = recordIn(met, team);
      const link = make('a', {href: siteLink(`Results.htm?team=${team}&against=${rival}`).href}, 'Games');
      return met.length > 0 ? [rowOf(teamLink(names, rival), W, L, T, goals, against, link)] : [];
    });
    return section('rivals', 'Against Each Team', scroller('rivals',
      tableOf(['Team', 'W', 'L', 'T', 'GF', 'GA', 'Games'], rows)));
  }

  function seriesOf(names, series, games, team) {
    const own = series.filter((one) => (one.team === team || one.opponent === team) && one.team && one.opponent);
    const played = own.flatMap((one) => {
      const first = one.team === team;
      const rival = first ? one.opponent : one.team;
      const wins = [one.wins, one['opponent wins']];
      const met = games.filter(playedBy(rival));
      return met.length === 0 ? [] : [make('li', {}, make('b', {}, `${ROUNDS[one.round - 1]}: `),
        teamLink(names, rival, 'playoffs'), ` ${(first ? wins : wins.reverse()).join('-')} `, ...formOf(met, team))];
    });
    return played.length === 0 ? [] : section('series', 'Series', make('ul', {className: 'facts series'}, ...played));
  }

  async function show() {
    const team = new URL(location.href).searchParams.get('team');
    const [allGames, standings, series, names] =
      await Promise.all([dataOf('games'), dataOf('standings'), dataOf('series'), teamNames()]);
    const standing = standings?.find((one) => one.team === team);
    if (!standing || !allGames) {
      return;
    }
    const games = allGames.filter((game) => game.part === part && playedBy(team)(game));
    region.replaceChildren(standingOf(standing, games, team),
      ...(part === 'playoffs' ? seriesOf(names, series ?? [], games, team) : []),
      ...(games.length > 0 ? lastGames(names, games, team) : []));
    if (part === 'season' && games.length > 0) {
      document.getElementById('games-more').replaceChildren(...rivals(names, games, team));
    }
  }

  show().finally(() => region.removeAttribute('aria-busy'));
}
