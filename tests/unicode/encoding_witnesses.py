#!/usr/bin/env python3
"""Converts every byte and character of the single-byte encodings, GB 18030 and UTF-7 with other programs of this
machine: the C library's iconv, Perl's Encode, Python's codecs. The tests compare the library with the results.

usage: encoding_witnesses.py FILE

Lines of FILE, fields separated by blanks:
  read NAME WITNESS 256 values        the character of each byte in hexadecimal, "-" if it has none
  write NAME WITNESS byte:unit ...    the byte of each character that has one
  text NAME WITNESS bytes units       the decoded bytes; the witness wrote the bytes for the units
"""
import ctypes
import ctypes.util
import errno
import pathlib
import random
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tools/generate"))
import encoding_sources  # noqa: E402

UNITS = [unit for unit in range(0x10000) if not 0xD800 <= unit < 0xE000]

libc = ctypes.CDLL(ctypes.util.find_library("c"), use_errno=True)
libc.iconv_open.restype = ctypes.c_void_p
libc.iconv_open.argtypes = [ctypes.c_char_p, ctypes.c_char_p]
libc.iconv.restype = ctypes.c_size_t
libc.iconv.argtypes = [ctypes.c_void_p] + [ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_size_t)] * 2


class Iconv:
    def __init__(self, to, source):
        self.handle = libc.iconv_open(to.encode(), source.encode())
        self.known = self.handle != ctypes.c_void_p(-1).value

    def __call__(self, data):
        """The converted bytes; None if some of them cannot be converted."""
        libc.iconv(self.handle, None, None, None, None)
        out = ctypes.create_string_buffer(8 * len(data) + 16)
        source, left = ctypes.c_void_p(ctypes.cast(ctypes.c_char_p(data), ctypes.c_void_p).value), ctypes.c_size_t(len(data))
        target, room = ctypes.c_void_p(ctypes.addressof(out)), ctypes.c_size_t(len(out))
        arguments = [ctypes.byref(thing) for thing in (source, left, target, room)]
        if libc.iconv(self.handle, *arguments) != 0:
            if ctypes.get_errno() not in (0, errno.EILSEQ, errno.EINVAL):
                raise OSError(ctypes.get_errno(), "iconv")
            return None
        libc.iconv(self.handle, None, None, ctypes.byref(target), ctypes.byref(room))
        return out.raw[: len(out) - room.value]


def by_iconv(name):
    decode, encode = Iconv("UTF-16BE", name), Iconv(name, "UTF-16BE")
    if not decode.known:
        return None
    characters = [decode(bytes([byte])) for byte in range(256)]
    read = [None if text is None else text.decode("utf-16-be") for text in characters]
    return read, written(read, lambda unit: encode(unit.encode("utf-16-be")))


def by_python(name):
    def one(convert):
        try:
            return convert()
        except UnicodeError:
            return None

    read = [one(lambda: bytes([byte]).decode(name)) for byte in range(256)]
    return read, {chr(unit): data for unit in UNITS if (data := one(lambda: chr(unit).encode(name))) is not None}


PERL = r"""
my $name = $ARGV[0];
for my $byte (0 .. 255) {
  my $text = eval { Encode::decode($name, chr $byte, Encode::FB_CROAK) };
  print defined $text ? join("+", map { sprintf "%04X", ord } split //, $text) : "-", "\n";
}
# No single-byte encoding has ideographs or Hangul syllables; only Python is tested with them.
for my $unit (0 .. 0x33FF, 0xE000 .. 0xFFFF) {
  my $bytes = eval { Encode::encode($name, chr $unit, Encode::FB_CROAK) };
  printf "%04X %s\n", $unit, unpack "H*", $bytes if defined $bytes;
}
"""


def by_perl(name):
    done = subprocess.run(["perl", "-MEncode", "-e", PERL, name], capture_output=True, text=True, check=True)
    lines = done.stdout.splitlines()
    read = [None if line == "-" else "".join(chr(int(unit, 16)) for unit in line.split("+")) for line in lines[:256]]
    pairs = (line.split() for line in lines[256:])
    return read, {chr(int(unit, 16)): bytes.fromhex(data) for unit, data in pairs}


