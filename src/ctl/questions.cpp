#include "ctl/questions.h"

#include "month/loaders.h"

namespace kurbo {
namespace {

bool isByStaff(const QString& order) {
    if (order.isEmpty() || order == u"staff") return true;
    if (order == u"month") return false;
    throw WrongUse{QStringLiteral("--by takes staff or month")};
}

// Nobody for a code that isn't known.
CodeName knownSection(Connection& connection, const QString& code) {
    const auto name = connection.firstValue(
        QStringLiteral("SELECT F_SectionName FROM C02_Section WHERE (F_SectionCode = ?);"), {code});
    return name ? CodeName{code, name->text()} : CodeName{};
}

QString toBeforeFrom() {
    return QStringLiteral("--to lies before --from");
}

} // namespace

AskedPerson askedPerson(Connection& connection, const QString& code) {
    Rows rows = connection.rows(QStringLiteral("SELECT F_StaffName, F_Section FROM C03_Staff WHERE (F_StaffCode = ?);"),
                                {code});
    if (!rows.next()) throw Complaint(QStringLiteral("社員コード「%1」は登録されていません。").arg(code));
    const CodeName staff{code, rows.text(0)};
    const QString home = rows.text(1);
    return {knownSection(connection, home), staff};
}

CodeName askedSection(Connection& connection, const QString& code) {
    const CodeName known = knownSection(connection, code);
    if (known.code.isEmpty()) throw Complaint(QStringLiteral("部課コード「%1」は登録されていません。").arg(code));
    return known;
}

Period askedPeriod(const Options& options, int closeDay) {
    const WrongUse unclear{QStringLiteral("it takes --month yyyy/mm, or --from and --to")};
    const auto from = options.day(QStringLiteral("from"));
    const auto to = options.day(QStringLiteral("to"));
    if (options.has(QStringLiteral("month")) && (from || to)) throw unclear;
    if (from && to && *to < *from) throw WrongUse{toBeforeFrom()};
    if (from && to) return {*from, *to};
    const auto month = parseSlashMonth(options.value(QStringLiteral("month")));
    const auto period = month ? periodOfMonth(*month, closeDay) : std::nullopt;
    if (!period) throw unclear;
    return *period;
}

std::optional<AskedCard> askedCard(const Context& context, Connection& connection, const Options& options) {
    const AskedPerson who = askedPerson(connection, options.needed(QStringLiteral("staff")));
    const QString& staff = who.staff.code;
    clsWorkTime rules;
    if (!GetWorkStyle(context, connection, rules) || !GetStaffInfo(context, connection, rules, staff) ||
        !GetWorkTime(context, connection, rules, staff))
        return {};
    const Period span = askedPeriod(options, rules.plngCloseDay());
    auto card = makeCard(context, connection, rules, staff, span);
    if (!card) return {};
    return AskedCard{who, span, std::move(*card)};
}

TotalsQuestion askedTotals(const Options& options) {
    const bool section = options.has(QStringLiteral("section"));
    if (section == options.has(QStringLiteral("staff")))
        throw WrongUse{QStringLiteral("totals takes either --section or --staff")};
    for (const char16_t* const name : {u"section", u"staff"})
        if (options.has(QString::fromUtf16(name))) (void)options.needed(QString::fromUtf16(name));
    TotalsQuestion question;
    question.section = options.value(QStringLiteral("section"));
    question.staff = options.value(QStringLiteral("staff"));
    question.from = options.month(QStringLiteral("from"));
    question.to = options.month(QStringLiteral("to"));
    question.byStaff = isByStaff(options.value(QStringLiteral("by")));
    if (question.to < question.from) throw WrongUse{toBeforeFrom()};
    return question;
}

AskedPerson askedPeople(Connection& connection, const TotalsQuestion& question) {
    return question.staff.isEmpty() ? AskedPerson{askedSection(connection, question.section), {}}
                                    : askedPerson(connection, question.staff);
}

} // namespace kurbo
