/* What the sources of the extension module share: its state, and the way between Python's objects and ravo.h.
 */
#ifndef RAVO_PYTHON_MODULE_H
#define RAVO_PYTHON_MODULE_H

#ifndef Py_LIMITED_API
#define Py_LIMITED_API 0x030B0000
#endif
#define PY_SSIZE_T_CLEAN
#include "_names.inc"
#include "ravo.h"

#include <Python.h>

/* A type of Python that is imported when it is first needed; null until then. */
typedef _Atomic(PyObject*) late_type;

/* All that the module keeps: nothing else in it changes after it was loaded. */
typedef struct ravo_module {
  PyObject* error;                      /* ravo.Error */
  PyObject* check;                      /* the type of results of checks */
  PyObject* converter;                  /* the type of conversions in pieces */
  late_type date;                       /* datetime.date */
  late_type decimal;                    /* decimal.Decimal */
  late_type records[RAVO_RECORD_COUNT]; /* of ravo.records */
  late_type enums[RAVO_ENUM_COUNT];     /* of ravo.records */
} ravo_module;

/* Types, borrowed; null with an exception if they cannot be imported. */
PyObject* DateType(ravo_module* module);
PyObject* DecimalType(ravo_module* module);
PyObject* RecordType(ravo_module* module, int which);
PyObject* EnumType(ravo_module* module, int which);
int VisitLate(ravo_module* module, visitproc visit, void* arg);
void ClearLate(ravo_module* module);

/* A text of the caller: UTF-8 that lives as long as the str. */
typedef struct text_in {
  const char* bytes;
  size_t length;
} text_in;

/* Bytes of the caller, until ReleaseBytes. */
typedef struct bytes_in {
  Py_buffer view;
} bytes_in;

/* Room for a text as result; it grows from a place of its own to memory. */
typedef struct text_out {
  char* bytes;
  size_t size;
  size_t length;
  char place[256];
} text_out;

/* Arguments. Each returns 1, or 0 with an exception. */
int TakeCount(const char* name, Py_ssize_t count, Py_ssize_t wanted);
int TakeText(PyObject* object, text_in* text);
int TakeBytes(PyObject* object, bytes_in* bytes);
int TakeDay(ravo_module* module, PyObject* object, ravo_day* day);
int TakeMoney(ravo_module* module, PyObject* object, const char* name, ravo_money* amount);
int TakeKind(PyObject* object, ravo_kind* kind);
int TakeDouble(PyObject* object, double* number);
int TakeNumber(PyObject* object, const char* name, long long low, long long high, long long* number);
void ReleaseBytes(bytes_in* bytes);

/* Results. Each returns null with an exception on failure. */
PyObject* MakeText(const char* text); /* None for null */
PyObject* MakeDay(ravo_module* module, ravo_day day);
PyObject* MakeMoney(ravo_module* module, ravo_money amount);
PyObject* MakeEnum(ravo_module* module, int which, int32_t number);
PyObject* MakeTuple(PyObject** items, Py_ssize_t count); /* takes the items */
PyObject* MakeRecord(ravo_module* module, int which, PyObject** fields,
                     Py_ssize_t count); /* takes the fields */

/* Text as result: call the function again while it says RAVO_BUFFER and GrowText returns 1. */
void OpenText(text_out* text);
int GrowText(text_out* text); /* 0 if the text fits, or with MemoryError */
PyObject* CloseText(const text_out* text);
PyObject* CloseBytes(const text_out* text);
void FreeText(text_out* text);

/* A large text in an encoding of single bytes; null without an exception if it is none, or is malformed. */
PyObject* DecodeSingleBytes(ravo_encoding from, const void* bytes, size_t length);

/* Failures. Each sets the exception of an error of ravo.h and returns null; `text` says in which one the
 * place is. */
PyObject* Raise(ravo_module* module, const ravo_error* error, const text_in* text);
PyObject* RaiseAt(ravo_module* module, const ravo_error* error, PyObject* position); /* takes the position */
void ExpectedType(const char* wanted, PyObject* object);

/* How many characters the first `size` bytes of UTF-8 have. */
Py_ssize_t CharactersIn(const char* bytes, size_t size);

/* The parts of the module, each in a source of its own. Each returns 0, or -1 with an exception. */
int AddChecks(PyObject* module);
int AddCalls(PyObject* module);
int AddEncodings(PyObject* module);
int AddColumns(PyObject* module);
int AddCodes(PyObject* module);
int AddInvoices(PyObject* module);
int AddDocuments(PyObject* module);

#endif
