// Takes the README's screenshots (run by hand, not a test): the exported sample from disk, a flat
// picture and a tour page with its title, hotspots and an open message box.
//
//   node tests/browser/screenshots.mjs BUILD_DIR OUTPUT_DIR
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { execFileSync } from 'node:child_process';
import { buildFixtures, exportPage } from './fixtures.mjs';
import { launchBrowser, openViewer } from './browser.mjs';

const [build, out] = process.argv.slice(2).map((p) => p && path.resolve(p));
if (!build || !out) {
  console.error('usage: node tests/browser/screenshots.mjs BUILD_DIR OUTPUT_DIR');
  process.exit(2);
}
const work = fs.mkdtempSync(path.join(os.tmpdir(), 'vanto-shots-'));
const tool = path.join(build, 'tools/vantora-export/vantora-export');
buildFixtures(tool, work);

// A tour page on a real-looking picture: the sample's 4096 x 2048 level joined into one picture,
// with the fixtures' info and link hotspots and title.
const tiles = [];
for (let row = 0; row < 4; row++) for (let column = 0; column < 8; column++) tiles.push(path.join(work, `sample/sample_tiles/3/${column}_${row}.jpg`));
const hall = path.join(work, 'src/hall.jpg');
execFileSync('vips', ['arrayjoin', tiles.join(' '), hall, '--across', '8']);
exportPage(tool, [hall, path.join(work, 'src/garden.ppm'), '--hotspots', path.join(work, 'src/hotspots.json'),
  '--title', 'Great Hall', '-o', path.join(work, 'shots/hall.html')]);
const browser = await launchBrowser(path.join(build, 'viewer/npm/node_modules'), { width: 816, height: 616 });

async function shoot(page, name, prepare) {
  const { page: p } = await openViewer(browser.context, pathToFileURL(path.join(work, page)).href);
  if (prepare) await prepare(p);
  await p.evaluate(() => vantoViewer.get('vantoViewerID').settled());
  const clip = await p.locator('#vantoViewerID').boundingBox();
  await p.screenshot({ path: path.join(out, name), clip, type: 'png' });
  await p.close();
}

fs.mkdirSync(out, { recursive: true });
await shoot('sample/sample.html', 'viewer-sample.png');
await shoot('flat/flat.html', 'viewer-flat.png');
await shoot('shots/hall.html', 'viewer-tour.png', async (p) => {
  await p.locator('.vanto-hotspot').first().click();
  await p.locator('.vanto-hotspot').last().hover();
});
await browser.close();
fs.rmSync(work, { recursive: true, force: true });
