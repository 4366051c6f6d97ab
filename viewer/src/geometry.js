// View geometry of a spherical panorama: directions from pan and tilt (degrees, pan growing to the
// right, tilt upward) and one projection family for every view. A point at unit distance is
// projected from a centre that lies `distortion` behind the sphere's centre: 0 gives the ordinary
// rectilinear view, 1 the stereographic little-planet view, values between blend the two.

const RAD = Math.PI / 180;

export function direction(pan, tilt) {
  const p = pan * RAD;
  const t = tilt * RAD;
  return [Math.cos(t) * Math.sin(p), Math.sin(t), Math.cos(t) * Math.cos(p)];
}

// A camera for one frame: its axes and the scale that fits hfov into the width.
export function makeCamera(view, width, height, distortion) {
  const p = view.pan * RAD;
  const t = view.tilt * RAD;
  const half = Math.min(view.hfov, 179) * RAD / 2;
  return {
    width,
    height,
    distortion,
    forward: [Math.cos(t) * Math.sin(p), Math.sin(t), Math.cos(t) * Math.cos(p)],
    right: [Math.cos(p), 0, -Math.sin(p)],
    up: [-Math.sin(t) * Math.sin(p), Math.cos(t), -Math.sin(t) * Math.cos(p)],
    scale: (width / 2) * (Math.cos(half) + distortion) / Math.sin(half),
  };
}

// Screen position of a direction, or null when it lies behind the projection centre.
export function project(camera, d) {
  const x = d[0] * camera.right[0] + d[1] * camera.right[1] + d[2] * camera.right[2];
  const y = d[0] * camera.up[0] + d[1] * camera.up[1] + d[2] * camera.up[2];
  const z = d[0] * camera.forward[0] + d[1] * camera.forward[1] + d[2] * camera.forward[2];
  const w = z + camera.distortion;
  if (w < 0.02) return null;
  return [camera.width / 2 + camera.scale * x / w, camera.height / 2 - camera.scale * y / w];
}

// Pan and tilt under a screen point: the inverse of project.
export function unproject(camera, sx, sy) {
  const a = (sx - camera.width / 2) / camera.scale;
  const b = -(sy - camera.height / 2) / camera.scale;
  const s = a * a + b * b;
  const D = camera.distortion;
  const z = (-s * D + Math.sqrt(Math.max(0, s + 1 - s * D * D))) / (s + 1);
  const x = a * (z + D);
  const y = b * (z + D);
  const d = [0, 1, 2].map((i) => x * camera.right[i] + y * camera.up[i] + z * camera.forward[i]);
  return {
    pan: Math.atan2(d[0], d[2]) / RAD,
    tilt: Math.asin(Math.max(-1, Math.min(1, d[1]))) / RAD,
  };
}

// Vertical field of view that goes with hfov in a width x height area.
export function verticalFov(hfov, width, height, distortion) {
  const half = Math.min(hfov, 179) * RAD / 2;
  if (distortion > 0) return hfov * height / width;
  return 2 * Math.atan(Math.tan(half) * height / width) / RAD;
}

// Horizontal field of view whose vertical field is vfov, in the ordinary view.
export function horizontalFov(vfov, width, height) {
  return 2 * Math.atan(Math.tan(Math.min(vfov, 179) * RAD / 2) * width / Math.max(height, 1)) / RAD;
}

export function wrapPan(pan) {
  return ((pan % 360) + 540) % 360 - 180;
}
