# SPDX-License-Identifier: MIT
"""What reads an output and says whether it is sound."""

import struct
import subprocess
import zlib
from xml.parsers import expat

_SECONDS = 120  # for a reader: more is the output's fault


def _run(command):
    """What a program says when it does not like its file; nothing when it does."""
    try:
        done = subprocess.run(command, capture_output=True, timeout=_SECONDS, check=False)
    except subprocess.TimeoutExpired:
        return f'{command[0]} takes more than {_SECONDS} s'
    text = (done.stdout + done.stderr).decode(errors='replace').strip()
    return text[:300] or f'{command[0]} fails' if done.returncode != 0 else ''


def _judge_pdf(file):
    return _run(['qpdf', '--check', str(file)])


def _judge_svg(file):
    try:
        expat.ParserCreate().Parse(file.read_bytes(), True)
    except expat.ExpatError as error:
        return f'no XML: {error}'
    return ''


def _read_chunks(data):
    position = 8
    while position < len(data):
        length, = struct.unpack_from('>I', data, position)
        chunk = data[position + 4:position + 8 + length]
        if struct.unpack_from('>I', data, position + 8 + length)[0] != zlib.crc32(chunk):
            raise ValueError('a checksum is wrong')
        yield chunk[:4], chunk[4:]
        position += 12 + length


def _judge_png(file):
    try:
        data = file.read_bytes()
        chunks = list(_read_chunks(data))
        width, height, depth, colour = struct.unpack('>IIBB', chunks[0][1][:10])
        samples = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}[colour]
        inflater = zlib.decompressobj()
        pixels = sum(len(inflater.decompress(content)) for kind, content in chunks if kind == b'IDAT')
        if data[:8] != b'\x89PNG\r\n\x1a\n' or chunks[-1][0] != b'IEND' or not inflater.eof or \
                pixels != height * (1 + (width * samples * depth + 7) // 8):
            raise ValueError('rows are missing')
    except (ValueError, KeyError, IndexError, struct.error, zlib.error) as error:
        return f'no PNG: {error}'
    return ''


_JUDGES = {'pdf': _judge_pdf, 'svg': _judge_svg, 'png': _judge_png}


def find_fault(form, file):
    """What is wrong with an output; nothing when it is sound or judged later, together with others."""
    return _JUDGES[form](file) if form in _JUDGES else ''


def _interpret(files):
    # Nothing is drawn: what takes time is the document, not the page.
    return _run(['gs', '-q', '-dSAFER', '-dBATCH', '-dNOPAUSE', '-sDEVICE=nullpage', *map(str, files)])


def _find_faults_of_batch(files):
    # The interpreter takes longer to start than to read most files.
    if _interpret(files) == '':
        return []
    return [f'{file.name}: {fault}' for file in files if (fault := _interpret([file]))]


def find_faults_of_postscript(files, pool):
    batches = [files[start::16] for start in range(16) if files[start::16]]
    return [fault for faults in pool.map(_find_faults_of_batch, batches) for fault in faults]
