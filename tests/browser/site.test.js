/** The site of a whole league in a browser, over the program's own preview and over PHP. */
import assert from 'node:assert/strict';
import {readdirSync} from 'node:fs';
import path from 'node:path';
import {after, before, describe, test} from 'node:test';
import {faintTexts, overflow} from './audits.js';
import {launch, turnIntoTelephone, visit} from './browser.js';
import {coaches, site} from './league.js';
import {assertOrder, runs} from './order.js';
import {servers} from './servers.js';

const PLAYER = readdirSync(path.join(site, 'Profiles/BOS')).find((name) => name !== 'index.htm');
const GAME = readdirSync(path.join(site, 'BoxScores'))[0];
const CARD = `PlayerCards/${PLAYER.replace('.htm', '.gif')}`;

/** A page of each kind, and a text that it shows. */
const PAGES = {
  'index.htm': 'Last 10 Game Results',
  'BoxScores.htm': 'Game Result',
  [`BoxScores/${GAME}`]: 'Scoring Summary',
  'PlayerStats.htm': 'Patrick Division',
  'PStats/index.php?team=BOS': 'Forwards / Defensemen',
  'TeamStats.htm': 'Smythe Division',
  'TStats/BOS.htm': 'Overtime Stats',
  'Standings.htm': 'Conference Standings',
  'DivisionStandings.htm': 'Adams Division',
  'ConferenceStandings.htm': 'Wales Conference',
  'HomeAwayStandings.htm': 'Away Records',
  'vsConfStandings.htm': 'Wales',
  'LeagueLeaders.htm': 'Goalie League Leaders',
  'CoachingStats.htm': coaches.idle,
  [`CStats/${coaches.home}.htm`]: coaches.home,
  'PlayerProfiles.htm': 'Norris Division',
  'Profiles/BOS/index.htm': 'Overall Rating',
  [`Profiles/BOS/${PLAYER}`]: 'Three Star Pts.',
  'AllTimeRecords.htm': 'Goalie Records in a Game',
  'Playoffs.htm': 'Playoff Team Stats',
  'PlayoffTree.htm': 'Western Conference',
  'PlayoffPlayerStats.htm': 'Patrick Division',
  'PlayoffPStats/index.php?team=BOS': 'Forwards / Defensemen',
  'PlayoffTeamStats.htm': 'Smythe Division',
  'PlayoffTStats/BOS.htm': 'Overtime Stats',
  'PlayoffLeagueLeaders.htm': 'Goalie League Leaders',
  'PlayoffProfiles/BOS/index.htm': 'Overall Rating',
  [`PlayoffProfiles/BOS/${PLAYER}`]: 'Three Star Pts.',
  'PlayoffAllTimeRecords.htm': 'Goalie Records in a Game',
};

/** Pages with tables that a click on a head sorts. */
const SORTED = ['LeagueLeaders.htm', 'PlayoffLeagueLeaders.htm', 'PStats/index.php?team=BOS',
  'PlayoffPStats/index.php?team=BOS'];

const browser = await launch();
after(() => browser.close());

/** The table as it stands: which columns say that they are sorted, how, with which arrow, and the texts of its rows. */
const tableOnView = (table) => table.evaluate((element) => ({
  sorted: [...element.querySelectorAll('th[aria-sort]')].map((head) => ({
    caption: head.textContent,
    direction: head.ariaSort,
    arrow: getComputedStyle(head.firstElementChild, '::before').content[1],
  })),
  rows: [...element.tBodies[0].rows].map((row) =>
    [...row.cells].map((cell) => cell.textContent.trim() || cell.dataset.team || '')),
}));

/**
 * Clicks a head. Asserts that its column, and no other, is then sorted in `direction`, by its arrow, by the address and
 * by its figures, and gives the column's values, each run of equal ones once.
 */
async function sortBy(page, table, head, direction) {
  await head.getByRole('link').click();
  await page.waitForFunction(() => !document.querySelector('[aria-busy]'));
  const [{column, caption, orders}, id] = await Promise.all([
    head.evaluate((cell) => ({column: cell.cellIndex, caption: cell.textContent, orders: {...cell.dataset}})),
    table.getAttribute('id'),
  ]);
  const {sorted, rows} = await tableOnView(table);
  assert.deepEqual(sorted, [{caption, direction, arrow: {descending: '▼', ascending: '▲'}[direction]}]);
  assert.equal(new URL(page.url()).searchParams.get(id), orders[direction], page.url());
  const values = rows.map((cells) => cells[column]);
  assert.ok(values.length > 1, `${values.length} rows by ${caption}`);
  assertOrder(values, direction, caption);
  return runs(values);
}

