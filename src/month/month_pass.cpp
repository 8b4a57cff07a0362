#include "month/month_pass.h"

#include "store/readers.h"
#include "store/text_order.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kurbo {
namespace {

struct CalendarDay {
    std::string id;
    Day date;
    QChar type;
};

QChar code(const Rows& rows, int column) {
    const std::string_view text = rows.bytes(column);
    return text.empty() ? QChar() : QChar(QLatin1Char(text.front()));
}

// With the day behind the span, whose kind tells where the last day ends.
std::vector<CalendarDay> readCalendar(Connection& connection, Period span) {
    Rows rows = connection.rows(QStringLiteral("SELECT F_Date, F_Type, F_DateID FROM T01_Calendar "
                                               "WHERE (F_Date BETWEEN ? AND ?) ORDER BY F_Date;"),
                                {span.from, span.to + std::chrono::days(1)});
    std::vector<CalendarDay> days;
    while (rows.next())
        if (const auto moment = rows.moment(0))
            days.push_back({std::string(rows.bytes(2)), dayOf(*moment), code(rows, 1)});
    return days;
}

// The people by their codes as the rows spell them: equal codes may differ in the case of their letters. The rows of a
// day stand in nearly the order of those of the day before, so who follows whom is guessed before it is looked up.
class Directory final {
  public:
    static constexpr std::size_t stranger = static_cast<std::size_t>(-1);

    explicit Directory(const std::vector<PersonMonths>& people) {
        for (const PersonMonths& person : people) entries_.push_back({person.staff.toStdString(), entries_.size() + 1});
        for (std::size_t i = 0; i < entries_.size(); ++i) spellings_.emplace(entries_[i].code, i);
        entries_.back().follower = 0;
    }

    // The place of the person, or `stranger`.
    std::size_t find(std::string_view staff) {
        const std::size_t guess = entries_[last_].follower;
        if (entries_[guess].code == staff) return last_ = guess;
        const auto known = spellings_.find(staff);
        const std::size_t found = known != spellings_.end() ? known->second : learned(staff);
        if (found != stranger) last_ = entries_[last_].follower = found;
        return found;
    }

  private:
    struct Entry {
        std::string code;
        std::size_t follower;
    };
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    std::size_t learned(std::string_view staff) {
        const auto text = [](std::string_view code) {
            return QString::fromUtf8(code.data(), static_cast<qsizetype>(code.size()));
        };
        const auto found = std::ranges::find_if(
            entries_, [&](const Entry& entry) { return compareText(text(entry.code), text(staff)) == 0; });
        const std::size_t place =
            found == entries_.end() ? stranger : static_cast<std::size_t>(found - entries_.begin());
        spellings_.emplace(staff, place);
        return place;
    }

    std::vector<Entry> entries_;
    std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> spellings_;
    std::size_t last_ = 0;
};

// The months of one person, made one after another while the rows come in.
class MonthMaker final {
  public:
    MonthMaker(Connection& connection, const std::vector<CalendarDay>& calendar, PersonMonths& person, Day today)
        : connection_(connection), calendar_(calendar), person_(person), today_(today) {
        person_.sums.clear();
        period_ = person_.periods.front();
    }

    // The place of the next row, to be filled: they come in the order of their days. Rows built aside and copied show
    // in the time of the whole.
    DayFacts& rowOn(Day date) {
        while (date > period_.to && !isDone()) make();
        DayFacts& row = date >= period_.from && date <= period_.to ? cards_.emplace_back() : last_;
        if (&row == &last_) lastKnown_ = true;
        return row;
    }

    void finish() {
        while (!isDone()) make();
    }

  private:
    [[nodiscard]] bool isDone() const { return person_.sums.size() == person_.periods.size(); }

    // The end of a shift that ran over the start of the period. The last row before it stands before the whole span
    // when the span has none.
    std::optional<Moment> carryInto(const DayFacts& first) {
        if (!lastKnown_) last_.leave = leaveBeyond(connection_, person_.staff, Moment{first.date});
        lastKnown_ = true;
        return last_.leave && *last_.leave > startOfDay(person_.rules, first.date, first.type) ? last_.leave
                                                                                               : std::nullopt;
    }

    void make() {
        const auto byDate = [](const CalendarDay& day, Day date) { return day.date < date; };
        auto day = std::ranges::lower_bound(calendar_, period_.from, {}, &CalendarDay::date);
        const auto end = std::lower_bound(day, calendar_.end(), period_.to + std::chrono::days(1), byDate);
        const bool goesOn = end != calendar_.end() && end->date == period_.to + std::chrono::days(1);
        facts_.clear();
        auto card = cards_.begin();
        for (; day != end; ++day) {
            if (card == cards_.end() || card->date != day->date)
                facts_.push_back({day->date, day->type, {}, {}, {}, {}, {}});
            for (; card != cards_.end() && card->date == day->date; ++card) facts_.push_back(*card);
        }
        const auto carry = facts_.empty() ? std::nullopt : carryInto(facts_.front());
        const QChar next = goesOn ? end->type : QChar();
        Figures sum = calculateDays(person_.rules, facts_, next, carry, today_).sum;
        roundSums(person_.rules, sum);
        person_.sums.push_back(sum);
        if (!cards_.empty()) {
            last_ = cards_.back();
            lastKnown_ = true;
        }
        cards_.clear();
        if (!isDone()) period_ = person_.periods[person_.sums.size()];
    }

