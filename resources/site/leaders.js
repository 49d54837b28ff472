/*
 * The rows of the leaders, as tables.js shows them: those of the site's data that the filters ask for, in the order
 * of a column. Equal figures keep the order of the data, so that every table is that of the program's own windows.
 *
 * A table names its data in data-rows, one or two, and in data-first what holds its opening view alone, which is
 * little to load.
 */
'use strict';

const leaderRows = (() => {
  /** What a player gathers game by game, and so has an average of. */
  const GATHERED = new Set(['G', 'A', 'Pts.', 'PP', 'SH', 'SOG', 'PIM', 'SF', 'GA']);

  /** Letters alone, so that a name is found without its accents, too. */
  const plain = (text) => text.normalize('NFD').replace(/\p{M}/gu, '').toLowerCase();

  const isOfPlayers = (table) => table.matches('.players');

  /** The rows of several tables, those of a team together. */
  function byTeam(tables) {
    const teams = new Set(tables[0].map(({team}) => team));
    return [...teams].flatMap((own) => tables.flatMap((rows) => rows.filter(({team}) => team === own)));
  }

  /** The rows of data that count for the table. Of the goalies and skaters of a team the goalies come first. */
  async function loaded(table, names) {
    const data = await Promise.all(names.split(' ').map(dataOf));
    if (data.includes(null)) {
      return null;
    }
    return (data.length > 1 ? byTeam(data) : data[0])
      .filter((row) => table.id === 'stars' ? row['Three Star Pts.'] > 0 : row.GP > 0);
  }

  /** Whom the filters compare with each other, and whom of these they show. */
  const compares = ({position, games}, table) => (row) => row.GP >= Number(games) &&
    (position === '' || table.id === 'goalies' || row.position === position);
  const shows = ({team, name}) => (row) => (team === '' || row.team === team) &&
    (name === '' || plain(row.name).includes(plain(name)));

  function ordered(rows, table, order, figure) {
    const {column, ascending} = orderOf(table, order);
    if (column === 'Team') {
      return ascending ? rows : [...rows].reverse();
    }
    return [...rows].sort((a, b) => (ascending ? 1 : -1) * (figure(a, column) - figure(b, column)));
  }

  /** A column's heading, and how many decimals its figures have. */
  function columnsOf(table, rows, figure, perGame) {
    const heads = states.get(table).columns.slice(isOfPlayers(table) ? 3 : 2).map(({textContent}) => textContent);
    const inText = (value) => /\.(\d+)$/.exec(value)?.[1].length ?? 0;
    return heads.map((name) => ({name, decimals: perGame && GATHERED.has(name) ? 2 :
      Math.max(0, ...rows.map((row) => inText(figure(row, name))))}));
  }

  function teamCell(team, part) {
    const link = make('a', {href: teamAddress(team, part)}, Object.assign(crest(team), {alt: team}));
    link.dataset.team = team;
    return make('td', {}, link);
  }

  const nameCell = ({team, name}, part) => make('td', {}, make('a', {href: playerPage(part, team, name)}, name));

  /** The rows that the table is to show, each a function that makes its cells, or the message in their place. */
  return async (table, order) => {
    const filters = Object.fromEntries(filterFields().map(({name, value}) => [name, value.trim()]));
    const opens = order === table.dataset.order && !states.get(table).all && Object.values(filters).every((value) => !value);
    const first = opens && table.dataset.first ? await loaded(table, table.dataset.first) : null;
    const all = first ?? await loaded(table, table.dataset.rows);
    if (!all?.length) {
      return {message: all ? EMPTY : location.protocol === 'file:' ? NO_SERVER : UNPUBLISHED};
    }
    const perGame = isOfPlayers(table) && filters.per === 'game';
    const figure = (row, name) => perGame && GATHERED.has(name) ? row[name] / row.GP : row[name];
    const compared = isOfPlayers(table) ? all.filter(compares(filters, table)) : all;
    const placed = ordered(compared, table, order, figure).map((row, i) => ({row, place: i + 1}));
    const shown = isOfPlayers(table) ? placed.filter(({row}) => shows(filters)(row)) : placed;
    const part = table.dataset.rows.startsWith('playoff-') ? 'playoffs' : 'season';
    const columns = columnsOf(table, all, figure, perGame);
    const cellsOf = ({row, place}) => make('tr', {}, make('td', {}, make('b', {}, String(place))), teamCell(row.team, part),
      ...(isOfPlayers(table) ? [nameCell(row, part)] : []),
      ...columns.map(({name, decimals}) => make('td', {}, figure(row, name).toFixed(decimals)))).cells;
    return {rows: shown.map((one) => () => [...cellsOf(one)]), isFirstPart: first !== null};
  };
})();
