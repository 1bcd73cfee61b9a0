# SPDX-License-Identifier: MIT
"""The documents that are measured: made here, always the same, or taken from packages."""

import base64
import io
import math
import random
import shutil
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / 'fidelity'))

import drawings

# Files of an icon set that are measured together.
SET_SIZE = 500

_PHOTO_SIDES = (2400, 1600)

_WORDS = ('paper ink plate press sheet margin proof colour line type page fold trim bleed gauge roller glyph curve '
          'letter measure').split()


def _framed(content, width=1000, height=1000):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{width}" '
            f'height="{height}" viewBox="0 0 {width} {height}">\n{content}\n</svg>\n')


def _number(value):
    return f'{value:.2f}'.rstrip('0').rstrip('.')


def _points(count, source):
    return [f'{_number(source.uniform(0, 1000))},{_number(source.uniform(0, 1000))}' for _ in range(count)]


def _path_of_lines(count, source):
    first, *rest = _points(count + 1, source)
    return f'<path fill="none" stroke="black" d="M{first} {" ".join("L" + point for point in rest)}"/>'


def _path_of_curves(count, source):
    first, *rest = _points(3 * count + 1, source)
    curves = ' '.join(f'C{" ".join(rest[i:i + 3])}' for i in range(0, len(rest), 3))
    return f'<path fill="none" stroke="black" d="M{first} {curves}"/>'


def _points_list(count, source):
    return f'<polyline fill="none" stroke="black" points="{" ".join(_points(count, source))}"/>'


def _repeated(make):
    return lambda count, source: '\n'.join(make(number, source) for number in range(count))


def _rectangle(_, source):
    return (f'<rect x="{source.randrange(990)}" y="{source.randrange(990)}" width="{source.randrange(1, 10)}" '
            f'height="{source.randrange(1, 10)}" fill="#{source.randrange(1 << 24):06x}"/>')


def _styled(_, source):
    return (f'<rect x="{source.randrange(990)}" y="{source.randrange(990)}" width="7.5" height="4.25" '
            f'style="fill:#{source.randrange(1 << 24):06x};fill-opacity:1;stroke:#{source.randrange(1 << 24):06x};'
            f'stroke-width:{_number(source.uniform(0.1, 2))}px;stroke-linejoin:round;stroke-dasharray:none"/>')


def _group(_, source):
    return (f'<g transform="translate({source.randrange(990)} {source.randrange(990)})" fill="#'
            f'{source.randrange(1 << 24):06x}"><rect width="5" height="5"/></g>')


def _definition_with_use(number, source):
    return (f'<defs><rect id="d{number}" width="5" height="5"/></defs>'
            f'<use xlink:href="#d{number}" x="{source.randrange(990)}" y="{source.randrange(990)}"/>')


def _use(_, source):
    return f'<use xlink:href="#d" x="{source.randrange(990)}" y="{source.randrange(990)}"/>'


def _uses_of_one(count, source):
    return '<defs><rect id="d" width="5" height="5"/></defs>\n' + _repeated(_use)(count, source)


def _text(number, source):
    return f'<text x="{source.randrange(900)}" y="{source.randrange(1000)}" font-size="12">label {number}</text>'


# What grows: a name and what makes N of it.
FAMILIES = {
    'path of lines': _path_of_lines,
    'path of curves': _path_of_curves,
    'points list': _points_list,
    'rectangles': _repeated(_rectangle),
    'styled elements': _repeated(_styled),
    'groups': _repeated(_group),
    'definitions with uses': _repeated(_definition_with_use),
    'uses of one': _uses_of_one,
    'texts': _repeated(_text),
}


def write_family(name, count, folder):
    path = folder / f'{name.replace(" ", "-")}-{count}.svg'
    return _written(path, lambda: _framed(FAMILIES[name](count, random.Random(count))))


def _plot(series_count=20, points_count=2000, markers=2000):
    """As programs write them: groups of a style each, coordinates with many digits, markers by use."""
    source = random.Random(7)
    parts = ['<defs><path id="m" d="M0 1.5C.4 1.5 .8 1.3 1.06 1.06 1.3 .8 1.5 .4 1.5 0 1.5-.4 1.3-.8 1.06-1.06.8-1.3 '
             '.4-1.5 0-1.5z" style="stroke:#1f77b4"/></defs>']
    for series in range(series_count):
        points = ' L '.join(f'{x * 0.45:.6f} {300 + 200 * math.sin(x / 90 + series) + source.gauss(0, 4):.6f}'
                            for x in range(points_count))
        parts.append(f'<g id="line2d_{series}"><path d="M {points}" clip-path="none" style="fill:none;stroke:#'
                     f'{source.randrange(1 << 24):06x};stroke-linecap:square;stroke-width:1.5"/></g>')
    parts += [f'<g><use xlink:href="#m" x="{source.uniform(0, 900):.6f}" y="{source.uniform(0, 600):.6f}" '
              f'style="fill:#1f77b4;stroke:#1f77b4"/></g>' for _ in range(markers)]
    parts += [f'<g id="tick_{number}"><path d="M {number * 9} 600 L {number * 9} 0" style="fill:none;stroke:#b0b0b0;'
              f'stroke-width:0.8"/></g>' for number in range(100)]
    return _framed('\n'.join(parts), 900, 600)


