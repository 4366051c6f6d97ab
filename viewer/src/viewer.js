// One viewer in one page element: loads the files, draws the panorama or flat picture, runs the
// handlers and actions of the files and offers the scripting interface (viewer methods) that the
// handler texts call.
import { loadWithIncludes } from './loader.js';
import { text } from './texts.js';
import { Pyramid } from './pyramid.js';
import { makeCamera, project, direction, wrapPan } from './geometry.js';
import { sphericalFrame, sphericalPlacer, flatPlacer, visibleTiles } from './scene.js';
import { sphericalLimits, clampSpherical, clampFlat, fitScale, isFullCircle } from './camera.js';
import { Canvas2DRenderer } from './render2d.js';
import { createWebGLRenderer } from './renderwebgl.js';
import { run } from './scripting.js';
import { Tweens } from './tween.js';
import { easing } from './easing.js';
import { TextBox, createLogo } from './elements.js';
import { createControls } from './controls.js';
import { createContextMenu } from './contextmenu.js';
import { createTour, changeScene } from './tour.js';
import { Hotspot } from './hotspots.js';
import { embeddedCorners } from './embedded.js';
import { Sound } from './audio.js';
import { LensFlares } from './lensflare.js';
import { Input } from './input.js';
import { installStyles, showError, showWebGLNotice } from './overlay.js';
import { methods } from './methods.js';
import { createOrientation } from './orientation.js';
import { prepareVR, viewports, vrMethods } from './vr.js';
import { watchGamepads } from './gamepad.js';
import { closeOnEscape } from './a11y.js';

// Tiles kept in memory (and as textures) beyond those of the current frame.
const TILE_CACHE = 300;

export class Viewer {
  constructor(elementId, paramsFile, options) {
    this.elementId = elementId;
    this.paramsFile = paramsFile;
    this.options = options || {};
    this.webglAvailable = false;
    this.gyroAvailable = false;
    this.currentMBId = null;
    this.hasGallery = false;
    this.hotspotsVisible = true;
    this.distortion = 0;
    this.locked = false;
    this.playing = false;
    this.elements = new Map();
    // Called after every drawn frame (what follows the view: compass, radar, the map's cone).
    this.frameListeners = [];
    this.vrMode = null;
    this.settleWaiters = [];
    this.handlers = {};
    this.actions = new Map();
    this.translations = {};
    this.tweens = new Tweens(() => this.requestFrame());
    this.ready = new Promise((resolve, reject) => { this.resolveReady = resolve; this.rejectReady = reject; });
    this.ready.catch(() => {});
    this.start().catch((error) => this.fail(error));
  }

  // What the handler texts see as `this.viewer`.
  get api() {
    return this;
  }

  async start() {
    const container = document.getElementById(this.elementId);
    if (!container) throw new Error(text('noElement', this.elementId));
    this.container = container;
    installStyles();
    // The viewer fills its element: the element must be the frame of what is placed inside.
    if (getComputedStyle(container).position === 'static') container.style.position = 'relative';
    const root = document.createElement('div');
    root.className = 'vanto-root';
    root.tabIndex = 0;
    root.setAttribute('role', 'application');
    // A focused or clicked button half outside the area (a toolbar sliding in) would scroll the
    // clipped area and shift everything in it; the area never scrolls.
    root.addEventListener('scroll', () => { root.scrollTop = 0; root.scrollLeft = 0; });
    container.appendChild(root);
    this.root = root;
    this.baseUrl = new URL(this.paramsFile, document.baseURI).href;
    const roots = await loadWithIncludes(this.paramsFile);
    this.configure(roots);
    this.createRenderer();
    this.createElements();
    this.input = new Input(this);
    new ResizeObserver(() => { this.requestFrame(); this.fire('onresize'); }).observe(root);
    this.fire('onuseswebgl', this.webglAvailable);
    if (!this.webglAvailable && !String(this.options.html5 || '').includes('disable_webgl_warning')) {
      showWebGLNotice(this.root, text('noWebgl'), text('close'));
    }
    this.fire('oninit');
    this.fire('onscenechanged');
    for (const element of [...this.elements.values()]) if (element.oninit) element.oninit();
    for (const element of [...this.elements.values()]) if (element.onscenechanged) element.onscenechanged();
    if (this.autoplay.status === 'on') this.startAutoPlay();
    this.requestFrame();
  }

