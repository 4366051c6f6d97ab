// Embedded hotspot bitmaps lie in the panorama: a picture "embeddedwidth" degrees wide, centred on
// its position on the tangent plane of the sphere and turned by "rotate" degrees, drawn with the
// view's perspective as a CSS matrix3d.
import { direction, project } from './geometry.js';

const RAD = Math.PI / 180;

// The projective map of the unit square onto the quadrilateral p (corners of (0,0), (1,0),
// (1,1), (0,1) in that order): [a, b, c, d, e, f, g, h] for
// x = (a u + b v + c) / (g u + h v + 1), y = (d u + e v + f) / (g u + h v + 1).
export function squareToQuad(p) {
  const [[x0, y0], [x1, y1], [x2, y2], [x3, y3]] = p;
  const sx = x0 - x1 + x2 - x3;
  const sy = y0 - y1 + y2 - y3;
  if (Math.abs(sx) < 1e-9 && Math.abs(sy) < 1e-9) return [x1 - x0, x2 - x1, x0, y1 - y0, y2 - y1, y0, 0, 0];
  const dx1 = x1 - x2;
  const dx2 = x3 - x2;
  const dy1 = y1 - y2;
  const dy2 = y3 - y2;
  const den = dx1 * dy2 - dx2 * dy1;
  const g = (sx * dy2 - dx2 * sy) / den;
  const h = (dx1 * sy - sx * dy1) / den;
  return [x1 - x0 + g * x1, x3 - x0 + h * x3, x0, y1 - y0 + g * y1, y3 - y0 + h * y3, y0, g, h];
}

// The screen corners of an embedded bitmap of width x height pixels, or null when one lies behind
// the viewer.
export function embeddedCorners(camera, pan, tilt, degrees, rotate, width, height) {
  const c = direction(pan, tilt);
  const p = pan * RAD;
  const t = tilt * RAD;
  const right = [Math.cos(p), 0, -Math.sin(p)];
  const up = [-Math.sin(t) * Math.sin(p), Math.cos(t), -Math.sin(t) * Math.cos(p)];
  const r = (rotate || 0) * RAD;
  const u = right.map((v, i) => Math.cos(r) * v - Math.sin(r) * up[i]);
  const w = up.map((v, i) => Math.sin(r) * right[i] + Math.cos(r) * v);
  const hx = Math.tan((Math.min(degrees, 170) * RAD) / 2);
  const hy = (hx * height) / Math.max(width, 1);
  const corners = [];
  for (const [sx, sy] of [[-1, 1], [1, 1], [1, -1], [-1, -1]]) {
    const d = c.map((v, i) => v + sx * hx * u[i] + sy * hy * w[i]);
    const len = Math.hypot(d[0], d[1], d[2]);
    const s = project(camera, d.map((v) => v / len));
    if (!s) return null;
    corners.push(s);
  }
  return corners;
}

// The CSS transform that puts a width x height element (origin at its top left) onto the corners.
export function matrix3d(corners, width, height) {
  const [a, b, c, d, e, f, g, h] = squareToQuad(corners);
  const m = [a / width, d / width, 0, g / width, b / height, e / height, 0, h / height, 0, 0, 1, 0, c, f, 0, 1];
  return `matrix3d(${m.map((v) => +v.toFixed(8)).join(',')})`;
}
