#!/usr/bin/env python3
"""Writes what the Python package has of c/ravo.h: calls of every regular function, records, enumerations, types.

usage: python_interface.py [--check]     (--check: compare with the files there; 1 if they differ)

A function is regular if each of its parameters is one that c_refusals.py names and that Python has a type for. What
is not regular is written by hand, in the other sources of the module.
"""
import dataclasses
import pathlib
import re
import sys
import textwrap

import c_interface
import c_refusals
from c_refusals import Function, Parameter
from pycparser import c_ast, c_generator  # type: ignore[import]

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = ROOT / "bindings" / "python" / "src" / "ravo"
KINDS = ROOT / "ravo" / "czech" / "kinds.inc"
NOTE = "Written by tools/generate/python_interface.py from c/ravo.h; not to be edited by hand."

# Python has datetime.date for these, and they have another form there.
BY_HAND = {"ravo_check", "ravo_kind_name", "ravo_kind_of", "ravo_payment_find", "ravo_crc32", "ravo_day_of", "ravo_date_of"}
# Names that the calls have themselves.
LOCALS = {"module", "outcome", "self", "arguments", "count", "status"}
HAND_ROLES = {"items", "context"}
# Handles that Python holds as capsules, which close them; other ones never leave a function.
HANDLES = ("ravo_random", "ravo_document", "ravo_suite_tree")
# Functions whose failures have a place in bytes.
PLACES_IN_BYTES = {"ravo_document_open"}
# Structs of functions that are written by hand.
HAND_RECORDS = ["ravo_bank", "ravo_payment", "ravo_vat_summary", "ravo_invoice_head", "ravo_invoice_party", "ravo_invoice_line", "ravo_invoice_rate",
                "ravo_invoice_totals", "ravo_invoice_payment", "ravo_invoice_finding"]
# Structs of texts that the caller fills: each becomes the parameters of a function.
CODES = {"ravo_spayd": "Payment", "ravo_sid": "Invoice"}
CODE_KEYS = ROOT / "ravo" / "czech" / "payment_code_keys.inc"
NO_ENUMS = {"ravo_status", "ravo_kind", "ravo_layout"}
LONE_ENUMS = {"RAVO_ORDER_": "OrderFlags", "RAVO_DETECT_": "DetectFlags", "RAVO_DOCUMENT_": "DocumentFlags", "RAVO_SUITE_ROUND_": "SuiteRounding"}
NUMBERS = {
    "int32_t": ("int32_t", "INT32_MIN", "INT32_MAX"), "int64_t": ("int64_t", "INT64_MIN", "INT64_MAX"), "int8_t": ("int8_t", "INT8_MIN", "INT8_MAX"),
    "uint8_t": ("uint8_t", "0", "UINT8_MAX"), "uint32_t": ("uint32_t", "0", "UINT32_MAX"), "size_t": ("size_t", "0", "PTRDIFF_MAX"),
    "uint16_t": ("uint16_t", "0", "UINT16_MAX"), "ravo_encoding": ("ravo_encoding", "INT32_MIN", "INT32_MAX"),
    "ravo_suite_item": ("ravo_suite_item", "0", "PTRDIFF_MAX"),
}


@dataclasses.dataclass
class Field:
    name: str
    type: str
    form: str  # "value", "text" (const char *), "chars" (char[]), "reason" (its number), "rows" (struct[]), "row" (struct)
    words: str
    null: bool = False


@dataclasses.dataclass
class Record:
    struct: str
    sized: bool
    fields: list[Field]
    words: str

    @property
    def name(self) -> str:
        return camel(self.struct)


@dataclasses.dataclass
class CodeField:
    name: str
    key: str  # in the code: "AM"
    form: str  # of the value, as the rows of keys have it, or "Flag"
    needed: bool
    words: str


@dataclasses.dataclass
class Enumeration:
    type: str
    name: str
    members: list[tuple[str, str, int, str]]  # name in Python, in C, number, words
    words: str


def camel(name: str) -> str:
    return "".join(word.capitalize() for word in name.removeprefix("ravo_").split("_"))


def python_name(function: Function) -> str:
    return function.name.removeprefix("ravo_")


def arrow(node: c_ast.Node) -> bool:
    return "Arrow" in c_generator.CGenerator().visit(node)


