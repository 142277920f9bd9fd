// Writes arrow_columns.inc: columns of company numbers as the package apache-arrow lays them out in memory, with the
// codes that a check written here, apart from the library, gives them.
//
// usage, in a folder with the package (npm install apache-arrow): node arrow_columns.mjs > arrow_columns.inc
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';

const require = createRequire(`${process.cwd()}/`);
const arrow = require('apache-arrow');
const release = JSON.parse(readFileSync('node_modules/apache-arrow/package.json')).version;
const {
  Binary, BinaryView, Dictionary, FixedSizeBinary, Int8, Int16, Int32, LargeBinary, LargeUtf8, Uint8, Uint16, Uint32,
  Utf8, Utf8View, vectorFromArray
} = arrow;

const NOT_UTF8 = 65534;
const NULL = 65535;

// The reason of a company number: 101 nothing there, 102 a character, 103 the length, 104 the check digit.
function codeOf(value) {
  if (value === null) return NULL;
  let text = value;
  if (value instanceof Uint8Array) {
    try {
      text = new TextDecoder('utf-8', { fatal: true }).decode(value).replace(/\0+$/, '');
    } catch {
      return NOT_UTF8;
    }
  }
  const digits = text.replace(/^I\u010CO?: ?/, '').replace(/[ \u00A0]/g, '');
  if (digits === '') return 101;
  if (/[^0-9]/.test(digits)) return 102;
  if (digits.length !== 8) return 103;
  const sum = [...digits.slice(0, 7)].reduce((total, digit, i) => total + digit * (8 - i), 0);
  return (11 - sum % 11) % 10 === Number(digits[7]) ? 0 : 104;
}

// Every third is correct; each kind of fault, null rows, and texts that a view keeps elsewhere.
function makeTexts(count) {
  const texts = [];
  for (let number = 1234567; texts.length < count; number += 912347) {
    const seven = String(number % 10000000).padStart(7, '0');
    const last = [...'0123456789'].find((digit) => codeOf(seven + digit) === 0);
    texts.push(seven + last, seven + (Number(last) + 1) % 10, null, `I\u010CO: ${seven.slice(0, 3)} ${seven.slice(3)}${last}`,
      '', seven, `${seven}${last}\u00A0`, `   ${seven}${last}   `, `${seven}x`, `Kancel\u00E1\u0159 ${seven}`);
  }
  return texts.slice(0, count);
}

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

let arrays = 0;

function writeArray(values) {
  if (!values) return 'NULL';
  const view = new Uint8Array(values.buffer, values.byteOffset, values.byteLength);
  const name = `arrow_bytes_${arrays++}`;
  const lines = [...view].join(', ').replace(/(.{1,110})(?: |$)/g, '  $1\n');
  console.log(`static const uint8_t ${name}[] = {\n${lines}};`);
  return name;
}

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
  const names = buffersOf(data, format).map(writeArray);
  return `${names.length}, {${names.join(', ')}}`;
}

const rows = [];
console.log(`// Written by arrow_columns.mjs with apache-arrow ${release}; do not edit.`);
for (const [format, values, type] of columns) {
  const [data, ...more] = vectorFromArray(values, type).data;
  if (more.length > 0) throw new Error('more than one chunk');
  const codes = `arrow_codes_${rows.length}`;
  console.log(`static const uint16_t ${codes}[] = {\n${values.map(codeOf).join(', ').replace(/(.{1,110})(?: |$)/g, '  $1\n')}};`);
  const dictionary = data.dictionary ? `"u", ${data.dictionary.length}, ${writeBuffers(data.dictionary.data[0], 'u')}` : 'NULL, 0, 0, {NULL}';
  rows.push(`    {"${format}", ${data.length}, ${codes}, ${writeBuffers(data, format)}, ${dictionary}},`);
}
console.log(`static const struct arrow_sample ARROW_SAMPLES[] = {\n${rows.join('\n')}\n};`);
