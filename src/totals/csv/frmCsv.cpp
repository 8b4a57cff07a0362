#include "totals/csv/frmCsv.h"

#include "screen/windows/hourglass.h"
#include "screen/windows/show_now.h"
#include "totals/csv/csv_exchange.h"
#include "totals/csv/csv_review.h"
#include "ui_frmCsv.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

namespace kurbo {
namespace {

// The steps of the adding on the status line, as "(3/40)".
class StatusProgress final : public Progress {
  public:
    explicit StatusProgress(QStatusBar& status) : status_(status) {}
    void begin(const QString& /*text*/, int maximum) override { maximum_ = maximum; }
    void step(int value) override {
        status_.showMessage(QStringLiteral("(%1/%2)").arg(QString::number(value), QString::number(maximum_)));
    }
    void end() override { status_.clearMessage(); }

  private:
    QStatusBar& status_;
    int maximum_ = 0;
};

} // namespace

frmCsv::frmCsv(Client& client, int countUnit, QWidget* parent)
    : ScreenForm(client, parent), ui_(std::make_unique<Ui::frmCsv>()), countUnit_(countUnit) {
    ui_->setupUi(this);
    // Who runs it owns it.
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowModality(Qt::ApplicationModal);
    dress(QStringLiteral("CSV呼出"));
    ui_->vfgCsv->setGrid(cells_, client_.context);
    ui_->vfgCsv->horizontalHeader()->viewport()->installEventFilter(this);
    onCommand(ui_->cmdAddDB, ui_->mnuAddDB, [this] { addToDatabase(); });
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->mnuCancel, &QAction::triggered, this, &QWidget::close);
    fillScreen(this, {1300, 640});
}

frmCsv::~frmCsv() {
    putAway();
}

bool frmCsv::review(const QStringList& files) {
    const auto months = loadCsv(client_.context, files);
    if (!months) return false;
    months_ = *months;
    const bool filled = guarded(client_.context, u"frmCsv", u"Form_Load", false, [this] {
        fillCsvGrid(*client_.CurrentConnection, cells_, months_, countUnit_);
        return true;
    });
    if (!filled) return false;
    const NormalPointer pointer;
    show();
    ui_->vfgCsv->setFocus();
    while (isVisible()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return added_;
}

bool frmCsv::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return ScreenForm::eventFilter(watched, event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int column = ui_->vfgCsv->horizontalHeader()->logicalIndexAt(help->pos());
    QToolTip::showText(help->globalPos(), csvHeadingTip(column), ui_->vfgCsv);
    return true;
}

bool frmCsv::takeStop() {
    QCoreApplication::processEvents();
    return std::exchange(stop_, false);
}

void frmCsv::addToDatabase() {
    Prompts& prompts = client_.context.prompts;
    if (!prompts.sure(QStringLiteral("表示されている月次集計データをデータベースに登録します。"))) return;
    stop_ = false;
    StatusProgress progress(*ui_->status);
    const Context& own = client_.context;
    QList<MonthRecord> records;
    for (const LoadedMonth& month : months_) records.append(month.record);
    const CsvAdded result = kurbo::addToDatabase(
        {own.prompts, own.clock, own.paths, progress}, *client_.CurrentConnection, records,
        ui_->optMethod_0->isChecked() ? OnExisting::Overwrite : OnExisting::Skip, [this] { return takeStop(); });
    if (result.end != CsvAdded::End::Done) return;
    added_ = true;
    prompts.inform(addedText(result));
    hide();
}

// While months are entered this asks for a stop.
void frmCsv::closeEvent(QCloseEvent* event) {
    stop_ = blnShowing_;
    event->setAccepted(!blnShowing_);
}

} // namespace kurbo
