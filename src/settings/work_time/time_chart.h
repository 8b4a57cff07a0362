#pragma once

#include "settings/work_time/time_sheet.h"

namespace kurbo {

// A day as a picture: 1440 minutes wide, 100 high.
struct ChartBox {
    static constexpr int wide = 1440;
    static constexpr int high = 100;
    // Early work lies where the night's work may lie, and leaves it in sight.
    static constexpr int lower = 45;

    int start = 0; // minutes of the day
    int end = 0;
    int height = high; // from the top
    GridColour colour;
    QString caption;
    friend bool operator==(const ChartBox&, const ChartBox&) = default;
};

// The bands of the rows that are seen, in the order in which they are drawn over each other.
[[nodiscard]] QList<ChartBox> dayChart(const TimeSheet& sheet);

struct LegendEntry {
    QString caption;
    GridColour colour;
};
[[nodiscard]] QList<LegendEntry> legendOf(const TimeSheet& sheet);

} // namespace kurbo
