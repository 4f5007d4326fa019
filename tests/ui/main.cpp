// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/OwnHome.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const orvel::testing::OwnHome home;
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int status = RUN_ALL_TESTS();
    // A filter that fits nothing is a mistake.
    return testing::UnitTest::GetInstance()->test_to_run_count() == 0 ? EXIT_FAILURE : status;
}
