#include "screen/grid/grid.h"

#include "screen/grid/grid_pane.h"

#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace kurbo {
namespace {

constexpr int points = 10;
constexpr Twips leastHeight{315};

} // namespace

Grid::Grid(QWidget* parent)
    : QTableView(parent),
      headings_(new GridHeader(this)),
      cells_(new GridDelegate(this)),
      cornerHeading_(new QLabel(this)) {
    QFont small = font();
    small.setPointSize(points);
    setFont(small);
    cornerHeading_->setAlignment(Qt::AlignCenter);
    cornerHeading_->setAttribute(Qt::WA_TransparentForMouseEvents);
    setHorizontalHeader(headings_);
    setItemDelegate(cells_);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed | AnyKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (verticalScrollBar()->isSliderDown()) showScrollTip();
    });
}

Grid::~Grid() = default;

void Grid::setGrid(GridModel& grid, const Context& context) {
    grid_ = &grid;
    context_ = &context;
    setModel(&grid);
    for (GridPane*& pane : panes_) {
        if (!pane) pane = new GridPane(*this);
        pane->setModel(&grid);
        pane->setSelectionModel(selectionModel());
        pane->setFont(font());
        dress(*pane, pane->headings(), pane->cells());
    }
    dress(*this, *headings_, *cells_);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, panes_[Top]->horizontalScrollBar(),
            &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, panes_[Left]->verticalScrollBar(), &QScrollBar::setValue);
    connect(&grid, &GridModel::aboutToRefill, this, &Grid::cancelEdit);
    connect(&grid, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        if (!currentIndex().isValid()) return;
        keptRow_ = Row();
        keptColumn_ = Col();
    });
    connect(&grid, &GridModel::looksChanged, this, &Grid::applyLooks);
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&grid, change, this, &Grid::applyLooks);
    applyLooks();
}

void Grid::dress(QTableView& view, GridHeader& headings, GridDelegate& cells) {
    headings.setGrid(grid_);
    cells.setGrid(grid_, fontMetrics(), [this](const QString& text) { context_->prompts.exclaim(text); });
    const int height = std::max(dots(leastHeight, logicalDpiY()), fontMetrics().height() + 2);
    headings.setRowHeight(height);
    connect(&cells, &GridDelegate::goOn, this, &Grid::step);
    connect(&cells, &GridDelegate::typed, this, &Grid::ChangeEdit);
    connect(&cells, &GridDelegate::closeEditor, this, &Grid::AfterEdit);
    headings.setFont(font());
    QHeaderView& side = *view.verticalHeader();
    side.setFont(font());
    // A style sheet takes the font from what the headings are painted on.
    for (QHeaderView* const header : {static_cast<QHeaderView*>(&headings), &side}) header->viewport()->setFont(font());
    side.setSectionResizeMode(QHeaderView::Fixed);
    side.setMinimumSectionSize(height);
    side.setDefaultSectionSize(height);
    side.setHighlightSections(false);
    side.setDefaultAlignment(Qt::AlignCenter);
    connect(&headings, &QHeaderView::sectionResized, this,
            [this](int column, int /*old*/, int width) { columnResized(column, width); });
}

void Grid::setStretchColumn(int column) {
    stretchColumn_ = column;
    applyLooks();
}

void Grid::applyLooks() {
    if (!grid_ || applying_) return;
    const QScopedValueRollback applying(applying_, true);
    applyTo(*this);
    for (GridPane* const pane : panes_) applyTo(*pane);
    placePanes();
    restoreCell();
}

void Grid::applyTo(QTableView& view) const {
    view.verticalHeader()->setVisible(grid_->FixedCols() > 0);
    view.verticalHeader()->setFixedWidth(grid_->Cols() > 0 ? widthOf(0) : 0);
    for (int column = 0; column < grid_->Cols(); ++column) {
        view.setColumnHidden(column, column < grid_->FixedCols() || grid_->ColHidden(column));
        if (!view.isColumnHidden(column)) view.setColumnWidth(column, widthOf(column));
    }
    for (int row = 0; row < grid_->Rows(); ++row) {
        const bool hidden = row < grid_->FixedRows() || grid_->RowHidden(row);
        if (view.isRowHidden(row) != hidden) view.setRowHidden(row, hidden);
    }
    view.horizontalHeader()->viewport()->update();
}

