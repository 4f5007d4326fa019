// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/Texts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <array>

namespace orvel::monkey {

namespace {

constexpr int kMegabyte = 1'000'000;

const std::array<QString, 14> kNumbers = {
    "1", "25", "100", "7.5", ".5", "5.", "12.5.1", ".", "0", "007", "99999999999", "1e5", "-3", "1,234.5",
};

// Line ends, characters that no code page has, half of one, what other programs take for commands.
const std::array<QString, 14> kTexts = {
    "Ida Lund",
    "Choose Soil Type",
    "3 - Loam",
    QString::fromUtf8("Gr\u00FC\u00DFe & Caf\u00E9"),
    QString::fromUtf8("\u65E5\u672C\u8A9E"),
    QString::fromUtf8("\U0001F4A7\u0301"),
    QString::fromUtf8("\u05E9\u05DC\u05D5\u05DD\u200F\u202E"),
    QString(QChar(0xD83D)) + "half",
    QString::fromUtf8("1\u00A0234\u2028next\u2029third"),
    "<b>bold</b> &amp; %n%s%1",
    "{\\rtf1 \\b x}",
    "\t \b\x1b\x7f",
    "one\ntwo\r\nthree\rfour\n\n",
    "",
};

QString WithNul() {
    return QString("before") + QChar(QChar::Null) + "after";
}

QString Long(Dice& dice) {
    return QString(dice.Between(20, 4000), QChar('a' + dice.Below(26)));
}

QString Huge(Dice& dice) {
    const QString part = dice.OneOf(std::array<QString, 3>{"word ", "4711", "a line\r\n"});
    return part.repeated(kMegabyte / static_cast<int>(part.size()));
}

QByteArray Rtf(Dice& dice) {
    return dice.OneOf(std::array<QByteArray, 5>{
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Courier New;}}\\f0\\fs18 plain \\b bold\\b0\\par\\i next\\i0}",
        "{\\rtf1{{{{{\\b never closed",
        "no rich text at all",
        "{\\rtf1\\ansi\\u26085?\\u-10179?\\u-9110?\\bin99999 x}",
        "{\\rtf1{\\pict\\pngblip 89504e47}{\\field{\\*\\fldinst HYPERLINK \"file:///x\"}{\\fldrslt link}}}",
    });
}

} // namespace

QString TextToType(Dice& dice) {
    return dice.IsIn100(60) ? dice.OneOf(kNumbers) : dice.OneOf(kTexts);
}

std::string FillClipboard(Dice& dice) {
    struct Content {
        std::size_t weight;
        const char* name;
        void (*fill)(Dice& dice, QMimeData& data);
    };
    static constexpr std::array<Content, 11> kContents = {{
        {2, "nothing", [](Dice&, QMimeData&) {}},
        {6, "a number", [](Dice& dice, QMimeData& data) { data.setText(dice.OneOf(kNumbers)); }},
        {6, "a text", [](Dice& dice, QMimeData& data) { data.setText(dice.OneOf(kTexts)); }},
        {1, "an empty text", [](Dice&, QMimeData& data) { data.setText(""); }},
        {1, "a NUL", [](Dice&, QMimeData& data) { data.setText(WithNul()); }},
        {4, "a long text", [](Dice& dice, QMimeData& data) { data.setText(Long(dice)); }},
        {1, "a megabyte", [](Dice& dice, QMimeData& data) { data.setText(Huge(dice)); }},
        {3, "rich text", [](Dice& dice, QMimeData& data) { data.setData("text/rtf", Rtf(dice)); }},
        {1, "markup", [](Dice&, QMimeData& data) { data.setHtml("<h1>x</h1><img src='file:///x'>"); }},
        {1, "a picture",
         [](Dice&, QMimeData& data) { data.setImageData(QImage(8, 8, QImage::Format_RGB32)); }},
        {1, "addresses",
         [](Dice&, QMimeData& data) {
             data.setUrls({QUrl("file:///x"), QUrl("x:y")});
         }},
    }};
    const Content& content = dice.OneByWeight(kContents);
    auto* data = new QMimeData;
    content.fill(dice, *data);
    QGuiApplication::clipboard()->setMimeData(data);
    return content.name;
}

} // namespace orvel::monkey
