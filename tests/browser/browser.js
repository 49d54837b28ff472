/** Chromium as Debian packages it, and pages that remember what went wrong on them. */
import {chromium} from 'playwright-core';

export const launch = (...args) => chromium.launch({
  executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
  args: [...args, '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});

export const desktop = {viewport: {width: 1280, height: 900}};

/** Turns the screen of a page into that of a telephone, which lays a page out 980 pixels wide if it names no width. */
export async function turnIntoTelephone(page) {
  const session = await page.context().newCDPSession(page);
  await session.send('Emulation.setDeviceMetricsOverride',
    {width: 390, height: 844, screenWidth: 390, screenHeight: 844, deviceScaleFactor: 2, mobile: true});
}

/** The page at `address`, with all that its scripts fetch. Its `faults` are messages, failed requests and errors. */
export async function visit(browser, address, options = desktop) {
  const page = await browser.newPage(options);
  page.faults = [];
  const fault = (text) => page.faults.push(text);
  page.on('console', (message) => {
    if (message.type() === 'error') {
      fault(`${message.text()} ${message.location().url}`);
    }
  });
  page.on('pageerror', (error) => fault(String(error)));
  page.on('requestfailed', (request) => {
    const {errorText} = request.failure();
    // A request that Chromium gives up by itself, as another page was asked for, or for HEAD, whose body never comes.
    if (errorText !== 'net::ERR_ABORTED') {
      fault(`${errorText} ${request.url()}`);
    }
  });
  page.on('response', (response) => {
    if (response.status() >= 400) {
      fault(`${response.status()} ${response.url()}`);
    }
  });
  await page.goto(address, {waitUntil: 'networkidle'});
  return page;
}