def _text_page():
    source = random.Random(11)
    lines = [f'<text x="60" y="{80 + 18 * line}" font-family="serif" font-size="13">'
             f'{" ".join(source.choice(_WORDS) for _ in range(12))}</text>' for line in range(55)]
    return _framed('\n'.join(lines), 794, 1123)


def _photo():
    """A JPEG with what makes photographs large: soft shapes, detail and noise."""
    from PIL import Image
    source = random.Random(13)
    picture = None
    for side in (4, 40, 400):
        size = (side, side * 2 // 3)
        layer = Image.frombytes('RGB', size, source.randbytes(3 * size[0] * size[1]))
        layer = layer.resize(_PHOTO_SIDES, Image.Resampling.BICUBIC)
        picture = layer if picture is None else Image.blend(picture, layer, 0.25)
    stream = io.BytesIO()
    picture.save(stream, 'JPEG', quality=85)
    return stream.getvalue()


def _photo_page():
    data = base64.b64encode(_photo()).decode()
    return _framed(f'<image x="50" y="50" width="694" height="463" xlink:href="data:image/jpeg;base64,{data}"/>'
                   '<rect x="50" y="50" width="694" height="463" fill="none" stroke="black"/>', 794, 1123)


def _gradients(count, source):
    """Shapes of all kinds under style sheets and groups, painted with gradients: what prepress has most to do with."""
    parts = ['<style>.a{stroke:#123;stroke-width:.5}.b{opacity:.8}</style>']
    for number in range(count):
        colours = [f'#{source.randrange(1 << 24):06x}' for _ in range(2)]
        kind = 'linear' if number % 2 else 'radial'
        parts.append(f'<{kind}Gradient id="g{number}"><stop stop-color="{colours[0]}"/><stop offset="1" '
                     f'stop-color="{colours[1]}"/></{kind}Gradient><g class="{"ab"[number % 2]}" transform="rotate('
                     f'{number % 9})"><circle cx="{source.randrange(900)}" cy="{source.randrange(900)}" r="20" '
                     f'fill="url(#g{number})"/><rect x="{source.randrange(900)}" y="{source.randrange(900)}" width="30" '
                     f'height="20" rx="4" fill="{colours[0]}"/></g>')
    return '\n'.join(parts)


def guarded(folder):
    """Three small documents that stand for the others: long paths, many elements of a plot, and much to prepare."""
    folder.mkdir(parents=True, exist_ok=True)
    source = random.Random(3)
    return [
        _written(folder / 'paths.svg', lambda: _framed(_path_of_lines(5000, source) + _path_of_curves(2000, source))),
        _written(folder / 'plot.svg', lambda: _plot(4, 500, 500)),
        _written(folder / 'gradients.svg', lambda: _framed(_gradients(40, source))),
    ]


def _written(path, make):
    if not path.exists():
        path.write_text(make(), encoding='utf-8')
    return path


def _collected(name, folder, cache, count):
    """`count` files of a collection, evenly spread, with names that do not clash."""
    target = folder / f'{name}-{count}'
    if not target.is_dir():
        found = drawings.find(name, cache)
        taken = min(count, len(found))
        fresh = folder / f'{name}.new'
        shutil.rmtree(fresh, ignore_errors=True)
        fresh.mkdir()
        for place in range(taken):
            shutil.copyfile(found[place * len(found) // taken], fresh / f'{place:05}.svg')
        fresh.rename(target)
    return target


class Documents:
    """All of them, below one folder; what is there already is not made again."""

    def __init__(self, folder, cache):
        folder.mkdir(parents=True, exist_ok=True)
        self.folder = folder
        self._cache = cache
        self.icons = self.collection('bootstrap-icons', SET_SIZE)
        self.icon = self.icons / '00000.svg'
        self.map = drawings.find('world', cache)[0]
        self.plot = _written(folder / 'plot.svg', _plot)
        self.text = _written(folder / 'text.svg', _text_page)
        self.photo = _written(folder / 'photo.svg', _photo_page)
        self.long_path = write_family('path of lines', 10_000, folder)

    def collection(self, name, count):
        return _collected(name, self.folder, self._cache, count)

    def family(self, name, count):
        return write_family(name, count, self.folder)
