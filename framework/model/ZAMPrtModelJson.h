// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtModel.h"

#include <ostream>

/// Writes the model as one JSON object: the form in which models are compared and looked at. Keys come in a fixed
/// order; keys with nothing to say (no id, identity transform, no dashes) are left out. Write errors stay in the
/// stream's state.
ZAM_EXPORT void ZAMPrtWriteModelAsJson(const ZAMPrtModel& model, std::ostream& out);
