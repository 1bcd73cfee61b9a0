// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPictureHeader.h"

#include <cmath>
#include <cstdint>

namespace {

using Header = ZAMPrepressPictureHeader;

std::uint32_t ByteAt(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

std::uint32_t BigEndian16(std::string_view bytes, std::size_t at) {
    return ByteAt(bytes, at) << 8U | ByteAt(bytes, at + 1);
}

std::uint32_t BigEndian32(std::string_view bytes, std::size_t at) {
    return BigEndian16(bytes, at) << 16U | BigEndian16(bytes, at + 2);
}

std::uint32_t LittleEndian16(std::string_view bytes, std::size_t at) {
    return ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8U;
}

std::uint32_t LittleEndian32(std::string_view bytes, std::size_t at) {
    return LittleEndian16(bytes, at) | LittleEndian16(bytes, at + 2) << 16U;
}

// PNG 11.2.2: the first chunk is the header.
Header ReadPng(std::string_view bytes) {
    return {Header::Format::Png, static_cast<double>(BigEndian32(bytes, 16)),
            static_cast<double>(BigEndian32(bytes, 20))};
}

// The start of a frame: C0 to CF but for the tables C4, C8 and CC.
bool IsFrame(std::uint32_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// From segment to segment up to the first frame.
Header ReadJpeg(std::string_view bytes) {
    for (std::size_t at = 2; at + 8 < bytes.size();) {
        const std::uint32_t marker = ByteAt(bytes, at + 1);
        if (ByteAt(bytes, at) != 0xFF) {
            break;
        }
        if (marker == 0xFF) { // a fill byte
            ++at;
        } else if (IsFrame(marker)) {
            return {Header::Format::Jpeg, static_cast<double>(BigEndian16(bytes, at + 7)),
                    static_cast<double>(BigEndian16(bytes, at + 5))};
        } else {
            at += 2 + BigEndian16(bytes, at + 2);
        }
    }
    return {Header::Format::Jpeg, 0.0, 0.0};
}

// The oldest header has sides of 16 bits; a negative height says that the top row comes first.
Header ReadBmp(std::string_view bytes) {
    constexpr std::uint32_t kOldHeader = 12;
    if (LittleEndian32(bytes, 14) == kOldHeader) {
        return {Header::Format::Bmp, static_cast<double>(LittleEndian16(bytes, 18)),
                static_cast<double>(LittleEndian16(bytes, 20))};
    }
    const auto side = [&](std::size_t at) {
        return std::abs(static_cast<double>(static_cast<std::int32_t>(LittleEndian32(bytes, at))));
    };
    return {Header::Format::Bmp, side(18), side(22)};
}

bool IsDocument(std::string_view bytes) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    bytes.remove_prefix(bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    const auto first = bytes.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && bytes[first] == '<' && bytes.find("<svg") != std::string_view::npos;
}

} // namespace

Header Header::Read(std::string_view bytes) {
    if (bytes.starts_with("\x89PNG\r\n\x1A\n")) {
        return ReadPng(bytes);
    }
    if (bytes.starts_with("\xFF\xD8\xFF")) {
        return ReadJpeg(bytes);
    }
    if (bytes.starts_with("BM")) {
        return ReadBmp(bytes);
    }
    return {IsDocument(bytes) ? Format::Svg : Format::Unknown, 0.0, 0.0};
}
