// SPDX-License-Identifier: MIT
#pragma once

#include "tools/cups/FilterJob.h"

#include <string>

/// The PDF of a job's document: a page of its natural size for each drawing. Picture files are not read: the spool is
/// no document's folder. Throws a Failure when the document cannot be read, is too large, or has nothing to draw.
[[nodiscard]] std::string PrintJob(const FilterJob& job);
