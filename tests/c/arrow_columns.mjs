// Writes arrow_columns.inc: columns of company numbers as the package apache-arrow lays them out in memory, with the
// codes that a check in JavaScript, apart from the library, gives them.
//
// usage, in a folder with the package (npm install apache-arrow): node arrow_columns.mjs > arrow_columns.inc
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { codeOf, inLines, makeTexts, writeBytes } from './company_numbers.mjs';

const require = createRequire(`${process.cwd()}/`);
const arrow = require('apache-arrow');
const release = JSON.parse(readFileSync('node_modules/apache-arrow/package.json')).version;
const {
  Binary, BinaryView, Dictionary, FixedSizeBinary, Int8, Int16, Int32, LargeBinary, LargeUtf8, Uint8, Uint16, Uint32,
  Utf8, Utf8View, vectorFromArray
} = arrow;

const texts = makeTexts(30);
const bytes = texts.map((text, i) =>
  text === null ? null : i % 7 === 5 ? Uint8Array.of(0x34, 0xC4) : new TextEncoder().encode(text));
const fixed = makeTexts(20).map((text) => {
  const value = new Uint8Array(20);
  return text === null ? null : (new TextEncoder().encodeInto(text, value), value);
});
const all = (values) => values.filter((value) => value !== null);

const columns = [
  ['u', texts, new Utf8()],
  ['u', all(texts), new Utf8()],
  ['U', texts, new LargeUtf8()],
  ['vu', texts, new Utf8View()],
  ['z', bytes, new Binary()],
  ['Z', bytes, new LargeBinary()],
  ['vz', bytes, new BinaryView()],
  ['w:20', fixed, new FixedSizeBinary(20)],
  ['c', texts, new Dictionary(new Utf8(), new Int8())],
  ['C', texts, new Dictionary(new Utf8(), new Uint8())],
  ['s', texts, new Dictionary(new Utf8(), new Int16())],
  ['S', texts, new Dictionary(new Utf8(), new Uint16())],
  ['i', texts, new Dictionary(new Utf8(), new Int32())],
  ['I', texts, new Dictionary(new Utf8(), new Uint32())],
];

// The buffers of the C data interface, in its order.
function buffersOf(data, format) {
  const validity = data.nullCount > 0 ? data.nullBitmap.subarray(0, Math.ceil(data.length / 8)) : null;
  if (/^[uUzZ]$/.test(format)) {
    return [validity, data.valueOffsets.subarray(0, data.length + 1),
      data.values.subarray(0, Number(data.valueOffsets[data.length]))];
  }
  if (!format.startsWith('v')) return [validity, data.values.subarray(0, data.length * (data.type.byteWidth ?? 1))];
  const views = data.values.subarray(0, 16 * data.length);
  const sizes = BigInt64Array.from(data.variadicBuffers, (buffer) => BigInt(buffer.byteLength));
  return [validity, views, ...data.variadicBuffers, sizes];
}

function writeBuffers(data, format) {
  if (data.offset !== 0) throw new Error('the data begin with a slice');
  const names = buffersOf(data, format).map((buffer) => buffer ? writeBytes(buffer, 'arrow_bytes') : 'NULL');
  return `${names.length}, {${names.join(', ')}}`;
}

const rows = [];
console.log(`// Written by arrow_columns.mjs with apache-arrow ${release}; do not edit.`);
for (const [format, values, type] of columns) {
  const [data, ...more] = vectorFromArray(values, type).data;
  if (more.length > 0) throw new Error('more than one chunk');
  const codes = `arrow_codes_${rows.length}`;
  console.log(`static const uint16_t ${codes}[] = {\n${inLines(values.map(codeOf))}};`);
  const dictionary = data.dictionary ? `"u", ${data.dictionary.length}, ${writeBuffers(data.dictionary.data[0], 'u')}` : 'NULL, 0, 0, {NULL}';
  rows.push(`    {"${format}", ${data.length}, ${codes}, ${writeBuffers(data, format)}, ${dictionary}},`);
}
console.log(`static const struct arrow_sample ARROW_SAMPLES[] = {\n${rows.join('\n')}\n};`);
