"""Files that `ravo` reads and writes: reports, sums, conversions, tables."""

import json
import os
import pathlib
import threading
import zlib

from harness import NO, WRONG_USAGE, YES


def outline(nodes, depth=0):
    """Depth, caption and presence of a value, line by line, from the report's JSON."""
    for node in nodes:
        yield depth, node["caption"], "value" in node
        yield from outline(node.get("items", []), depth + 1)


def outline_of_text(report):
    for line in report.splitlines():
        depth = len(line) - len(line.lstrip("\t"))
        caption, separator, _ = line[depth:].partition(": ")
        yield depth, caption, bool(separator)


def check_report_json(program):
    """The JSON of the report has every line of its text, at the same depth and in the same order."""
    layers: tuple[list[str], ...] = ([], ["--business"])
    for layer in layers:
        text = list(outline_of_text(program.run(["report", *layer]).out))
        nested = list(outline(json.loads(program.run(["report", "--json", *layer]).out)))
        if text != nested:
            yield f"report {layer}: lines and JSON differ: {set(text) ^ set(nested)}"
        # The minimum of any machine, even without disks and files of the suite.
        if len(text) < 35:
            yield f"report {layer}: only {len(text)} lines"


def check_report_file(program):
    """A report in a file keeps its CR LF, replaces the old file, and leaves no draft beside it."""
    name = "zpráva o počítači.txt"
    file = program.folder / name
    for before in (None, "an older, longer text" * 1000):
        if before:
            file.write_text(before, encoding="utf-8")
        result = program.run(["report", "-o", name])
        if (result.status, result.out, result.err) != (YES, "", ""):
            yield f"report -o {name}: {result}"
        content = file.read_bytes()
        if not content.startswith("Informace o klientské vrstvě\r\n\tČasové".encode()):
            yield f"report -o {name}: begins with {content[:60]!r}"
        if content.count(b"\r\n") != content.count(b"\n") or not content.endswith(b"\r\n"):
            yield f"report -o {name}: a line does not end in CR LF"
    program.run(["report", "--json", "-o", name])
    json.loads(file.read_bytes().decode("utf-8"))
    if left := [path.name for path in program.folder.iterdir() if path != file]:
        yield f"report -o {name}: left {left} beside it"


def check_sums(program):
    """Sums of files of any size equal zlib's, and a list of them verifies until a file changes."""
    contents = {"prázdný": b"", "check 1": b"123456789", "large": bytes(range(251)) * 3000}
    for name, content in contents.items():
        (program.folder / name).write_bytes(content)
    result = program.run(["hash", "crc32", *contents])
    wanted = "".join(f"{zlib.crc32(content):08X}  {name}\n" for name, content in contents.items())
    if (result.status, result.out, result.err) != (YES, wanted, ""):
        yield f"hash crc32: {result}"
    for words in (["hash", "crc32"], ["hash", "crc32", "-"]):
        result = program.run(words, given="large")
        if (result.status, result.out, result.err) != (YES, f"{zlib.crc32(contents['large']):08X}  -\n", ""):
            yield f"hash of standard input: {result}"
    labelled = program.run(["hash", "--all", "check 1"]).out
    if labelled != "CRC32 (check 1) = CBF43926\nHASH (check 1) = 4BF83526\nHASH-IA (check 1) = 4BF83526\n":
        yield f"hash --all: {labelled!r}"
    if json.loads(program.run(["hash", "--all", "--json", "large"]).out)[0]["crc32"] != f"{zlib.crc32(contents['large']):08X}":
        yield "hash --json: another sum"
    sums = program.folder / "list.sum"
    all_right = "".join(f"{name}: OK\n" for name in contents)
    for text in (wanted, wanted.lower().replace("  ", " *"), "# sums\n\n" + wanted.replace("\n", "\r\n")):
        sums.write_text(text, encoding="utf-8", newline="")
        result = program.run(["hash", "crc32", "--check", "list.sum"])
        if (result.status, result.out, result.err) != (YES, all_right, ""):
            yield f"hash --check {text!r}: {result}"
    result = program.run(["hash", "crc32", "--check", "-"], given="list.sum")
    if (result.status, result.out, result.err) != (YES, all_right, ""):
        yield f"hash --check of a list from standard input: {result}"
    sums.write_text(labelled + "nonsense\n", encoding="utf-8")
    result = program.run(["hash", "--check", "list.sum"])
    if (result.status, result.out) != (NO, "check 1: OK\n" * 3) or "one line is not a sum" not in result.err:
        yield f"hash --check with a line too many: {result}"
    sums.write_text(wanted + "CBF43926  gone\n", encoding="utf-8")
    (program.folder / "check 1").write_bytes(b"123456788")
    result = program.run(["hash", "crc32", "--check", "list.sum"])
    if result.status != WRONG_USAGE or result.out != "prázdný: OK\ncheck 1: FAILED\nlarge: OK\ngone: FAILED open or read\n":
        yield f"hash --check after a change: {result}"
    if "one sum does NOT match" not in result.err or "one listed file cannot be read" not in result.err:
        yield f"hash --check after a change: {result.err!r}"
    sums.write_text("nonsense\n", encoding="utf-8")
    if program.run(["hash", "crc32", "--check", "list.sum"]).status != WRONG_USAGE:
        yield "hash --check without a sum: no failure"
    for name in (*contents, "list.sum"):
        (program.folder / name).unlink()


