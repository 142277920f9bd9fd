/* The way between Python's objects and ravo.h. */
#include "_module.h"

#include <stdlib.h>

/* The Julian Day Number of the day before 1 January of the year 1, which is Python's day 0. */
enum { DAY_ZERO = 1721425 };

/* `place` says what the object is for, and ends with ": " or is empty. */
static void ExpectedTypeFor(const char* place, const char* wanted, PyObject* object) {
  PyObject* name = PyType_GetName(Py_TYPE(object));
  if (name != NULL) PyErr_Format(PyExc_TypeError, "%sexpected %s, not %U", place, wanted, name);
  Py_XDECREF(name);
}

void ExpectedType(const char* wanted, PyObject* object) { ExpectedTypeFor("", wanted, object); }

int TakeCount(const char* name, Py_ssize_t count, Py_ssize_t wanted) {
  if (count == wanted) return 1;
  PyErr_Format(PyExc_TypeError, "%s() takes %zd arguments, not %zd", name, wanted, count);
  return 0;
}

int TakeText(PyObject* object, text_in* text) {
  Py_ssize_t length = 0;
  if (!PyUnicode_Check(object)) {
    ExpectedType("str", object);
    return 0;
  }
  text->bytes = PyUnicode_AsUTF8AndSize(object, &length);
  text->length = (size_t)length;
  return text->bytes != NULL;
}

int TakeBytes(PyObject* object, bytes_in* bytes) {
  if (PyObject_GetBuffer(object, &bytes->view, PyBUF_SIMPLE) == 0) return 1;
  bytes->view.obj = NULL;
  return 0;
}

void ReleaseBytes(bytes_in* bytes) {
  if (bytes->view.obj != NULL) PyBuffer_Release(&bytes->view);
}

int TakeDay(ravo_module* module, PyObject* object, ravo_day* day) {
  PyObject* type = DateType(module);
  const int is_date = type == NULL ? -1 : PyObject_IsInstance(object, type);
  if (is_date == 0) ExpectedType("datetime.date", object);
  if (is_date != 1) return 0;
  PyObject* ordinal = PyObject_CallMethod(object, "toordinal", NULL);
  const long number = ordinal == NULL ? -1 : PyLong_AsLong(ordinal);
  Py_XDECREF(ordinal);
  *day = (ravo_day)number + DAY_ZERO;
  return !PyErr_Occurred();
}

PyObject* MakeDay(ravo_module* module, ravo_day day) {
  PyObject* type = DateType(module);
  return type == NULL ? NULL : PyObject_CallMethod(type, "fromordinal", "i", (int)day - DAY_ZERO);
}

/* Raises an exception about one of several amounts. */
static int RaiseAmount(ravo_module* module, const char* name, ravo_error* error, const text_in* text) {
  const ravo_error plain = *error;
  PyOS_snprintf(error->message, sizeof error->message, "%s: %s", name, plain.message);
  return Raise(module, error, text) != NULL;
}

static int TakeWholeMoney(ravo_module* module, PyObject* object, const char* name, ravo_money* amount) {
  int overflow = 0;
  const long long number = PyLong_AsLongLongAndOverflow(object, &overflow);
  if (overflow == 0 && !PyErr_Occurred() && number <= INT64_MAX / 10000 && number >= INT64_MIN / 10000) {
    *amount = number * 10000;
    return 1;
  }
  if (PyErr_Occurred()) return 0;
  ravo_error error = {sizeof(ravo_error), RAVO_RANGE, 0, 0, "the amount does not fit 64 bits"};
  return RaiseAmount(module, name, &error, NULL);
}

static int TakeMoneyText(ravo_module* module, PyObject* object, const char* name, ravo_money* amount) {
  text_in text = {NULL, 0};
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeText(object, &text)) return 0;
  return ravo_money_read(text.bytes, text.length, '.', amount, &error) == RAVO_OK ||
         RaiseAmount(module, name, &error, &text);
}

/* An amount of more digits than 64 bits have would be a long text: it is refused before it becomes one. */
static int TakeDecimal(ravo_module* module, PyObject* object, const char* name, ravo_money* amount) {
  PyObject* adjusted = PyObject_CallMethod(object, "adjusted", NULL);
  const long exponent = adjusted == NULL ? 0 : PyLong_AsLong(adjusted);
  Py_XDECREF(adjusted);
  if (PyErr_Occurred()) return 0;
  PyObject* format = exponent > 30 || exponent < -4000 ? NULL : PyUnicode_FromString("f");
  PyObject* digits = format == NULL ? PyObject_Str(object) : PyObject_Format(object, format);
  const int taken = digits != NULL && TakeMoneyText(module, digits, name, amount);
  Py_XDECREF(format);
  Py_XDECREF(digits);
  return taken;
}

int TakeMoney(ravo_module* module, PyObject* object, const char* name, ravo_money* amount) {
  if (PyLong_Check(object) && !PyBool_Check(object)) return TakeWholeMoney(module, object, name, amount);
  if (PyUnicode_Check(object)) return TakeMoneyText(module, object, name, amount);
  PyObject* type = DecimalType(module);
  const int is_decimal = type == NULL ? -1 : PyObject_IsInstance(object, type);
  if (is_decimal == 1) return TakeDecimal(module, object, name, amount);
  if (is_decimal == 0) ExpectedType("Decimal, str or int", object);
  return 0;
}

