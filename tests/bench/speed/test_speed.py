# SPDX-License-Identifier: MIT
"""The documents that speed is measured with, and what is concluded from the figures."""

import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

sys.path.insert(0, str(Path(__file__).parents[3] / 'bench' / 'speed'))

import documents
import guard
from table import Table, ratio


class DocumentsTest(unittest.TestCase):
    def test_families_grow_and_stay_the_same(self):
        with tempfile.TemporaryDirectory() as first, tempfile.TemporaryDirectory() as second:
            for name in documents.FAMILIES:
                texts = [documents.write_family(name, 100, Path(folder)).read_text() for folder in (first, second)]
                self.assertEqual(*texts, name)
                larger = documents.write_family(name, 1000, Path(first)).read_text()
                self.assertGreater(len(larger), 5 * len(texts[0]), name)
                ElementTree.fromstring(larger)

    def test_guarded_documents_are_recorded(self):
        with tempfile.TemporaryDirectory() as folder:
            names = {path.stem for path in documents.guarded(Path(folder))}
            for path in Path(folder).iterdir():
                ElementTree.fromstring(path.read_text())
        self.assertEqual({name for _, name in guard.read_record()}, names)


class FiguresTest(unittest.TestCase):
    def test_guard(self):
        for instructions, is_good in ((1000, True), (1049, True), (1051, False), (2000, False), (500, True)):
            self.assertEqual(guard.judge(instructions, 1000)[1], is_good, instructions)
        self.assertIn('record', guard.judge(500, 1000)[0])

    def test_table(self):
        table = Table('name', 'value')
        table.add('one', 1)
        self.assertEqual(str(table), '| name | value |\n|------|------:|\n| one  |     1 |')

    def test_ratio(self):
        self.assertEqual([ratio(1, 2), ratio(1, 200), ratio(1, 0)], ['0.50', '0.0050', '-'])


if __name__ == '__main__':
    unittest.main()
