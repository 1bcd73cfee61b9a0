// SPDX-License-Identifier: MIT
#include "bench/documents/Documents.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "prepress/ZAMPrepress.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace {

std::vector<std::filesystem::path> FindFiles(const std::filesystem::path& path) {
    if (!std::filesystem::is_directory(path)) {
        return {path};
    }
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
        if (entry.path().extension() == ".svg") {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    return files;
}

std::string ReadFile(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    if (text.view().empty()) {
        throw std::runtime_error(path.string() + ": cannot be read");
    }
    return text.str();
}

// Calls `take` with each start tag, from its name to before its end.
template <typename Take> void ForEachStartTag(std::string_view text, Take take) {
    for (std::size_t begin = text.find('<'); begin != std::string_view::npos; begin = text.find('<', begin + 1)) {
        const std::string_view rest = text.substr(begin + 1);
        if (!rest.empty() && std::string_view("/?!").find(rest.front()) == std::string_view::npos) {
            take(rest.substr(0, rest.find('>')));
        }
    }
}

void AddNumbers(std::string_view tag, std::vector<std::string>& numbers) {
    constexpr std::string_view kInNumbers = "0123456789.+-eE";
    std::size_t begin = tag.find('"');
    while ((begin = tag.find_first_of(kInNumbers, begin)) != std::string_view::npos) {
        const std::size_t end = std::min(tag.find_first_not_of(kInNumbers, begin), tag.size());
        double value = 0.0;
        if (const std::string_view token = tag.substr(begin, end - begin); ZAMReadPlainDouble(token, value)) {
            numbers.emplace_back(token);
        }
        begin = end;
    }
}

} // namespace

Documents::Documents(const std::string& path) : _Name(std::filesystem::path(path).stem().string()) {
    for (const auto& file : FindFiles(path)) {
        _Texts.push_back(ReadFile(file));
        _Size += _Texts.back().size();
    }
}

std::size_t Documents::GetElementCount() const {
    std::size_t count = 0;
    for (const std::string& text : _Texts) {
        ForEachStartTag(text, [&](std::string_view) { ++count; });
    }
    return count;
}

std::vector<std::string> Documents::FindNumbers() const {
    std::vector<std::string> numbers;
    for (const std::string& text : _Texts) {
        ForEachStartTag(text, [&](std::string_view tag) { AddNumbers(tag, numbers); });
    }
    return numbers;
}

ZAMLightXmlElement ParseDocument(const std::string& text) {
    const ZAMLightXmlInputStreamBuffer stream(reinterpret_cast<const unsigned char*>(text.data()),
                                              static_cast<int>(text.size()));
    ZAMLightXmlElement root;
    ZAMLightXmlParser parser;
    if (parser.Parse(stream, root) != 1) {
        throw std::runtime_error(parser.GetError().reason);
    }
    return root;
}

ZAMLightXmlElement PrepareDocument(const ZAMLightXmlElement& root) {
    return ZAMPrepress::Prepare(root);
}

ZAMRef<ZAMPrtModel> DecodeDocument(const ZAMLightXmlElement& root) {
    auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    if (ZAMPrintSVG2Interpreter(&root).Decode(&driver) != 1) {
        throw std::runtime_error("no model");
    }
    return model;
}
