// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressPictures.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/document/ZAMPrepressClipPaths.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/document/ZAMPrepressSearch.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressViewport.h"
#include "prepress/paint/ZAMPrepressBase64.h"
#include "prepress/paint/ZAMPrepressDataReference.h"
#include "prepress/paint/ZAMPrepressPictureFile.h"
#include "prepress/paint/ZAMPrepressPictureHeader.h"
#include "prepress/rewrites/ZAMPrepressPictureDocuments.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace {

using Format = ZAMPrepressPictureHeader::Format;

constexpr std::string_view kImage = "image";
constexpr std::string_view kReference = "xlink:href";
constexpr std::string_view kAspect = "preserveAspectRatio";

// The beginnings that the interpreter knows (JPEG has two of them).
std::string_view PrefixOf(Format format) {
    switch (format) {
    case Format::Png:
        return "data:image/png;base64,";
    case Format::Jpeg:
        return "data:image/jpeg;base64,";
    case Format::Bmp:
        return "data:image/bmp;base64,";
    case Format::Svg:
    case Format::Unknown:
        break;
    }
    return {};
}

// The interpreter passes over blanks, stops at other characters that are no base64, and leaves out the last characters
// when they are no group of four.
bool IsReadable(std::string_view reference, Format format) {
    std::string_view prefix = PrefixOf(format);
    if (format == Format::Jpeg && reference.starts_with("data:image/jpg;base64,")) {
        prefix = "data:image/jpg;base64,";
    }
    if (!reference.starts_with(prefix)) {
        return false;
    }
    std::size_t count = 0;
    for (const char c : reference.substr(prefix.size())) {
        const bool isDigit = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+' ||
                             c == '/' || c == '=';
        if (!isDigit && c != ' ' && c != '\t' && c != '\n' && c != '\r') {
            return false;
        }
        count += isDigit ? 1 : 0;
    }
    return count % 4 == 0;
}

struct Picture {
    ZAMPrepressPictureHeader header;
    std::string_view reference; // as the interpreter reads it
    std::string document;       // the bytes of an SVG document
};

Picture MakePicture(std::string_view reference, std::string bytes) {
    Picture picture{ZAMPrepressPictureHeader::Read(bytes), reference, {}};
    if (picture.header.format == Format::Svg) {
        picture.document = std::move(bytes);
    }
    return picture;
}

std::optional<double> ReadSide(const ZAMPrepressElement& image, std::string_view attribute) {
    return image.Get(attribute) == "auto" ? std::nullopt : ZAMPrepressReadLength(image.Get(attribute));
}

// A side that is not given keeps the picture's aspect, both are its own.
ZAMMathBox2D ReadBox(const ZAMPrepressElement& image, const ZAMPrepressPictureHeader& header) {
    const double x = ZAMPrepressReadLength(image.Get("x")).value_or(0.0);
    const double y = ZAMPrepressReadLength(image.Get("y")).value_or(0.0);
    const auto width = ReadSide(image, "width");
    const auto height = ReadSide(image, "height");
    const double aspect = header.width > 0.0 ? header.height / header.width : 1.0;
    const double shownWidth = width ? *width : height && aspect > 0.0 ? *height / aspect : header.width;
    return {x, y, x + shownWidth, y + (height ? *height : width ? *width * aspect : header.height)};
}

class Rewriter {
public:
    explicit Rewriter(ZAMPrepressTree& tree) : _Tree(tree), _Ids(tree) {}

    void RewriteChildren(ZAMPrepressElement& element, int depth);

private:
    void RewriteImage(ZAMPrepressElement*& image, int depth);
    void PlaceBitmap(ZAMPrepressElement*& image, const Picture& picture);
    void SetBox(ZAMPrepressElement& image, const ZAMMathBox2D& box);
    const Picture& FindPicture(std::string_view reference, int depth);
    [[nodiscard]] Picture ReadPicture(std::string_view reference);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds _Ids;
    ZAMPrepressPictureDocuments _Documents{_Tree};
    std::unordered_map<std::string_view, Picture> _Pictures;
};

