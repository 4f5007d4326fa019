// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/RecordJson.h"

#include "core/CodePage.h"
#include "core/ProgramState.h"
#include "core/RecordLayout.h"
#include "core/Text.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace orvel::cli {

namespace {

using Bytes = std::span<std::byte>;
using ConstBytes = std::span<const std::byte>;

constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kBitsPrefix = "0x";

// What the tables say of one type of test.
template <class Test>
struct Shape;

template <>
struct Shape<CenterPivotTest> {
    static constexpr const char* kKind = kCenterPivot;
    static constexpr std::span<const Field> kFields = kCenterPivotFields;
    static constexpr std::span<const Field> kGaugeFields = kPivotGaugeFields;
};

template <>
struct Shape<SolidSetTest> {
    static constexpr const char* kKind = kSolidSet;
    static constexpr std::span<const Field> kFields = kSolidSetFields;
    static constexpr std::span<const Field> kGaugeFields = kSolidSetGaugeFields;
};

[[noreturn]] void Refuse(std::string_view name, const std::string& reason) {
    throw std::runtime_error(Quoted(name) + " " + reason);
}

template <class Value>
Value FromBytes(ConstBytes bytes) {
    Value value{};
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

template <class Value>
void ToBytes(Bytes bytes, const Value& value) {
    std::memcpy(bytes.data(), &value, sizeof value);
}

std::string HexText(ConstBytes bytes) {
    std::string text;
    for (const std::byte byte : bytes) {
        const auto value = std::to_integer<std::size_t>(byte);
        text += kHexDigits[value / 16];
        text += kHexDigits[value % 16];
    }
    return text;
}

void FillFromHex(std::string_view name, Bytes bytes, const Json& json) {
    const std::string expected =
        "must be a text of " + std::to_string(bytes.size() * 2) + " hexadecimal digits";
    if (!json.is_string()) {
        Refuse(name, expected);
    }
    const auto& text = json.get_ref<const std::string&>();
    if (text.size() != bytes.size() * 2) {
        Refuse(name, expected);
    }
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char* begin = text.data() + 2 * i;
        unsigned char value = 0;
        if (std::from_chars(begin, begin + 2, value, 16).ptr != begin + 2) {
            Refuse(name, expected);
        }
        bytes[i] = std::byte{value};
    }
}

Json DumpText(ConstBytes bytes) {
    return ToUtf8(TrimRight(TextOf(bytes)));
}

void BuildText(std::string_view name, Bytes bytes, const Json& json) {
    if (!json.is_string()) {
        Refuse(name, "must be a text");
    }
    const auto& utf8 = json.get_ref<const std::string&>();
    // One byte of the code page for each character; those that only go on with one don't count.
    const auto length = std::ranges::count_if(
        utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
    if (std::cmp_greater(length, bytes.size())) {
        Refuse(name, "has " + std::to_string(length) + " characters, but its field holds " +
                         std::to_string(bytes.size()));
    }
    if (const auto lacking = FirstLackingCharacter(utf8)) {
        Refuse(name, "has a character that the code page lacks: " + *lacking);
    }
    PutText(bytes, FromUtf8(utf8));
}

Json DumpFlag(ConstBytes bytes) {
    const auto number = FromBytes<std::int16_t>(bytes);
    if (number == Flag::kTrue || number == Flag::kFalse) {
        return number == Flag::kTrue;
    }
    return number;
}

void BuildFlag(std::string_view name, Bytes bytes, const Json& json) {
    if (json.is_boolean()) {
        ToBytes(bytes, json.get<bool>() ? Flag::kTrue : Flag::kFalse);
        return;
    }
    const bool isInRange = json.is_number_unsigned()
                               ? json.get<std::uint64_t>() <= INT16_MAX
                               : json.is_number_integer() && json.get<std::int64_t>() >= INT16_MIN;
    if (!isInRange) {
        Refuse(name, "must be true, false or a 16-bit number");
    }
    ToBytes(bytes, json.get<std::int16_t>());
}

void BuildSingle(std::string_view name, Bytes bytes, const Json& json) {
    if (json.is_number()) {
        ToBytes(bytes, json.get<float>());
        return;
    }
    const std::string text = json.is_string() ? json.get<std::string>() : std::string{};
    std::uint32_t bits = 0;
    const char* end = text.data() + text.size();
    if (!text.starts_with(kBitsPrefix) || text.size() != kBitsPrefix.size() + 8 ||
        std::from_chars(text.data() + kBitsPrefix.size(), end, bits, 16).ptr != end) {
        Refuse(name, "must be a number, or \"0x\" and the 8 hexadecimal digits of its bits");
    }
    ToBytes(bytes, bits);
}

// The fields that have a JSON form of their own; the others are in "Gauges" and "Raw".
bool HasOwnForm(FieldKind kind) {
    return kind == FieldKind::Text || kind == FieldKind::Flag || kind == FieldKind::Single;
}

Json DumpField(ConstBytes bytes, FieldKind kind) {
    switch (kind) {
    case FieldKind::Text:
        return DumpText(bytes);
    case FieldKind::Flag:
        return DumpFlag(bytes);
    default:
        return JsonSingle(FromBytes<float>(bytes));
    }
}

void BuildField(std::string_view name, Bytes bytes, FieldKind kind, const Json& json) {
    switch (kind) {
    case FieldKind::Text:
        BuildText(name, bytes, json);
        break;
    case FieldKind::Flag:
        BuildFlag(name, bytes, json);
        break;
    default:
        BuildSingle(name, bytes, json);
    }
}

// The field of that name that has a JSON form of its own; none when the name is unknown.
const Field* FindField(std::span<const Field> fields, std::string_view name) {
    const auto found = std::ranges::find_if(
        fields, [name](const Field& field) { return field.name == name && HasOwnForm(field.kind); });
    return found == fields.end() ? nullptr : &*found;
}

Json DumpFields(ConstBytes record, std::span<const Field> fields) {
    Json json = Json::object();
    for (const Field& field : fields) {
        if (HasOwnForm(field.kind)) {
            json[std::string{field.name}] = DumpField(record.subspan(field.offset, field.width), field.kind);
        }
    }
    return json;
}

// The bytes that no name covers, under the names that "Raw" has for them.
template <class Test>
auto RawParts(Test& test) {
    struct Part {
        std::string_view name;
        decltype(FieldBytes(test, Field{})) bytes;
    };
    std::vector<Part> parts;
    parts.push_back({"Gauge0", AsBytes(test.Gauges[0])});
    for (const Field& field : Shape<std::remove_const_t<Test>>::kFields) {
        if (field.kind == FieldKind::Word || field.kind == FieldKind::Bytes) {
            parts.push_back({field.name, FieldBytes(test, field)});
        }
    }
    return parts;
}

template <class Gauge>
void BuildGauges(const Json& json, std::span<const Field> fields, MeasurementList<Gauge>& gauges) {
    if (!json.is_array()) {
        Refuse("Gauges", "must be an array");
    }
    if (json.size() > MeasurementList<Gauge>::kLast) {
        Refuse("Gauges", "has " + std::to_string(json.size()) + " entries, but a test holds 300");
    }
    int index = 0;
    for (const Json& entry : json) {
        ++index;
        const std::string place = "Gauges[" + std::to_string(index) + "]";
        if (!entry.is_object()) {
            Refuse(place, "must be an object");
        }
        for (const auto& [name, value] : entry.items()) {
            const Field* field = FindField(fields, name);
            std::string member = place;
            member.append(".").append(name);
            if (field == nullptr) {
                Refuse(member, "is no field of a measurement");
            }
            BuildField(member, FieldBytes(gauges[index], *field), field->kind, value);
        }
    }
}

template <class Test>
void BuildRaw(const Json& json, Test& test) {
    if (!json.is_object()) {
        Refuse("Raw", "must be an object");
    }
    const auto parts = RawParts(test);
    for (const auto& [name, value] : json.items()) {
        const std::string member = "Raw." + name;
        const auto part =
            std::ranges::find_if(parts, [&name = name](const auto& each) { return each.name == name; });
        if (part == parts.end()) {
            Refuse(member, "is no part of the record");
        }
        FillFromHex(member, part->bytes, value);
    }
}

} // namespace

template <class Test>
Json DumpTest(const Test& test) {
    Json json = {{"kind", Shape<Test>::kKind}};
    json.update(DumpFields(AsBytes(test), Shape<Test>::kFields));
    Json gauges = Json::array();
    const int last = LastFilledEntry(test.Gauges);
    for (int i = 1; i <= last; ++i) {
        gauges.push_back(DumpFields(AsBytes(test.Gauges[i]), Shape<Test>::kGaugeFields));
    }
    json["Gauges"] = std::move(gauges);
    for (const auto& part : RawParts(test)) {
        if (!AreAllZero(part.bytes)) {
            json["Raw"][std::string{part.name}] = HexText(part.bytes);
        }
    }
    return json;
}

template <class Test>
void BuildTest(const Json& json, Test& test) {
    if (!json.is_object()) {
        throw std::runtime_error("a test must be an object");
    }
    for (const auto& [name, value] : json.items()) {
        if (name == "kind") {
            if (value != Shape<Test>::kKind) {
                Refuse(name, "must be \"" + std::string{Shape<Test>::kKind} + "\" here");
            }
        } else if (name == "Gauges") {
            BuildGauges(value, Shape<Test>::kGaugeFields, test.Gauges);
        } else if (name == "Raw") {
            BuildRaw(value, test);
        } else if (const Field* field = FindField(Shape<Test>::kFields, name)) {
            BuildField(name, FieldBytes(test, *field), field->kind, value);
        } else {
            Refuse(name, "is no field of the record");
        }
    }
}

template Json DumpTest<CenterPivotTest>(const CenterPivotTest& test);
template Json DumpTest<SolidSetTest>(const SolidSetTest& test);
template void BuildTest<CenterPivotTest>(const Json& json, CenterPivotTest& test);
template void BuildTest<SolidSetTest>(const Json& json, SolidSetTest& test);

} // namespace orvel::cli
