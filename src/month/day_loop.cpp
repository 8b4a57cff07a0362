#include "month/day_loop.h"

#include "engine/hours.h"
#include "month/quantities.h"

#include <array>

namespace kurbo {
namespace {

using Time = Minutes (clsWorkTime::*)() const;
using Times = Count (clsWorkTime::*)() const;

// What is asked on one kind of working day; none where the kind has no such quantity, or another rule for it.
struct WorkingDay {
    bool clsWorkTime::*flexible;
    Time standard;
    Time work;
    Time legalOver;
    Time over;
    Time late;
    Time early;
    Time absent;
    Times lateEnter;
    Times earlyLeave;
};

constexpr WorkingDay weekday{&clsWorkTime::pbleFlexTime,  &clsWorkTime::plngStandardTime, &clsWorkTime::WorkTime,
                             &clsWorkTime::LegalOverWork, &clsWorkTime::OverWork,         &clsWorkTime::LateWork,
                             &clsWorkTime::EarlyWork,     &clsWorkTime::AbsentHour,       &clsWorkTime::LateEnter,
                             &clsWorkTime::EarlyLeave};

// The morning is off. On a morning's leave there is no early work; on an AM holiday it is asked last, by its own rule.
constexpr WorkingDay afternoon{&clsWorkTime::pbleAmFlexTime,
                               &clsWorkTime::plngAmStandardTime,
                               &clsWorkTime::AmWorkTime,
                               &clsWorkTime::AmLegalOverWork,
                               &clsWorkTime::AmOverWork,
                               &clsWorkTime::AmLateWork,
                               nullptr,
                               &clsWorkTime::AmAbsentHour,
                               &clsWorkTime::AmLateEnter,
                               &clsWorkTime::AmEarlyLeave};

// The afternoon is off: no overtime.
constexpr WorkingDay morningOnly{&clsWorkTime::pblePmFlexTime,
                                 &clsWorkTime::plngPmStandardTime,
                                 &clsWorkTime::PmWorkTime,
                                 nullptr,
                                 nullptr,
                                 nullptr,
                                 &clsWorkTime::PmEarlyWork,
                                 &clsWorkTime::PmAbsentHour,
                                 &clsWorkTime::PmLateEnter,
                                 &clsWorkTime::PmEarlyLeave};

// A PM holiday has legal overtime; its overtime and late work follow the company's rule for it.
constexpr WorkingDay pmHoliday{&clsWorkTime::pblePmFlexTime,
                               &clsWorkTime::plngPmStandardTime,
                               &clsWorkTime::PmWorkTime,
                               &clsWorkTime::PmLegalOverWork,
                               nullptr,
                               nullptr,
                               &clsWorkTime::PmEarlyWork,
                               &clsWorkTime::PmAbsentHour,
                               &clsWorkTime::PmLateEnter,
                               &clsWorkTime::PmEarlyLeave};

// None for whole holidays and whole days of leave.
const WorkingDay* workingDay(DayCode code) {
    switch (code) {
    case DayCode::WD:
        return &weekday;
    case DayCode::OA:
    case DayCode::PA:
    case DayCode::SA:
    case DayCode::CA:
        return &afternoon;
    case DayCode::OP:
        return &pmHoliday;
    case DayCode::PP:
    case DayCode::SP:
    case DayCode::CP:
        return &morningOnly;
    default:
        return nullptr;
    }
}

DayType dayTypeOf(QChar type) {
    if (type == u'0' || type == u'3') return DayType::Holiday;
    if (type == u'1') return DayType::AmHoliday;
    return type == u'2' ? DayType::PmHoliday : DayType::Weekday;
}

class DayLoop final {
  public:
    DayLoop(clsWorkTime& rules, std::optional<Moment> carry, Day today) : rules_(rules), carry_(carry), today_(today) {}

