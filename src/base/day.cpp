#include "base/day.h"

#include <array>

using namespace std::chrono;

namespace kurbo {
namespace {

constexpr std::array weekdayNames{u'日', u'月', u'火', u'水', u'木', u'金', u'土'};

struct Clock {
    int hour;
    int minute;
    int second;
};

Clock clockOf(Moment moment) {
    const auto inDay = static_cast<int>((moment - dayOf(moment)).count());
    return {inDay / 3600, inDay / 60 % 60, inDay % 60};
}

// Writes numbers with their leading zeros; a card has hundreds of them, and formatted printing costs ten times more.
class Writer final {
  public:
    explicit Writer(qsizetype length) : text_(length, Qt::Uninitialized), at_(text_.data()) {}
    Writer& number(unsigned value, int width) {
        for (int i = width - 1; i >= 0; --i, value /= 10) at_[i] = QChar(static_cast<char16_t>(u'0' + value % 10));
        at_ += width;
        return *this;
    }
    Writer& sign(char16_t c) {
        *at_++ = QChar(c);
        return *this;
    }
    Writer& date(Day day, char16_t separator) {
        const auto date = civil(day);
        number(static_cast<unsigned>(static_cast<int>(date.year())), 4);
        if (separator) sign(separator);
        number(static_cast<unsigned>(date.month()), 2);
        if (separator) sign(separator);
        return number(static_cast<unsigned>(date.day()), 2);
    }
    [[nodiscard]] QString text() { return std::move(text_); }

  private:
    QString text_;
    QChar* at_;
};

// A run of 1 to `most` digits at `from`, which moves behind it.
std::optional<int> digits(QStringView text, qsizetype& from, int most) {
    int value = 0;
    int count = 0;
    while (from < text.size() && count < most && text[from] >= u'0' && text[from] <= u'9') {
        value = value * 10 + (text[from].unicode() - u'0');
        ++from;
        ++count;
    }
    return count > 0 ? std::optional(value) : std::nullopt;
}

bool skip(QStringView text, qsizetype& from, QChar expected) {
    if (from >= text.size() || text[from] != expected) return false;
    ++from;
    return true;
}

std::optional<Day> slashDateAt(QStringView text, qsizetype& from) {
    const auto year = digits(text, from, 4);
    if (!year || !skip(text, from, u'/')) return {};
    const auto month = digits(text, from, 2);
    if (!month || !skip(text, from, u'/')) return {};
    const auto day = digits(text, from, 2);
    return day ? makeDay(*year, *month, *day) : std::nullopt;
}

std::optional<seconds> clockAt(QStringView text, qsizetype& from) {
    const auto hour = digits(text, from, 2);
    if (!hour || *hour > 23 || !skip(text, from, u':')) return {};
    const auto minute = digits(text, from, 2);
    if (!minute || *minute > 59) return {};
    int second = 0;
    if (skip(text, from, u':')) {
        const auto read = digits(text, from, 2);
        if (!read || *read > 59) return {};
        second = *read;
    }
    return hours{*hour} + minutes{*minute} + seconds{second};
}

// The number of two digits; for anything else one so far below 0 that no sum with it is a valid date.
int twoDigits(const char* text) {
    constexpr int noNumber = -10000;
    const int tens = text[0] - '0';
    const int ones = text[1] - '0';
    return tens >= 0 && tens <= 9 && ones >= 0 && ones <= 9 ? tens * 10 + ones : noNumber;
}

} // namespace

std::optional<Day> makeDay(int year, int month, int day) {
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1) return {};
    const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                              std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok()) return {};
    return Day{date};
}

Moment at(Day day, int hour, int minute, int second) {
    return Moment{day} + hours{hour} + minutes{minute} + seconds{second};
}

int yearOf(Day day) {
    return static_cast<int>(civil(day).year());
}

int dayOfMonth(Day day) {
    return static_cast<int>(static_cast<unsigned>(civil(day).day()));
}

Day addMonths(Day day, int count) {
    const auto moved = civil(day) + months{count};
    if (moved.ok()) return Day{moved};
    return Day{moved.year() / moved.month() / last};
}

QString dateId(Day day) {
    return Writer(8).date(day, 0).text();
}

QString slashDate(Day day) {
    return Writer(10).date(day, u'/').text();
}