    Connection& connection_;
    const std::vector<CalendarDay>& calendar_;
    PersonMonths& person_;
    const Day today_;
    Period period_{};             // in hand
    std::vector<DayFacts> cards_; // of that period
    std::vector<DayFacts> facts_; // the same with the days between
    DayFacts last_;               // before that period
    bool lastKnown_ = false;      // it has been seen or asked for
};

Period wholeSpan(const std::vector<PersonMonths>& people) {
    Period span{Day::max(), Day::min()};
    for (const PersonMonths& person : people) {
        span.from = std::min(span.from, person.periods.front().from);
        span.to = std::max(span.to, person.periods.back().to);
    }
    return span;
}

void readRow(DayFacts& row, const CalendarDay& day, const Rows& rows) {
    row.date = day.date;
    row.type = day.type;
    row.enter = rows.moment(2);
    row.leave = rows.moment(3);
    row.paid = code(rows, 4);
    row.special = code(rows, 5);
    row.compens = code(rows, 6);
}

// All people over the span, by one of two ways that hand each person the same rows in the same order.
class MonthPass final {
  public:
    MonthPass(Connection& connection, std::vector<PersonMonths>& people, Day today, const PassNotice& notice)
        : connection_(connection),
          people_(people),
          notice_(notice),
          span_(wholeSpan(people)),
          calendar_(readCalendar(connection, span_)) {
        makers_.reserve(people.size());
        for (PersonMonths& person : people) makers_.emplace_back(connection, calendar_, person, today);
    }

    void run() {
        if (areFew())
            readEach();
        else
            readAll();
        for (MonthMaker& maker : makers_) maker.finish();
        tell(100);
    }

  private:
    using Place = std::vector<CalendarDay>::const_iterator;

    // A row found by the index on people lies on a page of its own, and costs as much as so many that lie together.
    static constexpr std::int64_t scattered = 12;

    [[nodiscard]] bool areFew() {
        const auto all = connection_.firstValue(QStringLiteral("SELECT Count(*) FROM C03_Staff;"));
        return people_.size() == 1 || std::ssize(people_) * scattered <= all->integer();
    }

    // Person by person, each by the index.
    void readEach() {
        const QString statement = fields() + QStringLiteral("(F_User = ?) AND (F_DateID BETWEEN ? AND ?) "
                                                            "ORDER BY F_DateID;");
        for (std::size_t i = 0; i < people_.size(); ++i) {
            const PersonMonths& person = people_[i];
            Rows rows = connection_.rows(
                statement, {person.staff, dateId(person.periods.front().from), dateId(person.periods.back().to)});
            auto day = calendar_.cbegin();
            while (rows.next())
                if (goTo(day, rows.bytes(0), i, people_.size())) readRow(makers_[i].rowOn(day->date), *day, rows);
        }
    }

    // All rows by day: that order is nearly the order of the file, and its index costs little more than reading the
    // file as it lies.
    void readAll() {
        Directory directory(people_);
        Rows rows = connection_.rows(fields() + QStringLiteral("(F_DateID BETWEEN ? AND ?) ORDER BY F_DateID;"),
                                     {dateId(span_.from), dateId(span_.to)});
        auto day = calendar_.cbegin();
        while (rows.next()) {
            if (!goTo(day, rows.bytes(0), 0, 1)) continue;
            const std::size_t person = directory.find(rows.bytes(1));
            if (person != Directory::stranger) readRow(makers_[person].rowOn(day->date), *day, rows);
        }
    }

    static QString fields() {
        return QStringLiteral("SELECT F_DateID, F_User, F_Enter, F_Leave, F_Paid, F_Special, F_Compens "
                              "FROM T02_Kurbo WHERE ");
    }

    // On to the day of the row, in this round of so many; false when the calendar lacks it.
    bool goTo(Place& day, std::string_view id, std::size_t round, std::size_t rounds) {
        for (; day != calendar_.cend() && day->id < id; ++day) {
            const auto passed = static_cast<std::size_t>(day - calendar_.cbegin());
            tell(static_cast<int>((round * calendar_.size() + passed) * 100 / (rounds * calendar_.size())));
        }
        return day != calendar_.cend() && day->id == id;
    }

    void tell(int percent) {
        if (percent > told_) notice_(told_ = percent);
    }

    Connection& connection_;
    std::vector<PersonMonths>& people_;
    const PassNotice& notice_;
    const Period span_;
    const std::vector<CalendarDay> calendar_;
    std::vector<MonthMaker> makers_;
    int told_ = -1;
};

} // namespace

void makeMonths(Connection& connection, std::vector<PersonMonths>& people, Day today, const PassNotice& notice) {
    if (people.empty()) return;
    const Reading reading(connection);
    MonthPass(connection, people, today, notice).run();
}

} // namespace kurbo
