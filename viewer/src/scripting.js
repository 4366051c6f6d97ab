// Runs the handler and action texts of the viewer files. A text is compiled once into a function
// and called with `this` bound to the object it belongs to (an element, the event object or an
// action's context); a handler that throws is reported with its element and event and the viewer
// goes on.

const compiled = new Map();
// Every text that has run, and those that threw: what the tests read to know that each handler
// text of the files has run without failing.
export const record = { ran: new Set(), failed: new Set() };

export function compile(source) {
  if (typeof source === 'function') return source;
  if (typeof source !== 'string' || !source.trim()) return null;
  let fn = compiled.get(source);
  if (!fn) {
    // eslint-disable-next-line no-new-func
    fn = new Function(`return (${source});`)();
    compiled.set(source, fn);
  }
  return fn;
}

// Calls `source` (a function text or a function) on `self`; returns its result, or undefined when
// it is missing or fails.
export function run(source, self, elementId, eventName, args = []) {
  let fn;
  try {
    fn = compile(source);
  } catch (e) {
    console.error(`vantoViewer: the ${eventName} handler of "${elementId}" does not compile:`, e);
    return undefined;
  }
  if (typeof fn !== 'function') return undefined;
  record.ran.add(source);
  try {
    return fn.apply(self, args);
  } catch (e) {
    record.failed.add(source);
    console.error(`vantoViewer: the ${eventName} handler of "${elementId}" failed:`, e);
    return undefined;
  }
}
