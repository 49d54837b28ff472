/**
 * Makes the league that all tests look at and publishes its site: a whole season of 276 games, in which every pair of
 * teams meets once, and play-offs that have come to the second round.
 */
import assert from 'node:assert/strict';
import {spawnSync} from 'node:child_process';
import {mkdirSync, rmSync} from 'node:fs';
import path from 'node:path';
import {coaches, league, program, seasonBefore} from './league.js';

const CYCLE = 276;
const games = path.join(league, 'games');

function iceline(args, {input, status = 0} = {}) {
  const run = spawnSync(program, ['--league', league, '--yes', ...args],
    {input, encoding: 'utf8', maxBuffer: 2 ** 26, stdio: ['pipe', 'pipe', 'inherit']});
  assert.equal(run.status, status, `${args.join(' ')}: ${run.error ?? run.stdout.slice(-400)}`);
}

rmSync(league, {recursive: true, force: true});
mkdirSync(league, {recursive: true});
iceline(['sample-games', games, '--games', String(8 * CYCLE), '--seed', '7']);
iceline(['sample-games', `${games} before`, '--games', '30', '--seed', '8']);
iceline(['init']);
iceline(['import-folder', `${games} before`]);
iceline(['new-season', seasonBefore]);
iceline(['script', '-'], {
  input: `
    season-length 23
    coach add ${coaches.home}
    coach add ${coaches.away}
    coach add ${coaches.idle}
  `,
});
// The season over, the games of teams that do not meet in the play-offs are refused.
iceline(['import-folder', games, '--home-coach', coaches.home, '--away-coach', coaches.away], {status: 3});
iceline(['script', '-'], {
  input: `
    coach show ${coaches.home}
    coach show ${coaches.away}
    publish
  `,
});
