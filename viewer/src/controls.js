// The controls of the controls file: the toolbar ("buttonBox") with its buttons, and the buttons
// that stand on their own (the root "button" array). Buttons paint their faces with the skin
// painter, take their box's look from CSS texts, and run their "onclick" or, without one, the
// built-in function of their "type".
import { Element, placeNode, cssLength } from './elements.js';
import { panelLift } from './panel.js';
import { paintSkin } from './skin.js';
import { maybeText } from './texts.js';
import { modernCss } from './css.js';

// Toolbar items that are not plain buttons, by their "type" (the compass and radar register
// themselves here).
export const ITEM_KINDS = {};

// Built-in functions of buttons without handlers: degrees a second of turning (pan, tilt) or the
// factor a second of zooming, and the step of one keyboard press.
const TYPES = {
  1: { pan: -1 }, 2: { pan: 1 }, 3: { tilt: 1 }, 4: { tilt: -1 }, 5: { zoom: -1 }, 6: { zoom: 1 },
};
const TURN_RATE = 60; // degrees a second at a 90 degree field of view
const ZOOM_RATE = 0.9; // e-folds of the field of view a second

// Applies a CSS text over a placement: the text may bring its own transform (the folding designs
// turn their boxes), which then follows the placement's translation.
function applyStyle(node, css, place) {
  node.style.cssText = modernCss(css);
  const own = node.style.transform;
  place(node);
  if (own) node.style.transform = `${node.style.transform} ${own}`;
}

// A box parked beyond the viewer's edges (a toolbar slid away, a show button waiting below the
// edge) is out of the way of Tab and screen readers. Its place is judged without its transforms,
// which fold boxes away and back in while they stay where they are.
function markParked(node, root) {
  const [x, y, w, h] = [node.offsetLeft, node.offsetTop, node.offsetWidth, node.offsetHeight];
  node.inert = w > 0 && (y >= root.clientHeight || y + h <= 0 || x >= root.clientWidth || x + w <= 0);
}

export class Button extends Element {
  constructor(viewer, members, toolbar = null) {
    super(viewer, members, 'button');
    this.toolbar = toolbar;
    const node = document.createElement('button');
    node.type = 'button';
    node.className = 'vanto-button';
    node.dataset.id = this.id || `type${this.type}`;
    node.setAttribute('aria-label', this.caption ? viewer.tr(this.caption)
      : maybeText(this.id) || maybeText(`type${this.type}`) || maybeText('button'));
    this.node = node;
    this.face = document.createElement('canvas');
    this.face.className = 'vanto-face';
    node.appendChild(this.face);
    this.hover = false;
    this.pressed = false;
    node.addEventListener('pointerenter', () => this.setState(true, this.pressed));
    node.addEventListener('pointerleave', () => this.setState(false, false));
    node.addEventListener('pointerdown', (e) => {
      e.stopPropagation();
      this.setState(this.hover, true);
      if (TYPES[this.type]) this.hold();
    });
    for (const type of ['pointerup', 'pointercancel']) node.addEventListener(type, () => this.setState(this.hover, false));
    for (const type of ['wheel', 'dblclick']) node.addEventListener(type, (e) => e.stopPropagation());
    node.addEventListener('keydown', (e) => { if (e.key === 'Enter' || e.key === ' ') e.stopPropagation(); });
    node.addEventListener('click', (e) => { e.stopPropagation(); this.click(); });
  }

  get buttonWidth() { return Number(this.toolbar ? this.toolbar.buttonwidth : this.width) || 28; }
  get buttonHeight() { return Number(this.toolbar ? this.toolbar.buttonheight : this.height) || 28; }

  click() {
    if (this.held) { this.held = false; return; }
    const t = TYPES[this.type];
    if (typeof this.onclick === 'function') this.onclick();
    else if (t) this.step(t, 0.25);
  }

