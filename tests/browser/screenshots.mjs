// Takes the README's screenshots (run by hand, not a test): the exported sample from disk, a flat
// picture, a tour page with its title, hotspots and an open message box, a compass and a radar,
// a contact sheet of the eight toolbar designs, and a tour of three panoramas with its thumbnail
// strip and its map (the map's tiles drawn by this script: the machine has no network).
//
//   node tests/browser/screenshots.mjs BUILD_DIR OUTPUT_DIR
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { execFileSync } from 'node:child_process';
import { buildFixtures, encodePng, exportPage } from './fixtures.mjs';
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

async function shoot(page, name, prepare, route) {
  const { page: p } = await openViewer(browser.context, pathToFileURL(path.join(work, page)).href, { route });
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
// The compass (large, in the corner, design 8) and the radar (large, at the right edge, design 5),
// north where the sample's N stands, the view turned a little east of it.
for (const [name, lines] of [['compass', ['TBDesign=7', 'OrientationElement=1', 'OrientationElementPosition=0']],
  ['radar', ['TBDesign=4', 'OrientationElement=8', 'OrientationElementPosition=2']]]) {
  const preset = path.join(work, `src/${name}.ini`);
  fs.writeFileSync(preset, ['[Toolbar]', lines[0], '[Applet]', 'AddOrientation=1', 'PositionNorth=1', ...lines.slice(1),
    'ShowWebGLWarning=0', ''].join('\r\n'));
  exportPage(tool, [hall, '--settings', preset, '--location', '48.14,11.58,180', '-o', path.join(work, `${name}/${name}.html`)]);
  await shoot(`${name}/${name}.html`, `viewer-${name}.png`, (p) => p.evaluate(() => vantoViewer.get('vantoViewerID').setView(215, 0, 80)));
}
// The eight toolbar designs on the sample, every button switched on: the lower edge of each page,
// stacked into one sheet.
const strips = [];
for (let design = 0; design < 8; design++) {
  const preset = path.join(work, `src/design${design}.ini`);
  fs.writeFileSync(preset, ['[Toolbar]', `TBDesign=${design}`, 'PlayButton=1', '[Applet]', 'ShowArrowButtons=1',
    'ShowZoomButtons=1', 'HotspotsButton=1', 'ShowToolbarFullscreen=1', 'ShowWebGLWarning=0', ''].join('\r\n'));
  const page = `designs/design${design}.html`;
  exportPage(tool, [hall, '--hotspots', path.join(work, 'src/hotspots.json'), '--settings', preset, '-o', path.join(work, page)]);
  const { page: p } = await openViewer(browser.context, pathToFileURL(path.join(work, page)).href);
  await p.evaluate(() => vantoViewer.get('vantoViewerID').settled());
  const box = await p.locator('#vantoViewerID').boundingBox();
  const png = await p.screenshot({ clip: { x: box.x, y: box.y + box.height - 72, width: box.width, height: 72 } });
  strips.push(`<div>Typ ${design + 1}</div><img src="data:image/png;base64,${png.toString('base64')}">`);
  await p.close();
}
// A tour of three panoramas with the strip and the map (OpenStreetMap, here a street grid of our own).
const tourPreset = path.join(work, 'src/tour.ini');
fs.writeFileSync(tourPreset, ['[Toolbar]', 'TBDesign=2', '[Applet]', 'AddGallery=1', 'AddMap=1', 'MapType=3', 'MapZoom=15',
  `GmAPIKey=${Buffer.from('no-key-for-osm-tiles').toString('base64')}`, 'ShowWebGLWarning=0', ''].join('\r\n'));
const tourPlaces = [[hall, 'Great Hall', '53.5510,9.9937,180'], [path.join(work, 'src/garden.ppm'), 'Garden', '53.5530,9.9990,0'],
  [path.join(work, 'src/turn.ppm'), 'Courtyard', '53.5490,10.0010,0']];
for (const [picture, title, location] of tourPlaces) {
  const preset = path.join(work, `src/tour-${title}.ini`);
  fs.writeFileSync(preset, `${fs.readFileSync(tourPreset, 'utf8')}ShortDescription64=${Buffer.from(title).toString('base64')}\r\n`);
  exportPage(tool, [picture, '--settings', preset, '--title', title, '--location', location,
    '-o', path.join(work, `walk/${title.replace(' ', '').toLowerCase()}.html`)]);
}
const street = encodePng(256, 256, (x, y) => (x % 64 < 5 || y % 64 < 5 ? [255, 255, 255]
  : (x >> 6) % 3 === 1 && (y >> 6) % 2 === 0 ? [200, 225, 190] : [236, 232, 224]));
const streetTiles = async (p) => p.route('https://tile.openstreetmap.org/**', (r) => r.fulfill({ contentType: 'image/png', body: street }));
const openPanel = async (p, button, id) => {
  await p.locator(`.vanto-button[data-id="${button}"]`).click();
  await p.waitForFunction((i) => { const d = vantoViewer.get('vantoViewerID').get(i); return d.visible && !d.collapsing && d.height > 0; }, id);
};
await shoot('walk/greathall.html', 'viewer-tour-strip.png', (p) => openPanel(p, 'gallerybutton', 'thumbnailGallery'), streetTiles);
await shoot('walk/greathall.html', 'viewer-tour-map.png', async (p) => {
  await openPanel(p, 'mapbutton', 'map');
  await p.waitForFunction(() => document.querySelectorAll('.leaflet-tile-loaded').length > 0);
}, streetTiles);

const sheet = await browser.context.newPage();
await sheet.setContent(`<body style="margin:0;background:#fff;font:14px Arial;width:800px">
<style>div{padding:6px 8px}img{display:block}</style>${strips.join('')}</body>`);
await sheet.screenshot({ path: path.join(out, 'viewer-designs.png'), fullPage: true });
await sheet.close();
await browser.close();
fs.rmSync(work, { recursive: true, force: true });
