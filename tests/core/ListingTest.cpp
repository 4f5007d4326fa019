// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Listing.h"

#include "core/Records.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <array>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::SameText;

std::string Listed(const CenterPivotTest& test, const ListingLabel& label) {
    return ListingFields(AsBytes(test), kCenterPivotFields, std::array{label});
}

TEST(Listing, ARowHasItsColumnsOnTheRightAndCutsNothing) {
    EXPECT_EQ(ListingRow({"01", "185", "141"}), "      01       185       141\r\n");
    EXPECT_EQ(ListingRow({"01", "10000000000", ""}), "      01 10000000000          \r\n");
}

TEST(Listing, CentresItsTitleAboveARule) {
    EXPECT_TRUE(SameText(ListingTitle("Data of a Test"), std::string(33, ' ') + "Data of a Test" +
                                                             std::string(33, ' ') + "\r\n" +
                                                             std::string(80, '=') + "\r\n"));
    // 77 blanks: 38.5 on each side are 38 on the left.
    EXPECT_EQ(ListingTitle("odd").substr(0, 82),
              std::string(38, ' ') + "odd" + std::string(39, ' ') + "\r\n");
}

TEST(Listing, ListsTextsFlagsAndCommentsInTheOrderOfTheirLabels) {
    CenterPivotTest test;
    test.ClientName = "  A. Client ";
    test.HasEndGun = true;
    test.OtherComments = " Two lines\r\nof comment ";
    constexpr std::array<ListingLabel, 6> kLabels = {{
        {"OtherComments", "General Comments:"},
        {"ObservedLeaks", "Leaks:"},
        {"HasEndGun", "End Gun:"},
        {"ClientName", "Client Name:"},
        {"FarmName", "Farm Name:"},
        {"FieldComments", "Field Comments:"},
    }};
    EXPECT_TRUE(SameText(ListingFields(AsBytes(test), kCenterPivotFields, kLabels),
                         "General Comments:\r\n"
                         "Two lines\r\nof comment\r\n"
                         "Leaks:                            False\r\n"
                         "End Gun:                          True\r\n"
                         "Client Name:                      A. Client\r\n"
                         "Farm Name:                        \r\n"
                         "Field Comments:\r\n"
                         "\r\n"));
    EXPECT_EQ(ListingFields(AsBytes(test), kCenterPivotFields, {}), "");
}

TEST(Listing, ShowsAForeignFlagAsTrue) {
    CenterPivotTest test;
    AsBytes(test.ObservedLeaks)[0] = std::byte{7};
    EXPECT_EQ(Listed(test, {"ObservedLeaks", "Leaks:"}), "Leaks:                            True\r\n");
}

TEST(Listing, ShowsAFullFieldWhole) {
    CenterPivotTest test;
    const std::string crops(75, 'c');
    test.Crops = crops;
    EXPECT_EQ(Listed(test, {"Crops", "Crops:"}), "Crops:                            " + crops + "\r\n");
    const std::string comment(500, 'x');
    test.SystemComments = comment;
    EXPECT_EQ(Listed(test, {"SystemComments", "Comments:"}), "Comments:\r\n" + comment + "\r\n");
}

TEST(Listing, KnowsTheFieldsOfTheRecordItIsGiven) {
    SolidSetTest test;
    test.Layout = "T";
    test.Duration = "30";
    constexpr std::array<ListingLabel, 2> kLabels = {{{"Layout", "Layout:"}, {"Duration", "Duration:"}}};
    EXPECT_EQ(ListingFields(AsBytes(test), kSolidSetFields, kLabels),
              "Layout:                           T\r\n"
              "Duration:                         30\r\n");
}

TEST(Listing, RaisesForWhatIsNoTextOrFlagOfTheRecord) {
    const CenterPivotTest test;
    for (const char* field : {"NumberX", "clientname", "", "Gauges", "Reserved", "MinIntake", "Tail"}) {
        SCOPED_TRACE(field);
        ExpectRunTimeError(ErrorNumber::InvalidProcedureCall, [&] { (void)Listed(test, {field, "Label:"}); });
    }
}

} // namespace
} // namespace orvel
