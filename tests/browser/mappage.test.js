'use strict';
const assert = require('assert');
const { pathToFileURL } = require('url');
const { after, afterEach, before, beforeEach, describe, it } = require('node:test');
const { openBrowser, MapPage, folder } = require('./mappage.js');

/** The words that are looked for; the page's own table is not asked. */
const languages = [
  {
    file: 'gm_trajector_fr.html',
    lang: 'fr',
    words: {
      addToPlan: 'Ajouter au plan de vol',
      showRunways: 'Afficher les pistes',
      editNavaid: 'Modifier le navaid…',
      deleteWaypoint: 'Effacer le waypoint…',
      airways: 'Voies aériennes passant par ce point…',
      userPoint: 'Ajouter un point utilisateur ici',
      startHere: 'Départ ici',
      newWaypoint: 'Nouveau waypoint ici…',
    },
  },
  {
    file: 'gm_trajector_en.html',
    lang: 'en',
    words: {
      addToPlan: 'Add to flight plan',
      showRunways: 'Show runways',
      editNavaid: 'Edit navaid…',
      deleteWaypoint: 'Delete waypoint…',
      airways: 'Airways through this point…',
      userPoint: 'Add user point here',
      startHere: 'Start here',
      newWaypoint: 'New waypoint here…',
    },
  },
];

/** A feed as the program sends it: a batch for each group, then the layers that are to be seen. */
const airports = 'addAPTMarker(new google.maps.LatLng(46.70000,2.20000),"LFXX",1,'
  + '"<font color=blue><b>Airport LFXX</b><font color=black><br/>XAINTRAILLES<br/>46° 42\' 00 N - 002° 12\' 00 E");'
  + 'addAPTMarker(new google.maps.LatLng(46.30000,2.20000),"LFYY",1,"<b>Airport LFYY</b>");pushAPT();';
const navaids = 'addVORMarker(new google.maps.LatLng(46.70000,2.50000),"RBT-RBT4FR",17,'
  + '"<font color=blue><b>VOR RBT</b><font color=black><br/>RAMBOUILLET<br/>114.7 Mhz<br/>46° 42\' 00 N");'
  + 'addNDBMarker(new google.maps.LatLng(46.50000,2.20000),"EP-EP5FR",2,"<b>NDB EP</b>");'
  + 'addNDBMarker(new google.maps.LatLng(46.50000,2.30000),"AB-AB5FR",4,"<b>NDB AB</b>");addNavMgr();'
  + 'VORMgr.addMarkers(listVOR);NDBRteMgr.addMarkers(listNDBRte);NDBTermMgr.clearMarkers()';
const waypoints = 'addWPTMarker(new google.maps.LatLng(46.70000,2.80000),"BALAN-BALAN5FR",2,'
  + '"<font color=blue><b>Waypoint BALAN</b><font color=black><br/>BALAN (2)<br/>46° 42\' 00 N");'
  + 'addWPTMarker(new google.maps.LatLng(46.30000,2.80000),"TERMI-TERMI5FR",4,"<b>Waypoint TERMI</b>");'
  + 'addWPTMarker(new google.maps.LatLng(46.30000,2.50000),"VISUE-VISUE5FR",6,"<b>Waypoint VISUE</b>");addWptMgr();'
  + 'WPTRteMgr.addMarkers(listWptRte);WPTTermMgr.addMarkers(listWptTerm);WPTVfrMgr.addMarkers(listWptVfr)';

/** Away from everything that is fed. */
const nothing = [46.45, 2.65];

let browser = null;
before(async () => {
  browser = await openBrowser();
});
after(() => browser && browser.close());

