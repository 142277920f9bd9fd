"""Validation on several machines: the partitions of a frame of Dask are checked where they are.

    >>> import ravo.dask                                                                       # doctest: +SKIP
    >>> ravo.dask.validate(dask.dataframe.read_csv("ledger-*.csv", dtype=str), {"IČO": "ico"})  # doctest: +SKIP
    <Findings: 17 in 5000000 rows>

Dask keeps the partitions, moves what has to be moved, and does again what a lost worker had done.
"""
from __future__ import annotations

from collections.abc import Mapping
from typing import Any

from ._validate import Findings
from ._validate import validate as validate_frame

__all__ = ["validate"]


def merged(parts: list[Any], delayed: Any) -> Any:
    """Sums findings in pairs, so that no worker has more than a few of them."""
    while len(parts) > 1:
        pairs = [delayed(Findings.__add__)(*parts[i:i + 2]) for i in range(0, len(parts) - 1, 2)]
        parts = pairs + parts[len(pairs) * 2:]
    return parts[0]


def validate(frame: Any, rules: Mapping[str, str], *, limit: int = 1000) -> Findings:
    """Returns what ravo.validate() returns for the whole frame of Dask: equal findings, in the order of the partitions.

    The index labels are those of the partitions. A partition passes on `limit` findings at most, and is
    checked by one thread: the workers share the processors.
    """
    from dask.delayed import delayed

    parts = [delayed(validate_frame)(part, dict(rules), limit=limit, threads=1) for part in frame.to_delayed()]
    return merged(parts, delayed).compute()  # type: ignore[no-any-return]
