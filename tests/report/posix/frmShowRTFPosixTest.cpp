// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramWindows.h"
#include "tests/report/FrmShowRTFFixture.h"

#include <filesystem>

namespace orvel {

namespace {

using testing::Lines;

class FrmShowRTFOnPosix : public FrmShowRTF {};

TEST_F(FrmShowRTFOnPosix, HelpThatCannotBeReadSaysWhy) {
    std::filesystem::create_symlink("/proc/self/mem", folder / "help.rtf");
    Show(kViewHelp);
    EXPECT_EQ(Said(), (Lines{"caption Help & Instructions", "show"}));
    EXPECT_EQ(box.Text(),
              (folder / "help.rtf").string() + " can't be opened: cannot read: Input/output error.");
}

} // namespace

} // namespace orvel
