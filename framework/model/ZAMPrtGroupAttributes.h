// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrintLinkURI.h"

#include <memory>

/// What a group has beside its children: a value, cheap to copy (the link is shared until it is set anew).
class ZAMPrtGroupAttributes {
public:
    /// An empty link when none was set.
    [[nodiscard]] ZAMPrintLinkURI GetLinkURI() const { return _Link ? *_Link : ZAMPrintLinkURI(); }
    void SetLinkURI(const ZAMPrintLinkURI& link) { _Link = std::make_shared<const ZAMPrintLinkURI>(link); }
    [[nodiscard]] bool HasLinkURI() const { return _Link != nullptr; }

private:
    std::shared_ptr<const ZAMPrintLinkURI> _Link;
};
