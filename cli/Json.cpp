// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"

#include "core/Unicode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <ios>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace orvel::cli {

namespace {

constexpr std::size_t kDeepest = 64;
constexpr std::size_t kMostShown = 60;

// The beginning of a text that is too long to be shown whole, cut between two characters.
std::string Shortened(std::string_view utf8) {
    std::string_view rest = utf8;
    for (std::size_t shown = 0; shown < kMostShown && !rest.empty(); ++shown) {
        (void)TakeUtf8(rest);
    }
    return std::string{utf8.substr(0, utf8.size() - rest.size())}.append(rest.empty() ? "" : "...");
}

// What the library says of a text that is no JSON, without the identifier in brackets that it begins with and
// with the token that it stopped at shortened.
std::string SyntaxComplaint(std::string what, const std::string& token) {
    if (const std::size_t end = what.find("] "); end != std::string::npos) {
        what.erase(0, end + 2);
    }
    if (const std::size_t shown = what.find("'" + token + "'"); shown != std::string::npos) {
        what.replace(shown + 1, token.size(), Shortened(token));
    }
    return what;
}

// The shortest text that reads back as the same Single. The library's own is sometimes a digit longer.
std::string ShortestText(float value) {
    if (value == 0 && std::signbit(value)) {
        return "-0.0"; // "-0" would be read as a whole number, which has no such zero
    }
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), result.ptr};
}

// A member or entry on a line of its own when the text is to be indented.
class Layout {
public:
    explicit Layout(bool isIndented) : indents(isIndented) {}

    void Open(std::string& text, char bracket) {
        text += bracket;
        ++depth;
        isFirst = true;
    }
    void Next(std::string& text) {
        text += isFirst ? "" : ",";
        isFirst = false;
        BreakLine(text);
    }
    void Close(std::string& text, char bracket) {
        --depth;
        if (!isFirst) {
            BreakLine(text);
        }
        text += bracket;
        isFirst = false;
    }
    [[nodiscard]] const char* BehindName() const { return indents ? ": " : ":"; }

private:
    void BreakLine(std::string& text) const {
        if (indents) {
            text.append("\n").append(2 * depth, ' ');
        }
    }

    bool indents;
    bool isFirst = true;
    std::size_t depth = 0;
};

