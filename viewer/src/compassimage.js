// The picture "defaultCompass" that the compass, the rotating dial and the radar copy from: white
// artwork on transparency (the skins tint it where a design wants it dark), drawn by this script
// (see picture.js). The tiles and their places are those the orientation element's skins address:
//   0,0,128 compass face     128,0,128 needle        256,0,128 dial      384,0,128 dial index
//   0,128,128 radar disc     128,128,64 compact ring  192,128,64 compact needle
import { drawnPicture } from './picture.js';

const NORTH_RED = '#e53935';

// Ticks on a ring of radius r: `count` of them, every `major`-th longer.
function ticks(ctx, r, count, major, long, short) {
  for (let i = 0; i < count; i++) {
    const a = (i * 2 * Math.PI) / count;
    const l = i % major === 0 ? long : short;
    ctx.beginPath();
    ctx.moveTo(Math.sin(a) * r, -Math.cos(a) * r);
    ctx.lineTo(Math.sin(a) * (r - l), -Math.cos(a) * (r - l));
    ctx.stroke();
  }
}

function ring(ctx, r, width) {
  ctx.lineWidth = width;
  ctx.beginPath();
  ctx.arc(0, 0, r, 0, 2 * Math.PI);
  ctx.stroke();
}

// A needle pointing up, its north half red, of half-length l and half-width w.
function needle(ctx, l, w) {
  ctx.fillStyle = NORTH_RED;
  ctx.beginPath(); ctx.moveTo(0, -l); ctx.lineTo(w, 0); ctx.lineTo(-w, 0); ctx.closePath(); ctx.fill();
  ctx.fillStyle = '#fff';
  ctx.beginPath(); ctx.moveTo(0, l); ctx.lineTo(w, 0); ctx.lineTo(-w, 0); ctx.closePath(); ctx.fill();
  ctx.beginPath(); ctx.arc(0, 0, w * 0.45, 0, 2 * Math.PI); ctx.fill();
}

function letter(ctx, text, size, x, y) {
  ctx.font = `bold ${size}px Arial, Helvetica, sans-serif`;
  ctx.textAlign = 'center';
  ctx.textBaseline = 'middle';
  ctx.fillText(text, x, y);
}

const TILES = [
  { x: 0, y: 0, size: 128, draw: (ctx) => { // compass face: ring, 8 ticks, the view mark on top
    ring(ctx, 56, 5);
    ctx.lineWidth = 4;
    ticks(ctx, 50, 8, 2, 12, 7);
    ctx.beginPath(); ctx.moveTo(0, -63); ctx.lineTo(7, -54); ctx.lineTo(-7, -54); ctx.closePath(); ctx.fill();
  } },
  { x: 128, y: 0, size: 128, draw: (ctx) => needle(ctx, 40, 9) },
  { x: 256, y: 0, size: 128, draw: (ctx) => { // dial: ring with N, E, S, W
    ring(ctx, 57, 4);
    ctx.lineWidth = 2;
    ticks(ctx, 54, 24, 6, 0, 5);
    letter(ctx, 'N', 22, 0, -38);
    letter(ctx, 'E', 18, 38, 0);
    letter(ctx, 'S', 18, 0, 38);
    letter(ctx, 'W', 18, -38, 0);
  } },
  { x: 384, y: 0, size: 128, draw: (ctx) => { // dial index: a triangle on top, pointing down
    ctx.beginPath(); ctx.moveTo(-9, -63); ctx.lineTo(9, -63); ctx.lineTo(0, -50); ctx.closePath(); ctx.fill();
  } },
  { x: 0, y: 128, size: 128, draw: (ctx) => { // radar disc with an N on top
    ctx.fillStyle = 'rgba(255,255,255,0.18)';
    ctx.beginPath(); ctx.arc(0, 0, 58, 0, 2 * Math.PI); ctx.fill();
    ctx.fillStyle = '#fff';
    ring(ctx, 58, 4);
    ctx.lineWidth = 2;
    ticks(ctx, 56, 4, 1, 6, 6);
    letter(ctx, 'N', 18, 0, -42);
    ctx.beginPath(); ctx.arc(0, 0, 3, 0, 2 * Math.PI); ctx.fill();
  } },
  { x: 128, y: 128, size: 64, draw: (ctx) => { // compact ring
    ring(ctx, 28, 3.5);
    ctx.lineWidth = 3;
    ticks(ctx, 28, 4, 1, 6, 6);
  } },
  { x: 192, y: 128, size: 64, draw: (ctx) => needle(ctx, 21, 6) },
];

export const compassImage = drawnPicture(512, 256, TILES);
