// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlElementItf.h"

ZAMLightXmlElementItf::~ZAMLightXmlElementItf() = default;
