// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/HtmlReport.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

TEST(HtmlReport, PutsTheTextBetweenTheTagsAsItStands) {
    EXPECT_EQ(HtmlOfReport("a <b> & \xB0\r\nend"),
              "<HTML><HEAD></HEAD><PRE>\r\n\r\na <b> & \xB0\r\nend\r\n\r\n</PRE></BODY></HTML>\r\n");
}

TEST(HtmlReport, AnEmptyReportKeepsItsLines) {
    EXPECT_EQ(HtmlOfReport(""), "<HTML><HEAD></HEAD><PRE>\r\n\r\n\r\n\r\n</PRE></BODY></HTML>\r\n");
}

} // namespace

} // namespace orvel
