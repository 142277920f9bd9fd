"""Lines that `ravo sort` sorts: orders, fields, encodings, line ends."""

import random
import shutil
import subprocess

from harness import WRONG_USAGE, YES

REMARK = "--suite shows it"
NAMES = "žába\nčáp\nchata\nhrad\nCihla\ncihla\nDálka\nřeka\nrak\n10\n9\nab\na b\n"
SORTED_NAMES = "a b\nab\ncihla\nCihla\nčáp\nDálka\nhrad\nchata\nrak\nřeka\nžába\n10\n9\n"


def check_sorted_files(program):
    """Lines of files in each order."""
    files = {
        "names": NAMES.encode(), "other": "cop\nčep".encode(), "numbers": b"b10\nb9\nb010\na2\nb9\n",
        "amounts": "x;1 234,50\ny;-3\nz;12,5\nw;\n".encode(), "blanks": b"  b  1\na 2\nc\t0\n", "empty": b"",
    }
    for name, content in files.items():
        (program.folder / name).write_bytes(content)
    rows = [
        (["names"], SORTED_NAMES),
        (["-r", "names"], "".join(reversed(SORTED_NAMES.splitlines(keepends=True)))),
        (["--digits-first", "names"], "10\n9\n" + SORTED_NAMES.replace("10\n9\n", "")),
        (["--natural", "numbers"], "a2\nb9\nb9\nb010\nb10\n"),
        (["-u", "--natural", "numbers"], "a2\nb9\nb010\nb10\n"),
        (["-u", "--ignore-case", "names"], SORTED_NAMES.replace("cihla\nCihla", "Cihla")),
        (["-n", "-t", ";", "-k", "2", "amounts"], "w;\ny;-3\nz;12,5\nx;1 234,50\n"),
        (["-r", "-n", "-t", ";", "-k", "2", "amounts"], "x;1 234,50\nz;12,5\ny;-3\nw;\n"),
        (["-k", "2", "-k", "1", "blanks"], "c\t0\n  b  1\na 2\n"),
        (["-t", "x", "-k", "2", "names"], NAMES),
        (["-u", "-t", "x", "-k", "2", "names"], "žába\n"),
        (["--header", "-r", "names"], "žába\n" + "".join(reversed(SORTED_NAMES.replace("žába\n", "").splitlines(keepends=True)))),
        (["--header", "-u", "other", "empty", "-"], "cop\nčep\n"),
        (["--header", "empty"], ""),
        (["--header", "-t", ";", "-k", "1", "amounts"], "x;1 234,50\nw;\ny;-3\nz;12,5\n"),
        (["other", "empty", "-"], "cop\ncop\nčep\nčep\n"),
        (["--suite", "names"], "10\n9\nCihla\nDálka\na b\nab\nchata\ncihla\nhrad\nrak\nčáp\nřeka\nžába\n"),
        (["--suite", "-r", "numbers"], "b9\nb9\nb10\nb010\na2\n"),
        (["--suite", "-u", "--natural", "numbers"], "a2\nb9\nb010\nb10\n"),
    ]
    for arguments, wanted in rows:
        result = program.run(["sort", *arguments], given="other")
        if (result.status, result.out) != (YES, wanted):
            yield f"sort {arguments}: {result}"
        if result.err.replace(REMARK, "").count("\n") > 1 or ("--suite" in arguments and result.err):
            yield f"sort {arguments}: {result.err!r}"
    told = program.run(["sort", "names"]).err
    if told != "ravo sort: the order of the suite differs from line 4 on; --suite shows it\n":
        yield f"sort of names: {told!r} about the order of the suite"
    for words in (["-k", "0", "names"], ["-t", ";", "names"], ["--suite", "-n", "names"], ["--encoding", "abc", "names"], ["-o", "", "names"],
                  ["--suite", "--header", "names"]):
        if program.run(["sort", *words]).status != WRONG_USAGE:
            yield f"sort {words}: no failure"
    different = program.run(["sort", "--header", "names", "other"])
    if (different.status, different.out) != (WRONG_USAGE, "") or "other: its first line is not that of the first file" not in different.err:
        yield f"sort --header of files that begin with different lines: {different}"
    (program.folder / "names").write_bytes("názvy\nb\nč\na\nd\n".encode())
    below = program.run(["sort", "--header", "names"])
    if below.out != "názvy\na\nb\nč\nd\n" or "differs from line 5 on" not in below.err:
        yield f"sort --header: {below}"
    for name in files:
        (program.folder / name).unlink()


