# SPDX-License-Identifier: MIT
"""The table of how large PDFs become."""

import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor

from table import Table, ratio

COLLECTIONS = ('openclipart', 'adwaita', 'bootstrap-icons', 'flag-icons', 'world')


def _print_with_peer(path, out):
    target = out / f'{path.stem}.pdf'
    try:
        done = subprocess.run(['rsvg-convert', '-f', 'pdf', '-o', target, path], stderr=subprocess.DEVNULL, timeout=60)
        return target.stat().st_size if done.returncode == 0 else 0
    except subprocess.TimeoutExpired:
        return 0


def _peer_sizes(folder, out, jobs):
    """They do not change from run to run, so they are kept."""
    known = out / 'sizes'
    if not known.exists():
        out.mkdir(exist_ok=True)
        paths = sorted(folder.glob('*.svg'))
        with ThreadPoolExecutor(jobs) as pool:
            sizes = pool.map(lambda path: _print_with_peer(path, out), paths)
        known.write_text(''.join(f'{path.stem} {size}\n' for path, size in zip(paths, sizes)), encoding='utf-8')
    return {name: int(size) for name, size in map(str.split, known.read_text(encoding='utf-8').splitlines())}


def our_sizes(zamprint, folder, out):
    shutil.rmtree(out, ignore_errors=True)
    subprocess.run([zamprint, '-q', '--output-dir', out, *sorted(folder.glob('*.svg'))], stderr=subprocess.DEVNULL)
    return {path.stem: path.stat().st_size for path in out.glob('*.pdf')}


def table(zamprint, material, count, jobs):
    shown = Table('collection', 'documents', 'KB each', 'rsvg-convert KB each', 'total : rsvg-convert',
                  'median : rsvg-convert')
    totals = [0, 0, 0]
    for name in COLLECTIONS:
        folder = material.collection(name, count)
        ours = our_sizes(zamprint, folder, material.folder / f'{folder.name}-ours')
        theirs = _peer_sizes(folder, material.folder / f'{folder.name}-peer', jobs)
        both = [(ours[stem], theirs[stem]) for stem in ours if theirs.get(stem)]
        sums = [len(both), *map(sum, zip(*both))]
        totals = [a + b for a, b in zip(totals, sums)]
        ratios = sorted(a / b for a, b in both)
        shown.add(name, *_cells(*sums), f'{ratios[len(ratios) // 2]:.2f}')
    shown.add('all', *_cells(*totals), '')
    return shown


def _cells(count, ours, theirs):
    return count, f'{ours / count / 1000:.1f}', f'{theirs / count / 1000:.1f}', ratio(ours, theirs)
