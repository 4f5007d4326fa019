// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CodePage.h"
#include "core/NumberText.h"
#include "core/windows/Api.h"
#include "core/windows/SystemNumberLocale.h"
#include "tests/core/InvariantNumbers.h"
#include "tests/support/LogicTest.h"

#include <array>
#include <climits>
#include <string>

namespace orvel {
namespace {

class SystemLocaleOnWindows : public testing::LogicTest {};

TEST_F(SystemLocaleOnWindows, SeparatorsAreWrittenInTheCodePage) {
    struct Row {
        const wchar_t* name;
        char decimal;
        char group;
        const char* million;
    };
    static constexpr std::array kRows = {
        Row{L"en-US", '.', ',', "1,234,567"},
        Row{L"de-DE", ',', '.', "1.234.567"},
        Row{L"en-IN", '.', ',', "12,34,567"},
        // A narrow no-break space, or a plain one, by the system's age.
        Row{L"fr-FR", ',', '\xA0',
            "1\xA0"
            "234\xA0"
            "567"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::string(row.million));
        const NumberLocale locale = NumberLocaleNamed(row.name);
        EXPECT_EQ(locale.decimalSeparator, row.decimal);
        EXPECT_EQ(locale.groupSeparator, row.group);
        UseNumberLocale(locale);
        EXPECT_EQ(ToLong(row.million), 1234567);
        EXPECT_EQ(PlainText(0.5F), std::string("0") + row.decimal + "5");
    }
}

TEST_F(SystemLocaleOnWindows, ALocaleThatIsNotThereIsTheInvariantOne) {
    testing::ExpectInvariant(NumberLocaleNamed(L"no such locale"));
}

TEST_F(SystemLocaleOnWindows, TheUsersOwnIsThatOfTheUsersSettings) {
    std::array<wchar_t, 4> decimal{};
    ASSERT_GT(::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, decimal.data(), 4), 0);
    EXPECT_EQ(CurrentCodePage().ToUnicode(SystemNumberLocale().decimalSeparator), char32_t{decimal[0]});
}

TEST_F(SystemLocaleOnWindows, GroupingsAreReadAsTheSettingsMeanThem) {
    const std::string noMore(1, CHAR_MAX);
    EXPECT_EQ(GroupingOf(L"3;0"), "\3");
    EXPECT_EQ(GroupingOf(L"3;2;0"), "\3\2");
    EXPECT_EQ(GroupingOf(L"4;0"), "\4");
    EXPECT_EQ(GroupingOf(L"3"), "\3" + noMore);
    EXPECT_EQ(GroupingOf(L"3;2"), "\3\2" + noMore);
    EXPECT_EQ(GroupingOf(L"0"), "");
    EXPECT_EQ(GroupingOf(L"0;0"), "");
    EXPECT_EQ(GroupingOf(L""), "");
}

TEST_F(SystemLocaleOnWindows, TheCodePageIsTheAnsiOneWhereThatHasSingleBytes) {
    const CodePage page = CodePage::OfSystem();
    EXPECT_FALSE(page.IsOfSystem()) << "names and arguments come in Unicode";
    const auto named = CodePage::Named("CP" + std::to_string(::GetACP()));
    const CodePage expected = named.value_or(CodePage::Windows1252());
    for (int i = 0; i < 256; ++i) {
        EXPECT_EQ(page.ToUnicode(static_cast<char>(i)), expected.ToUnicode(static_cast<char>(i))) << i;
    }
}

TEST_F(SystemLocaleOnWindows, TheTableOfWindows1252IsTheSystems) {
    const auto named = CodePage::Named("CP1252");
    ASSERT_TRUE(named);
    for (int i = 0; i < 256; ++i) {
        const auto byte = static_cast<char>(i);
        EXPECT_EQ(named->ToUnicode(byte), CodePage::Windows1252().ToUnicode(byte)) << i;
    }
}

TEST_F(SystemLocaleOnWindows, PagesOfTwoBytesAndUtf8AreNone) {
    for (const char* name : {"CP932", "CP936", "CP949", "CP950", "CP65001", "CP1200", "CP0", "CP1", "CP"}) {
        EXPECT_FALSE(CodePage::Named(name)) << name;
    }
}

} // namespace
} // namespace orvel
