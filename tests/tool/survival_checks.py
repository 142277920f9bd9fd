"""`ravo xml check`: each class of finding, compared with what the suite loads and saves in fact."""

import json
import pathlib
import random
import re
from typing import Union
from xml.parsers import expat

from harness import NO, WRONG_USAGE, YES, Row

MESSAGES = pathlib.Path(__file__).resolve().parents[2] / "ravo/document/messages.inc"
CLASS = re.compile(r'^RAVO_DOCUMENT_MESSAGE\(Finds\w+, "([^"]+)"', re.MULTILINE)
# Codes of differences that no class explains.
UNEXPLAINED = {"seen", "saved", "load"}

HEAD = '<?xml version="1.0" encoding="windows-1250"?>\n'

# A document, after `HEAD` unless it has a declaration or is bytes, and its findings: line:column code.
FAULTS: list[tuple[Union[str, bytes], list[str]]] = [
    ("<a/>", ["2:1 root-empty"]),
    ("<a b='1'>ž &lt;&gt;&quot;&amp; > ]] <c d=\"2\" /><e></e></a>", ["2:36 white-space-ends"]),
    ("<a></a>", []),
    ("<a b='1' c=\"ž 2\"><d>ž &lt;&gt;&quot;&amp; > ]]</d><e f=\"'\"/>\n<g><![CDATA[<&>]]></g></a>\n", []),
    ("<?xml version='1.0' encoding='windows-1250'?><a></a>", ["1:1 declaration"]),
    ("<a></a>".encode(), ["1:1 declaration"]),
    ("<rss></rss>".encode(), ["1:1 encoding-missing"]),
    ('<?xml version="1.0"?><a></a>', ["1:1 encoding-missing"]),
    ('<?xml version="1.0" encoding = "windows-1250"?><a></a>', ["1:1 encoding-missing"]),
    ('<?xml version="1.0" encoding="windows-1250" standalone="yes"?><a></a>', ["1:45 standalone"]),
    (b'\xef\xbb\xbf<?xml version="1.0" encoding="utf-8"?><a></a>', ["1:1 byte-order-mark"]),
    ('<?xml version="1.0" encoding="utf-16"?><a></a>'.encode("utf-16"), ["1:1 encoding-wide"]),
    ('<?xml version="1.0" encoding="utf-8"?><a>\nxč</a>'.encode(), ["1:42 white-space-ends", "2:2 encoding"]),
    ('<?xml version="1.0" encoding="iso-8859-2"?><a b="á">č</a>'.encode("iso8859_2"), []),
    ('<?xml version="1.0" encoding="iso-8859-2"?><a b="ľ">š</a>'.encode("iso8859_2"), ["1:50 encoding", "1:53 encoding"]),
    ("<!DOCTYPE a><a></a>", ["2:1 doctype"]),
    ("<a><?b c?></a>", ["2:4 processing-instruction"]),
    ("<?xml-other b?><a></a>", ["2:1 processing-instruction"]),
    ('<?xml-stylesheet type="text/xsl" href="a.xsl"?><a></a>', []),
    ('<?xml-stylesheet type="text/css" href="a.css"?><a></a>', ["2:1 stylesheet"]),
    ("<?xml-stylesheet type='text/xsl' href='a.xsl'?><a></a>", ["2:1 stylesheet"]),
    ('<?xml-stylesheet type="text/xsl" href="a.xsl"?><?xml-stylesheet type="text/xsl" href="b.xsl"?><a></a>', ["2:48 stylesheet"]),
    ('<a></a><?xml-stylesheet type="text/xsl" href="a.xsl"?>', ["2:8 stylesheet"]),
    ("<a><!-- x --></a>", ["2:4 comment"]),
    ("<a><!-- > --></a>", ["2:4 comment-end"]),
    ("<a><![CDATA[&lt;]]></a>", ["2:13 cdata"]),
    ("<a><![CDATA[x]]y]]></a>", ["2:14 cdata-end"]),
    ("<a><![CDATA[x]]]></a>", ["2:14 cdata-end"]),
    ("<a><![CDATA[ ]]></a>", ["2:13 white-space-ends"]),
    ("<a>x<![CDATA[y]]></a>", ["2:5 mixed-content"]),
    ("<a>&apos;&#65;&lt;</a>", ["2:4 reference", "2:10 reference"]),
    ("<a b='&#65;'></a>", ["2:7 reference"]),
    ("<a>x<b/>y</a>", ["2:9 mixed-content"]),
    ("<a><b/>y</a>", ["2:8 mixed-content"]),
    ("<a>x<b/></a>", []),
    ("<a>x<!-- y -->z</a>", ["2:5 comment", "2:15 mixed-content"]),
    ("<a>x  y</a>", ["2:5 white-space"]),
    ("<a>x\r\ny</a>", ["2:5 white-space"]),
    ("<a>x\ny</a>", []),
    ("<a> x</a>", ["2:4 white-space-ends"]),
    ("<a>x </a>", ["2:5 white-space-ends"]),
    ("<a> </a>", ["2:4 white-space-ends"]),
    ("<a>\n\t<b/> <c/>\r\n</a>", []),
    ("<a\nb='1'></a>", ["2:3 tag-lines"]),
    ("<a b='1'\tc='2'></a>", ["2:9 tag-lines"]),
    ("<a b='1\n2'></a>", ["2:8 tag-lines"]),
    ("<a  b='1'   c='2' ></a >", []),
    ("<a b=\"\"></a>", ["2:4 attribute-empty"]),
    ("<a b='x y'></a>", ["2:4 attribute-quotes"]),
    ("<a b='x\"y' c='z'></a>", ["2:4 attribute-quotes"]),
    ("<a b=\">\"></a>", ["2:4 attribute-greater"]),
    ("<a b = \"1\"></a>", ["2:4 attribute-spacing"]),
    ("<a b=\"x  y\"></a>", ["2:7 white-space"]),
    ("<a b=\"1\" B=\"2\"></a>", ["2:10 attribute-case"]),
    ("<a>" + "x" * 65530 + "</a>", ["2:1 line-long"]),
    ("<a>" + "x" * 60000 + "</a>", []),
    (("<a>" + "\n" * 100 + "</a>").encode(), ["1:1 declaration", "1:4 white-space-ends"]),
]


