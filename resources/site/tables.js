/*
 * Fills the tables of the landing pages from the row fragments that Generate Webpages writes, one file for each
 * sort order; rows.js reads those.
 *
 * A table names its fragment in data-fragment: {order} stands for the number of the order, {team} for the team that
 * the address asks for. A head that sorts gives the numbers of its two orders in data-descending and data-ascending;
 * data-order of the table is the order it opens in. The orders chosen stand in the address, each under the id of its
 * table, and so does what the rows are filtered by, so that a link leads to what is on view:
 * LeagueLeaders.htm?players=0&goalies=15&team=BOS&name=smith.
 *
 * Nothing from the address reaches a path, and nothing but the text of the filter the page: an order counts only when
 * a head of the table has it, a team only when the page offers it.
 */
'use strict';

const NO_MATCH = 'No player matches the team and the name above.';

/** So many rows are shown until a visitor asks for all. */
const FIRST_ROWS = 50;

const narrow = matchMedia('(max-width: 720px)');
const page = {
  tables: [...document.querySelectorAll('table[data-fragment]')],
  filters: document.querySelector('.filters'),
  /** The team links of a page of one team, by abbreviation; empty on every other page. */
  teams: new Map([...document.querySelectorAll('.team-strip a')].map((link) =>
    [new URL(link.href).searchParams.get('team'), link])),
};

const heads = (table) => [...table.querySelectorAll('th[data-descending], th[data-ascending]')];

/** What is known of each table: its heads in the order of the fragments' columns, and the rows that have come. */
const states = new Map(page.tables.map((table) => [table, {columns: [...table.tHead?.rows[0].cells ?? []]}]));

const asked = () => new URL(location.href).searchParams;

function chosenOrder(table) {
  const order = asked().get(table.id);
  const known = heads(table).some(({dataset}) => order !== null &&
    (dataset.descending === order || dataset.ascending === order));
  return known ? order : table.dataset.order;
}

/** The order that a click on `head` leads to: its opening order, or the other way round when it is on view. */
function nextOrder(head, shown) {
  const {descending, ascending} = head.dataset;
  const opening = 'ascendingFirst' in head.dataset ? ascending : descending;
  const turned = opening === descending ? ascending : descending;
  return shown === opening && turned !== undefined ? turned : opening;
}

/* Heads */

function showHeads(table, shown) {
  for (const head of heads(table)) {
    const {descending, ascending} = head.dataset;
    const direction = shown === descending ? 'descending' : shown === ascending ? 'ascending' : null;
    head.toggleAttribute('aria-sort', direction !== null);
    if (direction) {
      head.setAttribute('aria-sort', direction);
    }
    const address = new URL(location.href);
    address.searchParams.set(table.id, nextOrder(head, shown));
    address.hash = table.id;
    head.firstElementChild.href = address;
  }
}

function makeSortable(head) {
  const link = document.createElement('a');
  link.append(...head.childNodes);
  head.append(link);
  link.addEventListener('click', async (click) => {
    if (click.ctrlKey || click.metaKey || click.shiftKey) {
      return;
    }
    click.preventDefault();
    history.pushState(null, '', link.href);
    await showTables();
    head.closest('.scroller').scrollTo(0, 0);
  });
}

/** The columns from left to right: on a telephone the sorted one comes right after the name. */
function columnsOnView({columns}) {
  const name = columns.findIndex((head) => head.matches('.name, [data-ascending-first]'));
  const sorted = columns.findIndex((head) => head.ariaSort !== null);
  const inPlace = columns.map((_, column) => column);
  if (!narrow.matches || name < 0 || sorted <= name) {
    return inPlace;
  }
  return [...inPlace.slice(0, name + 1), sorted, ...inPlace.slice(name + 1).filter((column) => column !== sorted)];
}

/** Puts the cells of a row in the order of `columns`, with the focus where it was. */
function arrange(row, cells, columns) {
  const arranged = columns.flatMap((column) => cells[column] ?? []);
  if (arranged.every((cell, i) => cell === row.cells[i])) {
    return;
  }
  const focused = row.contains(document.activeElement) ? document.activeElement : null;
  row.append(...arranged);
  focused?.focus({preventScroll: true});
}

