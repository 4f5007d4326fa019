// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/RichTextEdit.h"

#include "core/CodePage.h"
#include "core/SafeFile.h"
#include "core/Text.h"
#include "report/ReportFont.h"
#include "report/RtfReader.h"
#include "report/RtfWriter.h"
#include "ui/PageContext.h"
#include "ui/RichDocuments.h"
#include "ui/TextEdge.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QMimeData>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace orvel::ui {

namespace {

constexpr const char* kRtf = "text/rtf";

class WaitingCursor {
public:
    WaitingCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitingCursor() { QApplication::restoreOverrideCursor(); }
    WaitingCursor(const WaitingCursor&) = delete;
    WaitingCursor& operator=(const WaitingCursor&) = delete;
};

// Every line end ends a paragraph; a control character other than tab, which no document holds, is a blank,
// so that columns stay below each other.
QString ParagraphsOf(std::string_view text) {
    QString paragraphs = ToQt(text);
    paragraphs.replace("\r\n", QString(QChar::ParagraphSeparator));
    for (QChar& character : paragraphs) {
        if (character == '\r' || character == '\n') {
            character = QChar::ParagraphSeparator;
        } else if (character < ' ' && character != '\t') {
            character = ' ';
        }
    }
    return paragraphs;
}

// The RTF on the clipboard, under any of its names.
QByteArray RtfOf(const QMimeData& source) {
    for (const char* name : {kRtf, "application/rtf", "text/richtext"}) {
        if (source.hasFormat(name)) {
            return source.data(name);
        }
    }
    return {};
}

bool IsAllInFont(const QTextDocument& document, const QTextCharFormat& font) {
    const auto isIn = [&font](const QTextCharFormat& format) {
        return format.fontFamilies() == font.fontFamilies();
    };
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!isIn(block.charFormat())) {
            return false;
        }
        for (auto each = block.begin(); !each.atEnd(); ++each) {
            if (!isIn(each.fragment().charFormat())) {
                return false;
            }
        }
    }
    return true;
}

std::string_view BytesOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

RichTextEdit::RichTextEdit(QWidget* parent) : QTextEdit(parent) {
    QFont font(kReportFont);
    font.setPointSize(kReportFontPoints);
    setFont(font);
    LookLikePaper();
    ShowDocument(NewDocument());
    // The documents of word processors do not speak HTML.
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(this, &QTextEdit::currentCharFormatChanged, this, [this](const QTextCharFormat& format) {
        if (!isOwnChange) {
            caretFormat = format;
        }
    });
}

std::string RichTextEdit::Text() const {
    return Current().text;
}

void RichTextEdit::SetText(std::string_view text) {
    const QScopedValueRollback own(isOwnChange, true);
    caretFormat.clearForeground();
    caretFormat.setFontUnderline(false);
    auto fresh = NewDocument();
    QTextCursor cursor(fresh.get());
    cursor.setBlockCharFormat(caretFormat);
    cursor.insertText(ParagraphsOf(text), caretFormat);
    Put(std::move(fresh));
    content = Content{std::string{text}, TextPositions(text)};
    UseFormat(caretFormat);
}

void RichTextEdit::Select(std::size_t start, std::size_t length) {
    const QScopedValueRollback own(isOwnChange, true);
    const Content& current = Current();
    start = std::min(start, current.text.size());
    length = std::min(length, current.text.size() - start);
    QTextCursor cursor(&Target());
    cursor.setPosition(current.positions.ToDocument(start));
    cursor.setPosition(current.positions.ToDocument(start + length), QTextCursor::KeepAnchor);
    if (heldBack) {
        heldSelection = cursor;
    } else {
        setTextCursor(cursor);
    }
    ShowBeginningIfSelected();
    if (length == 0) {
        UseFormat(current.text.empty() ? caretFormat : cursor.charFormat());
    }
}

void RichTextEdit::ShowBeginningIfSelected() {
    if (textCursor().selectionStart() == 0) {
        // With the margin above it.
        verticalScrollBar()->setValue(0);
    }
}

std::size_t RichTextEdit::SelectionStart() const {
    return Current().positions.ToText(Selection().selectionStart());
}

std::size_t RichTextEdit::SelectionLength() const {
    return Current().positions.ToText(Selection().selectionEnd()) - SelectionStart();
}

bool RichTextEdit::IsSelectionBold() const {
    return HasAllOfSelection(&CharacterFormat::isBold);
}

void RichTextEdit::SetSelectionBold(bool isBold) {
    QTextCharFormat change;
    change.setFontWeight(isBold ? QFont::Bold : QFont::Normal);
    ChangeSelection(change);
}

bool RichTextEdit::IsSelectionItalic() const {
    return HasAllOfSelection(&CharacterFormat::isItalic);
}

void RichTextEdit::SetSelectionItalic(bool isItalic) {
    QTextCharFormat change;
    change.setFontItalic(isItalic);
    ChangeSelection(change);
}