def content_of(document):
    if isinstance(document, bytes):
        return document
    return (document if document.startswith("<?xml v") else HEAD + document).encode("cp1250")


def saved_reading(content):
    """What expat reads, without the white space beside tags, which the suite lays out anew; white space that is all of an element counts."""
    reading: list[tuple[str, ...]] = []

    def text(data):
        if reading and reading[-1][0] == "text":
            data = reading.pop()[1] + data
        reading.append(("text", data))

    parser = expat.ParserCreate()
    parser.ordered_attributes = True
    parser.StartElementHandler = lambda name, attributes: reading.append(("open", name, *attributes))
    parser.EndElementHandler = lambda name: reading.append(("close", name))
    parser.CommentHandler = lambda data: reading.append(("comment", data))
    parser.ProcessingInstructionHandler = lambda *words: reading.append(("instruction", *words))
    parser.StartDoctypeDeclHandler = lambda *words: reading.append(("doctype", words[0]))
    parser.CharacterDataHandler = text
    parser.Parse(content, True)
    kept = []
    for before, part, after in zip([("",), *reading], reading, [*reading[1:], ("",)]):
        if part[0] != "text":
            kept.append(part)
        elif part[1].strip():
            kept.append(("text", part[1].strip()))
        elif before[0] == "open" and after[0] == "close":
            kept.append(part)
    return kept


def suite_keeps(program, name, content):
    """Whether expat reads the same in what the suite saves."""
    saved = program.folder / "kept.xml"
    if program.run(["xml", "format", "--suite", name, "-o", saved.name]).status != YES:
        return False
    after = saved.read_bytes()
    saved.unlink()
    try:
        return saved_reading(content) == saved_reading(after)
    except expat.ExpatError:
        return False


# Only the declaration shows these.
DECLARED_ONLY = {"standalone"}


def suite_sees(program, name):
    """Whether the suite reads the same elements, attributes and texts, white space included."""
    readings = []
    for option in ("--json", "--suite"):
        shown = program.run(["xml", "show", "--json", name, option])
        readings.append([(part["name"], part["attributes"], part["text"]) for part in map(json.loads, shown.out.splitlines())])
    return readings[0] == readings[1]


