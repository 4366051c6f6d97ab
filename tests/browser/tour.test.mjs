// A tour of three panoramas in Chromium, exported by the reference host into one folder: walked
// through the thumbnail strip, the previous/next buttons (at the picture edges and in the toolbar)
// and the map's markers, each step checked by the new panorama's title and centre pixel, with
// "onexit" and "onscenechanged" run in that order and the tour's global sound and info box kept.
// The map: OpenStreetMap tiles served by the test (there is no network), three markers with the
// shown one highlighted, the radar turning with the view; without network, and with the Google
// script failing, the map says so in its area.
//
//   node tour.test.mjs TOOL WORKDIR NODE_MODULES
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { encodePng, exportPage, readParams, writeGradient, writeTone } from './fixtures.mjs';
import {
  H, W, handlerTexts, launchBrowser, openViewer, pixels, scriptRecorder, testArgs, viewerCall as call, writeHandlerLog,
} from './browser.mjs';
import { startServer } from './server.mjs';

const { tool, work, modules } = testArgs('tour.test.mjs');

// The panoramas: the blue of each picture tells them apart in the centre pixel.
const PLACES = [
  { name: 'harbour', title: 'Harbour', text: 'The harbour', blue: 32, location: '53.5400,9.9800,0' },
  { name: 'market', title: 'Market', text: 'The market', blue: 128, location: '53.5450,9.9900,90' },
  { name: 'tower', title: 'Tower', text: 'The tower', blue: 224, location: '53.5500,10.0000,180' },
];
const KEY = 'test-key-0123456789';
const b64 = (s) => Buffer.from(s, 'utf8').toString('base64');

// Two tours of the same three panoramas. "edge": previous/next at the picture edges, the strip
// above the toolbar, OpenStreetMap below it with the radar, hidden after a marker click, and the
// gyroscope's handlers. "strip": previous/next in the toolbar, the strip open from the start below
// the toolbar, a Google satellite map above it, no gyroscope.
const TOURS = {
  edge: ['[Toolbar]', 'TBDesign=2', '[Applet]', 'AddGallery=1', 'GalleryButtons=0', 'GalleryPosition=0',
    'GalleryThumbnailVisible=0', 'AddMap=1', 'MapType=3', 'MapPosition=1', 'MapRadar=1', 'MapHideOnMarker=1',
    'MapZoom=13', 'ShowInfoBox=1', 'InfoGlobal=1', 'AudioGlobal=1', 'AudioAutoplay=0', 'AddGyro=1'],
  strip: ['[Toolbar]', 'TBDesign=0', '[Applet]', 'AddGallery=1', 'GalleryButtons=1', 'GalleryPosition=1',
    'GalleryThumbnailVisible=1', 'AddMap=1', 'MapType=1', 'MapPosition=0', 'MapRadar=0', 'MapHideOnMarker=0',
    'MapVisible=0', 'ExtensionJS=1'],
};

function buildTours() {
  fs.rmSync(work, { recursive: true, force: true });
  const src = path.join(work, 'src');
  fs.mkdirSync(src, { recursive: true });
  const tone = path.join(src, 'tone.wav');
  writeTone(tone, 1);
  const info = b64('<b>About this tour</b>');
  for (const [tour, lines] of Object.entries(TOURS)) {
    for (const p of PLACES) {
      const picture = path.join(src, `${p.name}.ppm`);
      if (!fs.existsSync(picture)) writeGradient(picture, 1024, 512, p.blue);
      const preset = path.join(src, `${tour}-${p.name}.ini`);
      fs.writeFileSync(preset, [...lines, `GmAPIKey=${b64(KEY)}`, `ShortDescription64=${b64(p.text)}`,
        `InfoHTML64=${info}`, `Sound=${tone}`, 'ShowWebGLWarning=0', ''].join('\r\n'));
      // Each panorama joins the tour folder on its own, as a user adds them one by one: the
      // gallery file of the last export lists them all.
      exportPage(tool, [picture, '--settings', preset, '--title', p.title, '--location', p.location,
        '-o', path.join(work, tour, `${p.name}.html`)]);
    }
  }
}

const TILE_COLOUR = [170, 211, 223];
// The map tiles the test serves in place of OpenStreetMap's: one colour.
const TILE = encodePng(256, 256, () => TILE_COLOUR);

