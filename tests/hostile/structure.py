# SPDX-License-Identifier: MIT
"""Documents whose numbers, sizes, counts or depths are out of all measure."""

from corpus import SIZE, add, add_table, document, svg

_SQUARE = '<rect width="9" height="9" fill="red" stroke="blue"/>'

# All shapes, with N wherever a number stands.
_EVERYWHERE = '''<g transform="scale(N)"><circle cx="N" cy="5" r="N"/></g>
<rect x="N" y="N" width="N" height="9" rx="N" style="fill:red;stroke:blue;stroke-width:N;stroke-dasharray:N,3"/>
<ellipse cx="3" cy="N" rx="4" ry="N" transform="rotate(N)"/><line x1="N" y1="0" x2="3" y2="N" stroke="red"/>
<polygon points="N,N 3,N 5,5" stroke="green"/><polyline points="0,0 N,3 4,N" stroke-width="N" stroke="#00f"/>
<path d="M 0 0 L N N C N 1 2 N 3 4 A N 4 N 1 0 N 9 Q N N 3 3 Z" fill="red" stroke="black" stroke-dasharray="N"/>
<svg x="N" y="1" width="N" height="N" viewBox="N N N N"><rect width="5" height="5" transform="matrix(N 0 0 N N N)"/>
</svg><text x="N" y="9 N" dx="N" rotate="N" font-size="N" letter-spacing="N" textLength="N">text</text>
<linearGradient id="l" x1="N" x2="N" gradientTransform="skewX(N)"><stop offset="N" stop-color="red"/><stop offset="1"/>
</linearGradient><radialGradient id="r" gradientUnits="userSpaceOnUse" r="N" fx="N"><stop offset="0"/>
<stop offset="N" stop-color="lime" stop-opacity="N"/></radialGradient><pattern id="p" width="N" height="N" x="N"
viewBox="0 0 N 9" patternUnits="userSpaceOnUse"><circle r="N"/></pattern><clipPath id="c"><rect width="N" height="9"/>
</clipPath><marker id="m" markerWidth="N" markerHeight="9" refX="N" orient="N"><rect width="9" height="9"/></marker>
<g opacity="N" clip-path="url(#c)"><rect width="50" height="50" fill="url(#l)" stroke="url(#r)" stroke-width="4"/>
<path d="M5 5L50 60" marker-end="url(#m)" stroke-miterlimit="N" stroke-dashoffset="N" stroke="red"/>
<rect width="50" height="50" fill="url(#p)" fill-opacity="N"/></g>'''

_NUMBERS = {
    'nan': 'nan', 'inf': 'inf', 'minus-inf': '-inf', 'great': '1e300', 'minus-great': '-1e300', 'overflow': '1e400',
    'small': '1e-300', 'subnormal': '4.9e-324', 'underflow': '1e-400', 'zero': '0', 'minus-zero': '-0', 'minus': '-5',
    'float-most': '3.4028235e38', 'fixed-most': '8388608', 'int-most': '2147483648', 'hexadecimal': '0x1p1023',
    'many-digits': '9' * 400, 'many-zeros': '0.' + '0' * 400 + '1', 'many-exponents': '1e' + '9' * 400,
    'no-digits': '-',
    'no-exponent': '1e', 'unit': '1e300in', 'percent': '1e300%', 'word': 'x', 'nothing': '', 'wide': '\uff11',
    'million': '1000000', 'ten-to-9': '1e9', 'minus-ten-to-15': '-1e15',
}
add_table('number', _NUMBERS, lambda number: svg(_EVERYWHERE.replace('N', number)))

_PAGES = {
    'none': '', 'zero': 'width="0" height="0"', 'minus': 'width="-5" height="-5"', 'nan': 'width="nan" height="nan"',
    'smallest': 'width="1e-300" height="1e-300"', 'percent': 'width="1e300%" height="-5%"',
    'flat': 'width="1e4" height="1e-4"', 'viewbox-zero': 'viewBox="0 0 0 0"',
    'viewbox-only': 'viewBox="0 0 1e300 1e300"',
    'viewbox-minus': f'{SIZE} viewBox="0 0 -5 -5"', 'viewbox-nan': f'{SIZE} viewBox="nan nan nan nan"',
    'viewbox-great': f'{SIZE} viewBox="1e300 0 1e300 1e300"', 'viewbox-far': f'{SIZE} viewBox="-1e300 1e300 10 10"',
    'viewbox-flat': f'{SIZE} viewBox="0 0 1e300 1e-300"', 'viewbox-words': f'{SIZE} viewBox="a b c d"',
    'viewbox-many': f'{SIZE} viewBox="{"1 " * 100000}"',
    'slice': f'{SIZE} viewBox="0 0 1 1e9" preserveAspectRatio="xMidYMid slice"',
}
add_table('page', _PAGES, lambda attributes: svg(_SQUARE, attributes))
_GREAT_PAGES = {
    'great': 'width="1e300" height="1e300"', 'wide': 'width="1e300" height="1"', 'inches': 'width="1e9in" height="9in"',
    'sides': 'width="32768" height="1"',
    'area': 'width="20000" height="20000"',
}
add_table('page', _GREAT_PAGES, lambda attributes: svg(_SQUARE, attributes), refused={'png'})
add('page-translucent', svg('<rect width="8000" height="8000" fill-opacity="0.5"/>' * 20, 'width="8000" height="8000"'))

