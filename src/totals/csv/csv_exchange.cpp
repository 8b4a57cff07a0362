#include "totals/csv/csv_exchange.h"

#include "base/numbers.h"
#include "base/product.h"
#include "month/saved_figures.h"
#include "store/record_set.h"

#include <optional>

namespace kurbo {
namespace {

QString savedStatement(bool onePerson) {
    return QStringLiteral("SELECT ") + quantityFields(u"T05_Approved") +
           QStringLiteral(", T05_Approved.F_Staff, T05_Approved.F_Year, T05_Approved.F_Month, "
                          "T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term "
                          "FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode "
                          "WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN ? AND ?) AND ") +
           (onePerson ? QStringLiteral("(T05_Approved.F_Staff = ?) ")
                      : QStringLiteral("(T05_Approved.F_Section = ?) AND (C03_Staff.F_Display = True) ")) +
           QStringLiteral("ORDER BY C03_Staff.F_Order, T05_Approved.F_Year & T05_Approved.F_Month, "
                          "T05_Approved.F_Staff;");
}

Value figureOf(const Rows& rows, int column) {
    const Value value = rows.value(column);
    const bool days = quantities[static_cast<std::size_t>(column)].unit() == Unit::Days;
    return days && !value.isNull() ? Value(static_cast<double>(singleOf(value.real()))) : value;
}

MonthRecord recordOf(const Rows& rows, const QString& section) {
    MonthRecord record;
    constexpr int figures = static_cast<int>(quantityCount);
    for (int i = 0; i < figures; ++i) record.figures[static_cast<std::size_t>(i)] = figureOf(rows, i);
    record.staff = rows.text(figures);
    record.section = section;
    record.year = rows.text(figures + 1);
    record.month = rows.text(figures + 2);
    record.personalApproval = rows.yes(figures + 3);
    record.superiorApproval = rows.yes(figures + 4);
    record.term = rows.text(figures + 5);
    return record;
}

void setRecord(RecordSet& months, const MonthRecord& record) {
    months.set(QStringLiteral("F_Staff"), record.staff);
    months.set(QStringLiteral("F_Section"), record.section);
    months.set(QStringLiteral("F_Year"), record.year);
    months.set(QStringLiteral("F_Month"), record.month);
    for (const QuantityFacts& facts : quantities)
        months.set(QString::fromUtf16(facts.field), record.figures[placeOf(facts.id)]);
    months.set(QStringLiteral("F_PersonalApproval"), Value::yesNo(record.personalApproval));
    months.set(QStringLiteral("F_SuperiorApproval"), Value::yesNo(record.superiorApproval));
    months.set(QStringLiteral("F_Term"), Value::textOrNull(record.term));
}

// False when the month is there already and stays.
bool addMonth(Connection& connection, const MonthRecord& record, OnExisting onExisting) {
    RecordSet months(connection,
                     QStringLiteral("SELECT *, F_Year & F_Month AS F_YearMonth FROM T05_Approved "
                                    "WHERE (F_Staff = ?);"),
                     {record.staff});
    const bool exists = months.filter(QStringLiteral("F_YearMonth = ?"), {record.yearMonth()});
    if (exists && onExisting == OnExisting::Skip) return false;
    if (!exists) months.addNew();
    const double taken = leaveTaken(months);
    setRecord(months, record);
    const Value paidTotal = months.value(QStringLiteral("F_PaidTotal"));
    months.updateBatch();
    followBalance(connection, record.staff, record.yearMonth(), paidTotal, taken);
    return true;
}

// Nothing when the person has asked for a stop; all is undone then.
std::optional<CsvAdded> addAll(const Context& context, Connection& connection, const QList<MonthRecord>& months,
                               OnExisting onExisting, const TakeStop& takeStop) {
    CsvAdded added{.end = CsvAdded::End::Done};
    const Shown shown(context.progress, QStringLiteral("データベースに登録中です・・・"),
                      static_cast<int>(months.size()));
    Transaction transaction(connection);
    for (int i = 0; i < months.size(); ++i) {
        context.progress.step(i + 1);
        if (takeStop()) return {};
        ++(addMonth(connection, months[i], onExisting) ? added.stored : added.skipped);
    }
    transaction.commit();
    return added;
}

bool isStopMeant(const Context& context) {
    return context.prompts.ask({.title = productName(),
                                .text = QStringLiteral("処理を中止しますか？"),
                                .icon = Icon::Question,
                                .buttons = Buttons::OkCancel,
                                .preset = Answer::Cancel}) == Answer::Ok;
}

} // namespace

QList<MonthRecord> savedMonths(Connection& connection, const CsvSpan& span) {
    const bool onePerson = !span.staff.isEmpty();
    Rows rows = connection.rows(savedStatement(onePerson), {span.from, span.to, onePerson ? span.staff : span.section});
    QList<MonthRecord> months;
    while (rows.next()) months.append(recordOf(rows, span.section));
    return months;
}

QString addedText(const CsvAdded& added) {
    const QString stored = QStringLiteral("%1件の月次集計データを登録しました。").arg(added.stored);
    return added.skipped == 0
               ? stored
               : lines(stored, QStringLiteral("既に登録されている%1件はスキップしました。").arg(added.skipped));
}

CsvAdded addToDatabase(const Context& context, Connection& connection, const QList<MonthRecord>& months,
                       OnExisting onExisting, const TakeStop& takeStop) {
    CsvAdded added = guarded(context, u"frmCsv", u"AddToDatabase", CsvAdded(), [&]() -> CsvAdded {
        for (;;) {
            if (const auto done = addAll(context, connection, months, onExisting, takeStop)) return *done;
            if (isStopMeant(context)) return {.end = CsvAdded::End::Abandoned};
        }
    });
    if (added.end == CsvAdded::End::Abandoned)
        context.prompts.exclaim(QStringLiteral("データベース登録を中止しました。"));
    if (added.end == CsvAdded::End::Failed)
        context.prompts.exclaim(QStringLiteral("月次集計データをデータベースに登録できませんでした。"));
    return added;
}

} // namespace kurbo
