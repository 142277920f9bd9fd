#!/usr/bin/env python3
"""Runs the command-line program and checks exit status, standard output and standard error.

usage: tool_test.py [--self-test] [--session PROGRAM] -- COMMAND...
  COMMAND             the program, with an emulator before it if needed
  --session PROGRAM   runs most command lines in a process of this program

Exits 77 if the emulator reports that this machine cannot run the program.
"""

import pathlib
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

from code_checks import CODE_CHECKS, CODE_ROWS
from command_rows import ROWS
from container_checks import CONTAINER_CHECKS
from convert_checks import CONVERT_CHECKS
from czech_checks import CZECH_ROWS, check_bank_lists
from date_checks import check_dates
from document_checks import (check_forms, check_xml, check_xml_edits, check_xml_encodings, check_xml_samples, check_xml_sizes,
                             check_xml_targets, check_xml_unreadable)
from file_checks import (check_colours, check_conversions, check_full_device, check_pipes, check_report_file,
                         check_report_json, check_sums, check_unreadable)
from harness import NO, SKIPPED, YES, Program, Row, differs
from isdoc_checks import ISDOC_CHECKS, ISDOC_ROWS, without_readers
from lossless_checks import check_lossless
from long_work_checks import check_interruption, check_progress, check_streaming
from output_checks import OUTPUT_CHECKS
from round_checks import check_rounded_columns, check_rounding, check_suite_limits, check_vat_rules
from sort_checks import check_natural_order, check_sorted_encodings, check_sorted_files
from survival_checks import check_random_survival, check_survival
from table_checks import (check_damaged_tables, check_full_output, check_large_tables, check_long_values, check_quoted_tables,
                          check_split_tables, check_table_encodings, check_table_names, check_terminal_tables)
from value_checks import check_answers_in_json, check_memory_of_answers, check_values

# Rows that the harness itself must reject, each for the named reason.
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

CHECKS = (
    check_report_json,
    check_report_file,
    check_sums,
    check_progress,
    check_conversions,
    *CONVERT_CHECKS,
    check_interruption,
    check_streaming,
    check_full_device,
    check_pipes,
    check_unreadable,
    check_colours,
    check_damaged_tables,
    check_table_names,
    check_table_encodings,
    check_long_values,
    check_full_output,
    check_quoted_tables,
    check_split_tables,
    check_large_tables,
    check_terminal_tables,
    check_sorted_files,
    check_bank_lists,
    *ISDOC_CHECKS,
    check_natural_order,
    check_sorted_encodings,
    *OUTPUT_CHECKS,
    *CODE_CHECKS,
    *CONTAINER_CHECKS,
    check_xml,
    check_xml_edits,
    check_xml_targets,
    check_xml_sizes,
    check_xml_encodings,
    check_xml_unreadable,
    check_xml_samples,
    check_forms,
    check_lossless,
    check_survival,
    check_random_survival,
    check_values,
    check_answers_in_json,
    check_memory_of_answers,
    check_dates,
    check_rounding,
    check_vat_rules,
    check_suite_limits,
    check_rounded_columns,
)


def tested(program):
    # An emulator mostly waits for its servers.
    with ThreadPoolExecutor(max_workers=4 if program.emulated else 2) as pool:
        for failures in pool.map(program.failures, ROWS + CZECH_ROWS + CODE_ROWS + ([] if without_readers(program) else ISDOC_ROWS)):
            yield from failures
    for check in CHECKS:
        yield from check(program)


def self_tested(program):
    for row, reason in MUST_FAIL:
        if not any(reason in failure for failure in program.failures(row)):
            yield f"ravo {' '.join(row.arguments)}: the harness does not see '{reason}'"


def main(arguments):
    options, command = arguments[: arguments.index("--")], arguments[arguments.index("--") + 1 :]
    session = options[options.index("--session") + 1] if "--session" in options else None
    # Inside the build tree: a program under an emulator may have access to nothing else.
    with tempfile.TemporaryDirectory(dir=".") as folder:
        program = Program(command, pathlib.Path(folder).resolve(), session)
        if program.run(["--version"], out=subprocess.DEVNULL).status == SKIPPED:
            sys.exit(SKIPPED)
        try:
            failures = list(self_tested(program) if "--self-test" in options else tested(program))
        finally:
            program.close()
    for failure in failures:
        print(failure)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main(sys.argv[1:])
