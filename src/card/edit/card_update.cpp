#include "card/edit/card_update.h"

#include "card/card_grid.h"
#include "card/edit/card_times.h"
#include "month/figure_texts.h"
#include "store/fresh_keys.h"
#include "store/readers.h"

#include <vector>

namespace kurbo {
namespace {

Value orNull(const QString& text) {
    return text.isEmpty() ? Value() : Value(text);
}

// What one changed day row writes.
struct DayRow {
    QString id; // empty: a new row
    Day day;
    Value plan;
    std::optional<Value> enter; // nothing: as stored
    std::optional<Value> leave;
    Value paid;
    Value special;
    Value compens;
};

class RowReader final {
  public:
    RowReader(const CardSheet& sheet, int row) : sheet_(sheet), row_(row) {}

    [[nodiscard]] DayRow read() const {
        const Day day = must(dayOfRow(text(CardColumn::Date)));
        DayRow row{.id = text(CardColumn::Id),
                   .day = day,
                   .plan = orNull(text(CardColumn::Plan)),
                   .enter = {},
                   .leave = {},
                   .paid = leaveOf(CardColumn::Paid),
                   .special = leaveOf(CardColumn::Special),
                   .compens = leaveOf(CardColumn::Compens)};
        if (row.id.isEmpty() || sheet_.blnEnterEdited(row_)) row.enter = enterOf(day);
        if (row.id.isEmpty() || sheet_.blnLeaveEdited(row_)) row.leave = leaveTimeOf(day);
        return row;
    }

  private:
    [[nodiscard]] QString text(CardColumn column) const { return cardText(sheet_.grid, row_, column); }
    [[nodiscard]] Value leaveOf(CardColumn column) const { return orNull(leaveCode(text(column))); }

    template <typename Found>
    static Found must(const std::optional<Found>& found) {
        if (!found) throw storeFault(StoreError::BadValue);
        return *found;
    }

    [[nodiscard]] Value enterOf(Day day) const {
        const QString enter = text(CardColumn::Enter);
        return enter.isEmpty() ? Value() : Value(must(enterTime(day, enter)));
    }

    // A leave in the very minute of an enter that keeps its seconds must not fall before it: the card could not be
    // calculated any more.
    [[nodiscard]] Value leaveTimeOf(Day day) const {
        const QString text = this->text(CardColumn::Leave);
        if (text.isEmpty()) return {};
        const Moment leave = must(leaveTime(day, text));
        if (sheet_.blnEnterEdited(row_)) return leave;
        const auto enter = parseSlashMoment(this->text(CardColumn::FullEnter));
        return enter && leave < *enter && leave >= std::chrono::floor<std::chrono::minutes>(*enter) ? *enter : leave;
    }

    const CardSheet& sheet_;
    int row_;
};

std::vector<DayRow> changedRows(const CardSheet& sheet) {
    std::vector<DayRow> rows;
    for (int row = firstCardDay; row < sheet.grid.Rows(); ++row)
        if (sheet.grid.RowStatus(row) == GridStatus::Modified) rows.push_back(RowReader(sheet, row).read());
    return rows;
}

// A day has one row. Somebody may have punched since the card was drawn: two rows would count the day twice.
void checkStillEmpty(Connection& connection, const DayRow& row, const QString& staff) {
    if (connection.hasRow(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID = ?);"),
                          {staff, dateId(row.day)}))
        throw Complaint(
            lines(slashDate(row.day) + QStringLiteral("のデータは、タイムカードの表示後に打刻又は更新されています。"),
                  QStringLiteral("再表示してから、追加・変更をやり直して下さい。")));
}

void add(Connection& connection, const DayRow& row, const QString& staff) {
    checkStillEmpty(connection, row, staff);
    connection.execute(QStringLiteral("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Plan, F_Enter, F_Leave, "
                                      "F_Paid, F_Special, F_Compens) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                       {nextKurboId(connection), dateId(row.day), staff, row.plan, *row.enter, *row.leave, row.paid,
                        row.special, row.compens});
}

// A deleted row's number may have gone to another day.
void change(Connection& connection, const DayRow& row, const QString& staff) {
    QString fields = QStringLiteral("F_Plan = ?, F_Paid = ?, F_Special = ?, F_Compens = ?");
    Values values{row.plan, row.paid, row.special, row.compens};
    if (row.enter) {
        fields += QStringLiteral(", F_Enter = ?");
        values.append(*row.enter);
    }
    if (row.leave) {
        fields += QStringLiteral(", F_Leave = ?");
        values.append(*row.leave);
    }
    values.append(std::int64_t{row.id.toLongLong()});
    values.append(staff);
    values.append(dateId(row.day));
    const QString statement = QStringLiteral("UPDATE T02_Kurbo SET ") + fields +
                              QStringLiteral(" WHERE (F_KurboID = ?) AND (F_User = ?) AND (F_DateID = ?)");
    if (connection.execute(statement, values) == 0) throw storeFault(StoreError::RowGone);
}

} // namespace

bool UpdateDayly(const Context& context, Connection& connection, const CardSheet& sheet, const QString& staff) {
    constexpr int mostAttempts = 4;
    return guarded(context, u"frmKurbo", u"UpdateDayly", false, [&] {
        const std::vector<DayRow> rows = changedRows(sheet);
        writeWithFreshKeys(connection, mostAttempts, [&] {
            for (const DayRow& row : rows)
                row.id.isEmpty() ? add(connection, row, staff) : change(connection, row, staff);
        });
        return true;
    });
}

bool DeleteKurbo(const Context& context, Connection& connection, const QString& staff, Day start, Day end) {
    return guarded(context, u"frmKurbo", u"DeleteKurbo", false, [&] {
        connection.execute(QStringLiteral("DELETE * FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID BETWEEN ? AND ?);"),
                           {staff, dateId(start), dateId(end)});
        return true;
    });
}

} // namespace kurbo
