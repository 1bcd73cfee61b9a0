// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoGenerator.h"

#include "generators/cairo/ZAMPrintCairoBitmaps.h"
#include "generators/cairo/ZAMPrintCairoCanvas.h"
#include "generators/cairo/ZAMPrintCairoFailure.h"
#include "generators/cairo/ZAMPrintCairoFonts.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoPdfOutput.h"
#include "generators/cairo/ZAMPrintCairoPngOutput.h"
#include "generators/cairo/ZAMPrintCairoPsOutput.h"
#include "generators/cairo/ZAMPrintCairoStream.h"
#include "generators/cairo/ZAMPrintCairoSvgOutput.h"
#include "generators/cairo/ZAMPrintCairoText.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <new>
#include <string>

namespace {

std::unique_ptr<ZAMPrintCairoOutput> MakeOutput(ZAMPrintCairoGenerator::Format format, ZAMPrintCairoStream& stream) {
    switch (format) {
    case ZAMPrintCairoGenerator::Format::Pdf:
        return std::make_unique<ZAMPrintCairoPdfOutput>(stream);
    case ZAMPrintCairoGenerator::Format::Ps:
        return std::make_unique<ZAMPrintCairoPsOutput>(stream, ZAMPrintCairoPsOutput::Kind::Document);
    case ZAMPrintCairoGenerator::Format::Eps:
        return std::make_unique<ZAMPrintCairoPsOutput>(stream, ZAMPrintCairoPsOutput::Kind::Encapsulated);
    case ZAMPrintCairoGenerator::Format::Svg:
        return std::make_unique<ZAMPrintCairoSvgOutput>(stream);
    case ZAMPrintCairoGenerator::Format::Png:
        break;
    }
    return std::make_unique<ZAMPrintCairoPngOutput>(stream);
}

} // namespace

/// Keeps the order of the calls and the first failure, so that no output needs to.
class ZAMPrintCairoGenerator::Implementation {
public:
    enum class State { New, InDocument, OnPage, Ended };

    Implementation(Format format, std::ostream& out) : _Stream(out), _Output(MakeOutput(format, _Stream)) {}
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;
    ~Implementation() {
        if (_State != State::Ended) {
            // Cairo would complete the file.
            _Stream.Abandon();
        }
    }

    [[nodiscard]] const std::string& GetError() const { return _Error; }
    [[nodiscard]] const ZAMPrintCairoOutput& GetOutput() const { return *_Output; }

    // Both do nothing for a generator for which there was no memory.

    /// A step from one state to another; out of order nothing happens.
    template <class Step>
    static int Run(const std::unique_ptr<Implementation>& self, State from, State to, const Step& step) noexcept {
        if (!self || self->_State != from || !self->_Error.empty() || !self->Guard(step)) {
            return -1;
        }
        self->_State = to;
        return 1;
    }
    /// A mark on the page, if there is one.
    template <class Step> static void Draw(const std::unique_ptr<Implementation>& self, const Step& step) noexcept {
        if (self && self->_Canvas != nullptr && self->_Error.empty()) {
            self->Guard([&] { step(*self->_Canvas); });
        }
    }

    void BeginDocument(const ZAMPrintParameters& parameters) {
        _Background = parameters.background;
        _Output->BeginDocument(parameters);
    }
    void BeginPage(double width, double height) {
        if (!(width > 0.0 && height > 0.0 && std::isfinite(width) && std::isfinite(height))) {
            throw ZAMPrintCairoFailure("the size of a page must be positive");
        }
        _HasPage = true;
        _Page = {0.0, 0.0, width, height};
        _Canvas = _Output->BeginPage(width, height);
        if (_Canvas != nullptr && _Background) {
            _Canvas->Paint(*_Background);
        }
    }
    void EndPage() {
        if (_Canvas != nullptr) {
            _Canvas->PopAllClips();
            _Canvas = nullptr;
            _Output->EndPage();
        }
    }
    void EndDocument() {
        if (!_HasPage) {
            throw ZAMPrintCairoFailure("there is no page to print");
        }
        _Output->EndDocument();
        if (!_Stream.Flush()) {
            throw ZAMPrintCairoFailure("cannot write the output");
        }
    }
    void DrawText(ZAMPrintCairoCanvas& canvas, const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage,
                  const ZAMPrintFill* fill, const ZAMPrintPen* pen) {
        canvas.Open();
        ZAMPrintCairoText(canvas, _Fonts, _Bitmaps, layout, toPage).Draw(fill, pen);
    }
    void AddLink(const ZAMMathBox2D& area, std::string_view address) {
        const ZAMMathBox2D visible = area.Intersection(_Page);
        if (visible.Width() > 0.0 && visible.Height() > 0.0) {
            _Output->AddLink(visible, address);
        }
    }