class Interface:
    """What the header has for Python."""

    def __init__(self) -> None:
        self.text = c_interface.HEADER.read_text()
        tree = c_interface.parsed()
        tree.ext = [node for node in tree.ext if not arrow(node)]
        self.comments = c_interface.comments()
        self.enums = self.enumerations(tree)
        self.structs = {node.name: node for node in tree.ext if isinstance(node, c_ast.Typedef) and isinstance(node.type.type, c_ast.Struct)
                        and node.type.type.decls}
        header = c_refusals.header_of(tree)
        self.sized = header.sized
        self.functions = [one for one in header.functions if self.is_regular(one)]
        for one in [one for function in self.functions for one in function.parameters if one.role in ("struct", "result", "value")]:
            one.name += "_" if one.name in LOCALS else ""
        self.records: dict[str, Record] = {}
        for function in self.functions:
            for one in function.parameters:
                if one.role in ("struct", "result") and one.type in self.structs:
                    self.add_record(one.type)
        for struct in HAND_RECORDS:
            self.add_record(struct)
        self.codes = {struct: self.code(struct, owner) for struct, owner in CODES.items()}

    def code(self, struct: str, owner: str) -> list[CodeField]:
        """The texts and flags of a payment code."""
        keys = {key: (form, need) for kind, key, form, need in
                re.findall(r'^RAVO_PAYMENT_KEY\((\w+), "([^"]+)", (\w+), \d+, (\w+),', CODE_KEYS.read_text(), re.MULTILINE) if kind == owner}
        fields = []
        for node in self.structs[struct].type.type.decls[1:]:
            one = self.field(struct, node)
            key, _, words = one.words.partition(": ") if one.form == "text" else ("", "", one.words)
            key = key.split(";")[0]
            form, need = keys[key] if one.form == "text" else ("Flag", "")
            fields.append(CodeField(one.name, key, form, need == "Always", words.split("; must be there")[0]))
        return fields

    def is_regular(self, function: Function) -> bool:
        return function.name not in BY_HAND and function.result != "void" and not any(
            one.role in HAND_ROLES or one.type in ("ravo_column", "ravo_answers", "ravo_progress", "ravo_bank_list") or
            one.role in ("handle", "open", "opened") and one.type not in HANDLES for one in function.parameters)

    def comment_of(self, declaration: str) -> str:
        found = re.search(r"/\*((?:(?!\*/).)*)\*/\s*" + declaration, self.text, re.DOTALL)
        words = found.group(1) if found else ""
        words = " ".join(re.sub(r"^ \* ?", "", words, flags=re.MULTILINE).split())
        return re.sub(r" ?(It starts as|Declare it as) `[^`]*`\.", "", words)

    def enumerations(self, tree: c_ast.FileAST) -> list[Enumeration]:
        found, last = [], ""
        for node in tree.ext:
            if isinstance(node, c_ast.Decl) and isinstance(node.type, c_ast.Enum):
                rows = [(one.name, int(c_generator.CGenerator().visit(one.value))) for one in node.type.values.enumerators]
                prefix = common_prefix([name for name, _ in rows])
                name = camel(last) if last else LONE_ENUMS.get(prefix, "")
                if name and last not in NO_ENUMS:
                    words = self.comment_of(rf"typedef int32_t {last};" if last else rf"enum {{\s*{rows[0][0]}\b")
                    found.append(Enumeration(last, name, [(one.removeprefix(prefix), one, number, self.words_of(one)) for one, number in rows], words))
            last = node.name if isinstance(node, c_ast.Typedef) and isinstance(node.type.type, c_ast.IdentifierType) else ""
        return found

    def words_of(self, enumerator: str) -> str:
        found = re.search(rf"\b{enumerator} = \d+,? */\* (.*?) \*/", self.text)
        return found.group(1) if found else ""

    def add_record(self, struct: str) -> None:
        if struct in self.records:
            return
        fields = []
        for one in self.structs[struct].type.type.decls:
            if one.name == "size":
                continue
            fields.append(self.field(struct, one))
            if fields[-1].form in ("rows", "row"):
                self.add_record(fields[-1].type)
        self.records[struct] = Record(struct, struct in self.sized, fields, self.comment_of(rf"typedef struct {struct} {{"))

    def field(self, struct: str, node: c_ast.Decl) -> Field:
        body = re.search(rf"typedef struct {struct} {{(.*?)\n}} {struct};", self.text, re.DOTALL)
        found = re.search(rf"\b{node.name}(?:\[\w+\])?; */\* (.*?) \*/", body.group(1) if body else "")
        words = found.group(1) if found else ""
        kind = node.type
        form = "value"
        if isinstance(kind, c_ast.PtrDecl):
            form, kind = "text", kind.type
        elif isinstance(kind, c_ast.ArrayDecl):
            form, kind = "chars", kind.type
        name = " ".join(kind.type.names)
        if words.endswith("ravo_reason_sentence; 0 if none does"):
            form = "reason"
        if name in self.structs:
            form = "rows" if form == "chars" else "row"
        return Field(node.name, name, form, words, words.startswith("null if"))

    def enum_of(self, kind: str) -> Enumeration | None:
        return next((one for one in self.enums if one.type == kind), None)


