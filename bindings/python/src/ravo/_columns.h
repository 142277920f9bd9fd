/* What the sources of columns share. Rows that ravo.h cannot read in place are described anew, block by
 * block; texts are copied only where they are not UTF-8. */
#ifndef RAVO_PYTHON_COLUMNS_H
#define RAVO_PYTHON_COLUMNS_H

#include "_module.h"

#include <string.h>

enum { BLOCK_ROWS = 1024, VIEW_SIZE = 16, LONGEST_INSIDE = 12 };

/* A value at any address. */
#define LOAD(type, place, index) \
  (*(type*)memcpy(&(type){0}, (const char*)(place) + (index) * sizeof(type), sizeof(type)))

/* Rows of a column, and where their codes go. */
typedef struct rows_in {
  ravo_kind kind;
  size_t first;
  size_t count;
  uint16_t* codes;
  Py_buffer room;
} rows_in;

typedef struct totals {
  size_t wrong;
  size_t nulls;
} totals;

/* An array of Arrow, or a field of a batch. The capsules keep it alive. */
typedef struct arrow_in {
  ravo_column column;
  ravo_column dictionary;
} arrow_in;

/* (schema, array, field): capsules, and None or the name of the field. */
int TakeArrow(PyObject* self, PyObject* const* arguments, arrow_in* arrow);

/* Capsules of Arrow, which take memory of PyMem and release what is in it. */
PyObject* MakeCapsule(void* memory, const char* name, PyCapsule_Destructor destroy);
void FreeSchema(PyObject* capsule);
void FreeArray(PyObject* capsule);

/* (first, count, codes): rows of a column of `length` rows. 0 with an exception. */
int TakeRows(PyObject* const* arguments, PyObject* kind, size_t length, rows_in* rows);

ravo_status CheckRows(ravo_kind kind, const ravo_column* column, uint32_t flags, uint16_t* codes, totals* sum,
                      ravo_error* error);

/* Ends a call: the counts, or the exception of an error whose position is a row. */
PyObject* EndRows(PyObject* self, rows_in* rows, const totals* sum, ravo_status status,
                  const ravo_error* error);

/* Objects of a list, a tuple, or memory full of pointers to objects. */
typedef struct objects_in {
  PyObject* sequence;
  PyObject* missing; /* a tuple of what stands for no value, beside None and NaN */
  bytes_in pointers;
  size_t length;
} objects_in;

int TakeObjects(PyObject* sequence, PyObject* missing, objects_in* objects);
PyObject* ObjectAt(const objects_in* objects, size_t row); /* borrowed; or null with an exception */
int IsMissing(const objects_in* objects, PyObject* object);
int RefuseObject(PyObject* object, size_t row);

/* 1 if the object is a text; -1 with an exception. A text that is not UTF-8 is one byte that no UTF-8 has. */
int TextOf(PyObject* object, const char** bytes, Py_ssize_t* length);

/* The functions of the module. */
PyObject* ArrowRows(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* ArrayRows(PyObject* self, PyObject* object);
PyObject* CheckArrow(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* ArrowBytes(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* StreamNext(PyObject* self, PyObject* object);
PyObject* StreamSchema(PyObject* self, PyObject* object);
PyObject* CheckFixed(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* CheckWide(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* CheckObjects(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* ColumnValues(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* ValidityOf(PyObject* self, PyObject* object);
PyObject* PackTexts(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* PackAmounts(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* PackDays(PyObject* self, PyObject* const* arguments, Py_ssize_t count);
PyObject* ArrowOf(PyObject* self, PyObject* const* arguments, Py_ssize_t count);

#endif
