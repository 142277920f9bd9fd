"""Validation on a cluster of two worker processes. RAVO_DASK_ROWS says how many rows the files have together."""
from __future__ import annotations

import os
import pathlib
import random
import signal
import threading
import time
import warnings
from collections.abc import Iterator
from typing import Any

import pandas  # type: ignore[import]
import pytest
import ravo

with warnings.catch_warnings():
    warnings.simplefilter("ignore")
    dask_frames = pytest.importorskip("dask.dataframe")
    distributed = pytest.importorskip("distributed")
    import ravo.dask

pytestmark = pytest.mark.filterwarnings("ignore")

FILES = 20
ROWS = int(os.environ.get("RAVO_DASK_ROWS", "40000")) // FILES
RULES = {"ico": "ico", "vs": ravo.optional("vs")}
LIMIT = 300


@pytest.fixture(scope="module")
def folder(tmp_path_factory: pytest.TempPathFactory) -> pathlib.Path:
    """Files of a ledger with some wrong values; the last line of one of them is broken off."""
    folder = tmp_path_factory.mktemp("ledger")
    numbers = random.Random(20261122)
    for file in range(FILES):
        with open(folder / f"ledger-{file:02}.csv", "w") as out:
            out.write("ico,vs,text\n")
            for _ in range(ROWS):
                wrong = numbers.random()
                out.write(f"{'27074359' if wrong < 0.0005 else '27074358'},{'' if wrong > 0.9 else numbers.randrange(10**9)},row\n")
            if file == 7:
                out.write('270743')
    return folder


@pytest.fixture(scope="module")
def cluster() -> Iterator[Any]:
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True, dashboard_address=None, silence_logs=50) as cluster:
        with distributed.Client(cluster) as client:
            yield client


def frame_of(folder: pathlib.Path) -> Any:
    return dask_frames.read_csv(str(folder / "*.csv"), dtype=str, blocksize=None)


def wanted(folder: pathlib.Path) -> ravo.Findings:
    """What one process finds, file after file, without the code that adds findings."""
    whole = pandas.concat([pandas.read_csv(file, dtype=str) for file in sorted(folder.iterdir())])
    return ravo.validate(whole, RULES, limit=LIMIT)


def check(findings: ravo.Findings, folder: pathlib.Path) -> None:
    assert findings == wanted(folder)
    assert findings.rows == FILES * ROWS + 1
    assert findings.counts["ico"]["ico.length"] == 1


def test_findings_are_those_of_one_process(cluster: Any, folder: pathlib.Path) -> None:
    check(ravo.dask.validate(frame_of(folder), RULES, limit=LIMIT), folder)


def slow_to(folder: pathlib.Path, part: pandas.DataFrame) -> pandas.DataFrame:
    """Waits until a worker is killed, or goes on if it was."""
    (folder.parent / f"pid-{os.getpid()}").touch()
    while not (folder.parent / "killed").exists():
        time.sleep(0.01)
    return part


def test_lost_worker_changes_nothing(cluster: Any, folder: pathlib.Path) -> None:
    frame = frame_of(folder)
    slow = frame.map_partitions(lambda part: slow_to(folder, part), meta=frame._meta)
    found: list[ravo.Findings] = []
    with distributed.Client(cluster.cluster) as client:
        futures = client.submit(lambda: None)
        futures.result()
        work = threading.Thread(target=lambda: found.append(ravo.dask.validate(slow, RULES, limit=LIMIT)))
        work.start()
        while len(pids := [int(file.name.removeprefix("pid-")) for file in folder.parent.glob("pid-*")]) < 2:
            time.sleep(0.01)
        os.kill(pids[0], signal.SIGKILL)
        (folder.parent / "killed").touch()
        work.join()
    check(found[0], folder)


def peak_memory() -> int:
    """The most memory that this process has had, in bytes."""
    status = pathlib.Path("/proc/self/status").read_text()
    return int(status.partition("VmHWM:")[2].split()[0]) * 1024


def test_memory_of_a_worker_is_bounded(cluster: Any, tmp_path: pathlib.Path) -> None:
    """A file of thirty times as many blocks takes no more memory: a worker has a block or two at a time."""
    line, block = "27074358,2026000579,row\n", 1 << 20
    peaks = []
    for blocks in (2, 60):
        file = tmp_path / f"{blocks}.csv"
        file.write_text("ico,vs,text\n" + line * (blocks * block // len(line)))
        frame = dask_frames.read_csv(str(file), dtype=str, blocksize=block)
        assert frame.npartitions >= blocks
        with distributed.Client(cluster.cluster) as client:
            findings = ravo.dask.validate(frame, RULES)
            peaks.append(max(client.run(peak_memory).values()))
        assert (findings.rows, bool(findings)) == (blocks * block // len(line), False)
    # All rows at once take more than 300 MB.
    assert peaks[1] < peaks[0] + 100 * block


def test_empty_partitions_and_limits() -> None:
    frame = dask_frames.from_pandas(pandas.DataFrame({"ico": ["27074359"] * 7, "vs": [None] * 7}), npartitions=7)
    findings = ravo.dask.validate(frame[frame["ico"] != "x"], RULES, limit=2)
    assert ([one.index for one in findings], findings.more, findings.rows) == ([0, 1], 5, 7)
    assert ravo.dask.validate(frame[frame["ico"] == "x"], RULES) == ravo.Findings()
