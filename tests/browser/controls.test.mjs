// The controls of the controls file in Chromium: every toolbar design in every position, exported
// once each by the reference host with every button switched on. Each page: no error, the toolbar
// at its place with its buttons in order, every face painted; one page per design: a click on
// every button has its effect. The handler and action texts that ran go to the suite-wide count.
//
//   node controls.test.mjs TOOL WORKDIR NODE_MODULES
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { exportPage, freshWork, writeTone, readParams } from './fixtures.mjs';
import { H, W, checkPage, handlerTexts, launchBrowser, openViewer, scriptRecorder, testArgs, viewerCall as call, writeHandlerLog } from './browser.mjs';
import { startServer } from './server.mjs';

const { tool, work, modules } = testArgs('controls.test.mjs');
const DESIGNS = 8;
const POSITIONS = ['centred', 'full width', 'left', 'right'];

function buildPages() {
  const { src, picture } = freshWork(work);
  const tone = path.join(src, 'tone.wav');
  writeTone(tone, 2);
  const spots = path.join(src, 'spots.json');
  fs.writeFileSync(spots, JSON.stringify({
    hotspots: [{ page: 'room', type: 'info', pan: 200, tilt: 0, bitmap: ':/hotspots/info.png', tooltip: 'Spot', text: 'A spot' }],
  }));
  const info = Buffer.from('<b>About this room</b>', 'utf8').toString('base64');
  const pages = [];
  for (let design = 0; design < DESIGNS; design++) {
    for (let position = 0; position < POSITIONS.length; position++) {
      const name = `d${design}p${position}`;
      const preset = path.join(src, `${name}.ini`);
      fs.writeFileSync(preset, [
        '[Toolbar]', `TBDesign=${design}`, `Position=${position}`, 'PlayButton=1',
        '[Applet]', 'AddToolbar=1', 'ShowToolbar=1', 'ShowToolbarFullscreen=1', 'ShowArrowButtons=1',
        'ShowZoomButtons=1', 'GyroButton=1', 'AddGyro=1', 'AddAudioButton=1', 'HotspotsButton=1',
        'AddVrMode=1', 'ShowInfoBox=0', `InfoHTML64=${info}`, `Sound=${tone}`, 'AudioAutoplay=0',
        'AudioLoop=1', 'ShowWebGLWarning=0', '',
      ].join('\r\n'));
      exportPage(tool, [picture, '--settings', preset, '--hotspots', spots, '-o', path.join(work, name, 'room.html')]);
      pages.push({ design, position, dir: path.join(work, name) });
    }
  }
  return pages;
}

// The toolbar's box, the placed buttons' ids from left to right, and the unpainted faces.
const INSPECT = `
  const tb = v.get('toolbar');
  const root = v.root.getBoundingClientRect();
  const box = tb.node.getBoundingClientRect();
  const placed = tb.buttons.filter((b) => b.node.style.display !== 'none')
    .map((b) => ({ b, r: b.node.getBoundingClientRect() })).sort((x, y) => x.r.left - y.r.left);
  const inside = placed.every(({ r }) => r.left >= box.left - 1 && r.right <= box.right + 1 && r.top >= box.top - 1 && r.bottom <= box.bottom + 1);
  const names = placed.map(({ b }) => b.id || 'type' + b.type);
  const shown = tb.buttons.filter((b) => b.visible && !b.removed);
  const dropped = shown.filter((b) => b.node.style.display === 'none').map((b) => b.priority);
  const lowestPlaced = Math.min(...placed.map(({ b }) => b.priority));
  const visibleIds = shown.map((b) => b.id || 'type' + b.type);
  const labels = placed.map(({ b }) => b.node.getAttribute('aria-label'));
  // Every face a button may show, painted on the button itself, must put ink on the canvas.
  const blank = [];
  const all = [...v.elements.values()].filter((e) => e.kind === 'button');
  for (const b of all) {
    const saved = b.skin;
    for (const key of Object.keys(b).filter((k) => /skin(hover|active)?$/.test(k) && typeof b[k] === 'string' && b[k])) {
      b.skin = b[key];
      b.updateSkins();
      const c = b.face;
      const data = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;
      let ink = 0;
      for (let i = 3; i < data.length; i += 4) ink += data[i] > 0;
      if (ink < 20) blank.push((b.id || 'type' + b.type) + '.' + key);
    }
    b.skin = saved;
    b.updateSkins();
  }
  return { root: { left: root.left, right: root.right, bottom: root.bottom, width: root.width },
    box: { left: box.left, right: box.right, bottom: box.bottom, width: box.width }, inside, names, labels, blank,
    dropped, lowestPlaced, visibleIds };
`;

