# SPDX-License-Identifier: MIT
"""The collections of drawings: where each comes from and which of its files belong to it."""

import os
import subprocess
import tarfile
from pathlib import Path
from typing import NamedTuple


class Collection(NamedTuple):
    package: str
    # Exact, so that figures of two days are of the same drawings; None for Debian's packages, one version a release.
    version: str | None
    folders: tuple[str, ...]


_TESTS = '/usr/libexec/installed-tests/RSVG/fixtures'

COLLECTIONS = {
    'openclipart': Collection('openclipart-svg', None, ('/usr/share/openclipart/svg',)),
    'adwaita': Collection('adwaita-icon-theme', None, ('/usr/share/icons/Adwaita',)),
    'adwaita-colour': Collection('librsvg2-tests', None, (f'{_TESTS}/reftests/adwaita',)),
    'svg1.1': Collection('librsvg2-tests', None, (f'{_TESTS}/reftests/svg1.1',)),
    'reftests': Collection('librsvg2-tests', None, (f'{_TESTS}/reftests', f'{_TESTS}/text', f'{_TESTS}/dimensions')),
    'bootstrap-icons': Collection('bootstrap-icons', '1.13.2', ('package/icons',)),
    'flag-icons': Collection('flag-icons', '7.5.0', ('package/flags',)),
    'simple-icons': Collection('simple-icons', '16.37.0', ('package/icons',)),
    'world': Collection('@svg-maps/world', '2.0.0', ('package',)),
}


def debian_packages():
    return sorted({collection.package for collection in COLLECTIONS.values() if not collection.version})


def find(name, cache):
    """The drawings of a collection, a folder or a file, sorted; raises OSError when they cannot be had."""
    if name not in COLLECTIONS:
        path = Path(name)
        if not path.exists():
            raise OSError(f'there is neither a collection nor a file {name}')
        return _drawings_below(path) if path.is_dir() else [path]
    collection = COLLECTIONS[name]
    root = _fetched(collection, cache) if collection.version else Path('/')
    others = [folder for other, row in COLLECTIONS.items() if other != name for folder in row.folders]
    found = [path for folder in collection.folders for path in _drawings_below(root / folder.lstrip('/'))
             if not any(_belongs(path, other, folder) for other in others)]
    if not found:
        raise OSError(f'{name}: no drawings; is the package {collection.package} installed?')
    return sorted(found)


def _belongs(path, other, folder):
    """Whether a folder inside the one looked through is a collection of its own."""
    return len(other) > len(folder) and other.startswith(folder) and str(path).startswith(other + '/')


def _drawings_below(folder):
    # What a test of a renderer expects to look the same is a second copy of the drawing.
    return sorted(Path(base) / file for base, _, files in os.walk(folder) for file in files
                  if file.endswith('.svg') and not file.endswith('-ref.svg'))


def _fetched(collection, cache):
    # What npm calls the file of a package, scoped ones too.
    package = f'{collection.package.lstrip("@").replace("/", "-")}-{collection.version}'
    folder = cache / package
    if not folder.is_dir():
        cache.mkdir(parents=True, exist_ok=True)
        subprocess.run(['npm', 'pack', '--silent', f'{collection.package}@{collection.version}'],
                       cwd=cache, check=True, stdout=subprocess.DEVNULL, timeout=300)
        unpacked = cache / f'{package}.new'
        with tarfile.open(cache / f'{package}.tgz') as archive:
            archive.extractall(unpacked, [entry for entry in archive if entry.isfile() and entry.name.endswith('.svg')])
        unpacked.rename(folder)
        (cache / f'{package}.tgz').unlink()
    return folder
