// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RecordLayout.h"

#include <span>

namespace orvel::fuzz {

// The fields of the record that an input is: the target says them, so that the fuzzer's changes can mean
// something.
[[nodiscard]] std::span<const Field> FieldsOfInput();

} // namespace orvel::fuzz
