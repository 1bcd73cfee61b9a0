// SPDX-License-Identifier: MIT
#include "tests/support/FontFolders.h"
#include "tests/whole/WholeWay.h"

#include <functional>
#include <pthread.h>

namespace {

// What sanitizers put around each variable takes room.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kStack = std::size_t{2} << 20U;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr std::size_t kStack = std::size_t{2} << 20U;
#else
constexpr std::size_t kStack = std::size_t{512} << 10U;
#endif
#else
constexpr std::size_t kStack = std::size_t{512} << 10U;
#endif

void RunOnSmallStack(std::function<void()> task) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, kStack), 0);
    pthread_t thread{};
    const auto run = [](void* self) -> void* {
        (*static_cast<std::function<void()>*>(self))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &task), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

std::string Repeat(std::string_view text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

std::string Nest(std::string_view start, std::string_view content, std::string_view end, int depth = 250) {
    return R"(<svg width="100" height="100" id="root">)" + Repeat(start, depth) + std::string(content) +
           Repeat(end, depth) + "</svg>";
}

// Each definition refers to the one before it, or to the next one.
std::string Chain(const std::function<std::string(int, int)>& link, int step, const std::string& use) {
    std::string text = R"(<svg width="100" height="100">)";
    for (int i = 0; i < 1000; ++i) {
        text += link(i, i + step);
    }
    return text + use + "</svg>";
}

} // namespace

// Whatever nests in a document or in what it refers to is walked within the stack of a small thread.
TEST(SmallStackTest, TheDeepestDocumentsAreDrawn) {
    const std::string square = R"svg(<rect width="9" height="9" stroke="url(#p0)" marker-mid="url(#m0)"/>)svg";
    const auto use = [](int one, int other) {
        return "<g id='u" + std::to_string(one) + "'><use xlink:href='#u" + std::to_string(other) + "'/></g>";
    };
    const auto fill = [&](int one, int other) {
        return "<pattern id='p" + std::to_string(one) + "' width='9' height='9' patternUnits='userSpaceOnUse'>" +
               "<rect width='5' height='5' fill='url(#p" + std::to_string(other) + ")'/></pattern>";
    };
    const auto gradient = [](int one, int other) {
        return "<linearGradient id='p" + std::to_string(one) + "' xlink:href='#p" + std::to_string(other) + "'/>";
    };
    const auto mark = [](int one, int other) {
        return "<marker id='m" + std::to_string(one) + "'><path d='M0 0L1 1L2 2' marker-mid='url(#m" +
               std::to_string(other) + ")'/></marker>";
    };
    const auto clip = [&](int one, int other) {
        return "<clipPath id='c" + std::to_string(one) + "' clip-path='url(#c" + std::to_string(other) + ")'>" +
               "<rect width='5' height='5' clip-path='url(#c" + std::to_string(other) + ")'/></clipPath>";
    };
    const std::string sheet = "<svg width='9' height='9'><style>";
    const std::string documents[] = {
        Nest("<g opacity='.9' transform='scale(1.01)' style='font-size:1.1em'>", square, "</g>"),
        Nest("<svg width='90%' viewBox='0 0 9 9'>", square, "</svg>"),
        Nest("<a xlink:href='#root'>", square, "</a>"),
        Nest("<symbol>", square, "</symbol>"),
        Nest("<defs><g id='a'>", square, "</g></defs>", 125),
        Nest("<pattern id='p0' width='9' height='9'>", square, "</pattern>", 200),
        Nest("<marker id='m0'>", square, "</marker>"),
        Nest("<clipPath id='c'>", square, "</clipPath>"),
        Nest("<switch>", square, "</switch>"),
        Nest("<g clip-path='url(#c)'>", square + "<clipPath id='c'><circle r='5'/></clipPath>", "</g>"),
        "<svg width='9' height='9'><text>" + Repeat("<tspan dx='1'>", 250) + "a" + Repeat("</tspan>", 250) +
            "</text></svg>",
        Nest("<x>", square, "</x>", 100000),
        Chain(use, 1, "<use xlink:href='#u0'/>"),
        Chain(use, -1, "<use xlink:href='#u999'/>"),
        Chain(fill, 1, "<rect width='50' height='50' fill='url(#p0)'/>"),
        Chain(fill, -1, "<rect width='50' height='50' fill='url(#p999)'/>"),
        Chain(gradient, 1, "<rect width='50' height='50' fill='url(#p0)'/>"),
        Chain(mark, 1, "<path d='M0 0L9 9L9 0' marker-mid='url(#m0)'/>"),
        Chain(mark, -1, "<path d='M0 0L9 9L9 0' marker-mid='url(#m999)'/>"),
        Chain(clip, 1, "<g clip-path='url(#c0)'>" + square + "</g>"),
        sheet + "rect" + Repeat(":not(", 20000) + "a" + Repeat(")", 20000) + "{fill:red}</style>" + square + "</svg>",
        sheet + Repeat("@media all{", 20000) + "</style>" + square + "</svg>",
        sheet + "rect{fill:" + Repeat("(", 20000) + "}</style>" + square + "</svg>",
        sheet + "rect{fill:" + Repeat("var(--a,", 200) + "red" + Repeat(")", 200) + "}</style>" + square + "</svg>",
        sheet + Repeat("g ", 5000) + "rect{fill:red}</style>" + square + "</svg>",
    };
    for (const std::string& document : documents) {
        SCOPED_TRACE(document.substr(0, 200));
        RunOnSmallStack([&] {
            const ZAMAllocationBudget budget(20'000); // as deep as with more
            EXPECT_FALSE(WholeWay::Model(document).empty() && !budget.IsSpent());
        });
        RunOnSmallStack([&] {
            for (const WholeWay::Format format : {WholeWay::Format::Pdf, WholeWay::Format::Png}) {
                const ZAMAllocationBudget budget(20'000);
                EXPECT_TRUE(WholeWay::Draw(document, format).drawn == 1 || budget.IsSpent());
            }
        });
    }
}
