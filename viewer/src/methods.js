// The viewer methods that handler and action texts call through `this.viewer` (VR's are in vr.js).
// Features that the viewer does not have yet (gallery, map) answer harmlessly: see
// docs/viewer-scripting.md.
import { run } from './scripting.js';
import { TextBox } from './elements.js';
import { fitScale } from './camera.js';
import { language } from './texts.js';
import { askAtFirstTap, askOrientationPermission } from './gyro.js';

export const methods = {
  // Runs a named action of the controls file with `this` holding viewer, get and tween.
  action(name, ...args) {
    const source = this.actions.get(name);
    if (!source) return undefined;
    return run(source, this.context(), name, 'action', args);
  },

  add(type, members) {
    if (type !== 'textbox' || !members) return null;
    return this.addElement(new TextBox(this, members));
  },

  remove(id) {
    const element = this.elements.get(id);
    if (!element || !element.destroy) return false;
    element.destroy();
    this.elements.delete(id);
    return true;
  },

  getView() {
    if (this.flat && this.flatView) {
      const { width } = this.size();
      const v = this.flatView;
      return { pan: v.x / this.image.width, tilt: v.y / this.image.height, hfov: (100 * width) / v.scale / this.image.width };
    }
    return { pan: this.view.pan, tilt: this.view.tilt, hfov: this.view.hfov };
  },

  // Flat pictures: pan and tilt are the centre as fractions of the picture, hfov the shown width
  // in percent of the picture's.
  setView(pan, tilt, hfov) {
    this.move = null;
    if (this.flat) {
      const { width, height } = this.size();
      const current = this.flatView || { x: this.image.width / 2, y: this.image.height / 2, scale: fitScale(this.image, width, height) };
      this.flatView = {
        x: pan === undefined ? current.x : Number(pan) * this.image.width,
        y: tilt === undefined ? current.y : Number(tilt) * this.image.height,
        scale: hfov === undefined ? current.scale : (100 * width) / (Number(hfov) * this.image.width),
      };
    } else {
      this.view = {
        pan: pan === undefined ? this.view.pan : Number(pan),
        tilt: tilt === undefined ? this.view.tilt : Number(tilt),
        hfov: hfov === undefined ? this.view.hfov : Number(hfov),
      };
    }
    this.requestFrame();
  },

  // Resolves once a complete frame of the current view is drawn (every tile of the level in use).
  settled() {
    return new Promise((resolve) => {
      this.settleWaiters.push(resolve);
      this.requestFrame();
    });
  },

  lock() { this.locked = true; },
  unlock() { this.locked = false; },
  isLocked() { return this.locked; },
  isPlaying() { return this.playing; },

  fisheyeDistortion() { return this.distortion; },
  setFisheyeDistortion(value) {
    this.distortion = Math.min(Math.max(Number(value) || 0, 0), 1);
    this.requestFrame();
  },

  fullEquirectangular() {
    return !this.flat && (this.image.hextent || 360) >= 359.99 && (this.image.vextent || 180) >= 179.99;
  },
  panoType() { return this.flat ? 1 : 0; },

  // German captions from the files' "translate" object when the browser speaks German.
  tr(textValue) {
    const table = this.translations[language()];
    return (table && table[textValue]) || textValue;
  },

  fullscreenSupported() {
    return !!(document.fullscreenEnabled || document.webkitFullscreenEnabled);
  },
  isFullscreen() {
    return (document.fullscreenElement || document.webkitFullscreenElement) === this.container;
  },
  toggleFullscreen() {
    if (this.isFullscreen()) (document.exitFullscreen || document.webkitExitFullscreen).call(document);
    else if (this.fullscreenSupported()) {
      (this.container.requestFullscreen || this.container.webkitRequestFullscreen).call(this.container);
    }
  },

  hotspots() { return this.hotspotList || []; },
  toggleHotspots(visible) {
    this.hotspotsVisible = visible === undefined ? !this.hotspotsVisible : !!visible;
    this.requestFrame();
  },

  width() { return this.size().width; },
  height() { return this.size().height; },
  location() { return this.node.location || null; },

  // The tour's gallery list (tour.js), and the map when a panorama of it has a position.
  gallery() { return this.galleryList || null; },
  map() {
    const panel = this.get('map');
    return panel && panel.places && panel.places().length ? panel : null;
  },

  // The gyroscope: reported available when the device sends orientation events; enabled, it
  // turns the view with the device (the direction its back faces), from the view it had.
  // Unavailable is answered after a second without events; a device whose first event comes later
  // is then reported available after all.
  checkForGyroscope() {
    if (this.gyroChecked) return;
    this.gyroChecked = true;
    askAtFirstTap(this.root);
    let answer = null;
    const tell = (available) => {
      if (answer === available || answer === true) return;
      answer = available;
      this.gyroAvailable = available;
      this.fire('ongyroscopeavailable', available);
    };
    const listener = (e) => {
      if (e.alpha === null || e.alpha === undefined) return;
      window.removeEventListener('deviceorientation', listener);
      tell(true);
    };
    window.addEventListener('deviceorientation', listener);
    setTimeout(() => tell(false), 1000);
  },
  gyroscopeEnabled() { return !!this.gyroOn; },
  enableGyroscope(on) {
    // Where the browser asks first, a switch-on that comes before the answer puts the question
    // (the events, and with them the availability, follow a yes).
    if (on && !this.gyroAvailable) askOrientationPermission();
    const next = !!on && !!this.gyroAvailable && !this.flat;
    if (next === !!this.gyroOn) return;
    this.gyroOn = next;
    if (next) {
      this.gyroOffset = null;
      this.gyroListener = (e) => this.steerByDevice(e);
      window.addEventListener('deviceorientation', this.gyroListener);
    } else {
      window.removeEventListener('deviceorientation', this.gyroListener);
    }
    this.fire('ongyroscopetoggle', next);
  },
  steerByDevice(e) {
    if (e.alpha === null || e.alpha === undefined || this.locked) return;
    const r = Math.PI / 180;
    const [a, b, g] = [e.alpha * r, (e.beta || 0) * r, (e.gamma || 0) * r];
    // The device's back (-z) in the earth frame (x east, y north, z up).
    const x = -Math.cos(a) * Math.sin(g) - Math.sin(a) * Math.sin(b) * Math.cos(g);
    const y = -Math.sin(a) * Math.sin(g) + Math.cos(a) * Math.sin(b) * Math.cos(g);
    const z = -Math.cos(b) * Math.cos(g);
    const heading = Math.atan2(x, y) / r;
    const tilt = Math.asin(Math.max(-1, Math.min(1, z))) / r;
    if (this.gyroOffset === null) this.gyroOffset = this.view.pan - heading;
    this.userInput();
    this.setView(this.gyroOffset + heading, tilt, this.view.hfov);
  },
};
