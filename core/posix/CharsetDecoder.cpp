// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CharsetDecoder.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <iconv.h>

namespace orvel {

class CharsetDecoder::Conversion {
public:
    explicit Conversion(const std::string& charset) : descriptor(iconv_open("UTF-32LE", charset.c_str())) {}

    ~Conversion() {
        if (IsOpen()) {
            iconv_close(descriptor);
        }
    }

    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    [[nodiscard]] bool IsOpen() const {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the failure value that iconv_open is documented with.
        return descriptor != reinterpret_cast<iconv_t>(-1);
    }

    [[nodiscard]] iconv_t Get() const { return descriptor; }

private:
    iconv_t descriptor;
};

CharsetDecoder::CharsetDecoder(const std::string& charset)
    : conversion(std::make_unique<Conversion>(charset)) {
    if (!conversion->IsOpen()) {
        conversion.reset();
    }
}

CharsetDecoder::~CharsetDecoder() = default;

std::size_t CharsetDecoder::Decode(std::string_view bytes, std::u32string& text) {
    hasStoppedInside = false;
    if (!conversion) {
        return 0;
    }
    std::array<char, 4096> output; // NOLINT(cppcoreguidelines-pro-type-member-init): iconv fills it
    char* in = const_cast<char*>(bytes.data()); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    std::size_t inLeft = bytes.size();
    // Converts as much as there is room for; answers why it stopped.
    const auto convert = [&](char** source) {
        char* out = output.data();
        std::size_t outLeft = output.size();
        const bool hasFailed =
            iconv(conversion->Get(), source, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1);
        const int reason = hasFailed ? errno : 0;
        const std::size_t length = output.size() - outLeft;
        const std::size_t before = text.size();
        text.resize(before + length / sizeof(char32_t));
        std::memcpy(text.data() + before, output.data(), length);
        return reason;
    };
    iconv(conversion->Get(), nullptr, nullptr, nullptr, nullptr);
    int reason = 0;
    do {
        reason = convert(&in);
    } while (reason == E2BIG);
    hasStoppedInside = reason == EINVAL;
    // Some sets hold a character back, in case an accent follows.
    (void)convert(nullptr);
    return bytes.size() - inLeft;
}

} // namespace orvel
