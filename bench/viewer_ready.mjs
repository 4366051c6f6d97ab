// Benchmark (not a test): time from navigation to the viewer's `ready` for the exported sample in
// an 800 x 600 viewer area, from disk and over a loopback server, beside the page's own load event
// (the floor: page and script loaded, no tile drawn yet), and the bundle's size.
//
//   node bench/viewer_ready.mjs BUILD_DIR [RUNS]
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import zlib from 'node:zlib';
import { execFileSync } from 'node:child_process';
import { pathToFileURL } from 'node:url';
import { startServer } from '../tests/browser/server.mjs';
import { launchBrowser, waitReady } from '../tests/browser/browser.mjs';

const [buildArg, runsArg] = process.argv.slice(2);
const build = buildArg && path.resolve(buildArg);
if (!build) {
  console.error('usage: node bench/viewer_ready.mjs BUILD_DIR [RUNS]');
  process.exit(2);
}
const runs = Number(runsArg) || 7;
const tool = path.join(build, 'tools/vantora-export/vantora-export');
const bundle = path.join(build, 'tools/vantora-export/install/VantoraViewer/vantoViewer.js');
const modules = path.join(build, 'viewer/npm/node_modules');

const work = fs.mkdtempSync(path.join(os.tmpdir(), 'vanto-bench-'));
execFileSync(tool, ['-o', path.join(work, 'sample.html')], { stdio: 'ignore' });
const server = await startServer(work);
const browser = await launchBrowser(modules, { width: 816, height: 616 });

// One navigation in a fresh page with the cache off: returns [load event ms, ready ms].
async function measure(url) {
  const page = await browser.context.newPage();
  const cdp = await browser.context.newCDPSession(page);
  await cdp.send('Network.setCacheDisabled', { cacheDisabled: true });
  await page.goto(url);
  if ((await waitReady(page)) !== 'ready') throw new Error(`${url}: not ready`);
  const [load, ready] = await page.evaluate(() => [performance.timing.loadEventStart - performance.timing.navigationStart, performance.now()]);
  await page.close();
  return [load, ready];
}

const median = (values) => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];
const targets = [['file://', pathToFileURL(path.join(work, 'sample.html')).href], ['http://127.0.0.1', `${server.url}/sample.html`]];
console.log(`| transport | runs | page load event ms (median) | viewer ready ms (median) | ready ms (min..max) |`);
console.log('|---|---|---|---|---|');
for (const [name, url] of targets) {
  await measure(url);
  const results = [];
  for (let i = 0; i < runs; i++) results.push(await measure(url));
  const ready = results.map((r) => r[1]);
  console.log(`| ${name} | ${runs} | ${median(results.map((r) => r[0])).toFixed(0)} | ${median(ready).toFixed(0)} | ` +
    `${Math.min(...ready).toFixed(0)}..${Math.max(...ready).toFixed(0)} |`);
}
await browser.close();
server.close();
fs.rmSync(work, { recursive: true, force: true });

const code = fs.readFileSync(bundle);
console.log(`\nvantoViewer.js: ${code.length} bytes minified, ${zlib.gzipSync(code, { level: 9 }).length} bytes gzipped`);
