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

// The arguments every browser test takes, or the usage line and exit code 2.
export function testArgs(script) {
  const [tool, work, modules] = process.argv.slice(2);
  if (!tool || !work || !modules) {
    console.error(`usage: node ${script} TOOL WORKDIR NODE_MODULES`);
    process.exit(2);
  }
  return { tool, work, modules };
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
export async function openViewer(context, url, { expectFailure = false, language } = {}) {
  const page = await context.newPage();
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