const until = (page, body, arg) => page.waitForFunction(
  ({ b, a }) => new Function('v', 'a', b)(vantoViewer.get('vantoViewerID'), a), { b: body, a: arg }, { timeout: 10000 });
const clickOn = (page, id) => page.locator(`#vantoViewerID .vanto-button[data-id="${id}"]`).click();
const near = (a, b, tolerance, what) => assert.ok(Math.abs(a - b) <= tolerance, `${what}: ${a}, expected ${b} ± ${tolerance}`);

// Counts the events the viewer fires, in order, from now on.
const WATCH_EVENTS = 'const fire = Object.getPrototypeOf(v).fire; v.fired = []; v.fire = function (n, ...a) { v.fired.push(n); return fire.call(v, n, ...a); };';

// The panorama shown: its parameter file, title, the strip's highlighted thumbnail, the events
// fired since the last look.
const SCENE = `
  const titles = [...v.root.querySelectorAll('.vanto-textbox')].map((n) => n.textContent);
  const current = [...v.root.querySelectorAll('.vanto-thumb[aria-current="true"]')].map((n) => n.getAttribute('aria-label'));
  const fired = v.fired.splice(0);
  return { file: v.baseUrl.split('/').pop(), titles, current, fired, gallery: v.gallery().current() };
`;

// The panoramas in the order of the tour's gallery file (the last exported first, then the
// folder's others as the directory lists them).
function galleryOrder(tour) {
  const folder = path.join(work, tour);
  const file = fs.readdirSync(folder).find((f) => f.startsWith('vantoViewerGallery.'));
  return readParams(path.join(folder, file)).gallery.map((e) => PLACES.find((p) => e.href.startsWith(`${p.name}.`)));
}

// Runs `step` (a click), then waits for the panorama `place` to be drawn and checks it.
async function expectScene(page, step, place, ext, what, order) {
  await step();
  await until(page, 'return v.baseUrl.endsWith(a);', `/${place.name}${ext}`);
  await page.evaluate(() => vantoViewer.get('vantoViewerID').sceneChange);
  const got = await call(page, SCENE);
  assert.ok(got.titles.includes(place.title), `${what}: title ${got.titles}`);
  assert.deepEqual(got.current, [place.text], `${what}: highlighted thumbnail`);
  assert.equal(got.gallery, order.indexOf(place), `${what}: gallery position`);
  const events = got.fired.filter((e) => e === 'onexit' || e === 'onscenechanged');
  assert.deepEqual(events, ['onexit', 'onscenechanged'], `${what}: events ${got.fired}`);
  // With the gyroscope's handlers "onexit" keeps its state for the next panorama.
  assert.equal(await call(page, 'return v.gyroWasEnabled;'), ext === '.json' ? false : undefined, `${what}: gyroscope state kept by "onexit"`);
  await centre(page, place, what);
}

// Through the strip to an end of the gallery, then over that end with previous/next and back, and
// one step further: every panorama visited, both wraps taken.
async function walk(page, order, ext, [previous, next]) {
  const n = order.length;
  const shown = order[await call(page, 'return v.gallery().current();')];
  const at = order[n - 1] !== shown ? n - 1 : 0;
  await expectScene(page, () => page.locator(`.vanto-thumb[aria-label="${order[at].text}"]`).click(), order[at], ext, 'strip click', order);
  let i = at;
  for (const [id, step] of at === n - 1 ? [[next, 1], [previous, -1], [previous, -1]] : [[previous, -1], [next, 1], [next, 1]]) {
    i = (i + step + n) % n;
    await expectScene(page, () => clickOn(page, id), order[i], ext, `${id} to ${order[i].name}`, order);
  }
  return order[i];
}

// The blue of a pixel of the picture is the panorama's: one left of the centre, clear of the
// title, the info box, the toolbar and the panels.
async function centre(page, place, what) {
  await page.evaluate(() => vantoViewer.get('vantoViewerID').settled());
  const [[, , blue]] = await pixels(page, [[40, 200]]);
  near(blue, place.blue, 24, `${what}: blue of the picture`);
}

const open = (page, id) => until(page, `const d = v.get('${id}'); return d.visible && !d.collapsing && d.height > 0;`);
const closed = (page, id) => until(page, `const d = v.get('${id}'); return !d.visible && !d.collapsing;`);

