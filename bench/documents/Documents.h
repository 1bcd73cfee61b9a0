// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/model/ZAMPrtModel.h"

#include <cstddef>
#include <string>
#include <vector>

/// The documents that are measured together, in memory, and the steps that a print takes with them.
class Documents {
public:
    /// Reads a file, or all the .svg files of a folder in the order of their names. Throws std::runtime_error.
    explicit Documents(const std::string& path);

    [[nodiscard]] const std::string& GetName() const { return _Name; }
    [[nodiscard]] const std::vector<std::string>& GetTexts() const { return _Texts; }
    /// Of all texts, in bytes.
    [[nodiscard]] std::size_t GetSize() const { return _Size; }
    [[nodiscard]] std::size_t GetElementCount() const;
    /// What in the attributes' values is a plain number, one after the other.
    [[nodiscard]] std::vector<std::string> FindNumbers() const;

private:
    std::string _Name;
    std::vector<std::string> _Texts;
    std::size_t _Size = 0;
};

/// The root of the document in the text.
[[nodiscard]] ZAMLightXmlElement ParseDocument(const std::string& text);
/// As zamprint prepares it.
[[nodiscard]] ZAMLightXmlElement PrepareDocument(const ZAMLightXmlElement& root);
[[nodiscard]] ZAMRef<ZAMPrtModel> DecodeDocument(const ZAMLightXmlElement& root);
