// SPDX-License-Identifier: MIT
#include "tools/common/FileDescriptorBuffer.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

FileDescriptorBuffer::FileDescriptorBuffer(int descriptor) : _Descriptor(descriptor) {
    setp(_Buffer.data(), _Buffer.data() + _Buffer.size());
}

FileDescriptorBuffer::int_type FileDescriptorBuffer::overflow(int_type character) {
    if (!Flush()) {
        return traits_type::eof();
    }
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(character);
        pbump(1);
    }
    return traits_type::not_eof(character);
}

std::streamsize FileDescriptorBuffer::xsputn(const char* data, std::streamsize size) {
    if (size > epptr() - pptr() && !Flush()) {
        return 0;
    }
    if (size > epptr() - pptr()) {
        return Write({data, static_cast<std::size_t>(size)}) ? size : 0;
    }
    std::copy_n(data, size, pptr());
    pbump(static_cast<int>(size));
    return size;
}

int FileDescriptorBuffer::sync() {
    return Flush() ? 0 : -1;
}

bool FileDescriptorBuffer::Flush() {
    const bool written = Write({pbase(), pptr()});
    setp(_Buffer.data(), _Buffer.data() + _Buffer.size());
    return written;
}

bool FileDescriptorBuffer::Write(std::string_view data) {
    while (_Error == 0 && !data.empty()) {
        const ssize_t count = write(_Descriptor, data.data(), data.size());
        if (count >= 0) {
            data.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno == EAGAIN) {
            // Whoever gave us the descriptor made it non-blocking: wait for room.
            pollfd room = {_Descriptor, POLLOUT, 0};
            poll(&room, 1, -1);
        } else if (errno != EINTR) {
            _Error = errno;
        }
    }
    return _Error == 0;
}
