#!/usr/bin/env python3
"""Runs the command-line program by its command line and looks at exit status, standard output and standard error.

usage: tool_test.py [--self-test] -- COMMAND...      (COMMAND: the program, an emulator in front where it needs one)

Exits 77 where the emulator says that this machine cannot run the program.
"""

import json
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import time
import zlib
from dataclasses import dataclass
from typing import Callable, Optional
from xml.etree import ElementTree

YES, NO, WRONG_USAGE, SKIPPED = 0, 1, 2, 77

# The emulator's host of drivers may fall as a session starts, on a busy machine, and says so where the program writes.
# Where the program itself falls, its exit status tells.
EMULATOR_FALL = re.compile(r"^wine: Unhandled page fault .* starting debugger\.\.\.\r?\n", re.MULTILINE)


@dataclass
class Row:
    """A command line and what must come of it. Texts are looked for; `exact` is the whole standard output."""

    arguments: list
    status: int = YES
    out: tuple = ()
    exact: Optional[str] = None
    err: tuple = ()
    # Gives a remark about what is wrong, or something false.
    holds: Optional[Callable[[str], object]] = None
    # A no that is said on standard output alone.
    silent: bool = False


@dataclass
class Result:
    status: int
    out: str
    err: str


class Program:
    def __init__(self, command, folder):
        self.command, self.folder = command, folder
        self.emulated = len(command) > 1

    def run(self, arguments, out=None, given=None):
        """`given` is the name of a file that is standard input."""
        # Into files: the servers that an emulator leaves behind would hold pipes open for seconds.
        source = self.folder / given if given else os.devnull
        with open(source, "rb") as own_in, tempfile.TemporaryFile() as own_out, tempfile.TemporaryFile() as err:
            done = subprocess.run(
                self.command + arguments, cwd=self.folder, stdin=own_in, stdout=out or own_out, stderr=err, timeout=300
            )
            texts = []
            for file in (own_out, err):
                file.seek(0)
                texts.append(file.read().decode("utf-8"))  # bytes that are no UTF-8 end the test here
        return Result(done.returncode, texts[0], EMULATOR_FALL.sub("", texts[1]) if self.emulated else texts[1])

    def failures(self, row):
        result = self.run(row.arguments)
        wrong = []
        if result.status != row.status:
            wrong.append(f"status {result.status}, not {row.status}")
        wrong += [f"standard output lacks {text!r}" for text in row.out if text not in result.out]
        wrong += [f"standard error lacks {text!r}" for text in row.err if text not in result.err]
        if row.exact is not None and result.out != row.exact:
            wrong.append(f"standard output is not {row.exact!r}")
        if "\r" in result.out + result.err:
            wrong.append("a carriage return in the output")
        if row.status == YES and result.err:
            wrong.append("something on standard error")
        if row.silent and result.err:
            wrong.append("something on standard error")
        if row.status != YES and not row.silent and not result.err:
            wrong.append("nothing on standard error")
        if row.holds and (remark := row.holds(result.out)):
            wrong.append(str(remark))
        shown = f"\n  standard output: {result.out[:600]!r}\n  standard error: {result.err[:600]!r}"
        return [f"ravo {' '.join(row.arguments)}: {remark}{shown}" for remark in wrong]


def as_json(check):
    """A `holds` over the parsed standard output."""

    def holds(out):
        try:
            value = json.loads(out)
        except ValueError as error:
            return f"no JSON: {error}"
        return check(value)

    return holds


def differs(wanted):
    return as_json(lambda value: value != wanted and f"is not {wanted!r}")


def lines(count):
    return lambda out: out.count("\n") != count and f"{out.count(chr(10))} lines, not {count}"


def without(text):
    return lambda out: text in out and f"contains {text!r}"


def table_rows(rows):
    ranges = [row for row in rows if row["first"] != row["last"]]
    names = {row["module"] for row in rows}
    wanted = {"Profil", "RSS", "DCF", "Base", "Ucetnictvi", "Kancelar", "Majetek", "Mzda", "Sklad", "Box"}
    if len(rows) != 257 or len(ranges) != 2 or names != wanted:
        return f"{len(rows)} rows, {len(ranges)} ranges, modules {names}"


def caption_groups(groups):
    items = {item["name"]: item for group in groups for item in group["items"]}
    if items["rMessageAutomatickyPrenosZP"]["text"].count("\r") != 1:
        return "the message has lost its line break"
    if items["rPropertyDokladPZPohledavka"] != {"id": 65477, "name": "rPropertyDokladPZPohledavka", "text": "&Pohledávka"}:
        return "the caption of receivables is another"


def host_libraries(libraries):
    counts = [(row["library"], len(row["interfaces"]), len(row["classes"])) for row in libraries]
    if counts != [("RavoManager_TLB", 47, 0), ("RavoProfileInfo_TLB", 9, 9), ("RavoZip_TLB", 3, 1)]:
        return f"the libraries are {counts}"
    operations = sum(row["operations"] for library in libraries for row in library["interfaces"])
    if operations != 902:
        return f"{operations} operations"


ZIP_LINES = (
    "RavoZip_TLB\t{A823255B-9316-4AAB-89B7-01D520F12983}\n"
    "\tIRavoZip\tdual\tIDispatch\t{904F0BB6-AB48-492D-BFF6-09A944EA24C9}\t78\n"
)
ZIPPER_LINES = (
    "RavoZip_TLB\t{A823255B-9316-4AAB-89B7-01D520F12983}\n"
    "\tCoRavoZipper\tclass\tIRavoZip\t{2FE78C5D-7DB0-46C4-9512-DAACCF23EBCE}\n"
)

WINDOWS_1250 = "Windows_1250\tWindows-1250 (Central European)\t1250\treads, writes\tcp1250 1250 win1250 x-cp1250 ms-ee\n"


def all_encodings(rows):
    if len({row["name"] for row in rows}) != 74:
        return f"{len(rows)} encodings"
    one_way = [row["name"] for row in rows if not (row["reads"] and row["writes"])]
    if one_way != ["UTF_7_ODC", "GB_18030"]:
        return f"read or written only: {one_way}"
    numbers = [row["code_page"] for row in rows if row["code_page"] is not None]
    if len(numbers) != len(set(numbers)) or not {1250, 852, 65001, 1200, 54936} < set(numbers):
        return f"the code pages are {numbers}"


SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
SAMPLE, SAMPLE_1250 = str(SAMPLES / "ledger.csv"), str(SAMPLES / "ledger-1250.csv")
LEDGER = [argument for column in ("Účet MD=ucet", "VS=vs", "Protiúčet=banka") for argument in ("--column", column)]
LEDGER_FAULTS = (
    "line 18\tÚčet MD\t50\nline 59\tVS\t2026000579\nline 104\tProtiúčet\t19-2000145398/0800\nline 241\tVS\t20260024O7\n"
    "300 rows\nÚčet MD (ucet): 299 valid, 1 not\nVS (vs): 268 valid, 2 not\nProtiúčet (banka): 237 valid, 1 not\n"
)


def drawn(seed, alphabet, count):
    """The text that a Mersenne Twister seeded by the seed's bytes draws, from Python's own one."""
    words = [19650218]
    for i in range(1, 624):
        words.append((1812433253 * (words[-1] ^ words[-1] >> 30) + i) & 0xFFFFFFFF)
    keys, i, j = seed.encode(), 1, 0
    for step in range(624 + 623):
        before = words[i - 1] ^ words[i - 1] >> 30
        if step < 624:
            words[i] = ((words[i] ^ before * 1664525) + keys[j] + j) & 0xFFFFFFFF
            j = (j + 1) % len(keys)
        else:
            words[i] = ((words[i] ^ before * 1566083941) - i) & 0xFFFFFFFF
        i += 1
        if i == 624:
            words[0], i = words[623], 1
    words[0] = 0x80000000
    generator = random.Random()
    generator.setstate((3, (*words, 624), None))
    return "".join(alphabet[generator.getrandbits(32) % len(alphabet)] for _ in range(count)) + "\n"


