# SPDX-License-Identifier: MIT
"""Renders a drawing with both renderers and measures how far the pictures differ."""

import hashlib
import os
import shutil
import struct
import subprocess
import tempfile
from pathlib import Path
from typing import NamedTuple

import features

# The longest side of the pictures, in pixels.
SIZE = 256

# The differing shares of the inked pixels up to which pictures are the same, and near.
SAME = 0.005
NEAR = 0.05

# Which font stands for a missing one is no one's fault, so both renderers are told.
_FONTS = Path(__file__).with_name('fonts.conf')

# zamprint's user units: lengths in millimetres or points come out as long in both pictures.
_UNITS_PER_INCH = '90'


class Result(NamedTuple):
    collection: str
    path: Path
    # same, near, different or failed; skipped when there is nothing to compare with.
    verdict: str
    score: float
    features: frozenset
    note: str = ''

    @property
    def is_different(self):
        return self.verdict in ('different', 'failed')


class Gauge:
    """One of them serves many threads; the pictures of the other renderer are kept in `cache` from run to run."""

    def __init__(self, zamprint, compare, cache, timeout, keep=None, arguments=()):
        self._zamprint = [zamprint, *arguments]
        self._compare = compare
        self._cache = cache / 'pictures'
        self._timeout = timeout
        self._keep = keep
        self._cache.mkdir(parents=True, exist_ok=True)
        self._environment = os.environ | {'FONTCONFIG_FILE': str(_FONTS)}
        self._peer = _FONTS.read_text(encoding='utf-8') + self._run(['rsvg-convert', '--version']).stdout

    def measure(self, collection, path):
        try:
            found = frozenset(features.scan(path))
        except (OSError, EOFError) as error:
            return Result(collection, path, 'skipped', 0.0, frozenset(), str(error))
        with tempfile.TemporaryDirectory() as folder:
            verdict, score, note = self._judge(path, Path(folder))
            return Result(collection, path, verdict, score, found, note)

    def _judge(self, path, folder):
        peer = self._picture_of_peer(path, folder)
        if not peer.stat().st_size:
            return 'skipped', 0.0, 'the other renderer fails'
        ours = folder / 'ours.png'
        width, height = _png_size(peer)
        error = self._failure([*self._zamprint, path, '-o', ours, '-w', str(width), '-h', str(height)])
        if error:
            return 'failed', 1.0, error
        beside = folder / 'beside.png'
        output = self._run([self._compare, ours, peer, *([beside] if self._keep else [])], check=True).stdout
        score = float(output)
        verdict = 'same' if score <= SAME else 'near' if score <= NEAR else 'different'
        if self._keep and verdict != 'same':
            shutil.copy(beside, self._keep / f'{score:.3f} {"_".join(path.parts[-2:])}.png')
        return verdict, score, ''

    def _picture_of_peer(self, path, folder):
        """A file in the cache; an empty one tells that there is no picture."""
        state = path.stat()
        key = f'{self._peer}\n{SIZE}\n{path.absolute()}\n{state.st_size}\n{state.st_mtime_ns}'
        kept = self._cache / f'{hashlib.sha256(key.encode()).hexdigest()[:32]}.png'
        if not kept.exists():
            picture = folder / 'peer.png'
            size = str(SIZE)
            if self._failure(['rsvg-convert', '-a', '-w', size, '-h', size, '-d', _UNITS_PER_INCH,
                              '-p', _UNITS_PER_INCH, '-o', picture, path]):
                picture.write_bytes(b'')
            shutil.move(picture, kept)
        return kept

    def _failure(self, command):
        """What went wrong, empty when nothing did."""
        try:
            done = self._run(command)
        except subprocess.TimeoutExpired:
            return f'not done after {self._timeout:g} s'
        if done.returncode == 0:
            return ''
        lines = done.stderr.strip().splitlines()
        return f'exit status {done.returncode}' + (f': {lines[-1]}' if lines else '')

    def _run(self, command, check=False):
        return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              env=self._environment, encoding='utf-8', errors='replace', timeout=self._timeout,
                              check=check)


def _png_size(path):
    with open(path, 'rb') as file:
        return struct.unpack('>II', file.read(24)[16:24])
