#include "shell/frmParm.h"

#include "base/system/files.h"
#include "store/file/database_file.h"
#include "support/window.h"

#include <QSignalSpy>

namespace kurbo::test {
namespace {

class FrmParm : public SampleCompany {
  protected:
    FrmParm() { connection.close(); }
    void show(const QString& first) {
        client.DbPath = first;
        form = std::make_unique<frmParm>(client);
        form->show();
    }
    void SetUp() override { show(path); }
    [[nodiscard]] QLineEdit& box() const { return named<QLineEdit>(*form, "txtDB"); }
    void press(const char* button) const { named<QPushButton>(*form, button).click(); }
    [[nodiscard]] QString other(const QString& name) const {
        createDatabase(desk.file(name));
        return desk.file(name);
    }

    std::unique_ptr<frmParm> form;
};

TEST_F(FrmParm, AMissingFileIsAskedAboutUntilThePersonStops) {
    box().setText(desk.file(u"none.mdb"_q));
    desk.prompts.expect(u"指定したパスが見つかりません。設定を中断しますか？"_q, Answer::No);
    press("cmdOK");
    EXPECT_TRUE(form->isVisible() && client.DbUsable);
    desk.prompts.expect(u"指定したパスが見つかりません。"_q, Answer::Yes);
    form->close();
    EXPECT_FALSE(form->isVisible() || client.DbUsable);
    const QString text = desk.file(u"text.mdb"_q);
    replaceFile(text, "no database");
    show(path);
    box().setText(text);
    desk.prompts.expect(text + u"\r\nの形式が異なります。設定を中断しますか？"_q, Answer::Yes);
    press("cmdOK");
    EXPECT_FALSE(client.DbUsable || QFile::exists(desk.paths.ParmPath));
    EXPECT_EQ(client.DbPath, path);
}

TEST_F(FrmParm, AGoodFileIsTakenOverHoweverTheFormIsLeft) {
    const QSignalSpy chosen(form.get(), &frmParm::databaseChosen);
    const QString chosenPath = other(u"other.mdb"_q);
    client.DbUsable = false;
    desk.prompts.expectFile(chosenPath);
    press("cmdDB");
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_TRUE(client.DbUsable && !form->isVisible() && client.DbPath == chosenPath);
    EXPECT_EQ(client.CurrentConnection->path(), chosenPath);
    EXPECT_EQ(readFile(desk.paths.ParmPath), '"' + chosenPath.toLocal8Bit() + "\"\r\n");
}

TEST_F(FrmParm, WithoutAPathThereIsNothingToGoOnWith) {
    show({});
    box().setText(u"  "_q);
    EXPECT_FALSE(named<QPushButton>(*form, "cmdOK").isEnabled());
    box().setText(u"x"_q);
    EXPECT_TRUE(named<QPushButton>(*form, "cmdOK").isEnabled());
    press("cmdCancel");
    EXPECT_FALSE(client.DbUsable);
}

} // namespace
} // namespace kurbo::test
