#include "base/files.h"
#include "support/desk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kurbo::test {

TEST(Files, PathsAreTestedTrimmed) {
    const Desk desk;
    replaceFile(desk.file(u"A.mdb"_q), "x");
    QString path = u"  "_q + desk.file(u"A.mdb"_q) + u' ';
    EXPECT_TRUE(CheckPath(path));
    EXPECT_EQ(path, desk.file(u"A.mdb"_q));
    EXPECT_FALSE(CheckPath(path, true));
    QString folder = desk.folder.path();
    EXPECT_TRUE(CheckPath(folder, true));
    EXPECT_FALSE(CheckPath(folder));
    QString other = desk.file(u"a.mdb"_q);
    EXPECT_FALSE(CheckPath(other)) << "a path keeps its letter case";
    QString empty = u"  "_q;
    EXPECT_FALSE(CheckPath(empty));
    EXPECT_EQ(addSlash(u" /a/b "_q), u"/a/b/"_q);
    EXPECT_EQ(addSlash(u"/a/b/"_q), u"/a/b/"_q);
}

TEST(Files, AFailedReplaceKeepsTheOldFile) {
    const Desk desk;
    const QString path = desk.file(u"Parm.dat"_q);
    replaceFile(path, "old");
    {
        const AsNobody nobody;
        EXPECT_THROW(replaceFile(path, "new"), Fault);
    }
    EXPECT_EQ(readFile(path), QByteArray("old"));
    EXPECT_EQ(QDir(desk.folder.path()).entryList(QDir::Files).size(), 1);
}

TEST(Files, AppFolderIsThePrograms_UnlessItCantBeWritten) {
    const Desk desk;
    QDir(desk.folder.path()).mkdir(u"program"_q);
    const QString program = desk.file(u"program"_q);
    EXPECT_EQ(chooseAppFolder(program, desk.file(u"user"_q)), program);
    QDir(desk.folder.path()).mkdir(u"open"_q);
    QFile::setPermissions(desk.folder.path(), QFile::Permissions(0x7777));
    const AsNobody nobody;
    EXPECT_EQ(chooseAppFolder(program, desk.file(u"user"_q)), desk.file(u"user"_q));
    EXPECT_TRUE(QFileInfo(desk.file(u"user"_q)).isDir());
}

} // namespace kurbo::test
