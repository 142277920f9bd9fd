/* Objects of Python as columns in memory, and columns in memory as arrays of Arrow. */
#include "_columns.h"

/* What objects become: arrays of bytes, and a bit for each row. */
typedef struct packed {
  objects_in objects;
  PyObject *values, *data, *validity;
  size_t used;
} packed;

static char* BytesOf(PyObject* array) { return PyByteArray_AsString(array); }

static int OpenPacked(const char* name, PyObject* const* arguments, Py_ssize_t count, size_t width,
                      size_t more, packed* to) {
  memset(to, 0, sizeof *to);
  if (!TakeCount(name, count, 2) || !TakeObjects(arguments[0], arguments[1], &to->objects)) return 0;
  to->values = PyByteArray_FromStringAndSize(NULL, (Py_ssize_t)((to->objects.length + more) * width));
  to->data = PyByteArray_FromStringAndSize(NULL, (Py_ssize_t)(to->objects.length * 8 * more));
  to->validity = PyByteArray_FromStringAndSize(NULL, (Py_ssize_t)((to->objects.length + 7) / 8));
  if (to->values == NULL || to->data == NULL || to->validity == NULL) return 0;
  memset(BytesOf(to->values), 0, (size_t)PyByteArray_Size(to->values));
  memset(BytesOf(to->validity), 0xFF, (size_t)PyByteArray_Size(to->validity));
  return 1;
}

static PyObject* ClosePacked(packed* to, int done) {
  ReleaseBytes(&to->objects.pointers);
  if (done) return MakeTuple((PyObject*[]){to->values, to->data, to->validity}, 3);
  Py_XDECREF(to->values);
  Py_XDECREF(to->data);
  Py_XDECREF(to->validity);
  return NULL;
}

static void PutMissing(packed* to, size_t row) { BytesOf(to->validity)[row / 8] &= (char)~(1U << row % 8); }

static int PutBytes(packed* to, const char* bytes, size_t length) {
  if (to->used + length > (size_t)PyByteArray_Size(to->data) &&
      PyByteArray_Resize(to->data, (Py_ssize_t)((to->used + length) * 2)) != 0)
    return 0;
  memcpy(BytesOf(to->data) + to->used, bytes, length);
  to->used += length;
  return 1;
}

static int PutText(packed* to, size_t row) {
  const char* bytes = NULL;
  Py_ssize_t length = 0;
  PyObject* object = ObjectAt(&to->objects, row);
  const int found = object == NULL ? -1 : TextOf(object, &bytes, &length);
  if (found < 0 || (found == 1 && !PutBytes(to, bytes, (size_t)length))) return 0;
  if (found == 0 && !IsMissing(&to->objects, object)) return RefuseObject(object, row);
  if (found == 0) PutMissing(to, row);
  memcpy(BytesOf(to->values) + (row + 1) * sizeof(int64_t), &(int64_t){(int64_t)to->used}, sizeof(int64_t));
  return 1;
}

/* pack_texts(objects, missing): offsets of 64 bits, bytes, validity */
PyObject* PackTexts(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  packed to;
  (void)self;
  int done = OpenPacked("pack_texts", arguments, count, sizeof(int64_t), 1, &to);
  for (size_t row = 0; done && row < to.objects.length; ++row) done = PutText(&to, row);
  return ClosePacked(&to, done);
}

/* The position of an error in one value becomes its row. */
static int FailAt(const ravo_module* module, size_t row) {
  PyObject *type = NULL, *value = NULL, *traceback = NULL;
  if (!PyErr_ExceptionMatches(module->error)) return 0;
  PyErr_Fetch(&type, &value, &traceback);
  PyErr_NormalizeException(&type, &value, &traceback);
  PyObject* position = PyLong_FromSize_t(row);
  if (position != NULL) PyObject_SetAttrString(value, "position", position);
  Py_XDECREF(position);
  PyErr_Restore(type, value, traceback);
  return 0;
}

typedef int (*taking)(ravo_module* module, PyObject* object, void* place);

static int TakeAmountAt(ravo_module* module, PyObject* object, void* place) {
  return TakeMoney(module, object, "amount", place);
}

static int TakeDayAt(ravo_module* module, PyObject* object, void* place) {
  ravo_day day = 0;
  const int taken = TakeDay(module, object, &day);
  memcpy(place, &(int32_t){day - RAVO_DAY_1970}, sizeof(int32_t));
  return taken;
}

/* An object may run code of its own: it is held, and its list may have changed. */
static int PutNumber(ravo_module* module, packed* to, size_t row, size_t width, taking take) {
  PyObject* object = ObjectAt(&to->objects, row);
  if (object == NULL) return 0;
  if (IsMissing(&to->objects, object)) {
    PutMissing(to, row);
    return 1;
  }
  Py_INCREF(object);
  const int taken = take(module, object, BytesOf(to->values) + row * width);
  Py_DECREF(object);
  return taken || FailAt(module, row);
}

