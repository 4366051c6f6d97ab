// Include layers of the library: which folders include which, and whether any folders include
// each other in a ring. Usage: node includelayers.mjs SOURCE_ROOT
// Prints every ring with one include line per step. Fails when a ring appears that is not
// listed in KNOWN_RINGS below, or when a listed one is gone (then shorten the list).
import { readdirSync, readFileSync, statSync } from 'node:fs';
import { join, relative } from 'node:path';

const FOLDERS = ['plugin', 'settings', 'dialogs', 'viewerparams', 'viewercontrols', 'resources'];
// Rings still to be broken, each as its sorted folder names.
const KNOWN_RINGS = ['dialogs plugin settings viewercontrols viewerparams'];

const root = process.argv[2];
const edges = new Map(); // folder -> Map(folder -> first include line seen)
for (const folder of FOLDERS) edges.set(folder, new Map());

function walk(dir) {
    for (const name of readdirSync(dir)) {
        const path = join(dir, name);
        if (statSync(path).isDirectory()) walk(path);
        else if (/\.(cpp|h)$/.test(name)) scan(path);
    }
}
function scan(path) {
    const file = relative(root, path).split(/[\\/]/);
    const from = file[0];
    readFileSync(path, 'utf8').split('\n').forEach((line, index) => {
        const m = /^\s*#\s*include\s+"([^"/]+)\//.exec(line);
        if (!m || m[1] === from || !edges.has(m[1])) return;
        if (!edges.get(from).has(m[1]))
            edges.get(from).set(m[1], `${file.join('/')}:${index + 1}: ${line.trim()}`);
    });
}
for (const folder of FOLDERS) walk(join(root, folder));

// Strongly connected components (Tarjan): every component of more than one folder is a ring.
let counter = 0;
const index = new Map(), low = new Map(), stack = [], onStack = new Set(), rings = [];
function visit(v) {
    index.set(v, counter); low.set(v, counter); counter++;
    stack.push(v); onStack.add(v);
    for (const w of edges.get(v).keys()) {
        if (!index.has(w)) { visit(w); low.set(v, Math.min(low.get(v), low.get(w))); }
        else if (onStack.has(w)) low.set(v, Math.min(low.get(v), index.get(w)));
    }
    if (low.get(v) === index.get(v)) {
        const component = [];
        let w;
        do { w = stack.pop(); onStack.delete(w); component.push(w); } while (w !== v);
        if (component.length > 1) rings.push(component.sort());
    }
}
for (const folder of FOLDERS) if (!index.has(folder)) visit(folder);

for (const [from, to] of edges)
    console.log(`${from} -> ${[...to.keys()].sort().join(', ') || '(nothing)'}`);
// Folders that include each other directly: the first steps to take out of a ring.
for (const [from, to] of edges)
    for (const other of to.keys())
        if (from < other && edges.get(other).has(from)) console.log(`mutual: ${from} <-> ${other}`);
let failed = false;
const found = rings.map((r) => r.join(' '));
for (const ring of rings) {
    const known = KNOWN_RINGS.includes(ring.join(' '));
    console.log(`\n${known ? 'known' : 'NEW'} ring: ${ring.join(' ')}`);
    for (const from of ring)
        for (const [to, where] of edges.get(from))
            if (ring.includes(to)) console.log(`  ${from} -> ${to}   ${where}`);
    failed ||= !known;
}
for (const ring of KNOWN_RINGS.filter((r) => !found.includes(r))) {
    console.log(`\nthe ring ${ring} is gone: take it off KNOWN_RINGS`);
    failed = true;
}
process.exit(failed ? 1 : 0);
