#include "card/monthly.h"

#include "card/card_grid.h"
#include "month/figure_texts.h"
#include "month/saved_figures.h"
#include "store/record_set.h"

namespace kurbo {
namespace {

// The time difference of a flexible person stands where others have the legal overtime.
bool isDifference(Quantity id, const clsWorkTime& rules) {
    return id == Quantity::LegalOver && rules.pbleFlexTime;
}

// The person's limits in minutes, Null for none, in the places of their quantities.
Values readLimits(Connection& connection, const QString& staff) {
    QStringList fields;
    for (const QuantityFacts& facts : quantities)
        fields.append(facts.limited ? QStringLiteral("M07_AdjustHours.") + QString::fromUtf16(facts.field)
                                    : QStringLiteral("Null"));
    Rows limits = connection.rows(QStringLiteral("SELECT ") + fields.join(QStringLiteral(", ")) +
                                      QStringLiteral(" FROM M02_StaffInfo INNER JOIN M07_AdjustHours "
                                                     "ON M02_StaffInfo.F_AdjustHours = M07_AdjustHours.F_AdjustCode "
                                                     "WHERE (M02_StaffInfo.F_StaffCode = ?);"),
                                  {staff});
    Values values(quantityCount);
    if (limits.next())
        for (int i = 0; i < values.size(); ++i) values[i] = limits.value(i);
    return values;
}

// A sum above the limit becomes the limit.
MonthFigure limited(const MonthFigure& sum, const Value& limit) {
    const auto* const minutes = std::get_if<Minutes>(&sum);
    if (!minutes || limit.isNull() || minutes->count() <= limit.integer()) return sum;
    return Minutes(static_cast<Minutes::rep>(limit.integer()));
}

void addMonth(RecordSet& months, const MonthOwner& owner, const QString& month) {
    months.addNew();
    months.set(QStringLiteral("F_Staff"), owner.staff);
    months.set(QStringLiteral("F_Section"), owner.section);
    months.set(QStringLiteral("F_Year"), month.left(4));
    months.set(QStringLiteral("F_Month"), month.mid(4));
}

void takeApprovals(RecordSet& months) {
    months.set(QStringLiteral("F_PersonalApproval"), Value::yesNo(false));
    months.set(QStringLiteral("F_SuperiorApproval"), Value::yesNo(false));
}

void setFigures(RecordSet& months, const CardSheet& sheet, const clsWorkTime& rules, Period period) {
    for (const QuantityFacts& facts : quantities)
        months.set(QString::fromUtf16(facts.field),
                   isDifference(facts.id, rules) ? Value() : sheet.finals[placeOf(facts.id)].stored());
    months.set(QStringLiteral("F_Term"), slashDate(period.from) + u'-' + slashDate(period.to));
}

// Somebody may have saved another month since the card was drawn: its leave would be given back.
void refuseStaleBalance(Connection& connection, const clsWorkTime& rules, const QString& staff, const QString& month) {
    const auto balance = connection.firstValue(
        QStringLiteral("SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = ?);"), {staff});
    if (!balance || balance->isNull() || static_cast<float>(balance->real()) == rules.psngPaidTotal ||
        hasLaterMonth(connection, staff, month))
        return;
    throw Complaint(lines(QStringLiteral("有給休暇残数が、タイムカードの表示後に変更されています。"),
                          QStringLiteral("再表示してから、時間調整と月次更新をやり直して下さい。")));
}

// The time difference of a flexible person is only shown.
void adjust(CardSheet& sheet, const QuantityFacts& facts, const Values& limits, const clsWorkTime& rules) {
    const CardColumn column = cardColumnOf(facts.id);
    QString text = cardText(sheet.grid, daySumRow, column);
    if (!isDifference(facts.id, rules)) {
        const auto place = placeOf(facts.id);
        const MonthFigure figure = limited(sheet.sums[place], limits[static_cast<qsizetype>(place)]);
        text = figureText(figure, rules.plngCountUnit);
        sheet.finals[place] = readFigure(facts, text, rules.plngCountUnit);
    }
    sheet.grid.TextMatrix(finalSumRow, static_cast<int>(column), text);
}

bool updateMark(Connection& connection, const QString& mark, const QString& staff, Day end, bool approved) {
    const QString month = dateId(end);
    Transaction transaction(connection);
    RecordSet record(connection,
                     QStringLiteral("SELECT ") + mark +
                         QStringLiteral(" FROM T05_Approved WHERE (F_Staff = ?) AND (F_Year = ?) AND (F_Month = ?);"),
                     {staff, month.left(4), month.mid(4, 2)});
    if (record.atRow()) {
        record.set(mark, Value::yesNo(approved));
        record.updateBatch();
    }
    transaction.commit();
    return true;
}

} // namespace

bool AdjustMonthly(const Context& context, Connection& connection, CardSheet& sheet, const clsWorkTime& rules,
                   const QString& staff) {
    return guarded(context, u"frmKurbo", u"AdjustMonthly", false, [&] {
        const Values limits = readLimits(connection, staff);
        const Undrawn undrawn(sheet.grid);
        for (const QuantityFacts& facts : quantities) adjust(sheet, facts, limits, rules);
        sheet.blnMonthChanged = true;
        return true;
    });
}

bool UpdateMonthly(const Context& context, Connection& connection, const CardSheet& sheet, const clsWorkTime& rules,
                   const MonthOwner& owner) {
    return guarded(context, u"frmKurbo", u"UpdateMonthly", false, [&] {
        const QString month = dateId(owner.period.to).left(6);
        Transaction transaction(connection);
        RecordSet months(connection,
                         QStringLiteral("SELECT *, F_Year & F_Month AS F_YearMonth FROM T05_Approved "
                                        "WHERE (F_Staff = ?);"),
                         {owner.staff});
        if (months.filter(QStringLiteral("F_YearMonth = ?"), {month}))
            takeApprovals(months);
        else
            addMonth(months, owner, month);
        const double taken = leaveTaken(months);
        setFigures(months, sheet, rules, owner.period);
        const Value paidTotal = months.value(QStringLiteral("F_PaidTotal"));
        if (!paidTotal.isNull()) refuseStaleBalance(connection, rules, owner.staff, month);
        months.updateBatch();
        followBalance(connection, owner.staff, month, paidTotal, taken);
        transaction.commit();
        return true;
    });
}

bool UpdatePersonal(const Context& context, Connection& connection, const QString& staff, Day end, bool approved) {
    return guarded(context, u"frmKurbo", u"UpdatePersonal", false,
                   [&] { return updateMark(connection, QStringLiteral("F_PersonalApproval"), staff, end, approved); });
}

bool UpdateSuperior(const Context& context, Connection& connection, const QString& staff, Day end, bool approved) {
    return guarded(context, u"frmKurbo", u"UpdateSuperior", false,
                   [&] { return updateMark(connection, QStringLiteral("F_SuperiorApproval"), staff, end, approved); });
}

} // namespace kurbo
