/** Takes the pictures of the site that the documents show, of the tests' league, with as few colours as they need. */
import {execFileSync} from 'node:child_process';
import path from 'node:path';
import {fileURLToPath} from 'node:url';
import {launch, visit} from './browser.js';
import {servers} from './servers.js';

const folder = fileURLToPath(new URL('../../docs/pictures/', import.meta.url));

const desktop = (height, colorScheme = 'light') => ({viewport: {width: 1200, height}, colorScheme});
const telephone = {viewport: {width: 390, height: 844}, isMobile: true, deviceScaleFactor: 2};

const PICTURES = [
  {name: 'home-page', page: 'index.htm', options: desktop(1100)},
  {name: 'home-page-dark', page: 'index.htm', options: desktop(1100, 'dark')},
  {name: 'results-page', page: 'Results.htm?team=BOS&against=MTL', options: desktop(620)},
  {name: 'search', page: 'Results.htm', options: desktop(560), search: 'bo'},
  {name: 'standings-page', page: 'Standings.htm', options: desktop(850)},
  {name: 'points-race', page: 'Standings.htm', options: desktop(640), from: '#race-title'},
  {name: 'team-page', page: 'PStats/team.htm?team=BOS', options: desktop(980)},
  {name: 'leaders-page', page: 'LeagueLeaders.htm?players=0&position=D&games=10&per=game', options: desktop(860)},
  {name: 'box-score-page', page: 'BoxScores/game-0002.htm', options: {viewport: {width: 1280, height: 1300}}},
  {name: 'player-page', page: 'Profiles/BOS/Gene Olynovych.htm', options: desktop(740)},
  {name: 'playoff-tree-page', page: 'PlayoffTree.htm', options: desktop(920)},
  {name: 'team-page-telephone', page: 'PStats/team.htm?team=BOS', options: telephone},
];

const FEW_COLOURS = `
import sys
from PIL import Image
for file in sys.argv[1:]:
    image = Image.open(file).convert("RGB")
    image.quantize(256, dither=Image.Dither.NONE).save(file, optimize=True)
`;

const browser = await launch();
const server = await servers.preview();
const files = [];
for (const {name, page, options, search, from} of PICTURES) {
  const shown = await visit(browser, server.address + page, options);
  if (search) {
    await shown.getByLabel('Search').fill(search);
    await shown.locator('#found a').first().waitFor();
  }
  if (from) {
    await shown.locator(from).evaluate((element) => element.scrollIntoView());
    await shown.waitForLoadState('networkidle');
  }
  files.push(path.join(folder, `${name}.png`));
  await shown.screenshot({path: files.at(-1)});
  await shown.close();
}
await server.stop();
await browser.close();
execFileSync('/usr/bin/python3', ['-c', FEW_COLOURS, ...files]);
