# SPDX-License-Identifier: MIT
"""The tables of what happens inside one process: speeds of the layers, and how they grow with the document."""

import json
import subprocess

import documents
from table import Table, ratio

_SIZES = (10_000, 100_000, 1_000_000)

# Icon sets and drawings whose speeds are shown, besides the made ones.
_SETS = ('adwaita', 'flag-icons', 'openclipart')


def _run(program, kind, paths, options):
    """What was measured, by step and document; of repetitions the quickest, which others disturbed least."""
    output = subprocess.run([program, kind, *map(str, paths), '--benchmark_format=json', *options], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    found = {}
    for row in json.loads(output)['benchmarks']:
        if row['run_type'] != 'iteration':
            continue
        step, name = row['name'].split('/')[:2]
        best = found.setdefault(name, {}).get(step)
        if best is None or row['cpu_time'] < best['cpu_time']:
            found[name][step] = row
    return found


def speeds(program, material, is_quick):
    paths = [material.long_path, material.map, material.plot, material.family('rectangles', 100_000),
             material.family('styled elements', 100_000), material.icons,
             *(material.collection(name, documents.SET_SIZE // 5) for name in _SETS)]
    options = ['--benchmark_min_time=0.05'] if is_quick else ['--benchmark_min_time=0.3', '--benchmark_repetitions=3']
    table = Table('document', 'XML MB/s', 'numbers MB/s', 'model MB/s', 'elements/s', 'XML share', 'numbers share',
                  'prepared MB/s', 'prepress share', 'model to PDF ms', 'model to PNG ms', 'PDF : model')
    for name, steps in _run(program, 'layers', paths, options).items():
        time = {step: row['cpu_time'] for step, row in steps.items()}
        speed = {step: row['bytes_per_second'] / 1e6 for step, row in steps.items() if 'bytes_per_second' in row}
        table.add(name, f'{speed["xml"]:.0f}', f'{speed["numbers"]:.0f}', f'{speed["model"]:.1f}',
                  f'{steps["model"]["elements_per_second"]:,.0f}', f'{time["xml"] / time["model"]:.0%}',
                  f'{time["numbers"] / time["model"]:.0%}', f'{speed["prepared"]:.1f}',
                  f'{time["prepress"] / time["prepared"]:.0%}', f'{time["pdf"]:.2f}', f'{time["png"]:.2f}',
                  ratio(time['pdf'], time['prepared']))
    return table


def growth(program, material, is_quick):
    sizes = _SIZES[:2] if is_quick else _SIZES
    # Only repetitions show the work alone: the first one also gets the pages of its memory from the kernel.
    options = ['--benchmark_min_time=0.05', '--benchmark_repetitions=3']
    table = Table('family', *(f't({size:.0e}) ms' for size in sizes), *('t(10N)/t(N)' for _ in sizes[1:]),
                  'bytes/element', 'bytes/text', *('prepared t(10N)/t(N)' for _ in sizes[1:]),
                  'prepared bytes/element', 'prepress share')
    for name in documents.FAMILIES:
        paths = [material.family(name, size) for size in sizes]
        found = _run(program, 'growth', paths, options)
        rows = [found[path.stem] for path in paths]
        times = {step: [row[step]['cpu_time'] for row in rows] for step in ('model', 'prepared')}
        last = rows[-1]['model']
        # Of a single path, what a segment takes says more.
        elements = max(last['elements'] - 1, sizes[-1])
        table.add(name, *(f'{time:.2f}' for time in times['model']), *_steps(times['model']),
                  f'{last["model_bytes"] / elements:.0f}', f'{last["model_bytes"] / paths[-1].stat().st_size:.2f}',
                  *_steps(times['prepared']), f'{rows[-1]["prepared"]["model_bytes"] / elements:.0f}',
                  f'{1 - times["model"][-1] / times["prepared"][-1]:.0%}')
    return table


def _steps(times):
    return [f'{after / before:.1f}' for before, after in zip(times, times[1:])]
