#!/usr/bin/env python3
"""Writes the rows of the structure of ISDOC documents from the published schemas: types, content models as automata,
attributes, facets, keys. What the schemas do not use is refused, not guessed.

usage: tools/generate/isdoc_schema.py SCHEMA_FOLDER            writes the checked-in file
       tools/generate/isdoc_schema.py [SCHEMA_FOLDER] --check  exit status 1 if the checked-in file differs

Without a folder the check takes the one that RAVO_ISDOC_SCHEMAS names; if there is none either, its status is 77.
"""
import dataclasses
import os
import pathlib
import sys
import xml.etree.ElementTree as ElementTree
from typing import Any

ROOT = pathlib.Path(__file__).resolve().parents[2]
TARGET = "ravo/isdoc/generated/schema.inc"
FILES = ("isdoc-core-6.0.2.xsd", "isdoc-invoice-6.0.2.xsd", "isdoc-commondocument-6.0.2.xsd")
XS = "{http://www.w3.org/2001/XMLSchema}"
BUILT_IN = {"xs:string": "String", "xs:decimal": "Decimal", "xs:integer": "Integer", "xs:boolean": "Boolean", "xs:date": "Date",
            "xs:time": "Time", "xs:anyURI": "Uri", "xs:language": "Language"}
# States of a content model are the bits of a word.
MOST_STATES = 64
NONE = 0xFFFF
Node = ElementTree.Element


def refuse(what: str) -> None:
    sys.exit(f"not understood: {what}")


def expect(condition: bool, what: str) -> None:
    if not condition:
        refuse(what)


def tag(node: Node) -> str:
    return node.tag.removeprefix(XS)


def children(node: Node) -> list[Node]:
    return [child for child in node if tag(child) != "annotation"]


def only(node: Node) -> Node:
    found = children(node)
    expect(len(found) == 1, f"{tag(node)} with {len(found)} parts")
    return found[0]


def allow(node: Node, *names: str) -> None:
    expect(set(node.attrib) <= set(names), f"{tag(node)} {node.attrib}")


# Content models and patterns: the automaton whose states are the positions in the expression.

@dataclasses.dataclass
class Model:
    """A regular expression over positions."""
    nullable: bool
    first: list[int]
    last: list[int]


class Automaton:
    """Builds the positions of an expression and what follows each."""

    def __init__(self) -> None:
        self.leaves: list[Any] = []
        self.follow: list[list[int]] = []

    def leaf(self, what: Any) -> Model:
        self.leaves.append(what)
        self.follow.append([])
        return Model(False, [len(self.leaves) - 1], [len(self.leaves) - 1])

    def link(self, before: Model, after: Model) -> None:
        for position in before.last:
            self.follow[position] += [next_one for next_one in after.first if next_one not in self.follow[position]]

    def sequence(self, parts: list[Model]) -> Model:
        whole = Model(True, [], [])
        for part in parts:
            self.link(whole, part)
            whole = Model(whole.nullable and part.nullable, whole.first + (part.first if whole.nullable else []),
                          part.last + (whole.last if part.nullable else []))
        return whole

    @staticmethod
    def choice(parts: list[Model]) -> Model:
        return Model(any(part.nullable for part in parts), sum((part.first for part in parts), []),
                     sum((part.last for part in parts), []))

    def repeated(self, part: Model) -> Model:
        self.link(part, part)
        return part

    @staticmethod
    def optional(part: Model) -> Model:
        return dataclasses.replace(part, nullable=True)


