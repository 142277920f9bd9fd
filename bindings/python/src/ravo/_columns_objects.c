/* Columns of objects: lists, tuples, arrays of objects. */
#include "_columns.h"

PyObject* ObjectAt(const objects_in* objects, size_t row) {
  if (PyList_Check(objects->sequence)) return PyList_GetItem(objects->sequence, (Py_ssize_t)row);
  if (PyTuple_Check(objects->sequence)) return PyTuple_GetItem(objects->sequence, (Py_ssize_t)row);
  PyObject* object = LOAD(PyObject*, objects->pointers.view.buf, row);
  return object == NULL ? Py_None : object;
}

int TakeObjects(PyObject* sequence, PyObject* missing, objects_in* objects) {
  objects->sequence = sequence;
  objects->missing = missing;
  objects->pointers.view.obj = NULL;
  if (!PyTuple_Check(missing)) {
    ExpectedType("tuple", missing);
    return 0;
  }
  if (PyList_Check(sequence) || PyTuple_Check(sequence)) {
    objects->length = (size_t)PySequence_Size(sequence);
    return 1;
  }
  if (!TakeBytes(sequence, &objects->pointers)) return 0;
  objects->length = (size_t)objects->pointers.view.len / sizeof(PyObject*);
  return 1;
}

/* A block of rows: views of the texts that Python has, which are held until the block is done. */
typedef struct object_block {
  size_t length;
  PyObject* held[BLOCK_ROWS];
  const void* buffers[BLOCK_ROWS];
  int64_t sizes[BLOCK_ROWS];
  char views[BLOCK_ROWS * VIEW_SIZE];
  uint8_t validity[BLOCK_ROWS / 8];
} object_block;

int IsMissing(const objects_in* objects, PyObject* object) {
  if (object == Py_None) return 1;
  if (PyFloat_Check(object)) {
    const double number = PyFloat_AsDouble(object);
    return number != number;
  }
  for (Py_ssize_t i = 0; i < PyTuple_Size(objects->missing); ++i)
    if (object == PyTuple_GetItem(objects->missing, i)) return 1;
  return 0;
}

int TextOf(PyObject* object, const char** bytes, Py_ssize_t* length) {
  if (Py_TYPE(object) == &PyUnicode_Type || PyUnicode_Check(object)) {
    *bytes = PyUnicode_AsUTF8AndSize(object, length);
    if (*bytes != NULL) return 1;
    if (!PyErr_ExceptionMatches(PyExc_UnicodeEncodeError)) return -1;
    PyErr_Clear();
    *bytes = "\xFF";
    *length = 1;
    return 1;
  }
  if (!PyBytes_Check(object)) return 0;
  char* place = NULL;
  const int failed = PyBytes_AsStringAndSize(object, &place, length);
  *bytes = place;
  return failed == 0 ? 1 : -1;
}

int RefuseObject(PyObject* object, size_t row) {
  PyObject* name = PyType_GetName(Py_TYPE(object));
  if (name != NULL)
    PyErr_Format(PyExc_TypeError, "row %zu: expected str, bytes or no value, not %U", row, name);
  Py_XDECREF(name);
  return 0;
}

static void PutView(object_block* block, size_t row, const char* bytes, int32_t length) {
  char* view = block->views + row * VIEW_SIZE;
  memcpy(view, &length, sizeof length);
  if (length <= LONGEST_INSIDE) {
    memcpy(view + 4, bytes, (size_t)length);
    return;
  }
  const int32_t places[] = {(int32_t)row, 0};
  memcpy(view + 4, bytes, 4);
  memcpy(view + 8, places, sizeof places);
  block->buffers[row] = bytes;
  block->sizes[row] = length;
}

/* Asks for the memory of an object before it is needed: objects of a column are often far from each other. */
static void FetchSoon(const PyObject* object) {
#ifdef __GNUC__
  __builtin_prefetch((const char*)object, 1);
  __builtin_prefetch((const char*)object + 56);
#endif
}

/* Holds the objects of a block; 0 with an exception. */
static int HoldObjects(const objects_in* objects, size_t first, size_t count, object_block* block) {
  for (size_t i = 0; i < count; ++i) {
    block->held[i] = ObjectAt(objects, first + i);
    if (block->held[i] == NULL) return 0;
    FetchSoon(block->held[i]);
  }
  for (size_t i = 0; i < count; ++i) Py_INCREF(block->held[i]);
  block->length = count;
  return 1;
}

/* Describes an object of a block; 0 with an exception. */
static int PutObject(const objects_in* objects, size_t row, size_t at, object_block* block) {
  const char* bytes = NULL;
  Py_ssize_t length = 0;
  PyObject* object = block->held[at];
  const int found = TextOf(object, &bytes, &length);
  if (found == 0 && IsMissing(objects, object)) {
    block->validity[at / 8] &= (uint8_t) ~(1U << at % 8);
    return 1;
  }
  if (found == 0) return RefuseObject(object, row);
  if (found == 1 && length <= INT32_MAX) {
    PutView(block, at, bytes, (int32_t)length);
    return 1;
  }
  if (found == 1) PyErr_Format(PyExc_OverflowError, "row %zu: the text is longer than 2 GB", row);
  return 0;
}

static void Release(object_block* block) {
  for (size_t i = 0; i < block->length; ++i) Py_DECREF(block->held[i]);
  block->length = 0;
}

static ravo_status CheckBlock(const rows_in* rows, size_t row, const object_block* block, totals* sum,
                              ravo_error* error) {
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_VIEWS;
  column.length = block->length;
  column.validity = block->validity;
  column.values = block->views;
  column.buffers = block->buffers;
  column.buffer_sizes = block->sizes;
  column.buffer_count = BLOCK_ROWS;
  return CheckRows(rows->kind, &column, RAVO_TRUSTED, rows->codes + row, sum, error);
}

/* 0 with an exception, or with an error. */
static int CheckObjectRows(const rows_in* rows, const objects_in* objects, object_block* block, totals* sum,
                           ravo_error* error) {
  int done = 1;
  for (size_t row = 0; done && row < rows->count; row += BLOCK_ROWS) {
    const size_t left = rows->count - row;
    const size_t size = left < BLOCK_ROWS ? left : BLOCK_ROWS;
    memset(block->validity, 0xFF, sizeof block->validity);
    done = HoldObjects(objects, rows->first + row, size, block);
    for (size_t i = 0; done && i < size; ++i) done = PutObject(objects, rows->first + row + i, i, block);
    done = done && CheckBlock(rows, row, block, sum, error) == RAVO_OK;
    Release(block);
  }
  return done;
}

/* check_objects(kind, objects, missing, first, count, codes) */
PyObject* CheckObjects(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  objects_in objects = {NULL, NULL, {{0}}, 0};
  rows_in rows;
  totals sum = {0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeCount("check_objects", count, 6) || !TakeObjects(arguments[1], arguments[2], &objects))
    return NULL;
  PyObject* answer = NULL;
  if (TakeRows(arguments + 3, arguments[0], objects.length, &rows)) {
    object_block* block = PyMem_Calloc(1, sizeof *block);
    error.status = RAVO_MEMORY;
    const int done = block != NULL && CheckObjectRows(&rows, &objects, block, &sum, &error);
    PyMem_Free(block);
    if (PyErr_Occurred())
      PyBuffer_Release(&rows.room);
    else
      answer = EndRows(self, &rows, &sum, done ? RAVO_OK : error.status, &error);
  }
  ReleaseBytes(&objects.pointers);
  return answer;
}
