// SPDX-License-Identifier: MIT
#include "tests/prepress/paint/Png.h"

#include <cstdlib>
#include <string>
#include <zlib.h>

namespace {

unsigned int ByteAt(std::string_view bytes, std::size_t place) {
    return static_cast<unsigned char>(bytes[place]);
}

unsigned int Number(std::string_view bytes, std::size_t place) {
    return ByteAt(bytes, place) << 24U | ByteAt(bytes, place + 1) << 16U | ByteAt(bytes, place + 2) << 8U |
           ByteAt(bytes, place + 3);
}

struct Chunks {
    std::string header;
    std::string palette;
    std::string alphas;
    std::string data;

    bool Read(std::string_view file) {
        if (!file.starts_with("\x89PNG\r\n\x1A\n") || !file.ends_with(std::string_view("IEND\xAE\x42\x60\x82"))) {
            return false;
        }
        for (std::size_t place = 8; place + 12 <= file.size();) {
            const std::size_t size = Number(file, place);
            if (place + 12 + size > file.size()) {
                return false;
            }
            const std::string_view checked = file.substr(place + 4, size + 4);
            const auto* const bytes = reinterpret_cast<const Bytef*>(checked.data());
            if (crc32(0, bytes, static_cast<uInt>(checked.size())) != Number(file, place + 8 + size)) {
                return false;
            }
            Add(checked.substr(0, 4), checked.substr(4));
            place += size + 12;
        }
        return header.size() == 13;
    }

private:
    void Add(std::string_view type, std::string_view content) {
        (type == "IHDR" ? header : type == "PLTE" ? palette : type == "tRNS" ? alphas : data) += content;
    }
};

int Expected(unsigned int filter, int left, int up, int corner) {
    const int estimate = left + up - corner;
    const int distances[] = {std::abs(estimate - left), std::abs(estimate - up), std::abs(estimate - corner)};
    switch (filter) {
    case 0:
        return 0;
    case 1:
        return left;
    case 2:
        return up;
    case 3:
        return (left + up) / 2;
    default:
        return distances[0] <= distances[1] && distances[0] <= distances[2] ? left
               : distances[1] <= distances[2]                               ? up
                                                                            : corner;
    }
}

void Unfilter(std::string& rows, std::size_t rowSize, std::size_t pixelSize) {
    for (std::size_t start = 0; start < rows.size(); start += rowSize + 1) {
        const auto at = [&](std::size_t row, std::size_t i) { return static_cast<int>(ByteAt(rows, row + 1 + i)); };
        for (std::size_t i = 0; i < rowSize; ++i) {
            const int left = i < pixelSize ? 0 : at(start, i - pixelSize);
            const int up = start == 0 ? 0 : at(start - rowSize - 1, i);
            const int corner = i < pixelSize || start == 0 ? 0 : at(start - rowSize - 1, i - pixelSize);
            rows[start + 1 + i] = static_cast<char>(at(start, i) + Expected(ByteAt(rows, start), left, up, corner));
        }
    }
}

std::uint32_t Pixel(const Chunks& chunks, std::string_view sample) {
    if (sample.size() == 1) {
        const std::size_t index = ByteAt(sample, 0);
        const std::uint32_t alpha = index < chunks.alphas.size() ? ByteAt(chunks.alphas, index) : 255U;
        return alpha << 24U | ByteAt(chunks.palette, 3 * index) << 16U | ByteAt(chunks.palette, 3 * index + 1) << 8U |
               ByteAt(chunks.palette, 3 * index + 2);
    }
    return (sample.size() == 4 ? ByteAt(sample, 3) : 255U) << 24U | ByteAt(sample, 0) << 16U | ByteAt(sample, 1) << 8U |
           ByteAt(sample, 2);
}

} // namespace

std::optional<ZAMPrepressPicture> DecodePng(std::string_view file) {
    Chunks chunks;
    if (!chunks.Read(file)) {
        return std::nullopt;
    }
    ZAMPrepressPicture picture{Number(chunks.header, 0), Number(chunks.header, 4), {}};
    const unsigned int type = ByteAt(chunks.header, 9);
    const std::size_t pixelSize = type == 3 ? 1 : (type == 2 ? 3 : 4);
    const std::size_t rowSize = picture.width * pixelSize;
    std::string rows((rowSize + 1) * picture.height, '\0');
    auto size = static_cast<uLongf>(rows.size());
    if (uncompress(reinterpret_cast<Bytef*>(rows.data()), &size, reinterpret_cast<const Bytef*>(chunks.data.data()),
                   static_cast<uLong>(chunks.data.size())) != Z_OK ||
        size != rows.size()) {
        return std::nullopt;
    }
    Unfilter(rows, rowSize, pixelSize);
    for (std::size_t row = 0; row < picture.height; ++row) {
        for (std::size_t column = 0; column < picture.width; ++column) {
            const std::string_view samples = rows;
            picture.pixels.push_back(
                Pixel(chunks, samples.substr(row * (rowSize + 1) + 1 + column * pixelSize, pixelSize)));
        }
    }
    return picture;
}
