// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressTexts.h"

#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/text/ZAMPrepressTextPaint.h"
#include "prepress/text/ZAMPrepressTextWriter.h"

#include <algorithm>

namespace {

constexpr std::string_view kText = "text";
// What references may add to a document: one long text, referred to often, must not fill the memory.
constexpr std::size_t kMostReferencedBytes = 1'000'000;

class Rewriter {
public:
    explicit Rewriter(ZAMPrepressTree& tree) : _Tree(tree), _References(tree) {}

    /// Finds the texts in the element and gives them the characters that they refer to: before texts change.
    void Collect(ZAMPrepressElement& element, bool preservesAround);
    void Rewrite();

private:
    struct Text {
        ZAMPrepressElement* element;
        bool preservesAround; // blanks
    };

    void Dereference(ZAMPrepressElement& element);
    void AppendCharacters(const ZAMPrepressElement& element, std::string& text);
    void Rewrite(const Text& text);

    ZAMPrepressTree& _Tree;
    ZAMPrepressFonts _Fonts;
    ZAMPrepressTextReferences _References;
    std::vector<Text> _Texts;
    std::size_t _ReferencedBytesLeft = kMostReferencedBytes;
};

void Rewriter::Collect(ZAMPrepressElement& element, bool preservesAround) {
    if (element.Is(kText)) {
        _Texts.push_back({&element, preservesAround});
        Dereference(element);
        return;
    }
    const bool preserves = ZAMPrepressTextContent::Preserves(element, preservesAround);
    for (ZAMPrepressElement* child : element.children) {
        if (!child->IsText()) {
            Collect(*child, preserves);
        }
    }
}

void Rewriter::Rewrite() {
    for (const Text& text : _Texts) {
        Rewrite(text);
    }
}

void Rewriter::Dereference(ZAMPrepressElement& element) {
    if (!element.Is("tref")) {
        std::ranges::for_each(element.children, [this](ZAMPrepressElement* child) { Dereference(*child); });
        return;
    }
    std::string text;
    if (const ZAMPrepressElement* const target = _References.FindTarget(element)) {
        AppendCharacters(*target, text);
    }
    ZAMPrepressElement& characters = _Tree.NewElement({});
    characters.text = _Tree.Keep(std::move(text));
    element.children.clear();
    ZAMPrepressTree::Append(element, characters);
}

void Rewriter::AppendCharacters(const ZAMPrepressElement& element, std::string& text) {
    const std::size_t cost = element.text.size() + 1; // elements without characters take time, too
    if (cost > _ReferencedBytesLeft) {
        _ReferencedBytesLeft = 0;
        return;
    }
    _ReferencedBytesLeft -= cost;
    text += element.text;
    for (const ZAMPrepressElement* child : element.children) {
        AppendCharacters(*child, text);
    }
}

// Makes the characters of elements with a textLength fill it. Of elements in one another the outermost one counts.
void AdjustLengths(const ZAMPrepressTextContent& content, const ZAMPrepressTextPositions& positions,
                   ZAMPrepressTextStyles& styles) {
    struct Length {
        const ZAMPrepressTextSpan* span;
        double wanted;
        double advance;
    };
    std::vector<Length> lengths;
    for (const ZAMPrepressTextSpan& span : content.GetSpans()) {
        const bool isWithin = !lengths.empty() && span.firstCharacter < lengths.back().span->endCharacter;
        const double wanted = ZAMPrepressNumberOr(*span.element, "textLength", 0.0);
        if (wanted > 0.0 && !isWithin && span.endCharacter > span.firstCharacter) {
            lengths.push_back({&span, wanted, 0.0});
        }
    }
    if (lengths.empty()) {
        return;
    }
    ZAMPrepressTextRuns runs(content, positions, styles);
    auto length = lengths.begin();
    for (ZAMPrepressTextRun& run : runs.GetRuns()) {
        while (length != lengths.end() && run.firstCharacter >= length->span->endCharacter) {
            ++length;
        }
        if (length != lengths.end() && run.firstCharacter >= length->span->firstCharacter) {
            length->advance += ZAMPrepressTextRuns::GetAdvance(run);
        }
    }
    ZAMPrepressTextStyles::Adjustments adjustments;
    for (const auto& [span, wanted, advance] : lengths) {
        const double natural = advance - styles.Get(*span).letterSpacing; // which is not behind the last character
        const auto gaps = static_cast<double>(span->endCharacter - span->firstCharacter - 1);
        if (natural > 0.0 && span->element->Get("lengthAdjust") == "spacingAndGlyphs") {
            adjustments[span].stretch = wanted / natural;
        } else if (natural > 0.0 && gaps > 0.0) {
            adjustments[span].spacing = (wanted - natural) / gaps;
        }
    }
    styles.Adjust(adjustments);
}

void Rewriter::Rewrite(const Text& text) {
    const ZAMPrepressTextContent content(*text.element, text.preservesAround);
    ZAMPrepressTextWriter writer(_Tree, *text.element);
    const auto& spans = content.GetSpans();
    if (std::ranges::none_of(spans, [](const auto& span) { return ZAMPrepressHasPaint(*span.element); })) {
        writer.WriteNothing();
        return;
    }
    const ZAMPrepressTextPositions positions(content);
    ZAMPrepressTextStyles styles(content, _Fonts, _References);
    AdjustLengths(content, positions, styles);
    ZAMPrepressTextRuns runs(content, positions, styles);
    writer.Write(runs.GetRuns(), styles);
}

// What keeps a text's characters from being drawn as they stand: white space that goes, or that stays though the
// interpreter drops it.
bool IsShownAsItStands(std::string_view text) {
    return text.find_first_of("\t\r\n") == std::string_view::npos && text.find("  ") == std::string_view::npos &&
           !text.starts_with(' ') && !text.ends_with(' ');
}

bool IsPlain(const ZAMLightXmlElementItf& text) {
    constexpr std::string_view kNotPlain[] = {"dx", "dy", "rotate", "textLength", "viewBox"};
    const auto has = [&text](std::string_view attribute) { return !text.GetAttribute(attribute).empty(); };
    const auto isNumber = [&text](std::string_view attribute) {
        const std::string_view value = text.GetAttribute(attribute);
        return value.empty() || ZAMPrepressReadNumber(value).has_value();
    };
    return text.GetFirstChildPosition() == 0 && std::ranges::none_of(kNotPlain, has) && isNumber("x") &&
           isNumber("y") && IsShownAsItStands(text.GetTextContent().View());
}

} // namespace

// Properties are the matter of another rewrite.
bool ZAMPrepressTexts::Concerns(const ZAMLightXmlElementItf& element) {
    return element.GetName() == kText && !IsPlain(element);
}

void ZAMPrepressTexts::Rewrite(ZAMPrepressTree& tree) {
    Rewriter rewriter(tree);
    rewriter.Collect(tree.GetRoot(), false);
    rewriter.Rewrite();
}
