"""Invoices and attachments that `ravo isdoc extract` takes out of ISDOCX archives and PDF documents."""

import io
import itertools
import json
import random
import shutil
import struct
import subprocess
import zipfile
import zlib
from collections.abc import Iterator

from harness import NO, WRONG_USAGE, YES

INVOICE = '<?xml version="1.0" encoding="UTF-8"?>\n<Invoice xmlns="http://isdoc.cz/namespace/2013" version="6.0.2"><ID>FV1</ID></Invoice>\n'.encode()
MANIFEST = b'<manifest xmlns="http://isdoc.cz/namespace/2013/manifest"><maindocument filename="FV1.isdoc"/></manifest>'
NOTHING = b""


def archive(parts, method=zipfile.ZIP_DEFLATED):
    to = io.BytesIO()
    with zipfile.ZipFile(to, "w", method) as file:
        for name, content in parts:
            file.writestr(zipfile.ZipInfo(name), content, compress_type=method)
    return to.getvalue()


def pdf(objects, trailer, binary=b""):
    """A PDF of numbered objects, with its table."""
    text, offsets = b"%PDF-1.7\n" + binary, {}
    for number, content in objects:
        offsets[number] = len(text)
        text += b"%d 0 obj\n%s\nendobj\n" % (number, content)
    table = b"".join(b"%010d 00000 n \n" % offsets[number] for number in sorted(offsets))
    return text + b"xref\n0 1\n0000000000 65535 f \n1 %d\n" % len(offsets) + table + b"trailer\n%s\nstartxref\n%d\n%%%%EOF\n" % (trailer, len(text))


def stream(content, entries=b"", packed=True, length=None):
    data = zlib.compress(content) if packed else content
    filtered = b"/Filter /FlateDecode " if packed else b""
    length = length or b"%d" % len(data)
    return b"<< %s%s/Length %s >>\nstream\n%s\nendstream" % (entries, filtered, length, data)


NAMES = b"<< /Type /Catalog /Names << /EmbeddedFiles << /Names [(a) 2 0 R (b) 4 0 R] >> >> >>"
SPECIFICATION = b"<< /Type /Filespec /F (FV1.isdoc) /UF <FEFF0046005600310.> /EF << /F 3 0 R >> >>".replace(b"0.>", b"002E006900730064006F0063>")
SECOND = b"<< /Type /Filespec /F (p\\370\\155loha \\(1\\).txt) /EF << /F 5 0 R /UF 5 0 R >> >>"


def plain_pdf():
    # A length that is known only later, and a stream with the words of objects in it.
    tricky = b"1 0 obj\n<< /Type /Catalog >>\nendobj\nendstream\ntrailer\n<< /Root 9 0 R /Encrypt 9 0 R >>\n"
    return pdf([(1, NAMES), (2, SPECIFICATION), (3, stream(INVOICE)), (4, SECOND),
                (5, stream(tricky, packed=False, length=b"6 0 R")), (6, b"%d" % len(tricky))], b"<< /Size 7 /Root 1 0 R >>"), tricky


def packed_pdf():
    """Objects in a stream, and a table that is a stream, as of PDF 1.5."""
    inside = [(1, NAMES), (2, SPECIFICATION), (4, SECOND)]
    bodies, head = b"", b""
    for number, content in inside:
        head += b"%d %d " % (number, len(bodies))
        bodies += content + b" "
    objects = stream(head + bodies, b"/Type /ObjStm /N 3 /First %d " % len(head))
    table = stream(b"\0" * 32, b"/Type /XRef /Size 8 /W [1 2 1] /Root 1 0 R /DecodeParms << /Predictor 12 /Columns 4 >> ")
    return b"%PDF-1.5\n" + b"".join(
        b"%d 0 obj\n%s\nendobj\n" % (number, content)
        for number, content in [(3, stream(INVOICE)), (5, stream(b"text")), (6, objects), (7, table)]) + b"startxref\n9\n%%EOF\n"


class Folder:
    """Extracts into new folders."""

    counter = itertools.count(1)

    def __init__(self, program):
        self.program, self.place = program, program.folder

    def extract(self, content, *options, name="container"):
        self.place = self.program.folder / f"extracted{next(self.counter)}"
        (self.program.folder / name).write_bytes(content)
        return self.program.run(["isdoc", "extract", name, self.place.name, *options])

    def files(self):
        return {file.name: file.read_bytes() for file in self.place.iterdir()} if self.place.exists() else {}


