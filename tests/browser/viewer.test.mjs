// The viewer in Chromium: exports pages with the reference host and opens each from disk and
// over a loopback server, waiting on the viewer's `ready`.
//
//   node viewer.test.mjs TOOL WORKDIR NODE_MODULES
import assert from 'node:assert/strict';
import path from 'node:path';
import fs from 'node:fs';
import { pathToFileURL } from 'node:url';
import { buildFixtures, readParams } from './fixtures.mjs';
import { startServer } from './server.mjs';
import { H, W, handlerTexts, launchBrowser, openViewer, pixels, scriptRecorder, testArgs, viewerCall, waitReady, writeHandlerLog } from './browser.mjs';

const { tool, work, modules } = testArgs('viewer.test.mjs');
const CENTRE = [W / 2, H / 2];

// Pan and tilt that a gradient colour encodes, for a picture of hextent x vextent degrees.
function measure([r, g], frame) {
  return { pan: (r / 255) * frame.hextent, tilt: frame.vextent / 2 - (g / 255) * frame.vextent };
}

function near(actual, expected, tolerance, what) {
  assert.ok(Math.abs(actual - expected) <= tolerance, `${what}: ${actual.toFixed(2)} is not ${expected} ± ${tolerance}`);
}

// Red and green of `actual` within `tolerance` of `expected`'s.
function nearColour(actual, expected, tolerance, what) {
  near(actual[0], expected[0], tolerance, `red ${what}`);
  near(actual[1], expected[1], tolerance, `green ${what}`);
}

const getView = (page) => viewerCall(page, 'return v.getView();');
const viewerBox = (page) => page.locator('#vantoViewerID').boundingBox();
const frames = (page, n) => page.evaluate((k) => new Promise((r) => { const f = () => (--k ? requestAnimationFrame(f) : r()); f(); }), n);

// Waits until the viewer has drawn a complete frame of its current view.
const settled = (page) => page.evaluate(() => vantoViewer.get('vantoViewerID').settled().then(() => true));

// Waits until every hotspot bitmap is loaded and placed.
async function hotspotsLoaded(page) {
  await page.waitForFunction(() => [...document.querySelectorAll('.vanto-hotspot img')].every((i) => i.complete && i.naturalWidth > 0));
  await settled(page);
}

async function centreView(page, frame) {
  const [c] = await pixels(page, [CENTRE]);
  return measure(c, frame);
}

function frameOf(params) {
  const image = params.node.image;
  return { hextent: image.hextent, vextent: image.vextent };
}

