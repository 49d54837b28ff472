/*
 * Fills the tables of the landing pages: the leaders from the site's data (leaders.js), and those of a team from the
 * row fragments that Generate Webpages writes, one file for each sort order (rows.js).
 *
 * A table names its fragment in data-fragment: {order} stands for the number of the order, {team} for the team that
 * the address asks for. A head that sorts gives the numbers of its two orders in data-descending and data-ascending;
 * data-order of the table is the order it opens in. The orders chosen are in the address, each under the id of its
 * table, and so is what the rows are filtered by, so that a link leads to what is on view:
 * LeagueLeaders.htm?players=0&goalies=15&team=BOS&name=smith.
 *
 * Nothing from the address reaches a path, and nothing but the text of the filter the page: an order counts only when
 * a head of the table has it, a team only when the page offers it.
 */
'use strict';

const NO_MATCH = 'No player matches what is asked for above.';

/** So many rows are shown until a visitor asks for all. */
const FIRST_ROWS = 50;

const narrow = matchMedia('(max-width: 720px)');
const page = {
  tables: [...document.querySelectorAll('table:is([data-fragment], [data-rows])')],
  filters: document.getElementById('filters'),
  /** The team links of a page of one team, by abbreviation; empty on every other page. */
  teams: new Map([...document.querySelectorAll('.team-strip a')].map((link) =>
    [new URL(link.href).searchParams.get('team'), link])),
};

const heads = (table) => [...table.querySelectorAll('th[data-descending], th[data-ascending]')];

/** What is known of each table: its heads from left to right as the page has them, and the rows that have come. */
const states = new Map(page.tables.map((table) =>
  [table, {columns: [...table.tHead?.rows[0].cells ?? []], isNear: !table.dataset.rows}]));

const asked = () => new URL(location.href).searchParams;

function chosenOrder(table) {
  const order = asked().get(table.id);
  const known = heads(table).some(({dataset}) => order !== null &&
    (dataset.descending === order || dataset.ascending === order));
  return known ? order : table.dataset.order;
}

/** The column that an order is by, and whether it has the lowest first. */
function orderOf(table, order) {
  const head = heads(table).find(({dataset}) => order === dataset.descending || order === dataset.ascending);
  return {column: head.textContent, ascending: order === head.dataset.ascending};
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

/** The row of `cells`, put in the order of `columns`, with the focus where it was. */
function arranged(cells, columns) {
  const row = cells[0].parentElement;
  const inOrder = columns.flatMap((column) => cells[column] ?? []);
  if (inOrder.some((cell, i) => cell !== row.cells[i])) {
    const focused = row.contains(document.activeElement) ? document.activeElement : null;
    row.append(...inOrder);
    focused?.focus({preventScroll: true});
  }
  return row;
}

/* Rows */

function messageRow({columns}, message) {
  const row = document.createElement('tr');
  const cell = row.insertCell();
  cell.colSpan = columns.length || 2;
  cell.className = 'message';
  cell.append(document.createElement('span'));
  cell.firstChild.textContent = message;
  return row;
}

/** Loads what the table is to show and shows it; done when the rows are there. A later call ends this one. */
async function showRows(table, team, order) {
  const state = states.get(table);
  const wanted = state.wanted = {};
  table.setAttribute('aria-busy', 'true');
  const content = await (table.dataset.rows ? leaderRows(table, order) : fragmentRows(table, team, order));
  if (state.wanted === wanted) {
    await drawRows(table, Object.assign(state, {rows: [], message: null, isFirstPart: false}, content));
  }
}

const fragments = new Map();

/** The rows of the fragment that the table names, each a function that gives its cells, or the message in their place. */
async function fragmentRows(table, team, order) {
  const path = table.dataset.fragment.replace('{team}', team).replace('{order}', order);
  const address = new URL(path, location.href).href;
  if (!fragments.has(address)) {
    fragments.set(address, loadedRows(address).then(({rows, message}) => {
      rows?.forEach((row) => linkNames(table, row, team));
      if (rows && order) {
        alignFigures(rows);
      }
      return message ? {message} : {rows: rows.map(({cells}) => [...cells]).map((cells) => () => cells)};
    }));
  }
  const content = await fragments.get(address);
  if (content.message === UNREACHABLE) {
    fragments.delete(address);
  }
  return content;
}

/** Leads the name of a team's leader to his page. */
function linkNames(table, row, team) {
  const part = location.pathname.includes('/PlayoffPStats/') ? 'playoffs' : 'season';
  const [name] = row.cells;
  if (table.matches('.team-leaders') && name.matches('td') && !name.firstElementChild) {
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

/** Draws the rows, the first of them or all. */
async function drawRows(table, state) {
  const {wanted, rows} = state;
  const columns = columnsOnView(state);
  const shown = table.matches('.leaders') && !state.all ? rows.slice(0, FIRST_ROWS) : rows;
  for (let i = 0; i === 0 || i < shown.length; i += ROWS_AT_A_TIME) {
    await turn();
    if (state.wanted !== wanted) {
      return;
    }
    const part = shown.slice(i, i + ROWS_AT_A_TIME).map((cells) => arranged(cells(), columns));
    if (i > 0) {
      table.tBodies[0].append(...part);
      continue;
    }
    if (state.columns.length > 0) {
      arranged(state.columns, columns);
    }
    table.tBodies[0].replaceChildren(...shown.length > 0 ? part : [messageRow(state, state.message ?? NO_MATCH)]);
    showCount(table, state, shown.length);
  }
  table.removeAttribute('aria-busy');
}

const countOf = (table) => document.querySelector(`[data-count="${table.id}"]`);

function showCount(table, {rows, isFirstPart}, shown) {
  const count = countOf(table);
  if (count) {
    const [text, all] = count.children;
    text.textContent = shown === 0 ? '' : isFirstPart ? `The first ${shown}` : `${shown} of ${rows.length}`;
    all.hidden = shown === rows.length && !isFirstPart;
  }
}

async function showAll(table) {
  states.get(table).all = true;
  await showTable(table);
  table.closest('.scroller').focus();
}

/* The filters */

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
  page.tables.forEach((table) => showHeads(table, chosenOrder(table)));
  await Promise.all(page.tables.filter((table) => states.get(table).isNear).map(showTable));
}

const showTable = (table) => showRows(table, asked().get('team'), chosenOrder(table));

/** Shows the leaders' tables when they come near the window, so that what nobody looks at is not loaded. */
function watch(tables) {
  const near = new IntersectionObserver((entries) => {
    entries.filter(({isIntersecting}) => isIntersecting).forEach(({target}) => showNear(target));
  }, {rootMargin: '25%'});
  tables.forEach((table) => near.observe(table));
  window.addEventListener('beforeprint', () => tables.forEach(showNear));
}

function showNear(table) {
  const state = states.get(table);
  if (!state.isNear) {
    state.isNear = true;
    showTable(table);
  }
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
watch(page.tables.filter((table) => table.dataset.rows));
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
