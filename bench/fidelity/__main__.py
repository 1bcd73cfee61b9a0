# SPDX-License-Identifier: MIT
"""Compares zamprint's pictures of many drawings with those of rsvg-convert; started by script/fidelity."""

import argparse
import os
import sys
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import drawings
from features import Suspects
from measure import NEAR, SAME, SIZE, Gauge

_EPILOG = f'''
collections: {', '.join(drawings.COLLECTIONS)}

Each drawing becomes a picture whose longest side has {SIZE} pixels, on white, with the same fonts for sans-serif,
serif and monospace. A pixel is compared with the 3 x 3 pixels around its place in the other picture, both ways: it
differs where a channel is more than a tenth outside their lowest and highest values, so that edges may be smoothed
differently or lie a pixel apart. The score is the differing share of the inked pixels, those that are not white in
both pictures (at least a hundredth of all are taken as inked). same: up to {SAME:.1%}; near: up to {NEAR:.0%};
different: more; failed: zamprint made no picture in time; skipped: rsvg-convert made none. The feature blamed for a
difference is, of those that a drawing has, the one whose bearers differ most often: a hint.
'''


def _options():
    parser = argparse.ArgumentParser(prog='script/fidelity', description=__doc__, epilog=_EPILOG,
                                     usage='%(prog)s [--build FOLDER] [options] [COLLECTION|FOLDER|FILE ...]',
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('what', nargs='*', metavar='COLLECTION|FOLDER|FILE', help='all collections without it')
    parser.add_argument('--build', metavar='FOLDER', required=True,
                        help='a build of the project to use as it is; must come first; else one is made')
    parser.add_argument('--sample', type=int, metavar='N', help='N drawings a collection, evenly spread')
    parser.add_argument('--jobs', type=int, metavar='N', default=os.cpu_count(), help='drawings at a time')
    parser.add_argument('--timeout', type=float, metavar='S', default=20, help='seconds for a picture; 20')
    parser.add_argument('--worst', type=int, metavar='N', default=10, help='list the N worst drawings; 10')
    parser.add_argument('--scores', metavar='FILE', help='write verdict, score, drawing, features and note of each')
    parser.add_argument('--keep', type=Path, metavar='FOLDER',
                        help='put those not the same there: zamprint, rsvg-convert and difference side by side')
    parser.add_argument('--prepress', choices=('on', 'off'), help="zamprint's option, to see what it changes")
    options = parser.parse_args()
    if options.sample is not None and options.sample < 1 or options.jobs < 1 or options.timeout <= 0:
        parser.error('--sample and --jobs must be at least 1, --timeout more than 0')
    return options


def _spread(paths, count):
    if count is None or count >= len(paths):
        return paths
    return [paths[place * len(paths) // count] for place in range(count)]


def _print_shares(results, names):
    width = max(map(len, names))
    kinds = ('same', 'near', 'different', 'failed')
    print(f'{"":{width}}  drawings' + ''.join(f'  {kind:>13}' for kind in kinds) + '   skipped')
    for name in [*names, *(['all'] if len(names) > 1 else [])]:
        counts = Counter(result.verdict for result in results if name in ('all', result.collection))
        total = sum(counts[kind] for kind in kinds)
        shares = ''.join(f'  {counts[kind]:5} {counts[kind] / max(total, 1):7.1%}' for kind in kinds)
        print(f'{name:{width}}  {total:8}{shares}  {counts["skipped"]:8}')


def _print_blamed(differing, suspects):
    blamed = Counter(suspects.name(result.features) for result in differing)
    print(f'\nBlamed for {len(differing)} drawings, and how many of all that have the feature differ:')
    for name, count in blamed.most_common(25):
        of, bearers = suspects.counts(name)
        example = max((result for result in differing if suspects.name(result.features) == name),
                      key=lambda result: result.score)
        print(f'{count:5}  {name:28} {of:5} of {bearers:<5}  {example.path}')


def _print_worst(results, suspects, count):
    print('\nThe worst:')
    for result in sorted(results, key=lambda result: -result.score)[:count]:
        reason = result.note or suspects.name(result.features)
        print(f'{result.score:6.3f}  {result.path}  ({reason})')


def _write_scores(results, file_name):
    with open(file_name, 'w', encoding='utf-8') as file:
        for result in results:
            print(result.verdict, f'{result.score:.6f}', result.path, ', '.join(sorted(result.features)), result.note,
                  sep='\t', file=file)


def main():
    options = _options()
    cache = Path(os.environ.get('XDG_CACHE_HOME') or Path.home() / '.cache') / 'zamprint-fidelity'
    names = options.what or list(drawings.COLLECTIONS)
    jobs = []
    for name in names:
        jobs += [(name, path) for path in _spread(drawings.find(name, cache), options.sample)]
    if options.keep:
        options.keep.mkdir(parents=True, exist_ok=True)
    gauge = Gauge(f'{options.build}/zamprint', f'{options.build}/compare_pictures', cache, options.timeout,
                  options.keep, [f'--prepress={options.prepress}'] if options.prepress else [])
    with ThreadPoolExecutor(options.jobs) as pool:
        results = list(pool.map(lambda job: gauge.measure(*job), jobs))
    differing = [result for result in results if result.is_different]
    suspects = Suspects(results)
    _print_shares(results, names)
    if differing:
        _print_blamed(differing, suspects)
        _print_worst(differing, suspects, options.worst)
    if options.scores:
        _write_scores(results, options.scores)


try:
    main()
except OSError as error:
    sys.exit(f'fidelity: {error}')
