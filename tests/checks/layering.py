#!/usr/bin/env python3
"""Layering: which room may include which, cycles, names of the operating system, and the headers that public ones include."""

import pathlib
import re
import sys

from source_tree import Planting, code_files, includes, main, read, without_comments

# File -> [(line, file of this tree that it includes)].
Graph = dict[str, list[tuple[int, str]]]
ANYTHING = None
PUBLIC = "ravo/*.h"
HOST_HEADER = "ravo/package.h"
CHARACTERS = "ravo/unicode/characters"
EXPORT_HEADER = "ravo/runtime/export.h"
# Rows of messages that a lower room uses too.
UTILS_MESSAGES = "ravo/utils/messages.inc"
# Parts of a room that have arrows of their own and no row in the document.
PARTS = {HOST_HEADER, CHARACTERS, EXPORT_HEADER, UTILS_MESSAGES}
# Parts that a room may use in addition to its row in the document.
UNSAID = {
    "ravo/unicode": {"unicode/characters"},
    "ravo/runtime": {"runtime/export.h"},
    "ravo/utils": {"utils/messages.inc"},
}

# The arrows. docs/architecture.md has the same table; check_document compares the two.
MAY_USE: dict[str, set[str] | None] = {
    PUBLIC: ANYTHING,
    HOST_HEADER: {"runtime", "frame"},
    EXPORT_HEADER: set(),
    UTILS_MESSAGES: set(),
    "ravo/runtime": {"runtime/export.h"},
    "ravo/codec": {"runtime"},
    "ravo/platform": {"runtime", "codec"},
    "ravo/frame": {"runtime", "platform", "package.h"},
    "ravo/catalogue": {"runtime", "platform", "frame"},
    "ravo/unicode": {"runtime", "codec", "platform", "frame", "unicode/characters", "utils/messages.inc"},
    CHARACTERS: {"runtime/export.h"},
    "ravo/utils": {"runtime", "codec", "platform", "frame", "unicode/characters", "utils/messages.inc"},
    "ravo/common": {"runtime", "platform", "frame", "catalogue", "utils"},
    "ravo/czech": {"runtime"},
    "ravo/convert": {"codec"},
    "ravo/document": {"runtime", "codec", "convert", "unicode", "utils", "xml", "czech"},
    "ravo/order": {"convert"},
    "ravo/isdoc": {"runtime", "czech"},
    "ravo/sysinfo": {"runtime", "platform", "frame", "common"},
    "ravo/xml": {"runtime", "codec", "platform", "frame"},
    "ravo/formout": {"runtime", "codec", "platform", "frame", "unicode"},
    "ravo/hostapi": {"runtime", "platform", "frame"},
    "c": {"runtime", "codec", "convert", "frame", "catalogue", "unicode", "utils", "common", "czech", "isdoc", "document", "xml", "sysinfo", "formout", "order"},
    "tools/ravo": {PUBLIC, "codec", "convert", "czech", "document", "isdoc", "order"},
}
SCANNED = ("ravo", "c", "tools/ravo")

SYSTEM_NAME = re.compile(
    r"\b(_WIN32|_WIN64|WIN32|__MINGW32__|__MINGW64__|__CYGWIN__|__linux__|__unix__|__APPLE__|_MSC_VER)\b"
)
SYSTEM_HEADER = re.compile(r"^(windows|winver|unistd|dlfcn|sys/.*|win(base|nt|user|reg)|ole.*|shlobj)\.h$", re.I)
# Sources that CMake selects by the target system have names that say so; tests mirror the library.
SYSTEM_SOURCE = re.compile(r"^(ravo/platform/|tests/platform/|tests/support/|tests/\w+/(posix|linux|win32|windows_names)/)|^ravo/runtime/export\.h$|_(win32|posix)\.(cpp|c|h)$")
C_STANDARD = {"stddef.h", "stdint.h"}
# Vector instructions have one home, and the one job elsewhere that is made of nothing else.
VECTOR_HEADER = re.compile(r"^([a-z0-9]*intrin|arm_neon|cpuid)\.h$")
VECTOR_SOURCE = re.compile(r"^ravo/codec/kernels/|^ravo/utils/crc32_carryless\.cpp$")
# The headers of ravo/platform that public headers may reach; the others are private.
PLATFORM_LEAVES = {f"ravo/platform/{name}.h" for name in ("file_handle", "file_stream", "registry_root", "text_size")}
# The folders of ravo/platform for one system each, and those that each may use beside itself.
SYSTEMS: dict[str, set[str]] = {"posix": set(), "linux": {"posix"}, "win32": set()}


