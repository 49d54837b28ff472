/*
 * The tables that publishing writes into the folder data, and the pieces of a page that are made of them. rows.js
 * fetches; texts are set as text, never as markup.
 */
'use strict';

/** The site's root, which is where this script is. */
const SITE = new URL('.', document.currentScript.src);

const siteLink = (page) => new URL(page, SITE);

const tables = new Map();

/** The rows of a table of data, each by the names of its columns, or null when they cannot be had. Fetched once. */
function dataOf(name) {
  if (!tables.has(name)) {
    tables.set(name, loadedTable(siteLink(`data/${name}.json`).href));
  }
  return tables.get(name);
}

async function loadedTable(address) {
  const {bytes} = await answerOf(address);
  if (!bytes) {
    return null;
  }
  const {columns, rows} = JSON.parse(new TextDecoder().decode(bytes));
  return rows.map((row) => Object.fromEntries(columns.map((column, i) => [column, row[i]])));
}

/** An element with its properties and its children, of which texts become text. */
function make(tag, properties = {}, ...children) {
  const element = Object.assign(document.createElement(tag), properties);
  element.append(...children);
  return element;
}

/** A small crest; the name beside it says whose. */
const crest = (team) =>
  make('img', {src: siteLink(`LogoMinis/${team}.gif`).href, alt: '', width: 24, height: 24, loading: 'lazy'});

const teamAddress = (team, part = 'season') =>
  siteLink(`${part === 'playoffs' ? 'PlayoffPStats' : 'PStats'}/team.htm?team=${team}`).href;

/** The page of a team of the league; null for the teams of All-Star games. */
const teamPage = (names, team, part) => names.has(team) ? teamAddress(team, part) : null;

/** A team with its crest: its name, or its abbreviation where room is short. */
function teamLink(names, team, part) {
  const page = teamPage(names, team, part);
  const short = make('span', {className: 'short'}, team);
  short.setAttribute('aria-hidden', 'true');
  return make(page ? 'a' : 'span', {className: 'team', ...(page && {href: page})}, crest(team),
    make('span', {className: 'long'}, names.get(team) ?? team), short);
}

/** The names of the league's teams by abbreviation. */
async function teamNames() {
  const standings = await dataOf('standings');
  return new Map(standings?.map(({team, name}) => [team, name]));
}

/** The page of a player; characters that no file name may have are "_" in its name. */
const playerPage = (part, team, name) => siteLink((part === 'playoffs' ? 'PlayoffProfiles/' : 'Profiles/') +
  `${team}/${encodeURIComponent(name.replace(/[/\\:*?"<>|\u0000-\u001f\u007f]/g, '_'))}.htm`).href;

const PARTS = {season: 'Season', playoffs: 'Playoffs', '': 'Exhibition'};

/** How a game ended for one of its teams: W, L or T, the goals of both, and whom it was played against. */
function resultFor(team, game) {
  const atHome = game.home === team;
  const [goals, against] = atHome ? [game['home goals'], game['away goals']] : [game['away goals'], game['home goals']];
  return {letter: goals > against ? 'W' : goals < against ? 'L' : 'T', goals, against, atHome,
    opponent: atHome ? game.away : game.home};
}

const playedBy = (team) => ({home, away}) => home === team || away === team;

/** Games won, lost and tied, and goals, of a team in some games. */
function recordIn(games, team) {
  const record = {W: 0, L: 0, T: 0, goals: 0, against: 0};
  for (const game of games) {
    const {letter, goals, against} = resultFor(team, game);
    ++record[letter];
    record.goals += goals;
    record.against += against;
  }
  return record;
}

const recordText = ({W, L, T}) => `${W}-${L}-${T}`;

/** A row of cells, each a text, a number or an element. */
const rowOf = (...cells) => make('tr', {}, ...cells.map((cell) => cell instanceof HTMLTableCellElement ? cell :
  make('td', typeof cell === 'number' ? {className: 'figure'} : {}, cell)));

/** A table with these heads and rows; a head is aligned as the cells below it. */
function tableOf(heads, rows) {
  const head = make('tr', {}, ...heads.map((text, column) =>
    make('th', {scope: 'col', className: rows[0]?.cells[column].className ?? ''}, text)));
  return make('table', {className: 'figures'}, make('thead', {}, head), make('tbody', {}, ...rows));
}

/** Dates as the visitor's language writes them; "" for a game of which the date is not known. */
const dateText = (date) => date ? new Date(date).toLocaleDateString(undefined, {dateStyle: 'medium'}) : '';

/** What a page says when its data is not there. */
const noData = () => make('p', {className: 'notice'}, location.protocol === 'file:' ? NO_SERVER : UNPUBLISHED);
