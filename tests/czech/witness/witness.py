#!/usr/bin/env python3
"""Compares the checks of ravo/czech with those of python3-stdnum over random and mutated values.

usage: witness.py PROGRAM [--count N] [--seed S] [--kind KIND]
(PROGRAM: czech_lines; N: values of each kind, 5000 if not given)

A value on which the two differ must be one of the decided differences below, and each of those must occur: a difference that no
longer exists is an error, too. Exits 77 where the witness is not installed.
"""
import argparse
import collections
import dataclasses
import random
import re
import subprocess
import sys
from collections.abc import Callable

try:
    from stdnum import bic, ean, exceptions, iban, isbn, luhn  # type: ignore[import]
    from stdnum.cz import bankaccount, dic, rc  # type: ignore[import]
    from stdnum.es import ccc  # type: ignore[import]
    from stdnum.iso7064 import mod_97_10  # type: ignore[import]
    from stdnum.no import kontonr  # type: ignore[import]
except ImportError:
    print("python3-stdnum is not installed")
    sys.exit(77)

ALPHABET = "0123456789" * 4 + "ABCXZcx /-."
BANKS = ["0100", "0800", "5500", "9999", "0001"]
Random = random.Random


def digits(rng: Random, count: int) -> str:
    return "".join(rng.choice("0123456789") for _ in range(count))


# What comes from here is right more often than not; mutations make the rest.

def make_rc(rng: Random) -> str:
    month = rng.randint(1, 12) + rng.choice([0, 50, 0, 50, 20, 70, 40, 90])
    start = f"{rng.randint(0, 99):02d}{month:02d}{rng.randint(1, 29):02d}{digits(rng, 3)}"
    divider = rng.choice(["", "/"])
    if rng.random() < 0.2:
        return start[:6] + divider + start[6:]
    return start[:6] + divider + start[6:] + str(int(start) % 11 % 10)


def make_dic(rng: Random) -> str:
    country = rng.choice(["CZ", "CZ", "CZ", "CZ ", "cz", ""])
    form = rng.randrange(3)
    if form == 0:
        start = digits(rng, 7)
        return country + start + str(dic.calc_check_digit_legal(start))
    if form == 1:
        start = rng.choice(["6", "699"]) + digits(rng, 7)
        return country + start[:8] + str(dic.calc_check_digit_special(start[1:8]))
    return country + make_rc(rng)


def weighted(rng: Random, count: int) -> str:
    """Digits whose weighted sum is divisible by eleven."""
    while True:
        number = digits(rng, count)
        if sum((6, 3, 7, 9, 10, 5, 8, 4, 2, 1)[10 - count + i] * int(digit) for i, digit in enumerate(number)) % 11 == 0:
            return number


def make_account(rng: Random) -> str:
    prefix = weighted(rng, rng.randint(2, 6)) + "-" if rng.random() < 0.6 else rng.choice(["", "", "", "-", "0-"])
    number = weighted(rng, rng.randint(2, 10)) if rng.random() < 0.9 else "0" * rng.randint(2, 10)
    return prefix + number + rng.choice(["/", "/", "/", " / "]) + rng.choice(BANKS) + rng.choice(["", "", "", "", "5"])


def make_iban(rng: Random) -> str:
    country = rng.choice(["CZ", "CZ", "SK", "BE", "ES", "NO", "ME", *COUNTRIES])
    own: str = "".join(rng.choice({"n": "0123456789", "a": "ABCXYZ", "c": "019AZ"}[kind]) for kind in COUNTRIES[country])
    if country in ("CZ", "SK") and rng.random() < 0.7:
        own = own[:4] + weighted(rng, 6) + weighted(rng, 10)
    if country == "BE" and rng.random() < 0.7:
        own = own[:10] + f"{int(own[:10]) % 97 or 97:02d}"
    if country == "ME" and rng.random() < 0.7:
        own = own[:16] + mod_97_10.calc_check_digits(own[:16])
    if country == "NO":
        own = rng.choice([own, "0000" + own[4:10] + luhn.calc_check_digit(own[4:10]), own[:10] + kontonr._calc_check_digit(own)])
    if country == "ES" and rng.random() < 0.7:
        own = own[:8] + ccc.calc_check_digits(own) + own[10:]
    check = str(iban.calc_check_digits(country + "00" + own))
    if rng.random() < 0.1:
        check = f"{(int(check) + 97) % 100:02d}" if int(check) < 3 or int(check) > 96 else rng.choice(["00", "01", "99", "A0"])
    if rng.random() < 0.05:
        letters = [f"{letter}{digit}" for letter in "ABCDEFGHIJ" for digit in "0123456789"]
        fitting = [pair for pair in letters if mod_97_10.checksum(own + country + pair) == 1]
        check = rng.choice(fitting or [check])
    text = f"{country}{check}{own}"
    return " ".join(re.findall(".{1,4}", text)) if rng.random() < 0.2 else text


