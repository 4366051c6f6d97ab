// The compass and radar, VR, the keyboard and the little planet in Chromium, on pages exported by
// the reference host: every instrument kind at every place the library puts it, turning with the
// view and turning the view north; the split-screen VR view entered and left; Tab order, names and
// Escape; the gyroscope's permission question, a gamepad, and the little planet in both back-ends.
// Writes the handler log that the suite-wide count of handler texts reads.
//
//   node orientation.test.mjs TOOL WORKDIR NODE_MODULES
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { exportPage, freshWork, readParams } from './fixtures.mjs';
import { H, W, checkPage, handlerTexts, launchBrowser, pixels, testArgs, viewerCall as call, writeHandlerLog } from './browser.mjs';
import { startServer } from './server.mjs';

const { tool, work, modules } = testArgs('orientation.test.mjs');
const NORTH = 30;

function preset(dir, name, lines) {
  const file = path.join(dir, `${name}.ini`);
  fs.writeFileSync(file, `${lines.join('\r\n')}\r\n`);
  return file;
}

function buildPages() {
  const { src, picture } = freshWork(work);
  const pages = [];
  // Each kind once, the three places and the eight designs in turn, every other one turning north.
  for (let kind = 0; kind < 12; kind++) {
    const spec = { kind, position: kind % 3, design: kind % 8, north: kind % 2 === 0, name: `k${kind}` };
    const file = preset(src, spec.name, ['[Toolbar]', `TBDesign=${spec.design}`, '[Applet]', 'AddToolbar=1', 'ShowToolbar=1',
      'AddOrientation=1', `OrientationElement=${kind}`, `OrientationElementPosition=${spec.position}`,
      `PositionNorth=${spec.north ? 1 : 0}`, 'ShowWebGLWarning=0']);
    exportPage(tool, [picture, '--settings', file, '--location', `48.1,11.5,${NORTH}`, '-o', path.join(work, spec.name, 'room.html')]);
    // The element as the file has it: over the picture, or an item of the toolbar.
    const controls = readParams(path.join(work, spec.name, 'room_controls.json'));
    const element = (controls.orientation || [])[0] || [].concat(controls.buttonBox)[0].button.find((b) => b.id === 'compass');
    pages.push({ ...spec, element, dir: path.join(work, spec.name) });
  }
  // VR, gyroscope, info box and the design whose button styles use the old gradient syntax.
  const info = Buffer.from('<b>About this room</b>', 'utf8').toString('base64');
  const vr = preset(src, 'vr', ['[Toolbar]', 'TBDesign=5', '[Applet]', 'AddToolbar=1', 'ShowToolbar=1', 'AddVrMode=1',
    'AddGyro=1', 'GyroButton=1', 'ShowZoomButtons=1', 'ShowToolbarFullscreen=1', 'AddOrientation=1', 'OrientationElement=0',
    'PositionNorth=1', `InfoHTML64=${info}`, 'ShowInfoBox=0', 'ShowWebGLWarning=0']);
  exportPage(tool, [picture, '--settings', vr, '--location', `48.1,11.5,${NORTH}`, '-o', path.join(work, 'vr', 'room.html')]);
  const intro = preset(src, 'intro', ['[Applet]', 'LittlePlanetIntro=1', 'ShowWebGLWarning=0']);
  exportPage(tool, [picture, '--settings', intro, '-o', path.join(work, 'intro', 'room.html')]);
  return pages;
}

const until = (page, body, timeout = 5000) => page.waitForFunction(
  (b) => new Function('v', b)(vantoViewer.get('vantoViewerID')), body, { timeout });

