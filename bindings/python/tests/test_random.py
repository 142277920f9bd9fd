"""Random numbers: those of other generators of the same kind with the same seed."""
import pickle
import random

import numpy
import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo.random import Random

SEEDS = some.integers(0, 2**32 - 1)


@given(SEEDS)
def test_a_number_seeds_as_in_numpy(seed: int) -> None:
    witness, generator = numpy.random.RandomState(seed), Random(seed)
    assert [generator.random() for _ in range(5)] == list(witness.random_sample(5))
    assert [generator.int32() for _ in range(5)] == list(witness.randint(0, 2**32, 5, dtype=numpy.uint32))


@given(some.lists(SEEDS, min_size=1, max_size=4))
def test_keys_seed_as_in_python(keys: list[int]) -> None:
    keys[-1] = keys[-1] or 1
    witness = random.Random(sum(key << 32 * index for index, key in enumerate(keys)))
    generator = Random(keys)
    names = list("abcdefghij")
    copy = names[:]
    witness.shuffle(names)
    generator.shuffle(copy)
    assert names == copy
    assert [generator.getrandbits(bits) for bits in (1, 31, 32, 33, 64, 100)] == [witness.getrandbits(bits) for bits in (1, 31, 32, 33, 64, 100)]
    found, wanted = ((one.gauss(0, 1), one.randbytes(7), one.randrange(10**20)) for one in (generator, witness))
    assert found == wanted


@given(some.binary(min_size=1, max_size=600))
def test_bytes_are_keys(seed: bytes) -> None:
    assert Random(seed).int32() == Random(bytearray(seed)).int32() == Random(list(seed)).int32()


def test_numbers_of_each_kind() -> None:
    bits = [Random(5489).int32(), *map(int, numpy.random.RandomState(5489).randint(0, 2**32, 8, dtype=numpy.uint32)[1:])]
    one = Random(5489)
    assert [one.int31(), one.real1(), one.real2(), one.real3()] == [
        bits[0] >> 1, bits[1] * (1 / 4294967295), bits[2] / 2**32, (bits[3] + 0.5) / 2**32]
    low = Random(2)
    bits = [int(number) for number in numpy.random.RandomState(2).randint(0, 2**32, 4, dtype=numpy.uint32)]
    assert (low.int64(), Random(2).int63()) == (bits[0] | bits[1] << 32, bits[0] | bits[1] >> 1 << 32)
    high = Random(5489)  # its first draw has the highest bit
    for draw in (high.int63, high.int64):
        high.seed(5489)
        with pytest.raises(ravo.Error) as raised:
            draw()
        assert raised.value.code == "range"


def test_texts() -> None:
    generator, witness = Random(b"test"), Random(b"test")
    assert generator.text("ažc", 50) == "".join("ažc"[witness.int32() % 3] for _ in range(50))
    assert generator.int32() == witness.int32()
    assert Random(b"x").text("a", 3) == "aaa" and Random(b"x").text("", 0) == ""
    with pytest.raises(ravo.Error):
        Random(b"x").text("", 1)


def test_the_program_makes_the_same_text(program: object) -> None:
    found = program("random", "--seed", "test", "--alphabet", "01", "--count", "64")  # type: ignore[operator]
    assert Random(b"test").text("01", 64) in str(found)


def test_what_is_no_seed() -> None:
    for seed in ("text", 1.5, None, True):
        with pytest.raises(TypeError):
            Random(seed)  # type: ignore[arg-type]
    with pytest.raises(ValueError):
        Random(2**32)
    with pytest.raises(ValueError):
        Random([1, -1])
    for empty in (b"", []):
        with pytest.raises(ravo.Error):
            Random(empty)
    with pytest.raises(NotImplementedError):
        pickle.dumps(Random(1))
    with pytest.raises(ValueError):
        Random(1).getrandbits(-1)
    assert Random(1).getrandbits(0) == 0