def room_of(name: str) -> str | None:
    """The room of a file, named by its path from the root; None outside every room."""
    if name in (HOST_HEADER, EXPORT_HEADER, UTILS_MESSAGES):
        return name
    if re.fullmatch(r"ravo/[^/]+\.h", name):
        return PUBLIC
    # `characters` is a part of the room `unicode` with its own arrows, a folder or files of that stem.
    if re.match(r"ravo/unicode/characters[./_]", name):
        return CHARACTERS
    rooms = [room for room in MAY_USE if name.startswith(room + "/")]
    return max(rooms, key=len) if rooms else None


def target_of(root: pathlib.Path, source: pathlib.Path, quote: str, name: str) -> str | None:
    """The file of this tree that an #include line names; None for anything else."""
    places = [root / name] if quote == "<" else [source.parent / name, root / name]
    for place in places:
        if place.is_file() and place.resolve().is_relative_to(root.resolve()):
            return place.resolve().relative_to(root.resolve()).as_posix()
    return None


def allowed(source_room: str, target_room: str) -> bool:
    uses = MAY_USE[source_room]
    if source_room == target_room or uses is ANYTHING:
        return True
    short = target_room.removeprefix("ravo/") if target_room != PUBLIC else PUBLIC
    return short in uses or short.split("/")[0] in uses or (target_room == HOST_HEADER and PUBLIC in uses)


def include_graph(root: pathlib.Path) -> Graph:
    return {
        path.relative_to(root).as_posix(): [
            (line, target)
            for line, quote, name in includes(path)
            if (target := target_of(root, path, quote, name))
        ]
        for path in code_files(root, *SCANNED)
    }


def check_arrows(graph):
    for source, edges in graph.items():
        source_room = room_of(source)
        if source_room is None:
            yield f"{source}: stands in no room"
            continue
        for line, target in edges:
            target_room = room_of(target)
            if target_room is None or not allowed(source_room, target_room):
                yield f"{source}:{line}: {source_room} may not use {target_room or 'what is in no room'} ({target})"


def check_circles(graph):
    done = set()
    path: list[str] = []

    def walk(name):
        if name in path:
            yield "circle: " + " -> ".join(path[path.index(name) :] + [name])
        elif name not in done:
            path.append(name)
            for _, target in graph.get(name, []):
                yield from walk(target)
            path.pop()
            done.add(name)

    for name in graph:
        yield from walk(name)


def check_system_names(root):
    for path in code_files(root, "ravo", "tools", "tests", "bench", "fuzz"):
        name = path.relative_to(root).as_posix()
        if SYSTEM_SOURCE.search(name):
            continue
        for number, line in enumerate(without_comments(read(path)).splitlines(), 1):
            if found := SYSTEM_NAME.search(line):
                yield f"{name}:{number}: {found.group(1)} belongs to ravo/platform alone"
        for number, quote, header in includes(path):
            if quote == "<" and SYSTEM_HEADER.match(header):
                yield f"{name}:{number}: <{header}> belongs to ravo/platform alone"


def check_vector_headers(root):
    for path in code_files(root, "ravo", "tools"):
        name = path.relative_to(root).as_posix()
        for number, quote, header in includes(path):
            if quote == "<" and VECTOR_HEADER.match(header) and not VECTOR_SOURCE.search(name):
                yield f"{name}:{number}: <{header}> belongs to ravo/codec/kernels alone"


def public_files(graph: Graph) -> list[str]:
    """The headers that a program can reach from the public ones, in a fixed order."""
    reached, waiting = set(), [name for name in graph if room_of(name) in (PUBLIC, HOST_HEADER)]
    while waiting:
        name = waiting.pop()
        if name not in reached:
            reached.add(name)
            waiting += [target for _, target in graph.get(name, [])]
    return sorted(reached)


def check_public_headers(root, graph):
    """Nothing that a public header reaches may include a system header."""
    for name in public_files(graph):
        for line, quote, header in includes(root / name):
            standard = header in C_STANDARD or re.fullmatch(r"[a-z0-9_]+", header)
            if not target_of(root, root / name, quote, header) and not standard:
                yield f"{name}:{line}: a public header reaches the system header {header}"


def check_private_headers(graph):
    """No public header reaches a private header of ravo/platform."""
    for name in public_files(graph):
        for line, target in graph.get(name, []):
            if target.startswith("ravo/platform/") and target not in PLATFORM_LEAVES:
                yield f"{name}:{line}: a public header reaches {target}, which is private"


def system_of(name: str) -> str | None:
    """The system whose folder of ravo/platform a file is in."""
    found = re.match(r"ravo/platform/(\w+)/", name)
    return found[1] if found and found[1] in SYSTEMS else None


