"""Encodings: the codecs of Python are the witnesses where they agree on the table."""
import codecs
import io
import pathlib
import pickle
from collections.abc import Callable

import pytest
import ravo
from hypothesis import given, settings
from hypothesis import strategies as some
from ravo import encodings

SAME = ["cp1251", "cp437", "cp852", "cp866", "iso8859_1", "iso8859_2", "iso8859_15", "koi8_r", "mac_latin2", "utf_8"]
ALL = [encoding.name for encoding in encodings.known()]
READ = [name for name in ALL if encodings.find(name).can_read]
WRITTEN = [name for name in READ if encodings.find(name).can_write]
NO_ASCII = ["Mac_Dingbats"]
HANDLERS = ["strict", "replace", "ignore", "backslashreplace"]


def outcome(call: Callable[..., object], *arguments: object) -> object:
    try:
        return call(*arguments)
    except UnicodeError as error:
        return type(error), getattr(error, "start", None)


@pytest.mark.parametrize("name", SAME)
@given(data=some.binary(max_size=64))
def test_bytes_are_decoded_as_python_does(name: str, data: bytes) -> None:
    for errors in HANDLERS if name != "utf_8" else ["strict"]:
        assert outcome(data.decode, "ravo_" + name, errors) == outcome(data.decode, name, errors)


@pytest.mark.parametrize("name", SAME)
@given(text=some.text(max_size=32))
def test_texts_are_encoded_as_python_does(name: str, text: str) -> None:
    for errors in ("strict", "replace", "ignore", "xmlcharrefreplace", "backslashreplace"):
        assert outcome(text.encode, "ravo_" + name, errors) == outcome(text.encode, name, errors)


@pytest.mark.parametrize("name", WRITTEN)
@given(data=some.data())
@settings(max_examples=20)
def test_what_is_written_is_read(name: str, data: some.DataObject) -> None:
    codec = "ravo_" + name
    text = data.draw(some.text(max_size=40)).encode(codec, "ignore").decode(codec)
    assert text.encode(codec).decode(codec) == text


@pytest.mark.parametrize("name", READ)
@given(data=some.binary(max_size=48), cuts=some.lists(some.integers(0, 48), max_size=6), errors=some.sampled_from(HANDLERS))
@settings(max_examples=25)
def test_pieces_are_the_whole(name: str, data: bytes, cuts: list[int], errors: str) -> None:
    codec = "ravo_" + name
    decoder = codecs.getincrementaldecoder(codec)(errors)
    places = [0, *sorted(cuts), len(data)]

    def in_pieces() -> str:
        return "".join(decoder.decode(data[begin:end]) for begin, end in zip(places, places[1:])) + decoder.decode(b"", True)

    whole, pieces = outcome(data.decode, codec, errors), outcome(in_pieces)
    assert pieces == whole if isinstance(whole, str) else not isinstance(pieces, str)


@pytest.mark.parametrize("name", WRITTEN)
@given(pieces=some.lists(some.text(max_size=8), max_size=5), errors=some.sampled_from(["replace", "ignore", "xmlcharrefreplace"]))
@settings(max_examples=20)
def test_texts_in_pieces_are_the_whole(name: str, pieces: list[str], errors: str) -> None:
    encoder = codecs.getincrementalencoder("ravo_" + name)(errors)

    def in_pieces() -> bytes:
        return b"".join(encoder.encode(piece) for piece in pieces) + encoder.encode("", True)

    whole, found = outcome("".join(pieces).encode, "ravo_" + name, errors), outcome(in_pieces)
    # What an error handler writes may be what the encoding lacks too.
    assert found == whole if isinstance(whole, bytes) else not isinstance(found, bytes) and name in NO_ASCII


def test_no_codec_of_python_is_shadowed() -> None:
    assert codecs.lookup("cp1250").name == "cp1250"
    assert codecs.lookup("RAVO-Windows 1250").name == "ravo_windows_1250"
    for unknown in ("ravo_", "ravo_nothing", "windows_1250x"):
        with pytest.raises(LookupError):
            codecs.lookup(unknown)


def test_errors_tell_where() -> None:
    with pytest.raises(UnicodeDecodeError) as decoding:
        b"ab\x81cd".decode("ravo_windows_1250")
    assert (decoding.value.start, decoding.value.end, decoding.value.object) == (2, 3, b"ab\x81cd")
    with pytest.raises(UnicodeEncodeError) as encoding:
        "kůň ☃".encode("ravo_windows_1250")
    assert (encoding.value.start, encoding.value.end) == (4, 5)
    with pytest.raises(UnicodeEncodeError) as encoding:
        "a\ud800".encode("ravo_windows_1250")
    assert encoding.value.start == 1
    with pytest.raises(LookupError):
        "☃".encode("ravo_windows_1250", "no such handler")
    with pytest.raises(TypeError):
        b"\x81".decode("ravo_windows_1250", "xmlcharrefreplace")
    with pytest.raises(ravo.Error) as raised:
        "x".encode("ravo_gb18030")
    assert raised.value.code == "argument"


