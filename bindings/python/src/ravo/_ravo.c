/* The extension module ravo._ravo: its state and its life. */
#include "_module.h"

static PyObject* Imported(const char* module, const char* name) {
  PyObject* from = PyImport_ImportModule(module);
  PyObject* object = from == NULL ? NULL : PyObject_GetAttrString(from, name);
  Py_XDECREF(from);
  return object;
}

static int ImportRecords(PyObject** objects, const char* const* names, size_t count) {
  for (size_t i = 0; i < count; ++i)
    if ((objects[i] = Imported("ravo.records", names[i])) == NULL) return -1;
  return 0;
}

static int ImportAll(ravo_module* state) {
  static const char* const records[] = {RAVO_RECORD_NAMES};
  static const char* const enums[] = {RAVO_ENUM_NAMES};
  state->error = Imported("ravo._error", "Error");
  state->date = state->error == NULL ? NULL : Imported("datetime", "date");
  state->decimal = state->date == NULL ? NULL : Imported("decimal", "Decimal");
  if (state->decimal == NULL || ImportRecords(state->records, records, RAVO_RECORD_COUNT) != 0) return -1;
  return ImportRecords(state->enums, enums, RAVO_ENUM_COUNT);
}

static int Execute(PyObject* module) {
  if (ImportAll(PyModule_GetState(module)) != 0) return -1;
  return AddChecks(module) != 0 || AddCalls(module) != 0 || AddEncodings(module) != 0 ||
                 AddColumns(module) != 0
             ? -1
             : 0;
}

static int Traverse(PyObject* module, visitproc visit, void* arg) {
  ravo_module* state = PyModule_GetState(module);
  Py_VISIT(state->error);
  Py_VISIT(state->date);
  Py_VISIT(state->decimal);
  Py_VISIT(state->check);
  Py_VISIT(state->converter);
  for (size_t i = 0; i < RAVO_RECORD_COUNT; ++i) Py_VISIT(state->records[i]);
  for (size_t i = 0; i < RAVO_ENUM_COUNT; ++i) Py_VISIT(state->enums[i]);
  return 0;
}

static int Clear(PyObject* module) {
  ravo_module* state = PyModule_GetState(module);
  Py_CLEAR(state->error);
  Py_CLEAR(state->date);
  Py_CLEAR(state->decimal);
  Py_CLEAR(state->check);
  Py_CLEAR(state->converter);
  for (size_t i = 0; i < RAVO_RECORD_COUNT; ++i) Py_CLEAR(state->records[i]);
  for (size_t i = 0; i < RAVO_ENUM_COUNT; ++i) Py_CLEAR(state->enums[i]);
  return 0;
}

static void Free(void* module) { Clear(module); }

static PyModuleDef_Slot slots[] = {{Py_mod_exec, Execute}, {0, NULL}};

static PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                                 "ravo._ravo",
                                 "libravo, as ravo.h has it.",
                                 sizeof(ravo_module),
                                 NULL,
                                 slots,
                                 Traverse,
                                 Clear,
                                 Free};

PyMODINIT_FUNC PyInit__ravo(void);
PyMODINIT_FUNC PyInit__ravo(void) { return PyModuleDef_Init(&definition); }