// Opens the page with the network `route` gives it, runs `body`, counts the texts that ran.
async function withPage(context, url, route, body) {
  const { page, errors } = await openViewer(context, url, { route });
  try {
    await body(page, errors);
  } finally {
    await recorder.add(page);
    await page.close();
  }
}

// Opens the map and waits for its message about the map server `server`.
async function mapMessage(page, errors, server) {
  await clickOn(page, 'mapbutton');
  await open(page, 'map');
  const message = page.locator('#vantoViewerID .vanto-mapmessage');
  await message.waitFor();
  assert.ok((await message.textContent()).includes(`no connection to the map server (${server})`), 'the map message');
  assert.ok(await message.isVisible(), 'the message shows');
  // Failed loads are the browser's notes, not the page's errors.
  assert.deepEqual(errors.filter((e) => !/Failed to load resource/.test(e)), [], 'errors in the page');
}

// Over the server: the strip, the edge buttons, the OpenStreetMap map with its radar and markers.
function walkEdgeTour(context, url) {
  return withPage(context, url, servedTiles, async (page, errors) => {
    await call(page, WATCH_EVENTS);
    await centre(page, PLACES[0], 'start');
    assert.equal(await call(page, 'return v.currentMBId;'), 'infobox', 'the info box opens at the start');
    const sound = "v.__sound = v.__sound || v.get('gAudio'); return v.get('gAudio') === v.__sound;";
    await call(page, sound);
    await clickOn(page, 'gallerybutton');
    await open(page, 'thumbnailGallery');
    const strip = await call(page, `const s = v.get('thumbnailGallery'); const t = v.get('toolbar');
      return { labels: [...s.node.querySelectorAll('.vanto-thumb')].map((n) => n.getAttribute('aria-label')),
        gap: t.node.getBoundingClientRect().top - s.node.getBoundingClientRect().bottom, height: s.height };`);
    near(strip.gap, 0, 1, 'the strip sits on the toolbar');
    assert.equal(strip.height, 112, 'strip height');
    const order = galleryOrder('edge');
    assert.deepEqual(strip.labels, order.map((p) => p.text), 'thumbnails with their short descriptions, in the order of the gallery file');
    const last = await walk(page, order, '.json', ['galleryBtnPrev', 'galleryBtnNext']);
    assert.ok(await call(page, sound), 'the global sound goes on');
    assert.equal(await call(page, 'return v.currentMBId;'), 'infobox', 'the global info box stays');

    // Hiding the toolbar closes the strip; showing it brings the edge buttons back.
    await clickOn(page, 'hideTbButton');
    await closed(page, 'thumbnailGallery');
    await until(page, "return v.get('showTbButton').visible;");
    await clickOn(page, 'showTbButton');
    await until(page, "const t = v.get('toolbar'); const b = v.get('galleryBtnNext'); return t.visible && b.visible && b.xoff === 8;");

    // The map opens below the toolbar, which moves up by its height; the strip makes room.
    await clickOn(page, 'gallerybutton');
    await open(page, 'thumbnailGallery');
    await clickOn(page, 'mapbutton');
    await open(page, 'map');
    await closed(page, 'thumbnailGallery');
    await until(page, "return document.querySelectorAll('#vantoViewerID .leaflet-tile-loaded').length > 0;");
    const map = await call(page, `const m = v.get('map');
      const markers = [...m.node.querySelectorAll('img.vanto-marker')];
      return { height: m.height,
        markers: markers.map((n) => n.title), active: markers.filter((n) => /pap_marker_lima\\.png$/.test(n.src)).map((n) => n.title),
        others: markers.filter((n) => /pap_marker_redorange\\.png$/.test(n.src)).length };`);
    near(map.height, Math.min(Math.max(H * 0.6, 96), H - 96), 1, 'map height');
    // The toolbar may still be sliding back from being hidden: it comes to stand on the map.
    await until(page, `const t = v.get('toolbar'); const m = v.get('map');
      return Math.abs(v.root.getBoundingClientRect().bottom - t.node.getBoundingClientRect().bottom - t.yoff - m.height) <= 1;`);
    assert.deepEqual(map.markers.sort(), PLACES.map((p) => p.text).sort(), 'one marker a panorama');
    assert.deepEqual(map.active, [last.text], 'the shown panorama highlighted');
    assert.equal(map.others, 2, 'the others in the plain marker picture');
    const [[r, g, b]] = await pixels(page, [[20, H - 40]]);
    assert.deepEqual([r, g, b].map((c, i) => Math.abs(c - TILE_COLOUR[i]) <= 8), [true, true, true], `map tiles drawn: ${[r, g, b]}`);

    // The radar cone turns with the view.
    const RADAR = "const c = v.root.querySelector('.vanto-radar'); if (!c) return null; const d = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;"
      + ' let ink = 0; for (let i = 3; i < d.length; i += 4) ink += d[i] > 0; return { ink, url: c.toDataURL() };';
    await until(page, "return !!v.root.querySelector('.vanto-radar');");
    const before = await call(page, RADAR);
    assert.ok(before.ink > 500, `radar drawn (${before.ink} pixels)`);
    await call(page, 'const w = v.getView(); v.setView(w.pan + 90, w.tilt, w.hfov);');
    await until(page, `const c = v.root.querySelector('.vanto-radar'); return c.toDataURL() !== a;`, before.url);

    // A marker click shows its panorama and hides the map.
    const other = order.find((p) => p !== last);
    await expectScene(page, () => page.locator(`img.vanto-marker[title="${other.text}"]`).click(), other, '.json', 'marker click', order);
    assert.deepEqual(await call(page, "return [...v.root.querySelectorAll('img.vanto-marker')].filter((n) => /lima/.test(n.src)).map((n) => n.title);"),
      [other.text], 'the highlight moves with the panorama');
    await closed(page, 'map');
    assert.deepEqual(errors, [], 'errors in the page');
  });
}

