#include "paper/frmPreview.h"

#include "base/system/files.h"
#include "paper/grid_print.h"
#include "support/window.h"

#include <QComboBox>
#include <QDir>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QSpinBox>

#include <csignal>
#include <sys/resource.h>

namespace kurbo::test {
namespace {

// A hundred pages, that counts those it was asked for.
class Counted final : public PaperDocument {
  public:
    explicit Counted(QList<int>& asked) : asked_(asked) {}
    QString Caption() const override { return u"Kurbo－見本/2026"_q; }
    QString FileName() const override { return u"見本/2026"_q; }
    QString DocumentName() const override { return Caption(); }
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
    void begin(const QString& /*text*/, int /*maximum*/) override {}
    void step(int value) override { stopped_ = value >= patience_; }
    void end() override { stopped_ = false; }
    bool stopped() override { return stopped_; }

    int patience_ = 1000;
    bool stopped_ = false;
};

class FrmPreview : public ::testing::Test {
  protected:
    FrmPreview() {
        parent.show();
        showPreview(std::make_unique<Counted>(asked), client, &parent);
        EXPECT_TRUE(QTest::qWaitForWindowActive(form()));
        QTest::qWait(1);
    }
    [[nodiscard]] frmPreview* form() const { return parent.findChild<frmPreview*>(); }
    template <typename Part>
    [[nodiscard]] Part& of(const char* name) const {
        return named<Part>(*form(), name);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(&of<QWidget>("scrPage"), Qt::Key(key), modifiers);
    }
    [[nodiscard]] static auto pagesIn(const QString& file) { return readFile(file).count("/Type /Page\n"); }