ROWS = [
    # The program as a whole.
    Row(["--version"], holds=lambda out: not re.fullmatch(r"ravo \d+\.\d+\.\d+\n", out)),
    Row(["--help"], out=("report", "table", "captions", "hash", "random", "Examples:")),
    Row(["report", "--help"], out=("--business", "-o FILE", "Examples:")),
    Row(["table", "--help"], out=("--module", "--all", "Profil, RSS, DCF", "Examples:")),
    Row(["captions", "--help"], out=("--plain", "Examples:")),
    Row([], WRONG_USAGE),
    Row(["nonsense"], WRONG_USAGE),
    Row(["--nonsense"], WRONG_USAGE),
    Row(["report", "stray"], WRONG_USAGE),
    Row(["captions", "--příklad"], WRONG_USAGE, err=("--příklad",)),
    # Tables.
    Row(["table", "10110"], exact="10110\tProfil\n"),
    Row(["table", "72510", "10210"], exact="72510\tPřevodní príkazy\n10210\tÚčtovaná firma\n"),
    Row(["table", "110120"], exact="110120\tSložky pro RSS zdroje \n"),
    Row(["table", "100121"], exact="100121\tOsoby u firmy\n"),
    Row(["table", "100124"], NO, exact="", err=("100124",)),
    Row(["table", "10110", "5", "10210"], NO, exact="10110\tProfil\n10210\tÚčtovaná firma\n", err=("table 5",)),
    Row(["table", "--", "-10110"], NO, err=("-10110",)),
    Row(["table", "--json", "10110", "5"], NO, err=("table 5",),
        holds=differs([{"id": 10110, "description": "Profil"}, {"id": 5, "description": None}])),
    Row(["table", "--module", "Kancelar", "72510"], exact="72510\tPřevodní príkazy\n"),
    Row(["table", "--module", "Ucetnictvi", "72510"], NO, err=("Ucetnictvi", "72510")),
    Row(["table", "--module", "dcf"], out=("100120-100123\tOsoby u firmy\n",), holds=lines(6)),
    Row(["table", "--module", "RSS", "--json"], holds=as_json(lambda rows: len(rows) != 5 and f"{len(rows)} rows")),
    Row(["table", "--all"], out=("208200\tNastavení pro uživatele Boxu\n",), holds=lines(257)),
    Row(["table", "--all", "--json"], holds=as_json(table_rows)),
    Row(["table", "--all", "--module", "MZDA"], out=("51100\tČíselník rodinných stavů\n",), holds=lines(43)),
    Row(["table"], WRONG_USAGE),
    Row(["table", "--all", "10110"], WRONG_USAGE),
    Row(["table", "x"], WRONG_USAGE, err=("'x'",)),
    Row(["table", "10110x"], WRONG_USAGE, err=("10110x",)),
    Row(["table", ""], WRONG_USAGE),
    Row(["table", "2147483648"], WRONG_USAGE, err=("2147483648",)),
    Row(["table", "--module", "Účetnictví"], WRONG_USAGE,
        err=("Účetnictví", "Profil, RSS, DCF, Base, Ucetnictvi, Kancelar, Majetek, Mzda, Sklad, Box")),
    Row(["table", "--module", ""], WRONG_USAGE, err=("Profil, RSS",)),
    Row(["table", "--module"], WRONG_USAGE),
    # Captions.
    Row(["captions"], out=("65477\trPropertyDokladPZPohledavka\t&Pohledávka\n", "ÚD. / Spusťte operaci „Zaúčtovat do ÚD“")),
    Row(["captions", "--plain"], out=("65477\trPropertyDokladPZPohledavka\tPohledávka\n", "\tDodací list\n"), holds=without("&")),
    Row(["captions", "--json"], holds=as_json(caption_groups)),
    Row(["captions", "--plain", "--json"], out=("„Zaúčtovat do ÚD“",), holds=without("&")),
    # Interfaces.
    Row(["interfaces"], holds=lines(3 + 59 + 10),
        out=("RavoManager_TLB\t{7CAEF350-8153-11D3-838D-0000E87DD3E0}\n\tIRavoProfile\tcustom\tIUnknown\t", "\tIRavoFirmEvents\tcustom\tIUnknown\t{E823B301-983E-11D3-83AE-0000E87DD3E0}\t0\n")),
    Row(["interfaces", "--json"], holds=as_json(host_libraries)),
    Row(["interfaces", "{904F0BB6-AB48-492D-BFF6-09A944EA24C9}"], exact=ZIP_LINES),
    Row(["interfaces", "904f0bb6-ab48-492d-bff6-09a944ea24c9"], exact=ZIP_LINES),
    Row(["interfaces", "904F0BB6AB48492DBFF609A944EA24C9"], exact=ZIP_LINES),
    Row(["interfaces", "zipper"], exact=ZIPPER_LINES),
    Row(["interfaces", "CORAVOZIPPER"], exact=ZIPPER_LINES),
    Row(["interfaces", "{2fe78c5d-7db0-46c4-9512-daaccf23ebce}"], exact=ZIPPER_LINES),
    Row(["interfaces", "{A823255B-9316-4AAB-89B7-01D520F12983}"], out=("\tIRavoZipEvents\t",), holds=lines(5)),
    Row(["interfaces", "ravozip_tlb"], holds=lines(5)),
    Row(["interfaces", "profileinfo"], holds=lines(3), out=("\tIRavoProfileInfo\t", "\tCoRavoProfileInformation\t")),
    Row(["interfaces", "sessions"], holds=lines(2), out=("\tIRavoSessions\tdual\tIDispatch\t",)),
    Row(["interfaces", "RavoBusinessDenik", "--json"],
        holds=differs([{"library": "RavoManager_TLB", "identifier": "{7CAEF350-8153-11D3-838D-0000E87DD3E0}",
                        "interfaces": [{"name": "IRavoBusinessDenik", "kind": "dual", "base": "IDispatch",
                                        "identifier": "{8A399F91-5ECC-40AB-BD7C-B0F8C374DFFE}", "operations": 7}],
                        "classes": []}])),
    Row(["interfaces", "nonsense"], NO, exact="", err=("'nonsense'",)),
    Row(["interfaces", "{904F0BB6-AB48-492D-BFF6-09A944EA24C8}"], NO, exact="", err=("24C8",)),
    Row(["interfaces", "účet", "--json"], NO, exact="[]\n", err=("účet",)),
    Row(["interfaces", "zip", "stray"], WRONG_USAGE),
    Row(["interfaces", "--help"], out=("--json", "Examples:")),
    # Encodings.
    Row(["encodings"], holds=lines(74), out=(WINDOWS_1250, "UTF_7_ODC\tUTF-7, optional direct characters as they are\t\twrites\t\n",
                                            "GB_18030\tGB 18030 (Chinese)\t54936\treads\t")),
    Row(["encodings", "--json"], holds=as_json(all_encodings)),
    *[Row(["encodings", name], exact=WINDOWS_1250) for name in ("Windows_1250", "windows-1250", "CP1250", "1250", "ms-ee")],
    Row(["encodings", "latin2", "--json"],
        holds=differs([{"name": "Iso_8859_2", "label": "ISO 8859-2 (Central European)", "code_page": 28592,
                        "aliases": ["8859-2", "latin2", "l2", "iso-ir-101", "cp912", "ibm912"], "reads": True, "writes": True,
                        "notes": ""}])),
    Row(["encodings", "koi8ru", "--json"], out=('"code_page": null',)),
    Row(["encodings", "nonsense"], NO, exact="", err=("'nonsense'",)),
    Row(["encodings", "-", "--json"], NO, exact="[]\n", err=("'-'",)),
    Row(["encodings", "1250", "1251"], WRONG_USAGE),
    Row(["encodings", "--help"], out=("--json", "Examples:")),
    # Conversions.
    Row(["convert", "--help"], out=("--from", "--replace", "Examples:")),
    Row(["convert", "-f", "1250", "-t", "utf-8"], exact=""),
    Row(["convert", "-f", "1250"], WRONG_USAGE, err=("--to",)),
    Row(["convert", "-f", "nonsense", "-t", "utf-8"], WRONG_USAGE, exact="", err=("nonsense", "ravo encodings")),
    Row(["convert", "-f", "utf-8", "-t", "gb18030"], WRONG_USAGE, err=("gb18030 cannot be written",)),
    Row(["convert", "-f", "utf-8", "-t", "1250", "--replace", "ab"], WRONG_USAGE, err=("one character",)),
    Row(["convert", "-f", "utf-8", "-t", "1250", "chybí.txt"], WRONG_USAGE, exact="", err=("chybí.txt", "cannot be read")),
    # Checks.
    Row(["check", "--help"], out=("--csv FILE", "--column NAME=KIND", "banka", "Examples:")),
    Row(["check", "banka", "19-2000145399/0800"], exact="19-2000145399/0800\tvalid\n"),
    Row(["check", "banka", "19-2000145399/0800", "1"], NO, silent=True, exact="19-2000145399/0800\tvalid\n1\tnot valid\n"),
    Row(["check", "banka", "9" * 63], NO, silent=True, out=("not valid: too long",)),
    Row(["check", "vs", "79927398713"], exact="79927398713\tvalid\n"),
    Row(["check", "su", "311", "31a"], NO, silent=True, exact="311\tvalid\n31a\tnot valid\n"),
    Row(["check", "au", ""], exact="\tvalid\n"),
    Row(["check", "ucet", "311000"], exact="311000\tvalid\n"),
    Row(["check", "ean", "4006381333931"], exact="4006381333931\tvalid\n"),
    Row(["check", "ean", "4006381333932"], NO, silent=True, out=("wrong check digit, right: 4006381333931",)),
    Row(["check", "ean", "400638133393", "--json"], NO, silent=True,
        holds=differs([{"value": "400638133393", "valid": False, "remark": "without check digit, complete: 4006381333931"}])),
    Row(["check"], WRONG_USAGE),
    Row(["check", "banka"], WRONG_USAGE),
    Row(["check", "konto", "1"], WRONG_USAGE, err=("'konto'", "ucet, su, au, banka, vs, ean")),
    Row(["check", "--csv", "x"], WRONG_USAGE, err=("--column",)),
    Row(["check", "--csv", "x", "--column", "VS"], WRONG_USAGE, err=("NAME=KIND",)),
    Row(["check", "--csv", "chybí.csv", "--column", "VS=vs"], WRONG_USAGE, err=("chybí.csv", "cannot be read")),
    Row(["check", "--csv", SAMPLE, "--column", "Firma=vs"], WRONG_USAGE, err=("ledger.csv: line 1", "'Firma'")),
    Row(["check", "--csv", SAMPLE, "--column", "Doklad=vs", "--column", "Účet MD=ucet"], NO, silent=True,
        out=("line 2\tDoklad\tFP26000001\n", "\n300 rows\n", "Účet MD (ucet): 299 valid, 1 not\n")),
    Row(["check", "--csv", SAMPLE, *LEDGER, "--allow-empty"], NO, silent=True, exact=LEDGER_FAULTS),
    Row(["check", "--csv", SAMPLE_1250, *LEDGER, "--allow-empty"], NO, silent=True, exact=LEDGER_FAULTS),
    Row(["check", "--csv", SAMPLE, "--column", "EAN=ean", "--allow-empty", "--json"], NO, silent=True,
        holds=as_json(lambda value: (value["rows"], len(value["bad"]), value["bad"][0]["line"]) != (300, 1, 167) and f"{value}")),
    # Rounding.
    Row(["round", "--help"], out=("--mode", "--decimals", "--dph", "Examples:")),
    Row(["round", "1.234", "--mode", "up"], exact="1.234\t1.24\n"),
    Row(["round", "--mode", "down", "--", "-1.239"], exact="-1.239\t-1.23\n"),
    Row(["round", "-1.005", "1,005"], exact="-1.005\t-1.01\n1,005\t1.01\n"),
    Row(["round", "12345.67", "--decimals", "-2"], exact="12345.67\t12300.00\n"),
    Row(["round", "12,25", "--dph", "P"], exact="12,25\t12.50\n"),
    Row(["round", "12.5", "--dph", "M", "--json"], holds=differs([{"amount": "12.50", "rounded": "13.00"}])),
    Row(["round", "922337203685477.5807", "--decimals", "4"], NO, exact="", err=("leaves the range",)),
    Row(["round", "1.23456"], WRONG_USAGE, err=("1.23456",)),
    Row(["round", "x"], WRONG_USAGE),
    Row(["round"], WRONG_USAGE),
    Row(["round", "1", "--dph", "h"], WRONG_USAGE),
    Row(["round", "1", "--dph", "H", "--decimals", "1"], WRONG_USAGE),
    Row(["round", "1", "--decimals", "15"], WRONG_USAGE),
    # Dates.
    Row(["date", "--help"], out=("--month", "--year", "Examples:")),
    Row(["date", "2011-01-31", "--month", "1"], out=("date\t20110228\n", "month-first\t20110201\n", "month-days\t28\n")),
    Row(["date", "2011-01-31", "--month", "-2"], out=("date\t20101130\n",)),
    Row(["date", "2012-02-29", "--year", "1"], out=("date\t20130228\n", "leap-year\tfalse\n")),
    Row(["date", "2010-12-31 13:05:09.007"], out=("date-time\t20101231 13:05:09:007\n",)),
    Row(["date", "2010-12-31T13:05"], out=("time\t13:05:00:000\n",)),
    Row(["date", "0001-01-15", "--month", "-1"], NO, exact="", err=("1 to 9999",)),
    Row(["date", "2011-02-29"], WRONG_USAGE, err=("2011-02-29",)),
    Row(["date", "2011-01-31x"], WRONG_USAGE),
    Row(["date", "2011-01-31 13"], WRONG_USAGE),
    Row(["date"], WRONG_USAGE),
    Row(["date", "2024-03-29"], out=("julian-day\t2460399\n", "weekday\tFriday\n", "iso-week\t2024-W13\n", "easter\t20240331\n", "holiday\ttrue\n")),
    Row(["date", "2021-01-03"], out=("iso-week\t2020-W53\n", "weekday\tSunday\n")),
    Row(["date", "2021-01-04"], out=("iso-week\t2021-W01\n", "holiday\tfalse\n")),
    Row(["date", "0001-01-01"], out=("iso-week\t0001-W01\n", "julian-day\t1721426\n")),
    Row(["date", "9999-12-31"], out=("iso-week\t9999-W52\n", "julian-day\t5373484\n")),
    Row(["date", "2024-06-15", "--holidays"], out=(
        "holidays\t20240101 20240329 20240401 20240501 20240509 20240520 20241003 20241224 20241225 20241226 20241231\n",)),
    Row(["date", "2024-06-15"], holds=without("holidays")),
    Row(["date", "2024-03-29", "--json", "--holidays"], holds=as_json(lambda facts: (
        facts["julian-day"], facts["iso-week"], facts["holiday"], len(facts["holidays"])) != (2460399, "2024-W13", True, 11) and "other facts")),
    Row(["date", "2024-03-29", "--calendar"], exact=(
        "March 2024\n    Mo  Tu  We  Th  Fr  Sa  Su\n 9                   1   2   3*\n10   4   5   6   7   8   9  10*\n"
        "11  11  12  13  14  15  16  17*\n12  18  19  20  21  22  23  24*\n13  25  26  27  28 [29] 30  31*\n")),
    Row(["date", "2023-12-31", "--month", "1", "--calendar"], out=("January 2024\n", " 1   1*  2 ", " 5  29  30 [31]\n")),
    Row(["date", "2021-01-31", "--calendar"], out=("January 2021\n", "53                   1*  2   3*\n", " 4  25  26  27  28  29  30 [31]\n")),
    Row(["date", "2024-03-29", "--calendar", "--json"], WRONG_USAGE),
    # Random texts: what the generator of Python draws from the same keys.
    Row(["random", "--seed", "seed", "--count", "20", "--alphabet", "abcdefg"], exact=drawn("seed", "abcdefg", 20)),
    Row(["random", "--seed", "sůl", "--alphabet", "áčď", "--count", "50"], exact=drawn("sůl", "áčď", 50)),
    Row(["random", "--seed", "x", "--count", "0"], exact="\n"),
    Row(["random", "--seed", "x"], holds=lambda out: not re.fullmatch(r"[A-Za-z0-9]{16}\n", out)),
    Row(["random"], WRONG_USAGE),
    Row(["random", "--seed", ""], WRONG_USAGE, err=("the seed is empty",)),
    Row(["random", "--seed", "x", "--alphabet", ""], WRONG_USAGE, err=("the alphabet is empty",)),
    Row(["random", "--seed", "x", "--alphabet", "a😀"], WRONG_USAGE, err=("beyond U+FFFF",)),
    Row(["random", "--seed", "x", "--count", "-1"], WRONG_USAGE),
    # The tour: each command as typed and its answer; no colours where nobody watches.
    Row(["--help"], out=("\nThe suite:\n  table ", "\nAccounting:\n  check ", "\n  tour "), holds=without("Subcommands:")),
    Row(["tour"], holds=without("\033"), out=(
        "$ ravo table 71710 100121 72510\n71710\tÚčetní deník\n", "not valid: wrong check digit, right: 4006381333931\n(exit status 1)\n",
        '$ ravo address "Nádražní 1234/5"\nNádražní\t1234/5\n', "\n$ ravo report\nInformace o klientské vrstvě\n", " lines more\n")),
    Row(["tour", "--commands"], holds=lambda out: len(set(line.split()[1] for line in out.splitlines())) < 8 and "too few commands"),
    Row(["tour", "there"], WRONG_USAGE),
    # Characters and strings.
    Row(["char", "--help"], out=("U+010D", "Examples:")),
    Row(["char", "č"], out=("character\tU+010D\ntext\tč\ncategory\tLl, lower-case letter\nclass\t0\nupper\tU+010C\n",
                            "canonical\tU+0063 U+030C\n", "bytes\tE8\tIso_8859_2 ", "bytes\tC4 8D\tUTF_8\n",
                            "bytes\t2B 41 51 30 2D\tUTF_7 UTF_7_ODC\n")),
    Row(["char", "--json", "Ž"], holds=as_json(lambda all: all[0]["bytes"]["CP_852"] != "A6")),
    Row(["char", "U+FB01", "u+0000"], out=("compatible\tU+0066 U+0069\n", "\n\ncharacter\tU+0000\ncategory\tCc")),
    Row(["char", "--json", "U+0378"], holds=as_json(lambda all: len(all) != 1 or all[0]["category"] != "Cn, unassigned")),
    Row(["char", "😀"], out=("U+D83D", "Cs, half")),
    Row(["char", "U+10000"], WRONG_USAGE, err=("U+10000",)),
    Row(["char", "U+"], out=("U+0055", "U+002B")),
    Row(["char"], WRONG_USAGE),
    Row(["sort", "--help"], out=("--natural", "Examples:")),
    Row(["sort", "missing"], WRONG_USAGE, exact="", err=("missing: cannot be read",)),
    Row(["sort", "."], WRONG_USAGE, exact="", err=(".: cannot be read",)),
    Row(["sort", "-"], exact=""),
    Row(["match", "*-?.p*", "a-1.pdf", "a-10.pdf"], exact="a-1.pdf\n"),
    Row(["match", "--ignore-case", "P??JEMKA*", "Příjemka", "x"], exact="Příjemka\n"),
    Row(["match", "P*", "příjemka"], NO, exact="", err=("P*",)),
    Row(["match", "P*"], WRONG_USAGE),
    Row(["url", "--help"], out=("encode", "decode", "Examples:")),
    Row(["url", "encode", "Kč & €", "a b"], exact="K%C4%8D+%26+%E2%82%AC\na+b\n"),
    Row(["url", "decode", "K%C4%8D+%zz%E8"], exact="Kč %zz\ufffd\n"),
    Row(["url"], WRONG_USAGE),
    Row(["url", "encode"], WRONG_USAGE),
    Row(["hash", "--help"], out=("crc32, hash, hash-ia", "--check", "--all", "Examples:")),
    # Standard input, which is empty here.
    Row(["hash", "crc32"], exact="00000000  -\n"),
    Row(["hash", "crc32", "-"], exact="00000000  -\n"),
    Row(["hash", "--check"], WRONG_USAGE, exact="", err=("-: no line of it is a sum",)),
    Row(["hash"], WRONG_USAGE),
    Row(["hash", "md5", "x"], WRONG_USAGE, err=("crc32, hash, hash-ia",)),
    Row(["hash", "crc32", "missing"], WRONG_USAGE, exact="", err=("missing: cannot be read",)),
    Row(["hash", "crc32", "."], WRONG_USAGE, exact="", err=(".: cannot be read",)),
    Row(["hash", "crc32", "--check", "missing"], WRONG_USAGE, exact="", err=("missing: cannot be read",)),
    # Addresses and backup names.
    Row(["address", "Nádražní 1234/5", "Dlouhá 12a", "Na Příkopě XIV"],
        exact="Nádražní\t1234/5\nDlouhá 12a\t\nNa Příkopě\tXIV\n"),
    Row(["address", "Lipová 7", "--json"], holds=differs([{"address": "Lipová 7", "street": "Lipová", "number": "7"}])),
    Row(["address"], WRONG_USAGE),
    Row(["backup-name", "%firma%.zip", "A/B: s.r.o."], exact="AB s.r.o..zip\n"),
    Row(["backup-name", "%DATUM%_%CAS%"], holds=lambda out: not re.fullmatch(r"\d{6}_\d{6}\n", out)),
    Row(["backup-name"], WRONG_USAGE),
    # Forms.
    Row(["form", "--help"], out=("field, value", "number", "Examples:")),
    Row(["form", "fields.csv"], WRONG_USAGE),
    Row(["form", "missing.csv", "-o", "form.fdf"], WRONG_USAGE, exact="", err=("missing.csv: cannot be read",)),
    # The report.
    Row(["report"], out=("Informace o klientské vrstvě\n\tČasové informace\n\t\tAktuální datum: ", "\n\tSoubory\n\t\tVCL\n")),
    Row(["report", "--business"], out=("Informace o aplikační vrstvě\n\tČasové informace\n",)),
    Row(["report", "-o"], WRONG_USAGE),
    Row(["report", "-o", "missing/zpráva.txt"], WRONG_USAGE, exact="", err=("missing/zpráva.txt",)),
    Row(["report", "-o", "."], WRONG_USAGE, exact="", err=(".: is a folder",)),
    # Documents.
    Row(["xml", "--help"], out=("show", "get", "set", "format", "tokens", "Examples:")),
    Row(["xml"], WRONG_USAGE),
    Row(["xml", "show"], WRONG_USAGE),
    Row(["xml", "show", "missing.xml"], WRONG_USAGE, exact="", err=("missing.xml", "cannot be read")),
    Row(["xml", "tokens", "."], WRONG_USAGE, exact="", err=("is a folder",)),
]

