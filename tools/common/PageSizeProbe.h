// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/print/ZAMPrintGenerator.h"

#include <optional>

/// A generator that learns the size of the first page and draws nothing: it fails as soon as the page begins.
class PageSizeProbe : public ZAMPrintGenerator {
public:
    /// In points; nothing when no page began.
    [[nodiscard]] const std::optional<ZAMMathVector2D>& GetPageSize() const { return _PageSize; }

    int BeginDocument(const ZAMPrintParameters& /*parameters*/) override { return 1; }
    int BeginPage(double width, double height) override;
    int EndPage() override { return -1; }
    int EndDocument() override { return -1; }
    void PushClip(const ZAMMathBox2D& /*area*/, const ZAMMathAffine2D& /*toPage*/) override {}
    void PopClip() override {}
    void AddLink(const ZAMMathBox2D& /*area*/, std::string_view /*address*/) override {}
    void AddInternalLink(const ZAMMathBox2D& /*area*/, std::string_view /*destination*/) override {}
    void AddDestination(std::string_view /*name*/, const ZAMMathPoint2D& /*place*/) override {}
    void DrawPath(const ZAMPrintPath& /*path*/, const ZAMMathAffine2D& /*toPage*/, const ZAMPrintFill* /*fill*/,
                  const ZAMPrintPen* /*pen*/) override {}
    void DrawText(const ZAMTextLayout& /*layout*/, const ZAMMathAffine2D& /*toPage*/, const ZAMPrintFill* /*fill*/,
                  const ZAMPrintPen* /*pen*/) override {}
    void DrawImage(const ZAMRef<ZAMPixelImage>& /*image*/, const ZAMMathAffine2D& /*toPage*/) override {}
    [[nodiscard]] std::string GetError() const override { return {}; }

private:
    std::optional<ZAMMathVector2D> _PageSize;
};
