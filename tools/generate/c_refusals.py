"""Calls of every function of c/ravo.h for the tests in C: good ones, and ones that must be refused.

What a parameter is follows from its name and type, which ravo.h keeps regular:

    const char *x, size_t x_length       a text            const void *x, size_t x_length    bytes
    char *x, size_t x_size, *x_length    a text as result  (of `buffer`: size, length)
    const T *x, size_t x_length          items             T *x                              a result
    H **x                                a handle that the function opens; H_close closes it
    const H *x                           a handle; null is allowed
    H *x                                 a handle that the function changes, from OPENINGS
    const H *x with H in OPENINGS        the same; null is refused
"""

import dataclasses
from collections.abc import Iterator

from pycparser import c_ast, c_generator  # type: ignore[import]

# Arguments with which each function succeeds, where another than the usual one is needed.
GOOD_TEXTS = {
    "ravo_reason_of": "ico.checksum",
    "ravo_kind_of": "ico",
    "ravo_check": "04625781",
    "ravo_respell": "04625781",
    "ravo_account_read": "19-2000145399/0800",
    "ravo_account_to_iban": "19-2000145399/0800",
    "ravo_account_of_iban": "CZ6508000000192000145399",
    "ravo_birth_read": "880125/1680",
    "ravo_isbn_to_13": "0-306-40615-2",
    "ravo_payment_find": "VS 2026000579",
    "ravo_bank_list_open": "code;name;BIC;A\\n0100;A;;\\n",
    "ravo_day_read": "2026-11-21",
    "ravo_suite_timestamp_to_bytes": "00000000000007D1",
    "ravo_suite_caption_find": "rPropertySazbaNulova",
    "ravo_encoding_find": "utf-8",
    "ravo_payment_code_read": "SPD*1.0*ACC:CZ6508000000192000145399*AM:450.00",
    "ravo_payment_code_at": "SPD*1.0*ACC:CZ6508000000192000145399*AM:450.00",
    "ravo_invoice_open": "<Invoice><ID>1</ID></Invoice>",
    "ravo_document_get": "a/d",
    "ravo_suite_item_find": "d",
    "ravo_suite_item_attribute": "b",
}
# And their lengths.
GOOD_BYTES = {"ravo_encoding_of_mark": ('"\\xEF\\xBB\\xBF"', "3"), "ravo_suite_string_from_stream": ('"\\1\\0\\0\\0A"', "6"), "ravo_document_open": ('"<a/>"', "4")}
GOOD_ITEMS = {"ravo_random_open_array": ("random_keys", "4")}
GOOD_NUMBERS = {
    "year": "2026", "month": "11", "day_of_month": "21", "week": "47", "days": "14", "months": "1", "index": "0", "nth": "0",
    "from": "0", "separator": "'.'", "decimal": "','", "places": "2", "percent": "21", "id": "71710", "milliseconds": "0",
    "code": "800", "code_page": "1250", "numerator": "21", "denominator": "121", "moment": "40000.0", "letter": "'M'", "decimals": "2",
    "unit": "0xC0", "wild": "'*'", "one": "'?'", "flags": "0", "level": "2",
}
# By function and parameter.
GOOD_SPECIAL = {
    ("ravo_holiday_on", "day"): "2461042",  # 1 January 2026
    ("ravo_term_in_days", "from"): "2461366",
    ("ravo_term_in_months", "from"): "2461366",
    ("ravo_working_days_between", "from"): "2461366",
    ("ravo_bank_list_open", "date"): "2461366",
    ("ravo_reason_name", "code"): "104",
    ("ravo_reason_sentence", "code"): "104",
    ("ravo_invoice_rule_sentence", "rule"): "101",
    ("ravo_suite_item_parent", "item"): "1",
    ("ravo_suite_item_delete", "item"): "1",
    ("ravo_suite_item_move", "item"): "1",
}
GOOD_BY_TYPE = {"ravo_day": "2461366", "ravo_money": "10000", "double": "1.5", "ravo_progress": "NULL", "ravo_encoding": "0", "ravo_suite_item": "0"}
OPENINGS = {
    "ravo_converter": "ravo_converter_open(0, 0, RAVO_CONVERT_STRICT, &converter, NULL)",
    "ravo_document": "open_checked(&document)",
    "ravo_suite_tree": "ravo_suite_tree_open(SMALL_DOCUMENT, sizeof SMALL_DOCUMENT - 1, &tree, NULL)",
    "ravo_invoice": "ravo_invoice_open(SMALL_INVOICE, RAVO_NUL_TERMINATED, &invoice, NULL)",
    # A seed whose first two draws fit 31 bits, as ravo_random_int64 wants them.
    "ravo_random": "ravo_random_open(2, &random, NULL)",
}
# Functions over structs that the caller fills, and one whose result has no bounds: the tests of their chapters refuse them by hand.
BY_HAND = {"ravo_spayd_write", "ravo_sid_write", "ravo_check_column", "ravo_respell_column", "ravo_crc32_column", "ravo_column_of_arrow", "ravo_arrow_stream",
           "ravo_machine_report", "ravo_document_write", "ravo_suite_tokens"}
