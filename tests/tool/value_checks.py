"""`ravo check` and `ravo round` for values on standard input."""

import json
import os

from harness import NO, WRONG_USAGE, YES
from table_checks import peak_memory


def check_values(program):
    """One value in a line, whatever its end; blank lines are values too."""
    rows = [
        (b"311\n112001\r\n502", YES, "311\tvalid\n112001\tvalid\n502\tvalid\n"),
        (b"311\n\n1", NO, "311\tvalid\n\tnot valid: the value is empty\n1\tnot valid: an account has 3 to 6 digits\n"),
        (b"", YES, ""),
    ]
    for content, status, wanted in rows:
        (program.folder / "values").write_bytes(content)
        result = program.run(["check", "--suite", "ucet", "-"], given="values")
        if (result.status, result.out, result.err) != (status, wanted, ""):
            yield f"check ucet - of {content!r}: {result}"
    result = program.run(["check", "--suite", "ucet", "1", "-", "2"], given="values")
    if result.out.count("\n") != 2:
        yield f"check ucet 1 - 2 of nothing: {result}"


# Every command that answers values on standard input in JSON, with values and their status.
ANSWERING: list[tuple[list[str], list[str], int]] = [
    (["check", "--suite", "ucet", "-"], ["311", "1"], NO),
    (["check", "ico", "-", "--explain"], ["04625781", "žluť"], NO),
    (["round", "-"], ["1.005", "x"], WRONG_USAGE),
]


def check_answers_in_json(program):
    """One array of any number of answers, indented as JSON is indented everywhere else."""
    for command, values, _ in ANSWERING:
        for count in (0, 1, 2, 500):
            (program.folder / "values").write_text("".join(f"{values[i % 2]}\n" for i in range(count)), encoding="utf-8")
            result = program.run([*command, "--json"], given="values")
            answers = json.loads(result.out)
            named = [answer.get("value", answer.get("input")) for answer in answers]
            if named != [values[i % 2] for i in range(count)] or result.out != json.dumps(answers, indent=2, ensure_ascii=False) + "\n":
                yield f"{command} --json of {count} values: {result.out[:300]!r}"


def check_memory_of_answers(program):
    """The number of values on standard input costs no memory."""
    # Sanitizers keep what is freed for a while.
    if program.slow or not hasattr(os, "wait4"):
        return
    for command, values, status in ANSWERING:
        (program.folder / "values").write_text("".join(f"{value}\n" for value in values) * 50000, encoding="utf-8")
        for in_json in (False, True):
            got, memory = peak_memory([*program.command, *command, *["--json"] * in_json], program.folder, "values")
            # The answers take up to 25 MB of text.
            if got != status or memory > 25_000_000:
                yield f"{command}, JSON {in_json}, of 100000 values: status {got}, {memory} bytes of memory"