  fail(error) {
    console.error('vantoViewer:', error.message || error);
    if (this.root) this.root.replaceChildren();
    const target = this.root || document.getElementById(this.elementId);
    if (target) showError(target, error.message || String(error));
    this.rejectReady(error);
  }

  // Takes the members of the parameter file and of its includes.
  configure(roots) {
    this.configureScene(roots[0]);
    this.mergeRoots(roots);
    this.galleryBase = this.baseUrl;
    this.controls = roots.slice(1);
  }

  // The panorama's part of the parameter file: picture, view, limits, input and data objects.
  // Runs again for every panorama of a tour shown in the page.
  configureScene(main) {
    const node = main.node || {};
    this.params = main;
    this.node = node;
    if (!node.image || !Array.isArray(node.image.levels) || !node.image.levels.length) {
      throw new Error(text('noImage', this.paramsFile));
    }
    this.image = node.image;
    this.flat = node.image.projection === 'flat';
    this.control = main.control || {};
    this.autoplay = { status: 'off', pan: 0, tilt: 0, zoom: 0, restart: 0, ...(node.autoplay || {}) };
    this.hotspotsVisible = !node.hotspots || node.hotspots.visible !== false;
    this.pyramid = new Pyramid(node.image, this.baseUrl);
    this.pyramid.onload = () => this.requestFrame();
    this.limits = sphericalLimits(node.camera, node.image);
    const view = node.view || {};
    this.startView = { pan: Number(view.pan) || 0, tilt: Number(view.tilt) || 0, hfov: Number(view.hfov) || 90 };
    this.view = { ...this.startView };
    this.flatView = null;
    for (const id of ['globalData', 'localData']) this.elements.delete(id);
    for (const data of [main.data, node.data]) if (data && data.id) this.elements.set(data.id, data);
  }

  // Events, actions, captions and the gallery of all files; later files add to earlier ones.
  mergeRoots(roots) {
    for (const root of roots) {
      if (root.events) Object.assign(this.handlers, root.events);
      for (const action of root.actions || []) if (action && action.id) this.actions.set(action.id, action.func);
      if (root.translate) {
        for (const [lang, table] of Object.entries(root.translate)) {
          this.translations[lang] = { ...(this.translations[lang] || {}), ...table };
        }
      }
      if (root.gallery) this.galleryData = root.gallery;
    }
  }

  createRenderer() {
    const fromDisk = location.protocol === 'file:' || new URL(this.baseUrl).protocol === 'file:';
    let renderer = null;
    let canvas = document.createElement('canvas');
    if (!fromDisk) renderer = createWebGLRenderer(canvas);
    if (!renderer) {
      canvas = document.createElement('canvas');
      renderer = new Canvas2DRenderer(canvas);
    }
    canvas.className = 'vanto-canvas';
    this.root.appendChild(canvas);
    this.overlay = document.createElement('div');
    this.overlay.className = 'vanto-overlay';
    this.root.appendChild(this.overlay);
    this.canvas = canvas;
    this.renderer = renderer;
    this.webglAvailable = renderer.webgl;
  }

  createElements() {
    this.createSceneElements();
    createControls(this);
    createOrientation(this);
    createContextMenu(this);
    prepareVR(this);
    watchGamepads(this);
    closeOnEscape(this);
    createTour(this);
  }

