/** Where the tests' league and the program that made it are. */
import path from 'node:path';
import {fileURLToPath} from 'node:url';

const project = fileURLToPath(new URL('../..', import.meta.url));

/** The companion program; ICELINE names another build of it. */
export const program = path.resolve(process.env.ICELINE ?? path.join(project, 'build/dev/bin/iceline'));
export const league = path.join(project, 'build/browser/league');
export const site = path.join(league, 'IcelineWebPages');

/** Two coaches with games and a page each, and one whom nobody has chosen. */
export const coaches = {home: 'Ann_Pike', away: 'Bo_Larsen', idle: 'Cy_Moss'};

/** The season that was kept before the one that is played; its name needs every kind of care in a link. */
export const seasonBefore = '1993 & 94';
