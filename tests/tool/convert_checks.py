"""Conversions between encodings: the codecs of Python are the witness."""

import pathlib
import random
import subprocess

from harness import NO, WRONG_USAGE, YES

# The program's name of each encoding, and Python's.
UNICODE = {
    "utf-8": "utf-8", "utf-7": "utf-7", "utf-16be": "utf-16-be", "utf-16le": "utf-16-le", "utf-32be": "utf-32-be",
    "utf-32le": "utf-32-le", "ucs-4be": "utf-32-be", "ucs-4le": "utf-32-le",
}
OPEN = {"utf-16": ("utf-16-be", "utf-16-le"), "ucs-2": ("utf-16-be", "utf-16-le"),
        "utf-32": ("utf-32-be", "utf-32-le"), "ucs-4": ("utf-32-be", "utf-32-le")}
SENTENCE = "Příliš žluťoučký kůň úpěl ďábelské ódy.\r\n"


class Converted:
    """A run of `ravo convert` from a file into another one."""

    def __init__(self, program, content, *options):
        source, target = program.folder / "source.txt", program.folder / "target.txt"
        source.write_bytes(content)
        target.unlink(missing_ok=True)
        result = program.run(["convert", *options, source.name, "-o", target.name])
        self.status, self.out, self.err = result.status, result.out, result.err
        self.content = target.read_bytes() if target.exists() else None
        source.unlink()
        target.unlink(missing_ok=True)

    def is_refused(self, told):
        """Ended with the reason; nothing was left."""
        return self.status == NO and self.content is None and told in self.err and self.err.startswith("ravo convert: source.txt:")

    def __repr__(self):
        return f"status {self.status}, {self.err!r}, {(self.content or b'')[:80]!r}"


def check_characters_past_units(program):
    """Characters past U+FFFF and U+FFFD pass between Unicode encodings, and are named elsewhere."""
    generator = random.Random(5)
    letters = "aá€\ufffd\U0001f600\U0010ffff\U00010000\ufffc\n\ud7ff\ue000"
    text = "a\ufffd\U0001f600" + "".join(generator.choices(letters, k=3000))
    targets = {"utf-8": "utf-8"} if program.emulated else UNICODE  # an emulator starts slowly
    for source, codec in UNICODE.items():
        for target, other in targets.items():
            got = Converted(program, text.encode(codec), "-f", source, "-t", target)
            if got.status != YES or got.content is None or got.content.decode(other) != text:
                yield f"convert -f {source} -t {target}: {got}"
            if got.content and target != "utf-7" and got.content != text.encode(other):
                yield f"convert -f {source} -t {target}: other bytes"
    gb18030 = Converted(program, text.encode("gb18030"), "-f", "gb18030", "-t", "utf-8")
    if gb18030.content != text.encode():
        yield f"convert of GB 18030: {gb18030}"
    for codec in UNICODE.values():
        name = next(name for name, other in UNICODE.items() if other == codec)
        for target in ("1250", "ucs-2be", "cp852"):
            got = Converted(program, "ab\nc\U0001f600".encode(codec), "-f", name, "-t", target)
            if not got.is_refused(":2:2: U+1F600 cannot be written in"):
                yield f"convert -f {name} -t {target} of a character past U+FFFF: {got}"
        got = Converted(program, "a\ufffd".encode(codec), "-f", name, "-t", "1250")
        if not got.is_refused(":1:2: U+FFFD cannot be written in"):
            yield f"convert -f {name} of U+FFFD: {got}"
    replaced = Converted(program, "a\U0001f600b\ufffdč".encode(), "-f", "utf-8", "-t", "1250", "--replace", "!")
    if replaced.content != b"a!b!\xe8":
        yield f"convert --replace of characters past U+FFFF: {replaced}"
    emoji = Converted(program, b"a\xb5\xff", "-f", "ascii", "-t", "utf-8", "--replace", "\U0001f600")
    if emoji.content != "a\ufffd\ufffd".encode():
        yield f"convert --replace by a character past U+FFFF: {emoji}"
    if (got := Converted(program, "中".encode(), "-f", "utf-8", "-t", "utf-8", "--replace", "\U0001f600")).content != "中".encode():
        yield f"convert --replace without need: {got}"


