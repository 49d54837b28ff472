/*
 * The rows of a fragment, as tables.js shows them. The names in a fragment are whatever a league has typed: only what
 * the program's own rows consist of is taken over, and anything else is the text that it holds.
 */
'use strict';

const UNPUBLISHED = 'Nothing has been published yet: these rows appear as soon as the league\'s webpages have been ' +
  'generated.';
const EMPTY = 'No games have been played yet.';
const NO_SERVER = 'This browser fills these tables only on a site that a web server delivers. Open the league\'s ' +
  'site on the web, or use “Preview Site”.';
const UNREACHABLE = 'These rows could not be loaded. Please try again in a moment.';

/** The elements of a row, each with the attributes that count. */
const ROW_PARTS = {TR: [], TD: ['colspan'], TH: ['colspan'], A: ['href'], IMG: ['src'], B: [], CENTER: []};

/** So many rows are dealt with before the browser is let draw and answer its user. */
const ROWS_AT_A_TIME = 25;

const breath = () => globalThis.scheduler?.yield?.() ?? new Promise((done) => {
  setTimeout(done);
});

/**
 * The rows of the fragment at `address` or, when there are none to show, the message that says why. A file on disk is
 * read, too, where the browser lets a page do so, which is why this is no fetch.
 */
async function loadedRows(address) {
  const {status, bytes} = await answerOf(address);
  if (!bytes) {
    return {message: location.protocol === 'file:' ? NO_SERVER : status === 404 ? UNPUBLISHED : UNREACHABLE};
  }
  const rows = await rowsOf(decoded(bytes), address);
  return rows.length > 0 ? {rows} : {message: EMPTY};
}

const answerOf = (address) => new Promise((answer) => {
  const request = new XMLHttpRequest();
  request.open('GET', address);
  request.responseType = 'arraybuffer';
  request.addEventListener('loadend', () => {
    const {status, response} = request;
    const arrived = status === 200 || (status === 0 && location.protocol === 'file:');
    answer({status, bytes: arrived ? response : null});
  });
  request.send();
});

/** The text of a fragment: UTF-8 or, where it is none, the 8-bit text of older Windows rosters. */
function decoded(bytes) {
  try {
    return new TextDecoder('utf-8', {fatal: true}).decode(bytes);
  } catch {
    return new TextDecoder('windows-1252').decode(bytes);
  }
}

/** Each row is parsed by itself, so that markup which its name leaves open takes nothing of the next. */
async function rowsOf(text, address) {
  const parser = new DOMParser();
  const lines = text.split(/(?=<tr>)/);
  const rows = [];
  for (let i = 0; i < lines.length; i += ROWS_AT_A_TIME) {
    rows.push(...lines.slice(i, i + ROWS_AT_A_TIME).flatMap((line) => {
      const parsed = parser.parseFromString(`<table><tbody>${line}</tbody></table>`, 'text/html');
      return [...parsed.querySelectorAll('body > table > tbody > tr')].map((row) => takenOver(row, address));
    }));
    await breath();
  }
  return rows;
}

function takenOver(node, address) {
  if (node.nodeType === Node.TEXT_NODE) {
    return document.createTextNode(node.data);
  }
  const attributes = ROW_PARTS[node.nodeName];
  const copy = attributes ? document.createElement(node.nodeName) : document.createDocumentFragment();
  copy.append(...[...node.childNodes].map((child) => takenOver(child, address)));
  for (const name of attributes?.filter((known) => node.hasAttribute(known)) ?? []) {
    takeOver(node.getAttribute(name), name, copy, address);
  }
  return copy;
}

/** Links and pictures of a row are relative to its fragment, and lead nowhere but to the site. */
function takeOver(value, name, copy, address) {
  if (name === 'colspan') {
    copy.colSpan = value;
    return;
  }
  const target = addressOf(value, address);
  if (target?.protocol !== location.protocol || target.host !== location.host) {
    return;
  }
  copy[name] = target;
  if (name === 'src') {
    copy.alt = target.pathname.replace(/^.*\/|\.gif$/g, '');
  }
}

function addressOf(value, base) {
  try {
    return new URL(value, base);
  } catch {
    return null;
  }
}

/** The team of a row is the one whose logo it has. */
const teamOf = (row) => row.querySelector('img')?.alt ?? '';

/** Puts the team's abbreviation beside its logo, by the style sheet. */
function nameTeam(row) {
  const logo = row.querySelector('img');
  if (logo) {
    logo.parentElement.dataset.team = logo.alt;
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
