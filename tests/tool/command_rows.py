"""Command lines of `ravo` and their expected results."""

import json
import pathlib
import random
import re

from harness import NO, WRONG_USAGE, YES, Row, as_json, differs, lines, without


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

ENCODING_ROWS = pathlib.Path(__file__).resolve().parents[2] / "ravo/codec/rows.inc"
ENCODINGS = len(re.findall(r"^RAVO_ENCODING\(", ENCODING_ROWS.read_text(encoding="utf-8"), re.M))
WINDOWS_1250 = "Windows_1250\tWindows-1250 (Central European)\t1250\treads, writes\tcp1250 1250 win1250 x-cp1250 ms-ee\n"


def all_encodings(rows):
    if len({row["name"] for row in rows}) != ENCODINGS or len(rows) != ENCODINGS:
        return f"{len(rows)} encodings"
    one_way = [row["name"] for row in rows if not (row["reads"] and row["writes"])]
    if one_way != ["UTF_7_ODC", "GB_18030"]:
        return f"read or written only: {one_way}"
    numbers = [row["code_page"] for row in rows if row["code_page"] is not None]
    if len(numbers) != len(set(numbers)) or not {1250, 852, 65001, 1200, 54936} < set(numbers):
        return f"the code pages are {numbers}"


SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
SAMPLE, SAMPLE_1250 = str(SAMPLES / "ledger.csv"), str(SAMPLES / "ledger-1250.csv")
LEDGER = [argument for column in ("Účet MD=ucet", "VS=vs", "Protiúčet=banka") for argument in ("--column", column)] + ["--suite"]
LEDGER_FAULTS = (
    "line 18\tÚčet MD\t50\tnot valid\nline 59\tVS\t2026000579\tnot valid\n"
    "line 104\tProtiúčet\t19-2000145398/0800\tnot valid\nline 241\tVS\t20260024O7\tnot valid\n"
    "300 rows, with findings: 4\n"
    "Účet MD\tucet\t299\tvalid\nÚčet MD\tucet\t1\tnot valid\nVS\tvs\t268\tvalid\nVS\tvs\t2\tnot valid\n"
    "Protiúčet\tbanka\t237\tvalid\nProtiúčet\tbanka\t1\tnot valid\n"
)


def ean_findings(out):
    """One finding and the summary, an object each line."""
    finding, summary = map(json.loads, out.splitlines())
    columns = summary.pop("columns")
    finding.pop("file")
    wanted = {"type": "finding", "line": 167, "column": "EAN", "kind": "ean", "value": "8590000000018",
              "reason": "wrong-check-digit", "remark": "wrong check digit, right: 8590000000015"}
    counts = {"type": "summary", "rows": 300, "rejected": 1, "findings": 1, "shown": 1, "reasons": {}}
    if finding != wanted or summary != counts:
        return f"{finding}, {summary}"
    if [(column["column"], column["kind"], column["reasons"]) for column in columns] != [("EAN", "ean", {"wrong-check-digit": 1})]:
        return f"columns {columns}"
# A kind, a value, why it is not valid: the code, the position and the sentence.
INVALID_VALUES = [
    ("ucet", "", "empty", None, "the value is empty"),
    ("ucet", "31", "too-short", None, "an account has 3 to 6 digits"),
    ("ucet", "3110000", "too-long", None, "an account has 3 to 6 digits"),
    ("ucet", "31x1000000", "character", 3, "'x' at position 3 is no digit"),
    ("ucet", "č11", "character", 1, "'č' at position 1 is no digit"),
    ("ucet", "\U0001f60011", "character", 1, "'\U0001f600' at position 1 is no digit"),
    ("ucet", "31\U0001f6001 ", "character", 3, "'\U0001f600' at position 3 is no digit"),
    ("su", "31", "too-short", None, "a synthetic account has 3 digits"),
    ("su", "3111", "too-long", None, "a synthetic account has 3 digits"),
    ("su", "31a", "character", 3, "'a' at position 3 is no digit"),
    ("au", "1000", "too-long", None, "an analytic account has at most 3 digits"),
    ("au", " 1", "character", 1, "' ' at position 1 is no digit"),
    ("banka", "", "empty", None, "the value is empty"),
    ("banka", "/0800", "no-digits", None, "there is no digit before the bank code"),
    ("banka", "19-2000145398/0800", "checksum", None, "the weighted sum of the digits cannot be divided by 11"),
    ("banka", "9" * 63, "too-long", None, "there are more than 62 digits before the bank code"),
    ("vs", "", "empty", None, "the value is empty"),
    ("vs", "20260024O7", "character", 9, "'O' at position 9 is no digit"),
    ("vs", "79927398710", "wrong-check-digit", 11, "wrong check digit, right: 79927398713"),
    ("ean", "", "empty", None, "the value is empty"),
    ("ean", " ", "empty", None, "the value is empty"),
    ("ean", "123456789", "length", None, "an article code has 8 or 13 digits"),
    ("ean", " 400638133393x", "character", 14, "'x' at position 14 is no digit"),
    ("ean", "4006381333932", "wrong-check-digit", 13, "wrong check digit, right: 4006381333931"),
    ("ean", "400638133393", "no-check-digit", None, "without check digit, complete: 4006381333931"),
]


