// The painter of button faces. A face is a short program of commands separated by ";":
//   copy(image, sx, sy, sw, sh, x, y, w, h[, #colour])  a tile of the skin picture into the button,
//                                                       tinted in the colour when one is given
//   shadow(blur, dx, dy, colour)                       the drop shadow of the following copies
//   comp(alpha)                                        the opacity of the following copies
//   dim(x, y, w, h, width, height)                     the painted area beyond the button
// The canvas has device pixels; canvas shadows ignore the transform, so blur and offsets are
// scaled by hand.
import { skinImage } from './skinimage.js';
import { compassImage } from './compassimage.js';

// The pictures a copy may name; an unknown name draws from the skin picture.
const PICTURES = { defaultSkin: skinImage, defaultCompass: compassImage };

// Parses a face into [{name, args}]; unknown commands are kept and skipped when painting.
export function parseSkin(textValue) {
  const commands = [];
  const re = /([a-z]+)\s*\(([^)]*)\)/gi;
  let m;
  while ((m = re.exec(String(textValue || ''))) !== null) {
    // Colours in rgba() carry commas inside their own parentheses.
    commands.push({ name: m[1].toLowerCase(), args: m[2].split(',').map((a) => a.trim()) });
  }
  return commands;
}

// The shadow's rgba() closes a parenthesis of its own: rejoin it before parsing.
function normalise(textValue) {
  return String(textValue || '').replace(/rgba?\(([^)]*)\)/gi, (all, inner) => `rgba[${inner.replace(/,/g, '|')}]`);
}

function colourOf(arg) {
  return String(arg || '').replace(/\[/, '(').replace(/\]/, ')').replace(/\|/g, ',');
}

// The area a face covers relative to the button: its "dim", or the button itself.
export function skinArea(textValue, width, height) {
  for (const c of parseSkin(normalise(textValue))) {
    if (c.name === 'dim' && c.args.length >= 6) {
      const [x, y, w, h, pw, ph] = c.args.map(parseFloat);
      return { x, y, w, h, pw, ph };
    }
  }
  return { x: 0, y: 0, w: width, h: height, pw: width, ph: height };
}

let tintCanvas = null;

// Paints `textValue` onto `canvas` (resized for the area and the ratio); returns the area.
export function paintSkin(canvas, textValue, width, height, ratio = window.devicePixelRatio || 1) {
  const area = skinArea(textValue, width, height);
  canvas.width = Math.max(1, Math.round(area.pw * ratio));
  canvas.height = Math.max(1, Math.round(area.ph * ratio));
  const style = canvas.style;
  style.left = `${area.x}px`;
  style.top = `${area.y}px`;
  style.width = `${area.w}px`;
  style.height = `${area.h}px`;
  const ctx = canvas.getContext('2d');
  ctx.clearRect(0, 0, canvas.width, canvas.height);
  // Copies place tiles in the painted area's own units, from its top left corner (the button's
  // corner when there is no "dim"); these units -> device pixels of the canvas.
  const sx = canvas.width / area.pw;
  const sy = canvas.height / area.ph;
  const pixelRatio = Math.max(sx, sy);
  for (const c of parseSkin(normalise(textValue))) {
    if (c.name === 'shadow' && c.args.length >= 4) {
      const [blur, dx, dy] = c.args.map(parseFloat);
      ctx.shadowBlur = blur * sx;
      ctx.shadowOffsetX = dx * sx;
      ctx.shadowOffsetY = dy * sy;
      ctx.shadowColor = colourOf(c.args[3]);
    } else if (c.name === 'comp') {
      ctx.globalAlpha = Math.min(Math.max(parseFloat(c.args[0]), 0), 1) || 0;
    } else if (c.name === 'copy' && c.args.length >= 9) {
      const n = c.args.slice(1, 9).map(parseFloat);
      const skin = (PICTURES[c.args[0]] || skinImage)(pixelRatio);
      const r = skin.ratio;
      let source = skin.canvas;
      let [srcX, srcY, srcW, srcH] = [n[0] * r, n[1] * r, n[2] * r, n[3] * r];
      if (c.args[9]) {
        tintCanvas = tintCanvas || document.createElement('canvas');
        tintCanvas.width = srcW;
        tintCanvas.height = srcH;
        const t = tintCanvas.getContext('2d');
        t.drawImage(skin.canvas, srcX, srcY, srcW, srcH, 0, 0, srcW, srcH);
        t.globalCompositeOperation = 'source-in';
        t.fillStyle = c.args[9];
        t.fillRect(0, 0, srcW, srcH);
        source = tintCanvas;
        [srcX, srcY] = [0, 0];
      }
      ctx.drawImage(source, srcX, srcY, srcW, srcH,
        n[4] * sx, n[5] * sy, n[6] * sx, n[7] * sy);
    }
  }
  return area;
}
