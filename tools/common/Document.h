// SPDX-License-Identifier: MIT
#pragma once

#include "framework/lightxml/ZAMLightXmlElement.h"
#include "tools/common/Options.h"

#include <string>
#include <vector>

/// An SVG document: its root and its drawings.
class Document {
public:
    /// Reads and parses a file, or standard input for "-". Throws a Failure when it cannot be read, is no well-formed
    /// XML, or holds no drawing. A prepared document says the same in words that the interpreter draws rightly.
    Document(const std::string& file, const Options& options);
    /// Only reads and parses, whatever the document holds. Throws a Failure when that cannot be done.
    static ZAMLightXmlElement Read(const std::string& file, const Options& options);

    /// Where the relative references of a document in that file start from; empty for standard input.
    [[nodiscard]] static std::string PathOf(const std::string& file);

    /// What messages call it.
    [[nodiscard]] const std::string& GetName() const { return _Name; }
    [[nodiscard]] const std::string& GetPath() const { return _Path; }
    [[nodiscard]] const ZAMLightXmlElement& GetRoot() const { return _Root; }
    /// The root when it is an svg element, else those of its children that are one; each is a page.
    [[nodiscard]] const std::vector<ZAMLightXmlElement>& GetDrawings() const { return _Drawings; }
    /// The text of the root's title, runs of white space made one blank each; empty without a title.
    [[nodiscard]] std::string GetTitle() const { return GetTextOf("title"); }
    /// Likewise of the `desc` element.
    [[nodiscard]] std::string GetDescription() const { return GetTextOf("desc"); }

private:
    [[nodiscard]] std::string GetTextOf(std::string_view name) const;

    std::string _Name;
    std::string _Path;
    ZAMLightXmlElement _Root;
    std::vector<ZAMLightXmlElement> _Drawings;
};
