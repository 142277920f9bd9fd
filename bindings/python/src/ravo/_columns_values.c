/* Columns that are made of columns: texts, amounts, days, checksums. */
#include "_columns.h"

enum { OPTIONS = 3 };

typedef ravo_status (*making)(const ravo_column* column, const long long* options, void* numbers,
                              ravo_answers* answers, ravo_error* error);

static ravo_status Canonical(const ravo_column* column, const long long* options, void* numbers,
                             ravo_answers* answers, ravo_error* error) {
  (void)numbers;
  return ravo_check_column((ravo_kind)options[0], column, 0, answers, NULL, NULL, error);
}

static ravo_status Respelled(const ravo_column* column, const long long* options, void* numbers,
                             ravo_answers* answers, ravo_error* error) {
  (void)numbers;
  return ravo_respell_column((ravo_kind)options[0], column, 0, answers, NULL, NULL, error);
}

static ravo_status Banks(const ravo_column* column, const long long* options, void* numbers,
                         ravo_answers* answers, ravo_error* error) {
  (void)options;
  (void)numbers;
  return ravo_bank_find_column(NULL, column, 0, answers, NULL, NULL, error);
}

static ravo_status Tables(const ravo_column* column, const long long* options, void* numbers,
                          ravo_answers* answers, ravo_error* error) {
  (void)options;
  return ravo_suite_table_find_column(column, 0, numbers, answers, NULL, NULL, error);
}

static ravo_status Rounded(const ravo_column* column, const long long* options, void* numbers,
                           ravo_answers* answers, ravo_error* error) {
  return ravo_money_round_column(column, 0, options[0], (ravo_rounding)options[1], numbers, answers, NULL,
                                 NULL, error);
}

static ravo_status DaysRead(const ravo_column* column, const long long* options, void* numbers,
                            ravo_answers* answers, ravo_error* error) {
  (void)options;
  return ravo_day_read_column(column, 0, RAVO_DAY_1970, numbers, answers, NULL, NULL, error);
}

static ravo_status DaysWritten(const ravo_column* column, const long long* options, void* numbers,
                               ravo_answers* answers, ravo_error* error) {
  (void)numbers;
  return ravo_day_format_column(column, 0, RAVO_DAY_1970, (ravo_date_form)options[0], answers, NULL, NULL,
                                error);
}

static ravo_status Converted(const ravo_column* column, const long long* options, void* numbers,
                             ravo_answers* answers, ravo_error* error) {
  (void)numbers;
  return ravo_convert_column((ravo_encoding)options[0], column, 0, (ravo_encoding)options[1],
                             (ravo_convert_policy)options[2], answers, NULL, NULL, error);
}

static ravo_status Checksums(const ravo_column* column, const long long* options, void* numbers,
                             ravo_answers* answers, ravo_error* error) {
  (void)options;
  memset(answers->codes, 0, column->length * sizeof *answers->codes);
  return ravo_crc32_column(column, 0, numbers, NULL, NULL, error);
}

/* What can be made of a column: numbers of `width` bytes; or texts, of about `guess` bytes each. */
typedef struct product {
  const char* name;
  making make;
  size_t width;
  size_t guess;
} product;

static const product products[] = {{"canonical", Canonical, 0, 24},
                                   {"respelled", Respelled, 0, 32},
                                   {"banks", Banks, 0, 32},
                                   {"tables", Tables, sizeof(int32_t), 0},
                                   {"rounded", Rounded, sizeof(ravo_money), 0},
                                   {"days read", DaysRead, sizeof(int32_t), 0},
                                   {"days written", DaysWritten, 0, 16},
                                   {"converted", Converted, 0, 32},
                                   {"checksums", Checksums, sizeof(uint32_t), 0}};

static const product* ProductOf(PyObject* name) {
  text_in text;
  if (!TakeText(name, &text)) return NULL;
  for (size_t i = 0; i < sizeof products / sizeof *products; ++i)
    if (strcmp(products[i].name, text.bytes) == 0) return &products[i];
  PyErr_Format(PyExc_ValueError, "nothing is called %R", name);
  return NULL;
}

/* A column in memory of Python, until ReleaseColumn. */
typedef struct column_in {
  arrow_in arrow;
  bytes_in values, data, validity;
} column_in;

static void ReleaseColumn(column_in* in) {
  ReleaseBytes(&in->values);
  ReleaseBytes(&in->data);
  ReleaseBytes(&in->validity);
}

static int TakePart(PyObject* tuple, Py_ssize_t index, bytes_in* bytes) {
  PyObject* object = PyTuple_GetItem(tuple, index);
  return object == Py_None || TakeBytes(object, bytes);
}

