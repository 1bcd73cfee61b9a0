// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

/// Decodes base64 (the alphabet of RFC 4648, 4) in groups of four characters; one to three characters left over are not
/// read. `output` has room for `textLength` bytes. `outputLength` becomes the number of bytes written.
///
/// Padding is read in a way of its own: "xx==" gives two bytes, the second being what is left of the second character,
/// and ends the text, as "x===" ends it after one byte and "====" at once; "xxx=" gives three bytes, the last being
/// what is left of the third character, and the text goes on.
///
/// 1 done; -1 at a character that is none of the alphabet, with what was written before; 0 for a null text or output or
/// a length of 0, and `outputLength` is not touched.
ZAM_EXPORT int ConvertFromBase64Buffer(const char* text, unsigned int textLength, unsigned char* output,
                                       unsigned int& outputLength);
