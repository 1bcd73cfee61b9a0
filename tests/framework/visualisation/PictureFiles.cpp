// SPDX-License-Identifier: MIT
#include "tests/framework/visualisation/PictureFiles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace {

void Append(FileBytes& bytes, const FileBytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void AppendBigEndian(FileBytes& bytes, std::uint32_t value, unsigned int count) {
    for (unsigned int i = count; i > 0; --i) {
        bytes.push_back(static_cast<unsigned char>(value >> 8U * (i - 1)));
    }
}

void AppendLittleEndian(FileBytes& bytes, std::uint32_t value, unsigned int count) {
    for (unsigned int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<unsigned char>(value >> 8U * i));
    }
}

std::uint32_t Crc32(const FileBytes& bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const unsigned char byte : bytes) {
        crc ^= byte;
        for (int i = 0; i < 8; ++i) {
            crc = crc >> 1U ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

// A zlib stream of stored blocks.
FileBytes Deflated(const FileBytes& raw) {
    FileBytes stream{0x78, 0x01};
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    std::size_t start = 0;
    do {
        const std::size_t count = std::min<std::size_t>(raw.size() - start, 0xFFFF);
        stream.push_back(start + count == raw.size() ? 1 : 0);
        AppendLittleEndian(stream, static_cast<std::uint32_t>(count), 2);
        AppendLittleEndian(stream, ~static_cast<std::uint32_t>(count), 2);
        for (const std::size_t end = start + count; start < end; ++start) {
            stream.push_back(raw[start]);
            low = (low + raw[start]) % 65521;
            high = (high + low) % 65521;
        }
    } while (start < raw.size());
    AppendBigEndian(stream, high << 16U | low, 4);
    return stream;
}

// Writes bits, the highest first.
class Bits {
public:
    explicit Bits(FileBytes& bytes, bool stuffs) : _Bytes(bytes), _Stuffs(stuffs) {}

    void Put(std::uint32_t value, unsigned int count) {
        for (unsigned int i = count; i > 0; --i) {
            _Last = _Last << 1U | (value >> (i - 1) & 1U);
            if (++_Count == 8) {
                _Bytes.push_back(static_cast<unsigned char>(_Last));
                if (_Stuffs && _Bytes.back() == 0xFF) {
                    _Bytes.push_back(0);
                }
                _Count = 0;
            }
        }
    }

    void FillWith(std::uint32_t bit) {
        while (_Count != 0) {
            Put(bit, 1);
        }
    }

private:
    FileBytes& _Bytes;
    bool _Stuffs;
    std::uint32_t _Last = 0;
    unsigned int _Count = 0;
};

// Every `stepX`th pixel of every `stepY`th row from the start on, unfiltered.
void AppendPass(const PngFile& png, std::uint32_t startX, std::uint32_t startY, std::uint32_t stepX,
                std::uint32_t stepY, FileBytes& raw) {
    for (std::uint32_t y = startY; y < png.height && startX < png.width; y += stepY) {
        raw.push_back(0);
        Bits bits(raw, false);
        for (std::uint32_t x = startX; x < png.width; x += stepX) {
            for (std::uint32_t channel = 0; channel < png.CountChannels(); ++channel) {
                bits.Put(png.sample(x, y, channel), png.depth);
            }
        }
        bits.FillWith(0);
    }
}

void AppendSegment(FileBytes& bytes, unsigned char code, const FileBytes& content) {
    Append(bytes, {0xFF, code});
    AppendBigEndian(bytes, static_cast<std::uint32_t>(content.size() + 2), 2);
    Append(bytes, content);
}

// Categories 0 to 11 have codes of four bits, their own numbers; the end of a block is one bit, 0.
void AppendTables(FileBytes& bytes) {
    FileBytes quantities(65, 1);
    quantities[0] = 0;
    AppendSegment(bytes, 0xDB, quantities);
    AppendSegment(bytes, 0xC4, FromHex("00 000000 0C 000000000000000000000000 000102030405060708090A0B"));
    AppendSegment(bytes, 0xC4, FromHex("10 01 000000000000000000000000000000 00"));
}

unsigned int CategoryOf(int value) {
    unsigned int category = 0;
    while (value >> category != 0 && value >> category != -1) {
        ++category;
    }
    return value < 0 && (1 << category) == -value ? category + 1 : category;
}

void PutDifference(Bits& bits, int value) {
    const unsigned int category = CategoryOf(value);
    bits.Put(category, 4);
    bits.Put(static_cast<std::uint32_t>(value < 0 ? value - 1 : value), category);
}

// Which components, which coefficients, which bits of them.
void AppendScanHeader(const JpegFile& jpeg, unsigned char firstCoefficient, unsigned char lastCoefficient,
                      unsigned char approximation, FileBytes& bytes) {
    FileBytes header{static_cast<unsigned char>(jpeg.values.size())};
    for (std::size_t i = 0; i < jpeg.values.size(); ++i) {
        Append(header, {jpeg.names[i], 0});
    }
    Append(header, {firstCoefficient, lastCoefficient, approximation});
    AppendSegment(bytes, 0xDA, header);
}

void AppendFirstScan(const JpegFile& jpeg, FileBytes& bytes) {
    const bool isProgressive = jpeg.frame == 0xC2;
    AppendScanHeader(jpeg, 0, isProgressive ? 0 : 63, 0, bytes);
    std::uint32_t widest = 1;
    std::uint32_t highest = 1;
    for (std::size_t i = 0; i < jpeg.values.size(); ++i) {
        widest = std::max(widest, jpeg.sampling[i] / 16U);
        highest = std::max(highest, jpeg.sampling[i] % 16U);
    }
    const std::uint32_t units =
        (jpeg.width + 8 * widest - 1) / (8 * widest) * ((jpeg.height + 8 * highest - 1) / (8 * highest));
    Bits bits(bytes, true);
    for (std::uint32_t unit = 0; unit < units; ++unit) {
        for (std::size_t i = 0; i < jpeg.values.size(); ++i) {
            const unsigned int blocks = jpeg.sampling[i] / 16U * (jpeg.sampling[i] % 16U);
            for (unsigned int block = 0; block < blocks; ++block) {
                PutDifference(bits, unit + block == 0 ? 8 * (jpeg.values[i] - 128) : 0);
                bits.Put(0, isProgressive ? 0 : 1);
            }
        }
    }
    bits.FillWith(1);
}

// Coefficient after coefficient, from its highest bit to its lowest; they are all 0.
void AppendRefinements(const JpegFile& jpeg, FileBytes& bytes) {
    for (int i = 0; i < jpeg.refinements; ++i) {
        const auto coefficient = static_cast<unsigned char>(1 + i / 14);
        const int bit = 13 - i % 14;
        AppendScanHeader(jpeg, coefficient, coefficient,
                         static_cast<unsigned char>((bit == 13 ? 0 : bit + 1) * 16 + bit), bytes);
        bytes.push_back(0x7F);
    }
}

} // namespace

FileBytes FromHex(std::string_view digits) {
    FileBytes bytes;
    int pending = -1;
    for (const char c : digits) {
        const std::size_t value = std::string_view("0123456789ABCDEF").find(c);
        if (value != std::string_view::npos && pending < 0) {
            pending = static_cast<int>(value);
        } else if (value != std::string_view::npos) {
            bytes.push_back(static_cast<unsigned char>(pending * 16 + static_cast<int>(value)));
            pending = -1;
        }
    }
    return bytes;
}

FileBytes PngFile::Chunk(std::string_view type, const FileBytes& content) {
    FileBytes body(type.begin(), type.end());
    Append(body, content);
    FileBytes chunk;
    AppendBigEndian(chunk, static_cast<std::uint32_t>(content.size()), 4);
    Append(chunk, body);
    AppendBigEndian(chunk, Crc32(body), 4);
    return chunk;
}

std::uint32_t PngFile::CountChannels() const {
    constexpr std::array<std::uint32_t, 7> kChannels{1, 0, 3, 1, 2, 0, 4};
    return kChannels[colourType];
}

FileBytes PngFile::Make() const {
    FileBytes header;
    AppendBigEndian(header, width, 4);
    AppendBigEndian(header, height, 4);
    Append(header, {static_cast<unsigned char>(depth), static_cast<unsigned char>(colourType), 0, 0,
                    static_cast<unsigned char>(isInterlaced ? 1 : 0)});
    FileBytes raw;
    constexpr std::uint32_t kPasses[7][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                             {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    for (const auto& pass : kPasses) {
        if (isInterlaced) {
            AppendPass(*this, pass[0], pass[1], pass[2], pass[3], raw);
        }
    }
    if (!isInterlaced) {
        AppendPass(*this, 0, 0, 1, 1, raw);
    }
    FileBytes file = FromHex("89504E470D0A1A0A");
    Append(file, Chunk("IHDR", header));
    Append(file, chunks);
    Append(file, Chunk("IDAT", Deflated(raw)));
    Append(file, Chunk("IEND", {}));
    return file;
}

FileBytes JpegFile::Make() const {
    FileBytes bytes{0xFF, 0xD8};
    if (hasJfif) {
        AppendSegment(bytes, 0xE0, FromHex("4A46494600 0102 00 00010001 0000"));
    }
    if (adobeTransform >= 0) {
        FileBytes adobe = FromHex("41646F6265 0064 0000 0000");
        adobe.push_back(static_cast<unsigned char>(adobeTransform));
        AppendSegment(bytes, 0xEE, adobe);
    }
    AppendTables(bytes);
    FileBytes header{8};
    AppendBigEndian(header, height, 2);
    AppendBigEndian(header, width, 2);
    header.push_back(static_cast<unsigned char>(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i) {
        Append(header, {names[i], sampling[i], 0});
    }
    AppendSegment(bytes, frame, header);
    AppendFirstScan(*this, bytes);
    AppendRefinements(*this, bytes);
    Append(bytes, {0xFF, 0xD9});
    return bytes;
}

FileBytes BmpFile::Make() const {
    FileBytes header;
    const bool isCore = headerSize == 12;
    AppendLittleEndian(header, headerSize, 4);
    AppendLittleEndian(header, static_cast<std::uint32_t>(width), isCore ? 2 : 4);
    AppendLittleEndian(header, static_cast<std::uint32_t>(height), isCore ? 2 : 4);
    AppendLittleEndian(header, 1, 2);
    AppendLittleEndian(header, bits, 2);
    for (const std::uint32_t field : {compression, 0U, 2835U, 2835U, colourCount, 0U}) {
        AppendLittleEndian(header, field, 4);
    }
    Append(header, laterFields);
    header.resize(headerSize);
    FileBytes file{'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0};
    AppendLittleEndian(file,
                       static_cast<std::uint32_t>(static_cast<int>(14 + headerSize + between.size()) + offsetError), 4);
    Append(file, header);
    Append(file, between);
    Append(file, data);
    return file;
}

std::string TextOf(const ZAMRef<ZAMPixelImage>& image) {
    std::ostringstream text;
    text << std::hex << std::setfill('0');
    for (std::size_t i = 0; image && i < image->GetPixels().size(); ++i) {
        text << (i == 0                                                 ? ""
                 : i % static_cast<std::size_t>(image->GetWidth()) == 0 ? " "
                                                                        : ",")
             << std::setw(8) << image->GetPixels()[i];
    }
    return image ? text.str() : "null";
}

std::uint32_t PixelOf(double red, double green, double blue, double alpha) {
    const auto part = [&](double value) { return static_cast<std::uint32_t>(std::lround(value * alpha / 255.0)); };
    return static_cast<std::uint32_t>(std::lround(alpha)) << 24U | part(red) << 16U | part(green) << 8U | part(blue);
}
