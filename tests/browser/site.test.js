/** The site of a whole league in a browser, over the program's own preview and over PHP. */
import assert from 'node:assert/strict';
import {readdirSync} from 'node:fs';
import path from 'node:path';
import {after, before, describe, test} from 'node:test';
import {pathToFileURL} from 'node:url';
import axe from 'axe-core';
import {faintTexts, overflow, smallTargets} from './audits.js';
import {desktop, launch, turnIntoTelephone, visit} from './browser.js';
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
  'Results.htm': 'Box score',
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
  'PlayoffPStats/team.htm?team=BOS': 'Forwards / Defensemen',
  'PlayoffTeamStats.htm': 'Smythe Division',
  'PlayoffTStats/BOS.htm': 'Overtime Stats',
  'PlayoffLeagueLeaders.htm': 'Goalie League Leaders',
  'PlayoffProfiles/BOS/index.htm': 'Overall Rating',
  [`PlayoffProfiles/BOS/${PLAYER}`]: 'Three Star Pts.',
  'PlayoffAllTimeRecords.htm': 'Goalie Records in a Game',
};

/** What the markup of the pages that are no landing pages breaks of itself, every byte of which is fixed. */
const FORCED = ['empty-table-header', 'html-has-lang', 'image-alt', 'landmark-one-main', 'link-name',
  'page-has-heading-one', 'region', 'scrollable-region-focusable'];

/** Pages with tables that a click on a head sorts, with some of their rows. */
const SORTED = ['LeagueLeaders.htm?name=an', 'PlayoffLeagueLeaders.htm?name=an', 'PStats/index.php?team=BOS',
  'PlayoffPStats/team.htm?team=BOS'];

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
    [...row.cells].map((cell) => cell.textContent.trim() || cell.querySelector('a')?.dataset.team || '')),
}));

const allDrawn = (page) => page.waitForFunction(() => !document.querySelector('[aria-busy]'));

/** Shows all rows of all tables, those too that wait for the visitor to come near. */
async function showAllRows(page) {
  await page.evaluate(() => dispatchEvent(new Event('beforeprint')));
  await allDrawn(page);
  await page.locator('.count button').evaluateAll((buttons) =>
    buttons.filter(({hidden}) => !hidden).forEach((button) => button.click()));
  await allDrawn(page);
}

/**
 * Clicks a head. Asserts that its column, and no other, is then sorted in `direction`, by its arrow, by the address and
 * by its figures, and gives the column's values, each run of equal ones once.
 */
async function sortBy(page, table, head, direction) {
  await head.getByRole('link').click();
  await allDrawn(page);
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
  const tablesOf = async (shown) => {
    await showAllRows(shown);
    return shown.locator('table:has(th[data-descending])').all();
  };
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
  for (const width of [1280, 1024, 390, 320]) {
    await page.setViewportSize({width, height: 844});
    await fits(`${width} pixels wide`);
  }
  assert.deepEqual(await page.evaluate(smallTargets, 24), []);
  const forced = await page.locator('main').count() > 0 ? [] : FORCED;
  await page.evaluate(axe.source);
  const {violations} = await page.evaluate(() =>
    globalThis.axe.run({exclude: ['tr:nth-child(n + 12)']}, {preload: false}));
  assert.deepEqual(violations.filter(({id}) => !forced.includes(id)).map(({id, nodes}) => `${id}: ${nodes[0].html}`), []);
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
      const page = await open(`PStats/team.htm${given}`);
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
    await page.waitForURL(/Profiles/);
    assert.match(await page.title(), /Player Profile$/);
    await page.getByRole('link', {name: 'Box Scores'}).click();
    await page.getByRole('link', {name: 'Box Score', exact: true}).first().click();
    await page.waitForURL(/BoxScores\//);
    assert.match(await page.title(), /Box Score: /);
    await page.waitForLoadState('networkidle');
    assert.deepEqual(page.faults, []);
    await page.close();
  });

  test('the site has the icon that browsers ask for', async () => {
    assert.equal((await fetch(url('favicon.ico'))).status, 200);
  });
}

