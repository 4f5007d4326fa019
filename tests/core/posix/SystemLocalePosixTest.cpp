// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/NumberLocale.h"

#include "core/CodePage.h"
#include "core/Masks.h"
#include "core/NumberText.h"
#include "tests/core/InvariantNumbers.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <clocale>
#include <cstdlib>
#include <map>
#include <optional>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace orvel {
namespace {

using testing::ExpectInvariant;
using testing::TemporaryFolder;

// The environment's words on locales: none of them at first, as they were at the end.
class LocaleEnvironment {
public:
    LocaleEnvironment() {
        for (const char* name : {"LC_ALL", "LC_NUMERIC", "LC_CTYPE", "LANG", "LANGUAGE", "LOCPATH"}) {
            const char* value = std::getenv(name);
            before[name] = value == nullptr ? std::nullopt : std::optional<std::string>(value);
            ::unsetenv(name);
        }
    }

    ~LocaleEnvironment() {
        for (const auto& [name, value] : before) {
            if (value) {
                ::setenv(name.c_str(), value->c_str(), 1);
            } else {
                ::unsetenv(name.c_str());
            }
        }
    }

    LocaleEnvironment(const LocaleEnvironment&) = delete;
    LocaleEnvironment& operator=(const LocaleEnvironment&) = delete;

    static void Set(const char* name, const std::string& value) { ::setenv(name, value.c_str(), 1); }

private:
    std::map<std::string, std::optional<std::string>> before;
};

class SystemLocaleOnPosix : public testing::LogicTest {
protected:
    SystemLocaleOnPosix() { LocaleEnvironment::Set("LOCPATH", folder.Path().string()); }

    // Makes a locale with the numbers of a real one, and little else so that it is made quickly. Its name is
    // that of the real one and the character set.
    [[nodiscard]] std::string Make(const std::string& numbers, const std::string& charset) const {
        std::string definition;
        const auto copy = [&definition](const std::string& category, const std::string& from) {
            definition.append("LC_" + category + "\ncopy \"" + from + "\"\nEND LC_" + category + "\n");
        };
        for (const char* category : {"IDENTIFICATION", "NUMERIC"}) {
            copy(category, numbers);
        }
        for (const char* category : {"CTYPE", "COLLATE", "MONETARY", "TIME", "MESSAGES"}) {
            copy(category, "POSIX");
        }
        for (const char* category : {"PAPER", "NAME", "ADDRESS", "TELEPHONE", "MEASUREMENT"}) {
            copy(category, "i18n");
        }
        std::string name = numbers + "." + charset;
        const std::string source = folder / (name + ".source");
        const std::string target = folder / name;
        testing::PutContents(source, definition);
        std::array<std::string, 7> words = {"localedef", "--quiet", "-i", source, "-f", charset, target};
        std::array<char*, 8> arguments{};
        for (std::size_t i = 0; i < words.size(); ++i) {
            arguments[i] = words[i].data();
        }
        pid_t child = 0;
        int status = -1;
        EXPECT_EQ(::posix_spawnp(&child, "localedef", nullptr, nullptr, arguments.data(), environ), 0);
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0) << "localedef " << name;
        return name;
    }

    LocaleEnvironment environment;
    TemporaryFolder folder;
};

TEST_F(SystemLocaleOnPosix, AnEnvironmentWithoutLocaleIsInvariant) {
    ExpectInvariant(SystemNumberLocale());
    for (const char* name : {"C", "POSIX", "C.UTF-8", "", "xx_NOWHERE.UTF-8"}) {
        SCOPED_TRACE(name);
        LocaleEnvironment::Set("LC_ALL", name);
        ExpectInvariant(SystemNumberLocale());
    }
}

