// The suite-wide count of handler and action texts: every browser test leaves in handler-log/ the
// texts of the files it exported and those that ran or threw in its pages (writeHandlerLog of
// browser.mjs). Every text of every exported file must have run in some test, and none may have
// thrown. Runs after the browser tests (ctest fixture).
//
//   node handlers.mjs LOG_FOLDER TEST_NAME...
import fs from 'node:fs';
import path from 'node:path';

const [folder, ...required] = process.argv.slice(2);
if (!folder) {
  console.error('usage: node handlers.mjs LOG_FOLDER TEST_NAME...');
  process.exit(2);
}

let failures = 0;
const texts = new Set();
const ran = new Set();
const failed = new Set();
const names = fs.existsSync(folder) ? fs.readdirSync(folder).filter((f) => f.endsWith('.json')).map((f) => f.slice(0, -5)) : [];
for (const name of required) {
  if (!names.includes(name)) {
    failures++;
    console.log(`not ok - no handler log of browser_${name} (did it run?)`);
  }
}
for (const name of names.sort()) {
  const log = JSON.parse(fs.readFileSync(path.join(folder, `${name}.json`), 'utf8'));
  log.texts.forEach((t) => texts.add(t));
  log.ran.forEach((t) => ran.add(t));
  log.failed.forEach((t) => failed.add(t));
  console.log(`# ${name}: ${log.texts.length} texts in its files, ${log.ran.length} ran`);
}

const covered = [...texts].filter((t) => ran.has(t));
const threw = [...texts].filter((t) => failed.has(t));
console.log(`# handler and action texts: ${texts.size}; ran: ${covered.length}; threw: ${threw.length}`);
for (const t of texts) {
  if (ran.has(t)) continue;
  failures++;
  console.log(`not ok - never ran: ${t.slice(0, 200)}`);
}
for (const t of threw) {
  failures++;
  console.log(`not ok - threw: ${t.slice(0, 200)}`);
}
if (!texts.size) {
  failures++;
  console.log('not ok - no handler texts at all');
}
process.exit(failures ? 1 : 0);
