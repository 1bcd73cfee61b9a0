// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/lightxml/ZAMLightXmlElementItf.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGModelDriver.h"

#include <istream>
#include <memory>

/// Decodes SVG documents (SVG 1.x) into print models that the caller owns. It keeps no state between decodes but its
/// document, its path and its flags: each Decode reads the document again and adds its pages to the model that it is
/// given. Content that is not understood is skipped in silence. No operation throws.
class ZAM_EXPORT ZAMPrintSVG2Interpreter {
public:
    /// Copies the whole document from the stream and leaves the stream rewound, where it can seek. A null stream or one
    /// in a failed state leaves the decoder empty. Reading stops at the first failure and keeps what was read.
    explicit ZAMPrintSVG2Interpreter(std::istream* stream);
    /// Borrows a document that is parsed already; null leaves the decoder empty. The element must outlive the decoder.
    explicit ZAMPrintSVG2Interpreter(const ZAMLightXmlElementItf* element);
    ZAMPrintSVG2Interpreter(const ZAMPrintSVG2Interpreter&) = delete;
    ZAMPrintSVG2Interpreter& operator=(const ZAMPrintSVG2Interpreter&) = delete;
    virtual ~ZAMPrintSVG2Interpreter();

    /// Sets the path of the document's file, whose folder relative references start from. Always 1.
    int SetCurrentPath(const ZAMUnicodeString& path);

    /// Adds an image element for the root, when it is an `svg` element, else for each of the root's children that is
    /// one. 1 done, also when nothing was found; -1 without a document, a driver or a model, or when memory is out.
    ///
    /// Reused elements and pictures are limited by the thread's ZAMAllocationBudget, or by one of this decode's own;
    /// what a spent budget does not allow is left out. Picture files are read as the thread's ZAMFileAccessPolicy
    /// allows.
    int Decode(ZAMPrintSVGModelDriver* driver);

    /// Turn the document's downward y axis into the model's upward one.
    bool _FlipYDefault = true;
    /// Put the document's lower left corner at the origin instead of flipping about the document's height.
    bool _FlipToOriginDefault = false;

private:
    void ReadStream(std::istream& stream);
    void DecodeRoot(const ZAMLightXmlElementItf& root, ZAMPrtModel& model);
    void DecodeSvg(const ZAMLightXmlElementItf& element, ZAMPrtModel& model);

    std::unique_ptr<char[]> _Buffer;
    int _BufferLength = -1;
    ZAMUnicodeString _CurrentPath;
    const ZAMLightXmlElementItf* _RootElement = nullptr;
};