/* Bytes that the values of a column need. */
static size_t NeededValues(const ravo_column* column) {
  const size_t offset = sizeof(int64_t);
  return column->layout == RAVO_LAYOUT_OFFSETS_64 ? (column->length + 1) * offset
                                                  : column->length * (size_t)column->width;
}

/* (layout, width, rows, values, data, validity) */
static int TakePacked(PyObject* tuple, column_in* in) {
  ravo_column* column = &in->arrow.column;
  long long layout = 0, width = 0, rows = 0;
  if (!TakeNumber(PyTuple_GetItem(tuple, 0), "layout", RAVO_LAYOUT_OFFSETS_64, RAVO_LAYOUT_NUMBERS,
                  &layout) ||
      !TakeNumber(PyTuple_GetItem(tuple, 1), "width", 0, INT32_MAX, &width) ||
      !TakeNumber(PyTuple_GetItem(tuple, 2), "rows", 0, PTRDIFF_MAX / INT32_MAX, &rows) ||
      !TakePart(tuple, 3, &in->values) || !TakePart(tuple, 4, &in->data) ||
      !TakePart(tuple, 5, &in->validity))
    return 0;
  column->layout = (ravo_layout)layout;
  column->width = (int32_t)width;
  column->length = (size_t)rows;
  column->values = in->values.view.buf;
  column->data = in->data.view.buf;
  column->data_size = (size_t)in->data.view.len;
  column->validity = in->validity.view.buf;
  const int is_known = layout == RAVO_LAYOUT_OFFSETS_64 || (layout == RAVO_LAYOUT_NUMBERS && width <= 8) ||
                       layout == RAVO_LAYOUT_FIXED;
  if (is_known && (size_t)in->values.view.len >= NeededValues(column) &&
      (in->validity.view.obj == NULL || (size_t)in->validity.view.len >= (column->length + 7) / 8))
    return 1;
  PyErr_SetString(PyExc_ValueError, "the column has fewer bytes than rows");
  return 0;
}

/* A packed column, or (schema, array, field) of Arrow. */
static int TakeColumn(PyObject* self, PyObject* tuple, column_in* in) {
  const ravo_column empty = RAVO_COLUMN_INIT;
  memset(in, 0, sizeof *in);
  in->arrow.column = in->arrow.dictionary = empty;
  if (!PyTuple_Check(tuple) || (PyTuple_Size(tuple) != 3 && PyTuple_Size(tuple) != 6)) {
    ExpectedType("tuple", tuple);
    return 0;
  }
  if (PyTuple_Size(tuple) == 6) return TakePacked(tuple, in);
  PyObject* parts[] = {PyTuple_GetItem(tuple, 0), PyTuple_GetItem(tuple, 1), PyTuple_GetItem(tuple, 2)};
  return TakeArrow(self, parts, &in->arrow);
}

/* What is made: arrays of bytes that grow from column to column. */
typedef struct made_values {
  const product* of;
  long long options[OPTIONS];
  PyObject *codes, *values, *data;
  size_t rows, used, wrong, nulls;
} made_values;

static int Grow(PyObject* array, size_t size) { return PyByteArray_Resize(array, (Py_ssize_t)size) == 0; }

static size_t SizeOf(PyObject* array) { return (size_t)PyByteArray_Size(array); }

/* Offsets begin at 0 for each column: they become those into the data of all. */
static void MoveOffsets(int64_t* offsets, size_t rows, size_t by) {
  for (size_t i = 0; i <= rows; ++i) offsets[i] += (int64_t)by;
}

static ravo_status MakeNumbers(made_values* made, const ravo_column* column, ravo_answers* answers,
                               ravo_error* error) {
  char* numbers = PyByteArray_AsString(made->values) + made->rows * made->of->width;
  ravo_status status = RAVO_OK;
  Py_BEGIN_ALLOW_THREADS;
  status = made->of->make(column, made->options, numbers, answers, error);
  Py_END_ALLOW_THREADS;
  return status;
}

/* Calls again with more room while the texts are longer than it. */
static ravo_status MakeTexts(made_values* made, const ravo_column* column, ravo_answers* answers,
                             ravo_error* error) {
  int64_t* offsets = (int64_t*)(void*)PyByteArray_AsString(made->values) + made->rows;
  ravo_texts texts = RAVO_TEXTS_INIT;
  ravo_status status = RAVO_BUFFER;
  texts.layout = RAVO_LAYOUT_OFFSETS_64;
  texts.offsets = offsets;
  texts.data_length = column->length * made->of->guess;
  answers->texts = &texts;
  while (status == RAVO_BUFFER) {
    if (!Grow(made->data, made->used + texts.data_length + 1)) return error->status = RAVO_MEMORY;
    texts.data = PyByteArray_AsString(made->data) + made->used;
    texts.data_size = SizeOf(made->data) - made->used;
    Py_BEGIN_ALLOW_THREADS;
    status = made->of->make(column, made->options, NULL, answers, error);
    Py_END_ALLOW_THREADS;
  }
  if (status != RAVO_OK) return status;
  MoveOffsets(offsets, column->length, made->used);
  made->used += texts.data_length;
  return status;
}

