// SPDX-License-Identifier: MIT
#include "framework/images/ZAMImagesJpegMarkers.h"

#include <algorithm>
#include <string_view>

namespace {

// The second bytes of the markers.
enum Code : unsigned char {
    kStuffing = 0x00,
    kTem = 0x01,
    kSof0 = 0xC0, // baseline
    kSof2 = 0xC2, // progressive
    kDht = 0xC4,
    kJpg = 0xC8,
    kDac = 0xCC,
    kSof15 = 0xCF,
    kRst0 = 0xD0,
    kRst7 = 0xD7,
    kSoi = 0xD8,
    kEoi = 0xD9,
    kSos = 0xDA,
    kDnl = 0xDC,
    kApp0 = 0xE0,
    kApp14 = 0xEE,
};

bool IsBetween(unsigned char code, Code first, Code last) {
    return first <= code && code <= last;
}

bool IsFrame(unsigned char code) {
    return IsBetween(code, kSof0, kSof15) && code != kDht && code != kJpg && code != kDac;
}

bool StartsWith(std::span<const unsigned char> segment, std::string_view name) {
    return segment.size() >= name.size() &&
           std::equal(name.begin(), name.end(), segment.begin(),
                      [](char c, unsigned char byte) { return static_cast<unsigned char>(c) == byte; });
}

class Walk {
public:
    explicit Walk(std::span<const unsigned char> data) : _Data(data) {}

    bool ToTheEnd() {
        unsigned char code = 0;
        if (!TakeMarker(code) || code != kSoi) {
            return false;
        }
        while (TakeMarker(code)) {
            if (code == kEoi) {
                _Markers.end = _Position;
                return _Markers.scans > 0;
            }
            if (code != kTem && !TakeSegment(code)) {
                return false;
            }
        }
        return false;
    }

    [[nodiscard]] const ZAMImagesJpegMarkers& GetMarkers() const { return _Markers; }

private:
    [[nodiscard]] std::size_t Left() const { return _Data.size() - _Position; }

    // 0xFF, perhaps repeated, and the code.
    bool TakeMarker(unsigned char& code) {
        if (Left() < 2 || _Data[_Position] != 0xFF) {
            return false;
        }
        while (Left() > 0 && _Data[_Position] == 0xFF) {
            ++_Position;
        }
        if (Left() == 0) {
            return false;
        }
        code = _Data[_Position++];
        return true;
    }

    // The length counts its own two bytes.
    bool TakeSegment(unsigned char code) {
        const std::size_t length = Left() < 2 ? 0 : BigEndian(_Data.subspan(_Position));
        if (length < 2 || length > Left()) {
            return false;
        }
        const std::span<const unsigned char> segment = _Data.subspan(_Position + 2, length - 2);
        _Position += length;
        if (IsFrame(code)) {
            return TakeFrame(code, segment);
        }
        if (code == kApp0) {
            _Markers.hasJfif = _Markers.hasJfif || (segment.size() >= 14 && StartsWith(segment, {"JFIF\0", 5}));
        } else if (code == kApp14) {
            TakeAdobe(segment);
        } else if (code == kSos) {
            return TakeScan();
        }
        // A picture that tells its height only behind its first scan is too rare to be read.
        return !IsBetween(code, kRst0, kEoi) && code != kStuffing && code != kDnl;
    }

    // Precision, height, width, count of components and three bytes for each.
    bool TakeFrame(unsigned char code, std::span<const unsigned char> segment) {
        if (!IsBetween(code, kSof0, kSof2) || _Markers.components != 0 || segment.size() < 6 || segment[0] != 8) {
            return false;
        }
        _Markers.height = BigEndian(segment.subspan(1));
        _Markers.width = BigEndian(segment.subspan(3));
        _Markers.components = segment[5];
        const bool isKnown = _Markers.components == 1 || _Markers.components == 3 || _Markers.components == 4;
        if (!isKnown || segment.size() != 6 + 3 * static_cast<std::size_t>(_Markers.components)) {
            return false;
        }
        _Markers.hasRgbNames = _Markers.components == 3 && segment[6] == 'R' && segment[9] == 'G' && segment[12] == 'B';
        return _Markers.width > 0 && _Markers.height > 0;
    }

    void TakeAdobe(std::span<const unsigned char> segment) {
        if (segment.size() >= 12 && StartsWith(segment, "Adobe")) {
            _Markers.hasAdobe = true;
            _Markers.adobeTransform = segment[11];
        }
    }

    // Coded data goes on to the next marker other than a restart; a zero behind 0xFF belongs to the data.
    bool TakeScan() {
        if (_Markers.components == 0) {
            return false;
        }
        ++_Markers.scans;
        while (true) {
            const auto rest = _Data.subspan(_Position);
            _Position += static_cast<std::size_t>(std::find(rest.begin(), rest.end(), 0xFF) - rest.begin());
            const std::size_t start = _Position;
            unsigned char code = 0;
            if (!TakeMarker(code)) {
                return false;
            }
            if (code != kStuffing && !IsBetween(code, kRst0, kRst7)) {
                _Position = start;
                return true;
            }
        }
    }

    static std::uint32_t BigEndian(std::span<const unsigned char> bytes) {
        return static_cast<std::uint32_t>(bytes[0]) << 8U | bytes[1];
    }

    std::span<const unsigned char> _Data;
    std::size_t _Position = 0;
    ZAMImagesJpegMarkers _Markers;
};

} // namespace

std::optional<ZAMImagesJpegMarkers> ZAMImagesReadJpegMarkers(std::span<const unsigned char> data) {
    Walk walk(data);
    if (!walk.ToTheEnd()) {
        return {};
    }
    return walk.GetMarkers();
}