void Rewriter::RewriteChildren(ZAMPrepressElement& element, int depth) {
    for (ZAMPrepressElement*& child : element.children) {
        if (child->Is(kImage)) {
            RewriteImage(child, depth);
        } else {
            RewriteChildren(*child, depth);
        }
    }
}

// Documents that are pictures name no files: what they show they hold themselves.
const Picture& Rewriter::FindPicture(std::string_view reference, int depth) {
    static const Picture kNone;
    if (depth > 0 && !ZAMPrepressIsDataReference(reference)) {
        return kNone;
    }
    const auto found = _Pictures.find(reference);
    return found != _Pictures.end() ? found->second
                                    : _Pictures.emplace(reference, ReadPicture(reference)).first->second;
}

Picture Rewriter::ReadPicture(std::string_view reference) {
    if (!ZAMPrepressIsDataReference(reference)) {
        auto file = ZAMPrepressPictureFile::Find(reference, _Tree.GetPath());
        return file ? MakePicture(_Tree.Keep(std::move(file->name)), std::move(file->bytes))
                    : Picture{{}, reference, {}};
    }
    auto bytes = ZAMPrepressReadDataReference(reference);
    if (!bytes) {
        return {{}, reference, {}};
    }
    const Format format = ZAMPrepressPictureHeader::Read(*bytes).format;
    if (!PrefixOf(format).empty() && !IsReadable(reference, format)) {
        std::string text(PrefixOf(format));
        ZAMPrepressAddBase64(*bytes, text);
        reference = _Tree.Keep(std::move(text));
    }
    return MakePicture(reference, *std::move(bytes));
}

void Rewriter::RewriteImage(ZAMPrepressElement*& image, int depth) {
    const Picture& picture = FindPicture(image->Get(kReference), depth);
    if (picture.header.format != Format::Svg) {
        PlaceBitmap(image, picture);
    } else if (depth < ZAMLimits::kPictureDocumentDepth && _Documents.Draw(*image, picture.document)) {
        RewriteChildren(*image, depth + 1);
    }
}

void Rewriter::SetBox(ZAMPrepressElement& image, const ZAMMathBox2D& box) {
    image.Set("x", _Tree.Keep(ZAMPrepressNumberText(box.xMin)));
    image.Set("y", _Tree.Keep(ZAMPrepressNumberText(box.yMin)));
    image.Set("width", _Tree.Keep(ZAMPrepressNumberText(box.Width())));
    image.Set("height", _Tree.Keep(ZAMPrepressNumberText(box.Height())));
}

// The interpreter stretches pictures over their box.
void Rewriter::PlaceBitmap(ZAMPrepressElement*& image, const Picture& picture) {
    if (image->Has(kReference)) {
        image->Set(kReference, picture.reference);
    }
    const ZAMMathBox2D viewport = ReadBox(*image, picture.header);
    const auto aspect = ZAMPrepressAspect::Parse(image->Get(kAspect));
    const ZAMMathBox2D pixels{0.0, 0.0, picture.header.width, picture.header.height};
    image->Remove(kAspect);
    if (!ZAMPrepressHasArea(viewport) || !ZAMPrepressHasArea(pixels)) {
        return;
    }
    const ZAMMathAffine2D map = aspect.Map(pixels, viewport);
    SetBox(*image, {map.e, map.f, map.e + pixels.xMax * map.a, map.f + pixels.yMax * map.d});
    if (aspect.fit == ZAMPrepressAspect::Fit::Slice && image->Get("overflow") != "visible") {
        image = &ZAMPrepressWrapToClip(*image, viewport, _Ids, _Tree);
    }
}

} // namespace

bool ZAMPrepressPictures::Concerns(const ZAMLightXmlElementItf& element) {
    return element.GetName() == kImage;
}

void ZAMPrepressPictures::Rewrite(ZAMPrepressTree& tree) {
    if (ZAMPrepressHasAny(tree.GetRoot(), [](const auto& element) { return element.Is(kImage); })) {
        Rewriter(tree).RewriteChildren(tree.GetRoot(), 0);
    }
}
