// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintDestinations.h"

#include "framework/base/ZAMTextCompare.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtTypeList.h"
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"
#include "framework/print/ZAMPrintSymbolFrame.h"

#include <algorithm>

namespace {

// What is drawn below an element; the pieces of a figure are parts of one mark, and patterns are never drawn.
template <class Visitor> void VisitDrawnChildren(const ZAMPrtGraphicPrimitiveElt& element, const Visitor& visit) {
    using Undrawn = ZAMPrtTypeList<ZAMPrtClosedFigureElt, ZAMPrtPatternElt>;
    if (!Undrawn::Holds(&element)) {
        for (const auto& child : element.GetChildren()) {
            visit(*child);
        }
    }
}

} // namespace

// Walks the pages for the elements that links name.
class ZAMPrintDestinations::Search {
public:
    explicit Search(ZAMPrintDestinations& destinations)
        : _Destinations(destinations), _Missing(destinations._Indices.size()) {}

    void WalkPage(const ZAMPrtImageElt& image, const ZAMPrintPlacement& placement, std::size_t page) {
        _Page = page;
        const ZAMMathBox2D shown =
            placement.toPage.Apply(placement.area).Intersection({0.0, 0.0, placement.pageWidth, placement.pageHeight});
        Note(image, shown);
        WalkChildren(image, placement.toPage, shown);
    }

private:
    void WalkChildren(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& toPage,
                      const ZAMMathBox2D& shown) {
        VisitDrawnChildren(element, [&](const auto& child) {
            if (_Missing > 0) {
                WalkElement(child, toPage * child.GetTransformAttributes().GetMatrix(), shown);
            }
        });
    }

    void WalkElement(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& toPage,
                     const ZAMMathBox2D& shown) {
        if (IsWanted(element)) {
            Note(element, ZAMPrintModelBoundingBoxComputer::BoxOf(element, toPage).Intersection(shown));
        }
        const auto* symbol = ZAMPrtCast<ZAMPrtSymbolElt>(&element);
        if (symbol == nullptr) {
            WalkChildren(element, toPage, shown);
        } else {
            const ZAMMathBox2D inside =
                symbol->HasSize() ? toPage.Apply(ZAMPrintSymbolArea(*symbol)).Intersection(shown) : shown;
            WalkChildren(element, toPage * ZAMPrintSymbolContent(*symbol), inside);
        }
    }

    [[nodiscard]] bool IsWanted(const ZAMPrtGraphicPrimitiveElt& element) const {
        return !element.GetID().IsEmpty() && Find(element) != nullptr;
    }

    void Note(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathBox2D& box) {
        std::size_t* index = Find(element);
        if (index != nullptr && !box.IsEmpty()) {
            *index = _Destinations._Destinations.size();
            _Destinations._Destinations.push_back({std::string(element.GetID().View()), _Page, {box.xMin, box.yMin}});
            --_Missing;
        }
    }

    // Where the index of the destination belongs; null when no link asks for it or it is there already.
    [[nodiscard]] std::size_t* Find(const ZAMPrtGraphicPrimitiveElt& element) const {
        const auto found = _Destinations._Indices.find(ZAMFoldText(element.GetID()));
        return found == _Destinations._Indices.end() || found->second != kNone ? nullptr : &found->second;
    }

    ZAMPrintDestinations& _Destinations;
    std::size_t _Missing;
    std::size_t _Page = 0;
};

ZAMPrintDestinations::ZAMPrintDestinations(const ZAMPrtModel& model, std::span<const ZAMPrintPlacement> placements) {
    for (const auto& image : model.GetImages()) {
        FindLinks(*image);
    }
    Search search(*this);
    for (std::size_t page = 0; page < placements.size() && !_Indices.empty(); ++page) {
        search.WalkPage(*model.GetImages()[page], placements[page], page);
    }
}

const std::string* ZAMPrintDestinations::FindName(std::string_view elementId) const {
    const auto found = _Indices.find(ZAMFoldText(elementId));
    return found == _Indices.end() || found->second == kNone ? nullptr : &_Destinations[found->second].name;
}

void ZAMPrintDestinations::AddTo(ZAMPrintGenerator& generator, std::size_t page) const {
    auto destination = std::ranges::lower_bound(_Destinations, page, {}, &Destination::page);
    for (; destination != _Destinations.end() && destination->page == page; ++destination) {
        generator.AddDestination(destination->name, destination->place);
    }
}

void ZAMPrintDestinations::FindLinks(const ZAMPrtGraphicPrimitiveElt& element) {
    const auto* group = ZAMPrtCast<ZAMPrtGroupElt>(&element);
    if (group != nullptr && group->GetGroupAttributes().HasLinkURI()) {
        const ZAMPrintLinkURI link = group->GetGroupAttributes().GetLinkURI();
        if (link.GetBaseURL().IsEmpty() && !link.GetElementId().IsEmpty()) {
            _Indices.emplace(ZAMFoldText(link.GetElementId()), kNone);
        }
    }
    VisitDrawnChildren(element, [this](const auto& child) { FindLinks(child); });
}
