// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/cli/Program.h"

#include "core/FileNames.h"
#include "core/windows/Handle.h"
#include "tests/support/TestFiles.h"

#include <cstdlib>
#include <string>

namespace orvel::testing {

namespace {

namespace fs = std::filesystem;

std::wstring Wide(const std::string& utf8) {
    return PathOfSystemText(utf8).native();
}

// A word as the called program takes it apart again: in quotes, with those that it holds escaped, and the
// backslashes before them.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t character : word) {
        if (character == L'\\') {
            ++backslashes;
        } else {
            quoted.append(character == L'"' ? backslashes + 1 : 0, L'\\');
            backslashes = 0;
        }
        quoted += character;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

Handle OpenForChild(const fs::path& path, DWORD access, DWORD creation) {
    SECURITY_ATTRIBUTES inherited{};
    inherited.nLength = sizeof inherited;
    inherited.bInheritHandle = TRUE;
    return Handle(::CreateFileW(path.c_str(), access, kSharedWithAll, &inherited, creation,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
}

// As the system wants it: sorted, each ended by a zero, the whole by another. The system's own folder is
// needed to start anything.
std::wstring EnvironmentBlock(std::map<std::string, std::string> variables) {
    const char* folder = std::getenv("SystemRoot");
    variables["SystemRoot"] = folder == nullptr ? "" : folder;
    std::wstring block;
    for (const auto& [name, value] : variables) {
        block += Wide(name + "=" + value);
        block += L'\0';
    }
    return block + L'\0';
}

} // namespace

RunResult RunProgram(const Call& call) {
    const TemporaryFolder folder;
    PutContents(folder / "in", call.input);
    const fs::path out = call.outputFile.empty() ? fs::path(folder / "out") : call.outputFile;
    std::wstring command = Quoted(Wide(ORVEL_CLI));
    for (const std::string& argument : call.arguments) {
        command += L" " + Quoted(Wide(argument));
    }
    std::wstring environment = EnvironmentBlock(call.environment);
    RunResult result;
    {
        const Handle input = OpenForChild(folder / "in", GENERIC_READ, OPEN_EXISTING);
        const Handle output = OpenForChild(out, GENERIC_WRITE, OPEN_ALWAYS);
        const Handle errors = OpenForChild(folder / "err", GENERIC_WRITE, OPEN_ALWAYS);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = input.Get();
        start.hStdOutput = output.Get();
        start.hStdError = errors.Get();
        PROCESS_INFORMATION started{};
        BOOL isRunning = 0;
        // Once in some thousand starts Wine fails itself, before the program has begun.
        constexpr int kMostTries = 3;
        for (int tries = 0; isRunning == 0 && tries < kMostTries; ++tries) {
            isRunning =
                ::CreateProcessW(fs::path(ORVEL_CLI).c_str(), command.data(), nullptr, nullptr, TRUE,
                                 CREATE_UNICODE_ENVIRONMENT, environment.data(), nullptr, &start, &started);
            if (isRunning == 0 && ::GetLastError() != ERROR_INTERNAL_ERROR) {
                break;
            }
        }
        EXPECT_NE(isRunning, 0) << ::GetLastError();
        if (isRunning == 0) {
            return result;
        }
        const Handle process(started.hProcess);
        const Handle thread(started.hThread);
        EXPECT_EQ(::WaitForSingleObject(process.Get(), INFINITE), WAIT_OBJECT_0);
        DWORD status = 0;
        EXPECT_NE(::GetExitCodeProcess(process.Get(), &status), 0);
        result.status = static_cast<int>(status);
    }
    result.out = call.outputFile.empty() ? Contents(out) : std::string{};
    result.err = Contents(folder / "err");
    return result;
}

} // namespace orvel::testing
