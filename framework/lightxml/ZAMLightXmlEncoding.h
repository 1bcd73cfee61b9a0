// SPDX-License-Identifier: MIT
#pragma once

#include <expat.h>

/// Expat's handler for an encoding that it does not know itself: fills the table of a single-byte encoding that the C
/// library can convert. Any other encoding is refused.
int ZAMLightXmlUnknownEncoding(void* data, const XML_Char* name, XML_Encoding* encoding);
