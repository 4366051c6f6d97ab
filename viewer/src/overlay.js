// The viewer's own pieces of page: its style sheet, the error message and the notice shown when
// the viewer runs without WebGL.

const CSS = `
.vanto-root{position:absolute;left:0;top:0;width:100%;height:100%;overflow:hidden;background:#000;
 touch-action:none;user-select:none;-webkit-user-select:none;outline:none;font-family:Arial,Helvetica,sans-serif;text-align:left}
.vanto-root:focus-visible{box-shadow:inset 0 0 0 3px #4da3ff}
.vanto-canvas{position:absolute;left:0;top:0;width:100%;height:100%;display:block}
.vanto-overlay{position:absolute;left:0;top:0;width:100%;height:100%;pointer-events:none}
.vanto-overlay a,.vanto-overlay .vanto-textbox{pointer-events:auto}
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
