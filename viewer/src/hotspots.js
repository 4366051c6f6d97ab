// Hotspots: bitmaps placed at a pan and tilt (or, on flat pictures, at fractions of the picture)
// that follow the view. Link hotspots open their address after their transition; info hotspots
// run their click handler, which opens the message box of "hsinfo".
import { Element, TextBox } from './elements.js';
import { matrix3d } from './embedded.js';

function pair(text, fallback) {
  const parts = String(text || '').split(';').map(Number);
  const first = Number.isFinite(parts[0]) ? parts[0] : fallback;
  return [first, Number.isFinite(parts[1]) ? parts[1] : first];
}

export class Hotspot extends Element {
  constructor(viewer, members) {
    super(viewer, members, 'hotspot');
    const [x, y] = String(this.position || '0,0').split(',').map(Number);
    this.pan = x || 0;
    this.tilt = y || 0;
    this.scales = pair(this.bitmapscale, 1);
    this.opacities = pair(this.opacity, 1);
    const node = this.node;
    node.style.cssText = 'position:absolute;left:0;top:0;z-index:10;cursor:pointer;pointer-events:auto;';
    // Hotspots take the focus in turn; Enter or Space opens them as a click does.
    node.tabIndex = 0;
    node.setAttribute('role', 'button');
    if (this.textbox && this.textbox.text) node.setAttribute('aria-label', this.textbox.text);
    node.addEventListener('focus', () => this.setHover(true));
    node.addEventListener('blur', () => this.setHover(false));
    node.addEventListener('keydown', (e) => {
      if (e.key !== 'Enter' && e.key !== ' ') return;
      e.preventDefault();
      e.stopPropagation();
      this.activate();
    });
    this.image = document.createElement('img');
    this.image.src = new URL(this.bitmap, viewer.baseUrl).href;
    this.image.alt = (this.textbox && this.textbox.text) || '';
    this.image.draggable = false;
    this.image.style.cssText = 'display:block;transform-origin:50% 50%;';
    this.image.addEventListener('load', () => viewer.requestFrame());
    node.appendChild(this.image);
    if (this.animation) this.animate();
    if (this.textbox && this.textbox.text) {
      this.tooltip = new TextBox(viewer, { align: 'top', ...this.textbox });
      this.tooltip.node.style.cssText += ';white-space:nowrap;pointer-events:none;';
      this.tooltip.node.style.left = '50%';
      this.tooltip.node.style.top = '0';
      this.tooltip.node.style.transform = 'translate(-50%, -100%)';
      this.tooltip.node.style.display = 'none';
      node.appendChild(this.tooltip.node);
    }
    node.addEventListener('pointerdown', (e) => e.stopPropagation());
    node.addEventListener('pointerenter', () => this.setHover(true));
    node.addEventListener('pointerleave', () => this.setHover(false));
    node.addEventListener('click', (e) => { e.preventDefault(); this.activate(); });
    this.setHover(false);
  }

  setHover(hover) {
    this.hover = hover;
    const i = hover ? 1 : 0;
    this.image.style.opacity = String(this.opacities[i]);
    this.image.style.transform = this.inPanorama ? ''
      : `scale(${this.scales[i] * (this.embeddedScale || 1)}) rotate(${this.rotate || 0}deg)`;
    if (this.tooltip) this.tooltip.node.style.display = hover ? '' : 'none';
    if (this.animation && this.animation.mouseover) {
      this.image.style.animationPlayState = hover ? 'running' : 'paused';
    }
  }

  // An animation strip: frames of width x height side by side (or one under the other), played
  // by CSS steps.
  animate() {
    const a = this.animation;
    const frames = Math.max(1, a.frames | 0);
    const img = this.image;
    const start = () => {
      const horizontal = img.naturalWidth >= a.width * frames;
      const name = `vanto-strip-${Math.random().toString(36).slice(2)}`;
      const style = document.createElement('style');
      const end = horizontal ? `-${a.width * frames}px 0` : `0 -${a.height * frames}px`;
      style.textContent = `@keyframes ${name}{from{background-position:0 0}to{background-position:${end}}}`;
      document.head.appendChild(style);
      const strip = document.createElement('div');
      strip.style.cssText = `width:${a.width}px;height:${a.height}px;background:url("${img.src}") no-repeat;` +
        `animation:${name} ${a.duration || 1}s steps(${frames}) ${a.delay || 0}s ${a.iterations || 'infinite'};`;
      if (a.mouseover) strip.style.animationPlayState = 'paused';
      img.replaceWith(strip);
      this.image = strip;
      this.setHover(this.hover);
    };
    if (img.complete && img.naturalWidth) start();
    else img.addEventListener('load', start, { once: true });
  }

  // Pixels of the bitmap (of one frame of an animation strip); zero until it is loaded.
  bitmapSize() {
    if (this.animation) return [this.animation.width || 0, this.animation.height || 0];
    return [this.image.naturalWidth || 0, this.image.naturalHeight || 0];
  }

  // Lays an embedded bitmap into the panorama by its screen corners (see embedded.js).
  placeEmbedded(corners) {
    if (!corners || !this.visible || !this.viewer.hotspotsVisible) {
      this.node.style.display = 'none';
      return;
    }
    const [width, height] = this.bitmapSize();
    this.node.style.display = '';
    this.node.style.transformOrigin = '0 0';
    this.node.style.transform = matrix3d(corners, width, height);
  }

  // Moves the node to its screen point; hides it when the point is behind the viewer or off view.
  place(point, embeddedScale) {
    if (!point || !this.visible || !this.viewer.hotspotsVisible) {
      this.node.style.display = 'none';
      return;
    }
    this.node.style.display = '';
    this.node.style.transform = `translate(${point[0]}px, ${point[1]}px) translate(-50%, -50%)`;
    if (embeddedScale && embeddedScale !== this.embeddedScale) {
      this.embeddedScale = embeddedScale;
      this.setHover(this.hover);
    }
  }

  activate() {
    if (this.onclick) this.onclick();
    const href = this.href || '';
    if (!href || /^javascript:/i.test(href)) return;
    this.viewer.followLink(this, href, this.target || '_self');
  }
}
