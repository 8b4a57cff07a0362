#include "paper/frmPreview.h"

#include "paper/grid_print.h"
#include "support/desk.h"

#include <QComboBox>
#include <QPointer>
#include <QPrinter>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSpinBox>
#include <QTest>

namespace kurbo::test {
namespace {

// A hundred pages, that counts those it was asked for.
class Counted final : public PaperDocument {
  public:
    explicit Counted(QList<int>& asked) : asked_(asked) {}
    QString Caption() const override { return u"Kurbo－見本/2026"_q; }
    QString DocumentName() const override { return u"Kurboﾄﾞｷｭﾒﾝﾄ"_q; }
    PaperSize paper() const override { return a4Landscape; }
    int pageCount() const override { return 100; }
    PaperPage page(int index) const override {
        asked_.append(index);
        PaperPage page(1);
        page[0].text = QString::number(index);
        addFooter(page, paper(), index, pageCount(), u"2026/04/15"_q);
        return page;
    }

  private:
    QList<int>& asked_;
};

// Is closed by the person after so many steps.
class Patience final : public Progress {
  public:
    void begin(const QString& /*text*/, int maximum) override { maximum_ = maximum; }
    void step(int value) override { value_ = value; }
    void end() override { ++ended_; }
    bool stopped() override { return value_ >= patience_; }

    int patience_ = 1000;
    int maximum_ = 0;
    int value_ = 0;
    int ended_ = 0;
};

class FrmPreview : public ::testing::Test {
  protected:
    FrmPreview() {
        parent.show();
        showPreview(std::make_unique<Counted>(asked), context, &parent);
        EXPECT_TRUE(QTest::qWaitForWindowActive(form()));
        QTest::qWait(1);
    }
    [[nodiscard]] frmPreview* form() const { return parent.findChild<frmPreview*>(); }
    template <typename Part>
    [[nodiscard]] Part& of(const char* name) const {
        return *form()->findChild<Part*>(QString::fromLatin1(name));
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(&of<QWidget>("scrPage"), Qt::Key(key), modifiers);
    }
    [[nodiscard]] int pagesIn(const QString& file) const {
        QFile pdf(file);
        return pdf.open(QIODevice::ReadOnly) ? static_cast<int>(pdf.readAll().count("/Type /Page\n")) : -1;
    }

    Desk desk;
    Patience progress;
    Context context{desk.prompts, desk.clock, desk.paths, progress};
    QList<int> asked;
    QWidget parent;
};

TEST_F(FrmPreview, DrawsOnlyThePageThatIsLookedAt) {
    EXPECT_EQ(form()->windowTitle(), u"Kurbo－見本/2026"_q);
    EXPECT_EQ(asked, QList<int>{0});
    struct Case {
        int key;
        int page;
    };
    for (const Case& c : {Case{Qt::Key_PageDown, 1},
                          {Qt::Key_PageDown, 2},
                          {Qt::Key_PageUp, 1},
                          {Qt::Key_End, 99},
                          {Qt::Key_PageDown, 99},
                          {Qt::Key_Home, 0},
                          {Qt::Key_PageUp, 0}}) {
        press(c.key);
        EXPECT_EQ(form()->Page(), c.page);
        EXPECT_EQ(of<QSpinBox>("txtPage").value(), c.page + 1);
        EXPECT_EQ(of<QPushButton>("cmdNext").isEnabled(), c.page < 99);
        EXPECT_EQ(of<QPushButton>("cmdFirst").isEnabled(), c.page > 0);
    }
    of<QSpinBox>("txtPage").setValue(50);
    EXPECT_EQ(form()->Page(), 49);
    EXPECT_LT(asked.size(), 10);
}

TEST_F(FrmPreview, SizesGoUpAndDown) {
    auto& zoom = of<QComboBox>("cboZoom");
    const auto sheet = [this] { return of<QScrollArea>("scrPage").widget()->width(); };
    EXPECT_EQ(zoom.currentText(), u"ページ全体"_q);
    EXPECT_LE(sheet(), of<QScrollArea>("scrPage").viewport()->width());
    const int whole = sheet();
    press(Qt::Key_Plus);
    EXPECT_GT(sheet(), whole);
    const int larger = sheet();
    press(Qt::Key_Minus);
    EXPECT_LT(sheet(), larger);
    for (int i = 0; i < 12; ++i) press(Qt::Key_Plus);
    EXPECT_EQ(zoom.currentText(), u"300%"_q);
    for (int i = 0; i < 12; ++i) press(Qt::Key_Minus);
    EXPECT_EQ(zoom.currentText(), u"50%"_q);
}

TEST_F(FrmPreview, SavesAPdfWholeOrNotAtAll) {
    const QString file = desk.file(u"a.pdf"_q);
    desk.prompts.expectFile({});
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(QFile::exists(file)) << "the dialog was cancelled";
    EXPECT_EQ(desk.prompts.lastFileQuestion().suggestedName, u"Kurbo－見本-2026.pdf"_q);
    progress.patience_ = 3;
    desk.prompts.expectFile(file);
    of<QPushButton>("cmdPdf").click();
    EXPECT_FALSE(QFile::exists(file)) << "the progress was closed";
    progress.patience_ = 1000;
    progress.value_ = 0;
    desk.prompts.expectFile(file);
    of<QPushButton>("cmdPdf").click();
    EXPECT_EQ(pagesIn(file), 100);
    EXPECT_EQ(progress.maximum_, 100);
    EXPECT_EQ(progress.ended_, 2);
    desk.prompts.expectFile(desk.file(u"no/a.pdf"_q)).expect(u"エラー番号"_q);
    of<QPushButton>("cmdPdf").click();
}

TEST_F(FrmPreview, PrintsTheChosenPages) {
    struct Case {
        QPrinter::PrintRange range;
        int from;
        int to;
        int pages;
    };
    press(Qt::Key_PageDown);
    for (const Case& c : {Case{QPrinter::AllPages, 0, 0, 100},
                          {QPrinter::PageRange, 3, 5, 3},
                          {QPrinter::PageRange, 99, 120, 2},
                          {QPrinter::CurrentPage, 0, 0, 1}}) {
        QPrinter printer(QPrinter::ScreenResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(desk.file(u"p.pdf"_q));
        printer.setPrintRange(c.range);
        printer.setFromTo(c.from, c.to);
        asked.clear();
        form()->printOn(printer);
        EXPECT_EQ(asked.size(), c.pages);
        EXPECT_EQ(asked.first(), c.range == QPrinter::CurrentPage ? 1 : std::max(0, c.from - 1));
    }
}

TEST_F(FrmPreview, OneStandsOverItsParentAndEscClosesIt) {
    const QPointer<frmPreview> first = form();
    GridModel grid;
    grid.reset({.rows = 2, .columns = 2});
    PrintGrid(grid, u"Kurbo－カレンダー設定(2026年)"_q, context, &parent);
    QTest::qWait(1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(first);
    ASSERT_TRUE(form());
    EXPECT_EQ(form()->windowTitle(), u"Kurbo－カレンダー設定(2026年)"_q);
    EXPECT_TRUE(QTest::qWaitForWindowActive(form()));
    const QShortcut own(Qt::Key_Escape, &parent, [this] { parent.close(); });
    press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form());
    EXPECT_TRUE(parent.isVisible());
}

} // namespace
} // namespace kurbo::test
