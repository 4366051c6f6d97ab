// The back-end without WebGL: a 2D canvas that draws every tile as affine-mapped triangles. It
// works where WebGL cannot, such as pages opened from disk, whose images WebGL may not read.

export class Canvas2DRenderer {
  constructor(canvas) {
    this.canvas = canvas;
    this.ctx = canvas.getContext('2d', { alpha: false, willReadFrequently: true });
    this.webgl = false;
    // The CPU draws every pixel: on high-density screens the canvas keeps CSS pixels and the
    // browser scales it, which keeps turning the view fluid.
    this.maxPixelRatio = 1;
  }

  begin(width, height, ratio) {
    const c = this.canvas;
    if (c.width !== Math.round(width * ratio) || c.height !== Math.round(height * ratio)) {
      c.width = Math.round(width * ratio);
      c.height = Math.round(height * ratio);
    }
    this.ratio = ratio;
    this.offset = [0, 0];
    const ctx = this.ctx;
    ctx.restore();
    ctx.setTransform(1, 0, 0, 1, 0, 0);
    ctx.fillStyle = '#000';
    ctx.fillRect(0, 0, c.width, c.height);
    ctx.save();
  }

  // The following tiles go into the rectangle x, y, w, h (from the top left), their positions
  // counted from its corner.
  region(x, y, w, h) {
    const r = this.ratio;
    const ctx = this.ctx;
    ctx.restore();
    ctx.save();
    ctx.setTransform(1, 0, 0, 1, 0, 0);
    ctx.beginPath();
    ctx.rect(x * r, y * r, w * r, h * r);
    ctx.clip();
    this.offset = [x * r, y * r];
  }

  // mesh: { positions: [x, y, ...] in CSS pixels, uvs: [u, v, ...] in image pixels, triangles: [i, j, k, ...] }
  drawTile(tile, mesh) {
    const ctx = this.ctx;
    const r = this.ratio;
    const P = mesh.positions;
    const U = mesh.uvs;
    const T = mesh.triangles;
    const [ox, oy] = this.offset;
    if (mesh.rectangle) {
      ctx.setTransform(1, 0, 0, 1, 0, 0);
      ctx.drawImage(tile.img, ox + P[0] * r, oy + P[1] * r, (P[2] - P[0]) * r, (P[5] - P[1]) * r);
      return;
    }
    ctx.setTransform(1, 0, 0, 1, ox, oy);
    for (let i = 0; i < T.length; i += 3) drawTriangle(ctx, tile.img, r, this.offset, P, U, T[i] * 2, T[i + 1] * 2, T[i + 2] * 2);
  }

  forget() {}

  end() {}
}

// Draws the image part of one triangle onto its screen triangle, grown by a little so that
// neighbouring triangles leave no visible seam. Only the triangle's part of the image is handed
// to drawImage, which keeps the work per triangle small.
function drawTriangle(ctx, img, r, offset, P, U, a, b, c) {
  const x0 = P[a] * r; const y0 = P[a + 1] * r;
  const x1 = P[b] * r; const y1 = P[b + 1] * r;
  const x2 = P[c] * r; const y2 = P[c + 1] * r;
  const u0 = U[a]; const v0 = U[a + 1];
  const u1 = U[b]; const v1 = U[b + 1];
  const u2 = U[c]; const v2 = U[c + 1];
  const den = u0 * (v1 - v2) + u1 * (v2 - v0) + u2 * (v0 - v1);
  if (Math.abs(den) < 1e-9) return;
  const ta = (x0 * (v1 - v2) + x1 * (v2 - v0) + x2 * (v0 - v1)) / den;
  const tb = (y0 * (v1 - v2) + y1 * (v2 - v0) + y2 * (v0 - v1)) / den;
  const tc = (x0 * (u2 - u1) + x1 * (u0 - u2) + x2 * (u1 - u0)) / den;
  const td = (y0 * (u2 - u1) + y1 * (u0 - u2) + y2 * (u1 - u0)) / den;
  const te = (x0 * (u1 * v2 - u2 * v1) + x1 * (u2 * v0 - u0 * v2) + x2 * (u0 * v1 - u1 * v0)) / den;
  const tf = (y0 * (u1 * v2 - u2 * v1) + y1 * (u2 * v0 - u0 * v2) + y2 * (u0 * v1 - u1 * v0)) / den;
  const cx = (x0 + x1 + x2) / 3;
  const cy = (y0 + y1 + y2) / 3;
  const grow = (x, y) => {
    const dx = x - cx;
    const dy = y - cy;
    const len = Math.hypot(dx, dy) || 1;
    return [x + (dx / len) * 0.7, y + (dy / len) * 0.7];
  };
  const p0 = grow(x0, y0);
  const p1 = grow(x1, y1);
  const p2 = grow(x2, y2);
  const su = Math.max(0, Math.floor(Math.min(u0, u1, u2) - 1));
  const sv = Math.max(0, Math.floor(Math.min(v0, v1, v2) - 1));
  const sw = Math.min(img.naturalWidth, Math.ceil(Math.max(u0, u1, u2) + 1)) - su;
  const sh = Math.min(img.naturalHeight, Math.ceil(Math.max(v0, v1, v2) + 1)) - sv;
  if (sw <= 0 || sh <= 0) return;
  ctx.save();
  ctx.beginPath();
  ctx.moveTo(p0[0], p0[1]);
  ctx.lineTo(p1[0], p1[1]);
  ctx.lineTo(p2[0], p2[1]);
  ctx.closePath();
  ctx.clip();
  ctx.setTransform(ta, tb, tc, td, te + offset[0], tf + offset[1]);
  ctx.drawImage(img, su, sv, sw, sh, su, sv, sw, sh);
  ctx.restore();
}
