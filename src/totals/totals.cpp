#include "totals/totals.h"

#include "month/loaders.h"
#include "month/month_pass.h"
#include "month/people_rules.h"
#include "totals/total_records.h"

#include <algorithm>
#include <map>
#include <set>

using std::chrono::year_month;

namespace kurbo {
namespace {

// The person has closed the progress, or the loader has said why it failed.
struct GivenUp {};
struct StaffMember {
    QString code;
    QString name;
    QString section;
    QString order; // at least four digits
};

void refuseOutside(const TotalsQuestion& question) {
    if (question.from < firstTotalMonth || question.to > lastTotalMonth)
        throw Complaint(QStringLiteral("集計できるのは1000年1月から9999年12月までです。"));
}

class Calculation final {
  public:
    Calculation(const Context& context, Connection& connection, const TotalsQuestion& question)
        : context_(context), connection_(connection), question_(question) {
        totals_.byStaff = question.byStaff || !question.staff.isEmpty();
    }

    Totals run() {
        const Shown shown(context_.progress, QStringLiteral("処理中です・・・"), whole);
        succeed(GetWorkStyle(context_, connection_, style_));
        totals_.countUnit = style_.plngCountUnit;
        hideColumns();
        {
            const Reading reading(connection_);
            readStaff();
            totals_.rows = readSavedMonths(connection_, question_, totals_.byStaff);
        }
        std::vector<Missing> missing = missingMonths();
        loadRules(missing);
        totals_.faults = faults_.text();
        makeMonths(connection_, people_, context_.clock.today(),
                   [this](int percent) { step(loaded + percent * (whole - loaded) / 100); });
        totals_.rows.reserve(totals_.rows.size() + missing.size());
        for (const Missing& month : missing) addCalculated(month);
        sortRows();
        return std::move(totals_);
    }

  private:
    // What the progress counts to, and where it stands when the rules of all people are loaded.
    static constexpr int whole = 1000;
    static constexpr int loaded = 200;

    // The place of those whose rules can't be loaded.
    static constexpr auto nowhere = static_cast<std::size_t>(-1);

    struct Missing {
        std::size_t member;
        year_month month;
        std::size_t person = nowhere; // the place among those whose rules are loaded
        std::size_t period = 0;
    };

    static void succeed(bool done) {
        if (!done) throw GivenUp();
    }
    void step(int value) {
        context_.progress.step(value);
        succeed(!context_.progress.stopped());
    }

    void hideColumns() {
        for (const QuantityFacts& facts : dayQuantities)
            totals_.hidden[static_cast<std::size_t>(totalColumnOf(facts.id))] = !(style_.*facts.shown);
        for (const TotalColumn column : {TotalColumn::Order, TotalColumn::Staff})
            totals_.hidden[static_cast<std::size_t>(column)] = true;
        totals_.hidden[static_cast<std::size_t>(TotalColumn::Difference)] = !style_.pbleEnableDiff;
    }

    void readStaff() {
        const QString fields = QStringLiteral("SELECT F_StaffCode, F_StaffName, F_Section, F_Order FROM C03_Staff ");
        Rows rows = question_.staff.isEmpty()
                        ? connection_.rows(
                              fields + QStringLiteral("WHERE (F_Section = ?) AND (F_Display = True) ORDER BY F_Order;"),
                              {question_.section})
                        : connection_.rows(fields + QStringLiteral("WHERE (F_StaffCode = ?);"), {question_.staff});
        while (rows.next()) staff_.push_back({rows.text(0), rows.text(1), rows.text(2), orderText(rows, 3)});
    }

    // Month by month, in the order of the people.
    [[nodiscard]] std::vector<Missing> missingMonths() const {
        std::set<std::pair<QString, year_month>> saved;
        for (const TotalRow& row : totals_.rows) saved.emplace(row.staff, row.month);
        std::vector<Missing> missing;
        for (year_month month = question_.from; month <= question_.to; month += std::chrono::months(1))
            for (std::size_t i = 0; i < staff_.size(); ++i)
                if (!saved.contains({staff_[i].code, month})) missing.push_back({i, month});
        return missing;
    }

