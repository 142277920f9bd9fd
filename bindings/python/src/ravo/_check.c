/* Checks and their results. */
#include "_module.h"

#include <string.h>

typedef struct check_object {
  PyObject_HEAD ravo_kind kind;
  int32_t code; /* of the reason; 0 if the text is correct in form */
  Py_ssize_t position;
  size_t length;
  char value[RAVO_VALUE_SIZE];
} check_object;

static PyObject* CheckText(ravo_module* module, ravo_kind kind, PyObject* object) {
  text_in text;
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeText(object, &text)) return NULL;
  check_object* check = PyObject_New(check_object, (PyTypeObject*)module->check);
  if (check == NULL) return NULL;
  check->kind = kind;
  check->code = 0;
  check->position = -1;
  check->length = 0;
  const ravo_status status =
      ravo_check(kind, text.bytes, text.length, check->value, sizeof check->value, &check->length, &error);
  if (status == RAVO_OK) return (PyObject*)check;
  check->code = error.code;
  check->position = CharactersIn(text.bytes, error.position < text.length ? error.position : text.length);
  if (status == RAVO_WRONG) return (PyObject*)check;
  Py_DECREF(check);
  return Raise(module, &error, &text);
}

static void FreeCheck(PyObject* self) {
  PyTypeObject* type = Py_TYPE(self);
  PyObject_Free(self);
  Py_DECREF(type);
}

static PyObject* ValueOf(PyObject* self, void* unused) {
  (void)unused;
  const check_object* check = (const check_object*)self;
  return check->code != 0 ? Py_NewRef(Py_None)
                          : PyUnicode_DecodeUTF8(check->value, (Py_ssize_t)check->length, "strict");
}

static PyObject* ReasonOf(PyObject* self, void* unused) {
  (void)unused;
  const check_object* check = (const check_object*)self;
  return MakeText(check->code == 0 ? NULL : ravo_reason_name(check->code));
}

static PyObject* PositionOf(PyObject* self, void* unused) {
  (void)unused;
  const check_object* check = (const check_object*)self;
  return check->code == 0 ? Py_NewRef(Py_None) : PyLong_FromSsize_t(check->position);
}

static PyObject* KindOf(PyObject* self, void* unused) {
  (void)unused;
  return MakeText(ravo_kind_name(((const check_object*)self)->kind));
}

static PyObject* MessageOf(PyObject* self, void* unused) {
  (void)unused;
  const check_object* check = (const check_object*)self;
  return MakeText(check->code == 0 ? NULL : ravo_reason_sentence(check->code, RAVO_LANGUAGE_ENGLISH));
}

static int IsCorrect(PyObject* self) { return ((const check_object*)self)->code == 0; }

/* (kind, value, reason, position): what a result is compared by, pickled as, and shown with. */
static PyObject* PartsOf(PyObject* self) {
  return MakeTuple(
      (PyObject*[]){KindOf(self, NULL), ValueOf(self, NULL), ReasonOf(self, NULL), PositionOf(self, NULL)},
      4);
}

static PyObject* Compare(PyObject* self, PyObject* other, int operation) {
  if (Py_TYPE(self) != Py_TYPE(other) || (operation != Py_EQ && operation != Py_NE))
    return Py_NewRef(Py_NotImplemented);
  PyObject* first = PartsOf(self);
  PyObject* second = first == NULL ? NULL : PartsOf(other);
  PyObject* answer = second == NULL ? NULL : PyObject_RichCompare(first, second, operation);
  Py_XDECREF(first);
  Py_XDECREF(second);
  return answer;
}

static Py_hash_t Hash(PyObject* self) {
  PyObject* parts = PartsOf(self);
  const Py_hash_t hash = parts == NULL ? -1 : PyObject_Hash(parts);
  Py_XDECREF(parts);
  return hash;
}

static PyObject* Show(PyObject* self) {
  PyObject *kind = KindOf(self, NULL), *value = ValueOf(self, NULL), *reason = ReasonOf(self, NULL);
  PyObject* shown = NULL;
  if (kind != NULL && value != NULL && reason != NULL) {
    shown = IsCorrect(self) ? PyUnicode_FromFormat("Check(%R, value=%R)", kind, value)
                            : PyUnicode_FromFormat("Check(%R, reason=%R, position=%zd)", kind, reason,
                                                   ((check_object*)self)->position);
  }
  Py_XDECREF(kind);
  Py_XDECREF(value);
  Py_XDECREF(reason);
  return shown;
}

static PyObject* Reduce(PyObject* self, PyObject* unused) {
  (void)unused;
  return MakeTuple((PyObject*[]){Py_NewRef((PyObject*)Py_TYPE(self)), PartsOf(self)}, 2);
}

