"""Shared by the tests of the command-line program: a command line with its expected result, and the program itself."""

import json
import os
import pathlib
import queue
import re
import shutil
import subprocess
import tempfile
import time
import zlib
from dataclasses import dataclass
from typing import Callable, Optional

YES, NO, WRONG_USAGE, SKIPPED = 0, 1, 2, 77

# The tests read English, whatever the user of this machine reads.
os.environ["RAVO_LANG"] = "en"

# On a busy machine the emulator's driver host may crash at the start of a session and print into the output.
# A crash of the program itself shows in its exit status.
EMULATOR_FALL = re.compile(r"^wine: Unhandled page fault .* starting debugger\.\.\.\r?\n", re.MULTILINE)


@dataclass
class Row:
    """A command line and its expected result. The output must contain the texts; `exact` is the whole standard output."""

    arguments: list[str]
    status: int = YES
    out: tuple[str, ...] = ()
    exact: Optional[str] = None
    err: tuple[str, ...] = ()
    # Returns a remark about a defect, or a false value.
    holds: Optional[Callable[[str], object]] = None
    # The answer no is printed only on standard output.
    silent: bool = False
    # What Czech users read on either channel.
    czech: tuple[str, ...] = ()


@dataclass
class Result:
    status: int
    out: str
    err: str


class Session:
    """A process that runs one command line after another; command_session.cpp is its other end."""

    def __init__(self, command, folder):
        self.place = pathlib.Path(tempfile.mkdtemp(dir=folder.parent))
        self.folder = folder
        self.nothing = "NUL" if len(command) > 1 else "/dev/null"
        with open(self.place / "answers", "wb") as answers, open(self.place / "complaints", "wb") as complaints:
            self.child = subprocess.Popen(command, cwd=folder, stdin=subprocess.PIPE, stdout=answers, stderr=complaints)
        assert self.child.stdin
        self.requests = self.child.stdin
        self.answers = open(self.place / "answers", encoding="ascii")

    def run(self, arguments, given, language):
        files = {"in": str(given or self.nothing)}
        for name in ("out", "err"):
            files[name] = os.path.relpath(self.place / name, self.folder)
        self.requests.write(json.dumps({"arguments": arguments, "language": language, **files}).encode() + b"\n")
        self.requests.flush()
        status = self.answer(arguments)
        return Result(status, *((self.place / name).read_bytes().decode("utf-8") for name in ("out", "err")))

    def answer(self, arguments):
        """A file rather than a pipe, for the reason that `Program.run` has."""
        end = time.monotonic() + 300
        line = ""
        while not line.endswith("\n"):
            line += self.answers.readline()
            if self.child.poll() is not None or time.monotonic() > end:
                complaints = (self.place / "complaints").read_bytes()[-2000:]
                raise RuntimeError(f"the session ended or waits for ever at {arguments}: {complaints!r}")
            time.sleep(0.0005)
        return int(line)

    def close(self):
        self.requests.close()
        self.child.wait(timeout=60)
        self.answers.close()
        shutil.rmtree(self.place)


class Program:
    """The program in a folder. With a session, one command line in eight has a process of its own."""

    def __init__(self, command, folder, session=None):
        self.command, self.folder, self.session = command, folder, session
        self.emulated = len(command) > 1
        self.slow = self.emulated or "RAVO_SLOW" in os.environ
        self.sessions: list[Session] = []
        self.idle: queue.SimpleQueue[Session] = queue.SimpleQueue()

    def run(self, arguments, out=None, given=None, language="en"):
        """`given` is the name of a file that is standard input."""
        arguments = [str(argument) for argument in arguments]
        if self.session and not out and zlib.crc32("\0".join(arguments).encode()) % 8:
            return self.run_in_session(arguments, given, language)
        return self.run_alone(arguments, out, given, language)

    def run_in_session(self, arguments, given, language):
        try:
            session = self.idle.get_nowait()
        except queue.Empty:
            session = Session(self.command[:-1] + [self.session], self.folder)
            self.sessions.append(session)
        result = session.run(arguments, given, language)
        self.idle.put(session)
        return result

    def close(self):
        for session in self.sessions:
            session.close()

    def run_alone(self, arguments, out, given, language):
        # Files rather than pipes: an emulator's servers would hold pipes open for seconds.
        source = self.folder / given if given else os.devnull
        with open(source, "rb") as own_in, tempfile.TemporaryFile() as own_out, tempfile.TemporaryFile() as err:
            done = subprocess.run(
                self.command + arguments, cwd=self.folder, stdin=own_in, stdout=out or own_out, stderr=err, timeout=300,
                env={**os.environ, "RAVO_LANG": language},
            )
            texts = []
            for file in (own_out, err):
                file.seek(0)
                texts.append(file.read().decode("utf-8"))  # invalid UTF-8 ends the test here
        return Result(done.returncode, texts[0], EMULATOR_FALL.sub("", texts[1]) if self.emulated else texts[1])

    def shown_on_terminal(self, arguments, kind="xterm"):
        """The bytes of standard output on a terminal of a kind; only where there are such terminals."""
        own, terminal = os.openpty()
        with os.fdopen(own, "rb", buffering=0) as reader:
            child = subprocess.Popen(self.command + arguments, cwd=self.folder, stdin=subprocess.DEVNULL, stdout=terminal,
                                     stderr=subprocess.DEVNULL, env={**os.environ, "TERM": kind})
            os.close(terminal)
            shown = b""
            try:
                while piece := reader.read(4096):
                    shown += piece
            except OSError:  # the other end of a terminal is gone
                pass
            child.wait(timeout=60)
        return shown.decode().replace("\r\n", "\n")

    def failures(self, row):
        result = self.run(row.arguments)
        wrong = []
        if result.status != row.status:
            wrong.append(f"status {result.status}, not {row.status}")
        wrong += [f"standard output lacks {text!r}" for text in row.out if text not in result.out]
        wrong += [f"standard error lacks {text!r}" for text in row.err if text not in result.err]
        if row.exact is not None and result.out != row.exact:
            wrong.append(f"standard output is not {row.exact!r}")
        if "\r" in result.out + result.err:
            wrong.append("a carriage return in the output")
        if row.status == YES and result.err and not row.err:
            wrong.append("something on standard error")
        if row.silent and result.err:
            wrong.append("something on standard error")
        if row.status != YES and not row.silent and not result.err:
            wrong.append("nothing on standard error")
        if row.holds and (remark := row.holds(result.out)):
            wrong.append(str(remark))
        if row.czech:
            wrong += self.czech_failures(row)
        shown = f"\n  standard output: {result.out[:600]!r}\n  standard error: {result.err[:600]!r}"
        return [f"ravo {' '.join(row.arguments)}: {remark}{shown}" for remark in wrong]


    def czech_failures(self, row):
        result = self.run(row.arguments, language="cs")
        if result.status != row.status:
            yield f"status {result.status} in Czech, not {row.status}"
        yield from (f"Czech lacks {text!r}: {result.out[:300]!r} {result.err[:300]!r}" for text in row.czech if text not in result.out + result.err)


def as_json(check):
    """A `holds` over the parsed standard output."""

    def holds(out):
        try:
            value = json.loads(out)
        except ValueError as error:
            return f"no JSON: {error}"
        return check(value)

    return holds


def differs(wanted):
    return as_json(lambda value: value != wanted and f"is not {wanted!r}")


def lines(count):
    return lambda out: out.count("\n") != count and f"{out.count(chr(10))} lines, not {count}"


def without(text):
    return lambda out: text in out and f"contains {text!r}"
