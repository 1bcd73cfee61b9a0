// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMShapedText.h"

#include "framework/visualisation/ZAMFont.h"
#include "framework/visualisation/ZAMFontsModule.h"

#include <deque>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace {

// The memory that one thread's remembered texts may take.
constexpr std::size_t kRememberedBytes = std::size_t{4} << 20U;

const ZAMTextFace* InternFace(ZAMTextFace face) {
    static std::mutex mutex;
    static auto* const faces = new std::deque<ZAMTextFace>;
    const std::lock_guard lock(mutex);
    for (const ZAMTextFace& known : *faces) {
        if (known == face) {
            return &known;
        }
    }
    return &faces->emplace_back(std::move(face));
}

// Builds a shaped text from the module's calls.
struct Receiver {
    ZAMShapedText& result;
    std::unordered_map<const void*, const ZAMTextFace*> faces;

    const ZAMTextFace* FaceOf(const ZAMFontsRun& run) {
        const ZAMTextFace*& face = faces[run.font];
        if (face == nullptr) {
            face = InternFace({run.file, run.faceIndex, run.variations, run.syntheticBold, run.hasOutlines});
        }
        return face;
    }
    void Add(const ZAMFontsRun& run) {
        ZAMShapedText::Run& shaped = result.runs.emplace_back();
        shaped.run.face = FaceOf(run);
        shaped.run.rightToLeft = run.rightToLeft;
        shaped.run.textStart = run.textStart;
        shaped.run.textLength = run.textLength;
        shaped.run.firstGlyph = result.glyphs.size();
        shaped.run.glyphCount = run.glyphCount;
        shaped.run.firstCluster = result.clusters.size();
        shaped.run.clusterCount = run.clusterCount;
        shaped.shape = {run.matrix[0], run.matrix[1], run.matrix[2], run.matrix[3], 0.0, 0.0};
        shaped.quarterTurns = run.quarterTurns;
        shaped.ascent = run.ascent;
        shaped.descent = run.descent;
        result.glyphs.insert(result.glyphs.end(), run.glyphs, run.glyphs + run.glyphCount);
        for (std::size_t i = 0; i < run.clusterCount; ++i) {
            result.clusters.push_back({run.clusters[i].bytes, run.clusters[i].glyphs});
        }
    }
};

// The weight codes of the model; a font's own weight is what the normal one means.
int WeightOf(const ZAMTextStyle& style) {
    switch (style.weight) {
    case 24:
        return 300;
    case 26:
        return 700;
    case 27:
        return 900;
    default:
        return style.font == nullptr ? 400 : style.font->GetFace().weight;
    }
}

ZAMFontsShapeRequest RequestFor(const std::string& text, const ZAMTextStyle& style) {
    const ZAMFont* font = style.font;
    return {.text = text.data(),
            .length = text.size(),
            .family = font == nullptr ? "serif" : font->GetFamily().c_str(),
            .weight = WeightOf(style),
            .slant = font == nullptr ? 0 : font->GetFace().slant,
            .stretch = font == nullptr ? 100 : font->GetFace().stretch,
            .writingMode = style.writingMode,
            .ligatures = style.extraSpacing == 0.0};
}

std::string KeyOf(const ZAMFontsShapeRequest& request) {
    std::string key(request.family);
    for (const int number :
         {request.weight, request.slant, request.stretch, request.writingMode, request.ligatures ? 1 : 0}) {
        key += '\n' + std::to_string(number);
    }
    return key.append(1, '\n').append(request.text, request.length);
}

std::shared_ptr<const ZAMShapedText> Shape(const ZAMFontsShapeRequest& request) {
    auto shaped = std::make_shared<ZAMShapedText>();
    const ZAMPrintFontsTable* module = ZAMOpenFontsModule();
    if (module == nullptr) {
        return shaped;
    }
    Receiver receiver{*shaped, {}};
    const ZAMFontsShapeSink sink{
        &receiver,
        [](void* target, double ascent, double descent) {
            static_cast<Receiver*>(target)->result.ascent = ascent;
            static_cast<Receiver*>(target)->result.descent = descent;
        },
        [](void* target, const ZAMFontsRun* run) { static_cast<Receiver*>(target)->Add(*run); }};
    return module->shapeLine(&request, &sink) ? shaped : std::make_shared<ZAMShapedText>();
}

struct Memory {
    std::unordered_map<std::string, std::shared_ptr<const ZAMShapedText>> texts;
    std::size_t bytes = 0;

    void Remember(std::string key, const std::shared_ptr<const ZAMShapedText>& shaped) {
        const std::size_t cost = 2 * key.size() + shaped->runs.size() * sizeof(ZAMShapedText::Run) +
                                 shaped->glyphs.size() * sizeof(ZAMFontsGlyph) +
                                 shaped->clusters.size() * sizeof(ZAMTextCluster) + sizeof(ZAMShapedText);
        if (cost > kRememberedBytes) {
            return;
        }
        if (bytes + cost > kRememberedBytes) {
            texts.clear();
            bytes = 0;
        }
        bytes += cost;
        texts.emplace(std::move(key), shaped);
    }
};

} // namespace

std::shared_ptr<const ZAMShapedText> ZAMShapedText::sShape(const std::string& text, const ZAMTextStyle& style) {
    static thread_local Memory memory;
    const ZAMFontsShapeRequest request = RequestFor(text, style);
    std::string key = KeyOf(request);
    const auto known = memory.texts.find(key);
    if (known != memory.texts.end()) {
        return known->second;
    }
    auto shaped = Shape(request);
    memory.Remember(std::move(key), shaped);
    return shaped;
}