    Figures day(const DayFacts& facts, QChar next) {
        figures_ = {};
        addLeave(facts);
        rules_.plngNextDayType(static_cast<int>(dayTypeOf(next)));
        const Moment start = startOfDay(rules_, facts.date, facts.type);
        const Moment border = startOfDay(rules_, facts.date + std::chrono::days(1), next);
        const DayCode code = dayCodeOf(facts);
        if (code == DayCode::PH || code == DayCode::SH || code == DayCode::CH) return figures_;
        const WorkingDay* kind = workingDay(code);
        if (takeStay(facts, start, border))
            kind ? workingStay(*kind, code) : holidayStay(code == DayCode::LH);
        else if (kind && isAbsent(facts, start))
            absence(*kind, facts.date);
        return figures_;
    }

  private:
    void addLeave(const DayFacts& facts) {
        struct Leave {
            QChar code;
            HalfDays Figures::*taken;
        };
        for (const auto& [code, taken] : {Leave{facts.paid, &Figures::paid}, Leave{facts.special, &Figures::special},
                                          Leave{facts.compens, &Figures::compens}}) {
            if (code != u'0' && code != u'1' && code != u'2') continue;
            figures_.*taken = HalfDays(code == u'0' ? 2 : 1);
            return;
        }
    }

    [[nodiscard]] bool isPast(const DayFacts& facts) const {
        return !facts.enter && !facts.leave && facts.date < today_;
    }
    // A carry that ended before the day began is spent.
    [[nodiscard]] bool isContinued(const DayFacts& facts, Moment start) const {
        return isPast(facts) && carry_ && *carry_ >= start;
    }
    [[nodiscard]] bool isAbsent(const DayFacts& facts, Moment start) const {
        return isPast(facts) && !isContinued(facts, start);
    }

    // The day's own stay, or what was carried into it, cut where the next day begins.
    bool takeStay(const DayFacts& facts, Moment start, Moment border) {
        std::optional<Moment> leave;
        if (facts.enter && facts.leave) {
            rules_.pdtmEnter(facts.enter);
            leave = facts.leave;
        } else if (isContinued(facts, start)) {
            rules_.pdtmEnter(start);
            leave = carry_;
        } else {
            return false;
        }
        const bool ends = *leave < border;
        rules_.pdtmLeave(ends ? *leave : border);
        carry_ = ends ? std::nullopt : leave;
        return true;
    }

    [[nodiscard]] Minutes ask(Time time, bool enabled = true) const {
        return time && enabled ? (rules_.*time)() : Minutes{};
    }

    void workingStay(const WorkingDay& kind, DayCode code) {
        figures_.work = ask(kind.work);
        if (figures_.work != Minutes{}) {
            figures_.workDays = Count(1);
            if (rules_.*kind.flexible) figures_.difference = figures_.work - (rules_.*kind.standard)();
        } else {
            figures_.absentDays = Count(1);
        }
        // The weekday's switch decides on all kinds of day.
        figures_.legalOver = ask(kind.legalOver, !rules_.pbleFlexTime && rules_.pbleEnableLegalOver);
        figures_.over = ask(kind.over, rules_.pbleEnableOver);
        figures_.late = ask(kind.late, rules_.pbleEnableLate);
        figures_.early = ask(kind.early, rules_.pbleEnableEarly);
        figures_.absent = ask(kind.absent);
        if (figures_.absentDays == Count(0)) {
            figures_.lateEnters = (rules_.*kind.lateEnter)();
            figures_.earlyLeaves = (rules_.*kind.earlyLeave)();
        }
        if (code == DayCode::OA) morningOfHoliday();
        if (code == DayCode::OP) afternoonOfHoliday();
    }

    void morningOfHoliday() {
        const Time early = &clsWorkTime::AmEarlyWork;
        if (rules_.plngAmHolidayWork == 1) figures_.early = ask(early, rules_.pbleEnableEarly);
        if (rules_.plngAmHolidayWork == 2) figures_.holiday = ask(early, rules_.pbleEnableHoliday);
    }

    void afternoonOfHoliday() {
        const Time over = &clsWorkTime::PmOverWork;
        const Time late = &clsWorkTime::PmLateWork;
        if (rules_.plngPmHolidayWork == 1) {
            figures_.over = ask(over, rules_.pbleEnableOver);
            figures_.late = ask(late, rules_.pbleEnableLate);
        } else if (rules_.plngPmHolidayWork == 2) {
            figures_.holiday = ask(over, rules_.pbleEnableHoliday);
            figures_.holidayLate = ask(late, rules_.pbleEnableHolidayLate);
        }
    }

