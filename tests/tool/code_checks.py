"""QR codes of payments and invoices that `ravo` makes and reads."""

import random
import re
import shutil
import subprocess
import urllib.parse

from harness import NO, WRONG_USAGE, YES, Row, as_json, differs
from isdoc_checks import FOLDER, sample, without_readers

ACCOUNT = "19-2000145399/0800"
IBAN = "CZ6508000000192000145399"
CODE = f"SPD*1.0*ACC:{IBAN}"

CODE_ROWS = [
    Row(["qr", "--help"], out=("--amount", "--invoice", "Examples:")),
    Row(["qr", ACCOUNT], exact=f"{CODE}*CC:CZK\n"),
    Row(["qr", "CZ65 0800 0000 1920 0014 5399"], exact=f"{CODE}*CC:CZK\n"),
    Row(["qr", f"{IBAN}+GIBACZPX", "--amount", "1 210,50 Kč", "--due", "1. 12. 2026", "--vs", "VS: 2026 000 579", "--ks", "0308", "--ss", "7"],
        exact=f"{CODE}+GIBACZPX*AM:1210.50*CC:CZK*DT:20261201*X-VS:2026000579*X-KS:0308*X-SS:7\n"),
    Row(["qr", ACCOUNT, "--amount", "100", "--message", "za listopad", "--recipient", "Novak"],
        exact=f"{CODE}*AM:100.00*CC:CZK*RN:NOVAK*MSG:ZA LISTOPAD\n"),
    # The program says what it changed.
    Row(["qr", ACCOUNT, "--message", "Nájem – říjen"], exact=f"{CODE}*CC:CZK*MSG:NAJEM - RIJEN\n", err=("--utf8 keeps them",),
        czech=("--utf8 je ponechá",)),
    Row(["qr", ACCOUNT, "--message", "Říjen", "--utf8"], exact=f"{CODE}*CC:CZK*MSG:%C5%98%C3%ADjen\n"),
    Row(["qr", ACCOUNT, "--currency", "EUR"], exact=f"{CODE}*CC:EUR\n", err=("payments in CZK",), czech=("platby v CZK",)),
    Row(["qr", ACCOUNT, "--field", "X-URL=https://example.com/a*b"], exact=f"{CODE}*CC:CZK*X-URL:https://example.com/a%2Ab\n"),
    # The example that the authors of the standard published.
    Row(["qr", "CZ5855000000001265098001", "--amount", "100", "--crc"],
        exact="SPD*1.0*ACC:CZ5855000000001265098001*AM:100.00*CC:CZK*CRC32:AAD80227\n"),
    Row(["qr", "--invoice", "ID=FV1", "DD=20261122", "AM=1210.00", "VII=CZ27082440"], exact="SID*1.0*ID:FV1*DD:20261122*AM:1210.00*VII:CZ27082440\n"),
    # What the payment has too is not said twice.
    Row(["qr", ACCOUNT, "--amount", "1210", "--invoice", "ID=FV1", "DD=20261122", "AM=1210.00", "CC=CZK"],
        exact=f"{CODE}*AM:1210.00*CC:CZK*X-INV:SID%2A1.0%2AID:FV1%2ADD:20261122\n"),
    Row(["qr", ACCOUNT, "--currency", "EUR", "--json"],
        holds=differs({"text": f"{CODE}*CC:EUR", "kind": "payment", "fields": {"ACC": IBAN, "CC": "EUR"},
                       "notes": [{"code": "currency", "text": "banks need not read codes in EUR: the standard is for payments in CZK"}]})),
    Row(["qr", ACCOUNT, "--format", "blocks"], out=("█ ▄▄▄▄▄ █", f"\n{CODE}*CC:CZK\n")),
    Row(["qr", ACCOUNT, "--format", "svg"], out=('viewBox="0 0 37 37"', "M4 4h7v1h-7z")),
    # Refused values.
    Row(["qr"], WRONG_USAGE, err=("give an account, or --invoice",)),
    Row(["qr", "19-2000145398/0800"], WRONG_USAGE, exact="", err=("the account '19-2000145398/0800': wrong: the weighted sum",)),
    Row(["qr", "CZ6508000000192000145398"], WRONG_USAGE, exact="", err=("the check digits do not match",)),
    Row(["qr", f"{IBAN}+GIBA"], WRONG_USAGE, exact="", err=("a BIC has eight or eleven characters",)),
    Row(["qr", ACCOUNT, "--amount", "1.005"], WRONG_USAGE, exact="", err=("--amount '1.005': wrong: an amount has digits and at most two decimals",)),
    Row(["qr", ACCOUNT, "--amount", "12345678"], WRONG_USAGE, exact="", err=("longer or shorter than the standard permits",)),
    Row(["qr", ACCOUNT, "--amount", "12O0"], WRONG_USAGE, exact="", err=("'12O0' is not an amount",)),
    Row(["qr", ACCOUNT, "--amount=-1"], WRONG_USAGE, exact=""),
    Row(["qr", ACCOUNT, "--vs", "20260005791"], WRONG_USAGE, exact="", err=("a variable symbol has at most ten digits",)),
    Row(["qr", ACCOUNT, "--vs", "2026O00579"], WRONG_USAGE, exact="", err=("a variable symbol has nothing but digits",)),
    Row(["qr", ACCOUNT, "--due", "31. 2. 2026"], WRONG_USAGE, exact="", err=("February 2026",)),
    Row(["qr", ACCOUNT, "--message", "m" * 61], WRONG_USAGE, exact="", err=("--message",)),
    Row(["qr", ACCOUNT, "--recipient", "r" * 36], WRONG_USAGE, exact="", err=("--recipient",)),
    Row(["qr", ACCOUNT, "--message", "日本"], WRONG_USAGE, exact="", err=("'日' has no spelling in ASCII",)),
    Row(["qr", ACCOUNT, "--currency", "Kč", "--utf8"], WRONG_USAGE, exact="", err=("a currency has three capital letters",)),
    Row(["qr", ACCOUNT, "--field", "AM=1", "--amount", "1"], WRONG_USAGE, exact="", err=("the code has the key twice",)),
    Row(["qr", ACCOUNT, "--field", "rest"], WRONG_USAGE, exact="", err=("'rest' is not a key and a value",)),
    Row(["qr", ACCOUNT, "--invoice", "ID=1", "DD=20261122", "INI=27082441"], WRONG_USAGE, exact="", err=("INI '27082441': wrong: the check digit",)),
    Row(["qr", ACCOUNT, "--invoice", "ID=1"], WRONG_USAGE, exact="", err=("an invoice needs ID, DD and AM",)),
    Row(["qr", "--invoice", "ID=1", "DD=20261122", "AM=1", "--vs", "1"], WRONG_USAGE, exact="", err=("a payment needs an account",)),
    Row(["qr", ACCOUNT, "--format", "png"], WRONG_USAGE, exact="", err=("give -o",)),
    Row(["qr", ACCOUNT, "-o", "code.bmp"], WRONG_USAGE, exact="", err=("code.bmp: the name tells no format",)),
    Row(["qr", ACCOUNT, "-o", "missing/code.svg"], WRONG_USAGE, exact="", err=("ravo qr: missing/code.svg: cannot be written",)),
    Row(["qr", ACCOUNT, "--invoice"], WRONG_USAGE, exact="", err=("--invoice needs KEY=VALUE, or --isdoc",), czech=("potřebuje KLÍČ=ÚDAJ",)),
    Row(["qr", "--isdoc", "missing.isdoc"], WRONG_USAGE, exact=""),
    Row(["qr", "--isdoc", "missing.isdoc", "--read", CODE], WRONG_USAGE, exact=""),
    # Read back.
    Row(["qr", "--read", f"{CODE}*AM:1.50*MSG:%C5%98*X-INV:SID%2A1.0%2AID:1%2ADD:20261122*"],
        exact=f"ACC\t{IBAN}\nAM\t1.50\nMSG\tŘ\nX-INV/ID\t1\nX-INV/DD\t20261122\n"),
    Row(["qr", "--read", "SID*1.0*ID:1*DD:20261122*AM:5", "--json"],
        holds=differs({"text": "SID*1.0*ID:1*DD:20261122*AM:5", "kind": "invoice", "fields": {"ID": "1", "DD": "20261122", "AM": "5"}})),
    Row(["qr", "--read", f"{CODE[:-1]}8"], NO, exact="", err=("ravo qr: character 15: wrong: the check digits do not match",)),
    Row(["qr", "--read", "SPD*1.0*AM:1", "--json"], NO, err=("character 13",),
        holds=as_json(lambda answer: (answer["reason"], answer["position"]) != ("code.missing", 12) and str(answer))),
    # Containers of invoices; check_archives and others have the files.
    Row(["isdoc", "extract", "--help"], out=("--list", "Examples:"), czech=("obálky",)),
    Row(["isdoc", "extract"], WRONG_USAGE),
    Row(["isdoc", "extract", "missing.isdocx"], WRONG_USAGE, err=("give a folder, or --list",)),
    Row(["isdoc", "extract", "missing.isdocx", "--list"], WRONG_USAGE, exact="", err=("missing.isdocx: cannot be read: there is no such file",)),
    Row(["isdoc", "extract", "missing.isdocx", "folder", "--list"], WRONG_USAGE, exact=""),
    Row(["isdoc", "extract", "missing.isdocx", "folder", "--max-size", "0"], WRONG_USAGE, exact=""),
]


