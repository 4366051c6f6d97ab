// The context menu of the controls file: opened by the right mouse button or a long press, its
// items run their "onclick"; "onshow" decides which items are visible before it opens. An item
// with the caption "-" is a separator. Captions go through `tr`, so the files' "translate" table
// gives them in the browser's language.
import { Element } from './elements.js';

const LONG_PRESS = 600; // ms
const SLOP = 10; // px a long press may wander

class MenuItem extends Element {
  constructor(viewer, members, menu) {
    super(viewer, members, 'menuitem');
    this.menu = menu;
    this.separator = this.caption === '-';
    this.node.setAttribute('role', this.separator ? 'separator' : 'menuitem');
    if (!this.separator) {
      this.node.tabIndex = -1;
      this.node.addEventListener('click', (e) => { e.stopPropagation(); this.choose(); });
      this.node.addEventListener('keydown', (e) => {
        if (e.key === 'Enter' || e.key === ' ') { e.preventDefault(); this.choose(); }
      });
    }
  }

  choose() {
    this.menu.hide();
    if (typeof this.onclick === 'function') this.onclick();
  }

  render() {
    // Captions are the files' own texts and may hold entities such as "&Uuml;".
    if (!this.separator) this.node.innerHTML = this.viewer.tr(String(this.caption || ''));
  }
}

export class ContextMenu extends Element {
  constructor(viewer, members) {
    super(viewer, { ...members, items: undefined }, 'menu');
    this.node.setAttribute('role', 'menu');
    this.items = (members.items || []).map((m) => new MenuItem(viewer, m, this));
    for (const item of this.items) {
      this.node.appendChild(item.node);
      if (item.oninit) item.oninit();
    }
    this.setVisible(false);
    this.updateStyles();
    this.node.addEventListener('keydown', (e) => this.key(e));
    for (const type of ['pointerdown', 'wheel', 'contextmenu']) {
      this.node.addEventListener(type, (e) => { e.stopPropagation(); if (type === 'contextmenu') e.preventDefault(); });
    }
    this.listen(viewer.root);
  }

  getItem(id) {
    return this.items.find((item) => item.id === id) || null;
  }

  // Shows the visible items; a separator shows only between two visible items.
  update() {
    let last = null;
    for (const item of this.items) {
      item.render();
      let shown = item.visible !== false;
      if (item.separator) shown = !!last && !last.separator;
      item.node.style.display = shown ? '' : 'none';
      if (shown) last = item;
    }
    if (last && last.separator) last.node.style.display = 'none';
  }

  show(x, y) {
    if (this.onshow) this.onshow();
    else this.update();
    this.setVisible(true);
    const area = this.viewer.root.getBoundingClientRect();
    const w = this.node.offsetWidth;
    const h = this.node.offsetHeight;
    this.node.style.left = `${Math.max(0, Math.min(x - area.left, area.width - w))}px`;
    this.node.style.top = `${Math.max(0, Math.min(y - area.top, area.height - h))}px`;
    const first = this.items.find((item) => item.node.style.display !== 'none' && !item.separator);
    if (first) first.node.focus();
    this.outside = (e) => { if (!this.node.contains(e.target)) this.hide(); };
    window.addEventListener('pointerdown', this.outside, true);
  }

  hide() {
    if (!this.visible) return;
    this.setVisible(false);
    window.removeEventListener('pointerdown', this.outside, true);
    if (this.node.contains(document.activeElement)) this.viewer.root.focus();
  }

  updateStyles() {
    this.node.style.cssText = `${this.style || ''};position:absolute;z-index:60;pointer-events:auto;`
      + `display:${this.visible ? 'block' : 'none'}`;
  }

  key(e) {
    e.stopPropagation();
    const shown = this.items.filter((item) => !item.separator && item.node.style.display !== 'none');
    const at = shown.findIndex((item) => item.node === document.activeElement);
    if (e.key === 'Escape') this.hide();
    else if (e.key === 'ArrowDown' || e.key === 'ArrowUp') {
      e.preventDefault();
      const next = shown[(at + (e.key === 'ArrowDown' ? 1 : shown.length - 1)) % shown.length];
      if (next) next.node.focus();
    }
  }

  // The right mouse button, and a long press of a finger that stays in place.
  listen(root) {
    root.addEventListener('contextmenu', (e) => {
      e.preventDefault();
      this.show(e.clientX, e.clientY);
    });
    let press = null;
    const cancel = () => { if (press) clearTimeout(press.timer); press = null; };
    root.addEventListener('pointerdown', (e) => {
      cancel();
      if (e.pointerType !== 'touch') return;
      press = { x: e.clientX, y: e.clientY, timer: setTimeout(() => { press = null; this.show(e.clientX, e.clientY); }, LONG_PRESS) };
    });
    root.addEventListener('pointermove', (e) => {
      if (press && Math.hypot(e.clientX - press.x, e.clientY - press.y) > SLOP) cancel();
    });
    for (const type of ['pointerup', 'pointercancel']) root.addEventListener(type, cancel);
  }
}

export function createContextMenu(viewer) {
  for (const root of viewer.controls || []) {
    if (root.contextmenu && Array.isArray(root.contextmenu.items)) viewer.addElement(new ContextMenu(viewer, root.contextmenu));
  }
}
