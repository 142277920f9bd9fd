/* The extension module ravo._ravo: its state and its life. */
#include "_module.h"

static int Execute(PyObject* module) {
  ravo_module* state = PyModule_GetState(module);
  PyObject* errors = PyImport_ImportModule("ravo._error");
  state->error = errors == NULL ? NULL : PyObject_GetAttrString(errors, "Error");
  Py_XDECREF(errors);
  if (state->error == NULL) return -1;
  return AddChecks(module) != 0 || AddCalls(module) != 0 || AddEncodings(module) != 0 ||
                 AddColumns(module) != 0 || AddCodes(module) != 0 || AddInvoices(module) != 0 ||
                 AddDocuments(module) != 0
             ? -1
             : 0;
}

static int Traverse(PyObject* module, visitproc visit, void* arg) {
  ravo_module* state = PyModule_GetState(module);
  Py_VISIT(state->error);
  Py_VISIT(state->check);
  Py_VISIT(state->converter);
  return VisitLate(state, visit, arg);
}

static int Clear(PyObject* module) {
  ravo_module* state = PyModule_GetState(module);
  Py_CLEAR(state->error);
  Py_CLEAR(state->check);
  Py_CLEAR(state->converter);
  ClearLate(state);
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
