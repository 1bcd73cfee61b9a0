// SPDX-License-Identifier: MIT
#include "bench/layers/Benchmarks.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/print/ZAMPrintModelRender.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <functional>
#include <malloc.h>
#include <ostream>
#include <stdexcept>
#include <streambuf>

namespace {

using benchmark::State;
using Format = ZAMPrintCairoGenerator::Format;
using Models = std::vector<ZAMRef<ZAMPrtModel>>;
using Roots = std::vector<ZAMLightXmlElement>;

// Takes everything and keeps nothing, so that no output's copying is measured.
class NullBuffer : public std::streambuf {
protected:
    int_type overflow(int_type character) override { return traits_type::not_eof(character); }
    std::streamsize xsputn(const char* /*text*/, std::streamsize count) override { return count; }
};

std::size_t GetHeapSize() {
    const auto information = mallinfo2();
    return information.uordblks + information.hblkhd;
}

void SetCounters(State& state, const Documents& documents) {
    const auto count = static_cast<double>(documents.GetElementCount());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(documents.GetSize()));
    state.counters["elements"] = count;
    state.counters["elements_per_second"] = benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate);
}

// Measures what `make` makes of each document, all of them one iteration. Giving it back is not measured.
template <typename Made>
void MeasureMaking(State& state, const Documents& documents, const std::function<Made(std::size_t)>& make) {
    std::vector<Made> made;
    made.reserve(documents.GetTexts().size());
    while (state.KeepRunning()) {
        for (std::size_t i = 0; i < documents.GetTexts().size(); ++i) {
            made.push_back(make(i));
        }
        state.PauseTiming();
        made.clear();
        state.ResumeTiming();
    }
    SetCounters(state, documents);
}

void MeasureNumbers(State& state, const Documents& documents) {
    const std::vector<std::string> numbers = documents.FindNumbers();
    std::size_t size = 0;
    std::ranges::for_each(numbers, [&](const std::string& number) { size += number.size() + 1; });
    while (state.KeepRunning()) {
        double value = 0.0;
        for (const std::string& number : numbers) {
            benchmark::DoNotOptimize(ZAMReadDouble(number, value));
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}

void MeasureXml(State& state, const Documents& documents) {
    MeasureMaking<ZAMLightXmlElement>(state, documents,
                                      [&](std::size_t i) { return ParseDocument(documents.GetTexts()[i]); });
}

void MeasurePrepress(State& state, const Documents& documents) {
    Roots roots;
    std::ranges::transform(documents.GetTexts(), std::back_inserter(roots), ParseDocument);
    MeasureMaking<ZAMLightXmlElement>(state, documents, [&](std::size_t i) { return PrepareDocument(roots[i]); });
}

ZAMRef<ZAMPrtModel> MakeModel(const std::string& text, bool isPrepared) {
    const ZAMLightXmlElement root = ParseDocument(text);
    return DecodeDocument(isPrepared ? PrepareDocument(root) : root);
}

void MeasureModel(State& state, const Documents& documents, bool isPrepared) {
    MeasureMaking<ZAMRef<ZAMPrtModel>>(state, documents,
                                       [&](std::size_t i) { return MakeModel(documents.GetTexts()[i], isPrepared); });
}

void CountModelBytes(State& state, const Documents& documents, bool isPrepared) {
    Models models(documents.GetTexts().size());
    const std::size_t before = GetHeapSize();
    std::ranges::transform(documents.GetTexts(), models.begin(),
                           [&](const std::string& text) { return MakeModel(text, isPrepared); });
    state.counters["model_bytes"] = static_cast<double>(GetHeapSize() - before);
}

void MeasureDrawing(State& state, const Documents& documents, Format format) {
    Models models;
    std::ranges::transform(documents.GetTexts(), std::back_inserter(models),
                           [](const std::string& text) { return MakeModel(text, true); });
    // All on pages of one size: some drawings are too large for a picture.
    constexpr double kSide = 400.0;
    ZAMPrintParameters parameters;
    parameters.pageWidth = kSide;
    parameters.pageHeight = kSide;
    NullBuffer buffer;
    while (state.KeepRunning()) {
        for (const auto& model : models) {
            std::ostream out(&buffer);
            ZAMPrintCairoGenerator generator(format, out);
            if (ZAMPrintModelRender(model.Get(), &generator, parameters).Draw() != 1) {
                throw std::runtime_error(generator.GetError());
            }
        }
    }
    SetCounters(state, documents);
}

void Register(const char* step, const Documents& documents, const std::function<void(State&)>& measure) {
    benchmark::RegisterBenchmark((std::string(step) + "/" + documents.GetName()).c_str(), measure)
        ->Unit(benchmark::kMillisecond);
}

} // namespace

void RegisterLayerBenchmarks(const Documents& documents) {
    Register("numbers", documents, [&](State& state) { MeasureNumbers(state, documents); });
    Register("xml", documents, [&](State& state) { MeasureXml(state, documents); });
    Register("model", documents, [&](State& state) { MeasureModel(state, documents, false); });
    Register("prepress", documents, [&](State& state) { MeasurePrepress(state, documents); });
    Register("prepared", documents, [&](State& state) { MeasureModel(state, documents, true); });
    Register("pdf", documents, [&](State& state) { MeasureDrawing(state, documents, Format::Pdf); });
    Register("png", documents, [&](State& state) { MeasureDrawing(state, documents, Format::Png); });
}

void RegisterGrowthBenchmarks(const Documents& documents) {
    for (const bool isPrepared : {false, true}) {
        Register(isPrepared ? "prepared" : "model", documents, [&documents, isPrepared](State& state) {
            MeasureModel(state, documents, isPrepared);
            CountModelBytes(state, documents, isPrepared);
        });
    }
}
