/* The functions of ravo.h: the regular ones, written by a generator, and the other ones. */
#include "_functions.inc"

static PyObject* Kinds(PyObject* self, PyObject* unused) {
  (void)self;
  (void)unused;
  PyObject* names = PyList_New(0);
  for (ravo_kind kind = 1; names != NULL && ravo_kind_name(kind) != NULL; ++kind) {
    PyObject* name = MakeText(ravo_kind_name(kind));
    if (name == NULL || PyList_Append(names, name) != 0) Py_CLEAR(names);
    Py_XDECREF(name);
  }
  PyObject* tuple = names == NULL ? NULL : PyList_AsTuple(names);
  Py_XDECREF(names);
  return tuple;
}

/* Appends what `item` is to a list and lets go of both on failure. */
static PyObject* Appended(PyObject* list, PyObject* item) {
  if (item == NULL || PyList_Append(list, item) != 0) Py_CLEAR(list);
  Py_XDECREF(item);
  return list;
}

static PyObject* BanksOf(ravo_module* module, const ravo_bank_list* list) {
  PyObject* banks = PyList_New(0);
  for (size_t i = 0; banks != NULL && i < ravo_bank_count(list); ++i) {
    ravo_bank bank = RAVO_BANK_INIT;
    ravo_bank_at(list, i, &bank, NULL);
    banks = Appended(banks, MakeBank(module, &bank));
  }
  if (banks == NULL) return NULL;
  return MakeTuple((PyObject*[]){MakeDay(module, ravo_bank_list_date(list)), banks}, 2);
}

static PyObject* BankList(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_module* module = PyModule_GetState(self);
  if (count == 0) return BanksOf(module, NULL);
  text_in text = {NULL, 0};
  ravo_day date = 0;
  ravo_bank_list* list = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeCount("bank_list", count, 2) || !TakeText(arguments[0], &text) ||
      !TakeDay(module, arguments[1], &date))
    return NULL;
  if (ravo_bank_list_open(text.bytes, text.length, date, &list, &error) != RAVO_OK)
    return Raise(module, &error, &text);
  PyObject* answer = BanksOf(module, list);
  ravo_bank_list_close(list);
  return answer;
}

/* Positions of payments count characters from here on, not bytes. */
static PyObject* Payments(PyObject* self, PyObject* object) {
  ravo_module* module = PyModule_GetState(self);
  text_in text = {NULL, 0};
  ravo_payment payment = RAVO_PAYMENT_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  size_t seen = 0;
  Py_ssize_t characters = 0;
  if (!TakeText(object, &text)) return NULL;
  PyObject* payments = PyList_New(0);
  while (payments != NULL && ravo_payment_find(text.bytes, text.length, seen, &payment, &error) == RAVO_OK) {
    const size_t end = payment.end;
    payment.begin = (size_t)(characters + CharactersIn(text.bytes + seen, payment.begin - seen));
    characters += CharactersIn(text.bytes + seen, end - seen);
    payment.end = (size_t)characters;
    payments = Appended(payments, MakePayment(module, &payment));
    seen = end;
  }
  if (payments == NULL || error.status == RAVO_UNKNOWN) return payments;
  Py_DECREF(payments);
  return Raise(module, &error, &text);
}

static PyObject* Crc32(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  bytes_in bytes = {0};
  long long before = 0;
  ravo_error error = RAVO_ERROR_INIT;
  if (!TakeCount("crc32", count, 2) || !TakeNumber(arguments[1], "crc", 0, UINT32_MAX, &before) ||
      !TakeBytes(arguments[0], &bytes))
    return NULL;
  uint32_t crc = (uint32_t)before;
  ravo_status status = RAVO_OK;
  Py_BEGIN_ALLOW_THREADS;
  status = ravo_crc32(bytes.view.buf, (size_t)bytes.view.len, &crc, &error);
  Py_END_ALLOW_THREADS;
  ReleaseBytes(&bytes);
  return status == RAVO_OK ? PyLong_FromUnsignedLong(crc) : Raise(PyModule_GetState(self), &error, NULL);
}

/* A line of a document: a pair of an amount and the number of its rate. */
static int TakeLine(ravo_module* module, PyObject* pair, ravo_vat_line* line) {
  PyObject* amount = PySequence_GetItem(pair, 0);
  PyObject* kind = amount == NULL ? NULL : PySequence_GetItem(pair, 1);
  long long number = 0;
  const int taken = kind != NULL && TakeMoney(module, amount, "amount", &line->amount) &&
                    TakeNumber(kind, "kind", INT32_MIN, INT32_MAX, &number);
  line->kind = (ravo_vat_kind)number;
  Py_XDECREF(amount);
  Py_XDECREF(kind);
  return taken;
}

static int TakeLines(ravo_module* module, PyObject* list, ravo_vat_line* lines, Py_ssize_t count) {
  for (Py_ssize_t i = 0; i < count; ++i) {
    PyObject* pair = PySequence_GetItem(list, i);
    const int taken = pair != NULL && TakeLine(module, pair, &lines[i]);
    Py_XDECREF(pair);
    if (!taken) return 0;
  }
  return 1;
}