_TRANSFORMS = {
    'overflow': 'scale(1e200) scale(1e200)', 'underflow': 'scale(1e-200) scale(1e-200)', 'zero': 'scale(0)',
    'line': 'scale(0 1)', 'singular': 'matrix(1 1 1 1 0 0)', 'skew': 'skewX(90)', 'rotation': 'rotate(1e300)',
    'far': 'translate(1e300 -1e300)', 'back': 'translate(1e300) translate(-1e300)',
    'nan': 'matrix(nan nan nan nan 0 0)',
    'flat': 'scale(1e9 1e-9) rotate(45)', 'many': 'rotate(1) ' * 90000, 'many-scales': 'scale(1.1)' * 90000,
    'unclosed': 'rotate(' * 100000, 'numbers': 'matrix(' + '1 ' * 400000 + ')', 'words': 'a' * 1000000,
}
add_table('transform', _TRANSFORMS, lambda transform: svg(
    f'<g transform="{transform}"><rect width="5" height="5" stroke="red" stroke-dasharray="1 2"/>'
    f'<text y="5">text</text></g>'))

_DASHES = {
    'many': lambda: '1 ' * 200000, 'smallest': '1e-300', 'tiny': '0.0001', 'zeros': '0 0 0', 'minus': '5 -1',
    'overflow': '1e308 1e308 1e308', 'far-apart': '1e-9 1e9', 'just-few-enough': '0.1 ' * 1000,
    'one-too-many': '0.1 ' * 1001,
    'nan': 'nan nan', 'words': 'a ' * 400000, 'commas': ',' * 900000,
}
add_table('dashes', _DASHES, lambda dashes: svg(
    f'<path d="M0 0H90V90H0Z" stroke="red" stroke-width="3" stroke-dasharray="{dashes}" stroke-dashoffset="-1e9"/>'
    f'<circle r="50" stroke="red" style="stroke-dasharray:{dashes}"/>'))

_PATHS = {
    'moves': lambda: 'M0 0' * 240000, 'relative-moves': lambda: 'm1 1' * 240000,
    'closes': lambda: 'M0 0' + 'z' * 900000,
    'lines': lambda: 'M0 0' + 'L9 9L0 9' * 110000, 'far-lines': lambda: 'M0 0' + 'l1e9 1e9-1e9 0' * 60000,
    'curves': lambda: 'M0 0' + 'c9 9 -9 9 1 1' * 60000, 'arcs': lambda: 'M0 0' + 'a5 9 30 0 1 3 2' * 60000,
    'far-arcs': lambda: 'M0 0' + 'A1e300 1e-300 1e300 1 1 1e300 5' * 25000,
    'smooth': lambda: 'M0 0' + 'T9 8S1 2 3 4' * 70000, 'numbers': lambda: '1 ' * 450000,
    'minuses': lambda: '-' * 900000,
    'letters': lambda: 'MLCAQZ' * 150000, 'points': lambda: 'M0 0' + '.1' * 400000,
    'star': lambda: 'M0 0' + ''.join(f'L{i * 7919 % 100} {i * 104729 % 100}' for i in range(80000)),
    'sum-overflows': lambda: 'M0 0' + 'l1e308 1e308' * 1000,
}
add_table('path', _PATHS, lambda path: svg(f'<path fill="red" stroke="blue" d="{path}"/>'))
add_table('path-dashed', {key: _PATHS[key] for key in ('lines', 'curves', 'arcs', 'far-lines', 'star')},
          lambda path: svg(f'<path fill="none" stroke="blue" stroke-dasharray="0.01" stroke-width="50" d="{path}"/>'))


def _mark(path):
    return svg('<marker id="m" markerWidth="3" markerHeight="3"><rect width="3" height="3"/></marker>'
               f'<path marker-start="url(#m)" marker-mid="url(#m)" d="{path}"/>')


