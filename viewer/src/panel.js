// A panel that slides open next to the toolbar: the thumbnail strip and the map. Its "align" says
// on which side of the toolbar it opens: "...top" above it, "...bottom" below it (the toolbar then
// moves up by the panel's height). The handler texts open and close it by tweening "height" and
// calling updateSize(); "style" carries its opacity.
import { Element } from './elements.js';

export class Panel extends Element {
  constructor(viewer, members, kind) {
    super(viewer, members, kind);
    // "112px", "0px" or a number: tweens need a number to start from.
    this.height = parseFloat(this.height) || 0;
    this.node.setAttribute('role', 'region');
    // The panel is its content's ground: pressing, scrolling or right-clicking on it does not turn
    // the panorama.
    for (const type of ['pointerdown', 'wheel', 'dblclick', 'contextmenu']) {
      this.node.addEventListener(type, (e) => e.stopPropagation());
    }
  }

  get below() {
    return String(this.align || '').toLowerCase().includes('bottom');
  }

  // Pixels the panel takes under the toolbar (what the toolbar moves up by).
  get lift() {
    return this.visible && this.below ? Math.max(0, this.height) : 0;
  }

  // Above the toolbar the panel's lower edge is the toolbar's upper edge; below it, the viewer's
  // lower edge.
  place() {
    const s = this.node.style;
    s.position = 'absolute';
    s.left = '0';
    s.right = '0';
    s.top = '';
    s.height = `${Math.max(0, this.height)}px`;
    s.overflow = 'hidden';
    s.zIndex = '24';
    s.pointerEvents = 'auto';
    let bottom = 0;
    const toolbar = this.viewer.get('toolbar');
    if (!this.below && toolbar && toolbar.visible && toolbar.node) {
      const root = this.viewer.root.getBoundingClientRect();
      bottom = Math.max(0, root.bottom - toolbar.node.getBoundingClientRect().top);
    }
    s.bottom = `${bottom}px`;
    s.display = this.visible ? '' : 'none';
  }

  updateStyles() {
    this.node.style.cssText = this.style || '';
    this.place();
  }

  updateAlign() { this.place(); }

  updateSize() {
    this.place();
    const toolbar = this.viewer.get('toolbar');
    if (this.below && toolbar) toolbar.updateAlign();
    this.resized();
  }

  // What the content does when the panel's size changes.
  resized() {}

  setVisible(visible) {
    this.visible = !!visible;
    this.updateSize();
  }
}

// The viewer's panels, for the toolbar's lift.
export function panelLift(viewer) {
  let lift = 0;
  for (const id of ['thumbnailGallery', 'map']) {
    const panel = viewer.get(id);
    if (panel instanceof Panel) lift = Math.max(lift, panel.lift);
  }
  return lift;
}
