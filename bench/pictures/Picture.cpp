// SPDX-License-Identifier: MIT
#include "bench/pictures/Picture.h"

#include <algorithm>
#include <png.h>

namespace {

/// libpng would blend in linear light; renderers blend the stored values, and so does this.
std::uint8_t LayOnWhite(unsigned int value, unsigned int opacity) {
    return static_cast<std::uint8_t>((value * opacity + 255U * (255U - opacity) + 127U) / 255U);
}

} // namespace

std::optional<Picture> Picture::Read(const std::string& fileName) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, fileName.c_str()) == 0) {
        return std::nullopt;
    }
    image.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
    const bool isRead = png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr) != 0;
    png_image_free(&image);
    if (!isRead) {
        return std::nullopt;
    }
    Picture picture(image.width, image.height);
    for (std::size_t pixel = 0; pixel != picture._Pixels.size(); ++pixel) {
        const std::uint8_t* rgba = &bytes[pixel * 4];
        for (std::size_t channel = 0; channel != 3; ++channel) {
            picture._Pixels[pixel][channel] = LayOnWhite(rgba[channel], rgba[3]);
        }
    }
    return picture;
}

bool Picture::Write(const std::string& fileName) const {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.format = PNG_FORMAT_RGB;
    image.width = static_cast<png_uint_32>(_Width);
    image.height = static_cast<png_uint_32>(_Height);
    return png_image_write_to_file(&image, fileName.c_str(), 0, _Pixels.data(), 0, nullptr) != 0;
}

void Picture::Place(const Picture& other, std::size_t x) {
    for (std::size_t y = 0; y != other._Height; ++y) {
        std::copy_n(&other.At(0, y), other._Width, &At(x, y));
    }
}
