// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/faults/Saving.h"

#include "core/RunTimeError.h"
#include "tests/faults/SmallDisk.h"
#include "tests/faults/Tracer.h"
#include "tests/support/OrdinaryUser.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <memory>
#include <ranges>
#include <sstream>
#include <sys/stat.h>

namespace orvel::testing {

namespace {

namespace fs = std::filesystem;

using Kind = Fault::Kind;
// Of each file; those that are missing are not in it.
using FileContents = std::map<std::string, std::string>;

// A sanitizer makes a fork slow and looks for faults of another kind: each call fails in one of the scenes
// there, and nothing is killed.
constexpr bool kIsSanitized = ORVEL_IS_SANITIZED;

constexpr mode_t kPermissionBits = 07777;
constexpr mode_t kOldBits = 0640;

enum class Scene { Replaced, New, InPlace };

constexpr std::array kScenes = {Scene::Replaced, Scene::New, Scene::InPlace};

const char* NameOf(Scene scene) {
    switch (scene) {
    case Scene::Replaced:
        return "over a file behind a link";
    case Scene::New:
        return "where no file is";
    default:
        return "in place";
    }
}

struct Error {
    int number;
    const char* name;
    int raised; // the number of the run-time error
};

constexpr std::array kErrors = std::to_array<Error>({
    {ENOSPC, "ENOSPC", 61},
    {EIO, "EIO", 57},
    {EACCES, "EACCES", 70},
    {EXDEV, "EXDEV", 75},
});

// Of the run-time error that a system error becomes; 0 without one.
int NumberOf(int error) {
    const auto* const found = std::ranges::find(kErrors, error, &Error::number);
    return found == kErrors.end() ? 0 : found->raised;
}

// Faults of all saves of this program.
struct Figures {
    std::size_t saves = 0;
    std::size_t faults = 0;
    std::size_t kills = 0;
    std::size_t fullDisks = 0;
    std::size_t lost = 0;
};

// Unlike anything that is saved.
std::string OldContent(std::size_t length) {
    std::string content;
    while (content.size() < length) {
        content += "what was there before, line " + std::to_string(content.size()) + "\n";
    }
    content.resize(length);
    return content;
}

Lines LinesOf(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

// ".orvel-" and six characters.
bool IsTemporary(const std::string& name) {
    constexpr std::size_t kLength = 13;
    return name.starts_with(".orvel-") && name.size() == kLength;
}

mode_t BitsOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & kPermissionBits;
}

// The lines and, last, the error that ended the save.
TracedAction ActionOf(const Saving& saving) {
    const auto raised = std::make_shared<std::string>();
    return {.prepare = saving.prepare,
            .act =
                [&saving, raised] {
                    try {
                        saving.save();
                    } catch (const RunTimeError& error) {
                        *raised = "run-time error " + std::to_string(error.Number());
                    }
                },
            .report =
                [&saving, raised] {
                    std::string report;
                    for (const std::string& line : saving.said()) {
                        report += line + "\n";
                    }
                    return report + *raised;
                }};
}

// One kind of save in one scene.
class Trial {
public:
    Trial(const Saving& ofKind, Scene ofTrial, Figures& ofAll)
        : saving(ofKind), scene(ofTrial), figures(ofAll), action(ActionOf(ofKind)) {}

    // Saves once without a fault, then with each of them.
    void Run() {
        SCOPED_TRACE(NameOf(scene));
        SetUp();
        const TracedRun whole = RunTraced(action, {}, [this] { ExpectPrivateTemporaries(); });
        told = LinesOf(whole.report);
        calls = whole.calls;
        newContents = Found();
        ExpectSaved();
        ++figures.saves;
        for (std::size_t call = 0; call < calls.size() && !::testing::Test::HasFailure(); ++call) {
            SCOPED_TRACE("call " + std::to_string(call) + ", " + calls[call]);
            if (kIsSanitized) {
                if (call % kScenes.size() == static_cast<std::size_t>(scene)) {
                    Fail(call, kErrors.at(call % kErrors.size()));
                }
                continue;
            }
            for (const Error& error : kErrors) {
                Fail(call, error);
            }
            if (CanBeShort(calls[call])) {
                Try({.kind = Kind::Short, .call = call}, "short");
                Try({.kind = Kind::Short, .call = call, .error = ENOSPC}, "short, then ENOSPC");
            }
            if (scene == Scene::InPlace) {
                continue;
            }
            Try({.kind = Kind::KillBefore, .call = call}, "killed before");
            // Behind a call is before the next one.
            if (call + 1 == calls.size()) {
                Try({.kind = Kind::KillAfter, .call = call}, "killed after");
            }
        }
    }

