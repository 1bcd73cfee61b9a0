// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressSheet.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/style/ZAMPrepressCssTokenizer.h"
#include "prepress/style/ZAMPrepressMedia.h"

namespace {

using Type = ZAMPrepressCssTokenType;

class SheetReader {
public:
    SheetReader(std::list<std::string>& texts, const ZAMPrepressRuleReader& reader) : _Texts(texts), _Reader(reader) {}

    void Read(std::string_view sheet, int depth) {
        ZAMPrepressCssTokenizer tokens(sheet, _Texts);
        while (tokens.Peek().type != Type::End) {
            if (tokens.Peek().type == Type::AtKeyword) {
                ReadAtRule(tokens, depth);
            } else if (tokens.Peek().type == Type::Blank || tokens.Peek().type == Type::HtmlComment) {
                tokens.Next();
            } else {
                const std::string_view selectors = TakePrelude(tokens, false);
                if (tokens.Eat('{')) {
                    _Reader(selectors, tokens.TakeBlock('}'));
                }
            }
        }
    }

private:
    static std::string_view TakePrelude(ZAMPrepressCssTokenizer& tokens, bool endsWithSemicolon) {
        const char* const begin = tokens.Peek().source.data();
        while (tokens.Peek().type != Type::End && !tokens.Peek().Is('{') &&
               !(endsWithSemicolon && tokens.Peek().Is(';'))) {
            tokens.SkipComponent();
        }
        return {begin, static_cast<std::size_t>(tokens.Peek().source.data() - begin)};
    }

    void ReadAtRule(ZAMPrepressCssTokenizer& tokens, int depth) {
        const bool isMedia = ZAMTextMatches(tokens.Next().text, "media");
        const std::string_view prelude = TakePrelude(tokens, true);
        if (tokens.Eat(';') || !tokens.Eat('{')) {
            return;
        }
        const std::string_view block = tokens.TakeBlock('}');
        if (isMedia && depth < ZAMLimits::kSheetDepth && ZAMPrepressMediaHolds(prelude)) {
            Read(block, depth + 1);
        }
    }

    std::list<std::string>& _Texts;
    const ZAMPrepressRuleReader& _Reader;
};

} // namespace

void ZAMPrepressReadSheet(std::string_view sheet, std::list<std::string>& texts, const ZAMPrepressRuleReader& reader) {
    SheetReader(texts, reader).Read(sheet, 0);
}
