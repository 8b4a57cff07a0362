#pragma once

#include "base/guard.h"
#include "screen/grid/grid_clipboard.h"
#include "screen/grid/grid_delegate.h"
#include "screen/grid/grid_header.h"

#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QTableView>

#include <array>

namespace kurbo {

class GridPane;

// A GridModel on the screen. Headings, frozen rows and frozen columns stay in view; column 0 stands at the left edge.
// F2, Enter, a double click, a click on the current cell or typing opens a cell's editor; Enter takes its text and goes
// down, Tab goes on, Esc leaves the cell as it was. Ctrl+C, Ctrl+V and Delete copy, paste and clear.
class Grid final : public QTableView {
    Q_OBJECT

  public:
    explicit Grid(QWidget* parent = nullptr);
    ~Grid() override;

    // The cells, and where refusals are told; both live longer than the grid is used.
    void setGrid(GridModel& grid, const Context& context);
    [[nodiscard]] GridModel* grid() const { return grid_; }
    // Popped up at the right mouse button.
    void setGridMenu(QMenu* mnuGrid) { mnuGrid_ = mnuGrid; }
    // The column that takes the room to the right of the last one; -1 for none.
    void setStretchColumn(int column);

    // The current cell, -1 without one, and the selected cells.
    [[nodiscard]] int Row() const { return currentIndex().row(); }
    [[nodiscard]] int Col() const { return currentIndex().column(); }
    void Select(int row, int column);
    [[nodiscard]] GridSelection GetSelection() const;
    // The cell's place in the grid's own coordinates, also of a cell that stays in view.
    [[nodiscard]] QRect cellRect(int row, int column) const;

    [[nodiscard]] bool isEditing() const;
    [[nodiscard]] QString EditText() const;
    // Takes the open editor's text; false when it is refused and the editor stays open. Every command of a form that
    // works on the cells calls it first.
    bool finishEdit();
    void cancelEdit();

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    // Typing on a cell that can't be edited is only told; it must not lead to another one.
    void keyboardSearch(const QString& /*search*/) override { Q_EMIT EditRefused(Row(), Col()); }

  Q_SIGNALS:
    void AfterRowColChange(int oldRow, int oldCol, int newRow, int newCol);
    // The person types into the open editor; and an editor has closed, whatever has become of its text.
    void ChangeEdit();
    void AfterEdit();
    // The person types on a cell that can't be edited.
    void EditRefused(int row, int column);

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    friend class GridPane;
    enum Place { Top, Left, Corner };

    void dress(QTableView& view, GridHeader& headings, GridDelegate& cells);
    void applyLooks();
    void applyTo(QTableView& view) const;
    [[nodiscard]] int widthOf(int column) const;
    void columnResized(int column, int width);
    void placePanes();
    void restoreCell();
    [[nodiscard]] int frozenHeight() const;
    [[nodiscard]] int frozenWidth() const;
    [[nodiscard]] bool isFrozenRow(int row) const;
    [[nodiscard]] bool isFrozenColumn(int column) const;
    [[nodiscard]] GridPane* paneOf(const QModelIndex& index) const;
    [[nodiscard]] GridDelegate& openCells() const;
    void mouseInPane(GridPane& pane, QMouseEvent& event);
    void showTip(const QTableView& view, const QHelpEvent& event) const;
    void showScrollTip();
    void step(int rows, int columns);

    GridModel* grid_ = nullptr;
    const Context* context_ = nullptr;
    QPointer<QMenu> mnuGrid_;
    GridHeader* headings_;
    GridDelegate* cells_;
    QLabel* cornerHeading_;
    std::array<GridPane*, 3> panes_{};
    QHash<int, int> ownWidths_;
    int stretchColumn_ = -1;
    bool applying_ = false;
    // A double click has opened a list.
    bool listWanted_ = false;
    // Where the cursor stood before the grid was filled anew.
    int keptRow_ = -1;
    int keptColumn_ = -1;
};

} // namespace kurbo
