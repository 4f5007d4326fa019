// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace orvel {

// What the logic of an entry window asks of its view. Controls are known by their names; texts are in the
// program's code page.
class FormView {
public:
    virtual ~FormView() = default;
    [[nodiscard]] virtual std::string Text(std::string_view control) const = 0;
    // Like typing, a new text can bring the control's change event.
    virtual void SetText(std::string_view control, const std::string& text) = 0;
    // Closes the window for good.
    virtual void Unload() = 0;
};

} // namespace orvel
