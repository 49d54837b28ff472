/** The servers that the site is looked at over, each on a free port of the loopback address. */
import {spawn} from 'node:child_process';
import {once} from 'node:events';
import {createServer} from 'node:net';
import {createInterface} from 'node:readline';
import {setTimeout as pause} from 'node:timers/promises';
import {league, program, site} from './league.js';

function started(command, args, stdio) {
  const child = spawn(command, args, {stdio});
  const ended = once(child, 'exit');
  const stop = async () => {
    child.kill();
    await ended;
  };
  return {child, ended, stop};
}

async function preview() {
  const {child, ended, stop} = started(program, ['--league', league, 'preview', '--port', '0'],
    ['ignore', 'pipe', 'inherit']);
  const [line] = await Promise.race([once(createInterface(child.stdout), 'line'), ended.then(() => [''])]);
  const address = /^Preview of the site: (http:\/\/127\.0\.0\.1:\d+\/)$/.exec(line)?.[1];
  if (!address) {
    await stop();
    throw new Error(`the preview did not say where it is: ${line}`);
  }
  return {address, stop};
}

async function freePort() {
  const server = createServer().listen(0, '127.0.0.1');
  await once(server, 'listening');
  const {port} = server.address();
  server.close();
  return port;
}

/** PHP's own server. What PHP complains of stands on the page. */
async function php() {
  const port = await freePort();
  const {stop} = started('php', ['-d', 'display_errors=1', '-d', 'error_reporting=E_ALL', '-S', `127.0.0.1:${port}`,
    '-t', site], 'ignore');
  const address = `http://127.0.0.1:${port}/`;
  for (let tries = 100; tries > 0; --tries) {
    if (await fetch(address + 'index.htm').catch(() => null)) {
      return {address, stop};
    }
    await pause(50);
  }
  await stop();
  throw new Error(`no PHP server at ${address}`);
}

export const servers = {preview, php};
