// Element objects: what the viewer files describe as objects with an "id" and members (text boxes,
// message boxes, the logo, hotspots). Each keeps its members as properties, so that handler texts
// can read and change them, turns its function texts into callable methods and owns one DOM node
// in the viewer's overlay.
import { compile, run } from './scripting.js';
import { modernCss } from './css.js';

const FUNCTION_MEMBERS = ['onclick', 'oninit', 'onscenechanged', 'onshow', 'onmouseover', 'onmouseout'];

// "4px", 4 and "4" all mean 4 pixels; percentages stay as they are.
export function cssLength(value) {
  if (value === undefined || value === null || value === '') return '0px';
  if (typeof value === 'number') return `${value}px`;
  return /^-?[\d.]+$/.test(value) ? `${value}px` : String(value);
}

// The address of a file that the export copied next to the page. The files may name the user's
// original path ("C:\\Pictures\\logo.png" or "/home/me/logo.png"), which no web server has: the
// copy beside the page carries its file name. Web addresses and relative names stay as they are.
export function besidePage(src, baseUrl) {
  const text = String(src || '');
  if (/^[a-z][a-z0-9+.-]*:\/\//i.test(text) && !/^file:/i.test(text)) return text;
  const local = /^[a-zA-Z]:[\\/]|^[\\/]|\\/.test(text) || /^file:/i.test(text);
  return new URL(local ? text.split(/[\\/]/).pop() : text, baseUrl).href;
}

// Places a node by an "align" word (top, bottom, left, right, center and the corners such as
// "topleft" or "bottomright") and its offsets.
export function placeNode(node, align, xoff, yoff) {
  const a = String(align || 'center').toLowerCase();
  const s = node.style;
  s.position = 'absolute';
  s.left = s.right = s.top = s.bottom = '';
  const x = cssLength(xoff);
  const y = cssLength(yoff);
  let tx = '0';
  let ty = '0';
  if (a.includes('left')) s.left = x;
  else if (a.includes('right')) s.right = x;
  else { s.left = `calc(50% + ${x})`; tx = '-50%'; }
  if (a.includes('top')) s.top = y;
  else if (a.includes('bottom')) s.bottom = y;
  else { s.top = `calc(50% + ${y})`; ty = '-50%'; }
  s.transform = `translate(${tx}, ${ty})`;
}

export class Element {
  constructor(viewer, members, kind) {
    Object.assign(this, members);
    this.viewer = viewer;
    this.kind = kind;
    if (this.visible === undefined) this.visible = true;
    for (const name of FUNCTION_MEMBERS) {
      const source = members[name];
      if (typeof source === 'string') {
        const self = this;
        this[`${name}Source`] = source;
        this[name] = function handler(...args) { return run(source, self, self.id || kind, name, args); };
        try { compile(source); } catch (e) {
          console.error(`vantoViewer: the ${name} handler of "${this.id || kind}" does not compile:`, e);
        }
      }
    }
    this.node = document.createElement('div');
    this.node.className = `vanto-${kind}`;
  }

  get(id) {
    return this.viewer.get(id);
  }

  tween(params) {
    return this.viewer.tweens.add(this, params, this.id || this.kind);
  }

  setVisible(visible) {
    this.visible = !!visible;
    this.node.style.display = this.visible ? '' : 'none';
  }

  // Applies "style" (and "stylehover" under the mouse) as CSS text over the node's placement.
  updateStyles() {
    const hover = this.hover && this.stylehover;
    const place = { left: '', right: '', top: '', bottom: '', transform: '', position: '' };
    for (const k of Object.keys(place)) place[k] = this.node.style[k];
    this.node.style.cssText = modernCss(`${this.style || ''};${hover ? this.stylehover : ''}`);
    Object.assign(this.node.style, place);
    if (this.maxwidth) this.node.style.maxWidth = this.maxwidth;
    if (!this.visible) this.node.style.display = 'none';
  }

  updateSkins() {}
  updateAlign() { placeNode(this.node, this.align, this.xoff, this.yoff); }
  updateSize() {}
  center() { this.updateAlign(); }
  destroy() { this.node.remove(); }
}

// A text box: the title, a message box, or any box a handler adds.
export class TextBox extends Element {
  constructor(viewer, members) {
    super(viewer, members, 'textbox');
    this.node.innerHTML = this.text || '';
    this.updateAlign();
    this.updateStyles();
    this.node.style.pointerEvents = this.captureMouse || this.onclick ? 'auto' : 'none';
    // Message boxes are read out by screen readers when they appear.
    if (this.captureMouse) this.node.setAttribute('role', 'status');
    this.node.style.zIndex = '20';
    if (this.captureMouse || this.onclick) {
      // Clicks on the box are the box's, not the panorama's.
      for (const type of ['pointerdown', 'wheel', 'dblclick']) {
        this.node.addEventListener(type, (e) => e.stopPropagation());
      }
    }
    if (this.onclick) {
      this.node.style.cursor = 'pointer';
      this.node.addEventListener('click', (e) => {
        if (e.target.closest && e.target.closest('a')) return;
        this.onclick();
      });
    }
    this.node.addEventListener('mouseenter', () => { this.hover = true; this.updateStyles(); });
    this.node.addEventListener('mouseleave', () => { this.hover = false; this.updateStyles(); });
  }

  setText(value) {
    this.text = value;
    this.node.innerHTML = value;
  }
}

// The logo: a picture in the lower left corner, linked to its address.
export function createLogo(viewer, logo) {
  const link = document.createElement(logo.href ? 'a' : 'span');
  if (logo.href) {
    link.href = logo.href;
    link.target = logo.target || '_blank';
    link.rel = 'noopener';
  }
  const img = document.createElement('img');
  img.src = besidePage(logo.src, viewer.baseUrl);
  img.alt = '';
  img.style.cssText = `${logo.style || ''};display:block;`;
  link.appendChild(img);
  link.className = 'vanto-logo';
  link.style.cssText = 'position:absolute;left:8px;bottom:8px;z-index:15;max-width:80%;';
  link.addEventListener('pointerdown', (e) => e.stopPropagation());
  return link;
}