class Pattern:
    """The patterns that the schemas use: characters, classes, groups, "|", "?", "+", "*", {n}."""

    def __init__(self, text: str) -> None:
        self.text = text
        self.at = 0
        self.automaton = Automaton()
        self.model = self.choice()
        expect(self.at == len(text), f"pattern {text}")

    def peek(self) -> str:
        return self.text[self.at:self.at + 1]

    def take(self) -> str:
        self.at += 1
        return self.text[self.at - 1]

    def choice(self) -> Model:
        parts = [self.sequence()]
        while self.peek() == "|":
            self.take()
            parts.append(self.sequence())
        return self.automaton.choice(parts)

    def sequence(self) -> Model:
        parts = []
        while self.peek() not in ("", "|", ")"):
            parts.append(self.piece())
        return self.automaton.sequence(parts)

    def piece(self) -> Model:
        begin = self.at
        atom = self.atom()
        end = self.at
        if self.peek() == "{":
            self.take()
            close = self.text.index("}", self.at)
            count = int(self.text[self.at:close])
            copies = [atom]
            for _ in range(count - 1):
                self.at = begin
                copies.append(self.atom())
            expect(self.at == end, self.text)
            self.at = close + 1
            return self.automaton.sequence(copies)
        if self.peek() and self.peek() in "?+*":
            sign = self.take()
            atom = self.automaton.repeated(atom) if sign in "+*" else atom
            return self.automaton.optional(atom) if sign in "?*" else atom
        return atom

    def atom(self) -> Model:
        character = self.take()
        if character == "(":
            inner = self.choice()
            expect(self.take() == ")", self.text)
            return inner
        if character == "[":
            return self.automaton.leaf(self.ranges())
        if character == "\\":
            character = self.take()
            expect(character in ".-\\", self.text)
        else:
            expect(character.isascii() and character not in ".{}?*+", self.text)
        return self.automaton.leaf([(character, character)])

    def ranges(self) -> list[tuple[str, str]]:
        found = []
        expect(self.peek() != "^", self.text)
        while self.peek() != "]":
            first = last = self.take()
            if self.peek() == "-":
                self.take()
                last = self.take()
            expect(first.isascii() and last.isascii() and "\\" not in (first, last), self.text)
            found.append((first, last))
        self.take()
        return found


@dataclasses.dataclass
class Type:
    """A type as its rows have it."""
    name: str
    base: str = ""
    content: str = "Text"
    built_in: str = "String"
    facets: list[tuple[str, int, str]] = dataclasses.field(default_factory=list)
    attributes: list[tuple[str, str, bool]] = dataclasses.field(default_factory=list)
    model: tuple[Automaton, Model] | None = None


