// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FormView.h"
#include "entry/GridView.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

// What the logic of a data window asks of its view.
class DataView : public FormView, public GridView {
public:
    // The entries of a combo box; its text is another matter.
    virtual void SetList(std::string_view control, const std::vector<std::string>& entries) = 0;
    // Of a check box or an option button; nothing when it is greyed.
    [[nodiscard]] virtual std::optional<bool> IsChecked(std::string_view control) const = 0;
    virtual void SetChecked(std::string_view control, bool isChecked) = 0;

    // A control's text as UTF-8, with the characters that the code page lacks.
    [[nodiscard]] virtual std::string TypedText(std::string_view control) const = 0;
    virtual void SetTypedText(std::string_view control, const std::string& text) = 0;
    // Brings the logic's KeepEntries once, after what has changed is on the screen.
    virtual void PostKeepEntries() = 0;
    // Tells the user something without taking the focus, until the text is empty.
    virtual void ShowNotice(const std::string& text) = 0;
    // Brings the grid's page in front.
    virtual void ShowGridPage() = 0;
};

} // namespace orvel