def check_systems(graph):
    """Only a system's own folder, or that of one which has all of it, uses what a system has."""
    for source, edges in graph.items():
        own = system_of(source)
        may_use = {own} | (SYSTEMS[own] if own else set())
        for line, target in edges:
            if (system := system_of(target)) and system not in may_use:
                yield f"{source}:{line}: may not use what {system} alone has ({target})"


def document_table(root):
    """Room -> the text of its 'may use' cell, from the table of docs/architecture.md."""
    table = {}
    for line in read(root / "docs/architecture.md").splitlines():
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if line.startswith("| `") and len(cells) == 3:
            for name in re.findall(r"`([^`]+)`", cells[0]):
                table[name.rstrip("/")] = cells[2]
    return table


def arrows_of(cell):
    """The rooms that a cell names before its first ";"; the rest is a remark."""
    if cell == "everything":
        return ANYTHING
    face = {PUBLIC} if cell.startswith("the public headers") else set()
    return face | set(re.findall(r"`([^`]+)`", cell.split(";")[0]))


def check_document(root):
    table = document_table(root)
    if "its `characters` use `runtime/export.h` alone" not in table.get("ravo/unicode", ""):
        yield "docs/architecture.md: does not say that unicode's `characters` use runtime/export.h alone"
    for room, uses in MAY_USE.items():
        if room in PARTS:
            continue
        if room not in table:
            yield f"docs/architecture.md: has no row for {room}"
        elif arrows_of(table[room]) != (uses - UNSAID.get(room, set()) if uses is not ANYTHING else uses):
            yield f"docs/architecture.md: the row of {room} says '{table[room]}', the check knows {uses}"
    for room in table:
        if room.startswith("ravo/") and room not in MAY_USE:
            yield f"docs/architecture.md: the check does not know the room {room}"


def check(root):
    graph = include_graph(root)
    return [
        *check_arrows(graph),
        *check_circles(graph),
        *check_system_names(root),
        *check_vector_headers(root),
        *check_public_headers(root, graph),
        *check_private_headers(graph),
        *check_systems(graph),
        *check_document(root),
    ]


def _document(changed=None):
    """A table that agrees with the arrows, one row replaced."""

    def cell(room, uses):
        if uses is ANYTHING:
            return "everything"
        named = sorted(uses - UNSAID.get(room, set()), key=lambda use: (use != PUBLIC, use))
        words = ", ".join("the public headers" if use == PUBLIC else f"`{use}`" for use in named)
        remark = "; its `characters` use `runtime/export.h` alone" if room == "ravo/unicode" else ""
        return (words or "nothing of ours") + remark

    rows = {room: cell(room, uses) for room, uses in MAY_USE.items() if room not in PARTS}
    rows.update(changed or {})
    return "".join(f"| `{room}` | x | {uses} |\n" for room, uses in rows.items() if uses is not None)


def _tree(files, changed=None):
    base = {"docs/architecture.md": _document(changed), "ravo/runtime/a.h": "", "ravo/common/b.h": ""}
    return {**base, **files}