/** The pages differ in their words alone: what has no words in it is tried on the first. */
languages.forEach(({ file, lang, words }, which) => describe(file, () => {
  const once = which === 0 ? it : () => {};
  let page = null;
  beforeEach(async () => {
    page = await MapPage.open(browser.context, file);
    await page.show(46.5, 2.5, 9);
  });
  afterEach(async () => {
    const faults = page.faults;
    const foreign = page.requests.filter(url => !url.startsWith(`${pathToFileURL(folder).href}/`)
      && !url.startsWith('data:') && !url.startsWith('about:'));
    const requested = page.requests.length;
    await page.close();
    assert.deepStrictEqual(faults, [], 'the console is silent');
    assert.deepStrictEqual(foreign, [], 'nothing is asked of the network');
    assert.ok(requested > 30, 'the requests were noted');
  });

  async function feed() {
    for (const batch of [airports, navaids, waypoints])
      await page.run(batch);
    await page.settle();
  }

  /** The calls are compared with positions rounded to what a pixel is worth. */
  function assertCall(call, expected) {
    assert.strictEqual(call.length, expected.length);
    expected.forEach((value, i) => {
      if (typeof value === 'number')
        assert.ok(Math.abs(call[i] - value) < 0.004, `${call[i]} is near ${value}`);
      else
        assert.strictEqual(call[i], value);
    });
  }

  it('has its language and a map', async () => {
    assert.strictEqual(await page.run('document.documentElement.lang'), lang);
    assert.strictEqual(await page.run('map instanceof google.maps.Map'), true);
  });

  once('gives the program the view that it has set', async () => {
    await page.run('map.setCenter(new google.maps.LatLng(48.50000, -3.00000));');
    await page.run('map.setZoom(6.5)');
    assert.deepStrictEqual(await page.run('[map.getCenter().lat(), map.getCenter().lng(), map.getZoom()]'), [48.5, -3, 6.5]);
    assert.deepStrictEqual(await page.calls('doCenter'), [['doCenter', 48.5, -3]]);
    assert.deepStrictEqual(await page.calls('doZoom'), [['doZoom', 7]]);
  });

  once('sorts the feed into its lists', async () => {
    await feed();
    const lists = 'listApt,listVOR,listNDBRte,listNDBTerm,listWptRte,listWptTerm,listWptVfr';
    assert.deepStrictEqual(await page.run(`[${lists}].map(list => list.length)`), [2, 1, 1, 1, 1, 1, 1]);
  });

  once('shows and hides the markers of each layer', async () => {
    const layers = [
      ['ArptMgr', 'listApt', 46.7, 2.2],
      ['VORMgr', 'listVOR', 46.7, 2.5],
      ['NDBRteMgr', 'listNDBRte', 46.5, 2.2],
      ['NDBTermMgr', 'listNDBTerm', 46.5, 2.3],
      ['WPTRteMgr', 'listWptRte', 46.7, 2.8],
      ['WPTTermMgr', 'listWptTerm', 46.3, 2.8],
      ['WPTVfrMgr', 'listWptVfr', 46.3, 2.5],
    ];
    await feed();
    for (const [manager, list, latitude, longitude] of layers) {
      await page.run(`${manager}.clearMarkers()`);
      const without = await page.pictureAt(latitude, longitude);
      await page.run(`${manager}.addMarkers(${list})`);
      assert.notStrictEqual(await page.pictureAt(latitude, longitude), without, `${list} is shown`);
      await page.run(`${manager}.clearMarkers()`);
      assert.strictEqual(await page.pictureAt(latitude, longitude), without, `${list} is hidden`);
    }
  });

  once("opens a marker's pop-up at a click", async () => {
    await feed();
    await page.click(46.7, 2.2);
    const popup = await page.tab.waitForSelector('.popup-text');
    const lines = (await popup.innerText()).split('\n');
    assert.deepStrictEqual(lines.slice(0, 2), ['Airport LFXX', 'XAINTRAILLES']);
    assert.strictEqual(await page.run('theLast.title'), 'LFXX');
  });

  [
    ['addToPlan', 46.7, 2.2, ['sAddAptToFp', 'LFXX']],
    ['showRunways', 46.7, 2.2, ['doViewRwy', 'LFXX']],
    ['addToPlan', 46.7, 2.5, ['sAddNavToFp', 'RBT-RBT4FR']],
    ['editNavaid', 46.7, 2.5, ['sAddNavToDB', 'RBT-RBT4FR', 46.7, 2.5]],
    ['addToPlan', 46.7, 2.8, ['sAddWptToFp', 'BALAN-BALAN5FR']],
    ['airways', 46.7, 2.8, ['sATS', 'BALAN-BALAN5FR', '']],
    ['deleteWaypoint', 46.7, 2.8, ['sDelWptFromDB', 'BALAN-BALAN5FR']],
    ['userPoint', ...nothing, ['sAddNewWptToFp', 'WPT', ...nothing]],
    ['newWaypoint', ...nothing, ['sAddWptToDB', '', ...nothing]],
  ].forEach(([word, latitude, longitude, expected]) => it(`calls ${expected[0]} from the menu`, async () => {
    await feed();
    await page.forget();
    const entries = await page.menuAt(latitude, longitude);
    assert.ok(entries.includes(words[word]), `${words[word]} is among ${entries}`);
    await page.choose(words[word]);
    const calls = await page.callsOf(expected[0]);
    assert.strictEqual(calls.length, 1);
    assertCall(calls[0], expected);
    assert.strictEqual(await page.tab.isVisible('#menu'), false);
  }));

  it('sets the start from the menu', async () => {
    await page.menuAt(...nothing);
    await page.choose(words.startHere);
    assertCall((await page.callsOf('doMoveSIT'))[0], ['doMoveSIT', ...nothing]);
    assertCall((await page.callsOf('sAddSitToFp'))[0], ['sAddSitToFp', ...nothing]);
  });

  once('tells where the start marker is dropped', async () => {
    await page.run('addSitMarker(new google.maps.LatLng( 46.50000000,  2.50000000),"Cessna 172", 90);');
    await page.settle();
    await page.drag(await page.pixelOf(46.5, 2.5), await page.pixelOf(46.35, 2.75));
    assertCall((await page.callsOf('doMoveSIT'))[0], ['doMoveSIT', 46.35, 2.75]);
    assert.strictEqual(await page.run('map.getCenter().lat()'), 46.5);
  });

  once('zooms with the wheel about the pointer', async () => {
    const at = await page.pixelOf(...nothing);
    await page.tab.mouse.move(at.x, at.y);
    await page.tab.mouse.wheel(0, -120);
    await page.tab.waitForFunction(() => map.getZoom() === 10);
    assert.deepStrictEqual(await page.callsOf('doZoom'), [['doZoom', 10]]);
    const moved = await page.pixelOf(...nothing);
    assert.ok(Math.hypot(moved.x - at.x, moved.y - at.y) < 2);
    await page.tab.mouse.wheel(0, 120);
    await page.tab.waitForFunction(() => map.getZoom() === 9);
  });

  once('tells the centre while the map is dragged', async () => {
    const from = await page.pixelOf(...nothing);
    await page.drag(from, { x: from.x + 120, y: from.y - 60 });
    const calls = await page.callsOf('doCenter');
    const centre = await page.run('[map.getCenter().lat(), map.getCenter().lng()]');
    assert.deepStrictEqual(calls[calls.length - 1].slice(1), centre);
    // What lay under the pointer went with it.
    const to = await page.pixelOf(...nothing);
    assert.ok(Math.hypot(to.x - from.x - 120, to.y - from.y + 60) < 2);
  });

  once('tells what the pointer is over', async () => {
    await feed();
    const at = await page.pixelOf(46.7, 2.5);
    await page.tab.mouse.move(at.x + 90, at.y + 90);
    await page.tab.mouse.move(at.x, at.y);
    await page.tab.waitForFunction(() => window.calls.some(call => call[0] === 'doData' && /46° 4\d' .*RBT/.test(call[1])));
  });

  once('tells what comes under a still pointer and goes from there', async () => {
    const told = end => page.tab.waitForFunction(
      pattern => new RegExp(pattern).test((window.calls.filter(call => call[0] === 'doData').pop() || ['', ''])[1]), end);
    await feed();
    const at = await page.pixelOf(46.7, 2.5);
    await page.tab.mouse.move(at.x + 90, at.y + 90);
    await page.tab.mouse.move(at.x, at.y);
    await told('RBT');
    await page.run('VORMgr.clearMarkers()');
    await told('[EW]$');
    await page.run('VORMgr.addMarkers(listVOR)');
    await told('RBT');
  });

  once('opens the pop-up of the airport on which the start stands', async () => {
    await feed();
    await page.run('addSitMarker(listApt[0].position,"", 90);');
    const place = await page.run('[listApt[0].position.lat(), listApt[0].position.lng()]');
    await page.click(...place);
    await page.tab.waitForSelector('.leaflet-popup-content');
    assert.ok((await page.tab.textContent('.leaflet-popup-content')).includes(await page.run('listApt[0].getTitle()')));
  });

  once('draws the route and takes it away', async () => {
    const without = await page.pictureAt(46.5, 2.5);
    await page.run('clearFP();addPointToFp(new google.maps.LatLng(46.50000, 2.20000),"LFXX");'
      + 'addPointToFp(new google.maps.LatLng(46.50000, 2.80000),"LFYY");pushFP();');
    assert.notStrictEqual(await page.pictureAt(46.5, 2.5), without);
    await page.run('clearFP()');
    assert.strictEqual(await page.pictureAt(46.5, 2.5), without);
  });

  once('moves the aircraft and follows it', async () => {
    await page.run('addAcftMrkr(new google.maps.LatLng(46.50000, 2.50000),"",90);');
    const there = await page.pictureAt(46.5, 2.5);
    await page.run('setAcftMrkr(new google.maps.LatLng(46.60000, 2.60000),45.5);;'
      + 'map.setCenter(new google.maps.LatLng(46.60000, 2.60000));');
    assert.strictEqual(await page.run('map.getCenter().lat()'), 46.6);
    assert.notStrictEqual(await page.pictureAt(46.5, 2.5), there);
    await page.run('eraseAcftMrkr();');
  });

  once('walks the map with the arrows and zooms with plus and minus', async () => {
    await page.click(...nothing);
    await page.forget();
    await page.tab.keyboard.press('ArrowRight');
    await page.tab.waitForFunction(() => map.getCenter().lng() > 2.7);
    const calls = await page.callsOf('doCenter');
    assert.ok(calls[0][2] > 2.5);
    await page.tab.keyboard.press('+');
    await page.tab.waitForFunction(() => map.getZoom() === 10);
    await page.tab.keyboard.press('-');
    await page.tab.waitForFunction(() => map.getZoom() === 9);
    assert.deepStrictEqual((await page.callsOf('doZoom')).map(call => call[1]), [10, 9]);
  });

  once('opens and closes the menu with keys', async () => {
    await page.click(...nothing);
    await page.tab.keyboard.press('Shift+F10');
    await page.tab.waitForSelector('#menu', { state: 'visible' });
    await page.tab.keyboard.press('Escape');
    await page.tab.waitForSelector('#menu', { state: 'hidden' });
  });

  once('tells beside the pointer what it rests on', async () => {
    await feed();
    const at = await page.pixelOf(46.7, 2.5);
    await page.tab.mouse.move(at.x + 60, at.y + 60);
    await page.tab.mouse.move(at.x, at.y);
    const tip = await page.tab.waitForSelector('#tooltip', { state: 'visible' });
    assert.match(await tip.innerText(), /RBT[^]*RAMBOUILLET[^]*114[.,]7/);
  });

  once('goes from day to night and back', async () => {
    const day = await page.pictureAt(...nothing);
    await page.tab.click('#palette-switch');
    await page.tab.waitForFunction(() => document.body.classList.contains('palette-night'));
    assert.notStrictEqual(await page.pictureAt(...nothing), day);
    await page.tab.click('#palette-switch');
    await page.tab.waitForFunction(() => document.body.classList.contains('palette-day'));
    assert.strictEqual(await page.pictureAt(...nothing), day);
  });
}));

describe('without a program', () => {
  it('shows the map and offers what needs no program', async () => {
    const page = await MapPage.open(browser.context, 'gm_trajector_fr.html', []);
    await page.show(46.5, 2.5, 9);
    await page.run(airports);
    await page.settle();
    const entries = await page.menuAt(...nothing);
    assert.ok(entries.includes('Centrer ici'));
    assert.ok(!entries.includes('Nouveau waypoint ici…'));
    await page.choose('Centrer ici');
    assert.ok(Math.abs(await page.run('map.getCenter().lat()') - nothing[0]) < 0.004);
    assert.deepStrictEqual(page.faults, []);
    await page.close();
  });
});