def check_conversions(program):
    """Texts are converted; unreadable input or output ends the conversion and keeps the old file."""
    source, target = program.folder / "příliš.txt", program.folder / "cíl.txt"
    text = "Příliš žluťoučký kůň\r\n" * 1000

    def convert(*options, content, status=YES):
        """The contents of the target; the old bytes are "old"."""
        source.write_bytes(content)
        target.write_bytes(b"old")
        result = program.run(["convert", *options, source.name, "-o", target.name])
        if (result.status, result.out, bool(result.err)) != (status, "", status != YES):
            return repr(result).encode()
        return target.read_bytes() if status == YES else target.read_bytes() + result.err.encode()

    rows = [
        (("-f", "windows-1250", "-t", "UTF_8"), text.encode("cp1250"), text.encode()),
        (("-f", "utf-8", "-t", "1250"), text.encode(), text.encode("cp1250")),
        (("-f", "utf8", "-t", "utf-7"), "kůň".encode(), "kůň".encode("utf-7")),
        (("-f", "utf8", "-t", "utf-16be"), text.encode(), text.encode("utf-16-be")),
        (("-f", "utf-8", "-t", "1250", "--replace", "!"), "a\u4e00č\U0001f600".encode(), b"a!\xe8!"),
        (("-f", "utf-8", "-t", "1250", "--replace", "\u4e00"), "\u4e00".encode(), b"?"),
        (("-f", "utf-16be", "-t", "utf-8", "--replace", "?"), b"\0a\xdc\0\0b", "a\ufffdb".encode()),
    ]
    for options, content, wanted in rows:
        if (got := convert(*options, content=content)) != wanted:
            yield f"convert {' '.join(options)}: {got[:300]!r}, not {wanted[:60]!r}"
    refused = [
        (("-f", "utf-8", "-t", "1250"), "ab\nc\u4e00".encode(), "2:2: U+4E00 cannot be written in Windows-1250"),
        (("-f", "utf-8", "-t", "1250"), text.encode() + "\u4e00".encode(), "1001:1: U+4E00"),
        (("-f", "utf-8", "-t", "utf-8"), b"a\xff", "1:2: bytes that cannot be read"),
        (("-f", "utf-16be", "-t", "utf-8"), b"\0a\xdc\0\0b", "1:2: bytes that cannot be read in UTF-16, big-endian: DC 00"),
    ]
    for options, content, told in refused:
        got = convert(*options, content=content, status=NO).decode()
        if not got.startswith("old") or told not in got or source.name not in got:
            yield f"convert {' '.join(options)}: {got!r}"
    source.write_bytes("ab\nc\u4e00d".encode())
    early = program.run(["convert", "-f", "utf-8", "-t", "1250", source.name])
    if (early.status, early.out) != (NO, "ab\nc") or "2:2: U+4E00" not in early.err:
        yield f"convert to standard output, up to what ends it: {early}"
    source.write_bytes("č".encode("cp1250"))
    several = program.run(["convert", "-f", "1250", "-t", "utf-8", source.name, "-", source.name])
    if (several.status, several.out, several.err) != (YES, "čč", ""):
        yield f"convert of two files and standard input: {several}"
    source.write_bytes(b"+AGE")
    target.write_bytes(b"AYg-c")
    open_run = program.run(["convert", "-f", "utf-7", "-t", "utf-8", source.name, target.name])
    if (open_run.status, open_run.out) != (YES, "aAYg-c"):
        yield f"convert of a file that ends inside base 64 and another one: {open_run}"
    source.write_bytes("č".encode("cp1250"))
    program.run(["convert", "-f", "1250", "-t", "utf-8", source.name, "-o", source.name])
    if source.read_bytes() != "č".encode():
        yield "convert of a file onto itself: another text"
    away = program.run(["convert", "-f", "1250", "-t", "utf-8", source.name, "-o", "nowhere/x"])
    if away.status != WRONG_USAGE or "nowhere/x: cannot be written" not in away.err:
        yield f"convert into a folder that is not there: {away}"
    source.unlink()
    target.unlink()
    if left := [path.name for path in program.folder.iterdir() if path.name.startswith(("cíl", "příliš"))]:
        yield f"convert: left {left}"


