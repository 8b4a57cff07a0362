#pragma once

#include "month/loaders.h"
#include "settings/work_time/time_store.h"
#include "support/sample_company.h"

#include <QRegularExpression>

namespace kurbo::test {

// The sample company, which counts everything; nothing is flexible.
class Times : public SampleCompany {
  protected:
    Times() {
        setStyle(u"F_LegalOver = True, F_Over = True, F_Late = True, F_Early = True, F_Holiday = True, "
                 "F_HolidayLate = True, F_LegalHoliday = True, F_LegalLate = True"_q);
    }
    static QString text(const char16_t* word) { return QString::fromUtf16(word); }
    void setStyle(const QString& fields) {
        connection.execute(u"UPDATE M01_CorpInfo SET "_q + fields);
        style = clsWorkTime();
        ASSERT_TRUE(GetWorkStyle(desk.context, connection, style));
    }
    void setFlexible() {
        setStyle(u"F_WorkStyle = 1, F_FlexStandard = '08:00', F_AmFlex = True, F_AmFlexStandard = '04:00'"_q);
    }
    // The shown page of a record, with cells changed as "row,column=text" parted by blanks.
    std::unique_ptr<TimeSheet> sheet(int page, std::int64_t code = 0, const QString& cells = {}) {
        auto shown = std::make_unique<TimeSheet>(timePages()[static_cast<std::size_t>(page)], style);
        showTimes(connection, *shown, code);
        for (const QString& cell : cells.split(u' ', Qt::SkipEmptyParts)) {
            const QStringList parts = cell.split(QRegularExpression(u"[,=]"_q));
            shown->grid.TextMatrix(parts[0].toInt(), parts[1].toInt(), parts[2]);
        }
        return shown;
    }

    clsWorkTime style;
};

enum Page { Weekday, Holiday, AmHoliday, PmHoliday, Adjust };

} // namespace kurbo::test
