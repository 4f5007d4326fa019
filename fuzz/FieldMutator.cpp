// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/FieldMutator.h"

#include "fuzz/RecordFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <string_view>

// Most of a test file's bytes are comments and blanks, of which arbitrary changes say nothing new. Here an
// input is mostly changed a field at a time.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace orvel::fuzz {

namespace {

// What somebody might type for a number, or had better not.
constexpr std::array<std::string_view, 28> kEntries = {
    "",      "0",     "1",     "2",     "5",    "10",    "17", "100",   "300",
    "150.5", "0.5",   "-3",    "1e3",   "1e38", "1e-44", ".",  "1.2.3", "1,5",
    "1.234", "12,34", "32767", "32768", "abc",  "  7",   "S",  "T",     "99999999999999999999",
    "4 Loam"};

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr std::array<float, 18> kSingles = {0,     1,    -0.0F,  100,      112.5F,    80,
                                            125,   -5,   0.004F, 1e-30F,   1e30F,     1e-45F,
                                            3e38F, 1e6F, 99.5F,  16777216, kInfinity, kNaN};

class Change {
public:
    Change(std::string& inputChanged, unsigned seed) : input(inputChanged), random(seed) {}

    void Do() {
        const auto fields = FieldsOfInput();
        // The measurements are one field, but most of what there is.
        const auto gauges = std::ranges::find(fields, FieldKind::Gauges, &Field::kind);
        const Field& field = Below(3) == 0 ? *gauges : fields[Below(fields.size())];
        if (input.size() < field.offset + field.width) {
            input = RecordOf(input, fields).substr(0, field.offset + field.width);
        }
        if (field.kind == FieldKind::Text) {
            ChangeText(field);
        } else if (field.kind == FieldKind::Gauges) {
            ChangeSingles(field);
        } else {
            ChangeBytes(field.offset, field.width);
        }
    }

private:
    std::size_t Below(std::size_t bound) { return random() % bound; }

    void ChangeText(const Field& field) {
        if (Below(3) == 0) {
            ChangeBytes(field.offset, field.width);
            return;
        }
        std::string entry{kEntries[Below(kEntries.size())]};
        entry.resize(field.width, ' ');
        input.replace(field.offset, field.width, entry);
    }

    // Sets the same number of some measurements in a row, or takes one from elsewhere.
    void ChangeSingles(const Field& field) {
        const std::size_t width = field.width / 301;
        const std::size_t first = Below(Below(2) == 0 ? 20 : 301);
        const std::size_t count = 1 + Below(Below(2) == 0 ? 3 : 301 - first);
        const std::size_t place = Below(width / sizeof(float)) * sizeof(float);
        float number = kSingles[Below(kSingles.size())];
        if (Below(4) == 0) {
            std::memcpy(&number,
                        input.data() + field.offset + Below(field.width / sizeof(float)) * sizeof(float),
                        sizeof number);
        }
        for (std::size_t i = first; i < std::min<std::size_t>(first + count, 301); ++i) {
            std::memcpy(input.data() + field.offset + i * width + place, &number, sizeof number);
        }
    }

    void ChangeBytes(std::size_t offset, std::size_t width) {
        LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(input.data()) + offset, width, width);
    }

    std::string& input;
    std::minstd_rand random;
};

} // namespace

} // namespace orvel::fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    constexpr unsigned kAnyBytesOneIn = 8;
    if (seed % kAnyBytesOneIn == 0) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::string input(reinterpret_cast<const char*>(data), size);
    orvel::fuzz::Change(input, seed).Do();
    const std::size_t length = std::min(input.size(), maxSize);
    std::memcpy(data, input.data(), length);
    return length;
}
