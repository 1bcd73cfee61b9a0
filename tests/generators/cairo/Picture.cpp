// SPDX-License-Identifier: MIT
#include "tests/generators/cairo/Picture.h"

#include "tests/generators/cairo/Drawing.h"

#include <cstdlib>
#include <iomanip>
#include <png.h>

bool Pixel::IsNear(std::uint32_t other, int tolerance) const {
    for (const unsigned int shift : {0U, 8U, 16U, 24U}) {
        const int difference = static_cast<int>(rgba >> shift & 0xFFU) - static_cast<int>(other >> shift & 0xFFU);
        if (std::abs(difference) > tolerance) {
            return false;
        }
    }
    return true;
}

std::ostream& operator<<(std::ostream& out, const Pixel& pixel) {
    return out << "0x" << std::hex << std::setw(8) << std::setfill('0') << pixel.rgba << std::dec;
}

Picture::Picture(const std::string& png) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, png.data(), png.size()) == 0) {
        return;
    }
    hasAlpha = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
    image.format = PNG_FORMAT_RGBA;
    _Bytes.resize(PNG_IMAGE_SIZE(image));
    if (png_image_finish_read(&image, nullptr, _Bytes.data(), 0, nullptr) != 0) {
        width = static_cast<int>(image.width);
        height = static_cast<int>(image.height);
    }
    png_image_free(&image);
}

Pixel Picture::At(int x, int y) const {
    if (x < 0 || x >= width || y < 0 || y >= height) {
        return {0xBADBADU};
    }
    const unsigned char* bytes =
        _Bytes.data() +
        (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)) * 4;
    return {static_cast<std::uint32_t>(bytes[0]) << 24U | static_cast<std::uint32_t>(bytes[1]) << 16U |
            static_cast<std::uint32_t>(bytes[2]) << 8U | bytes[3]};
}

Picture Rasterise(const std::string& pdf, const std::string& program, int resolution) {
    const std::string out = program == "pdftocairo" ? " -" : "";
    return Picture(Ask(program, "-png -singlefile -r " + std::to_string(resolution) + " {}" + out, pdf));
}
