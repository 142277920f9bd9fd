"""XML documents and PDF forms that `ravo` reads and writes."""

import json
import pathlib
from xml.etree import ElementTree
from xml.parsers import expat

from harness import NO, WRONG_USAGE, YES, Row, lines

XML = """<?xml version="1.0" encoding="windows-1250" ?>\r
<Faktury>\r
  <Faktura Číslo="1" Poznámka="a &lt; b">první<br/>řádek</Faktura>\r
  <Faktura Číslo="2"/>\r
</Faktury>\r
"""

XML_BODY = '<Účet Číslo="á"><Část>Ňouma</Část><e/></Účet>'


def xml_rows(name):
    """The commands of `ravo xml` on the document above, in sequence."""
    return [
        Row(["xml", "show", name], exact='Faktury\n  Faktura Číslo="1" Poznámka="a < b": prvnířádek\n    br\n  Faktura Číslo="2"\n'),
        Row(["xml", "show", "--color", name], out=("\x1b[1;34mFaktury\x1b[0m\n", '\x1b[36mČíslo\x1b[0m=\x1b[32m"2"\x1b[0m\n')),
        Row(["xml", "show", "--json", name], holds=json_lines(SHOWN)),
        Row(["xml", "get", name, "Faktury/Faktura"], exact="prvnířádek\n"),
        Row(["xml", "get", "--suite", name, "Faktury/Faktura"], exact="první\r\nřádek\n".replace("\r", "")),
        Row(["xml", "get", "--raw", name, "Faktury/Faktura"], exact="první<br/>řádek\n"),
        Row(["xml", "get", name, "/faktury/FAKTURA[2]/@číslo"], exact="2\n"),
        Row(["xml", "get", "--json", name, "/faktury/FAKTURA[2]/@číslo"],
            exact='{"path":"/faktury/FAKTURA[2]/@číslo","line":4,"column":19,"value":"2"}\n'),
        Row(["xml", "get", name, "Faktury/Faktura/@Poznámka"], exact="a < b\n"),
        Row(["xml", "get", "--raw", name, "Faktury/Faktura/@Poznámka"], exact="a &lt; b\n"),
        Row(["xml", "get", name, "Faktury/Faktura[3]"], NO, exact="", err=("ravo xml get: ", "Faktura[3]",)),
        Row(["xml", "get", name, "Faktury/Faktura[2]/@Poznámka"], NO, exact="", err=("@Poznámka",)),
        Row(["xml", "get", name, "Jiné"], NO, exact="", err=("Jiné",)),
        *(
            Row(["xml", "get", name, path], WRONG_USAGE, exact="", err=("is not a path",))
            for path in ("Faktury/Faktura[x]", "Faktury/Faktura[0]", "Faktury/Faktura[1", "Faktury//Faktura", "Faktury/@a/b", "/", "@a", "a b", "Faktury/")
        ),
        Row(["xml", "tokens", "--suite", name],
            out=("1\t0\theader\t<?xml version", "3\t100\ttext\tprvní\n", "3\t105\tstand-alone\t<br/>\n", "5\t151\tclose\t</Faktury>\n"),
            holds=lines(9)),
        Row(["xml", "tokens", name],
            out=("1\t1\tdeclaration\t<?xml version", "3\t42\ttext\tprvní\n", "3\t47\tstand-alone\t<br/>\n", "5\t1\tclose\t</Faktury>\n"),
            holds=lines(14)),
        Row(["xml", "set", name, "Faktury/Faktura[1]", "text"], WRONG_USAGE, exact="", err=("contains elements",)),
        Row(["xml", "set", name, "Faktury/Faktura[4]/Popis", "x"], NO, exact="", err=("Faktura[4]", "--add")),
        Row(["xml", "set", name, "Faktury/Faktura[4]", "x", "--add"], WRONG_USAGE, exact="", err=("Faktura[4]",)),
        Row(["xml", "set", name, "Faktury/<", "x"], WRONG_USAGE, exact="", err=("is not a path",)),
        Row(["xml", "set", name, "Faktury/Faktura[2]"], WRONG_USAGE, exact="", err=("has no value",)),
        Row(["xml", "set", name, "Faktury/Faktura[2]", "中"], WRONG_USAGE, exact="", err=("U+4E2D does not exist in Windows-1250", "--references")),
        Row(["xml", "set", name, "Faktury/Faktura[2]/中", "a", "--add", "--references"], WRONG_USAGE, exact="", err=("a name cannot contain references",)),
        Row(["xml", "set", name, "Faktury/Faktura[2]", "\x01"], WRONG_USAGE, exact="", err=("U+0001 is no character of XML",)),
        Row(["xml", "set", name, "Faktury/Faktura[2]", "a", "faktury/faktura[2]", "b"], WRONG_USAGE, exact="", err=("is set twice",)),
        Row(["xml", "set", name, "Faktury", "<Faktura/>", "Faktury/Faktura[2]", "b", "--raw"], WRONG_USAGE, exact="", err=("is set twice",)),
        Row(["xml", "set", name, "Faktury", "<a>", "--raw"], WRONG_USAGE, exact="", err=("is not valid XML there",)),
        Row(["xml", "set", name, "Faktury/Faktura/@Číslo", 'a"b', "--raw"], WRONG_USAGE, exact="", err=("is not valid XML there",)),
        Row(["xml", "set", name, "Faktury/Faktura[2]", "x", "-o", "missing/a.xml"], WRONG_USAGE, exact="", err=("missing/a.xml",)),
        Row(["xml", "set", name, "Faktury/Faktura[2]", "x", "-o", ""], WRONG_USAGE, exact="", err=("name of the output file",)),
        Row(["xml", "set", name, "Faktury/Faktura[2]", "x", "-i", "--dry-run"], WRONG_USAGE, exact="", err=("use only one of",)),
        Row(["xml", "set", "-i", "-", "a", "b"], WRONG_USAGE, exact="", err=("there is no file to edit in place",)),
        Row(["xml", "format", name], NO, exact="", err=(":3:", "--suite")),
    ]