def check_archives(program):
    folder = Folder(program)
    parts = [("manifest.xml", MANIFEST), ("přílohy/smlouva.pdf", b"%PDF-"), ("FV1.isdoc", INVOICE), ("přílohy/", NOTHING)]
    for method in (zipfile.ZIP_DEFLATED, zipfile.ZIP_STORED):
        result = folder.extract(archive(parts, method))
        place = folder.place.name
        wanted = f"invoice\t{len(INVOICE)}\t{place}/FV1.isdoc\nattachment\t5\t{place}/smlouva.pdf\n"
        if (result.status, result.out, result.err) != (YES, wanted, ""):
            yield f"isdoc extract: {result}"
        if folder.files() != {"FV1.isdoc": INVOICE, "smlouva.pdf": b"%PDF-"}:
            yield f"isdoc extract wrote {folder.files()}"
    listed = program.run(["isdoc", "extract", "container", "--list", "--json"])
    if json.loads(listed.out) != [{"role": "invoice", "name": "FV1.isdoc", "size": len(INVOICE), "file": "FV1.isdoc"},
                                  {"role": "attachment", "name": "přílohy/smlouva.pdf", "size": 5, "file": "smlouva.pdf"}]:
        yield f"isdoc extract --list: {listed}"
    # A second time into the same folder: nothing is replaced unasked.
    (folder.place / "smlouva.pdf").write_bytes(b"mine")
    again = program.run(["isdoc", "extract", "container", folder.place.name])
    if again.status != WRONG_USAGE or folder.files()["smlouva.pdf"] != b"mine" or "exists; --force" not in again.err:
        yield f"isdoc extract over a file: {again}"
    forced = program.run(["isdoc", "extract", "container", folder.place.name, "--force"])
    if forced.status != YES or folder.files()["smlouva.pdf"] != b"%PDF-":
        yield f"isdoc extract --force: {forced}"


UNSAFE = {
    "../../evil.txt": "evil.txt", "/etc/passwd": "passwd", "C:\\Windows\\win.ini": "win.ini", "..": "part", "a/..": "part-2",
    "CON": "_CON", "lpt1.txt": "_lpt1.txt", "con .x": "_con.x", "COM¹": "_COM¹", ".bashrc": "_bashrc", "-rf": "_rf", "a\x1b[2J\u202e.txt": "a_[2J_.txt", "tail. .": "tail",
    "q?*<>|\":.txt": "q_______.txt", "ŽLUŤ.txt": "ŽLUŤ.txt", "žluť.TXT": "žluť-2.TXT", "x" * 200 + ".isdoc": "x" * 114 + ".isdoc",
}


def check_unsafe_names(program):
    folder = Folder(program)
    result = folder.extract(archive([(name, INVOICE) for name in UNSAFE]))
    if result.status != YES or sorted(folder.files()) != sorted(UNSAFE.values()):
        yield f"unsafe names: {sorted(set(folder.files()) ^ set(UNSAFE.values()))} {result.err}"
    if any(mark in result.out + result.err for mark in ("\x1b", "\u202e")):
        yield "a control character of a name reaches the output"
    # Names of old programs are in the code page of the console.
    old = archive([("abcdef.isdoc", INVOICE)]).replace(b"abcdef", "čšěšč".encode("cp852") + b"1")
    if folder.extract(old).status != YES or set(folder.files()) != {"čšěšč1.isdoc"}:
        yield f"a name in code page 852 is {set(folder.files())}"


def refused_archives() -> Iterator[tuple[str, bytes, str, list[str]]]:
    whole = archive([("FV1.isdoc", INVOICE)])
    yield "of more than is permitted", archive([("zeros", b"\0" * 20_000_000)]), "more than 200 times", []
    yield "of too much in all", archive([(f"{i}", random.Random(i).randbytes(600_000)) for i in range(2)]), "unpacks to more", ["--max-size=1"]
    yield "with a damaged sum", whole.replace(struct.pack("<I", zlib.crc32(INVOICE)), b"\1\2\3\4"), "is damaged", []
    directory = whole.index(b"PK\x01\x02")
    yield "encrypted", whole[: directory + 8] + b"\x01" + whole[directory + 9 :], "is encrypted", []
    yield "in another compression", whole[: directory + 10] + b"\x0c" + whole[directory + 11 :], "compressed in a way", []
    # Two entries that share their bytes.
    noise = archive([("aa", random.Random(1).randbytes(5000))])
    directory, end = noise.index(b"PK\x01\x02"), noise.index(b"PK\x05\x06")
    entry = noise[directory:end]
    tail = bytearray(noise[end:])
    tail[8:12], tail[12:16] = struct.pack("<HH", 2, 2), struct.pack("<I", 2 * len(entry))
    yield "with entries that overlap", noise[:directory] + entry + entry + tail, "is damaged", []
    yield "of too many parts", archive([(str(i), b"") for i in range(1001)]), "more than 1000 parts", []
    yield "that is the invoice", INVOICE, "it is the invoice itself", []
    yield "of another kind", b"GIF89a", "neither a ZIP archive (ISDOCX) nor a PDF", []
    yield "that is empty", b"", "neither a ZIP archive (ISDOCX) nor a PDF", []


