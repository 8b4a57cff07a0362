#pragma once

#include <QString>

namespace kurbo {

// The prefectures have the numbers 1 to 47 of JIS X 0401; 0 is the whole country, "全国".
constexpr int prefectureCount = 47;

// "全国" for any other code.
[[nodiscard]] QString PrefectureName(int code);
// -1 for an unknown name.
[[nodiscard]] int PrefectureCode(const QString& name);

} // namespace kurbo
