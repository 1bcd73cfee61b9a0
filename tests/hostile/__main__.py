# SPDX-License-Identifier: MIT
"""Prints every hostile document in every format and judges what comes of it: python3 tests/hostile ZAMPRINT [NAME...]

A document ends in time and within memory, with an output that its reader accepts or with a clear error and no output.
Which of the two is part of the corpus. NAMEs are patterns of documents' names; all of them without one."""

import fnmatch
import os
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import entities  # noqa: F401: each of these adds its documents
import pictures  # noqa: F401
import references  # noqa: F401
import structure  # noqa: F401
import styles  # noqa: F401
from corpus import FORMATS, get_documents
from judges import find_fault, find_faults_of_postscript
from printing import print_document


def _judge(zamprint, document, form, folder):
    """The faults of one document in one format, the file it was printed to, and what it took."""
    output = folder / f'{document.name}.{form}'
    run = print_document(zamprint, folder / f'{document.name}.in', output, form)
    faults = run.find_faults(form in document.refused, document.draws_pictures)
    if output.exists():
        fault = find_fault(form, output)
        faults += [fault] if fault else []
        if form not in ('ps', 'eps') or faults:
            output.unlink()
    return [f'{document.name}: {form}: {fault}' for fault in faults], output, run


def _run_one(zamprint, document, folder):
    source = folder / f'{document.name}.in'
    source.write_bytes(document.make())
    results = [_judge(zamprint, document, form, folder) for form in FORMATS]
    source.unlink()
    return results


def main(zamprint, patterns):
    documents = [document for document in get_documents()
                 if not patterns or any(fnmatch.fnmatch(document.name, pattern) for pattern in patterns)]
    with tempfile.TemporaryDirectory() as name, ThreadPoolExecutor(os.cpu_count()) as pool:
        folder = Path(name)
        results = [result for of_one in pool.map(lambda document: _run_one(zamprint, document, folder), documents)
                   for result in of_one]
        faults = [fault for of_one, _, _ in results for fault in of_one]
        faults += find_faults_of_postscript([output for _, output, _ in results if output.exists()], pool)
    for kind, unit, key in (('longest', 's', lambda run: run.seconds), ('largest', 'MiB', lambda run: run.mebibytes)):
        most = sorted(results, key=lambda result: key(result[2]), reverse=True)[:5]
        print(f'{kind}:', ', '.join(f'{output.name} {key(run):.2f} {unit}' for _, output, run in most))
    print(f'{len(documents)} documents, {len(results)} prints, {len(faults)} faults')
    print('\n'.join(faults))
    return 1 if faults else 0


if __name__ == '__main__':
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2:]))