    void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) {
        const ZAMMathBox2D visible = area.Intersection(_Page);
        if (visible.Width() > 0.0 && visible.Height() > 0.0) {
            _Output->AddInternalLink(visible, destination);
        }
    }
    void AddDestination(std::string_view name, const ZAMMathPoint2D& place) {
        if (place.IsFinite()) {
            _Output->AddDestination(
                name, {std::clamp(place.x, _Page.xMin, _Page.xMax), std::clamp(place.y, _Page.yMin, _Page.yMax)});
        }
    }

private:
    template <class Step> bool Guard(const Step& step) noexcept {
        try {
            step();
            return true;
        } catch (const std::bad_alloc&) {
            SetError("out of memory");
        } catch (const std::exception& failure) {
            SetError(failure.what());
        }
        return false;
    }
    void SetError(const char* text) noexcept {
        try {
            _Error = text;
        } catch (...) {
            // Short enough for the string's own buffer.
            _Error.assign("out of memory");
        }
        _Canvas = nullptr;
    }

    ZAMPrintCairoStream _Stream;
    ZAMPrintCairoFonts _Fonts;
    ZAMPrintCairoBitmaps _Bitmaps;
    std::unique_ptr<ZAMPrintCairoOutput> _Output;
    State _State = State::New;
    std::string _Error;
    std::optional<ZAMPrintColour> _Background;
    ZAMMathBox2D _Page;
    ZAMPrintCairoCanvas* _Canvas = nullptr; ///< of the current page, if it is drawn
    bool _HasPage = false;
};

ZAMPrintCairoGenerator::ZAMPrintCairoGenerator(Format format, std::ostream& out) {
    try {
        _Implementation = std::make_unique<Implementation>(format, out);
    } catch (const std::bad_alloc&) {
        _Implementation = nullptr; // that is an error
    }
}

ZAMPrintCairoGenerator::~ZAMPrintCairoGenerator() = default;

double ZAMPrintCairoGenerator::GetLargestPageSide() const {
    return _Implementation ? _Implementation->GetOutput().GetLargestPageSide() : ZAMPrintCairoLimits::kLargestPdfSide;
}

int ZAMPrintCairoGenerator::BeginDocument(const ZAMPrintParameters& parameters) {
    return Implementation::Run(_Implementation, Implementation::State::New, Implementation::State::InDocument,
                               [&] { _Implementation->BeginDocument(parameters); });
}

int ZAMPrintCairoGenerator::BeginPage(double width, double height) {
    return Implementation::Run(_Implementation, Implementation::State::InDocument, Implementation::State::OnPage,
                               [&] { _Implementation->BeginPage(width, height); });
}

int ZAMPrintCairoGenerator::EndPage() {
    return Implementation::Run(_Implementation, Implementation::State::OnPage, Implementation::State::InDocument,
                               [&] { _Implementation->EndPage(); });
}

int ZAMPrintCairoGenerator::EndDocument() {
    return Implementation::Run(_Implementation, Implementation::State::InDocument, Implementation::State::Ended,
                               [&] { _Implementation->EndDocument(); });
}

void ZAMPrintCairoGenerator::PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) {
    Implementation::Draw(_Implementation, [&](ZAMPrintCairoCanvas& canvas) { canvas.PushClip(area, toPage); });
}

void ZAMPrintCairoGenerator::PopClip() {
    Implementation::Draw(_Implementation, [](ZAMPrintCairoCanvas& canvas) { canvas.PopClip(); });
}

void ZAMPrintCairoGenerator::AddLink(const ZAMMathBox2D& area, std::string_view address) {
    Implementation::Draw(_Implementation,
                         [&](ZAMPrintCairoCanvas& /*canvas*/) { _Implementation->AddLink(area, address); });
}

void ZAMPrintCairoGenerator::AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) {
    Implementation::Draw(_Implementation,
                         [&](ZAMPrintCairoCanvas& /*canvas*/) { _Implementation->AddInternalLink(area, destination); });
}

void ZAMPrintCairoGenerator::AddDestination(std::string_view name, const ZAMMathPoint2D& place) {
    Implementation::Draw(_Implementation,
                         [&](ZAMPrintCairoCanvas& /*canvas*/) { _Implementation->AddDestination(name, place); });
}

void ZAMPrintCairoGenerator::DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                                      const ZAMPrintPen* pen) {
    Implementation::Draw(_Implementation,
                         [&](ZAMPrintCairoCanvas& canvas) { canvas.DrawPath(path, toPage, fill, pen); });
}

void ZAMPrintCairoGenerator::DrawText(const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage,
                                      const ZAMPrintFill* fill, const ZAMPrintPen* pen) {
    Implementation::Draw(_Implementation, [&](ZAMPrintCairoCanvas& canvas) {
        _Implementation->DrawText(canvas, layout, toPage, fill, pen);
    });
}

void ZAMPrintCairoGenerator::DrawImage(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toPage) {
    Implementation::Draw(_Implementation, [&](ZAMPrintCairoCanvas& canvas) {
        if (image) {
            canvas.DrawImage(image, toPage);
        }
    });
}

std::string ZAMPrintCairoGenerator::GetError() const {
    return _Implementation ? _Implementation->GetError() : "out of memory";
}