/* Rows */

/** Letters alone, so that a name is found without its accents, too. */
const plain = (text) => text.normalize('NFD').replace(/\p{M}/gu, '').toLowerCase();

function matchingRows({rows, columns}) {
  const name = columns.findIndex((head) => head.matches('.name'));
  if (!page.filters || name < 0) {
    return rows;
  }
  const [team, part] = filterFields().map(({value}) => value);
  const wanted = plain(part.trim());
  return rows.filter(({team: own, cells}) => (team === '' || own === team) &&
    (wanted === '' || plain(cells[name].textContent).includes(wanted)));
}

function messageRow({columns}, message) {
  const row = document.createElement('tr');
  const cell = row.insertCell();
  cell.colSpan = columns.length || 2;
  cell.className = 'message';
  cell.append(document.createElement('span'));
  cell.firstChild.textContent = message;
  return row;
}

/** Loads what the table is to show, unless it has it, and shows it; done when the rows are there. */
async function showRows(table, team, order) {
  const path = table.dataset.fragment.replace('{team}', team).replace('{order}', order);
  const address = new URL(path, location.href).href;
  const state = states.get(table);
  if (state.address !== address) {
    Object.assign(state, {address, rows: null, message: null});
    table.setAttribute('aria-busy', 'true');
    const {rows, message} = await loadedRows(address);
    if (state.address !== address) {
      return;
    }
    rows?.forEach(nameTeam);
    rows?.forEach((row) => linkNames(table, row, team));
    if (rows && order) {
      alignFigures(rows);
    }
    state.rows = rows?.map((row) => ({row, cells: [...row.cells], team: teamOf(row)}));
    state.message = message;
    state.address = message === UNREACHABLE ? null : address;
  }
  if (state.rows || state.message) {
    await drawRows(table, state);
  }
}

/** Leads a player's name to his page, and a team of the leaders to its own, unless the row does so. */
function linkNames(table, row, team) {
  const part = table.dataset.fragment.startsWith('./Playoff') || location.pathname.includes('/PlayoffPStats/') ?
    'playoffs' : 'season';
  if (table.matches('.players')) {
    linkPlayer(row.cells[2], part, teamOf(row));
  } else if (table.matches('.team-leaders') && row.cells[0].matches('td')) {
    linkPlayer(row.cells[0], part, team);
  } else if (table.matches('.leaders')) {
    const logo = row.querySelector('img');
    const link = make('a', {href: siteLink(`${part === 'playoffs' ? 'Playoff' : ''}PStats/team.htm?team=${logo.alt}`).href});
    link.dataset.team = logo.alt;
    delete logo.parentElement.dataset.team;
    logo.replaceWith(link);
    link.append(logo);
  }
}

function linkPlayer(cell, part, team) {
  const name = cell?.querySelector('center') ?? cell;
  if (name && !name.firstElementChild) {
    name.replaceChildren(make('a', {href: playerPage(part, team, name.textContent.trim())}, name.textContent.trim()));
  }
}

/** Resolves when its caller may draw: one part of one table in each frame. */
const turn = () => {
  lastTurn = lastTurn.then(() => new Promise((done) => {
    requestAnimationFrame(() => setTimeout(done));
  }));
  return lastTurn;
};
let lastTurn = Promise.resolve();

