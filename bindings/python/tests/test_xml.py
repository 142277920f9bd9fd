"""Documents and trees of XML."""
import gc
import os
import pathlib
import subprocess
import xml.etree.ElementTree as witness
from typing import Any
from xml.sax import saxutils

import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo import suite, xml

SMALL = """<?xml version="1.0" encoding="windows-1250"?>
<!-- účet --><Účet  a='1'  b="2"><Řádek ID="1">první &amp; další</Řádek>
\t<Řádek ID="2"/><![CDATA[konec]]></Účet>
""".encode("cp1250")
# What XML allows, without the line ends that a parser makes one of.
WORDS = some.text(some.characters(blacklist_categories=("Cs", "Cc", "Cn"), blacklist_characters="\ufffe\uffff"), min_size=1, max_size=20)


def test_values_are_read_and_set() -> None:
    document = xml.open(SMALL)
    assert document.encoding.name == "Windows_1250" and document.bytes() == bytes(document) == SMALL
    assert document["Účet/Řádek"] == "první & další" and document["Účet/Řádek[2]/@ID"] == "2"
    assert document.get("Účet/Řádek", raw=True) == "první &amp; další"
    document["Účet/Řádek[2]/@ID"] = "3"
    assert document.bytes() == SMALL.replace(b'ID="2"', b'ID="3"')
    document.set("Účet/Řádek", "<b/>", raw=True)
    assert document.bytes() == SMALL.replace(b'ID="2"', b'ID="3"').replace("první &amp; další".encode("cp1250"), b"<b/>")


@given(WORDS)
def test_what_is_set_is_what_a_parser_reads(value: str) -> None:
    document = xml.open("<a><b c='1'>x</b></a>".encode())
    document.update([("a/b", value), ("a/b/@c", value)])
    found = witness.fromstring(document.bytes()).find("b")
    assert found is not None and (found.text, found.get("c")) == (value, value)
    assert (document["a/b"], document["a/b/@c"]) == (value, value)


def test_all_or_none() -> None:
    document = xml.open(SMALL)
    with pytest.raises(ravo.Error) as raised:
        document.update({"Účet/@a": "9", "Účet/Řádek[2]/@ID": "☃"})
    assert (raised.value.code, raised.value.position, document.bytes()) == ("lacking", 1, SMALL)
    document.set("Účet/Řádek[2]/@ID", "☃", references=True)
    assert b'ID="&#x2603;"' in document.bytes()


def test_what_is_not_there() -> None:
    document = xml.open(SMALL)
    assert document.get("Účet/x") is None and document.get("Účet/x", "nic") == "nic" and "Účet/x" not in document
    with pytest.raises(KeyError):
        document["Účet/x"]
    for path, code in (("Účet/x", "unknown"), ("", "wrong"), ("Účet[", "wrong")):
        with pytest.raises(ravo.Error) as raised:
            document[path] = "1"
        assert raised.value.code == code
    document.set("Účet/Řádek[3]", "nový", add=True)
    assert document["Účet/Řádek[3]"] == "nový"


def test_what_is_no_xml() -> None:
    with pytest.raises(ravo.Error) as raised:
        xml.open("<a>ž</b>".encode())
    assert raised.value.code == "wrong" and raised.value.position in range(3, 9) and "line" in str(raised.value)
    strangers: list[Any] = ["a", 1, None]
    for wrong in strangers:
        with pytest.raises((TypeError, OSError)):
            xml.open(wrong)
    wrongs: list[tuple[Any, type[Exception]]] = [([("a",)], ValueError), ([("a", "b", "c")], ValueError), ([("a", 1)], TypeError), ({b"a": "b"}, TypeError)]
    for pairs, refusal in wrongs:
        with pytest.raises(refusal):
            xml.open(b"<a/>").update(pairs)


def test_files(tmp_path: pathlib.Path) -> None:
    (tmp_path / "účet.xml").write_bytes(SMALL)
    names: list[Any] = [tmp_path / "účet.xml", str(tmp_path / "účet.xml")]
    for name in names:
        assert xml.open(name).bytes() == SMALL


def test_findings_are_those_of_the_program(root: pathlib.Path, program: object) -> None:
    for file in sorted((root / "samples" / "xml").glob("*.xml")):
        rows = program("xml", "check", str(file), rows=True)  # type: ignore[operator]
        found = xml.open(file).check()
        assert [(row["code"], row["line"], row["column"], row["message"]) for row in rows] == found
    document = xml.open(SMALL)
    assert [one.name for one in document.check()][:1] == ["comment"]
    assert document.check(ravo.records.Language.CZECH)[0].message != document.check()[0].message


def test_tree() -> None:
    tree = suite.Tree(SMALL)
    root = tree.root
    assert root.name == "Účet" and root.attributes == {"a": "1", "b": "2"} and root.parent is None and bool(root)
    first, second = root
    assert (first.text, second.get("id"), second.get("x", "?"), len(root)) == ("první & další", "2", "?", 2)
    assert first.parent == root != first and hash(first) == hash(root[0]) and root["řádek"] == first and root[-1] == second
    second.text, second.name = "druhý", "Zápis"
    second.set("ID", "")
    third = root.add("Třetí", "<3>")
    third.move(0)
    assert [(child.name, child.text, child.attributes) for child in root] == [
        ("Třetí", "<3>", {}), ("Řádek", "první & další", {"ID": "1"}), ("Zápis", "druhý", {})]
    tree.encoding, tree.style_sheet = "utf-8", "a.xsl"
    assert (tree.encoding, tree.style_sheet) == ("utf-8", "a.xsl")
    saved = suite.Tree(bytes(tree))
    assert [child.name for child in saved.root] == ["Třetí", "Řádek", "Zápis"] and saved.style_sheet == "a.xsl"


def test_an_item_outlives_its_tree_and_not_its_deletion() -> None:
    root = suite.Tree(SMALL).root
    gc.collect()
    child = root[0]
    child.delete()
    for use in (lambda: child.name, lambda: len(child), lambda: child.get("a"), lambda: child.find("a"), lambda: child.add("b"), child.delete):
        with pytest.raises(ravo.Error) as raised:
            use()
        assert raised.value.code == "unknown"
    with pytest.raises(ravo.Error):
        root.delete()
    with pytest.raises(IndexError):
        root[1]
    with pytest.raises(KeyError):
        root["x"]
    with pytest.raises(ravo.Error):
        root[0].move(1)


def test_tree_is_that_of_the_program(root: pathlib.Path, tmp_path: pathlib.Path) -> None:
    path = os.environ.get("RAVO_PROGRAM", "")
    if not path:
        pytest.skip("RAVO_PROGRAM is not set")
    for file in sorted((root / "samples" / "xml").glob("*.xml")):
        done = subprocess.run([path, "xml", "format", "--suite", str(file)], capture_output=True, check=True)
        assert bytes(suite.Tree(file.read_bytes())) == done.stdout


def test_tokens() -> None:
    found = suite.tokens(b'<?xml version="1.0"?>\n<a b="1"><c/>t<!-- n --></a>')
    assert [(token.kind.name, token.line) for token in found] == [
        ("HEADER", 1), ("OPEN_TAG", 2), ("STAND_ALONE_TAG", 2), ("TEXT", 2), ("COMMENT", 2), ("CLOSE_TAG", 2)]
    assert suite.tokens(b"") == []


@given(some.text(max_size=50))
def test_escapes(text: str) -> None:
    escaped = suite.escape(text)
    assert escaped == saxutils.escape(text, {'"': "&quot;", "\r\n": "<br/>"})
    if "\r\n" not in text:
        assert suite.unescape(escaped) == text