def iban_of(prefix, number, bank):
    digits = f"{bank:04}{prefix:06}{number:010}"
    return f"CZ{98 - int(digits + '123500') % 97:02}{digits}"


def divisible(chance, digits):
    """A number whose weighted sum is divisible by eleven."""
    weights = (6, 3, 7, 9, 10, 5, 8, 4, 2, 1)[10 - digits:]
    while True:
        number = chance.randrange(10 ** (digits - 1), 10**digits)
        if sum(int(digit) * weight for digit, weight in zip(str(number), weights)) % 11 == 0:
            return number


def random_payment(chance):
    """The arguments of a payment, and the text of its code."""
    prefix, number, bank = divisible(chance, 6), divisible(chance, 10), chance.choice((100, 800, 300, 2010))
    crowns, hellers = chance.randrange(10_000_000), chance.randrange(100)
    symbol = chance.randrange(1, 10**10)
    message = "".join(chance.choice("abc ŘŽůé*%+,.:/-€ßЖ") for _ in range(chance.randrange(1, 40))).strip() or "x"
    arguments = [f"{prefix}-{number}/{bank:04}", "--amount", f"{crowns}.{hellers:02}", "--vs", str(symbol), "--utf8", f"--message={message}"]
    encoded = urllib.parse.quote(message, safe=" ,.:/-")
    return arguments, f"SPD*1.0*ACC:{iban_of(prefix, number, bank)}*AM:{crowns}.{hellers:02}*CC:CZK*X-VS:{symbol}*MSG:{encoded}"


