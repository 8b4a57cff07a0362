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
    [[nodiscard]] QString slashDate() const {
        return dateId.left(4) + u'/' + dateId.mid(4, 2) + u'/' + dateId.right(2);
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

QString status(const Ends& ends) {
    if (!ends.today && !ends.before) return QStringLiteral("NR");
    const bool open = ends.before && !ends.before->finished();
    if (!ends.today) return open ? QStringLiteral("ND") + ends.before->slashDate() : QStringLiteral("NE");
    if (ends.today->left) return QStringLiteral("AL");
    if (ends.today->entered) return QStringLiteral("AE");
    return open ? QStringLiteral("RD") + ends.before->slashDate() : QStringLiteral("EE");
}

QString cardStatus(const Ends& ends) {
    if (ends.today) return QStringLiteral("ID") + QString::number(ends.today->id);
    if (!ends.before) return QStringLiteral("NR");
    if (ends.before->left) return QStringLiteral("NE");
    return QStringLiteral("ND") + ends.before->slashDate() + QString::number(ends.before->id);
}

StatusCode asked(const Context& context, Connection& connection, QStringView procedure, const QString& staff,
                 Moment when, QString (*answer)(const Ends&)) {
    return {guarded(context, u"frmLogin", procedure, QStringLiteral("ERROR"),
                    [&] { return answer(endsOf(connection, staff, dateId(dayOf(when)))); })};
}

} // namespace

StatusCode TimeCardStatus(const Context& context, Connection& connection, const QString& staff, Moment when) {
    return asked(context, connection, u"TimeCardStatus", staff, when, status);
}

StatusCode GetKurboID(const Context& context, Connection& connection, const QString& staff, Moment when) {
    return asked(context, connection, u"GetKurboID", staff, when, cardStatus);
}

} // namespace kurbo