PLANTINGS: list[Planting] = [
    ("a good tree", _tree({"ravo/common/c.cpp": "#include <ravo/runtime/a.h>\n#include <vector>\n"}), None),
    ("an upward arrow", _tree({"ravo/runtime/c.h": "\n#include <ravo/common/b.h>\n"}), "runtime/c.h:2: ravo/runtime may not"),
    ("a quoted upward arrow", _tree({"ravo/runtime/c.h": '#include "../common/b.h"\n'}), "ravo/runtime may not"),
    ("an arrow in a comment", _tree({"ravo/runtime/c.h": "/*\n#include <ravo/common/b.h>\n*/\n"}), None),
    ("the tool reaches inside", _tree({"tools/ravo/m.cpp": "#include <ravo/runtime/a.h>\n"}), "tools/ravo may not"),
    ("the tool at the face", _tree({"ravo/P.h": "", "tools/ravo/m.cpp": "#include <ravo/P.h>\n"}), None),
    ("the host's header", _tree({"ravo/package.h": "#include <stdint.h>\n", "ravo/frame/f.h": "#include <ravo/package.h>\n"}), None),
    ("the host's header elsewhere", _tree({"ravo/package.h": "", "ravo/xml/f.h": "#include <ravo/package.h>\n"}), "ravo/xml may not"),
    ("the host's header and the system", _tree({"ravo/package.h": "#include <dlfcn.h>\n"}), "reaches the system header"),
    ("a room unknown", _tree({"ravo/attic/a.h": ""}), "stands in no room"),
    ("characters from utils", _tree({"ravo/unicode/characters.h": "", "ravo/utils/u.h": "#include <ravo/unicode/characters.h>\n"}), None),
    ("reader from utils", _tree({"ravo/unicode/reader.h": "", "ravo/utils/u.h": "#include <ravo/unicode/reader.h>\n"}), "ravo/utils may not"),
    ("messages of utils in unicode", _tree({"ravo/utils/messages.inc": "", "ravo/unicode/r.h": "#include <ravo/utils/messages.inc>\n"}), None),
    ("utils in unicode", _tree({"ravo/utils/u.h": "", "ravo/unicode/r.h": "#include <ravo/utils/u.h>\n"}), "ravo/unicode may not"),
    ("characters using runtime", _tree({"ravo/unicode/characters.h": "#include <ravo/runtime/a.h>\n"}), "characters may not"),
    ("characters that are exported", _tree({"ravo/runtime/export.h": "", "ravo/unicode/characters.h": "#include <ravo/runtime/export.h>\n"}), None),
    (
        "a circle",
        _tree({"ravo/xml/a.h": "#include <ravo/xml/b.h>\n", "ravo/xml/b.h": "#include <ravo/xml/a.h>\n"}),
        "circle: ravo/xml/a.h -> ravo/xml/b.h -> ravo/xml/a.h",
    ),
    ("a system's macro", _tree({"ravo/xml/a.cpp": "#ifdef _WIN32\n#endif\n"}), "xml/a.cpp:1: _WIN32"),
    ("a system's macro in words", _tree({"ravo/xml/a.cpp": '// _WIN32\nauto a = "_WIN32";\n'}), None),
    ("a system's header", _tree({"tests/xml/a.cpp": "#include <windows.h>\n"}), "<windows.h> belongs"),
    ("the system where it belongs", _tree({"ravo/platform/win32/a.cpp": "#include <windows.h>\n#ifdef _WIN32\n#endif\n"}), None),
    ("vectors", _tree({"ravo/xml/a.h": "#include <emmintrin.h>\n"}), "xml/a.h:1: <emmintrin.h> belongs"),
    ("vectors in the program", _tree({"tools/ravo/a.cpp": "#include <immintrin.h>\n"}), "<immintrin.h> belongs"),
    ("vectors where they belong", _tree({"ravo/codec/kernels/a.h": "#include <immintrin.h>\n", "ravo/utils/crc32_carryless.cpp": "#include <immintrin.h>\n"}), None),
    ("a public header", _tree({"ravo/P.h": "#include <sys/stat.h>\n"}), "reaches the system header sys/stat.h"),
    (
        "a public header at second hand",
        _tree({"ravo/P.h": "#include <ravo/platform/q.h>\n", "ravo/platform/q.h": "#include <windows.h>\n"}),
        "platform/q.h:1: a public header reaches",
    ),
    ("a leaf header", _tree({"ravo/P.h": "#include <ravo/platform/text_size.h>\n", "ravo/platform/text_size.h": ""}), None),
    (
        "a private header",
        _tree({"ravo/P.h": "#include <ravo/runtime/b.h>\n#include <ravo/platform/q.h>\n", "ravo/platform/q.h": "", "ravo/runtime/b.h": ""}),
        "ravo/P.h:2: a public header reaches ravo/platform/q.h, which is private",
    ),
    (
        "a private header at second hand",
        _tree({"ravo/P.h": "#include <ravo/xml/x.h>\n", "ravo/xml/x.h": "#include <ravo/platform/q.h>\n", "ravo/platform/q.h": ""}),
        "xml/x.h:1: a public header reaches",
    ),
    ("Linux on POSIX", _tree({"ravo/platform/linux/a.cpp": "#include <ravo/platform/posix/p.h>\n", "ravo/platform/posix/p.h": ""}), None),
    (
        "POSIX on Linux",
        _tree({"ravo/platform/posix/a.cpp": "#include <ravo/platform/linux/p.h>\n", "ravo/platform/linux/p.h": ""}),
        "may not use what linux alone has",
    ),
    (
        "a system in the common folder",
        _tree({"ravo/platform/a.cpp": "#include <ravo/platform/win32/p.h>\n", "ravo/platform/win32/p.h": ""}),
        "platform/a.cpp:1: may not use what win32 alone has",
    ),
    ("a row that disagrees", _tree({}, {"ravo/xml": "`runtime`, `common`"}), "the row of ravo/xml"),
    ("a row that is missing", _tree({}, {"ravo/xml": None}), "no row for ravo/xml"),
    ("a row too many", _tree({}, {"ravo/attic": "`runtime`"}), "does not know the room ravo/attic"),
]

if __name__ == "__main__":
    if sys.argv[1:] == ["--public"]:
        root = pathlib.Path(__file__).resolve().parents[2]
        print("\n".join(name for name in public_files(include_graph(root)) if name.endswith(".h")))
    else:
        main(check, PLANTINGS)