BAD_NUMBERS = {"int32_t": "INT32_MIN", "ravo_day": "INT32_MIN", "size_t": "(size_t)-2"}


@dataclasses.dataclass
class Parameter:
    name: str
    type: str  # without const and pointers
    stars: int
    constant: bool
    role: str = ""


@dataclasses.dataclass
class Function:
    name: str
    result: str
    parameters: list[Parameter]


@dataclasses.dataclass
class Header:
    functions: list[Function]
    enums: dict[str, list[int]]  # typedef -> its numbers
    sized: set[str]  # structs that begin with their size
    handles: set[str]  # structs that the header does not define


def parameter(node: c_ast.Decl) -> Parameter:
    stars, kind = 0, node.type
    while isinstance(kind, c_ast.PtrDecl):
        stars, kind = stars + 1, kind.type
    name = " ".join(kind.type.names) if isinstance(kind.type, c_ast.IdentifierType) else f"struct {kind.type.name}"
    return Parameter(node.name, name, stars, "const" in kind.quals)


def with_roles(function: Function, sized: set[str], handles: set[str]) -> Function:
    names = {one.name for one in function.parameters}
    for one in function.parameters:
        length, size = f"{one.name}_length", f"{one.name}_size"
        if one.name == "error":
            one.role = "error"
        elif one.stars == 2:
            one.role = "opened"
        elif one.type in handles:
            is_opened = function.result == "ravo_status" and (one.type in OPENINGS or not one.constant)
            one.role = "open" if is_opened else "handle"
        elif one.name == "context":
            one.role = "context"
        elif one.stars == 1 and one.constant and length in names:
            one.role = {"char": "text", "void": "bytes"}.get(one.type, "items")
        elif one.stars and (one.constant or one.type.startswith("struct ")):
            one.role = "given"
        elif one.stars == 1 and one.type in ("char", "void") and (one.name == "buffer" or size in names):
            one.role = "buffer"
        elif one.stars == 1 and one.name.endswith("length"):
            one.role = "length"
        elif one.stars == 1:
            one.role = "struct" if one.type in sized else "result"
        elif one.name == "size" or one.name.endswith("_size"):
            one.role = "size"
        elif one.name.endswith("_length"):
            one.role = "count"
        else:
            one.role = "value"
    return function


def header_of(tree: c_ast.FileAST) -> Header:
    text = c_generator.CGenerator()
    enums: dict[str, list[int]] = {}
    sized: set[str] = set()
    handles: set[str] = set()
    functions = []
    last = ""
    for node in tree.ext:
        if isinstance(node, c_ast.Decl) and isinstance(node.type, c_ast.Enum) and last:
            enums[last] = [int(text.visit(one.value)) for one in node.type.values.enumerators]
        last = node.name if isinstance(node, c_ast.Typedef) and text.visit(node.type) in ("int32_t", f"int32_t {node.name}") else ""
        if isinstance(node, c_ast.Typedef) and isinstance(node.type.type, c_ast.Struct):
            members = node.type.type.decls
            if not members:
                handles.add(node.name)
            elif members[0].name == "size":
                sized.add(node.name)
        if isinstance(node, c_ast.Decl) and isinstance(node.type, c_ast.FuncDecl) and node.name not in BY_HAND:
            result = text.visit(node.type.type).replace(node.name, "").strip()
            arguments = node.type.args.params if node.type.args else []
            functions.append(Function(node.name, " ".join(result.split()), [parameter(one) for one in arguments if isinstance(one, c_ast.Decl)]))
    enums.pop("ravo_status", None)
    told = [with_roles(one, sized, handles) for one in functions]
    # What takes a struct that the caller fills in, such as a column, has tests of its own.
    return Header([one for one in told if all(other.role != "given" for other in one.parameters)], enums, sized, handles)


