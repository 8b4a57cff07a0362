#include "totals/frmTotal.h"

#include "paper/frmPreview.h"
#include "screen/fields/fields.h"
#include "screen/fields/leave_check.h"
#include "screen/grid/vfg_copy.h"
#include "screen/windows/show_now.h"
#include "totals/csv/csv_file.h"
#include "totals/csv/frmCsv.h"
#include "totals/rptTotal.h"
#include "ui_frmTotal.h"

#include <QCloseEvent>
#include <QScopedValueRollback>

namespace kurbo {

frmTotal::frmTotal(Client& client, QWidget* parent)
    : ScreenForm(client, parent), ui_(std::make_unique<Ui::frmTotal>()), screen_(client) {
    ui_->setupUi(this);
    dress(QStringLiteral("月次集計"));
    dressFields();
    connectSelection();
    connectCommands();
    screen_.sheet.onEdit = [this] { showCommands(); };
    fillScreen(this, {1360, 900});
}

frmTotal::~frmTotal() {
    putAway();
}

void frmTotal::dressFields() {
    const QString refusal = QStringLiteral("不正な入力です。年月を西暦年でyyyy/mm形式で入力して下さい。");
    for (const auto& [box, spin] : {std::pair{ui_->mskStart, ui_->udcStart}, {ui_->mskEnd, ui_->udcEnd}}) {
        box->setRefusal(refusal, client_.context.prompts);
        spin->setBuddy(box);
        const auto move = [field = box](int by) {
            if (const auto first = field->day()) field->setDay(addMonths(*first, by));
        };
        connect(spin, &UpDown::UpClick, this, [move] { move(1); });
        connect(spin, &UpDown::DownClick, this, [move] { move(-1); });
    }
    ui_->udcYear->setBuddy(ui_->txtYear);
    for (QWidget* const combo : {ui_->dcbSection, ui_->dcbStaff}) SetImeOpen(combo, true);
    new LeaveCheck(
        ui_->dcbStaff, [this] { return ui_->dcbStaff->currentText().isEmpty() || ui_->dcbStaff->isInList(); },
        [this] { client_.context.prompts.exclaim(QStringLiteral("リストから選択して下さい｡ ")); });
    ui_->vfgKurbo->setGrid(screen_.sheet.grid, client_.context);
    wireGridMenu(*ui_->vfgKurbo, client_.context, ui_->mnuGrid, ui_->mnuGCopy, ui_->mnuGPaste, ui_->mnuGClear);
}

void frmTotal::connectSelection() {
    connect(ui_->dcbSection, &QComboBox::activated, this, &frmTotal::sectionChosen);
    connect(ui_->dcbSection->lineEdit(), &QLineEdit::editingFinished, this, &frmTotal::sectionChosen);
    connect(ui_->dcbStaff, &QComboBox::activated, this, &frmTotal::staffChosen);
    connect(ui_->dcbStaff->lineEdit(), &QLineEdit::editingFinished, this, &frmTotal::staffChosen);
    for (int month = 1; month <= months; ++month)
        connect(findChild<QRadioButton*>(QStringLiteral("optMonth_%1").arg(month)), &QRadioButton::clicked, this,
                [this, month] { run(withMonths([this, month] { screen_.chooseMonth(month); })); });
    for (const auto& [option, byStaff] : {std::pair{ui_->optMethod_0, true}, {ui_->optMethod_1, false}})
        connect(option, &QRadioButton::clicked, this,
                [this, order = byStaff] { run(withMonths([this, order] { screen_.chooseOrder(order); })); });
    connect(ui_->udcYear, &UpDown::UpClick, this, [this] { run(withMonths([this] { screen_.moveYears(1); })); });
    connect(ui_->udcYear, &UpDown::DownClick, this, [this] { run(withMonths([this] { screen_.moveYears(-1); })); });
}

void frmTotal::connectCommands() {
    onCommand(ui_->cmdDisplay, ui_->mnuDisplay, withMonths([this] { screen_.display(); }));
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, withMonths([this] { screen_.update(); }));
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { print(); });
    onCommand(nullptr, ui_->mnuDelete, withMonths([this] { screen_.deleteMonths(); }));
    onCommand(nullptr, ui_->mnuSaveKrb, withMonths([this] { screen_.saveKrb(); }));
    onCommand(nullptr, ui_->mnuLoadKrb, [this] { screen_.loadKrb(); });
    onCommand(nullptr, ui_->mnuSaveCsv, [this] { screen_.saveCsv(); });
    onCommand(nullptr, ui_->mnuLoadCsv, withMonths([this] { loadCsv(); }));
}

