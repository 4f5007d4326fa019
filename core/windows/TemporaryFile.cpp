// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/windows/TemporaryFile.h"

#include "core/TemporaryNames.h"

#include <algorithm>
#include <memory>
#include <sddl.h>
#include <string>
#include <vector>

namespace orvel {

namespace {

namespace fs = std::filesystem;

void RemoveIfLeftBehind(const fs::path& path) {
    const Handle file =
        OpenExisting(path, DELETE | FILE_READ_ATTRIBUTES, kSharedWithNone, FILE_FLAG_OPEN_REPARSE_POINT);
    BY_HANDLE_FILE_INFORMATION found{};
    constexpr DWORD kOthers = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    if (file.IsOpen() && ::GetFileInformationByHandle(file.Get(), &found) != 0 &&
        (found.dwFileAttributes & kOthers) == 0 && found.nNumberOfLinks == 1) {
        FILE_DISPOSITION_INFO disposition{};
        disposition.DeleteFile = TRUE;
        ::SetFileInformationByHandle(file.Get(), FileDispositionInfo, &disposition, sizeof disposition);
    }
}

using LocalMemory = std::unique_ptr<void, decltype(&::LocalFree)>;

// The identifier of the user who runs the program, as text; empty when it can't be had.
std::wstring UserIdentifier() {
    HANDLE opened = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened) == 0) {
        return {};
    }
    const Handle token(opened);
    std::vector<char> memory(1024); // more than the longest identifier
    DWORD size = 0;
    if (::GetTokenInformation(token.Get(), TokenUser, memory.data(), static_cast<DWORD>(memory.size()),
                              &size) == 0) {
        return {};
    }
    const auto* user = static_cast<const TOKEN_USER*>(static_cast<const void*>(memory.data()));
    LPWSTR text = nullptr;
    if (::ConvertSidToStringSidW(user->User.Sid, &text) == 0) {
        return {};
    }
    const LocalMemory owned(text, ::LocalFree);
    return text;
}

// An access list with nobody but the user on it, and nothing of the folder's; null when it can't be made.
LocalMemory ListOfUserAlone() {
    PSECURITY_DESCRIPTOR list = nullptr;
    const std::wstring user = UserIdentifier();
    if (!user.empty()) {
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW((L"D:P(A;;FA;;;" + user + L")").c_str(),
                                                               SDDL_REVISION_1, &list, nullptr);
    }
    return {list, ::LocalFree};
}

bool IsSameName(std::wstring_view one, std::string_view other) {
    const std::wstring wide(other.begin(), other.end());
    return ::CompareStringOrdinal(one.data(), static_cast<int>(one.size()), wide.data(),
                                  static_cast<int>(wide.size()), TRUE) == CSTR_EQUAL;
}

// Virus scanners and indexers have a file open for a moment after it was written.
bool MayPass(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_UNABLE_TO_REMOVE_REPLACED || error == ERROR_UNABLE_TO_MOVE_REPLACEMENT;
}

DWORD Moved(const std::wstring& from, const std::wstring& to) {
    return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0
               ? ERROR_SUCCESS
               : ::GetLastError();
}

DWORD Replaced(const std::wstring& from, const std::wstring& to) {
    // What the call asks for itself; where it fails, it may leave litter of its own.
    if (!OpenExisting(to, GENERIC_READ | DELETE).IsOpen()) {
        return ::GetLastError();
    }
    if (::ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                       nullptr) != 0) {
        return ERROR_SUCCESS;
    }
    const DWORD error = ::GetLastError();
    // The old file may have gone before the new one could take its name.
    const bool isGone = error == ERROR_UNABLE_TO_MOVE_REPLACEMENT &&
                        ::GetFileAttributesW(to.c_str()) == INVALID_FILE_ATTRIBUTES;
    return isGone ? Moved(from, to) : error;
}

} // namespace

TemporaryFile::TemporaryFile(const fs::path& folder, Readers readers) {
    for (const std::string_view each : kTemporaryNames) {
        const fs::path path = folder / each;
        RemoveIfLeftBehind(path);
        if (!IsOpen() && !Create(path, readers)) {
            return;
        }
    }
    const auto first = static_cast<unsigned>(::GetCurrentProcessId());
    for (unsigned i = 0; i < kMostOtherNames && !IsOpen(); ++i) {
        if (!Create(folder / OtherTemporaryName(first + i), readers)) {
            return;
        }
    }
}

TemporaryFile::~TemporaryFile() {
    file = Handle();
    if (!name.empty()) {
        ::DeleteFileW(SystemName(name).c_str());
    }
}

bool TemporaryFile::IsNameOfOne(const fs::path& path) {
    const fs::path filename = path.filename();
    return std::ranges::any_of(
        kTemporaryNames, [&filename](std::string_view each) { return IsSameName(filename.native(), each); });
}

bool TemporaryFile::TakeName(const fs::path& path, OldFile oldFile) {
    constexpr int kMostTries = 8;
    constexpr DWORD kMilliseconds = 20;
    file = Handle();
    const std::wstring from = SystemName(name);
    const std::wstring to = SystemName(path);
    for (int i = 0; i < kMostTries; ++i) {
        error = oldFile == OldFile::KeepsItsPermissions ? Replaced(from, to) : Moved(from, to);
        if (!MayPass(error)) {
            break;
        }
        ::Sleep(kMilliseconds);
    }
    if (error == ERROR_SUCCESS) {
        name.clear();
    }
    return error == ERROR_SUCCESS;
}

bool TemporaryFile::IsThere() const {
    return ::GetFileAttributesW(SystemName(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

// False only for what another name would not change.
bool TemporaryFile::Create(const fs::path& path, Readers readers) {
    const LocalMemory list =
        readers == Readers::UserAlone ? ListOfUserAlone() : LocalMemory(nullptr, ::LocalFree);
    SECURITY_ATTRIBUTES attributes{};
    attributes.nLength = sizeof attributes;
    attributes.lpSecurityDescriptor = list.get();
    Handle created(::CreateFileW(SystemName(path).c_str(), GENERIC_WRITE, kSharedWithNone, &attributes,
                                 CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (created.IsOpen()) {
        file = std::move(created);
        name = path;
        return true;
    }
    error = ::GetLastError();
    if (error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION) {
        // Also said of a folder of that name, and of a file that is just being deleted.
        return ::GetFileAttributesW(SystemName(path).c_str()) != INVALID_FILE_ATTRIBUTES;
    }
    return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
}

} // namespace orvel
