#include "session/main_order.h"

#include "base/system/files.h"
#include "session/parm_file.h"
#include "support/sample_company.h"

#include <QFile>
#include <QFileInfo>

#include <functional>

namespace kurbo::test {
namespace {

// Notes what comes up; frmParm does what the test has it do.
class Screens final : public StartScreens {
  public:
    void showSplash(const QString& warning) override { seen += u"splash("_q + warning + u") "_q; }
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
    const QString toLogin = u"splash(起動中です･･･) login"_q;
    const QString toParm = u"splash(起動中です･･･) parm "_q;

    Screens screens;
};

} // namespace

TEST_F(Start, AGoodDatabaseLeadsToTheMainWindow) {
    replaceFile(desk.file(u"store.ldb"_q), "left by a crash");
    QFile::setPermissions(path, QFile::ReadOwner);
    EXPECT_TRUE(start('"' + path.toUtf8() + "\"\r\n"));
    EXPECT_EQ(screens.seen, toLogin);
    EXPECT_EQ(client.DbPath, path);
    EXPECT_FALSE(QFileInfo::exists(desk.file(u"store.ldb"_q)));
    EXPECT_TRUE(QFile::permissions(path).testFlag(QFile::WriteOwner));
}

TEST_F(Start, EveryOtherParmLeadsThroughItsMessageToThePrompt) {
    const QString foreign = desk.file(u"foreign.mdb"_q);
    replaceFile(foreign, "no database");
    struct Case {
        QByteArray parm;
        QString message;
    };
    for (const auto& [parm, message] :
         {Case{{}, u"データベースファイルの保存場所を設定して下さい。"_q},
          Case{"\"\"\r\n", u"データベースファイルファイルを指定して下さい。"_q},
          Case{"\"/no/such.mdb\"\r\n",
               u"データベースファイル\r\n/no/such.mdb\r\nが見つかりません。データベースの保存場所，ファイル名\r\n"
               "に誤りが無いか確認して下さい。\r\nまた、これらが"_q}}) {
        desk.prompts.expect(message);
        EXPECT_TRUE(start(parm));
        EXPECT_EQ(screens.seen, toParm + u"login"_q);
    }
    EXPECT_EQ(desk.prompts.seen()[1].title, u"Welcom! Kurbo"_q);
    desk.prompts.expect(foreign + u"\r\nの形式が異なります。"_q).expect(u"アプリケーションを実行できません。"_q);
    EXPECT_FALSE(start('"' + foreign.toUtf8() + "\"\r\n")) << "closed without another choice";
    EXPECT_EQ(screens.seen, toParm + u"hide "_q);
}

TEST_F(Start, ANewChoiceInThePromptIsTaken) {
    desk.prompts.expect(u"指定して下さい"_q);
    screens.inParm = [this] { client.DbPath = path; };
    EXPECT_TRUE(start("\"\"\r\n"));
    screens.inParm = [this] { client.DbUsable = false; };
    desk.prompts.expect(u"指定して下さい"_q).expect(u"アプリケーションを実行できません。"_q);
    EXPECT_FALSE(start("\"\"\r\n"));
}

TEST_F(Start, AnUnreadableParmEndsAtOnce) {
    desk.prompts.expect(u"アプリケーションを実行できません。"_q);
    EXPECT_FALSE(start(""));
    EXPECT_EQ(screens.seen, u"splash(起動中です･･･) hide "_q);
    EXPECT_EQ(desk.prompts.last().icon, Icon::Exclamation);
    EXPECT_FALSE(QFileInfo::exists(desk.file(u"Error.log"_q)));
}

} // namespace kurbo::test
