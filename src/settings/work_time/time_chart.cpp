#include "settings/work_time/time_chart.h"

#include "settings/work_time/time_texts.h"

namespace kurbo {
namespace {

QString caption(const TimeSheet& sheet, int row) {
    return QString::fromUtf16(wordsOf(sheet.rowAt(row), sheet.page, sheet.style).legend);
}

void addRow(QList<ChartBox>& boxes, const TimeSheet& sheet, int row, int height) {
    const TimeRow& own = sheet.rowAt(row);
    for (int slot = 0; slot < own.slots; ++slot) {
        const auto start = minuteOfDay(sheet.start(row, slot));
        const auto end = minuteOfDay(sheet.end(row, slot));
        if (start && end)
            boxes.append({.start = *start,
                          .end = *end == 0 ? ChartBox::wide : *end,
                          .height = height,
                          .colour = own.colour,
                          .caption = caption(sheet, row)});
    }
}

} // namespace

QList<ChartBox> dayChart(const TimeSheet& sheet) {
    QList<ChartBox> boxes;
    bool afterLate = false;
    for (int row = sheet.page.firstRow; row < sheet.rowEnd(); ++row) {
        if (sheet.grid.RowHidden(row)) continue;
        const QStringView field(sheet.rowAt(row).field);
        const qsizetype before = boxes.size();
        addRow(boxes, sheet, row, field == u"Early" && afterLate ? ChartBox::lower : ChartBox::high);
        if (field == u"AfterLate") afterLate = boxes.size() > before;
    }
    return boxes;
}

QList<LegendEntry> legendOf(const TimeSheet& sheet) {
    QList<LegendEntry> legend;
    const bool flexible = isOpen(TimeGate::Flex, sheet.page, sheet.style);
    for (int row = sheet.page.firstRow; row < sheet.rowEnd(); ++row) {
        const TimeRow& own = sheet.rowAt(row);
        const TimeGate other = flexible ? TimeGate::LegalOver : TimeGate::Flex;
        if (own.shown != other) legend.append({caption(sheet, row), own.colour});
    }
    return legend;
}

} // namespace kurbo
