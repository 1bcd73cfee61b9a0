// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "framework/print/ZAMPrintModelRender.h"
#include "tests/support/FontFolders.h"
#include "tests/whole/WholeWay.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <sstream>
#include <thread>

namespace {

constexpr int kThreads = 16;

template <class Task> void RunAtOnce(Task task) {
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back(task, i);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

// Every one has texts, pictures and paints, and none is like another.
std::string MakeDocument(int number) {
    std::string document = WholeWay::EveryElement();
    const std::string size = std::to_string(9 + number);
    return document.replace(document.rfind("</svg>"), 0,
                            "<text y='9' font-size='" + size + "'>" + size + "</text><rect width='" + size +
                                "' height='9' fill='url(#l)'/>");
}

// What a second document would have the same: PDF and PostScript name the time.
std::string DrawAll(const std::string& document) {
    std::string outputs;
    for (const WholeWay::Format format : WholeWay::kFormats) {
        const WholeWay::Outcome outcome = WholeWay::Draw(document, format);
        EXPECT_EQ(outcome.drawn, 1);
        outputs += format == WholeWay::Format::Png ? outcome.output : std::string();
    }
    return outputs;
}

} // namespace

TEST(ThreadsTest, SixteenDocumentsAtOnce) {
    std::vector<std::string> models(kThreads);
    std::vector<std::string> pictures(kThreads);
    RunAtOnce([&](int i) {
        const std::string document = MakeDocument(i);
        const auto number = static_cast<std::size_t>(i);
        models[number] = WholeWay::Model(document);
        pictures[number] = DrawAll(document);
    });
    for (int i = 0; i < kThreads; ++i) {
        const std::string document = MakeDocument(i);
        const auto number = static_cast<std::size_t>(i);
        EXPECT_EQ(models[number], WholeWay::Model(document));
        EXPECT_EQ(pictures[number], WholeWay::Draw(document, WholeWay::Format::Png).output);
    }
}

TEST(ThreadsTest, OneModelDrawnByManyAtOnce) {
    const std::string document = WholeWay::EveryElement();
    ZAMLightXmlElement root;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    ZAMLightXmlParser().Parse(ZAMLightXmlInputStreamBuffer(bytes, static_cast<int>(document.size())), root);
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    ASSERT_EQ(ZAMPrintSVG2Interpreter(&root).Decode(&driver), 1);
    std::vector<std::string> pictures(kThreads);
    RunAtOnce([&](int i) {
        for (const WholeWay::Format format : WholeWay::kFormats) {
            std::ostringstream out;
            ZAMPrintCairoGenerator generator(format, out);
            EXPECT_EQ(ZAMPrintModelRender(model.Get(), &generator, {}).Draw(), 1);
            pictures[static_cast<std::size_t>(i)] = out.str(); // that of the last format, PNG, stays
        }
    });
    for (const std::string& picture : pictures) {
        EXPECT_EQ(picture, pictures.front());
    }
}