@pytest.mark.parametrize("errors", ["strict", "replace", "ignore"])
def test_files_are_read_in_chunks_and_told_where(tmp_path: pathlib.Path, errors: str) -> None:
    text = "Příliš žluťoučký kůň úpěl ďábelské ódy.\n" * 2000
    file = tmp_path / "text"
    file.write_text(text, "ravo_utf_16_le")
    with open(file, encoding="ravo_utf_16_le", errors=errors) as lines:
        assert lines.readline() == text[:text.index("\n") + 1]
        place = lines.tell()
        rest = lines.read()
        lines.seek(place)
        assert lines.read() == rest and len(rest) == len(text) * 1999 // 2000
    with codecs.open(str(file), encoding="ravo_utf_16_le") as stream:
        assert stream.read() == text


def test_streams_of_a_stateful_encoding() -> None:
    text = "Příliš žluťoučký kůň + úpěl\n" * 500
    raw = io.BytesIO()
    writer = io.TextIOWrapper(raw, "ravo_utf_7", write_through=True, newline="\n")
    for line in text.splitlines(True):
        writer.write(line)
    writer.buffer.write(codecs.getincrementalencoder("ravo_utf_7")().encode("", True))
    assert text.encode("ravo_utf_7").decode("utf_7") == text
    for size in (1, 7, 4096):
        data, decoder = text.encode("ravo_utf_7"), codecs.getincrementaldecoder("ravo_utf_7")()
        pieces = [decoder.decode(data[at:at + size], at + size >= len(data)) for at in range(0, len(data), size)]
        assert "".join(pieces) == text


def test_conversion_of_bytes() -> None:
    assert encodings.convert(memoryview(b"k\xf9\xf2"), "cp1250", "utf-8").decode() == "kůň"
    with pytest.raises(ravo.Error) as raised:
        encodings.convert("a☃".encode(), "utf-8", "cp1250")
    assert (raised.value.code, raised.value.position) == ("lacking", 1)
    assert encodings.convert("a☃".encode(), "utf-8", "cp1250", "replace") == b"a?"
    with pytest.raises(ValueError, match="strict or replace"):
        encodings.convert(b"", "utf-8", "cp1250", "ignore")
    with pytest.raises(ravo.Error) as raised:
        encodings.find("nothing")
    assert raised.value.code == "unknown"
    assert encodings.of_mark(b"none") is None
    with pytest.raises(TypeError):
        encodings.convert("text", "utf-8", "cp1250")  # type: ignore[arg-type]
    large = "ů".encode("cp852") * 1_000_000
    assert encodings.convert(large, "cp852", "utf-32-le") == ("ů" * 1_000_000).encode("utf-32-le")


def test_information_is_a_value() -> None:
    one = encodings.find("cp1250")
    assert one.code_page == 1250 and pickle.loads(pickle.dumps(one)) == one


def pieces_of(data: bytes, codec: str, errors: str = "strict") -> str:
    """The text of bytes, piece by piece: each is small, so that tables for large texts are not used."""
    decoder = codecs.getincrementaldecoder(codec)(errors)
    return "".join([decoder.decode(data[i:i + 50_000]) for i in range(0, len(data), 50_000)]) + decoder.decode(b"", True)


@pytest.mark.parametrize("name", [encoding.name for encoding in encodings.known() if encoding.can_read and encoding.can_write])
@pytest.mark.parametrize("text", ["Příliš žluťoučký kůň; Это русский текст, 12. +-~&{\\ \n", "ASCII (1;2) ~ + \\ \n"])
def test_large_texts_are_those_of_their_pieces(name: str, text: str) -> None:
    codec = "ravo_" + name.lower()
    data = text.encode(codec, "ignore")
    data *= 150_000 // max(1, len(data)) + 1
    assert data.decode(codec, "replace") == pieces_of(data, codec, "replace")


@pytest.mark.parametrize("place", [0, 70_001, 139_999])
def test_large_texts_fail_where_small_ones_do(place: int) -> None:
    data = bytearray(b"k\xf9\xf2" * 50_000)
    data[place] = 0x81
    with pytest.raises(UnicodeDecodeError) as raised:
        data.decode("ravo_windows_1250")
    assert raised.value.start == place
    assert data.decode("ravo_windows_1250", "replace") == bytes(data).decode("cp1250", "replace")
    whole = bytes(range(256)) * 600
    assert whole.decode("ravo_cp852").encode("ravo_cp852") == whole


def test_detection() -> None:
    text = "Příliš žluťoučký kůň úpěl ďábelské ódy. " * 3
    for encoding, name in (("cp1250", "Windows_1250"), ("iso8859-2", "Iso_8859_2"), ("cp852", "CP_852"), ("utf-8", "UTF_8"), ("utf-16le", "UTF_16_LE")):
        found = encodings.detect(text.encode(encoding))
        assert (bool(found), found.is_sure, found.encoding.name) == (True, True, name)
        assert found.candidates[0] == found.encoding and found.encoding == encodings.find(name)
    assert encodings.detect("\ufeffa".encode()).evidence.name == "MARK" and encodings.detect(b"").evidence.name == "ASCII"
    assert encodings.detect(text.encode("ravo_mac_latin2"), mac=True).encoding.name == "Mac_CentralEurope"
    unsure = encodings.detect("řeč".encode("cp1250"))
    assert not unsure and len(unsure.candidates) > 1 and unsure.candidates[0] == unsure.encoding
    assert encodings.detect(memoryview(text.encode() * 100_000)).encoding.name == "UTF_8"
