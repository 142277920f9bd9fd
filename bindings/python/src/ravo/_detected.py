"""What is found out about the encoding of bytes."""
from __future__ import annotations

from typing import NamedTuple

from . import _ravo
from .records import DetectFlags, EncodingInfo, Evidence

ENOUGH = 256 * 1024


class Detected(NamedTuple):
    """The encoding that bytes seem to have: true if there is no doubt."""

    encoding: EncodingInfo  # the most likely one
    evidence: Evidence  # what it rests on
    candidates: tuple[EncodingInfo, ...]  # those that cannot be told apart, from the most likely one on
    is_sure: bool  # there is no doubt

    def __bool__(self) -> bool:
        return self.is_sure


def detected(data: bytes | bytearray | memoryview, mac: bool) -> Detected:
    view = memoryview(data).cast("B")[:ENOUGH]
    flags = DetectFlags.MAC if mac else DetectFlags.PLAIN
    found = _ravo.encoding_detect(view, flags)
    candidates = tuple(_ravo.encoding_at(_ravo.encoding_candidate_at(view, flags, index)) for index in range(found.candidates))
    return Detected(_ravo.encoding_at(found.encoding), found.evidence, candidates, found.is_sure)
