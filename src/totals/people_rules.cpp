#include "totals/people_rules.h"

#include "engine/loaders.h"

namespace kurbo {

PeopleRules::PeopleRules(Connection& connection, const clsWorkTime& style) : connection_(connection), style_(style) {
    Rows rows = connection.rows(
        QStringLiteral("SELECT F_StaffCode, F_Weekday, F_Holiday, F_AmHoliday, F_PmHoliday FROM M02_StaffInfo;"));
    const auto code = [&rows](int column) { return rows.isNull(column) ? -1 : rows.integer(column); };
    while (rows.next()) codes_.insert(rows.text(0), {code(1), code(2), code(3), code(4)});
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
