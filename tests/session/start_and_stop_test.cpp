#include "base/system/files.h"
#include "session/main_order.h"
#include "session/shutdown.h"
#include "store/file/database_file.h"
#include "support/sample_company.h"

#include <QDir>

namespace kurbo::test {
namespace {

// Notes what comes up; frmParm does what the test has it do.
class Screens final : public StartScreens {
  public:
    void showSplash(const QString& warning) override { seen += u"splash(%1) "_q.arg(warning); }
    void hideSplash() override { seen += u"hide "_q; }
    void runParm() override {
        seen += u"parm "_q;
        if (inParm) inParm();
    }
    void showLogin() override { seen += u"login"_q; }

    QString seen;
    std::function<void()> inParm;
};

class Start : public SampleCompany {
  protected:
    Start() {
        connection.close();
        client.DbPath.clear();
    }
    bool start(const QByteArray& parm) {
        if (!parm.isNull()) replaceFile(desk.paths.ParmPath, parm);
        screens.seen.clear();
        return Main(client, screens);
    }
    const QString splash = u"splash(起動中です･･･) "_q;

    Screens screens;
};

class ShutDown : public SampleCompany {
  protected:
    ShutDown() {
        connection.close();
        client.openHome();
    }
};

} // namespace

TEST_F(Start, AGoodDatabaseLeadsToTheMainWindow) {
    replaceFile(desk.file(u"store.ldb"_q), "left by a crash");
    QFile::setPermissions(path, QFile::ReadOwner);
    EXPECT_TRUE(start('"' + path.toUtf8() + "\"\r\n"));
    EXPECT_EQ(screens.seen, splash + u"login"_q);
    EXPECT_EQ(client.DbPath, path);
    EXPECT_FALSE(QFileInfo::exists(desk.file(u"store.ldb"_q)));
    EXPECT_TRUE(QFile::permissions(path).testFlag(QFile::WriteOwner));
}

TEST_F(Start, EveryOtherParmLeadsThroughItsMessageToThePrompt) {
    const QString foreign = desk.file(u"foreign.mdb"_q);
    replaceFile(foreign, "no database");
    for (const auto& [parm, message] :
         {std::pair{QByteArray(), u"データベースファイルの保存場所を設定して下さい。"_q},
          {"\"\"\r\n", u"データベースファイルファイルを指定して下さい。"_q},
          {"\"/no/such.mdb\"\r\n",
           u"データベースファイル\r\n/no/such.mdb\r\nが見つかりません。データベースの保存場所，ファイル名\r\n"
           "に誤りが無いか確認して下さい。\r\nまた、これらが"_q}}) {
        desk.prompts.expect(message);
        EXPECT_TRUE(start(parm));
        EXPECT_EQ(screens.seen, splash + u"parm login"_q);
    }
    desk.prompts.expect(foreign + u"\r\nの形式が異なります。"_q).expect(u"アプリケーションを実行できません。"_q);
    EXPECT_FALSE(start('"' + foreign.toUtf8() + "\"\r\n")) << "closed without another choice";
    EXPECT_EQ(screens.seen, splash + u"parm hide "_q);
    screens.inParm = [this] { client.DbUsable = false; };
    desk.prompts.expect(u"指定して下さい"_q).expect(u"アプリケーションを実行できません。"_q);
    EXPECT_FALSE(start("\"\"\r\n"));
    desk.prompts.expect(u"アプリケーションを実行できません。"_q);
    EXPECT_FALSE(start("")) << "an unreadable one ends at once";
    EXPECT_EQ(screens.seen, splash + u"hide "_q);
}

TEST_F(ShutDown, CompactsAndBacksUp) {
    replaceFile(desk.paths.BackupPath, "older");
    shutDown(client);
    EXPECT_FALSE(client.HomeConnection.isOpen());
    EXPECT_TRUE(checkDatabase(desk.paths.BackupPath).isEmpty());
    EXPECT_EQ(QDir(desk.folder.path()).entryList(QDir::Files), QStringList({u"Backup.mdb"_q, u"store.mdb"_q}));
}

TEST_F(ShutDown, AnotherClientKeepsTheFileAndAVanishedOneIsTold) {
    connection.open(path, databasePassword());
    shutDown(client);
    EXPECT_EQ(count(u"C01_Corp"_q), 1);
    connection.close();
    QFile::remove(path);
    desk.prompts.expect(u"データベースファイル "_q + path +
                        u" が見つかりません。\r\nデータベースファイルの保存場所を確認して下さい。"_q);
    shutDown(client);
    client.DbPath = desk.file(u"gone/store.mdb"_q);
    desk.prompts.expect(u" のパスが見つかりません。\r\n"_q);
    shutDown(client);
    EXPECT_FALSE(QFileInfo::exists(desk.paths.BackupPath));
}

TEST_F(ShutDown, AFailedBackupIsReportedAndKeepsTheOldOne) {
    QDir(desk.folder.path()).mkdir(u"Backup.mdb"_q);
    desk.prompts.expect(u"エラー番号："_q);
    shutDown(client);
    EXPECT_TRUE(checkDatabase(path).isEmpty());
}

} // namespace kurbo::test
