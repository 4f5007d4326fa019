// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/TextEdge.h"

#include "core/CodePage.h"

#include <QFile>

namespace orvel::ui {

QString ToQt(std::string_view text) {
    return QString::fromStdString(ToUtf8(text));
}

std::string FromQt(const QString& text) {
    return FromUtf8(text.toStdString());
}

QString PathToQt(const std::filesystem::path& path) {
#ifdef Q_OS_WIN
    return QString::fromStdWString(path.native());
#else
    return QFile::decodeName(path.c_str());
#endif
}

std::filesystem::path PathFromQt(const QString& path) {
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

} // namespace orvel::ui
