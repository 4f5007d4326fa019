// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ReportHeading.h"

#include "core/FileNames.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <string>

namespace orvel {
namespace {

using testing::SameText;

const std::string kRule = std::string(80, '=') + "\r\n";
const std::string kColumnHeads = "Test Conducted For:                For Further Information Contact:\r\n";

class ReportHeadingTest : public testing::LogicTest {
protected:
    ReportHeadingTest() {
        UserSettings& settings = Program().userSettings;
        settings.Name = "Pat Tester";
        settings.Company = "County Extension";
        settings.Address = "2 Office Road";
        settings.CityStateZip = "Otherton, GA 30000";
        settings.Phone = "555-0200";
        settings.EMail = "pat@example.org";
    }

    // The heading from the line with the two headings of the columns on, without the last rule.
    [[nodiscard]] static std::string Columns(const HeadingFields& fields) {
        const std::string text = ReportHeadingText(fields);
        const std::size_t begin = text.find("Test Conducted For:");
        return text.substr(begin, text.size() - begin - kRule.size());
    }
};

TEST_F(ReportHeadingTest, ShowsTestClientAndTester) {
    EXPECT_TRUE(SameText(
        ReportHeadingText({.title = "Center Pivot Water Application Uniformity Test",
                           .dateOfTest = "7/3/2026",
                           .file = "/tests/North field.cpd",
                           .clientName = "Jo Client",
                           .farmName = "Long Farm",
                           .operatorName = "Sam Operator",
                           .address = "1 Main Street",
                           .city = "Town",
                           .state = "GA",
                           .zip = "31793",
                           .county = "Tift",
                           .phone = "555-0100",
                           .eMail = "jo@example.org"}),
        "                 Center Pivot Water Application Uniformity Test                 \r\n" + kRule +
            "Date of Test: 7/3/2026\r\n"
            "File Name:    North field.cpd\r\n"
            "Report Date:  2026-07-04 09:05:03\r\n" +
            kRule +
            "Test Conducted For:                For Further Information Contact:\r\n"
            "Jo Client                          Pat Tester\r\n"
            "Long Farm                          County Extension\r\n"
            "Sam Operator                       2 Office Road\r\n"
            "1 Main Street                      Otherton, GA 30000\r\n"
            "Town, GA, 31793                    555-0200\r\n"
            "Tift County                        E-Mail: pat@example.org\r\n"
            "555-0100                           \r\n"
            "E-Mail: jo@example.org             \r\n" +
            kRule));
}

TEST_F(ReportHeadingTest, ShowsNothingForWhatIsBlank) {
    Program().userSettings = UserSettings{};
    HeadingFields fields;
    fields.title = "Solid Set";
    EXPECT_TRUE(SameText(ReportHeadingText(fields), std::string(36, ' ') + "Solid Set" +
                                                        std::string(35, ' ') + "\r\n" + kRule +
                                                        "Date of Test: \r\n"
                                                        "File Name:    \r\n"
                                                        "Report Date:  2026-07-04 09:05:03\r\n" +
                                                        kRule + kColumnHeads + kRule));
}

TEST_F(ReportHeadingTest, ClosesUpEachColumnForItself) {
    UserSettings& settings = Program().userSettings;
    settings.Company = "";
    settings.CityStateZip = "   ";
    HeadingFields fields;
    fields.farmName = "Long Farm";
    fields.phone = "555-0100";
    EXPECT_TRUE(SameText(Columns(fields),
                         "Test Conducted For:                For Further Information Contact:\r\n"
                         "Long Farm                          Pat Tester\r\n"
                         "555-0100                           2 Office Road\r\n"
                         "                                   555-0200\r\n"
                         "                                   E-Mail: pat@example.org\r\n"));
}

TEST_F(ReportHeadingTest, JoinsTheFilledPartsOfTheCityLine) {
    Program().userSettings = UserSettings{};
    Program().userSettings.Name = "Pat Tester";
    struct Case {
        const char* city;
        const char* state;
        const char* zip;
        std::string line;
    };

    const std::array<Case, 7> cases = {{
        {"Town", "GA", "31793", "Town, GA, 31793"},
        {"Town", "GA", "", "Town, GA"},
        {"Town", "", "31793", "Town, 31793"},
        {"", "GA", "31793", "GA, 31793"},
        {"Town", "", "", "Town"},
        {"", "GA", "", "GA"},
        {"", "", "31793", "31793"},
    }};
    for (const Case& one : cases) {
        HeadingFields fields;
        fields.city = one.city;
        fields.state = one.state;
        fields.zip = one.zip;
        std::string row = one.line;
        row.resize(35, ' ');
        EXPECT_TRUE(SameText(Columns(fields), kColumnHeads + row + "Pat Tester\r\n"));
    }
}

TEST_F(ReportHeadingTest, CutsTheClientsLinesToTheirColumn) {
    const std::string full(35, 'c');
    HeadingFields fields;
    fields.clientName = full;
    fields.city = "A City With Quite A Long Name";
    fields.state = "Georgia";
    fields.zip = "31793";
    fields.county = "A County With Quite A Long Name";
    fields.eMail = "someone.with.a.long.name@example.org";
    EXPECT_TRUE(
        SameText(Columns(fields), kColumnHeads + full +
                                      "Pat Tester\r\n"
                                      "A City With Quite A Long Name, GeorCounty Extension\r\n"
                                      "A County With Quite A Long Name Cou2 Office Road\r\n"
                                      "E-Mail: someone.with.a.long.name@exOtherton, GA 30000\r\n"
                                      "                                   555-0200\r\n"
                                      "                                   E-Mail: pat@example.org\r\n"));
}

TEST_F(ReportHeadingTest, LeavesTheTestersLinesUncut) {
    UserSettings& settings = Program().userSettings;
    settings = UserSettings{};
    settings.Name = std::string(50, 'n');
    settings.EMail = std::string(50, 'e');
    EXPECT_TRUE(
        SameText(Columns({}), "Test Conducted For:                For Further Information Contact:\r\n" +
                                  std::string(35, ' ') + std::string(50, 'n') + "\r\n" +
                                  std::string(35, ' ') + "E-Mail: " + std::string(50, 'e') + "\r\n"));
}

TEST_F(ReportHeadingTest, ShowsTheFilesNameInTheCodePage) {
    HeadingFields fields;
    fields.file = PathOfSystemText("/tests/Pr\xC3\xBC"
                                   "fung.ssd");
    const std::string text = ReportHeadingText(fields);
    EXPECT_NE(text.find("\r\nFile Name:    Pr\xFC"
                        "fung.ssd\r\n"),
              std::string::npos)
        << text;
}

TEST_F(ReportHeadingTest, WritesTheReportDateInFullDigits) {
    clock.now = {1999, 12, 31, 23, 59, 58};
    EXPECT_NE(ReportHeadingText({}).find("\r\nReport Date:  1999-12-31 23:59:58\r\n"), std::string::npos);
    clock.now = {987, 1, 2, 0, 0, 0};
    EXPECT_NE(ReportHeadingText({}).find("\r\nReport Date:  0987-01-02 00:00:00\r\n"), std::string::npos);
}

} // namespace
} // namespace orvel
