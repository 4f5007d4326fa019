// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CodePage.h"

#include <clocale>
#include <langinfo.h>

namespace orvel {

CodePage CodePage::OfSystem() {
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr) {
        return Windows1252();
    }
    const std::string charset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    std::optional<CodePage> page = Named(charset);
    if (!page) {
        return Windows1252();
    }
    page->isOfSystem = true;
    return *page;
}

} // namespace orvel