// Every tile the files address must hold a drawing: painted alone, it leaves ink.
const TILES = `
  const b = v.get('infobutton');
  const saved = b.skin;
  const empty = [];
  for (const t of a) {
    b.skin = 'copy(defaultSkin,' + t + ',64,64,0,0,28,28)';
    b.updateSkins();
    const c = b.face;
    const data = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;
    let ink = 0;
    for (let i = 3; i < data.length; i += 4) ink += data[i] > 32;
    if (ink < 20) empty.push(t);
  }
  b.skin = saved;
  b.updateSkins();
  return empty;
`;

function expectedOrder(params) {
  const toolbar = [].concat(params.buttonBox)[0];
  const rank = { left: 0, center: 1, right: 2 };
  return toolbar.button.slice()
    .sort((x, y) => rank[x.align] - rank[y.align] || x.index - y.index).map((b) => b.id || `type${b.type}`);
}

// Where each position puts the toolbar's box in the viewer's, within a pixel; in POSITIONS' order.
const PLACED = [
  (root, box) => Math.abs((box.left + box.right) / 2 - (root.left + root.right) / 2) <= 1,
  (root, box) => Math.abs(box.width - root.width) <= 1,
  (root, box) => Math.abs(box.left - root.left) <= 1,
  (root, box) => Math.abs(box.right - root.right) <= 1,
];

async function checkLayout(page, { design, position }, params) {
  const what = `design ${design}, ${POSITIONS[position]}`;
  const got = await call(page, INSPECT);
  assert.deepEqual(got.blank, [], `${what}: blank faces`);
  assert.ok(got.inside, `${what}: a button lies outside the toolbar`);
  // Shown buttons (the gyroscope only on devices with one, VR only with WebGL) lie in the order
  // of their groups and indexes; those left out for want of room are of the lowest priorities.
  const order = expectedOrder(params).filter((id) => got.names.includes(id));
  assert.deepEqual(got.names, order, `${what}: button order`);
  assert.ok(got.visibleIds.includes('hotspotsButton') && got.visibleIds.includes('audiobutton')
    && got.visibleIds.includes('infobutton'), `${what}: buttons that show themselves are missing: ${got.visibleIds}`);
  assert.ok(got.dropped.every((p) => p <= got.lowestPlaced), `${what}: dropped ${got.dropped} before ${got.lowestPlaced}`);
  if (position === 1) assert.deepEqual(got.dropped, [], `${what}: buttons left out of a full-width toolbar`);
  assert.ok(got.labels.every((l) => l && l.length > 2), `${what}: a button without an accessible name`);
  const { root, box } = got;
  const yoff = [].concat(params.buttonBox)[0].yoff;
  assert.ok(Math.abs(root.bottom - yoff - box.bottom) <= 1, `${what}: toolbar bottom ${box.bottom}, expected ${root.bottom - yoff}`);
  assert.ok(PLACED[position](root, box), `${what}: toolbar not placed ${POSITIONS[position]}`);
}

const clickOn = (page, id) => page.locator(`#vantoViewerID .vanto-button[data-id="${id}"]`).click();
// Clicks the centre of the rectangle `r` that `body` finds.
async function clickAt(page, body) {
  const { x, y } = await call(page, `${body} return { x: r.left + r.width / 2, y: r.top + r.height / 2 };`);
  await page.mouse.click(x, y);
}
const view = (page) => call(page, 'return v.getView();');
const until = (page, body) => page.waitForFunction(
  (b) => new Function('v', b)(vantoViewer.get('vantoViewerID')), body, { timeout: 5000 });

// Buttons that switch something: each click, then the state it must lead to (face included).
const AUDIO = "const b = v.get('audiobutton'); const on = (v.get('gAudio')||v.get('lAudio')).isPlaying();";
const TOGGLES = [
  ['playbutton', "return v.isPlaying() && v.get('playbutton').skin.includes('128,0');",
    "return !v.isPlaying() && v.get('playbutton').skin.includes('64,0');"],
  ['infobutton', 'return !!v.currentMBId;', 'return !v.currentMBId;'],
  ['hotspotsButton', 'return !v.hotspotsVisible;', 'return v.hotspotsVisible;'],
  ['audiobutton', `${AUDIO} return on && b.skin === b.playskin;`, `${AUDIO} return !on && b.skin === b.pauseskin;`],
  ['fullscreenButton', 'return v.isFullscreen();', 'return !v.isFullscreen();'],
];

