// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/HtmlReport.h"

#include "core/Text.h"

namespace orvel {

std::string HtmlOfReport(std::string_view text) {
    std::string html = "<HTML><HEAD></HEAD><PRE>";
    html.append(kCrLf).append(kCrLf);
    html.append(text).append(kCrLf);
    html.append(kCrLf).append("</PRE></BODY></HTML>").append(kCrLf);
    return html;
}

} // namespace orvel