def check_cut_short(program):
    """Each way to end a text inside a character is told with its position; what is whole is converted."""
    for name, codec in {**UNICODE, "gb18030": "gb18030"}.items():
        for last in "\U0001f600" if program.emulated else "a\xe1\u20ac\U0001f600":
            text = "ab\nč" + last
            whole = text.encode(codec)
            if codec == "utf-7":
                continue
            for length in range(len("ab\nč".encode(codec)) + 1, len(whole)):
                got = Converted(program, whole[:length], "-f", name, "-t", "utf-8")
                if not got.is_refused(":2:2: the text ends inside a character of"):
                    yield f"convert -f {name} of {whole[:length]!r}: {got}"
                got = Converted(program, whole[:length], "-f", name, "-t", "utf-8", "--replace", "?")
                if got.content != "ab\nč\ufffd".encode():
                    yield f"convert -f {name} --replace of {whole[:length]!r}: {got}"
    for content in (b"+", b"+A", b"+AG", b"a+AGEA", b"+2D0-", b"+2D0", b"+3gA-"):
        got = Converted(program, content, "-f", "utf-7", "-t", "utf-8")
        if got.status != NO or ":1:" not in got.err:
            yield f"convert of UTF-7 {content!r}: {got}"
    for content in (b"a", b"\0", b"\xff"):
        for name in ("utf-16le", "utf-32be", "ucs-2le", "ucs-4be"):
            if not (got := Converted(program, content, "-f", name, "-t", "utf-8")).is_refused(":1:1: the text ends"):
                yield f"convert -f {name} of one byte: {got}"
    for name in (*UNICODE, "gb18030", "1250", "auto"):
        got = Converted(program, b"", "-f", name, "-t", "utf-8")
        if got.status != YES or got.content != b"":
            yield f"convert -f {name} of nothing: {got}"


def check_malformed(program):
    """What is no character is refused with its position, and replaced as Python replaces it."""
    rows = [
        ("utf-8", b"a\xc0\x80b"), ("utf-8", b"\xed\xa0\x80"), ("utf-8", b"\xf4\x90\x80\x80"), ("utf-8", b"\xe2\x82a\xf0\x9f\x98"),
        ("utf-8", b"\xf8\x88\x80\x80\x80"), ("utf-8", b"\xff\xfe"), ("utf-8", b"\x80" * 70 + b"a" * 70 + b"\xc4"),
        ("utf-16be", b"\xdc\x00\x00a"), ("utf-16be", b"\xd8\x00\x00a"), ("utf-16le", b"\x00\xd8\x00\xd8\x00\xdca\x00"),
        ("utf-32be", b"\x00\x11\x00\x00\x00\x00\x00a"), ("utf-32le", b"\x00\xd8\x00\x00"), ("ucs-4le", b"\xff\xff\xff\x7f"),
    ]
    generator = random.Random(8)
    rows += [("utf-8", bytes(generator.choices(b"a\xc4\x8d\xe2\x82\xac\xf0\x9f\x98\x80\xed\xa0\xff", k=400))) for _ in range(2 if program.emulated else 20)]
    for name, content in rows:
        codec = UNICODE[name]
        plain = content.decode(codec, "ignore") == content.decode(codec, "replace")
        got = Converted(program, content, "-f", name, "-t", "utf-8")
        if plain != (got.status == YES) or (not plain and got.status != NO):
            yield f"convert -f {name} of {content!r}: {got}"
        wanted = content.decode(codec, "replace")
        got = Converted(program, content, "-f", name, "-t", "utf-8", "--replace", "?")
        # Python takes a unit that is no code point of UTF-32 as four single bytes.
        if "32" not in codec and got.content != wanted.encode():
            yield f"convert -f {name} --replace of {content!r}: {got}, not {wanted!r}"
    surrogate = Converted(program, b"\xd8\x3d\xde\x00", "-f", "ucs-2be", "-t", "utf-8")
    if not surrogate.is_refused(":1:1: bytes that cannot be read in UCS-2, big-endian: D8 3D"):
        yield f"convert of surrogates in UCS-2: {surrogate}"
    for content in (b"\x81", b"ab\x98"):
        if not (got := Converted(program, content, "-f", "1250", "-t", "utf-8")).is_refused("bytes that cannot be read in Windows-1250"):
            yield f"convert of {content!r} in Windows-1250: {got}"
    for codec in ("cp1250", "iso8859-2", "cp852", "koi8-r"):
        every = bytes(byte for byte in range(256) if bytes([byte]).decode(codec, "ignore"))
        if (got := Converted(program, every, "-f", codec, "-t", "utf-8")).content != every.decode(codec).encode():
            yield f"convert of every byte of {codec}: {got}"


