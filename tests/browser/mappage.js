/**
 * The map page in a browser of today, opened straight from the disk. The program's side is an object that notes the
 * calls of its slots.
 */
'use strict';
const fs = require('fs');
const os = require('os');
const path = require('path');
const { pathToFileURL } = require('url');
const { chromium } = require('playwright-core');

const folder = process.env.ZEPHAN_PAGES;
const patience = 20000;

/** The slots of the program that the page may call. */
const slots = ['doSomething', 'doCenter', 'doZoom', 'doData', 'doViewRwy', 'doMoveSIT', 'sAddAptToFp', 'sAddNavToFp',
  'sAddWptToFp', 'sAddNewWptToFp', 'sAddSitToFp', 'sAddWptToDB', 'sAddNavToDB', 'sDelNavFromDB', 'sDelWptFromDB', 'sATS'];

const flags = ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync'];

/** @return the browser, with a folder of its own that `close` removes */
async function openBrowser() {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'zephan-pages-'));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: process.env.ZEPHAN_CHROMIUM,
    args: flags,
    viewport: { width: 900, height: 650 },
    timeout: 60000,
  });
  context.setDefaultTimeout(patience);
  return {
    context: context,
    close: async () => {
      await context.close();
      fs.rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
    },
  };
}

/** World pixels at zoom 0 in the web's Mercator projection. */
function worldPoint(latitude, longitude) {
  const sine = Math.sin(latitude * Math.PI / 180);
  return [256 * (0.5 + longitude / 360), 256 * (0.5 - Math.log((1 + sine) / (1 - sine)) / (4 * Math.PI))];
}

class MapPage {
  constructor(tab) {
    this.tab = tab;
    this.requests = [];
    this.faults = [];
    tab.on('request', request => this.requests.push(request.url()));
    tab.on('pageerror', error => this.faults.push(`${error.stack || error}`));
    tab.on('console', message => {
      if (['error', 'warning'].includes(message.type()))
        this.faults.push(message.text());
    });
  }

  /** @param {string[]} offered the slots of the program; none: the page stands alone */
  static async open(context, file, offered = slots) {
    const page = new MapPage(await context.newPage());
    await page.tab.addInitScript(names => {
      window.calls = [];
      if (names.length === 0)
        return;
      window.mainWindow = {};
      names.forEach(name => {
        window.mainWindow[name] = (...values) => window.calls.push([name, ...values]);
      });
    }, offered);
    await page.tab.goto(pathToFileURL(path.join(folder, file)).href, { waitUntil: 'load' });
    return page;
  }

  /** Evaluates a script text as the program does: as a script of the page's main frame. */
  run(script) {
    return this.tab.evaluate(text => (0, eval)(text), script);
  }

  /** Waits until what scripts changed has been painted. */
  settle() {
    return this.tab.evaluate(() => new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done))));
  }

  async show(latitude, longitude, zoom) {
    await this.run(`map.setCenter(new google.maps.LatLng(${latitude},${longitude}));map.setZoom(${zoom})`);
    await this.settle();
    await this.forget();
  }

  forget() {
    return this.tab.evaluate(() => {
      window.calls.length = 0;
    });
  }

  /** All calls of a slot so far. */
  calls(slot) {
    return this.tab.evaluate(name => window.calls.filter(call => call[0] === name), slot);
  }

  /** The calls of a slot, as soon as there are any. */
  async callsOf(slot) {
    await this.tab.waitForFunction(name => window.calls.some(call => call[0] === name), slot);
    return this.calls(slot);
  }

  /** Where a position lies in the window. */
  async pixelOf(latitude, longitude) {
    const [lat, lng, zoom, width, height] = await this.run(
      '[map.getCenter().lat(), map.getCenter().lng(), map.getZoom(), innerWidth, innerHeight]');
    const [x, y] = worldPoint(latitude, longitude);
    const [centreX, centreY] = worldPoint(lat, lng);
    return { x: width / 2 + (x - centreX) * 2 ** zoom, y: height / 2 + (y - centreY) * 2 ** zoom };
  }

  async click(latitude, longitude, options) {
    const at = await this.pixelOf(latitude, longitude);
    await this.tab.mouse.move(at.x, at.y);
    await this.tab.mouse.click(at.x, at.y, options);
  }

  async drag(from, to) {
    await this.tab.mouse.move(from.x, from.y);
    await this.tab.mouse.down();
    await this.tab.mouse.move(to.x, to.y, { steps: 8 });
    await this.tab.mouse.up();
  }

  /** Opens the context menu at a position. @return its entries */
  async menuAt(latitude, longitude) {
    await this.click(latitude, longitude, { button: 'right' });
    await this.tab.waitForSelector('#menu', { state: 'visible' });
    return this.tab.$$eval('.menu-label', all => all.map(entry => entry.textContent));
  }

  choose(text) {
    return this.tab.click(`.menu-label:text-is("${text}")`);
  }

  /** What shows around a position, as the bytes of a picture. */
  async pictureAt(latitude, longitude, reach = 20) {
    await this.settle();
    const at = await this.pixelOf(latitude, longitude);
    const clip = { x: Math.round(at.x) - reach, y: Math.round(at.y) - reach, width: 2 * reach, height: 2 * reach };
    return (await this.tab.screenshot({ clip: clip })).toString('base64');
  }

  close() {
    return this.tab.close();
  }
}

module.exports = { openBrowser, MapPage, folder, patience };
