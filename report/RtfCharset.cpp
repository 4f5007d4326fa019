// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfCharset.h"

#include "core/CharsetDecoder.h"
#include "core/Unicode.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orvel {

namespace {

struct Charset {
    int number;
    int codePage;
};

constexpr std::array<Charset, 19> kCharsets = {{
    {0, 1252},   {2, kSymbolPage}, {77, 10000}, {128, 932},  {129, 949},  {130, 1361}, {134, 936},
    {136, 950},  {161, 1253},      {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251}, {222, 874},       {238, 1250}, {254, 437},  {255, 850},
}};

struct Page {
    int number = 0;
    const char* name = ""; // as iconv knows it
    bool isMultiByte = false;
};

constexpr std::array<Page, 36> kPages = {{
    {437, "CP437"},          {737, "CP737"},       {775, "CP775"},           {850, "CP850"},
    {852, "CP852"},          {855, "CP855"},       {857, "CP857"},           {858, "CP858"},
    {860, "CP860"},          {861, "CP861"},       {862, "CP862"},           {863, "CP863"},
    {864, "CP864"},          {865, "CP865"},       {866, "CP866"},           {869, "CP869"},
    {874, "CP874"},          {932, "CP932", true}, {936, "GBK", true},       {949, "CP949", true},
    {950, "BIG5", true},     {1250, "CP1250"},     {kWindows1252, "CP1252"}, {1251, "CP1251"},
    {1253, "CP1253"},        {1254, "CP1254"},     {1255, "CP1255"},         {1256, "CP1256"},
    {1257, "CP1257"},        {1258, "CP1258"},     {1361, "JOHAB", true},    {10000, "MACINTOSH"},
    {10007, "MAC-CYRILLIC"}, {20866, "KOI8-R"},    {28591, "ISO-8859-1"},    {65001, "UTF-8", true},
}};

const Page& PageOf(int number) {
    const auto* found = std::ranges::find(kPages, number, &Page::number);
    return found != kPages.end() ? *found : *std::ranges::find(kPages, kWindows1252, &Page::number);
}

} // namespace

// Where the system lacks the code page, bytes have their own numbers.
class RtfCharsets::Converter {
public:
    explicit Converter(const Page& page) : isMultiByte(page.isMultiByte), decoder(page.name) {}

    void Decode(std::string_view bytes, std::u32string& text) {
        while (!bytes.empty()) {
            bytes.remove_prefix(decoder.Decode(bytes, text));
            if (!bytes.empty()) {
                const auto byte = static_cast<unsigned char>(bytes.front());
                text += isMultiByte && byte >= 0x80 ? kReplacementCharacter : char32_t{byte};
                bytes.remove_prefix(1);
            }
        }
    }

private:
    bool isMultiByte;
    CharsetDecoder decoder;
};

int CodePageOfCharset(int charset) {
    const auto* found = std::ranges::find(kCharsets, charset, &Charset::number);
    return found == kCharsets.end() ? 0 : found->codePage;
}

RtfCharsets::RtfCharsets() = default;
RtfCharsets::~RtfCharsets() = default;

void RtfCharsets::Decode(std::string_view bytes, int codePage, std::u32string& text) {
    const std::size_t before = text.size();
    const Page& page = PageOf(codePage);
    auto& converter = converters[page.number];
    if (!converter) {
        converter = std::make_unique<Converter>(page);
    }
    converter->Decode(bytes, text);
    if (codePage == kSymbolPage) {
        std::replace(text.begin() + static_cast<std::ptrdiff_t>(before), text.end(), U'\u00B7', U'\u2022');
    }
}

} // namespace orvel
