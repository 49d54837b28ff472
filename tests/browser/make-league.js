/**
 * Makes the league that all tests look at and publishes its site: a whole season of 276 games, in which every pair of
 * teams meets once, and play-offs that have come to the second round.
 */
import {execFileSync} from 'node:child_process';
import {mkdirSync, rmSync} from 'node:fs';
import path from 'node:path';
import {coaches, league, program} from './league.js';

const CYCLE = 276;
const games = path.join(league, 'games');

rmSync(league, {recursive: true, force: true});
mkdirSync(league, {recursive: true});
execFileSync(program, ['sample-games', games, '--games', String(8 * CYCLE), '--seed', '7']);
execFileSync(program, ['--league', league, '--yes', 'script', '-'], {
  input: `
    init
    season-length 23
    coach add ${coaches.home}
    coach add ${coaches.away}
    coach add ${coaches.idle}
    import-folder "${games}" --home-coach ${coaches.home} --away-coach ${coaches.away}
    coach show ${coaches.home}
    coach show ${coaches.away}
    publish
  `,
  stdio: ['pipe', 'ignore', 'inherit'],
});