SHOWN = [
    {"path": "/Faktury[1]", "line": 2, "column": 1, "name": "Faktury", "attributes": [], "text": "\n  \n  \n"},
    {"path": "/Faktury[1]/Faktura[1]", "line": 3, "column": 3, "name": "Faktura",
     "attributes": [{"name": "Číslo", "value": "1"}, {"name": "Poznámka", "value": "a < b"}], "text": "prvnířádek"},
    {"path": "/Faktury[1]/Faktura[1]/br[1]", "line": 3, "column": 47, "name": "br", "attributes": [], "text": ""},
    {"path": "/Faktury[1]/Faktura[2]", "line": 4, "column": 3, "name": "Faktura", "attributes": [{"name": "Číslo", "value": "2"}], "text": ""},
]


def json_lines(wanted):
    """A `holds`: one JSON value a line."""
    return lambda out: (got := [json.loads(line) for line in out.splitlines()]) != wanted and f"{got} is not {wanted}"


def check_xml(program):
    """A document shown, searched and refused; what is refused changes nothing."""
    file = program.folder / "výkaz.xml"
    file.write_bytes(XML.encode("cp1250"))
    for row in xml_rows(file.name):
        yield from program.failures(row)
    if file.read_bytes() != XML.encode("cp1250"):
        yield "xml: the document changed"
    file.unlink()


def edited(program, content, words):
    """What `ravo xml set` makes of a document: the bytes, or its failure."""
    file, out = program.folder / "before.xml", program.folder / "after.xml"
    file.write_bytes(content)
    result = program.run(["xml", "set", file.name, *words, "-o", out.name])
    file.unlink()
    if result.status != YES or result.out or result.err:
        return result
    bytes_after = out.read_bytes()
    out.unlink()
    return bytes_after


