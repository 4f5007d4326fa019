// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

// Open files as the system knows them. Failures raise FileError.
namespace orvel {

// Raises FileError for what errno says.
[[noreturn]] void FailedTo(const std::string& step);

// Calls again for as long as a signal interrupts the call.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

// An open file that is closed at the end of its scope, whatever happened.
class Descriptor {
public:
    // -1 for none.
    explicit Descriptor(int openDescriptor = -1) : descriptor(openDescriptor) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept : descriptor(std::exchange(other.descriptor, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(descriptor, other.descriptor);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int Get() const { return descriptor; }

    [[nodiscard]] bool IsOpen() const { return descriptor != -1; }

    // A close that fails may mean that what was written is lost.
    void CloseChecked();

    // A second one for the same opening of the file, whose locks last as long as either.
    [[nodiscard]] Descriptor Twin() const;

private:
    int descriptor;
};

// Not open, with errno set, when the system refuses. `mode` is for files that are created.
[[nodiscard]] Descriptor Open(const std::filesystem::path& path, int flags, unsigned mode = 0);

void WriteAll(int descriptor, std::string_view content);
void FlushToDisk(int descriptor);
// From the current position, up to `most` bytes.
[[nodiscard]] std::string ReadFrom(int descriptor,
                                   std::size_t most = std::numeric_limits<std::size_t>::max());

} // namespace orvel
