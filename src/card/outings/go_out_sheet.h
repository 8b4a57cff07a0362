#pragma once

#include "screen/grid/grid_model.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace kurbo {

// Columns of the outings of a day.
enum class GoOutColumn { No, Id, Order, Out, In, Destination, Expense };
inline constexpr int goOutColumns = 7;
// The total's row, and that of the first outing.
inline constexpr int goOutTotal = 1;
inline constexpr int firstGoOut = 2;

// The outings of one card row on the screen: the grid as their working copy, and what has been done to it.
struct GoOutSheet {
    GridModel grid;
    // The card row; 0 for a day without one.
    std::int64_t key = 0;
    // The card row's date "yy/mm/dd(aaa)"; empty for none.
    QString dateText;
    // Whose card it is; empty while no name is chosen.
    QString staff;
    // The reader holds the right to write outings of that card.
    bool granted = false;
    bool changed = false;

    // Told after every change.
    std::function<void()> onEdit;

    [[nodiscard]] bool mayWrite() const { return granted && key >= 1; }
    [[nodiscard]] QString text(int row, GoOutColumn column) const {
        return grid.TextMatrix(row, static_cast<int>(column));
    }
    // Whether the person has left the row blank.
    [[nodiscard]] bool isBlank(int row) const;
    // The sheet was changed by the person.
    void touch();
};

// Fills the grid: the headings, the total, `outings` of 7 cells each and 20 empty rows. Nothing is changed then.
void drawGoOut(GoOutSheet& sheet, const QList<QStringList>& outings);
// An empty row above `row`; at the list's beginning for a row before it.
void insertGoOut(GoOutSheet& sheet, int row);
void deleteGoOut(GoOutSheet& sheet, int row);
// Writes the total's row anew.
void totalGoOut(GoOutSheet& sheet);

// Money in ten-thousandths of a yen, less than a trillion yen; nothing for a text that is no such number.
[[nodiscard]] std::optional<std::int64_t> moneyOf(QString text);
// Its plain text, without signs.
[[nodiscard]] QString moneyText(std::int64_t money);
inline constexpr std::int64_t moneyUnit = 10000;

} // namespace kurbo
