/* Large texts in encodings of single bytes: each byte is looked up in a table that ravo.h fills, which takes
 * half the time of a way over UTF-8. */
#include "_module.h"

#include <stdlib.h>

/* Where memory grows by copying, each byte is copied for at most as many pieces. */
enum { NO_UNIT = 0xFFFD, SMALLEST = 1 << 17, PIECES = 64 };

/* The UTF-16 unit that each byte is by itself; NO_UNIT if it is none or more. A byte that changes what others
 * mean is none by itself. 0 if there is no such table. */
static int TakeUnits(ravo_encoding from, uint16_t* units) {
  ravo_encoding utf16 = 0;
  if (ravo_encoding_find("UTF-16LE", RAVO_NUL_TERMINATED, &utf16, NULL) != RAVO_OK) return 0;
  for (int byte = 0; byte < 256; ++byte) {
    const char value = (char)byte;
    uint8_t unit[8];
    size_t length = 0;
    const ravo_status status = ravo_convert(from, &value, 1, utf16, RAVO_CONVERT_STRICT, unit, sizeof unit,
                                            &length, NULL, NULL, NULL);
    units[byte] = status == RAVO_OK && length == 2 ? (uint16_t)(unit[0] | unit[1] << 8) : NO_UNIT;
  }
  return 1;
}

static int IsAscii(const uint8_t* bytes, size_t length, const uint16_t* units) {
  uint8_t all = 0;
  for (size_t i = 0; i < length; ++i) all |= bytes[i];
  for (uint16_t i = 0; i < 0x80; ++i)
    if (units[i] != i) return 0;
  return all < 0x80;
}

/* 0 if a byte is no character by itself. */
static int Widen(const uint8_t* bytes, size_t length, const uint16_t* units, uint16_t* text) {
  int found = 0;
  for (size_t i = 0; i < length; ++i) {
    text[i] = units[bytes[i]];
    found |= text[i] == NO_UNIT;
  }
  return !found;
}

static PyObject* PieceOf(const uint8_t* bytes, size_t length, const uint16_t* units, uint16_t* room) {
  const uint16_t one = 1;
  int order = *(const uint8_t*)&one == 1 ? -1 : 1, is_right = 0;
  Py_BEGIN_ALLOW_THREADS;
  is_right = Widen(bytes, length, units, room);
  Py_END_ALLOW_THREADS;
  return is_right
             ? PyUnicode_DecodeUTF16((const char*)room, (Py_ssize_t)(length * sizeof *room), "strict", &order)
             : NULL;
}

/* Piece by piece, so that the units stay in the cache; the text grows where it is. */
static PyObject* Widened(const uint8_t* bytes, size_t length, const uint16_t* units) {
  const size_t step = length / PIECES > SMALLEST ? length / PIECES : SMALLEST;
  uint16_t* room = malloc(step * sizeof *room);
  PyObject* text = room == NULL ? NULL : PyUnicode_FromStringAndSize("", 0);
  for (size_t done = 0; text != NULL && done < length; done += step) {
    PyObject* piece = PieceOf(bytes + done, length - done < step ? length - done : step, units, room);
    if (piece == NULL) Py_CLEAR(text);
    if (piece != NULL) PyUnicode_Append(&text, piece);
    Py_XDECREF(piece);
  }
  free(room);
  return text;
}

/* Null without an exception if the usual way is to be taken. */
PyObject* DecodeSingleBytes(ravo_encoding from, const void* bytes, size_t length) {
  uint16_t units[256];
  if (length < SMALLEST || length > PTRDIFF_MAX / 2 || !TakeUnits(from, units)) return NULL;
  PyObject* answer = IsAscii(bytes, length, units)
                         ? PyUnicode_DecodeASCII(bytes, (Py_ssize_t)length, "strict")
                         : Widened(bytes, length, units);
  if (answer == NULL) PyErr_Clear();
  return answer;
}
