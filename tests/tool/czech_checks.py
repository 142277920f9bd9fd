"""What `ravo` answers by the rules of the country: identifiers, lists of banks, VAT, terms, holidays."""

from command_rows import SAMPLE
from harness import NO, WRONG_USAGE, Row, as_json, differs, lines, without

CZECH_ROWS = [
    # Checks by the country's rules.
    Row(["check", "ico", "04625781", "IČ: 270 82 441"], NO, silent=True,
        exact="04625781\tcorrect in form\nIČ: 270 82 441\twrong: the check digit does not match\n"),
    Row(["check", "ico", "IČ: 270 82 441", "--explain"], NO, silent=True, out=("  character: 14\n", "  code: ico.checksum\n", "law 111/2009")),
    Row(["check", "ico", "--json", "IČ 2708244"], NO, silent=True,
        holds=differs([{"value": "IČ 2708244", "kind": "ico", "valid": False, "reason": "ico.length",
                        "remark": "wrong: an IČO has eight digits, leading zeros included", "position": 11}])),
    Row(["check", "banka", "19-2000145399/0800"], exact="19-2000145399/0800\tcorrect in form\n"),
    # The suite adds the two sums up.
    Row(["check", "account", "20-2000145397/0800", "--json"], NO, silent=True,
        holds=as_json(lambda all: (all[0]["reason"], all[0]["suite"]) != ("account.prefix_checksum", False) and f"{all}")),
    Row(["check", "vs", "79927398713", "2026000579"], NO, silent=True,
        exact="79927398713\twrong: a variable symbol has at most ten digits\tthe suite accepts it\n"
              "2026000579\tcorrect in form\tthe suite refuses it\n"),
    Row(["check", "account", "19-2000145399/0800", "--list", "built-in"],
        exact="19-2000145399/0800\tcorrect in form\tČeská spořitelna, a.s., by the list of 2022-11-13\n"),
    Row(["check", "account", "19-2000145399/0801", "--list", "built-in"], NO, silent=True,
        out=("\twrong: the list does not have the bank code\tnot in the list of 2022-11-13\n",)),
    Row(["check", "iban", "CZ6508000000192000145399", "--explain"],
        out=("  usual spelling: CZ65 0800 0000 1920 0014 5399\n", "  account: 19-2000145399/0800\n")),
    Row(["check", "rc", "5301010011"], exact="5301010011\tcorrect in form\n"),
    Row(["check", "rc", "5301010011", "--on", "2026-11-22"], NO, silent=True, out=("the date of birth is after the given day",)),
    Row(["check", "rc", "5301010011", "--on", "1. 1. 2053"], exact="5301010011\tcorrect in form\n"),
    Row(["check", "rc", "8551011238", "--explain"], out=("  born: 1985-01-01\n", "  sex: woman\n")),
    Row(["check", "dic", "CZ699004237", "--explain"], out=("  holder: group of payers of VAT\n",)),
    Row(["check", "ico", "1", "--on", "2026-02-29"], WRONG_USAGE, err=("--on: '2026-02-29' is not a day: February 2026 has the days 1 to 28",)),
    Row(["check", "ico", "27082440", "--suite"], WRONG_USAGE, err=("the suite has no rule for ico",)),
    Row(["check", "account", "51/0100", "--list", "chybí.csv"], WRONG_USAGE, exact="", err=("ravo check: chybí.csv: cannot be read",)),
    Row(["check", "account", "51/0100", "--list", SAMPLE], WRONG_USAGE, exact="", err=("ledger.csv: line 2: wrong: a line of the list",)),
    Row(["check", "account", "51/0100", "--list", "built-in", "--list-date", "2026-01-01"], WRONG_USAGE, exact="",
        err=("ravo check: built-in: this list has a day of its own",), czech=("má vlastní den",)),
    Row(["check", "banka", "19-2000145399/0800", "--json"], holds=as_json(lambda all: all[0]["kind"] != "banka" and f"{all}")),
    Row(["check", "--csv", SAMPLE, "--column", "Protiúčet=banka", "--allow-empty"], NO, err=("UTF-8",), out=("\nProtiúčet\tbanka\t",)),
    Row(["check", "dic", "CZ27082440", "--explain"], out=("digits: company number, birth number",)),
    Row(["check", "account", "51/0100", "--list-date", "2026-01-01"], WRONG_USAGE, err=("--list",)),
    Row(["check", "--csv", SAMPLE, "--column", "Protiúčet=account", "--column", "VS=vs", "--allow-empty"], NO, err=("UTF-8",),
        out=("19-2000145398/0800\twrong: the weighted sum of the account's number is not divisible by eleven\n", "20260024O7")),
    # VAT, terms and holidays.
    Row(["vat", "--help"], out=("--total", "--rates", "Examples:")),
    Row(["vat", "1000", "--on", "2026-11-22"], exact="21 %\t1000.00\t210.00\t1210.00\n"),
    Row(["dph", "--total", "1210", "112:12", "--on", "22.11.2026"],
        exact="21 %\t1000.00\t210.00\t1210.00\n12 %\t100.00\t12.00\t112.00\n"),
    Row(["vat", "--total", "0.14", "--rate", "12", "--on", "2026-11-22"], out=("12 %\t0.12\t0.02\t0.14\tthe exact tax ends on half",)),
    Row(["vat", "--total", "1000", "--rate", "15", "--on", "2018-06-01"], exact="15 %\t869.60\t130.40\t1000.00\n"),
    Row(["vat", "--total", "1000", "--rate", "15", "--on", "2019-06-01"], exact="15 %\t869.57\t130.43\t1000.00\n"),
    Row(["vat", "--coefficient", "1000", "--rate", "15", "--on", "2019-06-01"], exact="15 %\t869.60\t130.40\t1000.00\n"),
    Row(["vat", "--coefficient", "1000", "--on", "2026-11-22"], WRONG_USAGE, exact="", err=("not lawful on 2026-11-22",)),
    Row(["vat", "--total", "1000", "--on", "2003-01-01"], WRONG_USAGE, exact="", err=("not lawful on 2003-01-01",)),
    Row(["vat", "100:15", "--on", "2026-11-22"], WRONG_USAGE, exact="", err=("no rate 15 was in force on 2026-11-22",)),
    Row(["vat", "100", "--rate", "second-reduced", "--on", "2026-11-22"], WRONG_USAGE, exact="", err=("no rate second-reduced",)),
    Row(["vat", "--sum", "--crowns", "nearest", "100:21", "9.99:12", "--on", "2026-11-22"],
        exact="21 %\t100.00\t21.00\t121.00\n12 %\t9.99\t1.20\t11.19\nsum\t109.99\t22.20\t132.19\nto pay\t132.00\t-0.19\n"),
    Row(["vat", "--sum", "0.10:12", "0.10:12", "0.10:12", "--on", "2026-11-22"], out=("12 %\t0.30\t0.04\t0.34\n",)),
    Row(["vat", "--sum", "--by-line", "0.10:12", "0.10:12", "0.10:12", "--on", "2026-11-22"], out=("12 %\t0.30\t0.03\t0.33\n",)),
    Row(["vat", "50", "--json", "--on", "2026-11-22"],
        holds=differs([{"rate": "standard", "percent": 21, "lines": 1, "base": "50.00", "tax": "10.50", "total": "60.50", "half": False}])),
    Row(["vat", "922337203685477.5807", "--on", "2026-11-22"], WRONG_USAGE, exact="", err=("out of range",)),
    Row(["vat", "--rates"], holds=lines(13), out=("1993-01-01\t1994-12-31\tstandard\t23 %\t588/1992\n", "2024-01-01\t\treduced\t12 %\t349/2023\n")),
    Row(["vat", "--rates", "--on", "2020-01-01"], holds=lines(3)),
    Row(["vat", "--rates", "--on", "1992-12-31"], NO, exact="", err=("1 January 1993",)),
    Row(["vat", "100", "--on", "1992-12-31"], WRONG_USAGE, exact="",
        err=("ravo vat: no rates are known for 1992-12-31; the first are of 1 January 1993\n",), czech=("nejsou známy žádné sazby",)),
    # Answers in the notation that came in, or in the one asked for.
    Row(["vat", "12.500,-", "1 000 Kč", "--on", "2026-11-22"],
        exact="21 %\t12.500,00\t2.625,00\t15.125,00\n21 %\t1 000,00 Kč\t210,00 Kč\t1 210,00 Kč\n"),
    Row(["vat", "1 000 Kč", "--notation", "plain", "--on", "2026-11-22"], exact="21 %\t1000.00\t210.00\t1210.00\n"),
    Row(["vat", "1000", "--notation", "cs", "--on", "2026-11-22"], exact="21 %\t1\u00a0000,00\t210,00\t1\u00a0210,00\n"),
    Row(["vat", "1000,4", "100", "--sum", "--crowns", "nearest", "--on", "2026-11-22"],
        exact="21 %\t1100,40\t231,08\t1331,48\nsum\t1100,40\t231,08\t1331,48\nto pay\t1331,00\t-0,48\n"),
    Row(["vat", "1 000,5", "--json", "--on", "2026-11-22"], holds=as_json(lambda all: all[0]["total"] != "1210.61" and f"{all}")),
    Row(["vat"], WRONG_USAGE),
    Row(["vat", "x"], WRONG_USAGE, err=("ravo vat: AMOUNT: x: this is no amount",), czech=("x: toto není částka",)),
    Row(["vat", "12.500 EUR"], WRONG_USAGE, exact="", err=("12.500 EUR: three digits after",)),
    Row(["vat", "1.23456:12"], WRONG_USAGE, err=("1.23456:12: an amount has at most four decimals\n",)),
    Row(["vat", "1", "--by-line"], WRONG_USAGE),
    Row(["due", "--help"], out=("--days", "--months", "Examples:")),
    Row(["due", "2026-11-07", "--days", "14"], exact="2026-11-23\tMonday\nSaturday 2026-11-21 is no working day\n"),
    Row(["splatnost", "6.11.2026", "--days", "14"], exact="2026-11-20\tFriday\n"),
    Row(["due", "31. 1. 2026", "--months", "1"], out=("2026-03-02\tMonday\n",)),
    Row(["due", "2026-12-24"], out=("2026-12-28\tMonday\n",)),
    Row(["due", "2026-11-06", "--days", "14", "--on", "2026-11-21"], NO, silent=True, exact="2026-11-20\tFriday\none day overdue\n"),
    Row(["due", "2026-11-06", "--days", "14", "--on", "2026-11-20", "--json"],
        holds=differs({"due": "2026-11-20", "counted": "2026-11-20", "verified": True, "overdue": 0})),
    Row(["due", "1999-12-01", "--days", "5"], out=("holidays before 2000 are not verified\n",)),
    Row(["due", "9999-12-31", "--days", "1"], WRONG_USAGE, exact="", err=("1 to 9999",)),
    Row(["due", "2026-02-29"], WRONG_USAGE, err=("'2026-02-29'",)),
    Row(["due", "2026-01-01", "--days", "1", "--months", "1"], WRONG_USAGE),
    Row(["due"], WRONG_USAGE),
    Row(["holidays", "--help"], out=("245/2000", "Examples:")),
    Row(["holidays", "2026"], holds=lines(15), out=("2026-04-03\tFriday\tGood Friday\t359/2015\n", "\n250 working days\n")),
    Row(["svatky", "2015"], holds=without("Good Friday"), out=("\n251 working days\n",)),
    Row(["holidays", "3.4.2026"], exact="2026-04-03\tFriday\tGood Friday\t359/2015\n0 working days\n"),
    Row(["holidays", "2026-04-02"], NO, silent=True, exact="one working day\n"),
    Row(["holidays", "2026-12-01", "2026-12-31", "--json"],
        holds=as_json(lambda all: ([day["date"] for day in all["holidays"]], all["workingDays"]) != (["2026-12-24", "2026-12-25", "2026-12-26"], 21) and f"{all}")),
    Row(["holidays", "1999"], holds=without("245/2000"), out=("1999-05-01\tSaturday\tLabour Day\t93/1951\n", "holidays before 2000 are not verified\n",)),
    Row(["holidays", "2000"], out=("2000-05-01\tMonday\tLabour Day\t93/1951\n", "2000-12-24\tSunday\tChristmas Eve\t245/2000\n")),
    # Days as `ravo date` reads them.
    Row(["due", "20261107", "--days", "14", "--on", "21. 11. 2026 +10d"], NO, silent=True, out=("2026-11-23\tMonday\n", "8 days overdue\n")),
    Row(["holidays", "2026-04-02+1d"], out=("2026-04-03\tFriday\tGood Friday",)),
    Row(["vat", "100", "--on", "2012-12-31+1d"], out=("21 %\t",)),
    Row(["check", "rc", "5301010011", "--on", "2052-12-31 +1d"], exact="5301010011\tcorrect in form\n"),
    Row(["due", "tomorrow", "--on", "+400d"], NO, silent=True, out=(" days overdue\n",)),
    Row(["due", "9999-12-31+1d"], WRONG_USAGE, exact="", err=("'9999-12-31+1d' is not a day: the date is outside the years 1 to 9999\n",)),
    Row(["vat", "1", "--on", "x"], WRONG_USAGE, exact="", err=("--on: 'x' is not a day: this is no date; write it as 2026-11-21",), czech=("'x' není den: toto není datum",)),
    Row(["holidays", "0"], WRONG_USAGE),
    Row(["holidays", "2027", "2026"], WRONG_USAGE, exact="", err=("ravo holidays: 2026-12-31 is before 2027-01-01\n",), czech=("2026-12-31 je před 2027-01-01",)),
    Row(["holidays", "2026", "2027", "2028"], WRONG_USAGE),
]

