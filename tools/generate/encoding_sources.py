"""The maps of an encoding in the packages of the distribution: bytes to text, from glibc's character maps (package
"locales"), Perl's Encode (package "perl") and Python's codecs."""
import gzip
import pathlib
import re
import subprocess

CHARMAPS = pathlib.Path("/usr/share/i18n/charmaps")
ROW = re.compile(r"^((?:<U[0-9A-F]{4,8}>)+)(\.\.<U[0-9A-F]{4,8}>)?\s+((?:/x[0-9a-f]{2})+)(?:\s|$)")
UNIT = re.compile(r"<U([0-9A-F]+)>")
PERL = r"""
binmode STDIN; local $/; my @keys = split /\n/, <STDIN>;
for my $key (@keys) {
  my $bytes = pack("H*", $key);
  my $text = eval { Encode::decode($ARGV[0], $bytes, Encode::FB_CROAK) };
  print $key, " ", join(" ", map { sprintf "%x", ord } split //, $text), "\n" if defined $text;
}
"""


def glibc(name, _keys):
    found: dict[bytes, str] = {}
    with gzip.open(CHARMAPS / f"{name}.gz", "rt", encoding="latin-1") as lines:
        for line in lines:
            # Only characters past U+FFFF are given as ranges.
            if (row := ROW.match(line)) and not row[2]:
                text = "".join(chr(int(unit, 16)) for unit in UNIT.findall(row[1]))
                found.setdefault(bytes.fromhex(row[3].replace("/x", "")), text)
    return found


def perl(name, keys):
    asked = "\n".join(key.hex() for key in keys)
    done = subprocess.run(["perl", "-MEncode", "-e", PERL, name], input=asked, capture_output=True, text=True, check=True)
    rows = (line.split() for line in done.stdout.splitlines())
    return {bytes.fromhex(key): "".join(chr(int(code, 16)) for code in codes) for key, *codes in rows}


def python(name, keys):
    found = {}
    for key in keys:
        try:
            found[key] = key.decode(name)
        except UnicodeDecodeError:
            pass
    return found


READERS = {"glibc": glibc, "perl": perl, "python": python}


def read(source, keys):
    """Bytes to text, of those keys that the source "library:name" assigns."""
    library, _, name = source.partition(":")
    found = READERS[library](name, keys)
    return {key: found[key] for key in keys if found.get(key, "\ufffd") != "\ufffd"}


def rows(text):
    """The rows of rows.inc as dictionaries."""
    names = ("name", "label", "code_page", "aliases", "engine", "ways", "table", "sources", "notes")
    for row in re.finditer(r'^RAVO_ENCODING\((.*?)\)$', text, re.DOTALL | re.MULTILINE):
        values = [quoted if number is None else number for quoted, number in fields(row[1])]
        if len(values) != len(names):
            raise ValueError(f"a row of {len(values)} columns: {row[0]}")
        yield dict(zip(names, values))


def fields(text):
    for field in re.finditer(r'"([^"]*)"|([^\s,"]+)', text):
        yield field[1], field[2]
