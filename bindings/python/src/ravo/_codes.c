/* Codes of payments and invoices: texts of the caller in, one text out. */
#include "_module.h"
#include "_records.inc"

#include <stddef.h>
#include <string.h>

/* A text of a code: its key, and its place in the struct. */
typedef struct code_field {
  const char* key;
  size_t place;
} code_field;

static const code_field spayd_fields[] = {RAVO_SPAYD_FIELDS};
static const code_field sid_fields[] = {RAVO_SID_FIELDS};

typedef ravo_status (*code_writer)(const void* code, char* buffer, size_t size, size_t* length,
                                   ravo_error* error);

static ravo_status WriteSpayd(const void* code, char* buffer, size_t size, size_t* length,
                              ravo_error* error) {
  return ravo_spayd_write(code, buffer, size, length, error);
}

static ravo_status WriteSid(const void* code, char* buffer, size_t size, size_t* length, ravo_error* error) {
  return ravo_sid_write(code, buffer, size, length, error);
}

/* None is left out. A text ends with its first NUL in C, so that it may have none inside. */
static int TakeField(PyObject* object, const char** place) {
  text_in text = {NULL, 0};
  if (object == Py_None) return 1;
  if (!TakeText(object, &text)) return 0;
  *place = text.bytes;
  if (memchr(text.bytes, '\0', text.length) == NULL) return 1;
  PyErr_SetString(PyExc_ValueError, "embedded null character");
  return 0;
}

/* The texts of a tuple, which keeps them alive. */
static int TakeFields(PyObject* tuple, const code_field* fields, size_t count, void* code) {
  if (!PyTuple_Check(tuple) || PyTuple_Size(tuple) != (Py_ssize_t)count) {
    PyErr_Format(PyExc_TypeError, "expected a tuple of %zu texts", count);
    return 0;
  }
  for (size_t i = 0; i < count; ++i)
    if (!TakeField(PyTuple_GetItem(tuple, (Py_ssize_t)i), (const char**)((char*)code + fields[i].place)))
      return 0;
  return 1;
}

/* The value that a message begins with the key of; its length is 0 if there is none. */
static text_in ValueOf(const char* message, const code_field* fields, size_t count, const void* code) {
  for (size_t i = 0; i < count; ++i) {
    const size_t length = strlen(fields[i].key);
    const char* value = *(const char* const*)((const char*)code + fields[i].place);
    if (value != NULL && strncmp(message, fields[i].key, length) == 0 && message[length] == ':')
      return (text_in){value, strlen(value)};
  }
  return (text_in){"", 0};
}

static PyObject* WriteCode(PyObject* self, code_writer write, const code_field* fields, size_t count,
                           const void* code) {
  ravo_error error = RAVO_ERROR_INIT;
  char text[RAVO_PAYMENT_CODE_SIZE];
  size_t length = 0;
  if (write(code, text, sizeof text, &length, &error) == RAVO_OK)
    return PyUnicode_FromStringAndSize(text, (Py_ssize_t)length);
  const text_in value = ValueOf(error.message, fields, count, code);
  return Raise(PyModule_GetState(self), &error, value.length == 0 ? NULL : &value);
}

#define COUNT_OF(fields) (sizeof(fields) / sizeof *(fields))

static int TakeFlag(PyObject* object, int32_t* flag) {
  const int answer = PyObject_IsTrue(object);
  *flag = answer == 1;
  return answer >= 0;
}

/* spayd(texts, checksum) */
static PyObject* Spayd(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_spayd code = RAVO_SPAYD_INIT;
  if (!TakeCount("spayd", count, 2) ||
      !TakeFields(arguments[0], spayd_fields, COUNT_OF(spayd_fields), &code) ||
      !TakeFlag(arguments[1], &code.checksum))
    return NULL;
  return WriteCode(self, WriteSpayd, spayd_fields, COUNT_OF(spayd_fields), &code);
}

/* sid(texts, inside, checksum) */
static PyObject* Sid(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_sid code = RAVO_SID_INIT;
  if (!TakeCount("sid", count, 3) || !TakeFields(arguments[0], sid_fields, COUNT_OF(sid_fields), &code) ||
      !TakeFlag(arguments[1], &code.inside) || !TakeFlag(arguments[2], &code.checksum))
    return NULL;
  return WriteCode(self, WriteSid, sid_fields, COUNT_OF(sid_fields), &code);
}

/* No key and no value is longer than the code. */
static PyObject* ValueAt(ravo_module* module, const text_in* text, size_t index) {
  char key[RAVO_PAYMENT_CODE_SIZE], value[RAVO_PAYMENT_CODE_SIZE];
  size_t key_length = 0, value_length = 0;
  ravo_error error = RAVO_ERROR_INIT;
  if (ravo_payment_code_at(text->bytes, text->length, index, key, sizeof key, &key_length, value,
                           sizeof value, &value_length, &error) != RAVO_OK)
    return Raise(module, &error, text);
  return MakeTuple((PyObject*[]){PyUnicode_FromStringAndSize(key, (Py_ssize_t)key_length),
                                 PyUnicode_FromStringAndSize(value, (Py_ssize_t)value_length)},
                   2);
}

/* payment_code(text): which code it is, and its keys and values */
static PyObject* PaymentCode(PyObject* self, PyObject* object) {
  ravo_module* module = PyModule_GetState(self);
  text_in text = {NULL, 0};
  ravo_payment_code code = 0;
  size_t count = 0;
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeText(object, &text)) return NULL;
  if (ravo_payment_code_read(text.bytes, text.length, &code, &count, &error) != RAVO_OK)
    return Raise(module, &error, &text);
  PyObject* values = PyTuple_New((Py_ssize_t)count);
  for (size_t i = 0; values != NULL && i < count; ++i) {
    PyObject* value = ValueAt(module, &text, i);
    if (value == NULL || PyTuple_SetItem(values, (Py_ssize_t)i, value) != 0) Py_CLEAR(values);
  }
  return values == NULL ? NULL
                        : MakeTuple((PyObject*[]){MakeEnum(module, RAVO_ENUM_PaymentCode, code), values}, 2);
}

#define FAST(function) (PyCFunction)(void (*)(void))(function), METH_FASTCALL

static PyMethodDef code_functions[] = {
    {"spayd", FAST(Spayd), "spayd(texts, checksum, /)\n--\n\nReturns the code of a payment."},
    {"sid", FAST(Sid), "sid(texts, inside, checksum, /)\n--\n\nReturns the code of an invoice."},
    {"payment_code", PaymentCode, METH_O, "payment_code(text, /)\n--\n\nReturns the values of a code."},
    {NULL, NULL, 0, NULL}};

int AddCodes(PyObject* module) { return PyModule_AddFunctions(module, code_functions); }
