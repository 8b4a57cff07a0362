#include "settings/calendar/holiday_file.h"

#include "base/csv_line.h"
#include "base/day_arithmetic.h"
#include "base/public_holidays.h"
#include "base/system/code_page.h"
#include "base/system/files.h"
#include "screen/files/foreign_file.h"
#include "settings/settings_steps.h"

#include <QRegularExpression>

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

std::optional<HolidayFile> madeFor(const Context& context, int year) {
    const QString& path = context.paths.HolidayPath;
    const bool made = guarded(context, u"frmHoliday", u"cmdHoliday_Click", false, [&] {
        replaceAndKeep(path, holidayFileOf(year));
        return true;
    });
    return made ? ReadHolidayFile(path) : std::nullopt;
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

std::optional<int> yearOfHeading(const QString& heading) {
    static const QRegularExpression pattern(QStringLiteral("([0-9]{4})年"));
    const QRegularExpressionMatch match = pattern.match(heading);
    return match.hasMatch() ? std::optional(match.captured(1).toInt()) : std::nullopt;
}

std::optional<HolidayFile> chooseHolidays(const Context& context, int year) {
    const QString& path = context.paths.HolidayPath;
    const auto file = ReadHolidayFile(path);
    if (!file) return {};
    const auto own = yearOfHeading(file->heading);
    if (!own || *own == year) return context.prompts.sure(file->heading) ? file : std::nullopt;
    const QString differs =
        QStringLiteral("祝日ファイル「Holiday.txt」は%1年のもので、カレンダーの%2年とは異なります。")
            .arg(*own)
            .arg(year);
    const bool lawful = year >= firstHolidayYear && year <= lastHolidayYear;
    if (lawful && context.prompts.confirm(
                      lines(differs, QStringLiteral("%1年の祝日ファイルを作成して、その祝日を追加しますか？").arg(year),
                            QStringLiteral("(今のファイルは「.old」を付けた名前で残します。)"))))
        return madeFor(context, year);
    return context.prompts.sure(lines(file->heading, differs), Answer::Cancel) ? file : std::nullopt;
}

} // namespace kurbo
