# SPDX-License-Identifier: MIT
"""Documents with pictures that lie about themselves, or hold far more than they seem to."""

import base64
import random
import struct
import zlib

from corpus import SQUEEZED_MEBIBYTE, add_table, svg


def _chunk(kind, data):
    return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))


def _png(width, height, data, depth=8, colour=0, interlace=0, more=b''):
    header = struct.pack('>IIBBBBB', width, height, depth, colour, 0, 0, interlace)
    return b'\x89PNG\r\n\x1a\n' + _chunk(b'IHDR', header) + more + _chunk(b'IDAT', data) + _chunk(b'IEND', b'')


def _zeros(count):
    """So many bytes of zero, compressed as far as deflate goes: a piece that stands for a MiB, again and again."""
    rest = count & 0xFFFFF
    squeezer = zlib.compressobj(9, zlib.DEFLATED, -15)
    end = squeezer.compress(bytes(rest)) + squeezer.flush()
    return b'\x78\xda' + SQUEEZED_MEBIBYTE * (count >> 20) + end + struct.pack('>HH', count % 65521, 1)


def _bmp(width, height, bits, compression, data, offset=54, colours=0):
    header = struct.pack('<IiiHHIIiiII', 40, width, height, 1, bits, compression, len(data), 0, 0, colours, 0)
    return b'BM' + struct.pack('<IHHI', 54 + len(data), 0, 0, offset) + header + data


def _jpeg(width, height, scans=1, progressive=False):
    """A grey JPEG whose scans hold next to nothing."""
    tables = b'\xff\xdb\x00\x43\x00' + b'\x01' * 64
    for kind in (0x00, 0x10):
        tables += b'\xff\xc4\x00\x14' + bytes([kind]) + b'\x01' + b'\x00' * 15 + b'\x00'
    kind = b'\xff\xc2' if progressive else b'\xff\xc0'
    frame = kind + struct.pack('>HBHHB', 11, 8, height, width, 1) + b'\x01\x11\x00'
    scan = b'\xff\xda\x00\x08\x01\x01\x00\x00' + (b'\x00' if progressive else b'\x3f') + b'\x00' + b'\x00' * 4
    return b'\xff\xd8' + tables + frame + scan * scans + b'\xff\xd9'


def _gif(width, height):
    return b'GIF89a' + struct.pack('<HH', width, height) + b'\x00' * 20 + b';'


def _image(data, kind='image/png', attributes='width="90" height="90"'):
    text = base64.b64encode(data).decode() if isinstance(data, bytes) else data
    return f'<image {attributes} xlink:href="data:{kind};base64,{text}"/>'


_DOT = _png(1, 1, zlib.compress(b'\0\x80'))


def _dot_with(chunks):
    return _png(1, 1, zlib.compress(b'\0\0'), more=chunks)


