// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Json.h"
#include "core/Records.h"

// A test record as JSON and back, byte for byte.
//
//   { "kind": "centerPivot" | "solidSet",
//     NAME: text without trailing blanks,              for every text field
//     NAME: true | false | number,                     for every flag (a number when neither -1 nor 0)
//     NAME: number | "0x" and 8 hexadecimal digits,    for every Single (the bits of one that is not finite)
//     "Gauges": [ { NAME: Single, ... }, ... ],        entries 1 to 300; trailing ones of zero bytes left out
//     "Raw": { "Gauge0": hex, "Reserved": hex, "Tail": hex } }    each only when it is not all zero
namespace orvel::cli {

template <class Test>
[[nodiscard]] Json DumpTest(const Test& test);

// Puts what the JSON names into `test` and leaves the rest as it is. Raises std::runtime_error that names the
// member for an unknown name, a text too long for its field, a character that the code page lacks, a wrong
// type, more than 300 gauges or a disagreeing kind; `test` is then half filled.
template <class Test>
void BuildTest(const Json& json, Test& test);

} // namespace orvel::cli