# What the harness itself must find wrong, each for the named reason.
MUST_FAIL = [
    (Row(["table", "10110"], NO), "status 0, not 1"),
    (Row(["table", "10110"], exact="10110 Profil\n"), "standard output is not"),
    (Row(["table", "10110"], out=("Účet",)), "standard output lacks"),
    (Row(["table", "5"], NO, err=("table 6",)), "standard error lacks"),
    (Row(["table", "10110"], holds=differs([])), "no JSON"),
    (Row(["table", "10110", "--json"], holds=differs([])), "is not []"),
    (Row(["table", "5"], YES), "something on standard error"),
    (Row(["table", "10110"], NO), "nothing on standard error"),
]


def outline(nodes, depth=0):
    """Depth, caption and whether there is a value, line by line, from the report's JSON."""
    for node in nodes:
        yield depth, node["caption"], "value" in node
        yield from outline(node.get("items", []), depth + 1)


def outline_of_text(report):
    for line in report.splitlines():
        depth = len(line) - len(line.lstrip("\t"))
        caption, separator, _ = line[depth:].partition(": ")
        yield depth, caption, bool(separator)


def check_report_json(program):
    """The JSON of the report has every line of its text: at its depth, in its order."""
    for layer in ([], ["--business"]):
        text = list(outline_of_text(program.run(["report", *layer]).out))
        nested = list(outline(json.loads(program.run(["report", "--json", *layer]).out)))
        if text != nested:
            yield f"report {layer}: lines and JSON differ: {set(text) ^ set(nested)}"
        # What every machine has, even one without disks and without a file of the suite.
        if len(text) < 35:
            yield f"report {layer}: only {len(text)} lines"


