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
};

} // namespace orvel