def common_prefix(names: list[str]) -> str:
    first, last = min(names), max(names)
    size = next((index for index, (one, other) in enumerate(zip(first, last)) if one != other), min(len(first), len(last)))
    return first[:first.rfind("_", 0, size) + 1]


def is_flag(kind: str, words: str) -> bool:
    return kind == "int32_t" and bool(re.match(r"1 if ", words))


def answers_flag(function: Function, words: str) -> bool:
    return function.result == "int32_t" and "eturns 1 if" in words


# The C side.

def taken(one: Parameter, interface: Interface, index: int) -> str:
    """The expression that reads an argument, which is false on failure."""
    place = f"arguments[{index}]"
    if one.role == "text":
        return f"TakeText({place}, &{one.name})"
    if one.role == "bytes":
        return f"TakeBytes({place}, &{one.name})"
    if one.role in ("handle", "open"):
        return f'({one.name} = PyCapsule_GetPointer({place}, "{one.type}")) != NULL'
    if one.type == "ravo_day":
        return f"TakeDay(module, {place}, &{one.name})"
    if one.type == "ravo_money":
        return f'TakeMoney(module, {place}, "{one.name}", &{one.name})'
    if one.type == "ravo_kind":
        return f"TakeKind({place}, &{one.name})"
    if one.type in ("double", "ravo_suite_moment"):
        return f"TakeDouble({place}, &{one.name})"
    _, low, high = NUMBERS.get(one.type, NUMBERS["int32_t"])
    return f"TakeNumber({place}, \"{one.name}\", {low}, {high}, &{one.name}_number)"


def is_number(one: Parameter) -> bool:
    return one.role == "value" and one.type not in ("ravo_day", "ravo_money", "ravo_kind", "double", "ravo_suite_moment")


def made(kind: str, value: str, interface: Interface, words: str = "", form: str = "value") -> str:
    """The expression that makes a Python object."""
    if form == "text":
        return f"MakeText({value})"
    if form == "chars":
        return f"MakeText({value})"
    if form == "reason":
        return f"MakeText(ravo_reason_name({value}))"
    if kind in ("ravo_day", "ravo_money"):
        return f"Make{camel(kind)}(module, {value})"
    if kind == "ravo_kind":
        return f"MakeText(ravo_kind_name({value}))"
    if kind in ("double", "ravo_suite_moment"):
        return f"PyFloat_FromDouble({value})"
    if is_flag(kind, words):
        return f"PyBool_FromLong({value})"
    enumeration = interface.enum_of(kind)
    if enumeration:
        return f"MakeEnum(module, RAVO_ENUM_{enumeration.name}, {value})"
    if kind in interface.records:
        return f"Make{camel(kind)}(module, &{value})"
    return f"PyLong_FromLongLong((long long){value})"


def maker(record: Record) -> str:
    return f"PyObject *Make{record.name}(ravo_module *module, const {record.struct} *row)"


