#pragma once

#include "screen/grid/grid_delegate.h"
#include "screen/grid/grid_header.h"

#include <QTableView>
#include <QWheelEvent>

namespace kurbo {

class Grid;

// The part of a grid that stays in view: its frozen rows, its frozen columns, or the corner of both. It shows and
// edits; whatever the mouse and the keys do is done by the grid itself.
class GridPane final : public QTableView {
    Q_OBJECT

  public:
    explicit GridPane(Grid& grid);

    [[nodiscard]] GridDelegate& cells() { return *cells_; }
    [[nodiscard]] GridHeader& headings() { return *headings_; }
    // Opens the editor of a cell that the pane shows.
    bool begin(const QModelIndex& index, EditTrigger trigger, QEvent* event);

    void scrollTo(const QModelIndex& index, ScrollHint hint) override;
    void keyboardSearch(const QString& /*search*/) override {}

  protected:
    bool viewportEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void paintEvent(QPaintEvent* event) override;

  private:
    Grid& grid_;
    GridDelegate* cells_;
    GridHeader* headings_;
};

} // namespace kurbo
