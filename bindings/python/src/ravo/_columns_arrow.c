/* Columns and streams of Arrow, by capsules. */
#include "_columns.h"

static int RefuseArrow(PyObject* self, const ravo_error* error) {
  if (error->status != RAVO_ARGUMENT) return Raise(PyModule_GetState(self), error, NULL) != NULL;
  PyErr_Format(
      PyExc_TypeError,
      "%s; of Arrow, utf8, binary, their large forms and views, binary of a fixed width and dictionaries "
      "of these are understood",
      error->message);
  return 0;
}

int TakeArrow(PyObject* self, PyObject* const* arguments, arrow_in* arrow) {
  text_in field = {NULL, 0};
  ravo_error error = RAVO_ERROR_INIT;
  const struct ArrowSchema* schema = PyCapsule_GetPointer(arguments[0], "arrow_schema");
  const struct ArrowArray* array = schema == NULL ? NULL : PyCapsule_GetPointer(arguments[1], "arrow_array");
  if (array == NULL || (arguments[2] != Py_None && !TakeText(arguments[2], &field))) return 0;
  return ravo_column_of_arrow(schema, array, field.bytes, field.length, &arrow->column, &arrow->dictionary,
                              &error) == RAVO_OK ||
         RefuseArrow(self, &error);
}

/* arrow_rows(schema, array, field) */
PyObject* ArrowRows(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  arrow_in arrow;
  if (!TakeCount("arrow_rows", count, 3) || !TakeArrow(self, arguments, &arrow)) return NULL;
  return PyLong_FromSize_t(arrow.column.length);
}

/* array_rows(array): of a batch */
PyObject* ArrayRows(PyObject* self, PyObject* object) {
  (void)self;
  const struct ArrowArray* array = PyCapsule_GetPointer(object, "arrow_array");
  return array == NULL ? NULL : PyLong_FromLongLong(array->length);
}

