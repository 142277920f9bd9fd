"""Command lines of `ravo` and their expected results."""

import pathlib
import random
import re

from harness import NO, WRONG_USAGE, Row, as_json, differs, lines, without


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
LEDGER = [argument for column in ("Účet MD=ucet", "VS=vs", "Protiúčet=banka") for argument in ("--column", column)]
LEDGER_FAULTS = (
    "line 18\tÚčet MD\t50\nline 59\tVS\t2026000579\nline 104\tProtiúčet\t19-2000145398/0800\nline 241\tVS\t20260024O7\n"
    "300 rows\nÚčet MD (ucet): 299 valid, 1 not\nVS (vs): 268 valid, 2 not\nProtiúčet (banka): 237 valid, 1 not\n"
)


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
    Row(["xml", "sho"], WRONG_USAGE, err=("ravo xml: there is no command 'sho'. Did you mean show?",)),
    Row(["report", "stray"], WRONG_USAGE, err=("the argument 'stray' is one too many",), czech=("argument 'stray' je navíc",)),
    # The parser's own words.
    Row(["round", "1", "--mode", "upp"], WRONG_USAGE, err=("--mode cannot be 'upp'; it is one of: up, down, math. Did you mean up?",),
        czech=("--mode nemůže být 'upp'; možnosti jsou: up, down, math. Nemysleli jste up?",)),
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
    Row(["check", "konto", "1"], WRONG_USAGE, err=("'konto'", "ucet, su, au, ")),
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
    Row(["tour"], holds=without("\033"), out=(
        "$ ravo table 71710 100121 72510\n71710\tÚčetní deník\n", "not valid: wrong check digit, right: 4006381333931\n(exit status 1)\n",
        '$ ravo address "Nádražní 1234/5"\nNádražní\t1234/5\n', "\n$ ravo report\nInformace o klientské vrstvě\n", " lines more\n",
        "$ ravo xml get invoice.xml Faktura/Radek/Castka\n1210.00\n", "\nline 3\tÚčet MD\t50\n", "\nVážená paní, účet posíláme.\n"),
        czech=("# Všechny tabulky modulu.\n", "(návratový kód 1)\n", "Více s příklady ukáže `ravo help PŘÍKAZ`.\n")),
    Row(["tour", "--commands"], holds=lambda out: len(set(line.split()[1] for line in out.splitlines())) < 8 and "too few commands"),
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
