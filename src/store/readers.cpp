#include "store/readers.h"

#include "store/file/database_file.h"
#include "store/record_set.h"

namespace kurbo {
namespace {

constexpr QStringView module = u"basKurbo";

QList<CodeName> codeNames(Rows rows) {
    QList<CodeName> list;
    while (rows.next()) list.append({rows.text(0), rows.text(1)});
    return list;
}

// "#code;name" joined by "|"; without a code field the names alone.
QString gridList(Connection& connection, const QString& statement, const QString& codeField, const QString& nameField) {
    QStringList entries;
    RecordSet set(connection, statement);
    for (; set.atRow(); set.moveNext()) {
        const QString name = set.value(nameField).text();
        entries.append(codeField.isEmpty() ? name : u'#' + set.value(codeField).text() + u';' + name);
    }
    return entries.join(u'|');
}

} // namespace

std::optional<QString> GetDbPath(const Context& context, Connection& connection, const QString& section) {
    return guarded(context, module, u"GetDbPath", std::optional<QString>(), [&] {
        const auto path =
            connection.firstValue(QStringLiteral("SELECT F_DB FROM C02_Section WHERE (F_SectionCode = ?);"), {section});
        if (!path) throw Complaint(QStringLiteral("選択した部課が登録されていません。"));
        if (path->isNull()) throw Complaint(QStringLiteral("選択した部課のＤＢパスが入力されていません。"));
        return path->text();
    });
}

std::int64_t nextKurboId(Connection& connection) {
    const auto last = connection.lastValue(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo ORDER BY F_KurboID;"));
    return last ? last->integer() + 1 : 1;
}

std::optional<QString> WhichHoliday(const Context& context, Connection& connection, Day date) {
    return guarded(context, module, u"WhichHoliday", std::optional<QString>(), [&] {
        const auto name = connection.firstValue(
            QStringLiteral("SELECT F_Holiday FROM T01_Calendar WHERE (F_DateID = ?);"), {dateId(date)});
        if (!name)
            throw Complaint(
                lines(QString::number(yearOf(date)) + QStringLiteral(" 年のカレンダーが作成されていません。"),
                      QStringLiteral("管理者にカレンダー有無の確認を依頼して下さい。")));
        return name->text();
    });
}

int ExistCalendar(const Context& context, Connection& connection, Day from, Day to) {
    return guarded(context, module, u"ExistCalendar", -1, [&] { return calendarRows(connection, from, to); });
}

int calendarRows(Connection& connection, Day from, Day to) {
    const auto count = connection.firstValue(
        QStringLiteral("SELECT Count(F_Date) FROM T01_Calendar WHERE (F_Date BETWEEN ? AND ?);"), {from, to});
    return static_cast<int>(count->integer());
}

QString noCalendarText() {
    return lines(QStringLiteral("カレンダーが作成されていません。"),
                 QStringLiteral("管理者にカレンダーの作成を依頼して下さい。"));
}

bool hasCalendar(const Context& context, Connection& connection, Day day) {
    const int count = ExistCalendar(context, connection, day, day);
    if (count == 0) context.prompts.exclaim(noCalendarText());
    return count > 0;
}

std::optional<Moment> leaveBeyond(Connection& connection, const QString& staff, Moment border) {
    const auto leave = connection.lastValue(
        QStringLiteral("SELECT F_Leave FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID < ?) ORDER BY F_DateID;"),
        {staff, dateId(dayOf(border))});
    const auto end = leave ? leave->moment() : std::nullopt;
    return end && *end > border ? end : std::nullopt;
}

int RecordedDays(const Context& context, Connection& connection) {
    return guarded(context, module, u"RecordedDays", -1, [&] {
        const QString statement = QStringLiteral("SELECT DISTINCT F_DateID FROM T02_Kurbo ORDER BY F_DateID;");
        const auto first = connection.firstValue(statement);
        const auto last = connection.lastValue(statement);
        if (!first || !last) return 0;
        const auto from = parseDateId(first->text());
        const auto to = parseDateId(last->text());
        return from && to ? static_cast<int>((*to - *from).count()) : 0;
    });
}

std::optional<Day> GetFirstDate(const Context& context, Connection& connection) {
    return guarded(context, module, u"GetFirstDate", std::optional<Day>(),
                   [&] { return std::optional(firstCalendarDay(connection).value_or(context.clock.today())); });
}

std::optional<Day> firstCalendarDay(Connection& connection) {
    const auto first = connection.firstValue(QStringLiteral("SELECT F_Date FROM T01_Calendar ORDER BY F_Date;"));
    const auto moment = first ? first->moment() : std::nullopt;
    return moment ? std::optional(dayOf(*moment)) : std::nullopt;
}

std::optional<Day> GetFirstMonth(const Context& context, Connection& connection) {
    return guarded(context, module, u"GetFirstMonth", std::optional<Day>(), [&] {
        Rows rows =
            connection.rows(QStringLiteral("SELECT F_Year, F_Month FROM T05_Approved ORDER BY F_Year, F_Month;"));
        if (rows.next())
            if (const auto month = makeDay(rows.text(0).toInt(), rows.text(1).toInt(), 1)) return month;
        const Day today = context.clock.today();
        return std::optional(today - std::chrono::days(dayOfMonth(today) - 1));
    });
}

std::optional<QString> VfgComboList(const Context& context, Connection& connection, const QString& statement,
                                    const QString& valueField, const QString& codeField, bool blank) {
    return guarded(context, module, u"VfgComboList", std::optional<QString>(), [&] {
        const QString list = gridList(connection, statement, codeField, valueField);
        return blank && !list.isEmpty() ? list + u'|' : list;
    });
}

std::optional<QString> BuildGridList(const Context& context, Connection& connection, const QString& statement,
                                     const QString& codeField, const QString& nameField, bool blank) {
    return guarded(context, module, u"BuildGridList", std::optional<QString>(), [&] {
        const QString list = gridList(connection, statement, codeField, nameField);
        return blank ? u'|' + list : list;
    });
}

QList<CodeName> loginSections(Connection& connection) {
    return codeNames(connection.rows(QStringLiteral("SELECT F_SectionCode, F_SectionName FROM C02_Section "
                                                    "WHERE (F_DB = ?) AND (F_Display = True) ORDER BY F_Order;"),
                                     {currentDatabase()}));
}

QList<CodeName> loginStaff(Connection& connection, const QString& section) {
    return codeNames(connection.rows(
        QStringLiteral("SELECT C03_Staff.F_StaffCode, C03_Staff.F_StaffName "
                       "FROM C03_Staff INNER JOIN M02_StaffInfo ON C03_Staff.F_StaffCode = M02_StaffInfo.F_StaffCode "
                       "Where (C03_Staff.F_Section = ?) AND (C03_Staff.F_Display = True) ORDER BY C03_Staff.F_Order;"),
        {section}));
}

QList<CodeName> displayedSections(Connection& connection) {
    return codeNames(connection.rows(QStringLiteral("SELECT F_SectionCode, F_SectionName FROM C02_Section "
                                                    "WHERE (F_Display = True) ORDER BY F_Order;")));
}

QList<CodeName> displayedStaff(Connection& connection, const QString& section) {
    return codeNames(connection.rows(QStringLiteral("SELECT F_StaffCode, F_StaffName FROM C03_Staff "
                                                    "WHERE (F_Section = ?) AND (F_Display = True) ORDER BY F_Order;"),
                                     {section}));
}

} // namespace kurbo
