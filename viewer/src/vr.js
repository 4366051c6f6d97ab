// VR mode. Where the browser offers an immersive WebXR session and the files leave the choice to
// the viewer ("control": {"vrdisplay": "auto"}), the panorama is drawn into the headset's views;
// otherwise the viewer splits its area into two halves, one per eye, and steers by the gyroscope.
// Entering fires "onentervrmode", leaving "onexitvrmode".
import { horizontalFov, verticalFov } from './geometry.js';

const RAD = Math.PI / 180;

// Whether an immersive session is on offer, asked once at start so that entering VR from a click
// does not wait (a session must be requested while the click still counts as the user's).
export function prepareVR(viewer) {
  viewer.xrSupported = false;
  const xr = typeof navigator !== 'undefined' && navigator.xr;
  if (!xr || viewer.flat || !viewer.renderer.webgl || viewer.control.vrdisplay === 'splitscreen') return;
  xr.isSessionSupported('immersive-vr').then((ok) => { viewer.xrSupported = !!ok; }, () => {});
}

// The areas to draw: the whole viewer, or one half per eye in the split-screen view. Each eye gets
// the vertical field of view of the whole area.
export function viewports(viewer, width, height) {
  const view = viewer.view;
  if (viewer.vrMode !== 'stereo') return [{ x: 0, y: 0, w: width, h: height, view }];
  const half = width / 2;
  const hfov = horizontalFov(verticalFov(view.hfov, width, height, 0), half, height);
  return [0, half].map((x) => ({ x, y: 0, w: half, h: height, view: { ...view, hfov } }));
}

// Rotates v by the unit quaternion q.
function rotate(q, v) {
  const [x, y, z] = v;
  const tx = 2 * (q.y * z - q.z * y);
  const ty = 2 * (q.z * x - q.x * z);
  const tz = 2 * (q.x * y - q.y * x);
  return [x + q.w * tx + (q.y * tz - q.z * ty), y + q.w * ty + (q.z * tx - q.x * tz), z + q.w * tz + (q.x * ty - q.y * tx)];
}

// A camera for one XR view: the headset looks along -z with y up; the viewer's frame looks along
// +z at pan 0. The session starts looking where the view looked.
function xrCamera(xrView, w, h, startPan) {
  const c = Math.cos(startPan * RAD);
  const s = Math.sin(startPan * RAD);
  const axis = (v) => {
    const [x, y, z] = rotate(xrView.transform.orientation, v);
    return [x * c - z * s, y, -x * s - z * c];
  };
  const focal = xrView.projectionMatrix[0];
  return {
    camera: { width: w, height: h, distortion: 0, forward: axis([0, 0, -1]), right: axis([1, 0, 0]), up: axis([0, 1, 0]), scale: (w / 2) * focal },
    hfov: (2 * Math.atan(1 / focal)) / RAD,
  };
}

async function startXR(viewer) {
  const gl = viewer.renderer.gl;
  const session = await navigator.xr.requestSession('immersive-vr');
  try {
    await gl.makeXRCompatible();
    const layer = new XRWebGLLayer(session, gl);
    await session.updateRenderState({ baseLayer: layer });
    const space = await session.requestReferenceSpace('local');
    const startPan = viewer.view.pan;
    const frame = (time, xrFrame) => {
      session.requestAnimationFrame(frame);
      const pose = xrFrame.getViewerPose(space);
      if (!pose) return;
      const height = layer.framebufferHeight;
      const eyes = pose.views.map((xrView) => {
        const vp = layer.getViewport(xrView);
        const { camera, hfov } = xrCamera(xrView, vp.width, vp.height, startPan);
        return { x: vp.x, y: height - vp.y - vp.height, w: vp.width, h: vp.height, camera, view: { ...viewer.view, hfov } };
      });
      viewer.draw({ width: layer.framebufferWidth, height, framebuffer: layer.framebuffer, eyes });
    };
    session.addEventListener('end', () => left(viewer));
    viewer.xrSession = session;
    entered(viewer, 'xr');
    session.requestAnimationFrame(frame);
  } catch (e) {
    session.end().catch(() => {});
    throw e;
  }
}

function startStereo(viewer) {
  viewer.gyroBeforeVR = viewer.gyroscopeEnabled();
  viewer.enableGyroscope(true);
  // On phones the split screen fills the screen, turned sideways where the browser allows.
  if (window.matchMedia && window.matchMedia('(pointer: coarse)').matches) {
    if (!viewer.isFullscreen() && viewer.fullscreenSupported()) {
      viewer.fullscreenForVR = true;
      viewer.toggleFullscreen();
    }
    const o = screen.orientation;
    if (o && o.lock) o.lock('landscape').catch(() => {});
  }
  entered(viewer, 'stereo');
}

function entered(viewer, mode) {
  viewer.vrMode = mode;
  viewer.root.classList.add('vanto-vr');
  viewer.fire('onentervrmode');
  viewer.requestFrame();
}

function left(viewer) {
  if (!viewer.vrMode) return;
  const mode = viewer.vrMode;
  viewer.vrMode = null;
  viewer.xrSession = null;
  viewer.root.classList.remove('vanto-vr');
  if (mode === 'stereo') {
    viewer.enableGyroscope(viewer.gyroBeforeVR);
    if (viewer.fullscreenForVR && viewer.isFullscreen()) viewer.toggleFullscreen();
    viewer.fullscreenForVR = false;
    const o = screen.orientation;
    if (o && o.unlock) try { o.unlock(); } catch (e) { /* not locked */ }
  }
  viewer.fire('onexitvrmode');
  viewer.requestFrame();
}

export const vrMethods = {
  isVRModeEnabled() { return !!this.vrMode; },

  // Panoramas only. Returns whether VR mode is being entered.
  enterVRMode() {
    if (this.vrMode || this.vrStarting || this.flat) return false;
    if (this.xrSupported) {
      this.vrStarting = true;
      startXR(this).catch((e) => {
        console.warn('vantoViewer: no WebXR session, split screen instead:', e && e.message);
        startStereo(this);
      }).finally(() => { this.vrStarting = false; });
    } else startStereo(this);
    return true;
  },

  exitVRMode() {
    if (!this.vrMode) return false;
    if (this.xrSession) this.xrSession.end().catch(() => left(this));
    else left(this);
    return true;
  },
};