add_table('path-marked', {'arcs': _PATHS['arcs']}, _mark)
add_table('path-marked', {'moves': _PATHS['moves']}, _mark, refused=True)
add_table('points', {'many': lambda: '1,2 ' * 240000, 'commas': lambda: ',' * 900000, 'odd': '1 2 3'},
          lambda points: svg(f'<polygon points="{points}"/><polyline stroke="red" points="{points}"/>'
                             if len(points) < 500000 else f'<polygon stroke="red" points="{points}"/>'))


def _nest(element, count, attributes='', content=_SQUARE):
    return f'<{element} {attributes}>' * count + content + f'</{element}>' * count


_NESTS = {
    'groups': _nest('g', 254), 'faded': _nest('g', 250, 'opacity="0.99"', _SQUARE * 2),
    'scaled': _nest('g', 250, 'transform="scale(10)"'), 'shrunk': _nest('g', 250, 'transform="scale(0.1)"'),
    'svg': _nest('svg', 250, 'x="1" width="90%" height="90%" viewBox="0 0 9 9"'), 'links': _nest('a', 250),
    'switches': _nest('switch', 250), 'symbols': _nest('symbol', 250), 'definitions': _nest('defs', 250),
    'clipped': '<clipPath id="c"><circle r="50"/></clipPath>' + _nest('g', 250, 'clip-path="url(#c)"'),
    'masked': '<mask id="c"><circle r="50"/></mask>' + _nest('g', 250, 'mask="url(#c)" filter="url(#f)"'),
    'spans': '<text y="9">' + _nest('tspan', 250, 'dx="1" baseline-shift="super"', 'text') + '</text>',
    'ems': _nest('g', 250, 'font-size="2em"', '<text>text</text>'),
    'percents': _nest('g', 250, 'font-size="1%"', '<text>text</text>'),
    'styles': _nest('g', 250, 'style="font-size:larger;stroke-width:2em;fill:inherit"', _SQUARE * 100),
    'patterns': _nest('pattern', 250, 'id="p" width="5" height="5"') + '<rect width="50" height="50" fill="url(#p)"/>',
    'markers': _nest('marker', 250, 'id="m"') + '<path d="M0 0L9 9" marker-end="url(#m)"/>',
}
add_table('nest', _NESTS, svg)
add_table('nest-too-deep', {
    'by-one': _nest('g', 255), 'groups': _nest('g', 60000), 'open': '<g>' * 300000, 'spans': _nest('tspan', 30000),
    'symbols': _nest('symbol', 1000), 'foreign': _nest('x', 1000)}, svg, refused=True)

_COUNTS = {
    'attributes': lambda: ('<rect ' + ' '.join(f'a{number}="1"' for number in range(4000)) + '/>') * 20,
    'shapes': lambda: '<rect width="1" height="1"/>' * 36000,
    'faded-groups': lambda: '<g opacity=".5"><path d="M0 0H9V9z"/><path d="M5 5H9V9z"/></g>' * 4000,
    'nested-svgs': lambda: '<svg width="5" height="5"><path d="M0 0H9V9"/></svg>' * 10000,
    'unknown': lambda: '<x/>' * 240000,
    'switches': lambda: ('<switch><g systemLanguage="' + 'aa,' * 1000 + 'en"/><g/></switch>') * 200,
    'id-of-a-megabyte': lambda: f'<rect id="{"a" * 480000}" width="5" height="5"/><use xlink:href="#{"a" * 480000}"/>',
    'name-of-a-megabyte': lambda: f'<{"a" * 900000}/>' + _SQUARE,
    'attribute-name-of-a-megabyte': lambda: f'<g {"a" * 900000}="1"/>' + _SQUARE,
    'title-of-a-megabyte': lambda: '<title>' + 'a(\\)' * 220000 + '</title>' + _SQUARE,
    'description-of-a-megabyte': lambda: '<desc>' + '\u00e4 ' * 300000 + '</desc>' + _SQUARE,
    'colours': lambda: ''.join(f'<path d="M0 0H9V9" fill="#{number:06x}"/>' for number in range(20000)),
    'colour-of-a-megabyte': lambda: f'<g fill="rgb({"1," * 400000})" stroke="#{"f" * 100000}">{_SQUARE}</g>',
    'namespaces': lambda: '<g ' + ' '.join(f'xmlns:n{number}="u"' for number in range(4000)) + '><n7:rect/></g>',
    'filters': lambda: '<filter id="f">' + '<feGaussianBlur stdDeviation="1e9"/>' * 20000 +
               '</filter><g filter="url(#f)">' + _SQUARE + '</g>',
}
add_table('count', _COUNTS, svg)


@document(refused=True)
def count_a_million_attributes():
    return svg('<rect ' + ' '.join(f'a{number}=""' for number in range(1000000)) + '/>')


add('count-pages', lambda: '<a>' + '<svg width="1e300" height="1e-300"><path d="M0 0H9V9"/></svg>' * 2000 + '</a>',
    refused={'png'})
