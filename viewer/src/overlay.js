// The viewer's own pieces of page: its style sheet, the error message and the notice shown when
// the viewer runs without WebGL.

const CSS = `
.vanto-root{position:absolute;left:0;top:0;width:100%;height:100%;overflow:hidden;overflow:clip;background:#000;
 touch-action:none;user-select:none;-webkit-user-select:none;outline:none;font-family:Arial,Helvetica,sans-serif;text-align:left}
.vanto-root:focus-visible{box-shadow:inset 0 0 0 3px #4da3ff}
.vanto-canvas{position:absolute;left:0;top:0;width:100%;height:100%;display:block}
.vanto-overlay{position:absolute;left:0;top:0;width:100%;height:100%;pointer-events:none}
.vanto-overlay a,.vanto-overlay .vanto-textbox{pointer-events:auto}
.vanto-toolbar{z-index:25;box-sizing:border-box;pointer-events:auto}
.vanto-button{position:absolute;margin:0;padding:0;border:0;background:transparent;box-sizing:border-box;cursor:pointer;
 pointer-events:auto;z-index:26;overflow:visible}
.vanto-button:focus-visible{outline:2px solid #4da3ff;outline-offset:2px}
.vanto-face{position:absolute;pointer-events:none}
.vanto-instrument{pointer-events:none;cursor:default}
.vanto-vr .vanto-hotspot,.vanto-vr .vanto-flare{display:none!important}
.vanto-menu{min-width:160px;padding:4px 0;font:13px/1.2 Arial,Helvetica,sans-serif;color:#000;user-select:none}
.vanto-menuitem[role=menuitem]{padding:6px 16px;cursor:pointer;white-space:nowrap;outline:none}
.vanto-menuitem[role=menuitem]:hover,.vanto-menuitem[role=menuitem]:focus{background:rgba(0,0,0,0.12)}
.vanto-menuitem[role=separator]{height:1px;margin:4px 8px;background:rgba(0,0,0,0.3)}
.vanto-error{position:absolute;left:10%;right:10%;top:30%;padding:16px;border:2px solid #c00;background:#fff;
 color:#900;font:15px/1.4 Arial,Helvetica,sans-serif;text-align:left;z-index:50}
.vanto-notice{position:absolute;left:8px;right:8px;bottom:8px;padding:8px 36px 8px 10px;background:rgba(0,0,0,0.75);
 color:#fff;font:13px/1.35 Arial,Helvetica,sans-serif;border-radius:4px;z-index:40;pointer-events:auto;text-align:left}
.vanto-notice button{position:absolute;right:6px;top:6px;border:0;background:transparent;color:#fff;font-size:18px;cursor:pointer}
`;

export function installStyles() {
  if (document.getElementById('vanto-viewer-styles')) return;
  const style = document.createElement('style');
  style.id = 'vanto-viewer-styles';
  style.textContent = CSS;
  document.head.appendChild(style);
}

export function showError(target, message) {
  installStyles();
  if (getComputedStyle(target).position === 'static' && !target.classList.contains('vanto-root')) {
    target.style.position = 'relative';
    target.style.minHeight = target.style.minHeight || '120px';
  }
  const box = document.createElement('div');
  box.className = 'vanto-error';
  box.setAttribute('role', 'alert');
  box.textContent = message;
  target.appendChild(box);
}

export function showWebGLNotice(root, message, closeLabel) {
  const notice = document.createElement('div');
  notice.className = 'vanto-notice';
  notice.setAttribute('role', 'status');
  notice.textContent = message;
  const close = document.createElement('button');
  close.type = 'button';
  close.textContent = '\u00d7';
  close.title = closeLabel;
  close.setAttribute('aria-label', closeLabel);
  close.addEventListener('click', () => notice.remove());
  notice.appendChild(close);
  notice.addEventListener('pointerdown', (e) => e.stopPropagation());
  root.appendChild(notice);
  return notice;
}
