// SPDX-License-Identifier: MIT
// bench_layers layers|growth FILE|FOLDER... [--benchmark_...]
// Measures in one process what becomes of documents, step by step; a folder's documents are measured together.
// Benchmarks.h says what is measured, --help which options there are.
#include "bench/layers/Benchmarks.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <deque>
#include <exception>
#include <limits>
#include <malloc.h>
#include <span>
#include <string_view>

namespace {

// Large blocks go back to the kernel and come again page by page, small ones stay: how memory is got would be taken for
// how the work grows.
void KeepMemory() {
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

} // namespace

int main(int count, char** values) {
    benchmark::Initialize(&count, values);
    const std::span arguments(values, static_cast<std::size_t>(count));
    const std::string_view kind = arguments.size() > 2 ? arguments[1] : "";
    if (kind != "layers" && kind != "growth") {
        std::fputs("usage: bench_layers layers|growth FILE|FOLDER... [--benchmark_...]\n", stderr);
        return 2;
    }
    if (kind == "growth") {
        KeepMemory();
    }
    try {
        std::deque<Documents> documents; // benchmarks refer to them
        for (const char* path : arguments.subspan(2)) {
            documents.emplace_back(path);
            (kind == "layers" ? RegisterLayerBenchmarks : RegisterGrowthBenchmarks)(documents.back());
        }
        benchmark::RunSpecifiedBenchmarks();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_layers: %s\n", error.what());
        return 1;
    }
    return 0;
}
