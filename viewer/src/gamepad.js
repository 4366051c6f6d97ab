// Gamepad navigation, when the parameter file asks for it ("control": {"vrgamepadenable": true}):
// the left stick turns the view, the right stick's vertical axis and the triggers zoom, and B (the
// second button) leaves VR mode. Browsers offer gamepads only by polling, so a connected pad is
// read at every animation frame.
const DEAD_ZONE = 0.15;
const TURN_RATE = 90; // degrees a second at full tilt, at a 90 degree field of view
const ZOOM_RATE = 0.9; // e-folds a second

function axis(pad, i) {
  const a = Number(pad.axes[i]) || 0;
  return Math.abs(a) < DEAD_ZONE ? 0 : a;
}

function pressed(pad, i) {
  const b = pad.buttons[i];
  return !!b && (b.pressed || b.value > 0.5);
}

export function watchGamepads(viewer) {
  if (!viewer.control.vrgamepadenable || typeof navigator.getGamepads !== 'function') return;
  let running = false;
  let last = null;
  let backWas = false;
  const poll = (now) => {
    const pad = [...navigator.getGamepads()].find((p) => p && p.connected !== false);
    if (!pad) { running = false; last = null; return; }
    const dt = last === null ? 0 : Math.min(0.1, (now - last) / 1000);
    last = now;
    const pan = axis(pad, 0);
    const tilt = axis(pad, 1);
    const zoom = axis(pad, 3) + (pressed(pad, 7) ? 1 : 0) - (pressed(pad, 6) ? 1 : 0);
    if ((pan || tilt || zoom) && !viewer.locked && dt > 0) {
      viewer.userInput();
      const v = viewer.getView();
      const rate = (TURN_RATE * v.hfov) / 90;
      viewer.setView(v.pan + pan * rate * dt, v.tilt - tilt * rate * dt, v.hfov * Math.exp(zoom * ZOOM_RATE * dt));
    }
    const back = pressed(pad, 1);
    if (back && !backWas && viewer.isVRModeEnabled()) viewer.exitVRMode();
    backWas = back;
    requestAnimationFrame(poll);
  };
  const start = () => {
    if (running) return;
    running = true;
    requestAnimationFrame(poll);
  };
  window.addEventListener('gamepadconnected', start);
  start();
}
