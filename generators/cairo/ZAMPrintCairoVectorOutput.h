// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoOutput.h"

#include <functional>
#include <optional>
#include <string_view>
#include <utility>

/// An output whose pages keep their marks: one surface for all of them, whose bytes go through a filter of the derived
/// class on their way to the stream.
class ZAMPrintCairoVectorOutput : public ZAMPrintCairoOutput {
public:
    explicit ZAMPrintCairoVectorOutput(ZAMPrintCairoStream& stream,
                                       ZAMPrintCairoPictures::Fate pictures = ZAMPrintCairoPictures::Fate::Stored)
        : ZAMPrintCairoOutput(stream, pictures) {}

    void EndPage() override;
    void EndDocument() override;

protected:
    /// For cairo's functions that make surfaces; the closure is this output.
    static cairo_status_t WriteBytes(void* output, const unsigned char* bytes, unsigned int count);

    /// To be called by the destructor of the derived class: a surface that is given up writes its end all the same.
    void DropSurface() {
        _Canvas.reset();
        _Surface.reset();
    }

    /// Null until the first page.
    [[nodiscard]] cairo_surface_t* GetSurface() const { return _Surface.get(); }
    void SetSurface(cairo_surface_t* surface) { _Surface.reset(surface); }
    /// The canvas of a page, which nothing is drawn on yet.
    ZAMPrintCairoCanvas* BeginCanvas(double width, double height);
    /// Likewise, but on a surface that is made when it is needed.
    ZAMPrintCairoCanvas* BeginCanvas(double width, double height, std::function<cairo_surface_t*()> makeSurface) {
        return &_Canvas.emplace(std::move(makeSurface), GetPictures(), width, height);
    }
    [[nodiscard]] std::optional<ZAMPrintCairoCanvas>& GetCanvas() { return _Canvas; }
    /// Of the page that is drawn.
    [[nodiscard]] cairo_t* GetContext() const { return _Canvas->GetContext(); }

private:
    /// False when these or earlier bytes could not be written.
    virtual bool Write(std::string_view bytes) = 0;
    /// What is held back goes to the stream.
    virtual bool Flush() = 0;
    /// All marks of the page are drawn.
    virtual void FinishPage() {}

    ZAMPrintCairoSurface _Surface;
    std::optional<ZAMPrintCairoCanvas> _Canvas;
};
