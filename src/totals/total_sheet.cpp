#include "totals/total_sheet.h"

#include "totals/total_grid.h"

#include <algorithm>

namespace kurbo {
namespace {

TotalEntry entryOf(const TotalLine& line) {
    TotalEntry entry{.kind = line.kind, .group = line.group, .staff = {}, .edits = {}};
    if (const TotalRow* const row = line.row) {
        entry.staff = row->staff;
        entry.month = row->month;
        entry.saved = row->saved;
        // A calculated month always names its period.
        entry.hasFigures = row->saved || !row->term.isEmpty();
    }
    return entry;
}

TotalEntry entryOf(const GridModel& image, int row) {
    const auto cell = [&](TotalColumn column) { return image.TextMatrix(row, static_cast<int>(column)); };
    TotalEntry entry{.group = cell(TotalColumn::First), .staff = cell(TotalColumn::Staff), .edits = {}};
    if (!entry.staff.isEmpty()) return entry;
    entry.kind = entry.group.endsWith(subTotalMark()) ? LineKind::SubTotal : LineKind::Total;
    if (entry.kind == LineKind::SubTotal) entry.group.chop(subTotalMark().size());
    return entry;
}

} // namespace

void TotalSheet::show(const Totals& totals) {
    const std::vector<TotalLine> lines = totalLines(totals);
    fillTotalGrid(grid, totals, lines);
    grid.clearRowStatus();
    rows.clear();
    rows.reserve(lines.size());
    for (const TotalLine& line : lines) rows.push_back(entryOf(line));
    byStaff = totals.byStaff;
    plngCountUnit = totals.countUnit;
    changed = blnFileMode = false;
}

const TotalEntry* TotalSheet::at(int row) const {
    return row > 0 && row <= std::ssize(rows) ? &rows[static_cast<std::size_t>(row - 1)] : nullptr;
}

TotalEntry* TotalSheet::at(int row) {
    return const_cast<TotalEntry*>(std::as_const(*this).at(row)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

std::optional<Totals> ShowTotal(const Context& context, Connection& connection, TotalsQuestion& question,
                                TotalSheet& sheet) {
    auto totals = calculateTotals(context, connection, question);
    if (!totals) return {};
    question.byStaff = totals->byStaff;
    sheet.show(*totals);
    return totals;
}

void readImage(TotalSheet& sheet) {
    sheet.rows.clear();
    for (int row = 1; row < sheet.grid.Rows(); ++row) sheet.rows.push_back(entryOf(sheet.grid, row));
    sheet.byStaff = sheet.grid.TextMatrix(0, static_cast<int>(TotalColumn::First)) != u"年月";
}

} // namespace kurbo
