// The outings beside the card.

#include "card/card_grid.h"
#include "card/edit/card_checks.h"
#include "card/frmKurbo.h"
#include "card/outings/frmGoOut.h"
#include "screen/files/card_file.h"
#include "screen/windows/show_now.h"
#include "screen/windows/window_manners.h"
#include "ui_frmKurbo.h"

#include <QScopedValueRollback>

namespace kurbo {

void frmKurbo::connectGoOut() {
    onCommand(ui_->cmdGoOut, ui_->mnuDetail, [this] { openGoOut(); });
    onCommand(nullptr, ui_->mnuList, [this] { listGoOut(); });
    screen_.mayLeaveDay = [this] { return !isGoOutOpen() || frmGoOut_->mayLeaveDay(); };
    // The move of the cursor comes to its end before anything is asked.
    const auto follow = [this](int oldRow, int /*oldCol*/, int newRow) {
        if (oldRow != newRow) followRow();
    };
    connect(ui_->vfgKurbo, &Grid::AfterRowColChange, this, follow, Qt::QueuedConnection);
}

bool frmKurbo::isGoOutOpen() const {
    return frmGoOut_ && frmGoOut_->isVisible();
}

void frmKurbo::openGoOut() {
    if (screen_.chosen().staff.isEmpty())
        return client_.context.prompts.exclaim(QStringLiteral("氏名が入力されていません。"));
    const auto period = checkedPeriod(client_.context, ui_->mskStart->maskText(), ui_->mskEnd->maskText());
    if (!period ||
        refusesFileMode(client_.context.prompts, screen_.sheet.blnFileMode, QStringLiteral("外出明細の表示")))
        return;
    if (isGoOutOpen()) return bringToFront(*frmGoOut_);
    frmGoOut_ = std::make_unique<frmGoOut>(client_);
    frmGoOut_->setPeriod(*period);
    showGoOutDay();
    stayAbove(frmGoOut_.get(), this);
    frmGoOut_->show();
}

// The day of the current row, of the card as it stands now.
void frmKurbo::showGoOutDay() {
    const int row = ui_->vfgKurbo->Row();
    goOutDate_ = cardText(screen_.sheet.grid, row, CardColumn::Date);
    goOutDrawing_ = screen_.drawings();
    frmGoOut_->setPerson(chosenSection(), chosenStaff(), screen_.isOwnCard());
    frmGoOut_->ShowGoOut(cardText(screen_.sheet.grid, row, CardColumn::Id), goOutDate_);
}

void frmKurbo::followRow() {
    if (!isGoOutOpen() || blnShowing_ || goOutAsking_ || screen_.chosen().staff.isEmpty() || screen_.sheet.blnFileMode)
        return;
    if (cardText(screen_.sheet.grid, ui_->vfgKurbo->Row(), CardColumn::Date) == goOutDate_) return;
    const QScopedValueRollback asking(goOutAsking_, true);
    if (frmGoOut_->mayLeaveDay())
        showGoOutDay();
    else
        backToGoOutDay();
}

void frmKurbo::backToGoOutDay() {
    for (int row = firstCardDay; row < screen_.sheet.grid.Rows(); ++row)
        if (cardText(screen_.sheet.grid, row, CardColumn::Date) == goOutDate_)
            return ui_->vfgKurbo->Select(row, ui_->vfgKurbo->Col());
}

// After each command. Changes that nobody has given up stay, also where the card was drawn anew beside them.
void frmKurbo::refreshGoOut() {
    if (!isGoOutOpen()) return;
    if (screen_.sheet.blnFileMode || !screen_.mayGoOut()) {
        frmGoOut_->close();
        return;
    }
    frmGoOut_->setPerson(chosenSection(), chosenStaff(), screen_.isOwnCard());
    if (screen_.drawings() != goOutDrawing_ && !frmGoOut_->isChanged()) showGoOutDay();
}

bool frmKurbo::closeGoOut() {
    return !isGoOutOpen() || frmGoOut_->close();
}

} // namespace kurbo