# Document, changes, and the pieces of the document to be replaced with what takes their place.
EDITS: list[tuple[str, list[str], list[tuple[str, str]]]] = [
    ("<a>x</a>", ["a", "y"], [("x", "y")]),
    ("<a>x</a>", ["a", ""], [("x", "")]),
    ("<a></a>", ["a", "y"], [("></", ">y</")]),
    ("<a/>", ["a", "y"], [("/>", ">y</a>")]),
    ("<a />", ["a", "y"], [(" />", " >y</a>")]),
    ("<a/>", ["a", ""], []),
    ("<a>x</a>", ["a", "<&>\"'"], [("x", "&lt;&amp;&gt;\"'")]),
    ("<a b='x'/>", ["a/@b", "<&>\"'\n\t"], [("x", "&lt;&amp;&gt;\"&apos;&#10;&#9;")]),
    ('<a b="x"/>', ["a/@b", "<&>\"'"], [("x", "&lt;&amp;&gt;&quot;'")]),
    ("<a b=''/>", ["a/@b", "x"], [("''", "'x'")]),
    ("<a b = 'x' c='y'/>", ["a/@c", "1", "a/@b", "2"], [("'x'", "'2'"), ("'y'", "'1'")]),
    ("<a>x\ny</a>", ["a", "1\n2\r3"], [("x\ny", "1\n2&#13;3")]),
    ("<a>\r\n<b>x</b>\r\n</a>", ["a/b", "1\n2"], [("x", "1\r\n2")]),
    ("<a><![CDATA[x]]></a>", ["a", "<y> & ]]>"], [("x", "<y> & ]]]]><![CDATA[>")]),
    ("<a>x<![CDATA[y]]></a>", ["a", "<"], [("x<![CDATA[y]]>", "&lt;")]),
    ("<!DOCTYPE a [<!ENTITY e 'f'>]><?p q?><a><!-- > --><b>&e;</b><c>&#65;&amp;</c></a>", ["a/b", "y"], [("&e;<", "y<")]),
    ("<a><b/><b>x</b><b/></a>", ["a/b[2]", "y"], [("x", "y")]),
    ("<a><b/><B>x</B></a>", ["A/B", "y"], [("x", "y")]),
    ("<a b='x'/>", ["a/@b", "&#x41;&lt;", "--raw"], [("x", "&#x41;&lt;")]),
    ("<a>x<!-- c --></a>", ["a", "<b/>y<?z?>", "--raw"], [("x<!-- c -->", "<b/>y<?z?>")]),
    ("<a/>", ["a/@b", "x", "--add"], [("<a", '<a b="x"')]),
    ("<a b='c' />", ["a/@d", "x", "a/e", "y", "--add"], [("'c' /", "'c' d=\"x\" /"), ("/>", "><e>y</e></a>")]),
    ("<a>\n  <b/>\n</a>", ["a/b[2]/c/@d", "x", "--add"], [("<b/>", '<b/>\n  <b><c d="x"/></b>')]),
    ("<a>\n  <b>\n  </b>\n</a>", ["a/c", "x", "--add"], [("</b>", "</b>\n  <c>x</c>")]),
    ("<a></a>", ["a/c", "x", "--add"], [("></", "><c>x</c></")]),
    ("<a>ž𐐷</a>", ["a", "Příliš 𝄞 中"], [("ž𐐷", "Příliš 𝄞 中")]),
]

# How a text is written in an encoding, and what comes before it.
WAYS = [
    ("", "utf-8", b""),
    ("", "utf-8", b"\xef\xbb\xbf"),
    ("utf-8", "utf-8", b""),
    ("UTF-16", "utf-16-le", b"\xff\xfe"),
    ("utf-16", "utf-16-be", b"\xfe\xff"),
    ("UTF-16LE", "utf-16-le", b""),
    ("utf-32", "utf-32-le", b"\xff\xfe\0\0"),
    ("utf-32", "utf-32-be", b"\0\0\xfe\xff"),
    ("windows-1250", "cp1250", b""),
    ("iso-8859-2", "iso8859_2", b""),
    ("ibm852", "cp852", b""),
    ("cp424", "cp424", b""),
    ("gb18030", "gb18030", b""),
    ("us-ascii", "ascii", b""),
]


def in_encoding(text, way):
    """The bytes of a document, or nothing where the encoding lacks something."""
    declared, codec, mark = way
    declaration = f"<?xml version='1.0' encoding='{declared}'?>\n" if declared else ""
    try:
        return mark + (declaration + text).encode(codec)
    except UnicodeEncodeError:
        return None


