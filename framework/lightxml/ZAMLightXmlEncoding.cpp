// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlEncoding.h"

#include <cstdint>
#include <iconv.h>

namespace {

class Converter {
public:
    explicit Converter(const char* encoding) : _Handle(iconv_open("UTF-32LE", encoding)) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() {
        if (IsOpen()) {
            iconv_close(_Handle);
        }
    }

    [[nodiscard]] bool IsOpen() const {
        return _Handle != reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr): how POSIX says it
    }

    // The code point that the byte stands for by itself, or -1.
    int CodePointOf(unsigned char byte) {
        char input = static_cast<char>(byte);
        std::uint32_t output = 0;
        char* from = &input;
        char* to = reinterpret_cast<char*>(&output);
        std::size_t fromLeft = 1;
        std::size_t toLeft = sizeof output;
        iconv(_Handle, nullptr, nullptr, nullptr, nullptr);
        const std::size_t result = iconv(_Handle, &from, &fromLeft, &to, &toLeft);
        iconv(_Handle, nullptr, nullptr, &to, &toLeft); // some keep a letter back in case an accent follows
        return result == static_cast<std::size_t>(-1) || toLeft != 0 ? -1 : static_cast<int>(output);
    }

private:
    iconv_t _Handle;
};

} // namespace

int ZAMLightXmlUnknownEncoding(void* /*data*/, const XML_Char* name, XML_Encoding* encoding) {
    Converter converter(name);
    if (!converter.IsOpen()) {
        return XML_STATUS_ERROR;
    }
    for (int byte = 0; byte < 256; ++byte) {
        encoding->map[byte] = converter.CodePointOf(static_cast<unsigned char>(byte));
    }
    encoding->data = nullptr;
    encoding->convert = nullptr;
    encoding->release = nullptr;
    return XML_STATUS_OK;
}
