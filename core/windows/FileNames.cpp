// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileNames.h"

#include "core/CodePage.h"
#include "core/Unicode.h"
#include "core/windows/Handle.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

// INVALID_FILE_ATTRIBUTES for nothing.
DWORD Attributes(const fs::path& path) {
    return path.empty() ? INVALID_FILE_ATTRIBUTES : AttributesOf(path);
}

} // namespace

bool FileExists(const fs::path& path) {
    const DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !IsFolder(attributes);
}

bool FolderExists(const fs::path& path) {
    return IsFolder(Attributes(path));
}

std::string PathText(const fs::path& path) {
    return FromUtf8(PathUtf8(path));
}

std::string PathUtf8(const fs::path& path) {
    const std::wstring& name = path.native();
    const auto length = static_cast<int>(name.size());
    const auto convert = [&](char* text, int size) {
        // A lone surrogate, which a name may hold, becomes U+FFFD.
        return ::WideCharToMultiByte(CP_UTF8, 0, name.data(), length, text, size, nullptr, nullptr);
    };
    std::string text(static_cast<std::size_t>(length == 0 ? 0 : convert(nullptr, 0)), '\0');
    convert(text.data(), static_cast<int>(text.size()));
    return text;
}

fs::path PathOfText(std::string_view text) {
    return PathOfSystemText(ToUtf8(text));
}

fs::path PathOfSystemText(std::string_view text) {
    const std::u32string unicode = UnicodeOf(text);
    return unicode;
}

fs::path FullPath(const fs::path& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error).lexically_normal();
    if (error) {
        return path;
    }
    if (const Handle file = OpenExisting(absolute, FILE_READ_ATTRIBUTES); file.IsOpen()) {
        return FinalPath(file);
    }
    const fs::path folder = absolute.parent_path();
    return folder == absolute ? absolute : FullPath(folder) / absolute.filename();
}

fs::path PathForComparison(const fs::path& path) {
    std::wstring name = path.native();
    ::CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

fs::path FolderOfExecutable() {
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
        if (length < name.size()) {
            name.resize(length);
            return fs::path(name).parent_path();
        }
        name.resize(2 * name.size());
    }
}

} // namespace orvel
