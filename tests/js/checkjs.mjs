// Checks viewer files the way a page uses them: each file is run as a script, must define
// VantoraViewerParams, and every JavaScript function text inside it must compile.
//
//   node checkjs.mjs FILE...
//
// Exit status 0 when every file passes, 1 on any failure (each failure is printed with the file
// and the JSON path of the offending member), 2 on wrong usage.
import fs from 'node:fs';
import vm from 'node:vm';

// Members whose string values the viewer turns into functions.
const FUNCTION_MEMBERS = new Set([
  'onclick', 'oninit', 'onshow', 'onscenechanged', 'func', 'radarcontext',
]);

function looksLikeFunction(text) {
  return /^\s*function\s*\(/.test(text);
}

function memberPath(parent, key) {
  return typeof key === 'number' ? `${parent}[${key}]`
    : /^[A-Za-z_$][\w$]*$/.test(key) ? `${parent}.${key}` : `${parent}[${JSON.stringify(key)}]`;
}

// Walks every object and array below `value`, calling `visit(path, key, string, parent)` for
// each string member or element.
function walkStrings(value, path, visit) {
  if (Array.isArray(value)) {
    value.forEach((item, index) => {
      const itemPath = memberPath(path, index);
      if (typeof item === 'string') visit(itemPath, index, item, value);
      else walkStrings(item, itemPath, visit);
    });
  } else if (value !== null && typeof value === 'object') {
    for (const [key, item] of Object.entries(value)) {
      const itemPath = memberPath(path, key);
      if (typeof item === 'string') visit(itemPath, key, item, value);
      else walkStrings(item, itemPath, visit);
    }
  }
}

// Whether a string member holds a function text: a handler or action member, every event of the
// event object (keyed by event name), or anything written as a function.
function isFunctionText(key, value, parent) {
  if (FUNCTION_MEMBERS.has(key) || looksLikeFunction(value)) return true;
  return !Array.isArray(parent) && parent.id === 'mainEvents' && key !== 'id';
}

function checkFile(file, failures) {
  let text;
  try {
    text = fs.readFileSync(file, 'utf8');
  } catch (error) {
    failures.push(`${file}: cannot be read: ${error.message}`);
    return 0;
  }

  // A fresh global per file, as each page load has; the assignment creates the global.
  const context = vm.createContext({});
  try {
    vm.runInContext(text, context, { filename: file, timeout: 5000 });
  } catch (error) {
    failures.push(`${file}: does not run: ${error.message}`);
    return 0;
  }
  const params = vm.runInContext(
    'typeof VantoraViewerParams === "undefined" ? undefined : VantoraViewerParams', context);
  if (params === null || typeof params !== 'object') {
    failures.push(`${file}: defines no VantoraViewerParams object`);
    return 0;
  }

  let functions = 0;
  walkStrings(params, 'VantoraViewerParams', (path, key, value, parent) => {
    if (!isFunctionText(key, value, parent)) return;
    // Parenthesised: a bare "function(){...}" is not a valid statement on its own.
    try {
      new vm.Script(`(${value})`, { filename: `${file}:${path}` });
      ++functions;
    } catch (error) {
      failures.push(`${file}: ${path}: ${error.message}: ${JSON.stringify(value)}`);
    }
  });
  return functions;
}

const files = process.argv.slice(2);
if (files.length === 0) {
  console.error('usage: node checkjs.mjs FILE...');
  process.exit(2);
}

const failures = [];
let functions = 0;
for (const file of files) functions += checkFile(file, failures);

for (const failure of failures) console.error(`checkjs: FAIL ${failure}`);
console.log(`checkjs: ${files.length} files, ${functions} functions parsed, ${failures.length} failures`);
process.exit(failures.length === 0 ? 0 : 1);