def drawn(seed, alphabet, count):
    """The text that Python's own Mersenne Twister draws when seeded with the seed's bytes."""
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
    Row(["table", "--help"], out=("--module", "--all", "{Profil,RSS,DCF,", "Examples:")),
    Row(["captions", "--help"], out=("--plain", "Examples:")),
    Row(["version"], holds=lambda out: not re.fullmatch(r"ravo \d+\.\d+\.\d+\n", out)),
    Row(["-V"], holds=lambda out: not re.fullmatch(r"ravo \d+\.\d+\.\d+\n", out)),
    Row([], WRONG_USAGE, err=("ravo: a command is missing\n`ravo help` lists",), czech=("ravo: chybí příkaz\n",)),
    Row(["nonsense"], WRONG_USAGE, err=("ravo: there is no command 'nonsense'\n",), czech=("příkaz 'nonsense' neexistuje\n",)),
    Row(["tabel"], WRONG_USAGE, err=("'tabel'. Did you mean table?",), czech=("'tabel' neexistuje. Nemysleli jste table?",)),
    Row(["--nonsense"], WRONG_USAGE, err=("ravo: there is no option --nonsense\n",), czech=("přepínač --nonsense neexistuje",)),
    Row(["check", "--colunm", "x"], WRONG_USAGE, err=("ravo check: there is no option --colunm. Did you mean --column?\n`ravo help check` shows",),
        czech=("Nemysleli jste --column?\nPoužití příkazu ukáže `ravo help check`.",)),
    Row(["tabel", "check"], WRONG_USAGE, err=("ravo: there is no command 'tabel'. Did you mean table?",)),
    Row(["check", "icoo", "1"], WRONG_USAGE, err=("'icoo' is not a kind", "isbn, ucet, su, au, banka. Did you mean ico?")),
    Row(["xml", "sho"], WRONG_USAGE, err=("ravo xml: there is no command 'sho'. Did you mean show?",)),
    Row(["report", "stray"], WRONG_USAGE, err=("the argument 'stray' is one too many",), czech=("argument 'stray' je navíc",)),
    # The parser's own words.
    Row(["round", "1", "--mode", "upp"], WRONG_USAGE, err=("--mode cannot be 'upp'; it is one of: up, down, math. Did you mean up?",),
        czech=("--mode nemůže být 'upp'; možnosti jsou: up, down, math. Nemysleli jste up?",)),
    # The system's reasons, in the user's language.
    Row(["check", "--csv", "chybí.csv", "--column", "VS=vs"], WRONG_USAGE, exact="", err=("ravo check: chybí.csv: cannot be read: there is no such file\n",),
        czech=("chybí.csv: nelze přečíst: soubor neexistuje\n",)),
    Row(["check", "account", "51/0100", "--list", "chybí.csv"], WRONG_USAGE, err=("chybí.csv: cannot be read: there is no such file\n",)),
    Row(["form", "chybí.csv", "-o", "x.fdf"], WRONG_USAGE, err=("chybí.csv: cannot be read: there is no such file\n",)),
    Row(["form", ".", "-o", "x.fdf"], WRONG_USAGE, err=(".: cannot be read: it is a folder\n",)),
    Row(["report", "-o", "chybí/x"], WRONG_USAGE, err=("chybí/x: cannot be written: its folder does not exist\n",), czech=("složka neexistuje",)),
    Row(["check", "--csv", ".", "--column", "VS=vs"], WRONG_USAGE, err=(".: cannot be read: it is a folder\n",)),
    Row(["convert", "-t", "utf-8", "chybí"], WRONG_USAGE, err=("cannot be read: there is no such file\n",)),
    # The parser's own words are not shown.
    Row(["check", "--csv", SAMPLE, "--column", "VS=vs", "--limit", "-1"], WRONG_USAGE, exact="",
        err=("ravo check: --limit: '-1' is not a whole number of at least 0\n",), czech=("--limit: '-1' není celé číslo od 0 výše\n",)),
    Row(["check", "--csv", SAMPLE, "--column", "VS=vs", "--threads", "x"], WRONG_USAGE, err=("--threads: 'x' is not a whole number of at least 0\n",)),
    Row(["check", "--csv", SAMPLE, "--column", "VS=vs", "--threads", "99999999999"], WRONG_USAGE, err=("--threads takes a number; '99999999999' is none, or too large\n",)),
    Row(["sort", "-k", "0"], WRONG_USAGE, err=("--key: '0' is not a whole number of at least 1\n",)),
    Row(["round", "1", "--json=xx"], WRONG_USAGE, exact="", err=("ravo round: --json takes no value\n",), czech=("--json nepřijímá hodnotu\n",)),
    Row(["due", "2026-01-01", "--days", "x"], WRONG_USAGE, err=("--days takes a number; 'x' is none, or too large\n",), czech=("--days vyžaduje číslo; 'x'",)),
    Row(["form", SAMPLE, "-o", "x", "--delimiter", "x"], WRONG_USAGE,
        err=("--delimiter: 'x' is not a delimiter; delimiters are ';', ',', '|' and tab\n",), czech=("'x' není oddělovač; oddělovače jsou ';', ',', '|' a tab\n",)),
    Row(["round", "1", "--decimals", "1", "--decimals", "2"], WRONG_USAGE, err=("ravo round: --decimals may be given only once\n",)),
    Row(["holidays", "2026", "2027", "2028"], WRONG_USAGE, err=("DATE may be given at most 2 times\n",), czech=("DATUM lze zadat nejvýše 2krát\n",)),
    Row(["round", "1", "--lang", "de"], WRONG_USAGE, err=("ravo round: --lang cannot be 'de'; it is one of: cs, en.\n",)),
    Row(["holidays", "--help"], out=("Usage: ravo holidays [OPTIONS] [DATE [DATE]]\n",)),
    Row(["round", "--help"], out=("  --delimiter CHAR Needs: --csv\n",)),
    Row(["convert", "--help"], out=("--from ENCODING", "--to ENCODING", "--output FILE"), czech=("--from KÓDOVÁNÍ",)),
    Row(["round", "1", "--decimals", "99"], WRONG_USAGE, err=("--decimals goes from -4 to 14; 99 is outside",), czech=("99 je mimo ně",)),
    Row(["random", "--seed", "x", "--count"], WRONG_USAGE, err=("--count needs a value",), czech=("--count vyžaduje hodnotu",)),
    Row(["random"], WRONG_USAGE, err=("--seed is missing",), czech=("chybí --seed",)),
    Row(["table", "--all", "5"], WRONG_USAGE, err=("ID and --all cannot be used together",), czech=("ID a --all nelze použít společně",)),
    Row(["random", "--seed", "x", "--seed", "y"], WRONG_USAGE, err=("--seed may be given only once",), czech=("lze zadat jen jednou",)),
    Row(["check", "--allow-empty", "vs", "1"], WRONG_USAGE, err=("--allow-empty can only be used with --csv",), czech=("jen společně s --csv",)),
    # Help, and the language.
    Row(["help"], out=("Usage: ravo [OPTIONS] COMMAND\n", "\nThe suite:\n  table "), czech=("Použití: ravo [PŘEPÍNAČE] PŘÍKAZ\n", "\nÚčetní systém:\n  table ")),
    Row(["help", "hash"], out=("Usage: ravo hash [OPTIONS]", "\nArguments:\n", "\n\nSums:\n  crc32    CRC-32 of"),
        czech=("Použití: ravo hash [PŘEPÍNAČE] [SOUČET SOUBOR...]", "\nPřepínače:\n", "\n\nNávratový kód: 0, 1 součet")),
    Row(["help", "xml", "get"], out=("Usage: ravo xml get [OPTIONS]",)),
    Row(["xml", "get", "--help"], out=("Usage: ravo xml get [OPTIONS]",), holds=without("--lang")),
    Row(["help", "round", "--json"], holds=as_json(lambda all: (
        (all["command"], all["arguments"][0]["name"], all["commands"], all["options"][1]["names"], all["options"][1]["value"], all["options"][1]["default"])
        != ("ravo round", "AMOUNT", [], ["--mode"], "{up,down,math}", "math") or "Modes: up" not in all["notes"]) and f"{all}")),
    Row(["help", "--json"], holds=as_json(lambda all: len(all["commands"]) < 20 and f"{all}")),
    Row(["version", "--json"], holds=as_json(lambda all: (all["program"] != "ravo" or not re.fullmatch(r"\d+\.\d+\.\d+", all["version"])) and f"{all}")),
    Row(["report", "-o", ""], WRONG_USAGE, exact="", err=("the name of the output file is empty",)),
    Row(["help", "xlm"], WRONG_USAGE, err=("ravo help: there is no command 'xlm'. Did you mean xml?",)),
    Row(["help", "help"], out=("ravo help xml show",)),
    Row(["--lang", "cs", "table", "5"], NO, err=("ravo table: tabulku 5 nemá žádný modul\n",)),
    Row(["table", "--lang=cs", "5"], NO, err=("tabulku 5 nemá žádný modul",)),
    Row(["xml", "--lang", "cs", "show", "--help"], out=("Použití: ravo xml show",)),
    Row(["--lang", "de", "table", "5"], WRONG_USAGE, err=("--lang cannot be 'de'; it is one of: cs, en.",)),
    Row(["match", "*lang=cs", "--", "--lang=cs"], exact="--lang=cs\n"),
    Row(["captions", "--příklad"], WRONG_USAGE, err=("--příklad",)),
    # Tables.
    Row(["table", "10110"], exact="10110\tProfil\n"),
    Row(["table", "72510", "10210"], exact="72510\tPřevodní príkazy\n10210\tÚčtovaná firma\n"),
    Row(["table", "110120"], exact="110120\tSložky pro RSS zdroje \n"),
    Row(["table", "100121"], exact="100121\tOsoby u firmy\n"),
    Row(["table", "100124"], NO, exact="", err=("100124",), czech=('ravo table: tabulku 100124 nemá žádný modul\n',)),
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
    Row(["table", "x"], WRONG_USAGE, err=("'x'",), czech=("'x' není identifikátor tabulky",)),
    Row(["table", "10110x"], WRONG_USAGE, err=("10110x",)),
    Row(["table", ""], WRONG_USAGE),
    Row(["table", "2147483648"], WRONG_USAGE, err=("2147483648",)),
    Row(["table", "--module", "Účetnictví"], WRONG_USAGE,
        err=("Účetnictví", "Profil, RSS, DCF, Base, Ucetnictvi, Kancelar, Majetek, Mzda, Sklad, Box")),
    Row(["table", "--module", ""], WRONG_USAGE, err=("Profil, RSS",)),
    Row(["table", "--module"], WRONG_USAGE),
    # Captions.
    Row(["captions"], czech=("\nÚroveň sazby DPH\n  65479\t", "\nZpráva pro podporu\n"), out=("65477\trPropertyDokladPZPohledavka\t&Pohledávka\n", "ÚD. / Spusťte operaci „Zaúčtovat do ÚD“")),
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
    Row(["interfaces", "nonsense"], NO, exact="", err=("'nonsense'",), czech=("rozhraní, třída ani knihovna 'nonsense' neexistuje",)),
    Row(["interfaces", "{904F0BB6-AB48-492D-BFF6-09A944EA24C8}"], NO, exact="", err=("24C8",)),
    Row(["interfaces", "účet", "--json"], NO, exact="[]\n", err=("účet",)),
    Row(["interfaces", "zip", "stray"], WRONG_USAGE),
    Row(["interfaces", "--help"], out=("--json", "Examples:")),
    # Encodings.
    Row(["encodings"], holds=lines(ENCODINGS), out=(WINDOWS_1250, "UTF_7_ODC\tUTF-7, optional direct characters as they are\t\twrites\t\n",
                                            "GB_18030\tGB 18030 (Chinese)\t54936\treads\t")),
    Row(["encodings", "--json"], holds=as_json(all_encodings)),
    *[Row(["encodings", name], exact=WINDOWS_1250)
      for name in ("Windows_1250", "windows-1250", "CP1250", "1250", "ms-ee", "Windows-1250 (Central European)")],
    Row(["encodings", "latin2", "--json"],
        holds=differs([{"name": "Iso_8859_2", "label": "ISO 8859-2 (Central European)", "code_page": 28592,
                        "aliases": ["8859-2", "latin2", "l2", "iso-ir-101", "cp912", "ibm912", "csisolatin2", "iso_8859-2:1987"],
                        "reads": True, "writes": True, "notes": ""}])),
    Row(["encodings", "koi8ru", "--json"], out=('"code_page": null',)),
    Row(["encodings", "nonsense"], NO, exact="", err=("'nonsense'",), czech=("kódování 'nonsense' neexistuje",)),
    Row(["encodings", "-", "--json"], NO, exact="[]\n", err=("'-'",)),
    Row(["encodings", "1250", "1251"], WRONG_USAGE),
    Row(["encodings", "--help"], out=("--json", "Examples:")),
    # Conversions.
    Row(["convert", "--help"], out=("--from", "--replace", "Examples:")),
    Row(["convert", "-f", "1250", "-t", "utf-8"], exact=""),
    Row(["convert", "-f", "1250"], WRONG_USAGE, err=("--to",)),
    Row(["convert", "-f", "nonsense", "-t", "utf-8"], WRONG_USAGE, exact="", err=("ravo convert: ", "nonsense", "ravo encodings")),
    Row(["convert", "-f", "windws-1250", "-t", "utf-8"], WRONG_USAGE, exact="", err=("Did you mean", "1250?")),
    Row(["convert", "-t", "utf-9"], WRONG_USAGE, exact="", err=("utf-9", "Did you mean")),
    Row(["convert", "-t", "auto"], WRONG_USAGE, exact="", err=("--to",)),
    Row(["convert", "-f", "", "-t", ""], WRONG_USAGE, exact="", err=("--to",)),
    Row(["convert", "-f", "utf-7-odc", "-t", "utf-8"], WRONG_USAGE, exact="", err=("utf-7-odc cannot be read",)),
    Row(["convert", "-f", "utf-8", "-t", "1250", "-o", ""], WRONG_USAGE, exact="", err=("the name of the output file is empty",)),
    Row(["convert", "-f", "utf-8", "-t", "1250", "."], WRONG_USAGE, exact="", err=("ravo convert: .: ", "folder")),
    Row(["convert", "-f", "utf-8", "-t", "gb18030"], WRONG_USAGE, err=("gb18030 cannot be written",)),
    Row(["convert", "-f", "utf-8", "-t", "1250", "--replace", "ab"], WRONG_USAGE, err=("one character",)),
    Row(["convert", "-f", "utf-8", "-t", "1250", "chybí.txt"], WRONG_USAGE, exact="", err=("ravo convert: chybí.txt: ", "no such file")),
    # Checks.
    Row(["check", "--help"], out=("--csv FILE", "--column NAME=KIND", "banka", "Examples:")),
    *[Row(["check", kind, "0"], NO if kind != "au" else YES, err=(f"ravo check: {kind}: the suite's rule counts the digits;",))
      for kind in ("ucet", "su", "au")],
    Row(["check", "--suite", "banka", "19-2000145399/0800", "1"], NO, silent=True, exact=(
        "19-2000145399/0800\tvalid\n1\tnot valid: the weighted sum of the digits cannot be divided by 11\n")),
    Row(["check", "--suite", "vs", "79927398713"], exact="79927398713\tvalid\n"),
    Row(["check", "--suite", "au", ""], exact="\tvalid\n"),
    Row(["check", "--suite", "ucet", "311000"], exact="311000\tvalid\n"),
    Row(["check", "--suite", "ean", "4006381333931"], exact="4006381333931\tvalid\n"),
    # Why a value is not valid: a code, a position and a sentence.
    *[Row(["check", "--suite", kind, value], NO, silent=True, exact=f"{value}\tnot valid: {remark}\n")
      for kind, value, _, _, remark in INVALID_VALUES],
    *[Row(["check", "--suite", "--json", kind, value], NO, silent=True, holds=differs(
        [{"value": value, "kind": kind, "valid": False, "reason": reason, "position": position, "remark": remark}]))
      for kind, value, reason, position, remark in INVALID_VALUES],
    Row(["check", "--suite", "--json", "su", "311"], holds=differs(
        [{"value": "311", "kind": "su", "valid": True, "reason": None, "position": None, "remark": ""}])),
    Row(["check", "su", "-"], exact="", err=("the suite's rule",)),
    Row(["check"], WRONG_USAGE),
    Row(["check", "banka"], WRONG_USAGE),
    Row(["check", "konto", "1"], WRONG_USAGE, err=("'konto'", "isbn, ucet, su, au, banka\n")),
    Row(["check", "--csv", "x"], WRONG_USAGE, err=("--column",)),
    Row(["check", "--csv", "x", "--column", "VS"], WRONG_USAGE, err=("NAME=KIND",)),
    Row(["check", "--csv", "chybí.csv", "--column", "VS=vs"], WRONG_USAGE, err=("chybí.csv", "cannot be read")),
    Row(["check", "--csv", str(SAMPLES), "--column", "VS=vs"], WRONG_USAGE, exact="", err=("samples: cannot be read: it is a folder",)),
    Row(["check", "--csv", SAMPLE, "--column", "Firma=vs"], WRONG_USAGE, exact="",
        err=("ravo check: ", "ledger.csv: there is no column 'Firma'\n  columns, split at ';': Doklad, Datum, Účet MD, ")),
    Row(["check", "--csv", SAMPLE, "--column", "Ucet D=vs"], WRONG_USAGE, exact="", err=("did you mean 'Účet D'?",)),
    Row(["check", "--csv", SAMPLE, "--column", "10=vs"], WRONG_USAGE, exact="", err=("there is no column 10, the last one is 9\n",)),
    Row(["check", "--suite", "--csv", SAMPLE, "--column", "6=vs", "--column", "účet md=ucet"], NO, err=("ledger.csv: UTF-8",),
        out=("line 18\tÚčet MD\t50\tnot valid\n", "VS\tvs\t2\tnot valid\n")),
    Row(["check", "--suite", "--csv", SAMPLE, "--column", "Doklad=vs", "--column", "Účet MD=ucet"], NO, err=("delimiter ';'\n",),
        out=("line 2\tDoklad\tFP26000001\tnot valid\n", "\n300 rows, with findings: 300\n", "Účet MD\tucet\t299\tvalid\n")),
    Row(["check", "--csv", SAMPLE, *LEDGER, "--allow-empty"], NO, err=("ledger.csv: UTF-8",), exact=LEDGER_FAULTS),
    Row(["check", "--csv", SAMPLE_1250, *LEDGER, "--allow-empty"], NO, err=("Windows-1250",), exact=LEDGER_FAULTS),
    Row(["check", "--csv", SAMPLE_1250, *LEDGER, "--allow-empty", "--encoding", "cp1250", "--delimiter", ";"], NO, silent=True,
        exact=LEDGER_FAULTS),
    Row(["check", "--csv", SAMPLE, "--column", "VS=vs", "--encoding", "nonsense"], WRONG_USAGE, err=("nonsense", "ravo encodings")),
    *[Row(["check", "--csv", SAMPLE, "--column", "VS=vs", *wrong], WRONG_USAGE, exact="", err=(told,)) for wrong, told in (
        (["--rejects", ""], "--rejects: the name of the output file is empty"), (["--clean", "-"], "--clean: standard output has the findings"),
        (["--limit", "-1"], "--limit"), (["--threads", "-1"], "--threads"), (["--delimiter", "ab"], "--delimiter"))],
    Row(["check", "--csv", SAMPLE, "--column", "VS=vs", "--encoding", "utf-16"], WRONG_USAGE, err=("utf-16", "ravo convert")),
    Row(["check", "--csv", SAMPLE, *LEDGER, "--allow-empty", "--limit", "1"], NO, err=("UTF-8",),
        exact="line 18\tÚčet MD\t50\tnot valid\nfindings shown: 1, left out: 3\n" + LEDGER_FAULTS[LEDGER_FAULTS.index("300 rows"):]),
    Row(["check", "--csv", SAMPLE, SAMPLE_1250, "chybí.csv", "--column", "EAN=ean", "--allow-empty", "--suite"], WRONG_USAGE,
        err=("ledger-1250.csv: Windows-1250", "chybí.csv: cannot be read: "), out=(
            "ledger.csv: line 167\tEAN\t8590000000018\twrong check digit, right: ", "ledger-1250.csv: line 167\tEAN",
            "\n600 rows, with findings: 2\n", "EAN\tean\t2\twrong check digit\n")),
    Row(["check", "--csv", SAMPLE, "--column", "EAN=ean", "--allow-empty", "--json", "--suite"], NO, err=("UTF-8",), holds=ean_findings),
    Row(["check", "--csv", SAMPLE, "--column", "Datum=au", "--limit", "0", "--clean", "x", "--rejects", "./x"], WRONG_USAGE, exact="",
        err=("name the same file",)),
    Row(["check", "--csv", SAMPLE, SAMPLE, "--column", "Datum=au", "--clean", "x"], WRONG_USAGE, exact="", err=("take one table",)),
    # Rounding.
    Row(["round", "--help"], out=("--mode", "--decimals", "--dph", "--suite", "--notation", "Examples:")),
    Row(["round", "1.234", "--mode", "up"], exact="1.234\t1.24\n"),
    Row(["round", "--mode", "down", "--", "-1.239"], exact="-1.239\t-1.23\n"),
    Row(["round", "-1.005", "1,005"], exact="-1.005\t-1.01\n1,005\t1,01\n"),
    Row(["round", "12345.67", "--decimals", "-2"], exact="12345.67\t12300.00\n"),
    Row(["round", "12,25", "--dph", "P"], exact="12,25\t12,50\n"),
    Row(["round", "1", "--dph", "h"], exact="1\t1.00\n"),
    Row(["round", "12.349", "--dph", "n"], exact="12.349\t12.40\n"),
    Row(["round", "12.5", "--dph", "M", "--json"], holds=differs(
        [{"input": "12.5", "amount": "12.50", "rounded": "13.00", "suite": "13.00", "reason": None}])),
    # Notations.
    Row(["round", "1 234,567 Kč", "1\u00a0234,5", "1.234,567", "1,234.567", ".5", "12 Kč", "12,-", "-1\u202f000,005 €"], exact=(
        "1 234,567 Kč\t1 234,57 Kč\n1\u00a0234,5\t1\u00a0234,50\n1.234,567\t1.234,57\n1,234.567\t1,234.57\n"
        ".5\t0.50\n12 Kč\t12,00 Kč\n12,-\t12,00\n-1\u202f000,005 €\t-1\u202f000,01 €\n")),
    # A dash stands for decimals: what separates before it separates thousands.
    Row(["round", "12.500,-", "1.234.567,- Kč", "1 234,--"], exact="12.500,-\t12.500,00\n1.234.567,- Kč\t1.234.567,00 Kč\n1 234,--\t1 234,00\n"),
    Row(["round", "12.5,-", "12,500,-"], WRONG_USAGE, exact="", err=("12.5,-: the digits are not in groups", "12,500,-: the digits are not in groups")),
    Row(["round", "12.500 EUR", "$1,234"], WRONG_USAGE, exact="", err=("12.500 EUR: three digits", "$1,234: three digits"), czech=("mohou být tisíce",)),
    Row(["round", "1234567,895 Kč", "--notation", "cs"], exact="1234567,895 Kč\t1\u00a0234\u00a0567,90 Kč\n"),
    Row(["round", "1 234,56 Kč", "--notation", "plain"], exact="1 234,56 Kč\t1234.56\n"),
    Row(["round", "1 234,56", "--notation", "en"], exact="1 234,56\t1,234.56\n"),
    Row(["round", "999,999", "1 999,999"], exact="999,999\t1000,00\n1 999,999\t2 000,00\n"),
    Row(["round", "1", "--notation", "de"], WRONG_USAGE),
    # Every amount; where the suite's modules compute something else, a line says so.
    Row(["round", "25000000", "--mode", "up"], exact="25000000\t25000000.00\n",
        err=("ravo round: 25000000: the suite's modules give -17949672.96: with --mode up --decimals 2 they wrap", "from 21474836.4701 on")),
    Row(["round", "25000000", "--mode", "up", "--suite"], NO, exact="", err=("wrap at 32 bits from 21474836.4701 on",)),
    Row(["round", "25000000", "--mode", "up", "--suite", "--json"], NO, err=("wrap",), holds=differs(
        [{"input": "25000000", "amount": "25000000.00", "rounded": None, "suite": "-17949672.96", "reason": "suite-wraps"}])),
    Row(["round", "300000000", "--dph", "N"], exact="300000000\t300000000.00\n", err=("from 214748364.7001 on",)),
    Row(["round", "--decimals", "4", "922337203685475.6577"], exact="922337203685475.6577\t922337203685475.6577\n",
        err=("the suite's modules give 922337203685475.6578\n",)),
    Row(["round", "--decimals", "4", "922337203685475.6577", "--suite"], exact="922337203685475.6577\t922337203685475.6578\n",
        err=("the right result is 922337203685475.6577\n",)),
    Row(["round", "0.0001", "--mode", "up", "--decimals", "-1"], exact="0.0001\t10.00\n", err=("the suite's modules give 0.00\n",)),
    Row(["round", "4.9999", "--decimals", "-1"], exact="4.9999\t0.00\n", err=("the suite's modules give 10.00\n",)),
    Row(["round", "922337203685477.5807", "--decimals", "4"], exact="922337203685477.5807\t922337203685477.5807\n",
        err=("the suite's modules cannot round this amount",)),
    Row(["round", "922337203685477.5807", "--decimals", "0"], NO, exact="",
        err=("outside the range of amounts, -922337203685477.5808 to 922337203685477.5807",)),
    # No amounts; the others are answered.
    Row(["round", "1.23456", "1.5"], WRONG_USAGE, exact="1.5\t1.50\n", err=("ravo round: 1.23456: ", "four decimals")),
    Row(["round", "x"], WRONG_USAGE, exact="", err=("ravo round: x: this is no amount",)),
    Row(["round", "12 34", "1.234 Kč", "922337203685477.5808"], WRONG_USAGE, exact="", err=(
        "12 34: the digits are not in groups of three\n", "1.234 Kč: three digits after \".\" or \",\" may be thousands or decimals; write 12500",
        "amounts are from -922337203685477.5808 to 922337203685477.5807\n")),
    Row(["round", "x", "--json"], WRONG_USAGE, err=("x",), holds=differs(
        [{"input": "x", "amount": None, "rounded": None, "suite": None, "reason": "not-an-amount"}])),
    Row(["round"], WRONG_USAGE, err=("ravo round: give amounts",)),
    Row(["round", "-"], exact=""),
    Row(["round", "1", "--dph", "X"], WRONG_USAGE),
    Row(["round", "1", "--dph", "H", "--decimals", "1"], WRONG_USAGE),
    Row(["round", "1", "--decimals", "15"], WRONG_USAGE),
    Row(["round", "--csv", SAMPLE], WRONG_USAGE),
    Row(["round", "1", "--csv", SAMPLE, "--column", "Částka"], WRONG_USAGE),
    Row(["round", "--csv", "chybí.csv", "--column", "Částka"], WRONG_USAGE, exact="", err=("ravo round: chybí.csv: cannot be read: there is no such file",)),
    Row(["round", "--csv", SAMPLE, "--column", "Castka"], WRONG_USAGE, exact="",
        err=("there is no column 'Castka'; did you mean 'Částka'?\n  columns, split at ';': Doklad, Datum, ",)),
    Row(["round", "--csv", "-", "--column", "A"], WRONG_USAGE, exact="", err=("ravo round: -: has no first row with column names\n",)),
    Row(["round", "--csv", SAMPLE, "--column", "Částka", "--encoding", "xx"], WRONG_USAGE, exact="", err=("ravo round: there is no encoding xx; see ravo encodings",)),
    # Dates.
    Row(["date", "--help"], out=("--month", "--year", "--today", "--suite", "Examples:")),
    Row(["date", "2011-01-31", "--month", "1"], out=("date\t2011-02-28\n", "date in SQL\t20110228\n", "first of the month\t2011-02-01\n",
                                                    "last of the month\t2011-02-28\n", "days in the month\t28\n")),
    Row(["date", "2011-01-31", "--month", "-2"], out=("date\t2010-11-30\n",)),
    Row(["date", "2012-02-29", "--year", "1"], out=("date\t2013-02-28\n", "leap year\tno\n")),
    Row(["date", "2010-12-31 13:05:09.007"], out=("time\t13:05:09.007\n", "both in SQL\t20101231 13:05:09:007\n")),
    Row(["date", "2010-12-31T13:05"], out=("time in SQL\t13:05:00:000\n",)),
    Row(["date", "2024-03-29"], out=("Julian day\t2460399\n", "weekday\tFriday\n", "ISO week\t2024-W13\n",
                                     "Easter Sunday\t2024-03-31\n", "holiday in Germany\tyes\n")),
    Row(["date", "2021-01-03"], out=("ISO week\t2020-W53\n", "weekday\tSunday\n")),
    Row(["date", "2021-01-04"], out=("ISO week\t2021-W01\n", "holiday in Germany\tno\n")),
    Row(["date", "0001-01-01"], out=("ISO week\t0001-W01\n", "Julian day\t1721426\n"), err=("put Easter on 0001-",)),
    Row(["date", "9999-12-31"], out=("ISO week\t9999-W52\n", "Julian day\t5373484\n"), err=("put Easter on 9999-",)),
    # Days as people write them; today is an argument.
    *[Row(["date", text, "--today", "30.11.2026"], out=(f"date\t{date}\n",)) for text, date in (
        ("21.11.2026", "2026-11-21"), ("21. 11. 2026", "2026-11-21"), ("1.\u00a02.\u00a02026", "2026-02-01"), ("20261121", "2026-11-21"),
        ("2026-1-2", "2026-01-02"), (" 2026-11-21 ", "2026-11-21"), ("today", "2026-11-30"), ("dnes", "2026-11-30"), ("Today", "2026-11-30"),
        ("tomorrow", "2026-12-01"), ("zítra", "2026-12-01"), ("zitra", "2026-12-01"), ("pozítří", "2026-12-02"), ("yesterday", "2026-11-29"),
        ("včera", "2026-11-29"), ("předevčírem", "2026-11-28"), ("+14d", "2026-12-14"), ("-30d", "2026-10-31"), ("+2m", "2027-01-30"),
        ("+3m", "2027-02-28"), ("+1y", "2027-11-30"), ("+1r", "2027-11-30"), ("+2w", "2026-12-14"), ("+1t-1d", "2026-12-06"),
        ("21.11.2026+14d", "2026-12-05"), ("2026-11-21 +14d", "2026-12-05"), ("2026-11-21-21d", "2026-10-31"), ("zítra +1m", "2027-01-01"),
        ("2026-01-31+1d+1m", "2026-03-01"), ("2024-01-29+1y+1m", "2025-02-28"))],
    Row(["date", "--today", "2026-11-21"], out=("date\t2026-11-21\n",)),
    Row(["date", "21.11.2026 13:05", "--month", "0"], out=("time\t13:05:00.000\n",)),
    # The suite's modules step month by month, drop the time and have another Easter; a line says so.
    Row(["date", "2011-01-31", "--month", "2"], out=("date\t2011-03-31\n",), err=("ravo date: the suite's modules give 2011-03-28 00:00:00.000\n",)),
    Row(["date", "2011-01-31", "--month", "2", "--suite"], out=("date\t2011-03-28\n",), err=("the right date is 2011-03-31 00:00:00.000\n",)),
    Row(["date", "2012-02-29", "--year", "4"], out=("date\t2016-02-29\n",), err=("the suite's modules give 2016-02-28",)),
    Row(["date", "2012-02-29", "--year", "4", "--suite"], out=("date\t2016-02-28\n",), err=("2016-02-29",)),
    Row(["date", "2011-01-15 13:05", "--month", "1"], out=("time\t13:05:00.000\n",), err=("the suite's modules give 2011-02-15 00:00:00.000\n",)),
    Row(["date", "2011-01-31", "--month", "-1", "--suite"], out=("date\t2010-12-31\n",)),
    Row(["date", "1899-12-28 06:00", "+3d"], WRONG_USAGE),
    Row(["date", "1899-12-28 06:00 +3d"], out=("date\t1899-12-31\n", "time\t06:00:00.000\n"), err=("Easter on 1899-04-03",)),
    Row(["date", "2024-02-29+1y-1m"], out=("date\t2025-01-29\n",), err=("the suite's modules give 2025-01-28",)),
    Row(["date", "2100-01-01"], out=("Easter Sunday\t2100-03-28\n",), err=("the suite's modules put Easter on 2100-03-27\n",)),
    Row(["date", "2100-01-01", "--suite"], out=("Easter Sunday\t2100-03-27\n",), err=("Easter is really on 2100-03-28\n",)),
    *[Row(["date", f"{easter[:4]}-06-01"], out=(f"Easter Sunday\t{easter}\n",), err=() if "1900" <= easter < "2100" else ("Easter",))
      for easter in ("1943-04-25", "1954-04-18", "1981-04-19", "2000-04-23", "2008-03-23", "2038-04-25", "2049-04-18", "2076-04-19")],
    Row(["date", "2011-01-31", "--month", "2", "--json"], err=("2011-03-28",), holds=as_json(lambda facts: (
        facts["date"], facts["month-last"], facts["sql-date"], facts["weekday"], facts["suite"]) != (
        "2011-03-31", "2011-03-31", "20110331", "Thursday", {"date": "2011-03-28", "time": "00:00:00.000", "easter": "2011-04-24"}) and f"{facts}")),
    Row(["date", "0001-01-15", "--month", "-1"], NO, exact="", err=("ravo date: the date is outside the years 1 to 9999\n",)),
    Row(["date", "9999-12-31+1d"], NO, exact="", err=("1 to 9999",)),
    Row(["date", "2026-01-01", "--today", "0001-01-01-1d"], NO, exact="", err=("1 to 9999",)),
    Row(["date", "2026-01-01" + "+99999r" * 400], NO, exact="", err=("1 to 9999",)),
    Row(["date", "2011-02-29"], WRONG_USAGE, exact="", err=("ravo date: 2011-02-29: February 2011 has the days 1 to 28\n",)),
    Row(["date", "31.4.2026"], WRONG_USAGE, exact="", err=("April 2026 has the days 1 to 30",)),
    Row(["date", "2011-13-01"], WRONG_USAGE, exact="", err=("there is no month 13",)),
    Row(["date", "0000-01-01"], WRONG_USAGE, exact="", err=("there is no year 0",)),
    Row(["date", "2011-01-31 25:00"], WRONG_USAGE, exact="", err=("times are from 00:00:00.000 to 23:59:59.999",)),
    *[Row(["date", text], WRONG_USAGE, exact="", err=("this is no date; write it as 2026-11-21, 21.11.2026, today or +14d",))
      for text in ("2011-01-31x", "2011-01-31 13", "2011-01-31 13:5", "21.11.", "21.11.26", "14d", "+14", "+14x", "+d", "todays", "zítr", " ",
                   "2026-11-21+14d x", "1234567", "+1234567d", "")],
    Row(["date", "2026-01-01", "--today", "x"], WRONG_USAGE, exact="", err=("x: this is no date",)),
    # Holidays of Germany, until there are others.
    Row(["date", "2024-06-15", "--holidays-de"], out=(
        "holidays in Germany\t2024-01-01 2024-03-29 2024-04-01 2024-05-01 2024-05-09 2024-05-20 2024-10-03 2024-12-24 2024-12-25 "
        "2024-12-26 2024-12-31\n",)),
    Row(["date", "2024-06-15"], holds=without("holidays")),
    Row(["date", "2024-03-29", "--json", "--holidays-de"], holds=as_json(lambda facts: (
        facts["julian-day"], facts["iso-week"], facts["holiday-de"], len(facts["holidays-de"])) != (2460399, "2024-W13", True, 11) and "other facts")),
    Row(["date", "2024-03-29", "--calendar"], exact=(
        "March 2024\n    Mo  Tu  We  Th  Fr  Sa  Su\n 9                   1   2   3*\n10   4   5   6   7   8   9  10*\n"
        "11  11  12  13  14  15  16  17*\n12  18  19  20  21  22  23  24*\n13  25  26  27  28 [29] 30  31*\n")),
    Row(["date", "2023-12-31", "--month", "1", "--calendar"], out=("January 2024\n", " 1   1   2 ", " 5  29  30 [31]\n")),
    Row(["date", "2023-12-31", "--month", "1", "--calendar", "--holidays-de"], out=("January 2024\n", " 1   1*  2 ", " 5  29  30 [31]\n")),
    Row(["date", "2021-01-31", "--calendar"], out=("January 2021\n", "53                   1   2   3*\n", " 4  25  26  27  28  29  30 [31]\n")),
    Row(["date", "2024-03-29", "--calendar", "--json"], WRONG_USAGE),
    # Random texts, compared with Python's generator and the same keys.
    Row(["random", "--seed", "seed", "--count", "20", "--alphabet", "abcdefg"], exact=drawn("seed", "abcdefg", 20)),
    Row(["random", "--seed", "sůl", "--alphabet", "áčď", "--count", "50"], exact=drawn("sůl", "áčď", 50)),
    Row(["random", "--seed", "x", "--count", "0"], exact="\n"),
    Row(["random", "--seed", "x"], holds=lambda out: not re.fullmatch(r"[A-Za-z0-9]{16}\n", out)),
    Row(["random"], WRONG_USAGE),
    Row(["random", "--seed", ""], WRONG_USAGE, err=("the seed is empty",), czech=('počáteční text je prázdný',)),
    Row(["random", "--seed", "x", "--alphabet", ""], WRONG_USAGE, err=("the alphabet is empty",)),
    Row(["random", "--seed", "x", "--alphabet", "a😀"], WRONG_USAGE, err=("past U+FFFF",)),
    Row(["random", "--seed", "x", "--count", "-1"], WRONG_USAGE),
    # The tour: each command as typed and its output; no colours without a terminal.
    Row(["--help"], out=("\nThe suite:\n  table ", "\nAccounting:\n  check ", "\n  tour "), holds=without("\nCommands:")),
    Row(["tour"], holds=without("\033"), err=("delimiter ';'",), out=(
        "$ ravo table 71710 100121 72510\n71710\tÚčetní deník\n", "4006381333932\twrong: the check digit does not match\n(exit status 1)\n",
        '$ ravo address "Nádražní 1234/5"\nNádražní\t1234/5\n', "\n$ ravo report\nInformace o klientské vrstvě\n", " lines more\n",
        "$ ravo xml get invoice.xml Faktura/Radek/Castka\n1210.00\n", "\nline 3\tÚčet MD\t50\tnot valid\n", "\nVážená paní, účet posíláme.\n"),
        czech=("# Všechny tabulky modulu.\n", "(návratový kód 1)\n", "Více s příklady ukáže `ravo help PŘÍKAZ`.\n")),
    Row(["tour", "--commands"], holds=lambda out: len(set(line.split()[1] for line in out.splitlines())) < 8 and "too few commands"),
    Row(["tour", "--json"], holds=as_json(lambda all: (len(all) < 10 or all[0]["command"] != "ravo table 71710 100121 72510") and f"{all}")),
    Row(["tour", "there"], WRONG_USAGE, czech=("argument 'there' je navíc",)),
    # Characters and strings.
    Row(["char", "--help"], out=("U+010D", "Examples:")),
    Row(["char", "č"], out=("character\tU+010D\ntext\tč\ncategory\tLl, lower-case letter\nclass\t0\nupper\tU+010C\n",
                            "canonical\tU+0063 U+030C\n", "bytes\tE8\tIso_8859_2 ", "bytes\tC4 8D\tUTF_8\n",
                            "bytes\t2B 41 51 30 2D\tUTF_7 UTF_7_ODC\n")),
    Row(["char", "--json", "Ž"], holds=as_json(lambda all: all[0]["bytes"]["CP_852"] != "A6")),
    Row(["char", "U+FB01", "u+0000"], out=("compatible\tU+0066 U+0069\n", "\n\ncharacter\tU+0000\ncategory\tCc")),
    Row(["char", "--json", "U+0378"], holds=as_json(lambda all: len(all) != 1 or all[0]["category"] != "Cn, unassigned")),
    Row(["char", "😀"], out=("U+D83D", "Cs, half")),
    Row(["char", "U+10000"], WRONG_USAGE, err=("U+10000",), czech=("'U+10000' není v rozsahu U+0000 až U+FFFF",)),
    Row(["char", "U+"], out=("U+0055", "U+002B")),
    Row(["char"], WRONG_USAGE),
    Row(["sort", "--help"], out=("--natural", "Examples:")),
    Row(["sort", "missing"], WRONG_USAGE, exact="", err=("missing: cannot be read",)),
    Row(["sort", "."], WRONG_USAGE, exact="", err=(".: cannot be read",)),
    Row(["sort", "-"], exact=""),
    Row(["match", "*-?.p*", "a-1.pdf", "a-10.pdf"], exact="a-1.pdf\n"),
    Row(["match", "--ignore-case", "P??JEMKA*", "Příjemka", "x"], exact="Příjemka\n"),
    Row(["match", "P*", "příjemka"], NO, exact="", err=("P*",), czech=("masce 'P*' nic neodpovídá",)),
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
    Row(["hash", "--check"], WRONG_USAGE, exact="", err=("-: there is no line with a sum",), czech=('-: žádný řádek neobsahuje součet',)),
    Row(["hash"], WRONG_USAGE),
    Row(["hash", "md5", "x"], WRONG_USAGE, err=("crc32, hash, hash-ia",)),
    Row(["hash", "crc32", "missing"], WRONG_USAGE, exact="", err=("ravo hash: missing: cannot be read: there is no such file\n",), czech=('ravo hash: missing: nelze přečíst: soubor neexistuje\n',)),
    Row(["hash", "crc32", "."], WRONG_USAGE, exact="", err=(".: cannot be read",), czech=('.: nelze přečíst: je to složka',)),
    Row(["hash", "crc32", "--check", "missing"], WRONG_USAGE, exact="", err=("missing: cannot be read",)),
    Row(["hash", "--all", "--json"], holds=differs([{"file": "-", "crc32": "00000000", "hash": "BD49D10D", "hash-ia": "BD49D10D"}])),
    Row(["match", "--json", "a*", "ab", "b", "a"], holds=differs([{"text": "ab"}, {"text": "a"}])),
    Row(["match", "--json", "a*", "b"], NO, holds=differs([]), err=("nothing matches 'a*'",)),
    Row(["url", "encode", "--json", "a b"], holds=differs([{"text": "a b", "result": "a+b"}])),
    Row(["random", "--seed", "x", "--count", "0", "--json"], holds=differs({"text": ""})),
    Row(["backup-name", "%firma%.zip", "A/B", "--json"], holds=differs({"name": "AB.zip"})),
    # Addresses and backup names.
    Row(["address", "Nádražní 1234/5", "Dlouhá 12a", "Na Příkopě XIV"],
        exact="Nádražní\t1234/5\nDlouhá 12a\t\nNa Příkopě\tXIV\n"),
    Row(["address", "Lipová 7", "--json"], holds=differs([{"address": "Lipová 7", "street": "Lipová", "number": "7"}])),
    Row(["address"], WRONG_USAGE, czech=('chybí ADRESA',)),
    Row(["backup-name", "%firma%.zip", "A/B: s.r.o."], exact="AB s.r.o..zip\n"),
    Row(["backup-name", "%DATUM%_%CAS%"], holds=lambda out: not re.fullmatch(r"\d{6}_\d{6}\n", out)),
    Row(["backup-name"], WRONG_USAGE, czech=('chybí ŠABLONA',)),
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
