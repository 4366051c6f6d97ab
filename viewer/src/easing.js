// Transition curves of tweens and camera moves, by the names the handler texts use.
const S = Math.sin;
const C = Math.cos;
const H = Math.PI / 2;

export const EASINGS = {
  linear: (t) => t,
  easeInSine: (t) => 1 - C(t * H),
  easeOutSine: (t) => S(t * H),
  easeInOutSine: (t) => -(C(Math.PI * t) - 1) / 2,
  easeInQuad: (t) => t * t,
  easeOutQuad: (t) => t * (2 - t),
  easeInOutQuad: (t) => (t < 0.5 ? 2 * t * t : 1 - (-2 * t + 2) ** 2 / 2),
  easeInCubic: (t) => t * t * t,
  easeOutCubic: (t) => 1 - (1 - t) ** 3,
  easeInOutCubic: (t) => (t < 0.5 ? 4 * t * t * t : 1 - (-2 * t + 2) ** 3 / 2),
};

export function easing(name) {
  return EASINGS[name] || EASINGS.easeInOutSine;
}