// The instrument's place, size, ink and turn.
const INSPECT = `
  const c = v.get('compass');
  const root = v.root.getBoundingClientRect();
  const r = c.node.getBoundingClientRect();
  const ink = (canvas) => { const d = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height).data;
    let n = 0; for (let i = 3; i < d.length; i += 4) n += d[i] > 32; return n; };
  const tb = v.get('toolbar');
  return { root: { left: root.left, right: root.right, top: root.top, middle: (root.top + root.bottom) / 2 },
    r: { left: r.left, right: r.right, top: r.top, middle: (r.top + r.bottom) / 2, width: r.width, height: r.height },
    visible: c.visible, shown: c.node.style.display !== 'none', face: ink(c.face), layer: ink(c.layer),
    tag: c.node.tagName, label: c.node.getAttribute('aria-label'), inToolbar: !!c.toolbar,
    toolbarOrder: tb ? tb.buttons.filter((b) => b.node.style.display !== 'none')
      .sort((x, y) => x.node.getBoundingClientRect().left - y.node.getBoundingClientRect().left).map((b) => b.id || 'type' + b.type) : [] };
`;

// Where each "align" puts the element, "xoff" and "yoff" from its edges, within a pixel.
const PLACES = {
  lefttop: ({ root, r }, x, y) => Math.abs(r.left - root.left - x) <= 1 && Math.abs(r.top - root.top - y) <= 1,
  left: ({ root, r }, x, y) => Math.abs(r.left - root.left - x) <= 1 && Math.abs(r.middle - root.middle - y) <= 1,
  right: ({ root, r }, x, y) => Math.abs(root.right - x - r.right) <= 1 && Math.abs(r.middle - root.middle - y) <= 1,
};

// The drawn turn: the needle's or dial's rotation, or where the radar's sector has ink (probed on
// its layer at 60% of the radius, every 10 degrees clockwise from the top).
const TURN = `
  const c = v.get('compass');
  if (c.type !== 'radar') { const m = /rotate\\((-?[\\d.e-]+)deg\\)/.exec(c.layer.style.transform); return m ? Number(m[1]) : null; }
  const d = c.layer.getContext('2d').getImageData(0, 0, c.layer.width, c.layer.height).data;
  const half = c.layer.width / 2; const hits = [];
  for (let a = 0; a < 360; a += 10) {
    const x = Math.round(half + Math.sin(a * Math.PI / 180) * half * 0.6); const y = Math.round(half - Math.cos(a * Math.PI / 180) * half * 0.6);
    if (d[(y * c.layer.width + x) * 4 + 3] > 16) hits.push(a);
  }
  return hits;
`;

const angleGap = (a, b) => Math.abs(((a - b) % 360 + 540) % 360 - 180);