def record_code(record: Record, interface: Interface) -> str:
    lines = [f"{maker(record)} {{",
             f"  PyObject *fields[{len(record.fields)}] = {{NULL}};"]
    for index, field in enumerate(record.fields):
        value = f"row->{field.name}"
        if field.form == "rows":
            lines += [f"  fields[{index}] = PyTuple_New(sizeof {value} / sizeof {value}[0]);",
                      f"  for (size_t i = 0; fields[{index}] != NULL && i < sizeof {value} / sizeof {value}[0]; ++i) {{",
                      f"    PyObject *item = Make{camel(field.type)}(module, &{value}[i]);",
                      f"    if (item == NULL || PyTuple_SetItem(fields[{index}], (Py_ssize_t)i, item) != 0) Py_CLEAR(fields[{index}]);", "  }"]
        else:
            lines.append(f"  fields[{index}] = {made(field.type, value, interface, field.words, field.form)};")
    lines += [f"  return MakeRecord(module, RAVO_RECORD_{record.name}, fields, {len(record.fields)});", "}"]
    return "\n".join(lines)


def arguments_of(function: Function) -> list[Parameter]:
    return [one for one in function.parameters if one.role in ("text", "bytes", "value", "handle", "open")]


def results_of(function: Function) -> list[Parameter]:
    return [one for one in function.parameters
            if one.role in ("buffer", "struct", "result", "opened") or one.role == "length" and not has_buffer(function, one)]


def passed(one: Parameter, function: Function) -> str:
    owner = one.name.removesuffix("_length").removesuffix("_size")
    if one.role == "text":
        return f"{one.name}.bytes"
    if one.role == "bytes":
        return f"{one.name}.view.buf"
    if one.role == "count":
        other = next(other for other in function.parameters if other.name == owner)
        return f"{owner}.length" if other.role == "text" else f"(size_t){owner}.view.len"
    if one.role == "buffer":
        return f"{one.name}.bytes"
    if one.role == "size":
        return ("buffer" if one.name == "size" else owner) + ".size"
    if one.role == "length":
        return "&" + ("buffer" if one.name == "length" else owner) + ".length" if has_buffer(function, one) else f"&{one.name}"
    if one.role == "error":
        return "&error"
    if one.role in ("handle", "open"):
        return one.name
    if one.role == "value":
        return f"({one.type}){one.name}_number" if is_number(one) else one.name
    return f"&{one.name}"


def has_buffer(function: Function, length: Parameter) -> bool:
    owner = "buffer" if length.name == "length" else length.name.removesuffix("_length")
    return any(one.role == "buffer" and one.name == owner for one in function.parameters)


def declared(one: Parameter, interface: Interface) -> str:
    if one.role == "text":
        return f"  text_in {one.name} = {{NULL, 0}};"
    if one.role == "bytes":
        return f"  bytes_in {one.name} = {{0}};"
    if one.role in ("handle", "open", "opened"):
        return f"  {one.type} *{one.name} = NULL;"
    if one.role == "buffer":
        return f"  text_out {one.name};\n  OpenText(&{one.name});"
    if one.role == "struct":
        return f"  {one.type} {one.name} = {one.type.upper()}_INIT;"
    if one.role in ("result", "length"):
        return f"  {one.type} {one.name} = {'{0}' if one.type in interface.structs else '0'};"
    return f"  long long {one.name}_number = 0;" if is_number(one) else f"  {one.type} {one.name} = 0;"


def result_code(one: Parameter, function: Function, interface: Interface) -> str:
    if one.role == "buffer":
        return f"{'CloseText' if one.type == 'char' else 'CloseBytes'}(&{one.name})"
    if one.role == "opened":
        return f"make_{one.type}({one.name})"
    if one.name == "answer":
        return f"PyBool_FromLong({one.name})"
    return made(one.type, one.name, interface)


