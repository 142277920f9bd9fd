#!/usr/bin/env python3
"""Compares the verdicts of CheckStructure with those of xmllint over mutations of the sample documents.

usage: witness.py PROGRAM [--count N] [--seed S]
(PROGRAM: isdoc_verdicts; N: mutations, 2000 if not given)

The published schemas are in the folder that RAVO_ISDOC_SCHEMAS names; without it, or without xmllint, the exit status is 77.
A document on which the two differ must be one of the decided differences below, and each of those must occur: a difference that
no longer exists is an error, too.
"""
import argparse
import collections
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections.abc import Callable

ROOT = pathlib.Path(__file__).resolve().parents[3]
SPACE = "http://isdoc.cz/namespace/2013"
SIGNATURE = "http://www.w3.org/2000/09/xmldsig#"
INSTANCE = "http://www.w3.org/2001/XMLSchema-instance"
SCHEMAS = {"Invoice": "isdoc-invoice-6.0.2.xsd", "CommonDocument": "isdoc-commondocument-6.0.2.xsd"}
BATCH = 500
Element = ElementTree.Element
Random = random.Random

# Decided differences: why the check is right, and the mutation that shows it. Each is tried in every run.
DATE = re.compile(r"<(?:\w+:)?(\w*Date)>([^<]*)</")
NUMBER = re.compile(r">[ \t\r\n]*[-+]?0*(\d*\.\d*|\d{25,})[ \t\r\n]*<")
DECIDED = {
    "date with blanks": "xs:date collapses white space (XML Schema 1.0 part 2, 4.3.6); xmllint does so for all other types",
    "long number": "xs:decimal has any number of digits (part 2, 3.2.3); xmllint reads 24",
    "long year": "a year has any number of digits (part 2, 3.2.9); xmllint reads those of its own integers",
}
LONG = "1" * 30
SUSPICIOUS = ["", " ", "0", "1", "-1", "+1", "01", "-0", "1.0", "1,5", ".5", "5.", ".", "1e3", "INF", "NaN", "true", "false", "TRUE",
              " true ", "2026-02-29", "2028-02-29", "2026-13-01", "2026-11-31", "2026-11-06Z", "2026-11-06+14:00", "2026-11-06+14:01",
              "2026-11-06T00:00:00", "06.11.2026", "20261106", "0000-01-01", "-0004-02-29", "-0001-02-29", "12026-01-01", "2026-1-1",
              "1900-02-29", "2000-02-29", "02026-01-01", "2026-00-10", "2026-10-00", "2026-11-06-13:59", "2026-11-06+1:00",
              "6.0", "6", "6.0.2.1", " 6.0.2", "6.a", "CZK", "CZ", "EURO", "ČŘŽ", "😀😀😀", "č" * 36, "č" * 37, "x" * 80, "x" * 81,
              "3F2B8C1E-6A57-4F0D-9C44-1B7DE2A90C55", "3f2b8c1e-6a57-4f0d-9c44-1b7de2a90c5", "{3F2B8C1E-6A57-4F0D-9C44-1B7DE2A90C55}",
              "cs", "cs-CZ", "cs_CZ", "cs-", "abcdefghi", "x-abcdefgh", "1a", "a b", "%zz", "%41", "::", "1:2", "#a#b", "http://[::1]/x",
              "http://x/[1]", "http://h:x/", "http://a@b@c", "urn:x:ř", "[", "./a:b", "a/b:c", "?a?b", "http://h:80/", "B", "S", "b",
              "10", "42", "43", "97", "042", "+42", "42.0", "7", "8", "obj1", "dl1", "2", "3", "0x1", "٣", "\u00a01", "1\u00a0", "--1", "+", "-",
              LONG, LONG + ".5", "0" * 30 + "1", "99999999999999999999-01-01", " 2026-11-06 ", "\n1\t"]
NAMES = ["ID", "Note", "Foo", "UUID", "id", "ref", "Extensions", "Signature", "VATApplicable", "TaxAmount", "Name", "IssueDate",
         "Invoice", "AccountingCustomerParty", "AnonymousCustomerParty", "PaymentDueDate", "Preformatted"]
SPACES = [SPACE, "", "http://isdoc.cz/namespace/invoice", SIGNATURE, "urn:other"]


def samples() -> list[Element]:
    files = sorted((ROOT / "samples/isdoc").glob("*.isdoc")) + [pathlib.Path(__file__).parent / "common-document.isdoc"]
    found = []
    for file in files:
        root = ElementTree.parse(file).getroot()
        # Broken samples have nothing to mutate.
        if root.tag == f"{{{SPACE}}}Invoice" or root.tag == f"{{{SPACE}}}CommonDocument":
            found.append(root)
    return found


def named(rng: Random) -> str:
    space = rng.choice(SPACES)
    return (f"{{{space}}}" if space else "") + rng.choice(NAMES)


def with_children(rng: Random, root: Element, least: int = 1) -> Element:
    return rng.choice([element for element in root.iter() if len(element) >= least])


