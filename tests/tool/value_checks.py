"""`ravo check` for values on standard input."""

from harness import NO, YES


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
