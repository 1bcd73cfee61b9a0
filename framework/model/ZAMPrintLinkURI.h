// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMUnicodeString.h"
#include "framework/model/ZAMPrtPaintCodes.h"

#include <string_view>

/// Where a link leads: to an element of the same document, by id, or to an address.
class ZAMPrintLinkURI {
public:
    void SetElementId(std::string_view id) { _ElementId = id; }
    [[nodiscard]] const ZAMUnicodeString& GetElementId() const { return _ElementId; }
    void SetBaseURL(std::string_view url) { _BaseURL = url; }
    [[nodiscard]] const ZAMUnicodeString& GetBaseURL() const { return _BaseURL; }
    void SetLinkShow(ZAMPrtLinkShow show) { _Show = show; }
    [[nodiscard]] ZAMPrtLinkShow GetLinkShow() const { return _Show; }

    bool operator==(const ZAMPrintLinkURI&) const = default;

private:
    ZAMUnicodeString _ElementId;
    ZAMUnicodeString _BaseURL;
    ZAMPrtLinkShow _Show = ZAMPrtLinkShow::Unset;
};
