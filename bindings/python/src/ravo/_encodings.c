/* Conversion of encodings, whole and in pieces. */
#include "_module.h"

#include <stdlib.h>

/* What conversion writes: memory of its own, which is allowed to be larger than what it becomes. */
typedef struct converted {
  char* bytes;
  size_t size;
  size_t length;
} converted;

/* Converts without the interpreter's lock. `guess` is enough room for most texts. */
static ravo_status Convert(ravo_encoding from, const void* bytes, size_t length, ravo_encoding to,
                           ravo_convert_policy policy, size_t guess, converted* result, ravo_error* error) {
  ravo_status status = RAVO_BUFFER;
  result->length = guess;
  while (status == RAVO_BUFFER) {
    free(result->bytes);
    result->size = result->length + 1;
    result->bytes = malloc(result->size);
    if (result->bytes == NULL) return error->status = RAVO_MEMORY;
    status = ravo_convert(from, bytes, length, to, policy, result->bytes, result->size, &result->length, NULL,
                          NULL, error);
  }
  return status;
}

typedef struct encoding_pair {
  long long from, to, policy;
} encoding_pair;

static int TakeEncoding(PyObject* object, const char* name, long long* number) {
  return TakeNumber(object, name, INT32_MIN, INT32_MAX, number);
}

/* Converts without the interpreter's lock. */
static ravo_status ConvertUnlocked(const encoding_pair* pair, const char* bytes, size_t length, size_t room,
                                   converted* result, ravo_error* error) {
  ravo_status status = RAVO_OK;
  Py_BEGIN_ALLOW_THREADS;
  status = Convert((ravo_encoding)pair->from, bytes, length, (ravo_encoding)pair->to,
                   (ravo_convert_policy)pair->policy, room, result, error);
  Py_END_ALLOW_THREADS;
  return status;
}

/* decode(encoding, bytes, policy, utf8) */
static PyObject* Decode(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_module* module = PyModule_GetState(self);
  encoding_pair pair;
  bytes_in bytes = {0};
  converted result = {NULL, 0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeCount("decode", count, 4) || !TakeEncoding(arguments[0], "encoding", &pair.from) ||
      !TakeEncoding(arguments[2], "policy", &pair.policy) || !TakeEncoding(arguments[3], "utf8", &pair.to) ||
      !TakeBytes(arguments[1], &bytes))
    return NULL;
  PyObject* text = DecodeSingleBytes((ravo_encoding)pair.from, bytes.view.buf, (size_t)bytes.view.len);
  if (text != NULL) {
    ReleaseBytes(&bytes);
    return text;
  }
  const ravo_status status = ConvertUnlocked(&pair, bytes.view.buf, (size_t)bytes.view.len,
                                             (size_t)bytes.view.len * 3, &result, &error);
  ReleaseBytes(&bytes);
  PyObject* answer = status == RAVO_OK
                         ? PyUnicode_DecodeUTF8(result.bytes, (Py_ssize_t)result.length, "strict")
                         : RaiseAt(module, &error, PyLong_FromSize_t(error.position));
  free(result.bytes);
  return answer;
}

/* encode(encoding, text, policy, utf8) */
static PyObject* Encode(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_module* module = PyModule_GetState(self);
  encoding_pair pair;
  text_in text;
  converted result = {NULL, 0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeCount("encode", count, 4) || !TakeEncoding(arguments[0], "encoding", &pair.to) ||
      !TakeText(arguments[1], &text) || !TakeEncoding(arguments[2], "policy", &pair.policy) ||
      !TakeEncoding(arguments[3], "utf8", &pair.from))
    return NULL;
  const ravo_status status =
      ConvertUnlocked(&pair, text.bytes, text.length, text.length * 2, &result, &error);
  PyObject* answer = status == RAVO_OK ? PyBytes_FromStringAndSize(result.bytes, (Py_ssize_t)result.length)
                                       : Raise(module, &error, &text);
  free(result.bytes);
  return answer;
}

/* convert(from, bytes, to, policy) */
static PyObject* ConvertBytes(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_module* module = PyModule_GetState(self);
  encoding_pair pair;
  bytes_in bytes = {0};
  converted result = {NULL, 0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeCount("convert", count, 4) || !TakeEncoding(arguments[0], "from", &pair.from) ||
      !TakeEncoding(arguments[2], "to", &pair.to) || !TakeEncoding(arguments[3], "policy", &pair.policy) ||
      !TakeBytes(arguments[1], &bytes))
    return NULL;
  const ravo_status status = ConvertUnlocked(&pair, bytes.view.buf, (size_t)bytes.view.len,
                                             (size_t)bytes.view.len * 2, &result, &error);
  ReleaseBytes(&bytes);
  PyObject* answer = status == RAVO_OK ? PyBytes_FromStringAndSize(result.bytes, (Py_ssize_t)result.length)
                                       : RaiseAt(module, &error, PyLong_FromSize_t(error.position));
  free(result.bytes);
  return answer;
}

