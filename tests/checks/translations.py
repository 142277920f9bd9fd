#!/usr/bin/env python3
"""Every text for people in the program has a Czech translation with the same places for values, no translation is left
over, and the compiled-in table is that of the catalogue. Help and errors are given to the parser as such texts. Where
this machine has GNU gettext, it reads the catalogue too.
"""

import pathlib
import re
import subprocess
import sys

from source_tree import code_files, main

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "generate"))
import texts  # noqa: E402

PLACE = re.compile(r"\{\d\}")
# Command lines in examples: what is typed is the same in every language, apart from texts in quotes and remarks.
TYPED = re.compile(r"^  (ravo [^\n]*?)(?:  .*)?$", re.M)

# Calls whose arguments people read.
SHOWING = {
    "add_option", "add_option_function", "add_flag", "add_flag_callback", "add_subcommand", "footer", "description", "Complain",
    "ValidationError", "RequiredError", "runtime_error", "length_error",
}  # fmt: skip
CONSTANT = re.compile(r"k[A-Z]\w*")


def places(text):
    return set(PLACE.findall(text))


def wrong_form(entry, number, form):
    """What is wrong with a translation, or nothing."""
    if not form.strip():
        return "no translation of"
    wanted = places(entry.many or entry.one)
    # "one row" may count without a figure.
    without_count = wanted - {"{0}"} if entry.many is not None and number == 0 else wanted
    if not without_count <= places(form) <= wanted:
        return "other places for values in"
    if entry.one.endswith("\n") != form.endswith("\n"):
        return "another line end in"
    if [line.split()[:2] for line in TYPED.findall(entry.one)] != [line.split()[:2] for line in TYPED.findall(form)]:
        return "other commands in"
    return ""


def untranslated(code):
    """Words and constants among the arguments of these calls that are in no Text(...)."""
    for index, token in enumerate(code):
        call = index + 1
        if token in SHOWING and code[call : call + 1] == ["<"]:
            call = code.index("(", call)
        if token not in SHOWING or code[call : call + 1] != ["("]:
            continue
        called = [""]
        for place in range(call + 1, len(code)):
            part = code[place]
            if part == "(":
                called.append(code[place - 1])
            elif part == ")":
                called.pop()
            if not called:
                break
            if texts.LITERAL_PLACES.keys() & set(called):
                continue
            if texts.is_literal(part) and re.search(r"\w \w|\w\w: ", texts.value(part)):
                yield token, part
            if token == "footer" and len(called) == 1 and CONSTANT.fullmatch(part):
                yield token, part


def untranslated_findings(root):
    for path in code_files(root, texts.SOURCES):
        for call, part in untranslated(texts.tokens(path.read_text(encoding="utf-8"))):
            yield f"{path.relative_to(root).as_posix()}: {call} shows {part} without Text"


def gettext_findings(path):
    """What the tools of translators say about the catalogue."""
    try:
        done = subprocess.run(["msgfmt", "--check", "--output-file=-", str(path)], capture_output=True, check=False)
    except FileNotFoundError:
        return []
    return [f"msgfmt: {line}" for line in done.stderr.decode().splitlines()] if done.returncode else []


def check(root):
    path = root / texts.CATALOGUE
    if not path.exists():
        return []
    try:
        entries = texts.merged(root)
    except texts.Glued as finding:
        return [str(finding)]
    found = []
    for entry in entries.values():
        for number, form in enumerate(entry.forms or [""]):
            if fault := wrong_form(entry, number, form):
                found.append(f"{entry.files[0]}: {fault} {entry.one!r}")
    catalogue = path.read_text(encoding="utf-8")
    unused = texts.read_catalogue(catalogue).keys() - entries.keys()
    found += [f"{texts.CATALOGUE}: nothing says {one!r}" for one in sorted(unused)]
    if not found and catalogue != texts.catalogue(entries):
        found.append(f"{texts.CATALOGUE} is out of date: run tools/generate/texts.py")
    table = root / texts.TABLE
    if not found and (not table.exists() or table.read_text(encoding="utf-8") != texts.table(entries)):
        found.append(f"{texts.TABLE} is out of date: run tools/generate/texts.py")
    return found + list(untranslated_findings(root)) + gettext_findings(path)


