// Writes duckdb_columns.inc: vectors of DuckDB as its API for Node.js gives them, the memory of the database itself,
// with what the library must make of them, computed here and by DuckDB.
//
// A string of DuckDB is a view of Arrow, except that a long one ends with an address instead of the number of a buffer
// and a place in it. No file can have addresses: the texts are put into one buffer, and their places written instead.
//
// usage, in a folder with the package (npm install @duckdb/node-api): node duckdb_columns.mjs > duckdb_columns.inc
import { createRequire } from 'node:module';
import { codeOf, inLines, makeTexts, writeBytes } from './company_numbers.mjs';

const require = createRequire(`${process.cwd()}/`);
const { DuckDBInstance, version } = require('@duckdb/node-api');
const api = require('@duckdb/node-bindings');

const ROWS = 40;
const LONGEST_INSIDE = 12;
const connection = await (await DuckDBInstance.create(':memory:')).connect();

const quoted = (value) => value === null ? 'NULL' : `'${value.replaceAll("'", "''")}'`;
const blob = (bytes) => bytes === null ? 'NULL' : `'${[...bytes].map((byte) => `\\x${byte.toString(16).padStart(2, '0')}`).join('')}'::BLOB`;
const column = (sql) => connection.run(sql).then((result) => result.fetchChunk());
const inOrder = (values, type, spell) =>
  column(`select v::${type} from (values ${values.map((value, i) => `(${i}, ${spell(value)})`).join(', ')}) t(n, v) order by n`);

const isNull = (validity, row) => validity !== null && (validity[row >> 3] >> (row & 7) & 1) === 0;

// The bytes of the only vector of a chunk. What null rows have is by chance: here it is the same each time.
function vectorOf(chunk, width) {
  const vector = api.data_chunk_get_vector(chunk.chunk, 0);
  const validity = api.vector_get_validity(vector, Math.ceil(chunk.rowCount / 64) * 8);
  const raw = api.vector_get_data(vector, width * chunk.rowCount);
  const values = Buffer.from(raw);
  for (let row = 0; row < chunk.rowCount; ++row) {
    if (isNull(validity, row)) values.fill(0xA5, width * row, width * (row + 1));
  }
  return { count: chunk.rowCount, values, raw, validity };
}

// Addresses become places in one buffer.
function withPlaces(vector) {
  const parts = [];
  let place = 0;
  for (let row = 0; row < vector.count; ++row) {
    const length = vector.values.readUInt32LE(16 * row);
    if (length <= LONGEST_INSIDE || isNull(vector.validity, row)) continue;
    parts.push(Buffer.from(api.get_data_from_pointer(vector.raw.buffer, vector.raw.byteOffset + 16 * row + 8, length)));
    vector.values.writeInt32LE(0, 16 * row + 8);
    vector.values.writeInt32LE(place, 16 * row + 12);
    place += length;
  }
  return { ...vector, data: Buffer.concat(parts) };
}

const validityOf = (vector) => vector.validity === null ? 'NULL' : writeBytes(vector.validity, 'duckdb_bytes');
const rows = [];

function writeTexts(name, vector, codes) {
  const views = withPlaces(vector);
  const names = [writeBytes(views.values, 'duckdb_bytes'), validityOf(views), writeBytes(views.data, 'duckdb_bytes')];
  console.log(`static const uint16_t duckdb_codes_${rows.length}[] = {\n${inLines(codes)}};`);
  rows.push(`    {"${name}", ${views.count}, ${names.join(', ')}, ${views.data.length}, duckdb_codes_${rows.length}},`);
}

function writeNumbers(type, name, numbers) {
  console.log(`static const ${type} ${name}[] = {\n${inLines(numbers)}};`);
}

console.log(`// Written by duckdb_columns.mjs with DuckDB ${version()}; do not edit.`);

const texts = makeTexts(ROWS);
writeTexts('VARCHAR', vectorOf(await inOrder(texts, 'VARCHAR', quoted), 16), texts.map(codeOf));
const bytes = texts.map((text, i) => text === null ? null : i % 7 === 5 ? Uint8Array.of(0x34, 0xC4) : new TextEncoder().encode(text));
writeTexts('BLOB', vectorOf(await inOrder(bytes, 'BLOB', blob), 16), bytes.map(codeOf));
console.log(`static const struct duckdb_texts DUCKDB_TEXTS[] = {\n${rows.join('\n')}\n};`);

