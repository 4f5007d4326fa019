// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// Fills a folder with center-pivot tests of 20 to 100 cups, for measuring the command line: bench_files
// FOLDER COUNT. The same count gives the same files, 00001.cpd and so on.

#include "bench/Samples.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

int main(int argc, char** argv) {
    if (argc != 3) {
        (void)std::fputs("usage: bench_files FOLDER COUNT\n", stderr);
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    const int count = std::stoi(argv[2]);
    const orvel::bench::Surroundings surroundings;
    orvel::Program().programDirectory = folder;
    orvel::SaveUserSettings(orvel::Program().userSettings);
    orvel::SaveSoilTable();
    constexpr int kFewest = 20;
    constexpr int kDifferent = 81;
    constexpr std::size_t kDigits = 5;
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        const std::string name = std::string(kDigits - number.size(), '0') + number + ".cpd";
        const orvel::CenterPivotTest test =
            orvel::bench::PivotSample(kFewest + i % kDifferent, static_cast<unsigned>(i));
        // Not with the program's own saving, which would wait for the disk each time.
        std::ofstream(folder / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(&test), sizeof test);
    }
    return EXIT_SUCCESS;
}