def check_byte_order(program):
    """Names without a byte order follow the mark; without one, the zero bytes; utf-16 and utf-32 are written with a mark."""
    text = "Účet\n€"
    for name, codecs in OPEN.items():
        for codec in codecs:
            for content in ("\ufeff" + text, text):
                got = Converted(program, content.encode(codec), "-f", name, "-t", "utf-8")
                if got.status != YES or got.content != text.encode():
                    yield f"convert -f {name} of {codec}: {got}"
                if ("no byte-order mark" in got.err) != (content == text):
                    yield f"convert -f {name} of {codec}: {got}"
    for name, codec, mark in (("utf-16", "utf-16-le", "\ufeff"), ("UTF_32", "utf-32-le", "\ufeff"), ("ucs-2", "utf-16-be", ""), ("ucs-4", "utf-32-be", "")):
        got = Converted(program, text.encode(), "-f", "utf-8", "-t", name)
        if got.content != (mark + text).encode(codec):
            yield f"convert -t {name}: {got}"
    for codec in ("utf-8", "utf-16-le", "utf-16-be", "utf-32-le", "utf-32-be"):
        got = Converted(program, "\ufeffa\nbč".encode(codec), "-f", "auto", "-t", "1250")
        if got.content != b"a\nb\xe8" or "byte-order mark" not in got.err:
            yield f"convert of {codec} with a mark: {got}"
    kept = Converted(program, "\ufeffa".encode("utf-16-le"), "-f", "utf-16le", "-t", "utf-8")
    if kept.content != "\ufeffa".encode():
        yield f"convert of a mark in a named order: {kept}"


def check_auto(program):
    """Without --from the text decides, and standard error tells what was taken."""
    rows = [
        ("cp1250", SENTENCE, "Windows-1250"), ("iso8859-2", SENTENCE, "ISO 8859-2"), ("cp852", SENTENCE, "852"), ("utf-8", SENTENCE, "UTF-8"),
        ("utf-16-le", SENTENCE, "UTF-16, little-endian"), ("utf-16-be", SENTENCE, "UTF-16, big-endian"), ("cp1250", "Dobrý den", "alike"),
        ("ascii", "nic", "ASCII"), ("cp1250", "a" * 600_000 + "\n" + SENTENCE, "Windows-1250"), ("utf-8", "a" * 524_287 + "č" * 40, "UTF-8"),
        ("utf-8", SENTENCE * 4000 + "ž", "UTF-8"), ("cp852", "\r\n" * 300_000 + SENTENCE, "852"),
    ]
    for codec, text, told in rows:
        for options in ((), ("-f", "auto")):
            got = Converted(program, text.encode(codec), *options, "-t", "utf-8")
            if got.status != YES or got.content != text.encode() or told not in got.err or got.err.count("\n") != 1:
                yield f"convert {' '.join(options)} of {codec}, {text[-40:]!r}: {got}"
    late = Converted(program, b"a\n" * 400_000 + "č".encode() * 200_000 + b"\xff", "-t", "1250")
    if late.status != NO or ":400001:200001: bytes that cannot be read in UTF-8: FF" not in late.err or "taken as UTF-8" not in late.err:
        yield f"convert of what contradicts the first bytes: {late}"


def check_translit(program):
    """Characters that the target lacks get their closest spelling."""
    rows = [
        ("1250", "àêñõ", "aeno"), ("1250", "æÆœßø", "aeAEoe\xdfo"), ("1250", "½ﬁ①²", "1/2fi12"), ("1250", "„česky“…€", "„česky“…€"),
        ("852", "„česky“ … € – ‘x’", '"česky" ... EUR - \'x\''), ("ascii", "Příliš žluťoučký kůň", "Prilis zlutoucky kun"),
        ("ascii", "Łódź «a» ©", 'Lodz "a" (C)'), ("1252", "čšžř ů", "cšžr u"), ("1250", "ǖǘ Ǚ ế", "üü Ü e"), ("1250", "ａＢ１", "aB1"),
        ("1250", "\u00a0\u2009x\u2212\u00d7", "\u00a0 x-×"),
    ]
    for target, text, spelled in rows:
        codec = {"1250": "cp1250", "852": "cp852", "1252": "cp1252"}.get(target, target)
        got = Converted(program, text.encode(), "-f", "utf-8", "-t", target, "--translit")
        if got.status != YES or got.content != spelled.encode(codec):
            yield f"convert -t {target} --translit of {text}: {got}, not {spelled!r}"
    unknown = Converted(program, "aя中".encode(), "-f", "utf-8", "-t", "1250", "--translit")
    if not unknown.is_refused(":1:2: U+044F cannot be written in Windows-1250"):
        yield f"convert --translit of Cyrillic: {unknown}"
    both = Converted(program, "èя中\U0001f600".encode(), "-f", "utf-8", "-t", "1250", "--translit", "--replace", "?")
    if both.content != b"e???":
        yield f"convert --translit --replace: {both}"
    utf8 = Converted(program, "èя中\U0001f600".encode(), "-f", "utf-8", "-t", "utf-16le", "--translit")
    if utf8.content != "èя中\U0001f600".encode("utf-16-le"):
        yield f"convert --translit without need: {utf8}"