// An ENUM is a dictionary: indices, and the names in the order of the type.
const names = [...new Set(texts.filter((text) => text !== null && text !== ''))].slice(0, 9);
await connection.run(`create type ico as enum (${names.map(quoted).join(', ')})`);
const chosen = Array.from({ length: ROWS }, (_, i) => i % 5 === 4 ? null : names[i * 7 % names.length]);
const indices = vectorOf(await inOrder(chosen, 'ico', quoted), 1);
console.log(`static const char* const DUCKDB_ENUM_NAMES[] = {${names.map((name) => JSON.stringify(name).replace(/[^\x20-\x7e]/g,
  (c) => [...new TextEncoder().encode(c)].map((byte) => `\\${byte.toString(8)}`).join(''))).join(', ')}};`);
console.log(`#define DUCKDB_ENUM ${writeBytes(indices.values, 'duckdb_bytes')}`);
console.log(`#define DUCKDB_ENUM_VALIDITY ${validityOf(indices)}`);
writeNumbers('uint16_t', 'DUCKDB_ENUM_CODES', chosen.map(codeOf));

// DECIMAL(18,4) is an amount of money as the library has it.
const amounts = Array.from({ length: ROWS }, (_, i) => i % 9 === 8 ? null : BigInt(i - 17) * 123450n + BigInt(i * i * 7 - 25));
const spelled = (amount) => amount === null ? 'NULL' : `${amount < 0n ? '-' : ''}${String(amount < 0n ? -amount : amount).padStart(5, '0').replace(/(\d{4})$/, '.$1')}`;
const money = vectorOf(await inOrder(amounts, 'DECIMAL(18,4)', spelled), 8);
const magnitude = (amount) => amount < 0n ? -amount : amount;
const rounded = amounts.map((amount) => amount === null ? 0n : (magnitude(amount) + 50n) / 100n * 100n * (amount < 0n ? -1n : 1n));
const byDuckDB = vectorOf(await column(
  `select round(v, 2)::DECIMAL(18,4) from (values ${amounts.map((amount, i) => `(${i}, ${spelled(amount)}::DECIMAL(18,4))`).join(', ')}) t(n, v) order by n`), 8);
rounded.forEach((amount, i) => {
  if (amounts[i] !== null && byDuckDB.values.readBigInt64LE(8 * i) !== amount) throw new Error(`DuckDB rounds ${amounts[i]} otherwise`);
});
console.log(`#define DUCKDB_MONEY ${writeBytes(money.values, 'duckdb_bytes')}`);
console.log(`#define DUCKDB_MONEY_VALIDITY ${validityOf(money)}`);
writeNumbers('int64_t', 'DUCKDB_MONEY_ROUNDED', rounded);

// DATE is date32, and DuckDB writes the same days as texts.
const dates = `select DATE '1900-02-27' + (n * 2477)::INTEGER as d from range(${ROWS}) t(n)`;
const days = vectorOf(await column(`select d from (${dates}) order by d`), 4);
const written = async (form) => (await connection.runAndReadAll(`select strftime(d, '${form}') from (${dates}) order by d`)).getRows().map(([text]) => text);
const iso = await written('%Y-%m-%d');
iso.forEach((text, i) => {
  if (new Date(days.values.readInt32LE(4 * i) * 86400000).toISOString().slice(0, 10) !== text) throw new Error(`DuckDB has another day than ${text}`);
});
console.log(`#define DUCKDB_DATES ${writeBytes(days.values, 'duckdb_bytes')}`);
console.log(`static const char* const DUCKDB_DATE_TEXTS[] = {\n${inLines(iso.map((text) => `"${text}"`))}};`);
const czech = withPlaces(vectorOf(await column(`select strftime(d, '%-d. %-m. %Y ') from (${dates}) order by d`), 16));
console.log(`#define DUCKDB_CZECH_DATES ${writeBytes(czech.values, 'duckdb_bytes')}`);
console.log(`#define DUCKDB_CZECH_DATES_DATA ${writeBytes(czech.data, 'duckdb_bytes')}`);
console.log(`#define DUCKDB_ROWS ${ROWS}`);
