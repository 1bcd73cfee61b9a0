// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/text/ZAMPrepressFonts.h"
#include "prepress/text/ZAMPrepressTextContent.h"
#include "prepress/text/ZAMPrepressTextReferences.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

/// How the characters of an element of a text are set.
struct ZAMPrepressTextSetting {
    enum class Anchor : std::uint8_t { Start, Middle, End };
    enum class Flow : std::uint8_t { LeftToRight, RightToLeft, TopToBottom };

    ZAMPrepressFonts* fonts = nullptr; ///< that know the font
    const ZAMPrepressFont* font = nullptr;
    double size = 16.0; ///< of the font; not positive: nothing is seen
    Anchor anchor = Anchor::Start;
    Flow flow = Flow::LeftToRight;
    double letterSpacing = 0.0;
    double wordSpacing = 0.0;
    double stretch = 1.0;      ///< of the characters along the line
    double lift = 0.0;         ///< of the baseline over that of the text, upward
    double baseline = 0.0;     ///< from the font's baseline up to the one that is to lie on the line
    std::string_view override; ///< the control character (Unicode 9) that gives all characters one direction, if any

    const ZAMPrepressPathLine* path = nullptr; ///< that the characters follow; null for a straight line
    double pathStart = 0.0;
    const ZAMPrepressElement* link = nullptr; ///< the innermost one that the characters are in
    bool isDecorated = false;                 ///< there are lines under, over or through them
    bool isLost = false;                      ///< there is no path where there should be one: nothing is seen

    /// The share of a text that lies before the point at which it is placed.
    [[nodiscard]] static double GetShare(Anchor anchor) {
        return anchor == Anchor::Start ? 0.0 : (anchor == Anchor::Middle ? 0.5 : 1.0);
    }
    [[nodiscard]] bool IsSeen() const { return !isLost && size > 0.0; }
    /// The way of the pen by an advance of 1.
    [[nodiscard]] ZAMMathVector2D GetAxis() const {
        return flow == Flow::TopToBottom ? ZAMMathVector2D{0.0, 1.0}
                                         : ZAMMathVector2D{flow == Flow::RightToLeft ? -1.0 : 1.0, 0.0};
    }

    /// As the render will lay out the text.
    [[nodiscard]] ZAMTextStyle GetStyle() const;
    /// Of the font in its size.
    [[nodiscard]] ZAMPrepressFontMetrics GetMetrics() const;
};

/// The settings of the spans of one text, which it borrows.
class ZAMPrepressTextStyles {
public:
    ZAMPrepressTextStyles(const ZAMPrepressTextContent& content, ZAMPrepressFonts& fonts,
                          ZAMPrepressTextReferences& references);

    /// It stays where it is until settings are adjusted.
    [[nodiscard]] const ZAMPrepressTextSetting& Get(const ZAMPrepressTextSpan& span) const {
        return _Settings[span.index];
    }
    /// What textLength asks for: more room between the characters of the span and of those within it, or wider ones.
    struct Adjustment {
        double spacing = 0.0;
        double stretch = 1.0;
    };
    using Adjustments = std::unordered_map<const ZAMPrepressTextSpan*, Adjustment>;
    void Adjust(const Adjustments& adjustments);

private:
    [[nodiscard]] ZAMPrepressTextSetting Read(const ZAMPrepressTextSpan& span);
    void ReadPath(const ZAMPrepressElement& textPath, ZAMPrepressTextSetting& setting);

    const ZAMPrepressTextContent& _Content;
    ZAMPrepressFonts& _Fonts;
    ZAMPrepressTextReferences& _References;
    std::vector<ZAMPrepressTextSetting> _Settings; // by the spans' indices
};
