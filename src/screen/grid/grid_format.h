#pragma once

#include <QString>

namespace kurbo {

// A cell's text as its column's format shows it: "hh:nn" and "yyyy/mm/dd(aaa)" for a date and time in slash form,
// "$#,###" for money (nothing for 0). A text that isn't of that kind is shown as it is, and so is every other format.
[[nodiscard]] QString formatted(const QString& text, const QString& format);

} // namespace kurbo
