// What the mouse and the keys do in a grid.

#include "screen/fields/fields.h"
#include "screen/grid/grid.h"
#include "screen/grid/grid_pane.h"
#include "screen/grid/vfg_copy.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace kurbo {

void Grid::Select(int row, int column) {
    setCurrentIndex(model()->index(row, column));
}

GridSelection Grid::GetSelection() const {
    const QItemSelection selected = selectionModel() ? selectionModel()->selection() : QItemSelection();
    if (selected.isEmpty()) return {Row(), Col(), Row(), Col()};
    const QItemSelectionRange& range = selected.first();
    return {range.top(), range.left(), range.bottom(), range.right()};
}

GridPane* Grid::paneOf(const QModelIndex& index) const {
    const bool row = isFrozenRow(index.row());
    const bool column = isFrozenColumn(index.column());
    if (!row && !column) return nullptr;
    return panes_[row && column ? Corner : row ? Top : Left];
}

QRect Grid::cellRect(int row, int column) const {
    const QModelIndex index = model()->index(row, column);
    const QTableView* const view = paneOf(index);
    const QTableView* const shown = view ? view : this;
    const QRect cell = shown->visualRect(index);
    return {shown->viewport()->mapTo(this, cell.topLeft()), cell.size()};
}

GridDelegate& Grid::openCells() const {
    for (GridPane* const pane : panes_)
        if (pane && pane->cells().isEditing()) return pane->cells();
    return *cells_;
}

bool Grid::isEditing() const {
    return openCells().isEditing();
}

QString Grid::EditText() const {
    return openCells().EditText();
}

bool Grid::finishEdit() {
    return openCells().finish();
}

void Grid::cancelEdit() {
    openCells().cancel();
}

bool Grid::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    if (!index.isValid()) return false;
    const bool click = trigger == DoubleClicked || trigger == SelectedClicked;
    const GridRules* const rules = grid_->rules();
    if (click && rules && !rules->opensByClick(index.row(), index.column())) return false;
    GridPane* const pane = paneOf(index);
    const bool begun = pane ? pane->begin(index, trigger, event) : QTableView::edit(index, trigger, event);
    listWanted_ = begun && trigger == DoubleClicked;
    return begun;
}

// To the cell so many seen cells away, or the last on the way there.
void Grid::step(int rows, int columns) {
    int row = Row();
    int column = Col();
    const auto walk = [](int& at, int cells, int end, const auto& isHidden) {
        const int one = cells < 0 ? -1 : 1;
        for (int next = at + one; cells != 0 && next >= 0 && next < end; next += one) {
            if (isHidden(next)) continue;
            at = next;
            cells -= one;
        }
    };
    walk(row, rows, grid_->Rows(), [this](int at) { return isRowHidden(at); });
    walk(column, columns, grid_->Cols(), [this](int at) { return isColumnHidden(at); });
    Select(row, column);
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.isValid()) Q_EMIT AfterRowColChange(previous.row(), previous.column(), current.row(), current.column());
}

void Grid::keyPressEvent(QKeyEvent* event) {
    const bool control = event->modifiers() == Qt::ControlModifier;
    const int key = event->key();
    if (control && key == Qt::Key_C) {
        QString raw;
        VfgCopy(*this, false, raw);
    } else if (control && key == Qt::Key_V) {
        VfgPaste(*context_, *this, {});
    } else if (event->modifiers() == Qt::NoModifier && key == Qt::Key_Delete) {
        clearCells(*grid_, GetSelection());
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (!edit(currentIndex(), EditKeyPressed, nullptr)) step(1, 0);
    } else if (key == Qt::Key_Escape || key == Qt::Key_F1) {
        event->ignore();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void Grid::mousePressEvent(QMouseEvent* event) {
    if (finishEdit()) QTableView::mousePressEvent(event);
}

// A list that drops down while the button is pressed would be closed by its release.
void Grid::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (std::exchange(listWanted_, false)) openCells().openList();
}

// The grid acts as if the cell had been clicked in its own place.
void Grid::mouseInPane(GridPane& pane, QMouseEvent& event) {
    QPointF place = viewport()->mapFromGlobal(event.globalPosition());
    if (const QModelIndex under = pane.indexAt(event.position().toPoint()); under.isValid())
        place = visualRect(under).topLeft() + (event.position() - pane.visualRect(under).topLeft());
    QMouseEvent own(event.type(), place, event.globalPosition(), event.button(), event.buttons(), event.modifiers());
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        setFocus();
        mousePressEvent(&own);
        break;
    case QEvent::MouseButtonDblClick:
        mouseDoubleClickEvent(&own);
        break;
    case QEvent::MouseButtonRelease:
        mouseReleaseEvent(&own);
        break;
    default:
        mouseMoveEvent(&own);
    }
}

void Grid::contextMenuEvent(QContextMenuEvent* event) {
    if (mnuGrid_ && finishEdit()) mnuGrid_->popup(event->globalPos());
}

bool Grid::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
    showTip(*this, *static_cast<QHelpEvent*>(event));
    return true;
}

// A text that doesn't fit its cell is told above the tip.
void Grid::showTip(const QTableView& view, const QHelpEvent& event) const {
    constexpr int margins = 6;
    const QModelIndex cell = view.indexAt(event.pos());
    if (!cell.isValid() || !grid_->rules()) return QToolTip::hideText();
    QStringList text;
    const QString shown = grid_->CellText(cell.row(), cell.column());
    if (fontMetrics().horizontalAdvance(shown) > view.columnWidth(cell.column()) - margins) text.append(shown);
    if (const QString tip = grid_->rules()->tip(cell.row(), cell.column()); !tip.isEmpty()) text.append(tip);
    QToolTip::showText(event.globalPos(), text.join(u'\n'), view.viewport(), view.visualRect(cell));
}

void Grid::showScrollTip() {
    const int row = rowAt(frozenHeight());
    const QString text = row >= 0 && grid_->rules() ? grid_->rules()->scrollTip(row) : QString();
    if (text.isEmpty()) return;
    QToolTip::showText(QCursor::pos(), text, this);
}

} // namespace kurbo
