"""`ravo round` beside Python's decimal arithmetic, and beside the suite's rules computed in fractions."""

import decimal
import json
import math
import random
from decimal import Decimal
from fractions import Fraction

from harness import NO, WRONG_USAGE, YES

LEAST, MOST = -(2**63), 2**63 - 1
MODES = {"up": decimal.ROUND_UP, "down": decimal.ROUND_DOWN, "math": decimal.ROUND_HALF_UP}
DECIMALS = range(-4, 15)
ARITHMETIC = decimal.Context(prec=60)


def text_of(raw):
    return str(Decimal(raw).scaleb(-4, ARITHMETIC))


def raw_of(text):
    return int(Decimal(text).scaleb(4, ARITHMETIC))


def drawn_amounts(seed, count):
    """Amounts of every length in ten-thousandths: halves and their neighbours, the ends, the limits of 32 bits."""
    number = random.Random(seed)
    amounts = {0, 1, -1, MOST, MOST - 1, LEAST, LEAST + 1, *(2**31 * 10**i + j for i in range(8) for j in (-1, 0, 1))}
    for _ in range(count):
        step = 10 ** number.randrange(9)
        half = number.randrange(-(10**6), 10**6) * step + step // 2 + number.randrange(-1, 2)
        amounts |= {half, number.getrandbits(number.randrange(1, 64)) * number.choice([-1, 1])}
    return sorted(amounts)


def rounded(raw, decimals, mode):
    result = Decimal(raw).scaleb(-4, ARITHMETIC).quantize(Decimal(1).scaleb(-min(decimals, 4)), mode, ARITHMETIC)
    return int(result.scaleb(4, ARITHMETIC))


def answers(program, amounts, *options):
    """The JSON of `ravo round` for amounts on standard input, and the exit status."""
    (program.folder / "amounts").write_text("".join(text_of(raw) + "\n" for raw in amounts), encoding="ascii")
    result = program.run(["round", "-", "--json", *options], given="amounts")
    return json.loads(result.out), result.status


def wrong_answers(program, amounts, expected, *options):
    rows, status = answers(program, amounts, *options)
    any_outside = False
    for raw, row in zip(amounts, rows, strict=True):
        wanted = expected(raw)
        is_outside = not LEAST <= wanted <= MOST
        any_outside |= is_outside
        if is_outside != (row["reason"] == "range") or is_outside != (row["rounded"] is None):
            yield f"round {options} {text_of(raw)}: {row}, but is {text_of(wanted)}"
        elif not is_outside and raw_of(row["rounded"]) != wanted:
            yield f"round {options} {text_of(raw)}: {row['rounded']}, not {text_of(wanted)}"
        if not is_outside and bool(row["reason"]) == (row["suite"] == row["rounded"]):
            yield f"round {options} {text_of(raw)}: {row} tells no or a false difference from the suite"
    if status != (NO if any_outside else YES):
        yield f"round {options}: status {status}"


def check_rounding(program):
    """Every mode and number of decimals equals Python's decimal."""
    for name, mode in MODES.items():
        for decimals in DECIMALS:
            amounts = drawn_amounts(f"{name}{decimals}", 100)
            yield from wrong_answers(program, amounts, lambda raw: rounded(raw, decimals, mode), "--mode", name, "--decimals", str(decimals))


def check_vat_rules(program):
    """The rules of VAT by their letters, of either case."""
    rules = {"H": (2, "math"), "D": (1, "math"), "N": (1, "up"), "M": (0, "math")}
    for letter, (decimals, mode) in rules.items():
        for case in (letter, letter.lower()):
            expected = lambda raw: rounded(raw, decimals, MODES[mode])  # noqa: E731
            yield from wrong_answers(program, drawn_amounts(letter, 100), expected, "--dph", case)
    halves = lambda raw: rounded(2 * raw, 0, decimal.ROUND_HALF_UP) // 2  # noqa: E731
    for case in "Pp":
        yield from wrong_answers(program, drawn_amounts("P", 100), halves, "--dph", case)


def steps_of_suite(raw, mode, decimals):
    """The number of steps that the suite's modules count for an amount, before they cut it to 32 bits."""
    scaled = round(Fraction(raw) * Fraction(10) ** decimals)  # ties to even
    steps = Fraction(scaled, 10000)
    return math.ceil(steps) if mode == "up" else math.floor(steps)


def limit_of_suite(mode, decimals):
    """The smallest amount for which the count needs more than 31 bits; for math, whose scaled amount needs more than 63."""
    reaches = {"math": lambda raw: raw * 10 ** (decimals - 4) >= 2**63}.get(
        mode, lambda raw: steps_of_suite(raw, mode, decimals) >= 2**31)
    low, high = 0, MOST
    while high - low > 1:
        middle = (low + high) // 2
        low, high = (low, middle) if reaches(middle) else (middle, high)
    return high


