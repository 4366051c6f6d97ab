// Test pictures and exports for the browser tests. Every panorama but the sample is a colour
// gradient: red grows with the pan from the left edge and green with the distance from the top
// edge, so the colour of the centre pixel measures the view.
import fs from 'node:fs';
import path from 'node:path';
import { execFileSync } from 'node:child_process';
import zlib from 'node:zlib';

// Writes a binary PPM picture of width x height whose red and green encode the column and row.
export function writeGradient(file, width, height, blue = 96) {
  const header = Buffer.from(`P6\n${width} ${height}\n255\n`, 'ascii');
  const pixels = Buffer.alloc(width * height * 3);
  for (let y = 0; y < height; y++) {
    const g = Math.round(((y + 0.5) / height) * 255);
    for (let x = 0; x < width; x++) {
      const i = (y * width + x) * 3;
      pixels[i] = Math.round(((x + 0.5) / width) * 255);
      pixels[i + 1] = g;
      pixels[i + 2] = blue;
    }
  }
  fs.writeFileSync(file, Buffer.concat([header, pixels]));
}

// Runs the reference host; returns the page's folder-relative name.
export function exportPage(tool, args) {
  execFileSync(tool, args, { stdio: ['ignore', 'ignore', 'inherit'] });
}

// Reads a viewer file the way the viewer does: the text after "VantoraViewerParams = " is JSON.
export function readParams(file) {
  const text = fs.readFileSync(file, 'utf8');
  return JSON.parse(text.slice(text.indexOf('=') + 1)).vantoraViewer;
}

// Empties `work` and writes into its "src" folder the gradient panorama "room.ppm" (1024 x 512);
// returns both paths.
export function freshWork(work) {
  fs.rmSync(work, { recursive: true, force: true });
  const src = path.join(work, 'src');
  fs.mkdirSync(src, { recursive: true });
  const picture = path.join(src, 'room.ppm');
  writeGradient(picture, 1024, 512);
  return { src, picture };
}

const CRC_TABLE = Array.from({ length: 256 }, (_, n) => {
  let c = n;
  for (let k = 0; k < 8; k++) c = c & 1 ? 0xedb88320 ^ (c >>> 1) : c >>> 1;
  return c >>> 0;
});

// An RGB PNG of width x height whose pixel (x, y) is colourAt(x, y) = [r, g, b].
export function encodePng(width, height, colourAt) {
  const crc = (buf) => {
    let c = 0xffffffff;
    for (const byte of buf) c = CRC_TABLE[(c ^ byte) & 0xff] ^ (c >>> 8);
    return (c ^ 0xffffffff) >>> 0;
  };
  const chunk = (type, data) => {
    const out = Buffer.alloc(12 + data.length);
    out.writeUInt32BE(data.length, 0);
    out.write(type, 4, 'ascii');
    data.copy(out, 8);
    out.writeUInt32BE(crc(out.subarray(4, 8 + data.length)), 8 + data.length);
    return out;
  };
  const header = Buffer.alloc(13);
  header.writeUInt32BE(width, 0);
  header.writeUInt32BE(height, 4);
  header[8] = 8; // bits per sample
  header[9] = 2; // RGB
  const raw = Buffer.alloc(height * (1 + width * 3));
  for (let y = 0; y < height; y++) {
    for (let x = 0; x < width; x++) raw.set(colourAt(x, y), y * (1 + width * 3) + 1 + x * 3);
  }
  return Buffer.concat([Buffer.from([137, 80, 78, 71, 13, 10, 26, 10]), chunk('IHDR', header),
    chunk('IDAT', zlib.deflateSync(raw)), chunk('IEND', Buffer.alloc(0))]);
}

