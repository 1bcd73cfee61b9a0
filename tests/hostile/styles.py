# SPDX-License-Identifier: MIT
"""Documents with hostile style sheets, texts and paints."""

from corpus import add_table, svg

_SQUARE = '<rect class="a" width="50" height="50" fill="red"/>'
_DEEP = '<g class="a">' * 200 + _SQUARE * 50 + '</g>' * 200

_SHEETS = {
    'rules': lambda: ''.join(f'.c{number}{{fill:#{number:06x}}}' for number in range(40000)),
    'rules-for-all': lambda: '*{fill:red}' * 80000,
    'selectors': lambda: ','.join(['rect'] * 180000) + '{fill:red}',
    'declarations': lambda: 'rect{' + 'fill:red;' * 100000 + '}',
    'descendants': lambda: ' '.join(['g'] * 400) + ' x{fill:red}' * 200,
    'descendants-back-and-forth': lambda: ('g ' * 100 + 'x rect{fill:red}') * 1000,
    'siblings': lambda: ('rect~' * 50 + 'x+rect{fill:red}') * 1000,
    'negations': lambda: 'rect' + ':not(' * 100000 + 'a' + ')' * 100000 + '{fill:red}',
    'matches': lambda: ':is(' * 150000 + '{fill:red}',
    'brackets': lambda: 'rect{fill:' + '(' * 400000 + '}', 'squares': lambda: '[' * 900000,
    'braces': lambda: '{' * 900000,
    'functions': lambda: 'rect{fill:' + 'calc(' * 180000 + '}', 'media': lambda: '@media all{' * 80000,
    'media-conditions': lambda: '@media ' + 'not (' * 150000 + '{rect{fill:red}}',
    'at-rules': lambda: '@' * 900000, 'imports': lambda: '@import url(a.css);' * 40000,
    'quotes': lambda: '"' * 900001, 'comment': lambda: '/*' + '*' * 900000, 'comments': lambda: '/**/' * 220000,
    'escapes': lambda: '\\41 ' * 220000 + '{fill:red}', 'slashes': lambda: '\\' * 900000,
    'url': lambda: 'rect{fill:url(' + 'a' * 900000, 'semicolons': lambda: 'rect{' + ';' * 900000,
    'attributes': lambda: '[class' * 1 + '][id' * 150000 + ']{fill:red}',
    'nth': 'rect:nth-child(99999999999999999999n+99999999999999999999),rect:nth-last-child(-1n-1){fill:blue}',
    'variables': lambda: ':root{' + ''.join(f'--v{number}:{number};' for number in range(50000)) + '}',
    'variables-on-all': lambda: '*{--a:var(--b, var(--c, var(--d, red)));fill:var(--a)}' * 15000,
    'fallbacks': lambda: 'rect{fill:' + 'var(--a,' * 100000 + 'red' + ')' * 100000 + '}',
    'names': lambda: 'rect{' + 'a' * 900000 + ':red}',
}
add_table('sheet', _SHEETS, lambda sheet: svg(f'<style><![CDATA[{sheet}]]></style>' + _DEEP))

_STYLES = {
    'declarations': lambda: 'fill:red;' * 100000, 'colons': lambda: ':' * 900000, 'semicolons': lambda: ';' * 900000,
    'blanks': lambda: ' ' * 900000, 'brackets': lambda: 'fill:' + '(' * 900000, 'unknown': lambda: 'a:b;' * 220000,
    'font': lambda: 'font:' + 'bold ' * 150000, 'families': lambda: 'font-family:' + "'a'," * 200000,
    'url': lambda: 'fill:url(#' + 'a' * 900000, 'urls': lambda: 'fill:' + 'url(#a) ' * 100000,
}
add_table('style', _STYLES, lambda style: svg(
    f'<rect style="{style}" width="50" height="50"/><text y="9">text</text>'))
add_table('classes', {'many': lambda: 'a ' * 400000, 'one': lambda: 'a' * 900000}, lambda classes: svg(
    '<style>.a{fill:red}.b{fill:blue}</style>' + f'<rect class="{classes}" width="50" height="50"/>'))

