// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

// Runs a part of the program in a process of its own, looks at each of its system calls and lets one of them
// go wrong. For x86-64 Linux.
namespace orvel::testing {

// What happens to a system call.
struct Fault {
    enum class Kind {
        None,
        Error,      // it is not made and says that it failed
        Short,      // it reads or writes half of what it should; the next one fails where an error is given
        KillBefore, // the process is killed instead of it
        KillAfter,  // the process is killed when it has been made
    };

    Kind kind = Kind::None;
    std::size_t call = 0; // which one, from 0
    int error = 0;        // errno
};

// The three steps of a run. All happen in the process of its own; what they change in memory is lost with it.
struct TracedAction {
    std::function<void()> prepare;
    std::function<void()> act; // what is traced
    // What is left to say behind it; a check that fails here or before stands in it, too.
    std::function<std::string()> report;
};

struct TracedRun {
    // The calls that were made or kept from being made, by name, up to the process's end. Those for memory,
    // those that can't fail and those of a sanitizer are left out.
    std::vector<std::string> calls;
    bool wasKilled = false;
    std::string report; // empty for a process that was killed
};

// `look` is called before and after each call that counts, while the process stands still.
[[nodiscard]] TracedRun RunTraced(const TracedAction& action, const Fault& fault,
                                  const std::function<void()>& look = {});

// Whether a call of that name can read or write less than it should.
[[nodiscard]] bool CanBeShort(const std::string& call);

} // namespace orvel::testing
