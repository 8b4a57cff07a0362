#include "card/outings/frmGoOut.h"

#include "card/edit/card_checks.h"
#include "card/outings/rptGoOut.h"
#include "paper/frmPreview.h"
#include "screen/grid/vfg_copy.h"
#include "screen/windows/show_now.h"
#include "ui_frmGoOut.h"

#include <QCloseEvent>

namespace kurbo {

frmGoOut::frmGoOut(Client& client, QWidget* parent)
    : ScreenForm(client, parent), ui_(std::make_unique<Ui::frmGoOut>()), goOut_(client) {
    ui_->setupUi(this);
    // Its card owns it.
    setAttribute(Qt::WA_DeleteOnClose, false);
    dress(QStringLiteral("外出明細"));
    dressFields();
    connectCommands();
    goOut_.sheet.onEdit = [this] { showCommands(); };
    ShowGoOut({}, {});
    ui_->vfgGoOut->setFocus();
    fillScreen(this, {640, 600});
}

frmGoOut::~frmGoOut() {
    putAway();
}

void frmGoOut::dressFields() {
    const QString refusal = QStringLiteral("不正な入力です。日付を西暦年でyyyy/mm/dd形式で入力して下さい。");
    for (const auto& [box, spin] : {std::pair{ui_->mskStart, ui_->udcStart}, {ui_->mskEnd, ui_->udcEnd}}) {
        box->setRefusal(refusal, client_.context.prompts);
        spin->setBuddy(box);
        const auto move = [field = box](int days) {
            if (const auto day = field->day()) field->setDay(*day + std::chrono::days(days));
        };
        connect(spin, &UpDown::UpClick, this, [move] { move(1); });
        connect(spin, &UpDown::DownClick, this, [move] { move(-1); });
    }
    ui_->vfgGoOut->setGrid(goOut_.sheet.grid, client_.context);
    ui_->vfgGoOut->setStretchColumn(static_cast<int>(GoOutColumn::Destination));
    tellRefusals(*ui_->vfgGoOut);
    wireGridMenu(*ui_->vfgGoOut, client_.context, ui_->mnuGrid, ui_->mnuGCopy, ui_->mnuGPaste, ui_->mnuGClear);
}

void frmGoOut::connectCommands() {
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, [this] { goOut_.update(); });
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { print(); });
    onCommand(nullptr, ui_->mnuGInsert, [this] { insertRow(); });
    onCommand(nullptr, ui_->mnuGDelete, [this] { goOut_.deleteRow(ui_->vfgGoOut->Row()); });
}

void frmGoOut::setPeriod(Period period) {
    ui_->mskStart->setDay(period.from);
    ui_->mskEnd->setDay(period.to);
}

void frmGoOut::setPerson(const CodeName& section, const CodeName& staff, bool blnMyCard) {
    section_ = section;
    staff_ = staff;
    goOut_.setPerson(staff.code, blnMyCard);
    showCommands();
}

void frmGoOut::ShowGoOut(const QString& cardKey, const QString& dateText) {
    goOut_.ShowGoOut(cardKey, dateText);
    showCommands();
}

bool frmGoOut::isChanged() const {
    return goOut_.sheet.changed || ui_->vfgGoOut->isEditing();
}

bool frmGoOut::mayLeaveDay() {
    const bool leaves = finishEdits() && goOut_.mayLeaveDay();
    showCommands();
    return leaves;
}

void frmGoOut::print() {
    if (!goOut_.mayPrint()) return;
    const auto period = checkedPeriod(client_.context, ui_->mskStart->maskText(), ui_->mskEnd->maskText());
    if (!period) return;
    auto report = makeGoOutReport(client_.context, *client_.CurrentConnection, section_, staff_, *period);
    if (report) showPreview(std::move(report), client_, this);
}

// The cursor goes to the new row.
void frmGoOut::insertRow() {
    Grid& grid = *ui_->vfgGoOut;
    const int row = std::max(grid.Row(), firstGoOut);
    const int column = std::max(grid.Col(), static_cast<int>(GoOutColumn::Out));
    if (goOut_.insertRow(row)) grid.Select(row, column);
}

void frmGoOut::showCommands() {
    const bool writes = goOut_.sheet.mayWrite();
    for (QAction* const action : {ui_->mnuGPaste, ui_->mnuGClear, ui_->mnuGInsert}) action->setEnabled(writes);
    ui_->mnuGDelete->setEnabled(goOut_.mayDelete());
    ui_->cmdUpdate->setEnabled(writes && goOut_.sheet.changed);
    ui_->mnuUpdate->setEnabled(writes && goOut_.sheet.changed);
}

void frmGoOut::closeEvent(QCloseEvent* event) {
    event->setAccepted(!blnShowing_ && finishEdits() && goOut_.mayClose());
    if (event->isAccepted()) closePreview(this);
}

} // namespace kurbo
