// Debian's Chromium, driven by playwright-core, headless with software WebGL (SwiftShader through
// ANGLE), a fresh profile and no network services of its own.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { createRequire } from 'node:module';

export const CHROMIUM_ARGS = [
  '--use-gl=angle', '--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--ignore-gpu-blocklist',
  '--no-sandbox', '--disable-gpu-sandbox', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync', '--disable-quic', '--disable-extensions',
  '--lang=en-US',
];

// The page size the tests' viewers are laid out at.
export const W = 800;
export const H = 600;

let workDir = null;

// The arguments every browser test takes, or the usage line and exit code 2.
export function testArgs(script) {
  const [tool, work, modules] = process.argv.slice(2);
  if (!tool || !work || !modules) {
    console.error(`usage: node ${script} TOOL WORKDIR NODE_MODULES`);
    process.exit(2);
  }
  workDir = path.resolve(work);
  // A log of an earlier run must not stand in for this one's.
  fs.rmSync(handlerLogFile(path.basename(script, '.test.mjs')), { force: true });
  return { tool, work, modules };
}

const handlerLogFile = (name) => path.join(path.dirname(workDir), 'handler-log', `${name}.json`);

// Every handler and action text of the viewer files in `dir` (and its sub-folders): the strings
// that are function texts, wherever they stand in the files.
export function handlerTexts(dir) {
  const texts = new Set();
  const visit = (value) => {
    if (typeof value === 'string') {
      if (/^\s*function\s*\(/.test(value)) texts.add(value);
    } else if (value && typeof value === 'object') Object.values(value).forEach(visit);
  };
  for (const entry of fs.readdirSync(dir, { withFileTypes: true })) {
    const file = path.join(dir, entry.name);
    if (entry.isDirectory()) {
      if (!entry.name.endsWith('_tiles')) handlerTexts(file).forEach((t) => texts.add(t));
      continue;
    }
    if (!/\.(json|js|jsonp)$/.test(entry.name)) continue;
    const text = fs.readFileSync(file, 'utf8');
    if (!text.startsWith('VantoraViewerParams = ')) continue;
    try {
      visit(JSON.parse(text.slice('VantoraViewerParams = '.length)));
    } catch (e) { /* a file the test broke on purpose */ }
  }
  return texts;
}

// Writes what one browser test saw of the files' handler and action texts for the suite-wide
// count (handlers.mjs): `texts` those of the files it exported, `record` (ran, failed) the union
// of vantoViewer.scriptRecord() over its pages. The log lies beside the test's work folder, in
// handler-log/NAME.json; NAME is the test script's (tour for tour.test.mjs), whose log testArgs
// removes when the test starts.
export function writeHandlerLog(name, texts, record) {
  if (!workDir) throw new Error('writeHandlerLog: testArgs() was not called');
  const file = handlerLogFile(name);
  fs.mkdirSync(path.dirname(file), { recursive: true });
  const log = { texts: [...texts], ran: [...record.ran], failed: [...record.failed] };
  fs.writeFileSync(`${file}.part`, JSON.stringify(log, null, 1));
  fs.renameSync(`${file}.part`, file);
}

// Collects vantoViewer.scriptRecord() of pages into one record.
export function scriptRecorder() {
  const record = { ran: new Set(), failed: new Set() };
  return {
    record,
    async add(page) {
      const r = await page.evaluate(() => vantoViewer.scriptRecord()).catch(() => ({ ran: [], failed: [] }));
      r.ran.forEach((t) => record.ran.add(t));
      r.failed.forEach((t) => record.failed.add(t));
    },
  };
}

// Runs `body` in the page as a function of the viewer `v` and the argument `a`; its result.
export const viewerCall = (page, body, arg) => page.evaluate(({ b, a }) => new Function('v', 'a', b)(vantoViewer.get('vantoViewerID'), a), { b: body, a: arg });

export async function launchBrowser(modules, viewport = { width: 1000, height: 700 }) {
  const { chromium } = createRequire(path.join(modules, 'noop.js'))('playwright-core');
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'vanto-chromium-'));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
    headless: true,
    args: CHROMIUM_ARGS,
    viewport,
    locale: 'en-US',
  });
  return {
    context,
    async close() {
      await context.close();
      fs.rmSync(profile, { recursive: true, force: true });
    },
  };
}

// Opens a page and waits for its viewer's `ready`; collects page errors and console errors.
// `route(page)` may set up the page's network (playwright's page.route) before it loads.
export async function openViewer(context, url, { expectFailure = false, language, route } = {}) {
  const page = await context.newPage();
  if (route) await route(page);
  if (language) {
    await page.addInitScript((lang) => Object.defineProperty(navigator, 'language', { get: () => lang }), language);
  }
  const errors = [];
  page.on('pageerror', (e) => errors.push(`page error: ${e.message}`));
  page.on('console', (m) => { if (m.type() === 'error') errors.push(`console: ${m.text()}`); });
  await page.goto(url);
  const outcome = await waitReady(page);
  if (!expectFailure && outcome !== 'ready') throw new Error(`${url}: viewer not ready: ${outcome}`);
  return { page, errors, outcome };
}

// Opens `url`, runs `check(page)` and prints "ok - label" or "not ok - label: reason"; page errors
// fail the check. The page's record of the handler texts that ran and threw joins `record` (sets
// `ran` and `failed`). Returns whether the check passed.
export async function checkPage(context, label, url, check, record) {
  const { page, errors } = await openViewer(context, url);
  try {
    await check(page);
    assert.deepEqual(errors, [], `${label}: errors`);
    console.log(`ok - ${label}`);
    return true;
  } catch (e) {
    console.log(`not ok - ${label}: ${e.message}`);
    return false;
  } finally {
    const r = await page.evaluate(() => vantoViewer.scriptRecord());
    r.ran.forEach((t) => record.ran.add(t));
    r.failed.forEach((t) => record.failed.add(t));
    await page.close();
  }
}

// Resolves 'ready', 'failed: reason', or 'timeout' when neither comes within a minute.
export function waitReady(page) {
  return page.evaluate(() => new Promise((resolve) => {
    setTimeout(() => resolve('timeout'), 60000);
    const poll = () => {
      const v = window.vantoViewer && window.vantoViewer.get('vantoViewerID');
      if (!v) { requestAnimationFrame(poll); return; }
      v.ready.then(() => resolve('ready'), (e) => resolve(`failed: ${e && e.message}`));
    };
    poll();
  }));
}

// Colours of points of the viewer area, read from a screenshot (a page from disk cannot read its
// own canvas).
export async function pixels(page, points) {
  const box = await page.locator('#vantoViewerID').boundingBox();
  const png = (await page.screenshot({ clip: box })).toString('base64');
  return page.evaluate(async ({ data, at }) => {
    const img = new Image();
    img.src = `data:image/png;base64,${data}`;
    await img.decode();
    const canvas = document.createElement('canvas');
    canvas.width = img.width;
    canvas.height = img.height;
    const ctx = canvas.getContext('2d');
    ctx.drawImage(img, 0, 0);
    return at.map(([x, y]) => Array.from(ctx.getImageData(Math.round(x), Math.round(y), 1, 1).data.slice(0, 3)));
  }, { data: png, at: points });
}