def scanned(pictures):
    """What zbar reads in pictures."""
    # Without a bus of the desktop zbar complains about it.
    done = subprocess.run(["zbarimg", "--quiet", "--raw", *map(str, pictures)], capture_output=True, check=False)
    return done.stdout.decode("utf-8").splitlines()


def check_scanned_codes(program):
    """Random payments are drawn, and zbar reads the text of each."""
    if not shutil.which("zbarimg") or not shutil.which("rsvg-convert"):
        yield "zbarimg or rsvg-convert is missing: scripts/setup check installs them"
        return
    chance = random.Random(26)
    payments = [random_payment(chance) for _ in range(6 if program.slow else 200)]
    pictures = []
    for index, (arguments, text) in enumerate(payments):
        drawn = program.folder / f"code{index}.{'svg' if index % 5 == 0 else 'png'}"
        result = program.run(["qr", *arguments, "-o", drawn.name])
        if (result.status, result.out, result.err) != (YES, "", ""):
            yield f"ravo qr {arguments}: {result}"
            return
        if drawn.suffix == ".svg":
            subprocess.run(["rsvg-convert", "--zoom", "8", "-o", drawn.with_suffix(".png"), drawn], check=True)
        pictures.append(drawn.with_suffix(".png"))
    for (arguments, text), read in zip(payments, scanned(pictures), strict=True):
        if read != text:
            yield f"ravo qr {arguments}: zbar reads {read!r}, not {text!r}"
    if scanned([]) != [] or scanned(pictures[:1]) == scanned(pictures[1:2]):
        yield "the scanner reads the same in every picture"


INVOICE_CODE = "SPD*1.0*ACC:CZ5708000000191234500002*AM:2679.00*CC:CZK*DT:20261116*X-VS:20260101*X-KS:0308*RN:PAPIRNA VZOROVA S.R.O.*MSG:20260101"
INVOICE_INSIDE = ("*X-INV:SID%2A1.0%2AID:20260101%2ADD:20261102%2AVII:CZ09900101%2AINI:09900101%2AVIR:CZ09900209%2AINR:09900209"
                  "%2ADUZP:20261102")