def check_xml_edits(program):
    """Values change and nothing else does, in every encoding."""
    tried = 0
    for number, (document, words, changes) in enumerate(EDITS):
        wanted = document
        for old, new in changes:
            wanted = wanted.replace(old, new, 1)
        # Each edit in one encoding, the first ones in all.
        for way in WAYS if number < 2 or number == len(EDITS) - 1 else [WAYS[number % len(WAYS)]]:
            before, after = in_encoding(document, way), in_encoding(wanted, way)
            if before is None or after is None:
                continue
            tried += 1
            got = edited(program, before, words)
            if got != after:
                yield f"xml set {words} of {document!r} in {way[:2]}: {got!r}, not {after!r}"
    if tried < len(EDITS):
        yield f"xml set: {tried} edits were tried only"
    for declared, codec, _ in WAYS[-6:]:
        if codec == "gb18030":
            continue
        before = in_encoding("<a b='x'>y</a>", (declared, codec, b""))
        after = in_encoding("<a b='&#x4E2D;'>&#x1D11E;</a>", (declared, codec, b""))
        if (got := edited(program, before, ["a/@b", "中", "a", "𝄞", "--references"])) != after:
            yield f"xml set --references in {codec}: {got!r}"
    section = edited(program, b"<?xml version='1.0' encoding='us-ascii'?><a><![CDATA[x]]></a>", ["a", "a\u4e2d<", "--references"])
    if section != b"<?xml version='1.0' encoding='us-ascii'?><a><![CDATA[a]]>&#x4E2D;<![CDATA[<]]></a>":
        yield f"xml set --references in a section: {section!r}"


def check_xml_targets(program):
    """Standard output by default, the file itself if asked, the lines that change beforehand; a pipe is read."""
    file = program.folder / "faktura.xml"
    text = "<a>\n<b>1</b>\n<c d='2'/></a>"
    file.write_text(text, encoding="utf-8", newline="")
    words = [file.name, "a/b", "3", "a/c/@d", "č"]
    after = text.replace("1", "3").replace("2", "č")
    diff = (f"--- {file.name}\n+++ {file.name}\n@@ -2 +2 @@\n-<b>1</b>\n+<b>3</b>\n"
            "@@ -3 +3 @@\n-<c d='2'/></a>\n\\ No newline at end of file\n+<c d='č'/></a>\n\\ No newline at end of file\n")
    yield from program.failures(Row(["xml", "set", *words], exact=after))
    yield from program.failures(Row(["xml", "set", "--dry-run", *words], exact=diff))
    given = program.run(["xml", "set", "-", *words[1:], "-o", "-"], given=file.name)
    if given.status != YES or given.out != after:
        yield f"xml set of standard input: {given}"
    if file.read_text(encoding="utf-8") != text:
        yield "xml set: the file changed unasked"
    yield from program.failures(Row(["xml", "set", "-i", *words], exact=""))
    if file.read_text(encoding="utf-8") != after:
        yield "xml set -i: the file did not change"
    yield from program.failures(Row(["xml", "set", file.name, "a/b", "-5"], exact=after.replace("3", "-5")))
    yield from program.failures(Row(["xml", "set", file.name, "--", "a/b", "-i"], exact=after.replace("3", "-i")))
    for words in (["show"], ["get", "a/c/@d"], ["tokens"], ["check"], ["format", "--suite"], ["set", "a/b", "4"]):
        by_name = program.run(["xml", words[0], file.name, *words[1:]])
        piped = program.run(["xml", words[0], "-", *words[1:]], given=file.name)
        if (piped.status, piped.out) != (by_name.status, by_name.out.replace(file.name, "standard input")):
            yield f"xml {words} of standard input: {piped}, not {by_name}"
    file.unlink()


def check_xml_sizes(program):
    """Long lines, deep elements, many attributes and many changes at once."""
    file = program.folder / "large.xml"
    file.write_bytes(b"<a>" + b"<b x='1'>text</b>" * 20000 + b"</a>")
    yield from program.failures(Row(["xml", "get", file.name, "a/b[20000]"], exact="text\n"))
    changes = [word for number in range(1, 301) for word in (f"a/b[{number * 50}]", "x")]
    yield from program.failures(Row(["xml", "set", file.name, *changes], holds=lambda out: out.count(">x<") != 300 and "not 300 changes"))
    file.write_bytes(b"<a>" * 10000 + b"x" + b"</a>" * 10000)
    path = "/".join(["a"] * 10000)
    yield from program.failures(Row(["xml", "get", file.name, path], exact="x\n"))
    file.write_bytes(b"<a " + b" ".join(b"n%d='%d'" % (number, number) for number in range(100000)) + b"/>")
    yield from program.failures(Row(["xml", "get", file.name, "a/@n99999"], exact="99999\n"))
    file.unlink()


