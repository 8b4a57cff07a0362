#include "card/outings/go_out_sheet.h"

#include "base/field_tests.h"
#include "base/numbers.h"
#include "screen/grid/grid_format.h"

#include <QLocale>

#include <array>
#include <cmath>

namespace kurbo {
namespace {

constexpr int emptyRows = 20;

QString moneyFormat() {
    return QStringLiteral("$#,###");
}

void describeColumn(GridModel& grid, GoOutColumn column, Twips width, const QString& format) {
    grid.ColWidth(static_cast<int>(column), width);
    grid.ColFormat(static_cast<int>(column), format);
}

void describeColumns(GridModel& grid) {
    const QString time = QStringLiteral("hh:nn");
    describeColumn(grid, GoOutColumn::No, Twips(500), {});
    describeColumn(grid, GoOutColumn::Out, Twips(900), time);
    describeColumn(grid, GoOutColumn::In, Twips(900), time);
    describeColumn(grid, GoOutColumn::Destination, Twips(2000), {});
    describeColumn(grid, GoOutColumn::Expense, Twips(900), moneyFormat());
    for (const auto column : {GoOutColumn::Id, GoOutColumn::Order}) grid.ColHidden(static_cast<int>(column), true);
    grid.ColAlignment(static_cast<int>(GoOutColumn::Destination), GridAlign::Left);
    grid.ColDataType(static_cast<int>(GoOutColumn::Expense), GridType::Currency);
}

void numberRows(GridModel& grid) {
    for (int row = firstGoOut; row < grid.Rows(); ++row)
        grid.TextMatrix(row, static_cast<int>(GoOutColumn::No), QString::number(row - 1));
}

} // namespace

bool GoOutSheet::isBlank(int row) const {
    return text(row, GoOutColumn::Out).isEmpty() && text(row, GoOutColumn::In).isEmpty() &&
           text(row, GoOutColumn::Destination).isEmpty() && text(row, GoOutColumn::Expense).isEmpty();
}

void GoOutSheet::touch() {
    changed = true;
    if (onEdit) onEdit();
}

void drawGoOut(GoOutSheet& sheet, const QList<QStringList>& outings) {
    GridModel& grid = sheet.grid;
    const Undrawn undrawn(grid);
    const int filled = firstGoOut + static_cast<int>(outings.size());
    grid.reset({.rows = filled + emptyRows, .columns = goOutColumns, .fixedRows = firstGoOut});
    grid.FormatString(QStringLiteral("|^ID|^順|^外出時刻|^帰社時刻|^外出先|^交通費"));
    grid.MarkEdits(true);
    describeColumns(grid);
    for (int i = 0; i < outings.size(); ++i) grid.fillRow(firstGoOut + i, outings[i]);
    numberRows(grid);
    totalGoOut(sheet);
    sheet.changed = false;
}

void insertGoOut(GoOutSheet& sheet, int row) {
    sheet.grid.AddItem(std::max(row, firstGoOut));
    numberRows(sheet.grid);
    sheet.touch();
}

void deleteGoOut(GoOutSheet& sheet, int row) {
    sheet.grid.RemoveItem(row);
    numberRows(sheet.grid);
    totalGoOut(sheet);
    sheet.touch();
}

void totalGoOut(GoOutSheet& sheet) {
    std::int64_t sum = 0;
    for (int row = firstGoOut; row < sheet.grid.Rows(); ++row)
        sum += moneyOf(sheet.text(row, GoOutColumn::Expense)).value_or(0);
    sheet.grid.TextMatrix(goOutTotal, static_cast<int>(GoOutColumn::Destination),
                          sheet.dateText + QStringLiteral("  合計"));
    sheet.grid.TextMatrix(goOutTotal, static_cast<int>(GoOutColumn::Expense), formatted(moneyText(sum), moneyFormat()));
}

std::optional<std::int64_t> moneyOf(QString text) {
    constexpr double most = 1e12;
    const auto yen = numberOf(text.remove(u'¥').remove(u'\\'));
    if (!yen || std::abs(*yen) >= most) return {};
    return qRound64(*yen * static_cast<double>(moneyUnit));
}

QString moneyText(std::int64_t money) {
    const double yen = static_cast<double>(money) / static_cast<double>(moneyUnit);
    return QString::number(yen, 'f', QLocale::FloatingPointShortest);
}

} // namespace kurbo
