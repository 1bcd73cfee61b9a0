# SPDX-License-Identifier: MIT
"""What of SVG a drawing uses, as far as its text tells."""

import gzip
import re
from collections import Counter

# A property with its value, as an attribute, in a style attribute or in a sheet.
def _set(names, values):
    return rf'''(?<![\w-])(?:{names})\s*(?:=\s*["']|:)\s*(?:{values})'''


_NUMBER = r'-?[\d.]+(?:e-?\d+)?'

# Name and the expression that finds it.
_EXPRESSIONS = {name: re.compile(expression) for name, expression in {
    'style sheet': r'<style[\s>]',
    'style sheet: @import': r'@import',
    'style sheet: selectors': r'<style[^>]*>[^<]*[>+~\[:][^{};<]*\{',
    'style sheet: media': r'@media',
    'processing instruction': r'<\?xml-stylesheet',
    'entities': r'<!ENTITY',
    'prefix': r'<\w+:svg[\s>]',
    'mask': _set('mask', r'url\('),
    'filter': _set('filter', r'url\('),
    'filter function': _set('filter', r'\w+\((?<!url\()'),
    'blend mode': _set('mix-blend-mode', r'(?!normal)\w'),
    'clip path': _set('clip-path', r'url\('),
    'clip': _set('clip', r'rect'),
    'marker': _set(r'marker(?:-\w+)?', r'url\('),
    'symbol': r'<symbol[\s>]',
    'use': r'<use[\s>]',
    'switch': r'<switch[\s>]',
    'foreignObject': r'<foreignObject[\s>]',
    'nested svg': r'(?s)<svg[\s>].*<svg[\s>]',
    'image': r'<image[\s>]',
    'image of a file': r'''<image[^>]*href\s*=\s*["'](?!data:)[^"']''',
    'image of SVG': r'''<image[^>]*href\s*=\s*["'](?:data:image/svg|[^"']*\.svg)''',
    'text': r'<text[\s>]',
    'text: tspan': r'<tspan[\s>]',
    'text: textPath': r'<textPath[\s>]',
    'text: tref': r'<tref[\s>]',
    'text: flowRoot': r'<flow(?:Root|Para|Region)[\s>]',
    'text: positions': rf'''<(?:text|tspan)[^>]*\s(?:d?x|d?y|rotate)\s*=\s*["']\s*{_NUMBER}[\s,]+{_NUMBER}''',
    'text: anchor': _set('text-anchor', 'middle|end'),
    'text: vertical': _set('writing-mode', r'tb|vertical'),
    'text: right to left': r'''[\u0590-\u08ff]|direction\s*[=:]\s*["']?rtl''',
    'text: decoration': _set('text-decoration', r'(?!none)\w'),
    'text: baseline': _set('baseline-shift|dominant-baseline|alignment-baseline', r'(?!baseline|auto|inherit)[\w-]'),
    'text: spacing': _set('letter-spacing|word-spacing|textLength', r'-?[.\d]*[1-9]'),
    'text: style': _set('font-style', 'italic|oblique'),
    'text: stretch, variant': _set('font-stretch|font-variant', r'(?!normal)\w'),
    'text: SVG font': r'<font[\s>]',
    'gradient: spread': r'spreadMethod\s*=\s*["\'](?:reflect|repeat)',
    'gradient: focus': r'<radialGradient[^>]*\sf[xy]\s*=',
    'gradient: transform': r'gradientTransform',
    'gradient: href': r'<(?:linear|radial)Gradient[^>]*href',
    'dashes': _set('stroke-dasharray', r'[\d.]'),
    'even-odd': _set('fill-rule', 'evenodd'),
    'group opacity': r'<g[^>]*[\s;"\']opacity\s*(?:=\s*["\']|:)\s*0?\.\d*[1-9]',
    'opacity': r'(?<![\w-])(?:fill-|stroke-)?opacity\s*(?:=\s*["\']|:)\s*0?\.\d',
    'currentColor': r'(?i)currentcolor',
    'colour functions': r'(?:rgba|hsla?)\(|rgb\([^)]*%',
    'rounded rectangle': r'<rect[^>]*\sr[xy]\s*=',
    'percentages': r'''\s(?:x|y|width|height|cx|cy|r|rx|ry|x1|x2|y1|y2)\s*=\s*["'][\d.]+%''',
    'em, ex': rf'''=\s*["']{_NUMBER}e[mx]["']''',
    'units': rf'''<(?!svg)[^>]*\s(?:x|y|width|height|r|x1|x2|stroke-width)\s*=\s*["']{_NUMBER}(?:mm|cm|in|pt|pc)''',
    'visibility, display': r'''(?:visibility\s*[=:]\s*["']?(?:hidden|collapse)|display\s*[=:]\s*["']?none)''',
    'preserveAspectRatio': r'preserveAspectRatio\s*=\s*["\'](?!\s*xMidYMid(?: meet)?\s*["\'])',
    'no size': r'(?s)^(?!.*<(?:\w+:)?svg[^>]*\swidth\s*=)',
    'no viewBox': r'(?s)^(?!.*<(?:\w+:)?svg[^>]*\sviewBox\s*=)',
    'viewBox off zero': r'''<(?:\w+:)?svg[^>]*\sviewBox\s*=\s*["']\s*(?!\+?0[\s,]+\+?0[\s,])-?[\d.]''',
    'compact numbers': r'''\s(?:d|points|transform)\s*=\s*["'][^"']*\d?\.\d+\.\d''',
    'arcs': r'''\sd\s*=\s*["'][^"']*[aA]''',
    'animation': r'<(?:animate\w*|set)[\s>]',
    'script': r'<script[\s>]',
    'paint order, vector effect': _set('paint-order|vector-effect', r'(?!normal|none)\w'),
}.items()}