static PyObject* VatRecapitulate(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  ravo_module* module = PyModule_GetState(self);
  long long method = 0, per = 0;
  ravo_day day = 0;
  ravo_vat_summary summary = RAVO_VAT_SUMMARY_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  PyObject* answer = NULL;
  if (!TakeCount("vat_recapitulate", count, 4) ||
      !TakeNumber(arguments[1], "method", INT32_MIN, INT32_MAX, &method) ||
      !TakeNumber(arguments[2], "per", INT32_MIN, INT32_MAX, &per) || !TakeDay(module, arguments[3], &day))
    return NULL;
  const Py_ssize_t size = PySequence_Size(arguments[0]);
  if (size < 0) return NULL;
  ravo_vat_line* lines = PyMem_Calloc((size_t)size + 1, sizeof *lines);
  if (lines == NULL) return PyErr_NoMemory();
  if (TakeLines(module, arguments[0], lines, size)) {
    const ravo_status status = ravo_vat_recapitulate(lines, (size_t)size, (ravo_vat_method)method,
                                                     (ravo_vat_per)per, day, &summary, &error);
    answer = status == RAVO_OK ? MakeVatSummary(module, &summary)
                               : RaiseAt(module, &error, PyLong_FromSize_t(error.position));
  }
  PyMem_Free(lines);
  return answer;
}

/* A report of another moment may be longer than the one before it. */
static PyObject* MachineReport(PyObject* self, PyObject* object) {
  ravo_module* module = PyModule_GetState(self);
  long long layer = 0;
  text_out report;
  ravo_error error = RAVO_ERROR_INIT;
  ravo_status status = RAVO_BUFFER;
  if (!TakeNumber(object, "layer", INT32_MIN, INT32_MAX, &layer)) return NULL;
  OpenText(&report);
  report.length = 65536;
  while (status == RAVO_BUFFER && GrowText(&report)) {
    Py_BEGIN_ALLOW_THREADS;
    status =
        ravo_machine_report((ravo_machine_layer)layer, report.bytes, report.size, &report.length, &error);
    Py_END_ALLOW_THREADS;
  }
  PyObject* answer = status == RAVO_OK  ? CloseText(&report)
                     : PyErr_Occurred() ? NULL
                                        : Raise(module, &error, NULL);
  FreeText(&report);
  return answer;
}

/* random_open_array(keys): of numbers of 32 bits */
static PyObject* RandomOpenArray(PyObject* self, PyObject* object) {
  const Py_ssize_t count = PySequence_Size(object);
  uint32_t* keys = count < 0 ? NULL : PyMem_Calloc((size_t)count + 1, sizeof *keys);
  ravo_random* random = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  if (keys == NULL) return count < 0 ? NULL : PyErr_NoMemory();
  for (Py_ssize_t i = 0; i < count && !PyErr_Occurred(); ++i) {
    PyObject* key = PySequence_GetItem(object, i);
    long long number = 0;
    if (key != NULL && TakeNumber(key, "key", 0, UINT32_MAX, &number)) keys[i] = (uint32_t)number;
    Py_XDECREF(key);
  }
  if (!PyErr_Occurred() && ravo_random_open_array(keys, (size_t)count, &random, &error) != RAVO_OK)
    Raise(PyModule_GetState(self), &error, NULL);
  PyMem_Free(keys);
  return random == NULL ? NULL : make_ravo_random(random);
}

#define FAST(function) (PyCFunction)(void (*)(void))(function), METH_FASTCALL

static PyMethodDef other_functions[] = {
    {"kinds", Kinds, METH_NOARGS, "kinds()\n--\n\nReturns the names of all kinds of checks."},
    {"bank_list", FAST(BankList),
     "Returns the day and the banks of the built-in list, or of a text and its day."},
    {"payments", Payments, METH_O, "payments(text, /)\n--\n\nReturns the payment data in a text."},
    {"crc32", FAST(Crc32), "crc32(bytes, crc, /)\n--\n\nReturns the CRC-32 of the bytes so far and these."},
    {"vat_recapitulate", FAST(VatRecapitulate),
     "vat_recapitulate(lines, method, per, day, /)\n--\n\nReturns a document's lines by the rates of a day."},
    {"machine_report", MachineReport, METH_O,
     "machine_report(layer, /)\n--\n\nReturns the suite's support report of this machine."},
    {"random_open_array", RandomOpenArray, METH_O,
     "random_open_array(keys, /)\n--\n\nReturns a generator by an array of keys."},
    {NULL, NULL, 0, NULL}};

int AddCalls(PyObject* module) {
  return PyModule_AddIntConstant(module, "ENGLISH", RAVO_LANGUAGE_ENGLISH) != 0 ||
                 PyModule_AddFunctions(module, generated_functions) != 0 ||
                 PyModule_AddFunctions(module, other_functions) != 0
             ? -1
             : 0;
}
