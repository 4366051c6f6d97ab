// Mouse, touch and keyboard. "drag" mode moves the picture with the pointer; "move" mode turns
// the view while the button is held, the faster the farther the pointer is from where it was
// pressed. The wheel and pinching zoom, towards the pointer unless "zoomtocursor" is false;
// arrows turn and + and - zoom while the viewer has the focus.
import { unproject } from './geometry.js';

const KEYS = {
  ArrowLeft: ['pan', -1], ArrowRight: ['pan', 1], ArrowUp: ['tilt', 1], ArrowDown: ['tilt', -1],
  '+': ['zoom', -1], '=': ['zoom', -1], Add: ['zoom', -1], '-': ['zoom', 1], Subtract: ['zoom', 1],
};

export class Input {
  constructor(viewer) {
    this.viewer = viewer;
    this.pointers = new Map();
    this.keys = new Set();
    this.velocity = null;
    const root = viewer.root;
    root.addEventListener('pointerdown', (e) => this.down(e));
    root.addEventListener('pointermove', (e) => this.moveTo(e));
    root.addEventListener('pointerup', (e) => this.up(e));
    root.addEventListener('pointercancel', (e) => this.up(e));
    root.addEventListener('wheel', (e) => this.wheel(e), { passive: false });
    root.addEventListener('keydown', (e) => this.key(e, true));
    root.addEventListener('keyup', (e) => this.key(e, false));
    root.addEventListener('blur', () => this.keys.clear());
  }

  mode(e) {
    const control = this.viewer.control;
    const value = e.pointerType === 'touch' ? control.touchmode : control.mousemode;
    return value === 'move' ? 'move' : 'drag';
  }

  down(e) {
    const v = this.viewer;
    if (e.button > 0) return;
    v.root.focus({ preventScroll: true });
    v.userInput();
    if (v.locked) return;
    // A pointer may already be gone when its press arrives (or never was a device's): capture is
    // then not possible and not needed.
    try { v.root.setPointerCapture(e.pointerId); } catch (error) { /* nothing to capture */ }
    this.pointers.set(e.pointerId, { x: e.clientX, y: e.clientY, startX: e.clientX, startY: e.clientY, mode: this.mode(e) });
    this.pinch = this.pointers.size === 2 ? this.spread() : null;
    e.preventDefault();
  }

  spread() {
    const [a, b] = [...this.pointers.values()];
    return { distance: Math.hypot(a.x - b.x, a.y - b.y) || 1, hfov: this.viewer.getView().hfov };
  }

  moveTo(e) {
    const p = this.pointers.get(e.pointerId);
    const v = this.viewer;
    if (!p || v.locked) return;
    const dx = e.clientX - p.x;
    const dy = e.clientY - p.y;
    p.x = e.clientX;
    p.y = e.clientY;
    v.userInput();
    if (this.pointers.size === 2 && this.pinch) {
      const [a, b] = [...this.pointers.values()];
      const distance = Math.hypot(a.x - b.x, a.y - b.y) || 1;
      v.setView(undefined, undefined, this.pinch.hfov * this.pinch.distance / distance);
      return;
    }
    if (p.mode === 'move') {
      this.velocity = { x: e.clientX - p.startX, y: e.clientY - p.startY };
      v.requestFrame();
      return;
    }
    this.shift(-dx, dy);
  }

  up(e) {
    this.pointers.delete(e.pointerId);
    if (!this.pointers.size) this.velocity = null;
    this.pinch = null;
  }

  // Moves the view by screen pixels.
  shift(dx, dy) {
    const v = this.viewer;
    const { width } = v.size();
    if (v.flat) {
      const f = v.flatView;
      if (f) v.flatView = { ...f, x: f.x + dx / f.scale, y: f.y - dy / f.scale };
      v.requestFrame();
      return;
    }
    const view = v.getView();
    const perPixel = view.hfov / Math.max(width, 1);
    v.setView(view.pan + dx * perPixel, view.tilt + dy * perPixel, view.hfov);
  }

  wheel(e) {
    const v = this.viewer;
    e.preventDefault();
    v.userInput();
    if (v.locked) return;
    const factor = Math.exp(Math.max(-1, Math.min(1, e.deltaY * (e.deltaMode ? 0.05 : 0.0015))));
    const rect = v.root.getBoundingClientRect();
    this.zoomAt(factor, e.clientX - rect.left, e.clientY - rect.top, v.control.zoomtocursor !== false);
  }

  // Zooms by a factor of the field of view, keeping the point under (x, y) in place when asked.
  zoomAt(factor, x, y, toCursor) {
    const v = this.viewer;
    const { width, height } = v.size();
    if (v.flat) {
      const f = v.flatView;
      if (!f) return;
      const scale = f.scale / factor;
      const px = toCursor ? x : width / 2;
      const py = toCursor ? y : height / 2;
      const ix = f.x + (px - width / 2) / f.scale;
      const iy = f.y + (py - height / 2) / f.scale;
      v.flatView = { x: ix - (px - width / 2) / scale, y: iy - (py - height / 2) / scale, scale };
      v.requestFrame();
      return;
    }
    const view = v.getView();
    if (!toCursor || !v.camera) {
      v.setView(view.pan, view.tilt, view.hfov * factor);
      return;
    }
    const before = unproject(v.camera, x, y);
    v.setView(view.pan, view.tilt, view.hfov * factor);
    v.draw();
    const after = unproject(v.camera, x, y);
    const next = v.getView();
    v.setView(next.pan + (before.pan - after.pan), next.tilt + (before.tilt - after.tilt), next.hfov);
  }

  key(e, pressed) {
    const action = KEYS[e.key];
    if (!action) return;
    e.preventDefault();
    if (pressed) {
      this.viewer.userInput();
      // A first press moves at once, so that a short tap does something; holding keeps moving.
      if (!e.repeat && !this.keys.has(e.key) && !this.viewer.locked) {
        const [what, sign] = action;
        const step = this.viewer.size().width * 0.02;
        if (what === 'zoom') this.zoomAt(Math.exp(sign * 0.08), 0, 0, false);
        else if (what === 'pan') this.shift(sign * step, 0);
        else this.shift(0, sign * step);
      }
      this.keys.add(e.key);
    } else this.keys.delete(e.key);
    this.viewer.requestFrame();
  }

  // Integrates held keys and the "move" mode's velocity; returns whether the view keeps moving.
  step(dt) {
    const v = this.viewer;
    if (v.locked || (!this.keys.size && !this.velocity)) return false;
    const { width } = v.size();
    let dx = 0;
    let dy = 0;
    let zoom = 0;
    for (const key of this.keys) {
      const [what, sign] = KEYS[key];
      if (what === 'pan') dx += sign;
      else if (what === 'tilt') dy += sign;
      else zoom += sign;
    }
    // Keys turn by half a field of view a second; in "move" mode a pointer half the width away
    // from where it was pressed turns by a whole field of view a second.
    dx *= width * 0.5 * dt;
    dy *= width * 0.5 * dt;
    if (this.velocity) {
      dx += this.velocity.x * 2 * dt;
      dy -= this.velocity.y * 2 * dt;
    }
    if (dx || dy) this.shift(dx, dy);
    if (zoom) this.zoomAt(Math.exp(zoom * dt), 0, 0, false);
    return true;
  }
}
