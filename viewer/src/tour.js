// Tours: the panoramas of the gallery file shown one after another in the same page. A scene
// change loads the next parameter file with its includes while the current panorama stays
// interactive, then runs "onexit", replaces everything that belongs to one panorama (picture,
// view, hotspots, title, local sound and data) and runs "onscenechanged". The controls, the
// gallery strip, the map, a global sound of the same file and a global info box stay.
import { loadWithIncludes } from './loader.js';
import { Gallery, ThumbnailStrip } from './gallery.js';
import { MapPanel } from './map.js';
import { text } from './texts.js';
import { showWebGLNotice } from './overlay.js';

// Creates the gallery list and the toolbar's strip and map, before the elements' "oninit" runs.
export function createTour(viewer) {
  viewer.galleryList = Array.isArray(viewer.galleryData) ? new Gallery(viewer, viewer.galleryData) : null;
  viewer.sceneChange = Promise.resolve(true);
  for (const root of viewer.controls || []) {
    for (const box of root.buttonBox ? [].concat(root.buttonBox) : []) {
      if (box.galleryElement && box.galleryElement.id) viewer.addElement(new ThumbnailStrip(viewer, box.galleryElement)).updateStyles();
      if (box.mapElement && box.mapElement.id) viewer.addElement(new MapPanel(viewer, box.mapElement)).updateStyles();
    }
  }
}

// Shows the parameter file at `url`; changes asked for while one runs follow in turn. Resolves
// with whether the panorama is shown, once its first complete frame is drawn.
export function changeScene(viewer, url) {
  viewer.sceneChange = viewer.sceneChange.then(() => showScene(viewer, url));
  return viewer.sceneChange;
}

async function showScene(viewer, url) {
  if (url === viewer.baseUrl) return true;
  let roots;
  try {
    roots = await loadWithIncludes(url);
    const node = roots[0].node;
    if (!node || !node.image || !Array.isArray(node.image.levels) || !node.image.levels.length) {
      throw new Error(text('noImage', url));
    }
  } catch (error) {
    // The panorama shown stays; the visitor learns why the next one did not come.
    console.error('vantoViewer:', error.message || error);
    showWebGLNotice(viewer.root, error.message || String(error), text('close'));
    return false;
  }
  viewer.fire('onexit');
  leaveScene(viewer);
  viewer.paramsFile = url;
  viewer.baseUrl = url;
  viewer.configureScene(roots[0]);
  viewer.handlers = {};
  viewer.actions = new Map();
  viewer.mergeRoots(roots);
  viewer.createSceneElements();
  viewer.fire('onscenechanged');
  for (const element of [...viewer.elements.values()]) {
    if (typeof element.onscenechanged === 'function') element.onscenechanged();
    if (typeof element.sceneChanged === 'function') element.sceneChanged();
  }
  if (viewer.autoplay.status === 'on') viewer.startAutoPlay();
  await viewer.settled();
  return true;
}

// Takes down what belongs to the panorama shown.
function leaveScene(viewer) {
  // A message box of this panorama (a hotspot's) goes with it; the tour's own info box stays.
  const global = viewer.get('globalData');
  const kept = global && global.infoTextBox && global.infoTextBox.id;
  if (viewer.currentMBId && viewer.currentMBId !== kept) {
    viewer.remove(viewer.currentMBId);
    viewer.currentMBId = null;
  }
  viewer.stopAutoPlay();
  clearTimeout(viewer.restartTimer);
  viewer.move = null;
  for (const item of viewer.sceneNodes || []) {
    if (item.id && viewer.elements.get(item.id) === item) viewer.elements.delete(item.id);
    item.destroy();
  }
  viewer.sceneNodes = [];
  viewer.hotspotList = [];
  viewer.lensFlares = null;
  for (const tile of viewer.pyramid.cache.values()) viewer.renderer.forget(tile);
  viewer.pyramid.cache.clear();
}