typedef struct converter_object {
  PyObject_HEAD ravo_converter* converter;
} converter_object;

static PyObject* NewConverter(PyTypeObject* type, PyObject* arguments, PyObject* named) {
  int from = 0, to = 0, policy = 0;
  ravo_error error = RAVO_ERROR_INIT;
  (void)named;
  if (!PyArg_ParseTuple(arguments, "iii", &from, &to, &policy)) return NULL;
  converter_object* self = PyObject_New(converter_object, type);
  if (self == NULL) return NULL;
  self->converter = NULL;
  if (ravo_converter_open(from, to, policy, &self->converter, &error) == RAVO_OK) return (PyObject*)self;
  Py_DECREF(self);
  return Raise(PyType_GetModuleState(type), &error, NULL);
}

static void FreeConverter(PyObject* self) {
  PyTypeObject* type = Py_TYPE(self);
  ravo_converter_close(((converter_object*)self)->converter);
  PyObject_Free(self);
  Py_DECREF(type);
}

/* Takes all converted bytes that wait. */
static PyObject* Pull(ravo_module* module, ravo_converter* converter) {
  converted result = {NULL, 0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  ravo_status status = RAVO_OK;
  size_t length = 1;
  while (status == RAVO_OK && length != 0) {
    char* larger = realloc(result.bytes, result.length + 65536);
    if (larger == NULL) break;
    result.bytes = larger;
    status = ravo_converter_pull(converter, result.bytes + result.length, 65536, &length, &error);
    if (status == RAVO_OK) result.length += length;
  }
  PyObject* answer = status != RAVO_OK ? Raise(module, &error, NULL)
                     : length != 0     ? PyErr_NoMemory()
                                       : PyBytes_FromStringAndSize(result.bytes, (Py_ssize_t)result.length);
  free(result.bytes);
  return answer;
}

static PyObject* Push(PyObject* self, PyObject* arguments) {
  ravo_module* module = PyType_GetModuleState(Py_TYPE(self));
  ravo_converter* converter = ((converter_object*)self)->converter;
  PyObject* object = NULL;
  int is_last = 0;
  bytes_in bytes = {0};
  ravo_error error = RAVO_ERROR_INIT;
  if (!PyArg_ParseTuple(arguments, "Op", &object, &is_last) || !TakeBytes(object, &bytes)) return NULL;
  const ravo_status status =
      ravo_converter_push(converter, bytes.view.buf, (size_t)bytes.view.len, is_last, &error);
  ReleaseBytes(&bytes);
  return status == RAVO_OK ? Pull(module, converter)
                           : RaiseAt(module, &error, PyLong_FromSize_t(error.position));
}

static PyMethodDef converter_methods[] = {{"push", Push, METH_VARARGS,
                                           "push($self, bytes, is_last, /)\n--\n\nConverts the next bytes "
                                           "and returns what they have become so far."},
                                          {NULL, NULL, 0, NULL}};

static PyType_Slot converter_slots[] = {{Py_tp_doc, "A conversion of a text that comes in pieces."},
                                        {Py_tp_new, NewConverter},
                                        {Py_tp_dealloc, FreeConverter},
                                        {Py_tp_methods, converter_methods},
                                        {0, NULL}};

static PyType_Spec converter_spec = {"ravo._ravo.Converter", sizeof(converter_object), 0,
                                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_IMMUTABLETYPE, converter_slots};

static PyMethodDef encoding_functions[] = {
    {"decode", (PyCFunction)(void (*)(void))Decode, METH_FASTCALL,
     "decode(encoding, bytes, policy, utf8, /)\n--\n\nReturns bytes as a text."},
    {"encode", (PyCFunction)(void (*)(void))Encode, METH_FASTCALL,
     "encode(encoding, text, policy, utf8, /)\n--\n\nReturns a text as bytes."},
    {"convert", (PyCFunction)(void (*)(void))ConvertBytes, METH_FASTCALL,
     "convert(from, bytes, to, policy, /)\n--\n\nReturns bytes in another encoding."},
    {NULL, NULL, 0, NULL}};

int AddEncodings(PyObject* module) {
  ravo_module* state = PyModule_GetState(module);
  state->converter = PyType_FromModuleAndSpec(module, &converter_spec, NULL);
  if (state->converter == NULL || PyModule_AddObjectRef(module, "Converter", state->converter) != 0)
    return -1;
  return PyModule_AddIntConstant(module, "CONVERT_STRICT", RAVO_CONVERT_STRICT) != 0 ||
                 PyModule_AddIntConstant(module, "CONVERT_REPLACE", RAVO_CONVERT_REPLACE) != 0
             ? -1
             : PyModule_AddFunctions(module, encoding_functions);
}
