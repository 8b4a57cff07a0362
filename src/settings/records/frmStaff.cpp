#include "settings/records/frmStaff.h"

#include "screen/windows/show_now.h"
#include "settings/records/staff.h"
#include "ui_frmStaff.h"

#include <QStatusBar>

namespace kurbo {

frmStaff::frmStaff(Client& client, QWidget* parent)
    : RecordListForm(client, parent, staffList()), ui_(std::make_unique<Ui::frmStaff>()) {
    ui_->setupUi(this);
    dressList(QStringLiteral("社員情報登録"), QStringLiteral("社員情報"),
              {.list = ui_->dtsStaff,
               .record = ui_->picStaff,
               .up = ui_->cmdUp,
               .down = ui_->cmdDown,
               .update = ui_->cmdUpdate,
               .print = ui_->cmdPrint});
    checkFieldsOnLeaving();
    statusBar()->setSizeGripEnabled(false);
    placeInMiddle(this);
}

frmStaff::~frmStaff() {
    putAway();
}

void frmStaff::recordShown() {
    const auto typed = [](const MaskedBox* box) { return box->isBlank() ? QString() : box->maskText(); };
    const Day today = client_.context.clock.today();
    statusBar()->clearMessage();
    ui_->lblAge->setText(ageText(typed(ui_->mskBirthday), today));
    ui_->lblYear->setText(serviceText(typed(ui_->mskJoin), typed(ui_->mskRetire), today));
}

void frmStaff::recordMade() {
    statusBar()->showMessage(
        QStringLiteral("登録しました。続けて「社員設定」でパスワード、勤務時間、アクセス権を設定して下さい。"));
}

QStringList frmStaff::listing() const {
    return staffListing(collected(), choices(), client_.context.clock.today());
}

} // namespace kurbo