// From disk: the strip open from the start below the toolbar, previous/next in the toolbar.
function walkStripTour(context, url) {
  return withPage(context, url, failedGoogle, async (page, errors) => {
    await call(page, WATCH_EVENTS);
    await until(page, "const s = v.get('thumbnailGallery'); return s.visible && s.height === 112;");
    const lift = await call(page, `const t = v.get('toolbar'); const root = v.root.getBoundingClientRect();
      return root.bottom - t.node.getBoundingClientRect().bottom - Number(t.yoff);`);
    near(lift, 112, 1, 'the toolbar stands on the strip');
    await centre(page, PLACES[0], 'start');
    await walk(page, galleryOrder('strip'), '.js', ['navLeftButton', 'navRightButton']);
    // The context menu opens over the tour.
    await page.mouse.click(200, 150, { button: 'right' });
    await until(page, "return v.get('menu').visible;");
    await page.keyboard.press('Escape');
    // This design folds the toolbar away and leaves the strip.
    await clickOn(page, 'hideTbButton');
    await until(page, "return !v.get('toolbar').visible && v.get('thumbnailGallery').visible;");
    await clickOn(page, 'showTbButton');
    await until(page, "return v.get('toolbar').visible;");

    // The Google script cannot load: the map says so, asked with the file's key.
    await mapMessage(page, errors, 'Google Maps');
    assert.ok(googleAsked, 'the Google script was asked for');
    assert.equal(new URL(googleAsked).searchParams.get('key'), KEY, `the Google script asked with the key: ${googleAsked}`);
  });
}

// A stand-in for the Google Maps JavaScript API that keeps what the viewer makes of it.
const GOOGLE_STAND_IN = `(function () {
  const made = window.madeByViewer = { maps: [], markers: [] };
  function Map(element, options) { this.options = options; made.maps.push(this); }
  Map.prototype.panTo = function (at) { this.centre = at; };
  function Marker(options) { this.options = options; this.listeners = {}; made.markers.push(this); }
  Marker.prototype.addListener = function (name, f) { this.listeners[name] = f; };
  Marker.prototype.setIcon = function (icon) { this.icon = icon; };
  Marker.prototype.setZIndex = function (z) { this.z = z; };
  function Size(width, height) { this.width = width; this.height = height; }
  function Point(x, y) { this.x = x; this.y = y; }
  window.google = { maps: { Map, Marker, Size, Point } };
  window[new URL(document.currentScript.src).searchParams.get('callback')]();
})();`;
async function googleStandIn(page) {
  await offline(page);
  await page.route('https://maps.googleapis.com/**', (route) => route.fulfill({ contentType: 'text/javascript', body: GOOGLE_STAND_IN }));
}