def drop(rng: Random, root: Element) -> None:
    parent = with_children(rng, root)
    parent.remove(rng.choice(list(parent)))


def double(rng: Random, root: Element) -> None:
    parent = with_children(rng, root)
    child = rng.choice(list(parent))
    parent.insert(list(parent).index(child), child)


def move(rng: Random, root: Element) -> None:
    parent = with_children(rng, root, 2)
    child = rng.choice(list(parent))
    parent.remove(child)
    parent.insert(rng.randrange(len(parent) + 1), child)


def swap(rng: Random, root: Element) -> None:
    parent = with_children(rng, root, 2)
    first = rng.randrange(len(parent) - 1)
    parent[first], parent[first + 1] = parent[first + 1], parent[first]


def transplant(rng: Random, root: Element) -> None:
    elements = list(root.iter())
    child = rng.choice(elements[1:])
    inside = set(child.iter())
    parent = rng.choice([element for element in elements if element not in inside])
    parent.insert(rng.randrange(len(parent) + 1), child)


def rename(rng: Random, root: Element) -> None:
    element = rng.choice(list(root.iter()))
    local = element.tag.split("}")[-1]
    element.tag = rng.choice([f"{{{SPACE}}}{local}X", f"{{{SPACE}}}{local.lower()}", named(rng)])


def respace(rng: Random, root: Element) -> None:
    element = rng.choice(list(root.iter()))
    space = rng.choice(SPACES[1:])
    element.tag = (f"{{{space}}}" if space else "") + element.tag.split("}")[-1]


def insert(rng: Random, root: Element) -> None:
    parent = rng.choice(list(root.iter()))
    child = ElementTree.Element(named(rng))
    child.text = rng.choice(SUSPICIOUS)
    parent.insert(rng.randrange(len(parent) + 1), child)


def change_text(rng: Random, root: Element) -> None:
    leaves = [element for element in root.iter() if len(element) == 0]
    rng.choice(leaves).text = rng.choice(SUSPICIOUS)


def kindred_text(rng: Random, root: Element) -> None:
    """A text that suits its element almost: most suspicious values are wrong for most elements."""
    leaves = [element for element in root.iter() if len(element) == 0 and element.text]
    element = rng.choice(leaves)
    text = element.text or ""
    at = rng.randrange(len(text) + 1)
    element.text = rng.choice([text[:at] + rng.choice("0129.-+:Zx ") + text[at:], text[:at] + text[at + 1:], text + "Z", text * 2])


def blanks(rng: Random, root: Element) -> None:
    element = rng.choice(list(root.iter()))
    blank = rng.choice([" ", "\n", "\t", "  \n", "\u00a0", "x"])
    element.text = rng.choice([blank + (element.text or ""), (element.text or "") + blank])


def empty(rng: Random, root: Element) -> None:
    element = rng.choice(list(root.iter()))
    for child in list(element):
        element.remove(child)
    element.text = None


def change_attribute(rng: Random, root: Element) -> None:
    element = rng.choice([element for element in root.iter() if element.attrib])
    name = rng.choice(list(element.attrib))
    value = element.attrib.pop(name)
    change = rng.randrange(4)
    if change == 0:
        element.attrib[name] = rng.choice(SUSPICIOUS)
    elif change == 1:
        element.attrib[name + "X"] = value
    elif change == 2:
        element.attrib[name] = value + rng.choice([" ", "x", ""])


def add_attribute(rng: Random, root: Element) -> None:
    element = rng.choice(list(root.iter()))
    types = ["i:AmountType", "i:IDType", "i:ID36Type", "i:NoteType", "i:Unknown", "x:IDType", "IDType", "i:PartyType", "i:UUIDType"]
    names: dict[str, list[str]] = {
        "id": SUSPICIOUS, "ref": SUSPICIOUS, "languageID": SUSPICIOUS, "unitCode": SUSPICIOUS, "version": SUSPICIOUS, "Foo": ["1"],
        f"{{{SPACE}}}id": ["1"], "{urn:other}id": ["1"], "{http://www.w3.org/XML/1998/namespace}lang": ["cs"],
        f"{{{INSTANCE}}}schemaLocation": ["a b"], f"{{{INSTANCE}}}noNamespaceSchemaLocation": ["a"],
        f"{{{INSTANCE}}}nil": ["true", "false"], f"{{{INSTANCE}}}foo": ["1"], f"{{{INSTANCE}}}type": types}
    name = rng.choice(list(names))
    element.attrib[name] = rng.choice(names[name])


MUTATIONS: list[Callable[[Random, Element], None]] = [
    drop, double, move, swap, transplant, rename, respace, insert, change_text, change_text, kindred_text, kindred_text, blanks, empty,
    change_attribute, add_attribute]


def copied(element: Element) -> Element:
    return ElementTree.fromstring(ElementTree.tostring(element))