def written(read, encode):
    return {text: data for text in {text for text in read if text and len(text) == 1} if (data := encode(text)) is not None}


def single_bytes(out):
    """The witnesses are the sources of a row, but the converter of glibc instead of its character map."""
    witnesses = {"glibc": ("iconv", by_iconv), "perl": ("perl", by_perl), "python": ("python", by_python)}
    rows = encoding_sources.rows((ROOT / "ravo/codec/rows.inc").read_text(encoding="utf-8"))
    for row in (row for row in rows if row["engine"] == "SingleByte"):
        for source in row["sources"].split():
            library, _, theirs = source.partition(":")
            witness, by = witnesses[library]
            if answer := by(theirs):
                write_answer(out, row["name"], witness, answer)


def write_answer(out, name, witness, answer):
    read, write = answer
    values = ("-" if text is None else "+".join(f"{ord(unit):04X}" for unit in text) for text in read)
    out.write(f"read {name} {witness} {' '.join(values)}\n")
    bytes_ = (f"{data.hex()}:{ord(unit):04X}" for unit, data in sorted(write.items()))
    out.write(f"write {name} {witness} {' '.join(bytes_)}\n")


def hex_units(text):
    return text.encode("utf-16-be", "surrogatepass").hex() or "-"


def text_line(out, name, witness, data, text):
    out.write(f"text {name} {witness} {data.hex() or '-'} {hex_units(text)}\n")


def gb_keys():
    for lead in range(0x81, 0xFF):
        for trail in (*range(0x40, 0x7F), *range(0x80, 0xFF)):
            yield bytes([lead, trail])
    for lead in range(0x81, 0x85):
        for second in range(0x30, 0x3A):
            for third in range(0x81, 0xFF):
                for fourth in range(0x30, 0x3A):
                    yield bytes([lead, second, third, fourth])


def gb_18030(out):
    """One row per lead byte and kind of trailing byte keeps lines short."""
    decode = Iconv("UTF-16BE", "GB18030")

    def by_iconv_(key):
        data = decode(key)
        return "\ufffd" if data is None or len(data) != 2 else data.decode("utf-16-be")

    def by_python_(key):
        text = key.decode("gb18030", "replace")
        return text if len(text) == 1 and ord(text) < 0x10000 else "\ufffd"

    rows: dict[bytes, list[bytes]] = {}
    for key in gb_keys():
        rows.setdefault((key[:1] if len(key) == 2 else key[:2]), []).append(key)
    for keys in rows.values():
        for witness, by in (("iconv", by_iconv_), ("python", by_python_)):
            text_line(out, "GB_18030", witness, b"".join(keys), "".join(map(by, keys)))


def utf_7(out):
    generator = random.Random(20240229)
    encode = Iconv("UTF-7", "UTF-16BE")
    kinds = ["+-/aZ09", "'(),.:? \t\r\n", "!\"#$%&*;<=>@[]^_`{|}", "~\\\0\x7f", "řžÁ\u4e00\uffff", "\ud83d\ude00"]
    for unit in [*range(0x80), 0x80, 0x158, 0xFFFF]:
        text_line(out, "UTF_7_ODC", "python", chr(unit).encode("utf-7"), chr(unit))
    for _ in range(4000):
        # Pairs stay whole: iconv rejects unpaired surrogates.
        text = "".join(kind if len(kind) == 2 else generator.choice(kind)
                       for kind in generator.choices(kinds, k=generator.randrange(12)))
        text_line(out, "UTF_7_ODC", "python", text.encode("utf-7", "surrogatepass"), text)
        text_line(out, "UTF_7", "iconv", encode(text.encode("utf-16-be", "surrogatepass")), text)


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    with open(arguments[0], "w", encoding="ascii", newline="\n") as out:
        single_bytes(out)
        gb_18030(out)
        utf_7(out)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
