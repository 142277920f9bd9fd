#!/usr/bin/env python3
"""A real PDF filler fills a form from the table of the samples; the form is read back and rendered.

usage: form_test.py RAVO_COMMAND...
"""

import csv
import io
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
TABLE = ROOT / "samples" / "form.csv"
FONT = pathlib.Path("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")
DOTS_PER_POINT = 2
ROW_HEIGHT = 36
PAGE_HEIGHT = 842
LEFT, WIDTH, HEIGHT = 200, 300, 24


def run(command, **options):
    done = subprocess.run([str(part) for part in command], capture_output=True, **options)
    if done.returncode != 0:
        raise SystemExit(f"{command[0]}: exit status {done.returncode}\n{done.stderr.decode(errors='replace')}")
    return done.stdout


def bottom(row):
    return PAGE_HEIGHT - (row + 2) * ROW_HEIGHT


def make_form(rows):
    """A form as a form designer makes it: a text field for each text, a box with the state 1 or the choices 1 to 4
    for each number."""
    from reportlab.pdfgen import canvas  # type: ignore[import]

    made = io.BytesIO()
    page = canvas.Canvas(made, pagesize=(595, PAGE_HEIGHT), pageCompression=0)
    for number, row in enumerate(rows):
        page.drawString(40, bottom(number) + 6, row["field"])
        at = {"x": LEFT, "y": bottom(number), "borderStyle": "solid", "borderWidth": 0}
        if row["kind"] != "number":
            page.acroForm.textfield(name=row["field"], width=WIDTH, height=HEIGHT, maxlen=200, **at)
        elif row["field"] == "Ctvrtleti":
            for choice in range(1, 5):
                at["x"] = LEFT + choice * 40
                page.acroForm.radio(name=row["field"], value=str(choice), selected=False, size=HEIGHT, **at)
        else:
            page.acroForm.checkbox(name=row["field"], size=HEIGHT, **at)
    page.save()
    # The designer calls the state of a ticked box "Yes"; the suite's forms number their states. The length
    # stays, and with it the offsets in the file.
    return made.getvalue().replace(b"/Yes", b"/1  ")


def fields_of(pdf):
    """The values of the fields, as the filler reads them."""
    text = run(["pdftk", pdf, "dump_data_fields_utf8"]).decode()
    values = {}
    for block in text.split("---"):
        name = re.search(r"^FieldName: (.*)$", block, re.M)
        value = re.search(r"^FieldValue: (.*)$", block, re.M)
        if name:
            values[name[1]] = value[1] if value else ""
    return values


def drawn_rows(pdf, folder, count):
    """The number of dark dots in each row of the form."""
    run(["pdftoppm", "-r", 72 * DOTS_PER_POINT, "-gray", "-singlefile", pdf, folder / "page"])
    image = (folder / "page.pgm").read_bytes()
    header = re.match(rb"P5\s+(\d+)\s+(\d+)\s+255\s", image)
    assert header, image[:20]
    width, height = int(header[1]), int(header[2])
    dots = image[header.end():]
    result = []
    for row in range(count):
        top = height - (bottom(row) + HEIGHT) * DOTS_PER_POINT
        lines = range(top + 4, top + HEIGHT * DOTS_PER_POINT - 4)
        left, right = LEFT * DOTS_PER_POINT + 4, (LEFT + WIDTH) * DOTS_PER_POINT - 4
        result.append(sum(dot < 100 for line in lines for dot in dots[line * width + left:line * width + right]))
    return result


def text_in(pdf):
    return run(["pdftotext", "-layout", pdf, "-"]).decode()


def main():
    ravo = sys.argv[1:]
    with open(TABLE, encoding="utf-8", newline="") as file:
        rows = list(csv.DictReader(file))
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        form, data, filled = folder / "form.pdf", folder / "form.fdf", folder / "filled.pdf"
        form.write_bytes(make_form(rows))
        run([*ravo, "form", TABLE, "-o", data])
        empty = drawn_rows(form, folder, len(rows))
        run(["pdftk", form, "fill_form", data, "output", filled, "replacement_font", FONT])
        values = fields_of(filled)
        drawn = drawn_rows(filled, folder, len(rows))
        text = text_in(filled)
    failures = []
    for number, row in enumerate(rows):
        if values.get(row["field"]) != row["value"]:
            failures.append(f"{row['field']} is '{values.get(row['field'])}' and not '{row['value']}'")
        changed = drawn[number] != empty[number]
        if changed != (row["value"] != "0"):
            failures.append(f"{row['field']} is drawn with {drawn[number]} dark dots, empty with {empty[number]}")
        if row["kind"] != "number" and row["value"] not in text:
            failures.append(f"'{row['value']}' cannot be read on the page")
    if failures:
        raise SystemExit("\n".join(failures))


if __name__ == "__main__":
    main()
