# SPDX-License-Identifier: MIT
"""Measures how fast zamprint is, beside other converters and as documents grow; started by script/bench."""

import argparse
import os
import platform
import sys
import tempfile
from datetime import date
from pathlib import Path

import guard
import layers
import processes
import sizes
from documents import Documents

_EPILOG = '''
What counts are ratios: absolute figures hold for one machine and one moment. CPU and wall time are of whole
processes, medians of runs in which the converters take turns; below 1 zamprint takes less. The tables are Markdown.
'''

TABLES = ('layers', 'growth', 'processes', 'sizes', 'workers')


def _options():
    parser = argparse.ArgumentParser(prog='script/bench', description=__doc__, epilog=_EPILOG,
                                     usage='%(prog)s [--build FOLDER] [options] [TABLE ...]')
    parser.add_argument('tables', nargs='*', metavar='TABLE', help=f'of {", ".join(TABLES)}; all without it')
    parser.add_argument('--build', type=Path, metavar='FOLDER', required=True,
                        help='a build of the project to use as it is; must come first; else one is made')
    parser.add_argument('--quick', action='store_true', help='fewer and shorter runs, to see that all works')
    parser.add_argument('--sample', type=int, metavar='N', default=400, help='drawings a collection for sizes; 400')
    parser.add_argument('--guard', action='store_true',
                        help='only count the instructions of three documents and fail when they have become more')
    parser.add_argument('--record', action='store_true', help='count them and keep the figures for --guard')
    options = parser.parse_args()
    if unknown := set(options.tables) - set(TABLES):
        parser.error(f'no table is called {", ".join(sorted(unknown))}')
    options.tables = options.tables or TABLES
    return options


def _machine():
    with open('/proc/cpuinfo', encoding='utf-8') as lines:
        names = [line.split(':')[1].strip() for line in lines if line.startswith('model name')]
    system = platform.freedesktop_os_release()['PRETTY_NAME']
    return f'{names[0] if names else platform.machine()}, {os.cpu_count()} processors, {system}'


def _sections(options, material):
    build = options.build
    program = build / 'zamprint'
    launcher = build / 'measure_process'
    sample = 60 if options.quick else options.sample
    yield 'processes', 'Whole processes', lambda: processes.table(program, launcher, material, options.quick)
    yield 'layers', 'In one process', lambda: layers.speeds(build / 'bench_layers', material, options.quick)
    yield 'growth', 'Growth', lambda: layers.growth(build / 'bench_layers', material, options.quick)
    yield 'sizes', 'Sizes of PDFs', lambda: sizes.table(program, material, sample, os.cpu_count())
    yield 'workers', 'Workers', lambda: processes.workers(program, launcher, material, options.quick)


def main():
    options = _options()
    if options.guard or options.record:
        # Documents of an older generator would not do.
        with tempfile.TemporaryDirectory() as folder:
            run = guard.record if options.record else guard.guard
            return 0 if run(options.build / 'bench_guard', Path(folder)) in (None, True) else 1
    cache = Path(os.environ.get('XDG_CACHE_HOME') or Path.home() / '.cache') / 'zamprint-fidelity'
    material = Documents(options.build / 'bench' / ('quick' if options.quick else 'full'), cache)
    print(f'Measured on {date.today()}: {_machine()}; load {os.getloadavg()[0]:.1f} at the start.\n', flush=True)
    for name, title, make in _sections(options, material):
        if name in options.tables:
            print(f'## {title}\n\n{make()}\n', flush=True)
    return 0


if __name__ == '__main__':
    sys.exit(main())
