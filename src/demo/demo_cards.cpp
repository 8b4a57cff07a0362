#include "demo/demo_cards.h"

#include "demo/demo_day.h"
#include "demo/saved_months.h"

#include <array>

using namespace std::chrono;

namespace kurbo {
namespace {

constexpr int daysAhead = 45;
constexpr int mostPaidHalves = 80;
constexpr int destinationsEach = 4;

struct Worker {
    Person& person;
    Habits habits;
    DemoMonths months;
    int firstDestination = 0;
};

int halves(char leave) {
    return leave == 0 ? 0 : leave == '0' ? 2 : 1;
}

DemoDay codeOf(const DayCard& card, DayOff off) {
    for (const char leave : {card.paid, card.special, card.compens}) {
        if (leave == '0') return DemoDay::WholeLeave;
        if (leave == '1') return DemoDay::MorningLeave;
        if (leave == '2') return DemoDay::AfternoonLeave;
    }
    switch (off) {
    case DayOff::Whole:
        return DemoDay::Holiday;
    case DayOff::Legal:
        return DemoDay::LegalHoliday;
    case DayOff::Afternoon:
        return DemoDay::AfternoonOff;
    case DayOff::None:
        break;
    }
    return DemoDay::Work;
}

DayKind kindOf(DayOff off) {
    if (off == DayOff::None) return DayKind::Weekday;
    return off == DayOff::Afternoon ? DayKind::PmHoliday : DayKind::Holiday;
}

Value momentOf(Day day, const std::optional<int>& second) {
    return second ? Value(Moment{day} + seconds{*second}) : Value();
}

Value leaveCode(char leave) {
    static const std::array codes{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")};
    return leave == 0 ? Value() : Value(codes[static_cast<std::size_t>(leave - '0')]);
}

class CardWriter final {
  public:
    CardWriter(Connection& connection, const std::vector<CalendarDay>& calendar, const CardSpan& span, bool flexible,
               Dice& dice)
        : connection_(connection),
          calendar_(calendar),
          span_(span),
          flexible_(flexible),
          dice_(dice),
          dealer_(flexible, dice) {}

    void write(std::vector<Person>& people, const std::vector<DemoSection>& sections);

  private:
    void writeDestinations(Worker& worker);
    void writeDay(std::vector<Worker>& workers, std::size_t index);
    void writePast(Worker& worker, std::size_t index);
    void writeCard(const Worker& worker, const CalendarDay& day, const DayCard& card);
    void writeOuting(const Worker& worker, Day day, int order, const Outing& outing);
    void account(Worker& worker, const DayCard& card, std::size_t index);
    void grantLeave(Worker& worker, Day day);

    Connection& connection_;
    const std::vector<CalendarDay>& calendar_;
    const CardSpan span_;
    const bool flexible_;
    Dice& dice_;
    DayDealer dealer_;
    int lastId_ = 0;
    int lastDestination_ = 0;
};

void CardWriter::write(std::vector<Person>& people, const std::vector<DemoSection>& sections) {
    std::vector<Worker> workers;
    workers.reserve(people.size());
    for (Person& person : people) {
        Habits habits;
        habits.shift = person.shift;
        habits.zeal = person.zeal;
        const auto number = static_cast<int>(workers.size());
        workers.push_back(
            {person, habits, DemoMonths(person, sections[person.section].code, number, span_, flexible_)});
        if (person.sales) writeDestinations(workers.back());
    }
    const auto from = static_cast<std::size_t>((span_.first - calendar_.front().day).count());
    const auto today = static_cast<std::size_t>((span_.until - calendar_.front().day).count());
    for (std::size_t index = from; index < today + daysAhead; ++index) writeDay(workers, index);
    for (Worker& worker : workers) worker.person.paidHalves = worker.months.savedPaidHalves();
}

void CardWriter::writeDestinations(Worker& worker) {
    static const std::array customers{
        QStringLiteral("東都商事(株)"),     QStringLiteral("丸和工業(株)"),   QStringLiteral("北陽電機(株)"),
        QStringLiteral("(株)青葉製作所"),   QStringLiteral("みなと物産(株)"), QStringLiteral("(有)高梨金型"),
        QStringLiteral("城南精工(株)"),     QStringLiteral("(株)ひかり設備"), QStringLiteral("大和田電子(株)"),
        QStringLiteral("中央卸売協同組合"), QStringLiteral("(株)西川メッキ"), QStringLiteral("展示会場")};
    const auto count = static_cast<int>(customers.size());
    const int first = dice_.below(count);
    worker.firstDestination = lastDestination_ + 1;
    for (int i = 0; i < destinationsEach; ++i)
        connection_.execute(
            QStringLiteral("INSERT INTO T04_Destination (F_DestCode, F_DestName, F_User) VALUES (?, ?, ?)"),
            {++lastDestination_, customers[static_cast<std::size_t>((first + i) % count)], worker.person.code});
}

void CardWriter::writeDay(std::vector<Worker>& workers, std::size_t index) {
    const CalendarDay& day = calendar_[index];
    for (Worker& worker : workers) {
        if (!worker.person.employedOn(day.day)) continue;
        grantLeave(worker, day.day);
        if (day.day < span_.until)
            writePast(worker, index);
        else
            writeCard(worker, day, dealer_.coming(day));
    }
}

void CardWriter::writePast(Worker& worker, std::size_t index) {
    const CalendarDay& day = calendar_[index];
    DayCard card = dealer_.past(worker.habits, day, day.day + days{1} == span_.until);
    std::vector<Outing> outings;
    if (worker.person.sales && card.exists) outings = dealer_.outings(card);
    writeCard(worker, day, card);
    int order = 0;
    for (const Outing& outing : outings) writeOuting(worker, day.day, ++order, outing);
    account(worker, card, index);
}

void CardWriter::writeCard(const Worker& worker, const CalendarDay& day, const DayCard& card) {
    if (!card.exists) return;
    static const QString statement =
        QStringLiteral("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Plan, F_Enter, F_Leave, F_Paid, "
                       "F_Special, F_Compens) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    connection_.execute(statement,
                        {++lastId_, day.dateId, worker.person.code, card.plan.isEmpty() ? Value() : Value(card.plan),
                         momentOf(day.day, card.enter), momentOf(day.day, card.leave), leaveCode(card.paid),
                         leaveCode(card.special), leaveCode(card.compens)});
}

void CardWriter::writeOuting(const Worker& worker, Day day, int order, const Outing& outing) {
    static const QString statement =
        QStringLiteral("INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Out, F_In, F_Destination, F_Expense) "
                       "VALUES (?, ?, ?, ?, ?, ?)");
    const Value destination = dice_.oneIn(8) ? Value() : Value(worker.firstDestination + dice_.below(destinationsEach));
    const Value expense = dice_.oneIn(4) ? Value() : Value(10 * dice_.between(16, 240));
    connection_.execute(statement,
                        {lastId_, order, momentOf(day, outing.out), momentOf(day, outing.in), destination, expense});
}

void CardWriter::account(Worker& worker, const DayCard& card, std::size_t index) {
    const CalendarDay& day = calendar_[index];
    const DemoDay code = codeOf(card, day.off);
    worker.months.add({code, kindOf(calendar_[index + 1].off), card.enter, card.leave},
                      {halves(card.paid), halves(card.special), halves(card.compens)});
    worker.months.endDay(connection_, day.day);
}

// The administrator adds the year's paid leave on the first of April.
void CardWriter::grantLeave(Worker& worker, Day day) {
    if (civil(day).month() == April && dayOfMonth(day) == 1 && day > span_.first && day <= span_.until)
        worker.months.grant(2 * dice_.between(12, 20), mostPaidHalves);
}

} // namespace

void writeCards(Connection& connection, std::vector<Person>& people, const std::vector<DemoSection>& sections,
                const std::vector<CalendarDay>& calendar, const CardSpan& span, bool flexible, Dice& dice) {
    CardWriter(connection, calendar, span, flexible, dice).write(people, sections);
}

} // namespace kurbo