def check_refused_archives(program):
    folder = Folder(program)
    for what, content, words, options in refused_archives():
        result = folder.extract(content, *options)
        if result.status != WRONG_USAGE or words not in result.err or result.out or folder.place.exists():
            yield f"a container {what}: {result}"
    result = folder.extract(archive([("a.txt", b"text")]))
    if result.status != NO or "no ISDOC invoice" not in result.err or set(folder.files()) != {"a.txt"}:
        yield f"an archive without an invoice: {result}"
    whole = archive([("FV1.isdoc", INVOICE), ("a.txt", b"text")])
    for size in range(0, len(whole), 97 if program.slow else 7):
        if folder.extract(whole[:size]).status != WRONG_USAGE or folder.place.exists():
            yield f"an archive cut short at {size} is read"


def check_documents(program):
    folder = Folder(program)
    plain, tricky = plain_pdf()
    for what, content, second in (("plain", plain, tricky), ("packed", packed_pdf(), b"text")):
        result = folder.extract(content)
        if result.status != YES or folder.files() != {"FV1.isdoc": INVOICE, "příloha (1).txt".replace("ř", "ø").replace("í", "m"): second}:
            yield f"a {what} PDF: {result} {folder.files()}"
    # An update appends a new version, and what it left out is not embedded any more.
    updated = plain + b"3 0 obj\n%s\nendobj\n1 0 obj\n%s\nendobj\ntrailer\n<< /Root 1 0 R >>\n" % (
        stream(INVOICE + b"<!-- 2 -->"), NAMES.replace(b" (b) 4 0 R", b""))
    if folder.extract(updated).status != YES or folder.files() != {"FV1.isdoc": INVOICE + b"<!-- 2 -->"}:
        yield f"an updated PDF: {folder.files()}"
    refused = {
        "encrypted": (plain.replace(b"<< /Size 7 /Root", b"<< /Encrypt 9 0 R /Root"), "is encrypted"),
        "without a catalogue": (plain.replace(b"/Size 7 /Root 1 0 R", b"/Size 7"), "no catalogue"),
        "with an unknown filter": (plain.replace(b"/FlateDecode", b"/LZWDecode  "), "compressed in a way"),
        "that unpacks to too much": (plain.replace(stream(INVOICE), stream(b"\0" * 20_000_000)), "more than 200 times"),
        "with a missing file": (plain.replace(b"/EF << /F 3 0 R", b"/EF << /F 8 0 R"), "an embedded file is missing"),
    }
    for what, (content, words) in refused.items():
        result = folder.extract(content)
        if result.status != WRONG_USAGE or words not in result.err or folder.place.exists():
            yield f"a PDF {what}: {result}"
    result = folder.extract(pdf([(1, b"<< /Type /Catalog >>")], b"<< /Root 1 0 R >>"))
    if result.status != NO or folder.place.exists():
        yield f"a PDF without files: {result}"
    for size in range(20, len(plain), 211 if program.slow else 23):
        if folder.extract(plain[:size]).status not in (NO, YES, WRONG_USAGE):
            yield f"a PDF cut short at {size}"


def check_documents_of_others(program):
    """A PDF to which another program has attached files."""
    if program.emulated or not shutil.which("pdftk"):
        return
    folder = Folder(program)
    place = program.folder
    (place / "page.pdf").write_bytes(pdf([(1, b"<< /Type /Catalog /Pages 2 0 R >>"), (2, b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>"),
                                          (3, b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] >>")], b"<< /Size 4 /Root 1 0 R >>"))
    (place / "FV1.isdoc").write_bytes(INVOICE)
    (place / "note.txt").write_bytes(b"note")
    for options in (("compress",), ()):
        subprocess.run(["pdftk", "page.pdf", "attach_files", "FV1.isdoc", "note.txt", "output", "full.pdf", *options], cwd=place, check=True)
        result = folder.extract((place / "full.pdf").read_bytes())
        if result.status != YES or folder.files() != {"FV1.isdoc": INVOICE, "note.txt": b"note"}:
            yield f"a PDF of pdftk {options}: {result} {folder.files()}"
    subprocess.run(["pdftk", "full.pdf", "output", "closed.pdf", "owner_pw", "x"], cwd=place, check=True, stderr=subprocess.DEVNULL)
    if "is encrypted" not in (result := folder.extract((place / "closed.pdf").read_bytes())).err:
        yield f"an encrypted PDF of pdftk: {result}"


CONTAINER_CHECKS = (check_archives, check_unsafe_names, check_refused_archives, check_documents, check_documents_of_others)