// Checks, each given { page, params, transport, errors }.
const CHECKS = {
  async startView({ page, params }) {
    const view = await centreView(page, frameOf(params));
    near(view.pan, params.node.view.pan, 3, 'pan at the centre');
    near(view.tilt, params.node.view.tilt, 3, 'tilt at the centre');
  },
  async setView({ page, params }) {
    await viewerCall(page, 'v.setView(90, 30, 60);');
    await settled(page);
    const view = await centreView(page, frameOf(params));
    near(view.pan, 90, 3, 'pan after setView');
    near(view.tilt, 30, 3, 'tilt after setView');
  },
  async keyboard({ page }) {
    const before = await getView(page);
    await page.locator('.vanto-root').focus();
    await page.keyboard.down('ArrowRight');
    await page.waitForFunction((p) => vantoViewer.get('vantoViewerID').getView().pan > p + 5, before.pan);
    await page.keyboard.up('ArrowRight');
    await page.keyboard.press('+');
    const after = await getView(page);
    assert.ok(after.hfov < before.hfov, `+ did not zoom in (${before.hfov} to ${after.hfov})`);
  },
  // "drag": the picture follows the pointer, so the colour first under it ends up under it again.
  async drag({ page }) {
    const box = await viewerBox(page);
    const from = [W * 0.4, H * 0.5];
    const to = [W * 0.6, H * 0.55];
    const [before] = await pixels(page, [from]);
    await page.mouse.move(box.x + from[0], box.y + from[1]);
    await page.mouse.down();
    await page.mouse.move(box.x + to[0], box.y + to[1], { steps: 5 });
    await page.mouse.up();
    await settled(page);
    const [after] = await pixels(page, [to]);
    nearColour(after, before, 6, 'under the dragged point');
  },
  // "move": the view turns while the button is held away from where it was pressed, and stops.
  async moveMode({ page }) {
    const box = await viewerBox(page);
    const start = (await getView(page)).pan;
    await page.mouse.move(box.x + W / 2, box.y + H / 2);
    await page.mouse.down();
    await page.mouse.move(box.x + W / 2 + 150, box.y + H / 2, { steps: 3 });
    await page.waitForFunction((p) => vantoViewer.get('vantoViewerID').getView().pan > p + 10, start);
    await page.mouse.up();
    const stopped = (await getView(page)).pan;
    await frames(page, 10);
    near((await getView(page)).pan, stopped, 0.01, 'pan after release');
  },
  // The gyroscope: orientation events make it available; enabled, it turns the view with the device.
  async gyroscope({ page }) {
    const orient = (alpha, beta, gamma) => page.evaluate((o) => window.dispatchEvent(new DeviceOrientationEvent('deviceorientation', o)), { alpha, beta, gamma });
    await viewerCall(page, 'v.checkForGyroscope();');
    await orient(0, 90, 0);
    assert.equal(await viewerCall(page, 'return v.gyroAvailable;'), true);
    await viewerCall(page, 'v.setView(100, 0, 90); v.enableGyroscope(true);');
    assert.equal(await viewerCall(page, 'return v.gyroscopeEnabled();'), true);
    await orient(0, 90, 0);
    await orient(-30, 120, 0);
    const view = await getView(page);
    near(view.pan, 130, 0.01, 'pan turned with the device');
    near(view.tilt, 30, 0.01, 'tilt raised with the device');
    await viewerCall(page, 'v.enableGyroscope(false);');
    await orient(0, 90, 0);
    near((await getView(page)).pan, 130, 0.01, 'pan after the gyroscope is off');
  },
  // The wheel zooms towards the pointer: the colour under it stays, the view narrows.
  async wheelZoom({ page }) {
    const box = await viewerBox(page);
    const at = [W * 0.3, H * 0.4];
    const [before] = await pixels(page, [at]);
    const hfov = (await getView(page)).hfov;
    await page.mouse.move(box.x + at[0], box.y + at[1]);
    await page.mouse.wheel(0, -300);
    await page.waitForFunction((h) => vantoViewer.get('vantoViewerID').getView().hfov < h * 0.9, hfov);
    await settled(page);
    const [after] = await pixels(page, [at]);
    nearColour(after, before, 4, 'under the pointer');
  },
  // Every hotspot sits where its position says: the start view's rectilinear projection of its
  // pan and tilt, or on a flat picture fitted to the window, its fraction of the picture.
  async hotspotPlaces({ page, params }) {
    await hotspotsLoaded(page);
    const box = await viewerBox(page);
    const spots = params.node.hotspot;
    const nodes = page.locator('.vanto-hotspot');
    assert.equal(await nodes.count(), spots.length, 'hotspot count');
    const rad = Math.PI / 180;
    for (let i = 0; i < spots.length; i++) {
      const [a, b] = spots[i].position.split(',').map(Number);
      let expected;
      if (spots[i].unit === 'norm') {
        const { width, height } = params.node.image;
        const scale = Math.min(W / width, H / height);
        expected = [W / 2 + (a - 0.5) * width * scale, H / 2 + (b - 0.5) * height * scale];
      } else {
        const v = params.node.view;
        const d = [Math.cos(b * rad) * Math.sin(a * rad), Math.sin(b * rad), Math.cos(b * rad) * Math.cos(a * rad)];
        const p = v.pan * rad;
        const t = v.tilt * rad;
        const right = [Math.cos(p), 0, -Math.sin(p)];
        const up = [-Math.sin(t) * Math.sin(p), Math.cos(t), -Math.sin(t) * Math.cos(p)];
        const fwd = [Math.cos(t) * Math.sin(p), Math.sin(t), Math.cos(t) * Math.cos(p)];
        const dot = (u, w) => u[0] * w[0] + u[1] * w[1] + u[2] * w[2];
        const k = W / 2 / Math.tan((v.hfov * rad) / 2);
        expected = [W / 2 + (k * dot(d, right)) / dot(d, fwd), H / 2 - (k * dot(d, up)) / dot(d, fwd)];
      }
      const img = await nodes.nth(i).locator('img').boundingBox();
      near(img.x + img.width / 2 - box.x, expected[0], 2, `hotspot ${i} x`);
      near(img.y + img.height / 2 - box.y, expected[1], 2, `hotspot ${i} y`);
    }
  },
  async limits({ page, params }) {
    const cam = params.node.camera;
    for (const [pan, tilt] of [[-500, 80], [500, -80], [0, 0]]) {
      await viewerCall(page, 'v.setView(a[0], a[1], 140);', [pan, tilt]);
      await settled(page);
      const view = await getView(page);
      assert.ok(view.pan - view.hfov / 2 >= cam.minpan - 0.01 && view.pan + view.hfov / 2 <= cam.maxpan + 0.01,
        `pan ${view.pan} with hfov ${view.hfov} leaves ${cam.minpan}..${cam.maxpan}`);
      const corners = await pixels(page, [[2, 2], [W - 3, 2], [2, H - 3], [W - 3, H - 3]]);
      for (const c of corners) assert.ok(c[0] + c[1] + c[2] > 40, `a corner shows no picture (${c}) at ${pan},${tilt}`);
    }
  },
  async fitsWindow({ page }) {
    // 3000 x 2000 in 800 x 600: 800 x 533 in the middle, bars above and below.
    const [centre, bar, topLeft, bottomRight] = await pixels(page, [CENTRE, [W / 2, 10], [4, 38], [W - 5, H - 38]]);
    nearColour(centre, [128, 128], 6, 'at the centre');
    assert.ok(bar[0] + bar[1] + bar[2] < 20, `the bar above the picture is not black (${bar})`);
    assert.ok(topLeft[0] < 12 && topLeft[1] < 12, `top left corner of the picture (${topLeft})`);
    assert.ok(bottomRight[0] > 243 && bottomRight[1] > 243, `bottom right corner of the picture (${bottomRight})`);
  },
  async showsPicture({ page }) {
    const [c] = await pixels(page, [CENTRE]);
    assert.ok(c[0] + c[1] + c[2] > 40, `the centre is black (${c})`);
  },
  async title({ page, params }) {
    const shown = await page.locator('.vanto-textbox').allInnerTexts();
    assert.ok(shown.includes(params.node.textbox[0].text), `title not shown: ${JSON.stringify(shown)}`);
  },
  async infoHotspot({ page }) {
    const info = page.locator('.vanto-hotspot').filter({ has: page.locator('img[alt="About the hall"]') });
    await info.click();
    const box = page.locator('.vanto-textbox', { hasText: 'Built in 1890' });
    await box.waitFor({ state: 'visible' });
    assert.match(await viewerCall(page, 'return v.currentMBId;'), /^hsinfo\d+$/);
    await box.click();
    await box.waitFor({ state: 'detached' });
    assert.equal(await viewerCall(page, 'return v.currentMBId;'), null);
    // From the keyboard: Enter on the focused hotspot opens the box, and again closes it.
    await info.focus();
    await page.keyboard.press('Enter');
    await box.waitFor({ state: 'visible' });
    await page.keyboard.press('Enter');
    await box.waitFor({ state: 'detached' });
  },
  async linkHotspot({ page }) {
    await page.locator('.vanto-hotspot').filter({ has: page.locator('img[alt="To the garden"]') }).click();
    await page.waitForURL(/garden\.html$/);
    assert.equal(await waitReady(page), 'ready');
    const [c] = await pixels(page, [CENTRE]);
    near(c[2], 224, 12, 'blue of the garden at the centre');
  },
  async autoplay({ page }) {
    assert.equal(await viewerCall(page, 'return v.isPlaying();'), true);
    const start = (await getView(page)).pan;
    await page.waitForFunction((p) => Math.abs(vantoViewer.get('vantoViewerID').getView().pan - p) > 3, start);
    const box = await viewerBox(page);
    await page.mouse.move(box.x + W / 2, box.y + H / 2);
    await page.mouse.down();
    await page.mouse.up();
    assert.equal(await viewerCall(page, 'return v.isPlaying();'), false);
    const stopped = (await getView(page)).pan;
    await frames(page, 20);
    near((await getView(page)).pan, stopped, 0.01, 'pan after input');
  },
  async noticeCloses({ page, via }) {
    if (via !== 'file') return;
    await page.locator('.vanto-notice button').click();
    assert.equal(await page.locator('.vanto-notice').count(), 0, 'the notice stays after its close button');
  },
  // Full screen: the viewer's element fills the screen and the viewer draws at that size.
  async fullscreen({ page }) {
    assert.equal(await viewerCall(page, 'return v.fullscreenSupported();'), true);
    await viewerCall(page, 'v.toggleFullscreen();');
    await page.waitForFunction(() => document.fullscreenElement === document.getElementById('vantoViewerID'));
    await settled(page);
    const size = await viewerCall(page, 'return [v.width(), v.height(), window.innerWidth, window.innerHeight];');
    assert.deepEqual(size.slice(0, 2), size.slice(2), 'viewer size in full screen');
    await viewerCall(page, 'v.toggleFullscreen();');
    await page.waitForFunction(() => !document.fullscreenElement);
  },
  async throwingHandler({ page, errors }) {
    await viewerCall(page, `v.handlers.onscenechanged = "function(){ throw new Error('boom'); }"; v.fire('onscenechanged');`);
    const reported = errors.splice(0).join('\n');
    assert.match(reported, /onscenechanged handler of "mainEvents" failed/, 'a throwing handler is reported');
    await viewerCall(page, 'v.setView(30, 0, 80);');
    await settled(page);
    near((await getView(page)).pan, 30, 0.01, 'pan after a throwing handler');
  },
  // An embedded bitmap 20 degrees wide, 15 degrees right of the view's centre on the horizon,
  // spans the screen columns of pan 5 to 25 degrees right of the centre.
  async embedded({ page, params }) {
    await hotspotsLoaded(page);
    const box = await viewerBox(page);
    const img = await page.locator('.vanto-hotspot img[alt="To the garden"]').boundingBox();
    const k = W / 2 / Math.tan((params.node.view.hfov * Math.PI) / 360);
    near(img.x - box.x, W / 2 + k * Math.tan((5 * Math.PI) / 180), 2, 'left edge');
    near(img.x + img.width - box.x, W / 2 + k * Math.tan((25 * Math.PI) / 180), 2, 'right edge');
  },
  // The lens flare's glow is centred on its pan and tilt.
  async lensFlare({ page, params }) {
    const box = await viewerBox(page);
    const glow = await page.locator('.vanto-flare').boundingBox();
    const flare = params.node.lensflare[0];
    const k = W / 2 / Math.tan((params.node.view.hfov * Math.PI) / 360);
    const rad = Math.PI / 180;
    const dp = (flare.pan - params.node.view.pan) * rad;
    const t = flare.tilt * rad;
    const x = W / 2 + (k * Math.sin(dp)) / Math.cos(dp);
    const y = H / 2 - (k * Math.tan(t)) / Math.cos(dp);
    near(glow.x + glow.width / 2 - box.x, x, 2, 'glow x');
    near(glow.y + glow.height / 2 - box.y, y, 2, 'glow y');
  },
  // An animation strip steps through its frames.
  async animationStrip({ page }) {
    const strip = page.locator('.vanto-hotspot[aria-label="Strip"] div').first();
    await strip.waitFor();
    const first = await strip.evaluate((d) => getComputedStyle(d).backgroundPositionX);
    await page.waitForFunction(([, x]) => {
      const d = document.querySelector('.vanto-hotspot[aria-label="Strip"] div');
      return getComputedStyle(d).backgroundPositionX !== x;
    }, [null, first]);
  },
  async twoViewers({ page }) {
    const ids = await page.evaluate(async () => {
      const viewers = [vantoViewer.get('vantoViewerID'), vantoViewer.get('second')];
      await Promise.all(viewers.map((v) => v.ready));
      return viewers.map((v) => v.node.id);
    });
    assert.deepEqual(ids, ['hall', 'garden']);
  },
  // The logo shows its picture with its link; the sound plays, at the latest after the first click.
  async logoAndSound({ page, params }) {
    const logo = page.locator('.vanto-logo');
    assert.equal(await logo.getAttribute('href'), params.logo.href);
    assert.ok(await logo.locator('img').evaluate((img) => img.complete && img.naturalWidth > 0), 'logo picture not loaded');
    const box = await viewerBox(page);
    await page.mouse.click(box.x + W / 2, box.y + H / 2);
    await page.waitForFunction(() => vantoViewer.get('vantoViewerID').get('lAudio').isPlaying());
  },
  // The little-planet intro of the controls file: it starts in the little-planet view with input
  // locked, then turns and zooms into the start view and gives input back.
  async intro(args) {
    const { page } = args;
    assert.equal(await viewerCall(page, 'return v.fisheyeDistortion();'), 1);
    assert.equal(await viewerCall(page, 'return v.isLocked();'), true);
    await page.waitForFunction(() => {
      const v = vantoViewer.get('vantoViewerID');
      return v.fisheyeDistortion() === 0 && !v.isLocked();
    }, null, { timeout: 15000 });
    await settled(page);
    await CHECKS.startView(args);
  },
  async errorShown({ page, outcome, name, language }) {
    assert.match(outcome, /^failed: /);
    const message = await page.locator('#vantoViewerID .vanto-error').innerText();
    assert.ok(message.includes(`${name}.json`), `message "${message}" does not name the file`);
    assert.match(message, language === 'de-DE' ? /konnte nicht geladen werden/ : /could not be loaded/);
  },
};