    Desk desk;
    Patience progress;
    Context context{desk.prompts, desk.clock, desk.paths, progress};
    Client client{context};
    QList<int> asked;
    QWidget parent;
};

TEST_F(FrmPreview, DrawsOnlyThePageThatIsLookedAt) {
    EXPECT_EQ(form()->windowTitle(), u"Kurbo－見本/2026"_q);
    EXPECT_EQ(asked, QList<int>{0});
    for (const auto& [key, page] : {std::tuple{Qt::Key_PageDown, 1},
                                    {Qt::Key_PageUp, 0},
                                    {Qt::Key_End, 99},
                                    {Qt::Key_PageDown, 99},
                                    {Qt::Key_Home, 0},
                                    {Qt::Key_PageUp, 0}}) {
        press(key);
        EXPECT_TRUE(form()->Page() == page && of<QSpinBox>("txtPage").value() == page + 1) << page;
        EXPECT_EQ(of<QPushButton>("cmdNext").isEnabled(), page < 99);
    }
    EXPECT_LT(asked.size(), 10);
}

TEST_F(FrmPreview, SizesGoUpAndDown) {
    auto& zoom = of<QComboBox>("cboZoom");
    for (const auto& [key, size] : {std::pair{Qt::Key_Plus, u"300%"_q}, {Qt::Key_Minus, u"50%"_q}}) {
        for (int i = 0; i < 12; ++i) press(key);
        EXPECT_EQ(zoom.currentText(), size);
    }
    zoom.setCurrentText(u"200%"_q);
    press(Qt::Key_PageDown);
    EXPECT_EQ(form()->Page(), 0) << "an enlarged page is scrolled before it is turned";
}

TEST_F(FrmPreview, SavesAPdfWholeOrNotAtAll) {
    const QString file = desk.file(u"a.pdf"_q);
    progress.patience_ = 3;
    desk.prompts.expectFile(file);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk.prompts.lastFileQuestion().suggestedName, u"見本-2026.pdf"_q);
    EXPECT_FALSE(QFile::exists(file)) << "the progress was closed";
    progress.patience_ = 1000;
    desk.prompts.expectFile(file);
    of<QPushButton>("cmdPdf").click();
    EXPECT_EQ(pagesIn(file), 100);
    for (const auto& [place, told] :
         {std::pair{u"no/a.pdf"_q, u"エラー番号"_q}, {QString(), u"ファイルではないため、保存できません。"_q}}) {
        desk.prompts.expectFile(desk.file(place)).expect(told);
        of<QPushButton>("cmdPdf").click();
    }
}

TEST_F(FrmPreview, PrintsTheChosenPages) {
    press(Qt::Key_PageDown);
    for (const auto& [range, from, to, first, pages] : {std::tuple{QPrinter::AllPages, 0, 0, 0, 100},
                                                        {QPrinter::PageRange, 3, 5, 2, 3},
                                                        {QPrinter::PageRange, 99, 120, 98, 2},
                                                        {QPrinter::CurrentPage, 0, 0, 1, 1}}) {
        QPrinter printer(QPrinter::ScreenResolution);
        printer.setOutputFileName(desk.file(u"p.pdf"_q));
        printer.setPrintRange(range);
        printer.setFromTo(from, to);
        asked.clear();
        form()->printOn(printer);
        EXPECT_EQ(asked.first(), first);
        EXPECT_EQ(pagesIn(desk.file(u"p.pdf"_q)), pages);
    }
}

// What can't be written is told, and the file that was there stays.
TEST_F(FrmPreview, PrintsToAFileWholeOrNotAtAll) {
    const QString file = desk.file(u"p.pdf"_q);
    replaceFile(file, "old");
    rlimit unlimited{};
    ::getrlimit(RLIMIT_FSIZE, &unlimited);
    ::signal(SIGXFSZ, SIG_IGN);
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFileName(file);
    desk.prompts.expect(u"ディスクの空き容量が不足しています"_q);
    const rlimit small{20000, unlimited.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    form()->printOn(printer);
    ::setrlimit(RLIMIT_FSIZE, &unlimited);
    EXPECT_TRUE(desk.prompts.allShown());
    EXPECT_EQ(readFile(file), "old");
    EXPECT_EQ(QDir(desk.folder.path()).entryList({u"p.pdf*"_q}), QStringList(u"p.pdf"_q));
}

// Where the texts of the second page end at the right, in points.
int endOfTexts(const QString& file) {
    QProcess process;
    process.start(u"pdftotext"_q, {u"-bbox"_q, u"-f"_q, u"2"_q, u"-l"_q, u"2"_q, file, u"-"_q});
    EXPECT_TRUE(process.waitForFinished()) << "pdftotext is part of poppler-utils";
    static const QRegularExpression word(u"xMax=\"(\\d+)"_q);
    int end = 0;
    const QString text = QString::fromUtf8(process.readAllStandardOutput());
    for (const auto& match : word.globalMatch(text)) end = std::max(end, match.captured(1).toInt());
    return end;
}

// The printer's own paper: a landscape sheet is 842 by 595 points, its footer ends at 811.
TEST_F(FrmPreview, ASmallerSheetGetsASmallerPage) {
    for (const auto& [orientation, right] : {std::pair{QPageLayout::Landscape, 811}, {QPageLayout::Portrait, 565}}) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(desk.file(u"p.pdf"_q));
        printer.setPageLayout({QPageSize(QPageSize::A4), orientation, QMarginsF(10, 10, 10, 10)});
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(1, 2);
        form()->printOn(printer);
        EXPECT_NEAR(endOfTexts(desk.file(u"p.pdf"_q)), right, 2);
    }
}

TEST_F(FrmPreview, OneStandsOverItsParentWithTheHelpOfWhoIsLoggedIn) {
    const QPointer<frmPreview> first = form();
    PrintGrid(GridModel(), u"Kurbo－カレンダー設定(2026年)"_q, client, &parent);
    QTest::qWait(1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(first);
    EXPECT_TRUE(QTest::qWaitForWindowActive(form()));
    client.session.SessionStaff = u"ADMIN"_q;
    desk.prompts.expect(desk.paths.adminHelpPath);
    press(Qt::Key_F1);
}

} // namespace
} // namespace kurbo::test