async function checkInstrument(page, p) {
  const el = p.element;
  const what = `kind ${p.kind} (${el.type}), design ${p.design}`;
  const got = await call(page, INSPECT);
  assert.ok(got.visible && got.shown, `${what}: not shown although north is known`);
  assert.ok(got.face > 20, `${what}: blank face`);
  if (el.type !== 'radar') assert.ok(got.layer > 20, `${what}: blank needle or dial`);
  if (p.kind >= 10) {
    assert.ok(got.inToolbar, `${what}: not in the toolbar`);
    assert.deepEqual(got.toolbarOrder.slice(0, 2), ['hideTbButton', 'compass'], `${what}: toolbar order ${got.toolbarOrder}`);
  } else {
    assert.ok(PLACES[el.align](got, el.xoff, el.yoff), `${what}: ${el.align}: ${JSON.stringify(got.r)} in ${JSON.stringify(got.root)}`);
    assert.ok(Math.abs(got.r.width - el.width) <= 0.5 && Math.abs(got.r.height - el.height) <= 0.5, `${what}: size ${got.r.width}`);
  }
  assert.equal(got.tag, p.north ? 'BUTTON' : 'DIV', `${what}: a click turns north only with PositionNorth`);
  assert.match(got.label, p.north ? /^(Compass|Radar): turn the view to north$/ : /^(Compass|Radar)$/, `${what}: name`);

  // It follows the pan: north at pan NORTH + d lies d degrees anticlockwise from the top.
  for (const d of [0, 90, -135]) {
    await call(page, 'v.setView(a, 0, 80);', NORTH + d);
    await call(page, 'return v.settled();');
    const turn = await call(page, TURN);
    if (el.type === 'radar') {
      // The sector looks d degrees clockwise from north and is 80 degrees wide.
      const centre = (d + 360) % 360;
      // (Small sectors blur at their edges: the middle of the probes that hit must be right.)
      const mean = Math.atan2(...['sin', 'cos'].map((f) => turn.reduce((sum, a) => sum + Math[f]((a * Math.PI) / 180), 0))) * (180 / Math.PI);
      assert.ok(turn.length >= 5 && angleGap(mean, centre) <= 10 && turn.every((a) => angleGap(a, centre) <= 55), `${what}: sector at ${turn} for ${centre}`);
    } else {
      assert.ok(turn !== null && angleGap(turn, -d) < 0.5, `${what}: turned ${turn} for pan north ${d >= 0 ? '+' : ''}${d}`);
    }
  }
  if (p.kind === 1) {
    // At two device pixels per CSS pixel both layers are painted at twice the size, with ink.
    const cdp = await page.context().newCDPSession(page);
    await cdp.send('Emulation.setDeviceMetricsOverride', { width: W, height: H, deviceScaleFactor: 2, mobile: false });
    const sharp = await call(page, "const c = v.get('compass'); c.updateSkins(); return [c.face.width, c.layer.width];");
    assert.deepEqual(sharp, [2 * el.width, 2 * el.width], `${what}: layers at a pixel ratio of 2`);
    const inked = await call(page, INSPECT);
    assert.ok(inked.face > 3 * got.face && inked.layer > 3 * got.layer, `${what}: ink at 2x ${inked.face}, ${inked.layer}`);
  }
  if (p.north) {
    await page.locator('#vantoViewerID [data-id="compass"]').click();
    await until(page, `return Math.abs(((v.getView().pan - ${NORTH}) % 360 + 540) % 360 - 180) < 0.5 && !v.move;`);
  }
}

const visibleIds = "return ['toolbar', 'compass', 'leftStereoButton', 'rightStereoButton'].filter((id) => v.get(id) && v.get(id).visible);";

// Split screen: both halves show the same picture, the handlers hide the toolbar and the compass
// and show the stereo buttons; the stereo button, Escape and the VR button leave it.
async function checkVR(page) {
  await until(page, "return v.get('vrButton').visible;");
  await page.evaluate(() => window.dispatchEvent(new DeviceOrientationEvent('deviceorientation', { alpha: 10, beta: 80, gamma: 0 })));
  await until(page, 'return v.gyroAvailable;');
  const mid = [[W / 4, H / 2], [(3 * W) / 4, H / 2]];
  const [a, b] = await pixels(page, mid);
  assert.ok(Math.abs(a[0] - b[0]) > 15, `one view: left ${a} and right ${b} differ`);
  for (const leave of ['stereo button', 'Escape', 'VR button by script']) {
    await page.locator('#vantoViewerID .vanto-button[data-id="vrButton"]').click();
    await until(page, 'return v.isVRModeEnabled();');
    await call(page, 'return v.settled();');
    assert.deepEqual(await call(page, visibleIds), ['leftStereoButton', 'rightStereoButton'], 'VR: shown elements');
    assert.ok(await call(page, 'return v.gyroscopeEnabled();'), 'VR: the gyroscope steers');
    const [l, r] = await pixels(page, mid);
    assert.ok(l.every((x, i) => Math.abs(x - r[i]) <= 3) && l[0] + l[1] > 40, `VR: halves differ: ${l} ${r}`);
    if (leave === 'stereo button') await page.locator('#vantoViewerID .vanto-button[data-id="leftStereoButton"]').click();
    else if (leave === 'Escape') await page.keyboard.press('Escape');
    else await call(page, "v.get('vrButton').onclick();");
    await until(page, 'return !v.isVRModeEnabled();');
    assert.deepEqual(await call(page, visibleIds), ['toolbar', 'compass'], `VR left by ${leave}: shown elements`);
    assert.ok(!(await call(page, 'return v.gyroscopeEnabled();')), `VR left by ${leave}: the gyroscope stays on`);
  }
  await call(page, 'return v.settled();');
  const [c, d] = await pixels(page, mid);
  assert.ok(Math.abs(c[0] - d[0]) > 15, `after VR: left ${c} and right ${d} do not differ`);
}