// A short sine tone as 8-bit mono WAV.
export function writeTone(file, seconds = 0.5, rate = 8000) {
  const samples = Math.round(seconds * rate);
  const header = Buffer.alloc(44);
  header.write('RIFF', 0);
  header.writeUInt32LE(36 + samples, 4);
  header.write('WAVEfmt ', 8);
  header.writeUInt32LE(16, 16);
  header.writeUInt16LE(1, 20);
  header.writeUInt16LE(1, 22);
  header.writeUInt32LE(rate, 24);
  header.writeUInt32LE(rate, 28);
  header.writeUInt16LE(1, 32);
  header.writeUInt16LE(8, 34);
  header.write('data', 36);
  header.writeUInt32LE(samples, 40);
  const data = Buffer.alloc(samples);
  for (let i = 0; i < samples; i++) data[i] = 128 + Math.round(60 * Math.sin((2 * Math.PI * 440 * i) / rate));
  fs.writeFileSync(file, Buffer.concat([header, data]));
}

function presetFile(dir, name, lines) {
  const file = path.join(dir, name);
  fs.writeFileSync(file, `[Applet]\r\n${lines.join('\r\n')}\r\n`);
  return file;
}

// Exports every page the tests open into `work`; returns their descriptions.
export function buildFixtures(tool, work) {
  fs.rmSync(work, { recursive: true, force: true });
  fs.mkdirSync(work, { recursive: true });
  const src = path.join(work, 'src');
  fs.mkdirSync(src);
  const pic = (name, w, h, blue) => {
    const file = path.join(src, `${name}.ppm`);
    writeGradient(file, w, h, blue);
    return file;
  };
  const out = (folder, page) => path.join(work, folder, page);

  exportPage(tool, ['-o', out('sample', 'sample.html')]);
  exportPage(tool, [pic('big', 6000, 3000), '-o', out('big', 'big.html')]);
  const notice = presetFile(src, 'notice.ini', ['ShowWebGLWarning=1']);
  exportPage(tool, [pic('partial', 1200, 400), '--hextent', '120', '--vextent', '40', '--settings', notice,
    '-o', out('partial', 'partial.html')]);
  exportPage(tool, [pic('tiny', 10, 5), '-o', out('tiny', 'tiny.html')]);
  const flatSpots = path.join(src, 'flatspots.json');
  fs.writeFileSync(flatSpots, JSON.stringify({
    hotspots: [{ type: 'info', x: 0.25, y: 0.75, bitmap: ':/hotspots/info.png', tooltip: 'Lower left', text: 'A quarter in' }],
  }));
  exportPage(tool, [pic('flat', 3000, 2000), '--flat', '--hotspots', flatSpots, '-o', out('flat', 'flat.html')]);

  const autoplay = presetFile(src, 'autoplay.ini', ['AutoPlay=1', 'PanRate=30.0000', 'TiltRate=0.0000', 'ZoomRate=0.0000', 'Restart=0',
    'MouseMode=0']);
  exportPage(tool, [pic('turn', 2048, 1024), '--settings', autoplay, '-o', out('autoplay', 'turn.html')]);

  // Logo and sound name the user's files by their full paths; the export copies them beside the page.
  const tone = path.join(src, 'tone.wav');
  writeTone(tone);
  const logo = path.join(src, 'logo.jpg');
  fs.copyFileSync(path.join(work, 'sample', 'sample_tiles', 'sample_thumb.jpg'), logo);
  const media = presetFile(src, 'media.ini', [`LogoImage=${logo}`, 'LogoURL=https://example.com/', `Sound=${tone}`,
    'AudioAutoplay=1', 'AudioLoop=1', 'AudioGlobal=0']);
  exportPage(tool, [pic('media', 2048, 1024), '--settings', media, '-o', out('media', 'media.html')]);

  const intro = presetFile(src, 'intro.ini', ['LittlePlanetIntro=1']);
  exportPage(tool, [pic('intro', 2048, 1024), '--settings', intro, '-o', out('intro', 'intro.html')]);

  // A tour of two panoramas with ".js" parameter files and the WebGL notice switched off: the hall
  // has an info hotspot left of its start view and a link to the garden right of it.
  const hotspots = path.join(src, 'hotspots.json');
  fs.writeFileSync(hotspots, JSON.stringify({
    hotspots: [
      { page: 'hall', type: 'info', pan: 165, tilt: 0, bitmap: ':/hotspots/info.png', tooltip: 'About the hall', text: '<b>Built in 1890</b>' },
      { page: 'hall', type: 'link', pan: 195, tilt: 0, bitmap: ':/hotspots/link.png', tooltip: 'To the garden', url: 'garden.html' },
    ],
  }));
  const tour = presetFile(src, 'tour.ini', ['ExtensionJS=1', 'ShowWebGLWarning=0']);
  exportPage(tool, [pic('hall', 2048, 1024, 32), pic('garden', 2048, 1024, 224), '--settings', tour,
    '--hotspots', hotspots, '--title', 'Great Hall', '-o', out('tour', 'hall.html')]);

  // The hall again, its link bitmap embedded in the panorama 20 degrees wide and with a lens
  // flare: the reference host writes neither, a panorama application may.
  const hall = fs.readFileSync(path.join(work, 'tour', 'hall.js'), 'utf8');
  const prefix = 'VantoraViewerParams = ';
  const root = JSON.parse(hall.slice(prefix.length));
  for (const spot of root.vantoraViewer.node.hotspot) {
    if (spot.href !== 'garden.html') continue;
    delete spot.bitmapscale;
    Object.assign(spot, { bitmaptype: 'embedded', embeddedwidth: 20, rotate: 0 });
  }
  // A lens flare 10 degrees above the start view, as a panorama application writes them.
  root.vantoraViewer.node.lensflare = [{ pan: 180, tilt: 10, type: 0, brightening: 1, scale: 1 }];
  // And an animation strip below the start view: the link bitmap as two frames side by side.
  const png = fs.readFileSync(path.join(work, 'tour', 'pap_link.png'));
  const [pngWidth, pngHeight] = [png.readUInt32BE(16), png.readUInt32BE(20)];
  root.vantoraViewer.node.hotspot.push({
    bitmap: 'pap_link.png', bitmapscale: '1.0', opacity: '1.00;1.00', bitmaptype: 'floating',
    position: '180.0000,-20.0000', unit: 'deg', textbox: { text: 'Strip', align: 'top' },
    animation: { width: Math.floor(pngWidth / 2), height: pngHeight, frames: 2, duration: 0.4 },
  });
  fs.writeFileSync(path.join(work, 'tour', 'embedded.js'), prefix + JSON.stringify(root));
  fs.writeFileSync(path.join(work, 'tour', 'embedded.html'),
    fs.readFileSync(path.join(work, 'tour', 'hall.html'), 'utf8').replace('"hall.js"', '"embedded.js"'));

  // Two viewers in one page of our own, started together: their loads must not mix.
  fs.writeFileSync(path.join(work, 'tour', 'two.html'), `<!DOCTYPE HTML><html><head><meta charset="UTF-8"></head><body>
<div id="vantoViewerID" style="position:relative;width:400px;height:300px"></div>
<div id="second" style="position:relative;width:400px;height:300px"></div>
<script src="vantoViewer.js"></script>
<script>vantoViewer.insert("vantoViewerID","hall.js",{html5:"disable_webgl_warning"}); vantoViewer.insert("second","garden.js",{html5:"disable_webgl_warning"});</script></body></html>`);

  // Pages of our own around exported files: one whose parameter file is missing, one whose
  // parameter file is not a viewer file.
  const errors = path.join(work, 'errors');
  fs.mkdirSync(errors);
  const page = (params) => `<!DOCTYPE HTML><html><head><meta charset="UTF-8"></head><body>
<div id="vantoViewerID" style="position:absolute;left:0;top:0;width:100%;height:100%"></div>
<script src="vantoViewer.js"></script><script>vantoViewer.insert("vantoViewerID","${params}",{});</script></body></html>`;
  fs.copyFileSync(path.join(work, 'tiny', 'vantoViewer.js'), path.join(errors, 'vantoViewer.js'));
  fs.writeFileSync(path.join(errors, 'missing.html'), page('missing.json'));
  fs.writeFileSync(path.join(errors, 'broken.html'), page('broken.json'));
  fs.writeFileSync(path.join(errors, 'broken.json'), 'VantoraViewerParams = {"vantoraViewer": {"node": ');
  return work;
}
