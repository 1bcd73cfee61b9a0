# SPDX-License-Identifier: MIT
"""Documents that refer: to themselves, in circles, and so often that a few elements are many."""

import base64

from corpus import add_table, document, svg

_SQUARE = '<rect width="9" height="9" fill="red" stroke="blue"/>'


def _use(name, attributes=''):
    return f'<use xlink:href="#{name}" {attributes}/>'


def _levels(count, fanout, make):
    """Definitions, each of which refers `fanout` times to the one before."""
    content = make('l0', _SQUARE)
    for level in range(1, count):
        content += make(f'l{level}', _use(f'l{level - 1}') * fanout)
    return content, _use(f'l{count - 1}')


def _grow(count, fanout, make):
    definitions, use = _levels(count, fanout, make)
    return f'<defs>{definitions}</defs>{use}'


def _group(name, content):
    return f'<g id="{name}">{content}</g>'


def _symbol(name, content):
    return f'<symbol id="{name}" viewBox="0 0 9 9">{content}</symbol>'


def _filled_with(name):
    return f'<rect width="50" height="50" fill="url(#{name})"/>'


def _pattern(name, content):
    return f'<pattern id="{name}" width="5" height="5" patternUnits="userSpaceOnUse">{content}</pattern>'


def _marker(name, content):
    return f'<marker id="{name}" markerWidth="9" markerHeight="9">{content}</marker>'


def _marked_with(name):
    return f'<path d="M0 0L9 9L18 0L27 9" fill="none" stroke="red" marker="url(#{name})" marker-mid="url(#{name})"/>'


def _clip(name, content, attributes=''):
    return f'<clipPath id="{name}" {attributes}>{content}</clipPath>'


def _chain(count, make):
    return ''.join(make(number, number + 1) for number in range(count))


_CIRCLES = {
    'use-itself': '<use id="a" xlink:href="#a"/>',
    'use-parent': f'<g id="a">{_SQUARE}{_use("a")}</g>',
    'use-root': f'{_SQUARE}<g>{_use("root")}</g>',
    'use-two': f'<g id="a">{_use("b")}</g><g id="b">{_use("a")}{_use("a")}</g>',
    'use-later': f'{_use("a")}{_use("a")}<g id="a">{_SQUARE}{_use("b")}</g><g id="b">{_use("a")}</g>',
    'symbol': f'<symbol id="a">{_SQUARE}{_use("a")}</symbol>{_use("a")}',
    'symbols': f'<symbol id="a">{_use("b")}</symbol><symbol id="b">{_use("a")}{_use("a")}</symbol>{_use("a")}',
    'pattern': _pattern('a', _filled_with('a')) + _filled_with('a'),
    'patterns': _pattern('a', _filled_with('b')) + _pattern('b', _filled_with('a') * 2) + _filled_with('a'),
    'pattern-href': '<pattern id="a" xlink:href="#b"/><pattern id="b" xlink:href="#a"/>' + _filled_with('a'),
    'pattern-use': _pattern('a', _use('u')) + f'<g id="u">{_filled_with("a")}</g>',
    'marker': _marker('a', _marked_with('a')) + _marked_with('a'),
    'markers': _marker('a', _marked_with('b')) + _marker('b', _marked_with('a') * 2) + _marked_with('a'),
    'gradients': '<linearGradient id="a" xlink:href="#b"/><radialGradient id="b" xlink:href="#a"/>' + _filled_with('a'),
    'clip': _clip('a', '<rect width="9" height="9" clip-path="url(#a)"/>') +
            '<g clip-path="url(#a)">' + _SQUARE + '</g>',
    'clip-chain': _clip('a', _SQUARE, 'clip-path="url(#b)"') + _clip('b', _SQUARE, 'clip-path="url(#a)"') +
                  '<g clip-path="url(#a)">' + _SQUARE + '</g>',
    'mask': '<mask id="a"><rect width="9" height="9" mask="url(#a)"/></mask><g mask="url(#a)">' + _SQUARE + '</g>',
    'filter': '<filter id="a"><feImage xlink:href="#r"/></filter><g id="r" filter="url(#a)">' + _SQUARE + '</g>',
    'text': '<text id="a">a<tref xlink:href="#a"/><tref xlink:href="#b"/></text>'
            '<text id="b"><tref xlink:href="#a"/></text>',
    'text-path': '<text id="a"><textPath xlink:href="#a">text</textPath></text>',
    'variables': '<style>:root{--a:var(--b);--b:var(--a) var(--a);}rect{fill:var(--a)}</style>' + _SQUARE,
}
add_table('circle', _CIRCLES, lambda content: svg(content, 'id="root" width="100" height="100"'))

_GROWTHS = {
    'use': lambda: _grow(40, 2, _group),
    'use-tenfold': lambda: _grow(9, 10, _group),
    'symbol': lambda: _grow(40, 2, _symbol),
    'text': lambda: f'<text id="a" y="9">{"word " * 20000}</text>' + _use('a') * 20000,
    'path': lambda: '<path id="a" stroke="red" d="M0 0' + 'L9 9L0 9' * 10000 + '"/>' + _use('a') * 20000,
    'use-of-uses': lambda: '<g id="a">' + '<rect width="1" height="1"/>' * 5000 + '</g>' + _use('a') * 5000,
}
add_table('growth', _GROWTHS, svg, refused=True)


def _nest_fills(levels, fanout):
    return _pattern('p0', _SQUARE) + ''.join(
        _pattern(f'p{level}', _filled_with(f'p{level - 1}') * fanout) for level in range(1, levels))