PyObject* MakeMoney(ravo_module* module, ravo_money amount) {
  char digits[RAVO_MONEY_SIZE];
  ravo_error error = RAVO_ERROR_INIT;
  if (ravo_money_format(amount, '.', 2, digits, sizeof digits, NULL, &error) != RAVO_OK)
    return Raise(module, &error, NULL);
  PyObject* type = DecimalType(module);
  return type == NULL ? NULL : PyObject_CallFunction(type, "s", digits);
}

int TakeKind(PyObject* object, ravo_kind* kind) {
  text_in text = {NULL, 0};
  if (!TakeText(object, &text)) return 0;
  if (ravo_kind_of(text.bytes, text.length, kind, NULL) == RAVO_OK) return 1;
  PyErr_Format(PyExc_ValueError, "there is no kind %R: ravo.check.KINDS has them all", object);
  return 0;
}

int TakeDouble(PyObject* object, double* number) {
  *number = PyFloat_AsDouble(object);
  return !PyErr_Occurred();
}

static void ExpectedNumber(const char* name, PyObject* object) {
  char place[64];
  PyOS_snprintf(place, sizeof place, "%s: ", name);
  ExpectedTypeFor(place, "int", object);
}

int TakeNumber(PyObject* object, const char* name, long long low, long long high, long long* number) {
  int overflow = 0;
  *number = PyLong_AsLongLongAndOverflow(object, &overflow);
  if (PyErr_Occurred()) {
    if (PyErr_ExceptionMatches(PyExc_TypeError)) ExpectedNumber(name, object);
    return 0;
  }
  if (overflow == 0 && *number >= low && *number <= high) return 1;
  PyErr_Format(PyExc_ValueError, "%s is out of range: %R", name, object);
  return 0;
}

PyObject* MakeText(const char* text) {
  return text == NULL ? Py_NewRef(Py_None) : PyUnicode_FromString(text);
}

PyObject* MakeEnum(ravo_module* module, int which, int32_t number) {
  PyObject* type = EnumType(module, which);
  return type == NULL ? NULL : PyObject_CallFunction(type, "i", (int)number);
}

PyObject* MakeTuple(PyObject** items, Py_ssize_t count) {
  PyObject* tuple = PyTuple_New(count);
  for (Py_ssize_t i = 0; i < count; ++i) {
    if (tuple != NULL && items[i] != NULL) {
      PyTuple_SetItem(tuple, i, items[i]);
      continue;
    }
    Py_CLEAR(tuple);
    Py_XDECREF(items[i]);
  }
  return tuple;
}

PyObject* MakeRecord(ravo_module* module, int which, PyObject** fields, Py_ssize_t count) {
  PyObject* tuple = MakeTuple(fields, count);
  PyObject* type = tuple == NULL ? NULL : RecordType(module, which);
  PyObject* record = type == NULL ? NULL : PyObject_Call(type, tuple, NULL);
  Py_XDECREF(tuple);
  return record;
}

void OpenText(text_out* text) {
  text->bytes = text->place;
  text->size = sizeof text->place;
  text->length = 0;
}

int GrowText(text_out* text) {
  if (text->length < text->size) return 0;
  FreeText(text);
  text->size = text->length + 1;
  text->bytes = PyMem_Malloc(text->size);
  if (text->bytes != NULL) return 1;
  OpenText(text);
  PyErr_NoMemory();
  return 0;
}

PyObject* CloseText(const text_out* text) {
  return PyUnicode_DecodeUTF8(text->bytes, (Py_ssize_t)text->length, "strict");
}

PyObject* CloseBytes(const text_out* text) {
  return PyBytes_FromStringAndSize(text->bytes, (Py_ssize_t)text->length);
}

void FreeText(text_out* text) {
  if (text->bytes != text->place) PyMem_Free(text->bytes);
}

Py_ssize_t CharactersIn(const char* bytes, size_t size) {
  Py_ssize_t count = 0;
  for (size_t i = 0; i < size; ++i) count += ((unsigned char)bytes[i] & 0xC0) != 0x80;
  return count;
}

static const char* CodeName(const ravo_error* error) {
  static const char* const names[] = {"",        "wrong",  "buffer",  "argument", "utf8",      "range",
                                      "unknown", "memory", "stopped", "internal", "malformed", "lacking"};
  const char* reason = error->status == RAVO_WRONG && error->code != 0 ? ravo_reason_name(error->code) : NULL;
  const size_t known = sizeof names / sizeof names[0];
  if (reason != NULL) return reason;
  return error->status >= 0 && (size_t)error->status < known ? names[error->status] : "internal";
}

PyObject* RaiseAt(ravo_module* module, const ravo_error* error, PyObject* position) {
  if (error->status == RAVO_MEMORY) PyErr_NoMemory();
  PyObject* exception =
      PyErr_Occurred() || position == NULL
          ? NULL
          : PyObject_CallFunction(module->error, "ssO", error->message, CodeName(error), position);
  if (exception != NULL) PyErr_SetObject(module->error, exception);
  Py_XDECREF(exception);
  Py_XDECREF(position);
  return NULL;
}

PyObject* Raise(ravo_module* module, const ravo_error* error, const text_in* text) {
  if (text == NULL) return RaiseAt(module, error, Py_NewRef(Py_None));
  const size_t size = error->position < text->length ? error->position : text->length;
  return RaiseAt(module, error, PyLong_FromSsize_t(CharactersIn(text->bytes, size)));
}
