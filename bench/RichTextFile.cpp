// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// One rich-text file: bench_rich_text --make FILE BYTES makes one of about that size; bench_rich_text FILE
// TIMES reads it so many times and writes the document again, and prints the file's bytes, the seconds of one
// reading and of one writing, and by how many bytes the program has grown at most.

#include "bench/Samples.h"
#include "core/SafeFile.h"
#include "report/RtfReader.h"
#include "report/RtfWriter.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

// The most memory that the program ever had, bytes.
long Most() {
    constexpr long kKilobyte = 1024;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            return std::stol(line.substr(line.find_first_of("0123456789"))) * kKilobyte;
        }
    }
    return 0;
}

double SecondsOf(const auto& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 4) {
        orvel::SaveRtf(argv[2], orvel::bench::RichTextSample(std::stoul(argv[3])));
        return EXIT_SUCCESS;
    }
    if (argc != 3) {
        (void)std::fputs("usage: bench_rich_text FILE TIMES\n       bench_rich_text --make FILE BYTES\n",
                         stderr);
        return 2;
    }
    const int times = std::stoi(argv[2]);
    const long atStart = Most();
    const std::string file = orvel::ReadFile(argv[1]);
    double reading = 0;
    double writing = 0;
    for (int i = 0; i < times; ++i) {
        orvel::RichDocument document;
        reading += SecondsOf([&] { document = orvel::ReadRtf(file); });
        std::string again;
        writing += SecondsOf([&] { again = orvel::WriteRtf(document); });
        if (again != file) {
            (void)std::fputs("what was written is not what was read\n", stderr);
            return EXIT_FAILURE;
        }
    }
    (void)std::printf("%zu %.9f %.9f %ld\n", file.size(), reading / times, writing / times, Most() - atStart);
    return EXIT_SUCCESS;
}
