# SPDX-License-Identifier: MIT
"""Documents that abuse what XML has: document types, entities, encodings, and ends that come too early."""

import gzip
import random

from corpus import SIZE, SQUEEZED_MEBIBYTE, add, add_table, document, svg

_SQUARE = '<rect width="9" height="9" fill="red"/>'


def _typed(subset, content, attributes=SIZE):
    return svg(content, attributes, f'<!DOCTYPE svg [{subset}]>')


def _grow(first, levels, fanout):
    return f'<!ENTITY e0 "{first}">' + ''.join(
        f'<!ENTITY e{level} "{f"&e{level - 1};" * fanout}">' for level in range(1, levels))


@document(refused=True)
def entity_laughs():
    return _typed(_grow('laugh', 10, 10), '<text>&e9;</text>')


@document(refused=True)
def entity_laughs_in_attribute():
    return _typed(_grow('laugh', 10, 10), '<text id="&e9;"/>')


@document(refused=True)
def entity_of_elements():
    return _typed(_grow('<rect/>', 10, 10), '&e9;')


@document(refused=True)
def entity_quadratic():
    return _typed(f'<!ENTITY e "{"a" * 100000}">', '<text>' + '&e;' * 100000 + '</text>')


@document(refused=True)
def entity_of_itself():
    return _typed('<!ENTITY a "&b;"><!ENTITY b "&a;">', '<text>&a;</text>')


@document(refused=True)
def entity_that_breaks_elements():
    return _typed('<!ENTITY a "</g>">', '<g>&a;')


@document()
def entities_in_great_number():
    return _typed(''.join(f'<!ENTITY e{number} "{number}">' for number in range(30000)), '<text>&e7;</text>')


_DEFAULT = '<!ATTLIST rect {}>'


@document(refused=True)
def defaults_multiplied():
    """Some bytes for each element, some thousand attributes each: a document type may give them."""
    names = ' '.join(f'a{number} CDATA "x"' for number in range(5000))
    return _typed(_DEFAULT.format(names), '<rect/>' * 50000)


@document(refused=True)
def default_of_many_bytes():
    return _typed(_DEFAULT.format(f'id CDATA "{"x" * 400000}"'), '<rect/>' * 50000)


@document()
def default_attributes():
    return _typed(_DEFAULT.format('width CDATA "9" height CDATA "9" fill CDATA "red"'), '<rect/>' * 1000)


_OUTSIDE = {
    'entity': ('<!DOCTYPE svg [<!ENTITY e SYSTEM "file:///etc/passwd">]>', '<text y="9">a&e;b</text>'),
    'entity-http': ('<!DOCTYPE svg [<!ENTITY e SYSTEM "http://localhost/">]>', '<text y="9">&e;</text>'),
    'entity-device': ('<!DOCTYPE svg [<!ENTITY e SYSTEM "/dev/zero">]>', '<text y="9">&e;</text>'),
    'type': ('<!DOCTYPE svg SYSTEM "file:///etc/passwd">', _SQUARE),
    'type-public': ('<!DOCTYPE svg PUBLIC "-//W3C//DTD SVG 1.1//EN" "http://localhost/svg11.dtd">', _SQUARE),
    'parameter': ('<!DOCTYPE svg [<!ENTITY % p SYSTEM "/dev/zero">%p;]>', _SQUARE),
    'sheet': ('<?xml-stylesheet href="file:///etc/passwd"?>', _SQUARE),
    'sheet-import': ('', '<style>@import url(/dev/zero); @import "http://localhost/a.css";</style>' + _SQUARE),
    'include': ('', '<xi:include xmlns:xi="http://www.w3.org/2001/XInclude" href="/etc/passwd" parse="text"/>'),
    'script': ('', '<script xlink:href="http://localhost/a.js">while(true){}</script>' + _SQUARE),
    'base': ('', '<g xml:base="file:///etc/"><image xlink:href="passwd" width="9" height="9"/></g>'),
    'foreign': ('', '<foreignObject width="9" height="9"><iframe xmlns="http://www.w3.org/1999/xhtml" '
                    'src="file:///etc/passwd"/></foreignObject>'),
}
add_table('outside', _OUTSIDE, lambda row: svg(row[1], before=row[0]))