static int Restore(check_object* check, PyObject* value, PyObject* reason, PyObject* position) {
  text_in text;
  if (reason != Py_None) {
    ravo_error error = RAVO_ERROR_INIT;
    if (!TakeText(reason, &text)) return 0;
    check->position = PyLong_AsSsize_t(position);
    if (PyErr_Occurred()) return 0;
    if (ravo_reason_of(text.bytes, text.length, &check->code, &error) == RAVO_OK) return 1;
    PyErr_Format(PyExc_ValueError, "there is no reason %R", reason);
    return 0;
  }
  if (!TakeText(value, &text)) return 0;
  check->length = text.length;
  if (text.length < sizeof check->value) {
    memcpy(check->value, text.bytes, text.length + 1);
    return 1;
  }
  PyErr_SetString(PyExc_ValueError, "the value is too long");
  return 0;
}

/* Makes a result of its parts, as pickle needs it. */
static PyObject* NewCheck(PyTypeObject* type, PyObject* arguments, PyObject* named) {
  PyObject *kind = NULL, *value = NULL, *reason = NULL, *position = NULL;
  ravo_kind number = 0;
  if (named != NULL && PyDict_Size(named) != 0) {
    PyErr_SetString(PyExc_TypeError, "Check() takes no named arguments");
    return NULL;
  }
  if (!PyArg_ParseTuple(arguments, "OOOO", &kind, &value, &reason, &position) || !TakeKind(kind, &number))
    return NULL;
  check_object* check = PyObject_New(check_object, type);
  if (check == NULL) return NULL;
  check->kind = number;
  check->code = 0;
  check->position = -1;
  check->length = 0;
  if (Restore(check, value, reason, position)) return (PyObject*)check;
  Py_DECREF(check);
  return NULL;
}

static PyGetSetDef check_fields[] = {
    {"kind", KindOf, NULL, "The name of the kind that the text was checked for.", NULL},
    {"value", ValueOf, NULL, "The canonical form of a text that is correct in form; else None.", NULL},
    {"reason", ReasonOf, NULL, "The stable name of the reason why the text is wrong; None if it is not.",
     NULL},
    {"position", PositionOf, NULL, "Where in the text, in characters; None if it is correct in form.", NULL},
    {"message", MessageOf, NULL, "The reason as a sentence in English; None if the text is correct in form.",
     NULL},
    {NULL, NULL, NULL, NULL, NULL}};

static PyMethodDef check_methods[] = {{"__reduce__", Reduce, METH_NOARGS, NULL}, {NULL, NULL, 0, NULL}};

static PyType_Slot check_slots[] = {
    {Py_tp_doc,
     "What a check says about a text: true if the text is correct in form.\n\n"
     "A text that is correct in form has a `value`, any other one a `reason` and a `position`."},
    {Py_tp_new, NewCheck},
    {Py_tp_dealloc, FreeCheck},
    {Py_tp_getset, check_fields},
    {Py_tp_methods, check_methods},
    {Py_tp_richcompare, Compare},
    {Py_tp_hash, Hash},
    {Py_tp_repr, Show},
    {Py_nb_bool, IsCorrect},
    {0, NULL}};

static PyType_Spec check_spec = {"ravo.check.Check", sizeof(check_object), 0,
                                 Py_TPFLAGS_DEFAULT | Py_TPFLAGS_IMMUTABLETYPE, check_slots};

static PyObject* CheckOf(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_kind kind = 0;
  if (!TakeCount("of", count, 2) || !TakeKind(arguments[0], &kind)) return NULL;
  return CheckText(PyModule_GetState(self), kind, arguments[1]);
}

#define RAVO_TABLE_OF_CHECKS
#define CHECK_KIND(name, number, title)                           \
  static PyObject* check_##name(PyObject* self, PyObject* text) { \
    return CheckText(PyModule_GetState(self), number, text);      \
  }
#include "_functions.inc"
#undef CHECK_KIND

#define CHECK_KIND(name, number, title) \
  {#name, check_##name, METH_O, #name "(text, /)\n--\n\nChecks the form of a text: " title "."},
static PyMethodDef check_functions[] = {
#include "_functions.inc"
    {"of", (PyCFunction)(void (*)(void))CheckOf, METH_FASTCALL,
     "of(kind, text, /)\n--\n\nChecks the form of a text for the kind with a name."},
    {NULL, NULL, 0, NULL}};
#undef CHECK_KIND

/* The functions belong to ravo.check, which takes them from here as check_NAME. */
static int AddFunction(PyObject* module, PyMethodDef* function, PyObject* owner) {
  PyObject* object = PyCFunction_NewEx(function, module, owner);
  PyObject* name = PyUnicode_FromFormat("check_%s", function->ml_name);
  const int added = object == NULL || name == NULL ? -1 : PyObject_SetAttr(module, name, object);
  Py_XDECREF(object);
  Py_XDECREF(name);
  return added;
}

int AddChecks(PyObject* module) {
  ravo_module* state = PyModule_GetState(module);
  state->check = PyType_FromModuleAndSpec(module, &check_spec, NULL);
  if (state->check == NULL || PyModule_AddObjectRef(module, "Check", state->check) != 0) return -1;
  PyObject* owner = PyUnicode_FromString("ravo.check");
  int added = owner == NULL ? -1 : 0;
  for (PyMethodDef* function = check_functions; added == 0 && function->ml_name != NULL; ++function)
    added = AddFunction(module, function, owner);
  Py_XDECREF(owner);
  return added;
}
