#include "paper/grid_pages.h"

#include <algorithm>

namespace kurbo {
namespace {

constexpr int titleHeight = 420;
constexpr int titleSize = 240;
constexpr int lineHeight = 290;
constexpr int textSize = 180;
// In thousandths: smaller can't be read.
constexpr int leastScale = 650;
constexpr GridColour headingPaper{232, 238, 246};
constexpr GridColour closedPaper{205, 208, 212};

int brightness(GridColour colour) {
    return (colour.red * 299 + colour.green * 587 + colour.blue * 114) / 1000;
}

// Large dark surfaces cost ink and swallow what is written on them.
std::optional<GridColour> printable(std::optional<GridColour> paper) {
    constexpr int dark = 110;
    return paper && brightness(*paper) < dark ? closedPaper : paper;
}

// Light letters were meant for dark paper.
std::optional<GridColour> readable(std::optional<GridColour> ink) {
    constexpr int light = 190;
    return ink && brightness(*ink) > light ? std::optional<GridColour>() : ink;
}

std::vector<int> visibleColumns(const GridModel& grid) {
    std::vector<int> columns;
    for (int column = 0; column < grid.Cols(); ++column)
        if (!grid.ColHidden(column) && grid.ColWidth(column) > Twips()) columns.push_back(column);
    return columns;
}

QString shownText(const GridModel& grid, int row, int column) {
    const QModelIndex cell = grid.index(row, column);
    const QVariant box = cell.data(Qt::CheckStateRole);
    if (box.isValid()) return box.toInt() == Qt::Checked ? QStringLiteral("○") : QString();
    return cell.data(Qt::DisplayRole).toString();
}

bool isNumber(const QString& text) {
    return std::ranges::all_of(text, [](QChar sign) { return sign.isDigit(); });
}

// A row that is kept for typing holds at most its running number.
bool isBlank(const GridModel& grid, int row) {
    for (int column = 0; column < grid.Cols(); ++column) {
        const QString text = shownText(grid, row, column);
        if (column < grid.FixedCols() ? !isNumber(text) : !text.isEmpty()) return false;
    }
    return true;
}

int rowsUsed(const GridModel& grid) {
    int rows = grid.Rows();
    while (rows > grid.FixedRows() && isBlank(grid, rows - 1)) --rows;
    return rows;
}

} // namespace

GridPages::GridPages(const GridModel& grid, QString documentName, QString printedOn)
    : documentName_(std::move(documentName)), printedOn_(std::move(printedOn)), merges_(grid.MergeHeadings()) {
    take(grid, visibleColumns(grid));
    choosePaper();
    makeBands();
}

void GridPages::take(const GridModel& grid, const std::vector<int>& columns) {
    for (const int column : columns)
        columns_.push_back({grid.ColWidth(column).count(), grid.ColAlignment(column), column < grid.FixedCols()});
    for (int row = 0; row < rowsUsed(grid); ++row) {
        if (grid.RowHidden(row)) continue;
        Line line;
        for (const int column : columns)
            line.push_back({shownText(grid, row, column), readable(grid.CellForeColor(row, column)),
                            printable(grid.CellBackColor(row, column))});
        (row < grid.FixedRows() ? headings_ : lines_).push_back(std::move(line));
    }
}

// Upright where it fits, else lying, else smaller.
void GridPages::choosePaper() {
    int width = 0;
    for (const Column& column : columns_) width += column.width;
    if (width <= roomAcross()) return;
    paper_ = a4Landscape;
    if (width > roomAcross()) scale_ = std::max(leastScale, static_cast<int>(qint64{1000} * roomAcross() / width));
}

void GridPages::makeBands() {
    Band fixed;
    int fixedWidth = 0;
    for (std::size_t column = 0; column < columns_.size() && columns_[column].fixed; ++column) {
        fixed.push_back(column);
        fixedWidth += fit(columns_[column].width);
    }
    Band band = fixed;
    int width = fixedWidth;
    for (std::size_t column = fixed.size(); column < columns_.size(); ++column) {
        const int own = fit(columns_[column].width);
        if (width + own > roomAcross() && band.size() > fixed.size()) {
            bands_.push_back(std::exchange(band, fixed));
            width = fixedWidth;
        }
        band.push_back(column);
        width += own;
    }
    bands_.push_back(band);
}

int GridPages::linesOnPage() const {
    const int headings = static_cast<int>(headings_.size()) * fit(lineHeight);
    const int room = footerTop(paper_) - paperMargin - titleHeight - headings;
    return std::max(1, room / fit(lineHeight));
}

int GridPages::pageCount() const {
    const int lines = std::max(1, static_cast<int>(lines_.size()));
    return static_cast<int>(bands_.size()) * ((lines + linesOnPage() - 1) / linesOnPage());
}

PaperPage GridPages::page(int index) const {
    const auto bands = static_cast<int>(bands_.size());
    const Band& band = bands_[static_cast<std::size_t>(index % bands)];
    PaperPage page;
    page.push_back({.left = paperMargin,
                    .top = paperMargin,
                    .width = roomAcross(),
                    .height = titleHeight - 100,
                    .text = documentName_,
                    .fontSize = titleSize,
                    .bold = true});
    int top = paperMargin + titleHeight;
    addHeadings(page, band, top);
    top += static_cast<int>(headings_.size()) * fit(lineHeight);
    const std::size_t first = static_cast<std::size_t>(index / bands) * static_cast<std::size_t>(linesOnPage());
    const std::size_t end = std::min(lines_.size(), first + static_cast<std::size_t>(linesOnPage()));
    for (std::size_t i = first; i < end; ++i) {
        addLine(page, band, lines_[i], top);
        top += fit(lineHeight);
    }
    addFooter(page, paper_, index, pageCount(), printedOn_);
    return page;
}

PaperItem GridPages::placed(const Column& column, int left, int top) const {
    return {.left = left,
            .top = top,
            .width = fit(column.width),
            .height = fit(lineHeight),
            .align = column.align,
            .fontSize = fit(textSize),
            .edges = AllEdges};
}

void GridPages::addHeadings(PaperPage& page, const Band& band, int top) const {
    for (std::size_t row = 0; row < headings_.size(); ++row)
        for (std::size_t index = 0; index < band.size(); ++index) addHeading(page, band, row, index, top);
}

bool GridPages::areOne(std::size_t row, std::size_t column, std::size_t otherRow, std::size_t otherColumn) const {
    const QString& text = headings_[row][column].text;
    return merges_ && !text.isEmpty() && text == headings_[otherRow][otherColumn].text;
}

// Merged cells are drawn once, as large as they are together, by their first one.
void GridPages::addHeading(PaperPage& page, const Band& band, std::size_t row, std::size_t index, int top) const {
    const std::size_t column = band[index];
    if (index > 0 && areOne(row, column, row, band[index - 1])) return;
    if (row > 0 && areOne(row, column, row - 1, column)) return;
    int left = paperMargin;
    for (std::size_t before = 0; before < index; ++before) left += fit(columns_[band[before]].width);
    PaperItem item = placed(columns_[column], left, top + static_cast<int>(row) * fit(lineHeight));
    for (std::size_t next = index + 1; next < band.size() && areOne(row, column, row, band[next]); ++next)
        item.width += fit(columns_[band[next]].width);
    for (std::size_t below = row + 1; below < headings_.size() && areOne(row, column, below, column); ++below)
        item.height += fit(lineHeight);
    item.text = headings_[row][column].text;
    item.align = GridAlign::Centre;
    item.fill = headings_[row][column].fill.value_or(headingPaper);
    page.push_back(item);
}

void GridPages::addLine(PaperPage& page, const Band& band, const Line& line, int top) const {
    int left = paperMargin;
    for (const std::size_t column : band) {
        PaperItem item = placed(columns_[column], left, top);
        item.text = line[column].text;
        item.fore = line[column].fore.value_or(GridColour{});
        item.fill = line[column].fill;
        if (columns_[column].fixed && !item.fill) item.fill = headingPaper;
        left += item.width;
        page.push_back(std::move(item));
    }
}

} // namespace kurbo
