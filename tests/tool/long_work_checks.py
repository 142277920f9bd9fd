"""Long work: its output on a terminal, and its files after an interruption."""

import os
import re
import select
import signal
import subprocess
import time


class Watched:
    """A program whose standard error is a terminal."""

    def __init__(self, program, arguments, source):
        own, terminal = os.openpty()
        self.reader = os.fdopen(own, "rb", buffering=0)
        self.child = subprocess.Popen(
            program.command + arguments, cwd=program.folder, stdin=source, stdout=subprocess.PIPE, stderr=terminal
        )
        os.close(terminal)
        self.shown = ""

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.child.kill()
        self.child.wait()
        for stream in (self.child.stdin, self.child.stdout, self.reader):
            if stream:
                stream.close()

    def sees(self, pattern):
        """Reads until the terminal shows the pattern; false if the program ends before."""
        while not re.search(pattern, self.shown):
            try:
                piece = self.reader.read(4096)
            except OSError:  # the program has closed its end
                return False
            if not piece:
                return False
            self.shown += piece.decode()
        return True


def check_progress(program):
    """Long work shows a bar on a terminal, or a count if the total is unknown, and erases it."""
    if program.emulated or not hasattr(os, "openpty"):
        return
    large = program.folder / "large"
    with open(large, "wb") as file:
        file.truncate(1 << 40)  # a sparse file: nothing of it is on the disk
    with Watched(program, ["hash", "crc32", "large"], subprocess.DEVNULL) as watched:
        if not watched.sees(r"\rlarge \[#*\.+\] \d+ %"):
            yield f"hash of a large file: no bar in {watched.shown!r}"
    large.unlink()
    with Watched(program, ["hash", "crc32"], subprocess.PIPE) as watched:
        feed = watched.child.stdin

        def is_shown_after_more():
            feed.write(b"x" * 100)
            feed.flush()
            return select.select([watched.reader], [], [], 0.05)[0]

        if not any(is_shown_after_more() for _ in range(400)):
            yield "hash of standard input: nothing on the terminal for as long as it is fed"
        elif not watched.sees(r"\r- \d+00"):
            yield f"hash of standard input: no count in {watched.shown!r}"
        feed.close()
        if not watched.sees(r"\r +\r$"):
            yield f"hash of standard input: the count stays: {watched.shown!r}"
        if watched.child.stdout.read()[8:] != b"  -\n":
            yield "hash of standard input: no sum behind the count"


def check_streaming(program):
    """A conversion to standard output writes what is converted before its input ends."""
    if program.emulated or not hasattr(os, "set_blocking"):
        return
    command = program.command + ["convert", "-f", "1250", "-t", "utf-8"]
    piece = "Příliš žluťoučký kůň\r\n" * 1000
    with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE) as running:
        assert running.stdin and running.stdout
        running.stdin.write(piece.encode("cp1250"))
        running.stdin.flush()
        early = select.select([running.stdout], [], [], 60)[0]
        running.stdin.close()
        text = running.stdout.read()
    if not early:
        yield "convert: no output before the input ends"
    if text != piece.encode() or running.returncode != 0:
        yield f"convert: {text[:40]!r}, status {running.returncode}"


def check_interruption(program):
    """An interrupted conversion leaves the old file, and no draft beside it."""
    if program.emulated:
        return
    target = program.folder / "cíl.txt"
    piece = ("Příliš žluťoučký kůň\r\n" * 40000).encode("cp1250")

    def beside():
        return list(program.folder.glob(".ravo-*"))

    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        target.write_bytes(b"old")
        command = program.command + ["convert", "-f", "1250", "-t", "utf-8", "-o", target.name]
        with subprocess.Popen(command, cwd=program.folder, stdin=subprocess.PIPE, stderr=subprocess.PIPE) as running:
            assert running.stdin
            running.stdin.write(piece)
            running.stdin.flush()
            # Interrupted in the middle: some of the text is in a file, and more follows.
            patience = time.monotonic() + 60
            while not any(path.stat().st_size for path in beside()) and time.monotonic() < patience:
                time.sleep(0.01)
            if not beside():
                yield f"{number.name}: nothing was written beside the target"
            running.send_signal(number)
            status = running.wait(timeout=60)
        if status != -number:
            yield f"{number.name}: status {status}"
        if target.read_bytes() != b"old" or beside():
            yield f"{number.name}: {target.read_bytes()[:20]!r}, and left {beside()}"
    target.unlink()
