# SPDX-License-Identifier: MIT
"""The list of hostile documents, and what the modules that write them share."""

import zlib
from dataclasses import dataclass
from typing import Callable

FORMATS = ('pdf', 'ps', 'eps', 'svg', 'png')
ALL = frozenset(FORMATS)
SIZE = 'width="100" height="100"'

_squeezer = zlib.compressobj(9, zlib.DEFLATED, -15)
SQUEEZED_MEBIBYTE = _squeezer.compress(bytes(1 << 20)) + _squeezer.flush(zlib.Z_FULL_FLUSH)  # of zeros, by deflate


@dataclass(frozen=True)
class Document:
    name: str
    make: Callable[[], bytes]
    refused: frozenset  # formats for which the tool gives an error and nothing else
    draws_pictures: bool


_documents = []


def add(name, make, refused=frozenset(), draws_pictures=False):
    """A document that is made when it is needed: text, bytes, or what gives one of them."""
    def get():
        content = make() if callable(make) else make
        return content.encode() if isinstance(content, str) else content
    _documents.append(Document(name, get, ALL if refused is True else frozenset(refused or ()), draws_pictures))


def document(refused=frozenset(), draws_pictures=False):
    """Adds what a function gives, by the function's name."""
    def register(function):
        add(function.__name__.replace('_', '-'), function, refused, draws_pictures)
        return function
    return register


def add_table(prefix, rows, wrap, **properties):
    for name, piece in rows.items():
        add(f'{prefix}-{name}', lambda piece=piece: wrap(piece() if callable(piece) else piece), **properties)


def svg(content, attributes=SIZE, before=''):
    return (f'{before}<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            f'{attributes}>{content}</svg>')


def get_documents():
    return list(_documents)
