#include "base/system/files.h"
#include "support/desk.h"

#include <QDir>

namespace kurbo::test {

TEST(Files, PathsAreTestedTrimmed) {
    const Desk desk;
    const QString file = desk.file(u"A.mdb"_q);
    replaceFile(file, "x");
    QString spaced = u"  "_q + file + u' ';
    EXPECT_TRUE(CheckPath(spaced) && FileExists(u"  "_q + file));
    EXPECT_EQ(spaced, file);
    QString folder = desk.folder.path();
    EXPECT_TRUE(CheckPath(folder, true) && !CheckPath(folder) && !FileExists(folder) && FileExists(folder, true));
    EXPECT_FALSE(FileExists(desk.file(u"a.mdb"_q), true)) << "a path keeps its letter case";
    for (const QString& each : {u" /a/b "_q, u"/a/b//"_q}) EXPECT_EQ(addSlash(each), u"/a/b/"_q);
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

TEST(Files, AReplacedFileKeepsItsRightsAndAChosenLinkStays) {
    const Desk desk;
    const QString path = desk.file(u"a.csv"_q);
    const QString link = desk.file(u"link.csv"_q);
    replaceFile(path, "old");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::link(path, link));
    replaceFile(chosenFile(link), "new");
    EXPECT_EQ(readFile(path), "new");
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_THROW((void)chosenFile(desk.folder.path()), Complaint);
    replaceFile(link, "own");
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(readFile(path), "new");
    replaceAndKeep(path, "newer");
    replaceAndKeep(path, "newest");
    EXPECT_EQ(readFile(path + u".old"_q) + readFile(path + u".old2"_q) + readFile(path), "newnewernewest");
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
