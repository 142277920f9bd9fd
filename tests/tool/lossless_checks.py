"""Documents of the distribution: a value that `ravo xml set` sets is all that changes, and set back it leaves the same file."""

import pathlib
import zlib
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from typing import Optional
from xml.parsers import expat

from harness import YES, Program, Result

# Packages that scripts/setup installs: icons of GNOME, and the descriptions of MIME types.
FOLDERS = ("/usr/share/icons/Adwaita", "/usr/share/mime")
LEAST = 1000
NEW = "<Ř & \"Ž'\n>"


@dataclass
class Reading:
    """What expat reads: texts and attributes by their paths, and all that is none."""

    values: dict[str, str] = field(default_factory=dict)
    rest: list[tuple[str, ...]] = field(default_factory=list)
    # Elements that have others, comments or instructions inside.
    branches: set[str] = field(default_factory=set)


def read(content: bytes) -> Reading:
    reading = Reading()
    open_paths: list[str] = [""]
    counts: list[dict[str, int]] = [{}]

    def start(name: str, attributes: list[str]) -> None:
        reading.branches.add(open_paths[-1])
        number = counts[-1][name] = counts[-1].get(name, 0) + 1
        path = f"{open_paths[-1]}/{name}[{number}]"
        open_paths.append(path)
        counts.append({})
        reading.rest.append(("open", path, *attributes[::2]))
        reading.values[path] = ""
        for key, value in zip(attributes[::2], attributes[1::2]):
            reading.values[f"{path}/@{key}"] = value

    def end(name: str) -> None:
        reading.rest.append(("close", name))
        open_paths.pop()
        counts.pop()

    def text(data: str) -> None:
        reading.values[open_paths[-1]] += data

    def other(*words: str) -> None:
        reading.branches.add(open_paths[-1])
        reading.rest.append(words)

    parser = expat.ParserCreate()
    parser.ordered_attributes = True
    parser.StartElementHandler, parser.EndElementHandler, parser.CharacterDataHandler = start, end, text
    parser.CommentHandler, parser.ProcessingInstructionHandler = other, other
    parser.Parse(content, True)
    return reading


def chosen(name: str, reading: Reading) -> str:
    """The path of a value that can be set: one of them, always the same for a file."""
    paths = [path for path, value in reading.values.items() if "/@" in path or (value and path not in reading.branches)]
    return paths[zlib.crc32(name.encode()) % len(paths)] if paths else ""


def set_and_back(program: Program, number: int, source: pathlib.Path) -> Optional[str]:
    """What goes wrong with a document; an empty text where it has no value to be set."""
    before = source.read_bytes()
    reading = read(before)
    path = chosen(str(source), reading)
    if not path:
        return ""
    file = program.folder / f"lossless{number}.xml"
    file.write_bytes(before)
    # Where one value has several spellings, the one that is there is asked for.
    spelled = any(mark in before for mark in (b"&", b"<![CDATA[")) or "  " in reading.values[path] or "\n" in reading.values[path]
    back = [program.run(["xml", "get", "--raw", file.name, path]).out[:-1], "--raw"] if spelled else [reading.values[path]]
    done = program.run(["xml", "set", "-i", file.name, path, NEW])
    if done != Result(YES, "", ""):
        return str(done)
    after = read(file.read_bytes())
    if after.rest != reading.rest or after.values != {**reading.values, path: NEW}:
        return f"{path}: more or less than the value changed"
    done = program.run(["xml", "set", "-i", file.name, path, *back])
    if done != Result(YES, "", ""):
        return str(done)
    if file.read_bytes() != before:
        return f"{path}: set back, the file is another one"
    file.unlink()
    return None


def check_lossless(program):
    """At least 1,000 documents, on the system that has them."""
    files = sorted(file for folder in FOLDERS for file in pathlib.Path(folder).rglob("*") if file.suffix in (".xml", ".svg") and file.is_file())
    if program.slow:
        files = files[:: len(files) // 20 + 1]
    with ThreadPoolExecutor(max_workers=2) as pool:
        results = list(pool.map(lambda pair: set_and_back(program, *pair), enumerate(files)))
    tried = sum(result != "" for result in results)
    if tried < LEAST and not program.slow:
        yield f"xml set: {tried} documents were tried only; scripts/setup check installs more"
    for file, result in zip(files, results):
        if result:
            yield f"xml set in {file}: {result}"
