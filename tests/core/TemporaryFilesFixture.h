// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/SafeFile.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace orvel {

// A folder in which files are being written, or were.
class TemporaryFiles : public ::testing::Test {
protected:
    using Names = std::vector<std::string>;

    // Saves, which must leave just these files.
    void ExpectLeftBySave(Names names) {
        ReplaceFile(folder / "file", "new", Flush::Lazy);
        names.emplace_back("file");
        std::ranges::sort(names);
        EXPECT_EQ(folder.Names(), names);
    }

    // Ten of the system's temporary files at the same time, each made with that access.
    template <class TemporaryFile, class Access>
    void ExpectEachSaveHasOneOfItsOwn(Access access) {
        std::vector<std::unique_ptr<TemporaryFile>> files;
        for (int i = 0; i < 10; ++i) {
            files.push_back(std::make_unique<TemporaryFile>(folder.Path(), access));
            ASSERT_TRUE(files.back()->IsOpen());
        }
        Names names = folder.Names();
        EXPECT_EQ(names.size(), 10U);
        ExpectLeftBySave(names);
        std::erase(names, ".orvel-save-3");
        files.erase(files.begin() + 2);
        EXPECT_EQ(folder.Names().size(), 10U) << "the file, too";
        ExpectLeftBySave(names);
        files.clear();
        EXPECT_EQ(folder.Names(), Names{"file"});
    }

    testing::TemporaryFolder folder;
};

} // namespace orvel