  // What belongs to one panorama: title, logo, hotspots, lens flares and sound. The sound of the
  // whole tour ("gAudio") goes on playing when the next panorama names the same one.
  createSceneElements() {
    const node = this.node;
    this.sceneNodes = [];
    for (const box of node.textbox || []) this.sceneNodes.push(this.addElement(new TextBox(this, box)));
    if (this.params.logo && this.params.logo.src) {
      const logo = createLogo(this, this.params.logo);
      this.overlay.appendChild(logo);
      this.sceneNodes.push({ destroy: () => logo.remove() });
    }
    this.hotspotList = [];
    for (const members of node.hotspot || []) {
      if (!members || !members.bitmap) continue;
      const hotspot = new Hotspot(this, members);
      if (members.bitmaptype === 'embedded' && members.embeddedwidth) {
        hotspot.embeddedWidth = Number(members.embeddedwidth);
        hotspot.inPanorama = !this.flat;
        hotspot.setHover(false);
      }
      this.hotspotList.push(hotspot);
      this.sceneNodes.push(this.addElement(hotspot));
    }
    this.lensFlares = node.lensflare && node.lensflare.length && !this.flat
      ? new LensFlares(this.overlay, node.lensflare) : null;
    if (this.lensFlares) this.sceneNodes.push(this.lensFlares);
    const audio = this.params.audio || node.audio;
    const id = audio && audio.src ? audio.id || 'gAudio' : null;
    const kept = this.sound && id === 'gAudio' && this.sound.id === 'gAudio' && this.sound.src === audio.src;
    if (this.sound && !kept) {
      this.sound.destroy();
      this.elements.delete(this.sound.id || 'gAudio');
      this.sound = null;
    }
    if (id && !kept) {
      this.sound = new Sound(this, audio);
      this.elements.set(id, this.sound);
    }
  }

  // Shows another panorama of the tour in this page (tour.js).
  changeScene(url) {
    return changeScene(this, url);
  }

  addElement(element) {
    if (element.id) {
      const old = this.elements.get(element.id);
      if (old && old.destroy) old.destroy();
      this.elements.set(element.id, element);
    }
    if (element.node) this.overlay.appendChild(element.node);
    return element;
  }

  // Fires an event: the handler of the events object runs with `this` holding viewer, get and
  // tween.
  fire(name, ...args) {
    const source = this.handlers[name];
    if (!source) return undefined;
    return run(source, this.context(), 'mainEvents', name, args);
  }

  context() {
    const viewer = this.api;
    return { viewer, get: (id) => this.get(id), tween(params) { return viewer.tweens.add(this, params, 'action'); } };
  }

  get(id) {
    return this.elements.has(id) ? this.elements.get(id) : null;
  }

  size() {
    const r = this.root.getBoundingClientRect();
    return { width: Math.max(0, r.width), height: Math.max(0, r.height) };
  }

  requestFrame() {
    if (this.frameRequested || !this.renderer) return;
    this.frameRequested = true;
    requestAnimationFrame((now) => { this.frameRequested = false; this.frame(now); });
  }

  // One animation step and one drawing of the view.
  frame(now) {
    const dt = this.lastFrame ? Math.min(0.1, (now - this.lastFrame) / 1000) : 0;
    this.lastFrame = now;
    let animating = this.tweens.step(now);
    animating = this.stepMove(now) || animating;
    animating = this.input.step(dt) || animating;
    if (this.playing) { this.stepAutoPlay(dt); animating = true; }
    const complete = this.draw();
    if (complete && !this.readyDone) {
      this.readyDone = true;
      this.resolveReady(this.api);
    }
    if (complete && this.settleWaiters.length) {
      const waiters = this.settleWaiters;
      this.settleWaiters = [];
      for (const resolve of waiters) resolve(this.api);
    }
    if (animating) this.requestFrame();
    else this.lastFrame = 0;
  }

