#include "session/delivery.h"
#include "support/desk.h"

#include "base/public_holidays.h"
#include "base/system/files.h"

#include <QDateTime>
#include <QDir>

namespace kurbo::test {
namespace {

struct Delivery : ::testing::Test, Desk {
    Delivery() {
        QDir(folder.path()).mkdir(u"share"_q);
        for (const auto& name : {u"Holiday.txt"_q, u"Kurbo.hlp"_q, u"KurboAdm.hlp"_q})
            put(u"share/"_q + name, "new", 10);
    }
    void put(const QString& name, const QByteArray& text, int day) const {
        replaceFile(file(name), text);
        QFile written(file(name));
        ASSERT_TRUE(written.open(QIODevice::ReadWrite));
        ASSERT_TRUE(written.setFileTime(dated(day), QFileDevice::FileModificationTime));
    }
    static QDateTime dated(int day) { return {QDate(2026, 4, day), QTime(12, 0)}; }
    // What stands in the three files.
    [[nodiscard]] QByteArrayList delivered() const {
        deliverFiles(file(u"share"_q), paths, 2026);
        return {readFile(paths.HolidayPath), readFile(paths.helpPath), readFile(paths.adminHelpPath)};
    }
};

TEST_F(Delivery, FillsAnEmptyFolderAndBringsNewerHelpOnly) {
    EXPECT_EQ(delivered(), (QByteArrayList{holidayFileOf(2026), "new", "new"}));
    const QByteArray announced = holidayFileOf(2026) + "12/31,,0\r\n";
    put(u"share/Holiday.txt"_q, announced, 10);
    QFile::remove(paths.HolidayPath);
    EXPECT_EQ(delivered(), (QByteArrayList{announced, "new", "new"})) << "one of the year itself is better";
    EXPECT_EQ(QFileInfo(paths.helpPath).lastModified(), dated(10));
    put(u"share/Kurbo.hlp"_q, "newer", 11);
    put(u"share/Holiday.txt"_q, "newer", 11);
    put(u"KurboAdm.hlp"_q, "own", 12);
    EXPECT_EQ(delivered(), (QByteArrayList{announced, "newer", "own"}));
}

TEST_F(Delivery, LeavesWhatItHasWithoutADelivery) {
    put(u"Kurbo.hlp"_q, "old", 1);
    deliverFiles(file(u"nowhere"_q), paths, 2026);
    EXPECT_EQ(readFile(paths.helpPath), "old");
    EXPECT_FALSE(QFile::exists(paths.adminHelpPath));
}

} // namespace
} // namespace kurbo::test