class Schema:
    """All named things of the schemas, and the types made from them."""

    def __init__(self, folder: pathlib.Path) -> None:
        self.named: dict[tuple[str, str], Node] = {}
        self.roots: list[Node] = []
        self.spaces = set()
        self.versions = set()
        for file in FILES:
            schema = ElementTree.parse(folder / file).getroot()
            self.spaces.add(schema.attrib["targetNamespace"])
            self.versions.add(schema.attrib["version"])
            expect(schema.attrib["elementFormDefault"] == "qualified", "local names without a namespace")
            for node in children(schema):
                if tag(node) == "element":
                    self.roots.append(node)
                elif tag(node) != "include":
                    self.named[tag(node), node.attrib["name"]] = node
        expect(len(self.spaces) == 1 and len(self.versions) == 1, f"{self.spaces} {self.versions}")
        self.types: dict[str, Type] = {}
        for name in BUILT_IN:
            self.types[name] = Type(name, built_in=BUILT_IN[name])
        for kind, name in sorted(self.named):
            if kind in ("simpleType", "complexType"):
                self.type_of(name)
        for root in self.roots:
            complex_type = next(part for part in children(root) if tag(part) == "complexType")
            self.types[root.attrib["name"]] = self.complex_type(root.attrib["name"], complex_type)

    def type_of(self, name: str) -> Type:
        if name not in self.types:
            node = self.named.get(("simpleType", name))
            self.types[name] = (self.complex_type(name, self.named["complexType", name]) if node is None
                                else self.simple_type(name, node))
        return self.types[name]

    def simple_type(self, name: str, node: Node) -> Type:
        part = only(node)
        if tag(part) == "union":
            members = [self.simple_type(name, member) for member in children(part)]
            # A union with a type that takes any text takes any text.
            expect(any(member.built_in == "String" and not member.facets for member in members), f"union {name}")
            return Type(name)
        expect(tag(part) == "restriction", f"{tag(part)} {name}")
        base = self.type_of(part.attrib["base"])
        made = Type(name, base.name, built_in=base.built_in, facets=list(base.facets))
        for facet in children(part):
            value = facet.attrib["value"]
            kind = {"pattern": "Pattern", "enumeration": "Listed", "length": "Length", "maxLength": "MaxLength"}.get(tag(facet))
            expect(kind is not None, f"facet {tag(facet)}")
            expect(kind not in [inherited for inherited, _, _ in base.facets], f"{kind} twice: {name}")
            expect(kind not in ("Length", "MaxLength") or made.built_in == "String", f"{kind} {name}")
            expect(kind != "Listed" or made.built_in != "Integer" or value == str(int(value)), value)
            made.facets.append((str(kind), int(value) if "Length" in str(kind) else 0, value))
        expect(sum(kind == "Pattern" for kind, _, _ in made.facets) < 2, f"patterns {name}")
        return made

    def complex_type(self, name: str, node: Node) -> Type:
        allow(node, "name")
        made = Type(name, content="Empty")
        for part in children(node):
            if tag(part) == "simpleContent":
                extension = only(part)
                expect(tag(extension) == "extension", name)
                base = self.type_of(extension.attrib["base"])
                made = Type(name, base.name, built_in=base.built_in, facets=base.facets)
                for attribute in children(extension):
                    self.add_attributes(made, attribute)
            elif tag(part) in ("sequence", "choice", "group"):
                automaton = Automaton()
                made.model = automaton, self.particle(automaton, part)
                made.content = "Elements"
            else:
                self.add_attributes(made, part)
        return made

    def add_attributes(self, made: Type, node: Node) -> None:
        if tag(node) == "attributeGroup":
            for inner in children(self.named["attributeGroup", node.attrib["ref"]]):
                self.add_attributes(made, inner)
            return
        expect(tag(node) == "attribute", f"{tag(node)} in {made.name}")
        allow(node, "name", "type", "use")
        use = node.attrib.get("use", "optional")
        expect(use in ("optional", "required"), use)
        made.attributes.append((node.attrib["name"], node.attrib["type"], use == "required"))

    def particle(self, automaton: Automaton, node: Node) -> Model:
        least, most = node.attrib.get("minOccurs", "1"), node.attrib.get("maxOccurs", "1")
        expect(least in ("0", "1") and most in ("1", "unbounded"), f"{least} to {most} times")
        made = self.term(automaton, node)
        made = automaton.repeated(made) if most == "unbounded" else made
        return automaton.optional(made) if least == "0" else made

    def term(self, automaton: Automaton, node: Node) -> Model:
        if tag(node) == "group":
            return self.particle(automaton, only(self.named["group", node.attrib["ref"]]))
        if tag(node) in ("sequence", "choice"):
            parts = [self.particle(automaton, part) for part in children(node)]
            return automaton.sequence(parts) if tag(node) == "sequence" else automaton.choice(parts)
        if tag(node) == "any":
            expect(node.attrib["processContents"] == "lax", "any")
            space = node.attrib["namespace"]
            expect(space == "##other" or space.startswith("http"), space)
            return automaton.leaf((f"{{{space}}}*", ""))
        expect(tag(node) == "element", tag(node))
        allow(node, "name", "type", "minOccurs", "maxOccurs")
        return automaton.leaf((node.attrib["name"], node.attrib["type"]))


