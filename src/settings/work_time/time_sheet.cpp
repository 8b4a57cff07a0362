#include "settings/work_time/time_sheet.h"

#include "settings/work_time/time_texts.h"

#include <algorithm>

namespace kurbo {
namespace {

constexpr GridColour navy{.red = 0, .green = 0, .blue = 128};
constexpr int mostSlots = 4;
constexpr Twips labelWidth{1300};

bool isStart(int column) {
    return column % 2 == 1;
}

QString refused(const QString& demand) {
    return QStringLiteral("不正な入力です。") + demand;
}

void headBands(GridModel& grid) {
    constexpr Twips width{650};
    grid.MergeHeadings(true);
    for (int column = 1; column <= 2 * mostSlots; ++column) {
        grid.ColWidth(column, width);
        grid.ColEditMask(column, QStringLiteral("##:##"));
        grid.ColAlignment(column, GridAlign::Centre);
        grid.TextMatrix(0, column, QStringLiteral("時間帯%1").arg((column + 1) / 2));
        grid.TextMatrix(1, column, isStart(column) ? QStringLiteral("開始") : QStringLiteral("終了"));
    }
}

void headLimits(GridModel& grid) {
    grid.TextMatrix(0, 1, QStringLiteral("上限時間"));
    grid.ColAlignment(1, GridAlign::Centre);
}

} // namespace

int TimeSheet::rowOf(QStringView field) const {
    const auto found = std::ranges::find_if(page.rows, [&](const TimeRow& row) { return field == row.field; });
    return page.firstRow + static_cast<int>(found - page.rows.begin());
}

QString TimeSheet::label(int row) const {
    return QString::fromUtf16(wordsOf(rowAt(row), page, style).label);
}

bool TimeSheet::mayEdit(int row, int column) const {
    return row < rowEnd() && column <= (page.isBands() ? 2 * rowAt(row).slots : 1);
}

QString TimeSheet::refusal(int row, int column, const QString& text) const {
    if (!page.isBands())
        return isLimit(text) ? QString() : refused(QStringLiteral("時間をhh:mm形式で入力して下さい。"));
    const QString start = grid.TextMatrix(row, column - 1);
    if (!isStart(column) && !minuteOfDay(start)) return QStringLiteral("開始時刻が入力されていません。");
    if (!minuteOfDay(text)) return refused(timeDemand());
    return isStart(column) || isBehind(text, start) ? QString() : refused(orderDemand(start, text, isLate(row)));
}

// The engine knows times with all four digits only.
void TimeSheet::edited(int row, int column) {
    if (page.isBands()) grid.TextMatrix(row, column, asBandTime(grid.TextMatrix(row, column)));
    changed = true;
    if (onEdit) onEdit();
}

QString TimeSheet::tip(int row, int /*column*/) const {
    if (!page.isBands() || row < page.firstRow) return {};
    return QString::fromUtf16(wordsOf(rowAt(row), page, style).tip) +
           QStringLiteral("の時間帯を設定します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)");
}

void drawEmpty(TimeSheet& sheet) {
    GridModel& grid = sheet.grid;
    const Undrawn undrawn(grid);
    const int columns = sheet.page.isBands() ? 1 + 2 * mostSlots : 2;
    grid.reset({.rows = sheet.rowEnd(), .columns = columns, .fixedRows = sheet.page.firstRow});
    grid.ColWidth(0, labelWidth);
    sheet.page.isBands() ? headBands(grid) : headLimits(grid);
    for (int row = sheet.page.firstRow; row < sheet.rowEnd(); ++row) {
        const TimeRow& own = sheet.rowAt(row);
        grid.TextMatrix(row, 0, sheet.label(row));
        grid.RowHidden(row, !isOpen(own.shown, sheet.page, sheet.style));
        if (!sheet.page.isBands()) continue;
        for (int column = 1; column < columns; ++column)
            grid.CellBackColor(row, column, sheet.mayEdit(row, column) ? own.colour : navy);
    }
}

} // namespace kurbo
