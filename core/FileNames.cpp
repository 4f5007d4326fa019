// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileNames.h"

#include "core/CodePage.h"

#include <algorithm>

namespace orvel {

namespace {

char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool IsSameName(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, {}, LowerCase, LowerCase);
}

} // namespace

bool FileExists(const std::filesystem::path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool FolderExists(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::string FileNameText(const std::filesystem::path& path) {
    return PathText(path.filename());
}

std::string PathText(const std::filesystem::path& path) {
    return SystemToText(path.native());
}

std::filesystem::path FolderOfExecutable() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::filesystem::path PathOfText(std::string_view text) {
    return CurrentCodePage().IsOfSystem() ? std::string{text} : ToUtf8(text);
}

std::filesystem::path FindFile(const std::filesystem::path& folder, std::string_view name) {
    if (FileExists(folder / name)) {
        return folder / name;
    }
    std::filesystem::path found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::filesystem::path& path = entry->path();
        // A folder lists its files in no order.
        if (IsSameName(path.filename().native(), name) && FileExists(path) &&
            (found.empty() || path < found)) {
            found = path;
        }
    }
    return found;
}

bool HasExtension(const std::filesystem::path& path, std::string_view extension) {
    const std::string name = path.filename().native();
    const std::string ending = "." + std::string{extension};
    return name.size() >= ending.size() &&
           IsSameName(std::string_view(name).substr(name.size() - ending.size()), ending);
}

} // namespace orvel
