// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMBitmapRuns.h"

#include <algorithm>

namespace {

// What a second byte means when the first is 0; from 3 on it is a number of colours that stand one by one.
constexpr unsigned char kEndOfLine = 0;
constexpr unsigned char kEndOfPicture = 1;
constexpr unsigned char kMove = 2;

} // namespace

bool ZAMBitmapRuns::Decode() {
    std::fill_n(_Pixels, std::size_t{_Header.width} * _Header.height, 0U);
    while (!IsFull()) {
        const unsigned char* pair = nullptr;
        if (!Take(2, pair)) {
            return false;
        }
        if (pair[0] != 0) {
            RepeatColours(pair[0], pair[1]);
        } else if (pair[1] == kEndOfPicture) {
            return true;
        } else if (pair[1] == kEndOfLine) {
            _X = 0;
            ++_Y;
        } else if (!(pair[1] == kMove ? Move() : CopyColours(pair[1]))) {
            return false;
        }
    }
    return true;
}

// Some writers leave out the end of the picture.
bool ZAMBitmapRuns::IsFull() const {
    return _Y >= _Header.height || (_Y == _Header.height - 1 && _X >= _Header.width);
}

bool ZAMBitmapRuns::Take(std::size_t count, const unsigned char*& bytes) {
    if (count > _Header.data.size() - _Position) {
        return false;
    }
    bytes = _Header.data.data() + _Position;
    _Position += count;
    return true;
}

// What does not fit into the line is dropped.
void ZAMBitmapRuns::Put(std::uint32_t index) {
    if (_X < _Header.width) {
        _Pixels[_Header.GetStartOfRow(_Y) + _X] = _Header.palette[index];
        ++_X;
    }
}

// Of 4 bits, two colours take turns.
void ZAMBitmapRuns::RepeatColours(std::size_t count, std::uint32_t colours) {
    const std::uint32_t first = _Header.bitsPerPixel == 4 ? colours >> 4U : colours;
    const std::uint32_t second = _Header.bitsPerPixel == 4 ? colours & 15U : colours;
    for (std::size_t i = 0; i < count; ++i) {
        Put(i % 2 == 0 ? first : second);
    }
}

// They are padded to an even number of bytes.
bool ZAMBitmapRuns::CopyColours(std::size_t count) {
    const bool isHalf = _Header.bitsPerPixel == 4;
    const std::size_t size = isHalf ? (count + 1) / 2 : count;
    const unsigned char* bytes = nullptr;
    if (!Take(size + size % 2, bytes)) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        Put(!isHalf ? bytes[i] : i % 2 == 0 ? bytes[i / 2] >> 4U : bytes[i / 2] & 15U);
    }
    return true;
}

bool ZAMBitmapRuns::Move() {
    const unsigned char* steps = nullptr;
    if (!Take(2, steps)) {
        return false;
    }
    _X = std::min<std::size_t>(_X + steps[0], _Header.width);
    _Y += steps[1];
    return true;
}
