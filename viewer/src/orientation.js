// The orientation element: a compass (a needle that turns to north over a fixed face), a
// rotating-dial compass (a dial with N, E, S, W turning under a fixed index) or a radar (a disc
// with a sector for the field of view). Over the picture it is the controls file's "orientation"
// element; in the toolbar it is a button item of the same members. The view's pan and the
// panorama's north (its location's "north", a pan angle) turn it at every frame.
import { Button, ITEM_KINDS } from './controls.js';
import { paintSkin, parseSkin } from './skin.js';
import { run } from './scripting.js';
import { maybeText } from './texts.js';

const RAD = Math.PI / 180;

export class Instrument extends Button {
  constructor(viewer, members, toolbar = null) {
    super(viewer, members, toolbar);
    if (typeof this.onclick !== 'function') {
      // Without a click it only shows: no button, no stop for Tab, and drags pass to the panorama.
      const node = document.createElement('div');
      node.className = 'vanto-button vanto-instrument';
      node.dataset.id = this.id;
      node.setAttribute('role', 'img');
      node.appendChild(this.face);
      this.node = node;
    }
    const name = maybeText(this.type === 'radar' ? 'radar' : 'compass');
    this.node.setAttribute('aria-label', typeof this.onclick === 'function' ? `${name}: ${maybeText('turnNorth')}` : name);
    this.layer = document.createElement('canvas');
    this.layer.className = 'vanto-face';
    this.node.appendChild(this.layer);
    viewer.frameListeners.push(() => this.turn());
  }

  // The square the drawings fill inside the element: the target of the skin's first copy.
  box() {
    const copy = parseSkin(this.skin).find((c) => c.name === 'copy' && c.args.length >= 9);
    const [x, y, w] = copy ? copy.args.slice(5, 8).map(parseFloat) : [0, 0, this.buttonWidth];
    return { x, y, size: w };
  }

  updateSkins() {
    super.updateSkins();
    const ratio = window.devicePixelRatio || 1;
    if (this.type === 'radar') {
      const { x, y, size } = this.box();
      const side = Math.max(1, Math.round(size * ratio));
      // The radar's context function keeps its gradient, made for the canvas's size.
      if (this.layer.width !== side) this.fillStyle = undefined;
      this.layer.width = this.layer.height = side;
      Object.assign(this.layer.style, { left: `${x}px`, top: `${y}px`, width: `${size}px`, height: `${size}px` });
    } else {
      paintSkin(this.layer, this.rotatingskin, this.buttonWidth, this.buttonHeight, ratio);
    }
    this.shown = null;
    this.turn();
  }

  setVisible(visible) {
    super.setVisible(visible);
    this.shown = null;
    this.turn();
  }

  // The angle of north in the view, clockwise from the top; null when north is unknown (or the
  // picture is flat, without directions).
  northAngle() {
    const l = this.viewer.location();
    if (!l || typeof l.north !== 'number' || this.viewer.flat) return null;
    return l.north - this.viewer.getView().pan;
  }

  turn() {
    const north = this.northAngle();
    if (north === null || !this.visible) return;
    const hfov = this.viewer.getView().hfov;
    const state = `${north.toFixed(2)} ${hfov.toFixed(2)}`;
    if (state === this.shown) return;
    this.shown = state;
    this.angle = north;
    if (this.type === 'radar') this.sweep(-north, hfov);
    else {
      const { x, y, size } = this.box();
      this.layer.style.transformOrigin = `${x + size / 2}px ${y + size / 2}px`;
      this.layer.style.transform = `rotate(${north}deg)`;
    }
  }

  // The field of view as a sector centred on `heading` degrees clockwise from the top (north).
  sweep(heading, hfov) {
    const c = this.layer.getContext('2d');
    const half = this.layer.width / 2;
    c.setTransform(1, 0, 0, 1, 0, 0);
    c.clearRect(0, 0, this.layer.width, this.layer.height);
    c.save();
    run(this.radarcontext, this, this.id, 'radarcontext', [c]);
    const r = (Number(this.radius) || 0.9) * half;
    const from = (heading - 90 - hfov / 2) * RAD;
    c.beginPath();
    c.moveTo(half, half);
    c.arc(half, half, r, from, from + Math.min(hfov, 360) * RAD);
    c.closePath();
    c.fill();
    c.stroke();
    c.restore();
  }
}

for (const type of ['compass', 'dial', 'radar']) ITEM_KINDS[type] = Instrument;

// The elements of the controls files' "orientation" arrays, over the picture.
export function createOrientation(viewer) {
  for (const root of viewer.controls || []) {
    for (const members of root.orientation || []) {
      if (!members || !ITEM_KINDS[members.type]) continue;
      const instrument = viewer.addElement(new Instrument(viewer, members));
      instrument.updateStyles();
      instrument.updateSkins();
    }
  }
}
