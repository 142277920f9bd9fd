"""What `ravo isdoc` says of invoices: the samples, and what is made of them by a change."""

import json

from command_rows import SAMPLES
from harness import NO, WRONG_USAGE, Row, as_json, lines, without

FOLDER = SAMPLES / "isdoc"


def sample(name):
    return str(FOLDER / name)


def without_readers(program):
    """Whether the program was built without the library that reads invoices."""
    return "built without expat" in program.run(["isdoc", "check", "--help"]).out


ISDOC_ROWS = [
    # Wrong input first.
    Row(["isdoc"], WRONG_USAGE, exact="", err=("ravo isdoc:",)),
    Row(["isdoc", "check"], WRONG_USAGE, exact="", err=("FILE",)),
    Row(["isdoc", "check", "chybí.isdoc"], WRONG_USAGE, out=("0 invoices",), err=("chybí.isdoc: cannot be read: there is no such file",)),
    Row(["isdoc", "show", "chybí.isdoc"], WRONG_USAGE, exact="", err=("chybí.isdoc: cannot be read: there is no such file",)),
    Row(["isdoc", "check", str(SAMPLES / "ledger.csv")], WRONG_USAGE, err=("ledger.csv:1:1: ",)),
    Row(["isdoc", "show", str(SAMPLES / "xml" / "feed.xml")], WRONG_USAGE, exact="",
        err=("feed.xml: is no ISDOC document: its root is 'rss'",), czech=("není dokument ISDOC: kořenový prvek je „rss“",)),
    Row(["isdoc", "csv", "--lines", "--recapitulation", sample("domestic.isdoc")], WRONG_USAGE, exact="", err=("--lines",)),
    # Documents without faults.
    Row(["isdoc", "check", "--help"], out=("--strict", "--json")),
    Row(["isdoc", "check", sample("domestic.isdoc")], exact="one invoice, with errors: 0, with notes alone: 0\n",
        czech=("jedna faktura, s chybami: 0, jen s upozorněními: 0",)),
    Row(["isdoc", "check", "--json", sample("domestic.isdoc")], exact=""),
    Row(["isdoc", "check", "--json", sample("mistakes.isdoc"), sample("domestic.isdoc")], NO, silent=True, holds=lines(7)),
    Row(["isdoc", "show", sample("domestic.isdoc")],
        out=("Invoice 20260101\n", "supplier\tPapírna Vzorová s.r.o., Smyšlená 12/3, 190 00 Vzorov, CZ\n",
             "1\tKancelářský papír A4, 500 listů\t10 ks\t89.90\t21 %\t899.00\t1087.79\n", "21 %\t1859.00\t390.39\t2249.39\ttax from the base\n",
             "to pay\t2679.00 CZK\n", "account\t19-1234500002/0800\n", "variable symbol\t20260101\n"),
        czech=("Faktura – daňový doklad 20260101\n", "dodavatel\tPapírna", "k úhradě\t2679.00 CZK\n", "daň ze základu")),
    Row(["isdoc", "show", sample("receipt.isdoc")], out=("Simplified tax document ", "147.00\ttax from the amount with tax\n", " in cash\n")),
    Row(["isdoc", "show", sample("references.isdoc")], out=("0 %, reverse charge\t", "\twithout tax\n")),
    Row(["isdoc", "show", "--json", sample("domestic.isdoc")],
        holds=as_json(lambda all: (all["supplier"]["ico"], all["totals"]["payable"], all["recapitulation"][1]["way"], len(all["lines"]),
                                   all["payments"][0]["vs"]) != ("09900101", "2679.00", "base", 3, "20260101") and f"{all}")),
    Row(["isdoc", "csv", sample("domestic.isdoc")], holds=lines(4),
        out=("file;document;type;issued;tax_point;supplier_ico;", ";20260101;1;2026-11-02;2026-11-02;09900101;CZ09900101;",
             ";2;Rohlík tukový;120;ks;3.20;12;false;384.00;46.08;430.08\n")),
    Row(["isdoc", "csv", "--recapitulation", sample("taxed-deposits.isdoc")], holds=lines(3),
        out=(";rate;reverse_charge;base;tax;total;claimed_base;", ";12;false;7200.00;864.00;8064.00;2000.00;240.00;2240.00;5200.00;624.00;5824.00\n")),
    Row(["isdoc", "csv", "--json", sample("receipt.isdoc")], holds=lines(2), out=('"description":"Blok linkovaný A5"', '"base":"121.49"')),
    Row(["isdoc", "csv", sample("receipt.isdoc")], out=(";;;;CZK;1;Blok",)),
]

# What is changed in a sample, and what is said of it in English and in Czech.
FAULTS = [
    ("<TaxAmount>46.08", "<TaxAmount>46.18", NO,
     ("vadná.isdoc:149:7: error: sum.tax: no lawful way gives the tax of the rate (TaxAmount is 46.18, expected 46.08)\n",
      "one invoice, with errors: 1, with notes alone: 0\n"),
     ("chyba: sum.tax: daň v sazbě nevychází žádným dovoleným způsobem (TaxAmount je 46.18, má být 46.08)\n",)),
    ("<ID>09900101", "<ID>09900102", NO,
     ("error: id.ico: the company number is wrong: the check digit does not match (ID is 09900102)\n",),
     ("chyba: id.ico: IČO není správně: ",)),
    ("<BankCode>0800", "<BankCode>0801", NO, ("note: id.bank: the built-in list does not have the bank code (BankCode is 0801)\n",), ()),
    ("<PaymentDueDate>2026-11-16", "<PaymentDueDate>2026-11-01", 0,
     ("note: date.due: ", "one invoice, with errors: 0, with notes alone: 1\n"), ("upozornění: date.due: splatnost je před dnem vystavení",)),
    ("<Description>Doprava a vykládka", "<Description>=1+1;&quot;x&quot;\n\x7f", 0, ("one invoice",), ()),
]