  // Draws the current view: the smallest level under the level in use, so that nothing stays
  // black while tiles load. Returns whether every tile of the level in use is drawn. `xr` (a WebXR
  // frame: its framebuffer, size and eyes with their cameras) draws into a headset instead.
  draw(xr = null) {
    const { width, height } = xr || this.size();
    const ratio = xr ? 1 : Math.min(window.devicePixelRatio || 1, this.renderer.maxPixelRatio);
    this.renderer.begin(width, height, ratio, xr && xr.framebuffer);
    if (width < 1 || height < 1) return true;
    this.frameCount = (this.frameCount || 0) + 1;
    let complete = true;
    if (this.flat) {
      if (!this.flatView) {
        const fit = fitScale(this.image, width, height);
        this.flatView = { x: this.image.width / 2, y: this.image.height / 2, scale: fit };
      }
      this.flatView = clampFlat(this.flatView, this.image, width, height);
      const placer = flatPlacer(this.pyramid, this.flatView, { width, height });
      complete = this.drawLevel(placer, this.pyramid.levelFor(this.image.width * this.flatView.scale * ratio));
    } else {
      this.view = clampSpherical(this.view, this.limits, width, height, this.distortion);
      this.frame3d = sphericalFrame(this.image, this.node.camera);
      // One area, or one per eye in VR; hotspots follow the first.
      const eyes = xr ? xr.eyes : viewports(this, width, height);
      eyes.forEach((eye, i) => {
        const camera = eye.camera || makeCamera(eye.view, eye.w, eye.h, this.distortion);
        if (i === 0) this.camera = camera;
        this.renderer.region(eye.x, eye.y, eye.w, eye.h);
        const perDegree = (eye.w * ratio) / eye.view.hfov;
        const placer = sphericalPlacer(this.pyramid, this.frame3d, camera);
        complete = this.drawLevel(placer, this.pyramid.levelFor(perDegree * this.frame3d.hextent)) && complete;
      });
    }
    this.renderer.end();
    this.pyramid.evict(this.frameCount, TILE_CACHE, (tile) => this.renderer.forget(tile));
    if (!xr) this.placeOverlays(width, height);
    for (const listener of this.frameListeners) listener();
    return complete;
  }

  // Draws the tiles of `level` that `placer` places, over those of the smallest level; returns
  // whether all of them were there to draw.
  drawLevel(placer, level) {
    const wanted = visibleTiles(this.pyramid, level, placer);
    if (level > 0) {
      for (const { tile, mesh } of visibleTiles(this.pyramid, 0, placer)) {
        if (tile.state === 'ready') this.renderer.drawTile(tile, mesh);
      }
    }
    let complete = true;
    for (const { tile, mesh } of wanted) {
      tile.used = this.frameCount;
      if (tile.state === 'ready') this.renderer.drawTile(tile, mesh);
      else if (tile.state === 'loading') complete = false;
    }
    return complete;
  }

  // Screen point of a hotspot position ("deg" pan and tilt, or "norm" fractions on flat pictures).
  screenPoint(pan, tilt, unit) {
    if (this.flat) {
      const { width, height } = this.size();
      const v = this.flatView;
      if (!v) return null;
      const x = unit === 'norm' ? pan * this.image.width : pan;
      const y = unit === 'norm' ? tilt * this.image.height : tilt;
      return [width / 2 + (x - v.x) * v.scale, height / 2 + (y - v.y) * v.scale];
    }
    const p = project(this.camera, direction(this.frame3d.left + pan, tilt));
    if (!p) return null;
    if (p[0] < -200 || p[1] < -200 || p[0] > this.camera.width + 200 || p[1] > this.camera.height + 200) return null;
    return p;
  }

  placeOverlays(width, height) {
    for (const h of this.hotspotList) {
      if (h.inPanorama) {
        const [w, hgt] = h.bitmapSize();
        h.placeEmbedded(w ? embeddedCorners(this.camera, this.frame3d.left + h.pan, h.tilt, h.embeddedWidth, h.rotate, w, hgt) : null);
        continue;
      }
      // Embedded bitmaps of flat pictures: "embeddedwidth" is their width as a share of the picture's.
      const natural = h.bitmapSize()[0] || 1;
      const scale = h.embeddedWidth && this.flatView ? (h.embeddedWidth * this.image.width * this.flatView.scale) / natural : 0;
      h.place(this.screenPoint(h.pan, h.tilt, h.unit), scale);
    }
    if (this.lensFlares) this.lensFlares.place((pan, tilt) => this.screenPoint(pan, tilt, 'deg'), width, height);
  }

  // A scripted camera move (panTo); returns whether it still runs.
  stepMove(now) {
    const m = this.move;
    if (!m) return false;
    if (now < m.start) return true;
    if (!m.from) {
      // The move starts from wherever the view is when its delay is over.
      m.from = { ...this.view };
      const to = m.to;
      m.delta = { pan: isFullCircle(this.limits) ? wrapPan(to.pan - m.from.pan) : to.pan - m.from.pan };
    }
    const t = m.duration > 0 ? Math.min(1, (now - m.start) / m.duration) : 1;
    const k = m.curve(t);
    this.view = {
      pan: m.from.pan + m.delta.pan * k,
      tilt: m.from.tilt + (m.to.tilt - m.from.tilt) * k,
      hfov: m.from.hfov + (m.to.hfov - m.from.hfov) * k,
    };
    if (t >= 1) {
      this.move = null;
      if (m.unlock) this.locked = false;
      return false;
    }
    return true;
  }