// The command with what stands in the two boxes for the months.
ScreenForm::Command frmTotal::withMonths(const Command& command) {
    return [this, command] {
        screen_.boxes = {ui_->mskStart->maskText(), ui_->mskEnd->maskText()};
        command();
    };
}

void frmTotal::load() {
    run([this] { screen_.load(); });
    ui_->vfgKurbo->setFocus();
}

void frmTotal::print() {
    if (!checkedMonths(client_.context, ui_->mskStart->maskText(), ui_->mskEnd->maskText())) return;
    const TotalHeading heading{slashMonth(screen_.span().from),
                               slashMonth(screen_.span().to),
                               {ui_->dcbSection->boundText(), ui_->dcbSection->currentText()},
                               {ui_->dcbStaff->boundText(), ui_->dcbStaff->currentText()}};
    guarded(client_.context, u"rptTotal", u"ActiveReport_ReportStart", [&] {
        showPreview(std::make_unique<rptTotal>(screen_.sheet, heading, client_.context.clock.today()), client_, this);
    });
}

// Records that have come in stand in the grid at once.
void frmTotal::loadCsv() {
    if (!screen_.mayDiscard()) return;
    const QStringList files = client_.context.prompts.openFiles(QStringLiteral("CSVﾌｧｲﾙ(*.csv)|*.csv"));
    if (files.isEmpty() || !mayLoadCsv(client_.context, files.size())) return;
    if (frmCsv(client_, screen_.countUnit(), this).review(files)) screen_.reload();
}

void frmTotal::sectionChosen() {
    if (blnShowing_) return;
    const QString code = ui_->dcbSection->isInList() ? ui_->dcbSection->boundText() : QString();
    if (code.isEmpty() || (code == screen_.section() && !screen_.sheet.blnFileMode)) return showNames();
    run(withMonths([this, &code] { screen_.chooseSection(code); }));
}

void frmTotal::staffChosen() {
    const QString code = ui_->dcbStaff->boundText();
    const bool known = code.isEmpty() || ui_->dcbStaff->isInList();
    if (blnShowing_ || !known) return;
    if (code == screen_.staff()) return showNames();
    run(withMonths([this, &code] { screen_.chooseStaff(code); }));
}

void frmTotal::showState() {
    const QScopedValueRollback showing(blnShowing_, true);
    showNames();
    showSpan();
    showCommands();
}

void frmTotal::showNames() {
    const QScopedValueRollback showing(blnShowing_, true);
    ui_->dcbSection->setEntries(screen_.sections());
    ui_->dcbSection->setBoundText(screen_.section());
    ui_->dcbStaff->setEntries(screen_.people());
    ui_->dcbStaff->setBoundText(screen_.staff());
}

void frmTotal::showSpan() {
    (screen_.byStaff() ? ui_->optMethod_0 : ui_->optMethod_1)->setChecked(true);
    const MonthSpan span = screen_.span();
    const auto month = static_cast<unsigned>(span.to.month());
    ui_->txtYear->setText(QString::number(screen_.year()));
    findChild<QRadioButton*>(QStringLiteral("optMonth_%1").arg(month))->setChecked(true);
    // Months that were typed and not shown yet stay.
    if (spanChanges_ == screen_.spanChanges()) return;
    spanChanges_ = screen_.spanChanges();
    ui_->mskStart->setDay(Day{span.from / 1});
    ui_->mskEnd->setDay(Day{span.to / 1});
}

void frmTotal::showCommands() {
    const bool changed = screen_.sheet.changed;
    ui_->cmdUpdate->setEnabled(changed);
    ui_->mnuUpdate->setEnabled(changed);
    ui_->mnuDelete->setEnabled(screen_.mayDelete());
    ui_->mnuCsv->menuAction()->setEnabled(screen_.mayExchange());
    for (QWidget* const control : {static_cast<QWidget*>(ui_->cmdPrint), static_cast<QWidget*>(ui_->vfgKurbo)})
        control->setEnabled(screen_.isAlive());
}

void frmTotal::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (blnShowing_ || !finishEdits() || !screen_.mayDiscard()) return;
    screen_.leave();
    event->accept();
}

} // namespace kurbo
