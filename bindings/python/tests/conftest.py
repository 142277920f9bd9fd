"""What all tests share: the program beside the package, and hypothesis with the same examples in every run."""
import json
import os
import pathlib
import subprocess
from collections.abc import Callable
from typing import Any

import hypothesis
import pytest

hypothesis.settings.register_profile("check", derandomize=True, deadline=None, database=None)
hypothesis.settings.load_profile("check")


@pytest.fixture(scope="session")
def program() -> Callable[..., Any]:
    """Runs the program `ravo` with --json, which may be a row for each finding; RAVO_PROGRAM names it."""
    path = os.environ.get("RAVO_PROGRAM", "")
    if not path:
        pytest.skip("RAVO_PROGRAM is not set")

    def run(*arguments: str, text: str = "", rows: bool = False) -> Any:
        done = subprocess.run([path, *arguments, "--json"], input=text.encode(), capture_output=True, timeout=60,
                              env={**os.environ, "LC_ALL": "C.UTF-8", "RAVO_LANG": "en"})
        assert done.returncode in (0, 1), done.stderr.decode()
        return [json.loads(row) for row in done.stdout.splitlines()] if rows else json.loads(done.stdout)

    return run


@pytest.fixture(scope="session")
def root() -> pathlib.Path:
    """The checkout."""
    return pathlib.Path(__file__).resolve().parents[3]