def check_report_file(program):
    """A report in a file keeps its CR LF, replaces what was there, and leaves nothing beside it."""
    name = "zpráva o počítači.txt"
    file = program.folder / name
    for before in (None, "an older, longer text" * 1000):
        if before:
            file.write_text(before, encoding="utf-8")
        result = program.run(["report", "-o", name])
        if (result.status, result.out, result.err) != (YES, "", ""):
            yield f"report -o {name}: {result}"
        content = file.read_bytes()
        if not content.startswith("Informace o klientské vrstvě\r\n\tČasové".encode()):
            yield f"report -o {name}: begins with {content[:60]!r}"
        if content.count(b"\r\n") != content.count(b"\n") or not content.endswith(b"\r\n"):
            yield f"report -o {name}: a line does not end in CR LF"
    program.run(["report", "--json", "-o", name])
    json.loads(file.read_bytes().decode("utf-8"))
    if left := [path.name for path in program.folder.iterdir() if path != file]:
        yield f"report -o {name}: left {left} beside it"


def check_sums(program):
    """Sums of files of any size are zlib's, and a list of them checks until a file changes."""
    contents = {"prázdný": b"", "check 1": b"123456789", "large": bytes(range(251)) * 3000}
    for name, content in contents.items():
        (program.folder / name).write_bytes(content)
    result = program.run(["hash", "crc32", *contents])
    wanted = "".join(f"{zlib.crc32(content):08X}  {name}\n" for name, content in contents.items())
    if (result.status, result.out, result.err) != (YES, wanted, ""):
        yield f"hash crc32: {result}"
    for words in (["hash", "crc32"], ["hash", "crc32", "-"]):
        result = program.run(words, given="large")
        if (result.status, result.out, result.err) != (YES, f"{zlib.crc32(contents['large']):08X}  -\n", ""):
            yield f"hash of standard input: {result}"
    labelled = program.run(["hash", "--all", "check 1"]).out
    if labelled != "CRC32 (check 1) = CBF43926\nHASH (check 1) = 4BF83526\nHASH-IA (check 1) = 4BF83526\n":
        yield f"hash --all: {labelled!r}"
    if json.loads(program.run(["hash", "--all", "--json", "large"]).out)[0]["crc32"] != zlib.crc32(contents["large"]):
        yield "hash --json: another sum"
    sums = program.folder / "list.sum"
    all_right = "".join(f"{name}: OK\n" for name in contents)
    for text in (wanted, wanted.lower().replace("  ", " *"), "# sums\n\n" + wanted.replace("\n", "\r\n")):
        sums.write_text(text, encoding="utf-8", newline="")
        result = program.run(["hash", "crc32", "--check", "list.sum"])
        if (result.status, result.out, result.err) != (YES, all_right, ""):
            yield f"hash --check {text!r}: {result}"
    result = program.run(["hash", "crc32", "--check", "-"], given="list.sum")
    if (result.status, result.out, result.err) != (YES, all_right, ""):
        yield f"hash --check of a list from standard input: {result}"
    sums.write_text(labelled + "nonsense\n", encoding="utf-8")
    result = program.run(["hash", "--check", "list.sum"])
    if (result.status, result.out) != (NO, "check 1: OK\n" * 3) or "1 lines are no sums" not in result.err:
        yield f"hash --check with a line too many: {result}"
    sums.write_text(wanted + "CBF43926  gone\n", encoding="utf-8")
    (program.folder / "check 1").write_bytes(b"123456788")
    result = program.run(["hash", "crc32", "--check", "list.sum"])
    if result.status != NO or result.out != "prázdný: OK\ncheck 1: FAILED\nlarge: OK\ngone: FAILED open or read\n":
        yield f"hash --check after a change: {result}"
    if "1 sums do NOT match" not in result.err or "1 listed files could not be read" not in result.err:
        yield f"hash --check after a change: {result.err!r}"
    sums.write_text("nonsense\n", encoding="utf-8")
    if program.run(["hash", "crc32", "--check", "list.sum"]).status != WRONG_USAGE:
        yield "hash --check without a sum: no failure"
    for name in (*contents, "list.sum"):
        (program.folder / name).unlink()


