"""The package as such: documents, types, life in processes, what it needs."""
import doctest
import importlib
import inspect
import os
import pathlib
import pickle
import pkgutil
import re
import runpy
import subprocess
import sys
import zlib
from types import ModuleType
from typing import Any

import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo import _ravo, banks, captions, checksums, suite, tables, text

SELDOM = {"ravo.dask"}  # needs a package of its own
MODULES = [importlib.import_module("ravo." + module.name) for module in pkgutil.iter_modules(ravo.__path__)
           if module.name != "_ravo" and "ravo." + module.name not in SELDOM] + [ravo]


@pytest.mark.parametrize("module", MODULES, ids=str)
def test_examples(module: ModuleType) -> None:
    assert doctest.testmod(module).failed == 0


@pytest.mark.parametrize("page", ["bindings/python/README.md", "docs/python.md"])
def test_examples_of_pages(root: pathlib.Path, page: str, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.chdir(root)
    found = doctest.testfile(str(root / page), module_relative=False, encoding="utf-8")
    assert found.attempted > 5 and found.failed == 0


@pytest.mark.parametrize("module", MODULES, ids=str)
def test_every_public_function_is_described_and_shown(module: ModuleType) -> None:
    for name in getattr(module, "__all__", []):
        thing = getattr(module, name)
        assert inspect.getdoc(thing), name
        if inspect.isfunction(thing) and thing.__module__ == module.__name__:
            shown = [thing.__doc__ or "", module.__doc__ or ""]
            assert any(">>>" in words and f"{name}(" in words for words in shown), f"{module.__name__}.{name} has no example"


def test_every_function_of_the_header_is_there(root: pathlib.Path) -> None:
    sys.path.insert(0, str(root / "tools" / "generate"))
    try:
        interface = importlib.import_module("python_interface")
        header = importlib.import_module("c_interface")
        names = {node.name for node in header.functions(header.parsed())}
        other = {"ravo_check": "check_of", "ravo_kind_name": "kinds", "ravo_kind_of": "check_of", "ravo_payment_find": "payments", "ravo_crc32": "crc32",
                 "ravo_day_of": "", "ravo_date_of": "", "ravo_bank_find": "bank_list", "ravo_vat_recapitulate": "vat_recapitulate", "ravo_convert": "convert",
                 "ravo_document_set": "document_set", "ravo_document_close": "document_open", "ravo_document_write": "document_save",
                 "ravo_suite_tree_close": "suite_tree_open", "ravo_suite_tokens": "suite_tokens", "ravo_random_close": "random_open",
                 "ravo_random_open_array": "random_open_array", "ravo_machine_report": "machine_report"}
        other |= {name: "column_values" for name in names if name.endswith("_column")}
        other |= {"ravo_check_column": "check_arrow", "ravo_column_of_arrow": "check_arrow", "ravo_arrow_stream": "stream_next"}
        groups = {"ravo_bank_": "bank_list", "ravo_converter_": "Converter", "ravo_spayd_": "spayd", "ravo_sid_": "sid",
                  "ravo_payment_code_": "payment_code", "ravo_invoice_": "invoice"}
        for name in names - {one.name for one in interface.Interface().functions}:
            mine = other.get(name, next((group for prefix, group in groups.items() if name.startswith(prefix)), None))
            assert mine is not None, f"{name} has no function in Python"
            assert not mine or hasattr(_ravo, mine)
    finally:
        sys.path.pop(0)


def test_every_call_has_a_home_or_a_reason(root: pathlib.Path) -> None:
    """What no module of the package calls stands in the README, beside what Python has for it."""
    sources = "".join(path.read_text() for path in (root / "bindings" / "python" / "src" / "ravo").glob("*.py"))
    left_out = (root / "bindings" / "python" / "README.md").read_text().partition("## What is left out")[2]
    told = set(re.findall(r"`ravo_(\w+)`", left_out))
    calls = {name for name, call in vars(_ravo).items() if callable(call) and not name.startswith("__") and not isinstance(call, type)}
    called = {name for name in calls if re.search(rf"_ravo\.{name}\b|from \._ravo import .*\b{name}\b", sources)}
    assert calls - called == told & calls
    assert not told & called, "what is left out is not called"


def test_generated_files_are_those_of_the_header(root: pathlib.Path) -> None:
    subprocess.run([sys.executable, "-B", str(root / "tools" / "generate" / "python_interface.py"), "--check"], check=True)


def test_a_source_build_runs_as_many_compilers_as_there_are_processors(root: pathlib.Path, monkeypatch: pytest.MonkeyPatch, tmp_path: pathlib.Path) -> None:
    setuptools = pytest.importorskip("setuptools")
    made: dict[str, Any] = {}
    commands: list[list[Any]] = []
    monkeypatch.setattr(setuptools, "setup", lambda **more: made.update(more))
    monkeypatch.setattr(subprocess, "run", lambda command, **more: commands.append(command))
    runpy.run_path(str(root / "bindings" / "python" / "setup.py"))
    build = made["cmdclass"]["build_ext"](setuptools.Distribution())
    build.build_temp = str(tmp_path)
    for jobs, wanted in (("", len(os.sched_getaffinity(0))), ("3", 3)):
        monkeypatch.setenv("RAVO_JOBS", jobs)
        build.built_by_cmake()
        assert commands[-1][-2:] == ["--parallel", str(wanted)]


def test_import_needs_no_frames() -> None:
    words = "import ravo, sys; print(sorted({'numpy', 'pandas', 'dask', 'pyarrow'} & set(sys.modules)))"
    assert subprocess.run([sys.executable, "-c", words], capture_output=True, text=True, check=True).stdout == "[]\n"


def test_import_is_light() -> None:
    """What takes long to import comes with the first use: -S leaves out what the machine's own site imports."""
    words = "import ravo, sys; print(sorted({'collections', 'datetime', 'decimal', 'enum', 're', 'typing', 'ravo.check', 'ravo.records'} & set(sys.modules)))"
    assert subprocess.run([sys.executable, "-S", "-c", words], capture_output=True, text=True, check=True).stdout == "[]\n"
    words = "import ravo; print(ravo.check.ico('27074358').value, b'\\xf8'.decode('ravo_windows_1250') == chr(0x159), ravo.round_money('1.005'), 'vat' in dir(ravo))"
    assert subprocess.run([sys.executable, "-S", "-c", words], capture_output=True, text=True, check=True).stdout == "27074358 True 1.01 True\n"
    with pytest.raises(AttributeError, match="no attribute 'nothing'"):
        getattr(ravo, "nothing")


def test_types_are_imported_once_by_many_threads() -> None:
    words = """
import threading, ravo
start, found = threading.Barrier(8), []
def first():
    start.wait()
    found.append((ravo.tables.find(71710), ravo.vat.compute("100", 21)))
threads = [threading.Thread(target=first) for _ in range(8)]
for thread in threads: thread.start()
for thread in threads: thread.join()
print(len(found), len({(type(table), type(amounts), type(amounts.tax)) for table, amounts in found}))
"""
    assert subprocess.run([sys.executable, "-c", words], capture_output=True, text=True, check=True).stdout == "8 1\n"


def test_a_second_module_has_a_state_of_its_own() -> None:
    spec = importlib.util.find_spec("ravo._ravo")
    assert spec is not None and spec.loader is not None
    other = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(other)
    assert other is not _ravo and other.Check is not _ravo.Check
    assert other.check_ico("27074358").value == "27074358"
    del other


@pytest.mark.skipif(not hasattr(os, "fork"), reason="the system has no fork")
def test_a_forked_process_goes_on() -> None:
    child = os.fork()
    if child == 0:
        right = bool(ravo.check.ico("27074358")) and b"\xf8".decode("ravo_windows_1250") == "ř" and banks.find(800).code == 800
        os._exit(0 if right else 1)
    assert os.waitpid(child, 0)[1] == 0


def test_errors_are_values() -> None:
    with pytest.raises(ValueError) as raised:
        ravo.check.respell("ico", "04625782")
    error = pickle.loads(pickle.dumps(raised.value))
    assert isinstance(error, ravo.Error)
    assert (str(error), error.code, error.position) == ("wrong: the check digit does not match", "ico.checksum", 7)


@given(some.binary(max_size=200), some.integers(0, 200))
def test_checksums_are_those_of_zlib(data: bytes, cut: int) -> None:
    assert checksums.crc32(data) == zlib.crc32(data)
    assert checksums.crc32(memoryview(data)[cut:], checksums.crc32(bytearray(data[:cut]))) == zlib.crc32(data)


def test_hashes() -> None:
    assert checksums.suite_hash("Kůň") == checksums.suite_hash("Kůň".encode("utf-16-le"))
    assert checksums.suite_hash("kůň".encode("cp1250"), ignore_case=True) == checksums.suite_hash("KŮŇ".encode("cp1250"), ignore_case=True)
    assert checksums.suite_hash(b"a", initial=1) != checksums.suite_hash(b"a")
    with pytest.raises(ValueError):
        checksums.crc32(b"", -1)
    with pytest.raises(TypeError):
        checksums.crc32("text")  # type: ignore[arg-type]


@given(some.text(max_size=300))
def test_texts(value: str) -> None:
    assert text.url_decode(text.url_encode(value)) == value
    assert text.fold(text.upper(value)) == text.fold(text.upper(text.upper(value)))
    assert len(text.upper(value)) == len(text.lower(value)) == len(value)
    assert text.matches(value, "*")


def test_long_results_are_whole() -> None:
    assert text.upper("ž" * 100_000) == "Ž" * 100_000
    assert suite.document_name("ž" * 500, "1", "2") == "ž" * 500 + "1/2"
    assert suite.address_parts("ž" * 400 + " 12") == ("ž" * 400, "12")
    assert len(ravo.build_info().splitlines()) > 1


def test_lists_of_banks() -> None:
    assert list(banks.BUILT_IN) == sorted(banks.BUILT_IN)
    assert banks.BUILT_IN[100].code == 100 and banks.BUILT_IN.__contains__("0100") and not banks.BUILT_IN.__contains__(None)
    strangers: tuple[int | str, ...] = (9999, "9999", "100", "x")
    for unknown in strangers:
        with pytest.raises(ravo.Error) as raised:
            banks.find(unknown)
        assert raised.value.code == "bank.unknown"
        with pytest.raises(KeyError):
            banks.BUILT_IN[unknown]
    with pytest.raises(ravo.Error) as raised:
        banks.read("kód;název;BIC;A\nž;A;;\n", ravo.days.read("1.1.2026"))
    assert (raised.value.code, raised.value.position) == ("bank.code", 16)
    copied = pickle.loads(pickle.dumps(banks.BUILT_IN))
    assert copied == banks.BUILT_IN and copied.date == banks.BUILT_IN.date
    assert repr(copied).startswith("<BankList of 20")


def test_tables_and_captions() -> None:
    assert tables.name(71710) == tables.find(71710).name
    with pytest.raises(ravo.Error):
        tables.find(1)
    with pytest.raises(ValueError):
        tables.name(2**40)
    assert len(tables.known()) == len(set(tables.known())) > 100
    assert [captions.find(one.name) for one in captions.known()] == captions.known()
    with pytest.raises(ravo.Error):
        captions.find("nothing")