def _marks_of_a_pattern(data):
    tile = f'<pattern id="p" width="20" height="20" patternUnits="userSpaceOnUse">{_image(data)}</pattern>'
    return tile + ''.join(f'<circle cx="{i % 100}" cy="{i * 7 % 100}" r="{10 + i % 9}" fill="url(#p)"/>'
                          for i in range((1000000 - len(tile)) // 50))


def _noise(side):
    """Nothing that compresses, yet small: each pixel is one of two greys."""
    dice = random.Random(side)
    return zlib.compress(b''.join(b'\0' + bytes(dice.choices(b'\0\1', k=side)) for _ in range(side)), 9)


_PICTURES = {
    'png-bomb': lambda: _image(_png(11000, 11000, _zeros(11000 * 11001))),
    'png-too-many-pixels': lambda: _image(_png(30000, 30000, _zeros(30000 * 3751), depth=1)),
    'png-lying': _image(_png(0x7FFFFFFF, 0x7FFFFFFF, zlib.compress(b'\0'))),
    'png-lying-little': _image(_png(20000, 5000, zlib.compress(b'\0'))),
    'png-zero': _image(_png(0, 0, zlib.compress(b'\0'))),
    'png-interlaced': lambda: _image(_png(9000, 9000, _zeros(9000 * 9020), interlace=1)),
    'png-depth': _image(_png(1, 1, zlib.compress(b'\0\0'), depth=77)),
    'png-profile-bomb': lambda: _image(_dot_with(_chunk(b'iCCP', b'a\0\0' + _zeros(400 << 20)))),
    'png-text-bomb': lambda: _image(_dot_with(_chunk(b'zTXt', b'a\0\0' + _zeros(50 << 20)) * 10)),
    'png-chunks': lambda: _image(_dot_with(_chunk(b'teSt', b'') * 50000)),
    'png-short': _image(_DOT[:-20]), 'png-start': _image(_DOT[:8]), 'png-length': _image(_DOT[:8] + b'\xff' * 12),
    'jpeg-lying': _image(_jpeg(65500, 65500), 'image/jpeg'),
    'jpeg-lying-little': _image(_jpeg(10000, 10000), 'image/jpeg'),
    'jpeg-scans': lambda: _image(_jpeg(8000, 8000, 30000, True), 'image/jpeg'),
    'jpeg-zero': _image(_jpeg(0, 0), 'image/jpeg'), 'jpeg-start': _image(b'\xff\xd8\xff', 'image/jpeg'),
    'jpeg-markers': lambda: _image(b'\xff\xd8' + b'\xff\xe0\x00\x02' * 150000, 'image/jpeg'),
    'bmp-lying': _image(_bmp(0x7FFFFFFF, 0x7FFFFFFF, 32, 0, b''), 'image/bmp'),
    'bmp-minus': _image(_bmp(-5, -0x80000000, 24, 0, b'\0' * 99), 'image/bmp'),
    'bmp-runs': _image(_bmp(30000, 4000, 8, 1, b'\0\0\0\0' * 256 + b'\xff\x01' * 300000), 'image/bmp'),
    'bmp-runs-that-move': _image(_bmp(1000, 1000, 8, 1, b'\0\0\0\0' * 256 + b'\x00\x02\xff\xff' * 100000), 'image/bmp'),
    'bmp-runs-that-end': _image(_bmp(1000, 10000, 8, 1, b'\0\0\0\0' * 256 + b'\x00\x00' * 300000), 'image/bmp'),
    'bmp-offset': _image(_bmp(10, 10, 24, 0, b'\0' * 300, offset=0xFFFFFFF0), 'image/bmp'),
    'bmp-colours': _image(_bmp(10, 10, 8, 0, b'\0' * 300, colours=0xFFFFFFFF), 'image/bmp'),
    'gif': _image(_gif(65535, 65535), 'image/gif'),
    'no-base64': _image('*' * 900000), 'nearly-base64': _image('AAA' * 300000 + '='), 'padding': _image('=' * 900000),
    'percents': '<image width="9" height="9" xlink:href="data:image/png,' + '%' * 900000 + '"/>',
    'type-of-a-megabyte': lambda: _image(_DOT, 'a' * 900000),
    'drawn-far': _image(_DOT, attributes='width="1e300" height="1e300"'),
    'drawn-wide': _image(_DOT, attributes='x="-1e6" width="2e6" height="0.001"'),
    'drawn-nowhere': _image(_DOT, attributes='width="0" height="-5" x="nan"'),
    'drawn-often': lambda: _image(_DOT) * 5000,
    'drawn-turned': lambda: ''.join(_image(_DOT, attributes=f'width="{number}" height="9" transform="rotate({number})"')
                                    for number in range(3000)),
    'enlarged-often': lambda: ''.join(_image(_png(2, 2, zlib.compress(b'\0\0\x80\0\x80\0')), attributes=(
        f'width="{30 + number % 60}" height="60" transform="rotate({number})"')) for number in range(3000)),
    'many-large': lambda: _image(_png(3000, 3000, _zeros(3000 * 3001))) * 60,
    'many-different': lambda: ''.join(_image(_png(600, height, _zeros(601 * height))) for height in range(600, 1200)),
    'pattern-large': lambda: _marks_of_a_pattern(_png(2000, 2000, _zeros(2000 * 2001))),
    'pattern-of-noise': lambda: _marks_of_a_pattern(_png(2000, 2000, _noise(2000))),
    'pattern-of-little-noise': lambda: _marks_of_a_pattern(_png(64, 64, _noise(64))),
    'sliced': _image(_DOT, attributes='width="1e-9" height="1e9" preserveAspectRatio="xMaxYMin slice"'),
}
add_table('picture', _PICTURES, svg, draws_pictures=True)