/* check_arrow(kind, schema, array, field, first, count, codes) */
PyObject* CheckArrow(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  arrow_in arrow;
  rows_in rows;
  totals sum = {0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  ravo_status status = RAVO_OK;
  if (!TakeCount("check_arrow", count, 7) || !TakeArrow(self, arguments + 1, &arrow) ||
      !TakeRows(arguments + 4, arguments[0], arrow.column.length, &rows))
    return NULL;
  arrow.column.offset += rows.first;
  arrow.column.length = rows.count;
  Py_BEGIN_ALLOW_THREADS;
  status = CheckRows(rows.kind, &arrow.column, 0, rows.codes, &sum, &error);
  Py_END_ALLOW_THREADS;
  if (status != RAVO_ARGUMENT) return EndRows(self, &rows, &sum, status, &error);
  PyBuffer_Release(&rows.room);
  RefuseArrow(self, &error);
  return NULL;
}

/* The entry of a row. */
static size_t EntryAt(const ravo_column* column, size_t row) {
  switch (column->width) {
    case 1:
      return LOAD(uint8_t, column->values, row);
    case 2:
      return LOAD(uint16_t, column->values, row);
    case 4:
      return LOAD(uint32_t, column->values, row);
    default:
      return (size_t)LOAD(uint64_t, column->values, row);
  }
}

static PyObject* ViewAt(const ravo_column* column, size_t row) {
  const char* view = (const char*)column->values + row * VIEW_SIZE;
  const int32_t length = LOAD(int32_t, view, 0);
  if (length <= LONGEST_INSIDE) return PyBytes_FromStringAndSize(view + sizeof length, length);
  const char* buffer = column->buffers[LOAD(int32_t, view, 2)];
  return PyBytes_FromStringAndSize(buffer + LOAD(int32_t, view, 3), length);
}

static PyObject* FixedAt(const ravo_column* column, size_t row) {
  const char* value = (const char*)column->values + row * (size_t)column->width;
  Py_ssize_t size = column->width;
  while (size > 0 && value[size - 1] == '\0') --size;
  return PyBytes_FromStringAndSize(value, size);
}

/* The bytes of a row. Precondition: the column was checked, and the row has a value. */
static PyObject* BytesAt(const ravo_column* column, size_t row) {
  row += column->offset;
  switch (column->layout) {
    case RAVO_LAYOUT_OFFSETS_32: {
      const int32_t begin = LOAD(int32_t, column->values, row);
      return PyBytes_FromStringAndSize(column->data + begin, LOAD(int32_t, column->values, row + 1) - begin);
    }
    case RAVO_LAYOUT_OFFSETS_64: {
      const int64_t begin = LOAD(int64_t, column->values, row);
      return PyBytes_FromStringAndSize(column->data + begin, LOAD(int64_t, column->values, row + 1) - begin);
    }
    case RAVO_LAYOUT_VIEWS:
      return ViewAt(column, row);
    case RAVO_LAYOUT_FIXED:
      return FixedAt(column, row);
    default:
      return BytesAt(column->dictionary, EntryAt(column, row));
  }
}

/* arrow_bytes(schema, array, field, row): of a row that check_arrow found to be wrong */
PyObject* ArrowBytes(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  arrow_in arrow;
  long long row = 0;
  if (!TakeCount("arrow_bytes", count, 4) || !TakeArrow(self, arguments, &arrow) ||
      !TakeNumber(arguments[3], "row", 0, (long long)arrow.column.length - 1, &row))
    return NULL;
  return BytesAt(&arrow.column, (size_t)row);
}

/* Capsules that own what they have. */
void FreeSchema(PyObject* capsule) {
  struct ArrowSchema* schema = PyCapsule_GetPointer(capsule, "arrow_schema");
  if (schema->release != NULL) schema->release(schema);
  PyMem_Free(schema);
}

void FreeArray(PyObject* capsule) {
  struct ArrowArray* array = PyCapsule_GetPointer(capsule, "arrow_array");
  if (array->release != NULL) array->release(array);
  PyMem_Free(array);
}

PyObject* MakeCapsule(void* memory, const char* name, PyCapsule_Destructor destroy) {
  PyObject* capsule = memory == NULL ? PyErr_NoMemory() : PyCapsule_New(memory, name, destroy);
  if (capsule == NULL) PyMem_Free(memory);
  return capsule;
}

static struct ArrowArrayStream* TakeStream(PyObject* self, PyObject* capsule) {
  struct ArrowArrayStream* stream = PyCapsule_GetPointer(capsule, "arrow_array_stream");
  if (stream == NULL || stream->release != NULL) return stream;
  const ravo_error error = {sizeof(ravo_error), RAVO_ARGUMENT, 0, 0, "the stream is released"};
  return (void*)Raise(PyModule_GetState(self), &error, NULL);
}

static PyObject* FailStream(PyObject* self, struct ArrowArrayStream* stream, int code) {
  ravo_error error = {sizeof(ravo_error), RAVO_STOPPED, code, 0, "the stream failed"};
  const char* words = stream->get_last_error == NULL ? NULL : stream->get_last_error(stream);
  PyObject* text = words == NULL ? NULL : PyUnicode_DecodeUTF8(words, (Py_ssize_t)strlen(words), "replace");
  if (text == NULL) return Raise(PyModule_GetState(self), &error, NULL);
  PyObject* exception =
      PyObject_CallFunction(((ravo_module*)PyModule_GetState(self))->error, "Os", text, "stopped");
  if (exception != NULL) PyErr_SetObject((PyObject*)Py_TYPE(exception), exception);
  Py_DECREF(text);
  Py_XDECREF(exception);
  return NULL;
}

/* stream_schema(stream) */
PyObject* StreamSchema(PyObject* self, PyObject* object) {
  struct ArrowArrayStream* stream = TakeStream(self, object);
  if (stream == NULL) return NULL;
  struct ArrowSchema* schema = PyMem_Calloc(1, sizeof *schema);
  PyObject* capsule = MakeCapsule(schema, "arrow_schema", FreeSchema);
  if (capsule == NULL) return NULL;
  int code = 0;
  Py_BEGIN_ALLOW_THREADS;
  code = stream->get_schema(stream, schema);
  Py_END_ALLOW_THREADS;
  if (code == 0) return capsule;
  schema->release = NULL; /* what a failed call left is nothing to release */
  Py_DECREF(capsule);
  return FailStream(self, stream, code);
}

/* stream_next(stream): None at the end */
PyObject* StreamNext(PyObject* self, PyObject* object) {
  struct ArrowArrayStream* stream = TakeStream(self, object);
  if (stream == NULL) return NULL;
  struct ArrowArray* array = PyMem_Calloc(1, sizeof *array);
  PyObject* capsule = MakeCapsule(array, "arrow_array", FreeArray);
  if (capsule == NULL) return NULL;
  int code = 0;
  Py_BEGIN_ALLOW_THREADS;
  code = stream->get_next(stream, array);
  Py_END_ALLOW_THREADS;
  if (code == 0 && array->release != NULL) return capsule;
  array->release = NULL;
  Py_DECREF(capsule);
  return code == 0 ? Py_NewRef(Py_None) : FailStream(self, stream, code);
}
