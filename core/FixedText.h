// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvel {

// A text field of exactly N characters, left-aligned and padded on the right with blanks, as it lies in
// memory and in the file alike. A new field is all blanks, which means empty.
template <std::size_t N>
class FixedText {
public:
    FixedText() { characters.fill(' '); }

    // Stores a text: cut to its first N characters, padded with blanks to N.
    FixedText& operator=(std::string_view text) {
        const std::size_t length = std::min(text.size(), N);
        const auto rest = std::copy_n(text.begin(), length, characters.begin());
        std::fill(rest, characters.end(), ' ');
        return *this;
    }

    // All N characters, padding included.
    [[nodiscard]] std::string_view Whole() const { return {characters.data(), N}; }

    // The text without surrounding blanks.
    [[nodiscard]] std::string_view Trimmed() const { return Trim(Whole()); }

    [[nodiscard]] bool IsBlank() const { return Trimmed().empty(); }

    // The blank field rule: whoever tests or prints a field trims it and writes the trimmed text back.
    // Returns the trimmed text, which stays valid until the field changes.
    std::string_view TrimInPlace() {
        *this = std::string{Trimmed()};
        return TrimRight(Whole());
    }

    static constexpr std::size_t Width() { return N; }

private:
    std::array<char, N> characters;
};

} // namespace orvel
