#include "session/parm_file.h"

#include "base/public_holidays.h"
#include "base/system/code_page.h"
#include "base/system/files.h"
#include "session/delivery.h"
#include "support/desk.h"

#include <QDateTime>
#include <QDir>

namespace kurbo::test {
namespace {

class ParmFile : public ::testing::Test {
  protected:
    ParmFile() { replaceFile(database, "x"); }
    ParmResult read(const QByteArray& bytes) {
        replaceFile(desk.paths.ParmPath, bytes);
        return ReadParm(desk.context, desk.paths.ParmPath, dbPath);
    }

    Desk desk;
    QString database = desk.file(u"勤怠 データ.mdb"_q);
    QString dbPath;
};

TEST_F(ParmFile, IsReadAsItWasWrittenOrHowever) {
    EXPECT_EQ(ReadParm(desk.context, desk.paths.ParmPath, dbPath), ParmResult::NoParm);
    ASSERT_TRUE(WriteParm(desk.context, desk.paths.ParmPath, database));
    EXPECT_EQ(readFile(desk.paths.ParmPath), *toCodePage(u'"' + database + u"\"\r\n"_q));
    const QByteArray name = *toCodePage(database);
    for (const auto& [bytes, result, found] : {std::tuple{'"' + name + "\"\r\n", ParmResult::OK, database},
                                               {name + "\r\n", ParmResult::OK, database},
                                               {'"' + name, ParmResult::OK, database},
                                               {'"' + name + "\"\r\nmore", ParmResult::OK, database},
                                               {"\"/no/such.mdb\"\r\n", ParmResult::NoDB, u"/no/such.mdb"_q},
                                               {"\"\"\r\n", ParmResult::Install, QString()},
                                               {"\r\n", ParmResult::Install, QString()}}) {
        EXPECT_EQ(read(bytes), result) << bytes.constData();
        EXPECT_EQ(dbPath, found) << bytes.constData();
    }
    EXPECT_EQ(read(""), ParmResult::InputPastEnd);
}

TEST_F(ParmFile, WhatCantBeReadOrWrittenIsReported) {
    QDir(desk.folder.path()).mkdir(u"Parm.dat"_q);
    // The twin of a wave names another file.
    for (const auto& [refused, told] : {std::pair{database, u"エラー番号："_q},
                                        {u"/tmp/𠮷.mdb"_q, u"「𠮷」"_q},
                                        {u"/tmp/\u301C.mdb"_q, u"「〜」"_q},
                                        {u"/tmp/\".mdb"_q, u"「\"」"_q}}) {
        desk.prompts.expect(told);
        EXPECT_FALSE(WriteParm(desk.context, desk.paths.ParmPath, refused)) << told;
    }
}

struct Delivery : ::testing::Test, Desk {
    Delivery() {
        QDir(folder.path()).mkdir(u"share"_q);
        for (const auto& name : {u"Holiday.txt"_q, u"Kurbo.hlp"_q, u"KurboAdm.hlp"_q})
            put(u"share/"_q + name, "new", 10);
    }
    void put(const QString& name, const QByteArray& text, int day) const {
        replaceFile(file(name), text);
        QFile written(file(name));
        const QDateTime time(QDate(2026, 4, day), QTime(12, 0));
        ASSERT_TRUE(written.open(QIODevice::ReadWrite) && written.setFileTime(time, QFileDevice::FileModificationTime));
    }
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
    put(u"share/Kurbo.hlp"_q, "newer", 11);
    put(u"share/Holiday.txt"_q, "newer", 11);
    put(u"KurboAdm.hlp"_q, "own", 12);
    EXPECT_EQ(delivered(), (QByteArrayList{announced, "newer", "own"}));
    deliverFiles(file(u"nowhere"_q), paths, 2026);
    EXPECT_EQ(readFile(paths.helpPath), "newer");
}

} // namespace
} // namespace kurbo::test
