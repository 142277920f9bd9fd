"""XML documents and PDF forms that `ravo` reads and writes."""

import pathlib
from xml.etree import ElementTree

from harness import NO, WRONG_USAGE, YES, Row, lines

XML = """<?xml version="1.0" encoding="windows-1250" ?>\r
<Faktury>\r
  <Faktura Číslo="1" Poznámka="a &lt; b">první<br/>řádek</Faktura>\r
  <Faktura Číslo="2"/>\r
</Faktury>\r
"""

XML_ONE_LINE = '<?xml version="1.0" encoding="%s"?><Účet Číslo="á"><Část>Ňouma</Část><e/></Účet>'


def xml_rows(name):
    """The commands of `ravo xml` on the document above, in sequence."""
    return [
        Row(["xml", "show", name], exact='Faktury\n  Faktura Číslo="1" Poznámka="a < b": první řádek\n    br\n  Faktura Číslo="2"\n'),
        Row(["xml", "show", "--color", name], out=("\x1b[1;34mFaktury\x1b[0m\n", '\x1b[36mČíslo\x1b[0m=\x1b[32m"2"\x1b[0m\n')),
        Row(["xml", "get", name, "Faktury/Faktura"], exact="první\nřádek\n"),
        Row(["xml", "get", name, "/faktury/FAKTURA[2]/@číslo"], exact="2\n"),
        Row(["xml", "get", name, "Faktury/Faktura/@Poznámka"], exact="a < b\n"),
        Row(["xml", "get", name, "Faktury/Faktura[3]"], NO, exact="", err=("Faktura[3]",)),
        Row(["xml", "get", name, "Faktury/Faktura[2]/@Poznámka"], NO, exact="", err=("@Poznámka",)),
        Row(["xml", "get", name, "Jiné"], NO, exact="", err=("Jiné",)),
        *(
            Row(["xml", "get", name, path], WRONG_USAGE, exact="", err=("is no path",))
            for path in ("Faktury/Faktura[x]", "Faktury/Faktura[0]", "Faktury/Faktura[1", "Faktury//Faktura", "Faktury/@a/b", "/", "@a", "a b")
        ),
        Row(
            ["xml", "tokens", name],
            out=("1\t0\theader\t<?xml version", "3\t100\ttext\tprvní\n", "3\t105\tstand-alone\t<br/>\n", "5\t151\tclose\t</Faktury>\n"),
            holds=lines(9),
        ),
        # First of all: each time a text with a line break is read back, its break is an element more.
        Row(["xml", "set", name, "Faktury/Faktura[1]", "text"], exact=""),
        Row(["xml", "set", name, "Faktury/Faktura[2]/Popis", "Příliš <žluťoučký>"], exact=""),
        Row(["xml", "set", name, "Faktury/Faktura[2]/@ČÍSLO", "3"], exact=""),
        Row(["xml", "set", name, "Faktury/Faktura[1]/@Poznámka", ""], exact=""),
        Row(["xml", "get", name, "Faktury/Faktura[2]/Popis"], exact="Příliš <žluťoučký>\n"),
        Row(["xml", "set", name, "Faktury/Faktura[4]/Popis", "x"], NO, exact="", err=("Faktura[4]",)),
        Row(["xml", "set", name, "Faktury/<", "x"], WRONG_USAGE, exact="", err=("is no path",)),
        Row(["xml", "set", name, "Faktury", "中"], WRONG_USAGE, exact="", err=("cannot be written",)),
        Row(["xml", "set", name, "Faktury", "x", "-o", "missing/a.xml"], WRONG_USAGE, exact="", err=("missing/a.xml",)),
        Row(
            ["xml", "format", name],
            exact='<?xml version="1.0" encoding="windows-1250" ?>\n  <Faktury>\n    <Faktura Číslo="1">\n      text\n      <br/>\n'
            '    </Faktura>\n    <Faktura Číslo="3">\n      <Popis>\n        Příliš &lt;žluťoučký&gt;\n      </Popis>\n    </Faktura>\n'
            "  </Faktury>\n",
        ),
        Row(["xml", "format", name, "-o", "jiný.xml"], exact=""),
    ]


def check_xml(program):
    """A document shown, read, changed and formatted."""
    file, other = program.folder / "výkaz.xml", program.folder / "jiný.xml"
    file.write_bytes(XML.encode("cp1250"))
    for row in xml_rows(file.name):
        yield from program.failures(row)
    if other.read_bytes() != file.read_bytes():
        yield "xml format: what was set and saved is formatted in another way"
    if "Příliš".encode("cp1250") not in file.read_bytes():
        yield "xml set: the file is not in the code page"
    for left in (file, other):
        left.unlink()


def check_xml_encodings(program):
    """Documents in UTF-8 are read and written as UTF-8; a byte-order mark is skipped."""
    file = program.folder / "utf8.xml"
    whole = XML_ONE_LINE % "UTF-8"
    for content in (whole.encode(), b"\xef\xbb\xbf" + whole.encode(), (XML_ONE_LINE % "windows-1250").encode("cp1250")):
        file.write_bytes(content)
        yield from program.failures(Row(["xml", "show", "utf8.xml"], exact='Účet Číslo="á"\n  Část: Ňouma\n  e\n'))
        yield from program.failures(Row(["xml", "get", "utf8.xml", "ÚČET/část"], exact="Ňouma\n"))
        yield from program.failures(Row(["xml", "set", "utf8.xml", "účet/@číslo", "Á"], exact=""))
        yield from program.failures(Row(["xml", "get", "utf8.xml", "účet/@číslo"], exact="Á\n"))
        saved = file.read_bytes().decode("utf-8" if b"UTF-8" in content else "cp1250")
        if 'Číslo="Á"' not in saved or "Ňouma" not in saved:
            yield "xml set: a document is not saved in its encoding: " + saved
    file.unlink()


def check_xml_unreadable(program):
    """The error for malformed XML has file and line; a document without a first element is read by its items."""
    file = program.folder / "broken.xml"
    for content, line in ((b"<a>\n<b>\n<c", 3), (b"<a>\n<![CDATA[ x", 2), (b"<a></a>\n</b>\n", 2), (b"x" * 65536, 1)):
        file.write_bytes(content)
        works = ("tokens",) if b"CDATA" in content else ("show", "format")
        for work in works:
            yield from program.failures(Row(["xml", work, "broken.xml"], WRONG_USAGE, exact="", err=("broken.xml: ", f"on line {line}\n")))
    file.write_bytes(b"<x a='1'/><x/>\x1b\xc2\x8e")
    yield from program.failures(Row(["xml", "show", "broken.xml"], exact="(no name): ÂŽ\n  x a=\"1\"\n  x\n"))
    yield from program.failures(Row(["xml", "get", "broken.xml", "x/@a"], exact="1\n"))
    file.write_bytes(b"")
    yield from program.failures(Row(["xml", "show", "broken.xml"], exact="(no name)\n"))
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
        yield from program.failures(Row(["xml", "format", sample.name, "-o", saved.name], exact=""))
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
