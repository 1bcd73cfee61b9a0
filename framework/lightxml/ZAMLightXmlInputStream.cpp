// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlInputStream.h"

ZAMLightXmlInputStream::~ZAMLightXmlInputStream() = default;