def text_of(root: Element) -> str:
    text = ElementTree.tostring(root, encoding="unicode")
    # The prefix of the types that elements declare.
    return re.sub(r"^(<[^\s/>]+)", rf'\1 xmlns:i="{SPACE}"', text, count=1)


def mutations(rng: Random, count: int) -> list[tuple[str, str]]:
    originals = samples()
    found = []
    for _ in range(count):
        original = rng.choice(originals)
        root = copied(original)
        names = []
        for _ in range(rng.choice([1, 1, 1, 2])):
            mutate = rng.choice(MUTATIONS)
            try:
                mutate(rng, root)
            except IndexError:
                continue
            names.append(mutate.__name__)
        # The schema that judges it is that of the original.
        found.append((text_of(root), SCHEMAS[original.tag.split("}")[-1]]))
    return found


def of_each_difference() -> list[tuple[str, str]]:
    root = samples()[0]
    texts = []
    for name, value in (("IssueDate", " 2026-11-06 "), ("PaidAmount", LONG), ("IssueDate", "99999999999999999999-01-01")):
        changed = copied(root)
        element = changed.find(f".//{{{SPACE}}}{name}")
        assert element is not None
        element.text = value
        texts.append((text_of(changed), SCHEMAS["Invoice"]))
    return texts


def normal(text: str) -> str:
    """The document without what is decided: where both agree on it, that alone made the difference."""
    text = DATE.sub(lambda match: match[0].replace(match[2], re.sub(r"^(-?)\d{10,}-", r"\g<1>2026-", match[2].strip(" \t\r\n"))), text)
    return NUMBER.sub(lambda match: ">1<" if len(match[1].replace(".", "")) > 24 else match[0], text)


def decided(text: str) -> str:
    if any(re.search(r"\d{10,}-", match[2]) for match in DATE.finditer(text)):
        return "long year"
    if any(match[2] != match[2].strip(" \t\r\n") for match in DATE.finditer(text)):
        return "date with blanks"
    return "long number"


def witness(folder: pathlib.Path, schemas: pathlib.Path, documents: list[tuple[str, str]]) -> list[bool]:
    verdicts: dict[str, bool] = {}
    for schema in SCHEMAS.values():
        names = [f"{number}.xml" for number, (_, wanted) in enumerate(documents) if wanted == schema]
        for begin in range(0, len(names), BATCH):
            run = subprocess.run(["xmllint", "--nonet", "--noout", "--schema", str(schemas / schema), *names[begin:begin + BATCH]],
                                 cwd=folder, capture_output=True, text=True, check=False, errors="replace")
            for name, verdict in re.findall(r"^(\d+\.xml) (validates|fails to validate)", run.stderr, re.MULTILINE):
                verdicts[name] = verdict == "validates"
    return [verdicts[f"{number}.xml"] for number in range(len(documents))]


def ours(program: str, folder: pathlib.Path, count: int) -> list[str]:
    names = "".join(f"{number}.xml\n" for number in range(count))
    run = subprocess.run([program], cwd=folder, input=names, capture_output=True, text=True, check=True, errors="replace")
    lines = run.stdout.splitlines()
    assert len(lines) == count, f"{len(lines)} verdicts for {count} documents"
    return lines


def compared(program: str, schemas: pathlib.Path, documents: list[tuple[str, str]]) -> list[tuple[str, bool, str]]:
    """The documents on which the two differ: text, the witness's verdict, our line."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for number, (text, _) in enumerate(documents):
            (folder / f"{number}.xml").write_text(text, encoding="utf-8")
        theirs = witness(folder, schemas, documents)
        own = ours(program, folder, len(documents))
    share = sum(theirs) / max(1, len(theirs))
    print(f"{len(documents)} documents, {share:.0%} of them valid")
    return [(text, verdict, line) for (text, _), verdict, line in zip(documents, theirs, own) if verdict != (line == "valid")]


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--count", type=int, default=2000)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    folder = os.environ.get("RAVO_ISDOC_SCHEMAS")
    if not folder or not shutil.which("xmllint"):
        print("RAVO_ISDOC_SCHEMAS names no folder with the schemas, or xmllint is missing")
        return 77
    schemas = pathlib.Path(folder)
    documents = mutations(Random(options.seed), options.count) + of_each_difference()
    differences = compared(options.program, schemas, documents)
    wanted = dict(documents)
    without = compared(options.program, schemas, [(normal(text), wanted[text]) for text, _, _ in differences])
    left = {text for text, _, _ in without}
    counts: collections.Counter[str] = collections.Counter()
    failed = False
    for text, verdict, line in differences:
        if normal(text) == text or normal(text) in left:
            failed = True
            print(f"xmllint: {verdict}, CheckStructure: {line[:300]}\n{text}\n")
        else:
            counts[decided(text)] += 1
    for name, reason in DECIDED.items():
        print(f"{counts[name]} times: {name}: {reason}")
        failed = failed or counts[name] == 0
    return int(failed)


if __name__ == "__main__":
    sys.exit(main())