static int RefuseColumn(PyObject* self, const made_values* made, const ravo_error* error) {
  if (error->status == RAVO_ARGUMENT)
    PyErr_SetString(PyExc_TypeError, error->message);
  else
    RaiseAt(PyModule_GetState(self), error, PyLong_FromSize_t(made->rows + error->position));
  return 0;
}

/* Makes what a column becomes, after what the columns before it have become. */
static int AddColumn(PyObject* self, made_values* made, const ravo_column* column) {
  const size_t rows = made->rows + column->length;
  ravo_error error = RAVO_ERROR_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  const int is_texts = made->of->width == 0;
  if (!Grow(made->codes, rows * sizeof(uint16_t)) ||
      !Grow(made->values, is_texts ? (rows + 1) * sizeof(int64_t) : rows * made->of->width))
    return 0;
  answers.codes = (uint16_t*)(void*)PyByteArray_AsString(made->codes) + made->rows;
  const ravo_status status =
      is_texts ? MakeTexts(made, column, &answers, &error) : MakeNumbers(made, column, &answers, &error);
  if (status != RAVO_OK) return !PyErr_Occurred() && RefuseColumn(self, made, &error);
  made->rows = rows;
  made->wrong += answers.wrong;
  made->nulls += answers.nulls;
  return 1;
}

static int AddAll(PyObject* self, PyObject* columns, made_values* made) {
  int added = 1;
  for (Py_ssize_t i = 0; added && i < PyTuple_Size(columns); ++i) {
    column_in in;
    added = TakeColumn(self, PyTuple_GetItem(columns, i), &in) && AddColumn(self, made, &in.arrow.column);
    ReleaseColumn(&in);
  }
  return added && Grow(made->data, made->used);
}

static int TakeOptions(PyObject* tuple, long long* options) {
  for (Py_ssize_t i = 0; i < PyTuple_Size(tuple); ++i)
    if (i == OPTIONS || !TakeNumber(PyTuple_GetItem(tuple, i), "option", INT64_MIN, INT64_MAX, &options[i]))
      return 0;
  return 1;
}

/* column_values(name, options, columns): codes, values or offsets, data, and counts of wrong and null rows */
PyObject* ColumnValues(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  made_values made = {NULL, {0}, NULL, NULL, NULL, 0, 0, 0, 0};
  PyObject* answer = NULL;
  if (!TakeCount("column_values", count, 3) || (made.of = ProductOf(arguments[0])) == NULL ||
      !PyTuple_Check(arguments[1]) || !TakeOptions(arguments[1], made.options) ||
      !PyTuple_Check(arguments[2])) {
    if (!PyErr_Occurred()) ExpectedType("tuple", arguments[2]);
    return NULL;
  }
  made.codes = PyByteArray_FromStringAndSize(NULL, 0);
  made.values = PyByteArray_FromStringAndSize("\0\0\0\0\0\0\0", made.of->width == 0 ? 8 : 0);
  made.data = PyByteArray_FromStringAndSize(NULL, 0);
  if (made.codes != NULL && made.values != NULL && made.data != NULL && AddAll(self, arguments[2], &made))
    answer = MakeTuple((PyObject*[]){Py_NewRef(made.codes), Py_NewRef(made.values), Py_NewRef(made.data),
                                     PyLong_FromSize_t(made.wrong), PyLong_FromSize_t(made.nulls)},
                       5);
  Py_XDECREF(made.codes);
  Py_XDECREF(made.values);
  Py_XDECREF(made.data);
  return answer;
}

/* validity_of(codes): a bit for each row, 1 if its code is 0 */
PyObject* ValidityOf(PyObject* self, PyObject* object) {
  bytes_in codes = {0};
  (void)self;
  if (!TakeBytes(object, &codes)) return NULL;
  const size_t rows = (size_t)codes.view.len / sizeof(uint16_t);
  PyObject* bits = PyByteArray_FromStringAndSize(NULL, (Py_ssize_t)((rows + 7) / 8));
  char* place = bits == NULL ? NULL : PyByteArray_AsString(bits);
  if (place != NULL) memset(place, 0, (rows + 7) / 8);
  for (size_t i = 0; place != NULL && i < rows; ++i)
    place[i / 8] |= (char)((LOAD(uint16_t, codes.view.buf, i) == 0) << i % 8);
  ReleaseBytes(&codes);
  return bits;
}
