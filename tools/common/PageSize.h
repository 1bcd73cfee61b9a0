// SPDX-License-Identifier: MIT
#pragma once

#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "tools/common/Options.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

/// The size in points of the page that a drawing gets: its own size, a paper, or what else the options make of it.
/// `interpreter` is the drawing's; it is asked for the extent of the content when the drawing has no size of its own.
/// Always finite and positive.
ZAMMathVector2D FindPageSize(const ZAMLightXmlElement& drawing, ZAMPrintSVGInterpreter& interpreter,
                             const Options& options);
