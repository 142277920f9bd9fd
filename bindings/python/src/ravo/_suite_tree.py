"""Documents of XML as the suite loads and saves them."""
from __future__ import annotations

from collections.abc import Iterator
from typing import NamedTuple

from . import _ravo
from ._error import Error
from .records import SuiteTokenKind


class Item:
    """An item of a tree: a name, attributes, one text, and children, over which it iterates. Names are found ignoring case.

    ravo.Error ("unknown") for every use of an item that was deleted.

    >>> root = Tree(b'<?xml version="1.0"?><a b="1"><c>x</c><d/></a>').root
    >>> root.name, root.attributes, [child.name for child in root], root["C"].text, root[-1].parent == root
    ('a', {'b': '1'}, ['c', 'd'], 'x', True)
    """

    __slots__ = ("_tree", "_number")

    def __init__(self, tree: object, number: int) -> None:
        self._tree, self._number = tree, number

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Item) and (self._tree, self._number) == (other._tree, other._number)

    def __hash__(self) -> int:
        return hash((id(self._tree), self._number))

    def __repr__(self) -> str:
        return f"<Item {self.name!r}: {len(self)} children>"

    def __bool__(self) -> bool:
        return True

    def __len__(self) -> int:
        return _ravo.suite_item_child_count(self._tree, self._number)

    def __iter__(self) -> Iterator[Item]:
        return (self[index] for index in range(len(self)))

    def __getitem__(self, key: int | str) -> Item:
        """Returns the child with an index, or the first one with a name; IndexError or KeyError if there is none."""
        if isinstance(key, str):
            found = self.find(key)
            if found is None:
                raise KeyError(key)
            return found
        return Item(self._tree, _ravo.suite_item_child(self._tree, self._number, range(len(self))[key]))

    def find(self, name: str) -> Item | None:
        """Returns the first child with a name; None if there is none."""
        try:
            return self[_ravo.suite_item_find(self._tree, self._number, name, 0)]
        except Error as error:
            if error.code != "unknown":
                raise
        len(self)  # of an item that was deleted
        return None

    @property
    def name(self) -> str:
        """The name, without blanks at both ends."""
        return _ravo.suite_item_name(self._tree, self._number)

    @name.setter
    def name(self, name: str) -> None:
        _ravo.suite_item_set_name(self._tree, self._number, name)

    @property
    def text(self) -> str:
        """The text, unescaped, without that of children."""
        return _ravo.suite_item_text(self._tree, self._number)

    @text.setter
    def text(self, text: str) -> None:
        _ravo.suite_item_set_text(self._tree, self._number, text)

    @property
    def attributes(self) -> dict[str, str]:
        """A copy of the attributes; of several with one name, the first."""
        count = _ravo.suite_item_attribute_count(self._tree, self._number)
        return dict(reversed([_ravo.suite_item_attribute_at(self._tree, self._number, index) for index in range(count)]))

    def get(self, attribute: str, default: str = "") -> str:
        """Returns the value of the first attribute with a name; `default` if there is none."""
        try:
            return _ravo.suite_item_attribute(self._tree, self._number, attribute)
        except Error as error:
            if error.code != "unknown":
                raise
        len(self)  # of an item that was deleted
        return default

    def set(self, attribute: str, value: str) -> None:
        """Sets the value of the first attribute with a name, or adds one. An empty value deletes it."""
        _ravo.suite_item_set_attribute(self._tree, self._number, attribute, value)

    @property
    def parent(self) -> Item | None:
        """The item above; None for the root."""
        if self._number == 0:
            return None
        return Item(self._tree, _ravo.suite_item_parent(self._tree, self._number))

    def add(self, name: str, text: str = "") -> Item:
        """Adds a last child with a name and a text, and returns it.

        >>> tree = Tree(b'<?xml version="1.0"?><a></a>')
        >>> tree.root.add("b", "<").to_string()
        '<b>\\r\\n  &lt;\\r\\n</b>\\r\\n'
        """
        child = Item(self._tree, _ravo.suite_item_add(self._tree, self._number, name))
        if text:
            child.text = text
        return child

    def delete(self) -> None:
        """Deletes the item with everything below it."""
        _ravo.suite_item_delete(self._tree, self._number)

    def move(self, index: int) -> None:
        """Moves the item to another index among its parent's children."""
        _ravo.suite_item_move(self._tree, self._number, index)

    def to_string(self, level: int = 0) -> str:
        """Returns the item and everything below it as XML, its tags indented by `level` blanks."""
        return _ravo.suite_item_as_string(self._tree, self._number, level)


class Tree:
    """A document as the suite's modules load and save it, small and forgiving: comments are dropped, bytes are Windows-1250
    whatever the document declares. ravo.xml.Document.check tells what would be lost.

    Without <rss or <?xml version="1.0" in the first 1000 bytes nothing is loaded, and the root is empty. ravo.Error for
    what cannot be read. One thread at a time may use a tree.

    >>> tree = Tree(b'<?xml version="1.0" encoding="windows-1250"?><a><b>1</b></a>')
    >>> tree.root["b"].text = "2"
    >>> bytes(tree).split()[-4:]
    [b'<b>', b'2', b'</b>', b'</a>']
    """

    def __init__(self, data: bytes | bytearray | memoryview) -> None:
        self._tree = _ravo.suite_tree_open(data)

    def __bytes__(self) -> bytes:
        """Returns the bytes that the suite saves."""
        return _ravo.suite_tree_save(self._tree)

    @property
    def root(self) -> Item:
        """The root."""
        return Item(self._tree, 0)

    @property
    def encoding(self) -> str:
        """The name of the encoding that the saved document declares, which has no effect on its bytes."""
        return _ravo.suite_tree_encoding(self._tree)

    @encoding.setter
    def encoding(self, name: str) -> None:
        _ravo.suite_tree_set_encoding(self._tree, name)

    @property
    def style_sheet(self) -> str:
        """The address of the style sheet that the document refers to; empty if it refers to none."""
        return _ravo.suite_tree_style_sheet(self._tree)

    @style_sheet.setter
    def style_sheet(self, address: str) -> None:
        _ravo.suite_tree_set_style_sheet(self._tree, address)


class Token(NamedTuple):
    """A token of a document, as the suite's tokenizer cuts it."""

    kind: SuiteTokenKind
    line: int  # from 1; line feeds in tokens do not count
    position: int  # in bytes, from 0
    text: str  # without line breaks of two bytes, and each run of blanks as one


def tokens(data: bytes | bytearray | memoryview) -> list[Token]:
    """Returns the tokens of a document, as the suite's tokenizer cuts it; ravo.Error for what cannot be read.

    >>> [token.text for token in tokens(b'<?xml version="1.0"?><a>text</a>')]
    ['<?xml version="1.0"?>', '<a>', 'text', '</a>']
    """
    return [Token(SuiteTokenKind(kind), line, position, text) for kind, line, position, text in _ravo.suite_tokens(data)]


def escape(text: str) -> str:
    """Returns a text as the suite writes it into XML: "&", "<", ">" and double quotes as entities, CR LF as "<br/>".

    >>> escape('"A & B"')
    '&quot;A &amp; B&quot;'
    """
    return _ravo.suite_str_to_xml(text)


def unescape(text: str) -> str:
    """Returns a text of XML as the suite reads it: four entities become characters, one level deep; other ones stay.

    >>> unescape("&amp;lt; &apos;")
    '&lt; &apos;'
    """
    return _ravo.suite_xml_to_str(text)
