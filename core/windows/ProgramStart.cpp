// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramStart.h"

#include "core/FileNames.h"
#include "core/windows/Api.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <shellapi.h>

namespace orvel {

void SurviveFileSizeLimit() {
    // There is no such limit.
}

std::vector<std::string> CallArguments(int argc, const char* const* argv) {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> words(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), ::LocalFree);
    if (!words) {
        return {argv + std::min(argc, 1), argv + argc};
    }
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(PathUtf8(words.get()[i]));
    }
    return arguments;
}

std::filesystem::path PathInEnvironment(const char* name) {
    const wchar_t* value = ::_wgetenv(std::filesystem::path(name).c_str());
    return value == nullptr ? L"" : value;
}

} // namespace orvel
