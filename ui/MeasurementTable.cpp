// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/MeasurementTable.h"

#include "ui/Keys.h"
#include "ui/TextEdge.h"
#include "ui/Twips.h"
#include "ui/UncaughtError.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QScrollBar>

namespace orvel::ui {

namespace {

// Leaves the headers no margin, so that they fit into the columns.
class TightHeaders : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        return metric == PM_HeaderMargin ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

// A window, menu or list that was in front has gone: the focus is back where it was.
bool IsOnlyBack(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace

int MeasurementModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : MeasurementGrid::kLastRow;
}

int MeasurementModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(grid.Kind().columns.size());
}

QVariant MeasurementModel::data(const QModelIndex& cell, int role) const {
    const bool isFixed = cell.column() == 0;
    switch (role) {
    case Qt::DisplayRole:
        return ToQt(grid.Cell(cell.row() + 1, cell.column()));
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignCenter);
    case Qt::BackgroundRole:
        return isFixed ? QVariant(QPalette().brush(QPalette::Button)) : QVariant();
    case Qt::ForegroundRole:
        return isFixed ? QVariant(QPalette().brush(QPalette::ButtonText)) : QVariant();
    default:
        return {};
    }
}

QVariant MeasurementModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? ToQt(grid.Cell(0, section))
                                                                    : QVariant();
}

Qt::ItemFlags MeasurementModel::flags(const QModelIndex& cell) const {
    // The fixed column can't be gone to.
    return cell.column() == 0 ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

MeasurementTable::MeasurementTable(MeasurementGrid& ofGrid, int rowHeight, QWidget* parent)
    : QTableView(parent), grid(ofGrid), cells(new MeasurementModel(ofGrid, this)) {
    setObjectName("gridTest");
    setAccessibleName("Measurements");
    setModel(cells);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowHeight + 1); // and the line below it
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    auto* style = new TightHeaders;
    style->setParent(this);
    horizontalHeader()->setStyle(style);
    horizontalHeader()->setMinimumHeight(rowHeight);
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; const GridColumn& each : grid.Kind().columns) {
        setColumnWidth(column++, ToPixels(each.width));
        width += ToPixels(each.width);
    }
    setFixedWidth(width);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { Run([this] { grid.gridTest_Scroll(); }); });
    ShowCurrentCell(grid.CurrentRow(), grid.CurrentColumn());
}

void MeasurementTable::ShowCell(int row, int column) {
    const QModelIndex cell = cells->At(row, column);
    Q_EMIT cells->dataChanged(cell, cell);
}

void MeasurementTable::ShowCurrentCell(int row, int column) {
    setCurrentIndex(cells->At(row, column));
}

void MeasurementTable::ShowWholeCell(int row, int column) {
    scrollTo(cells->At(row, column));
}

Area MeasurementTable::CellArea(int row, int column) const {
    const QRect cell = visualRect(cells->At(row, column));
    if (!cell.intersects(viewport()->rect())) {
        return {.width = -1};
    }
    const QPoint corner = viewport()->mapToParent(cell.topLeft());
    return {corner.x(), corner.y(), cell.width(), cell.height()};
}

void MeasurementTable::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    if (!IsOnlyBack(event->reason())) {
        Run([this] { grid.gridTest_GotFocus(); });
    }
}

void MeasurementTable::keyPressEvent(QKeyEvent* event) {
    const int character = HasCommandModifier(*event) ? kNoCharacterTyped : TypedCharacter(*event);
    const bool isEndOfEdit =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape;
    if (event->key() == Qt::Key_Delete || (isEndOfEdit && event->isAutoRepeat())) {
        // No character; and a key that is still held down has done its work in the editor.
        return;
    }
    if (character == kNoCharacterTyped) {
        QTableView::keyPressEvent(event);
    } else {
        Run([&] { grid.gridTest_KeyPress(character); });
    }
}

void MeasurementTable::mousePressEvent(QMouseEvent* event) {
    QTableView::mousePressEvent(event);
    TellPointer(*event);
}

void MeasurementTable::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    TellPointer(*event);
    if (event->button() == Qt::LeftButton) {
        Run([this] { grid.gridTest_DblClick(); });
    }
}

void MeasurementTable::TellPointer(const QMouseEvent& event) {
    const QPoint place = event.position().toPoint();
    grid.gridTest_MouseDown(place.x(), place.y() + horizontalHeader()->height());
}

void MeasurementTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // First, so that the cell that is left takes its text before anything scrolls.
    if (current.isValid()) {
        Run([&] { grid.MakeCurrent(current.row() + 1, current.column()); });
    }
    QTableView::currentChanged(current, previous);
}

void MeasurementTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    Run([this] { grid.gridTest_Resize(); });
}

void MeasurementTable::moveEvent(QMoveEvent* event) {
    QTableView::moveEvent(event);
    Run([this] { grid.gridTest_Resize(); });
}

} // namespace orvel::ui
