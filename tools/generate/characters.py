#!/usr/bin/env python3
"""Writes the character database: decision trees of the categories, tables of mappings, classes and decompositions.

The sources are UnicodeData.txt, CaseFolding.txt and PropList.txt of the distribution's package "unicode-data". Only the
65,536 code units of UTF-16 are described. docs/character-tables.md gets the figures of what was written.

usage: tools/generate/characters.py            writes the checked-in files anew
       tools/generate/characters.py --check    exit status 1 where a checked-in file differs
"""
import pathlib
import re
import sys

SOURCE = pathlib.Path("/usr/share/unicode")
ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = "ravo/unicode/characters/generated"
UNITS = 0x10000
SPAN = 64  # one constant tests single values within this many units
LATIN_END = 0x0250  # most text is below: those letters are reached first

# Function and the general categories (or their first letters) for which it returns true.
CATEGORIES = {
    "CharIsLetterW": "L", "CharIsLetterUpperCaseW": "Lu", "CharIsLetterLowerCaseW": "Ll",
    "CharIsLetterTitleCaseW": "Lt", "CharIsLetterModifierW": "Lm", "CharIsLetterOtherW": "Lo",
    "CharIsMarkW": "M", "CharIsMarkNon_SpacingW": "Mn", "CharIsMarkSpacing_CombinedW": "Mc",
    "CharIsMarkEnclosingW": "Me", "CharIsNumberW": "N", "CharIsNumber_DecimalW": "Nd", "CharIsNumber_LetterW": "Nl",
    "CharIsNumber_OtherW": "No", "CharIsPunctuationW": "P", "CharIsPunctuation_ConnectorW": "Pc",
    "CharIsPunctuation_DashW": "Pd", "CharIsPunctuation_OpenW": "Ps", "CharIsPunctuation_CloseW": "Pe",
    "CharIsPunctuation_InitialQuoteW": "Pi", "CharIsPunctuation_FinalQuoteW": "Pf",
    "CharIsPunctuation_OtherW": "Po", "CharIsSymbolW": "S", "CharIsSymbolMathW": "Sm", "CharIsSymbolCurrencyW": "Sc",
    "CharIsSymbolModifierW": "Sk", "CharIsSymbolOtherW": "So", "CharIsSeparatorW": "Z", "CharIsSeparatorSpaceW": "Zs",
    "CharIsSeparatorLineW": "Zl", "CharIsSeparatorParagraphW": "Zp", "CharIsOtherW": "C", "CharIsOtherControlW": "Cc",
    "CharIsOtherFormatW": "Cf", "CharIsOtherSurrogateW": "Cs", "CharIsOtherPrivateUseW": "Co",
}
# The alphabets of European correspondence: Latin, Greek and Cyrillic, and Latin with further diacritics.
COMMON_BLOCKS = (range(0x0000, 0x0250), range(0x0370, 0x0530), range(0x1E00, 0x1F00))


def fields(name):
    """The fields of every row of a semicolon-separated file, remarks left out."""
    for line in (SOURCE / name).read_text(encoding="utf-8").splitlines():
        if row := line.partition("#")[0].strip():
            yield [field.strip() for field in row.split(";")]


def code_points(text):
    first, _, last = text.partition("..")
    return range(int(first, 16), int(last or first, 16) + 1)


