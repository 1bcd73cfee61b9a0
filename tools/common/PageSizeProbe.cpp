// SPDX-License-Identifier: MIT
#include "tools/common/PageSizeProbe.h"

int PageSizeProbe::BeginPage(double width, double height) {
    _PageSize = {width, height};
    return -1;
}
