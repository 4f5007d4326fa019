// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileIdentity.h"

#include "core/windows/Handle.h"

namespace orvel {

std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path) {
    if (path.empty() || IsDevice(path)) {
        return std::nullopt;
    }
    const Handle file = OpenExisting(path, FILE_READ_ATTRIBUTES);
    BY_HANDLE_FILE_INFORMATION found{};
    if (!file.IsOpen() || ::GetFileInformationByHandle(file.Get(), &found) == 0) {
        return std::nullopt;
    }
    constexpr unsigned kHalf = 32;
    return FileIdentity{found.dwVolumeSerialNumber,
                        std::uint64_t{found.nFileIndexHigh} << kHalf | found.nFileIndexLow};
}

} // namespace orvel