def tree(code, *forms, extra="", one="{0} of one row", many=None, table=None):
    """A tree with one source and a catalogue whose only entry has these forms."""
    entry = texts.Entry(one, many, ["tools/ravo/a.cpp"], list(forms))
    entries = {one: entry}
    return {
        "tools/ravo/a.cpp": code,
        texts.CATALOGUE: texts.catalogue(entries) + extra,
        texts.TABLE: texts.table(entries) if table is None else table,
    }


CODE = 'auto a = Text("{0} of " "one row", {name});  // Text("not this")\nauto b = Text(a);\nstd::string Text(int x);\n'
COUNTED = 'auto a = TextOf(Size(b, "c"), "one row", "{0} rows");\n'
PLANTINGS = [
    ("a good tree", tree(CODE, "{0} z řádku"), None),
    ("a table of constants", tree('Row r = {1, ToTranslate("{0} of one row")};', "{0} z řádku"), None),
    ("a macro's row", tree('X(A, ToTranslate("{0} of one row"))', "{0} z řádku"), None),
    ("a raw literal", tree('auto a = Text(R"({0} of one row)");', "{0} z řádku"), None),
    ("a choice", tree('auto a = Text(x ? ToTranslate("{0} of one row") : ToTranslate("{0} of one row"));', "{0} z řádku"), None),
    ("plural forms", tree(COUNTED, "jeden řádek", "{0} řádky", "{0} řádků", one="one row", many="{0} rows"), None),
    ("no translation", tree(CODE, ""), "no translation of '{0} of one row'"),
    ("a new text", tree(CODE + 'auto c = Text("new");', "{0} z řádku"), "no translation of 'new'"),
    ("a form short", tree(COUNTED, "{0} řádek", "{0} řádky", "", one="one row", many="{0} rows"), "no translation of"),
    ("no place", tree(CODE, "z řádku"), "other places"),
    ("a place too many", tree(CODE, "{0} z {1}"), "other places"),
    ("no count", tree(COUNTED, "řádek", "řádky", "{0} řádků", one="one row", many="{0} rows"), "other places"),
    ("a text left over", tree(CODE, "{0} z řádku", extra='\nmsgid "gone"\nmsgstr "pryč"\n'), "nothing says 'gone'"),
    ("an old table", tree(CODE, "{0} z řádku", table="\n"), "cs.inc is out of date"),
    ("other comments", tree(CODE, "{0} z řádku", extra="# a remark\n"), "cs.po is out of date"),
    ("a glued text", tree(CODE + 'auto c = Text("a" + b);', "{0} z řádku"), "not one literal"),
    ("a choice of literals", tree(CODE + 'auto c = Text(x ? "a" : "b");', "{0} z řádku"), "not one literal"),
    ("no line end", tree(r'auto a = Text("a\n");', "á", one="a\n"), "another line end"),
    ("another command", tree(r'auto a = Text("  ravo date\n");', "  ravo datum\n", one="  ravo date\n"), "other commands"),
    ("help", tree(CODE + 'c.add_flag("--a", a, "Two words");', "{0} z řádku"), "add_flag shows \"Two words\" without Text"),
    ("help by a function", tree(CODE + 'c.add_option_function<int>("--a", [](int) {}, "Two words");', "{0} z řádku"), "Two words"),
    ("a glued help", tree(CODE + 'c.add_option("--a", a, "Names: " + Text("{0} of one row"));', "{0} z řádku"), "Names: "),
    ("a raw footer", tree(CODE + "c.footer(kFooter);", "{0} z řádku"), "footer shows kFooter"),
    ("a raw error", tree(CODE + 'throw CLI::ValidationError("two words");', "{0} z řádku"), "two words"),
    ("shown by Text", tree(CODE + 'c.add_flag("--a", a, Text("{0} of one row")); c.footer(Text(kFooter));', "{0} z řádku"), None),
    ("a caught error", tree(CODE + 'catch (const std::runtime_error&) { a = Text("{0} of one row"); }', "{0} z řádku"), None),
    ("a file and why", tree(CODE + 'Complain(outcome, file + ": " + why, Answer::No);', "{0} z řádku"), None),
    ("no catalogue", {"tools/ravo/a.cpp": CODE}, None),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
