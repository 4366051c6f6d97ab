// The page's entry point: the global `vantoViewer` with insert and get.
import { Viewer } from './viewer.js';
import { record } from './scripting.js';

const viewers = new Map();

// Shows the parameter file `paramsFile` in the element `elementId`; returns the viewer, whose
// `ready` Promise settles when the first complete frame is drawn or loading has failed.
export function insert(elementId, paramsFile, options) {
  const viewer = new Viewer(elementId, paramsFile, options);
  viewers.set(elementId, viewer);
  return viewer;
}

export function get(elementId) {
  return viewers.get(elementId) || null;
}

export const version = '1.0';

// The handler and action texts run so far in this page, and those of them that threw.
export function scriptRecord() {
  return { ran: [...record.ran].filter((s) => typeof s === 'string'), failed: [...record.failed].map(String) };
}
