// Pictures that are drawing scripts rather than files ("defaultSkin", "defaultCompass"): each tile
// is drawn in its own square space centred on the origin, white on transparent, once per pixel
// ratio, so the faces that copy from them stay sharp at any ratio and nothing is loaded.

// Returns a function of the ratio that gives { canvas, ratio } for the picture of width x height
// skin pixels; `tiles` are { x, y, size, draw(ctx) } with the tile's corner and side.
export function drawnPicture(width, height, tiles) {
  const made = new Map();
  return (ratio = 1) => {
    const key = Math.max(1, Math.ceil(ratio * 2) / 2);
    if (made.has(key)) return made.get(key);
    const canvas = document.createElement('canvas');
    canvas.width = width * key;
    canvas.height = height * key;
    const ctx = canvas.getContext('2d');
    for (const { x, y, size, draw } of tiles) {
      const half = size / 2;
      ctx.save();
      ctx.setTransform(key, 0, 0, key, (x + half) * key, (y + half) * key);
      ctx.beginPath();
      ctx.rect(-half, -half, size, size);
      ctx.clip();
      ctx.fillStyle = ctx.strokeStyle = '#fff';
      ctx.lineWidth = 5;
      ctx.lineCap = ctx.lineJoin = 'round';
      draw(ctx);
      ctx.restore();
    }
    const picture = { canvas, ratio: key };
    made.set(key, picture);
    return picture;
  };
}
