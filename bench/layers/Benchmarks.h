// SPDX-License-Identifier: MIT
#pragma once

#include "bench/documents/Documents.h"

/// Registers what is measured of the documents, as STEP/NAME: `xml` and `numbers` are the parts that reading cannot do
/// without, `model` is a text made a print model as the interpreter reads it, `prepared` with the prepress stage in
/// between, which `prepress` measures alone; `pdf` and `png` are the prepared models drawn. The documents must outlive
/// the run.
void RegisterLayerBenchmarks(const Documents& documents);

/// Registers `model` and `prepared` alone, with the counter `model_bytes`: what the finished models hold on the heap.
void RegisterGrowthBenchmarks(const Documents& documents);