TEST_F(SystemLocaleOnPosix, TheSystemsSeparatorsAreWrittenInTheCodePage) {
    struct Row {
        const char* name;
        char decimal;
        char group;
        const char* million; // as read, and as masks write it where groups are thousands
    };
    static constexpr std::array kRows = {
        Row{"de_DE", ',', '.', "1.234.567"},
        Row{"es_ES", ',', '.', "1.234.567"},
        // U+202F, which the page lacks.
        Row{"fr_FR", ',', '\xA0',
            "1\xA0"
            "234\xA0"
            "567"},
        // U+2019.
        Row{"de_CH", '.', '\x92',
            "1\x92"
            "234\x92"
            "567"},
        Row{"en_IN", '.', ',', "12,34,567"},
        // Groups without a separator, and neither: the comma is taken.
        Row{"bg_BG", ',', '\0', "1234567"},
        Row{"pt_PT", ',', '\0', "1234567"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        LocaleEnvironment::Set("LC_ALL", Make(row.name, "UTF-8"));
        const NumberLocale locale = SystemNumberLocale();
        EXPECT_EQ(locale.decimalSeparator, row.decimal);
        EXPECT_EQ(locale.groupSeparator, row.group);
        UseNumberLocale(locale);
        EXPECT_EQ(ToLong(row.million), 1234567);
        EXPECT_EQ(PlainText(0.5F), std::string("0") + row.decimal + "5");
        const std::string grouped = row.name == std::string("en_IN") ? "1,234,567" : row.million;
        EXPECT_EQ(FormatMask(1234567.0F, "#,###"), grouped);
    }
}

TEST_F(SystemLocaleOnPosix, ASeparatorThatThePageLacksBecomesItsNoBreakSpace) {
    LocaleEnvironment::Set("LC_ALL", Make("fr_FR", "UTF-8"));
    for (const auto& [name, noBreakSpace] :
         {std::pair{"KOI8-R", '\x9A'}, std::pair{"CP437", '\xFF'}, std::pair{"ISO-8859-15", '\xA0'}}) {
        SCOPED_TRACE(name);
        UseCodePage(*CodePage::Named(name));
        EXPECT_EQ(SystemNumberLocale().groupSeparator, noBreakSpace);
        // Either space is read.
        UseNumberLocale(SystemNumberLocale());
        EXPECT_EQ(ToSingle(FromUtf8("1\u202F234,5")), 1234.5F);
        EXPECT_EQ(ToSingle(FromUtf8("1\u00A0234,5")), 1234.5F);
    }
    // U+2019 is not in this page.
    UseCodePage(*CodePage::Named("ISO-8859-1"));
    LocaleEnvironment::Set("LC_ALL", Make("de_CH", "UTF-8"));
    EXPECT_EQ(SystemNumberLocale().groupSeparator, '\xA0');
}

TEST_F(SystemLocaleOnPosix, OnlyTheNumbersOfTheEnvironmentCount) {
    const std::string german = Make("de_DE", "UTF-8");
    LocaleEnvironment::Set("LANG", "C");
    LocaleEnvironment::Set("LC_NUMERIC", german);
    EXPECT_EQ(SystemNumberLocale().decimalSeparator, ',');
    // Other categories may name what does not exist here, as over a remote login.
    LocaleEnvironment::Set("LC_CTYPE", "UTF-8");
    LocaleEnvironment::Set("LANG", "xx_XX.UTF-8");
    EXPECT_EQ(SystemNumberLocale().decimalSeparator, ',');
    LocaleEnvironment::Set("LC_ALL", "C");
    ExpectInvariant(SystemNumberLocale());
    LocaleEnvironment::Set("LC_ALL", "");
    LocaleEnvironment::Set("LC_NUMERIC", "C");
    LocaleEnvironment::Set("LANG", german);
    ExpectInvariant(SystemNumberLocale());
}

TEST_F(SystemLocaleOnPosix, AskingTheSystemChangesNothingElse) {
    LocaleEnvironment::Set("LC_ALL", Make("de_DE", "UTF-8"));
    const NumberLocale locale = SystemNumberLocale();
    EXPECT_EQ(locale.decimalSeparator, ',');
    ExpectInvariant(CurrentNumberLocale());
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    EXPECT_EQ(std::to_string(0.5).substr(0, 3), "0.5");
}

TEST_F(SystemLocaleOnPosix, AnEightBitLocaleGivesItsCodePageToo) {
    LocaleEnvironment::Set("LC_ALL", Make("fr_FR", "ISO-8859-15"));
    UseCodePage(CodePage::OfSystem());
    EXPECT_TRUE(CurrentCodePage().IsOfSystem());
    EXPECT_EQ(CurrentCodePage().ToUnicode('\xA4'), U'€');
    EXPECT_EQ(SystemNumberLocale().groupSeparator, '\xA0');
    // What the system says is in that page already.
    EXPECT_EQ(SystemToText("\xA4\xE4.cpd"), "\xA4\xE4.cpd");
    EXPECT_EQ(SystemToText("\xC3\xA4"), "\xC3\xA4");
}

TEST_F(SystemLocaleOnPosix, ASystemWithoutAnEightBitPageHasWindows1252) {
    for (const char* name : {"C", "POSIX", "C.UTF-8", "xx_NOWHERE.ISO-8859-15"}) {
        SCOPED_TRACE(name);
        LocaleEnvironment::Set("LC_ALL", name);
        const CodePage page = CodePage::OfSystem();
        EXPECT_FALSE(page.IsOfSystem());
        EXPECT_EQ(page.ToUnicode('\x80'), U'€');
        EXPECT_EQ(page.ToUnicode('\xE4'), U'ä');
    }
}

TEST_F(SystemLocaleOnPosix, AMultiByteSystemHasWindows1252) {
    LocaleEnvironment::Set("LC_ALL", Make("de_DE", "EUC-JP"));
    const CodePage page = CodePage::OfSystem();
    EXPECT_FALSE(page.IsOfSystem());
    EXPECT_EQ(page.ToUnicode('\x80'), U'€');
    UseCodePage(page);
    EXPECT_EQ(SystemToText("ä"), "\xE4");
}

} // namespace
} // namespace orvel
