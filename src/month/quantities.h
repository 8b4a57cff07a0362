#pragma once

#include "month/day_loop.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>
#include <variant>

namespace kurbo {

// What payroll needs of a month, in the order in which it is stored, shown and exchanged.
enum class Quantity {
    WorkDays,
    Work,
    PaidTotal,
    LegalOver,
    Over,
    Late,
    Early,
    Holiday,
    HolidayLate,
    LegalHoliday,
    LegalLate,
    Absent,
    Paid,
    Special,
    Compens,
    AbsentDays,
    LateEnters,
    EarlyLeaves,
};

// Counted one by one, in minutes, or in days and their halves.
enum class Unit { Number, Time, Days };

// What a day adds to a quantity; nothing to the balance of paid leave. Its kind is the quantity's unit.
using FigureMember = std::variant<std::monostate, Count Figures::*, Minutes Figures::*, HalfDays Figures::*>;

// All that is known of a quantity: columns, statements, limits, CSV files and reports are made from it.
struct QuantityFacts {
    Quantity id;
    FigureMember member = {};
    // Of the company; shown without a switch on every month, and with one also on the days of a card.
    bool clsWorkTime::*shown = nullptr;
    // A person may have a limit for the month.
    bool limited = false;
    // Of T05_Approved. The company's switch (M01_CorpInfo) and the limit (M07_AdjustHours) have the same name.
    const char16_t* field;
    const char16_t* heading;
    Twips printWidth{775}; // on the totals' paper
    // In the narrow list of months to be read from CSV files.
    const char16_t* shortHeading;
    const char16_t* tip = u"";
    Twips shortWidth{700};