def make_ean(rng: Random) -> str:
    start = digits(rng, rng.choice([7, 11, 12, 13]))
    return start + str(ean.calc_check_digit(start))


def make_isbn(rng: Random) -> str:
    if rng.random() < 0.5:
        start = rng.choice(["978", "979", "9790"]) + digits(rng, 9)
        return start[:12] + str(ean.calc_check_digit(start[:12]))
    start = digits(rng, 9)
    number = start + str(isbn._calc_isbn10_check_digit(start))
    return number[1:] if number[0] == "0" and rng.random() < 0.5 else number


def make_bic(rng: Random) -> str:
    return "".join(rng.choice("ABCKMXZ") for _ in range(6)) + "".join(rng.choice("AX09") for _ in range(rng.choice([2, 5])))


def mutated(value: str, rng: Random) -> str:
    """One to three characters changed, left out, doubled, exchanged, or put in."""
    for _ in range(rng.randint(1, 3)):
        at = rng.randrange(len(value) + 1)
        way = rng.randrange(5)
        if way == 0:
            value = value[:at] + rng.choice(ALPHABET) + value[at + 1:]
        elif way == 1:
            value = value[:at] + value[at + 1:]
        elif way == 2:
            value = value[:at] + value[at:at + 1] + value[at:]
        elif way == 3:
            value = value[:at] + value[at + 1:at + 2] + value[at:at + 1] + value[at + 2:]
        else:
            value = value[:at] + rng.choice(ALPHABET) + value[at:]
    return value


def any_text(rng: Random) -> str:
    return "".join(rng.choice(ALPHABET) for _ in range(rng.randint(0, 26)))


# What the witness knows, in the canonical form of ours.

def account_of(value: str) -> str:
    prefix, number, bank = bankaccount._split(bankaccount.validate(value))
    shown = f"{int(prefix)}-" if int(prefix or 0) else ""
    return f"{shown}{number.lstrip('0').zfill(2)}/{bank}"


def dic_of(value: str) -> str:
    return "CZ" + str(dic.validate(value))


WITNESSES: dict[str, tuple[Callable[[Random], str], Callable[[str], str]]] = {
    "rc": (make_rc, rc.validate),
    "dic": (make_dic, dic_of),
    "account": (make_account, account_of),
    "iban": (make_iban, iban.validate),
    "ean": (make_ean, ean.validate),
    "isbn": (make_isbn, isbn.validate),
    "bic": (make_bic, bic.validate),
}
COUNTRIES = {
    row[0]: "".join(kind * int(count) for count, kind in re.findall(r"(\d+)!([nac])", row[3]["bban"]))
    for row in ((low, low, low, props) for _, low, _, props, _ in iban._ibandb.prefixes)
}


@dataclasses.dataclass
class Case:
    """A value, what we say of it (a code and the canonical form), and the witness's form, or nothing and its error."""
    value: str
    code: str
    ours: str
    theirs: str
    error: str

    @property
    def plain(self) -> str:
        return re.sub(r"[\s/]", "", self.value).upper().removeprefix("CZ")


def only_ours(case: Case) -> bool:
    return case.code == "correct" and not case.theirs


def only_theirs(case: Case, code: str) -> bool:
    return case.code == code and bool(case.theirs)


def birth_month(case: Case) -> int:
    return int(case.plain[2:4])


def misplaced_slash(case: Case) -> bool:
    """The witness drops slashes wherever they stand; ours are taken after the sixth digit of a birth number."""
    text = re.sub(r"\s", "", case.value).upper().removeprefix("CZ")
    return text.count("/") > 1 or text.find("/") not in (-1, 6) or (len(case.plain) == 8 and "/" in text) \
        or "/" in re.sub(r"\s", "", case.value)[:2]


def second_series_of_nine(case: Case) -> bool:
    return len(case.plain) == 9 and (21 <= birth_month(case) <= 32 or 71 <= birth_month(case) <= 82)


def no_such_month(case: Case) -> bool:
    return 41 <= birth_month(case) <= 49 or 91 <= birth_month(case) <= 99


def remainder_ten(case: Case) -> bool:
    return len(case.plain) == 10 and int(case.plain[:9]) % 11 == 10 and case.plain[9] == "0" and rc.get_birth_date(case.plain).year > 1984


def czech_or_slovak(case: Case) -> bool:
    return case.theirs[:2] in ("CZ", "SK")


def compact(case: Case) -> str:
    return re.sub(r"[\s.-]", "", case.value).upper()


