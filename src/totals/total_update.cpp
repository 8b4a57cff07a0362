#include "totals/total_update.h"

#include "base/field_tests.h"
#include "month/figure_texts.h"
#include "month/saved_figures.h"
#include "screen/files/card_file.h"
#include "store/record_set.h"
#include "totals/totals.h"

namespace kurbo {
namespace {

QString monthId(std::chrono::year_month month) {
    return slashMonth(month).remove(u'/');
}

QString cellOf(const TotalSheet& sheet, int row, int column) {
    return sheet.grid.TextMatrix(row, column);
}

QString nameOf(const QuantityFacts& facts) {
    return (facts.shown ? QString() : QStringLiteral("の")) + QString::fromUtf16(facts.heading);
}

QString demandOf(const QuantityFacts& facts, int countUnit, const QString& text) {
    const SumForm form = sumForm(facts, countUnit);
    if (form == SumForm::Number && !IsSingleByte(text)) return QStringLiteral("半角で入力して下さい。");
    return sumDemand(form);
}

void checkRow(const TotalSheet& sheet, int row) {
    for (const auto& [id, figure] : sheet.at(row)->edits) {
        if (figure.readable) continue;
        const QuantityFacts& facts = factsOf(id);
        const QString text = cellOf(sheet, row, static_cast<int>(totalColumnOf(id)));
        throw Complaint(cellOf(sheet, row, 1) + u' ' + cellOf(sheet, row, 2) + nameOf(facts) +
                        QStringLiteral("が不正です。") + demandOf(facts, sheet.plngCountUnit, text));
    }
}

bool isChanged(const TotalSheet& sheet, int row) {
    return sheet.at(row) && !sheet.at(row)->edits.empty();
}

// Only what was typed is written: the other figures may have been corrected elsewhere since.
void updateMonth(Connection& connection, const TotalEntry& entry) {
    const QString month = monthId(entry.month);
    RecordSet months(connection,
                     QStringLiteral("SELECT *, F_Year & F_Month AS F_YearMonth From T05_Approved WHERE (F_Staff = ?);"),
                     {entry.staff});
    if (!months.filter(QStringLiteral("F_YearMonth = ?"), {month})) return;
    const double taken = leaveTaken(months);
    for (const auto& [id, figure] : entry.edits) months.set(QString::fromUtf16(factsOf(id).field), figure.stored());
    for (const QString& mark : {QStringLiteral("F_PersonalApproval"), QStringLiteral("F_SuperiorApproval")})
        months.set(mark, Value::yesNo(false));
    const Value paidTotal = months.value(QStringLiteral("F_PaidTotal"));
    months.updateBatch();
    if (entry.edits.contains(Quantity::PaidTotal)) followBalance(connection, entry.staff, month, paidTotal, taken);
}

// One person's months, or a section's; the places are that code, the first and the last month.
QString whereOf(const SavedMonths& months) {
    return (months.staff.isEmpty() ? QStringLiteral("WHERE (F_Section = ?)") : QStringLiteral("WHERE (F_Staff = ?)")) +
           QStringLiteral(" AND (F_Year & F_Month BETWEEN ? AND ?);");
}

Values placesOf(const SavedMonths& months) {
    return {months.staff.isEmpty() ? months.section : months.staff, monthId(months.span.from), monthId(months.span.to)};
}

} // namespace

std::optional<MonthSpan> checkedMonths(const Context& context, const QString& start, const QString& end) {
    const auto from = parseSlashMonth(start);
    const auto to = parseSlashMonth(end);
    if (!from || !to) {
        context.prompts.exclaim(
            QStringLiteral("期間が不正です。開始年月と終了年月を西暦年でyyyy/mm形式(半角)で入力して下さい。"));
        return {};
    }
    if (*to < *from) {
        context.prompts.exclaim(QStringLiteral("開始年月が終了年月以降に設定されています。"));
        return {};
    }
    return MonthSpan{*from, *to};
}

bool CheckData(const Context& context, const TotalSheet& sheet) {
    return guarded(context, u"frmTotal", u"CheckData", false, [&] {
        if (sheet.blnFileMode) throw Complaint(fileModeText(QStringLiteral("更新")));
        for (int row = 1; row < sheet.grid.Rows(); ++row)
            if (isChanged(sheet, row)) checkRow(sheet, row);
        return true;
    });
}

ChangedMonths changedMonths(const TotalSheet& sheet) {
    ChangedMonths changed;
    for (int row = 1; row < sheet.grid.Rows(); ++row)
        if (isChanged(sheet, row)) ++(sheet.at(row)->saved ? changed.saved : changed.unsaved);
    return changed;
}

bool UpdateTotal(const Context& context, Connection& connection, const TotalSheet& sheet) {
    return guarded(context, u"frmTotal", u"UpdateTotal", false, [&] {
        Transaction transaction(connection);
        for (int row = 1; row < sheet.grid.Rows(); ++row)
            if (isChanged(sheet, row) && sheet.at(row)->saved) updateMonth(connection, *sheet.at(row));
        transaction.commit();
        return true;
    });
}

int CountTotal(const Context& context, Connection& connection, const SavedMonths& months) {
    return guarded(context, u"frmTotal", u"CountTotal", -1, [&] {
        int count = 0;
        Rows rows =
            connection.rows(QStringLiteral("SELECT F_Staff FROM T05_Approved ") + whereOf(months), placesOf(months));
        while (rows.next()) ++count;
        return count;
    });
}

bool DeleteTotal(const Context& context, Connection& connection, const SavedMonths& months) {
    return guarded(context, u"frmTotal", u"DeleteTotal", false, [&] {
        connection.execute(QStringLiteral("DELETE * FROM T05_Approved ") + whereOf(months), placesOf(months));
        return true;
    });
}

} // namespace kurbo
