// SPDX-License-Identifier: MIT
// compare_pictures FIRST.png SECOND.png [BESIDE.png]
// Writes the differing share of the inked pixels, 0 to 1; PictureDifference.h says how it is measured. BESIDE.png
// shows both pictures and their differences side by side. Exit status: 0 compared, 1 a file failed, 2 wrong usage.
#include "bench/pictures/PictureDifference.h"

#include <algorithm>
#include <cstdio>
#include <span>

namespace {

bool WriteBeside(const Picture& first, const Picture& second, const Picture& map, const char* fileName) {
    Picture beside(first.GetWidth() + second.GetWidth() + map.GetWidth(),
                   std::max(first.GetHeight(), second.GetHeight()));
    beside.Place(first, 0);
    beside.Place(second, first.GetWidth());
    beside.Place(map, first.GetWidth() + second.GetWidth());
    return beside.Write(fileName);
}

} // namespace

int main(int count, char** values) {
    const std::span arguments(values, static_cast<std::size_t>(count));
    if (arguments.size() != 3 && arguments.size() != 4) {
        std::fputs("usage: compare_pictures FIRST.png SECOND.png [BESIDE.png]\n", stderr);
        return 2;
    }
    const std::optional<Picture> first = Picture::Read(arguments[1]);
    const std::optional<Picture> second = Picture::Read(arguments[2]);
    if (!first || !second) {
        std::fprintf(stderr, "compare_pictures: %s is no complete PNG\n", arguments[first ? 2 : 1]);
        return 1;
    }
    const PictureDifference difference(*first, *second);
    std::printf("%.6f\n", difference.GetShare());
    if (arguments.size() == 4 && !WriteBeside(*first, *second, difference.GetMap(), arguments[3])) {
        std::fprintf(stderr, "compare_pictures: %s cannot be written\n", arguments[3]);
        return 1;
    }
    return 0;
}