# Kind, why it is decided so, and which values it is.
DECIDED: list[tuple[str, str, Callable[[Case], bool]]] = [
    ("rc", "a remainder of ten is right whenever somebody was born: such numbers were given out after 1984 too",
     lambda case: only_ours(case) and remainder_ten(case)),
    ("rc", "months 41 to 49 and 91 to 99 do not exist: the witness takes twenty off twice",
     lambda case: only_theirs(case, "rc.date") and no_such_month(case)),
    ("rc", "twenty is added to the month since 2004, when nine digits were no longer given out",
     lambda case: only_theirs(case, "rc.date") and second_series_of_nine(case)),
    ("rc", "a slash stands after the sixth digit alone",
     lambda case: only_theirs(case, "rc.character") and misplaced_slash(case)),
    ("dic", "CZ is a part of a DIČ",
     lambda case: only_theirs(case, "dic.country") and not re.sub(r"[\s/]", "", case.value).upper().startswith("CZ")),
    ("dic", "a slash stands after the sixth digit of a birth number alone",
     lambda case: case.code in ("dic.character", "dic.country", "dic.length") and bool(case.theirs) and misplaced_slash(case)),
    ("dic", "a remainder of ten, as of birth numbers", lambda case: only_ours(case) and remainder_ten(case)),
    ("dic", "months that do not exist, as of birth numbers", lambda case: only_theirs(case, "dic.date") and no_such_month(case)),
    ("dic", "nine digits with twenty more, as of birth numbers",
     lambda case: only_theirs(case, "dic.date") and second_series_of_nine(case)),
    ("account", "the witness reads no farther than the bank code",
     lambda case: case.code.startswith("account.") and bool(case.theirs) and bool(re.search(r"/[0-9]{4}\s*\S", case.value))),
    ("account", "a hyphen follows a prefix", lambda case: only_theirs(case, "account.prefix_length") and case.value.strip()[0] == "-"),
    ("account", "a number of zeros is none: it has two digits other than zero",
     lambda case: only_theirs(case, "account.zero")),
    ("account", "blanks may divide what people write", lambda case: only_ours(case) and " " in case.value.strip()),
    ("iban", "check digits are 02 to 98; the others leave the same remainder",
     lambda case: only_theirs(case, "iban.checksum") and compact(case)[2:4] in ("00", "01", "99")),
    ("iban", "check digits are digits", lambda case: only_theirs(case, "iban.form") and not compact(case)[2:4].isdigit()),
    ("iban", "the sums of Czech and Slovak accounts are a part of their form",
     lambda case: only_theirs(case, "iban.national") and czech_or_slovak(case)),
    ("iban", "all Norwegian accounts have a check digit by eleven: the witness tries that of post accounts after 0000",
     lambda case: compact(case).startswith("NO") and compact(case)[4:8] == "0000" and case.code in ("iban.national", "correct")),
    ("iban", "form does not ask whether a Belgian bank exists",
     lambda case: only_ours(case) and case.ours.startswith("BE") and case.error == "InvalidComponent"),
    ("isbn", "an ISBN has ten or thirteen characters; those of nine are of the time before it",
     lambda case: case.code in ("isbn.length", "isbn.character") and bool(case.theirs) and len(compact(case)) == 9),
    ("isbn", "979-0 is music", lambda case: only_theirs(case, "isbn.prefix") and compact(case).startswith("9790")),
]


def theirs_of(validate: Callable[[str], str], value: str) -> tuple[str, str]:
    try:
        return str(validate(value)), ""
    except exceptions.ValidationError as error:
        return "", type(error).__name__


def values_of(kind: str, count: int, rng: Random) -> list[str]:
    make = WITNESSES[kind][0]
    ways: list[Callable[[], str]] = [lambda: make(rng), lambda: mutated(make(rng), rng), lambda: mutated(make(rng), rng), lambda: any_text(rng)]
    return [ways[i % len(ways)]() for i in range(count)]


def compare(program: str, kind: str, count: int, rng: Random) -> bool:
    values = values_of(kind, count, rng)
    lines = "".join(f"{kind}\t{value}\n" for value in values)
    answers = subprocess.run([program], input=lines, capture_output=True, text=True, check=True).stdout.splitlines()
    rules = [(reason, holds) for of_kind, reason, holds in DECIDED if of_kind == kind]
    seen: collections.Counter[str] = collections.Counter()
    right = strangers = 0
    for value, answer in zip(values, answers, strict=True):
        code, ours = answer.split("\t")
        case = Case(value, code, ours, *theirs_of(WITNESSES[kind][1], value))
        right += code == "correct"
        if (ours if code == "correct" else "") == case.theirs:
            continue
        reason = next((reason for reason, holds in rules if holds(case)), None)
        if reason:
            seen[reason] += 1
        elif (strangers := strangers + 1) <= 10:
            print(f"  not decided: {case}")
    print(f"{kind}: {count} values, {right} correct in form, {sum(seen.values())} decided differences, {strangers} others")
    for reason, holds in rules:
        print(f"  {seen[reason]:8d}  {reason}")
    return strangers == 0 and all(seen[reason] for reason, _ in rules)


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--count", type=int, default=5000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--kind", choices=WITNESSES)
    arguments = parser.parse_args()
    kinds = [arguments.kind] if arguments.kind else list(WITNESSES)
    good = [compare(arguments.program, kind, arguments.count, random.Random(f"{kind} {arguments.seed}")) for kind in kinds]
    return 0 if all(good) else 1


if __name__ == "__main__":
    sys.exit(main())
