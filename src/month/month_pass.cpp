#include "month/month_pass.h"

#include "month/day_merger.h"
#include "month/month_worker.h"
#include "store/readers.h"
#include "store/text_order.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kurbo {
namespace {

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
    MonthMaker(Connection& connection, const std::vector<StoredDay>& calendar, PersonMonths& person,
               MonthWorker& worker)
        : connection_(connection),
          person_(person),
          worker_(worker),
          period_(person.periods.front()),
          merger_(calendar, period_) {
        person_.sums.assign(person_.periods.size(), {});
    }

    // The place of the next row, to be filled: they come in the order of their days.
    DayFacts& rowOn(const StoredDay& day) {
        while (day.date > period_.to && !isDone()) make();
        if (day.date >= period_.from && day.date <= period_.to) return merger_.rowOn(day);
        lastKnown_ = true;
        return last_;
    }

    void finish() {
        while (!isDone()) make();
    }

  private:
    [[nodiscard]] bool isDone() const { return made_ == person_.periods.size(); }

    // The last row before the period stands before the whole span when the span has none.
    [[nodiscard]] std::optional<Moment> leaveBefore(const DayFacts& first) {
        if (!lastKnown_) last_.leave = leaveBeyond(connection_, person_.staff, Moment{first.date});
        lastKnown_ = true;
        return last_.leave;
    }

    void make() {
        std::vector<DayFacts> days = std::move(merger_.finish());
        const auto carry =
            days.empty() ? std::nullopt : carryInto(person_.rules, days.front(), leaveBefore(days.front()));
        if (const auto last = merger_.last()) {
            last_ = days[*last];
            lastKnown_ = true;
        }
        worker_.add({&person_, made_, std::move(days), merger_.next(), carry});
        if (++made_; !isDone()) merger_.begin(period_ = person_.periods[made_]);
    }

    Connection& connection_;
    PersonMonths& person_;
    MonthWorker& worker_;
    std::size_t made_ = 0;
    Period period_; // in hand
    DayMerger<DayFacts> merger_;
    DayFacts last_;          // before that period
    bool lastKnown_ = false; // it has been seen or asked for
};

Period wholeSpan(const std::vector<PersonMonths>& people) {
    Period span{Day::max(), Day::min()};
    for (const PersonMonths& person : people) {
        span.from = std::min(span.from, person.periods.front().from);
        span.to = std::max(span.to, person.periods.back().to);
    }
    return span;
}

std::size_t monthsOf(const std::vector<PersonMonths>& people) {
    std::size_t months = 0;
    for (const PersonMonths& person : people) months += person.periods.size();
    return months;
}

// All people over the span, by one of two ways that hand each person the same rows in the same order.
class MonthPass final {
  public:
    MonthPass(Connection& connection, std::vector<PersonMonths>& people, Day today, const PassNotice& notice)
        : connection_(connection),
          people_(people),
          notice_(notice),
          span_(wholeSpan(people)),
          calendar_(readCalendar(connection, span_)),
          worker_(today, monthsOf(people)) {
        makers_.reserve(people.size());
        for (PersonMonths& person : people) makers_.emplace_back(connection, calendar_, person, worker_);
    }

    void run() {
        if (areFew())
            readEach();
        else
            readAll();
        for (MonthMaker& maker : makers_) maker.finish();
        worker_.finish();
        tell(100);
    }

  private:
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
            CalendarWalk walk(calendar_);
            while (rows.next())
                if (const StoredDay* const day = dayOf(rows, walk, i, people_.size()))
                    readFacts(makers_[i].rowOn(*day), rows, firstFact);
        }
    }

    // All rows by day: that order is nearly the order of the file, and its index costs little more than reading the
    // file as it lies.
    void readAll() {
        Directory directory(people_);
        Rows rows = connection_.rows(fields() + QStringLiteral("(F_DateID BETWEEN ? AND ?) ORDER BY F_DateID;"),
                                     {dateId(span_.from), dateId(span_.to)});
        CalendarWalk walk(calendar_);
        while (rows.next()) {
            const StoredDay* const day = dayOf(rows, walk, 0, 1);
            const std::size_t person = day ? directory.find(rows.bytes(1)) : Directory::stranger;
            if (person != Directory::stranger) readFacts(makers_[person].rowOn(*day), rows, firstFact);
        }
    }

    static constexpr int firstFact = 2;
    static QString fields() {
        return QStringLiteral("SELECT F_DateID, F_User, F_Enter, F_Leave, F_Paid, F_Special, F_Compens "
                              "FROM T02_Kurbo WHERE ");
    }

    // The day of the row, in this round of so many; none when the calendar lacks it.
    const StoredDay* dayOf(const Rows& rows, CalendarWalk& walk, std::size_t round, std::size_t rounds) {
        const std::size_t before = walk.passed();
        const StoredDay* const day = walk.to(rows.bytes(0));
        if (walk.passed() != before)
            tell(static_cast<int>((round * calendar_.size() + walk.passed()) * 100 / (rounds * calendar_.size())));
        return day;
    }

    void tell(int percent) {
        if (percent > told_) notice_(told_ = percent);
    }

    Connection& connection_;
    std::vector<PersonMonths>& people_;
    const PassNotice& notice_;
    const Period span_;
    const std::vector<StoredDay> calendar_;
    MonthWorker worker_;
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