// Pages, the ways they are opened, and what each must show.
const CASES = [
  { dir: 'sample', page: 'sample.html', via: ['file', 'http', 'nosniff'], checks: ['showsPicture'] },
  { dir: 'big', page: 'big.html', via: ['file', 'nosniff'], checks: ['startView', 'setView', 'keyboard', 'wheelZoom', 'drag', 'gyroscope'] },
  { dir: 'partial', page: 'partial.html', via: ['file', 'http'], checks: ['startView', 'limits', 'noticeCloses'] },
  { dir: 'tiny', page: 'tiny.html', via: ['file', 'http'], checks: ['showsPicture', 'fullscreen', 'throwingHandler'] },
  { dir: 'flat', page: 'flat.html', via: ['file', 'nosniff'], checks: ['fitsWindow', 'hotspotPlaces', 'wheelZoom'] },
  { dir: 'media', page: 'media.html', via: ['file', 'http'], checks: ['logoAndSound'] },
  { dir: 'intro', page: 'intro.html', via: ['nosniff'], checks: ['intro'] },
  { dir: 'autoplay', page: 'turn.html', via: ['http'], checks: ['autoplay', 'moveMode'] },
  { dir: 'tour', page: 'hall.html', via: ['file', 'nosniff'], checks: ['title', 'startView', 'hotspotPlaces', 'infoHotspot', 'linkHotspot'] },
  { dir: 'tour', page: 'embedded.html', via: ['file', 'nosniff'], checks: ['embedded', 'lensFlare', 'animationStrip'] },
  { dir: 'tour', page: 'two.html', via: ['file', 'nosniff'], checks: ['twoViewers'] },
  { dir: 'errors', page: 'missing.html', via: ['file', 'http'], checks: ['errorShown'], failure: 'missing' },
  { dir: 'errors', page: 'missing.html', via: ['http'], checks: ['errorShown'], failure: 'missing', language: 'de-DE' },
  { dir: 'errors', page: 'broken.html', via: ['file', 'nosniff'], checks: ['errorShown'], failure: 'broken' },
];