  // Turns or zooms the view by `seconds` worth of the button's type.
  step(t, seconds) {
    const v = this.viewer;
    v.userInput();
    const view = v.getView();
    if (t.zoom) {
      v.setView(undefined, undefined, view.hfov * Math.exp(t.zoom * ZOOM_RATE * seconds));
      return;
    }
    // Flat pictures measure pan and tilt in fractions of the picture, hfov in percent of its width.
    const rate = v.flat ? view.hfov / 100 / 2 : (TURN_RATE * view.hfov) / 90;
    const sign = v.flat ? -1 : 1;
    v.setView(t.pan ? view.pan + t.pan * rate * seconds : undefined,
      t.tilt ? view.tilt + sign * t.tilt * rate * seconds : undefined, undefined);
  }

  // While the pointer holds a type button, the view turns or zooms frame by frame.
  hold() {
    const t = TYPES[this.type];
    let last = null;
    this.held = false;
    const tick = (now) => {
      if (!this.pressed) return;
      this.held = true;
      // Frame times may precede the press: the first frame moves by one frame's worth.
      this.step(t, last === null ? 1 / 60 : Math.min(0.1, Math.max(0, (now - last) / 1000)));
      last = now;
      requestAnimationFrame(tick);
    };
    requestAnimationFrame(tick);
  }

  setState(hover, pressed) {
    if (hover === this.hover && pressed === this.pressed) return;
    this.hover = hover;
    this.pressed = pressed;
    this.updateStyles();
    this.updateSkins();
  }

  // The face for the state: pressed, under the mouse, or at rest.
  currentSkin() {
    return (this.pressed && this.skinactive) || (this.hover && this.skinhover) || this.skin || '';
  }

  updateSkins() {
    this.painted = paintSkin(this.face, this.currentSkin(), this.buttonWidth, this.buttonHeight);
  }

  boxStyle() {
    const tb = this.toolbar;
    const [rest, hover, active] = tb && !this.style
      ? [tb.buttonstyle, tb.buttonstylehover, tb.buttonstyleactive]
      : [this.style, this.stylehover, this.styleactive];
    return `${rest || ''};${this.hover && hover ? hover : ''};${this.pressed && active ? active : ''}`;
  }

  updateStyles() {
    applyStyle(this.node, this.boxStyle(), (node) => {
      if (this.toolbar) {
        node.style.position = 'absolute';
        node.style.left = `${this.slot || 0}px`;
        node.style.top = `calc(50% - ${this.buttonHeight / 2}px)`;
      } else {
        placeNode(node, this.align, this.xoff, this.yoff);
      }
      node.style.width = `${this.buttonWidth}px`;
      node.style.height = `${this.buttonHeight}px`;
    });
    if (!this.visible || this.dropped) this.node.style.display = 'none';
    else if (!this.toolbar) markParked(this.node, this.viewer.root);
  }

  updateAlign() {
    if (this.toolbar) this.toolbar.layout();
    else this.updateStyles();
  }

  setVisible(visible) {
    this.visible = !!visible;
    this.updateAlign();
    this.updateStyles();
  }

  destroy() {
    super.destroy();
    this.removed = true;
    if (this.toolbar) this.toolbar.layout();
  }
}

// The toolbar: a box placed by "align" and "yoff", holding its buttons in three groups ("left",
// "center", "right") ordered by "index". When the box is too narrow for all, the buttons of the
// lowest "priority" go first.
export class Toolbar extends Element {
  constructor(viewer, members) {
    super(viewer, { ...members, button: undefined }, 'toolbar');
    this.node.setAttribute('role', 'toolbar');
    this.buttons = (members.button || []).map((b) => new (ITEM_KINDS[b.type] || Button)(viewer, b, this));
    // Tab walks the buttons as they stand, from left to right.
    const rank = { left: 0, center: 1, right: 2 };
    const order = (b) => (rank[b.align || 'center'] ?? 1) * 1000 + (Number(b.index) || 0);
    for (const b of [...this.buttons].sort((x, y) => order(x) - order(y))) {
      this.node.appendChild(b.node);
      if (b.id) viewer.elements.set(b.id, b);
    }
    // The bar is the buttons' ground: pressing or scrolling on it does not move the panorama.
    for (const type of ['pointerdown', 'wheel', 'dblclick']) this.node.addEventListener(type, (e) => e.stopPropagation());
    new ResizeObserver(() => this.layout()).observe(this.node);
  }