class Rows:
    """The tables, filled type by type."""

    def __init__(self, schema: Schema) -> None:
        self.schema = schema
        self.numbers = {name: number for number, name in enumerate(schema.types)}
        self.types: list[str] = []
        self.elements: list[str] = []
        self.states: list[str] = []
        self.arcs: list[str] = []
        self.attributes: list[str] = []
        self.facets: list[str] = []
        self.pattern_states: list[str] = []
        self.pattern_arcs: list[str] = []
        self.patterns: dict[str, int] = {}
        for made in schema.types.values():
            self.add(made)
        self.keys: list[str] = []
        self.roots: list[str] = []
        for root in schema.roots:
            self.add_root(root)

    def add(self, made: Type) -> None:
        place = f"{len(self.elements)}, "
        first_state = len(self.states)
        count = self.add_model(made)
        place += f"{count}, {first_state}, {len(self.states) - first_state}"
        attributes = f"{len(self.attributes)}, {len(made.attributes)}"
        for name, type_name, required in made.attributes:
            self.attributes.append(f'{{"{name}", {self.numbers[type_name]}, {str(required).lower()}}},')
        facets = f"{len(self.facets)}, {len(made.facets)}"
        for kind, number, value in made.facets:
            number = self.pattern(value) if kind == "Pattern" else number
            self.facets.append(f"{{Facet::Kind::{kind}, {number}, {quoted(value)}}},")
        base = self.numbers[made.base] if made.base else NONE
        self.types.append(f'{{"{made.name}", {base}, Content::{made.content}, BuiltIn::{made.built_in}, '
                          f'{place}, {attributes}, {facets}}},')

    def add_model(self, made: Type) -> int:
        if made.model is None:
            return 0
        automaton, model = made.model
        names = list(dict.fromkeys(automaton.leaves))
        expect(len({name for name, _ in names}) == len(names), f"one name, two types: {made.name}")
        expect(len(automaton.leaves) < MOST_STATES, f"too many states: {made.name}")
        for name, type_name in names:
            number = self.numbers[type_name] if type_name else NONE
            self.elements.append(f'{{"{name}", {number}}},')
        self.add_state(automaton, names, model.first, model.nullable)
        for position in range(len(automaton.leaves)):
            self.add_state(automaton, names, automaton.follow[position], position in model.last)
        return len(names)

    def add_state(self, automaton: Automaton, names: list[tuple[str, str]], arcs: list[int], final: bool) -> None:
        leaves = [automaton.leaves[position] for position in arcs]
        expect(len(set(leaves)) == len(leaves), f"ambiguous: {leaves}")
        self.states.append(f"{{{len(self.arcs)}, {len(arcs)}, {str(final).lower()}}},")
        later = {position: reachable(automaton, position) for position in arcs}
        needed = [position for position in arcs
                  if not final and not any(other in later[position] for other in arcs if other != position)]
        expect(final or bool(needed), f"no element is needed: {leaves}")
        for position in arcs:
            number = names.index(automaton.leaves[position])
            self.arcs.append(f"{{{number}, {position + 1}, {str(position in needed).lower()}}},")

    def pattern(self, text: str) -> int:
        """The first state of the pattern's automaton, which is made deterministic."""
        if text in self.patterns:
            return self.patterns[text]
        pattern = Pattern(text)
        automaton, model = pattern.automaton, pattern.model
        begin = len(self.pattern_states)
        self.patterns[text] = begin
        sets: list[tuple[int, ...]] = [(-1,)]
        for reached in sets:
            first = len(self.pattern_arcs)
            follow = sorted({after for position in reached
                             for after in (model.first if position < 0 else automaton.follow[position])})
            for low, high in pieces([bounds for position in follow for bounds in automaton.leaves[position]]):
                after = tuple(position for position in follow
                              if any(a <= low and high <= b for a, b in automaton.leaves[position]))
                if after not in sets:
                    sets.append(after)
                self.pattern_arcs.append(f"{{'{low}', '{high}', {begin + sets.index(after)}}},")
            final = any(model.nullable if position < 0 else position in model.last for position in reached)
            self.pattern_states.append(f"{{{first}, {len(self.pattern_arcs) - first}, {str(final).lower()}}},")
        return begin

    def add_root(self, root: Node) -> None:
        first = len(self.keys)
        names: dict[str, int] = {}
        nodes = [part for part in children(root) if tag(part) != "complexType"]
        for node in nodes:
            if tag(node) != "keyref":
                names[node.attrib["name"]] = len(names)
        ordered = sorted(nodes, key=lambda node: tag(node) == "keyref")
        for node in ordered:
            selector, field = children(node)
            steps = [step.removeprefix("isdoc:") for step in selector.attrib["xpath"].split("/")]
            expect(len(steps) in (2, 3) and all(step.isalnum() for step in steps), selector.attrib["xpath"])
            path = field.attrib["xpath"]
            name = path.removeprefix("@").removeprefix("isdoc:")
            expect(name.isalnum(), path)
            refers = first + names[node.attrib["refer"]] if tag(node) == "keyref" else NONE
            steps += [""] * (3 - len(steps))
            self.keys.append(f'{{{{"{steps[0]}", "{steps[1]}", "{steps[2]}"}}, "{name}", {str(path[0] == "@").lower()}, {refers}}},')
        name = root.attrib["name"]
        self.roots.append(f'{{"{name}", {self.numbers[name]}, {first}, {len(self.keys) - first}}},')


