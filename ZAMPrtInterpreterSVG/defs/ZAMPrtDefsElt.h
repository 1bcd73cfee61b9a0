// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtContainerOf.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"
#include "framework/model/ZAMPrtTextAttributes.h"

/// A definition: the elements that a defs, symbol, pattern or marker element defines, with the attributes that were in
/// force where it stood. It is kept in a registry and never drawn itself.
class ZAMPrtDefsElt : public ZAMPrtEltOf<ZAMPrtDefsElt, ZAMPrtContainerOf<ZAMPrtPaintedElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtDefsElt";

    [[nodiscard]] const ZAMPrtTextAttributes& GetTextAttributes() const { return _TextAttributes; }
    void SetTextAttributes(const ZAMPrtTextAttributes& attributes) { _TextAttributes = attributes; }

private:
    ZAMPrtTextAttributes _TextAttributes;
};
