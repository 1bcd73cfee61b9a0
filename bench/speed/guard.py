# SPDX-License-Identifier: MIT
"""Whether zamprint has become slower: instructions, which are the same from run to run, beside those recorded."""

import os
import re
import subprocess
from pathlib import Path

import documents

_RECORD = Path(__file__).with_name('instructions.txt')

# More than two compilers of a release differ, less than what is worth a look.
MARGIN = 0.05

_STEPS = ('model', 'pdf')

# The C library chooses its functions by the processor: here all processors have the same ones.
_PLAIN = 'glibc.cpu.hwcaps=-AVX2,-AVX,-AVX_Fast_Unaligned_Load,-FMA,-FMA4,-BMI1,-BMI2,-LZCNT,-POPCNT,-MOVBE,-ERMS,' \
         '-FSRM,-RTM,-SSE4_1,-SSE4_2,-SSSE3,-AVX512F,-AVX512VL,-AVX512BW'


def count(program, step, path):
    """The instructions of a step."""
    environment = os.environ | {'GLIBC_TUNABLES': _PLAIN, 'SOURCE_DATE_EPOCH': '0', 'LC_ALL': 'C'}
    done = subprocess.run(['valgrind', '--tool=callgrind', '--callgrind-out-file=/dev/null', '--collect-atstart=no',
                           '--toggle-collect=Measured', program, step, path], env=environment,
                          stderr=subprocess.PIPE, text=True, timeout=120)
    found = re.search(r'Collected : (\d+)', done.stderr)
    if done.returncode or not found or not int(found[1]):
        raise RuntimeError(f'{step} {path}: nothing counted\n{done.stderr}')
    return int(found[1])


def read_record(path=_RECORD):
    rows = (line.split() for line in path.read_text(encoding='utf-8').splitlines() if not line.startswith('#'))
    return {(step, name): int(instructions) for step, name, instructions in rows}


def judge(instructions, recorded):
    """What is to be said of a figure, and whether it is good."""
    change = instructions / recorded - 1
    if change > MARGIN:
        return f'slower by {change:.1%}', False
    if change < -MARGIN:
        return f'quicker by {-change:.1%}: record it', True
    return f'{change:+.1%}', True


def guard(program, folder):
    """True when no step takes more instructions than recorded, with a margin."""
    recorded = read_record()
    is_good = True
    for (step, name), instructions in _count_all(program, folder).items():
        said, is_fine = judge(instructions, recorded[step, name])
        is_good = is_good and is_fine
        print(f'guard: {step} of {name}: {instructions:,} instructions, {said}')
    if not is_good:
        print('guard: when that is meant: script/bench --record')
    return is_good


def record(program, folder):
    lines = [f'{step} {name} {instructions}\n' for (step, name), instructions in _count_all(program, folder).items()]
    _RECORD.write_text('# Instructions of the steps; script/bench --record writes them anew.\n' + ''.join(lines),
                       encoding='utf-8')


def _count_all(program, folder):
    paths = documents.guarded(folder)
    return {(step, path.stem): count(program, step, path) for path in paths for step in _STEPS}