def check_conversions(program):
    """Texts come out in the other encoding; what cannot be read or written ends it, and an old file stays."""
    source, target = program.folder / "příliš.txt", program.folder / "cíl.txt"
    text = "Příliš žluťoučký kůň\r\n" * 1000

    def convert(*options, content, status=YES):
        """What stands in the target; the old bytes are "old"."""
        source.write_bytes(content)
        target.write_bytes(b"old")
        result = program.run(["convert", *options, source.name, "-o", target.name])
        if (result.status, result.out, bool(result.err)) != (status, "", status != YES):
            return repr(result).encode()
        return target.read_bytes() if status == YES else target.read_bytes() + result.err.encode()

    marked = "\ufeffa\nbč"
    rows = [
        (("-f", "windows-1250", "-t", "UTF_8"), text.encode("cp1250"), text.encode()),
        (("-f", "utf-8", "-t", "1250"), text.encode(), text.encode("cp1250")),
        (("-f", "utf8", "-t", "utf-7"), "kůň".encode(), "kůň".encode("utf-7")),
        (("-f", "utf8", "-t", "utf-16be"), text.encode(), text.encode("utf-16-be")),
        *[(("-f", "auto", "-t", "1250"), marked.encode(codec), marked[1:].encode("cp1250"))
          for codec in ("utf-8", "utf-16-le", "utf-16-be", "utf-32-le", "utf-32-be")],
        (("-f", "auto", "-t", "1250"), "č".encode(), b"\xe8"),
        (("-f", "utf-8", "-t", "1250", "--replace", "!"), "a\u4e00č\U0001f600".encode(), b"a!\xe8!"),
        (("-f", "utf-8", "-t", "1250", "--replace", "\u4e00"), "\u4e00".encode(), b"?"),
        (("-f", "utf-16be", "-t", "utf-8", "--replace", "?"), b"\0a\xdc\0\0b", "a\ufffdb".encode()),
    ]
    for options, content, wanted in rows:
        if (got := convert(*options, content=content)) != wanted:
            yield f"convert {' '.join(options)}: {got[:300]!r}, not {wanted[:60]!r}"
    refused = [
        (("-f", "utf-8", "-t", "1250"), "ab\nc\u4e00".encode(), "2:2: U+4E00 cannot be written in Windows_1250"),
        (("-f", "utf-8", "-t", "1250"), text.encode() + "\u4e00".encode(), "1001:1: U+4E00"),
        (("-f", "utf-8", "-t", "utf-8"), b"a\xff", "1:2: bytes that cannot be read"),
        (("-f", "utf-16be", "-t", "utf-8"), b"\0a\xdc\0\0b", "1:1: bytes that cannot be read after this character"),
    ]
    for options, content, told in refused:
        got = convert(*options, content=content, status=NO).decode()
        if not got.startswith("old") or told not in got or source.name not in got:
            yield f"convert {' '.join(options)}: {got!r}"
    source.write_bytes("č".encode("cp1250"))
    several = program.run(["convert", "-f", "1250", "-t", "utf-8", source.name, "-", source.name])
    if (several.status, several.out, several.err) != (YES, "čč", ""):
        yield f"convert of two files and standard input: {several}"
    program.run(["convert", "-f", "1250", "-t", "utf-8", source.name, "-o", source.name])
    if source.read_bytes() != "č".encode():
        yield "convert of a file onto itself: another text"
    away = program.run(["convert", "-f", "1250", "-t", "utf-8", source.name, "-o", "nowhere/x"])
    if away.status != WRONG_USAGE or "nowhere/x: cannot be written" not in away.err:
        yield f"convert into a folder that is not there: {away}"
    source.unlink()
    target.unlink()
    if left := [path.name for path in program.folder.iterdir() if path.name.startswith(("cíl", "příliš"))]:
        yield f"convert: left {left}"


