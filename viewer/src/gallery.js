// The tour gallery: the panoramas of the gallery file as the list that `viewer.gallery()` returns
// (handlers step through it with set(), next() and previous()), and the thumbnail strip
// ("thumbnailGallery") that shows them with their short descriptions.
import { Panel } from './panel.js';
import { maybeText } from './texts.js';

export class Gallery {
  constructor(viewer, entries) {
    this.viewer = viewer;
    this.items = entries.filter((e) => e && typeof e.href === 'string' && e.href);
  }

  get length() { return this.items.length; }

  get(index) { return this.items[index] || null; }

  // The index of the panorama shown, found by its parameter file's address; -1 when it is not in
  // the gallery.
  current() {
    const shown = this.viewer.baseUrl;
    return this.items.findIndex((e) => this.url(e) === shown);
  }

  url(entry) { return new URL(entry.href, this.viewer.galleryBase).href; }

  // The neighbours wrap round: after the last comes the first.
  next() { return this.length ? (this.current() + 1) % this.length : -1; }
  previous() {
    const at = this.current();
    return this.length ? ((at < 0 ? 0 : at) - 1 + this.length) % this.length : -1;
  }

  // Shows the panorama of `which` (an index, an entry or a parameter file name) in this page;
  // resolves when it is drawn, or at once when it is already shown.
  set(which) {
    let entry = null;
    if (typeof which === 'number') entry = this.get(which);
    else if (typeof which === 'string') entry = this.items.find((e) => e.href === which) || null;
    else if (which && which.href) entry = which;
    if (!entry) return Promise.resolve(false);
    return this.viewer.changeScene(this.url(entry));
  }
}

const SCROLL_EDGE = 0.15; // share of the strip at each end that scrolls it fully

// The thumbnail strip: one button a panorama, the shown one highlighted by "selectionstyle".
export class ThumbnailStrip extends Panel {
  constructor(viewer, members) {
    super(viewer, members, 'gallery');
    this.node.setAttribute('aria-label', maybeText('gallerybutton'));
    const size = (key, fallback) => Number(this[key]) || fallback;
    this.thumbWidth = size('thumbnailWidth', 96);
    this.thumbHeight = size('thumbnailHeight', 96);
    this.padding = size('thumbnailPadding', 8);
    const row = document.createElement('div');
    row.className = 'vanto-strip';
    row.style.cssText = `position:absolute;left:0;right:0;${this.below ? 'top' : 'bottom'}:0;display:flex;`
      + `gap:${this.padding}px;padding:${this.padding}px;box-sizing:border-box;overflow-x:auto;overflow-y:hidden;`
      + `height:${this.thumbHeight + 2 * this.padding}px;scrollbar-width:none;`;
    this.row = row;
    this.node.appendChild(row);
    this.thumbs = [];
    const gallery = viewer.gallery();
    for (const [index, entry] of (gallery ? gallery.items : []).entries()) this.thumbs.push(this.thumb(entry, index));
    // The strip follows the pointer when it holds more than fits: the nearer an end, the further
    // it scrolls that way.
    if (this.edgeEffect) {
      row.addEventListener('pointermove', (e) => {
        if (e.pointerType === 'touch') return;
        const r = row.getBoundingClientRect();
        const span = row.scrollWidth - row.clientWidth;
        if (span <= 0 || r.width <= 0) return;
        const at = (e.clientX - r.left) / r.width;
        const k = Math.min(1, Math.max(0, (at - SCROLL_EDGE) / (1 - 2 * SCROLL_EDGE)));
        row.scrollLeft = k * span;
      });
    }
    this.select();
  }

  thumb(entry, index) {
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'vanto-thumb';
    button.dataset.index = String(index);
    const label = entry.text || entry.href.replace(/\.[^.]*$/, '');
    button.setAttribute('aria-label', label);
    button.title = label;
    const img = document.createElement('img');
    img.src = new URL(entry.thumbnail || '', this.viewer.galleryBase).href;
    img.alt = '';
    img.draggable = false;
    img.style.cssText = 'display:block;width:100%;height:100%;object-fit:cover;pointer-events:none;';
    button.appendChild(img);
    if (entry.text) {
      const caption = document.createElement('div');
      caption.style.cssText = this.contentstyle || '';
      caption.textContent = entry.text;
      button.appendChild(caption);
    }
    const thumb = { button, index, hover: false };
    button.addEventListener('pointerenter', () => { thumb.hover = true; this.paint(thumb); });
    button.addEventListener('pointerleave', () => { thumb.hover = false; this.paint(thumb); });
    button.addEventListener('click', (e) => {
      e.stopPropagation();
      const gallery = this.viewer.gallery();
      if (gallery) gallery.set(index);
    });
    this.row.appendChild(button);
    return thumb;
  }

  // A thumbnail's look: "thumbstyle", under the mouse "thumbstylehover", the shown panorama's
  // "selectionstyle" (a white frame when the design has none).
  paint(thumb) {
    const selected = thumb.index === this.selected;
    const base = `position:relative;flex:none;margin:0;padding:0;border:0;background:#000;cursor:pointer;overflow:hidden;`
      + `width:${this.thumbWidth}px;height:${this.thumbHeight}px;`;
    const look = [this.thumbstyle, thumb.hover && this.thumbstylehover,
      selected && (this.selectionstyle || 'outline: 2px solid #fff; outline-offset: -2px;')].filter(Boolean).join(';');
    thumb.button.style.cssText = `${base}${look}`;
    thumb.button.setAttribute('aria-current', selected ? 'true' : 'false');
  }

  sceneChanged() { this.select(); }

  // Highlights the shown panorama and scrolls it into the strip.
  select() {
    const gallery = this.viewer.gallery();
    this.selected = gallery ? gallery.current() : -1;
    for (const thumb of this.thumbs) this.paint(thumb);
    const shown = this.thumbs[this.selected];
    if (shown && this.visible) {
      const b = shown.button;
      const row = this.row;
      if (b.offsetLeft < row.scrollLeft || b.offsetLeft + b.offsetWidth > row.scrollLeft + row.clientWidth) {
        row.scrollLeft = b.offsetLeft - (row.clientWidth - b.offsetWidth) / 2;
      }
    }
  }
}
