#include "totals/frmTotal.h"

#include "card/card_office.h"
#include "paper/frmPreview.h"
#include "screen/fields/data_combo.h"
#include "screen/fields/masked_box.h"
#include "support/window.h"
#include "totals/csv/csv_file.h"

#include <QRadioButton>
#include <QTimer>

namespace kurbo::test {
namespace {

class FrmTotal : public Window<frmTotal, CardOffice> {
  protected:
    FrmTotal() {
        insert("T05_Approved", "Staff, Section, Year, Month, WorkDay, Work, PaidTotal",
               u"'1001', 'S01', '2026', '04', 20, 9000, 12.5"_q);
        logIn(u"1002"_q);
        show();
    }
    [[nodiscard]] GridModel& cells() const { return *of<Grid>("vfgKurbo").grid(); }
    [[nodiscard]] QString span() const {
        return of<MaskedBox>("mskStart").maskText() + u'-' + of<MaskedBox>("mskEnd").maskText();
    }
};

TEST_F(FrmTotal, IsWorkedByItsControls) {
    EXPECT_EQ(span(), u"2026/04-2026/04"_q);
    EXPECT_TRUE(of<QRadioButton>("optMethod_0").isChecked());
    EXPECT_FALSE(isUpdatable() || of<QAction>("mnuDelete").isEnabled());
    click("optMethod_1");
    EXPECT_EQ(cells().TextMatrix(1, 1), u"2026年 04月"_q);
    click("optMonth_5");
    EXPECT_EQ(span(), u"2026/05-2026/05"_q);
    QTest::keyClick(&of<QWidget>("mskStart"), Qt::Key_Down);
    auto* const names = &of<DataCombo>("dcbStaff");
    names->setBoundText(u"1001"_q);
    Q_EMIT names->activated(names->currentIndex());
    EXPECT_EQ(span(), u"2026/04-2026/05"_q);
    EXPECT_EQ(cells().Rows(), 1 + 2 + 2);
    typeCell(of<Grid>("vfgKurbo"), 1, 3, u"19"_q);
    EXPECT_TRUE(isUpdatable());
    desk.prompts.expect(u"集計データは変更されています。変更を破棄しますか？"_q, Answer::No)
        .expect(u"追加・変更を更新します。"_q);
    EXPECT_FALSE(form->close());
    click("cmdUpdate");
    EXPECT_EQ(asked(u"SELECT F_WorkDay FROM T05_Approved"_q), u"19"_q);
}

TEST_F(FrmTotal, MonthsOutOfAFileAreLookedAtAndEntered) {
    const QString file = desk.file(u"months.csv"_q);
    MonthRecord record{u"1003"_q, u"S01"_q, u"2026"_q, u"04"_q, {}, true, false, {}};
    record.figures.fill(Value(0));
    record.figures[1] = Value(630);
    ASSERT_EQ(CsvSaveTotal(desk.context, file, {record}), 1);
    QString seen;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* const csv = QApplication::activeModalWidget();
        ASSERT_TRUE(csv);
        const GridModel& grid = *csv->findChild<Grid*>(u"vfgCsv"_q)->grid();
        for (const int column : {0, 1, 2, 3, 4, 6, 23}) seen += grid.CellText(1, column) + u' ';
        desk.prompts.expect(u"データベースに登録します。"_q).expect(u"1件の月次集計データを登録しました。"_q);
        csv->findChild<QPushButton*>(u"cmdAddDB"_q)->click();
    });
    connection.execute(u"UPDATE M08_Access SET F_WriteOtherMonthly = True"_q);
    desk.prompts.expectFiles({file});
    trigger("mnuLoadCsv");
    EXPECT_EQ(seen, u"months.csv 佐藤次郎 総務部 2026年 04月 10:30 済 "_q);
    EXPECT_EQ(asked(u"SELECT F_Work FROM T05_Approved WHERE (F_Staff = '1003')"_q), u"630"_q);
}

TEST_F(FrmTotal, PrintsWhatItShows) {
    click("cmdPrint");
    EXPECT_EQ(form->findChild<frmPreview*>()->windowTitle(), u"Kurbo－集計"_q);
}

} // namespace
} // namespace kurbo::test
