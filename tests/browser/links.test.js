/** Follows every link and picture of the published site to a file, by its exact name, as a web space would. */
import assert from 'node:assert/strict';
import {readdirSync, readFileSync} from 'node:fs';
import path from 'node:path';
import {test} from 'node:test';
import {DomUtils, parseDocument} from 'htmlparser2';
import {coaches, site} from './league.js';
import {assertOrder, runs} from './order.js';

const ROOT = 'http://site/';

function filesOf(folder, prefix = '') {
  return readdirSync(folder, {withFileTypes: true}).flatMap((entry) => entry.isDirectory() ?
    filesOf(path.join(folder, entry.name), `${prefix}${entry.name}/`) : [prefix + entry.name]);
}

const attributes = (name, nodes) => DomUtils.find((node) => node.attribs?.[name] !== undefined, nodes, true, Infinity)
  .map((element) => element.attribs[name]);

const files = new Set(filesOf(site));
const textOf = (file) => readFileSync(path.join(site, file), 'utf8');
/** The pages and the rows; team.php is code that the pages of PHP share. */
const documents = new Map([...files].filter((file) => /(?<!^(?:Seasons\/[^/]+\/)?team)\.(htm|php)$/.test(file)).map((file) =>
  [file, parseDocument(textOf(file))]));

/** The teams that a page offers, by abbreviation. */
const teamsOf = (document) =>
  attributes('href', document.children).flatMap((link) => /^\?team=(\w+)$/.exec(link)?.[1] ?? []);

const ofTeams = (link, teams) => link.includes('{team}') ? teams.map((team) => link.replace('{team}', team)) : [link];

/** The files of rows whose numbers the orders of a table have; leaders.js makes the same of the site's data. */
function fragmentsOf({attribs}) {
  const ranked = {players: 'Normal', goalies: 'Goalies', teams: 'Teams', stars: 'Star'}[attribs.id];
  const folder = attribs['data-rows']?.startsWith('playoff-') ? 'PlayoffRankings' : 'Rankings';
  return attribs['data-fragment'] ?? (attribs['data-rows'] && `./${folder}/${ranked}{order}.php`);
}

/** The tables of a page that tables.js fills: their opening order, their fragments, and the orders of their heads. */
const filledTables = (document) => DomUtils.getElementsByTagName('table', document)
  .filter(fragmentsOf).map((table) => ({
    opening: table.attribs['data-order'] ?? '',
    fragments: ofTeams(fragmentsOf(table), teamsOf(document)),
    heads: DomUtils.getElementsByTagName('th', table).map((head, column) => ({
      column,
      caption: DomUtils.textContent(head),
      orders: ['descending', 'ascending'].filter((direction) => head.attribs[`data-${direction}`])
        .map((direction) => ({direction, number: head.attribs[`data-${direction}`]})),
    })),
  }));

/**
 * What tables.js looks for on behalf of a page. It leads the links of the rows as seen from their fragment, and the
 * page of a team stands in the folder of its fragments: the links of a fragment are those of any page in its folder.
 */
function filledIn(document) {
  const fragments = filledTables(document).flatMap((table) => {
    const numbers = [table.opening, ...table.heads.flatMap(({orders}) => orders.map(({number}) => number))];
    return numbers.flatMap((number) => table.fragments.map((fragment) => fragment.replace('{order}', number)));
  });
  const links = ['data-team-src', 'data-team-href', 'data-needs'].flatMap((name) => attributes(name, document.children));
  return [...fragments, ...links.flatMap((link) => ofTeams(link, teamsOf(document)))];
}

const linksOf = (document) =>
  [...['href', 'src'].flatMap((name) => attributes(name, document.children)), ...filledIn(document)];

const linksOfStyles = (file) => [...textOf(file).matchAll(/url\("?([^")]+)/g)].map(([, link]) => link);

/** The targets of each page and style sheet within the site. */
const targets = new Map([
  ...[...documents].map(([file, document]) => [file, linksOf(document)]),
  ...[...files].filter((file) => file.endsWith('.css')).map((file) => [file, linksOfStyles(file)]),
].map(([file, links]) => {
  const addresses = links.map((link) => new URL(link, ROOT + encodeURI(file)));
  const outside = addresses.filter(({origin}) => origin !== new URL(ROOT).origin);
  assert.deepEqual(outside, [], `${file} leads off the site`);
  return [file, new Set(addresses.map(({pathname}) => decodeURIComponent(pathname.slice(1))))];
}));

test('a link leads to a file, but for the cards of players without one and coaches without a game', () => {
  const misses = [...targets].flatMap(([file, names]) =>
    [...names].filter((name) => !files.has(name)).map((name) => `${file} -> ${name}`));
  const cards = [...files].flatMap((file) => {
    const player = /^(?:Seasons\/[^/]+\/)?PlayoffProfiles\/\w+\/(?!index\.htm$)(.+)\.htm$/.exec(file)?.[1];
    return player && !files.has(`PlayerCards/${player}.gif`) ? [`${file} -> PlayerCards/${player}.gif`] : [];
  });
  assert.ok(cards.length > 400, `${cards.length} play-off profiles`);
  assert.deepEqual(misses.sort(), [...cards, `CoachingStats.htm -> CStats/${coaches.idle}.htm`].sort());
});

test('every page and every row of the site is reached from the home page', () => {
  const reached = new Set(['index.htm']);
  for (const file of reached) {
    targets.get(file)?.forEach((name) => reached.add(name));
  }
  assert.deepEqual([...targets.keys()].filter((file) => !reached.has(file)), []);
});

/** The values of a column: a team's stands in the name of its picture. */
function columnOf(file, column) {
  const rows = DomUtils.getElementsByTagName('tr', documents.get(file));
  return rows.map((row) => {
    const cell = DomUtils.getElementsByTagName('td', row)[column];
    return DomUtils.textContent(cell).trim() || attributes('src', [cell])[0];
  });
}

test('every head of a table leads to rows in the order of its own column', () => {
  let looked = 0;
  for (const [file, document] of documents) {
    for (const {fragments, heads} of filledTables(document)) {
      for (const fragment of fragments) {
        for (const {column, caption, orders} of heads) {
          const [first, second] = orders.map(({direction, number}) => {
            const rows = path.posix.join(path.posix.dirname(file), fragment.replace('{order}', number));
            const values = columnOf(rows, column);
            assertOrder(values, direction, `${rows} by ${caption}`);
            ++looked;
            return runs(values);
          });
          assert.ok(!second || String(first) === String(second.reverse()), `${fragment} by ${caption}, turned round`);
        }
      }
    }
  }
  assert.ok(looked > 2500, `${looked} orders`);
});
