// SPDX-License-Identifier: MIT
#include "tools/common/Inflate.h"

#include "framework/base/ZAMLimits.h"
#include "tools/common/Failure.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <utility>
#include <zlib.h>

namespace {

[[noreturn]] void Fail(const std::string& name, const char* reason) {
    throw Failure(ExitStatus::Failed, name + ": " + reason);
}

// One after the other, the members of a gzip file.
class Inflater {
public:
    Inflater(std::string_view bytes, const std::string& name, bool isUnlimited)
        : _Bytes(bytes), _Name(name), _MostBytes(isUnlimited ? ZAMLimits::kInputBytes : ZAMLimits::kInflatedBytes),
          _MostByRatio(isUnlimited ? _MostBytes
                                   : std::max(ZAMLimits::kInflateFreeBytes, bytes.size() * ZAMLimits::kInflateRatio)) {
        constexpr int kGzipOnly = 16;
        if (inflateInit2(&_Stream, MAX_WBITS + kGzipOnly) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&_Stream); }

    std::string Run() {
        do {
            ReadMember();
            inflateReset(&_Stream);
        } while (IsCompressed(_Bytes)); // what else follows is padding
        _Content.resize(_Size);
        return std::move(_Content);
    }

private:
    void ReadMember() {
        for (int status = Z_OK; status != Z_STREAM_END;) {
            if (_Size == _Content.size()) {
                _Content.resize(std::clamp<std::size_t>(2 * _Size, 65536, std::min(_MostBytes, _MostByRatio) + 1));
            }
            status = Inflate();
            CheckSize(_Size);
        }
    }

    void CheckSize(std::size_t size) const {
        if (size > _MostBytes) {
            Fail(_Name, _MostBytes == ZAMLimits::kInputBytes ? "holds more than 2 GiB when it is decompressed"
                                                             : "holds more than 512 MiB when it is decompressed; "
                                                               "--unlimited reads it");
        }
        if (size > _MostByRatio) {
            Fail(_Name, "holds more than 200 times its size when it is decompressed; --unlimited reads it");
        }
    }

    // Appends to what room there is.
    int Inflate() {
        constexpr std::size_t kMostAtOnce = std::numeric_limits<uInt>::max();
        _Stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(_Bytes.data())); // it is only read
        _Stream.avail_in = static_cast<uInt>(std::min(_Bytes.size(), kMostAtOnce));
        _Stream.next_out = reinterpret_cast<Bytef*>(_Content.data() + _Size);
        _Stream.avail_out = static_cast<uInt>(_Content.size() - _Size);
        const uInt given = _Stream.avail_in;
        const int status = inflate(&_Stream, Z_NO_FLUSH);
        if (status == Z_MEM_ERROR) {
            throw std::bad_alloc();
        }
        if (status != Z_OK && status != Z_STREAM_END) {
            Fail(_Name, status == Z_BUF_ERROR ? "the compressed data is cut short" : "the compressed data is damaged");
        }
        _Bytes.remove_prefix(given - _Stream.avail_in);
        _Size = _Content.size() - _Stream.avail_out;
        return status;
    }

    z_stream _Stream{};
    std::string_view _Bytes; // that are still to be read
    std::string _Content;    // with room behind what there is of it
    std::size_t _Size = 0;
    const std::string& _Name;
    std::size_t _MostBytes;
    std::size_t _MostByRatio;
};

} // namespace

bool IsCompressed(std::string_view bytes) {
    constexpr std::string_view kStart = "\x1F\x8B";
    return bytes.starts_with(kStart);
}

std::string Inflate(std::string_view bytes, const std::string& name, bool isUnlimited) {
    return Inflater(bytes, name, isUnlimited).Run();
}
