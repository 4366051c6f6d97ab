// Loads viewer files. Every file is a script that assigns one object to the global
// VantoraViewerParams, so two loads must never overlap: all loads of all viewers of a page run one
// after the other through one queue.
import { text } from './texts.js';

const PREFIX = 'VantoraViewerParams = ';
let queue = Promise.resolve();

export class LoadError extends Error {}

function isFileUrl(url) {
  return new URL(url, document.baseURI).protocol === 'file:';
}

// From disk a fetch is refused, but a script element may run the file.
function loadByScript(url) {
  return new Promise((resolve, reject) => {
    const script = document.createElement('script');
    const done = () => { script.remove(); };
    delete window.VantoraViewerParams;
    script.onload = () => {
      done();
      const value = window.VantoraViewerParams;
      delete window.VantoraViewerParams;
      if (value && typeof value === 'object') resolve(value);
      else reject(new LoadError(text('malformed', url, 'VantoraViewerParams')));
    };
    script.onerror = () => { done(); reject(new LoadError(text('missing', url))); };
    script.src = url;
    document.head.appendChild(script);
  });
}

// Over http(s) the text is fetched and parsed as JSON after its fixed prefix: a server that sends
// "X-Content-Type-Options: nosniff" refuses to run a .json file as a script.
async function loadByFetch(url) {
  let response;
  try {
    response = await fetch(url, { cache: 'no-cache' });
  } catch (e) {
    throw new LoadError(text('missing', url));
  }
  if (!response.ok) throw new LoadError(text('missing', url));
  const body = (await response.text()).replace(/^\uFEFF/, '');
  const start = body.indexOf(PREFIX);
  if (start < 0 || body.slice(0, start).trim() !== '') {
    throw new LoadError(text('malformed', url, PREFIX.trim()));
  }
  try {
    return JSON.parse(body.slice(start + PREFIX.length).replace(/;\s*$/, ''));
  } catch (e) {
    throw new LoadError(text('malformed', url, e.message));
  }
}

// Loads one viewer file (.json, .js or .jsonp alike) and returns its object.
export function loadParams(url) {
  const absolute = new URL(url, document.baseURI).href;
  const run = () => (isFileUrl(absolute) ? loadByScript(absolute) : loadByFetch(absolute));
  const result = queue.then(run, run);
  queue = result.catch(() => {});
  return result;
}

// Loads a parameter file and its includes in order; returns the root objects, the parameter
// file's first.
export async function loadWithIncludes(url) {
  const first = await loadParams(url);
  const root = first && first.vantoraViewer;
  if (!root || typeof root !== 'object') {
    throw new LoadError(text('malformed', url, '"vantoraViewer"'));
  }
  const roots = [root];
  for (const include of root.include || []) {
    if (!include || !include.src) continue;
    const includeUrl = new URL(include.src, new URL(url, document.baseURI)).href;
    const object = await loadParams(includeUrl);
    if (!object || !object.vantoraViewer) {
      throw new LoadError(text('malformed', include.src, '"vantoraViewer"'));
    }
    roots.push(object.vantoraViewer);
  }
  return roots;
}
