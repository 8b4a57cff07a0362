#include "punch/state.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kurbo {
namespace {

struct Row {
    std::int64_t id = 0;
    QString dateId;
    bool entered = false;
    bool left = false;
    std::array<QString, 3> leaves; // paid, special, compensatory; empty for none

    // Needs no leave punch.
    [[nodiscard]] bool finished() const {
        const bool wholeDay = std::ranges::any_of(leaves, [](const QString& kind) { return kind == u"0"; });
        return wholeDay || left;
    }
};

// The first row of the day asked about, and the last one before that day.
struct Ends {
    std::optional<Row> today;
    std::optional<Row> before;
};

Row rowOf(const Rows& rows) {
    return {
        rows.integer(0), rows.text(1), !rows.isNull(2), !rows.isNull(3), {rows.text(4), rows.text(5), rows.text(6)}};
}

// Reads back from the last row, so that a person's years of rows are not walked through for each punch.
Ends endsOf(Connection& connection, const QString& staff, const QString& id) {
    Rows rows = connection.rowsFromLast(
        QStringLiteral("SELECT F_KurboID, F_DateID, F_Enter, F_Leave, F_Paid, F_Special, F_Compens FROM T02_Kurbo "
                       "WHERE (F_User = ?) AND (F_DateID <= ?) ORDER BY F_DateID;"),
        {staff, id});
    Ends ends;
    while (!ends.before && rows.next()) (rows.text(1) == id ? ends.today : ends.before) = rowOf(rows);
    return ends;
}

DayRow dayRowOf(const std::optional<Row>& today) {
    if (!today) return DayRow::None;
    if (today->left) return DayRow::Left;
    return today->entered ? DayRow::Entered : DayRow::NotEntered;
}

std::optional<StatusCode> asked(const Context& context, Connection& connection, QStringView procedure,
                                const QString& staff, Moment when, bool (*isClosed)(const Row&)) {
    return guarded(context, u"frmLogin", procedure, std::optional<StatusCode>(), [&] {
        const Ends ends = endsOf(connection, staff, dateId(dayOf(when)));
        StatusCode state{.today = dayRowOf(ends.today), .cardId = ends.today ? ends.today->id : 0, .open = {}};
        if (ends.before && !isClosed(*ends.before)) state.open = OpenRow{ends.before->id, ends.before->dateId};
        return state;
    });
}

} // namespace

std::optional<StatusCode> TimeCardStatus(const Context& context, Connection& connection, const QString& staff,
                                         Moment when) {
    return asked(context, connection, u"TimeCardStatus", staff, when, [](const Row& row) { return row.finished(); });
}

std::optional<StatusCode> GetKurboID(const Context& context, Connection& connection, const QString& staff,
                                     Moment when) {
    return asked(context, connection, u"GetKurboID", staff, when, [](const Row& row) { return row.left; });
}

} // namespace kurbo
