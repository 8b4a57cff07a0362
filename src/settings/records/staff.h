#pragma once

#include "settings/records/record_list.h"

namespace kurbo {

// The people of C03_Staff; the administrator is none of them.
[[nodiscard]] const RecordList& staffList();

// "年齢：46歳3月" and "勤続：16年" of the dates as their boxes hold them, the second to today while `retire` is blank;
// empty where a box holds no date.
[[nodiscard]] QString ageText(const QString& birth, Day today);
[[nodiscard]] QString serviceText(const QString& join, const QString& retire, Day today);

// The lines of the listing below its title; `sections` give the section's name.
[[nodiscard]] QStringList staffListing(const RecordTexts& texts, const QList<CodeName>& sections, Day today);

} // namespace kurbo
