// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressDashes.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace {

// In pairs: an odd list counts twice.
std::vector<double> ReadPairs(std::string_view text) {
    std::vector<double> dashes;
    for (ZAMPrepressScanner scanner(text); !scanner.AtEnd(); scanner.SkipSpace()) {
        dashes.push_back(ZAMPrepressNumber(scanner.TakeNumber()));
    }
    if (dashes.size() % 2 != 0) {
        const std::vector<double> again = dashes;
        dashes.insert(dashes.end(), again.begin(), again.end());
    }
    return dashes;
}

std::string ToText(const std::vector<double>& dashes, double scale) {
    std::string text;
    for (const double dash : dashes) {
        text.append(text.empty() ? "" : " ");
        ZAMPrepressAppendNumber(text, dash * scale);
    }
    return text;
}

// The list as it goes on from the offset. The entry there is cut in two: its rest leads, what was skipped of it ends
// the list. A dash or gap of no length keeps dashes and gaps in turn.
void Shift(std::vector<double>& list, std::size_t first, double skipped) {
    const bool startsInGap = first % 2 != 0;
    std::rotate(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(first), list.end());
    list.front() -= skipped;
    if (skipped > 0.0 || startsInGap) {
        list.push_back(skipped);
        list.insert(startsInGap ? list.begin() : list.end(), 0.0);
    }
}

} // namespace

std::string ZAMPrepressShiftDashes(std::string_view dashes, double offset, double scale, bool hasButtEnds) {
    std::vector<double> list = ReadPairs(dashes);
    const double sum = std::accumulate(list.begin(), list.end(), 0.0);
    offset = std::fmod(offset, sum);
    offset += offset < 0.0 ? sum : 0.0;
    std::size_t first = 0;
    for (; first + 1 < list.size() && offset >= list[first]; ++first) {
        offset -= list[first];
    }
    const bool startsInGap = first % 2 != 0;
    if ((first != 0 || offset > 0.0) && (!startsInGap || hasButtEnds)) {
        Shift(list, first, std::min(offset, list[first]));
    }
    return ToText(list, scale);
}