// As the person has drawn it; otherwise as described, and never less than its heading and its list need.
int Grid::widthOf(int column) const {
    constexpr int room = 8;
    if (const auto own = ownWidths_.constFind(column); own != ownWidths_.cend()) return *own;
    int width = dots(grid_->ColWidth(column), logicalDpiX());
    const auto fit = [&](const QString& text) {
        width = std::max(width, fontMetrics().horizontalAdvance(text) + room);
    };
    if (!grid_->MergeHeadings() && column >= grid_->FixedCols()) fit(grid_->TextMatrix(0, column));
    for (const GridList::Entry& entry : grid_->ColComboList(column).entries()) fit(entry.text);
    if (column != stretchColumn_) return width;
    int others = 0;
    for (int other = grid_->FixedCols(); other < grid_->Cols(); ++other)
        if (other != column && !grid_->ColHidden(other)) others += widthOf(other);
    return std::max(width, viewport()->width() - others);
}

void Grid::columnResized(int column, int width) {
    if (applying_ || width == 0) return;
    ownWidths_.insert(column, width);
    applyLooks();
}

bool Grid::isFrozenRow(int row) const {
    return grid_ && row < grid_->FixedRows() + grid_->FrozenRows();
}

bool Grid::isFrozenColumn(int column) const {
    return grid_ && column < grid_->FixedCols() + grid_->FrozenCols();
}

int Grid::frozenHeight() const {
    int height = 0;
    for (int row = 0; grid_ && isFrozenRow(row); ++row) height += rowHeight(row);
    return height;
}

int Grid::frozenWidth() const {
    int width = 0;
    for (int column = 0; grid_ && isFrozenColumn(column); ++column) width += columnWidth(column);
    return width;
}

// The panes lie over the places where the grid shows the same cells while it isn't scrolled.
void Grid::placePanes() {
    if (!panes_[Top]) return;
    const QRect inner = viewport()->geometry();
    const int side = grid_->FixedCols() > 0 ? verticalHeader()->width() : 0;
    const int head = horizontalHeader()->height();
    const bool rows = frozenHeight() > 0;
    const bool columns = frozenWidth() > 0;
    panes_[Top]->horizontalHeader()->setVisible(false);
    panes_[Top]->setGeometry(inner.left() - side, inner.top(), side + inner.width(), frozenHeight());
    panes_[Left]->setGeometry(inner.left() - side, inner.top() - head, side + frozenWidth(), head + inner.height());
    panes_[Corner]->setGeometry(inner.left() - side, inner.top() - head, side + frozenWidth(), head + frozenHeight());
    panes_[Top]->setVisible(rows);
    panes_[Left]->setVisible(columns);
    panes_[Corner]->setVisible(rows && columns);
    for (GridPane* const pane : {panes_[Left], panes_[Top], panes_[Corner]}) pane->raise();
    cornerHeading_->setText(grid_->TextMatrix(0, 0));
    cornerHeading_->setGeometry(inner.left() - side, inner.top() - head, side, head);
    cornerHeading_->setVisible(side > 0);
    cornerHeading_->raise();
    panes_[Top]->horizontalScrollBar()->setValue(horizontalScrollBar()->value());
    panes_[Left]->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

// A new filling leaves the cursor where it stood, and at first on the first cell that can be reached.
void Grid::restoreCell() {
    if (currentIndex().isValid() || grid_->Rows() == 0) return;
    int row = std::clamp(keptRow_, 0, grid_->Rows() - 1);
    int column = std::clamp(keptColumn_, 0, std::max(grid_->Cols() - 1, 0));
    const int first = grid_->FixedRows() + (keptRow_ < 0 ? grid_->FrozenRows() : 0);
    row = std::max(row, first);
    while (row < grid_->Rows() && isRowHidden(row)) ++row;
    while (column < grid_->Cols() && isColumnHidden(column)) ++column;
    if (row < grid_->Rows() && column < grid_->Cols()) Select(row, column);
}

void Grid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (stretchColumn_ >= 0)
        applyLooks();
    else
        placePanes();
}

void Grid::updateGeometries() {
    QTableView::updateGeometries();
    placePanes();
}

void Grid::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const int rowBefore = verticalScrollBar()->value();
    const int columnBefore = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    const QRect cell = visualRect(index);
    if (isFrozenRow(index.row()))
        verticalScrollBar()->setValue(rowBefore);
    else if (cell.top() < frozenHeight() && cell.height() > 0)
        verticalScrollBar()->setValue(verticalScrollBar()->value() -
                                      (frozenHeight() - cell.top() + cell.height() - 1) / cell.height());
    if (isFrozenColumn(index.column()))
        horizontalScrollBar()->setValue(columnBefore);
    else if (cell.left() < frozenWidth())
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - (frozenWidth() - cell.left()));
}

} // namespace kurbo