/** What names that are markup become, and what a page at an odd address or from disk is, whatever the server. */
function checkPages(url) {
  const NAMES = ['<img src=x onerror=acted=1>', '<script>acted=1</script>', '<a href="javascript:acted=1">A</a>',
    '<a href="http://elsewhere.invalid/">B</a>', '<svg onload=acted=1>', '<iframe srcdoc="<script>acted=1</script>">',
    '<b onclick=acted=1 style="position:fixed">C</b>', '<img src=http://elsewhere.invalid/a.gif>'];
  const rows = NAMES.map((name) => `<tr><td>1</td><td><img src="../LogoMinis/BOS.gif"></td><td>${name}</td></tr>`);

  /** What names bring into a table: the elements with their attributes, and the hosts that links lead to. */
  const broughtInto = async (page, table) => {
    assert.equal(await page.evaluate(() => globalThis.acted), undefined);
    assert.equal(await page.locator(`${table} tbody tr`).count(), NAMES.length);
    return page.locator(`${table} tbody`).evaluate((body) => ({
      parts: [...new Set([...body.querySelectorAll('*')].flatMap(({localName, attributes}) =>
        [localName, ...[...attributes].map(({name}) => `${localName} ${name}`)]))].sort(),
      hosts: [...new Set([...body.querySelectorAll('[href], [src]')].map((link) => new URL(link.href ?? link.src).host))],
    }));
  };

  test('a name that is markup becomes text', async () => {
    const page = await browser.newPage({bypassCSP: true});
    const {host} = new URL(url(''));
    await page.route('**/PStats/BOS_N2.php', (route) => route.fulfill({body: rows.join('')}));
    await page.goto(url('PStats/team.htm?team=BOS'), {waitUntil: 'networkidle'});
    assert.deepEqual(await broughtInto(page, '#skaters'),
      {parts: ['a', 'b', 'img', 'img alt', 'img src', 'td', 'tr'], hosts: [host]});

    await page.route('**/data/leaders.json', async (route) => {
      const {columns, rows: [leader]} = await (await route.fetch()).json();
      await route.fulfill({json: {columns, rows: NAMES.map((name) => leader.with(columns.indexOf('name'), name))}});
    });
    await page.goto(url('LeagueLeaders.htm'), {waitUntil: 'networkidle'});
    const {parts, hosts} = await broughtInto(page, '#players');
    assert.deepEqual(parts.filter((part) => !part.startsWith('img ')), ['a', 'a data-team', 'a href', 'b', 'img', 'td', 'tr']);
    assert.deepEqual(hosts, [host]);
    await page.close();
  });

  test('a script within a page of a team does not run', async () => {
    const page = await browser.newPage();
    await page.route('**/PStats/team.htm?team=BOS', async (route) => {
      const answer = await route.fetch();
      const body = (await answer.text()).replace('<main', `<table>${rows.join('')}</table><main`);
      await route.fulfill({response: answer, body});
    });
    await page.goto(url('PStats/team.htm?team=BOS'), {waitUntil: 'networkidle'});
    await page.locator('body > table a').first().click();
    assert.equal(await page.evaluate(() => globalThis.acted), undefined);
    await page.close();
  });

  test('the page for what is missing leads home from any folder, and index.html leads there, too', async () => {
    const page = await browser.newPage();
    const missing = await (await fetch(url('404.html'))).text();
    for (const address of ['none.htm', 'BoxScores/none.htm', 'Profiles/BOS/none.htm']) {
      await page.route(url(address), (route) => route.fulfill({status: 404, contentType: 'text/html', body: missing}));
      await page.goto(url(address), {waitUntil: 'networkidle'});
      assert.equal(await page.getByRole('link', {name: 'Home'}).getAttribute('href'), url('index.htm'));
    }
    await page.goto(url('index.html'));
    await page.waitForURL(url('index.htm'));
    await page.close();
  });

  test('the first rows of the leaders, all of them, and those of a team and a name', async () => {
    const page = await visit(browser, url('LeagueLeaders.htm'));
    await allDrawn(page);
    const rows = page.locator('#players tbody tr');
    assert.equal(await rows.count(), 50);
    await showAllRows(page);
    assert.ok(await rows.count() > 400);

    const cells = (column) => rows.locator(`td:nth-child(${column})`).allInnerTexts();
    const last = (await cells(3)).at(-1);
    await page.getByLabel('Name').fill(last.slice(1).toUpperCase());
    await allDrawn(page);
    assert.deepEqual(await cells(3), [last]);
    await page.getByLabel('Name').fill('');
    await page.locator('select[name=team]').selectOption('BOS');
    await page.getByLabel('Position').selectOption('D');
    await page.getByLabel('At least').fill('10');
    await allDrawn(page);
    const totals = await cells(5);
    const games = (await cells(14)).map(Number);
    assert.ok(games.length > 2 && games.every((played) => played >= 10), `${games}`);
    const logos = await rows.locator('img').evaluateAll((pictures) => pictures.map(({alt}) => alt));
    assert.deepEqual([...new Set(logos)], ['BOS']);
    await page.getByLabel('Figures').selectOption('game');
    await allDrawn(page);
    assert.deepEqual((await cells(5)).sort(), totals.map((goals, i) => (goals / games[i]).toFixed(2)).sort());

    const again = await visit(browser, page.url());
    assert.equal(await again.locator('#players tbody').innerText(), await page.locator('#players tbody').innerText());
    assert.deepEqual([...page.faults, ...again.faults], []);
    await Promise.all([page.close(), again.close()]);
  });

  test('a visitor finds a player, a team\'s games against a rival, and a series', async () => {
    const page = await visit(browser, url('LeagueLeaders.htm'));
    const player = decodeURI(PLAYER.replace('.htm', ''));
    await page.getByLabel('Search').fill(player.slice(1, -1).toUpperCase());
    await page.locator('#found a', {hasText: player}).waitFor();
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('Enter');
    await page.waitForURL(/Profiles\/BOS/);

    await page.goto(url('PStats/team.htm?team=BOS'), {waitUntil: 'networkidle'});
    const facts = await page.locator('.facts').innerText();
    const [won, lost, tied] = await page.locator('#record tbody td').allInnerTexts();
    assert.ok(facts.includes([won, lost, tied].map((figure) => figure.trim()).join('-')), facts);
    assert.equal(await page.locator('#games tbody tr').count(), 10);
    assert.equal(await page.locator('#games-more tbody tr').count(), 23);
    const rival = page.locator('#games-more tbody tr').first();
    const record = await rival.locator('.figure').allInnerTexts();
    await rival.getByRole('link', {name: 'Games'}).click();
    await page.waitForURL(/Results\.htm\?team=BOS&against=/);
    await page.locator('#meetings').waitFor();
    await page.getByLabel('Games').selectOption('season');
    const meetings = await page.locator('#meetings').innerText();
    assert.ok(meetings.includes(`${record[2]} tied, goals ${record[3]} to ${record[4]}`), meetings);
    assert.equal(await page.locator('#results tbody tr').count(),
      record.slice(0, 3).reduce((sum, figure) => sum + Number(figure), 0));

    await page.goto(url('PlayoffPStats/team.htm?team=BOS'), {waitUntil: 'networkidle'});
    assert.match(await page.locator('.series').innerText(), /^First Round:\s+\D+ \d-\d/);
    assert.deepEqual(page.faults, []);
    await page.close();
  });

  test('the standings and the points race agree with each other', async () => {
    const page = await visit(browser, url('Standings.htm?by=division'));
    const points = (row) => row.locator('td').nth(7).innerText();
    const first = page.locator('#standings tbody tr').first();
    await page.locator('summary').click();
    await page.locator('#race canvas').waitFor();
    const inRace = page.locator('#race-table tbody tr').first();
    assert.equal(await inRace.locator('td').last().innerText(), await points(first));
    assert.equal(await page.locator('#standings h2').count(), 4);
    assert.deepEqual(page.faults, []);
    await page.close();
  });

  test('on a telephone the sorted column comes right after the name', async () => {
    const page = await visit(browser, url('LeagueLeaders.htm'), {viewport: {width: 390, height: 844}});
    const players = page.locator('#players');
    const values = await sortBy(page, players, players.locator('th', {hasText: 'GP'}), 'descending');
    assert.equal(await players.locator('[aria-sort]').evaluate((head) => head.cellIndex), 3);
    assert.deepEqual(runs(await players.locator('td:nth-child(4)').allInnerTexts()), values);
    assert.deepEqual(page.faults, []);
    await page.close();
  });

  test('from disk the tables are filled where the browser allows it, and say why where it does not', async () => {
    const address = pathToFileURL(path.join(site, 'PStats/team.htm')) + '?team=BOS';
    const allowing = await launch('--allow-file-access-from-files');
    const page = await visit(allowing, address);
    assert.ok(await page.locator('#skaters tbody tr').count() > 10);
    assert.deepEqual(page.faults, []);
    await allowing.close();
    const refused = await visit(browser, address);
    assert.match(await refused.locator('#skaters .message').innerText(), /web server/);
    await refused.close();
  });
}