// With the Google Maps API there: a satellite map, a marker a panorama in the file's pictures, the
// shown one active, a click on a marker showing its panorama.
function googleMap(context, url) {
  return withPage(context, url, googleStandIn, async (page, errors) => {
    await call(page, WATCH_EVENTS);
    const order = galleryOrder('strip');
    await clickOn(page, 'mapbutton');
    await open(page, 'map');
    await page.waitForFunction(() => window.madeByViewer && window.madeByViewer.markers.length > 0);
    const MADE = `const m = window.madeByViewer; return { type: m.maps[0].options.mapTypeId, markers: m.markers.map((k) => ({
      title: k.options.title, url: k.icon.url.split('/').pop(), size: [k.icon.scaledSize.width, k.icon.scaledSize.height] })) };`;
    const made = await call(page, MADE);
    assert.equal(made.type, 'satellite', 'map type');
    assert.deepEqual(made.markers.map((m) => m.title), order.map((p) => p.text), 'one marker a panorama');
    const shown = order[await call(page, 'return v.gallery().current();')];
    assert.deepEqual(made.markers.map((m) => m.url), order.map((p) => (p === shown ? 'pap_marker_lima.png' : 'pap_marker_redorange.png')),
      'the shown panorama in the active marker picture');
    assert.ok(made.markers.every((m) => m.size[0] === 30 && m.size[1] === 48), 'marker size from the file');
    const other = order.find((p) => p !== shown);
    await expectScene(page, () => call(page, 'window.madeByViewer.markers[a].listeners.click();', order.indexOf(other)),
      other, '.js', 'Google marker click', order);
    assert.equal((await call(page, MADE)).markers[order.indexOf(other)].url, 'pap_marker_lima.png', 'the highlight moves');
    assert.deepEqual(errors, [], 'errors in the page');
  });
}

// OpenStreetMap unreachable: the map says so.
function offlineMap(context, url) {
  return withPage(context, url, offline, (page, errors) => mapMessage(page, errors, 'OpenStreetMap'));
}

// The network as the tests see it: nothing but the loopback server, and OpenStreetMap's tiles
// from the test where the page is given them. (Later routes take precedence.)
async function offline(page) {
  await page.route(/^https?:\/\/(?!127\.0\.0\.1)/, (route) => route.abort('internetdisconnected'));
}
async function servedTiles(page) {
  await offline(page);
  await page.route('https://tile.openstreetmap.org/**', (route) => route.fulfill({ status: 200, contentType: 'image/png', body: TILE }));
}
let googleAsked = null;
async function failedGoogle(page) {
  await offline(page);
  await page.route('https://maps.googleapis.com/**', (route) => {
    googleAsked = route.request().url();
    return route.abort('internetdisconnected');
  });
}

const recorder = scriptRecorder();

async function main() {
  const started = Date.now();
  buildTours();
  const server = await startServer(work);
  const browser = await launchBrowser(modules, { width: W, height: H });
  let failures = 0;
  const run = async (label, body) => {
    try {
      await body();
      console.log(`ok - ${label}`);
    } catch (e) {
      failures++;
      console.log(`not ok - ${label}: ${e.stack || e.message}`);
    }
  };
  try {
    await run('edge tour over the server', () => walkEdgeTour(browser.context, `${server.url}/edge/harbour.html`));
    await run('strip tour from disk', () => walkStripTour(browser.context, pathToFileURL(path.join(work, 'strip', 'harbour.html')).href));
    await run('Google map', () => googleMap(browser.context, pathToFileURL(path.join(work, 'strip', 'market.html')).href));
    await run('OpenStreetMap unreachable', () => offlineMap(browser.context, `${server.url}/edge/market.html`));
  } finally {
    await browser.close();
    server.close();
  }
  writeHandlerLog('tour', handlerTexts(work), recorder.record);
  console.log(`# ${((Date.now() - started) / 1000).toFixed(1)} s`);
  process.exit(failures ? 1 : 0);
}

main().catch((e) => { console.error(e); process.exit(1); });
