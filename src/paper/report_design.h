#pragma once

#include "paper/report.h"
#include "store/readers.h"

#include <span>

namespace kurbo {

// A field of a report's records, and the column of paper that shows it.
struct ReportColumn {
    const char16_t* field = nullptr;
    int bytes = 0;
    // Of the grid that it is filled from; -1 for none.
    int column = -1;
    // 0: not printed.
    int width = 0;
    GridAlign align = GridAlign::Right;
};

[[nodiscard]] std::vector<ReportRecords::Field> fieldsOf(std::span<const ReportColumn> columns);
// All printed columns together.
[[nodiscard]] int widthOf(std::span<const ReportColumn> columns);
// Those of them that are hidden.
[[nodiscard]] int hiddenWidth(std::span<const ReportColumn> columns, const std::vector<bool>& ColHidden);

// How a row of controls looks; its place counts from the section's corner.
struct RowLook {
    int top = 0;
    int height = 0;
    int fontSize = 180;
    bool bold = false;
    std::optional<GridColour> fill{};
    unsigned edges = AllEdges;
};

// One control a printed column, side by side, each bound to its field and named "txt" and the field.
void addFields(ReportSection& section, std::span<const ReportColumn> columns, const RowLook& look);
// The same with captions, one a column, named by `prefix` and the field.
void addCaptions(ReportSection& section, std::span<const ReportColumn> columns, const RowLook& look, QStringView prefix,
                 const QStringList& captions);
// A control by itself.
[[nodiscard]] ReportControl label(const QString& name, const QString& text, int left, int width, const RowLook& look);

// The title in bold at the section's top, and the heading line below it; the section is then `titleHeight` high.
inline constexpr int titleHeight = 780;
void addTitle(ReportSection& section, const QString& title, const QString& heading, int width);

// Every second record is shaded, so that the eye keeps its line.
[[nodiscard]] std::optional<GridColour> zebra(int record);
inline constexpr GridColour headingPaper{228, 235, 244};
inline constexpr GridColour sumPaper{236, 241, 247};

// The period, then whose: "start～end    部課：name (code)    氏名：name (code)". Whoever isn't chosen is left out.
[[nodiscard]] QString reportHeading(const QString& period, const CodeName& section, const CodeName& staff);
// Product and "ﾄﾞｷｭﾒﾝﾄ", the document name of all reports.
[[nodiscard]] QString reportDocumentName();

// The name of a report's file: title, whose, and the period without its slashes. A period from the first to the last
// day of one month of work, or of one month, is called by the month in which it ends.
[[nodiscard]] QString reportFileName(const QString& title, const QString& code, const QString& start,
                                     const QString& end);

// By column, whether it is hidden; only those from `first` to `last` can be.
[[nodiscard]] std::vector<bool> hiddenColumns(const GridModel& grid, int first, int last);
// The cells of a grid's row that the columns are filled from.
[[nodiscard]] QStringList cellsOf(const GridModel& grid, int row, std::span<const ReportColumn> columns);

} // namespace kurbo