function paramsOf(dir, page) {
  const html = fs.readFileSync(path.join(work, dir, page), 'utf8');
  const [, file, options] = html.match(/vantoViewer\.insert\("vantoViewerID","([^"]+)",\{(.*?)\}\);/);
  let params = null;
  try {
    params = readParams(path.join(work, dir, file));
  } catch (e) {
    // The error pages' files are missing or broken on purpose.
  }
  return { params, noticeOff: options.includes('disable_webgl_warning') };
}

async function main() {
  const started = Date.now();
  buildFixtures(tool, work);
  console.log(`fixtures exported in ${((Date.now() - started) / 1000).toFixed(1)} s`);
  const servers = { http: await startServer(work), nosniff: await startServer(work, { nosniff: true }) };
  const browser = await launchBrowser(modules);
  const scripts = scriptRecorder();
  let failures = 0;
  try {
    const probe = await browser.context.newPage();
    await probe.goto(`${servers.http.url}/tiny/tiny.html`);
    const renderer = await probe.evaluate(() => {
      const gl = document.createElement('canvas').getContext('webgl');
      const info = gl && gl.getExtension('WEBGL_debug_renderer_info');
      return info ? gl.getParameter(info.UNMASKED_RENDERER_WEBGL) : String(gl && gl.getParameter(gl.RENDERER));
    });
    console.log(`WebGL renderer: ${renderer}`);
    assert.match(renderer, /SwiftShader/i, 'software WebGL expected');
    await probe.close();

    for (const c of CASES) {
      const { params, noticeOff } = paramsOf(c.dir, c.page);
      for (const via of c.via) {
        const url = via === 'file' ? pathToFileURL(path.join(work, c.dir, c.page)).href : `${servers[via].url}/${c.dir}/${c.page}`;
        const label = `${c.dir}/${c.page} over ${via}${c.language ? ` in ${c.language}` : ''}`;
        let opened;
        try {
          opened = await openViewer(browser.context, url, { expectFailure: !!c.failure, language: c.language });
          const { page, errors, outcome } = opened;
          if (!c.failure) {
            const webgl = await viewerCall(page, 'return v.webglAvailable;');
            assert.equal(webgl, via !== 'file', 'WebGL used exactly where pixels of the tiles may be read');
            const notices = await page.locator('.vanto-notice').count();
            assert.equal(notices, !webgl && !noticeOff ? 1 : 0, 'WebGL notice');
          }
          for (const check of c.checks) await CHECKS[check]({ page, params, via, errors, outcome, name: c.failure, language: c.language });
          if (!c.failure) assert.deepEqual(errors, [], 'errors in the page');
          console.log(`ok   ${label}: ${c.checks.join(', ')}`);
        } catch (e) {
          failures++;
          console.log(`FAIL ${label}: ${e.message}`);
        } finally {
          if (opened) {
            if (!c.failure) await scripts.add(opened.page);
            await opened.page.close();
          }
        }
      }
    }
  } finally {
    await browser.close();
    servers.http.close();
    servers.nosniff.close();
  }
  writeHandlerLog('viewer', handlerTexts(work), scripts.record);
  console.log(`${failures ? 'FAILED' : 'passed'} in ${((Date.now() - started) / 1000).toFixed(1)} s`);
  process.exit(failures ? 1 : 0);
}

main().catch((e) => { console.error(e); process.exit(1); });
