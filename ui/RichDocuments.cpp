// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/RichDocuments.h"

#include <QFont>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace orvel::ui {

namespace {

Qt::Alignment QtAlignment(Alignment alignment) {
    switch (alignment) {
    case Alignment::Center:
        return Qt::AlignHCenter;
    case Alignment::Right:
        return Qt::AlignRight;
    case Alignment::Justified:
        return Qt::AlignJustify;
    default:
        return Qt::AlignLeft;
    }
}

Alignment AlignmentOf(Qt::Alignment alignment) {
    if (alignment.testFlag(Qt::AlignHCenter)) {
        return Alignment::Center;
    }
    if (alignment.testFlag(Qt::AlignRight)) {
        return Alignment::Right;
    }
    return alignment.testFlag(Qt::AlignJustify) ? Alignment::Justified : Alignment::Left;
}

std::string FamilyOf(const QTextCharFormat& format, const QFont& fallback) {
    const QStringList families = format.fontFamilies().toStringList();
    return (families.isEmpty() ? fallback.family() : families.front()).toStdString();
}

int HalfPointsOf(const QTextCharFormat& format, const QFont& fallback) {
    const qreal points =
        format.hasProperty(QTextFormat::FontPointSize) ? format.fontPointSize() : fallback.pointSizeF();
    return static_cast<int>(std::lround(2 * points));
}

std::u32string TextOf(QString text) {
    text.remove(QChar::ObjectReplacementCharacter);
    return text.toStdU32String();
}

} // namespace

QTextCharFormat ToQt(const CharacterFormat& format) {
    QTextCharFormat qtFormat;
    if (!format.font.empty()) {
        qtFormat.setFontFamilies({QString::fromStdString(format.font)});
    }
    qtFormat.setFontPointSize(format.halfPoints / 2.0);
    qtFormat.setFontWeight(format.isBold ? QFont::Bold : QFont::Normal);
    qtFormat.setFontItalic(format.isItalic);
    qtFormat.setFontUnderline(format.isUnderlined);
    if (format.color) {
        qtFormat.setForeground(QColor(format.color->red, format.color->green, format.color->blue));
    }
    return qtFormat;
}

CharacterFormat FromQt(const QTextCharFormat& format, const QTextDocument& document) {
    const QFont fallback = document.defaultFont();
    CharacterFormat result{.font = FamilyOf(format, fallback),
                           .halfPoints = HalfPointsOf(format, fallback),
                           .isBold = format.fontWeight() >= QFont::Bold,
                           .isItalic = format.fontItalic(),
                           .isUnderlined = format.fontUnderline(),
                           .color = {}};
    if (format.hasProperty(QTextFormat::ForegroundBrush)) {
        const QColor color = format.foreground().color();
        result.color = Color{static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
                             static_cast<std::uint8_t>(color.blue())};
    }
    return result;
}

void Insert(QTextCursor& cursor, const RichDocument& document) {
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const auto isFirst = [&](const Paragraph& paragraph) {
        return &paragraph == &document.paragraphs.front();
    };
    for (const Paragraph& paragraph : document.paragraphs) {
        QTextBlockFormat block;
        block.setAlignment(QtAlignment(paragraph.alignment));
        if (!isFirst(paragraph)) {
            // The mark of a paragraph has no colour of its own.
            QTextCharFormat mark = cursor.charFormat();
            mark.clearForeground();
            cursor.insertBlock(block, mark);
        } else if (cursor.atBlockStart() && cursor.atBlockEnd()) {
            cursor.setBlockFormat(block);
        }
        for (const TextRun& run : paragraph.runs) {
            cursor.insertText(QString::fromStdU32String(run.text), ToQt(run.format));
        }
    }
    cursor.endEditBlock();
}

RichDocument Extract(const QTextDocument& source, int begin, int end) {
    RichDocument document;
    document.paragraphs.clear();
    for (QTextBlock block = source.findBlock(begin); block.isValid() && block.position() <= end;
         block = block.next()) {
        Paragraph& paragraph = document.paragraphs.emplace_back();
        paragraph.alignment = AlignmentOf(block.blockFormat().alignment());
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextFragment fragment = part.fragment();
            const int first = std::max(begin, fragment.position());
            const int last = std::min(end, fragment.position() + fragment.length());
            if (first < last) {
                paragraph.Append(TextOf(fragment.text().mid(first - fragment.position(), last - first)),
                                 FromQt(fragment.charFormat(), source));
            }
        }
    }
    return document;
}

} // namespace orvel::ui