    // Saves with ever more space until it suffices; `Run` comes before.
    void RunOnFullDisk() {
        SCOPED_TRACE(std::string{NameOf(scene)} + ", on a full disk");
        const SmallDisk disk(saving.folder);
        for (std::size_t blocks = 0;; ++blocks) {
            SCOPED_TRACE(blocks);
            SetUp();
            disk.LeaveFree(blocks);
            const TracedRun run = RunTraced(action, {});
            ExpectNothingLost();
            if (ExpectSavedOrTold(run, ENOSPC)) {
                EXPECT_GT(blocks, 0U) << "the disk was not full";
                return;
            }
            ++figures.fullDisks;
            if (::testing::Test::HasFailure()) {
                return;
            }
        }
    }

private:
    // Where the file itself is.
    [[nodiscard]] fs::path Path(const SavedFile& file) const {
        return scene == Scene::Replaced ? saving.folder / "sub" / file.name : saving.folder / file.name;
    }

    void SetUp() const {
        fs::permissions(saving.folder, fs::perms::owner_all);
        for (const auto& entry : fs::directory_iterator(saving.folder)) {
            fs::remove_all(entry);
        }
        if (scene == Scene::Replaced) {
            fs::create_directory(saving.folder / "sub");
        }
        for (const SavedFile& file : saving.files) {
            if (scene != Scene::New) {
                PutContents(Path(file), file.old);
                ASSERT_EQ(::chmod(Path(file).c_str(), kOldBits), 0);
            }
            if (scene == Scene::Replaced) {
                fs::create_symlink("sub/" + file.name, saving.folder / file.name);
            }
        }
        GiveToOrdinaryUser(saving.folder);
        if (scene == Scene::InPlace) {
            ASSERT_EQ(::chmod(saving.folder.c_str(), 0555), 0);
        }
    }

    [[nodiscard]] FileContents Found() const {
        FileContents contents;
        for (const SavedFile& file : saving.files) {
            if (fs::exists(Path(file))) {
                contents[file.name] = Contents(Path(file));
            }
        }
        return contents;
    }

    // What must be new, and what must have stayed, behind a save without a fault.
    void ExpectSaved() const {
        ASSERT_EQ(newContents.size(), saving.files.size()) << ::testing::PrintToString(told);
        for (const SavedFile& file : saving.files) {
            const std::string& content = newContents.at(file.name);
            EXPECT_FALSE(content.empty());
            EXPECT_EQ(content == file.old, file.isUnchanged && scene != Scene::New);
            if (file.record != 0 && scene != Scene::New) {
                ASSERT_EQ(content.size(), file.old.size());
                EXPECT_EQ(content.substr(file.record), file.old.substr(file.record));
            }
        }
        ExpectFlushed();
        EXPECT_EQ(std::ranges::find(calls, "getdents64"), calls.end()) << "the other files cost nothing";
        EXPECT_FALSE(IsFailure(told, 0)) << ::testing::PrintToString(told);
        ExpectTheRestAsItWas();
        EXPECT_EQ(Temporaries(), std::vector<fs::path>{});
    }

    // What is written, and the folder of a new name.
    void ExpectFlushed() const {
        const auto count = [this](const char* call) { return std::ranges::count(calls, call); };
        const auto writes = scene == Scene::InPlace ? count("ftruncate") : 2 * count("rename");
        EXPECT_EQ(count("fsync"), saving.isFlushed ? writes : 0);
    }

    void Fail(std::size_t call, const Error& error) {
        Try({.kind = Kind::Error, .call = call, .error = error.number}, error.name);
    }

    void Try(const Fault& fault, const char* name) {
        SCOPED_TRACE(name);
        SetUp();
        const TracedRun run = RunTraced(action, fault);
        ++(run.wasKilled ? figures.kills : figures.faults);
        const bool isKill = fault.kind == Kind::KillBefore || fault.kind == Kind::KillAfter;
        EXPECT_EQ(run.wasKilled, isKill);
        EXPECT_GT(run.calls.size(), fault.call) << "the fault did not come";
        ExpectNothingLost();
        if (isKill) {
            ExpectNextSaveTidiesUp();
        } else {
            const bool isSaved = ExpectSavedOrTold(run, fault.error);
            EXPECT_TRUE(isSaved || fault.error != 0) << "what falls short goes on";
            EXPECT_FALSE(isSaved && fault.error == EIO && MustSucceed(fault.call));
        }
    }

    // Whether what was written may not be in the file when the call has failed, though it can be read there.
    [[nodiscard]] bool MustSucceed(std::size_t call) const {
        // The first close behind the last writing.
        const auto behind = std::ranges::find(calls | std::views::reverse, "write").base();
        const auto close = static_cast<std::size_t>(std::find(behind, calls.end(), "close") - calls.begin());
        const std::string& name = calls.at(call);
        return name == "fsync" || name == "ftruncate" || name == "rename" ||
               (name == "close" && call == close);
    }

    void ExpectNothingLost() {
        ExpectWholeFiles();
        ExpectTheRestAsItWas();
    }

    // Whether it was saved, by what was said.
    [[nodiscard]] bool ExpectSavedOrTold(const TracedRun& run, int error) const {
        EXPECT_EQ(Temporaries(), std::vector<fs::path>{}) << "litter";
        const Lines lines = LinesOf(run.report);
        if (lines != told) {
            ExpectTold(lines, error);
            return false;
        }
        EXPECT_TRUE(Found() == newContents) << "not saved, and nobody was told";
        return true;
    }

