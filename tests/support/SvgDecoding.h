// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "framework/model/ZAMPrtModel.h"
#include "framework/model/ZAMPrtModelJson.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <sstream>
#include <string>
#include <string_view>

/// The root element of a document; errors are ignored.
inline ZAMLightXmlElement ParseDocument(std::string_view document) {
    ZAMLightXmlElement root;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    ZAMLightXmlParser().Parse(ZAMLightXmlInputStreamBuffer(bytes, static_cast<int>(document.size())), root);
    return root;
}

inline std::string ToJson(const ZAMPrtModel& model) {
    std::ostringstream out;
    ZAMPrtWriteModelAsJson(model, out);
    return out.str();
}

/// The model of a document as JSON; `setUp` is given the decoder first.
template <class SetUp> std::string DecodeToJson(std::string_view document, SetUp setUp) {
    const ZAMLightXmlElement root = ParseDocument(document);
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVG2Interpreter decoder(&root);
    setUp(decoder);
    ZAMPrintSVGModelDriver driver(model.Get());
    return model && decoder.Decode(&driver) == 1 ? ToJson(*model) : "not decoded";
}
inline std::string DecodeToJson(std::string_view document) {
    return DecodeToJson(document, [](const auto&) {});
}
