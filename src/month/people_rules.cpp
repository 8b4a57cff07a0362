#include "month/people_rules.h"

#include "month/loaders.h"

namespace kurbo {

void RuleFaults::add(const QString& said, const CodeName& person) {
    people_[said].append(QStringLiteral("%1 (%2)").arg(person.name, person.code));
}

QString RuleFaults::text() const {
    if (people_.empty()) return {};
    QString text = QStringLiteral("次の社員の月次集計は計算できません。");
    for (const auto& [said, people] : people_) text = lines(text, QString(), people.join(QStringLiteral("、")), said);
    return text;
}

PeopleRules::PeopleRules(Connection& connection, const clsWorkTime& style) : connection_(connection), style_(style) {
    Rows rows = connection.rows(
        QStringLiteral("SELECT F_StaffCode, F_Weekday, F_Holiday, F_AmHoliday, F_PmHoliday FROM M02_StaffInfo;"));
    const auto code = [&rows](int column) { return rows.isNull(column) ? -1 : rows.integer(column); };
    while (rows.next()) codes_.insert(rows.text(0), {code(1), code(2), code(3), code(4)});
}

std::optional<clsWorkTime> PeopleRules::tryRead(const CodeName& person, RuleFaults& faults) {
    try {
        return read(person.code);
    } catch (const Complaint& complaint) {
        faults.add(complaint.description(), person);
    } catch (const Fault& fault) {
        if (!connection_.isOpen()) throw;
        const QString advice = QStringLiteral("管理者に社員設定の確認を依頼して下さい。");
        faults.add(lines(fault.description(), advice), person);
    }
    return {};
}

clsWorkTime PeopleRules::read(const QString& staff) {
    const auto codes = codes_.constFind(staff);
    // Somebody whose code is spelled otherwise there stands alone.
    const auto known = codes == codes_.cend() ? known_.end() : known_.find(*codes);
    clsWorkTime rules = known != known_.end() ? known->second : style_;
    readStaffInfo(connection_, rules, staff);
    if (known != known_.end()) return rules;
    readWorkTime(connection_, rules, staff);
    if (codes != codes_.cend()) known_.emplace(*codes, rules);
    return rules;
}

} // namespace kurbo
