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
  {name: 'standings-page', page: 'DivisionStandings.htm', options: desktop(850)},
  {name: 'leaders-page', page: 'LeagueLeaders.htm?players=0', options: desktop(760)},
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
for (const {name, page, options} of PICTURES) {
  const shown = await visit(browser, server.address + page, options);
  files.push(path.join(folder, `${name}.png`));
  await shown.screenshot({path: files.at(-1)});
  await shown.close();
}
await server.stop();
await browser.close();
execFileSync('/usr/bin/python3', ['-c', FEW_COLOURS, ...files]);
