#include "base/system/files.h"
#include "store/connection.h"
#include "store/engine_fault.h"
#include "store/file/database_file.h"
#include "store/file/is_db_ok.h"
#include "store/schema.h"
#include "support/sample_company.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

namespace kurbo::test {
namespace {

class BadFile : public SampleCompany {
  protected:
    BadFile() { connection.close(); }

    // The number of the fault of opening `name`, 0 when it opens.
    std::int64_t opened(const QString& name, const QString& password = databasePassword()) {
        Connection opening;
        return refusalOf([&] { opening.open(name, password); }).toLongLong();
    }

    static void runEngine(const QString& path, const QByteArray& sql) {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(database);
    }
};

} // namespace

TEST_F(BadFile, EachKindHasItsOwnNumber) {
    const QByteArray whole = readFile(path);
    const auto made = [&](const QString& name, const QByteArray& bytes) {
        replaceFile(desk.file(name), bytes);
        return desk.file(name);
    };
    runEngine(desk.file(u"foreign.mdb"_q), "CREATE TABLE C02_Section (F_DB)");
    const QString newer = made(u"newer.mdb"_q, whole);
    runEngine(newer, "PRAGMA user_version=" + QByteArray::number(schemaVersion + 1));
    const QString unsealed = made(u"unsealed.mdb"_q, whole);
    runEngine(unsealed, "DROP VIEW S_Seal");

    for (const auto& [name, number] : {std::pair{desk.file(u"none.mdb"_q), StoreError::NoFile},
                                       {desk.file(u"none/a.mdb"_q), StoreError::NoPath},
                                       {desk.folder.path(), StoreError::NotMdb},
                                       {made(u"empty.mdb"_q, {}), StoreError::NotMdb},
                                       {made(u"text.mdb"_q, QByteArray(4000, 'x')), StoreError::NotMdb},
                                       {desk.file(u"foreign.mdb"_q), StoreError::NotMdb},
                                       {newer, StoreError::Newer},
                                       {unsealed, StoreError::NoTable},
                                       {made(u"cut.mdb"_q, whole.left(20000)), StoreError::Damaged}}) {
        EXPECT_EQ(opened(name), static_cast<std::int64_t>(number)) << name;
        EXPECT_FALSE(IsDbOK(name)) << name;
        EXPECT_FALSE(QFileInfo::exists(LockFile::nameFor(name))) << name;
    }
    EXPECT_EQ(opened(path, u"kiso4725"_q), static_cast<int>(StoreError::WrongPassword));
    EXPECT_EQ(opened(path), 0);
    EXPECT_TRUE(IsDbOK(path));
    EXPECT_EQ(readFile(path), whole);
}

TEST_F(BadFile, AReadOnlyPlaceCanBeReadAndAClosedOneIsToldApart) {
    {
        const AsNobody nobody;
        Connection reader;
        reader.open(path, databasePassword());
        EXPECT_EQ(refusalOf([&] { reader.execute(u"DELETE * FROM C01_Corp;"_q); }),
                  QString::number(static_cast<int>(StoreError::ReadOnly)));
        EXPECT_TRUE(reader.hasRow(u"SELECT F_Corp FROM C01_Corp;"_q));
    }
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    const AsNobody nobody;
    EXPECT_EQ(opened(path), static_cast<int>(StoreError::NoAccess));
}

TEST_F(BadFile, CheckTellsWhatIsWrong) {
    EXPECT_TRUE(checkDatabase(path).isEmpty());
    runEngine(path, "PRAGMA foreign_keys=OFF; INSERT INTO T02_Kurbo (F_KurboID, F_DateID) VALUES (1, '19990101');"
                    "DROP TABLE T04_Destination; DROP INDEX I_01");
    const QStringList wrong = checkDatabase(path);
    ASSERT_GE(wrong.size(), 3);
    EXPECT_TRUE(wrong.contains(u"index missing: I_01"_q));
    EXPECT_TRUE(wrong[0].contains(u"T02_Kurbo"_q));
    EXPECT_TRUE(wrong[1].contains(u"T04_Destination"_q));
}

TEST_F(BadFile, ANewDatabaseHasTheReservedRecordsAndNoMore) {
    const QString fresh = desk.file(u"fresh.mdb"_q);
    createDatabase(fresh);
    EXPECT_THROW(createDatabase(fresh), Fault) << "the file is there";
    connection.open(fresh, databasePassword());
    EXPECT_EQ(tableNames().size(), 16);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM sqlite_master WHERE type = 'table'"_q), u"16"_q);
    int rows = 0;
    for (const QString& table : tableNames()) rows += count(table);
    EXPECT_EQ(rows, 10);
    EXPECT_EQ(asked(u"SELECT F_StaffName FROM C03_Staff WHERE F_StaffCode = 'NEW'"_q), u"新しい社員"_q);
    EXPECT_EQ(asked(u"SELECT F_WeekdayName FROM M03_WeekdayStyle WHERE F_WeekdayCode = 0"_q), u"新しい勤務時間"_q);
    EXPECT_EQ(asked(u"SELECT F_Access FROM M02_StaffInfo WHERE F_StaffCode = 'ADMIN' AND F_Password = 'admin'"_q),
              u"-"_q);
}

} // namespace kurbo::test