SPELLED = ("--utf8 keeps them",)
CASH = "<Payment><PaidAmount>679.00</PaidAmount><PaymentMeansCode>10</PaymentMeansCode></Payment>"
PAYMENT = re.compile("<PaymentMeans>.*</PaymentMeans>", re.DOTALL)

# What is asked beside the invoice, and what the code says instead or what is said of it, in English and in Czech.
ASKED_BESIDE = [
    (["--amount", "5", "--vs", "7", "--ks", "0558", "--ss", "9", "--due", "1.12.2026", "--recipient", "Novak", "--message", "Faktura"],
     "SPD*1.0*ACC:CZ5708000000191234500002*AM:5.00*CC:CZK*DT:20261201*X-VS:7*X-KS:0558*X-SS:9*RN:NOVAK*MSG:FAKTURA"),
    ([ACCOUNT], INVOICE_CODE.replace("CZ5708000000191234500002", IBAN)),
    (["--field", "X-VS=1", "X-ID=2"], INVOICE_CODE.replace("*X-VS:20260101", "").replace("*MSG:20260101", "*MSG:20260101*X-VS:1*X-ID:2")),
    (["--invoice"], INVOICE_CODE + INVOICE_INSIDE),
    (["--invoice", "ID=FV1"], INVOICE_CODE + INVOICE_INSIDE.replace("ID:20260101%2A", "ID:FV1%2A", 1)),
    (["--amount", "5", "--invoice"],
     INVOICE_CODE.replace("2679.00", "5.00") + INVOICE_INSIDE.replace("%2AVII", "%2AAM:2679.00%2AVII")),
]

# What is changed in an invoice, and what is then in the code.
CHANGED_INVOICES = [
    ("<IBAN>CZ5708000000191234500002</IBAN>", "", "", ""),
    ("<ID>19-1234500002</ID>", "<ID>19-1234500002/0800</ID>", "", ""),
    ("<ID>19-1234500002</ID>", "<ID/>", "", ""),
    ("<IBAN>CZ5708000000191234500002", "<IBAN>SK31 1200 0000 1987 4263 7541", "ACC:CZ5708000000191234500002", "ACC:SK3112000000198742637541+GIBACZPX"),
    ("<PayableAmount>2679.00", "<PayableAmount>2679.500000", "AM:2679.00", "AM:2679.50"),
    ("<PaymentDueDate>2026-11-16", "<PaymentDueDate>2026-11-16+01:00", "", ""),
    ("<VariableSymbol>20260101", "<VariableSymbol>", "*X-VS:20260101", ""),
    ("<Name>Papírna Vzorová s.r.o.", "<Name>\n Papírna\nVzorová s.r.o. ", "", ""),
    ("<PaymentMeansCode>42", "<PaymentMeansCode>31", "", ""),
]

# What is changed in an invoice so that there is no code, and what is said.
REFUSED_INVOICES = [
    ("<DocumentType>1", "<DocumentType>2", "faktura.isdoc: a credit note asks for no payment", "dobropis žádnou platbu nežádá"),
    ("<PaymentMeansCode>42", "<PaymentMeansCode>10", "no payment of the document is a transfer to an account; give ACCOUNT",
     "není převodem na účet"),
    ("<PayableAmount>2679.00", "<PayableAmount>0", "there is nothing to pay: the amount is 0.00", "není co platit"),
    ("<PayableAmount>2679.00", "<PayableAmount>-1", "there is nothing to pay: the amount is -1.00", "není co platit"),
    ("<PayableAmount>2679.00", "<PayableAmount>moc", "the amount to pay 'moc' is not a number; give --amount", "není číslo"),
    ("<PayableAmount>2679.00</PayableAmount>", "", "the document has no amount to pay; give --amount", "nemá částku k úhradě"),
    ("<ID>19-1234500002", "<ID>19-1234500003", "faktura.isdoc: the account '19-1234500003/0800': wrong: the weighted sum", ""),
    ("<IBAN>CZ57", "<IBAN>CZ58", "faktura.isdoc: the account 'CZ5808000000191234500002': wrong: the check digits", ""),
    ("<ID>19-1234500002", "<ID>19-2000145399", "account 19-2000145399/0800 and IBAN CZ5708000000191234500002 are two accounts; give ACCOUNT",
     "jsou dva různé účty"),
    ("<VariableSymbol>20260101", "<VariableSymbol>FV1", "faktura.isdoc: VariableSymbol 'FV1': wrong", ""),
    ("<PaymentDueDate>2026-11-16", "<PaymentDueDate>today", "the due date 'today' is not a date; give --due", "není datum"),
    ("<LocalCurrencyCode>CZK", "<LocalCurrencyCode>Kč", "faktura.isdoc: CurrencyCode 'Kc': wrong", ""),
]


