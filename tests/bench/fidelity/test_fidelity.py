# SPDX-License-Identifier: MIT
"""What the comparison with another renderer finds in drawings and concludes from them."""

import gzip
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[3] / 'bench' / 'fidelity'))

import drawings
import features
from measure import Result

_GRADIENT = '<linearGradient id="g" gradientTransform="scale(2)"/>'

# A drawing's text and the features that are in it, all of them.
_ROWS = [
    ('<svg width="1" viewBox="0 0 1 1"/>', set()),
    ('<svg width="1" viewBox="0 0 1 1"><!-- <text>none</text> --></svg>', set()),
    ('<svg viewBox="0 0 1 1"><rect width="1"/></svg>', {'no size'}),
    ('<svg width="1"/>', {'no viewBox'}),
    ('<svg width="1" viewBox="0 -5 1 1"/>', {'viewBox off zero'}),
    ('<s:svg width="1" viewBox="0,0,1,1"/>', {'prefix'}),
]

# What stands in a drawing of a plain frame, and the features that it adds.
_CONTENT = [
    (_GRADIENT, set()),
    (_GRADIENT + '<path fill="url(#g)"/>', {'linear gradient', 'gradient: transform'}),
    (_GRADIENT + '<path style="stroke: url(\'#g\')"/>', {'stroke: linear gradient', 'gradient: transform'}),
    ('<path fill="url(#nowhere)"/>', {'missing paint'}),
    ('<g mask="none" filter="none" style="clip-path:none"/>', set()),
    ('<g mask="url(#m)" style="filter:url(#f);clip-path:url(#c)"/>', {'mask', 'filter', 'clip path'}),
    ('<path style="marker-end:none"/>', set()),
    ('<path style="marker-end:url(#m)"/>', {'marker'}),
    ('<g opacity="1"/>', set()),
    ('<g opacity=".5"/>', {'opacity', 'group opacity'}),
    ('<path fill-opacity="0.5"/>', {'opacity'}),
    ('<path d="M0 0 1.5.5"/>', {'compact numbers'}),
    ('<path d="M0 0a1 1 0 0 0 1 1"/>', {'arcs'}),
    ('<text x="1 2">a</text>', {'text', 'text: positions'}),
    ('<text letter-spacing="0" font-style="normal"/>', {'text'}),
    ('<image href="data:image/svg+xml,"/>', {'image', 'image of SVG'}),
    ('<image href="a.png"/>', {'image', 'image of a file'}),
    ('<svg preserveAspectRatio="xMidYMid"/>', {'nested svg'}),
    ('<style>a > b { }</style>', {'style sheet', 'style sheet: selectors'}),
]


class FeaturesTest(unittest.TestCase):
    def test_scan_text(self):
        framed = [(f'<svg width="1" viewBox="0 0 1 1">{content}</svg>', names) for content, names in _CONTENT]
        for text, names in _ROWS + framed:
            with self.subTest(text):
                self.assertEqual(features.scan_text(text), names)

    def test_compressed(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / 'a.svgz'
            path.write_bytes(gzip.compress(b'<svg/>'))
            self.assertEqual(features.scan(path), {'compressed', 'no size', 'no viewBox'})


class SuspectsTest(unittest.TestCase):
    def test_blames_what_differs_most_often(self):
        rows = [('different', 'mask path'), ('different', 'mask path'), ('same', 'path'), ('failed', 'text path'),
                ('same', 'text')]
        suspects = features.Suspects([Result('', Path(), verdict, 0, frozenset(names.split()))
                                      for verdict, names in rows])
        self.assertEqual(suspects.name({'mask', 'path', 'text'}), 'mask')
        self.assertEqual(suspects.name({'text'}), 'text')
        self.assertEqual(suspects.name(set()), 'nothing special')
        self.assertEqual(suspects.counts('path'), (3, 4))


class DrawingsTest(unittest.TestCase):
    def test_find_below_a_folder(self):
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            (folder / 'b').mkdir()
            for file in ('b/1.svg', 'a.svg', 'a-ref.svg', 'a.png'):
                (folder / file).touch()
            self.assertEqual(drawings.find(name, folder), [folder / 'a.svg', folder / 'b/1.svg'])
            self.assertEqual(drawings.find(f'{name}/a.png', folder), [folder / 'a.png'])
            with self.assertRaises(OSError):
                drawings.find(f'{name}/none', folder)


if __name__ == '__main__':
    unittest.main()
