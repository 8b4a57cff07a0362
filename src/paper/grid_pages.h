#pragma once

#include "paper/paper.h"

#include <QList>

namespace kurbo {

// A grid as it is shown, on paper: visible rows and columns, the words of its lists, "○" for a ticked box. The headings
// stand on every page. A grid that is wider than the sheet is made smaller, and where that isn't enough its columns go
// on over several sheets, each with the fixed ones. Empty rows at the end, kept for typing, are left out.
class GridPages final : public PaperDocument {
  public:
    // `printedOn` is the date in the footer.
    GridPages(const GridModel& grid, QString documentName, QString printedOn);

    [[nodiscard]] QString Caption() const override { return documentName_; }
    [[nodiscard]] QString DocumentName() const override { return documentName_; }
    [[nodiscard]] PaperSize paper() const override { return paper_; }
    [[nodiscard]] int pageCount() const override;
    [[nodiscard]] PaperPage page(int index) const override;

  private:
    struct Cell {
        QString text;
        std::optional<GridColour> fore;
        std::optional<GridColour> fill;
    };
    using Line = std::vector<Cell>;
    struct Column {
        int width = 0;
        GridAlign align = GridAlign::Left;
        bool fixed = false;
    };
    // Columns side by side on one sheet.
    using Band = std::vector<std::size_t>;

    void take(const GridModel& grid, const std::vector<int>& columns);
    void choosePaper();
    void makeBands();
    [[nodiscard]] int fit(int twips) const { return static_cast<int>(static_cast<qint64>(twips) * scale_ / 1000); }
    [[nodiscard]] int roomAcross() const { return paper_.width - 2 * paperMargin; }
    [[nodiscard]] int linesOnPage() const;
    [[nodiscard]] PaperItem placed(const Column& column, int left, int top) const;
    void addHeadings(PaperPage& page, const Band& band, int top) const;
    void addHeading(PaperPage& page, const Band& band, std::size_t row, std::size_t index, int top) const;
    [[nodiscard]] bool areOne(std::size_t row, std::size_t column, std::size_t otherRow, std::size_t otherColumn) const;
    void addLine(PaperPage& page, const Band& band, const Line& line, int top) const;

    QString documentName_;
    QString printedOn_;
    PaperSize paper_ = a4Portrait;
    std::vector<Column> columns_;
    std::vector<Line> headings_;
    std::vector<Line> lines_;
    std::vector<Band> bands_;
    bool merges_ = false;
    // In thousandths.
    int scale_ = 1000;
};

} // namespace kurbo
