#include "shell/frmParm.h"

#include "base/system/files.h"
#include "shell/office.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace kurbo {
namespace {

class FrmParm : public Office {
  protected:
    void SetUp() override {
        good = client.DbPath;
        client.DbPath = first();
        form = std::make_unique<frmParm>(client);
        form->show();
    }

    [[nodiscard]] virtual QString first() const { return good; }
    void type(const QString& path) const { form->findChild<QLineEdit*>(QStringLiteral("txtDB"))->setText(path); }
    [[nodiscard]] QString typed() const { return form->findChild<QLineEdit*>(QStringLiteral("txtDB"))->text(); }
    void press(const char* name) const { form->findChild<QPushButton*>(QString::fromLatin1(name))->click(); }
    [[nodiscard]] QString other(const QString& name) const {
        const QString path = folder.filePath(name);
        createDatabase(path);
        return path;
    }

    QString good;
    std::unique_ptr<frmParm> form;
};

class FrmParmAtFirstStart : public FrmParm {
  protected:
    [[nodiscard]] QString first() const override { return {}; }
};

TEST_F(FrmParm, AMissingFileIsAskedAboutUntilThePersonStops) {
    type(folder.filePath(QStringLiteral("none.mdb")));
    prompts.expect(QStringLiteral("指定したパスが見つかりません。設定を中断しますか？"), Answer::No);
    press("cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(prompts.last().preset, Answer::Yes);
    EXPECT_TRUE(client.DbUsable);
    prompts.expect(QStringLiteral("指定したパスが見つかりません。"), Answer::Yes);
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(client.DbUsable);
    EXPECT_EQ(client.DbPath, good);
}

TEST_F(FrmParm, AForeignFileIsToldApartFromAMissingOne) {
    const QString text = folder.filePath(QStringLiteral("text.mdb"));
    replaceFile(text, "no database");
    type(text);
    prompts.expect(QStringLiteral("の形式が異なります。設定を中断しますか？"), Answer::Yes);
    press("cmdOK");
    EXPECT_TRUE(prompts.last().text.contains(text));
    EXPECT_FALSE(client.DbUsable);
    EXPECT_FALSE(QFile::exists(paths.ParmPath));
}

TEST_F(FrmParm, AGoodFileIsTakenOverHoweverTheFormIsLeft) {
    const QSignalSpy chosen(form.get(), &frmParm::databaseChosen);
    const QString path = other(QStringLiteral("other.mdb"));
    client.DbUsable = false;
    prompts.expectFile(path);
    press("cmdDB");
    EXPECT_EQ(typed(), path);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_TRUE(client.DbUsable);
    EXPECT_EQ(client.DbPath, path);
    EXPECT_EQ(client.CurrentConnection->path(), path);
    EXPECT_EQ(readFile(paths.ParmPath), '"' + path.toLocal8Bit() + "\"\r\n");
}

TEST_F(FrmParm, WhatParmDatCannotHoldLeavesTheOldDatabase) {
    client.openHome();
    type(other(QStringLiteral("😀.mdb")));
    prompts.expect(QStringLiteral("使用できない文字")).expect(QStringLiteral("フォルダ設定に失敗しました。"));
    press("cmdOK");
    EXPECT_FALSE(client.DbUsable);
    EXPECT_EQ(client.DbPath, good);
    EXPECT_FALSE(client.HomeConnection.isOpen());
}

TEST_F(FrmParm, CancelKeepsAGoodPath) {
    type(QStringLiteral("/none"));
    press("cmdCancel");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(client.DbUsable);
    EXPECT_EQ(client.DbPath, good);
}

TEST_F(FrmParmAtFirstStart, WithoutAPathThereIsNothingToGoOnWith) {
    const auto* const ok = form->findChild<QPushButton*>(QStringLiteral("cmdOK"));
    EXPECT_FALSE(ok->isEnabled());
    type(QStringLiteral("  "));
    EXPECT_FALSE(ok->isEnabled());
    type(QStringLiteral("x"));
    EXPECT_TRUE(ok->isEnabled());
    press("cmdCancel");
    EXPECT_FALSE(client.DbUsable);
}

} // namespace
} // namespace kurbo
