#pragma once

#include "base/guard.h"
#include "engine/hours.h"
#include "engine/work_time.h"

namespace kurbo {

// What has been chosen on the card's screen, and whose card of which days stands in the grid.
struct ChosenCard {
    QString section;
    QString staff; // empty for nobody
    std::chrono::year_month month{};
    // What the two boxes show, and what stands in the grid.
    Period period{};
    Period drawn{};
    // How often the period has been set, by a drawing or by a command of the month: the two boxes then show it.
    int periodChanges = 0;
    // Of the person.
    clsWorkTime rules;

    void setPeriod(Period wanted) {
        period = wanted;
        ++periodChanges;
    }
    [[nodiscard]] std::optional<Period> periodOfChosenMonth() const {
        return periodOfMonth(month, rules.plngCloseDay());
    }
};

// Whether a person is chosen; says so if not.
[[nodiscard]] inline bool hasName(const Context& context, const ChosenCard& chosen) {
    if (chosen.staff.isEmpty()) context.prompts.exclaim(QStringLiteral("氏名が入力されていません。"));
    return !chosen.staff.isEmpty();
}

} // namespace kurbo