  panTo(pan, tilt, hfov, time, delay, transition, unlock) {
    const given = (value, current) => (Number.isFinite(Number(value)) && value !== null && value !== '' ? Number(value) : current);
    const to = { pan: given(pan, this.view.pan), tilt: given(tilt, this.view.tilt), hfov: given(hfov, this.view.hfov) };
    this.move = {
      from: null,
      to,
      start: performance.now() + (Number(delay) || 0) * 1000,
      duration: (Number(time) || 0) * 1000,
      curve: easing(transition),
      unlock: !!unlock,
    };
    this.requestFrame();
  }

  // User input: stops autoplay, and starts it again after the restart delay.
  userInput() {
    this.move = null;
    if (this.playing) this.stopAutoPlay();
    clearTimeout(this.restartTimer);
    const restart = Number(this.autoplay.restart) || 0;
    if (this.autoplay.status === 'on' && restart > 0) {
      this.restartTimer = setTimeout(() => this.startAutoPlay(), restart * 1000);
    }
  }

  startAutoPlay() {
    if (this.playing) return;
    this.playing = true;
    this.autoplayDirection = 1;
    this.fire('onplay');
    this.requestFrame();
  }

  stopAutoPlay() {
    clearTimeout(this.restartTimer);
    if (!this.playing) return;
    this.playing = false;
    this.fire('onstop');
  }

  // Autoplay turns the view by "pan" degrees a second (bouncing at the edges of a partial
  // panorama), brings the tilt back to the horizon at "tilt" degrees a second and the field of view
  // back to the start view's at "zoom" degrees a second.
  stepAutoPlay(dt) {
    if (this.flat || this.locked) return;
    const a = this.autoplay;
    const v = { ...this.view };
    v.pan += (Number(a.pan) || 0) * dt * this.autoplayDirection;
    if (!isFullCircle(this.limits)) {
      const { width, height } = this.size();
      const clamped = clampSpherical(v, this.limits, width, height, this.distortion);
      if (Math.abs(clamped.pan - v.pan) > 1e-6) this.autoplayDirection = -this.autoplayDirection;
    }
    const toward = (value, target, rate) => {
      const step = Math.abs(rate) * dt;
      return Math.abs(target - value) <= step ? target : value + Math.sign(target - value) * step;
    };
    v.tilt = toward(v.tilt, 0, Number(a.tilt) || 0);
    v.hfov = toward(v.hfov, this.startView.hfov, Number(a.zoom) || 0);
    this.view = v;
  }

  // Opens a link hotspot's address after its transition ("zoomin" towards the hotspot, "blend" to
  // black, each with its time in seconds).
  followLink(hotspot, href, target) {
    if (target && target !== '_self' && target !== '_top' && target !== '_parent') {
      window.open(href, target);
      return;
    }
    const steps = String(hotspot.transition || '').split(';').map((s) => s.split(','));
    let wait = 0;
    for (const [kind, seconds] of steps) {
      const time = Math.min(Number(seconds) || 0, 2) / 2;
      if (kind === 'zoomin' && !this.flat) {
        this.panTo(hotspot.pan + this.frame3d.left, hotspot.tilt, Math.max(this.limits.minhfov, this.view.hfov / 3), time, 0, 'easeInSine');
        wait = Math.max(wait, time);
      } else if (kind === 'blend') {
        this.root.style.transition = `opacity ${time}s`;
        this.root.style.opacity = '0';
        wait = Math.max(wait, time);
      }
    }
    this.locked = true;
    setTimeout(() => {
      this.fire('onexit');
      if (target === '_top' && window.top) window.top.location.href = href;
      else if (target === '_parent' && window.parent) window.parent.location.href = href;
      else window.location.href = href;
    }, wait * 1000);
  }
}

Object.assign(Viewer.prototype, methods, vrMethods);