def check_xml_encodings(program):
    """Documents are read in the encoding that XML finds."""
    file = program.folder / "utf8.xml"
    for way in WAYS:
        content = in_encoding(XML_BODY, way)
        if content is None:
            continue
        file.write_bytes(content)
        yield from program.failures(Row(["xml", "show", "utf8.xml"], exact='Účet Číslo="á"\n  Část: Ňouma\n  e\n'))
        yield from program.failures(Row(["xml", "get", "utf8.xml", "ÚČET/část"], exact="Ňouma\n"))
    for content, told in (
        (b"<?xml version='1.0' encoding='utf-9'?><a/>", ":1:1: the encoding 'utf-9' is unknown"),
        (b"<?xml version='1.0' encoding='utf-7'?><a/>", "documents in UTF-7 cannot be read"),
        (b"\xef\xbb\xbf<?xml version='1.0' encoding='windows-1250'?><a/>", "the declaration says 'windows-1250'"),
        (b"<?xml version='1.0' encoding='utf-16'?><a/>", "the declaration says 'utf-16'"),
        (b"<a>\n\xc4\x8d\xe8</a>", ":2:2: these bytes are no character of UTF-8"),
        ("<a>\n𝄞".encode("utf-16") + b"\0\xd8", ":2:2: these bytes"),
    ):
        file.write_bytes(content)
        yield from program.failures(Row(["xml", "show", "utf8.xml"], WRONG_USAGE, exact="", err=("ravo xml show: utf8.xml:", told)))
    file.unlink()


# What is not XML, and where.
NOT_XML = [
    ("", "1:1"), (" ", "1:2"), ("x", "1:1"), ("<a>", "1:1"), ("<a>\n<b>\n<c", "3:1"), ("<a>\n<![CDATA[ x", "2:1"),
    ("<a></a>\n</b>\n", "2:1"), ("<a></b>", "1:4"), ("<a/><b/>", "1:5"), ("<a/>x", "1:5"), ("<a b='1' b='2'/>", "1:10"),
    ("<a b=1/>", "1:5"), ("<a b/>", "1:5"), ("<a b'1'/>", "1:5"), ("<a b='1'c='2'/>", "1:9"), ("<a b='<'/>", "1:7"), ("<a>&</a>", "1:4"), ("<a>&b;</a>", "1:4"),
    ("<a>&#0;</a>", "1:4"), ("<a>&#x110000;</a>", "1:4"), ("<a b='&'/>", "1:7"), ("<a>]]></a>", "1:4"), ("<a><!-- -- --></a>", "1:9"),
    ("<a><!-- x</a>", "1:4"), ("<a>\x01</a>", "1:4"), ("<a>\ufffe</a>", "1:4"), ("<a><?xml version='1.0'?></a>", "1:4"), (" <?xml version='1.0'?><a/>", "1:2"),
    ("<?xml?><a/>", "1:1"), ("<?xml encoding='utf-8'?><a/>", "1:7"), ("<?xml version='2.0'?><a/>", "1:7"), ("<a>< b/></a>", "1:4"), ("<a><1/></a>", "1:4"),
    ("<a></ a>", "1:6"), ("<!DOCTYPE><a/>", "1:10"), ("<a/><!DOCTYPE a>", "1:5"), ("<!DOCTYPE a [<a/>", "1:1"), ("<a / >", "1:4"), ("<a\u00d7/>", "1:3"),
]


def check_xml_unreadable(program):
    """What is not XML is an error with line and column; expat refuses it too. What the suite makes of it names the line."""
    file = program.folder / "broken.xml"
    for text, place in NOT_XML:
        file.write_bytes(text.encode())
        yield from program.failures(Row(["xml", "show", "broken.xml"], WRONG_USAGE, exact="", err=(f"ravo xml show: broken.xml:{place}: ",)))
        try:
            expat.ParserCreate().Parse(text.encode(), True)
            if "version='2" not in text:
                yield f"{text!r} is XML"
        except expat.ExpatError:
            pass
    declaration = b'<?xml version="1.0"?>'
    for content, line in ((b"<a>\n<b>\n<c", 3), (b"<a>\n<![CDATA[ x", 2), (b"<a></a>\n</b>\n", 2), (b"x" * 65536, 1)):
        file.write_bytes(declaration + content)
        works = ("tokens",) if b"CDATA" in content else ("show", "format")
        for work in works:
            yield from program.failures(Row(["xml", work, "--suite", "broken.xml"], WRONG_USAGE, exact="", err=("broken.xml: ", f"on line {line}\n")))
    file.write_bytes(declaration + b"<x a='1'/><x/>\x1b\xc2\x8e")
    yield from program.failures(Row(["xml", "show", "--suite", "broken.xml"], exact="(no name): ÂŽ\n  x a=\"1\"\n  x\n"))
    yield from program.failures(Row(["xml", "get", "--suite", "broken.xml", "x/@a"], exact="1\n"))
    file.write_bytes(b"<a/>")
    yield from program.failures(Row(["xml", "show", "--suite", "broken.xml"], WRONG_USAGE, exact="", err=("the suite loads nothing",)))
    file.unlink()