  updateStyles() {
    // A panel open below the toolbar (thumbnail strip or map) lifts it by its height.
    const lift = panelLift(this.viewer);
    applyStyle(this.node, this.style || '', (node) => {
      placeNode(node, this.align, this.xoff, lift ? `calc(${cssLength(this.yoff)} + ${lift}px)` : this.yoff);
      node.style.width = this.width || '500px';
      node.style.height = this.height || '48px';
    });
    if (!this.visible) this.node.style.display = 'none';
    else markParked(this.node, this.viewer.root);
  }

  updateAlign() { this.updateStyles(); }

  setVisible(visible) {
    this.visible = !!visible;
    this.updateStyles();
    this.layout();
  }

  // Gives every shown button its place; returns the buttons placed, in order from left to right.
  layout() {
    const width = this.node.clientWidth;
    const spacing = Number(this.spacing) || 0;
    let shown = this.buttons.filter((b) => b.visible && !b.removed);
    const bw = Number(this.buttonwidth) || 28;
    const groups = () => ['left', 'center', 'right'].map((side) => shown
      .filter((b) => (b.align || 'center') === side).sort((a, b) => (a.index || 0) - (b.index || 0)));
    const span = (list) => list.length * bw + Math.max(0, list.length - 1) * spacing;
    const edge = (list) => (list.length ? Number(list[0].xoff) || 0 : 0);
    const fits = () => {
      const used = groups().filter((list) => list.length);
      const total = used.reduce((sum, list) => sum + span(list) + (list[0].align === 'center' ? 0 : edge(list)), 0);
      return total + spacing * Math.max(0, used.length - 1) <= width;
    };
    while (shown.length && width > 0 && !fits()) {
      // The lowest priority goes first; of equals, the last in the toolbar.
      const victim = shown.reduce((a, b) => ((b.priority || 0) < (a.priority || 0)
        || ((b.priority || 0) === (a.priority || 0) && (b.index || 0) > (a.index || 0)) ? b : a));
      shown = shown.filter((b) => b !== victim);
    }
    const [left, centre, right] = groups();
    let x = edge(left);
    for (const b of left) { b.slot = x; x += bw + spacing; }
    const leftEnd = x - spacing;
    let rx = width - edge(right);
    for (const b of [...right].reverse()) { rx -= bw; b.slot = rx; rx -= spacing; }
    const rightStart = rx + spacing;
    // The centre group is centred in the box, or between the side groups when they leave no room.
    let cx = (width - span(centre)) / 2;
    if (cx < leftEnd + spacing) cx = leftEnd + spacing;
    if (cx + span(centre) > rightStart - spacing) cx = Math.max(leftEnd + spacing, rightStart - spacing - span(centre));
    for (const b of centre) { b.slot = cx; cx += bw + spacing; }
    for (const b of this.buttons) {
      b.dropped = !shown.includes(b);
      b.updateStyles();
    }
    return [...left, ...centre, ...right];
  }
}

// Creates the toolbars and free buttons of the controls files in `viewer.controls`.
export function createControls(viewer) {
  for (const root of viewer.controls || []) {
    const boxes = root.buttonBox ? [].concat(root.buttonBox) : [];
    for (const members of boxes) {
      const toolbar = viewer.addElement(new Toolbar(viewer, members));
      toolbar.updateStyles();
      toolbar.layout();
      for (const b of toolbar.buttons) b.updateSkins();
    }
    for (const members of root.button || []) {
      const button = viewer.addElement(new Button(viewer, members));
      button.updateStyles();
      button.updateSkins();
    }
  }
}
