// SPDX-License-Identifier: MIT
#include "tools/common/Document.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMTextCompare.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "prepress/ZAMPrepress.h"
#include "tools/common/Failure.h"
#include "tools/common/InputFile.h"
#include "tools/common/Options.h"
#include "tools/common/TileRenderer.h"

#include <limits>
#include <sstream>

namespace {

std::vector<ZAMLightXmlElement> FindChildren(const ZAMLightXmlElement& parent, std::string_view name) {
    std::vector<ZAMLightXmlElement> found;
    ZAMLightXmlPosition position = parent.GetFirstChildPosition();
    while (position != 0) {
        ZAMLightXmlElement child = parent.GetNextChild(position);
        if (ZAMTextMatches(child.GetName(), name)) {
            found.push_back(std::move(child));
        }
    }
    return found;
}

std::string CollapseWhiteSpace(const std::string& text) {
    std::istringstream words(text);
    words.imbue(std::locale::classic());
    std::string collapsed;
    for (std::string word; words >> word;) {
        collapsed += collapsed.empty() ? "" : " ";
        collapsed += word;
    }
    return collapsed;
}

} // namespace

Document::Document(const std::string& file, const Options& options)
    : _Name(GetInputName(file)), _Path(PathOf(file)), _Root(Read(file, options)) {
    if (options.isPrepared) {
        TileRenderer renderer(_Path);
        _Root = ZAMPrepress::Prepare(_Root, &renderer, _Path);
    }
    if (ZAMTextMatches(_Root.GetName(), "svg")) {
        _Drawings.push_back(_Root);
    } else {
        _Drawings = FindChildren(_Root, "svg");
    }
    if (_Drawings.empty()) {
        throw Failure(ExitStatus::Failed, _Name + ": holds no svg element");
    }
}

std::string Document::PathOf(const std::string& file) {
    return file == kStandardStream ? std::string() : file;
}

ZAMLightXmlElement Document::Read(const std::string& file, const Options& options) {
    const std::string content = ReadInputFile(file, options.isUnlimited);
    ZAMAllocationBudget::Earn(content.size());
    const ZAMLightXmlInputStreamBuffer stream(reinterpret_cast<const unsigned char*>(content.data()),
                                              static_cast<int>(content.size()));
    ZAMLightXmlElement root;
    ZAMLightXmlParser parser;
    if (options.isUnlimited) {
        parser.SetMostElements(std::numeric_limits<std::size_t>::max());
    }
    if (parser.Parse(stream, root) != 1) {
        const ZAMLightXmlError& error = parser.GetError();
        throw Failure(ExitStatus::Failed, GetInputName(file) + ":" + std::to_string(error.line) + ":" +
                                              std::to_string(error.column) + ": " + error.reason);
    }
    return root;
}

std::string Document::GetTextOf(std::string_view name) const {
    const std::vector<ZAMLightXmlElement> found = FindChildren(_Root, name);
    return found.empty() ? std::string() : CollapseWhiteSpace(found.front().GetTextContent().CastToCharPtr());
}
