#!/usr/bin/env python3
"""Every benchmark has its section in bench/performance.toml, and every section its benchmark."""

import tomllib

from source_tree import main, read

DATA, GROWTH = "bench/performance.toml", "growth_bench"


def check(root):
    sections = [section["program"] for section in tomllib.loads(read(root / DATA))["section"]]
    programs = {path.stem for path in (root / "bench").glob("*_bench.cpp")} - {GROWTH}
    findings = [f"{DATA}: has no section of bench/{name}.cpp" for name in sorted(programs - set(sections))]
    for name in sections:
        if name not in programs and not (root / "bench" / f"{name}.py").is_file():
            findings.append(f"{DATA}: there is no benchmark {name}")
    return findings


def _tree(*names):
    sections = "".join(f'[[section]]\nprogram = "{name}"\n' for name in names)
    return {DATA: sections, "bench/a_bench.cpp": "", "bench/b.py": "", f"bench/{GROWTH}.cpp": ""}


PLANTINGS = [
    ("a good tree", _tree("a_bench", "b"), None),
    ("a benchmark without a section", _tree("b"), "no section of bench/a_bench.cpp"),
    ("a section without a benchmark", _tree("a_bench", "c_bench"), "no benchmark c_bench"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