def function_code(function: Function, interface: Interface) -> str:
    name = python_name(function)
    arguments, results = arguments_of(function), results_of(function)
    call = f"{function.name}({', '.join(passed(one, function) for one in function.parameters)})"
    takes = [f'TakeCount("{name}", count, {len(arguments)})'] + [taken(one, interface, index) for index, one in enumerate(arguments)]
    lines = [f"static PyObject *call_{name}(PyObject *self, PyObject *const *arguments, Py_ssize_t count) {{",
             "  ravo_module *module = PyModule_GetState(self);", "  PyObject *outcome = NULL;", "  (void)arguments;", "  (void)module;",
             *(declared(one, interface) for one in arguments + results)]
    fails = function.result == "ravo_status"
    if fails:
        lines.append("  ravo_error error = RAVO_ERROR_INIT;")
    lines.append(f"  if ({' && '.join(takes)}) {{")
    if fails:
        texts = [one for one in arguments if one.role == "text"]
        buffers = [one for one in results if one.role == "buffer"]
        lines += [f"    ravo_status status = {call};"]
        if buffers:
            grown = " | ".join(f"GrowText(&{one.name})" for one in buffers)
            lines.append(f"    while (status == RAVO_BUFFER && ({grown})) status = {call};")
        place = f"&{texts[0].name}" if len(texts) == 1 else "NULL"
        makes = [result_code(one, function, interface) for one in results]
        answer = makes[0] if len(makes) == 1 else f"MakeTuple((PyObject *[]){{{', '.join(makes)}}}, {len(makes)})"
        answer = answer if makes else "Py_NewRef(Py_None)"
        failed = "RaiseAt(module, &error, PyLong_FromSize_t(error.position))" if function.name in PLACES_IN_BYTES else f"Raise(module, &error, {place})"
        lines += [f"    outcome = status == RAVO_OK ? {answer} : {failed};"]
    elif function.result.startswith("const char"):
        lines.append(f"    outcome = MakeText({call});")
    elif answers_flag(function, interface.comments[function.name]):
        lines.append(f"    outcome = PyBool_FromLong({call});")
    else:
        lines.append(f"    outcome = {made('int64_t', call, interface)};")
    lines.append("  }")
    lines += [f"  ReleaseBytes(&{one.name});" for one in arguments if one.role == "bytes"]
    lines += [f"  FreeText(&{one.name});" for one in results if one.role == "buffer"]
    return "\n".join([*lines, "  return outcome;", "}"])


def holder(handle: str) -> str:
    """The functions that put a handle into a capsule, and that close it."""
    return (f'static void close_{handle}(PyObject *capsule) {{ {handle}_close(PyCapsule_GetPointer(capsule, "{handle}")); }}\n\n'
            f'static PyObject *make_{handle}({handle} *opened) {{\n  PyObject *capsule = PyCapsule_New(opened, "{handle}", close_{handle});\n'
            f"  if (capsule == NULL) {handle}_close(opened);\n  return capsule;\n}}")


def kind_names() -> list[tuple[str, str]]:
    """Name and title of each kind of check."""
    return re.findall(r'^RAVO_KIND\(\d+, \w+, "(\w+)", \w+, "[^"]*", "([^"]*)"\)', KINDS.read_text(), re.MULTILINE)


def article(words: str) -> str:
    return words.replace("\\", "\\\\").replace('"', '\\"')


def doc_of(function: Function, interface: Interface) -> str:
    words = interface.comments[function.name].split("*/")[-1]
    return re.sub(r"^(Writes|Returns) ", "Returns ", re.split(r"(?<=\.)\s", words)[0])


def functions_inc(interface: Interface) -> str:
    rows = "\n".join(f'    {{"{python_name(one)}", (PyCFunction)(void (*)(void))call_{python_name(one)}, METH_FASTCALL,\n     '
                     f'"{python_name(one)}({", ".join([other.name for other in arguments_of(one)] + (["/"] if arguments_of(one) else []))})\\n--\\n\\n'
                     f'{article(doc_of(one, interface))}"}},' for one in interface.functions)
    records = "\n\n".join(record_code(one, interface) for one in interface.records.values())
    calls = "\n\n".join(function_code(one, interface) for one in interface.functions)
    holders = "\n\n".join(holder(handle) for handle in HANDLES)
    checks = "\n".join(f'CHECK_KIND({name}, {index}, "{title}")' for index, (name, title) in enumerate(kind_names(), 1))
    return (f"/* {NOTE} */\n#include \"_records.inc\"\n\n#if defined(RAVO_TABLE_OF_CHECKS)\n{checks}\n#else\n\n{holders}\n\n{records}\n\n{calls}\n\n"
            f"static PyMethodDef generated_functions[] = {{\n{rows}\n    {{NULL, NULL, 0, NULL}}}};\n#endif\n")


def names_inc(interface: Interface) -> str:
    records = "".join(f"  RAVO_RECORD_{one.name},\n" for one in interface.records.values())
    enums = "".join(f"  RAVO_ENUM_{one.name},\n" for one in interface.enums)
    return (f"/* {NOTE} */\n\nenum {{\n{records}  RAVO_RECORD_COUNT\n}};\n\nenum {{\n{enums}  RAVO_ENUM_COUNT\n}};\n\n"
            f"#define RAVO_RECORD_NAMES {', '.join(quoted(one.name) for one in interface.records.values())}\n"
            f"#define RAVO_ENUM_NAMES {', '.join(quoted(one.name) for one in interface.enums)}\n")


