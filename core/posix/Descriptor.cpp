// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/posix/Descriptor.h"

#include "core/RunTimeError.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace orvel {

void FailedTo(const std::string& step) {
    throw FileError("cannot " + step, errno);
}

Descriptor::~Descriptor() {
    if (descriptor != -1) {
        ::close(descriptor);
    }
}

void Descriptor::CloseChecked() {
    if (::close(std::exchange(descriptor, -1)) == -1 && errno != EINTR) {
        FailedTo("close");
    }
}

Descriptor Descriptor::Twin() const {
    Descriptor twin(::fcntl(descriptor, F_DUPFD_CLOEXEC, 0));
    if (!twin.IsOpen()) {
        FailedTo("keep the file open");
    }
    return twin;
}

Descriptor Open(const std::filesystem::path& path, int flags, unsigned mode) {
    return Descriptor(Uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); }));
}

void WriteAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written =
            Uninterrupted([&] { return ::write(descriptor, content.data(), content.size()); });
        if (written == -1) {
            FailedTo("write");
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
}

void FlushToDisk(int descriptor) {
    if (Uninterrupted([&] { return ::fsync(descriptor); }) == -1) {
        FailedTo("flush to the disk");
    }
}

std::string ReadFrom(int descriptor, std::size_t most) {
    std::string content;
    std::array<char, 65536> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): read fills it
    while (content.size() < most) {
        const std::size_t wanted = std::min(buffer.size(), most - content.size());
        const ssize_t length = Uninterrupted([&] { return ::read(descriptor, buffer.data(), wanted); });
        if (length == -1) {
            FailedTo("read");
        }
        if (length == 0) {
            break;
        }
        content.append(buffer.data(), static_cast<std::size_t>(length));
    }
    return content;
}

} // namespace orvel
