#include "settings/holiday_file.h"

#include "base/code_page.h"
#include "base/csv_line.h"
#include "base/day_arithmetic.h"
#include "base/public_holidays.h"
#include "screen/foreign_file.h"

#include <algorithm>

namespace kurbo {
namespace {

constexpr qint64 mostBytes = 64LL * 1024;
constexpr int mostLines = 100;

QString decoded(const QByteArray& bytes) {
    static constexpr QByteArrayView utf8Mark("\xEF\xBB\xBF");
    return bytes.startsWith(utf8Mark) ? QString::fromUtf8(bytes.sliced(utf8Mark.size())) : fromCodePage(bytes);
}

// Bytes that are no characters come as a control character or as the replacement.
bool isText(QChar sign) {
    return sign == u'\r' || sign == u'\n' || sign == u'\t' ||
           (sign >= u' ' && sign != u'\x7F' && sign != QChar::ReplacementCharacter);
}

bool isDigit(QChar sign) {
    return sign >= u'0' && sign <= u'9';
}

// "mm/w/d"
bool isMoving(const QString& date) {
    constexpr qsizetype length = 6;
    return date.size() == length && isDigit(date[0]) && isDigit(date[1]) && date[2] == u'/' && isDigit(date[3]) &&
           date[4] == u'/' && isDigit(date[5]);
}

bool isFixed(const QString& date) {
    return date.count(u'/') == 1;
}

// The line's fields, trimmed; throws unless there are as many as asked for.
QStringList fieldsOf(const QString& line, qsizetype count) {
    QStringList fields;
    CsvLine rest(line);
    while (!rest.atEnd()) {
        const auto cell = rest.next();
        if (!cell) throw foreignFile();
        fields.append(cell->text.trimmed());
    }
    if (fields.size() != count) throw foreignFile();
    return fields;
}

HolidayLine lineOf(const QString& text) {
    const QStringList fields = fieldsOf(text, 3);
    if (!isFixed(fields[0]) && !isMoving(fields[0])) throw foreignFile();
    return {fields[0], fields[1], fields[2]};
}

HolidayFile parsed(const QString& text) {
    if (!std::ranges::all_of(text, &isText)) throw foreignFile();
    HolidayFile file;
    bool headed = false;
    for (const QString& line : text.split(u'\n')) {
        if (line.trimmed().isEmpty()) continue;
        if (!headed)
            file.heading = fieldsOf(line.trimmed(), 1).front();
        else
            file.lines.append(lineOf(line.trimmed()));
        headed = true;
    }
    if (!headed || file.lines.size() > mostLines) throw foreignFile();
    return file;
}

} // namespace

std::optional<HolidayFile> ReadHolidayFile(const QString& path) {
    try {
        return parsed(decoded(readForeignFile(path, mostBytes)));
    } catch (const Complaint&) {
        return {};
    } catch (const Fault&) {
        return {};
    }
}

std::optional<QString> holidayDate(const QString& date, int year) {
    if (!isMoving(date)) return date;
    const auto month = makeDay(year, date.left(2).toInt(), 1);
    const int weekday = date[5].digitValue();
    if (!month || weekday < 1 || weekday > 7) return {};
    const auto day = NthWeekday(*month, date[3].digitValue(), weekday);
    return day ? std::optional(slashDate(*day).mid(5)) : std::nullopt;
}

QByteArray holidayFileOf(int year) {
    QString text =
        csvQuoted(
            QStringLiteral("%1年の祝日を休日設定に追加します(他の年には、その年のファイルが必要です)。").arg(year)) +
        QStringLiteral("\r\n");
    for (const PublicHoliday& holiday : publicHolidays(year)) {
        const QString fixed = slashDate(holiday.day).mid(5);
        const QString date =
            holiday.monday == 0 ? fixed : fixed.left(3) + QString::number(holiday.monday) + QStringLiteral("/2");
        text += csvQuoted(date) + u',' + csvQuoted(holiday.name) + QStringLiteral(",0\r\n");
    }
    return toCodePage(text).value();
}

} // namespace kurbo
