// Company numbers for columns that other programs lay out, and a check of them apart from the library.

export const NOT_UTF8 = 65534;
export const NULL = 65535;

// The reason of a company number: 101 nothing there, 102 a character, 103 the length, 104 the check digit.
export function codeOf(value) {
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
export function makeTexts(count) {
  const texts = [];
  for (let number = 1234567; texts.length < count; number += 912347) {
    const seven = String(number % 10000000).padStart(7, '0');
    const last = [...'0123456789'].find((digit) => codeOf(seven + digit) === 0);
    texts.push(seven + last, seven + (Number(last) + 1) % 10, null, `I\u010CO: ${seven.slice(0, 3)} ${seven.slice(3)}${last}`,
      '', seven, `${seven}${last}\u00A0`, `   ${seven}${last}   `, `${seven}x`, `Kancel\u00E1\u0159 ${seven}`);
  }
  return texts.slice(0, count);
}

let arrays = 0;

// Writes the bytes of an array as an array of C; returns its name.
export function writeBytes(values, prefix) {
  const view = new Uint8Array(values.buffer, values.byteOffset, values.byteLength);
  const name = `${prefix}_${arrays++}`;
  console.log(`static const uint8_t ${name}[] = {\n${inLines([...view])}};`);
  return name;
}

export function inLines(numbers) {
  return numbers.join(', ').replace(/(.{1,110})(?: |$)/g, '  $1\n');
}