    [[nodiscard]] constexpr Unit unit() const {
        if (std::holds_alternative<Count Figures::*>(member)) return Unit::Number;
        return std::holds_alternative<Minutes Figures::*>(member) ? Unit::Time : Unit::Days;
    }
};

inline constexpr std::array quantities{
    QuantityFacts{.id = Quantity::WorkDays,
                  .member = &Figures::workDays,
                  .field = u"F_WorkDay",
                  .heading = u"出勤日数",
                  .printWidth = Twips(740),
                  .shortHeading = u"勤日",
                  .tip = u"出勤日数",
                  .shortWidth = Twips(600)},
    QuantityFacts{.id = Quantity::Work,
                  .member = &Figures::work,
                  .field = u"F_Work",
                  .heading = u"実働時間",
                  .printWidth = Twips(840),
                  .shortHeading = u"働時",
                  .tip = u"実働時間",
                  .shortWidth = Twips(800)},
    QuantityFacts{.id = Quantity::PaidTotal,
                  .field = u"F_PaidTotal",
                  .heading = u"有給残数",
                  .printWidth = Twips(739),
                  .shortHeading = u"有残",
                  .tip = u"有給休暇残数",
                  .shortWidth = Twips(600)},
    QuantityFacts{.id = Quantity::LegalOver,
                  .member = &Figures::legalOver,
                  .shown = &clsWorkTime::pbleEnableLegalOver,
                  .limited = true,
                  .field = u"F_LegalOver",
                  .heading = u"法内残業",
                  .shortHeading = u"法残",
                  .tip = u"法定内残業時間"},
    QuantityFacts{.id = Quantity::Over,
                  .member = &Figures::over,
                  .shown = &clsWorkTime::pbleEnableOver,
                  .limited = true,
                  .field = u"F_Over",
                  .heading = u"普通残業",
                  .shortHeading = u"残業",
                  .tip = u"普通残業時間"},
    QuantityFacts{.id = Quantity::Late,
                  .member = &Figures::late,
                  .shown = &clsWorkTime::pbleEnableLate,
                  .limited = true,
                  .field = u"F_Late",
                  .heading = u"深夜残業",
                  .shortHeading = u"深夜",
                  .tip = u"深夜残業時間"},
    QuantityFacts{.id = Quantity::Early,
                  .member = &Figures::early,
                  .shown = &clsWorkTime::pbleEnableEarly,
                  .limited = true,
                  .field = u"F_Early",
                  .heading = u"早出勤務",
                  .shortHeading = u"早出",
                  .tip = u"早出勤務時間"},
    QuantityFacts{.id = Quantity::Holiday,
                  .member = &Figures::holiday,
                  .shown = &clsWorkTime::pbleEnableHoliday,
                  .limited = true,
                  .field = u"F_Holiday",
                  .heading = u"休日出勤",
                  .shortHeading = u"休日",
                  .tip = u"休日出勤時間"},
    QuantityFacts{.id = Quantity::HolidayLate,
                  .member = &Figures::holidayLate,
                  .shown = &clsWorkTime::pbleEnableHolidayLate,
                  .limited = true,
                  .field = u"F_HolidayLate",
                  .heading = u"休日深夜",
                  .shortHeading = u"休夜",
                  .tip = u"休日深夜時間"},
    QuantityFacts{.id = Quantity::LegalHoliday,
                  .member = &Figures::legalHoliday,
                  .shown = &clsWorkTime::pbleEnableLegalHoliday,
                  .limited = true,
                  .field = u"F_LegalHoliday",
                  .heading = u"法休出勤",
                  .shortHeading = u"法休",
                  .tip = u"法定休日出勤時間"},
    QuantityFacts{.id = Quantity::LegalLate,
                  .member = &Figures::legalLate,
                  .shown = &clsWorkTime::pbleEnableLegalLate,
                  .limited = true,
                  .field = u"F_LegalLate",
                  .heading = u"法休深夜",
                  .shortHeading = u"法夜",
                  .tip = u"法定休日深夜時間"},
    QuantityFacts{.id = Quantity::Absent,
                  .member = &Figures::absent,
                  .shown = &clsWorkTime::pbleEnableAbsent,
                  .field = u"F_Absent",
                  .heading = u"欠勤時間",
                  .shortHeading = u"欠勤"},
    QuantityFacts{.id = Quantity::Paid,
                  .member = &Figures::paid,
                  .shown = &clsWorkTime::pbleEnablePaid,
                  .field = u"F_Paid",
                  .heading = u"有給",
                  .shortHeading = u"有休",
                  .tip = u"有給休暇取得日数",
                  .shortWidth = Twips(600)},
    QuantityFacts{.id = Quantity::Special,
                  .member = &Figures::special,
                  .shown = &clsWorkTime::pbleEnableSpecial,
                  .field = u"F_Special",
                  .heading = u"特休",
                  .shortHeading = u"特休",
                  .tip = u"特別休暇取得日数",
                  .shortWidth = Twips(600)},
    QuantityFacts{.id = Quantity::Compens,
                  .member = &Figures::compens,
                  .shown = &clsWorkTime::pbleEnableCompens,
                  .field = u"F_Compens",
                  .heading = u"代休",
                  .shortHeading = u"代休",
                  .tip = u"代休取得日数",
                  .shortWidth = Twips(600)},
    QuantityFacts{.id = Quantity::AbsentDays,
                  .member = &Figures::absentDays,
                  .shown = &clsWorkTime::pbleEnableAbsentDay,
                  .field = u"F_AbsentDay",
                  .heading = u"欠勤",
                  .shortHeading = u"欠勤",
                  .tip = u"欠勤回数",
                  .shortWidth = Twips(600)},
    QuantityFacts{.id = Quantity::LateEnters,
                  .member = &Figures::lateEnters,
                  .shown = &clsWorkTime::pbleEnableLateEnter,
                  .field = u"F_LateEnter",
                  .heading = u"遅刻",
                  .shortHeading = u"遅刻",
                  .tip = u"遅刻回数",
                  .shortWidth = Twips(600)},
    QuantityFacts{.id = Quantity::EarlyLeaves,
                  .member = &Figures::earlyLeaves,
                  .shown = &clsWorkTime::pbleEnableEarlyLeave,
                  .field = u"F_EarlyLeave",
                  .heading = u"早退",
                  .shortHeading = u"早退",
                  .tip = u"早退回数",
                  .shortWidth = Twips(600)},
};
inline constexpr std::size_t quantityCount = quantities.size();

template <std::size_t At, typename Visit>
constexpr void visitOneOfDay(Visit& visit) {
    constexpr const QuantityFacts& facts = quantities[At];
    if constexpr (facts.member.index() != 0) visit(facts, std::get<facts.member.index()>(facts.member));
}
template <typename Visit, std::size_t... Place>
constexpr void visitEachOfDay(Visit& visit, std::index_sequence<Place...> /*places*/) {
    (visitOneOfDay<Place>(visit), ...);
}
// Calls visit(facts, member) for each quantity that a day adds to, the member being one of Figures.
template <typename Visit>
constexpr void forEachOfDay(Visit visit) {
    visitEachOfDay(visit, std::make_index_sequence<quantityCount>());
}

constexpr std::size_t placeOf(Quantity id) {
    return static_cast<std::size_t>(id);
}
constexpr const QuantityFacts& factsOf(Quantity id) {
    return quantities[placeOf(id)];
}
static_assert(std::ranges::all_of(quantities, [](const QuantityFacts& facts) { return &facts == &factsOf(facts.id); }),
              "the table stands in the order of the ids");

// The column of a quantity where the first of them stands in column `first`.
constexpr int columnFrom(int first, Quantity id) {
    return first + static_cast<int>(id);
}

// Those that a day of a card shows, side by side: the ones with a switch.
inline constexpr Quantity firstOfDay = Quantity::LegalOver;
static_assert(std::ranges::all_of(quantities,
                                  [](const QuantityFacts& facts) {
                                      return (facts.shown != nullptr) == (facts.id >= firstOfDay);
                                  }),
              "the quantities with a switch stand at the end");

inline constexpr std::span dayQuantities = std::span(quantities).subspan(placeOf(firstOfDay));

// The fields "F_WorkDay, F_Work, …", each behind the name of its table and a point if one is given.
[[nodiscard]] QString quantityFields(QStringView table = {});
// Those of them with a switch of the company, "F_LegalOver, F_Over, …".
[[nodiscard]] QString switchFields();
// The headings in their order, each behind `sign`.
[[nodiscard]] QStringList quantityHeadings(QStringView sign = {});

} // namespace kurbo
