#include "card/card_cells.h"

#include "month/month_fields.h"
#include "store/readers.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr int index(CardColumn column) {
    return static_cast<int>(column);
}

QStringList blankRow() {
    return QStringList(cardColumns);
}

QStringList headings(const QString& sixth) {
    const QString line = QStringLiteral(
        "No|日付|休日|予定（メモ）|出社時刻|退社時刻|%1|普通残業|深夜残業|早出勤務|休日出勤|休日深夜|法休出勤|法休深夜|"
        "欠勤時間|有給|特休|代休|欠勤|遅刻|早退|実働時間|詳細出社|詳細退社|ID");
    return line.arg(sixth).split(u'|');
}

const QStringList& headingsFor(bool flexible) {
    static const QStringList ofFixed = headings(QStringLiteral("法内残業"));
    static const QStringList ofFlexible = headings(QStringLiteral("時間差"));
    return flexible ? ofFlexible : ofFixed;
}

// By their codes "0", "1", "2".
const std::array<QString, 3>& leaveWords() {
    static const std::array words{QStringLiteral("全日"), QStringLiteral("午前"), QStringLiteral("午後")};
    return words;
}

QString leaveWord(QChar code) {
    return code >= u'0' && code <= u'2' ? leaveWords()[static_cast<std::size_t>(code.unicode() - u'0')] : QString();
}

// The texts of all minutes of a day in one form, written once: a card repeats them, and shares them at no cost.
template <typename Write>
QList<QString> textsOfDay(Write write) {
    constexpr int minutesOfDay = 24 * 60;
    QList<QString> texts;
    texts.reserve(minutesOfDay);
    for (Minutes minutes = 0; minutes < minutesOfDay; ++minutes) texts.append(write(minutes));
    return texts;
}

const QList<QString>& hourTexts(int unit) {
    static const QList<QString> decimal = textsOfDay([](Minutes m) { return FormatHours(m, 0, false); });
    static const QList<QString> sexagesimal = textsOfDay([](Minutes m) { return FormatHours(m, 1, false); });
    return unit == 0 ? decimal : sexagesimal;
}

// The numbers of a long card's rows.
QString numberText(int number) {
    static const QList<QString> numbers = textsOfDay([](Minutes m) { return QString::number(m); });
    return number < numbers.size() ? numbers[number] : QString::number(number);
}

QString typeText(QChar type) {
    if (type == u'0') return QStringLiteral("0");
    return type == u'3' ? QStringLiteral("3") : QString(type);
}

QString timeText(Moment moment) {
    static const QList<QString> clocks =
        textsOfDay([](Minutes m) { return hourMinute(Moment{} + std::chrono::minutes(m)); });
    return clocks[static_cast<qsizetype>((moment - dayOf(moment)).count() / 60)];
}

QString leaveText(Moment leave, Day day) {
    if (dayOf(leave) == day) return timeText(leave);
    return u'(' + slashDate(dayOf(leave)).mid(5) + u')' + hourMinute(leave);
}

class CellWriter final {
  public:
    explicit CellWriter(const clsWorkTime& rules) : rules_(rules), hours_(hourTexts(rules.plngCountUnit)) {}

    [[nodiscard]] QStringList day(int number, const CardDay& day, const Figures& figures) const {
        QStringList row = blankRow();
        QString* const cells = row.data();
        writeFacts(cells, number, day);
        writeTimes(cells, figures);
        for (int i = 0; i < 3; ++i)
            if (figures.*countColumns[static_cast<std::size_t>(i)] != 0)
                cells[index(CardColumn::AbsentDay) + i] = QStringLiteral("1");
        if (figures.work != 0) cells[index(CardColumn::WorkTime)] = hours(figures.work);
        return row;
    }

    [[nodiscard]] QStringList captions() const {
        QStringList row = blankRow();
        row[index(CardColumn::Date)] = rules_.pbleFlexTime ? QStringLiteral("ﾌﾚｯｸｽ勤務") : QStringLiteral("普通勤務");
        row[3] = QStringLiteral("(出勤日数)");
        row[4] = QStringLiteral("(実働時間)");
        row[5] = QStringLiteral("(有給残数)");
        return row;
    }

