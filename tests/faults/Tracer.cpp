// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/faults/Tracer.h"

#include "tests/support/OrdinaryUser.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <grp.h>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <stdexcept>
#include <string_view>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace orvel::testing {

namespace {

using CallNumber = unsigned long long;

// Around the traced part; nothing else calls it.
constexpr long kMarker = SYS_getppid;
// In the register of the result while a call has not been made.
constexpr auto kNoResultYet = static_cast<unsigned long long>(-ENOSYS);
constexpr int kSyscallStop = SIGTRAP | 0x80;

struct NamedCall {
    CallNumber number;
    std::string_view name;
};

constexpr std::array kNames = std::to_array<NamedCall>({
    {SYS_access, "access"},
    {SYS_close, "close"},
    {SYS_dup, "dup"},
    {SYS_faccessat, "faccessat"},
    {SYS_faccessat2, "faccessat2"},
    {SYS_fchmod, "fchmod"},
    {SYS_fchown, "fchown"},
    {SYS_fcntl, "fcntl"},
    {SYS_flock, "flock"},
    {SYS_fstat, "fstat"},
    {SYS_fsync, "fsync"},
    {SYS_getdents64, "getdents64"},
    {SYS_ftruncate, "ftruncate"},
    {SYS_lseek, "lseek"},
    {SYS_lstat, "lstat"},
    {SYS_newfstatat, "newfstatat"},
    {SYS_open, "open"},
    {SYS_openat, "openat"},
    {SYS_read, "read"},
    {SYS_readlink, "readlink"},
    {SYS_rename, "rename"},
    {SYS_stat, "stat"},
    {SYS_statx, "statx"},
    {SYS_unlink, "unlink"},
    {SYS_write, "write"},
});

// Memory, what the system never refuses, and what a sanitizer does of its own.
constexpr std::array kLeftOut = std::to_array<CallNumber>({
    SYS_brk,
    SYS_mmap,
    SYS_munmap,
    SYS_mprotect,
    SYS_mremap,
    SYS_madvise,
    SYS_futex,
    SYS_getpid,
    SYS_gettid,
    SYS_geteuid,
    SYS_getuid,
    SYS_umask,
    SYS_clock_gettime,
    SYS_sched_yield,
    SYS_getrandom,
    SYS_sigaltstack,
});

std::string NameOf(CallNumber number) {
    const auto* const found = std::ranges::find(kNames, number, &NamedCall::number);
    return found == kNames.end() ? "call " + std::to_string(number) : std::string{found->name};
}

// What the process leaves behind in memory that outlives it.
struct Page {
    bool isComplete;
    std::array<char, 16384> text;
};

class SharedPage {
public:
    SharedPage()
        : page(static_cast<Page*>(
              ::mmap(nullptr, sizeof(Page), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
        if (page == MAP_FAILED) {
            throw std::system_error(errno, std::generic_category(), "mmap");
        }
    }
    ~SharedPage() { ::munmap(page, sizeof(Page)); }
    SharedPage(const SharedPage&) = delete;
    SharedPage& operator=(const SharedPage&) = delete;

    Page& operator*() const { return *page; }

private:
    Page* page;
};

// Permissions are to stop the process, also where it has rights of its own over a namespace.
void BecomeOrdinaryUser() {
    constexpr auto kUser = kOrdinaryUser;
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    const std::array<__user_cap_data_struct, 2> none{};
    const bool isDone = ::geteuid() == 0
                            ? ::setgroups(0, nullptr) == 0 && ::setresgid(kUser, kUser, kUser) == 0 &&
                                  ::setresuid(kUser, kUser, kUser) == 0
                            : ::syscall(SYS_capset, &header, none.data()) == 0;
    if (!isDone) {
        ::_exit(EXIT_FAILURE);
    }
}

int FailedParts() {
    return ::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

[[noreturn]] void RunInProcess(const TracedAction& action, Page& page) {
    const int failedBefore = FailedParts();
    BecomeOrdinaryUser();
    action.prepare();
    (void)::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    (void)::raise(SIGSTOP);
    (void)::syscall(kMarker);
    action.act();
    (void)::syscall(kMarker);
    std::string report = action.report();
    if (FailedParts() != failedBefore) {
        report += "\na check failed in the process";
    }
    (void)std::fflush(stdout);
    report.copy(page.text.data(), page.text.size() - 1);
    page.isComplete = true;
    ::_exit(EXIT_SUCCESS);
}

void Check(long result, const char* what) {
    if (result == -1) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

// Follows the process from one system call to the next.
class Tracer {
public:
    Tracer(pid_t traced, const Fault& ofRun, const std::function<void()>& atStops)
        : process(traced), fault(ofRun), look(atStops) {
        (void)Wait();
        Check(::ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL),
              "PTRACE_SETOPTIONS");
    }

    TracedRun Follow() {
        while (!hasEnded && NextStop()) {
            const auto call = Entered();
            if (call == kMarker) {
                isInside = !isInside;
            } else if (isInside && Counts(call)) {
                HandleCall(call);
                continue;
            }
            (void)NextStop();
        }
        return run;
    }

private:
    [[nodiscard]] int Wait() const {
        int status = 0;
        Check(::waitpid(process, &status, 0), "waitpid");
        return status;
    }

    // Goes on to the next beginning or end of a call; false when the process has ended.
    bool NextStop() {
        int signal = 0;
        while (true) {
            Check(::ptrace(PTRACE_SYSCALL, process, nullptr, signal), "PTRACE_SYSCALL");
            const int status = Wait();
            if (!WIFSTOPPED(status)) {
                End(status);
                return false;
            }
            if (WSTOPSIG(status) == kSyscallStop) {
                return true;
            }
            signal = WSTOPSIG(status);
        }
    }

    [[nodiscard]] CallNumber Entered() const {
        const user_regs_struct registers = Registers();
        if (registers.rax != kNoResultYet) {
            throw std::logic_error("not at the beginning of a call");
        }
        return registers.orig_rax;
    }

    [[nodiscard]] user_regs_struct Registers() const {
        user_regs_struct registers{};
        Check(::ptrace(PTRACE_GETREGS, process, nullptr, &registers), "PTRACE_GETREGS");
        return registers;
    }

    [[nodiscard]] bool Counts(CallNumber call) {
        // A sanitizer tries memory with a pipe, which the program has no use for.
        constexpr int kEnds = 2;
        if (call == SYS_pipe2) {
            openEnds = kEnds;
            return false;
        }
        if (openEnds > 0) {
            openEnds -= call == SYS_close ? 1 : 0;
            return false;
        }
        return std::ranges::find(kLeftOut, call) == kLeftOut.end();
    }

    void Look() const {
        if (look) {
            look();
        }
    }

    [[nodiscard]] Fault::Kind FaultOfNextCall() const {
        const std::size_t next = run.calls.size();
        const bool isBehindShort =
            fault.kind == Fault::Kind::Short && fault.error != 0 && next == fault.call + 1;
        if (isBehindShort) {
            return Fault::Kind::Error;
        }
        return next == fault.call ? fault.kind : Fault::Kind::None;
    }

    void HandleCall(CallNumber call) {
        const Fault::Kind kind = FaultOfNextCall();
        run.calls.push_back(NameOf(call));
        Look();
        switch (kind) {
        case Fault::Kind::Error:
            ChangeRegisters([](user_regs_struct& registers) { registers.orig_rax = ~0ULL; });
            break;
        case Fault::Kind::Short:
            ChangeRegisters(
                [](user_regs_struct& registers) { registers.rdx = std::max(registers.rdx / 2, 1ULL); });
            break;
        case Fault::Kind::KillBefore:
            Kill();
            return;
        default:
            break;
        }
        if (!NextStop()) {
            return;
        }
        Look();
        if (kind == Fault::Kind::Error) {
            ChangeRegisters([this](user_regs_struct& registers) {
                registers.rax = static_cast<unsigned long long>(-static_cast<long long>(fault.error));
            });
        } else if (kind == Fault::Kind::KillAfter) {
            Kill();
        }
    }

    template <class Change>
    void ChangeRegisters(Change change) const {
        user_regs_struct registers = Registers();
        change(registers);
        Check(::ptrace(PTRACE_SETREGS, process, nullptr, &registers), "PTRACE_SETREGS");
    }

    // At the beginning of a call it keeps the call from being made.
    void Kill() {
        Check(::kill(process, SIGKILL), "kill");
        End(Wait());
    }

    void End(int status) {
        run.wasKilled = WIFSIGNALED(status);
        hasEnded = true;
    }

    pid_t process;
    Fault fault;
    const std::function<void()>& look;
    bool isInside = false;
    bool hasEnded = false;
    int openEnds = 0;
    TracedRun run;
};

} // namespace

TracedRun RunTraced(const TracedAction& action, const Fault& fault, const std::function<void()>& look) {
    const SharedPage page;
    (void)std::fflush(stdout);
    const pid_t process = ::fork();
    Check(process, "fork");
    if (process == 0) {
        RunInProcess(action, *page);
    }
    TracedRun run = Tracer(process, fault, look).Follow();
    if (!run.wasKilled) {
        run.report = (*page).isComplete ? (*page).text.data() : "the process ended early";
    }
    return run;
}

bool CanBeShort(const std::string& call) {
    return call == "read" || call == "write";
}

} // namespace orvel::testing
