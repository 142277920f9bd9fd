/* Columns: the rows of a call, and the codes that it found. */
#include "_columns.h"

int TakeRows(PyObject* const* arguments, PyObject* kind, size_t length, rows_in* rows) {
  long long first = 0, count = 0;
  if (!TakeKind(kind, &rows->kind) || !TakeNumber(arguments[0], "first", 0, (long long)length, &first) ||
      !TakeNumber(arguments[1], "count", 0, (long long)length - first, &count) ||
      PyObject_GetBuffer(arguments[2], &rows->room, PyBUF_WRITABLE) != 0)
    return 0;
  rows->first = (size_t)first;
  rows->count = (size_t)count;
  if ((size_t)rows->room.len / sizeof *rows->codes >= rows->count) {
    rows->codes = rows->room.buf;
    return 1;
  }
  PyBuffer_Release(&rows->room);
  PyErr_SetString(PyExc_ValueError, "there is no room for the codes");
  return 0;
}

ravo_status CheckRows(ravo_kind kind, const ravo_column* column, uint32_t flags, uint16_t* codes, totals* sum,
                      ravo_error* error) {
  ravo_answers answers = RAVO_ANSWERS_INIT;
  answers.codes = codes;
  const ravo_status status = ravo_check_column(kind, column, flags, &answers, NULL, NULL, error);
  sum->wrong += answers.wrong;
  sum->nulls += answers.nulls;
  return status;
}

PyObject* EndRows(PyObject* self, rows_in* rows, const totals* sum, ravo_status status,
                  const ravo_error* error) {
  PyBuffer_Release(&rows->room);
  if (status == RAVO_OK)
    return MakeTuple((PyObject*[]){PyLong_FromSize_t(sum->wrong), PyLong_FromSize_t(sum->nulls)}, 2);
  return RaiseAt(PyModule_GetState(self), error, PyLong_FromSize_t(rows->first + error->position));
}

static PyObject* CountsOf(const size_t* counts) {
  PyObject* dict = PyDict_New();
  for (size_t code = 1; dict != NULL && code <= UINT16_MAX; ++code) {
    if (counts[code] == 0) continue;
    PyObject *key = PyLong_FromSize_t(code), *number = PyLong_FromSize_t(counts[code]);
    if (key == NULL || number == NULL || PyDict_SetItem(dict, key, number) != 0) Py_CLEAR(dict);
    Py_XDECREF(key);
    Py_XDECREF(number);
  }
  return dict;
}

static int AppendNumber(PyObject* list, size_t number) {
  PyObject* object = PyLong_FromSize_t(number);
  const int added = object != NULL && PyList_Append(list, object) == 0;
  Py_XDECREF(object);
  return added;
}

/* The rows to find have codes other than 0 and these two. */
static int FindRows(const uint16_t* codes, size_t length, const long long* passed, size_t limit,
                    size_t* counts, PyObject* found) {
  for (size_t row = 0; row < length; ++row) {
    const uint16_t code = codes[row];
    if (code == 0 || code == passed[0] || code == passed[1]) continue;
    ++counts[code];
    if ((size_t)PyList_Size(found) < limit && !AppendNumber(found, row)) return 0;
  }
  return 1;
}

/* find_codes(codes, passed, other, limit): the first rows with a code, and how many there are of each code */
static PyObject* FindCodes(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  bytes_in codes = {0};
  long long passed[2], limit = 0;
  (void)self;
  if (!TakeCount("find_codes", count, 4) || !TakeNumber(arguments[1], "passed", 0, UINT16_MAX, &passed[0]) ||
      !TakeNumber(arguments[2], "other", 0, UINT16_MAX, &passed[1]) ||
      !TakeNumber(arguments[3], "limit", 0, PTRDIFF_MAX, &limit) || !TakeBytes(arguments[0], &codes))
    return NULL;
  size_t* counts = PyMem_Calloc((size_t)UINT16_MAX + 1, sizeof *counts);
  PyObject* found = counts == NULL ? PyErr_NoMemory() : PyList_New(0);
  PyObject* answer = NULL;
  if (found != NULL && FindRows(codes.view.buf, (size_t)codes.view.len / sizeof(uint16_t), passed,
                                (size_t)limit, counts, found))
    answer = MakeTuple((PyObject*[]){Py_NewRef(found), CountsOf(counts)}, 2);
  Py_XDECREF(found);
  PyMem_Free(counts);
  ReleaseBytes(&codes);
  return answer;
}

#define FAST(function) (PyCFunction)(void (*)(void))(function), METH_FASTCALL

static PyMethodDef column_functions[] = {
    {"arrow_rows", FAST(ArrowRows), "arrow_rows(schema, array, field, /)\n--\n\nReturns the number of rows."},
    {"array_rows", ArrayRows, METH_O, "array_rows(array, /)\n--\n\nReturns the number of rows of an array."},
    {"arrow_bytes", FAST(ArrowBytes),
     "arrow_bytes(schema, array, field, row, /)\n--\n\nReturns a wrong value."},
    {"stream_schema", StreamSchema, METH_O,
     "stream_schema(stream, /)\n--\n\nReturns the schema of a stream."},
    {"stream_next", StreamNext, METH_O,
     "stream_next(stream, /)\n--\n\nReturns the next array of a stream, or None."},
    {"check_arrow", FAST(CheckArrow),
     "check_arrow(kind, schema, array, field, first, count, codes, /)\n--\n\nWrites codes of rows."},
    {"check_fixed", FAST(CheckFixed),
     "check_fixed(kind, bytes, width, first, count, codes, /)\n--\n\nWrites codes of rows."},
    {"check_wide", FAST(CheckWide),
     "check_wide(kind, bytes, characters, first, count, codes, /)\n--\n\nWrites codes of rows."},
    {"check_objects", FAST(CheckObjects),
     "check_objects(kind, objects, missing, first, count, codes, /)\n--\n\nWrites codes of rows."},
    {"find_codes", FAST(FindCodes),
     "find_codes(codes, passed, other, limit, /)\n--\n\nReturns rows with other codes, and the counts of "
     "codes."},
    {"column_values", FAST(ColumnValues),
     "column_values(name, options, columns, /)\n--\n\nReturns what columns become."},
    {"validity_of", ValidityOf, METH_O, "validity_of(codes, /)\n--\n\nReturns a bit for each row."},
    {"pack_texts", FAST(PackTexts),
     "pack_texts(objects, missing, /)\n--\n\nReturns offsets, bytes and validity of texts."},
    {"pack_amounts", FAST(PackAmounts),
     "pack_amounts(objects, missing, /)\n--\n\nReturns numbers and validity of amounts."},
    {"pack_days", FAST(PackDays),
     "pack_days(objects, missing, /)\n--\n\nReturns numbers and validity of days."},
    {"arrow_of", FAST(ArrowOf),
     "arrow_of(format, rows, nulls, buffers, /)\n--\n\nReturns capsules of an array."},
    {NULL, NULL, 0, NULL}};

int AddColumns(PyObject* module) { return PyModule_AddFunctions(module, column_functions); }
