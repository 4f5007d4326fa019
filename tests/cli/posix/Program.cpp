// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/cli/Program.h"

#include "tests/support/TestFiles.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvel::testing {

namespace {

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

void Redirect(const std::filesystem::path& path, int flags, int descriptor) {
    constexpr int kMode = 0600;
    const int file = ::open(path.c_str(), flags, kMode);
    if (file == -1 || ::dup2(file, descriptor) == -1) {
        ::_exit(126);
    }
}

} // namespace

RunResult RunProgram(const Call& call) {
    const TemporaryFolder folder;
    PutContents(folder / "in", call.input);
    const std::filesystem::path out = call.outputFile.empty() ? folder / "out" : call.outputFile;
    std::vector<std::string> arguments = {ORVEL_CLI};
    arguments.insert(arguments.end(), call.arguments.begin(), call.arguments.end());
    std::vector<std::string> environment;
    for (const auto& [name, value] : call.environment) {
        environment.push_back(name + "=" + value);
    }
    const std::vector<char*> argv = Pointers(arguments);
    const std::vector<char*> envp = Pointers(environment);

    const pid_t child = ::fork();
    if (child == 0) {
        Redirect(folder / "in", O_RDONLY, STDIN_FILENO);
        Redirect(out, O_WRONLY | O_CREAT, STDOUT_FILENO);
        Redirect(folder / "err", O_WRONLY | O_CREAT, STDERR_FILENO);
        if (call.fileSizeLimit > 0) {
            const rlimit limit{call.fileSizeLimit, call.fileSizeLimit};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        ::execve(ORVEL_CLI, argv.data(), envp.data());
        ::_exit(127);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    RunResult result;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.out = call.outputFile.empty() ? Contents(out) : std::string{};
    result.err = Contents(folder / "err");
    return result;
}

} // namespace orvel::testing