def check_suite_limits(program):
    """--suite answers up to its limit as the suite's modules do, and refuses from there on."""
    for mode in MODES:
        for decimals in DECIMALS if mode != "math" else range(5, 15):
            options = ("--mode", mode, "--decimals", str(decimals))
            limit, step = limit_of_suite(mode, decimals), 10 ** max(4 - decimals, 0)
            inside, past = [limit - 1, 1 - limit], [limit, -limit]
            rows, status = answers(program, inside, *options, "--suite")
            if status != YES or any(abs(raw_of(row["rounded"]) - raw) > step for raw, row in zip(inside, rows)):
                yield f"round {options} --suite before {text_of(limit)}: status {status}, {rows}"
            rows, status = answers(program, past, *options, "--suite")
            if status != NO or any(row["rounded"] for row in rows):
                yield f"round {options} --suite from {text_of(limit)} on: status {status}, {rows}"
            # What it refuses is really wrong.
            if any(row["suite"] and raw_of(row["suite"]) == rounded(raw, decimals, MODES[mode]) for raw, row in zip(past, rows)):
                yield f"round {options} --suite refuses {rows}"
            told = program.run(["round", text_of(limit), *options, "--suite"]).err
            if f"from {text_of(limit).rstrip('0')}" not in told.replace(".00 on", ". on"):
                yield f"round {options} --suite tells another limit than {text_of(limit)}: {told!r}"


TABLE = (
    '\ufeffDoklad;"Částka, Kč";Text\r\n'
    'A;1 234,567;"x;y"\r\n'
    '"B";"-0,005"; a ""b"" \n'
    "C; 12,5 Kč ;\r\n"
    '\r\nD;;"two\nlines; 1,999"\r\n'
    "E;1\u00a0000,999 Kč;\u20ac"
)
ROUNDED = (
    TABLE.replace("1 234,567", "1 234,57").replace('"-0,005"', '"-0,01"').replace("12,5 ", "12,50 ").replace("000,999", "001,00")
)


def check_rounded_columns(program):
    """A column of a table is rounded, every other byte stays; what is no amount stays too, and is told."""

    def run(name, content, *options):
        (program.folder / name).write_bytes(content)
        with open(program.folder / "rounded", "wb") as out:
            result = program.run(["round", "--csv", name, *options], out=out)
        return (program.folder / "rounded").read_bytes(), result

    column = ("--column", "Částka, Kč")
    for encoding in ("utf-8", "cp1250"):
        table, wanted = (text.removeprefix("" if encoding == "utf-8" else "\ufeff").encode(encoding) for text in (TABLE, ROUNDED))
        for options in (column, ("--column", "2"), (*column, "--delimiter", ";")):
            got, result = run("table.csv", table, *options)
            if got != wanted or (result.status, result.err) != (YES, ""):
                yield f"round --csv {options} in {encoding}: {got!r}, {result}"
    with_faults = b"a,b\n1.005,1\nx,2\n3\n\"1,5\",4\n25000000,5\r\r99 99,6"
    got, result = run("faults.csv", with_faults, "--column", "a", "--mode", "up")
    wanted = b"a,b\n1.01,1\nx,2\n3.00\n\"1,50\",4\n25000000.00,5\r\r99 99,6"
    if got != wanted or result.status != WRONG_USAGE:
        yield f"round --csv with faults: {got!r}, {result}"
    for told in ("faults.csv: line 3: x: this is no amount", "line 6: 25000000: the suite's modules give", "line 8: 99 99: the digits"):
        if told not in result.err:
            yield f"round --csv with faults does not tell {told!r}: {result.err!r}"
    got, result = run("faults.csv", with_faults, "--column", "b")
    if got != with_faults.replace(b",1\n", b",1.00\n").replace(b",2\n", b",2.00\n").replace(b",4\n", b",4.00\n").replace(
            b",5\r", b",5.00\r").replace(b",6", b",6.00") or "line 4: the row has no field in this column" not in result.err:
        yield f"round --csv of a ragged table: {got!r}, {result}"
    got, result = run("faults.csv", b"a,b\n1234.5,x\n", "--column", "a", "--notation", "en")
    if got != b'a,b\n"1,234.50",x\n':
        yield f"round --csv puts a delimiter into a field: {got!r}"
    got, result = run("same.csv", b"a;a\n1;2\n", "--column", "a")
    if (got, result.status) != (b"", WRONG_USAGE) or "columns 1, 2 are all named 'a'" not in result.err:
        yield f"round --csv with two columns of a name: {got!r}, {result}"
    # Tables are read as `ravo check` reads them: delimiter, encoding, names and closing quotes.
    shaped = "text;částka, celkem\nKrálíček, v.o.s.;1,005\nŽluťoučký kůň, příliš;2,345\n"
    for encoding in ("utf-8", "cp1250", "iso8859-2", "cp852"):
        got, result = run("shaped.csv", shaped.encode(encoding), "--column", "ČÁSTKA, celkem")
        if got != shaped.replace("1,005", "1,01").replace("2,345", "2,35").encode(encoding) or result.err:
            yield f"round --csv in {encoding}: {got!r}, {result}"
    got, result = run("koi.csv", "с;х\n1,005;ж\n".encode("koi8-r"), "--column", "с", "--encoding", "koi8-r")
    if got != "с;х\n1,01;ж\n".encode("koi8-r"):
        yield f"round --csv --encoding: {got!r}, {result}"
    got, result = run("wide.csv", "a;b\n1,005;2\n".encode("utf-16"), "--column", "a")
    if got != b"" or result.status != WRONG_USAGE or "convert it first" not in result.err:
        yield f"round --csv of UTF-16: {got!r}, {result}"
    got, result = run("likely.csv", b"a,b c;d\n1.005;2\n1.5;3\n", "--column", "a,b c")
    if got != b"a,b c;d\n1.01;2\n1.50;3\n":
        yield f"round --csv with a comma in a name: {got!r}, {result}"
    many = b"a\n" + b"x\n" * 50
    got, result = run("many.csv", many, "--column", "1")
    if got != many or result.err.count("\n") != 21 or "30 more messages left out" not in result.err:
        yield f"round --csv with many faults: {result}"
