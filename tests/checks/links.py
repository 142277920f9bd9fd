#!/usr/bin/env python3
"""Every link between pages of this tree leads to an existing file, and to an existing heading."""

import re

from source_tree import main, read

LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
FENCE = re.compile(r"^```.*?^```$|`[^`\n]*`", re.DOTALL | re.MULTILINE)


def pages(root):
    places = [*sorted(root.glob("README*.md")), root / "CONTRIBUTING.md", *sorted((root / "docs").rglob("*.md")), *sorted((root / "examples").rglob("*.md"))]
    return [place for place in places if place.is_file()]


def anchors(page):
    """The anchors of the headings in Markdown."""
    headings = re.findall(r"^#+ (.*)$", re.sub(r"^```.*?^```$", "", page, flags=re.DOTALL | re.MULTILINE), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading.lower()).strip().replace(" ", "-") for heading in headings}


def check(root):
    findings = []
    for page in pages(root):
        for link in LINK.findall(FENCE.sub("", read(page))):
            name, _, anchor = link.partition("#")
            target = page.parent / name if name else page
            if re.match(r"\w+:", link):
                continue
            if not target.exists():
                findings.append(f"{page.relative_to(root)}: there is no {name}")
            elif anchor and anchor not in anchors(read(target)):
                findings.append(f"{page.relative_to(root)}: {name or 'the page'} has no heading {anchor}")
    return findings


PLANTINGS = [
    ("a good tree", {"README.md": "[a](docs/a.md#one-two) [b](https://x.example/) ![c](docs/c.svg) `[d](e)`", "docs/a.md": "## One: two\n[x](#one-two)", "docs/c.svg": ""}, None),
    ("a file that is not there", {"README.md": "[a](docs/a.md)"}, "README.md: there is no docs/a.md"),
    ("a file that is not there, of the Czech README", {"README.cs.md": "[a](docs/a.md)"}, "README.cs.md: there is no docs/a.md"),
    ("a heading that is not there", {"README.md": "[a](docs/a.md#x)", "docs/a.md": "# y\n"}, "has no heading x"),
    ("a heading of the page itself", {"docs/a.md": "[a](#x)\n"}, "docs/a.md: the page has no heading x"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