_SERVER = re.compile(r'''<(linearGradient|radialGradient|pattern)[^>]*\sid\s*=\s*["']([^"']+)''')
_SERVED = re.compile(r'''(?<![\w-])(fill|stroke)\s*(?:=\s*["']|:)\s*url\(\s*["']?#([^)"']+)''')
_SERVER_NAMES = {'linearGradient': 'linear gradient', 'radialGradient': 'radial gradient', 'pattern': 'pattern'}


def scan(path):
    """The names of the features that the file shows, a set."""
    content = path.read_bytes()
    if content[:2] == b'\x1f\x8b':
        return scan_text(gzip.decompress(content).decode('utf-8', 'replace')) | {'compressed'}
    return scan_text(content.decode('utf-8', 'replace'))


def scan_text(text):
    text = re.sub(r'(?s)<!--.*?-->', '', text)
    found = {name for name, expression in _EXPRESSIONS.items() if expression.search(text)}
    # Drawing programs leave many definitions behind that nothing uses.
    servers = {name: kind for kind, name in _SERVER.findall(text)}
    for paint, name in set(_SERVED.findall(text)):
        kind = _SERVER_NAMES.get(servers.get(name), 'missing paint')
        found.add(f'stroke: {kind}' if paint == 'stroke' else kind)
    if not any('gradient' in name and ':' not in name or name.startswith('stroke: ') for name in found):
        found = {name for name in found if not name.startswith('gradient: ')}
    return found


class Suspects:
    """Tells from all drawings measured which feature of one is most likely why it looks different."""

    def __init__(self, results):
        self._bearers = Counter(name for result in results for name in result.features)
        self._differing = Counter(name for result in results if result.is_different for name in result.features)

    def name(self, features):
        """The feature whose bearers differ most often; the rarest of several such."""
        return max(features, key=lambda name: (self.share(name), -self._bearers[name]), default='nothing special')

    def share(self, name):
        return self._differing[name] / (self._bearers[name] + 1)

    def counts(self, name):
        return self._differing[name], self._bearers[name]