class Data:
    """The properties of each code unit, from the text files."""

    def __init__(self):
        version = re.search(r"-([\d.]+)\.txt", (SOURCE / "CaseFolding.txt").read_text(encoding="utf-8"))
        assert version, "CaseFolding.txt names no version"
        self.version = version[1]
        self.category, self.combining_class = {}, {}
        self.upper, self.lower, self.title = {}, {}, {}
        self.mapping = {}  # code point -> (is compatible, code points), one step
        first = 0
        for row in fields("UnicodeData.txt"):
            code = int(row[0], 16)
            start = first if row[1].endswith(", Last>") else code
            first = code
            for unit in range(start, code + 1):
                self.read(unit, row)
        self.fold = {
            int(code, 16): int(to, 16) for code, status, to, *_ in fields("CaseFolding.txt") if status in ("C", "S")
        }
        self.white_space = {
            code for span, name, *_ in fields("PropList.txt") if name == "White_Space" for code in code_points(span)
        }

    def read(self, code, row):
        if code < UNITS:
            self.category[code] = row[2]
        self.combining_class[code] = int(row[3])
        if row[5]:
            *tag, = re.findall(r"<\w+>", row[5])
            self.mapping[code] = (bool(tag), [int(c, 16) for c in row[5].split() if not c.startswith("<")])
        for mapped, text in ((self.upper, row[12]), (self.lower, row[13]), (self.title, row[14] or row[12])):
            if text:
                mapped[code] = int(text, 16)

    def expanded(self, code, compatible):
        is_compatible, to = self.mapping.get(code, (False, None))
        if to is None or (is_compatible and not compatible):
            return [code]
        return [part for one in to for part in self.expanded(one, compatible)]

    def decomposition(self, code, compatible):
        """Fully expanded, marks in canonical order; empty if the character is its own decomposition."""
        codes = self.expanded(code, compatible)
        if codes == [code]:
            return None
        ordered: list[int] = []
        for one in codes:
            at = len(ordered)
            weight = self.combining_class.get(one, 0)
            while weight and at and self.combining_class.get(ordered[at - 1], 0) > weight:
                at -= 1
            ordered.insert(at, one)
        return ordered

    def units_of(self, category):
        return {unit for unit, name in self.category.items() if name.startswith(category)}


def trees(data):
    """Function -> code units for which it returns true."""
    sets = {name: data.units_of(category) for name, category in CATEGORIES.items()}
    letters = sets["CharIsLetterW"]
    sets["CharIsLetterCommonW"] = {unit for block in COMMON_BLOCKS for unit in block if unit in letters}
    sets["CharIsAlphaNumW"] = letters | sets["CharIsNumber_DecimalW"]
    sets["CharIsWhiteSpaceW"] = {unit for unit in data.white_space if unit < UNITS}
    return sets


# Trees.


def ranges_of(units):
    ranges: list[list[int]] = []
    for unit in sorted(units):
        if ranges and unit == ranges[-1][1] + 1:
            ranges[-1][1] = unit
        else:
            ranges.append([unit, unit])
    return ranges


def clusters_of(ranges):
    """Groups neighbours that one constant covers; a longer range is a group of its own."""
    clusters: list[list[list[int]]] = []
    for one in ranges:
        if clusters and one[1] - clusters[-1][0][0] < SPAN and clusters[-1][0][0] >= LATIN_END <= one[0]:
            clusters[-1].append(one)
        elif clusters and one[1] - clusters[-1][0][0] < SPAN and one[1] < LATIN_END:
            clusters[-1].append(one)
        else:
            clusters.append([one])
    return clusters


def leaf(cluster, low, high):
    start, end = cluster[0][0], cluster[-1][1]
    if len(cluster) > 1:
        bits = sum(1 << (unit - start) for one in cluster for unit in range(one[0], one[1] + 1))
        return f"return Among(c, 0x{start:04X}, 0x{bits:X});"
    if start == end:
        return f"return c == 0x{start:04X};"
    if start == low and end == high:
        return "return true;"
    if start == low:
        return f"return c <= 0x{end:04X};"
    if end == high:
        return f"return c >= 0x{start:04X};"
    return f"return Within(c, 0x{start:04X}, 0x{end:04X});"


