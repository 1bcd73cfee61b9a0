// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtPaintedElt.h"
#include "framework/model/ZAMPrtTextAttributes.h"

#include <array>
#include <memory>

/// One run of text. Its glyphs are filled and stroked as shapes are.
class ZAM_EXPORT ZAMPrtTextElt : public ZAMPrtEltOf<ZAMPrtTextElt, ZAMPrtPaintedElt> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtTextElt";

    /// The x, y, width and height of a viewBox. It has no effect on the drawing.
    using ViewBox = std::array<double, 4>;

    /// Copied into the element.
    [[nodiscard]] const ZAMPrtTextAttributes& GetTextAttributes() const { return _TextAttributes; }
    void SetTextAttributes(const ZAMPrtTextAttributes& attributes) { _TextAttributes = attributes; }

    /// The anchor point.
    [[nodiscard]] const ZAMMathPoint2D& GetPosition() const { return _Position; }
    void SetPosition(const ZAMMathPoint2D& position) { _Position = position; }

    [[nodiscard]] std::string_view GetText() const { return _Text ? _Text->View() : std::string_view(); }
    void SetText(std::string_view text) { _Text = std::make_shared<const ZAMUnicodeString>(text); }

    /// Null when none was set.
    [[nodiscard]] const ViewBox* GetViewBox() const { return _ViewBox.get(); }
    void SetViewBox(double x, double y, double width, double height) {
        _ViewBox = std::make_shared<const ViewBox>(ViewBox{x, y, width, height});
    }

    [[nodiscard]] std::size_t GetCost() const override { return 1 + GetText().size() / ZAMLimits::kBytesForOne; }

private:
    ZAMPrtTextAttributes _TextAttributes;
    ZAMMathPoint2D _Position;
    std::shared_ptr<const ZAMUnicodeString> _Text; // shared by copies
    std::shared_ptr<const ViewBox> _ViewBox;
};