// A WebXR headset, played by the test: the viewer draws both eyes into the session's framebuffer,
// looking where the view looked and turning with the headset.
const XR_SETUP = `
  const gl = v.renderer.gl;
  gl.makeXRCompatible = () => Promise.resolve();
  const texture = gl.createTexture();
  gl.bindTexture(gl.TEXTURE_2D, texture);
  gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA, 400, 200, 0, gl.RGBA, gl.UNSIGNED_BYTE, null);
  const framebuffer = gl.createFramebuffer();
  gl.bindFramebuffer(gl.FRAMEBUFFER, framebuffer);
  gl.framebufferTexture2D(gl.FRAMEBUFFER, gl.COLOR_ATTACHMENT0, gl.TEXTURE_2D, texture, 0);
  gl.bindFramebuffer(gl.FRAMEBUFFER, null);
  const layer = { framebuffer, framebufferWidth: 400, framebufferHeight: 200,
    getViewport: (view) => ({ x: view.eye === 'left' ? 0 : 200, y: 0, width: 200, height: 200 }) };
  window.XRWebGLLayer = function XRWebGLLayer() { return layer; };
  const listeners = {};
  const session = { addEventListener: (type, f) => { listeners[type] = f; }, updateRenderState: () => Promise.resolve(),
    requestReferenceSpace: () => Promise.resolve({}), requestAnimationFrame: (f) => { window.xrFrame = f; },
    end: () => { listeners.end(); return Promise.resolve(); } };
  Object.defineProperty(navigator, 'xr', { configurable: true, value: { requestSession: () => Promise.resolve(session) } });
  v.xrSupported = true;
  // Draws a frame with the headset turned by the quaternion q; the centre pixels of both eyes.
  window.xrDraw = (q) => {
    const views = ['left', 'right'].map((eye) => ({ eye, transform: { orientation: q }, projectionMatrix: [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -1, -1, 0, 0, -0.2, 0] }));
    window.xrFrame(0, { getViewerPose: () => ({ views }) });
    gl.bindFramebuffer(gl.FRAMEBUFFER, framebuffer);
    const out = new Uint8Array(8);
    gl.readPixels(100, 100, 1, 1, gl.RGBA, gl.UNSIGNED_BYTE, out.subarray(0, 4));
    gl.readPixels(300, 100, 1, 1, gl.RGBA, gl.UNSIGNED_BYTE, out.subarray(4));
    gl.bindFramebuffer(gl.FRAMEBUFFER, null);
    return [Array.from(out.slice(0, 3)), Array.from(out.slice(4, 7))];
  };
`;

async function checkXR(page) {
  await call(page, 'v.setView(100, 0, 90); return v.settled();');
  await call(page, XR_SETUP);
  await call(page, 'v.enterVRMode();');
  await until(page, "return v.isVRModeEnabled() && !!window.xrFrame && !v.get('toolbar').visible && v.get('leftStereoButton').visible;");
  const red = (pan) => (pan / 360) * 255;
  const ahead = await page.evaluate(() => window.xrDraw({ x: 0, y: 0, z: 0, w: 1 }));
  // Turned 90 degrees to the right (about the vertical axis, which points up in WebXR).
  const right = await page.evaluate(() => window.xrDraw({ x: 0, y: -Math.SQRT1_2, z: 0, w: Math.SQRT1_2 }));
  for (const [what, eyes, pan] of [['ahead', ahead, 100], ['turned right', right, 190]]) {
    for (const c of eyes) assert.ok(Math.abs(c[0] - red(pan)) <= 6 && Math.abs(c[1] - 128) <= 6, `WebXR ${what}: ${c}, expected red ${red(pan)}`);
  }
  await call(page, 'v.exitVRMode();');
  await until(page, "return !v.isVRModeEnabled() && v.get('toolbar').visible;");
}

