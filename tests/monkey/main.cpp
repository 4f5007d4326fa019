// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/Session.h"

#include <QApplication>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// Uses the program as no sane user does, in session after session until all steps are done:
//
//     monkey SEED STEPS
//
// The same seed and steps do the same again. Status 0: no promise was broken; 1: one was, which is told with
// the actions that led there; 2: a wrong call.

namespace {

using namespace orvel::monkey;

// From which on every window must have been visited.
constexpr int kStepsForAllWindows = 3000;

template <class Number>
std::optional<Number> NumberIn(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

int RunSession(std::uint64_t seed, int steps, const Sandbox& sandbox, Progress& progress) {
    int argc = 1;
    std::array<char, 7> name{"monkey"};
    std::array<char*, 2> argv{name.data(), nullptr};
    const QApplication application(argc, argv.data());
    QApplication::setApplicationName("ORVEL");
    QApplication::setCursorFlashTime(0);
    BeginProgram(sandbox);
    return Session(seed, steps, sandbox, progress).Run();
}

// Waits for the session's end. One in which nothing happens for long is ended.
int WaitFor(pid_t session, Progress& progress) {
    using namespace std::chrono;
    constexpr auto kPatience = minutes(5);
    auto lastMove = steady_clock::now();
    int lastStep = progress.steps;
    int status = 0;
    while (::waitpid(session, &status, WNOHANG) == 0) {
        if (lastStep != progress.steps) {
            lastStep = progress.steps;
            lastMove = steady_clock::now();
        } else if (steady_clock::now() - lastMove > kPatience) {
            progress.finding = "nothing happens any more";
            (void)::kill(session, SIGKILL);
        }
        std::this_thread::sleep_for(milliseconds(5));
    }
    return status;
}

// What a session's end tells; empty for an end as it should be.
std::string FindingIn(int status, const Progress& progress) {
    if (const std::string_view told = progress.finding.Get(); !told.empty()) {
        return std::string{told};
    }
    if (WIFSIGNALED(status)) {
        return "the program ended by signal " + std::to_string(WTERMSIG(status));
    }
    const int code = WEXITSTATUS(status);
    const bool isRight = code == kLeft || (code == kToldError && progress.hasToldError);
    return isRight ? "" : "the program ended with status " + std::to_string(code);
}

// The first window that was never visited; null for none.
const char* UnseenWindow(const Progress& progress) {
    for (std::size_t kind = 0; kind < static_cast<std::size_t>(WindowKind::Other); ++kind) {
        if (progress.visits.at(kind) == 0) {
            return kKindNames.at(kind);
        }
    }
    return nullptr;
}

void PrintFinding(std::uint64_t seed, const Progress& progress, const std::string& finding) {
    (void)std::fprintf(stderr, "seed %llu, step %d: %s\nthe last actions:\n",
                       static_cast<unsigned long long>(seed), progress.steps, finding.c_str());
    progress.ForEachLastAction([](std::string_view action) {
        (void)std::fprintf(stderr, "  %.*s\n", static_cast<int>(action.size()), action.data());
    });
}

int RunAll(std::uint64_t seed, int steps, Progress& progress) {
    constexpr int kStepsInASession = 400;
    const Sandbox sandbox;
    Dice dice(seed);
    int sessions = 0;
    int errors = 0;
    while (progress.steps < steps) {
        // Files go from one session to the next, but not for ever: most of them would be past mending.
        if (sessions % 2 == 0) {
            sandbox.LayTestFiles();
        }
        const int part = std::min(steps - progress.steps, dice.Between(1, kStepsInASession));
        const auto seedOfSession = static_cast<std::uint64_t>(dice.Below(1'000'000'000));
        progress.hasToldError = false;
        ++sessions;
        const pid_t session = ::fork();
        if (session == 0) {
            std::exit(RunSession(seedOfSession, part, sandbox, progress));
        }
        const std::string finding = FindingIn(WaitFor(session, progress), progress);
        if (!finding.empty()) {
            PrintFinding(seed, progress, finding);
            return EXIT_FAILURE;
        }
        errors += progress.hasToldError ? 1 : 0;
    }
    (void)std::printf(
        "%d steps in %d sessions, %d of them ended by a run-time error; steps in each window:\n",
        progress.steps, sessions, errors);
    for (std::size_t kind = 0; kind < kKinds; ++kind) {
        (void)std::printf("  %6d %s\n", progress.visits.at(kind), kKindNames.at(kind));
    }
    if (const char* unseen = UnseenWindow(progress); unseen != nullptr && steps >= kStepsForAllWindows) {
        (void)std::fprintf(stderr, "seed %llu never came to: %s\n", static_cast<unsigned long long>(seed),
                           unseen);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    const auto arguments = std::span(argv, static_cast<std::size_t>(argc));
    const auto seed = argc == 3 ? NumberIn<std::uint64_t>(arguments[1]) : std::nullopt;
    const auto steps = argc == 3 ? NumberIn<int>(arguments[2]) : std::nullopt;
    if (!seed || !steps || *steps < 1) {
        (void)std::fputs("monkey SEED STEPS\n", stderr);
        return 2;
    }
    // Seen by the sessions, and still there when they are not.
    void* memory =
        ::mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        std::perror("monkey");
        return EXIT_FAILURE;
    }
    return RunAll(*seed, *steps, *new (memory) Progress);
}
