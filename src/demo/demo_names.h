#pragma once

#include <QString>

namespace kurbo {

struct PersonName {
    QString text;
    QString kana; // half-width
    bool woman = false;
};

inline constexpr int nameCount = 3600;
inline constexpr int sectionNameCount = 200;

// Distinct for any `nameCount` numbers in a row, from 0 on.
[[nodiscard]] PersonName personName(int number);
// "総務部", "営業部", "製造部" and on; distinct for 0 to sectionNameCount - 1.
[[nodiscard]] QString sectionName(int number);

} // namespace kurbo
