// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfReader.h"

#include "core/Unicode.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

// Whatever the bytes, the reader gives what can be shown and never fails.
namespace orvel {

namespace {

class RtfReaderBadInput : public testing::LogicTest {
protected:
    static std::string Text(std::string_view bytes) { return Utf8Of(PlainText(ReadRtf(bytes))); }

    static std::vector<std::string> Samples() {
        std::vector<std::string> samples;
        for (const auto& entry : std::filesystem::directory_iterator(testing::TestData("rtf"))) {
            if (entry.path().extension() == ".rtf") {
                samples.push_back(testing::Contents(entry.path()));
            }
        }
        EXPECT_GE(samples.size(), 15U);
        return samples;
    }

    // What the document model promises of its runs.
    static void ExpectSound(const RichDocument& document) {
        ASSERT_FALSE(document.paragraphs.empty());
        for (const Paragraph& paragraph : document.paragraphs) {
            const TextRun* last = nullptr;
            for (const TextRun& run : paragraph.runs) {
                ASSERT_FALSE(run.text.empty());
                ASSERT_TRUE(last == nullptr || last->format != run.format);
                ASSERT_GT(run.format.halfPoints, 0);
                for (const char32_t character : run.text) {
                    ASSERT_TRUE(character >= U' ' || character == U'\t');
                    ASSERT_TRUE(character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF));
                }
                last = &run;
            }
        }
    }
};

TEST_F(RtfReaderBadInput, AFileCutOffAnywhereShowsWhatIsThere) {
    const std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}one{\\b two}\\'e9\\u8364?\\par three}";
    const std::string whole = Text(rtf);
    EXPECT_EQ(whole, "onetwo\u00E9\u20AC\nthree");
    for (std::size_t length = 5; length <= rtf.size(); ++length) {
        const std::string text = Text(rtf.substr(0, length));
        // The number of a character that was cut makes another character of it.
        const std::string common = text.substr(0, std::min(text.size(), std::string("onetwo").size()));
        EXPECT_EQ(whole.substr(0, common.size()), common) << length;
    }
    EXPECT_EQ(Text(rtf.substr(0, rtf.size() - 3)), "onetwo\u00E9\u20AC\nthr");
}

TEST_F(RtfReaderBadInput, EveryPrefixOfASampleIsSound) {
    for (const std::string& sample : Samples()) {
        const std::size_t step = 1 + sample.size() / 300;
        for (std::size_t length = 0; length < sample.size(); length += step) {
            ExpectSound(ReadRtf(std::string_view(sample).substr(0, length)));
        }
    }
}

TEST_F(RtfReaderBadInput, DamagedSamplesAreSound) {
    std::mt19937 random(1978);
    constexpr std::string_view kBytes = "{}\\;'0u-*\xE9 \n";
    for (const std::string& sample : Samples()) {
        for (int round = 0; round < 40; ++round) {
            std::string damaged = sample;
            for (int i = 0; i < 20; ++i) {
                damaged[random() % damaged.size()] = kBytes[random() % kBytes.size()];
            }
            ExpectSound(ReadRtf(damaged));
        }
    }
}

TEST_F(RtfReaderBadInput, RandomBytesAreSound) {
    std::mt19937 random(1997);
    for (int round = 0; round < 500; ++round) {
        std::string bytes = "{\\rtf1";
        for (std::size_t length = random() % 400; length > 0; --length) {
            bytes += static_cast<char>(random());
        }
        ExpectSound(ReadRtf(bytes));
    }
}

TEST_F(RtfReaderBadInput, DeepNestingIsNoRecursion) {
    for (const std::size_t depth : {10000U, 1000000U}) {
        const std::string open(depth, '{');
        EXPECT_EQ(Text("{\\rtf1 a" + open + "b" + std::string(depth, '}') + "c}"), "abc");
        EXPECT_EQ(Text("{\\rtf1 a" + open + "b"), "ab");
    }
    std::string words;
    for (int i = 0; i < 100000; ++i) {
        words += i % 2 == 0 ? "{\\b " : "{\\b0 ";
    }
    EXPECT_EQ(Text("{\\rtf1 " + words + "x"), "x");
}

TEST_F(RtfReaderBadInput, NothingIsReadBehindTheLastBrace) {
    EXPECT_EQ(Text("{\\rtf1 a}b}c{d"), "a");
}

TEST_F(RtfReaderBadInput, NumbersOfAnySizeAreTaken) {
    EXPECT_EQ(Text("{\\rtf1\\fs99999999999999999999\\cf-99999999999999999999\\f2147483648\\uc-1 a\\u8364 b}"),
              "a\u20ACb");
    EXPECT_EQ(Text("{\\rtf1\\uc2147483647\\u8364 never shown}x"), "\u20AC");
    EXPECT_EQ(Text("{\\rtf1\\bin2147483647 a}"), "");
    const RichDocument document = ReadRtf("{\\rtf1{\\colortbl;\\red300\\green-5\\blue7;}\\cf1 a\\cf99 b}");
    EXPECT_EQ(document.paragraphs.at(0).runs.at(0).format.color, (Color{255, 0, 7}));
    EXPECT_EQ(document.paragraphs.at(0).runs.at(1).format.color, std::nullopt);
}

TEST_F(RtfReaderBadInput, ALongFontNameIsCut) {
    const std::string name(100000, 'n');
    const auto document = ReadRtf("{\\rtf1{\\fonttbl{\\f0 " + name + ";}}a{\\b b}}");
    EXPECT_EQ(document.paragraphs.at(0).runs.at(1).format.font, name.substr(0, 255));
}

} // namespace

} // namespace orvel