_TEXTS = {
    'words': lambda: 'A megabyte. ' * 75000, 'word': lambda: 'a' * 900000, 'marks': lambda: 'a' + '\u0301' * 400000,
    'right-to-left': lambda: '\u05d0\u0661a ' * 120000, 'overrides': lambda: '\u202e' * 300000,
    'embeddings': lambda: '\u202ba\u2067b' * 90000, 'joiners': lambda: '\U0001f468\u200d' * 120000,
    'controls': '&#x7f;&#x85;&#x9f;\u200b\ufeff\ufffd\ufffe'.replace('\ufffe', '') * 1000,
    'emoji': lambda: '\U0001f600' * 5000, 'scripts': lambda: 'a\u0430\u05d0\u0627\u0915\u4e00\uac00\U0001f600' * 8000,
    'spans': lambda: '<tspan>a</tspan>' * 50000, 'spans-placed': lambda: '<tspan x="1" dy="1">a</tspan>' * 25000,
    'spans-styled': lambda: ''.join(f'<tspan font-size="{size}">a</tspan>' for size in range(1, 20000)),
    'breaks': lambda: '\n' * 900000, 'unassigned': lambda: '\U000e0fff\ue000' * 50000,
}
add_table('text', _TEXTS, lambda text: svg(f'<text y="50" font-size="9">{text}</text>'))
_TEXT_ATTRIBUTES = {
    'x': lambda: f'x="{"1 " * 200000}"', 'rotate': lambda: f'rotate="{"9 " * 200000}"',
    'dx': lambda: f'dx="{"1e300 " * 90000}"',
    'size-great': 'font-size="1e300"', 'size-pixels': 'font-size="100000"', 'size-smallest': 'font-size="1e-300"',
    'spacing': 'letter-spacing="1e300" word-spacing="-1e300"', 'length': 'textLength="1e300"',
    'stroke': 'stroke="red" stroke-width="1e9" stroke-dasharray="0.001"',
    'family': lambda: f'font-family="{"a" * 900000}"',
    'families': lambda: 'font-family="' + ','.join(f'n{number}' for number in range(50000)) + '"',
    'weight': 'font-weight="99999999999" font-stretch="x" font-style="oblique 1e9deg"',
    'language': 'xml:lang="' + 'a-' * 5000 + '"',
    'upright': 'writing-mode="tb" glyph-orientation-vertical="1e300"', 'size-flat': 'transform="scale(1e6 1e-6)"',
}
add_table('text-attribute', _TEXT_ATTRIBUTES, lambda attributes: svg(
    f'<text y="50" {attributes}>Some text with words.</text>'))
add_table('text-documents', {
    'families': lambda: ''.join(f'<text font-family="n{number}, m{number}">a</text>' for number in range(15000)),
    'sizes': lambda: ''.join(f'<text font-size="{size}">ab</text>' for size in range(1, 15000)),
    'on-path': lambda: '<path id="p" d="M0 0' + 'L9 9L0 9' * 20000 + '"/>' +
               '<text><textPath xlink:href="#p" startOffset="1e300">text</textPath></text>' * 100,
    'many': lambda: '<text y="9">text</text>' * 35000}, svg)

_STOPS = '<stop stop-color="red"/><stop offset="1" stop-color="blue" stop-opacity="0.5"/>'
_FILLED = '<rect width="90" height="90" fill="url(#g)" stroke="url(#g)" stroke-width="9"/>'
_GRADIENTS = {
    'stops': lambda: '<linearGradient id="g">' + ''.join(
        f'<stop offset="{number / 20000}" stop-color="#{number:06x}"/>'
        for number in range(20000)) + '</linearGradient>',
    'short': f'<linearGradient id="g" spreadMethod="repeat" x2="1e-300">{_STOPS}</linearGradient>',
    'finely-repeated': f'<linearGradient id="g" spreadMethod="repeat" x2="1e-9">{_STOPS}</linearGradient>',
    'reflected': f'<radialGradient id="g" spreadMethod="reflect" r="1e-6" fx="9">{_STOPS}</radialGradient>',
    'no-radius': f'<radialGradient id="g" r="0" fr="-1">{_STOPS}</radialGradient>',
    'singular': f'<linearGradient id="g" gradientTransform="scale(0)">{_STOPS}</linearGradient>',
    'far': f'<linearGradient id="g" gradientTransform="translate(1e300) scale(1e-300)">{_STOPS}</linearGradient>',
    'on-all': lambda: f'<radialGradient id="g" spreadMethod="repeat" r="0.01">{_STOPS}</radialGradient>' + _FILLED * 20,
    'on-marks': lambda: f'<linearGradient id="g" gradientTransform="rotate(30)">{_STOPS}</linearGradient>' + ''.join(
        f'<circle cx="{number % 90}" cy="50" r="{9 + number % 9}" fill="url(#g)"/>' for number in range(10000)),
    'many': lambda: ''.join(f'<linearGradient id="g{number}" x2="0.{number}">{_STOPS}</linearGradient>'
                            f'<rect width="90" height="{number % 90}" fill="url(#g{number})"/>'
                            for number in range(2000)),
}
add_table('gradient', _GRADIENTS, lambda gradient: svg(gradient + _FILLED), draws_pictures=True)

_PATTERNS = {
    'fine': '<pattern id="g" width="1e-6" height="1e-6"><rect width="1" height="1"/></pattern>',
    'finest': '<pattern id="g" width="1e-300" height="1e-300"><rect width="1" height="1"/></pattern>',
    'great': '<pattern id="g" width="1e300" height="1e300"><circle r="1e300"/></pattern>',
    'thin': '<pattern id="g" width="1e9" height="0.001" patternUnits="userSpaceOnUse">'
            '<rect width="9" height="9"/></pattern>',
    'singular': '<pattern id="g" width="5" height="5" patternTransform="scale(0)"><circle r="2"/></pattern>',
    'skewed': '<pattern id="g" width=".1" height=".1" patternTransform="skewX(89.9999)"><circle r="2"/></pattern>',
    'full': lambda: '<pattern id="g" width="9" height="9" patternUnits="userSpaceOnUse">' +
            '<circle r="5" fill-opacity="0.5"/>' * 20000 + '</pattern>',
    'on-all': lambda: '<pattern id="g" width=".1" height=".1"><circle r="2"/><path d="M0 0L5 5"/></pattern>' +
              _FILLED * 2000,
    'of-text': lambda: '<pattern id="g" width=".1" height=".1"><text y="5">text</text></pattern>' + _FILLED * 100,
}
add_table('pattern', _PATTERNS, lambda pattern: svg(pattern + _FILLED), draws_pictures=True)
