#include "session/shutdown.h"

#include "base/system/files.h"
#include "store/file/database_file.h"
#include "support/sample_company.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kurbo::test {
namespace {

class ShutDown : public SampleCompany {
  protected:
    ShutDown() {
        connection.close();
        client.openHome();
    }
    [[nodiscard]] bool backedUp() const { return QFileInfo::exists(desk.paths.BackupPath); }
};

} // namespace

TEST_F(ShutDown, CompactsAndBacksUp) {
    replaceFile(desk.paths.BackupPath, "older");
    shutDown(client);
    EXPECT_FALSE(client.HomeConnection.isOpen());
    EXPECT_TRUE(checkDatabase(desk.paths.BackupPath).isEmpty());
    EXPECT_EQ(QDir(desk.folder.path()).entryList(QDir::Files), QStringList({u"Backup.mdb"_q, u"store.mdb"_q}));
}

TEST_F(ShutDown, AnotherClientKeepsTheFileAsItIsWithoutAWord) {
    connection.open(path, databasePassword());
    shutDown(client);
    EXPECT_FALSE(backedUp());
    EXPECT_EQ(count(u"C01_Corp"_q), 1);
}

TEST_F(ShutDown, AVanishedFileIsTold) {
    QFile::remove(path);
    desk.prompts.expect(u"データベースファイル "_q + path +
                        u" が見つかりません。\r\nデータベースファイルの保存場所を確認して下さい。"_q);
    shutDown(client);
    QDir(desk.folder.path()).mkdir(u"gone"_q);
    client.DbPath = desk.file(u"gone/store.mdb"_q);
    QDir(desk.folder.path()).rmdir(u"gone"_q);
    desk.prompts.expect(u" のパスが見つかりません。\r\n"_q);
    shutDown(client);
    EXPECT_FALSE(backedUp());
}

TEST_F(ShutDown, AFailedBackupIsReportedAndKeepsTheOldOne) {
    QDir(desk.folder.path()).mkdir(u"Backup.mdb"_q);
    desk.prompts.expect(u"エラー番号："_q);
    shutDown(client);
    EXPECT_EQ(desk.prompts.last().title, u"Kurbo.File－Form_Unload"_q);
    EXPECT_TRUE(checkDatabase(path).isEmpty());
}

} // namespace kurbo::test