// A click on every button, each with its effect.
async function checkClicks(page, design) {
  const what = `design ${design}`;
  let before = await view(page);
  const placed = await call(page, "return [...v.root.querySelectorAll('.vanto-button')].filter((n) => n.style.display !== 'none').map((n) => n.dataset.id);");
  for (const [type, test] of [[1, (a, b) => b.pan < a.pan], [2, (a, b) => b.pan > a.pan], [3, (a, b) => b.tilt > a.tilt],
    [4, (a, b) => b.tilt < a.tilt], [5, (a, b) => b.hfov < a.hfov], [6, (a, b) => b.hfov > a.hfov]]) {
    if (!placed.includes(`type${type}`)) continue; // left out for want of room
    await clickOn(page, `type${type}`);
    const after = await view(page);
    assert.ok(test(before, after), `${what}: type ${type} button: ${JSON.stringify(before)} -> ${JSON.stringify(after)}`);
    before = after;
  }
  for (const [id, ...states] of TOGGLES) {
    for (const state of states) {
      await clickOn(page, id);
      await until(page, state);
    }
  }
  // The hotspot opens its message box, a click on the box closes it.
  await clickAt(page, 'const r = v.hotspots()[0].node.getBoundingClientRect();');
  await until(page, "return /^hsinfo/.test(v.currentMBId || '');");
  await clickAt(page, 'const r = v.get(v.currentMBId).node.getBoundingClientRect();');
  await until(page, 'return !v.currentMBId;');

  // VR: the split screen comes and its stereo button leaves it (the rest in orientation.test.mjs).
  await clickOn(page, 'vrButton');
  await until(page, "return v.isVRModeEnabled() && v.get('leftStereoButton').visible;");
  await clickOn(page, 'leftStereoButton');
  await until(page, "return !v.isVRModeEnabled() && v.get('toolbar').visible;");

  await checkMenu(page, what);
  await checkGyroscope(page, what);

  // Hide the toolbar and bring it back.
  const shown = await call(page, "return v.get('toolbar').node.getBoundingClientRect().top;");
  await clickOn(page, 'hideTbButton');
  await until(page, "const t = v.get('toolbar'); const r = t.node.getBoundingClientRect();"
    + " return (!t.visible || r.top >= v.root.getBoundingClientRect().bottom) && v.get('showTbButton').visible && v.get('showTbButton').yoff >= 0;");
  await clickOn(page, 'showTbButton');
  await until(page, `const t = v.get('toolbar'); return t.visible && Math.abs(t.node.getBoundingClientRect().top - ${shown}) <= 10;`);

  // Keyboard: Tab from the viewer reaches the first button, which shows a focus ring
  // (past the hotspot, which comes first).
  await page.locator('.vanto-root').focus();
  let focused = null;
  for (let i = 0; i < 3 && !(focused && focused.button); i++) {
    await page.keyboard.press('Tab');
    focused = await page.evaluate(() => {
      const e = document.activeElement;
      return { button: e.classList.contains('vanto-button'), outline: getComputedStyle(e).outlineStyle };
    });
  }
  assert.ok(focused.button && focused.outline === 'solid', `${what}: Tab gives ${JSON.stringify(focused)}`);
}

const MENU_SHOWN = "return [...v.get('menu').node.children].filter((n) => n.style.display !== 'none')"
  + ".map((n) => (n.getAttribute('role') === 'separator' ? '-' : n.textContent));";

async function openMenu(page) {
  await page.mouse.click(W / 2, H / 3, { button: 'right' });
  await until(page, "return v.get('menu').visible;");
}

const chooseItem = (page, caption) => page.getByRole('menuitem', { name: caption, exact: true }).click();

