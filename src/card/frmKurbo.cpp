#include "card/frmKurbo.h"

#include "card/card_cells.h"
#include "card/card_grid.h"
#include "card/outings/frmGoOut.h"
#include "screen/fields/fields.h"
#include "screen/grid/vfg_copy.h"
#include "screen/windows/show_now.h"
#include "ui_frmKurbo.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>

namespace kurbo {
namespace {

// A box tells its state by its word and weight too.
void showMark(QCheckBox& box, bool given) {
    box.setChecked(given);
    box.setText(given ? QStringLiteral("済") : QStringLiteral("未"));
    QFont font = box.font();
    font.setBold(given);
    box.setFont(font);
}

} // namespace

frmKurbo::frmKurbo(Client& client, QWidget* parent)
    : ScreenForm(client, parent), ui_(std::make_unique<Ui::frmKurbo>()), screen_(client) {
    ui_->setupUi(this);
    dress(QStringLiteral("タイムカード"));
    dressFields();
    connectSelection();
    connectCommands();
    connectGoOut();
    connectMonth();
    screen_.sheet.onEdit = [this] { showCommands(); };
    fillScreen(this, {1360, 990});
}

frmKurbo::~frmKurbo() {
    putAway();
}

void frmKurbo::dressFields() {
    for (int month = 1; month <= months; ++month)
        optMonth_[static_cast<std::size_t>(month - 1)] =
            findChild<QRadioButton*>(QStringLiteral("optMonth_%1").arg(month));
    const QString refusal = QStringLiteral("不正な入力です。日付を西暦年でyyyy/mm/dd形式で入力して下さい。");
    for (const auto& [box, spin] : {std::pair{ui_->mskStart, ui_->udcStart}, {ui_->mskEnd, ui_->udcEnd}}) {
        box->setRefusal(refusal, client_.context.prompts);
        spin->setBuddy(box);
    }
    ui_->udcYear->setBuddy(ui_->txtYear);
    for (QWidget* const combo : {ui_->dcbSection, ui_->dcbStaff}) SetImeOpen(combo, true);
    ui_->vfgKurbo->setGrid(screen_.sheet.grid, client_.context);
    ui_->vfgKurbo->setStretchColumn(static_cast<int>(CardColumn::Plan));
    tellRefusals(*ui_->vfgKurbo);
    wireGridMenu(*ui_->vfgKurbo, client_.context, ui_->mnuGrid, ui_->mnuGCopy, ui_->mnuGPaste, ui_->mnuGClear);
}

void frmKurbo::connectSelection() {
    connect(ui_->dcbSection, &QComboBox::activated, this, &frmKurbo::sectionChosen);
    connect(ui_->dcbSection->lineEdit(), &QLineEdit::editingFinished, this, &frmKurbo::sectionChosen);
    connect(ui_->dcbStaff, &QComboBox::activated, this, &frmKurbo::staffChosen);
    connect(ui_->dcbStaff->lineEdit(), &QLineEdit::editingFinished, this, &frmKurbo::staffChosen);
    for (int month = 1; month <= months; ++month)
        connect(optMonth_[static_cast<std::size_t>(month - 1)], &QRadioButton::clicked, this,
                [this, month] { run([this, month] { screen_.chooseMonth(month); }); });
    connect(ui_->udcYear, &UpDown::UpClick, this, [this] { moveYear(1); });
    connect(ui_->udcYear, &UpDown::DownClick, this, [this] { moveYear(-1); });
    for (const auto& [box, spin] : {std::pair{ui_->mskStart, ui_->udcStart}, {ui_->mskEnd, ui_->udcEnd}}) {
        const auto move = [field = box](int days) {
            if (const auto day = field->day()) field->setDay(*day + std::chrono::days(days));
        };
        connect(spin, &UpDown::UpClick, this, [move] { move(1); });
        connect(spin, &UpDown::DownClick, this, [move] { move(-1); });
    }
}

void frmKurbo::connectCommands() {
    const auto dates = [this](bool (CardScreen::*command)(const QString&, const QString&)) {
        return [this, command] { (screen_.*command)(ui_->mskStart->maskText(), ui_->mskEnd->maskText()); };
    };
    onCommand(ui_->cmdDisplay, ui_->mnuDisplay, dates(&CardScreen::display));
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, dates(&CardScreen::update));
    onCommand(nullptr, ui_->mnuDelete, dates(&CardScreen::deletePeriod));
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { print(); });
    onCommand(nullptr, ui_->mnuSaveKrb, dates(&CardScreen::saveKrb));
    onCommand(nullptr, ui_->mnuLoadKrb, [this] { screen_.loadKrb(); });
    connect(ui_->vfgKurbo, &QAbstractItemView::doubleClicked, this, &frmKurbo::showDetail);
}

void frmKurbo::connectMonth() {
    onCommand(nullptr, ui_->mnuAdjust, [this] { screen_.month().adjust(); });
    onCommand(nullptr, ui_->mnuUpdateMonthly, [this] { screen_.month().update(); });
    const auto onMark = [this](QCheckBox* box, bool (CardMonth::*approve)(bool, const QString&, const QString&)) {
        connect(box, &QCheckBox::toggled, this, [this, approve](bool approved) {
            run([&] { (screen_.month().*approve)(approved, ui_->mskStart->maskText(), ui_->mskEnd->maskText()); });
        });
    };
    onMark(ui_->chkPersonal, &CardMonth::approvePersonal);
    onMark(ui_->chkSuperior, &CardMonth::approveSuperior);
}

