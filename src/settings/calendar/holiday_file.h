#pragma once

#include "base/guard.h"

#include <QList>
#include <QString>

#include <optional>

namespace kurbo {

// "Holiday.txt": the public holidays of a year, in the system's code page, or in UTF-8 behind its mark. The first line
// is a heading; each of the others, at most 100, has three fields parted by commas: the date, the day's name and the
// kind of holiday. A field may stand in double quotes. The date is "mm/dd", or "mm/w/d" for the w-th weekday d, from 1
// Sunday to 7 Saturday, of a month.
struct HolidayLine {
    QString date;
    QString name;
    QString kind;
};
struct HolidayFile {
    QString heading;
    QList<HolidayLine> lines;
};

// Nothing, without a word, for a file that is missing, can't be read or is of another form.
[[nodiscard]] std::optional<HolidayFile> ReadHolidayFile(const QString& path);

// "mm/dd" of a line's date in that year. A date without a weekday is given as it stands; nothing for a weekday that the
// month lacks.
[[nodiscard]] std::optional<QString> holidayDate(const QString& date, int year);

// The year that a heading names, as "2027年"; nothing where it names none.
[[nodiscard]] std::optional<int> yearOfHeading(const QString& heading);

// The holidays to be added to a calendar of `year`: those of the file, once the person agrees. Where its heading names
// another year, the file of the calendar's year is offered first; it takes the place of the old one, which is kept
// beside it. Nothing where there is no file or no agreement, or after a reported failure.
[[nodiscard]] std::optional<HolidayFile> chooseHolidays(const Context& context, int year);

} // namespace kurbo