def check_invoice_codes(program):
    """Codes of what invoices ask to be paid."""
    if without_readers(program):
        return
    whole = (FOLDER / "domestic.isdoc").read_text(encoding="utf-8")
    file = program.folder / "faktura.isdoc"
    ask = ["qr", "--isdoc", file.name]

    def change(old, new):
        if old not in whole:
            raise AssertionError(old)
        file.write_text(whole.replace(old, new, 1), encoding="utf-8")

    change("", "")
    for arguments, code in ASKED_BESIDE:
        # The options that take several values come last, the account first.
        at = 1 if arguments[0] == ACCOUNT else 3
        yield from program.failures(Row(ask[:at] + arguments + ask[at:], exact=f"{code}\n", err=SPELLED if "VZOROVA" in code else ()))
    yield from program.failures(Row(["qr", "--isdoc", sample("foreign-currency.isdoc")], out=("*AM:265.72*CC:EUR*",), err=("payments in CZK",)))
    yield from program.failures(Row(["qr", "--isdoc", sample("foreign-currency.isdoc"), "--currency", "CZK"], out=("*AM:6464.87*CC:CZK*",), err=SPELLED))
    yield from program.failures(Row(["qr", "--isdoc", sample("foreign-currency.isdoc"), "--currency", "USD"], WRONG_USAGE, exact="",
                                    err=("no amount in USD; give --amount",), czech=("nemá částku v měně USD",)))
    result = program.run(["qr", "--isdoc", "-"], given=file.name)
    if result.out != f"{INVOICE_CODE}\n":
        yield f"qr --isdoc -: {result}"
    for old, new, code, other in CHANGED_INVOICES:
        change(old, new)
        yield from program.failures(Row(ask, exact=f"{INVOICE_CODE.replace(code, other)}\n", err=SPELLED))
    for old, new, message, czech in REFUSED_INVOICES:
        change(old, new)
        yield from program.failures(Row(ask, WRONG_USAGE, exact="", err=(message,), czech=(czech,)))
    yield from check_payments_of_invoices(program, file, whole)
    file.unlink()


def check_payments_of_invoices(program, file, whole):
    """Invoices with no payment or several, and with names that a code has no room for."""
    ask = ["qr", "--isdoc", file.name]
    file.write_text(PAYMENT.sub("", whole), encoding="utf-8")
    yield from program.failures(Row(ask, WRONG_USAGE, exact="", err=("the document asks for no payment; give ACCOUNT",), czech=("žádnou platbu nežádá",)))
    yield from program.failures(Row(["qr", ACCOUNT, *ask[1:]], out=("*AM:2679.00*CC:CZK*RN:",), err=SPELLED))
    several = whole.replace("<PaymentMeans>", f"<PaymentMeans>{CASH}", 1).replace("<PaidAmount>2679.00", "<PaidAmount>2000.00", 1)
    file.write_text(several, encoding="utf-8")
    yield from program.failures(Row(ask, exact=INVOICE_CODE.replace("2679", "2000") + "\n",
                                    err=("the document has 2 payments; this is the first transfer, of 2000.00",), czech=("plateb v dokladu: 2",)))
    file.write_text(several.replace("<LocalCurrencyCode>", "<ForeignCurrencyCode>EUR</ForeignCurrencyCode><LocalCurrencyCode>"), encoding="utf-8")
    yield from program.failures(Row(ask, WRONG_USAGE, exact="", err=("several payments and two currencies; give --amount",), czech=("dvě měny",)))
    file.write_text(whole.replace("Papírna Vzorová s.r.o.", "Ž" * 34 + " společnost"), encoding="utf-8")
    yield from program.failures(Row(ask, out=(f"*RN:{'Z' * 34}*MSG:",), err=("Name is shortened to 35 characters: ZZZ",), czech=("zkráceno na 35 znaků",)))
    yield from program.failures(Row([*ask, "--utf8"], out=(f"*RN:{'%C5%BD' * 34}*MSG:",), err=("shortened to 35",)))


CODE_CHECKS = (check_scanned_codes, check_invoice_codes)