/** Draws the rows that match, the first of them or all. A later drawing of the same table ends this one. */
async function drawRows(table, state) {
  const drawing = state.drawing = {};
  table.setAttribute('aria-busy', 'true');
  const columns = columnsOnView(state);
  const matching = state.rows ? matchingRows(state) : [];
  const shown = table.matches('.leaders') && !state.all ? matching.slice(0, FIRST_ROWS) : matching;
  for (let i = 0; i === 0 || i < shown.length; i += ROWS_AT_A_TIME) {
    await turn();
    if (state.drawing !== drawing) {
      return;
    }
    const part = shown.slice(i, i + ROWS_AT_A_TIME);
    part.forEach(({row, cells}) => arrange(row, cells, columns));
    const rows = shown.length > 0 ? part.map(({row}) => row) : [messageRow(state, state.message ?? NO_MATCH)];
    if (i > 0) {
      table.tBodies[0].append(...rows);
      continue;
    }
    if (state.columns.length > 0) {
      arrange(table.tHead.rows[0], state.columns, columns);
    }
    table.tBodies[0].replaceChildren(...rows);
    showCount(table, shown.length, matching.length);
  }
  table.removeAttribute('aria-busy');
}

const countOf = (table) => document.querySelector(`[data-count="${table.id}"]`);

function showCount(table, shown, matching) {
  const count = countOf(table);
  if (count) {
    const [text, all] = count.children;
    text.textContent = shown === 0 ? '' : `${shown} of ${matching}`;
    all.hidden = shown === matching;
  }
}

async function showAll(table) {
  const state = states.get(table);
  state.all = true;
  await drawRows(table, state);
  table.closest('.scroller').focus();
}

/* The filters: a team and a part of a name */

const filterFields = () => [...page.filters.querySelectorAll('select, input')];

function readFilters() {
  for (const field of filterFields()) {
    const value = asked().get(field.name) ?? '';
    const known = !field.options || [...field.options].some((option) => option.value === value);
    field.value = known ? value : '';
  }
}

function takeFilters() {
  const address = new URL(location.href);
  for (const {name, value} of filterFields()) {
    if (value.trim()) {
      address.searchParams.set(name, value.trim());
    } else {
      address.searchParams.delete(name);
    }
  }
  address.hash = '';
  history.replaceState(null, '', address);
  showTables();
}

/* The page of one team, notes, and what starts it all */

/** Shows the team that the address asks for, or says what is missing; false when there is none to show. */
function showTeam(abbreviation) {
  const link = page.teams.get(abbreviation);
  const note = document.getElementById('no-team');
  note.textContent = abbreviation === null ? 'Choose a team above.' :
    'This league has no such team: choose one of the 24 above.';
  note.hidden = link !== undefined;
  document.getElementById('team').hidden = link === undefined;
  if (link === undefined) {
    return false;
  }
  link.setAttribute('aria-current', 'page');
  const name = link.firstElementChild.alt;
  document.getElementById('team-name').alt = name;
  document.title = `${document.title.split(': ')[0]}: ${name}`;
  for (const part of document.querySelectorAll('[data-team-src], [data-team-href]')) {
    const {teamSrc, teamHref} = part.dataset;
    part.setAttribute(teamSrc ? 'src' : 'href', (teamSrc ?? teamHref).replace('{team}', abbreviation));
  }
  return true;
}

/** Shows every table as the address asks for; done when all rows have come. */
async function showTables() {
  const team = asked().get('team');
  if (page.teams.size > 0 && !showTeam(team)) {
    return;
  }
  await Promise.all(page.tables.map((table) => {
    const order = chosenOrder(table);
    showHeads(table, order);
    return showRows(table, team, order);
  }));
}

/** Shows a note that says what is missing when the page that its links need has not been written yet. */
async function showNote(note) {
  const answer = await fetch(note.dataset.needs, {method: 'HEAD'}).catch(() => null);
  note.hidden = answer?.status !== 404;
}

page.tables.flatMap(heads).forEach(makeSortable);
page.tables.forEach((table) => countOf(table)?.querySelector('button').addEventListener('click', () => showAll(table)));
if (page.filters) {
  readFilters();
  page.filters.addEventListener('input', takeFilters);
}
showTables().then(() => document.getElementById(location.hash.slice(1))?.scrollIntoView());
window.addEventListener('popstate', () => {
  if (page.filters) {
    readFilters();
  }
  showTables();
});
narrow.addEventListener('change', showTables);
if (location.protocol !== 'file:') {
  document.querySelectorAll('[data-needs]').forEach(showNote);
}