def good(function: Function, one: Parameter, header: Header) -> str:
    if one.role == "text":
        return '"' + GOOD_TEXTS.get(function.name, "1") + '"'
    if one.role == "bytes":
        return GOOD_BYTES.get(function.name, ('"1"', "1"))[0]
    if one.role == "items":
        return GOOD_ITEMS.get(function.name, ("NULL", "0"))[0]
    if one.role in ("handle", "context"):
        return "NULL"
    if one.role == "open":
        return one.name
    if one.role == "count":
        owner = next(other for other in function.parameters if other.name == one.name.removesuffix("_length"))
        return {"text": "RAVO_NUL_TERMINATED", "bytes": GOOD_BYTES.get(function.name, ("", "1"))[1]}.get(
            owner.role, GOOD_ITEMS.get(function.name, ("", "0"))[1])
    if one.role == "size":
        return f"sizeof {'buffer' if one.name == 'size' else one.name.removesuffix('_size')}"
    if one.role == "buffer":
        return one.name
    if one.role in ("struct", "result", "length", "error", "opened"):
        return f"&{one.name}"
    if one.type in header.enums:
        return str(header.enums[one.type][0])
    special = GOOD_SPECIAL.get((function.name, one.name), "")
    return special or GOOD_BY_TYPE.get(one.type, "") or GOOD_NUMBERS.get(one.name, "1")


def call(function: Function, header: Header, **changed: str) -> str:
    return f"{function.name}({', '.join(changed.get(one.name) or good(function, one, header) for one in function.parameters)})"


def size_name(one: Parameter) -> str:
    return "size" if one.name == "buffer" else f"{one.name}_size"


def changes(function: Function, header: Header) -> Iterator[tuple[str, dict[str, str], str]]:
    """(what is wrong, changed arguments, status)."""
    for one in function.parameters:
        count = f"{one.name}_length"
        if one.role in ("text", "bytes", "items"):
            yield "null with a length", {one.name: "NULL", count: "1"}, "RAVO_ARGUMENT"
        if one.role == "text":
            yield "ill-formed", {one.name: '"\\xC3("', count: "2"}, "RAVO_UTF8"
        if one.role in ("bytes", "items"):
            yield "no length", {count: "RAVO_NUL_TERMINATED"}, "RAVO_ARGUMENT"
        if one.role == "buffer":
            yield "a null buffer", {one.name: "NULL", size_name(one): "1"}, "RAVO_ARGUMENT"
        if one.role in ("struct", "result", "opened", "open"):
            yield "a null pointer", {one.name: "NULL"}, "RAVO_ARGUMENT"
        if one.role == "struct":
            yield "a struct of no size", {one.name: f"unsized(&{one.name})"}, "RAVO_ARGUMENT"
        if one.name == "flags":
            yield "unknown flags", {one.name: "8"}, "RAVO_ARGUMENT"
            yield "a flag of the sign", {one.name: "0x80000000u"}, "RAVO_ARGUMENT"
        if one.role == "value" and one.type == "ravo_encoding":
            yield "no encoding", {one.name: "-1"}, "RAVO_UNKNOWN" if function.name == "ravo_encoding_at" else "RAVO_ARGUMENT"
            yield "no encoding either", {one.name: "INT32_MAX"}, "RAVO_UNKNOWN" if function.name == "ravo_encoding_at" else "RAVO_ARGUMENT"
        if one.role == "value" and one.type in header.enums:
            yield "a number too low", {one.name: str(min(header.enums[one.type]) - 1)}, "RAVO_ARGUMENT"
            yield "a number too high", {one.name: str(max(header.enums[one.type]) + 1)}, "RAVO_ARGUMENT"
            yield "a number of a low byte", {one.name: str(min(header.enums[one.type]) + 256)}, "RAVO_ARGUMENT"


def outputs_of(function: Function) -> list[Parameter]:
    return [one for one in function.parameters if one.role in ("buffer", "length", "struct", "result", "opened")]


def declaration(one: Parameter) -> str:
    if one.role == "buffer":
        return f"  char {one.name}[512];"
    return f"  {one.type} *{one.name};" if one.role == "opened" else f"  {one.type} {one.name};"


def fresh(outputs: list[Parameter]) -> str:
    return " ".join(f"{'FRESH_STRUCT' if one.role == 'struct' else 'FRESH'}({one.name});" for one in outputs)


def untouched(outputs: list[Parameter]) -> str:
    return " ".join(f"{'UNTOUCHED_STRUCT' if one.role == 'struct' else 'UNTOUCHED'}({one.name});" for one in outputs)


def opening(function: Function) -> tuple[list[str], list[str], list[str]]:
    """Declarations, statements before and after calls with an open handle."""
    handles = [one for one in function.parameters if one.role == "open"]
    return ([f"  {one.type} *{one.name} = NULL;" for one in handles], [f"  EXPECT({OPENINGS[one.type]} == RAVO_OK);" for one in handles],
            [f"  {one.type}_close({one.name});" for one in handles])