def weight(low: int, high: int) -> int:
    """The weight of the code units from `low` to `high`: uniform, but half of all text is Latin."""
    latin = max(0, min(high, LATIN_END - 1) - low + 1)
    return high - low + 1 + latin * (UNITS // LATIN_END)


def branch(clusters, low, high, indent):
    if len(clusters) == 1:
        return [indent + leaf(clusters[0], low, high)]
    # The comparison that balances the weights of both sides, so frequent code units are found early.
    half = min(range(1, len(clusters)), key=lambda at: abs(
        weight(low, clusters[at][0][0] - 1) - weight(clusters[at][0][0], high)))
    middle = clusters[half][0][0]
    lower = branch(clusters[:half], low, middle - 1, indent + "  ")
    upper = branch(clusters[half:], middle, high, indent)
    if len(lower) == 1:
        return [f"{indent}if (c < 0x{middle:04X}) {lower[0].strip()}", *upper]
    return [f"{indent}if (c < 0x{middle:04X}) {{", *lower, indent + "}", *upper]


def render_trees(data, figures):
    lines = []
    for name, units in trees(data).items():
        ranges = ranges_of(units)
        clusters = clusters_of(ranges)
        lines += [f"bool {name}(char16_t c) noexcept {{", *branch(clusters, 0, UNITS - 1, "  "), "}", ""]
        figures.append((name, len(units), len(ranges), len(clusters)))
    return lines[:-1]


# Tables.


def two_stages(entries, block_size):
    """First stage (block numbers from 1, 0 for a block of defaults) and blocks of a table of {unit: entry}."""
    first, blocks = [], []
    for start in range(0, UNITS, block_size):
        block = tuple(entries.get(unit, 0) for unit in range(start, start + block_size))
        if not any(block):
            first.append(0)
            continue
        if block not in blocks:
            blocks.append(block)
        first.append(blocks.index(block) + 1)
    if len(blocks) > 255:
        sys.exit("more blocks than a byte can number")
    return first, blocks


def numbers(values, width, per_line):
    texts = [f"0x{value:0{width}X}" for value in values]
    return ["    " + ", ".join(texts[at : at + per_line]) + "," for at in range(0, len(texts), per_line)]


def render_table(name, entries, block_size, entry_type, figures):
    first, blocks = two_stages(entries, block_size)
    width = 2 if entry_type == "std::uint8_t" else 4
    figures.append((f"k{name}", len(first), block_size, len(blocks), len(first) + (len(blocks) + 1) * block_size * width // 2))
    # Block number 0 holds the defaults, so a look-up needs no branch.
    flat = [0] * block_size + [entry for block in blocks for entry in block]
    return [
        f"const std::uint8_t k{name}Blocks[{len(first)}] = {{", *numbers(first, 2, 18), "};",
        f"const {entry_type} k{name}Entries[{len(blocks) + 1} * {block_size}] = {{", *numbers(flat, width, 14), "};",
    ]


def in_units(unit_map, data_source):
    return {code: to for code, to in unit_map.items() if code < UNITS and to != code and check_unit(to, data_source)}


def check_unit(code, source):
    if code >= UNITS:
        sys.exit(f"{source} maps a code unit out of the plane")
    return True


def render_mappings(data, figures):
    classes = {code: value for code, value in data.combining_class.items() if code < UNITS and value}
    return [
        *render_table("CombiningClass", classes, 32, "std::uint8_t", figures),
        *render_table("CaseFold", in_units(data.fold, "CaseFolding.txt"), 32, "char16_t", figures),
        *render_table("Upper", in_units(data.upper, "UnicodeData.txt"), 64, "char16_t", figures),
        *render_table("Lower", in_units(data.lower, "UnicodeData.txt"), 32, "char16_t", figures),
        *render_table("Title", in_units(data.title, "UnicodeData.txt"), 64, "char16_t", figures),
    ]


class Pool:
    """Concatenated sequences: a byte with the number of code units, the units in little-endian order."""

    def __init__(self):
        self.bytes, self.offsets = bytearray(1), {}

    def offset_of(self, codes):
        units = "".join(map(chr, codes)).encode("utf-16-le")
        sequence = bytes([len(units) // 2]) + units
        if sequence not in self.offsets:
            self.offsets[sequence] = len(self.bytes)
            self.bytes += sequence
        return self.offsets[sequence]

    def lines(self, name):
        return [f"const std::uint8_t k{name}Pool[{len(self.bytes)}] = {{", *numbers(self.bytes, 2, 18), "};"]


def render_decompositions(data, figures, pools):
    lines = []
    canonical = {unit: data.decomposition(unit, False) for unit in data.category}
    compatible = {unit: data.decomposition(unit, True) for unit in data.category}
    differing = {unit: codes for unit, codes in compatible.items() if codes != canonical[unit]}
    for name, sequences in (("Canonical", canonical), ("Compatible", differing)):
        pool = Pool()
        offsets = {unit: pool.offset_of(codes) for unit, codes in sorted(sequences.items()) if codes}
        lines += render_table(name, offsets, 32, "std::uint16_t", figures) + pool.lines(name)
        pools.append((name, len(offsets), len(pool.offsets), len(pool.bytes), max(pool.offsets.values())))
    return lines


# Files.


def head(data, what):
    return [f"// {what} Generated by tools/generate/characters.py from Unicode {data.version}", "// (package unicode-data)."]


def document(data, functions, tables, pools):
    lines = [
        "# Character tables", "",
        "Figures of the character database (`ravo/unicode/characters/`), written by `tools/generate/characters.py` from",
        f"Unicode {data.version}. Only the code units of UTF-16 are described; unassigned ones are of no category.", "",
        "## Decision trees", "",
        "| function | code units | ranges | leaves |", "|---|---|---|---|",
        *[f"| `{name}` | {units} | {ranges} | {leaves} |" for name, units, ranges, leaves in functions], "",
        "## Two-stage tables", "",
        "A block number of 0 in the first stage, or an entry of 0, means the default answer. Block 0, all zeros, is not counted",
        "but comes before the others, so that a look-up needs no branch.", "",
        "| table | first stage [bytes] | block size | blocks | bytes in all |", "|---|---|---|---|---|",
        *[f"| `{name}` | {first} | {size} | {blocks} | {total} |" for name, first, size, blocks, total in tables], "",
        "## Sequence pools", "",
        "| pool | characters | distinct sequences | bytes | last offset |", "|---|---|---|---|---|",
        *[f"| {name.lower()} | {units} | {distinct} | {size} | {last} |" for name, units, distinct, size, last in pools],
    ]
    return "\n".join(lines) + "\n"


def table_remarks(tables):
    return [f"// {name}: first stage {first} bytes, {blocks} blocks of {size} entries, {total} bytes in all."
            for name, first, size, blocks, total in tables]


def files():
    data = Data()
    functions: list[tuple[str, int, int, int]] = []
    mappings: list[tuple[str, int, int, int]] = []
    decompositions: list[tuple[str, int, int, int]] = []
    pools: list[tuple[str, int, int, int, int]] = []
    tree_lines = render_trees(data, functions)
    mapping_lines = render_mappings(data, mappings)
    decomposition_lines = render_decompositions(data, decompositions, pools)
    pool_remarks = [f"// {name} pool: {size} bytes, {distinct} sequences, the last at {last}."
                    for name, _, distinct, size, last in pools]
    return {
        f"{FOLDER}/categories.inc": [*head(data, "The categories as decision trees."), "", *tree_lines],
        f"{FOLDER}/mappings.inc": [*head(data, "Mappings and classes."), *table_remarks(mappings), "", *mapping_lines],
        f"{FOLDER}/decompositions.inc": [
            *head(data, "Decompositions."), *table_remarks(decompositions), *pool_remarks, "", *decomposition_lines],
        "docs/character-tables.md": document(data, functions, mappings + decompositions, pools),
    }


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        return 2
    differing = 0
    for name, content in files().items():
        text = content if isinstance(content, str) else "\n".join(content) + "\n"
        path = ROOT / name
        if not arguments:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="ascii")
        elif not path.is_file() or path.read_text(encoding="ascii") != text:
            print(f"{name} is not what {SOURCE} gives; run tools/generate/characters.py", file=sys.stderr)
            differing = 1
    return differing


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