def records_h(interface: Interface) -> str:
    """Makers of records, and what the texts of codes are."""
    makers = "\n".join(f"{maker(one)};" for one in interface.records.values())
    codes = "\n".join(f"#define {struct.upper()}_FIELDS \\\n  " + ", \\\n  ".join(
        f'{{{quoted(one.key)}, offsetof({struct}, {one.name})}}' for one in fields if one.key) for struct, fields in interface.codes.items())
    return f"/* {NOTE} */\n#ifndef RAVO_PYTHON_RECORDS_INC\n#define RAVO_PYTHON_RECORDS_INC\n\n#include \"_module.h\"\n\n{makers}\n\n{codes}\n\n#endif\n"


def quoted(name: str) -> str:
    return f'"{name}"'


# The Python side.

def python_type(kind: str, interface: Interface, words: str = "", form: str = "value", result: bool = True) -> str:
    if form in ("text", "chars", "reason") or kind == "ravo_kind":
        return "str"
    if form == "rows":
        return f"tuple[{camel(kind)}, ...]"
    if is_flag(kind, words):
        return "bool"
    simple = {"ravo_day": "date", "ravo_money": "Decimal" if result else "_Amount", "double": "float", "ravo_suite_moment": "float"}
    enumeration = interface.enum_of(kind)
    if enumeration:
        return enumeration.name if result else "int"
    return simple.get(kind) or (camel(kind) if kind in interface.records else "int")


def sentence(words: str) -> str:
    words = words[:1].upper() + words[1:]
    return words if words.endswith(".") else words + "."


def records_py(interface: Interface) -> str:
    lines = [f'"""What functions return, and the numbers they take.\n\n{NOTE}\n"""', "from __future__ import annotations\n",
             "from datetime import date", "from decimal import Decimal", "from enum import IntEnum", "from typing import NamedTuple"]
    for enumeration in interface.enums:
        lines += [f"\n\nclass {enumeration.name}(IntEnum):", f'    """{sentence(enumeration.words)}"""\n']
        lines += [f"    {name} = {number}{'  # ' + words if words else ''}" for name, _, number, words in enumeration.members]
    for record in interface.records.values():
        lines += [f"\n\nclass {record.name}(NamedTuple):", f'    """{sentence(spoken(record.words.split(". ")[0]))}"""\n']
        for field in record.fields:
            kind = python_type(field.type, interface, field.words, field.form) + (" | None" if field.null or field.form == "reason" else "")
            words = spoken(field.words)
            lines.append(f"    {field.name}: {kind}{'  # ' + words if words else ''}")
    return "\n".join(lines) + "\n"


def spoken(words: str) -> str:
    """Words about a field of C as Python says them."""
    words = re.sub(r"^1 (if|to) (.*), else 0", r"\2" if words.startswith("1 if") else r"true to \2", words)
    words = words.replace("UTF-8, ", "").replace(", UTF-8", "").replace("UTF-8", "").replace(", ends with NUL", "").replace("null if", "None if")
    words = words.replace(", for ravo_reason_sentence; 0", "; None").replace("ravo_invoice_rule_sentence", "isdoc.sentence")
    words = words.replace("ravo_document_check", "xml.Document.check")
    return re.sub(r"\bravo_(\w+)_write\b", r"\1", words)


CODE_TYPES = {"Flag": "bool", "Date": "date | str", "Amount": "Amount", "SignedAmount": "Amount", "Rate": "Amount"}


def code_words(field: CodeField) -> str:
    return spoken(field.words) + (', or a Czech account: "19-2000145399/0800"' if field.form == "Account" else "")