// Tab walks every shown button left to right with a ring and a name, then the compass.
async function checkKeyboard(page) {
  await page.locator('.vanto-root').focus();
  const walk = [];
  for (let i = 0; i < 20; i++) {
    await page.keyboard.press('Tab');
    const f = await page.evaluate(() => {
      const e = document.activeElement;
      if (!e || !e.closest('#vantoViewerID') || !e.dataset.id) return null;
      return { id: e.dataset.id, name: e.getAttribute('aria-label'), ring: getComputedStyle(e).outlineStyle, x: e.getBoundingClientRect().left };
    });
    if (!f) break;
    walk.push(f);
  }
  const order = await call(page, INSPECT);
  assert.deepEqual(walk.map((f) => f.id), [...order.toolbarOrder, 'compass'], 'Tab order');
  assert.deepEqual(walk.filter((f) => !f.name || f.name.length < 3 || f.ring !== 'solid'), [], 'buttons without a name or ring');
  // Enter on the info button opens the info box, Escape closes it; Escape closes the menu.
  await page.locator('#vantoViewerID .vanto-button[data-id="infobutton"]').focus();
  await page.keyboard.press('Enter');
  await until(page, "return v.currentMBId === 'infobox';");
  assert.match(await call(page, "return v.get('infobox').node.getAttribute('role') + ': ' + v.get('infobox').node.textContent;"),
    /^status: [^]*About this room/, 'the info box is not read out');
  await page.keyboard.press('Escape');
  await until(page, 'return !v.currentMBId;');
  await page.mouse.click(W / 2, H / 3, { button: 'right' });
  await until(page, "return v.get('menu').visible;");
  await page.keyboard.press('Escape');
  await until(page, "return !v.get('menu').visible;");
}