    // `balance`: days of paid leave at the beginning.
    [[nodiscard]] QStringList sums(const Figures& sum, double balance) const {
        QStringList row = blankRow();
        row[index(CardColumn::Date)] = QStringLiteral("合計(実働)");
        row[3] = QString::number(sum.workDays);
        row[4] = hours(sum.work);
        row[5] = daysText(balance - sum.paidHalves * 0.5);
        for (std::size_t i = 0; i < timeColumns.size(); ++i) row[6 + static_cast<int>(i)] = hours(sum.*timeColumns[i]);
        if (rules_.pbleFlexTime) row[6] = FormatHours(sum.difference, rules_.plngCountUnit, true);
        for (std::size_t i = 0; i < 3; ++i) {
            row[15 + static_cast<int>(i)] = daysText(sum.*leaveColumns[i] * 0.5);
            row[18 + static_cast<int>(i)] = QString::number(sum.*countColumns[i]);
        }
        return row;
    }

    // A saved figure as text; nothing for Null.
    [[nodiscard]] QString saved(MonthKind kind, const Rows& month, int field) const {
        if (month.isNull(field)) return {};
        if (kind == MonthKind::Days) return daysText(month.real(field));
        return kind == MonthKind::Count ? month.text(field) : hours(static_cast<Minutes>(month.integer(field)));
    }

  private:
    [[nodiscard]] QString hours(Minutes minutes) const {
        return minutes >= 0 && minutes < hours_.size() ? hours_[minutes]
                                                       : FormatHours(minutes, rules_.plngCountUnit, false);
    }

    static void writeFacts(QString* cells, int number, const CardDay& day) {
        const DayFacts& facts = day.facts;
        cells[index(CardColumn::No)] = numberText(number);
        cells[index(CardColumn::Date)] = shortDate(facts.date);
        if (!facts.type.isNull()) cells[index(CardColumn::Holiday)] = typeText(facts.type);
        cells[index(CardColumn::Plan)] = day.plan;
        if (facts.enter) cells[index(CardColumn::Enter)] = timeText(*facts.enter);
        if (facts.leave) cells[index(CardColumn::Leave)] = leaveText(*facts.leave, facts.date);
        cells[index(CardColumn::Paid)] = leaveWord(facts.paid);
        cells[index(CardColumn::Special)] = leaveWord(facts.special);
        cells[index(CardColumn::Compens)] = leaveWord(facts.compens);
        if (facts.enter) cells[index(CardColumn::FullEnter)] = slashMoment(*facts.enter);
        if (facts.leave) cells[index(CardColumn::FullLeave)] = slashMoment(*facts.leave);
        if (day.kurboId) cells[index(CardColumn::Id)] = QString::number(*day.kurboId);
    }

    void writeTimes(QString* cells, const Figures& figures) const {
        for (std::size_t i = 0; i < timeColumns.size(); ++i)
            if (figures.*timeColumns[i] != 0) cells[6 + i] = hours(figures.*timeColumns[i]);
        if (figures.difference != 0 && figures.legalOver == 0)
            cells[6] = FormatHours(figures.difference, rules_.plngCountUnit, true);
    }

    const clsWorkTime& rules_;
    const QList<QString>& hours_;
};

bool isWholePeriod(const clsWorkTime& rules, Period span, Day today) {
    const int startDay = rules.plngCloseDay() == 31 ? 1 : rules.plngCloseDay() + 1;
    return span.to == addMonths(span.from, 1) - std::chrono::days(1) && dayOfMonth(span.from) == startDay &&
           span.to <= today;
}

QString savedMonthStatement() {
    QString fields;
    for (const MonthField& field : monthFields) fields += field.field() + QStringLiteral(", ");
    return QStringLiteral("SELECT ") + fields +
           QStringLiteral("F_PersonalApproval, F_SuperiorApproval FROM T05_Approved "
                          "WHERE (F_Staff = ?) AND (F_Year = ?) AND (F_Month = ?);");
}