def check_survival(program):
    """Each class alone, with its place. The suite spoils documents with findings, and no others."""
    file = program.folder / "checked.xml"
    for document, wanted in FAULTS:
        content = content_of(document)
        file.write_bytes(content)
        result = program.run(["xml", "check", "--json", file.name])
        found = [(finding["line"], finding["column"], finding["code"]) for finding in map(json.loads, result.out.splitlines())]
        shown = [f"{line}:{column} {code}" for line, column, code in found]
        if shown != wanted or result.status != (NO if wanted else YES) or result.err:
            yield f"xml check {content[:200]!r}: {shown}, not {wanted}; {result.status} {result.err}"
        codes = {code for _, _, code in found}
        harmless = suite_keeps(program, file.name, content) and (not codes or suite_sees(program, file.name))
        if harmless != (codes <= DECLARED_ONLY):
            yield f"xml check {content[:200]!r}: found {shown}, but the suite disagrees"
    codes = {fault.split()[1] for _, faults in FAULTS for fault in faults}
    if missing := set(CLASS.findall(MESSAGES.read_text(encoding="utf-8"))) - UNEXPLAINED - codes:
        yield f"xml check: no document has {missing}"
    file.write_bytes(content_of("<a>\n&#65;</a>"))
    (program.folder / "good.xml").write_bytes(content_of("<a></a>"))
    yield from program.failures(Row(["xml", "check", "good.xml"], out=("good.xml: ", "survives")))
    result = program.run(["xml", "check", "good.xml", "missing.xml", file.name])
    if result.status != WRONG_USAGE or "missing.xml: cannot be read: there is no such file" not in result.err or f"{file.name}:3:1: reference: " not in result.out:
        yield f"xml check of three files: {result}"
    file.write_bytes(b"<a>")
    yield from program.failures(Row(["xml", "check", file.name], WRONG_USAGE, exact="", err=("ravo xml check: checked.xml:1:1: ",)))
    file.unlink()
    (program.folder / "good.xml").unlink()


PIECES = ["x", " ", "  ", "\n", "\r\n", "\t", "ž", "&lt;", "&amp;", "&quot;", "&amp;lt;", "&#65;", "&apos;", "'", "\"", ">", "]", "]]", "=", "/", "<!-- c -->", "<!-- > -->",
          "<![CDATA[x]]>", "<![CDATA[]]>", "<![CDATA[&lt;]]>", "<![CDATA[<b>]]>", "<?p q?>", "<?xml-p q?>", "<br/>", "&lt;br/&gt;", "&amp;amp;"]


def random_element(rng, depth):
    attributes = ""
    for name in rng.sample(["b", "B", "c", "ž", "d:e"], rng.choice([0, 0, 1, 2])):
        quote = rng.choice("\"\"\"'")
        value = "".join(piece for piece in rng.choices(PIECES[:20], k=rng.choice([0, 1, 1, 2, 3])) if quote not in piece)
        attributes += rng.choice([" ", " ", " ", "  ", "\n", "\t"]) + name + rng.choice(["=", "=", "=", "=", " =", "= "]) + quote + value + quote
    name = rng.choice(["a", "A", "ž", "x-y.z"])
    if rng.random() < 0.3:
        return f"<{name}{attributes}{rng.choice(['', ' '])}/>"
    inside = "".join(random_element(rng, depth + 1) if rng.random() < 0.4 and depth < 3 else rng.choice(PIECES) for _ in range(rng.choice([0, 1, 1, 1, 2, 3])))
    return f"<{name}{attributes}>{inside.replace(']]>', ']]&gt;') if '<![' not in inside else inside}</{name}>"


def check_random_survival(program):
    """Random documents: the classes explain all differences, and the suite spoils no document without a finding."""
    rng = random.Random(15)
    count = 100 if program.slow else 1500
    files = []
    for number in range(count):
        content = content_of(random_element(rng, 0))
        try:
            saved_reading(content)
        except expat.ExpatError:
            continue
        files.append(program.folder / f"random{number}.xml")
        files[-1].write_bytes(content)
    result = program.run(["xml", "check", "--json", *(file.name for file in files)])
    findings = [json.loads(line) for line in result.out.splitlines()]
    for finding in findings:
        if finding["code"] in UNEXPLAINED:
            yield f"xml check: no class for {(program.folder / finding['file']).read_bytes()!r}: {finding}"
    faulty = {finding["file"] for finding in findings}
    good = [file for file in files if file.name not in faulty]
    if len(good) < count / 50 or len(files) < count / 2 or result.err:
        yield f"xml check: {len(good)} of {len(files)} documents at random survive; {result.err[:400]}"
    for file in good:
        if not suite_keeps(program, file.name, file.read_bytes()):
            yield f"xml check: the suite spoils {file.read_bytes()!r}"
    for file in files:
        file.unlink()
