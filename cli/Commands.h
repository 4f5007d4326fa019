// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"

// The commands. Each takes a call whose options have been read and returns its exit status; a CommandError
// that ends the whole call passes to the caller.
namespace orvel::cli {

int RunResults(const Options& options);
int RunCheck(const Options& options);
int RunReport(const Options& options);
int RunExport(const Options& options);
int RunListing(const Options& options);
int RunDump(const Options& options);
int RunBuild(const Options& options);
int RunText(const Options& options);

} // namespace orvel::cli
