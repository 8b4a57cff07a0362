#include "store/file/optimize_db.h"

#include "base/system/files.h"
#include "store/file/database_file.h"
#include "support/child.h"
#include "support/sample_company.h"

#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace kurbo::test {
namespace {

class Optimize : public SampleCompany {
  protected:
    QString run(const QString& name, const QString& password = databasePassword()) {
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
    EXPECT_EQ(run(path), u"OK"_q);
    EXPECT_LT(QFileInfo(path).size(), before / 2);
    EXPECT_EQ(files(), u"store.mdb"_q);
    EXPECT_EQ(QFile::permissions(path) & QFile::ReadOther, QFile::Permissions());
    connection.open(path, databasePassword());
    EXPECT_EQ(count(u"T02_Kurbo"_q), 10);
    EXPECT_TRUE(checkDatabase(path).isEmpty());
}

TEST_F(Optimize, EachRefusalHasItsWordAndTouchesNothing) {
    EXPECT_EQ(run(path), u"ExistLdb"_q) << "this very test is connected";
    connection.close();
    const QByteArray whole = readFile(path);
    replaceFile(desk.file(u"store.ldb"_q), {});
    EXPECT_EQ(run(path), u"ExistLdb"_q) << "left by a crash";
    QFile::remove(desk.file(u"store.ldb"_q));

    sqlite3* tool = nullptr;
    sqlite3_open(path.toUtf8().constData(), &tool);
    sqlite3_exec(tool, "BEGIN; SELECT * FROM C01_Corp", nullptr, nullptr, nullptr);
    EXPECT_EQ(run(path), u"Opened"_q);
    sqlite3_close(tool);

    EXPECT_EQ(run(desk.file(u"none.mdb"_q)), u"NoFile"_q);
    EXPECT_EQ(run(desk.file(u"none/a.mdb"_q)), u"NoPath"_q);
    EXPECT_EQ(run(desk.file(u"store.txt"_q)), u"NotMdb"_q);
    replaceFile(desk.file(u"TEXT.MDB"_q), "no database");
    EXPECT_EQ(run(desk.file(u"TEXT.MDB"_q)), u"NotMdb"_q);

    desk.prompts.expect(u"パスワード"_q);
    EXPECT_EQ(run(path, u"other"_q), u"Error"_q);
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.Store－OptimizeDB"_q);
    desk.prompts.expect(u"壊れています"_q);
    replaceFile(desk.file(u"cut.mdb"_q), whole.left(whole.size() - 8192));
    EXPECT_EQ(run(desk.file(u"cut.mdb"_q)), u"Error"_q);
    EXPECT_EQ(readFile(desk.file(u"cut.mdb"_q)), whole.left(whole.size() - 8192));
    {
        const AsNobody nobody;
        desk.prompts.expect(u"書き込みが許可されていません"_q);
        EXPECT_EQ(run(path), u"Error"_q);
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
    EXPECT_EQ(run(link), u"OK"_q);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(!root || QFileInfo(path).groupId() == 100U);
    connection.open(link, databasePassword());
    EXPECT_TRUE(QFileInfo::exists(desk.file(u"store.ldb"_q))) << "one lock file, whatever the name";
    EXPECT_EQ(run(path), u"ExistLdb"_q);
    connection.close();
    ASSERT_EQ(::link(path.toUtf8().constData(), desk.file(u"twin.mdb"_q).toUtf8().constData()), 0);
    EXPECT_EQ(run(path), u"Opened"_q) << "a second name would keep the old contents";
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
            if (run(path) != u"OK") return 1;
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

TEST_F(Optimize, BackupIsAWholeCopyWhileOthersWork) {
    const QString backup = desk.file(u"Backup.mdb"_q);
    replaceFile(backup, "older");
    copyDatabase(path, backup);
    EXPECT_TRUE(checkDatabase(backup).isEmpty());
    const QByteArray whole = readFile(backup);
    EXPECT_THROW(copyDatabase(desk.file(u"none.mdb"_q), backup), Fault);
    EXPECT_EQ(readFile(backup), whole);
}

} // namespace kurbo::test