def check_natural_order(program):
    """Numbers by value, whatever the order in which they come; the suite's order of such names has cycles."""
    names = [f"FV{number}" for number in range(1, 1201)]
    shuffled = names[:]
    random.Random(20261122).shuffle(shuffled)
    file = program.folder / "names"
    file.write_text("\n".join(shuffled) + "\n", encoding="utf-8", newline="")
    if (got := program.run(["sort", "--natural", "names"]).out.split()) != names:
        yield f"sort --natural: {sum(a != b for a, b in zip(got, names))} names of {len(names)} are elsewhere"
    if not program.emulated and shutil.which("sort"):
        witness = subprocess.run(["sort", "-V", file], check=True, capture_output=True, text=True).stdout
        if witness.split() != names:
            yield "sort -V: another order"
    suite = program.run(["sort", "--suite", "--natural", "names"])
    if sorted(suite.out.split()) != sorted(names) or suite.out.split() == names:
        yield "sort --suite --natural: lines are lost, or it is the right order"
    # Twenty thousand lines and more are sorted in parts.
    many = [f"{word} {number}" for word in ("cena", "čas", "chata") for number in range(1, 15_001)]
    wanted = [f"{word} {number}" for word in ("cena", "čas", "chata") for number in range(1, 15_001)]
    random.Random(1).shuffle(many)
    file.write_text("\n".join(many) + "\n", encoding="utf-8", newline="")
    if program.run(["sort", "--natural", "names"]).out.splitlines() != wanted:
        yield "sort --natural of many lines: another order"
    # Lines that are equal by their keys stay as they came.
    file.write_text("".join(f"{number % 3} {number}\n" for number in range(30_000)), encoding="utf-8", newline="")
    stable = [f"{key} {number}" for key in range(3) for number in range(key, 30_000, 3)]
    if program.run(["sort", "-k", "1", "names"]).out.splitlines() != stable:
        yield "sort -k of many lines: not stable"
    file.unlink()


def check_sorted_encodings(program):
    """Lines keep their bytes, ends and encoding; wrong bytes end the work with their place."""
    file, target = program.folder / "lines", program.folder / "sorted"
    rows: list[tuple[list[str], bytes, bytes]] = [
        ([], "b\r\na\r\nč".encode(), "a\r\nb\r\nč\r\n".encode()),
        ([], "b\r\na\n".encode(), "a\nb\r\n".encode()),
        ([], "\ufeffb\nč\na\n".encode(), "\ufeffa\nb\nč\n".encode()),
        (["--encoding", "windows-1250"], "ž\nč\nd\n".encode("cp1250"), "č\nd\nž\n".encode("cp1250")),
        (["--encoding", "852"], "ž\nč\nd\n".encode("cp852"), "č\nd\nž\n".encode("cp852")),
        (["--encoding", "utf-16le"], "\ufeffž\nč\n".encode("utf-16-le"), "\ufeffč\nž\n".encode("utf-16-le")),
        ([], b"b\n\0a\n\x1b\n", b"\x1b\n\0a\nb\n"),
        ([], b"", b""),
    ]
    for options, content, wanted in rows:
        file.write_bytes(content)
        result = program.run(["sort", *options, "lines", "-o", "sorted"])
        got = target.read_bytes() if target.exists() else None
        if result.status != YES or got != wanted:
            yield f"sort {options} of {content!r}: {result}, {got!r}"
    target.unlink(missing_ok=True)
    refused: list[tuple[list[str], bytes, str]] = [
        ([], b"ab\n\xff", "lines:2:1: this byte is not UTF-8"),
        ([], "ab\nčc".encode() + b"\xe8\n", "lines:2:3: this byte is not UTF-8"),
        (["--encoding", "utf-16le"], b"a\0\n\0\x00\xd8", "lines: byte 5 cannot be read as UTF-16, little-endian"),
    ]
    for options, content, told in refused:
        file.write_bytes(content)
        result = program.run(["sort", *options, "lines", "-o", "sorted"])
        if result.status != WRONG_USAGE or told not in result.err or target.exists():
            yield f"sort {options} of {content!r}: {result}"
    file.write_bytes(b"b\na\n")
    program.run(["sort", "lines", "-o", "lines"])
    if file.read_bytes() != b"a\nb\n":
        yield f"sort in place: {file.read_bytes()!r}"
    file.unlink()
