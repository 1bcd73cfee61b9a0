# SPDX-License-Identifier: MIT
"""The tables of whole processes: zamprint beside the converters that people would pick instead."""

import os
import shutil
import statistics
import subprocess
import tempfile
from typing import NamedTuple

from table import Table, ratio


class Usage(NamedTuple):
    wall: float
    cpu: float
    memory: float  # MiB


class Job(NamedTuple):
    name: str
    inputs: list
    format: str


# What each converter is called with; None where it cannot do the job.
def _zamprint(program):
    return lambda job, out: [program, *job.inputs, '-o', out]


def _rsvg_convert(job, out):
    return ['rsvg-convert', '-f', job.format, '-o', out, *job.inputs]


def _cairosvg(job, out):
    return ['cairosvg', job.inputs[0], '-f', job.format, '-o', out] if len(job.inputs) == 1 else None


def _inkscape(job, out):
    return ['inkscape', f'--export-filename={out}', job.inputs[0]] if len(job.inputs) == 1 else None


_PEERS = {'rsvg-convert': _rsvg_convert, 'cairosvg': _cairosvg, 'inkscape': _inkscape}


def peers():
    return {name: command for name, command in _PEERS.items() if shutil.which(name)}


def measure(launcher, command):
    output = subprocess.run([launcher, *map(str, command)], check=True, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, text=True, timeout=600).stdout
    wall, cpu, memory = map(float, output.split())
    return Usage(wall, cpu, memory / 1024)


def _measure_in_turn(launcher, commands, seconds, most):
    """The median of what each command takes. They take turns, so that what disturbs one disturbs all."""
    usages = {name: [] for name in commands}
    for _ in range(most):
        for name, command in commands.items():
            known = usages[name]
            if len(known) < 3 or sum(usage.wall for usage in known) < seconds:
                known.append(measure(launcher, command))
    return {name: Usage(*(statistics.median(figures) for figures in zip(*known))) for name, known in usages.items()}


def jobs(material):
    icons = sorted(material.icons.glob('*.svg'))
    return [
        Job('icon to PNG', [material.icon], 'png'),
        Job('icon to PDF', [material.icon], 'pdf'),
        Job(f'{len(icons)} icons to one PDF', icons, 'pdf'),
        Job('world map to PDF', [material.map], 'pdf'),
        Job('world map to PNG', [material.map], 'png'),
        Job('plot to PDF', [material.plot], 'pdf'),
        Job('path of 10,000 lines to PDF', [material.long_path], 'pdf'),
        Job('page of text to PDF', [material.text], 'pdf'),
        Job('photo page to PDF', [material.photo], 'pdf'),
        Job('photo page to PNG', [material.photo], 'png'),
    ]


def table(zamprint, launcher, material, is_quick):
    others = peers()
    shown = Table('job', 'CPU ms', 'MiB', *(f'{what} : {peer}' for peer in others for what in ('CPU', 'wall', 'memory')),
                  'bytes : rsvg-convert')
    for job in jobs(material):
        out = {name: material.folder / f'{name}.{job.format}' for name in ('zamprint', *others)}
        commands = {name: make(job, out[name]) for name, make in {'zamprint': _zamprint(zamprint), **others}.items()}
        commands = {name: command for name, command in commands.items() if command}
        usages = _measure_in_turn(launcher, commands, 0.3 if is_quick else 2, 5 if is_quick else 25)
        ours = usages['zamprint']
        ratios = [ratio(a, b) for peer in others for a, b in zip(_order(ours), _order(usages.get(peer)))]
        shown.add(job.name, f'{ours.cpu * 1e3:.1f}', f'{ours.memory:.1f}', *ratios,
                  ratio(out['zamprint'].stat().st_size, out['rsvg-convert'].stat().st_size))
    return shown


def _order(usage):
    return (usage.cpu, usage.wall, usage.memory) if usage else (0, 0, 0)


def workers(zamprint, launcher, material, is_quick):
    # In memory: in one folder of a disk's file system writers of small files wait for each other.
    with tempfile.TemporaryDirectory(dir='/dev/shm' if os.access('/dev/shm', os.W_OK) else None) as out:
        return _workers(zamprint, launcher, material, is_quick, out)


def _workers(zamprint, launcher, material, is_quick, out):
    shown = Table('folder', 'one worker s', 'two workers s', 'two : one')
    # So many that one long document at the end is no great share.
    for name, count in (('bootstrap-icons', 2000), ('openclipart', 500)):
        folder = material.collection(name, count // 10 if is_quick else count)
        inputs = sorted(folder.glob('*.svg'))
        commands = {jobs: [zamprint, '-q', '--jobs', jobs, '--output-dir', out, *inputs] for jobs in (1, 2)}
        usages = _measure_in_turn(launcher, commands, 2, 5)
        shown.add(f'{len(inputs)} of {name}', *(f'{usages[jobs].wall:.2f}' for jobs in (1, 2)),
                  ratio(usages[2].wall, usages[1].wall))
    return shown