def check_interruption(program):
    """A conversion that is ended from outside leaves the old file, and nothing beside it."""
    if program.emulated:
        return
    target = program.folder / "cíl.txt"
    piece = ("Příliš žluťoučký kůň\r\n" * 40000).encode("cp1250")

    def beside():
        return [path for path in program.folder.iterdir() if path.name.startswith("cíl") and path != target]

    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        target.write_bytes(b"old")
        command = program.command + ["convert", "-f", "1250", "-t", "utf-8", "-o", target.name]
        with subprocess.Popen(command, cwd=program.folder, stdin=subprocess.PIPE, stderr=subprocess.PIPE) as running:
            running.stdin.write(piece)
            running.stdin.flush()
            # In the middle of it: some of the text is in a file, and more is to come.
            patience = time.monotonic() + 60
            while not any(path.stat().st_size for path in beside()) and time.monotonic() < patience:
                time.sleep(0.01)
            if not beside():
                yield f"{number.name}: nothing was written beside the target"
            running.send_signal(number)
            status = running.wait(timeout=60)
        if status != -number:
            yield f"{number.name}: status {status}"
        if target.read_bytes() != b"old" or beside():
            yield f"{number.name}: {target.read_bytes()[:20]!r}, and left {beside()}"
    target.unlink()


XML = """<?xml version="1.0" encoding="windows-1250" ?>\r
<Faktury>\r
  <Faktura Číslo="1" Poznámka="a &lt; b">první<br/>řádek</Faktura>\r
  <Faktura Číslo="2"/>\r
</Faktury>\r
"""

XML_ONE_LINE = '<?xml version="1.0" encoding="%s"?><Účet Číslo="á"><Část>Ňouma</Část><e/></Účet>'


def xml_rows(name):
    """Each work of `ravo xml` on the document above, one after the other."""
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
    """Documents in UTF-8 read as such and stay so; a mark at the front is stepped over."""
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
    """What cannot be read as XML names file and line; a document without a first element is read by its items."""
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
    """What a strict reader of XML makes of an element."""
    texts = [(text or "").strip() for text in (element.text, element.tail)]
    return [element.tag, dict(element.attrib), texts, [strict(child) for child in element]]