def code_py(struct: str, interface: Interface) -> str:
    """The function that writes a payment code."""
    fields = interface.codes[struct]
    name = struct.removeprefix("ravo_")
    needed = [one for one in fields if one.needed]
    parameters = [f"{one.name}: {CODE_TYPES.get(one.form, 'str')}" for one in needed] + ["*"]
    for one in [one for one in fields if not one.needed]:
        kind = CODE_TYPES.get(one.form, "str")
        parameters.append(f"{one.name}: bool = False" if kind == "bool" else f"{one.name}: {kind} | None = None")
    values = [f'iban("{one.key}", {one.name})' if one.form == "Account" else one.name for one in fields if one.key]
    flags = [one.name for one in fields if not one.key]
    words = interface.comments[f"{struct}_write"].split("*/")[-1].split(", of at most")[0].replace("Writes", "Returns")
    lines = [f"def {name}(", *(f"    {one}," for one in parameters), ") -> str:",
             f'    """{words.rstrip(".")}; ravo.Error, whose message begins with the key of the value that is wrong.', "",
             *(f"    {one.name}: {', '.join(filter(None, [one.key, code_words(one)]))}" for one in fields),
             '    """',
             *textwrap.wrap(f"return _ravo.{name}(texts({', '.join(values)}), {', '.join(flags)})", 140, initial_indent=" " * 4, subsequent_indent=" " * 8)]
    return "\n".join(lines)


def codes_py(interface: Interface) -> str:
    """The functions that write payment codes."""
    head = [f'"""Codes of payments and invoices, value by value.\n\n{NOTE}\n"""', "from __future__ import annotations\n",
            "from . import _ravo", "from ._values import iban, texts\n", "TYPE_CHECKING = False", "if TYPE_CHECKING:", "    from datetime import date\n",
            "    from .money import Amount"]
    return "\n".join(head) + "\n\n\n" + "\n\n\n".join(code_py(struct, interface) for struct in interface.codes) + "\n"


def signature(function: Function, interface: Interface) -> str:
    parameters = []
    for one in arguments_of(function):
        kind = {"text": "str", "bytes": "_Buffer", "handle": "object", "open": "object"}.get(one.role) or python_type(one.type, interface, result=False)
        parameters.append(f"{one.name if one.name not in ('from',) else one.name + '_'}: {kind}")
    return ", ".join([*parameters, "/"] if parameters else [])


def returned(function: Function, interface: Interface) -> str:
    if function.result.startswith("const char"):
        return "str" if function.name == "ravo_version" else "str | None"
    if function.result != "ravo_status":
        return "bool" if answers_flag(function, interface.comments[function.name]) else "int"
    kinds = [("str" if one.type == "char" else "bytes") if one.role == "buffer" else "object" if one.role == "opened" else
             "bool" if one.name == "answer" else python_type(one.type, interface) for one in results_of(function)]
    if not kinds:
        return "None"
    return kinds[0] if len(kinds) == 1 else f"tuple[{', '.join(kinds)}]"


def stub(interface: Interface) -> str:
    by_hand = (PACKAGE / "_by_hand.pyi.in").read_text()
    functions = "\n".join(f"def {python_name(one)}({signature(one, interface)}) -> {returned(one, interface)}: ..." for one in interface.functions)
    checks = "\n".join(f"def check_{name}(text: str, /) -> Check: ..." for name, _ in kind_names())
    names = ", ".join(sorted([one.name for one in interface.records.values()] + [one.name for one in interface.enums]))
    used = [name for name in names.split(", ") if re.search(rf"\b{name}\b", by_hand + functions)]
    return f"# {NOTE}\n" + by_hand.replace("# names", f"from .records import {', '.join(used)}") + f"\n{checks}\n{functions}\n"


def outputs() -> dict[pathlib.Path, str]:
    interface = Interface()
    return {PACKAGE / "_functions.inc": functions_inc(interface), PACKAGE / "_names.inc": names_inc(interface),
            PACKAGE / "_records.inc": records_h(interface), PACKAGE / "_codes.py": codes_py(interface),
            PACKAGE / "records.py": records_py(interface), PACKAGE / "_ravo.pyi": stub(interface)}


def main() -> int:
    written = outputs()
    differing = [path for path, text in written.items() if not path.exists() or path.read_text() != text]
    if sys.argv[1:] == ["--check"]:
        for path in differing:
            print(f"{path.relative_to(ROOT)}: differs from c/ravo.h: run tools/generate/python_interface.py")
        return 1 if differing else 0
    for path in differing:
        path.write_text(written[path])
    return 0


if __name__ == "__main__":
    sys.exit(main())