constexpr int monthDigits = 6; // of a date's id

int placeOf(CardColumn column) {
    return static_cast<int>(std::ranges::find(monthFields, column, &MonthField::column) - monthFields.begin());
}

// What counts for the month, once it has been saved. Gives the days of paid leave that the person's balance has lost by
// that: those of the newest saved month, so that saving it again takes them once.
double readSavedMonth(Connection& connection, const CellWriter& cells, const QString& staff, Day end, Card& card) {
    static const QString statement = savedMonthStatement();
    const QString id = dateId(end);
    Rows month = connection.rows(statement, {staff, id.left(4), id.mid(4, 2)});
    if (!month.next()) return 0;
    int place = 0;
    for (const MonthField& field : monthFields)
        card.summary[2][index(field.column)] = cells.saved(field.kind, month, place++);
    card.saved = true;
    card.personalApproval = month.yes(place);
    card.superiorApproval = month.yes(place + 1);
    const bool followed =
        !month.isNull(placeOf(CardColumn::Leave)) && !hasLaterMonth(connection, staff, id.left(monthDigits));
    return followed ? month.real(placeOf(CardColumn::Paid)) : 0;
}

// Columns 6 to 20 by their switches, the sixth as it is used; the last three are for the program.
std::array<bool, cardColumns> hiddenColumns(const clsWorkTime& rules) {
    std::array<bool, cardColumns> hidden{};
    for (std::size_t i = 0; i < sumSwitches.size(); ++i) hidden[6 + i] = !(rules.*sumSwitches[i]);
    if (rules.pbleFlexTime) hidden[6] = !rules.pbleEnableDiff;
    for (const CardColumn column : {CardColumn::FullEnter, CardColumn::FullLeave, CardColumn::Id})
        hidden[static_cast<std::size_t>(column)] = true;
    return hidden;
}

Card cardOf(const Context& context, Connection& connection, clsWorkTime& rules, const QString& staff, Period span) {
    const Reading reading(connection);
    const CardDays read = readCardDays(connection, staff, span.from, span.to);
    std::vector<DayFacts> facts;
    facts.reserve(read.days.size());
    for (const CardDay& day : read.days) facts.push_back(day.facts);
    std::optional<Moment> carry;
    if (!facts.empty())
        carry = leaveBeyond(connection, staff, startOfDay(rules, facts.front().date, facts.front().type));
    CardFigures figures = calculateDays(rules, facts, read.next, carry, context.clock.today());
    roundSums(rules, figures.sum);

    const CellWriter cells(rules);
    Card card;
    card.headings = headingsFor(rules.pbleFlexTime);
    card.wholePeriod = isWholePeriod(rules, span, context.clock.today());
    card.summary[2] = blankRow();
    card.summary[2][index(CardColumn::Date)] = QStringLiteral("合計(最終)");
    auto balance = static_cast<double>(rules.psngPaidTotal);
    if (card.wholePeriod) balance += readSavedMonth(connection, cells, staff, span.to, card);
    card.summary[0] = cells.captions();
    card.summary[1] = cells.sums(figures.sum, balance);
    card.days.reserve(static_cast<qsizetype>(read.days.size()));
    for (std::size_t i = 0; i < read.days.size(); ++i)
        card.days.append(cells.day(static_cast<int>(i) + 1, read.days[i], figures.days[i]));
    card.hidden = hiddenColumns(rules);
    card.sum = figures.sum;
    return card;
}

} // namespace

QString leaveCode(const QString& word) {
    const auto found = std::ranges::find(leaveWords(), word);
    return found == leaveWords().end() ? QString() : QString::number(found - leaveWords().begin());
}

QString daysText(double days) {
    return QString::number(days, 'f', 1);
}

std::optional<Card> makeCard(const Context& context, Connection& connection, clsWorkTime& rules, const QString& staff,
                             Period span) {
    return guarded(context, u"frmKurbo", u"ShowKurbo", std::optional<Card>(),
                   [&] { return std::optional(cardOf(context, connection, rules, staff, span)); });
}

} // namespace kurbo
