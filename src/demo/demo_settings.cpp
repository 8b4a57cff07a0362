#include "demo/demo_settings.h"

#include "store/access.h"

namespace kurbo {
namespace {

// One row of a table with many fields.
struct NewRow {
    QStringList fields;
    Values values;

    void set(const QString& field, const Value& value) {
        fields.append(field);
        values.append(value);
    }
    void insertInto(Connection& connection, const QString& table) const {
        const QStringList placeholders(values.size(), QStringLiteral("?"));
        connection.execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                               .arg(table, fields.join(QStringLiteral(", ")), placeholders.join(QStringLiteral(", "))),
                           values);
    }
};

void setFlags(NewRow& row, const QStringList& fields, bool yes) {
    for (const QString& field : fields) row.set(field, Value::yesNo(yes));
}

void writeWorkStyle(Connection& connection, bool flexible) {
    const Value halfDay = flexible ? Value(QStringLiteral("04:00")) : Value();
    NewRow row;
    row.set(QStringLiteral("F_WorkStyle"), flexible ? 1 : 0);
    row.set(QStringLiteral("F_FlexStandard"), flexible ? Value(QStringLiteral("08:00")) : Value());
    row.set(QStringLiteral("F_AmHolidayWork"), 1);
    row.set(QStringLiteral("F_AmFlexStandard"), halfDay);
    row.set(QStringLiteral("F_PmHolidayWork"), 1);
    row.set(QStringLiteral("F_PmFlexStandard"), halfDay);
    row.set(QStringLiteral("F_RoundMethod"), flexible ? 1 : 0);
    row.set(QStringLiteral("F_RoundEnter"), flexible ? Value() : Value(1));
    row.set(QStringLiteral("F_RoundLeave"), flexible ? Value() : Value(0));
    row.set(QStringLiteral("F_RoundHour"), flexible ? Value(0) : Value());
    row.set(QStringLiteral("F_RoundUnit"), roundUnit);
    row.set(QStringLiteral("F_CountUnit"), 1);
    setFlags(row, {QStringLiteral("F_AmFlex"), QStringLiteral("F_PmFlex"), QStringLiteral("F_Diff")}, flexible);
    setFlags(row, {QStringLiteral("F_LegalOver")}, !flexible);
    setFlags(row,
             {QStringLiteral("F_Over"), QStringLiteral("F_Late"), QStringLiteral("F_Early"),
              QStringLiteral("F_Holiday"), QStringLiteral("F_HolidayLate"), QStringLiteral("F_LegalHoliday"),
              QStringLiteral("F_LegalLate"), QStringLiteral("F_Absent"), QStringLiteral("F_Paid"),
              QStringLiteral("F_Special"), QStringLiteral("F_Compens"), QStringLiteral("F_AbsentDay"),
              QStringLiteral("F_LateEnter"), QStringLiteral("F_EarlyLeave")},
             true);
    row.insertInto(connection, QStringLiteral("M01_CorpInfo"));
}

QString clockOf(int minutes) {
    return QStringLiteral("%1:%2").arg(minutes / 60 % 24, 2, 10, QChar(u'0')).arg(minutes % 60, 2, 10, QChar(u'0'));
}

void setBands(NewRow& row, const QString& word, const WorkBands& bands) {
    for (std::size_t i = 0; i < bands.size() && bands[i].inUse(); ++i) {
        row.set(QStringLiteral("F_Start%1%2").arg(word).arg(i), clockOf(bands[i].start));
        row.set(QStringLiteral("F_End%1%2").arg(word).arg(i), clockOf(bands[i].end));
    }
}

void writeStyle(Connection& connection, const QString& table, const QString& word, const Style& style, int code) {
    NewRow row;
    row.set(QStringLiteral("F_%1Code").arg(word), code);
    row.set(QStringLiteral("F_%1Name").arg(word), style.name.toString());
    setBands(row, QStringLiteral("Work"), style.work);
    setBands(row, QStringLiteral("Flex"), style.flex);
    setBands(row, QStringLiteral("LegalOver"), style.legalOver);
    setBands(row, QStringLiteral("Over"), style.over);
    setBands(row, QStringLiteral("Late"), style.late);
    setBands(row, QStringLiteral("AfterLate"), style.afterLate);
    setBands(row, QStringLiteral("Early"), style.early);
    row.insertInto(connection, table);
}

void writeStyles(Connection& connection, bool flexible, Shift shift, int code) {
    const auto write = [&](const QString& table, const QString& word, DayKind kind) {
        writeStyle(connection, table, word, styleOf(flexible, shift, kind), code);
    };
    write(QStringLiteral("M03_WeekdayStyle"), QStringLiteral("Weekday"), DayKind::Weekday);
    write(QStringLiteral("M04_HolidayStyle"), QStringLiteral("Holiday"), DayKind::Holiday);
    write(QStringLiteral("M05_AmHolidayStyle"), QStringLiteral("AmHoliday"), DayKind::AmHoliday);
    write(QStringLiteral("M06_PmHolidayStyle"), QStringLiteral("PmHoliday"), DayKind::PmHoliday);
}

void writeLimits(Connection& connection, Adjust adjust, const QString& name) {
    const Limits& limits = limitsOf(adjust);
    NewRow row;
    row.set(QStringLiteral("F_AdjustCode"), static_cast<int>(adjust));
    row.set(QStringLiteral("F_AdjustName"), name);
    for (const auto& [field, limit] : {std::pair{u"F_LegalOver", limits.legalOver},
                                       {u"F_Over", limits.over},
                                       {u"F_Late", limits.late},
                                       {u"F_Early", limits.early},
                                       {u"F_Holiday", limits.holiday},
                                       {u"F_HolidayLate", limits.holidayLate},
                                       {u"F_LegalHoliday", limits.legalHoliday},
                                       {u"F_LegalLate", limits.legalLate}})
        if (limit) row.set(QString::fromUtf16(field), *limit);
    row.insertInto(connection, QStringLiteral("M07_AdjustHours"));
}

bool ordinaryMay(Right right) {
    switch (right) {
    case Right::ReadMyKurbo:
    case Right::WriteMyPlan:
    case Right::WriteMyPaid:
    case Right::WriteMySpecial:
    case Right::WriteMyCompens:
    case Right::ReadMyGoOut:
    case Right::WriteMyGoOut:
        return true;
    default:
        return false;
    }
}

bool superiorMay(Right right) {
    return right != Right::WriteMyMonthly && right != Right::WriteOtherMonthly && right != Right::DeleteMyData &&
           right != Right::DeleteOtherData;
}

bool may(Role role, Right right) {
    return role == Role::Clerk || (role == Role::Superior ? superiorMay(right) : ordinaryMay(right));
}

void writeRight(Connection& connection, Role role, const QString& name, const QStringList& sections) {
    int order = 0;
    for (const QString& section : sections) {
        NewRow row;
        row.set(QStringLiteral("F_AccessCode"), static_cast<int>(role));
        row.set(QStringLiteral("F_AccessName"), name);
        row.set(QStringLiteral("F_Section"), section);
        for (std::size_t i = 0; i < rightCount; ++i) {
            const auto right = static_cast<Right>(i);
            row.set(fieldOf(right), Value::yesNo(may(role, right)));
        }
        row.set(QStringLiteral("F_Order"), ++order);
        row.insertInto(connection, QStringLiteral("M08_Access"));
    }
}

} // namespace

void writeSettings(Connection& connection, bool flexible, const std::vector<DemoSection>& sections) {
    writeWorkStyle(connection, flexible);
    writeStyles(connection, flexible, Shift::Days, 1);
    writeStyles(connection, flexible, Shift::Nights, 2);
    writeLimits(connection, Adjust::Agreement, QStringLiteral("36協定(月45時間)"));
    writeLimits(connection, Adjust::Unlimited, QStringLiteral("上限なし(管理職)"));
    QStringList everywhere{mySection()};
    for (const DemoSection& section : sections) everywhere.append(section.code);
    writeRight(connection, Role::Ordinary, QStringLiteral("一般社員"), {mySection()});
    writeRight(connection, Role::Superior, QStringLiteral("所属長"), {mySection()});
    writeRight(connection, Role::Clerk, QStringLiteral("勤怠担当"), everywhere);
}

} // namespace kurbo