BANKS = "Kód;Název;BIC;CERTIS\n0800;Spořitelna;GIBACZPX;A\n5500;Banka;RZBCCZPP;A\n"


def check_bank_lists(program):
    """A list of banks in a file is read, named by its day, and refused with its line."""
    file = program.folder / "banky.csv"
    ask = ["check", "account", "19-2000145399/0800", "--list", file.name]
    file.write_text(BANKS, encoding="utf-8")
    rows = [
        Row([*ask, "--list-date", "2026-10-01"], exact="19-2000145399/0800\tcorrect in form\tSpořitelna, by the list of 2026-10-01\n"),
        Row([*ask[:2], "51/0100", *ask[3:], "--list-date", "2026-10-01"], NO, silent=True, out=("not in the list of 2026-10-01\n",)),
        Row([*ask, "--list-date", "2026-10-01", "--json"], holds=as_json(lambda all: (all[0]["bank"], all[0]["list-date"]) != ("Spořitelna", "2026-10-01") and f"{all}")),
    ]
    for row in rows:
        yield from program.failures(row)
    file.write_text(BANKS + "0800;Spořitelna;;\n", encoding="utf-8")
    yield from program.failures(Row(ask, WRONG_USAGE, exact="", err=("banky.csv: line 4: wrong: the list has the bank code twice",)))
    file.unlink()