def _nest_marks(levels, fanout):
    return _marker('m0', _SQUARE) + ''.join(
        _marker(f'm{level}', _marked_with(f'm{level - 1}') * fanout) for level in range(1, levels))


def _nest_clips(levels, fanout):
    return _clip('c0', _SQUARE) + ''.join(
        _clip(f'c{level}', f'<g clip-path="url(#c{level - 1})">{_SQUARE}</g>' +
              f'<rect width="9" height="9" clip-path="url(#c{level - 1})"/>' * fanout) for level in range(1, levels))


_REFERENCES = {
    'use-chain-backwards': lambda: _SQUARE.replace('<rect', '<rect id="u0"') +
                           _chain(300, lambda one, next: f'<use id="u{next}" xlink:href="#u{one}"/>'),
    'use-nowhere': lambda: _use('nowhere') * 20000,
    'use-elsewhere': '<use xlink:href="/etc/passwd#a"/><use xlink:href="http://localhost/a.svg#a"/><use href="a.svg"/>',
    'patterns-in-patterns': lambda: _nest_fills(60, 3) + _filled_with('p59'),
    'pattern-chain': lambda: _pattern('h5000', _SQUARE) + _filled_with('h0') +
                     _chain(5000, lambda one, next: f'<pattern id="h{one}" xlink:href="#h{next}"/>'),
    'pattern-on-all': lambda: _nest_fills(3, 10) + _filled_with('p2') * 2000,
    'gradient-chain': lambda: '<linearGradient id="h10000"><stop stop-color="red"/></linearGradient>' +
                      _filled_with('h0') + _chain(
                          10000, lambda one, next: f'<linearGradient id="h{one}" xlink:href="#h{next}"/>'),
    'clips-in-clips': lambda: _nest_clips(200, 2) + f'<g clip-path="url(#c199)">{_SQUARE}</g>',
    'clip-on-all': lambda: _clip('a', _SQUARE * 20) + '<g clip-path="url(#a)">' * 100 + _SQUARE * 500 + '</g>' * 100,
    'text-doubling': lambda: '<text id="t0">tttttttttt</text>' + ''.join(
        f'<text id="t{level}">' + f'<tref xlink:href="#t{level - 1}"/>' * 10 + '</text>' for level in range(1, 12)),
    'variables-doubling': lambda: '<style>:root{--v0:' + 'red ' * 10 + ';' + ''.join(
        f'--v{level}:var(--v{level - 1}) var(--v{level - 1});' for level in range(1, 60)) +
        '}rect{fill:var(--v59)}</style>' + _SQUARE,
    'same-ids': lambda: '<rect id="a" width="1" height="1"/>' * 20000 + _use('a') * 1000,
    'links': lambda: ''.join(f'<a xlink:href="https://example.org/{number}">{_SQUARE}</a>' for number in range(4000)),
    'link-texts': '<a xlink:href="javascript:alert(1)\'(\\)&quot;&gt;&#10;\u00e9\u202e' + '%00' * 500 + '">' + _SQUARE +
                  '</a><a xlink:href="">' + _SQUARE + '</a>',
    'link-of-a-megabyte': lambda: f'<a xlink:href="https://example.org/{"a" * 1000000}">{_SQUARE}</a>',
    'link-in-link': lambda: '<a xlink:href="https://example.org/">' * 200 + _SQUARE + '</a>' * 200,
}
add_table('reference', _REFERENCES, svg)


@document(refused=True)
def growth_of_a_use_chain():
    return svg(_SQUARE.replace('<rect', '<rect id="u20000"') +
               _chain(20000, lambda one, next: f'<use id="u{one}" xlink:href="#u{next}"/>'))


@document(refused=True)
def growth_of_markers_on_markers():
    return svg(_nest_marks(30, 3) + _marked_with('m29'))


@document()
def growth_to_the_limit():
    """As many marks of as much work as a document of its size gets by reuse."""
    return svg('<g id="a">' + _SQUARE * 9 + '</g>' + _use('a') * 17000 + f'<desc>{" " * 500000}</desc>')


@document(refused=True)
def growth_of_a_marker():
    """A few hundred marks on each of many vertices."""
    line = 'M0 0' + 'L9 9L0 9' * 1500
    return svg(_marker('a', _SQUARE * 300) + f'<path d="{line}" marker-mid="url(#a)"/>')


def _as_data(text):
    return 'data:image/svg+xml;base64,' + base64.b64encode(text.encode()).decode()


def _nest_documents(levels, fanout):
    text = svg(_SQUARE)
    for _ in range(levels):
        text = svg(f'<image width="50" height="50" xlink:href="{_as_data(text)}"/>' +
                   '<image width="5" height="5" xlink:href="#"/>' * fanout)
    return text


@document(draws_pictures=True)
def documents_in_documents():
    return _nest_documents(20, 1)


@document(draws_pictures=True)
def documents_beside_documents():
    inner = _as_data(svg(f'<image width="9" height="9" xlink:href="{_as_data(svg(_SQUARE * 20))}"/>' * 20))
    return svg(f'<image width="50" height="50" xlink:href="{inner}"/>' * 10)


@document()
def document_reads_files():
    names = ('/etc/passwd', 'file:///etc/passwd', '/dev/zero', '/dev/stdin', '/proc/self/mem', '.', '..', '', 'fifo',
             'http://localhost/a.png', '//localhost/a.png', 'a' * 5000 + '.png', '%00.png', '../../../../etc/hosts')
    return svg(''.join(f'<image width="9" height="9" xlink:href="{name}"/>' for name in names))