    // A legal holiday is counted apart, under the switches of the ordinary one.
    void holidayStay(bool legal) {
        const Minutes work = ask(&clsWorkTime::HolidayWork, rules_.pbleEnableHoliday);
        const Minutes late = ask(&clsWorkTime::HolidayLateWork, rules_.pbleEnableHolidayLate);
        (legal ? figures_.legalHoliday : figures_.holiday) = work;
        (legal ? figures_.legalLate : figures_.holidayLate) = late;
        figures_.workDays = Count(work != Minutes{} || late != Minutes{} ? 1 : 0);
    }

    // The weekday's business hours are missed, also on a half day: its own bands tell how much of them was work. Hours
    // that end at "00:00" end with the day.
    void absence(const WorkingDay& kind, Day date) {
        figures_.absentDays = Count(1);
        const Seconds start = rules_.startBusiness(DayType::Weekday);
        const Seconds end = rules_.endBusiness(DayType::Weekday);
        if (start == noTimeOfDay || end == noTimeOfDay) return;
        rules_.pdtmEnter(date + start);
        rules_.pdtmLeave(date + (end == Seconds{} ? wholeDay : end));
        figures_.absent = ask(kind.work);
    }

    clsWorkTime& rules_;
    std::optional<Moment> carry_;
    Day today_;
    Figures figures_;
};

} // namespace

DayCode dayCodeOf(const DayFacts& day) {
    struct Leave {
        QChar code;
        std::array<DayCode, 3> codes;
    };
    for (const auto& [code, codes] : {Leave{day.paid, {DayCode::PH, DayCode::PA, DayCode::PP}},
                                      Leave{day.special, {DayCode::SH, DayCode::SA, DayCode::SP}},
                                      Leave{day.compens, {DayCode::CH, DayCode::CA, DayCode::CP}}})
        if (code >= u'0' && code <= u'2') return codes[static_cast<std::size_t>(code.unicode() - u'0')];
    if (day.type.isNull()) return DayCode::WD;
    if (day.type == u'0') return DayCode::OH;
    if (day.type == u'1') return DayCode::OA;
    return day.type == u'2' ? DayCode::OP : DayCode::LH;
}

Figures& Figures::operator+=(const Figures& other) {
    forEachOfDay([&](const QuantityFacts& /*facts*/, auto member) { this->*member += other.*member; });
    difference += other.difference;
    return *this;
}

Moment startOfDay(const clsWorkTime& rules, Day date, QChar type) {
    return date + std::max(rules.borderOf(dayTypeOf(type)), Seconds{});
}

std::optional<Moment> carryInto(const clsWorkTime& rules, const DayFacts& first, std::optional<Moment> leave) {
    return leave && *leave > startOfDay(rules, first.date, first.type) ? leave : std::nullopt;
}

CardFigures calculateDays(clsWorkTime& rules, std::span<const DayFacts> days, QChar next, std::optional<Moment> carry,
                          Day today) {
    CardFigures card;
    card.days.reserve(days.size());
    DayLoop loop(rules, carry, today);
    for (std::size_t i = 0; i < days.size(); ++i) {
        const QChar nextType = i + 1 < days.size() ? days[i + 1].type : next;
        card.days.push_back(loop.day(days[i], nextType));
        card.sum += card.days.back();
    }
    return card;
}

void roundSums(const clsWorkTime& rules, Figures& sum) {
    if (rules.plngRoundMethod != 1) return;
    const auto round = [&rules](Minutes& minutes) {
        minutes = RoundMinutes(minutes, rules.plngRoundHour, rules.plngRoundUnit());
    };
    round(sum.difference);
    forEachOfDay([&](const QuantityFacts& /*facts*/, auto member) {
        if constexpr (std::is_same_v<decltype(member), Minutes Figures::*>) round(sum.*member);
    });
}

} // namespace kurbo
