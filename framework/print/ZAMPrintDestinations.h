// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtModel.h"
#include "framework/print/ZAMPrintGenerator.h"
#include "framework/print/ZAMPrintPlacement.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Where the links within a document lead: for each element id that a link names, to the first element with that id,
/// letter case aside and in drawing order over all pages, that shows on its page. A model without such links is walked
/// once and nothing is measured.
class ZAMPrintDestinations {
public:
    /// The placements are those of the model's images, in order.
    ZAMPrintDestinations(const ZAMPrtModel& model, std::span<const ZAMPrintPlacement> placements);

    /// The name of the destination, which is the id as the element spells it, or null when there is none. Valid as long
    /// as the destinations are.
    [[nodiscard]] const std::string* FindName(std::string_view elementId) const;
    /// Tells the generator of those on a page, counted from 0, that it has begun.
    void AddTo(ZAMPrintGenerator& generator, std::size_t page) const;

private:
    struct Destination {
        std::string name;
        std::size_t page;
        ZAMMathPoint2D place; ///< the upper left corner of what shows of the element
    };
    class Search;

    void FindLinks(const ZAMPrtGraphicPrimitiveElt& element);

    std::vector<Destination> _Destinations; ///< page by page
    /// By the folded id of each link: which of them it is, or kNone.
    std::unordered_map<std::string, std::size_t> _Indices;
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
};
