// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileNames.h"

#include <algorithm>

namespace orvel {

namespace {

using Letter = std::filesystem::path::value_type;
using Name = std::basic_string_view<Letter>;

Letter LowerCase(Letter letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<Letter>(letter - 'A' + 'a') : letter;
}

bool IsSameName(Name one, Name other) {
    return std::ranges::equal(one, other, {}, LowerCase, LowerCase);
}

} // namespace

std::filesystem::path FolderOf(const std::filesystem::path& path) {
    const std::filesystem::path folder = path.parent_path();
    return folder.empty() ? "." : folder;
}

std::string FileNameText(const std::filesystem::path& path) {
    return PathText(path.filename());
}

std::filesystem::path FindFile(const std::filesystem::path& folder, std::string_view name) {
    const std::filesystem::path wanted = name;
    if (FileExists(folder / wanted)) {
        return folder / wanted;
    }
    std::filesystem::path found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::filesystem::path& path = entry->path();
        // A folder lists its files in no order.
        if (IsSameName(path.filename().native(), wanted.native()) && FileExists(path) &&
            (found.empty() || path < found)) {
            found = path;
        }
    }
    return found;
}

bool HasExtension(const std::filesystem::path& path, std::string_view extension) {
    const std::filesystem::path name = path.filename();
    const std::filesystem::path ending = "." + std::string{extension};
    const Name all = name.native();
    const std::size_t length = ending.native().size();
    return all.size() >= length && IsSameName(all.substr(all.size() - length), ending.native());
}

} // namespace orvel