def refusal(function: Function, header: Header) -> str:
    outputs = outputs_of(function)
    handles, opened, closed = opening(function)
    closing = " ".join(f"{one.type}_close({one.name});" for one in outputs if one.role == "opened")
    lines = [f"static void refuses_{function.name}(void) {{", *map(declaration, outputs), *handles, "  ravo_error error = RAVO_ERROR_INIT;"]
    for error in ("&error", "NULL", "unsized(&error)"):
        lines += [*opened, f"  {fresh(outputs)}", f"  EXPECT({call(function, header, error=error)} == RAVO_OK);", f"  {closing}", *closed]
    lines += opened
    for what, changed, status in changes(function, header):
        lines += [f"  /* {what} */", f"  {fresh(outputs)}", f"  REFUSED({call(function, header, **changed)}, {status});", f"  {untouched(outputs)}",
                  f"  EXPECT({call(function, header, **changed, error='NULL')} == {status});"]
    lines += closed_handles(function, header, outputs)
    lines += closed
    return "\n".join(line for line in lines if line.strip()) + "\n}\n"


def closed_handles(function: Function, header: Header, outputs: list[Parameter]) -> list[str]:
    """The call after its handle was closed, for a build that knows which are open."""
    handles = [one for one in function.parameters if one.role == "open"]
    if not handles:
        return []
    lines = [f"  {one.type}_close({one.name});" for one in handles]
    lines += ["  /* a closed handle */", f"  {fresh(outputs)}", f"  REFUSED({call(function, header)}, RAVO_ARGUMENT);", f"  {untouched(outputs)}"]
    return ["#ifdef RAVO_CHECK_HANDLES", *lines, *(f"  {one.name} = NULL;" for one in handles), "#endif"]


def plain(function: Function, header: Header) -> str:
    """Functions that return a value: nothing they are given ends the program, and texts are null for what is unknown."""
    lines = [f"static void survives_{function.name}(void) {{"]
    is_text = function.result.startswith("const char")
    if is_text:
        lines.append(f"  EXPECT({call(function, header)} != NULL);")
    else:
        lines.append(f"  (void){call(function, header)};" if function.result != "void" else f"  {call(function, header)};")
    for one in function.parameters:
        bad = [str(min(header.enums[one.type]) - 1), str(max(header.enums[one.type]) + 1)] if one.type in header.enums else [BAD_NUMBERS.get(one.type, "0")]
        if one.role == "value":
            lines += [f"  EXPECT({call(function, header, **{one.name: number})} == NULL);" if is_text
                      else f"  (void){call(function, header, **{one.name: number})};" for number in bad]
    return "\n".join(lines) + "\n}\n"


def refusals(tree: c_ast.FileAST) -> str:
    header = header_of(tree)
    failing = [one for one in header.functions if one.result == "ravo_status"]
    others = [one for one in header.functions if one.result != "ravo_status"]
    bodies = [refusal(one, header) for one in failing] + [plain(one, header) for one in others]
    names = [f"refuses_{one.name}" for one in failing] + [f"survives_{one.name}" for one in others]
    return ("/* Written by tools/generate/c_interface.py from c/ravo.h; not to be edited by hand. */\n\n" + "\n".join(bodies) +
            "\n/* A table, so that no compiler makes one function of them all. */\nstatic void (*const refusals[])(void) = {\n" +
            "".join(f"    {name},\n" for name in names) + "};\n")


def memory_calls(tree: c_ast.FileAST, comments: dict[str, str]) -> str:
    """Each function once, by whether its comment says that it never allocates: a handle's own memory does not count."""
    header = header_of(tree)
    quiet = {one.name for one in header.functions
             if "ever allocates." in comments[one.name] and not any(other.role == "open" for other in one.parameters)}
    text = "/* Written by tools/generate/c_interface.py from c/ravo.h; not to be edited by hand. */\n\n"
    for one in header.functions:
        outputs = outputs_of(one)
        if one.result == "void":
            continue
        closing = " ".join(f"{other.type}_close({other.name});" for other in outputs if other.role == "opened")
        handles, _, closed = opening(one)
        lines = [f"static ravo_status call_{one.name}(void) {{", *map(declaration, outputs), *handles]
        if one.result == "ravo_status":
            lines += ["  ravo_error error = RAVO_ERROR_INIT;", "  ravo_status status;",
                      *(f"  status = {OPENINGS[other.type]};\n  if (status != RAVO_OK) {{\n    {other.type}_close({other.name});\n    return status;\n  }}" for other in one.parameters if other.role == "open"),
                      f"  {fresh(outputs)}", f"  status = {call(one, header)};"]
            if closing:
                lines.append(f"  if (status == RAVO_OK) {closing}")
            lines += [*closed, "  return status;"]
        else:
            lines += [f"  (void){call(one, header)};", "  return RAVO_OK;"]
        text += "\n".join(line for line in lines if line.strip()) + "\n}\n\n"
    rows = [f"    {{\"{one.name}\", call_{one.name}, {int(one.name in quiet)}}},\n"
            for one in header.functions if one.result != "void"]
    return text + "static const memory_call memory_calls[] = {\n" + "".join(rows) + "};\n"
