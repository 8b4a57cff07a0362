#include "screen/grid/grid_pane.h"

#include "screen/grid/grid.h"

#include <QMouseEvent>
#include <QPainter>

namespace kurbo {

GridPane::GridPane(Grid& grid)
    : QTableView(&grid), grid_(grid), cells_(new GridDelegate(this)), headings_(new GridHeader(this)) {
    setHorizontalHeader(headings_);
    setItemDelegate(cells_);
    setFocusProxy(&grid);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrap(false);
    setAutoScroll(false);
    hide();
}

bool GridPane::begin(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    return QTableView::edit(index, trigger, event);
}

// The grid scrolls, and takes its panes along.
void GridPane::scrollTo(const QModelIndex& /*index*/, ScrollHint /*hint*/) {}

bool GridPane::viewportEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        grid_.mouseInPane(*this, *static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::ToolTip:
        grid_.showTip(*this, *static_cast<QHelpEvent*>(event));
        return true;
    case QEvent::ContextMenu:
        event->ignore();
        return false;
    default:
        return QTableView::viewportEvent(event);
    }
}

// The border of what stays in view.
void GridPane::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(viewport()->rect().adjusted(-1, -1, -1, -1));
}

} // namespace kurbo
