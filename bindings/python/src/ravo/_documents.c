/* Documents of XML: what takes several values, or gives them to a function. */
#include "_module.h"

/* Borrows both texts of a pair, which the caller holds. */
static int TakeChange(PyObject* pair, ravo_document_change* change) {
  text_in path, value;
  if (!PyTuple_Check(pair) || PyTuple_Size(pair) != 2) {
    ExpectedType("a pair of path and value", pair);
    return 0;
  }
  if (!TakeText(PyTuple_GetItem(pair, 0), &path) || !TakeText(PyTuple_GetItem(pair, 1), &value)) return 0;
  *change = (ravo_document_change){path.bytes, path.length, value.bytes, value.length};
  return 1;
}

/* document_set(document, ((path, value), ...), flags): all of them, or none */
static PyObject* DocumentSet(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  long long flags = 0;
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeCount("document_set", count, 3) || !TakeNumber(arguments[2], "flags", 0, UINT32_MAX, &flags))
    return NULL;
  ravo_document* document = PyCapsule_GetPointer(arguments[0], "ravo_document");
  const Py_ssize_t size = document == NULL ? -1 : PyTuple_Size(arguments[1]);
  if (size < 0) return NULL;
  ravo_document_change* changes = PyMem_Calloc((size_t)size + 1, sizeof *changes);
  int taken = changes != NULL;
  for (Py_ssize_t i = 0; taken && i < size; ++i)
    taken = TakeChange(PyTuple_GetItem(arguments[1], i), &changes[i]);
  if (taken && ravo_document_set(document, changes, (size_t)size, (uint32_t)flags, &error) != RAVO_OK)
    RaiseAt(PyModule_GetState(self), &error, PyLong_FromSize_t(error.position));
  if (changes == NULL) PyErr_NoMemory();
  PyMem_Free(changes);
  return PyErr_Occurred() ? NULL : Py_NewRef(Py_None);
}

static int32_t RAVO_CALL TakeToken(void* list, const ravo_suite_token* token) {
  PyObject* text = PyUnicode_DecodeUTF8(token->text, (Py_ssize_t)token->text_length, "strict");
  PyObject* parts = MakeTuple((PyObject*[]){PyLong_FromLong(token->kind), PyLong_FromLong(token->line),
                                            PyLong_FromLong(token->position), text},
                              4);
  const int added = parts != NULL && PyList_Append(list, parts) == 0;
  Py_XDECREF(parts);
  return !added;
}

/* suite_tokens(bytes): a list of (kind, line, position, text) */
static PyObject* SuiteTokens(PyObject* self, PyObject* object) {
  bytes_in bytes = {0};
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeBytes(object, &bytes)) return NULL;
  PyObject* tokens = PyList_New(0);
  const int done = tokens != NULL && ravo_suite_tokens(bytes.view.buf, (size_t)bytes.view.len, TakeToken,
                                                       tokens, &error) == RAVO_OK;
  ReleaseBytes(&bytes);
  if (done) return tokens;
  Py_XDECREF(tokens);
  return PyErr_Occurred() ? NULL : Raise(PyModule_GetState(self), &error, NULL);
}

static PyMethodDef document_functions[] = {
    {"document_set", (PyCFunction)(void (*)(void))DocumentSet, METH_FASTCALL,
     "document_set(document, changes, flags, /)\n--\n\nSets values at paths."},
    {"suite_tokens", SuiteTokens, METH_O, "suite_tokens(bytes, /)\n--\n\nReturns the tokens of a document."},
    {NULL, NULL, 0, NULL}};

int AddDocuments(PyObject* module) { return PyModule_AddFunctions(module, document_functions); }
