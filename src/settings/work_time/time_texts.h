#pragma once

#include <QString>

#include <optional>

namespace kurbo {

// The minute of the day of "hh:mm", "h:mm" or a full minute "hh:mm:00"; nothing for any other text.
[[nodiscard]] std::optional<int> minuteOfDay(const QString& text);
// Such a text as "hh:mm", any other as it is.
[[nodiscard]] QString asBandTime(const QString& text);

// What is wrong with the texts of a time of day.
[[nodiscard]] QString timeDemand();
// What is wrong with an end that isn't behind its start. A late band that runs into the next day stands in two.
[[nodiscard]] QString orderDemand(const QString& start, const QString& end, bool late);
// The end "00:00" is midnight at the end of the day, which follows any start.
[[nodiscard]] bool isBehind(const QString& end, const QString& start);

// A limit: hours, ":" and two digits from 00 to 59.
[[nodiscard]] bool isLimit(const QString& text);

} // namespace kurbo
