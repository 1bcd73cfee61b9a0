// SPDX-License-Identifier: MIT
#include "framework/base/ZAMExport.h"
#include "framework/images/ZAMImagesJpegReader.h"
#include "framework/images/ZAMImagesPngReader.h"
#include "framework/images/ZAMPrintImagesTable.h"

extern "C" ZAM_EXPORT const ZAMPrintImagesTable* ZAMPrintImagesGetTable();

extern "C" const ZAMPrintImagesTable* ZAMPrintImagesGetTable() {
    static constexpr ZAMPrintImagesTable table{ZAMImagesReadPng, ZAMImagesReadJpeg};
    return &table;
}
