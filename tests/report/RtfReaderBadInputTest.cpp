// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfReader.h"

#include "core/Unicode.h"
#include "tests/support/LogicTest.h"
#include "tests/support/SoundDocument.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

// Whatever the bytes, the reader gives what can be shown and never fails.
namespace orvel {

namespace {

using testing::IsSound;

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

    // Whether the first bytes of a file give the beginning of its text. The last two characters may differ: a
    // cut word can be another word, a half character is shown as none, a row that does not end keeps its tab.
    static bool IsBeginning(const RichDocument& cut, std::u32string_view whole) {
        const std::u32string text = PlainText(cut);
        return whole.starts_with(
            std::u32string_view(text).substr(0, text.size() - std::min<std::size_t>(2, text.size())));
    }
};

TEST_F(RtfReaderBadInput, AFileCutOffAnywhereShowsWhatIsThere) {
    const std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}one{\\b two}\\'e9\\u8364?\\par three}";
    const std::vector<std::pair<std::string, std::string>> ends = {
        {"", ""},
        {"o", "o"},
        {"two", "onetwo"},
        {"two}\\", "onetwo"},
        {"two}\\'", "onetwo"},
        {"two}\\'e", "onetwo"},
        {"two}\\'e9", "onetwo\u00E9"},
        {"two}\\'e9\\u", "onetwo\u00E9"},
        {"u8364", "onetwo\u00E9\u20AC"},
        {"u8364?\\pa", "onetwo\u00E9\u20AC"},
        {"u8364?\\par", "onetwo\u00E9\u20AC\n"},
        {"thr", "onetwo\u00E9\u20AC\nthr"},
        {"three}", "onetwo\u00E9\u20AC\nthree"},
    };
    for (const auto& [end, text] : ends) {
        const std::size_t place = rtf.find(end, rtf.find("one"));
        ASSERT_NE(place, std::string::npos) << end;
        EXPECT_EQ(Text(rtf.substr(0, place + end.size())), text) << end;
    }
    EXPECT_EQ(Text("{\\rt"), "{\\rt");
    EXPECT_EQ(Text("{\\rtf"), "");
    EXPECT_EQ(Text("{\\rtf1\\ansicpg932 a\\'93"), "a\uFFFD");
}

TEST_F(RtfReaderBadInput, ThePrefixesOfASampleAreItsBeginning) {
    for (const std::string& sample : Samples()) {
        const std::u32string whole = PlainText(ReadRtf(sample));
        // All of them where that is quick, else some hundreds at places that share no pattern with the lines.
        const std::size_t step = sample.size() < 3000 ? 1 : sample.size() / 250 | 1U;
        for (std::size_t length = std::string_view("{\\rtf").size(); length < sample.size(); length += step) {
            const RichDocument cut = ReadRtf(std::string_view(sample).substr(0, length));
            ASSERT_TRUE(IsSound(cut)) << sample.substr(0, length);
            ASSERT_TRUE(IsBeginning(cut, whole)) << sample.substr(0, length);
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
            ASSERT_TRUE(IsSound(ReadRtf(damaged))) << damaged;
            // A piece from one place stands in another, too.
            damaged.insert(random() % damaged.size(), sample, random() % sample.size(), random() % 2000);
            ASSERT_TRUE(IsSound(ReadRtf(damaged))) << damaged;
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
        ASSERT_TRUE(IsSound(ReadRtf(bytes)));
        ASSERT_TRUE(IsSound(ReadRtf(bytes.substr(1))));
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

TEST_F(RtfReaderBadInput, TablesOfAnySizeAreTaken) {
    std::string fonts = "{\\fonttbl";
    std::string colors = "{\\colortbl";
    for (int i = 0; i < 50000; ++i) {
        fonts += "{\\f" + std::to_string(i * 10007) + " N" + std::to_string(i) + ";}";
        colors += "\\red" + std::to_string(i % 256) + ";";
    }
    const RichDocument document = ReadRtf("{\\rtf1" + fonts + "}" + colors + "}\\f10007\\cf49999 x}");
    EXPECT_EQ(document.paragraphs.at(0).runs.at(0).format.font, "N1");
    EXPECT_EQ(document.paragraphs.at(0).runs.at(0).format.color, (Color{49999 % 256, 0, 0}));
}

} // namespace

} // namespace orvel
