// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "core/Records.h"
#include "report/RichText.h"

#include <cstddef>

// What the benchmarks work on: the examples with other catches.
namespace orvel::bench {

// The most cups that a test can have: two entries without a reading must follow.
inline constexpr int kMostCups = 298;

// Every entry filled in. The same seed gives the same catches.
[[nodiscard]] CenterPivotTest PivotSample(int cups, unsigned seed = 1);
// On a grid of so many cups along X and Y; those behind the most that a test can have are left out.
[[nodiscard]] SolidSetTest SolidSample(int alongX, int alongY, unsigned seed = 1);

// Make it the program's open test, as after opening its file, with nothing calculated.
void Open(const CenterPivotTest& test);
void Open(const SolidSetTest& test);

// Paragraphs of prose with marks in it, whose rich-text file has about so many bytes.
[[nodiscard]] RichDocument RichTextSample(std::size_t bytes);

// Answers for the user while it lives: a clock that stands still, boxes that nobody reads, the settings of
// somebody who has filled in everything. The other services stay.
class Surroundings : public MessageBoxService, public Beeper, public Clock {
public:
    Surroundings();
    ~Surroundings() override;
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    Reply Show(const Message& /*message*/) override { return Reply::Yes; }
    void Beep() override {}
    DateTime Now() override { return {2026, 6, 1, 9, 30, 7}; }

private:
    Platform before;
};

} // namespace orvel::bench