// The context menu: its items by the settings' entries (the gyroscope's hidden without one, the
// separators around it collapsed), each doing what it says.
async function checkMenu(page, what) {
  await openMenu(page);
  assert.deepEqual(await call(page, MENU_SHOWN), ['Fullscreen', '-', 'Normal View', 'LittlePlanet View', '-', 'About Vantora...'], `${what}: menu`);
  await chooseItem(page, 'LittlePlanet View');
  await until(page, "return !v.get('menu').visible && v.fisheyeDistortion() === 1;");
  await openMenu(page);
  await chooseItem(page, 'Normal View');
  await until(page, 'return v.fisheyeDistortion() === 0;');
  await openMenu(page);
  await chooseItem(page, 'Fullscreen');
  await until(page, 'return v.isFullscreen();');
  await clickOn(page, 'fullscreenButton');
  await until(page, 'return !v.isFullscreen();');
  await page.evaluate(() => { window.open = (url) => { window.openedUrl = url; }; });
  await openMenu(page);
  await chooseItem(page, 'About Vantora...');
  assert.match(await page.evaluate(() => window.openedUrl), /^https:\/\//, `${what}: the about item opened nothing`);
  await openMenu(page);
  await page.keyboard.press('Escape');
  await until(page, "return !v.get('menu').visible;");
  // A long press of a finger opens it too.
  await page.evaluate(() => {
    const root = vantoViewer.get('vantoViewerID').root;
    root.dispatchEvent(new PointerEvent('pointerdown', { pointerType: 'touch', pointerId: 7, clientX: 300, clientY: 200, bubbles: true }));
  });
  await until(page, "return v.get('menu').visible;");
  await page.keyboard.press('Escape');
}

// A device that reports its orientation: the gyroscope button shows itself, and it and the menu
// item switch the steering on and off with the button's face following.
async function checkGyroscope(page, what) {
  await page.evaluate(() => window.dispatchEvent(new DeviceOrientationEvent('deviceorientation', { alpha: 10, beta: 80, gamma: 0 })));
  await until(page, "return v.get('gyrobutton').visible;");
  await clickOn(page, 'gyrobutton');
  await until(page, "const b = v.get('gyrobutton'); return v.gyroscopeEnabled() && b.skin === b.enabledskin;");
  await openMenu(page);
  assert.ok((await call(page, MENU_SHOWN)).includes('Gyroscope Control'), `${what}: no gyroscope item`);
  await chooseItem(page, 'Gyroscope Control');
  await until(page, "const b = v.get('gyrobutton'); return !v.gyroscopeEnabled() && b.skin === b.disabledskin;");
}

// German: the buttons' names and the menu's captions from the file's translations; without
// WebGL the little-planet views are hidden and their separators with them. And faces at 2x.
async function checkGerman(context, dir) {
  const { page, errors } = await openViewer(context, pathToFileURL(path.join(dir, 'room.html')).href, { language: 'de-DE' });
  try {
    assert.equal(await call(page, "return v.get('fullscreenButton').node.getAttribute('aria-label');"), 'Vollbild');
    await openMenu(page);
    assert.deepEqual(await call(page, MENU_SHOWN), ['Vollbild', '-', '\u00dcber Vantora...'], 'German menu');
    // At two device pixels per CSS pixel the faces are painted at twice the size.
    const cdp = await page.context().newCDPSession(page);
    await cdp.send('Emulation.setDeviceMetricsOverride', { width: W, height: H, deviceScaleFactor: 2, mobile: false });
    const face = await call(page, "const b = v.get('fullscreenButton'); b.updateSkins(); return [b.face.width, b.face.height, b.buttonWidth, b.buttonHeight];");
    assert.deepEqual(face, [face[2] * 2, face[3] * 2, face[2], face[3]], 'faces at a pixel ratio of 2');
    assert.deepEqual(errors, [], 'German page: errors');
  } finally {
    await page.close();
  }
}

async function main() {
  const started = Date.now();
  const pages = buildPages();
  const tiles = new Set();
  for (const p of pages) {
    const text = fs.readFileSync(path.join(p.dir, 'room_controls.json'), 'utf8');
    for (const m of text.matchAll(/copy\(defaultSkin,(\d+),(\d+)/g)) tiles.add(`${m[1]},${m[2]}`);
  }
  const server = await startServer(work);
  const browser = await launchBrowser(modules, { width: W, height: H });
  const scripts = scriptRecorder();
  let failures = 0;
  try {
    for (const p of pages) {
      const label = `design ${p.design}, ${POSITIONS[p.position]}`;
      // The pages whose buttons are clicked come from a server, so that WebGL (and with it the VR
      // button) is there; the others from disk, drawn without WebGL.
      const clicked = p.position === p.design % POSITIONS.length;
      const url = clicked ? `${server.url}/${path.basename(p.dir)}/room.html` : pathToFileURL(path.join(p.dir, 'room.html')).href;
      const passed = await checkPage(browser.context, label, url, async (page) => {
        const params = readParams(path.join(p.dir, 'room_controls.json'));
        await checkLayout(page, p, params);
        if (p === pages[0]) {
          const empty = await call(page, TILES, [...tiles]);
          assert.deepEqual(empty, [], `tiles the files address but the skin picture lacks (${tiles.size} addressed)`);
        }
        if (clicked) await checkClicks(page, p.design);
      }, scripts.record);
      if (!passed) failures++;
    }
    try {
      await checkGerman(browser.context, pages[0].dir);
      console.log('ok - German captions');
    } catch (e) {
      failures++;
      console.log(`not ok - German captions: ${e.message}`);
    }
  } finally {
    await browser.close();
    server.close();
  }
  // Whether every text of the files ran somewhere in the suite is counted by browser_handlers.
  writeHandlerLog('controls', handlerTexts(work), scripts.record);
  console.log(`# ${pages.length} pages in ${((Date.now() - started) / 1000).toFixed(1)} s`);
  process.exit(failures ? 1 : 0);
}

main().catch((e) => { console.error(e); process.exit(1); });
