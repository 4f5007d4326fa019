// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <set>
#include <stdexcept>

namespace orvel::cli {

namespace {

// The library's messages begin with an identifier in brackets, which helps nobody here.
std::string WithoutIdentifier(const std::string& what) {
    const std::size_t end = what.find("] ");
    return end == std::string::npos ? what : what.substr(end + 2);
}

// The shortest text that reads back as the same Single. The library's own is sometimes a digit longer.
std::string NumberText(float value) {
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
        text += NumberText(json.get<float>());
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

Json ParseJson(const std::string& text) {
    std::vector<std::set<std::string>> openObjects;
    const auto refuseTwins = [&openObjects](int, Json::parse_event_t event, const Json& parsed) {
        if (event == Json::parse_event_t::object_start) {
            openObjects.emplace_back();
        } else if (event == Json::parse_event_t::object_end) {
            openObjects.pop_back();
        } else if (event == Json::parse_event_t::key) {
            const auto& name = parsed.get_ref<const std::string&>();
            if (!openObjects.back().insert(name).second) {
                throw std::runtime_error("\"" + name + "\" is named twice");
            }
        }
        return true;
    };
    try {
        return Json::parse(text, refuseTwins);
    } catch (const Json::exception& error) {
        throw std::runtime_error(WithoutIdentifier(error.what()));
    }
}

} // namespace orvel::cli