def check_full_device(program):
    """Output that cannot be written is a failure."""
    if program.emulated or not pathlib.Path("/dev/full").exists():
        return
    with open("/dev/full", "wb") as full:
        result = program.run(["table", "10110"], out=full)
    if result.status != WRONG_USAGE or not result.err:
        yield f"table 10110 >/dev/full: {result}"
    if program.run(["report", "-o", "/dev/full"]).status != WRONG_USAGE:
        yield "report -o /dev/full: no failure"
    if not pathlib.Path("/dev/full").is_char_device():
        yield "report -o /dev/full: the device is gone"


PIPED = {
    ("xml", "show"): (b'\xef\xbb\xbf<?xml version="1.0"?>\n<a/>\n', YES),
    ("xml", "format", "--suite"): (b'<?xml version="1.0"?>\n' + b"<abc/>\n" * 20000, YES),
    ("sort",): (b"b\na\n" * 40000, YES),
    ("hash", "crc32"): (b"123456789" * 10000, YES),
    ("hash", "crc32", "--check"): (b"00000000  gone\n" * 3, WRONG_USAGE),
    ("convert", "-f", "windows-1250", "-t", "utf-8"): ("účet\n".encode("cp1250") * 20000, YES),
    ("check", "--column", "VS=vs", "--csv"): (b"VS\n" + b"0\n" * 40000, YES),
}


def check_pipes(program):
    """A named pipe is read like a file of the same bytes."""
    if program.emulated or not hasattr(os, "mkfifo"):
        return
    file = program.folder / "piped"
    for words, (content, status) in PIPED.items():
        file.write_bytes(content)
        wanted = program.run([*words, file.name])
        file.unlink()
        os.mkfifo(file)
        writer = threading.Thread(target=file.write_bytes, args=(content,), daemon=True)
        writer.start()
        result = program.run([*words, file.name])
        writer.join(timeout=60)
        file.unlink()
        if wanted.status != status or result != wanted:
            yield f"{' '.join(words)} of a pipe: {result}, not {wanted}"


def check_unreadable(program):
    """A read error is not an empty file. The memory of a process has nothing at its start."""
    memory = pathlib.Path("/proc/self/mem")
    if program.emulated or not memory.exists():
        return
    for words in PIPED:
        result = program.run([*words, str(memory)])
        if result.status != WRONG_USAGE or not result.err or result.out:
            yield f"{' '.join(words)} {memory}: {result}"
        if words[0] in ("sort", "hash", "convert") and program.run([*words, "-"], given=memory).status != WRONG_USAGE:
            yield f"{' '.join(words)} - <{memory}: no failure"


def check_colours(program):
    """The tour is coloured only on a terminal that supports colours."""
    if len(program.command) > 1 or not hasattr(os, "openpty"):
        return
    for kind, coloured in (("xterm", True), ("dumb", False)):
        shown = program.shown_on_terminal(["tour"], kind)
        if ("\033[32m$ ravo table" in shown) != coloured or "Pohled" not in shown:
            yield f"tour on a terminal of kind {kind}: {shown[:200]!r}"
