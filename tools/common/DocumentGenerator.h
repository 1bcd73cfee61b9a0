// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintGenerator.h"

/// Lets several drawings become the pages of one document: each interpreter begins and ends a document of its own, and
/// only the first beginning, and the end when all are done, reach the generator behind. Links within a drawing stay
/// there, whatever ids the others have.
class DocumentGenerator : public ZAMPrintGenerator {
public:
    /// The generator is borrowed.
    explicit DocumentGenerator(ZAMPrintGenerator& generator) : _Generator(generator) {}

    /// Whether any mark was made, on whichever page.
    [[nodiscard]] bool HasMarks() const { return _HasMarks; }
    /// Ends the document of the generator behind.
    int Finish() { return _Generator.EndDocument(); }

    [[nodiscard]] double GetLargestPageSide() const override { return _Generator.GetLargestPageSide(); }
    int BeginDocument(const ZAMPrintParameters& parameters) override;
    int BeginPage(double width, double height) override { return _Generator.BeginPage(width, height); }
    int EndPage() override { return _Generator.EndPage(); }
    int EndDocument() override { return 1; }
    void PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) override {
        _Generator.PushClip(area, toPage);
    }
    void PopClip() override { _Generator.PopClip(); }
    void AddLink(const ZAMMathBox2D& area, std::string_view address) override { _Generator.AddLink(area, address); }
    void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) override {
        _Generator.AddInternalLink(area, NameInDocument(destination));
    }
    void AddDestination(std::string_view name, const ZAMMathPoint2D& place) override {
        _Generator.AddDestination(NameInDocument(name), place);
    }
    void DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen) override {
        _HasMarks = true;
        _Generator.DrawPath(path, toPage, fill, pen);
    }
    void DrawText(const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen) override {
        _HasMarks = true;
        _Generator.DrawText(layout, toPage, fill, pen);
    }
    void DrawImage(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toPage) override {
        _HasMarks = true;
        _Generator.DrawImage(image, toPage);
    }
    [[nodiscard]] std::string GetError() const override { return _Generator.GetError(); }

private:
    /// The drawing's number and the name, as in 2:name.
    [[nodiscard]] std::string NameInDocument(std::string_view name) const;

    ZAMPrintGenerator& _Generator;
    unsigned int _Drawings = 0; ///< begun so far
    bool _HasMarks = false;
};
