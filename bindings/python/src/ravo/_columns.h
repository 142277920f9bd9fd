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

/* (first, count, codes): rows of a column of `length` rows. 0 with an exception. */
int TakeRows(PyObject* const* arguments, PyObject* kind, size_t length, rows_in* rows);

ravo_status CheckRows(ravo_kind kind, const ravo_column* column, uint32_t flags, uint16_t* codes, totals* sum,
                      ravo_error* error);

/* Ends a call: the counts, or the exception of an error whose position is a row. */
PyObject* EndRows(PyObject* self, rows_in* rows, const totals* sum, ravo_status status,
                  const ravo_error* error);

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

#endif
