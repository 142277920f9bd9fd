#!/usr/bin/env python3
"""Writes products and roundings of amounts as Python's decimal arithmetic computes them.

usage: currency_witnesses.py FILE

A line is: value numerator denominator step rounding result, with amounts in ten-thousandths; the result is "overflow" if
it does not fit 64 bits. The same run gives the same lines everywhere.
"""

import decimal
import pathlib
import random
import sys

LEAST, MOST = -(2**63), 2**63 - 1
ROUNDINGS = {"half": decimal.ROUND_HALF_UP, "away": decimal.ROUND_UP, "toward": decimal.ROUND_DOWN}
STEPS = [1, 10, 100, 1000, 5000, 10000, 10**5, 10**6, 10**7, 10**8, 10**12]
RATIOS = [(1, 1), (21, 100), (21, 121), (12, 100), (12, 112), (15, 115), (100, 121), (-21, 100), (7, -3), (0, 9), (253455, 10000),
          (MOST, MOST), (LEAST, 1), (1, LEAST), (10**12, 10**6 + 1), (2**40 + 1, 2**41 - 3)]
decimal.getcontext().prec = 200


def drawn(number):
    """An amount of any length, often one of the ends or close to a half."""
    kind = number.randrange(8)
    if kind == 0:
        return number.choice([0, 1, -1, MOST, MOST - 1, LEAST, LEAST + 1])
    if kind == 1:
        step = number.choice(STEPS)
        return number.randrange(-(10**6), 10**6) * step + step // 2 * number.choice([-1, 1]) + number.randrange(-1, 2)
    if kind == 2:
        return number.choice([LEAST, MOST]) // number.choice(STEPS) * number.choice([1, 1, -1])
    return number.getrandbits(number.randrange(1, 64)) * number.choice([-1, 1])


def result(value, numerator, denominator, step, rounding):
    steps = (decimal.Decimal(value) * numerator / (decimal.Decimal(denominator) * step)).quantize(decimal.Decimal(1), rounding)
    return int(steps) * step


def lines(count):
    number = random.Random(20261122)
    for _ in range(count):
        value, step, name = drawn(number), number.choice(STEPS), number.choice(list(ROUNDINGS))
        numerator, denominator = number.choice(RATIOS) if number.randrange(3) else (drawn(number), drawn(number) or 1)
        fits = all(LEAST <= each <= MOST for each in (value, numerator, denominator))
        if not fits or abs(denominator) * step >= 2**64:
            continue
        found = result(value, numerator, denominator, step, ROUNDINGS[name])
        yield f"{value} {numerator} {denominator} {step} {name} {found if LEAST <= found <= MOST else 'overflow'}"


pathlib.Path(sys.argv[1]).write_text("\n".join(lines(40000)) + "\n", encoding="ascii")