QString slashMonth(std::chrono::year_month month) {
    return slashDate(Day{month / 1}).left(7);
}

QString shortDate(Day day) {
    const auto date = civil(day);
    return Writer(11)
        .number(static_cast<unsigned>(static_cast<int>(date.year())) % 100, 2)
        .sign(u'/')
        .number(static_cast<unsigned>(date.month()), 2)
        .sign(u'/')
        .number(static_cast<unsigned>(date.day()), 2)
        .sign(u'(')
        .sign(weekdayNames[std::chrono::weekday{day}.c_encoding()])
        .sign(u')')
        .text();
}

QString hourMinute(Moment moment) {
    const auto clock = clockOf(moment);
    return Writer(5)
        .number(static_cast<unsigned>(clock.hour), 2)
        .sign(u':')
        .number(static_cast<unsigned>(clock.minute), 2)
        .text();
}

QString slashMoment(Moment moment) {
    const auto clock = clockOf(moment);
    return Writer(19)
        .date(dayOf(moment), u'/')
        .sign(u' ')
        .number(static_cast<unsigned>(clock.hour), 2)
        .sign(u':')
        .number(static_cast<unsigned>(clock.minute), 2)
        .sign(u':')
        .number(static_cast<unsigned>(clock.second), 2)
        .text();
}

std::string isoText(Moment moment) {
    std::string text(19, ' ');
    const QString slash = slashMoment(moment);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = slash[static_cast<qsizetype>(i)].toLatin1();
        text[i] = c == '/' ? '-' : c;
    }
    return text;
}

QString clockText(Moment moment) {
    const Day day = dayOf(moment);
    const auto date = civil(day);
    const auto clock = clockOf(moment);
    return QStringLiteral("%1年%2月%3日(%4)  %5:%6:%7")
        .arg(static_cast<int>(date.year()), 4, 10, QChar(u'0'))
        .arg(static_cast<unsigned>(date.month()), 2, 10, QChar(u'0'))
        .arg(static_cast<unsigned>(date.day()), 2, 10, QChar(u'0'))
        .arg(QChar(weekdayNames[weekday{day}.c_encoding()]))
        .arg(clock.hour)
        .arg(clock.minute, 2, 10, QChar(u'0'))
        .arg(clock.second, 2, 10, QChar(u'0'));
}

std::optional<Day> parseDateId(QStringView text) {
    qsizetype from = 0;
    const auto value = text.size() == 8 ? digits(text, from, 8) : std::nullopt;
    if (!value || from != 8) return {};
    return makeDay(*value / 10000, *value / 100 % 100, *value % 100);
}

std::optional<Day> parseSlashDate(QStringView text) {
    qsizetype from = 0;
    const auto day = slashDateAt(text, from);
    return from == text.size() ? day : std::nullopt;
}

std::optional<std::chrono::year_month> parseSlashMonth(QStringView text) {
    const auto first = parseSlashDate(text.toString() + QStringLiteral("/01"));
    return first ? std::optional(monthOf(*first)) : std::nullopt;
}

std::optional<Moment> parseSlashMoment(QStringView text) {
    qsizetype from = 0;
    const auto day = slashDateAt(text, from);
    if (!day) return {};
    if (from == text.size()) return Moment{*day};
    if (!skip(text, from, u' ')) return {};
    const auto clock = clockAt(text, from);
    if (!clock || from != text.size()) return {};
    return Moment{*day} + *clock;
}

std::optional<seconds> parseClock(QStringView text) {
    qsizetype from = 0;
    const auto clock = clockAt(text, from);
    return from == text.size() ? clock : std::nullopt;
}

std::optional<Moment> parseIso(std::string_view text) {
    if (text.size() != 19 || text[4] != '-' || text[7] != '-' || text[10] != ' ' || text[13] != ':' || text[16] != ':')
        return {};
    const char* const bytes = text.data();
    const int hour = twoDigits(bytes + 11);
    const int minute = twoDigits(bytes + 14);
    const int second = twoDigits(bytes + 17);
    const auto day = makeDay(twoDigits(bytes) * 100 + twoDigits(bytes + 2), twoDigits(bytes + 5), twoDigits(bytes + 8));
    if (!day || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return {};
    return at(*day, hour, minute, second);
}

} // namespace kurbo