void RichTextEdit::SetSelectionColor(Color color) {
    QTextCharFormat change;
    change.setForeground(QColor(color.red, color.green, color.blue));
    ChangeSelection(change);
}

void RichTextEdit::SetSelectionFontName(const std::string& name) {
    QTextCharFormat change;
    change.setFontFamilies({ToQt(name)});
    ChangeSelection(change);
}

void RichTextEdit::SetSelectionFontSize(int points) {
    QTextCharFormat change;
    change.setFontPointSize(points);
    ChangeSelection(change);
}

void RichTextEdit::SetFontName(const std::string& name) {
    const QScopedValueRollback own(isOwnChange, true);
    QTextCharFormat change;
    change.setFontFamilies({ToQt(name)});
    if (!IsAllInFont(Target(), change)) {
        QTextCursor everything(&Target());
        everything.select(QTextCursor::Document);
        everything.mergeCharFormat(change);
    }
    Target().clearUndoRedoStacks();
    caretFormat.merge(change);
    UseFormat(caretFormat);
}

void RichTextEdit::SetReadOnly(bool isReadOnly) {
    setReadOnly(isReadOnly);
    if (isReadOnly) {
        // To be copied from, with the keyboard too.
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
}

void RichTextEdit::Load(const std::filesystem::path& file) {
    const WaitingCursor waiting;
    const RichDocument loaded = ReadRtf(ReadFile(file));
    auto fresh = NewDocument();
    QTextCursor cursor(fresh.get());
    Insert(cursor, loaded);
    Put(std::move(fresh));
    content.reset();
    if (!Target().isEmpty()) {
        UseFormat(QTextCursor(&Target()).charFormat());
    }
}

void RichTextEdit::Save(const std::filesystem::path& file) const {
    const WaitingCursor waiting;
    // Not by a cursor, which would have the whole document laid out.
    SaveRtf(file, Extract(Target(), 0, Target().characterCount() - 1));
}

void RichTextEdit::ShowHeldBack() {
    isHoldingBack = false;
    if (heldBack) {
        const QScopedValueRollback own(isOwnChange, true);
        ShowDocument(std::move(heldBack));
        setTextCursor(std::exchange(heldSelection, {}));
        ShowBeginningIfSelected();
        UseFormat(caretFormat);
    }
}

std::unique_ptr<QTextDocument> RichTextEdit::NewDocument() const {
    auto fresh = std::make_unique<QTextDocument>();
    fresh->setDefaultFont(font());
    fresh->setUndoRedoEnabled(false);
    return fresh;
}

void RichTextEdit::Put(std::unique_ptr<QTextDocument> fresh) {
    if (isHoldingBack) {
        heldSelection = QTextCursor(fresh.get());
        heldBack = std::move(fresh);
    } else {
        ShowDocument(std::move(fresh));
    }
}

void RichTextEdit::ShowDocument(std::unique_ptr<QTextDocument> fresh) {
    const QScopedValueRollback own(isOwnChange, true);
    // The first one is the toolkit's, which deletes it.
    const QPointer<QTextDocument> old = document();
    fresh->setParent(this);
    setDocument(fresh.release());
    delete old;
    // From now on: no undo leads back to half a report.
    document()->setUndoRedoEnabled(true);
    connect(document(), &QTextDocument::contentsChange, this, [this] {
        if (!isOwnChange) {
            content.reset();
        }
    });
}

const RichTextEdit::Content& RichTextEdit::Current() const {
    if (!content) {
        content = ReadDocument();
    }
    return *content;
}

RichTextEdit::Content RichTextEdit::ReadDocument() const {
    Content read;
    for (QTextBlock block = Target().begin(); block.isValid(); block = block.next()) {
        if (block != Target().begin()) {
            read.text += kCrLf;
            read.positions.Add(kCrLf.size(), 1);
        }
        const QString text = block.text();
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] == QChar::LineSeparator) {
                read.text += kCrLf;
                read.positions.Add(kCrLf.size(), 1);
            } else if (text[i].isHighSurrogate() && i + 1 < text.size()) {
                read.text += FromQt(text.mid(i, 2));
                read.positions.Add(1, 2);
                ++i;
            } else {
                read.text += CurrentCodePage().FromUnicode(text[i].unicode()).value_or('?');
                read.positions.AddPlain(1);
            }
        }
    }
    return read;
}

RichDocument RichTextEdit::Selected() const {
    const QTextCursor cursor = Selection();
    return Extract(Target(), cursor.selectionStart(), cursor.selectionEnd());
}

bool RichTextEdit::HasAllOfSelection(bool CharacterFormat::*property) const {
    bool isEmpty = true;
    for (const Paragraph& paragraph : Selected().paragraphs) {
        for (const TextRun& run : paragraph.runs) {
            if (!(run.format.*property)) {
                return false;
            }
            isEmpty = false;
        }
    }
    return !isEmpty || ui::FromQt(caretFormat, Target()).*property;
}

