#pragma once

#include <QByteArray>
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

// The file of a year's public holidays. Those that move by a rule of the file stand under it; the equinoxes and the
// days off that follow from other holidays are right for this year only.
[[nodiscard]] QByteArray holidayFileOf(int year);

} // namespace kurbo