def strict(element):
    """An element as a strict XML parser reads it."""
    texts = [(text or "").strip() for text in (element.text, element.tail)]
    return [element.tag, dict(element.attrib), texts, [strict(child) for child in element]]


def check_xml_samples(program):
    """A strict parser reads the same from documents of other programs before and after."""
    saved = program.folder / "saved.xml"
    samples = sorted((pathlib.Path(__file__).parents[2] / "samples" / "xml").iterdir())
    if len(samples) < 4:
        yield "samples/xml: documents are missing"
    for sample in samples:
        before = program.folder / sample.name
        before.write_bytes(sample.read_bytes())
        yield from program.failures(Row(["xml", "format", "--suite", sample.name, "-o", saved.name], exact=""))
        if strict(ElementTree.parse(before).getroot()) != strict(ElementTree.parse(saved).getroot()):
            yield f"xml format: {sample.name} says something else after it was saved"
        saved.unlink()
        before.unlink()


FORM_START = b"%FDF-1.2\n%\xE2\xE3\xCF\xD3\n1 0 obj\n<</FDF<</Fields["
FORM_END = b"]>>>>\nendobj\ntrailer\n<</Root 1 0 R>>\n%%EOF\n"


def check_forms(program):
    """A table of fields becomes a forms data file, byte for byte; the error for an invalid row has its line."""
    table, form = program.folder / "pole.csv", program.folder / "formulář.fdf"
    command = ["form", table.name, "-o", form.name]
    for text, fields in (
        ("field,value\n", b""),
        ("field,value\nJméno,č\n", b"<</T(Jm\xE9no)/V(\xFE\xFF\x01\\r)>>"),
        ("kind;value;field\nplain;Novák (ml.);J\nnumber;-1;A\n;;B\ntext;a;C\n",
         b"<</T(J)/V(Nov\xE1k (ml.))>><</T(A)/V/-1>><</T(B)/V(\xFE\xFF)>><</T(C)/V(\xFE\xFF\0a)>>"),
    ):
        for encoding in ("utf-8", "cp1250"):
            table.write_bytes(text.encode(encoding))
            result = program.run(command)
            count = fields.count(b"<</T(")
            if (result.status, result.out, result.err) != (YES, f"{form.name}: {'one field' if count == 1 else f'{count} fields'}\n", ""):
                yield f"form {text!r}: {result}"
            elif form.read_bytes() != FORM_START + fields + FORM_END:
                yield f"form {text!r}: {form.read_bytes()!r}"
    before = form.read_bytes()
    for text, told in (
        ("", "no first row"),
        ("field\na\n", "line 1: there is no column 'value'"),
        ("field,value\na,1\n,2\n", "line 3: the field has no name"),
        ("field,value\na,(\n", "line 2: '(' has"),
        ("field,value\na,)(\n", "line 2: ')(' has"),
        ("field,value\na,C:\\\n", "line 2: 'C:\\' has"),
        ("field,value\na,語\n", "line 2: the code page of forms lacks '語'"),
        ("field,value\n(,a\n", "line 2: '(' has"),
        ("field,value,kind\na,1,box\n", "line 2: 'box' is not a kind"),
        ("field,value,kind\na,1.5,number\n", "line 2: '1.5' is not a whole number that fits 32 bits"),
        ("field,value,kind\na,2147483648,number\n", "line 2: '2147483648' is not a whole number that fits 32 bits"),
    ):
        table.write_text(text, encoding="utf-8", newline="")
        yield from program.failures(Row(command, WRONG_USAGE, exact="", err=(table.name, told)))
    if form.read_bytes() != before:
        yield "form: a table that no form can take changed the file"
    table.unlink()
    form.unlink()
