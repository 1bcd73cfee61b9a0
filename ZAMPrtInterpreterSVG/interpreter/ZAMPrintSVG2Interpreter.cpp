// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMTextCompare.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <algorithm>
#include <limits>
#include <new>
#include <optional>
#include <string>

namespace {

void Rewind(std::istream& stream) {
    stream.clear();
    stream.seekg(0);
}

// Everything from where the stream stands to its end, or to the first failure.
std::string ReadToEnd(std::istream& stream) {
    std::string bytes;
    std::size_t piece = 64UL * 1024;
    while (stream.good()) {
        const std::size_t before = bytes.size();
        bytes.resize(before + piece);
        stream.read(bytes.data() + before, static_cast<std::streamsize>(piece));
        bytes.resize(before + static_cast<std::size_t>(stream.gcount()));
        piece = std::max(piece, bytes.size());
    }
    return bytes;
}

} // namespace

ZAMPrintSVG2Interpreter::ZAMPrintSVG2Interpreter(std::istream* stream) {
    if (stream == nullptr || stream->fail()) {
        return;
    }
    try {
        ReadStream(*stream);
    } catch (...) { // memory, or a stream that throws: the decoder stays empty
        _Buffer.reset();
        _BufferLength = -1;
    }
}

ZAMPrintSVG2Interpreter::ZAMPrintSVG2Interpreter(const ZAMLightXmlElementItf* element) : _RootElement(element) {}

ZAMPrintSVG2Interpreter::~ZAMPrintSVG2Interpreter() = default;

// The length is counted from where the stream stands, the bytes are taken from its beginning; only a stream that stands
// elsewhere and can seek needs to be read twice for that.
void ZAMPrintSVG2Interpreter::ReadStream(std::istream& stream) {
    if (stream.eof()) {
        Rewind(stream);
        return;
    }
    const std::istream::pos_type start = stream.tellg();
    std::string bytes = ReadToEnd(stream);
    Rewind(stream);
    if (start > 0 && stream.good()) {
        stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        Rewind(stream);
    }
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return;
    }
    _BufferLength = static_cast<int>(bytes.size());
    if (!bytes.empty()) {
        _Buffer = std::make_unique_for_overwrite<char[]>(bytes.size());
        std::ranges::copy(bytes, _Buffer.get());
    }
}

int ZAMPrintSVG2Interpreter::SetCurrentPath(const ZAMUnicodeString& path) {
    _CurrentPath = path;
    return 1;
}

int ZAMPrintSVG2Interpreter::Decode(ZAMPrintSVGModelDriver* driver) {
    if ((!_Buffer && _RootElement == nullptr) || driver == nullptr || driver->GetModel() == nullptr) {
        return -1;
    }
    std::optional<ZAMAllocationBudget> budget;
    if (ZAMAllocationBudget::GetCurrent() == nullptr) {
        budget.emplace();
        ZAMAllocationBudget::Earn(_RootElement != nullptr ? _RootElement->GetDocumentSize()
                                                          : static_cast<std::size_t>(_BufferLength));
    }
    try {
        if (_RootElement != nullptr) {
            DecodeRoot(*_RootElement, *driver->GetModel());
            return 1;
        }
        const ZAMLightXmlInputStreamBuffer stream(reinterpret_cast<const unsigned char*>(_Buffer.get()), _BufferLength);
        ZAMLightXmlElement root;
        ZAMLightXmlParser().Parse(stream, root); // what was read before an error is used
        DecodeRoot(root, *driver->GetModel());
        return 1;
    } catch (...) {
        return -1;
    }
}

void ZAMPrintSVG2Interpreter::DecodeRoot(const ZAMLightXmlElementItf& root, ZAMPrtModel& model) {
    if (ZAMTextMatches(root.GetName(), "svg")) {
        DecodeSvg(root, model);
        return;
    }
    for (ZAMLightXmlPosition position = root.GetFirstChildPosition(); position != 0;) {
        const ZAMLightXmlElement child = root.GetNextChild(position);
        if (ZAMTextMatches(child.GetName(), "svg")) {
            DecodeSvg(child, model);
        }
    }
}

void ZAMPrintSVG2Interpreter::DecodeSvg(const ZAMLightXmlElementItf& element, ZAMPrtModel& model) {
    ZAMPrintSVGParser parser;
    parser.SetCurrentPath(_CurrentPath);
    parser._FlipY = _FlipYDefault;
    parser._FlipToOrigin = _FlipToOriginDefault;
    parser.ParseSVGElement(element, &model);
}
