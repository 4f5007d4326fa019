// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileNames.h"

#include "core/CodePage.h"

namespace orvel {

bool FileExists(const std::filesystem::path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool FolderExists(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::string PathText(const std::filesystem::path& path) {
    return SystemToText(path.native());
}

std::string PathUtf8(const std::filesystem::path& path) {
    return SystemToUtf8(path.native());
}

std::filesystem::path PathOfText(std::string_view text) {
    return CurrentCodePage().IsOfSystem() ? std::string{text} : ToUtf8(text);
}

std::filesystem::path PathOfSystemText(std::string_view text) {
    return text;
}

std::filesystem::path FullPath(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::path full =
        std::filesystem::weakly_canonical(std::filesystem::absolute(path, error), error);
    return error ? path : full;
}

std::filesystem::path PathForComparison(const std::filesystem::path& path) {
    return path;
}

std::filesystem::path FolderOfExecutable() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

} // namespace orvel
