// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/Sandbox.h"

#include "core/CodePage.h"
#include "core/NumberLocale.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "tests/support/CompleteUserSettings.h"
#include "ui/QtPrinter.h"
#include "ui/TextEdge.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace orvel::monkey {

namespace fs = std::filesystem;

Sandbox::Sandbox() {
    for (const char* each : {"tests", "tests/folder", "program", "home", "home/run"}) {
        fs::create_directory(folder / each);
    }
    fs::permissions(folder / "home/run", fs::perms::owner_all);
    const std::string home = folder / "home";
    for (const auto& [name, value] : {
             std::pair<const char*, std::string>{"HOME", home},
             {"XDG_CONFIG_HOME", home + "/config"},
             {"XDG_DATA_HOME", home + "/data"},
             {"XDG_RUNTIME_DIR", home + "/run"},
             {"CUPS_SERVER", home + "/no-printers"},
             {"QT_QPA_PLATFORM", "offscreen"},
             {"QT_HASH_SEED", "0"},
             {"LC_ALL", "C.UTF-8"},
             {"TZ", "UTC"},
         }) {
        (void)::setenv(name, value.c_str(), 1);
    }
}

void Sandbox::LayTestFiles() const {
    constexpr std::size_t kShort = 4000;
    constexpr std::size_t kLong = 20000;
    for (const auto& [name, extension] :
         {std::pair<std::string, std::string>{"pivot-1978", ".cpd"}, {"solid-set-1997", ".ssd"}}) {
        const std::string content = testing::Contents(testing::Example(name + extension));
        testing::PutContents(Tests() / (name + extension), content);
        testing::PutContents(Tests() / ("short" + extension), content.substr(0, kShort));
        testing::PutContents(Tests() / ("long" + extension),
                             content + std::string(kLong - content.size(), 'x'));
        std::string noise(content.size(), '\0');
        std::ranges::generate(noise,
                              [byte = 0U]() mutable { return static_cast<char>(byte = byte * 5 + 7); });
        testing::PutContents(Tests() / ("noise" + extension), noise);
        std::error_code error;
        fs::create_symlink("/dev/full", Tests() / "folder" / ("full" + extension), error);
    }
    testing::PutContents(Tests() / "pivot-1978.rtf",
                         testing::Contents(testing::TestData("rtf/d1_mixed.rtf")));
    testing::PutContents(Tests() / "noise.rtf", "{\\rtf1{\\bin99999 \\u-1{{\\pict");
}

void BeginProgram(const Sandbox& sandbox) {
    UseCodePage(CodePage::Windows1252());
    UseNumberLocale(InvariantNumberLocale());
    Program().programDirectory = sandbox.ProgramDirectory();
    UserSettings settings = testing::CompleteUserSettings();
    settings.DefaultDirectory = sandbox.Tests().native();
    SaveUserSettings(settings);
}

DateTime TickingClock::Now() {
    constexpr int kLooksInASecond = 4;
    constexpr int kSeconds = 50;
    ++looks;
    return {2026, 7, 4, 9, looks / kLooksInASecond / kSeconds % 60, looks / kLooksInASecond % kSeconds};
}

fs::path FencedFileDialogs::Open(const FileDialog& dialog) {
    // What lies behind a link is outside.
    const fs::path path = dialogs.Open(dialog);
    return fs::is_symlink(path) ? fs::path{} : Fenced(path);
}

fs::path FencedFileDialogs::Fenced(const fs::path& path) const {
    const std::string inside = fence.native() + "/";
    return path.lexically_normal().native().starts_with(inside) ? path : fs::path{};
}

void PaperlessPrintDialog::ShowPrinter(PrintDialog& dialog) {
    constexpr int kMostCopies = 2;
    dialogs.ShowPrinter(dialog);
    dialog.copies = std::min(dialog.copies, kMostCopies);
    QPrinter& device = dynamic_cast<ui::QtPrinter&>(*CurrentPlatform().printer).Device();
    device.setOutputFormat(QPrinter::PdfFormat);
    device.setOutputFileName(ui::PathToQt(file));
}

} // namespace orvel::monkey
