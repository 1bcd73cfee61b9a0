// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "framework/model/ZAMPrtModelJson.h"
#include "prepress/ZAMPrepress.h"
#include "tests/support/FontFolders.h"
#include "tests/whole/WholeWay.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

#include <cstdlib>
#include <new>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

// The allocation of this thread that fails, counted down to 0; below 0 none does. It fails once: what comes after it
// finds memory again.
thread_local int failing = -1;

class OneFailure {
public:
    explicit OneFailure(int number) { failing = number; }
    OneFailure(const OneFailure&) = delete;
    OneFailure& operator=(const OneFailure&) = delete;
    ~OneFailure() { failing = -1; }

    /// Fewer allocations were made than the number.
    [[nodiscard]] static bool IsLeft() { return failing >= 0; }
};

} // namespace

// Kept out of line: g++ sees a mismatch when it inlines one of these without the other.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (failing >= 0 && failing-- == 0) {
        throw std::bad_alloc();
    }
    void* const memory = std::malloc(size == 0 ? 1 : size);
    return memory != nullptr ? memory : throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
[[gnu::noinline]] void* operator new[](std::size_t size) {
    return operator new(size);
}
[[gnu::noinline]] void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace {

// Calls `task` again and again, each time with another allocation that fails, until none is left; returns how many.
template <class Task> int FailEach(Task task) {
    for (int number = 0;; ++number) {
        const OneFailure failure(number);
        task();
        if (OneFailure::IsLeft()) {
            return number;
        }
    }
}

ZAMLightXmlElement Parse(const std::string& document) {
    ZAMLightXmlElement root;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    ZAMLightXmlParser().Parse(ZAMLightXmlInputStreamBuffer(bytes, static_cast<int>(document.size())), root);
    return root;
}

std::string ToJson(const ZAMPrtModel& model) {
    std::ostringstream json;
    ZAMPrtWriteModelAsJson(model, json);
    return json.str();
}

} // namespace

TEST(FaultInjectionTest, AParserSaysThatMemoryIsOut) {
    const std::string document = WholeWay::EveryElement();
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    const int count = FailEach([&] {
        ZAMLightXmlElement root;
        ZAMLightXmlParser parser;
        const int result = parser.Parse(ZAMLightXmlInputStreamBuffer(bytes, static_cast<int>(document.size())), root);
        EXPECT_EQ(result, OneFailure::IsLeft() ? 1 : -1);
        EXPECT_EQ(result == 1, parser.GetError().reason.empty());
    });
    EXPECT_GT(count, 5); // the document, its lists and what they grow to
}

// The document comes back as it was, or prepared with all it holds.
TEST(FaultInjectionTest, APreparationThatFailsChangesNothing) {
    const ZAMLightXmlElement root = Parse(WholeWay::EveryElement());
    const std::size_t whole = ZAMPrepress::Prepare(root).GetDocumentSize();
    int unchanged = 0;
    const int count = FailEach([&] {
        const std::size_t size = ZAMPrepress::Prepare(root).GetDocumentSize();
        unchanged += size == root.GetDocumentSize() ? 1 : 0;
        EXPECT_TRUE(size == whole || size == root.GetDocumentSize() || size > whole / 2) << size;
    });
    EXPECT_GT(count, 100);
    EXPECT_GT(unchanged, count / 2);
}

// Whatever could not be had is missing in the model; the rest of it is whole, and so is what was there before.
TEST(FaultInjectionTest, AnInterpreterLeavesAModelThatCanBeUsed) {
    for (const bool isPrepared : {false, true}) {
        ZAMLightXmlElement root = Parse(WholeWay::EveryElement());
        root = isPrepared ? ZAMPrepress::Prepare(root) : root;
        const int count = FailEach([&] {
            const int number = std::exchange(failing, -1);
            const auto model = ZAMNew<ZAMPrtModel>();
            const auto before = ZAMNew<ZAMPrtImageElt>();
            model->AddImage(before.Get());
            ZAMPrintSVGModelDriver driver(model.Get());
            failing = number;
            const int result = ZAMPrintSVG2Interpreter(&root).Decode(&driver);
            const int left = std::exchange(failing, -1);
            EXPECT_TRUE(result == 1 || (result == -1 && left < 0)) << result;
            EXPECT_TRUE(nlohmann::json::accept(ToJson(*model)));
            EXPECT_TRUE(model->GetImages().front() == before);
            failing = left;
        });
        EXPECT_GT(count, 100);
    }
}

TEST(FaultInjectionTest, AGeneratorDrawsOrFails) {
    const ZAMLightXmlElement root = ZAMPrepress::Prepare(Parse(WholeWay::EveryElement()));
    for (const WholeWay::Format format : WholeWay::kFormats) {
        int failed = 0;
        const int count = FailEach([&] {
            const int number = std::exchange(failing, -1);
            std::ostringstream out;
            ZAMPrintSVGInterpreter interpreter(&root);
            float width = 0.0F;
            float height = 0.0F;
            interpreter.GetSize(width, height); // the model is whole
            failing = number;
            ZAMPrintCairoGenerator generator(format, out);
            const int result = interpreter.Decode(&generator, {});
            EXPECT_TRUE(result == 1 || result == -1) << result;
            EXPECT_TRUE(result == 1 || !OneFailure::IsLeft());
            failed += result == 1 ? 0 : 1;
        });
        EXPECT_GT(count, 20);
        EXPECT_GT(failed, 0);
    }
}