def place_after(text):
    """Line and column of the character after a text."""
    lines = text.replace("\r\n", "\n").replace("\r", "\n").split("\n")
    return f":{len(lines)}:{len(lines[-1]) + 1}: "


def check_large_files(program):
    """Large files, which several threads convert, give the bytes and the ends of a pipe."""
    generator = random.Random(3)
    pieces = [SENTENCE, "ž\r", "\n", "x" * 500 + "\n", "𝄞€\r\n", "\ufffd"]
    text = "".join(generator.choices(pieces, k=15_000))
    plain = text.replace("𝄞", "").replace("\ufffd", "")
    source, target = program.folder / "large.txt", program.folder / "target.txt"

    def converted(*options):
        """By a file and, on a system with pipes, by a pipe: status, output and error."""
        target.unlink(missing_ok=True)
        result = program.run(["convert", *options, source.name, "-o", target.name])
        content = target.read_bytes() if target.exists() else None
        yield result.status, content, result.err.partition(".txt")[2]
        if program.emulated:
            return
        target.unlink(missing_ok=True)
        done = subprocess.run(program.command + ["convert", *options, "-o", str(target)], input=source.read_bytes(), capture_output=True, check=False)
        content = target.read_bytes() if target.exists() else None
        yield done.returncode, content, done.stderr.decode().partition("convert: -")[2]

    for name, codec, content in [("1250", "cp1250", plain), *[(name, codec, text) for name, codec in UNICODE.items()]]:
        source.write_bytes(content.encode(codec))
        for other in ("utf-8", "utf-16le"):
            if any(got != (YES, content.encode(UNICODE[other]), "") for got in converted("-f", name, "-t", other)):
                yield f"convert -f {name} -t {other} of a large file: another text"
        # Some megabytes that ISO 8859-2 has, one character that it lacks, and more of both.
        start = "".join(generator.choices(pieces[:4], k=15_000))
        source.write_bytes((start + "€" + content).encode(codec))
        results = list(converted("-f", name, "-t", "iso8859-2"))
        if any(result[0] != NO or result[1] is not None or place_after(start) + "U+20AC" not in result[2] for result in results):
            yield f"convert -f {name} -t iso8859-2 of a large file: {[result[2] for result in results]}, not {place_after(start)}"
    source.write_bytes(plain.encode() + b"\xff" + plain.encode())
    for result in converted("-f", "utf-8", "-t", "1250"):
        if result[0] != NO or f"{place_after(plain)}bytes that cannot be read in UTF-8: FF" not in result[2]:
            yield f"convert of a large file with a malformed byte: {result[2]}"
    source.unlink()
    target.unlink(missing_ok=True)


def check_outputs(program):
    """Outputs that end early, and standard output by its sign."""
    source = program.folder / "source.txt"
    source.write_bytes(SENTENCE.encode("cp1250") * 200_000)
    words = ["convert", "-f", "1250", "-t", "utf-8", source.name]
    result = program.run(["convert", "-f", "1250", "-t", "utf-8", "-o", "-", "--", source.name])
    if result.status != YES or result.out != SENTENCE.replace("\r\n", "\r\n") * 200_000:
        yield f"convert -o -: status {result.status}, {result.err!r}, {len(result.out)} characters"
    if (program.folder / "-").exists():
        yield "convert -o -: wrote a file of this name"
    if not program.emulated and pathlib.Path("/dev/full").exists():
        with open("/dev/full", "wb") as full:
            result = program.run(words, out=full)
        if result.status != WRONG_USAGE or "cannot be written" not in result.err:
            yield f"convert >/dev/full: {result}"
        result = program.run([*words, "-o", "/dev/full"])
        if result.status != WRONG_USAGE or "/dev/full: cannot be written" not in result.err:
            yield f"convert -o /dev/full: {result}"
        with subprocess.Popen(program.command + words, cwd=program.folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE) as running:
            assert running.stdout
            running.stdout.read(10)
            running.stdout.close()
            if running.wait(timeout=60) == 0:
                yield "convert into a closed pipe: status 0"
    source.unlink()


CONVERT_CHECKS = (check_characters_past_units, check_cut_short, check_malformed, check_byte_order, check_auto, check_translit,
                  check_large_files, check_outputs)
