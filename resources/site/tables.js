/*
 * Fills the tables of the landing pages from the row fragments that Generate Webpages writes, one file for each
 * sort order.
 *
 * A table names its fragment in data-fragment: {order} stands for the number of the order, {team} for the team that
 * the address asks for. A head that sorts gives the numbers of its two orders in data-descending and data-ascending;
 * data-order of the table is the order it opens in. The orders chosen stand in the address, each under the id of its
 * table, so that a link leads to them: LeagueLeaders.htm?players=0&goalies=15.
 *
 * Nothing from the address reaches the page or a path: an order counts only when a head of the table has it, a team
 * only when the page has a link for it.
 */
'use strict';

const UNPUBLISHED = 'Nothing has been published yet: these rows appear as soon as the league\'s webpages have been ' +
  'generated.';
const EMPTY = 'No games have been played yet.';
const NO_SERVER = 'A browser fills these tables only on a site that a web server delivers. Open the league\'s site ' +
  'on the web, or use “Preview Site”.';
const UNREACHABLE = 'These rows could not be loaded. Please try again in a moment.';

const tables = [...document.querySelectorAll('table[data-fragment]')];
const heads = (table) => [...table.querySelectorAll('th[data-descending], th[data-ascending]')];

/** The team links of a page of one team, by abbreviation; empty on every other page. */
const teams = new Map([...document.querySelectorAll('#teams a')].map((link) =>
  [new URL(link.href).searchParams.get('team'), link]));

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

/** The text of a fragment: UTF-8 or, where it is none, the 8-bit text of older Windows rosters. */
function decoded(bytes) {
  try {
    return new TextDecoder('utf-8', {fatal: true}).decode(bytes);
  } catch {
    return new TextDecoder('windows-1252').decode(bytes);
  }
}

/** The rows of the fragment at `address` or, when there are none to show, the message that says why. */
async function loadedRows(address) {
  if (location.protocol === 'file:') {
    return {message: NO_SERVER};
  }
  const answer = await fetch(address).catch(() => null);
  if (!answer?.ok) {
    return {message: answer?.status === 404 ? UNPUBLISHED : UNREACHABLE};
  }
  const template = document.createElement('template');
  template.innerHTML = `<table><tbody>${decoded(await answer.arrayBuffer())}</tbody></table>`;
  const rows = [...template.content.querySelectorAll('tr')];
  rows.forEach((row) => completeRow(row, address));
  return rows.length > 0 ? {rows} : {message: EMPTY};
}

/** Leads the links and pictures of a row, which are relative to its fragment, and names the team of its logo. */
function completeRow(row, fragment) {
  for (const link of row.querySelectorAll('a[href]')) {
    link.href = new URL(link.getAttribute('href'), fragment);
  }
  for (const picture of row.querySelectorAll('img[src]')) {
    picture.src = new URL(picture.getAttribute('src'), fragment);
    picture.alt = picture.src.replace(/^.*\/|\.gif$/g, '');
    picture.parentElement.dataset.team = picture.alt;
  }
}

const decimals = (cell) => /^\s*-?\d*\.(\d+)\s*$/.exec(cell.textContent)?.[1].length ?? 0;

/** Marks the figures with fewer decimals than their column, for the style sheet to make up the room. */
function alignFigures(rows) {
  const widest = [];
  for (const {cells} of rows) {
    [...cells].forEach((cell, column) => {
      widest[column] = Math.max(widest[column] ?? 0, decimals(cell));
    });
  }
  for (const {cells} of rows) {
    [...cells].forEach((cell, column) => {
      const shown = decimals(cell);
      if (shown < widest[column]) {
        const room = (shown === 0 ? '.' : '') + '0'.repeat(widest[column] - shown);
        (cell.firstElementChild ?? cell).dataset.room = room;
      }
    });
  }
}

function messageRow(table, message) {
  const row = document.createElement('tr');
  const cell = row.insertCell();
  cell.colSpan = table.tHead?.rows[0].cells.length ?? 2;
  cell.className = 'message';
  cell.textContent = message;
  return row;
}

async function showRows(table, team, order) {
  const path = table.dataset.fragment.replace('{team}', team).replace('{order}', order);
  const address = new URL(path, location.href).href;
  if (table.dataset.shown === address) {
    return;
  }
  table.dataset.shown = address;
  table.setAttribute('aria-busy', 'true');
  const {rows, message} = await loadedRows(address);
  if (table.dataset.shown !== address) {
    return;
  }
  if (rows && order) {
    alignFigures(rows);
  }
  table.tBodies[0].replaceChildren(...rows ?? [messageRow(table, message)]);
  table.removeAttribute('aria-busy');
  if (message === UNREACHABLE) {
    delete table.dataset.shown;
  }
}

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
  link.addEventListener('click', (click) => {
    if (click.ctrlKey || click.metaKey || click.shiftKey) {
      return;
    }
    click.preventDefault();
    history.pushState(null, '', link.href);
    showTables();
  });
}

/** Shows the team that the address asks for, or says what is missing; false when there is none to show. */
function showTeam(abbreviation) {
  const link = teams.get(abbreviation);
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
  if (teams.size > 0 && !showTeam(team)) {
    return;
  }
  await Promise.all(tables.map((table) => {
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

tables.flatMap(heads).forEach(makeSortable);
showTables().then(() => document.getElementById(location.hash.slice(1))?.scrollIntoView());
window.addEventListener('popstate', showTables);
if (location.protocol !== 'file:') {
  document.querySelectorAll('[data-needs]').forEach(showNote);
}
