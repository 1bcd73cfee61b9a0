// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Every element class of the model, for those who walk whole models.

#include "framework/model/ZAMPrtBitmapImageElt.h"
#include "framework/model/ZAMPrtCircleElt.h"
#include "framework/model/ZAMPrtClosedFigureElt.h"
#include "framework/model/ZAMPrtClosedFigureRegionElt.h"
#include "framework/model/ZAMPrtEllipseElt.h"
#include "framework/model/ZAMPrtEllipticalArcElt.h"
#include "framework/model/ZAMPrtGroupElt.h"
#include "framework/model/ZAMPrtImageElt.h"
#include "framework/model/ZAMPrtLineElt.h"
#include "framework/model/ZAMPrtModel.h"
#include "framework/model/ZAMPrtPatternElt.h"
#include "framework/model/ZAMPrtPolyCubicBezierElt.h"
#include "framework/model/ZAMPrtPolygonElt.h"
#include "framework/model/ZAMPrtPolylineElt.h"
#include "framework/model/ZAMPrtPolyQuadraticBezierElt.h"
#include "framework/model/ZAMPrtRectangleElt.h"
#include "framework/model/ZAMPrtSymbolElt.h"
#include "framework/model/ZAMPrtTextElt.h"