static PyObject* PackNumbers(PyObject* self, const char* name, PyObject* const* arguments, Py_ssize_t count,
                             size_t width, taking take) {
  packed to;
  int done = OpenPacked(name, arguments, count, width, 0, &to);
  for (size_t row = 0; done && row < to.objects.length; ++row)
    done = PutNumber(PyModule_GetState(self), &to, row, width, take);
  return ClosePacked(&to, done);
}

/* pack_amounts(objects, missing): ten-thousandths of 64 bits, nothing, validity */
PyObject* PackAmounts(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  return PackNumbers(self, "pack_amounts", arguments, count, sizeof(ravo_money), TakeAmountAt);
}

/* pack_days(objects, missing): days of 32 bits since 1970, nothing, validity */
PyObject* PackDays(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  return PackNumbers(self, "pack_days", arguments, count, sizeof(int32_t), TakeDayAt);
}

/* What an array of Arrow that leaves the module holds, until whoever took it releases it. */
typedef struct kept_array {
  bytes_in parts[3];
  const void* buffers[3];
} kept_array;

static void ReleaseKept(kept_array* kept) {
  for (size_t i = 0; i < 3; ++i) ReleaseBytes(&kept->parts[i]);
  PyMem_Free(kept);
}

/* Whoever releases an array may be a thread that Python does not know. */
static void ReleaseArray(struct ArrowArray* array) {
  const PyGILState_STATE state = PyGILState_Ensure();
  ReleaseKept(array->private_data);
  PyGILState_Release(state);
  array->release = NULL;
}

static void ReleaseSchema(struct ArrowSchema* schema) { schema->release = NULL; }

static const char* FormatOf(PyObject* name) {
  static const char* const formats[] = {"U", "Z", "l", "tdD", "i", "I"};
  text_in text;
  if (!TakeText(name, &text)) return NULL;
  for (size_t i = 0; i < sizeof formats / sizeof *formats; ++i)
    if (strcmp(formats[i], text.bytes) == 0) return formats[i];
  PyErr_Format(PyExc_ValueError, "no column has the format %R", name);
  return NULL;
}

static PyObject* SchemaOf(const char* format) {
  struct ArrowSchema* schema = PyMem_Calloc(1, sizeof *schema);
  if (schema == NULL) return PyErr_NoMemory();
  schema->format = format;
  schema->name = "";
  schema->flags = ARROW_FLAG_NULLABLE;
  schema->release = ReleaseSchema;
  return MakeCapsule(schema, "arrow_schema", FreeSchema);
}

/* Takes the kept. */
static PyObject* ArrayOf(kept_array* kept, long long rows, long long nulls, Py_ssize_t buffers) {
  struct ArrowArray* array = PyMem_Calloc(1, sizeof *array);
  if (array == NULL) {
    ReleaseKept(kept);
    return PyErr_NoMemory();
  }
  array->length = rows;
  array->null_count = nulls;
  array->n_buffers = buffers;
  array->buffers = kept->buffers;
  array->release = ReleaseArray;
  array->private_data = kept;
  PyObject* capsule = MakeCapsule(array, "arrow_array", FreeArray);
  if (capsule == NULL) ReleaseKept(kept);
  return capsule;
}

/* arrow_of(format, rows, nulls, (validity, values) or (validity, offsets, data)) */
PyObject* ArrowOf(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  long long rows = 0, nulls = 0;
  (void)self;
  const char* format = TakeCount("arrow_of", count, 4) ? FormatOf(arguments[0]) : NULL;
  if (format == NULL || !TakeNumber(arguments[1], "rows", 0, PTRDIFF_MAX, &rows) ||
      !TakeNumber(arguments[2], "nulls", 0, PTRDIFF_MAX, &nulls))
    return NULL;
  const Py_ssize_t buffers = PyTuple_Size(arguments[3]);
  if (buffers < 2 || buffers > 3) return PyErr_Format(PyExc_TypeError, "expected two or three buffers");
  kept_array* kept = PyMem_Calloc(1, sizeof *kept);
  if (kept == NULL) return PyErr_NoMemory();
  int taken = 1;
  for (Py_ssize_t i = 0; taken && i < buffers; ++i) {
    taken = TakeBytes(PyTuple_GetItem(arguments[3], i), &kept->parts[i]);
    kept->buffers[i] = kept->parts[i].view.buf;
  }
  if (taken) return MakeTuple((PyObject*[]){SchemaOf(format), ArrayOf(kept, rows, nulls, buffers)}, 2);
  ReleaseKept(kept);
  return NULL;
}
