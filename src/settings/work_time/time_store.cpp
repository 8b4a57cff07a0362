#include "settings/work_time/time_store.h"

#include "base/failure.h"
#include "engine/hours.h"
#include "settings/work_time/time_texts.h"
#include "store/fresh_keys.h"
#include "store/record_set.h"

namespace kurbo {
namespace {

QString text(const char16_t* word) {
    return QString::fromUtf16(word);
}

QString byCode(const TimePage& page) {
    return QStringLiteral("SELECT * FROM %1 WHERE (%2 = ?);").arg(text(page.table), text(page.codeField));
}

QString field(const char16_t* end, const TimeRow& row, int slot) {
    return text(end) + text(row.field) + QString::number(slot);
}

// Null gives an empty text.
QString cellText(const Value& value, bool limit) {
    if (value.isNull()) return {};
    return limit ? FormatHours(Minutes(value.integer()), 1, false) : value.text();
}

void fill(TimeSheet& sheet, const RecordSet& record) {
    const Undrawn undrawn(sheet.grid);
    for (int row = sheet.page.firstRow; row < sheet.rowEnd(); ++row) {
        const TimeRow& own = sheet.rowAt(row);
        if (!sheet.page.isBands()) sheet.grid.TextMatrix(row, 1, cellText(record.value(text(own.field)), true));
        for (int slot = 0; slot < own.slots; ++slot) {
            sheet.grid.TextMatrix(row, 2 * slot + 1, cellText(record.value(field(u"F_Start", own, slot)), false));
            sheet.grid.TextMatrix(row, 2 * slot + 2, cellText(record.value(field(u"F_End", own, slot)), false));
        }
    }
}

// A limit of nothing would cap the hours at nothing: what was pasted and is none is refused.
void setLimit(RecordSet& record, const TimeSheet& sheet, int row, bool stored) {
    const QString limit = sheet.grid.TextMatrix(row, 1);
    if (stored && !limit.isEmpty() && !isLimit(limit))
        throw Complaint(sheet.grid.TextMatrix(row, 0) +
                        QStringLiteral("の調整時間が不正です。時間をhh:mm形式で入力して下さい。"));
    record.set(text(sheet.rowAt(row).field),
               stored && !limit.isEmpty() ? Value(ParseHours(limit, 1).count()) : Value());
}

void setTimes(RecordSet& record, const TimeSheet& sheet) {
    for (int row = sheet.page.firstRow; row < sheet.rowEnd(); ++row) {
        const TimeRow& own = sheet.rowAt(row);
        const bool stored = isOpen(own.stored, sheet.page, sheet.style);
        if (!sheet.page.isBands()) setLimit(record, sheet, row, stored);
        for (int slot = 0; slot < own.slots; ++slot) {
            const QString start = sheet.start(row, slot);
            const bool filled = stored && !start.isEmpty();
            record.set(field(u"F_Start", own, slot), filled ? Value(asBandTime(start)) : Value());
            record.set(field(u"F_End", own, slot), filled ? Value(asBandTime(sheet.end(row, slot))) : Value());
        }
    }
}

[[noreturn]] void complainGone(const QString& name) {
    throw Complaint(name + QStringLiteral("が削除されています。"));
}

std::int64_t nextCode(Connection& connection, const TimePage& page) {
    const auto last = connection.lastValue(
        QStringLiteral("SELECT %1 FROM %2 ORDER BY %1;").arg(text(page.codeField), text(page.table)));
    return last ? last->integer() + 1 : 1;
}

} // namespace

QList<CodeName> timeNames(Connection& connection, const TimePage& page) {
    QList<CodeName> names;
    Rows rows = connection.rows(QStringLiteral("SELECT %1, %2 FROM %3 ORDER BY %1;")
                                    .arg(text(page.codeField), text(page.nameField), text(page.table)));
    while (rows.next()) names.append({QString::number(rows.integer(0)), rows.text(1)});
    return names;
}

void showTimes(Connection& connection, TimeSheet& sheet, std::int64_t code) {
    const RecordSet record(connection, byCode(sheet.page), {code});
    if (!record.atRow()) complainGone(QStringLiteral("選択した") + text(sheet.page.subject));
    drawEmpty(sheet);
    fill(sheet, record);
    sheet.code = code;
    sheet.name = record.value(text(sheet.page.nameField)).text();
    sheet.changed = false;
}

std::int64_t updateTimes(Connection& connection, TimeSheet& sheet, const QString& name) {
    constexpr int mostAttempts = 5;
    std::int64_t code = sheet.code;
    writeWithFreshKeys(connection, mostAttempts, [&] {
        RecordSet record(connection, byCode(sheet.page), {sheet.code});
        if (sheet.code == 0) {
            refuseTakenName(connection, sheet.page, name);
            code = nextCode(connection, sheet.page);
            record.addNew();
            record.set(text(sheet.page.codeField), code);
        }
        if (!record.atRow()) complainGone(name);
        record.set(text(sheet.page.nameField), Value::textOrNull(name));
        setTimes(record, sheet);
        record.updateBatch();
    });
    sheet.code = code;
    sheet.changed = false;
    return code;
}

bool isUsed(Connection& connection, const TimePage& page, std::int64_t code) {
    return connection.hasRow(
        QStringLiteral("SELECT F_StaffCode FROM M02_StaffInfo WHERE (%1 = ?);").arg(text(page.staffField)), {code});
}

void removeTimes(Connection& connection, const TimePage& page, std::int64_t code) {
    Transaction transaction(connection);
    if (isUsed(connection, page, code))
        throw Complaint(
            QStringLiteral("表示されている%1設定は使用されているため削除できません。").arg(text(page.subject)));
    connection.execute(QStringLiteral("DELETE * FROM %1 WHERE (%2 = ?);").arg(text(page.table), text(page.codeField)),
                       {code});
    transaction.commit();
}

void refuseTakenName(Connection& connection, const TimePage& page, const QString& name) {
    const QString statement = QStringLiteral("SELECT %1 FROM %2 WHERE (%3 = ?);")
                                  .arg(text(page.codeField), text(page.table), text(page.nameField));
    if (connection.hasRow(statement, {name}))
        throw Complaint(lines(text(page.word) + QStringLiteral("名称を変更して下さい。"),
                              QStringLiteral("同じ%1名称が既に登録されています。").arg(text(page.word))));
}

} // namespace kurbo
