// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPlainPdf.h"

#include "generators/cairo/ZAMPrintCairoMetadata.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstdio>
#include <ctime>

namespace {

// The numbers of the objects that are there once; those of the pages follow, two for each.
constexpr std::size_t kCatalogue = 1;
constexpr std::size_t kPageTree = 2;
constexpr std::size_t kInformation = 3;
constexpr std::size_t kFirstPage = 4;

/// Of whole numbers: what becomes of others depends on the program's locale.
template <std::integral... Numbers> std::string Format(const char* format, Numbers... numbers) {
    std::array<char, 160> text{};
    const int length = std::snprintf(text.data(), text.size(), format, numbers...);
    return {text.data(), static_cast<std::size_t>(length)};
}

/// With six decimals, as a size needs them, but no needless one.
std::string ToText(double number) {
    std::array<char, 32> digits{};
    char* const begin = digits.data();
    const auto result = std::to_chars(begin, begin + digits.size(), number, std::chars_format::fixed, 6);
    std::string text(begin, result.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

/// The code point at the start of a text that is proper UTF-8, which loses it.
char32_t TakeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : (lead < 0xE0 ? 2 : (lead < 0xF0 ? 3 : 4));
    char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        code = code << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    text.remove_prefix(length);
    return code;
}

/// Plain characters as they are, others as UTF-16 with its mark (7.9.2.2), in hexadecimal digits.
std::string ToString(std::string_view text) {
    const bool isPlain = std::ranges::all_of(text, [](char character) { return character >= ' ' && character <= '~'; });
    std::string string = isPlain ? "(" : "<FEFF";
    while (!text.empty()) {
        const char32_t code = TakeCodePoint(text);
        if (isPlain) {
            constexpr std::string_view kSpecial = "()\\";
            string += kSpecial.find(static_cast<char>(code)) == std::string_view::npos ? "" : "\\";
            string += static_cast<char>(code);
        } else if (code < 0x10000) {
            string += Format("%04X", static_cast<unsigned int>(code));
        } else {
            const auto beyond = static_cast<unsigned int>(code - 0x10000);
            string += Format("%04X%04X", 0xD800U + (beyond >> 10U), 0xDC00U + (beyond & 0x3FFU));
        }
    }
    return string += isPlain ? ')' : '>';
}

std::string ToDate(std::time_t time) {
    const auto calendar = ZAMPrintCairoMetadata::ToCalendar(time);
    if (!calendar) {
        return {};
    }
    std::string date = ZAMPrintCairoMetadata::FormatDate(*calendar);
    std::erase_if(date, [](char character) { return character == '-' || character == ':' || character == 'T'; });
    return "D:" + date;
}

} // namespace

void ZAMPrintCairoPlainPdf::Write(const std::vector<Page>& pages, const ZAMPrintMetadata& metadata) {
    // Bytes above 127 say that the file is no text.
    Add("%PDF-1.4\n%\xB5\xED\xAE\xFB\n");
    BeginObject();
    Add(Format("<</Type/Catalog/Pages %zu 0 R>>\nendobj\n", kPageTree));
    WritePages(pages);
    WriteInformation(metadata);
    std::ranges::for_each(pages, [this](const Page& page) { WritePage(page); });
    WriteEnd();
}

void ZAMPrintCairoPlainPdf::Add(std::string_view text) {
    _Stream.Write(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    _Size += text.size();
}

void ZAMPrintCairoPlainPdf::BeginObject() {
    _Objects.push_back(_Size);
    Add(Format("%zu 0 obj\n", _Objects.size()));
}

void ZAMPrintCairoPlainPdf::WritePages(const std::vector<Page>& pages) {
    BeginObject();
    std::string kids;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        kids += (i == 0 ? "" : " ") + Format("%zu 0 R", kFirstPage + 2 * i);
    }
    Add("<</Type/Pages/Kids[" + kids + "]/Count " + std::to_string(pages.size()) + ">>\nendobj\n");
}

void ZAMPrintCairoPlainPdf::WriteInformation(const ZAMPrintMetadata& metadata) {
    BeginObject();
    Add("<<");
    const auto add = [this](std::string_view key, const std::string& text) {
        if (!text.empty()) {
            Add(key);
            Add(ToString(text));
        }
    };
    add("/Title", ZAMPrintCairoMetadata::KeepCharacters(metadata.title));
    add("/Author", ZAMPrintCairoMetadata::KeepCharacters(metadata.author));
    add("/Subject", ZAMPrintCairoMetadata::KeepCharacters(metadata.subject));
    add("/Creator", ZAMPrintCairoMetadata::kCreator);
    add("/Producer", ZAMPrintCairoMetadata::kCreator);
    add("/CreationDate", ToDate(metadata.creationTime.value_or(std::time(nullptr))));
    if (metadata.creationTime) {
        add("/ModDate", ToDate(*metadata.creationTime));
    }
    Add(">>\nendobj\n");
}

void ZAMPrintCairoPlainPdf::WritePage(const Page& page) {
    BeginObject();
    std::string resources;
    for (const int opacity : page.opacities) {
        const std::string share = ToText(opacity / 255.0);
        resources += Format("/a%d<</CA ", opacity);
        resources += share;
        resources += "/ca ";
        resources += share;
        resources += ">>";
    }
    Add(Format("<</Type/Page/Parent %zu 0 R/MediaBox[0 0 ", kPageTree) + ToText(page.width) + " " +
        ToText(page.height) + Format("]/Contents %zu 0 R/Resources<<", _Objects.size() + 1));
    if (!resources.empty()) {
        // What is seen through is mixed as the colours are given (11.4.7).
        Add("/ExtGState<<" + resources + ">>>>/Group<</S/Transparency/CS/DeviceRGB/I true");
    }
    Add(">>>>\nendobj\n");
    BeginObject();
    Add(Format("<</Length %zu/Filter/FlateDecode>>\nstream\n", page.content.size()));
    Add(page.content);
    Add("\nendstream\nendobj\n");
}

/// Where the objects are (7.5.4), and where that is said.
void ZAMPrintCairoPlainPdf::WriteEnd() {
    const std::size_t start = _Size;
    const std::size_t count = _Objects.size() + 1;
    Add(Format("xref\n0 %zu\n0000000000 65535 f \n", count));
    for (const std::size_t place : _Objects) {
        Add(Format("%010zu 00000 n \n", place));
    }
    Add(Format("trailer\n<</Size %zu/Root %zu 0 R/Info %zu 0 R>>\nstartxref\n%zu\n%%%%EOF\n", count, kCatalogue,
               kInformation, start));
}