    void ExpectWholeFiles() {
        const FileContents found = Found();
        for (const SavedFile& file : saving.files) {
            const auto content = found.find(file.name);
            const bool isOld = scene == Scene::New ? content == found.end()
                                                   : content != found.end() && content->second == file.old;
            const bool isNew = content != found.end() && content->second == newContents.at(file.name);
            if (!isOld && !isNew) {
                ++figures.lost;
                ADD_FAILURE() << file.name << " is lost";
            }
        }
    }

    // Permissions, links, and that no other file is there.
    void ExpectTheRestAsItWas() const {
        for (const SavedFile& file : saving.files) {
            if (scene == Scene::Replaced) {
                EXPECT_TRUE(fs::is_symlink(saving.folder / file.name)) << file.name;
            }
            if (scene != Scene::New) {
                EXPECT_EQ(BitsOf(Path(file)), kOldBits) << file.name;
            } else if (fs::exists(Path(file))) {
                EXPECT_EQ(BitsOf(Path(file)), BitsOfNewFile()) << file.name;
            }
        }
        for (const auto& entry : fs::recursive_directory_iterator(saving.folder)) {
            const std::string name = entry.path().filename();
            EXPECT_TRUE(IsTemporary(name) || name == "sub" || name == SmallDisk::kFiller ||
                        std::ranges::find(saving.files, name, &SavedFile::name) != saving.files.end())
                << name;
        }
    }

    // Who can't read a file can't read what is to become it either.
    void ExpectPrivateTemporaries() const {
        constexpr mode_t kForOthers = 0044;
        const mode_t bits = scene == Scene::New ? BitsOfNewFile() : kOldBits;
        for (const fs::path& temporary : Temporaries()) {
            EXPECT_EQ(BitsOf(temporary) & kForOthers & ~bits, 0U) << temporary;
        }
    }

    static mode_t BitsOfNewFile() {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return 0666 & ~mask;
    }

    [[nodiscard]] std::vector<fs::path> Temporaries() const {
        std::vector<fs::path> paths;
        for (const auto& entry : fs::recursive_directory_iterator(saving.folder)) {
            if (IsTemporary(entry.path().filename())) {
                paths.push_back(entry.path());
            }
        }
        return paths;
    }

    void ExpectNextSaveTidiesUp() {
        const std::vector<fs::path> litter = Temporaries();
        EXPECT_LE(litter.size(), 1U) << ::testing::PrintToString(litter);
        if (litter.empty()) {
            return;
        }
        const TracedRun next = RunTraced(action, {});
        EXPECT_EQ(LinesOf(next.report), told) << "the next save";
        EXPECT_TRUE(Found() == newContents) << "the next save";
        EXPECT_EQ(Temporaries(), std::vector<fs::path>{}) << "the next save";
    }

    // The lines of a save that came this far, and behind them those of its failure.
    void ExpectTold(const Lines& lines, int error) const {
        const auto behind = std::ranges::mismatch(lines, told).in1;
        EXPECT_TRUE(IsFailure({behind, lines.end()}, error)) << ::testing::PrintToString(lines);
    }

    [[nodiscard]] bool IsFailure(const Lines& lines, int error) const {
        return std::ranges::any_of(saving.failures, [&](const Lines& failure) {
            return std::ranges::equal(lines, failure, [error](const std::string& line, std::string expected) {
                if (expected.ends_with('%')) {
                    expected.replace(expected.size() - 1, 1, std::to_string(NumberOf(error)));
                } else if (expected.ends_with('&')) {
                    expected.pop_back();
                    return line.starts_with(expected) &&
                           line.ends_with(std::string{": "} + std::strerror(error));
                }
                return line.starts_with(expected);
            });
        });
    }

    const Saving& saving;
    Scene scene;
    Figures& figures;
    TracedAction action;
    // Of the save without a fault.
    Lines told;
    Lines calls;
    FileContents newContents;
};

Figures& AllFigures() {
    static Figures figures;
    return figures;
}

} // namespace

void ExpectSafe(const Saving& saving) {
    for (const Scene scene : kScenes) {
        Trial trial(saving, scene, AllFigures());
        trial.Run();
        if (scene != Scene::InPlace && !::testing::Test::HasFailure()) {
            trial.RunOnFullDisk();
        }
        if (::testing::Test::HasFailure()) {
            break;
        }
    }
    const Figures& figures = AllFigures();
    std::cout << "saves tried: " << figures.saves << ", calls failed: " << figures.faults
              << ", kills: " << figures.kills << ", full disks: " << figures.fullDisks
              << ", files lost: " << figures.lost << "\n";
}

SavedFile OldRecord(const std::string& name, std::size_t record) {
    constexpr std::size_t kBehind = 700;
    return {name, OldContent(record + kBehind), record};
}

SavedFile OldOutput(const std::string& name) {
    constexpr std::size_t kLength = 5000;
    return {name, OldContent(kLength)};
}

} // namespace orvel::testing
