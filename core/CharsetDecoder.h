// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace orvel {

// The system's conversion from a character set to Unicode.
class CharsetDecoder {
public:
    // The set's name as iconv knows it ("CP1252", "ISO-8859-1", "GBK"), on every system. One that the system
    // lacks takes no byte.
    explicit CharsetDecoder(const std::string& charset);
    ~CharsetDecoder();
    CharsetDecoder(const CharsetDecoder&) = delete;
    CharsetDecoder& operator=(const CharsetDecoder&) = delete;

    // Appends what the bytes stand for, up to the first that is wrong or begins a character that they don't
    // end. Every call begins anew. Returns how many bytes were taken.
    std::size_t Decode(std::string_view bytes, std::u32string& text);

    // Whether the last call stopped at a character that its bytes don't end.
    [[nodiscard]] bool HasStoppedInside() const { return hasStoppedInside; }

private:
    class Conversion;
    std::unique_ptr<Conversion> conversion; // none when the system lacks the set
    bool hasStoppedInside = false;
};

} // namespace orvel