_PLAIN = svg(_SQUARE + '<text y="50">\u00e4\u20ac\U0001f600</text>')
_DECLARED = '<?xml version="1.0" encoding="{}"?>' + svg(_SQUARE)
_NO_DOCUMENTS = {
    'empty': b'',
    'blanks': b' \n\t' * 300000,
    'mark-only': b'\xef\xbb\xbf',
    'open': b'<',
    'opens': b'<' * 1000000,
    'ampersands': b'&' * 1000000,
    'text-only': b'hello',
    'nuls': bytes(1000000),
    'noise': random.Random(1).randbytes(100000),
    'nul-inside': _PLAIN.replace('red', 'r\0d').encode(),
    'nul-reference': svg('<rect id="a&#0;b"/>'),
    'huge-reference': svg('<text>&#99999999999999999999;</text>'),
    'surrogate-reference': svg('<text>&#xD800;</text>'),
    'overlong': _PLAIN.encode().replace(b'red', b'\xc0\xaf'),
    'beyond-unicode': _PLAIN.encode().replace(b'red', b'\xf4\x90\x80\x80'),
    'lone-continuation': _PLAIN.encode().replace(b'red', b'\x80'),
    'utf-16-odd': _PLAIN.encode('utf-16')[:-1],
    'utf-16-surrogate': _PLAIN.encode('utf-16').replace('r'.encode('utf-16-le'), b'\x00\xd8'),
    'utf-32': _PLAIN.encode('utf-32'),
    'declared-unknown': _DECLARED.format('x-nowhere'),
    'declared-utf-7': _DECLARED.format('UTF-7'),
    'declared-utf-16': _DECLARED.format('UTF-16'),
    'declared-of-many-bytes': _DECLARED.format('a' * 500000),
    'no-svg': '<html><body>' + _PLAIN.replace('svg', 'sgv') + '</body></html>',
    'prefix-only': '<svg: xmlns="http://www.w3.org/2000/svg"/>',
    'two-roots': _PLAIN * 2,
    'attribute-twice': svg('<rect width="1" width="2"/>'),
    'prefix-nowhere-closed': '<a:svg>' + _SQUARE,
    'gzip-short': gzip.compress(_PLAIN.encode())[:-12],
    'gzip-damaged': gzip.compress(_PLAIN.encode())[:20] + b'\xff' * 50,
    'gzip-bomb': b'\x1f\x8b\x08' + bytes(7) + SQUEEZED_MEBIBYTE * 900,
    'gzip-of-gzip': lambda: gzip.compress(gzip.compress(_PLAIN.encode())),
    'gzip-of-many': lambda: gzip.compress(b'') * 50000,
    'gzip-start': b'\x1f\x8b',
    'pdf': b'%PDF-1.4\n1 0 obj\n<<>>\nendobj\n',
}
add_table('no-document', _NO_DOCUMENTS, lambda content: content, refused=True)

_ODD_DOCUMENTS = {
    'utf-16': _PLAIN.encode('utf-16'),
    'latin-1': ('<?xml version="1.0" encoding="ISO-8859-1"?>' + svg('<text y="50">\u00e4</text>')).encode('latin-1'),
    'koi8-r': ('<?xml version="1.0" encoding="KOI8-R"?>' + svg('<text y="50">\u0416</text>')).encode('koi8-r'),
    'comment-of-a-megabyte': lambda: svg(f'<!--{"a" * 1000000}-->' + _SQUARE),
    'instruction-of-a-megabyte': lambda: svg(f'<?a {"a" * 1000000}?>' + _SQUARE),
    'cdata-of-a-megabyte': lambda: svg(f'<text y="9"><![CDATA[{"<a " * 300000}]]></text>'),
    'comments': lambda: svg('<!---->' * 100000 + _SQUARE),
    'texts-between': lambda: svg('a<g/>' * 150000),
    'gzip': lambda: gzip.compress(_PLAIN.encode()) + bytes(1000),
    'gzip-in-pieces': lambda: b''.join(gzip.compress(bytes([byte])) for byte in svg(_SQUARE).encode()),
    'many-drawings': lambda: '<a>' + svg(_SQUARE) * 500 + '</a>',
}
add_table('odd', _ODD_DOCUMENTS, lambda content: content)

_SMALL = '<?xml version="1.0"?><!DOCTYPE svg [<!ENTITY e "9">]><svg width="9" height="9"><g id="a"><!--c--><text ' \
         'y="&e;">a&#65;<![CDATA[b]]></text></g></svg>'
for _end in range(len(_SMALL)):
    add(f'cut-{_end:03}', _SMALL[:_end], refused=True)
