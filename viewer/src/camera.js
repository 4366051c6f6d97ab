// The camera state of a panorama or a flat picture and the limits that hold it: the view never
// leaves the picture of a partial panorama, the field of view stays between its minimum and
// maximum, and a flat picture never shrinks below the size that fits the window.
import { verticalFov, horizontalFov } from './geometry.js';

const FULL = 359.99;

export function sphericalLimits(camera, image) {
  const c = camera || {};
  const minpan = typeof c.minpan === 'number' ? c.minpan : 0;
  const hextent = image.hextent || 360;
  const vextent = image.vextent || 180;
  return {
    minpan,
    maxpan: typeof c.maxpan === 'number' ? c.maxpan : minpan + hextent,
    mintilt: typeof c.mintilt === 'number' ? c.mintilt : -vextent / 2,
    maxtilt: typeof c.maxtilt === 'number' ? c.maxtilt : vextent / 2,
    minhfov: typeof c.minhfov === 'number' ? c.minhfov : 5,
    maxhfov: typeof c.maxhfov === 'number' ? c.maxhfov : 140,
  };
}

export function isFullCircle(limits) {
  return limits.maxpan - limits.minpan >= FULL;
}

// Returns the view moved into the limits for a width x height area.
export function clampSpherical(view, limits, width, height, distortion) {
  let { pan, tilt, hfov } = view;
  const maxhfov = distortion > 0 ? Math.max(limits.maxhfov, 170) : limits.maxhfov;
  hfov = Math.min(Math.max(hfov, limits.minhfov), maxhfov);
  const panRange = limits.maxpan - limits.minpan;
  const tiltRange = limits.maxtilt - limits.mintilt;
  const aspect = height / Math.max(width, 1);
  if (panRange < FULL) hfov = Math.min(hfov, panRange);
  if (tiltRange < 179.99 && distortion === 0) {
    // No more than the picture's height: the largest hfov whose vertical field fits it.
    hfov = Math.min(hfov, horizontalFov(tiltRange, width, height));
  }
  if (panRange < FULL) {
    const lo = limits.minpan + hfov / 2;
    const hi = limits.maxpan - hfov / 2;
    pan = lo > hi ? (limits.minpan + limits.maxpan) / 2 : Math.min(Math.max(pan, lo), hi);
  } else {
    pan = ((pan % 360) + 360) % 360;
  }
  const vfov = verticalFov(hfov, width, height, distortion);
  if (tiltRange >= 179.99 || !(aspect > 0)) {
    tilt = Math.min(Math.max(tilt, -90), 90);
  } else {
    const lo = limits.mintilt + vfov / 2;
    const hi = limits.maxtilt - vfov / 2;
    tilt = lo > hi ? (limits.mintilt + limits.maxtilt) / 2 : Math.min(Math.max(tilt, lo), hi);
  }
  return { pan, tilt, hfov };
}

// Flat pictures: x and y are the centre in pixels of the largest level, scale the screen pixels
// per picture pixel.
export function fitScale(image, width, height) {
  return Math.min(width / image.width, height / image.height);
}

export function clampFlat(view, image, width, height) {
  const fit = fitScale(image, width, height);
  const scale = Math.min(Math.max(view.scale, fit), Math.max(fit, 2));
  const axis = (centre, size, screen) => {
    const half = screen / 2 / scale;
    if (size * scale <= screen) return size / 2;
    return Math.min(Math.max(centre, half), size - half);
  };
  return { x: axis(view.x, image.width, width), y: axis(view.y, image.height, height), scale };
}