def check_xml_samples(program):
    """Documents of other programs say the same to a strict reader before and after."""
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
    """A table of fields becomes a forms data file, byte for byte; what no form can take names its line."""
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
            if (result.status, result.out, result.err) != (YES, f"{form.name}: {count} fields\n", ""):
                yield f"form {text!r}: {result}"
            elif form.read_bytes() != FORM_START + fields + FORM_END:
                yield f"form {text!r}: {form.read_bytes()!r}"
    before = form.read_bytes()
    for text, told in (
        ("", "no first row"),
        ("field\na\n", "line 1: there is no column 'value'"),
        ("field,value\na,1\n,2\n", "line 3: a field without a name"),
        ("field,value\na,(\n", "line 2: '(' has"),
        ("field,value\na,)(\n", "line 2: ')(' has"),
        ("field,value\na,C:\\\n", "line 2: 'C:\\' has"),
        ("field,value\na,語\n", "line 2: the code page of forms has no '語'"),
        ("field,value\n(,a\n", "line 2: '(' has"),
        ("field,value,kind\na,1,box\n", "line 2: 'box' is no kind"),
        ("field,value,kind\na,1.5,number\n", "line 2: '1.5' is no number"),
        ("field,value,kind\na,2147483648,number\n", "line 2: '2147483648' is no number"),
    ):
        table.write_text(text, encoding="utf-8", newline="")
        yield from program.failures(Row(command, WRONG_USAGE, exact="", err=(table.name, told)))
    if form.read_bytes() != before:
        yield "form: a table that no form can take changed the file"
    table.unlink()
    form.unlink()


def check_full_device(program):
    """Output that cannot be written is no success."""
    if program.emulated or not pathlib.Path("/dev/full").exists():
        return
    with open("/dev/full", "wb") as full:
        result = program.run(["table", "10110"], out=full)
    if result.status != WRONG_USAGE or not result.err:
        yield f"table 10110 >/dev/full: {result}"
    if program.run(["report", "-o", "/dev/full"]).status != WRONG_USAGE:
        yield "report -o /dev/full: no failure"
    if not pathlib.Path("/dev/full").is_char_device():
        yield "report -o /dev/full: the device is gone"


def check_colours(program):
    """The tour is coloured on a terminal that shows colours, and on no other."""
    if len(program.command) > 1 or not hasattr(os, "openpty"):
        return
    for kind, coloured in (("xterm", True), ("dumb", False)):
        own, terminal = os.openpty()
        with os.fdopen(own, "rb", buffering=0) as reader:
            child = subprocess.Popen(program.command + ["tour"], stdin=subprocess.DEVNULL, stdout=terminal, env={**os.environ, "TERM": kind})
            os.close(terminal)
            shown = b""
            try:
                while piece := reader.read(4096):
                    shown += piece
            except OSError:  # the other end of a terminal is gone
                pass
            child.wait(timeout=60)
        if (b"\033[32m$ ravo table" in shown) != coloured or b"Pohled" not in shown:
            yield f"tour on a terminal of kind {kind}: {shown[:200]!r}"


def check_damaged_files(program):
    """A file that is no table names the line at which it stops being one."""
    file = program.folder / "účty.csv"
    for content, told in (
        (b'VS\n1\n"2', "line 3: a quote is never closed"),
        (b'VS;X\n"0"0;1\n', "line 2: text behind a closing quote"),
        (b"VS;X\n0;1\n0;1;2\n", "line 3: 3 fields, not 2"),
        (b"", "no first row"),
    ):
        file.write_bytes(content)
        row = Row(["check", "--csv", file.name, "--column", "VS=vs"], WRONG_USAGE, exact="", err=(file.name, told))
        yield from program.failures(row)
    file.write_bytes(b"VS,X\r\n0,\"a\r\nb\"\r\n1,c\r\n")
    yield from program.failures(
        Row(["check", "--csv", file.name, "--column", "VS=vs"], NO, silent=True, out=("line 4\tVS\t1\n", "2 rows\n")))
    file.unlink()


def check_sorted_files(program):
    """Lines of files come out sorted, numbers by value where that is wanted, even where that order has circles."""
    (program.folder / "utf8.txt").write_bytes("účet10\r\nÚčet9\nfile10\nfile9".encode())
    (program.folder / "ansi.txt").write_bytes("účet9\n".encode("cp1250"))
    (program.folder / "circle.txt").write_bytes(b"105\n20\n15\n105\n15\n20\n")
    rows = [
        (["utf8.txt", "ansi.txt"], "file10\nfile9\nÚčet9\núčet10\núčet9\n"),
        (["--natural", "utf8.txt", "ansi.txt"], "file9\nfile10\nÚčet9\núčet9\núčet10\n"),
        (["--natural", "--ignore-case", "utf8.txt", "ansi.txt"], "file9\nfile10\nÚčet9\núčet9\núčet10\n"),
    ]
    for arguments, wanted in rows:
        result = program.run(["sort", *arguments])
        if (result.status, result.out) != (YES, wanted):
            yield f"sort {arguments}: {result}"
    if sorted(program.run(["sort", "--natural", "circle.txt"]).out.split()) != ["105", "105", "15", "15", "20", "20"]:
        yield "sort --natural: lines are lost where the order has circles"
    for name in ("utf8.txt", "ansi.txt", "circle.txt"):
        (program.folder / name).unlink()


CHECKS = (
    check_report_json,
    check_report_file,
    check_sums,
    check_conversions,
    check_interruption,
    check_full_device,
    check_colours,
    check_damaged_files,
    check_sorted_files,
    check_xml,
    check_xml_encodings,
    check_xml_unreadable,
    check_xml_samples,
    check_forms,
)


def tested(program):
    for row in ROWS:
        yield from program.failures(row)
    for check in CHECKS:
        yield from check(program)


def self_tested(program):
    for row, reason in MUST_FAIL:
        if not any(reason in failure for failure in program.failures(row)):
            yield f"ravo {' '.join(row.arguments)}: the harness does not see '{reason}'"


def main(arguments):
    self_test = arguments[:1] == ["--self-test"]
    command = arguments[arguments.index("--") + 1 :]
    # Below the build tree: a program under an emulator may see nothing else.
    with tempfile.TemporaryDirectory(dir=".") as folder:
        program = Program(command, pathlib.Path(folder).resolve())
        if program.run(["--version"]).status == SKIPPED:
            sys.exit(SKIPPED)
        failures = list(self_tested(program) if self_test else tested(program))
    for failure in failures:
        print(failure)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main(sys.argv[1:])