/** Sorts every table of a page by a figure, both ways round. Its address then leads to the same tables. */
async function checkSorting(page) {
  const tablesOf = (shown) => shown.locator('table:has(th[data-descending])').all();
  const tables = await tablesOf(page);
  assert.ok(tables.length > 1);
  for (const table of tables) {
    const head = table.locator('th[data-descending]:not([data-ascending-first])').first();
    const [first, second] = await head.getAttribute('aria-sort') ? ['ascending', 'descending'] :
      ['descending', 'ascending'];
    const values = await sortBy(page, table, head, first);
    assert.deepEqual(await sortBy(page, table, head, second), values.reverse());
  }
  const again = await visit(browser, page.url());
  for (const [i, table] of (await tablesOf(again)).entries()) {
    assert.deepEqual(await tableOnView(table), await tableOnView(tables[i]));
  }
  assert.deepEqual([...page.faults, ...again.faults], []);
  await Promise.all([page.close(), again.close()]);
}

/** Asserts what holds for every page in every colour scheme and at every width. */
async function checkLook(page) {
  for (const colorScheme of ['light', 'dark']) {
    await page.emulateMedia({colorScheme});
    const {looked, faint} = await page.evaluate(faintTexts, 4.5);
    assert.ok(looked > 10, `${looked} texts`);
    assert.deepEqual(faint, [], `${colorScheme} colours`);
  }
  const fits = async (screen) => assert.deepEqual(await page.evaluate(overflow), {page: 0, bar: 0}, screen);
  for (const width of [1280, 1100, 390]) {
    await page.setViewportSize({width, height: 844});
    await fits(`${width} pixels wide`);
  }
  await turnIntoTelephone(page);
  await fits('on a telephone');
}

/** The tests of the site over one server. The look of a page is not the server's doing, and is checked over one. */
function checkSite(open, url, look) {
  for (const [address, text] of Object.entries(PAGES)) {
    test(`${address} is whole${look ? ' and readable' : ''}`, async () => {
      const page = await open(address);
      assert.match(await page.title(), /^ ?(Rinkstar|Iceline) - /);
      assert.ok(await page.getByText(text).first().isVisible(), text);
      if (look) {
        await checkLook(page);
      }
      const cardless = address.startsWith('PlayoffProfiles') && address.endsWith(PLAYER);
      assert.deepEqual(page.faults.filter((fault) => !(cardless && decodeURI(fault).includes(CARD))), []);
      await page.close();
    });
  }

  for (const address of SORTED) {
    test(`${address} is sorted by a click on a head`, async () => checkSorting(await open(address)));
  }

  test('what the address says never comes into a team\'s page', async () => {
    for (const team of ['<script>alert(1)</script>', '../..', 'bos']) {
      const given = `?team=${encodeURIComponent(team)}&skaters=../../index`;
      const page = await open(`PStats/index.php${given}`);
      const shown = await page.content();
      for (const text of ['alert(1)', '../..', '=bos', 'skaters=']) {
        assert.ok(!shown.includes(text), `${given} brings ${text}`);
      }
      assert.match(await page.locator('#no-team').innerText(), /no such team/);
      assert.ok(await page.locator('#team').isHidden());
      assert.deepEqual(page.faults, []);
      await page.close();
    }
  });

  test('an order that no head has is not looked for', async () => {
    const page = await open('LeagueLeaders.htm?players=../Teams0&goalies=99');
    const {sorted: [{caption, direction}]} = await tableOnView(page.locator('#players'));
    assert.deepEqual([caption, direction], ['Pts.', 'descending']);
    assert.deepEqual(page.faults, []);
    await page.close();
  });

  test('a visitor comes from the home page to a player and to a game', async () => {
    const page = await open('index.htm');
    await page.getByRole('link', {name: 'Standings'}).click();
    await page.getByRole('link', {name: 'Division Standings'}).click();
    await page.getByRole('link', {name: 'BOS'}).click();
    await page.locator('#skaters tbody a').first().click();
    assert.match(await page.title(), /Player Profile$/);
    await page.getByRole('link', {name: 'Box Scores'}).click();
    await page.getByRole('link', {name: 'Box Score', exact: true}).first().click();
    assert.match(await page.title(), /Box Score: /);
    await page.waitForLoadState('networkidle');
    assert.deepEqual(page.faults, []);
    await page.close();
  });

  test('the site has the icon that browsers ask for', async () => {
    assert.equal((await fetch(url('favicon.ico'))).status, 200);
  });
}

function checkPhp(url) {
  test('without scripts a team\'s rows stand there, and none for a name that is no team', async () => {
    const rowsOf = async (query) => {
      const text = await (await fetch(url(`PStats/index.php?${query}`))).text();
      assert.doesNotMatch(text, /(Warning|Notice|Deprecated|Error):/);
      return text.match(/<td>/g)?.length ?? 0;
    };
    assert.ok(await rowsOf('team=BOS') > 200);
    for (const query of ['', 'team=', 'team=bos', 'team[]=BOS', 'team=../PStats/BOS', 'team=%3Cscript%3E']) {
      assert.equal(await rowsOf(query), 0, query);
    }
  });
}

describe('the site', {concurrency: 2}, () => {
  for (const name of Object.keys(servers)) {
    describe(`over ${name}`, {concurrency: 2}, () => {
      let server;
      before(async () => {
        server = await servers[name]();
      });
      after(() => server?.stop());
      const url = (address) => server.address + address;
      checkSite((address) => visit(browser, url(address)), url, name === 'preview');
      if (name === 'php') {
        checkPhp(url);
      }
    });
  }
});
