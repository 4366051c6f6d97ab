// Turns the tiles of one pyramid level into screen meshes for a view: spherical panoramas as grids
// of small cells (about 6 degrees each) projected point by point, flat pictures as rectangles.
import { direction, project } from './geometry.js';

const CELL_DEGREES = 6;

// The pan and tilt frame of an equirectangular pyramid: pan grows from the left edge, tilt runs
// from +vextent/2 at the top to -vextent/2 at the bottom.
export function sphericalFrame(image, camera) {
  const hextent = image.hextent || 360;
  const vextent = image.vextent || 180;
  const left = camera && typeof camera.minpan === 'number' ? camera.minpan : 0;
  return { left, hextent, vextent };
}

function sphericalMesh(pyramid, frame, cam, tile, margin) {
  const level = pyramid.levels[tile.level];
  const r = tile.rect;
  const panPerPx = frame.hextent / level.width;
  const tiltPerPx = frame.vextent / level.height;
  const nu = Math.max(1, Math.ceil((r.w * panPerPx) / CELL_DEGREES));
  const nv = Math.max(1, Math.ceil((r.h * tiltPerPx) / CELL_DEGREES));
  const positions = new Float32Array((nu + 1) * (nv + 1) * 2);
  const uvs = new Float32Array((nu + 1) * (nv + 1) * 2);
  const inFront = new Uint8Array((nu + 1) * (nv + 1));
  for (let j = 0; j <= nv; j++) {
    const v = (r.h * j) / nv;
    const tilt = frame.vextent / 2 - (r.y + v) * tiltPerPx;
    for (let i = 0; i <= nu; i++) {
      const u = (r.w * i) / nu;
      const pan = frame.left + (r.x + u) * panPerPx;
      const k = j * (nu + 1) + i;
      const p = project(cam, direction(pan, tilt));
      uvs[k * 2] = u;
      uvs[k * 2 + 1] = v;
      if (p) {
        positions[k * 2] = p[0];
        positions[k * 2 + 1] = p[1];
        inFront[k] = 1;
      }
    }
  }
  const triangles = [];
  for (let j = 0; j < nv; j++) {
    for (let i = 0; i < nu; i++) {
      const a = j * (nu + 1) + i;
      const b = a + 1;
      const c = a + nu + 1;
      const d = c + 1;
      if (!(inFront[a] && inFront[b] && inFront[c] && inFront[d])) continue;
      const xs = [positions[a * 2], positions[b * 2], positions[c * 2], positions[d * 2]];
      const ys = [positions[a * 2 + 1], positions[b * 2 + 1], positions[c * 2 + 1], positions[d * 2 + 1]];
      if (Math.max(...xs) < -margin || Math.min(...xs) > cam.width + margin) continue;
      if (Math.max(...ys) < -margin || Math.min(...ys) > cam.height + margin) continue;
      triangles.push(a, b, c, b, d, c);
    }
  }
  return triangles.length ? { positions, uvs, triangles } : null;
}

function flatMesh(pyramid, view, size, tile) {
  const top = pyramid.levels[pyramid.top];
  const level = pyramid.levels[tile.level];
  const fx = top.width / level.width;
  const fy = top.height / level.height;
  const r = tile.rect;
  const x0 = size.width / 2 + (r.x * fx - view.x) * view.scale;
  const y0 = size.height / 2 + (r.y * fy - view.y) * view.scale;
  const x1 = size.width / 2 + ((r.x + r.w) * fx - view.x) * view.scale;
  const y1 = size.height / 2 + ((r.y + r.h) * fy - view.y) * view.scale;
  if (x1 < 0 || y1 < 0 || x0 > size.width || y0 > size.height) return null;
  return {
    rectangle: true,
    positions: [x0, y0, x1, y0, x0, y1, x1, y1],
    uvs: [0, 0, r.w, 0, 0, r.h, r.w, r.h],
    triangles: [0, 1, 2, 1, 3, 2],
  };
}

// Every tile of `levelIndex` that shows in the view, with its mesh: [{ tile, mesh }].
export function visibleTiles(pyramid, levelIndex, place) {
  const level = pyramid.levels[levelIndex];
  const out = [];
  for (let row = 0; row < level.rows; row++) {
    for (let column = 0; column < level.columns; column++) {
      const rect = pyramid.rect(levelIndex, column, row);
      const probe = { level: levelIndex, column, row, rect };
      const mesh = place(probe);
      if (mesh) out.push({ tile: pyramid.tile(levelIndex, column, row), mesh });
    }
  }
  return out;
}

export function sphericalPlacer(pyramid, frame, cam) {
  return (tile) => sphericalMesh(pyramid, frame, cam, tile, 2);
}

export function flatPlacer(pyramid, view, size) {
  return (tile) => flatMesh(pyramid, view, size, tile);
}
