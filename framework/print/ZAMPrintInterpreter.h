// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/print/ZAMPrintGenerator.h"
#include "framework/print/ZAMPrintParameters.h"

/// The interface of a document format that can be printed. This base knows a document of one page.
class ZAM_EXPORT ZAMPrintInterpreter {
public:
    /// `name` is the format's name, for instance "SVG".
    explicit ZAMPrintInterpreter(const ZAMString& name);
    ZAMPrintInterpreter(const ZAMPrintInterpreter&) = delete;
    ZAMPrintInterpreter& operator=(const ZAMPrintInterpreter&) = delete;
    virtual ~ZAMPrintInterpreter();

    [[nodiscard]] const ZAMString& GetName() const { return _Name; }

    /// The size in user units, 90 to the inch. 1 when it is known; anything else leaves the two as they were or is a
    /// failure.
    virtual int GetSize(float& width, float& height) = 0;
    /// 1, and the number of pages.
    virtual int GetPageCount(unsigned int& count);
    /// The result of GetSize, and the rectangle (0, 0, width, height).
    virtual int GetBounds(float& xMin, float& yMin, float& xMax, float& yMax);
    /// 1 for the page number 1, else -1.
    virtual int SetCurrentPage(unsigned int page);
    /// Whether all pages are printed. Always 1.
    virtual int SetAllPages(unsigned char all);
    /// Draws the document. 1 done, anything else a failure.
    virtual int Decode(ZAMPrintGenerator* generator, const ZAMPrintParameters& parameters) = 0;

private:
    ZAMString _Name;
};