void Write(const Json& json, Layout& layout, std::string& text) {
    if (json.is_object()) {
        layout.Open(text, '{');
        for (const auto& [name, value] : json.items()) {
            layout.Next(text);
            text.append(Json(name).dump()).append(layout.BehindName());
            Write(value, layout, text);
        }
        layout.Close(text, '}');
    } else if (json.is_array()) {
        layout.Open(text, '[');
        for (const Json& value : json) {
            layout.Next(text);
            Write(value, layout, text);
        }
        layout.Close(text, ']');
    } else if (json.is_number_float()) {
        text += ShortestText(json.get<float>());
    } else {
        // A file's name may hold bytes that are no UTF-8; they are replaced.
        text += json.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}

std::string Written(const Json& json, bool isIndented) {
    Layout layout(isIndented);
    std::string text;
    Write(json, layout, text);
    return text + "\n";
}

// Puts the document together from what the parser reads, one value after the other and without recursion.
class DocumentBuilder final : public nlohmann::json_sax<Json> {
public:
    // `readSoFar` is the stream that the parser reads the text from.
    DocumentBuilder(const std::string& source, std::istringstream& readSoFar)
        : text(source), stream(readSoFar) {}

    [[nodiscard]] Json Take() { return std::move(document); }

    bool null() override { return Add(nullptr); }

    bool boolean(bool value) override { return Add(value); }

    // Only numbers with a sign come here, so a 0 was written as "-0".
    bool number_integer(std::int64_t value) override { return value == 0 ? Add(-0.0F) : Add(value); }

    bool number_unsigned(std::uint64_t value) override { return Add(value); }

    bool number_float(float value, const std::string& /*digits*/) override { return Add(value); }

    bool string(std::string& value) override { return Add(std::move(value)); }

    bool binary(Json::binary_t& value) override { return Add(std::move(value)); }

    bool start_object(std::size_t /*size*/) override { return Open(Json::object()); }

    bool key(std::string& name) override {
        Level& level = open.back();
        if (!level.names.insert(name).second) {
            Fail(BytesRead(), Quoted(name) + " is named twice");
        }
        level.name = std::move(name);
        return true;
    }

    bool end_object() override { return Close(); }

    bool start_array(std::size_t /*size*/) override { return Open(Json::array()); }

    bool end_array() override { return Close(); }

    bool parse_error(std::size_t position, const std::string& token,
                     const nlohmann::detail::exception& error) override {
        if (dynamic_cast<const Json::out_of_range*>(&error) != nullptr) {
            const std::string member = open.empty() ? std::string{} : Quoted(Place()) + " is ";
            Fail(position, member + "a number that no Single holds: " + Shortened(token));
        }
        throw std::runtime_error(SyntaxComplaint(error.what(), token));
    }

private:
    // An object or array that has not ended yet.
    struct Level {
        Json value;
        std::string name;            // of the member that is being read
        std::set<std::string> names; // of all its members so far
    };

    template <class Value>
    bool Add(Value&& value) {
        if (open.empty()) {
            document = std::forward<Value>(value);
            return true;
        }
        Level& level = open.back();
        if (level.value.is_array()) {
            level.value.push_back(std::forward<Value>(value));
        } else {
            // The map's own ways to insert look through all members for the name.
            level.value.get_ref<Json::object_t&>().Container::emplace_back(level.name,
                                                                           std::forward<Value>(value));
        }
        return true;
    }

    bool Open(Json&& container) {
        if (open.size() == kDeepest) {
            Fail(BytesRead(), "more than " + std::to_string(kDeepest) + " objects and arrays in one another");
        }
        open.push_back({std::move(container), {}, {}});
        return true;
    }

    bool Close() {
        Json value = std::move(open.back().value);
        open.pop_back();
        return Add(std::move(value));
    }

    // The name of the value that is being read: "Gauges[3].Volume".
    [[nodiscard]] std::string Place() const {
        std::string place;
        for (const Level& level : open) {
            if (level.value.is_array()) {
                place.append("[").append(std::to_string(level.value.size() + 1)).append("]");
            } else {
                place.append(place.empty() ? "" : ".").append(level.name);
            }
        }
        return place;
    }

    [[nodiscard]] std::size_t BytesRead() {
        return static_cast<std::size_t>(stream.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in));
    }

    [[noreturn]] void Fail(std::size_t bytesRead, const std::string& reason) const {
        const std::string_view before = std::string_view{text}.substr(0, bytesRead);
        const auto lines = std::ranges::count(before, '\n');
        const std::size_t lastEnd = before.rfind('\n');
        const std::size_t column =
            lastEnd == std::string_view::npos ? before.size() : before.size() - lastEnd - 1;
        throw std::runtime_error("error at line " + std::to_string(lines + 1) + ", column " +
                                 std::to_string(column) + ": " + reason);
    }

    const std::string& text;
    std::istringstream& stream;
    std::vector<Level> open;
    Json document;
};

} // namespace

Json JsonSingle(float value) {
    if (std::isfinite(value)) {
        return value;
    }
    std::array<char, 11> bits{};
    (void)std::snprintf(bits.data(), bits.size(), "0x%08x", std::bit_cast<std::uint32_t>(value));
    return bits.data();
}

std::string JsonDocument(const Json& json) {
    return Written(json, true);
}

std::string JsonLine(const Json& json) {
    return Written(json, false);
}

std::string Quoted(std::string_view utf8) {
    return Json(Shortened(utf8)).dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json ParseJson(const std::string& text) {
    std::istringstream stream(text);
    DocumentBuilder builder(text, stream);
    (void)Json::sax_parse(stream, &builder);
    return builder.Take();
}

} // namespace orvel::cli
