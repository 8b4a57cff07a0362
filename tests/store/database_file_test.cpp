#include "base/system/files.h"
#include "store/engine_fault.h"
#include "store/file/database_file.h"
#include "store/file/is_db_ok.h"
#include "store/file/optimize_db.h"
#include "store/schema.h"
#include "support/child.h"
#include "support/sample_company.h"

#include <sqlite3.h>

#include <QDir>

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
    runEngine(path, "PRAGMA foreign_keys=OFF; INSERT INTO T02_Kurbo (F_KurboID, F_DateID) VALUES (1, '19990101');"
                    "DROP TABLE T04_Destination; DROP INDEX I_01");
    const QStringList wrong = checkDatabase(path);
    ASSERT_GE(wrong.size(), 3);
    EXPECT_TRUE(wrong.contains(u"index missing: I_01"_q));
    EXPECT_TRUE(wrong[0].contains(u"T02_Kurbo"_q) && wrong[1].contains(u"T04_Destination"_q));
}

TEST_F(BadFile, ANewDatabaseHasTheReservedRecordsAndNoMore) {
    const QString fresh = desk.file(u"fresh.mdb"_q);
    createDatabase(fresh);
    EXPECT_THROW(createDatabase(fresh), Fault) << "the file is there";
    connection.open(fresh, databasePassword());
    EXPECT_EQ(asked(u"SELECT Count(*) FROM sqlite_master WHERE type = 'table'"_q), u"16"_q);
    int rows = 0;
    for (const QString& table : tableNames()) rows += count(table);
    EXPECT_EQ(rows, 10);
}

namespace {

class Optimize : public SampleCompany {
  protected:
    OptimizeResult run(const QString& name, const QString& password = databasePassword()) {
        return OptimizeDB(desk.context, name, password);
    }
    [[nodiscard]] QString files() const { return QDir(desk.folder.path()).entryList(QDir::Files).join(u" "_q); }
};

} // namespace

TEST_F(Optimize, MakesTheFileSmallerAndKeepsItWhole) {
    {
        Transaction transaction(connection);
        for (int id = 1; id <= 5000; ++id) addCard(id, today, u"09:00"_q, u"17:00"_q);
        transaction.commit();
    }
    connection.execute(u"DELETE * FROM T02_Kurbo WHERE F_KurboID > 10;"_q);
    connection.close();
    const qint64 before = QFileInfo(path).size();
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    replaceFile(desk.file(u"store.bak"_q), "left by a crash between copying and renaming");
    EXPECT_EQ(run(path), OptimizeResult::OK);
    EXPECT_LT(QFileInfo(path).size(), before / 2);
    EXPECT_EQ(files(), u"store.mdb"_q);
    EXPECT_EQ(QFile::permissions(path) & QFile::ReadOther, QFile::Permissions());
    connection.open(path, databasePassword());
    EXPECT_EQ(count(u"T02_Kurbo"_q), 10);
    EXPECT_TRUE(checkDatabase(path).isEmpty());
}

TEST_F(Optimize, EachRefusalHasItsWordAndTouchesNothing) {
    EXPECT_EQ(run(path), OptimizeResult::ExistLdb) << "this very test is connected";
    connection.close();
    const QByteArray whole = readFile(path);

    sqlite3* tool = nullptr;
    sqlite3_open(path.toUtf8().constData(), &tool);
    sqlite3_exec(tool, "BEGIN; SELECT * FROM C01_Corp", nullptr, nullptr, nullptr);
    EXPECT_EQ(run(path), OptimizeResult::Opened);
    sqlite3_close(tool);

    EXPECT_EQ(run(desk.file(u"none.mdb"_q)), OptimizeResult::NoFile);
    replaceFile(desk.file(u"TEXT.MDB"_q), "no database");
    EXPECT_EQ(run(desk.file(u"TEXT.MDB"_q)), OptimizeResult::NotMdb);

    desk.prompts.expect(u"パスワード"_q);
    EXPECT_EQ(run(path, u"other"_q), OptimizeResult::Error);
    desk.prompts.expect(u"壊れています"_q);
    replaceFile(desk.file(u"cut.mdb"_q), whole.left(whole.size() - 8192));
    EXPECT_EQ(run(desk.file(u"cut.mdb"_q)), OptimizeResult::Error);
    {
        const AsNobody nobody;
        desk.prompts.expect(u"書き込みが許可されていません"_q);
        EXPECT_EQ(run(path), OptimizeResult::Error);
    }
    EXPECT_EQ(readFile(path), whole);
    EXPECT_EQ(files(), u"cut.mdb Error.log store.mdb TEXT.MDB"_q);
}

TEST_F(Optimize, FollowsALinkAndKeepsTheGroup) {
    connection.close();
    const QString link = desk.file(u"link.mdb"_q);
    ASSERT_TRUE(QFile::link(path, link));
    const bool root = ::geteuid() == 0;
    if (root && ::chown(path.toUtf8().constData(), 0, 100) != 0) ADD_FAILURE() << "no other group";
    EXPECT_EQ(run(link), OptimizeResult::OK);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(!root || QFileInfo(path).groupId() == 100U);
    connection.open(link, databasePassword());
    EXPECT_TRUE(QFileInfo::exists(desk.file(u"store.ldb"_q))) << "one lock file, whatever the name";
    EXPECT_EQ(run(path), OptimizeResult::ExistLdb);
    connection.close();
    ASSERT_EQ(::link(path.toUtf8().constData(), desk.file(u"twin.mdb"_q).toUtf8().constData()), 0);
    EXPECT_EQ(run(path), OptimizeResult::Opened) << "a second name would keep the old contents";
    copyDatabase(path, link);
    EXPECT_TRUE(QFileInfo(link).isSymLink()) << "a file is not copied over itself";
}

TEST_F(Optimize, WhateverACrashLeavesIsForNobodyElse) {
    connection.close();
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    int call = 0;
    for (int end = -1; end != 0;) {
        ++call;
        end = endOf(startChild([&] {
            failAtCall(DiskFailure::Killed, call);
            if (run(path) != OptimizeResult::OK) return 1;
            copyDatabase(path, desk.paths.BackupPath);
            return 0;
        }));
        for (const QString& name : files().split(u" "_q)) {
            EXPECT_EQ(QFile::permissions(desk.file(name)) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions())
                << name;
            if (name != u"store.mdb") QFile::remove(desk.file(name));
        }
    }
    EXPECT_GT(call, 50);
}

} // namespace kurbo::test