void RichTextEdit::ChangeSelection(const QTextCharFormat& change) {
    const QScopedValueRollback own(isOwnChange, true);
    QTextCursor cursor = Selection();
    if (cursor.hasSelection()) {
        cursor.mergeCharFormat(change);
        // The user undoes the user's changes.
        Target().clearUndoRedoStacks();
    } else {
        caretFormat.merge(change);
        UseFormat(caretFormat);
    }
}

void RichTextEdit::UseFormat(const QTextCharFormat& format) {
    const QScopedValueRollback own(isOwnChange, true);
    caretFormat = format;
    if (!heldBack && !textCursor().hasSelection()) {
        setCurrentCharFormat(format);
    }
}

void RichTextEdit::resizeEvent(QResizeEvent* event) {
    QTextEdit::resizeEvent(event);
    WrapLines();
}

void RichTextEdit::WrapLines() {
    // Some letters are drawn a little wider than the font's metrics say: room for one more makes up for it.
    const double line =
        QFontMetricsF(document()->defaultFont()).horizontalAdvance(QString(kReportColumns + 1, ' '));
    const int report = static_cast<int>(std::ceil(line + 2 * document()->documentMargin()));
    if (viewport()->width() < report) {
        setLineWrapMode(FixedPixelWidth);
        setLineWrapColumnOrWidth(report);
    } else {
        setLineWrapMode(WidgetWidth);
    }
}

void RichTextEdit::changeEvent(QEvent* event) {
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        LookLikePaper();
    }
}

void RichTextEdit::LookLikePaper() {
    // Where the theme has paper there is nothing to do, and the toolkit draws the scroll bars of all windows
    // with the pictures it has.
    if (palette().color(QPalette::Base) != Qt::white || palette().color(QPalette::Text) != Qt::black) {
        QPalette paper;
        paper.setColor(QPalette::Base, Qt::white);
        paper.setColor(QPalette::Text, Qt::black);
        setPalette(paper);
    }
}

void RichTextEdit::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        // Zooming would change the fonts of the document.
        event->ignore();
        return;
    }
    QTextEdit::wheelEvent(event);
}

QMimeData* RichTextEdit::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    const RichDocument selected = Selected();
    data->setText(QString::fromStdU32String(PlainText(selected)));
    data->setData(kRtf, QByteArray::fromStdString(WriteRtf(selected)));
    return data;
}

bool RichTextEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() || !RtfOf(*source).isEmpty();
}

void RichTextEdit::insertFromMimeData(const QMimeData* source) {
    if (!canInsertFromMimeData(source)) {
        // The toolkit can't paste from an empty clipboard.
        return;
    }
    const QByteArray rtf = RtfOf(*source);
    if (rtf.isEmpty()) {
        QTextEdit::insertFromMimeData(source);
        return;
    }
    QTextCursor cursor = textCursor();
    Insert(cursor, ReadRtf(BytesOf(rtf)));
    setTextCursor(cursor);
    ensureCursorVisible();
}

std::size_t RichTextEdit::DrawRange(const FormatRange& range) {
    constexpr double kTwipsPerInch = 1440;
    const auto& context = dynamic_cast<const PageContext&>(*range.context);
    const auto& target = dynamic_cast<const PageContext&>(*range.targetContext);
    const double scaleX = target.device->logicalDpiX() / kTwipsPerInch;
    const double scaleY = target.device->logicalDpiY() / kTwipsPerInch;
    if (drawing == nullptr) {
        drawing.reset(Target().clone());
        drawing->setUndoRedoEnabled(false);
        drawing->documentLayout()->setPaintDevice(target.device);
        drawing->setDocumentMargin(0);
        drawing->setPageSize(QSizeF((range.drawing.right - range.drawing.left) * scaleX, -1));
    }
    const TextPositions& positions = Current().positions;
    const int first = positions.ToDocument(static_cast<std::size_t>(range.first));
    const double left = range.drawing.left * scaleX;
    const double top = range.drawing.top * scaleY;
    const double height = (range.drawing.bottom - range.drawing.top) * scaleY;
    // Where the page begins in the whole of the document.
    std::optional<double> pageBegin;
    for (QTextBlock block = drawing->findBlock(first); block.isValid(); block = block.next()) {
        const QPointF blockCorner = drawing->documentLayout()->blockBoundingRect(block).topLeft();
        const QTextLayout& lines = *block.layout();
        for (int i = 0; i < lines.lineCount(); ++i) {
            const QTextLine line = lines.lineAt(i);
            const int position = block.position() + line.textStart();
            if (position < first) {
                continue;
            }
            const double lineTop = blockCorner.y() + line.y();
            if (!pageBegin) {
                pageBegin = lineTop;
            } else if (lineTop + line.height() - *pageBegin > height) {
                return positions.ToText(position);
            }
            if (context.painter != nullptr) {
                line.draw(context.painter,
                          QPointF(left + blockCorner.x(), top + blockCorner.y() - *pageBegin));
            }
        }
    }
    return Current().text.size();
}

} // namespace orvel::ui
