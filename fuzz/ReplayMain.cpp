// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

// Tries the inputs that are named, files or whole folders, for compilers without libFuzzer.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

// What is being tried, for the signal handler.
std::string current; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void TellInput(int /*signal*/) {
    (void)::write(STDERR_FILENO, current.data(), current.size());
}

std::vector<fs::path> FilesOf(const fs::path& given) {
    if (!fs::is_directory(given)) {
        return {given};
    }
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(given)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    return files;
}

void TryFile(const fs::path& path) {
    current = "ends with: " + path.native() + "\n";
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> content(std::istreambuf_iterator<char>(file), {});
    // A block of just its size: whatever is read behind it is found by the tools that look for that.
    const std::vector<std::uint8_t> bytes(content.begin(), content.end());
    (void)LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

} // namespace

int main(int argc, char** argv) {
    (void)std::signal(SIGABRT, TellInput);
    std::size_t count = 0;
    for (const fs::path given : std::vector<std::string>(argv + 1, argv + argc)) {
        const std::vector<fs::path> files = FilesOf(given);
        if (files.empty()) {
            (void)std::fprintf(stderr, "no inputs in %s\n", given.c_str());
            return 1;
        }
        for (const fs::path& file : files) {
            TryFile(file);
            ++count;
        }
    }
    (void)std::printf("%zu inputs tried\n", count);
    return count > 0 ? 0 : 1;
}