def reachable(automaton: Automaton, position: int) -> set[int]:
    found: set[int] = set()
    todo = [position]
    while todo:
        for after in automaton.follow[todo.pop()]:
            if after not in found:
                found.add(after)
                todo.append(after)
    return found


def pieces(bounds: list[tuple[str, str]]) -> list[tuple[str, str]]:
    """Ranges of characters cut so that none overlap in part."""
    cuts = sorted({ord(low) for low, _ in bounds} | {ord(high) + 1 for _, high in bounds})
    return [(chr(low), chr(high - 1)) for low, high in zip(cuts, cuts[1:])
            if any(ord(a) <= low and high - 1 <= ord(b) for a, b in bounds)]


def quoted(text: str) -> str:
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def table(comment: str, kind: str, name: str, rows: list[str]) -> str:
    return f"// {comment}\ninline constexpr {kind} {name}[] = {{\n" + "".join(f"    {row}\n" for row in rows) + "};\n"


def text_of(folder: pathlib.Path) -> str:
    schema = Schema(folder)
    rows = Rows(schema)
    space, version = schema.spaces.pop(), schema.versions.pop()
    numbered = [f"{row}  // {number}" for number, row in enumerate(rows.types)]
    parts = [
        f"// The structure of ISDOC {version}. Generated by tools/generate/isdoc_schema.py from the published schemas\n"
        f"// {', '.join(FILES[:2])}\n// and {FILES[2]}.\n",
        f'inline constexpr std::string_view kSpace = "{space}";\n',
        table("name, number of the type", "ElementRow", "kElements", rows.elements),
        table("element of the type, state of the type, needed", "Arc", "kArcs", rows.arcs),
        table("first arc, arcs, final", "State", "kStates", rows.states),
        table("name, number of the type, required", "AttributeRow", "kAttributes", rows.attributes),
        table("first character, last character, next state", "PatternArc", "kPatternArcs", rows.pattern_arcs),
        table("first arc, arcs, final", "State", "kPatternStates", rows.pattern_states),
        table("kind, number (of characters; of the first state), text", "Facet", "kFacets", rows.facets),
        table("name, base, content, built-in type, elements, states, attributes, facets", "Type", "kTypes", numbered),
        table("steps to the elements, field, whether it is an attribute, number of the key that it refers to", "Key", "kKeys",
              rows.keys),
        table("name, type, keys", "Root", "kRoots", rows.roots)]
    return "\n".join(parts)


def main(arguments: list[str]) -> int:
    check = "--check" in arguments
    folders = [argument for argument in arguments if argument != "--check"]
    if check and not folders:
        folders = [os.environ.get("RAVO_ISDOC_SCHEMAS", "")]
        if not folders[0]:
            print("RAVO_ISDOC_SCHEMAS names no folder with the schemas")
            return 77
    if len(folders) != 1:
        sys.exit(__doc__)
    text = text_of(pathlib.Path(folders[0]))
    target = ROOT / TARGET
    if check:
        if text == target.read_text(encoding="utf-8"):
            return 0
        print(f"{TARGET} is not what tools/generate/isdoc_schema.py writes")
        return 1
    target.write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