    // Of everybody who misses a month, once and in one lock.
    void loadRules(std::vector<Missing>& missing) {
        if (missing.empty()) return;
        const Reading reading(connection_);
        PeopleRules rules(connection_, style_);
        std::vector<std::optional<std::size_t>> places(staff_.size());
        int tried = 0;
        for (Missing& month : missing) {
            auto& place = places[month.member];
            if (!place) {
                place = addPerson(staff_[month.member], rules);
                step(static_cast<int>(++tried * std::ptrdiff_t{loaded} / std::ssize(staff_)));
            }
            if (*place != nowhere) addPeriod(month, *place);
        }
    }

    std::size_t addPerson(const StaffMember& member, PeopleRules& rules) {
        const auto own = rules.tryRead({member.code, member.name}, faults_);
        if (!own) return nowhere;
        people_.push_back({.staff = member.code, .rules = *own, .periods = {}, .sums = {}});
        return people_.size() - 1;
    }

    void addPeriod(Missing& month, std::size_t place) {
        PersonMonths& person = people_[place];
        month.person = place;
        month.period = person.periods.size();
        person.periods.push_back(*periodOfMonth(month.month, person.rules.plngCloseDay()));
    }

    void addCalculated(const Missing& month) {
        const StaffMember& member = staff_[month.member];
        TotalRow row;
        row.staff = member.code;
        row.name = member.name;
        row.section = member.section;
        row.month = month.month;
        row.key = totalKey(member.order, month.month, totals_.byStaff);
        if (month.person != nowhere) {
            const PersonMonths& person = people_[month.person];
            row.term = termOf(person.periods[month.period]);
            setFigures(row, person.sums[month.period], person.rules);
        }
        totals_.rows.push_back(std::move(row));
    }

    // By staff, two people of one place stay apart.
    [[nodiscard]] bool isBefore(const TotalRow& one, const TotalRow& other) const {
        if (!totals_.byStaff) return one.key < other.key;
        const int place = orderIn(one.key).compare(orderIn(other.key));
        const int order = place != 0 ? place : one.staff.compare(other.staff);
        return order != 0 ? order < 0 : one.month < other.month;
    }

    // The rows are large: their places are sorted, and each is moved once.
    void sortRows() {
        std::vector<TotalRow*> places;
        places.reserve(totals_.rows.size());
        for (TotalRow& row : totals_.rows) places.push_back(&row);
        std::ranges::stable_sort(places,
                                 [this](const TotalRow* one, const TotalRow* other) { return isBefore(*one, *other); });
        std::vector<TotalRow> sorted;
        sorted.reserve(places.size());
        for (TotalRow* row : places) sorted.push_back(std::move(*row));
        totals_.rows = std::move(sorted);
    }

    // People of one close day share the text.
    QString termOf(const Period& period) {
        QString& text = terms_[{period.from, period.to}];
        if (text.isEmpty()) text = slashDate(period.from) + u'-' + slashDate(period.to);
        return text;
    }

    static void setFigures(TotalRow& row, const Figures& sum, const clsWorkTime& rules) {
        row.figures = monthFigures(sum, hundredths(static_cast<double>(rules.psngPaidTotal)));
        if (rules.pbleFlexTime) row.difference = sum.difference;
    }

    const Context& context_;
    Connection& connection_;
    const TotalsQuestion& question_;
    clsWorkTime style_;
    std::vector<StaffMember> staff_;
    std::vector<PersonMonths> people_;
    RuleFaults faults_;
    std::map<std::pair<Day, Day>, QString> terms_;
    Totals totals_;
};

} // namespace

std::optional<Totals> calculateTotals(const Context& context, Connection& connection, const TotalsQuestion& question) {
    return guarded(context, u"frmTotal", u"ShowTotal", std::optional<Totals>(), [&]() -> std::optional<Totals> {
        refuseOutside(question);
        try {
            Totals totals = Calculation(context, connection, question).run();
            if (!totals.faults.isEmpty()) context.prompts.exclaim(totals.faults);
            return totals;
        } catch (const GivenUp&) {
            return {};
        }
    });
}

} // namespace kurbo
