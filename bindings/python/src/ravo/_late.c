/* Types of Python that the module needs, imported when they are first needed: most programs need few. */
#include "_module.h"

#include <stdatomic.h>

static PyObject* Imported(const char* module, const char* name) {
  PyObject* from = PyImport_ImportModule(module);
  PyObject* object = from == NULL ? NULL : PyObject_GetAttrString(from, name);
  Py_XDECREF(from);
  return object;
}

/* Several threads may need a type first: each gets the one that the fastest has imported. */
static PyObject* Late(late_type* place, const char* module, const char* name) {
  PyObject* type = atomic_load(place);
  if (type != NULL) return type;
  PyObject* imported = Imported(module, name);
  if (imported == NULL || atomic_compare_exchange_strong(place, &type, imported)) return imported;
  Py_DECREF(imported);
  return type;
}

PyObject* DateType(ravo_module* module) { return Late(&module->date, "datetime", "date"); }

PyObject* DecimalType(ravo_module* module) { return Late(&module->decimal, "decimal", "Decimal"); }

PyObject* RecordType(ravo_module* module, int which) {
  static const char* const names[] = {RAVO_RECORD_NAMES};
  return Late(&module->records[which], "ravo.records", names[which]);
}

PyObject* EnumType(ravo_module* module, int which) {
  static const char* const names[] = {RAVO_ENUM_NAMES};
  return Late(&module->enums[which], "ravo.records", names[which]);
}

static int Visit(late_type* place, visitproc visit, void* arg) {
  PyObject* type = atomic_load(place);
  return type == NULL ? 0 : visit(type, arg);
}

int VisitLate(ravo_module* module, visitproc visit, void* arg) {
  int stop = Visit(&module->date, visit, arg);
  if (stop == 0) stop = Visit(&module->decimal, visit, arg);
  for (size_t i = 0; stop == 0 && i < RAVO_RECORD_COUNT; ++i) stop = Visit(&module->records[i], visit, arg);
  for (size_t i = 0; stop == 0 && i < RAVO_ENUM_COUNT; ++i) stop = Visit(&module->enums[i], visit, arg);
  return stop;
}

static void Drop(late_type* place) { Py_XDECREF(atomic_exchange(place, NULL)); }

void ClearLate(ravo_module* module) {
  Drop(&module->date);
  Drop(&module->decimal);
  for (size_t i = 0; i < RAVO_RECORD_COUNT; ++i) Drop(&module->records[i]);
  for (size_t i = 0; i < RAVO_ENUM_COUNT; ++i) Drop(&module->enums[i]);
}