void frmKurbo::load() {
    run([this] { (void)screen_.load(); });
    ui_->vfgKurbo->setFocus();
    // Once the window stands in its size.
    QTimer::singleShot(0, this, [this] {
        if (const int row = screen_.todayRow(); row > 0)
            ui_->vfgKurbo->scrollTo(screen_.sheet.grid.index(row, static_cast<int>(CardColumn::Date)));
    });
}

void frmKurbo::sectionChosen() {
    const QString code = ui_->dcbSection->isInList() ? ui_->dcbSection->boundText() : QString();
    if (blnShowing_) return;
    if (code.isEmpty() || (code == screen_.chosen().section && !screen_.sheet.blnFileMode)) return showNames();
    run([this, &code] { screen_.chooseSection(code); });
}

void frmKurbo::staffChosen() {
    const QString code = ui_->dcbStaff->boundText();
    if (blnShowing_) return;
    if (code == screen_.chosen().staff || (!code.isEmpty() && !ui_->dcbStaff->isInList())) return showNames();
    run([this, &code] { screen_.chooseStaff(code); });
}

void frmKurbo::moveYear(int years) {
    run([this, years] { screen_.moveYears(years, ui_->mskStart->maskText(), ui_->mskEnd->maskText()); });
}

void frmKurbo::showDetail(const QModelIndex& cell) {
    const QString detail = screen_.cells().detail(cell.row(), cell.column());
    if (!detail.isEmpty()) client_.context.prompts.inform(detail);
}

void frmKurbo::showState() {
    const QScopedValueRollback showing(blnShowing_, true);
    showNames();
    showPeriod();
    showTop();
    showCommands();
    showApproval();
    tellFile(screen_.fileName());
    refreshGoOut();
}

// Another person's or month's card is read from its top.
void frmKurbo::showTop() {
    if (drawings_ == screen_.drawings()) return;
    drawings_ = screen_.drawings();
    const bool other =
        !drawnStaff_.isEmpty() && (drawnStaff_ != screen_.chosen().staff || drawnPeriod_ != screen_.chosen().period);
    drawnStaff_ = screen_.chosen().staff;
    drawnPeriod_ = screen_.chosen().period;
    if (!other || screen_.sheet.grid.Rows() <= firstCardDay) return;
    ui_->vfgKurbo->Select(firstCardDay, std::max(ui_->vfgKurbo->Col(), 0));
    ui_->vfgKurbo->scrollToTop();
}

void frmKurbo::showNames() {
    const QScopedValueRollback showing(blnShowing_, true);
    ui_->dcbSection->setEntries(screen_.sections());
    ui_->dcbSection->setBoundText(screen_.chosen().section);
    ui_->dcbStaff->setEntries(screen_.people());
    ui_->dcbStaff->setBoundText(screen_.chosen().staff);
}

void frmKurbo::showPeriod() {
    if (!screen_.chosen().month.ok()) return;
    ui_->txtYear->setText(QString::number(static_cast<int>(screen_.chosen().month.year())));
    optMonth_[static_cast<std::size_t>(static_cast<unsigned>(screen_.chosen().month.month()) - 1)]->setChecked(true);
    // Dates that were typed and not shown yet stay.
    if (periodChanges_ == screen_.chosen().periodChanges) return;
    periodChanges_ = screen_.chosen().periodChanges;
    ui_->mskStart->setDay(screen_.chosen().period.from);
    ui_->mskEnd->setDay(screen_.chosen().period.to);
}

void frmKurbo::showCommands() {
    const bool alive = screen_.isAlive();
    for (QWidget* const control :
         {static_cast<QWidget*>(ui_->cmdDisplay), static_cast<QWidget*>(ui_->cmdPrint),
          static_cast<QWidget*>(ui_->txtYear), static_cast<QWidget*>(ui_->mskStart), static_cast<QWidget*>(ui_->mskEnd),
          static_cast<QWidget*>(ui_->udcYear), static_cast<QWidget*>(ui_->udcStart), static_cast<QWidget*>(ui_->udcEnd),
          static_cast<QWidget*>(ui_->vfgKurbo)})
        control->setEnabled(alive);
    for (QRadioButton* const month : optMonth_) month->setEnabled(alive);
    for (QAction* const action : {ui_->mnuDisplay, ui_->mnuPrint, ui_->mnuMonthly->menuAction(),
                                  ui_->mnuKrb->menuAction(), ui_->mnuGrid->menuAction()})
        action->setEnabled(alive);
    const bool changed = alive && screen_.sheet.blnCardChanged;
    ui_->cmdUpdate->setEnabled(changed);
    ui_->mnuUpdate->setEnabled(changed);
    ui_->mnuDelete->setEnabled(alive && screen_.mayDelete());
    ui_->mnuAdjust->setEnabled(screen_.month().mayAdjust());
    ui_->mnuUpdateMonthly->setEnabled(screen_.month().mayUpdate());
    ui_->cmdGoOut->setEnabled(alive && screen_.mayGoOut());
    ui_->mnuGoOut->setEnabled(alive && screen_.mayGoOut());
    for (QWidget* const combo : {ui_->dcbSection, ui_->dcbStaff}) combo->setEnabled(alive && screen_.mayChooseOthers());
}

void frmKurbo::showApproval() {
    showMark(*ui_->chkPersonal, screen_.month().personalApproval());
    showMark(*ui_->chkSuperior, screen_.month().superiorApproval());
    ui_->chkPersonal->setEnabled(screen_.month().mayApprovePersonal());
    ui_->chkSuperior->setEnabled(screen_.month().mayApproveSuperior());
}

void frmKurbo::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (blnShowing_ || !finishEdits() || !screen_.mayClose() || !closeGoOut()) return;
    screen_.leave();
    event->accept();
    Q_EMIT closed();
}

} // namespace kurbo
