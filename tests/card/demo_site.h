#pragma once

#include "card/card_cells.h"
#include "demo/demo_company.h"
#include "month/loaders.h"
#include "store/file/database_file.h"
#include "support/desk.h"

namespace kurbo::test {

// A person's loaded rules, and the card that follows from them; none where they were refused with words.
inline std::optional<clsWorkTime> rulesOf(const Context& context, Connection& connection, const QString& staff) {
    clsWorkTime rules;
    const bool loaded = GetWorkStyle(context, connection, rules) && GetStaffInfo(context, connection, rules, staff) &&
                        GetWorkTime(context, connection, rules, staff);
    return loaded ? std::optional(rules) : std::nullopt;
}
inline std::optional<Card> cardOf(const Context& context, Connection& connection, const QString& staff, Period span) {
    auto rules = rulesOf(context, connection, staff);
    return rules ? makeCard(context, connection, *rules, staff, span) : std::nullopt;
}

// The demo company early on 17 June 2026.
class DemoSite : public ::testing::Test {
  protected:
    explicit DemoSite(bool flexible = false) {
        createDatabase(path);
        connection.open(path, databasePassword());
        DemoOptions options;
        options.until = *makeDay(2026, 6, 17);
        options.flexible = flexible;
        makeDemoCompany(connection, options);
        desk.clock.set(at(options.until, 8, 0));
    }
    [[nodiscard]] std::optional<Card> monthOf(const QString& staff, std::chrono::year_month month) {
        const auto rules = rulesOf(desk.context, connection, staff);
        if (!rules) return {};
        return cardOf(desk.context, connection, staff, *periodOfMonth(month, rules->plngCloseDay()));
    }

    Desk desk;
    QString path = desk.file(u"demo.mdb"_q);
    Connection connection;
};

} // namespace kurbo::test
