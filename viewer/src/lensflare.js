// Lens flares: a glow at the light's pan and tilt and a row of faint rings on the line through the
// view's centre, as a camera lens shows them; the brighter the nearer the light is to the centre.

const GHOSTS = [[-0.4, 30, 0.25], [-0.8, 60, 0.15], [-1.3, 18, 0.3]];

export class LensFlares {
  constructor(overlay, flares) {
    this.flares = flares.map((f) => {
      const glow = document.createElement('div');
      glow.className = 'vanto-flare';
      const size = 160 * (Number(f.scale) || 1);
      glow.style.cssText = `position:absolute;left:0;top:0;width:${size}px;height:${size}px;margin:${-size / 2}px;` +
        'border-radius:50%;pointer-events:none;background:radial-gradient(rgba(255,255,240,0.9),rgba(255,240,200,0.25) 30%,rgba(255,255,255,0) 70%);';
      const ghosts = GHOSTS.map(([, px, alpha]) => {
        const g = document.createElement('div');
        g.style.cssText = `position:absolute;left:0;top:0;width:${px}px;height:${px}px;margin:${-px / 2}px;border-radius:50%;` +
          `pointer-events:none;background:rgba(200,220,255,${alpha});`;
        overlay.appendChild(g);
        return g;
      });
      overlay.appendChild(glow);
      return { ...f, glow, ghosts };
    });
  }

  destroy() {
    for (const f of this.flares) for (const node of [f.glow, ...f.ghosts]) node.remove();
  }

  place(screenPoint, width, height) {
    for (const f of this.flares) {
      const p = screenPoint(Number(f.pan) || 0, Number(f.tilt) || 0);
      const show = p && p[0] >= 0 && p[1] >= 0 && p[0] <= width && p[1] <= height;
      f.glow.style.display = show ? '' : 'none';
      for (const g of f.ghosts) g.style.display = show ? '' : 'none';
      if (!show) continue;
      const cx = width / 2;
      const cy = height / 2;
      const near = 1 - Math.min(1, Math.hypot(p[0] - cx, p[1] - cy) / Math.hypot(cx, cy));
      const bright = Math.min(1, near * (Number(f.brightening) || 1));
      f.glow.style.transform = `translate(${p[0]}px, ${p[1]}px)`;
      f.glow.style.opacity = String(0.4 + 0.6 * bright);
      f.ghosts.forEach((g, i) => {
        const t = GHOSTS[i][0];
        g.style.transform = `translate(${cx + (p[0] - cx) * t}px, ${cy + (p[1] - cy) * t}px)`;
        g.style.opacity = String(bright);
      });
    }
  }
}