def check_invoice_faults(program):
    """A fault is found at its place; a note alone is no answer no, but with --strict."""
    if without_readers(program):
        return
    whole = (FOLDER / "domestic.isdoc").read_text(encoding="utf-8")
    file = program.folder / "vadná.isdoc"
    for old, new, status, out, czech in FAULTS:
        file.write_text(whole.replace(old, new, 1), encoding="utf-8")
        yield from program.failures(Row(["isdoc", "check", file.name], status, silent=True, out=out, czech=czech))
    yield from program.failures(Row(["isdoc", "csv", file.name], out=(';"=1+1;""x""\n\x7f";',)))
    file.write_text(whole.replace("<PaymentDueDate>2026-11-16", "<PaymentDueDate>2026-11-01", 1), encoding="utf-8")
    yield from program.failures(Row(["isdoc", "check", "--strict", file.name], NO, silent=True, out=("note: ",)))
    wanted = {"severity": "note", "code": "date.due", "element": "PaymentDueDate", "found": "2026-11-01", "expected": "2026-11-02"}
    yield from program.failures(Row(["isdoc", "check", "--json", file.name],
                                    holds=as_json(lambda all: {key: all[key] for key in wanted} != wanted and f"{all}")))
    file.unlink()


def check_invoice_encodings(program):
    """An invoice in Windows-1250 or UTF-16, and one on standard input; what is broken, old or a container is named."""
    if without_readers(program):
        return
    whole = (FOLDER / "domestic.isdoc").read_text(encoding="utf-8")
    file = program.folder / "jiná.isdoc"
    for name, declared in (("windows-1250", "windows-1250"), ("utf-16", "UTF-16"), ("utf-8-sig", "UTF-8")):
        file.write_text(whole.replace('encoding="UTF-8"', f'encoding="{declared}"'), encoding=name, newline="\n")
        yield from program.failures(Row(["isdoc", "show", file.name], out=("Papírna Vzorová", "Rohlík tukový")))
        yield from program.failures(Row(["isdoc", "check", file.name], out=("one invoice, with errors: 0",)))
    result = program.run(["isdoc", "show", "-"], given=file.name)
    if "Rohlík tukový" not in result.out:
        yield f"isdoc show -: {result}"
    for content, message in (
        (b"PK\3\4", "is an archive or a PDF"), (b"%PDF-1.7", "is an archive or a PDF"), (b"", "jin\u00e1.isdoc:1:1: "),
        (whole.replace("</Invoice>", "").encode(), ":"), (b"\xff\xfe\x00\xd8", "1:1: "),
        (b'<Invoice xmlns="http://isdoc.cz/namespace/invoice" version="5.2"/>', "is ISDOC 5.2; this program knows ISDOC 6"),
        (b'<Invoice xmlns="http://isdoc.cz/namespace/2013" version="7.0"/>', "is ISDOC 7.0; this program knows ISDOC 6"),
    ):
        file.write_bytes(content)
        for command in ("check", "show", "csv"):
            yield from program.failures(Row(["isdoc", command, file.name], WRONG_USAGE, err=(message,)))
    file.unlink()


def check_invoice_folders(program):
    """The invoices of a folder in the order of their names, with what is no invoice counted."""
    if without_readers(program):
        return
    whole = (FOLDER / "domestic.isdoc").read_bytes()
    folder = program.folder / "faktury"
    (folder / "2026").mkdir(parents=True)
    count = 40 if program.slow else 200
    for i in range(count):
        (folder / "2026" / f"{i:04}.isdoc").write_bytes(whole.replace(b"<ID>09900101", b"<ID>09900102", 1) if i % 10 == 0 else whole)
    (folder / "a.xml").write_bytes(whole)
    (folder / "b.xml").write_bytes(b"<rss/>")
    (folder / "poznámky.txt").write_bytes(b"")
    result = program.run(["isdoc", "check", folder.name])
    found = [line.replace("\\", "/").split(":")[0] for line in result.out.splitlines()[:-1]]
    if found != [f"faktury/2026/{i:04}.isdoc" for i in range(0, count, 10)] or result.status != NO or result.err:
        yield f"isdoc check FOLDER: {result}"
    if not result.out.endswith(f"\n{count + 1} invoices, with errors: {count // 10}, with notes alone: 0, other files: 2\n"):
        yield f"isdoc check FOLDER: {result.out[-200:]}"
    rows = [json.loads(line) for line in program.run(["isdoc", "csv", "--json", folder.name]).out.splitlines()]
    if len(rows) != 3 * (count + 1) or [row["file"] for row in rows] != sorted(row["file"] for row in rows):
        yield f"isdoc csv FOLDER: {len(rows)} rows"
    (folder / "c.isdoc").write_bytes(b"<rss/>")
    yield from program.failures(Row(["isdoc", "check", folder.name], WRONG_USAGE, out=("error: id.ico",), err=("c.isdoc: is no ISDOC document",)))
    (folder / "prázdná").mkdir()
    yield from program.failures(Row(["isdoc", "check", "faktury/prázdná"], exact="0 invoices, with errors: 0, with notes alone: 0\n",
                                    holds=without("other")))


ISDOC_CHECKS = (check_invoice_faults, check_invoice_encodings, check_invoice_folders)
