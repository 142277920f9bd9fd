"""The support report of this machine."""
from __future__ import annotations

from typing import Union

from . import _ravo
from .records import MachineLayer

Report = dict[str, Union[str, "Report"]]


def report(business: bool = False) -> Report:
    """Returns the suite's support report of this machine: date and time, system, folders, memory, disks, installed files.

    Captions are in Czech, as the suite writes them; a caption has a text, or captions below it. With `business` it is the
    report of the application layer, else that of a client. The report names the computer, its user and folders; it
    changes nothing and sends nothing.

    >>> found = report()
    >>> list(found)
    ['Informace o klientské vrstvě']
    >>> "Operační systém" in found["Informace o klientské vrstvě"]
    True
    """
    return tree_of(_ravo.machine_report(MachineLayer.BUSINESS if business else MachineLayer.CLIENT))


def tree_of(text: str) -> Report:
    """The lines "caption: value" of a text, nested by their tabs. A caption that comes again gets its number: "C: (2)"."""
    open_: list[Report] = [{}]
    last = ""
    for line in text.split("\r\n")[:-1]:
        caption, separator, value = line.lstrip("\t").partition(": ")
        depth = min(len(line) - len(line.lstrip("\t")), len(open_) - (not last))
        del open_[depth + 1:]
        if depth == len(open_):
            open_.append(_below(open_[-1], last))
        last = _new(open_[-1], caption)
        open_[-1][last] = value if separator else {}
    return open_[0]


def _below(entries: Report, caption: str) -> Report:
    """What is below a caption; a value of its own has no caption there."""
    found = entries[caption]
    if isinstance(found, str):
        found = entries[caption] = {"": found}
    return found


def _new(entries: Report, caption: str) -> str:
    number, name = 1, caption
    while name in entries:
        number += 1
        name = f"{caption} ({number})"
    return name
