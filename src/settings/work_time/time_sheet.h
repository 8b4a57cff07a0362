#pragma once

#include "settings/work_time/time_pages.h"

#include <functional>

namespace kurbo {

// One page of the work times at hand: which record it shows, its cells, and what these take.
class TimeSheet final : public GridRules {
  public:
    TimeSheet(const TimePage& timePage, const clsWorkTime& workStyle) : page(timePage), style(workStyle) {
        grid.setRules(this);
    }

    [[nodiscard]] bool mayEdit(int row, int column) const override;
    [[nodiscard]] QString refusal(int row, int column, const QString& text) const override;
    void edited(int row, int column) override;
    [[nodiscard]] QString tip(int row, int column) const override;

    // The description of a row of the grid below the headings.
    [[nodiscard]] const TimeRow& rowAt(int row) const {
        return page.rows[static_cast<std::size_t>(row - page.firstRow)];
    }
    [[nodiscard]] int rowEnd() const { return page.firstRow + static_cast<int>(page.rows.size()); }
    // The row of a field, as its description names it.
    [[nodiscard]] int rowOf(QStringView field) const;
    // Whether the row is one of late work.
    [[nodiscard]] bool isLate(int row) const { return QStringView(rowAt(row).field) == u"Late"; }
    // What the grid of the page calls the row.
    [[nodiscard]] QString label(int row) const;
    // The texts of a slot, from 0.
    [[nodiscard]] QString start(int row, int slot) const { return grid.TextMatrix(row, 2 * slot + 1); }
    [[nodiscard]] QString end(int row, int slot) const { return grid.TextMatrix(row, 2 * slot + 2); }

    const TimePage& page;
    const clsWorkTime& style;
    GridModel grid;
    std::int64_t code = 0; // 0: the reserved record
    QString name;
    bool changed = false;
    std::function<void()> onEdit; // the person has changed a cell
};

// Headings, colours and hidden rows of the page, and no times.
void drawEmpty(TimeSheet& sheet);

} // namespace kurbo
