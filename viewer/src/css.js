// Style texts of the viewer files as browsers read them today. Some designs write gradients in the
// old prefixed form, "linear-gradient(top, ...)", which names the side the gradient starts from;
// browsers drop such a declaration, so it becomes the standard "to bottom" form it meant.
const OPPOSITE = { top: 'bottom', bottom: 'top', left: 'right', right: 'left' };
const LEGACY = /(linear-gradient\(\s*)(top|bottom|left|right)(?:\s+(top|bottom|left|right))?\s*,/gi;

export function modernCss(css) {
  return String(css || '').replace(LEGACY, (all, head, first, second) => {
    const sides = [first, second].filter(Boolean).map((side) => OPPOSITE[side.toLowerCase()]);
    return `${head}to ${sides.join(' ')},`;
  });
}
