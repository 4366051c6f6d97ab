// The picture "defaultSkin" that the button faces copy their icons from: a grid of 64 x 64 tiles,
// white on transparent, drawn by this script (see picture.js).
//
// Each tile is drawn in its own 64 x 64 coordinate space. The places are those the button texts
// address; the arrow and zoom tiles belong to the button types 1 to 6 of controls.js.

import { drawnPicture } from './picture.js';

const WIDTH = 256;
const HEIGHT = 512;

function arrow(ctx, angle) {
  ctx.rotate(angle);
  ctx.beginPath();
  ctx.moveTo(-14, -16);
  ctx.lineTo(14, 0);
  ctx.lineTo(-14, 16);
  ctx.closePath();
  ctx.fill();
}

function speaker(ctx) {
  ctx.beginPath();
  ctx.moveTo(-22, -8);
  ctx.lineTo(-12, -8);
  ctx.lineTo(2, -20);
  ctx.lineTo(2, 20);
  ctx.lineTo(-12, 8);
  ctx.lineTo(-22, 8);
  ctx.closePath();
  ctx.fill();
}

function chevron(ctx, dir) {
  ctx.beginPath();
  ctx.moveTo(6 * dir, -16);
  ctx.lineTo(-10 * dir, 0);
  ctx.lineTo(6 * dir, 16);
  ctx.stroke();
}

// Tile origin -> drawing in a centred space of -32..32.
export const TILES = {
  '0,0': (ctx) => { // information
    ctx.beginPath(); ctx.arc(0, 0, 24, 0, 2 * Math.PI); ctx.stroke();
    ctx.beginPath(); ctx.arc(0, -12, 3.5, 0, 2 * Math.PI); ctx.fill();
    ctx.fillRect(-3, -4, 6, 20);
  },
  '64,0': (ctx) => { // start autoplay
    ctx.beginPath(); ctx.moveTo(-14, -20); ctx.lineTo(18, 0); ctx.lineTo(-14, 20); ctx.closePath(); ctx.fill();
  },
  '128,0': (ctx) => { // stop autoplay (the face while it runs)
    ctx.fillRect(-14, -18, 9, 36);
    ctx.fillRect(5, -18, 9, 36);
  },
  '192,0': (ctx) => { // full screen: four corners
    for (let i = 0; i < 4; i++) {
      ctx.beginPath(); ctx.moveTo(-22, -10); ctx.lineTo(-22, -22); ctx.lineTo(-10, -22); ctx.stroke();
      ctx.rotate(Math.PI / 2);
    }
  },
  '128,64': (ctx) => arrow(ctx, Math.PI), // type 1: turn left
  '0,64': (ctx) => arrow(ctx, 0), // type 2: turn right
  '192,64': (ctx) => arrow(ctx, -Math.PI / 2), // type 3: up
  '64,64': (ctx) => arrow(ctx, Math.PI / 2), // type 4: down
  '0,128': (ctx) => { // round halo behind buttons
    const g = ctx.createRadialGradient(0, 0, 4, 0, 0, 31);
    g.addColorStop(0, 'rgba(255,255,255,1)');
    g.addColorStop(0.6, 'rgba(255,255,255,0.55)');
    g.addColorStop(1, 'rgba(255,255,255,0)');
    ctx.fillStyle = g;
    ctx.beginPath(); ctx.arc(0, 0, 31, 0, 2 * Math.PI); ctx.fill();
  },
  '64,128': (ctx) => { // gyroscope: a phone with turning arrows
    ctx.strokeRect(-9, -17, 18, 34);
    ctx.fillRect(-3, 11, 6, 3);
    ctx.beginPath(); ctx.arc(0, 0, 25, -0.6, 0.6); ctx.stroke();
    ctx.beginPath(); ctx.arc(0, 0, 25, Math.PI - 0.6, Math.PI + 0.6); ctx.stroke();
  },
  '128,128': (ctx) => { ctx.fillRect(-20, -3.5, 40, 7); }, // type 6: zoom out
  '192,128': (ctx) => { ctx.fillRect(-20, -3.5, 40, 7); ctx.fillRect(-3.5, -20, 7, 40); }, // type 5: zoom in
  '0,192': (ctx) => { // hide the toolbar: chevron down onto a bar
    ctx.beginPath(); ctx.moveTo(-16, -14); ctx.lineTo(0, 2); ctx.lineTo(16, -14); ctx.stroke();
    ctx.fillRect(-20, 12, 40, 5);
  },
  '128,192': (ctx) => { // show the toolbar: chevron up from a bar
    ctx.beginPath(); ctx.moveTo(-16, 4); ctx.lineTo(0, -12); ctx.lineTo(16, 4); ctx.stroke();
    ctx.fillRect(-20, 14, 40, 5);
  },
  '0,256': (ctx) => { // sound off
    speaker(ctx);
    ctx.beginPath(); ctx.moveTo(9, -9); ctx.lineTo(23, 9); ctx.moveTo(23, -9); ctx.lineTo(9, 9); ctx.stroke();
  },
  '64,256': (ctx) => { // sound on
    speaker(ctx);
    ctx.beginPath(); ctx.arc(2, 0, 12, -0.8, 0.8); ctx.stroke();
    ctx.beginPath(); ctx.arc(2, 0, 21, -0.8, 0.8); ctx.stroke();
  },
  '128,256': (ctx) => { // hotspots: a pin
    ctx.beginPath(); ctx.arc(0, -6, 14, Math.PI * 0.8, Math.PI * 0.2); ctx.lineTo(0, 24); ctx.closePath(); ctx.fill();
    ctx.globalCompositeOperation = 'destination-out';
    ctx.beginPath(); ctx.arc(0, -6, 6, 0, 2 * Math.PI); ctx.fill();
  },
  '192,256': (ctx) => { // VR goggles
    ctx.beginPath(); ctx.roundRect ? ctx.roundRect(-26, -14, 52, 28, 8) : ctx.rect(-26, -14, 52, 28); ctx.fill();
    ctx.globalCompositeOperation = 'destination-out';
    ctx.beginPath(); ctx.arc(-12, 0, 7, 0, 2 * Math.PI); ctx.arc(12, 0, 7, 0, 2 * Math.PI); ctx.fill();
    ctx.beginPath(); ctx.moveTo(-6, 14); ctx.lineTo(0, 6); ctx.lineTo(6, 14); ctx.fill();
  },
  '128,320': (ctx) => { // gallery: three thumbnails
    for (const x of [-24, -7, 10]) ctx.fillRect(x, -9, 14, 18);
  },
  '192,384': (ctx) => chevron(ctx, 1), // previous panorama
  '128,384': (ctx) => chevron(ctx, -1), // next panorama
  '128,448': (ctx) => { // map: a folded sheet
    ctx.beginPath();
    ctx.moveTo(-24, -16); ctx.lineTo(-8, -22); ctx.lineTo(8, -16); ctx.lineTo(24, -22);
    ctx.lineTo(24, 16); ctx.lineTo(8, 22); ctx.lineTo(-8, 16); ctx.lineTo(-24, 22); ctx.closePath();
    ctx.stroke();
    ctx.beginPath(); ctx.moveTo(-8, -22); ctx.lineTo(-8, 16); ctx.moveTo(8, -16); ctx.lineTo(8, 22); ctx.stroke();
  },
};

// The skin picture at `ratio` device pixels per skin pixel (a canvas of 256 x 512 times ratio).
export const skinImage = drawnPicture(WIDTH, HEIGHT, Object.entries(TILES).map(([origin, draw]) => {
  const [x, y] = origin.split(',').map(Number);
  return { x, y, size: 64, draw };
}));