/** What the page of a team shows, its addresses apart, and what takes scripts: whatever else in it is on view. */
const teamOnView = (page) => page.evaluate(() => {
  const shown = (selector) => [...document.querySelectorAll(selector)].filter((element) =>
    element.checkVisibility() && !element.closest('#games, #games-more, .team-leaders a'));
  return {
    title: document.title,
    pictures: shown('main img').map(({src}) => src),
    links: shown('main td a, main .see-also a').map(({href}) => href),
    notes: shown('main .notice').map(({textContent}) => textContent),
    rows: shown('main tr').map((row) => [...row.cells].map(({textContent}) => textContent.trim())),
  };
});

function checkPhp(url) {
  test('the page of a team is the same by PHP alone as by scripts alone', async () => {
    for (const [folder, query] of [['PStats', '?team=TOR'], ['PlayoffPStats', '?team=TOR'], ['PStats', '']]) {
      const scripts = await visit(browser, url(`${folder}/team.htm${query}`));
      const php = await visit(browser, url(`${folder}/index.php${query}`), {...desktop, javaScriptEnabled: false});
      const content = await teamOnView(scripts);
      assert.ok(query === '' || content.rows.length > 40, `${content.rows.length} rows`);
      assert.deepEqual(await teamOnView(php), content);
      assert.deepEqual([...scripts.faults, ...php.faults], []);
      await Promise.all([scripts.close(), php.close()]);
    }
  });

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
      } else {
        checkPages(url);
      }
    });
  }
});
