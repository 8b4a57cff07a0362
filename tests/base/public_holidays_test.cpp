#include "base/public_holidays.h"

#include <gtest/gtest.h>

namespace kurbo {
namespace {

// The Cabinet Office's list; the names of substitute days are the usual ones.
QString officialList(int year) {
    switch (year) {
    case 2024:
        return QStringLiteral(
            "0101元日 0108成人の日 0211建国記念の日 0212振替休日 0223天皇誕生日 0320春分の日 0429昭和の日 "
            "0503憲法記念日 0504みどりの日 0505こどもの日 0506振替休日 0715海の日 0811山の日 0812振替休日 "
            "0916敬老の日 0922秋分の日 0923振替休日 1014スポーツの日 1103文化の日 1104振替休日 1123勤労感謝の日");
    case 2025:
        return QStringLiteral(
            "0101元日 0113成人の日 0211建国記念の日 0223天皇誕生日 0224振替休日 0320春分の日 0429昭和の日 "
            "0503憲法記念日 0504みどりの日 0505こどもの日 0506振替休日 0721海の日 0811山の日 0915敬老の日 "
            "0923秋分の日 1013スポーツの日 1103文化の日 1123勤労感謝の日 1124振替休日");
    case 2026:
        return QStringLiteral(
            "0101元日 0112成人の日 0211建国記念の日 0223天皇誕生日 0320春分の日 0429昭和の日 0503憲法記念日 "
            "0504みどりの日 0505こどもの日 0506振替休日 0720海の日 0811山の日 0921敬老の日 0922国民の休日 "
            "0923秋分の日 1012スポーツの日 1103文化の日 1123勤労感謝の日");
    default:
        return QStringLiteral(
            "0101元日 0111成人の日 0211建国記念の日 0223天皇誕生日 0321春分の日 0322振替休日 0429昭和の日 "
            "0503憲法記念日 0504みどりの日 0505こどもの日 0719海の日 0811山の日 0920敬老の日 0923秋分の日 "
            "1011スポーツの日 1103文化の日 1123勤労感謝の日");
    }
}

TEST(PublicHolidays, FollowTheOfficialLists) {
    for (int year = 2024; year <= 2027; ++year) {
        QStringList texts;
        for (const PublicHoliday& holiday : publicHolidays(year)) {
            EXPECT_EQ(yearOf(holiday.day), year);
            texts.append(dateId(holiday.day).mid(4) + holiday.name);
        }
        EXPECT_EQ(texts.join(u' ').toStdString(), officialList(year).toStdString());
    }
}

TEST(PublicHolidays, MoveWithTheSun) {
    const auto dayOfName = [](int year, const QString& name) {
        for (const PublicHoliday& holiday : publicHolidays(year))
            if (holiday.name == name) return dayOfMonth(holiday.day);
        return 0;
    };
    EXPECT_EQ(dayOfName(2023, QStringLiteral("春分の日")), 21);
    EXPECT_EQ(dayOfName(2028, QStringLiteral("秋分の日")), 22);
    EXPECT_EQ(dayOfName(2092, QStringLiteral("春分の日")), 19);
    EXPECT_EQ(dayOfName(2032, QStringLiteral("国民の休日")), 21);
}

} // namespace
} // namespace kurbo