// The old gradient syntax of design 5's buttons draws as the gradient it means.
async function checkGradients(page) {
  const bg = await call(page, "return getComputedStyle(v.get('infobutton').node).backgroundImage;");
  assert.match(bg, /^linear-gradient\(rgb\(145, 150, 147\) 0%/, `design 5 button background: ${bg}`);
}

// The iOS question for the device's orientation comes with the first tap; the answer lets the
// events in and the gyroscope button shows itself. A gamepad's stick turns the view, its second
// button leaves VR mode.
async function checkDevices(page) {
  assert.equal(await page.evaluate(() => window.orientationAsked), 0, 'asked before a tap');
  await page.mouse.click(W / 2, H / 4);
  await page.waitForFunction(() => window.orientationAsked === 1);
  await page.evaluate(() => window.dispatchEvent(new DeviceOrientationEvent('deviceorientation', { alpha: 10, beta: 80, gamma: 0 })));
  await until(page, "return v.gyroAvailable && v.get('gyrobutton').visible;");
  const before = await call(page, 'return v.getView().pan;');
  await page.evaluate(() => {
    window.fakePads = [{ connected: true, axes: [0.9, 0, 0, 0], buttons: [] }];
    window.dispatchEvent(new Event('gamepadconnected'));
  });
  await until(page, `return ((v.getView().pan - ${before}) + 360) % 360 > 5 && ((v.getView().pan - ${before}) + 360) % 360 < 180;`);
  await page.evaluate(() => { window.fakePads = []; });
  // Its second button leaves VR mode.
  await call(page, 'v.enterVRMode();');
  await until(page, 'return v.isVRModeEnabled();');
  await page.evaluate(() => {
    window.fakePads = [{ connected: true, axes: [0, 0, 0, 0], buttons: [{ pressed: false, value: 0 }, { pressed: true, value: 1 }] }];
    window.dispatchEvent(new Event('gamepadconnected'));
  });
  await until(page, 'return !v.isVRModeEnabled();');
  await page.evaluate(() => { window.fakePads = []; });
}

// The little-planet intro starts in the little-planet view and ends in the start view; the
// little-planet view itself draws in both back-ends.
async function checkIntro(page, what, hfov) {
  await until(page, `return v.fisheyeDistortion() === 0 && !v.move && !v.tweens.running && Math.abs(v.getView().hfov - ${hfov}) < 1;`, 15000);
  await call(page, 'v.setFisheyeDistortion(1); v.setView(0, 90, 150); return v.settled();');
  const corners = await pixels(page, [[W / 2, H / 2], [20, 20], [W - 20, H - 20]]);
  assert.ok(corners.every((c) => c[0] + c[1] + c[2] > 60), `${what}: little planet has black places: ${JSON.stringify(corners)}`);
}

async function main() {
  const started = Date.now();
  const pages = buildPages();
  // Every drawing and every place the library writes is among them.
  const seen = (f) => [...new Set(pages.map(f))].sort().join(',');
  assert.equal(seen((p) => p.element.type), 'compass,dial,radar');
  assert.equal(seen((p) => `${p.element.align}${p.element.index === 2 ? ' in the toolbar' : ''}`), 'left,left in the toolbar,lefttop,right');
  const server = await startServer(work);
  const browser = await launchBrowser(modules, { width: W, height: H });
  await browser.context.addInitScript(() => {
    window.orientationAsked = 0;
    DeviceOrientationEvent.requestPermission = () => { window.orientationAsked++; return Promise.resolve('granted'); };
    window.fakePads = [];
    navigator.getGamepads = () => window.fakePads;
  });
  const record = { ran: new Set(), failed: new Set() };
  const texts = new Set();
  let failures = 0;
  const visit = async (label, url, check) => {
    if (!(await checkPage(browser.context, label, url, check, record))) failures++;
  };
  const fromDisk = (name) => pathToFileURL(path.join(work, name, 'room.html')).href;
  const fromServer = (name) => `${server.url}/${name}/room.html`;
  try {
    for (const p of pages) {
      handlerTexts(p.dir).forEach((t) => texts.add(t));
      // Half from disk (2D canvas), half from the server (WebGL).
      const url = p.kind % 4 < 2 ? fromDisk(p.name) : fromServer(p.name);
      await visit(`orientation kind ${p.kind} at ${p.kind >= 10 ? 'the toolbar' : `position ${p.position}`}`, url, (page) => checkInstrument(page, p));
    }
    for (const name of ['vr', 'intro']) handlerTexts(path.join(work, name)).forEach((t) => texts.add(t));
    await visit('VR split screen', fromServer('vr'), checkVR);
    await visit('VR in a WebXR headset', fromServer('vr'), checkXR);
    await visit('keyboard and Escape', fromServer('vr'), checkKeyboard);
    await visit('design 5 gradients', fromDisk('vr'), checkGradients);
    await visit('gyroscope permission and gamepad', fromServer('vr'), checkDevices);
    // The intro ends in the start view written into its call.
    const introCall = /littlePlanetIntro',([-\d.]+),([-\d.]+),([-\d.]+)/.exec(readParams(path.join(work, 'intro', 'room_controls.json')).events.oninit);
    const hfov = Number(introCall[3]);
    await visit('little planet intro, WebGL', fromServer('intro'), (page) => checkIntro(page, 'WebGL', hfov));
    await visit('little planet intro, 2D canvas', fromDisk('intro'), (page) => checkIntro(page, '2D canvas', hfov));
  } finally {
    await browser.close();
    server.close();
  }
  writeHandlerLog('orientation', texts, record);
  const ran = [...texts].filter((t) => record.ran.has(t)).length;
  console.log(`# handler and action texts in the files: ${texts.size}; ran: ${ran}; threw: ${record.failed.size}`);
  for (const t of record.failed) console.log(`not ok - threw: ${t.slice(0, 160)}`);
  if (record.failed.size) failures++;
  console.log(`# ${((Date.now() - started) / 1000).toFixed(1)} s`);
  process.exit(failures ? 1 : 0);
}

main().catch((e) => { console.error(e); process.exit(1); });
